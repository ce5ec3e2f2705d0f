// The program's entry on Windows, where arguments are text.

#include <wx/app.h>

wxIMPLEMENT_WXWIN_MAIN

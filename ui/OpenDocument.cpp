#include "ui/OpenDocument.h"

#include "ui/ToolkitText.h"

#include <wx/msgdlg.h>

void openDocument(Document& document)
{
    const LoadResult result = document.loadDatabase();
    if (result != LoadResult::Loaded)
        wxMessageBox(toolkitText(loadMessage(result)), "Message", wxOK);
    document.loadDefinition();
}

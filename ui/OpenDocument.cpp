// Opens what the command line names. Reading is the document's; saying what went wrong needs a window system.

#include "ui/OpenDocument.h"

#include "ui/MessageBox.h"
#include "ui/ToolkitText.h"

void openDocument(Document& document)
{
    tellWhyNotLoaded(document.loadDatabase());
    // After the database: lines without a length take it from the tag that they name.
    document.loadDefinition();
}

void tellWhyNotLoaded(LoadResult result)
{
    // A start without the option is told so too: an editor without tags is rarely what was meant.
    if (result != LoadResult::Loaded)
        messageBox(toolkitText(loadMessage(result)), "Message");
}

#include "ui/OpenDocument.h"

#include "ui/MessageBox.h"
#include "ui/ToolkitText.h"

void openDocument(Document& document)
{
    const LoadResult result = document.loadDatabase();
    if (result != LoadResult::Loaded)
        messageBox(toolkitText(loadMessage(result)), "Message");
    document.loadDefinition();
}

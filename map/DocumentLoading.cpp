#include "map/DocumentLoading.h"

#include "memory/FreePages.h"

// Not one thread for both files: the list of tags is shown as soon as it is there, and a thread that only waits costs
// nothing.

namespace
{

/// In a thread if there is one to be had.
constexpr auto anyhow = std::launch::async | std::launch::deferred;

} // namespace

DocumentLoading::DocumentLoading(Document& opened)
    : document(opened), database(std::async(anyhow, [&opened] { return opened.loadDatabase(); })),
      definition(std::async(anyhow,
                            [&opened, tags = database]
                            {
                                // It sizes objects that the definition names without a length.
                                if (tags.get() != LoadResult::Loaded)
                                    return false;
                                opened.loadDefinition();
                                returnFreePages();
                                return true;
                            }))
{
}

LoadResult DocumentLoading::waitForDatabase() const
{
    return database.get();
}

void DocumentLoading::finish()
{
    if (!definition.get())
        document.loadDefinition();
}

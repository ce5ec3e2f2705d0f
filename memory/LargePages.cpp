#include "memory/LargePages.h"

#include <memory>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size)
{
#ifdef MADV_HUGEPAGE
    if (std::align(largePageSize, largePageSize, memory, size) != nullptr)
        ::madvise(memory, size / largePageSize * largePageSize, MADV_HUGEPAGE);
#endif
}

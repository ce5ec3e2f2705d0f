#include "Switch.h"

#include <cstdlib>
#include <sys/mman.h>

namespace mutation
{

int chosen = 0;
unsigned char* asked = nullptr;

} // namespace mutation

namespace
{

// Before every other initialiser: those run code that asks, too.
__attribute__((constructor(101))) void readEnvironment()
{
    if (const char* const number = std::getenv("MUTANT"))
        mutation::chosen = static_cast<int>(std::strtol(number, nullptr, 10));
    if (std::getenv("MUTATION_RECORD") == nullptr)
        return;
    // Shared, so that what a forked test process asks is seen as well.
    void* const bytes = mmap(nullptr, mutation::limit, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (bytes != MAP_FAILED)
        mutation::asked = static_cast<unsigned char*>(bytes);
}

} // namespace

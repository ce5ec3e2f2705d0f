#include "memory/FreePages.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void keepOneStore()
{
#ifdef __GLIBC__
    // As much as version 2.36 allows. It would also take the largest piece ever freed for the measure, but that one has
    // then gone to the system.
    constexpr int largestPiece = 32 << 20;
    ::mallopt(M_ARENA_MAX, 1);
    ::mallopt(M_MMAP_THRESHOLD, largestPiece);
    ::mallopt(M_TRIM_THRESHOLD, largestPiece);
#endif
}

void returnFreePages()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

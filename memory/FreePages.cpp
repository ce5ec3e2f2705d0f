#include "memory/FreePages.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void keepOneStore()
{
#ifdef __GLIBC__
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

void returnFreePages()
{
#ifdef __GLIBC__
    // Version 2.36 takes the largest piece ever freed, here the text of the tag database, for the measure of what is
    // worth keeping: twice that.
    ::malloc_trim(0);
#endif
}

#pragma once

/// Has the processor fetch memory that is about to be looked at, while something else is done. A wish, without effect
/// on what the program does.
inline void fetchAhead([[maybe_unused]] const void* memory)
{
#ifdef __GNUC__
    __builtin_prefetch(memory);
#endif
}

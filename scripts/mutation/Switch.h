#pragma once

// Goes into the copy of the tree that `scripts/mutate` builds, never into the product.

namespace mutation
{

/// The change that is switched on; 0 for none.
extern int chosen;
/// One byte for each change, set when the code asks for it; null unless that is recorded.
extern unsigned char* asked;
/// How many bytes `asked` has.
constexpr int limit = 1 << 20;

} // namespace mutation

/// True while the change of that number is switched on.
inline bool mutantIs(int number) noexcept
{
    if (mutation::asked != nullptr)
        mutation::asked[number] = 1;
    return number == mutation::chosen;
}

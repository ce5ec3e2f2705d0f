#include "text/FindBytes.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::uint64_t everyByte = 0x0101010101010101ULL;

std::uint64_t wordAt(const char* bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// The top bit of each byte that is zero. Behind the first of them further bits may be set where no zero is.
std::uint64_t zeroBytes(std::uint64_t word)
{
    return (word - everyByte) & ~word & everyByte << 7U;
}

} // namespace

std::size_t findBytes(std::string_view text, std::string_view piece, std::size_t start)
{
    if constexpr (std::endian::native != std::endian::little)
        return text.find(piece, start);
    if (piece.size() < 2 || start >= text.size() || piece.size() > text.size() - start)
        return text.find(piece, start);

    // Eight places at a time are compared with the first and the last byte of the piece; hardly any pass both.
    const std::size_t toLast = piece.size() - 1;
    const std::uint64_t first = everyByte * static_cast<unsigned char>(piece.front());
    const std::uint64_t last = everyByte * static_cast<unsigned char>(piece.back());
    const char* place = text.data() + start;
    const char* const placesEnd = text.data() + text.size() - toLast;
    while (placesEnd - place >= 8)
    {
        std::uint64_t candidates = zeroBytes((wordAt(place) ^ first) | (wordAt(place + toLast) ^ last));
        while (candidates != 0)
        {
            const char* const candidate = place + std::countr_zero(candidates) / 8;
            if (std::memcmp(candidate, piece.data(), piece.size()) == 0)
                return static_cast<std::size_t>(candidate - text.data());
            candidates &= candidates - 1;
        }
        place += 8;
    }
    return text.find(piece, static_cast<std::size_t>(place - text.data()));
}

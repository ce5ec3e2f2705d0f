#include "fuzz/MemoryFile.h"

#include "fuzz/Require.h"

#include <string>
#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile(std::span<const std::uint8_t> bytes) : descriptor(::memfd_create("input", MFD_CLOEXEC))
{
    require(descriptor >= 0, "a file in memory can be made");
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    require(written == static_cast<ssize_t>(bytes.size()), "a file in memory takes its bytes");
}

MemoryFile::~MemoryFile()
{
    ::close(descriptor);
}

std::filesystem::path MemoryFile::path() const
{
    return "/proc/self/fd/" + std::to_string(descriptor);
}

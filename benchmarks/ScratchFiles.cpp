#include "benchmarks/ScratchFiles.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

void require(bool done, const fs::path& path)
{
    if (!done)
        throw std::runtime_error("cannot use " + path.string());
}

} // namespace

ScratchFolder::ScratchFolder()
{
    std::string name = TOLVANE_BENCH_SCRATCH "/tolvane-XXXXXX";
    require(::mkdtemp(name.data()) != nullptr, name);
    folder = name;
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

fs::path ScratchFolder::input(std::string_view name, std::string_view bytes) const
{
    fs::path path = file(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

void forgetContents(const fs::path& path)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    require(file >= 0, path);
    const bool forgotten = ::fsync(file) == 0 && ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED) == 0;
    ::close(file);
    require(forgotten, path);
}

void writeAndSync(const fs::path& path, std::string_view bytes)
{
    constexpr mode_t everybody = 0666;
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, everybody);
    require(file >= 0, path);
    const bool written = ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    const bool synced = ::fsync(file) == 0;
    ::close(file);
    require(written && synced, path);
}

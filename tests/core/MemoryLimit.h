#pragma once

#include <cstddef>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// Lets the program have no more than some bytes of memory beyond what it has.
class MemoryLimit
{
public:
    explicit MemoryLimit(std::size_t further)
    {
        getrlimit(RLIMIT_AS, &oldLimit);
        const rlimit limit{sizeNow() + further, oldLimit.rlim_max};
        setrlimit(RLIMIT_AS, &limit);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &oldLimit); }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

private:
    static std::size_t sizeNow()
    {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    }

    rlimit oldLimit{};
};

#pragma once

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// Lets the program have no more than some bytes of memory beyond what it has. What is free in its heap does not help:
/// it is taken up meanwhile, so that a limit is met at the same place whatever ran before.
class MemoryLimit
{
public:
    explicit MemoryLimit(std::size_t further)
    {
        getrlimit(RLIMIT_AS, &oldLimit);
        const std::size_t size = sizeNow();
        allow(size);
        takeUpHeap();
        allow(size + further);
    }

    ~MemoryLimit()
    {
        setrlimit(RLIMIT_AS, &oldLimit);
        while (taken)
        {
            Block* const block = taken;
            taken = block->next;
            std::free(block);
        }
    }

    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

private:
    struct Block
    {
        Block* next;
    };

    static std::size_t sizeNow()
    {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    }

    void allow(std::size_t size) const
    {
        const rlimit limit{size, oldLimit.rlim_max};
        setrlimit(RLIMIT_AS, &limit);
    }

    /// Asks for large blocks first, and for smaller ones when there are no more of them.
    void takeUpHeap()
    {
        for (std::size_t size = std::size_t{1} << 26U; size >= 64; size /= 2)
        {
            while (void* const memory = std::malloc(size))
            {
                auto* const block = static_cast<Block*>(memory);
                block->next = taken;
                taken = block;
            }
        }
    }

    rlimit oldLimit{};
    Block* taken = nullptr;
};

#pragma once

#include <cstddef>
#include <memory>

namespace brevaro {

// Blocks of at least kLargeBlockLeast bytes, rounded up to whole huge pages and aligned to
// them, offered huge pages where the system has them; freeLargeBlock gives one back. Throws
// std::bad_alloc when there is no memory.
inline constexpr std::size_t kLargePage = std::size_t(2) << 20;
inline constexpr std::size_t kLargeBlockLeast = kLargePage / 4;
void* allocateLargeBlock(std::size_t bytes);
void freeLargeBlock(void* block);

// Prefetches the cache line at p for a read that follows soon; nothing where the compiler has
// no way to say so.
inline void prefetchForRead(const void* p) {
#if defined(__GNUC__) || defined(__clang__)
    __builtin_prefetch(p);
#else
    (void)p;
#endif
}

// Allocator for big buffers and tables (a page of many megabytes, the keyword tables). Blocks
// of half a MiB and more come from allocateLargeBlock: filling a huge page costs less than
// faulting in its small pages one by one, and a table read at random costs few TLB misses.
// Smaller blocks come from the heap.
template <typename T> struct LargePageAllocator {
    using value_type = T;

    LargePageAllocator() = default;
    template <typename U> LargePageAllocator(const LargePageAllocator<U>&) {}

    T* allocate(std::size_t n) {
        const std::size_t bytes = n * sizeof(T);
        if (bytes < kLargeBlockLeast)
            return std::allocator<T>().allocate(n);
        return static_cast<T*>(allocateLargeBlock(bytes));
    }

    void deallocate(T* p, std::size_t n) {
        if (n * sizeof(T) < kLargeBlockLeast)
            std::allocator<T>().deallocate(p, n);
        else
            freeLargeBlock(p);
    }

    friend bool operator==(const LargePageAllocator&, const LargePageAllocator&) { return true; }
};

} // namespace brevaro

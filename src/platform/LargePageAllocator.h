#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace brevaro {

// Allocator for big buffers and tables (a page of many megabytes, the keyword tables). Blocks
// of half a MiB and more are rounded up to whole huge pages of 2 MiB, aligned to them and, on
// Linux, offered huge pages: filling one costs less than faulting in its small pages one by
// one, and a table read at random costs few TLB misses. Smaller blocks come from the heap.
template <typename T> struct LargePageAllocator {
    using value_type = T;

    LargePageAllocator() = default;
    template <typename U> LargePageAllocator(const LargePageAllocator<U>&) {}

    T* allocate(std::size_t n) {
        const std::size_t bytes = n * sizeof(T);
        if (bytes < kLeast)
            return std::allocator<T>().allocate(n);
        const std::size_t rounded = (bytes + kLarge - 1) / kLarge * kLarge;
        void* p = std::aligned_alloc(kLarge, rounded);
        if (!p)
            throw std::bad_alloc();
#if defined(__linux__) && defined(MADV_HUGEPAGE)
        madvise(p, rounded, MADV_HUGEPAGE);
#endif
        return static_cast<T*>(p);
    }

    void deallocate(T* p, std::size_t n) {
        if (n * sizeof(T) < kLeast)
            std::allocator<T>().deallocate(p, n);
        else
            std::free(p);
    }

    friend bool operator==(const LargePageAllocator&, const LargePageAllocator&) {
        return true;
    }

private:
    static constexpr std::size_t kLarge = std::size_t(2) << 20;
    static constexpr std::size_t kLeast = kLarge / 4;
};

} // namespace brevaro

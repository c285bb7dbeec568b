#include "platform/LargePageAllocator.h"

#include <cstdlib>
#include <new>
#if defined(__linux__)
#include <sys/mman.h>
#endif
#if defined(_WIN32)
#include <malloc.h>
#endif

namespace brevaro {

void* allocateLargeBlock(std::size_t bytes) {
    const std::size_t rounded = (bytes + kLargePage - 1) / kLargePage * kLargePage;
#if defined(_WIN32)
    void* p = _aligned_malloc(rounded, kLargePage);
#else
    void* p = std::aligned_alloc(kLargePage, rounded);
#endif
    if (!p)
        throw std::bad_alloc();
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    madvise(p, rounded, MADV_HUGEPAGE);
#endif
    return p;
}

void freeLargeBlock(void* block) {
#if defined(_WIN32)
    _aligned_free(block);
#else
    std::free(block);
#endif
}

} // namespace brevaro

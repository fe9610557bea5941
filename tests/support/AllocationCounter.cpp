#include "tests/support/AllocationCounter.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SENDER_SANITIZED_ALLOCATOR
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SENDER_SANITIZED_ALLOCATOR
#endif
#endif

namespace {

thread_local std::size_t t_nAllocations = 0;

} // namespace

#ifdef SENDER_SANITIZED_ALLOCATOR

// The sanitizer owns the allocator and offers a hook.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*pMallocHook)(const volatile void*,
                                                                             std::size_t),
                                                         void (*pFreeHook)(const volatile void*));

namespace {

[[maybe_unused]] const int g_nHooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t) { ++t_nAllocations; }, [](const volatile void*) {});

} // namespace

#else

// The C library lets a program define the allocator, and keeps its own under these names.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier): these are the C library's own names.
void* __libc_malloc(std::size_t nSize);
void* __libc_calloc(std::size_t nCount, std::size_t nSize);
void* __libc_realloc(void* pBlock, std::size_t nSize);
// NOLINTEND(bugprone-reserved-identifier)

__attribute__((visibility("default"))) void* malloc(std::size_t nSize)
{
    ++t_nAllocations;
    return __libc_malloc(nSize);
}

__attribute__((visibility("default"))) void* calloc(std::size_t nCount, std::size_t nSize)
{
    ++t_nAllocations;
    return __libc_calloc(nCount, nSize);
}

__attribute__((visibility("default"))) void* realloc(void* pBlock, std::size_t nSize)
{
    ++t_nAllocations;
    return __libc_realloc(pBlock, nSize);
}
}

#endif

CAllocationCounter::CAllocationCounter()
    : m_nStart(t_nAllocations)
{}

std::size_t CAllocationCounter::Count() const
{
    return t_nAllocations - m_nStart;
}

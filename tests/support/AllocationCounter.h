#ifndef TESTS_SUPPORT_ALLOCATIONCOUNTER_H
#define TESTS_SUPPORT_ALLOCATIONCOUNTER_H

#include <cstddef>

/// Counts the allocations of this thread from its construction on: `malloc` and what is built on it, so Qt's
/// containers and `new` as well.
class CAllocationCounter
{
public:
    CAllocationCounter();

    /// Allocations since construction.
    std::size_t Count() const;

private:
    std::size_t m_nStart;
};

#endif // TESTS_SUPPORT_ALLOCATIONCOUNTER_H

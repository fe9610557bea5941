#ifndef TESTS_ROBOT_MEMORYTREND_H
#define TESTS_ROBOT_MEMORYTREND_H

#include <QtGlobal>

#include <vector>

/// Compares the memory in use near the end of a run with that after its warm-up. Each side is the median of
/// many samples, since one sample depends on what happened to be open before it.
class CMemoryTrend
{
public:
    /// @param dDone  the part of the work that is done, 0 to 1
    /// @param nBytes memory in use now
    void Note(double dDone, qint64 nBytes);
    /// Memory near the end divided by that after the warm-up; 0 when a side has no sample.
    double Growth() const;

private:
    std::vector<qint64> m_vecEarly; ///< bytes, after the warm-up
    std::vector<qint64> m_vecLate;  ///< bytes, near the end
};

/// Gives every large block to the system as soon as it is freed. By default the allocator keeps ever larger
/// ones in its heap, and holes between them look like growth.
void KeepHeapCompact();

/// Bytes that the program has allocated and not freed.
qint64 AllocatedBytes();

/// Bytes of memory that the system has given to the process.
qint64 ResidentBytes();

#endif // TESTS_ROBOT_MEMORYTREND_H

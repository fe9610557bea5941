#include "tests/robot/MemoryTrend.h"

#include <QFile>

#include <algorithm>

#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// The compiler's package has the function, but not the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

/// The parts of the work whose samples are compared. Before the first, caches are still filling.
constexpr double c_dEarlyBegin = 0.3;
constexpr double c_dEarlyEnd = 0.5;
constexpr double c_dLateBegin = 0.8;

/// Blocks of this size and more, in bytes, do not live in the heap: the allocator's own first choice.
constexpr int c_nLargeBlock = 128 * 1024;

double Median(std::vector<qint64> vecValues)
{
    const auto itMiddle = vecValues.begin() + std::ptrdiff_t(vecValues.size() / 2);
    std::nth_element(vecValues.begin(), itMiddle, vecValues.end());
    return double(*itMiddle);
}

} // namespace

void CMemoryTrend::Note(double dDone, qint64 nBytes)
{
    if (dDone >= c_dLateBegin)
        m_vecLate.push_back(nBytes);
    else if (dDone >= c_dEarlyBegin && dDone < c_dEarlyEnd)
        m_vecEarly.push_back(nBytes);
}

double CMemoryTrend::Growth() const
{
    return m_vecEarly.empty() || m_vecLate.empty() ? 0.0 : Median(m_vecLate) / Median(m_vecEarly);
}

void KeepHeapCompact()
{
    mallopt(M_MMAP_THRESHOLD, c_nLargeBlock);
}

qint64 AllocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

qint64 ResidentBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

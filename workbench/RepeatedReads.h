#ifndef WORKBENCH_REPEATEDREADS_H
#define WORKBENCH_REPEATEDREADS_H

#include <QHash>
#include <QString>

#include <vector>

/// Which calls of a journal repeat an earlier read. Reads change nothing, so between two other calls equal
/// ones say the same; a write or an event starts afresh.
class CRepeatedReads
{
public:
    void Clear();
    /// Takes the next call.
    /// @param strCall the call with its result
    /// @return the row that stands for it: its own, or that of the first equal read
    int Append(bool bRead, const QString& strCall);

    int Size() const { return int(m_vecCounts.size()); }
    /// How many calls a row stands for; 0 for one that repeats an earlier row.
    int Count(int nRow) const { return m_vecCounts.at(std::size_t(nRow)); }

private:
    std::vector<int> m_vecCounts;
    QHash<QString, int> m_hashRows; ///< first rows of the reads since the last other call
};

#endif // WORKBENCH_REPEATEDREADS_H

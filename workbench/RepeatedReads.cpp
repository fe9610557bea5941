#include "workbench/RepeatedReads.h"

void CRepeatedReads::Clear()
{
    m_vecCounts.clear();
    m_hashRows.clear();
}

int CRepeatedReads::Append(bool bRead, const QString& strCall)
{
    const int nRow = Size();
    m_vecCounts.push_back(1);
    if (!bRead) {
        m_hashRows.clear();
        return nRow;
    }
    const int nFirst = m_hashRows.value(strCall, nRow);
    if (nFirst == nRow) {
        m_hashRows.insert(strCall, nRow);
        return nRow;
    }
    m_vecCounts.back() = 0;
    ++m_vecCounts[std::size_t(nFirst)];
    return nFirst;
}

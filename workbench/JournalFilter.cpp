#include "workbench/JournalFilter.h"

#include "simulator/CommonClass/HostJournal.h"

CJournalFilter::CJournalFilter(QObject* pParent)
    : QSortFilterProxyModel(pParent)
{}

void CJournalFilter::SetText(const QString& strText)
{
    m_strText = strText;
    invalidateFilter();
}

void CJournalFilter::SetReadsShown(bool bShown)
{
    m_bReadsShown = bShown;
    invalidateFilter();
}

bool CJournalFilter::filterAcceptsRow(int nRow, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(nRow, 0, parent);
    if (!m_bReadsShown && index.data(CHostJournal::enRoleCategory).toInt() == enJournalRead)
        return false;
    return index.data(CHostJournal::enRoleLine).toString().contains(m_strText, Qt::CaseInsensitive);
}

#include "workbench/JournalFilter.h"

#include "simulator/CommonClass/HostJournal.h"

#include <QColor>

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

QVariant CJournalFilter::data(const QModelIndex& index, int nRole) const
{
    // Light enough to read on both row colours of the dark theme.
    constexpr QRgb c_clrFailed = qRgb(255, 138, 128);
    if (nRole == Qt::ForegroundRole &&
        QSortFilterProxyModel::data(index, CHostJournal::enRoleFailed).toBool())
        return QColor(c_clrFailed);
    return QSortFilterProxyModel::data(index, nRole);
}

bool CJournalFilter::filterAcceptsRow(int nRow, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(nRow, 0, parent);
    if (!m_bReadsShown && index.data(CHostJournal::enRoleCategory).toInt() == enJournalRead)
        return false;
    return index.data(CHostJournal::enRoleLine).toString().contains(m_strText, Qt::CaseInsensitive);
}

#include "workbench/JournalFilter.h"

#include "simulator/CommonClass/HostJournal.h"

#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QStyle>

namespace {

/// How a cell of a failed write differs from another one.
QVariant FailedCell(int nColumn, int nRole)
{
    // Light enough to read on both row colours of the dark theme.
    constexpr QRgb c_clrFailed = qRgb(255, 138, 128);
    if (nRole == Qt::ForegroundRole)
        return QColor(c_clrFailed);
    if (nRole == Qt::AccessibleDescriptionRole)
        return CJournalFilter::tr("写入失败");
    // A sign beside the word: colours alone do not reach everyone.
    if (nRole == Qt::DecorationRole && nColumn == CHostJournal::enColumnResult)
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
    return {};
}

} // namespace

CJournalFilter::CJournalFilter(CHostJournal& journal, QObject* pParent)
    : QSortFilterProxyModel(pParent)
    , m_journal(journal)
{
    // Connected before the base class is, so that the repeats are known when it asks about new rows.
    connect(&journal, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& /*parent*/, int nFirst, int nLast) { TakeRows(nFirst, nLast); });
    connect(&journal, &QAbstractItemModel::rowsRemoved, this, &CJournalFilter::TakeAll);
    connect(&journal, &QAbstractItemModel::modelReset, this, &CJournalFilter::TakeAll);
    TakeAll();
    setSourceModel(&journal);
}

int CJournalFilter::Count(const SJournalEntry& entry)
{
    return m_reads.Append(entry.category == enJournalRead,
                          entry.strObject + entry.CallText() + entry.strResult);
}

void CJournalFilter::TakeRows(int nFirst, int nLast)
{
    for (int nRow = nFirst; nRow <= nLast; ++nRow) {
        const int nShown = Count(m_journal.At(nRow));
        const QModelIndex index = nShown == nRow ? QModelIndex() : mapFromSource(m_journal.index(nShown, 0));
        if (index.isValid())
            Q_EMIT dataChanged(index, index.siblingAtColumn(columnCount() - 1));
    }
}

void CJournalFilter::TakeAll()
{
    m_reads.Clear();
    for (int nRow = 0; nRow < m_journal.GetCount(); ++nRow)
        Count(m_journal.At(nRow));
    // The base class is still taking over the same change.
    QMetaObject::invokeMethod(
        this, [this] { invalidateFilter(); }, Qt::QueuedConnection);
}

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

void CJournalFilter::SetRepeatsFolded(bool bFolded)
{
    m_bRepeatsFolded = bFolded;
    invalidateFilter();
}

int CJournalFilter::CountAt(const QModelIndex& index) const
{
    const int nRow = mapToSource(index).row();
    return m_bRepeatsFolded && nRow >= 0 && nRow < m_reads.Size() ? m_reads.Count(nRow) : 1;
}

QVariant CJournalFilter::data(const QModelIndex& index, int nRole) const
{
    const QVariant value = QSortFilterProxyModel::data(index, nRole);
    if (!value.isValid() && QSortFilterProxyModel::data(index, CHostJournal::enRoleFailed).toBool())
        return FailedCell(index.column(), nRole);
    const bool bCounts = nRole == CHostJournal::enRoleLine ||
                         (nRole == Qt::DisplayRole && index.column() == CHostJournal::enColumnCall);
    const int nCount = bCounts ? CountAt(index) : 1;
    return nCount > 1 ? QVariant(QStringLiteral("%1  ×%2").arg(value.toString()).arg(nCount)) : value;
}

bool CJournalFilter::filterAcceptsRow(int nRow, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(nRow, 0, parent);
    if (index.data(CHostJournal::enRoleCategory).toInt() == enJournalRead &&
        (!m_bReadsShown || (m_bRepeatsFolded && m_reads.Count(nRow) == 0)))
        return false;
    return index.data(CHostJournal::enRoleLine).toString().contains(m_strText, Qt::CaseInsensitive);
}

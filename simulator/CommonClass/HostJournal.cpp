#include "simulator/CommonClass/HostJournal.h"

#include "simulator/CommonClass/SimulatorText.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace {

/// A full journal drops this share of its entries at once: views receive one removal instead of thousands.
constexpr int c_nDropDivisor = 16;

const char* const c_arrCategoryNames[] = {
    QT_TRANSLATE_NOOP("CSimulatorText", "read"),
    QT_TRANSLATE_NOOP("CSimulatorText", "write"),
    QT_TRANSLATE_NOOP("CSimulatorText", "event"),
};

const char* const c_arrColumnNames[CHostJournal::enColumnCount] = {
    QT_TRANSLATE_NOOP("CSimulatorText", "No."),  QT_TRANSLATE_NOOP("CSimulatorText", "Time"),
    QT_TRANSLATE_NOOP("CSimulatorText", "Kind"), QT_TRANSLATE_NOOP("CSimulatorText", "Object"),
    QT_TRANSLATE_NOOP("CSimulatorText", "Call"), QT_TRANSLATE_NOOP("CSimulatorText", "Result"),
    QT_TRANSLATE_NOOP("CSimulatorText", "ms"),
};

QString TimeText(qint64 nTimeStamp)
{
    return QDateTime::fromMSecsSinceEpoch(nTimeStamp).toString(QStringLiteral("HH:mm:ss.zzz"));
}

} // namespace

QString SJournalEntry::CallText() const
{
    return QStringLiteral("%1(%2)").arg(strOperation, listArguments.join(QStringLiteral(", ")));
}

QString SJournalEntry::LineText() const
{
    QString strLine =
        QStringLiteral("%1\t%2\t%3::%4")
            .arg(TimeText(nTimeStamp), CHostJournal::CategoryName(category), strObject, CallText());
    if (!strResult.isEmpty())
        strLine += QStringLiteral(" = ") + strResult;
    if (bFailed)
        strLine += QLatin1Char('\t') + CSimulatorText::tr("failed");
    return strLine;
}

CHostJournal::CHostJournal(QObject* pParent)
    : QAbstractTableModel(pParent)
{}

CHostJournal::~CHostJournal() = default;

void CHostJournal::Append(SJournalEntry entry)
{
    if (GetCount() >= m_nCapacity)
        DropOldest();
    entry.nNumber = ++m_nLastNumber;
    const int nRow = GetCount();
    beginInsertRows(QModelIndex(), nRow, nRow);
    m_entries.push_back(std::move(entry));
    endInsertRows();
    Q_EMIT OnAppended(nRow);
}

void CHostJournal::MarkLastFailed()
{
    if (m_entries.empty())
        return;
    m_entries.back().bFailed = true;
    const int nRow = GetCount() - 1;
    Q_EMIT dataChanged(index(nRow, 0), index(nRow, enColumnCount - 1));
}

void CHostJournal::DropOldest()
{
    const int nSurplus = GetCount() - m_nCapacity + 1;
    const int nDropped = std::min(GetCount(), std::max(nSurplus, m_nCapacity / c_nDropDivisor));
    beginRemoveRows(QModelIndex(), 0, nDropped - 1);
    m_entries.erase(m_entries.begin(), m_entries.begin() + nDropped);
    endRemoveRows();
}

void CHostJournal::Clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void CHostJournal::SetCapacity(int nCapacity)
{
    m_nCapacity = std::max(1, nCapacity);
    if (GetCount() > m_nCapacity)
        DropOldest();
}

const SJournalEntry& CHostJournal::At(int nRow) const
{
    return m_entries.at(size_t(nRow));
}

std::optional<SJournalEntry> CHostJournal::LastFailed(qint64 nAfter) const
{
    const auto itFound = std::find_if(m_entries.crbegin(), m_entries.crend(), [nAfter](const auto& entry) {
        return entry.bFailed || entry.nNumber <= nAfter;
    });
    if (itFound == m_entries.crend() || itFound->nNumber <= nAfter)
        return std::nullopt;
    return *itFound;
}

QStringList CHostJournal::Calls() const
{
    QStringList listCalls;
    for (const SJournalEntry& entry : m_entries)
        listCalls.append(entry.CallText());
    return listCalls;
}

QStringList CHostJournal::Calls(enJournalCategory category) const
{
    QStringList listCalls;
    for (const SJournalEntry& entry : m_entries) {
        if (entry.category == category)
            listCalls.append(entry.CallText());
    }
    return listCalls;
}

QString CHostJournal::CategoryName(enJournalCategory category)
{
    return CSimulatorText::tr(c_arrCategoryNames[category]);
}

int CHostJournal::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : GetCount();
}

int CHostJournal::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enColumnCount);
}

QVariant CHostJournal::data(const QModelIndex& index, int nRole) const
{
    if (!index.isValid() || index.row() >= GetCount())
        return {};
    const SJournalEntry& entry = At(index.row());
    switch (nRole) {
    case Qt::DisplayRole:
        return DisplayText(entry, index.column());
    case enRoleCategory:
        return int(entry.category);
    case enRoleLine:
    case Qt::ToolTipRole:
        return entry.LineText();
    case enRoleFailed:
        return entry.bFailed;
    default:
        return {};
    }
}

QVariant CHostJournal::DisplayText(const SJournalEntry& entry, int nColumn) const
{
    switch (nColumn) {
    case enColumnNumber:
        return entry.nNumber;
    case enColumnTime:
        return TimeText(entry.nTimeStamp);
    case enColumnCategory:
        return CategoryName(entry.category);
    case enColumnObject:
        return entry.strObject;
    case enColumnCall:
        return entry.CallText();
    case enColumnResult:
        return entry.bFailed ? CSimulatorText::tr("failed %1").arg(entry.strResult).trimmed()
                             : entry.strResult;
    case enColumnDuration:
        return QString::number(entry.dDuration, 'f', 3);
    default:
        return {};
    }
}

QVariant CHostJournal::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (orientation != Qt::Horizontal || nRole != Qt::DisplayRole || nSection < 0 ||
        nSection >= enColumnCount)
        return {};
    return CSimulatorText::tr(c_arrColumnNames[nSection]);
}

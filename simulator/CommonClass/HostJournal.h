#ifndef SIMULATOR_COMMONCLASS_HOSTJOURNAL_H
#define SIMULATOR_COMMONCLASS_HOSTJOURNAL_H

#include "host/HostExport.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <deque>
#include <optional>

/// What a host call does.
enum enJournalCategory
{
    enJournalRead,  ///< it asks the host
    enJournalWrite, ///< it changes the host's data or the hardware
    enJournalEvent, ///< it tells the host that a setting changed
};

/// One host call.
struct COMMONCLASS_EXPORT SJournalEntry
{
    qint64 nNumber = 0;                         ///< running number, from 1; continues after a clear
    qint64 nTimeStamp = 0;                      ///< start of the call, ms since 1970-01-01 UTC
    double dDuration = 0;                       ///< ms
    enJournalCategory category = enJournalRead; ///< what the call does
    QString strObject;                          ///< class of the host object, such as `CSenderLogic`
    QString strOperation;                       ///< such as `GetSenderType`
    QStringList listArguments; ///< as text, after the call: out-arguments show the values returned
    QString strResult;         ///< empty for an operation without a result
    bool bFailed = false;      ///< a write that had no effect

    /// The call as the tests write it: `SetOutput50Hz(0, true, 0)`.
    QString CallText() const;
    /// One line for the clipboard: time, category, object, call and result.
    QString LineText() const;
};

/// Every host call in order, as a table model. Memory is bounded: the oldest entries are dropped first.
class COMMONCLASS_EXPORT CHostJournal : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns of the table.
    enum enColumn
    {
        enColumnNumber,
        enColumnTime,
        enColumnCategory,
        enColumnObject,
        enColumnCall,
        enColumnResult,
        enColumnDuration,
        enColumnCount
    };

    /// Roles beside `Qt::DisplayRole`, for filters.
    enum enRole
    {
        enRoleCategory = Qt::UserRole, ///< `enJournalCategory` as int
        enRoleLine,                    ///< `SJournalEntry::LineText`
        enRoleFailed                   ///< `SJournalEntry::bFailed`
    };

    /// Default number of entries kept: hours of clicking.
    static constexpr int c_nDefaultCapacity = 20000;

    /// An empty journal of `c_nDefaultCapacity` entries.
    explicit CHostJournal(QObject* pParent = nullptr);
    ~CHostJournal() override;

    /// Adds an entry and gives it its number.
    void Append(SJournalEntry entry);
    /// Marks the last entry as a write that had no effect.
    void MarkLastFailed();
    /// Removes all entries; the running number continues.
    void Clear();
    /// Sets how many entries are kept, at least 1.
    void SetCapacity(int nCapacity);
    /// How many entries are kept at most.
    int GetCapacity() const { return m_nCapacity; }

    /// Entries that are there.
    int GetCount() const { return int(m_entries.size()); }
    /// The entry of a row, 0 being the oldest; faults outside the rows.
    const SJournalEntry& At(int nRow) const;
    /// Number of the latest call, 0 before the first.
    qint64 LastNumber() const { return m_nLastNumber; }
    /// The latest failed write with a greater number.
    std::optional<SJournalEntry> LastFailed(qint64 nAfter) const;
    /// The calls as text, oldest first.
    QStringList Calls() const;
    /// The calls of one category as text, oldest first.
    QStringList Calls(enJournalCategory category) const;

    /// Name of a category: "read", "write" or "event", translated.
    static QString CategoryName(enJournalCategory category);

    /// One row a call; none below a row.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// `enColumnCount`; none below a row.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// What a cell shows, and the roles of `enRole`.
    QVariant data(const QModelIndex& index, int nRole) const override;
    /// Heads of the columns, in the present language.
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

Q_SIGNALS:
    /// An entry was added as the last row.
    void OnAppended(int nRow);

private:
    void DropOldest();
    QVariant DisplayText(const SJournalEntry& entry, int nColumn) const;

    std::deque<SJournalEntry> m_entries;
    qint64 m_nLastNumber = 0;
    int m_nCapacity = c_nDefaultCapacity;
};

#endif // SIMULATOR_COMMONCLASS_HOSTJOURNAL_H

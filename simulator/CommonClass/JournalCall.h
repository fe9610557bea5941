#ifndef SIMULATOR_COMMONCLASS_JOURNALCALL_H
#define SIMULATOR_COMMONCLASS_JOURNALCALL_H

#include "simulator/CommonClass/HostJournal.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QSize>

#include <type_traits>
#include <utility>

class QSize;
struct CSender;
struct CSenderEdidLimitData;
struct SCanvasLimit;
struct SEdidSetting;
struct SVideoPortKey;

/// How the journal formats arguments and results of host calls.
namespace JournalText {

COMMONCLASS_EXPORT QString Of(bool bValue);
COMMONCLASS_EXPORT QString Of(int nValue);
COMMONCLASS_EXPORT QString Of(qint64 nValue);
COMMONCLASS_EXPORT QString Of(float fValue);
/// An unsigned value is an address here: dotted decimal.
COMMONCLASS_EXPORT QString Of(unsigned int nAddress);
/// A pointer to an unsigned value takes a code or flags: hexadecimal, or "null".
COMMONCLASS_EXPORT QString Of(const unsigned int* pCode);
COMMONCLASS_EXPORT QString Of(const bool* pValue);
COMMONCLASS_EXPORT QString Of(const QString& strValue);
COMMONCLASS_EXPORT QString Of(const QString* pValue);
COMMONCLASS_EXPORT QString Of(const QStringList& listValue);
COMMONCLASS_EXPORT QString Of(const QSize& size);
COMMONCLASS_EXPORT QString Of(const CSender* pSender);
COMMONCLASS_EXPORT QString Of(const CSenderEdidLimitData* pLimit);
COMMONCLASS_EXPORT QString Of(const SCanvasLimit* pLimit);
COMMONCLASS_EXPORT QString Of(const SEdidSetting* pSetting);
COMMONCLASS_EXPORT QString Of(const SVideoPortKey* pKey);

/// A table of addresses that an operation fills: only the count in the result is shown.
struct STable
{
    unsigned int* pTable;
    operator unsigned int*() const { return pTable; }
};
inline QString Of(const STable& table)
{
    return table.pTable == nullptr ? QStringLiteral("null") : QStringLiteral("table");
}

/// A code that is easier to read in hexadecimal.
struct SHexCode
{
    int nCode;
    operator int() const { return nCode; }
};
COMMONCLASS_EXPORT QString Of(const SHexCode& code);

} // namespace JournalText

/// Base of the journalling front of one host interface. Each operation of the front is one line: it forwards
/// the call to the object behind it and records call, duration and result.
template <class TInterface>
class CJournalledFront : public TInterface
{
public:
    CJournalledFront(TInterface& target, CHostJournal& journal, const char* szObject)
        : m_target(target)
        , m_journal(journal)
        , m_strObject(QString::fromLatin1(szObject))
    {}

protected:
    template <class TResult, class... TParameters, class... TArguments>
    TResult Call(enJournalCategory category, const char* szOperation,
                 TResult (TInterface::*pOperation)(TParameters...), TArguments&&... arguments)
    {
        SJournalEntry entry;
        entry.category = category;
        entry.strObject = m_strObject;
        entry.strOperation = QString::fromLatin1(szOperation);
        entry.nTimeStamp = QDateTime::currentMSecsSinceEpoch();
        QElapsedTimer timer;
        timer.start();
        if constexpr (std::is_void_v<TResult>) {
            (m_target.*pOperation)(arguments...);
            Note(std::move(entry), timer, {JournalText::Of(arguments)...});
        } else {
            TResult result = (m_target.*pOperation)(arguments...);
            entry.strResult = JournalText::Of(result);
            Note(std::move(entry), timer, {JournalText::Of(arguments)...});
            return result;
        }
    }

    /// Marks the latest call as a write that had no effect.
    void MarkFailed() { m_journal.MarkLastFailed(); }

private:
    void Note(SJournalEntry entry, const QElapsedTimer& timer, const QStringList& listArguments)
    {
        constexpr double c_dNanosecondsPerMillisecond = 1e6;
        entry.dDuration = double(timer.nsecsElapsed()) / c_dNanosecondsPerMillisecond;
        entry.listArguments = listArguments;
        m_journal.Append(std::move(entry));
    }

    TInterface& m_target;
    CHostJournal& m_journal;
    const QString m_strObject;
};

#endif // SIMULATOR_COMMONCLASS_JOURNALCALL_H

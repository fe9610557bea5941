#include "simulator/CommonClass/ProjectFingerprint.h"

#include "simulator/CommonClass/ProjectDescriptions.h"

#include <QHash>

#include <algorithm>
#include <type_traits>

namespace {

/// Appends the values of a record, each preceded by its length where that varies.
class CValueBytes
{
public:
    template <class TValue, class... TLimits>
    void Field(const char*, TValue& value, const TLimits&...)
    {
        Append(value);
    }

    template <class TValue, class... TLimits>
    void OptionalField(const char* szKey, TValue& value, const TLimits&... limits)
    {
        Field(szKey, value, limits...);
    }

    QByteArray Take() { return std::move(m_baBytes); }

private:
    template <class TValue>
    void AppendPlain(TValue value)
    {
        m_baBytes.append(reinterpret_cast<const char*>(&value), int(sizeof(value)));
    }

    template <class TContainer>
    void AppendAll(const TContainer& container)
    {
        AppendPlain(int(container.size()));
        for (const auto& element : container)
            Append(element);
    }

    template <class TValue, std::enable_if_t<std::is_arithmetic_v<TValue>, int> = 0>
    void Append(TValue value)
    {
        AppendPlain(value);
    }

    void Append(const QString& strValue)
    {
        AppendPlain(strValue.size());
        m_baBytes.append(reinterpret_cast<const char*>(strValue.constData()),
                         strValue.size() * int(sizeof(QChar)));
    }

    void Append(const QByteArray& baValue)
    {
        AppendPlain(baValue.size());
        m_baBytes.append(baValue);
    }

    void Append(const QSize& size)
    {
        AppendPlain(size.width());
        AppendPlain(size.height());
    }

    void Append(const QStringList& list) { AppendAll(list); }

    template <class TElement>
    void Append(const QList<TElement>& list)
    {
        AppendAll(list);
    }

    template <class TElement>
    void Append(const std::deque<TElement>& elements)
    {
        AppendAll(elements);
    }

    template <class TValue>
    void Append(const std::optional<TValue>& optional)
    {
        AppendPlain(optional.has_value());
        if (optional)
            Append(*optional);
    }

    template <class TRecord, std::enable_if_t<std::is_class_v<TRecord>, int> = 0>
    void Append(const TRecord& record)
    {
        // Reading uses the same description, so it takes a reference; this archive does
        // not modify it.
        Describe(*this, const_cast<TRecord&>(record)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }

    QByteArray m_baBytes;
};

template <class TRecord>
QByteArray BytesOf(TRecord& record)
{
    CValueBytes bytes;
    Describe(bytes, record);
    return bytes.Take();
}

/// Keeps senders, address lists and the current sender separate from the rest.
class CProjectParts
{
public:
    explicit CProjectParts(const SSimulatedProject& project)
        : m_nCurSender(project.nCurSender)
    {}

    template <class... TLimits>
    void Field(const char* szKey, int& nValue, const TLimits&... limits)
    {
        if (&nValue == &m_nCurSender)
            m_fingerprint.nCurSender = nValue;
        else
            m_settings.Field(szKey, nValue, limits...);
    }

    template <class TValue, class... TLimits>
    void Field(const char* szKey, TValue& value, const TLimits&... limits)
    {
        m_settings.Field(szKey, value, limits...);
    }

    template <class TValue, class... TLimits>
    void OptionalField(const char* szKey, TValue& value, const TLimits&... limits)
    {
        m_settings.OptionalField(szKey, value, limits...);
    }

    void Field(const char*, std::deque<SSimulatedSender>& listSenders)
    {
        m_fingerprint.vecSenders.reserve(listSenders.size());
        for (SSimulatedSender& sender : listSenders)
            m_fingerprint.vecSenders.push_back({sender.nId, BytesOf(sender)});
    }

    void Field(const char*, SAddressLists& lists) { m_fingerprint.baAddresses = BytesOf(lists); }

    SProjectFingerprint Take()
    {
        m_fingerprint.baSettings = m_settings.Take();
        return std::move(m_fingerprint);
    }

private:
    const int& m_nCurSender;
    SProjectFingerprint m_fingerprint;
    CValueBytes m_settings;
};

bool HaveSameIds(const SProjectFingerprint& before, const SProjectFingerprint& after)
{
    return std::equal(before.vecSenders.begin(), before.vecSenders.end(), after.vecSenders.begin(),
                      after.vecSenders.end(),
                      [](const auto& left, const auto& right) { return left.nId == right.nId; });
}

} // namespace

bool SProjectChange::IsEmpty() const
{
    return !ConcernsFile() && !bCurrentSender;
}

bool SProjectChange::ConcernsFile() const
{
    return !setSenderIds.isEmpty() || bSenderList || bAddresses || bSettings;
}

SProjectFingerprint FingerprintOf(const SSimulatedProject& project)
{
    CProjectParts parts(project);
    Describe(parts, const_cast<SSimulatedProject&>(project)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    return parts.Take();
}

SProjectChange Difference(const SProjectFingerprint& before, const SProjectFingerprint& after)
{
    SProjectChange change;
    change.bCurrentSender = before.nCurSender != after.nCurSender;
    change.bSettings = before.baSettings != after.baSettings;
    change.bAddresses = before.baAddresses != after.baAddresses;
    change.bSenderList = !HaveSameIds(before, after);
    QHash<int, QByteArray> mapBefore;
    for (const SProjectFingerprint::SSender& sender : before.vecSenders)
        mapBefore.insert(sender.nId, sender.baValues);
    for (const SProjectFingerprint::SSender& sender : after.vecSenders) {
        const auto itBefore = mapBefore.constFind(sender.nId);
        if (itBefore == mapBefore.constEnd() || *itBefore != sender.baValues)
            change.setSenderIds.insert(sender.nId);
    }
    return change;
}

#ifndef SIMULATOR_COMMONCLASS_JSONARCHIVE_H
#define SIMULATOR_COMMONCLASS_JSONARCHIVE_H

#include "simulator/CommonClass/FileProblem.h"
#include "simulator/CommonClass/SimulatorText.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QSize>
#include <QStringList>

#include <deque>
#include <limits>
#include <optional>
#include <type_traits>

/// @file
/// Reads and writes records as JSON by one description each:
///
///     template <class TArchive>
///     void Describe(TArchive& archive, SRecord& record)
///     {
///         archive.Field("rate", record.nRate, SRange{1, 240});
///     }
///
/// The same description writes the record, reads it back and checks it: a key that is missing or unknown, a
/// value of the wrong kind or outside its limits is a problem that names the path of the key and the value.

/// Limits of an integer, both included.
struct SRange
{
    qint64 nMin;
    qint64 nMax;
};

/// The maximum or exact length of a text or a block of bytes.
struct SLength
{
    int nMax;
};

/// The path of a value, and the first problem met while reading. Later problems do not replace it.
struct SJsonPlace
{
    QString strPath;
    SFileProblem& problem;

    void Refuse(const QString& strWhat) const;
    /// "is <value>, but must be <expected>".
    void RefuseValue(const QJsonValue& value, const QString& strExpected) const;
    SJsonPlace Element(int nIndex) const;
    SJsonPlace Key(const QString& strKey) const;
};

class CJsonReader;
class CJsonWriter;

/// @name Reading one value
/// @{
qint64 ReadJsonInteger(const SJsonPlace& place, const QJsonValue& value, SRange range);
void ReadJson(const SJsonPlace& place, const QJsonValue& value, bool& bOut);
void ReadJson(const SJsonPlace& place, const QJsonValue& value, float& fOut, SRange range);
void ReadJson(const SJsonPlace& place, const QJsonValue& value, QString& strOut, SLength length);
/// A size is the text "1920x1080"; each side lies in the range.
void ReadJson(const SJsonPlace& place, const QJsonValue& value, QSize& sizeOut, SRange range);
/// A block of bytes is hexadecimal text: empty, or exactly as long as stated.
void ReadJson(const SJsonPlace& place, const QJsonValue& value, QByteArray& baOut, SLength length);

template <class TInteger,
          std::enable_if_t<std::is_integral_v<TInteger> && !std::is_same_v<TInteger, bool>, int> = 0>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, TInteger& nOut,
              SRange range = {std::numeric_limits<TInteger>::min(), std::numeric_limits<TInteger>::max()})
{
    nOut = TInteger(ReadJsonInteger(place, value, range));
}

template <class TRecord, std::enable_if_t<std::is_class_v<TRecord>, int> = 0>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, TRecord& record);

template <class TContainer, class... TLimits>
void ReadJsonArray(const SJsonPlace& place, const QJsonValue& value, TContainer& container,
                   const TLimits&... limits)
{
    container.clear();
    if (!value.isArray())
        return place.RefuseValue(value, CSimulatorText::tr("an array"));
    const QJsonArray array = value.toArray();
    for (int nIndex = 0; nIndex < array.size() && !place.problem.IsSet(); ++nIndex) {
        container.push_back({});
        ReadJson(place.Element(nIndex), array.at(nIndex), container.back(), limits...);
    }
}

template <class TElement, class... TLimits>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, QList<TElement>& list,
              const TLimits&... limits)
{
    ReadJsonArray(place, value, list, limits...);
}

template <class... TLimits>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, QStringList& list, const TLimits&... limits)
{
    ReadJsonArray(place, value, list, limits...);
}

template <class TElement, class... TLimits>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, std::deque<TElement>& elements,
              const TLimits&... limits)
{
    ReadJsonArray(place, value, elements, limits...);
}

/// An absent optional value is null.
template <class TValue, class... TLimits>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, std::optional<TValue>& optional,
              const TLimits&... limits)
{
    optional.reset();
    if (value.isNull())
        return;
    optional.emplace();
    ReadJson(place, value, *optional, limits...);
}
/// @}

/// @name Writing one value
/// @{
inline QJsonValue WriteJson(bool bValue)
{
    return bValue;
}
QJsonValue WriteJson(float fValue);
QJsonValue WriteJson(const QString& strValue);
QJsonValue WriteJson(const QSize& size);
QJsonValue WriteJson(const QByteArray& baValue);

template <class TInteger,
          std::enable_if_t<std::is_integral_v<TInteger> && !std::is_same_v<TInteger, bool>, int> = 0>
QJsonValue WriteJson(TInteger nValue)
{
    return qint64(nValue);
}

template <class TRecord, std::enable_if_t<std::is_class_v<TRecord>, int> = 0>
QJsonValue WriteJson(const TRecord& record);

template <class TContainer>
QJsonValue WriteJsonArray(const TContainer& container)
{
    QJsonArray array;
    for (const auto& element : container)
        array.append(WriteJson(element));
    return array;
}

template <class TElement>
QJsonValue WriteJson(const QList<TElement>& list)
{
    return WriteJsonArray(list);
}

inline QJsonValue WriteJson(const QStringList& list)
{
    return WriteJsonArray(list);
}

template <class TElement>
QJsonValue WriteJson(const std::deque<TElement>& elements)
{
    return WriteJsonArray(elements);
}

template <class TValue>
QJsonValue WriteJson(const std::optional<TValue>& optional)
{
    return optional ? WriteJson(*optional) : QJsonValue(QJsonValue::Null);
}
/// @}

/// Reads the fields of one object, and afterwards knows which of its keys were not read.
class CJsonReader
{
public:
    CJsonReader(const QJsonObject& object, const SJsonPlace& place)
        : m_object(object)
        , m_place(place)
    {}

    template <class TValue, class... TLimits>
    void Field(const char* szKey, TValue& value, const TLimits&... limits)
    {
        const QString strKey = QString::fromLatin1(szKey);
        m_listKnown.append(strKey);
        if (m_place.problem.IsSet() || !RequireKey(strKey))
            return;
        ReadJson(m_place.Key(strKey), m_object.value(strKey), value, limits...);
    }

    /// A value that is omitted when empty, so that files written before it existed remain readable.
    template <class TValue, class... TLimits>
    void OptionalField(const char* szKey, TValue& value, const TLimits&... limits)
    {
        value = TValue();
        m_listKnown.append(QString::fromLatin1(szKey));
        if (m_object.contains(QString::fromLatin1(szKey)))
            Field(szKey, value, limits...);
    }

    /// Rejects keys that no field has read: a misspelt key must not be mistaken for a missing one.
    void RefuseUnknownKeys() const;

private:
    bool RequireKey(const QString& strKey) const;

    const QJsonObject m_object;
    const SJsonPlace m_place;
    QStringList m_listKnown;
};

/// Writes the fields of one object. Only the reader checks the limits.
class CJsonWriter
{
public:
    template <class TValue, class... TLimits>
    void Field(const char* szKey, const TValue& value, const TLimits&...)
    {
        m_object.insert(QString::fromLatin1(szKey), WriteJson(value));
    }

    template <class TValue, class... TLimits>
    void OptionalField(const char* szKey, const TValue& value, const TLimits&... limits)
    {
        if (!IsAbsent(value))
            Field(szKey, value, limits...);
    }

    QJsonObject Object() const { return m_object; }

private:
    static bool IsAbsent(const QStringList& list) { return list.isEmpty(); }
    template <class TValue>
    static bool IsAbsent(const std::optional<TValue>& optional)
    {
        return !optional.has_value();
    }

    QJsonObject m_object;
};

template <class TRecord, std::enable_if_t<std::is_class_v<TRecord>, int>>
void ReadJson(const SJsonPlace& place, const QJsonValue& value, TRecord& record)
{
    if (!value.isObject())
        return place.RefuseValue(value, CSimulatorText::tr("an object"));
    CJsonReader reader(value.toObject(), place);
    Describe(reader, record);
    reader.RefuseUnknownKeys();
}

template <class TRecord, std::enable_if_t<std::is_class_v<TRecord>, int>>
QJsonValue WriteJson(const TRecord& record)
{
    CJsonWriter writer;
    TRecord copy = record; // the one description serves both directions, so it takes the record by reference
    Describe(writer, copy);
    return writer.Object();
}

#endif // SIMULATOR_COMMONCLASS_JSONARCHIVE_H

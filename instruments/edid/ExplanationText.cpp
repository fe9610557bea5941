#include "instruments/edid/ExplanationText.h"

#include <QJsonObject>

#include <iterator>

namespace Edid {

namespace {

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

std::vector<SField> FieldsOf(const QByteArray& edid)
{
    std::vector<SField> vecFields;
    Explain(BytesOf(edid), int(edid.size()), vecFields);
    return vecFields;
}

/// What only says that something is not there.
bool IsSilent(const SField& field)
{
    const bool bFlag = field.pType->kind == enKind::enFlag || field.pType->kind == enKind::enEstablished;
    return bFlag && field.nRaw == 0;
}

/// Records show their own bytes field by field; longer runs than a field has would not line up.
QString BytesColumn(const SField& field, const quint8* pBytes)
{
    constexpr int c_nMostDigits = 11;
    const bool bCalculated = field.pType->nSize == 0;
    const QString strHex = bCalculated ? QString() : FieldHex(field, pBytes);
    return strHex.size() > c_nMostDigits ? QString() : strHex;
}

QString Line(const SField& field, const quint8* pBytes, const MakerNames& makerNames)
{
    constexpr int c_nBytesColumn = 12;
    constexpr int c_nIndent = 2;
    const QString strValue = ValueText(field, pBytes, makerNames);
    const QString strLabel = QString(field.nDepth * c_nIndent, QLatin1Char(' ')) + LabelText(field);
    return QStringLiteral("%1  %2%3%4\n")
        .arg(QStringLiteral("%1").arg(field.nOffset, 4, 16, QLatin1Char('0')).toUpper(),
             BytesColumn(field, pBytes).leftJustified(c_nBytesColumn), strLabel,
             strValue.isEmpty() ? QString() : QStringLiteral(": ") + strValue);
}

QJsonObject FieldJson(const SField& field, const quint8* pBytes, const MakerNames& makerNames)
{
    QJsonObject object = {
        {QStringLiteral("key"), QString::fromLatin1(field.pType->szKey)},
        {QStringLiteral("label"), LabelText(field)},
        {QStringLiteral("offset"), field.nOffset},
        {QStringLiteral("size"), field.nSize},
    };
    if (field.pType->nSize != 0 || field.pType->kind == enKind::enBytes)
        object.insert(QStringLiteral("bytes"), FieldHex(field, pBytes));
    const QJsonValue value = ValueJson(field, pBytes, makerNames);
    if (!value.isNull())
        object.insert(QStringLiteral("value"), value);
    if (*field.pType->szUnit != '\0' && field.pType->kind == enKind::enNumber)
        object.insert(QStringLiteral("unit"), QString::fromLatin1(field.pType->szUnit));
    if (field.pType->kind == enKind::enReal)
        object.insert(QStringLiteral("unit"), QStringLiteral("Hz"));
    return object;
}

using FieldIterator = std::vector<SField>::const_iterator;

/// The fields of one level, each with those below it.
QJsonArray Level(FieldIterator& it, FieldIterator itEnd, int nDepth, const quint8* pBytes,
                 const MakerNames& makerNames)
{
    QJsonArray fields;
    while (it != itEnd && it->nDepth == nDepth) {
        QJsonObject object = FieldJson(*it, pBytes, makerNames);
        ++it;
        const QJsonArray below = Level(it, itEnd, nDepth + 1, pBytes, makerNames);
        if (!below.isEmpty())
            object.insert(QStringLiteral("fields"), below);
        fields.append(object);
    }
    return fields;
}

} // namespace

QString ExplanationText(const QByteArray& edid, const MakerNames& makerNames)
{
    QString strText;
    for (const SField& field : FieldsOf(edid))
        if (!IsSilent(field))
            strText += Line(field, BytesOf(edid), makerNames);
    return strText;
}

QJsonArray ExplanationJson(const QByteArray& edid, const MakerNames& makerNames)
{
    const std::vector<SField> vecFields = FieldsOf(edid);
    FieldIterator it = vecFields.cbegin();
    return Level(it, vecFields.cend(), 0, BytesOf(edid), makerNames);
}

} // namespace Edid

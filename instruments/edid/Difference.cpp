#include "instruments/edid/Difference.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace Edid {

namespace {

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

/// A field with its place in the tree.
struct SPlacedField
{
    QString strPath;
    SField field;
};

/// Values with bytes of their own: groups hold others, and what is calculated changes with those.
bool HasBytes(const SField& field)
{
    return field.pType->nSize != 0 || field.pType->kind == enKind::enBytes;
}

QVector<SPlacedField> Placed(const QByteArray& edid)
{
    std::vector<SField> vecFields;
    Explain(BytesOf(edid), edid.size(), vecFields);
    QVector<SPlacedField> vecPlaced;
    QStringList listPath;
    for (const SField& field : vecFields) {
        listPath = listPath.mid(0, field.nDepth);
        listPath += LabelText(field);
        if (HasBytes(field))
            vecPlaced.append({listPath.join(QStringLiteral(" / ")), field});
    }
    return vecPlaced;
}

/// The fields of one path in their order; most paths have one.
using FieldsByPath = QHash<QString, QVector<SField>>;

FieldsByPath ByPath(const QVector<SPlacedField>& vecPlaced)
{
    FieldsByPath mapFields;
    for (const SPlacedField& placed : vecPlaced)
        mapFields[placed.strPath].append(placed.field);
    return mapFields;
}

SFieldDifference Only(const SPlacedField& placed, const QByteArray& edid, bool bFirst)
{
    const QString strValue = ValueText(placed.field, BytesOf(edid), {});
    const int nOffset = placed.field.nOffset;
    if (bFirst)
        return {placed.strPath, nOffset, -1, placed.field.nSize, strValue, QString()};
    return {placed.strPath, -1, nOffset, placed.field.nSize, QString(), strValue};
}

bool IsDifferent(const SField& fieldFirst, const QByteArray& first, const SField& fieldSecond,
                 const QByteArray& second)
{
    return fieldFirst.nRaw != fieldSecond.nRaw ||
           ValueText(fieldFirst, BytesOf(first), {}) != ValueText(fieldSecond, BytesOf(second), {});
}

/// Where both values read the same, their bytes tell them apart.
SFieldDifference Both(const SPlacedField& placed, const QByteArray& first, const SField& other,
                      const QByteArray& second)
{
    SFieldDifference difference = {placed.strPath,
                                   placed.field.nOffset,
                                   other.nOffset,
                                   placed.field.nSize,
                                   ValueText(placed.field, BytesOf(first), {}),
                                   ValueText(other, BytesOf(second), {})};
    if (difference.strFirst == difference.strSecond) {
        difference.strFirst += QStringLiteral(" (%1)").arg(FieldHex(placed.field, BytesOf(first)));
        difference.strSecond += QStringLiteral(" (%1)").arg(FieldHex(other, BytesOf(second)));
    }
    return difference;
}

int Place(const SFieldDifference& difference)
{
    return difference.nFirstOffset >= 0 ? difference.nFirstOffset : difference.nSecondOffset;
}

int ByteAt(const QByteArray& edid, int nOffset)
{
    return nOffset < edid.size() ? int(quint8(edid.at(nOffset))) : -1;
}

} // namespace

QVector<SFieldDifference> FieldDifferences(const QByteArray& first, const QByteArray& second)
{
    FieldsByPath mapSecond = ByPath(Placed(second));
    QVector<SFieldDifference> vecDifferences;
    for (const SPlacedField& placed : Placed(first)) {
        QVector<SField>& vecMatches = mapSecond[placed.strPath];
        if (vecMatches.isEmpty()) {
            vecDifferences.append(Only(placed, first, true));
            continue;
        }
        const SField other = vecMatches.takeFirst();
        if (IsDifferent(placed.field, first, other, second))
            vecDifferences.append(Both(placed, first, other, second));
    }
    for (const SPlacedField& placed : Placed(second)) {
        QVector<SField>& vecLeft = mapSecond[placed.strPath];
        const auto IsIt = [&](const SField& field) { return field.nOffset == placed.field.nOffset; };
        if (std::any_of(vecLeft.begin(), vecLeft.end(), IsIt))
            vecDifferences.append(Only(placed, second, false));
    }
    std::stable_sort(
        vecDifferences.begin(), vecDifferences.end(),
        [](const SFieldDifference& a, const SFieldDifference& b) { return Place(a) < Place(b); });
    return vecDifferences;
}

QVector<SByteDifference> ByteDifferences(const QByteArray& first, const QByteArray& second)
{
    QVector<SByteDifference> vecDifferences;
    for (int nOffset = 0; nOffset < std::max(first.size(), second.size()); ++nOffset)
        if (ByteAt(first, nOffset) != ByteAt(second, nOffset))
            vecDifferences.append({nOffset, ByteAt(first, nOffset), ByteAt(second, nOffset)});
    return vecDifferences;
}

} // namespace Edid

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

/// Values with bytes of their own: groups hold others, and what is calculated changes with those.
bool HasBytes(const SField& field)
{
    return field.pType->nSize != 0 || field.pType->kind == enKind::enBytes;
}

/// The place of every field in the tree; empty for one without bytes.
std::vector<QString> PathsOf(const std::vector<SField>& vecFields)
{
    std::vector<QString> vecPaths;
    QStringList listPath;
    for (const SField& field : vecFields) {
        listPath = listPath.mid(0, field.nDepth);
        listPath += LabelText(field);
        vecPaths.push_back(HasBytes(field) ? listPath.join(QStringLiteral(" / ")) : QString());
    }
    return vecPaths;
}

/// The fields of one path in their order; most paths have one.
using FieldsByPath = QHash<QString, QVector<int>>;

FieldsByPath ByPath(const std::vector<QString>& vecPaths)
{
    FieldsByPath mapFields;
    for (std::size_t i = 0; i < vecPaths.size(); ++i)
        if (!vecPaths[i].isEmpty())
            mapFields[vecPaths[i]].append(int(i));
    return mapFields;
}

bool IsDifferent(const SField& fieldFirst, const QByteArray& first, const SField& fieldSecond,
                 const QByteArray& second)
{
    return fieldFirst.nRaw != fieldSecond.nRaw ||
           ValueText(fieldFirst, BytesOf(first), {}) != ValueText(fieldSecond, BytesOf(second), {});
}

/// An EDID with what its bytes say.
struct SExplained
{
    explicit SExplained(const QByteArray& bytes)
        : edid(bytes)
    {
        Explain(BytesOf(edid), int(edid.size()), vecFields);
        vecPaths = PathsOf(vecFields);
    }

    QString Value(int nField) const
    {
        return nField < 0 ? QString() : ValueText(vecFields[std::size_t(nField)], BytesOf(edid), {});
    }
    QString Hex(int nField) const { return FieldHex(vecFields[std::size_t(nField)], BytesOf(edid)); }
    int Offset(int nField) const { return nField < 0 ? -1 : vecFields[std::size_t(nField)].nOffset; }

    const QByteArray& edid;
    std::vector<SField> vecFields;
    std::vector<QString> vecPaths;
};

/// Where both values read the same, their bytes tell them apart.
SFieldDifference InWords(const SFieldPair& pair, const SExplained& first, const SExplained& second)
{
    const SExplained& there = pair.nFirst >= 0 ? first : second;
    const auto nThere = std::size_t(pair.nFirst >= 0 ? pair.nFirst : pair.nSecond);
    SFieldDifference difference = {there.vecPaths[nThere],      first.Offset(pair.nFirst),
                                   second.Offset(pair.nSecond), there.vecFields[nThere].nSize,
                                   first.Value(pair.nFirst),    second.Value(pair.nSecond)};
    if (pair.nFirst >= 0 && pair.nSecond >= 0 && difference.strFirst == difference.strSecond) {
        difference.strFirst += QStringLiteral(" (%1)").arg(first.Hex(pair.nFirst));
        difference.strSecond += QStringLiteral(" (%1)").arg(second.Hex(pair.nSecond));
    }
    return difference;
}

int ByteAt(const QByteArray& edid, int nOffset)
{
    return nOffset < edid.size() ? int(quint8(edid.at(nOffset))) : -1;
}

} // namespace

QVector<SFieldPair> DifferentFields(const std::vector<SField>& vecFirst, const QByteArray& first,
                                    const std::vector<SField>& vecSecond, const QByteArray& second)
{
    const std::vector<QString> vecPaths = PathsOf(vecFirst);
    FieldsByPath mapSecond = ByPath(PathsOf(vecSecond));
    QVector<SFieldPair> vecPairs;
    for (std::size_t i = 0; i < vecFirst.size(); ++i) {
        if (vecPaths[i].isEmpty())
            continue;
        QVector<int>& vecMatches = mapSecond[vecPaths[i]];
        const int nSecond = vecMatches.isEmpty() ? -1 : vecMatches.takeFirst();
        if (nSecond < 0 || IsDifferent(vecFirst[i], first, vecSecond[std::size_t(nSecond)], second))
            vecPairs.append({int(i), nSecond});
    }
    QVector<int> vecLeft;
    for (const QVector<int>& vecUnmatched : qAsConst(mapSecond))
        vecLeft += vecUnmatched;
    std::sort(vecLeft.begin(), vecLeft.end());
    for (const int nSecond : qAsConst(vecLeft))
        vecPairs.append({-1, nSecond});
    const auto Place = [&](const SFieldPair& pair) {
        return pair.nFirst >= 0 ? vecFirst[std::size_t(pair.nFirst)].nOffset
                                : vecSecond[std::size_t(pair.nSecond)].nOffset;
    };
    std::stable_sort(vecPairs.begin(), vecPairs.end(),
                     [&](const SFieldPair& a, const SFieldPair& b) { return Place(a) < Place(b); });
    return vecPairs;
}

QVector<SFieldDifference> FieldDifferences(const QByteArray& first, const QByteArray& second)
{
    const SExplained explainedFirst(first);
    const SExplained explainedSecond(second);
    QVector<SFieldDifference> vecDifferences;
    for (const SFieldPair& pair :
         DifferentFields(explainedFirst.vecFields, first, explainedSecond.vecFields, second))
        vecDifferences.append(InWords(pair, explainedFirst, explainedSecond));
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

#include "workbench/edid/EdidWords.h"

#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "workbench/edid/EdidWordTable.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace EdidWords {

namespace {

class CEdidWords
{
    Q_DECLARE_TR_FUNCTIONS(CEdidWords)
};

using Edid::enKind;

const char* FindWord(const char* szEnglish)
{
    static const QHash<QByteArray, const char*> s_mapWords = [] {
        QHash<QByteArray, const char*> mapWords;
        for (const EdidWordTable::SWord& word : EdidWordTable::Words())
            mapWords.insert(word.szEnglish, word.szChinese);
        return mapWords;
    }();
    return s_mapWords.value(QByteArray::fromRawData(szEnglish, int(std::strlen(szEnglish))));
}

QString Numbered(const Edid::SField& field, const QString& strLabel)
{
    return field.nIndex == 0 ? strLabel : QStringLiteral("%1 %2").arg(strLabel).arg(field.nIndex);
}

/// A value whose text holds phrases between names and numbers.
QString InPhrases(QString strValue)
{
    for (const EdidWordTable::SWord& phrase : EdidWordTable::Phrases())
        strValue.replace(QString::fromLatin1(phrase.szEnglish), CEdidWords::tr(phrase.szChinese));
    return strValue;
}

/// A number with its unit.
QString InUnits(const QString& strValue, const char* szUnit)
{
    if (FindWord(szUnit) == nullptr || *szUnit == '\0')
        return strValue;
    return strValue.left(strValue.size() - int(std::strlen(szUnit))) + Word(szUnit);
}

QString YesOrNo(bool bYes)
{
    return bYes ? CEdidWords::tr("是") : CEdidWords::tr("否");
}

QString ChoiceName(const Edid::SField& field)
{
    const char* szName = field.pType->choices.Name(field.nRaw);
    return szName == nullptr ? CEdidWords::tr("保留 (%1)").arg(field.nRaw) : Word(szName);
}

/// Texts, letters, bytes and lines for programs stay as they are.
bool IsVerbatim(enKind kind)
{
    constexpr enKind c_arrVerbatim[] = {enKind::enText,     enKind::enBytes,           enKind::enMaker,
                                        enKind::enModeline, enKind::enTypeVIIModeline, enKind::enCoverage};
    return std::find(std::begin(c_arrVerbatim), std::end(c_arrVerbatim), kind) != std::end(c_arrVerbatim);
}

} // namespace

QString Word(const char* szEnglish)
{
    const char* szChinese = FindWord(szEnglish);
    return szChinese == nullptr ? QString::fromLatin1(szEnglish) : CEdidWords::tr(szChinese);
}

bool HasWord(const char* szEnglish)
{
    return FindWord(szEnglish) != nullptr;
}

QString Label(const Edid::SField& field)
{
    switch (field.pType->kind) {
    case enKind::enEstablished:
        return InPhrases(Edid::LabelText(field));
    case enKind::enDescriptor:
        return CEdidWords::tr("描述符 %1：%2").arg(field.nIndex).arg(Word(field.pType->szLabel));
    case enKind::enDataBlock:
        return Word(Edid::CtaBlockName(field.nRaw));
    case enKind::enSectionBlock:
        return Word(Edid::DisplayIdBlockName(quint8(field.nRaw)));
    default:
        return Numbered(field, Word(field.pType->szLabel));
    }
}

QString Value(const Edid::SField& field, const quint8* pBytes)
{
    switch (field.pType->kind) {
    case enKind::enFlag:
    case enKind::enEstablished:
        return YesOrNo(field.nRaw != 0);
    case enKind::enChoice:
        return ChoiceName(field);
    case enKind::enNumber:
        return InUnits(Edid::ValueText(field, pBytes, {}), field.pType->szUnit);
    default:
        break;
    }
    const QString strValue = Edid::ValueText(field, pBytes, {});
    return IsVerbatim(field.pType->kind) ? strValue : InPhrases(strValue);
}

QVector<SChoice> Choices(const Edid::SField& field)
{
    if (field.pType->kind != enKind::enChoice)
        return {{0, YesOrNo(false)}, {1, YesOrNo(true)}};
    QVector<SChoice> vecChoices;
    const Edid::SChoices& choices = field.pType->choices;
    for (const Edid::SChoice* pChoice = choices.pFirst; pChoice != choices.pFirst + choices.nCount; ++pChoice)
        vecChoices.append({pChoice->nValue, Word(pChoice->szName)});
    // A reserved value that is there can stay.
    if (choices.Name(field.nRaw) == nullptr)
        vecChoices.append({field.nRaw, ChoiceName(field)});
    return vecChoices;
}

} // namespace EdidWords

#include "workbench/edid/EdidWords.h"

#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using Edid::enKind;
using Edid::SField;
using Edid::SFieldType;

namespace {

/// Names that are the same in every language.
bool IsNeutral(const QString& strText)
{
    static const QSet<QString> s_setNames = {QStringLiteral("YCbCr 4:4:4"),
                                             QStringLiteral("YCbCr 4:2:2"),
                                             QStringLiteral("RGB 4:4:4"),
                                             QStringLiteral("BT.2020 RGB"),
                                             QStringLiteral("BT.2020 YCC"),
                                             QStringLiteral("opRGB"),
                                             QStringLiteral("opYCC 601"),
                                             QStringLiteral("sYCC 601"),
                                             QStringLiteral("xvYCC 709"),
                                             QStringLiteral("xvYCC 601"),
                                             QStringLiteral("DCI-P3"),
                                             QStringLiteral("SMPTE ST 2084 (PQ)"),
                                             QStringLiteral("DVI"),
                                             QStringLiteral("HDMI-a"),
                                             QStringLiteral("HDMI-b"),
                                             QStringLiteral("MDDI"),
                                             QStringLiteral("DisplayPort"),
                                             QStringLiteral("CVT"),
                                             QStringLiteral("AC-3"),
                                             QStringLiteral("MP3"),
                                             QStringLiteral("MPEG 1"),
                                             QStringLiteral("MPEG 2"),
                                             QStringLiteral("AAC LC"),
                                             QStringLiteral("DTS"),
                                             QStringLiteral("ATRAC"),
                                             QStringLiteral("One Bit Audio"),
                                             QStringLiteral("Enhanced AC-3"),
                                             QStringLiteral("DTS-HD"),
                                             QStringLiteral("MAT"),
                                             QStringLiteral("DST"),
                                             QStringLiteral("WMA Pro"),
                                             QStringLiteral("MPEG-4 HE AAC"),
                                             QStringLiteral("MPEG-4 HE AAC v2"),
                                             QStringLiteral("MPEG-4 AAC LC"),
                                             QStringLiteral("DRA"),
                                             QStringLiteral("MPEG-4 HE AAC + MPEG Surround"),
                                             QStringLiteral("MPEG-4 AAC LC + MPEG Surround"),
                                             QStringLiteral("MPEG-H 3D Audio"),
                                             QStringLiteral("AC-4"),
                                             QStringLiteral("L-PCM 3D Audio")};
    static const QRegularExpression s_numbers(
        QStringLiteral("^[0-9.:/ ]*([A-Z]|kHz|Hz|MHz|mm|cm|dm|kbit/s)?$"));
    return s_setNames.contains(strText) || s_numbers.match(strText).hasMatch();
}

bool IsKnown(const char* szText)
{
    return EdidWords::HasWord(szText) || IsNeutral(QString::fromLatin1(szText));
}

/// The texts of a row that nobody has words for.
QStringList UnknownTexts(const SFieldType& type)
{
    QStringList listUnknown;
    const auto Note = [&](const char* szText) {
        if (!IsKnown(szText))
            listUnknown += QString::fromLatin1(szText);
    };
    Note(type.szLabel);
    Note(type.szUnit);
    for (int i = 0; i < type.choices.nCount; ++i)
        Note(type.choices.pFirst[i].szName);
    return listUnknown;
}

const std::vector<const Edid::SLayout*>& Layouts()
{
    static const std::vector<const Edid::SLayout*> s_vecLayouts = {
        &Edid::c_layoutBase,        &Edid::c_layoutDetailed,       &Edid::c_layoutRange,
        &Edid::c_layoutWhitePoint,  &Edid::c_layoutColour,         &Edid::c_layoutName,
        &Edid::c_layoutSerial,      &Edid::c_layoutText,           &Edid::c_layoutCta,
        &Edid::c_layoutAudio,       &Edid::c_layoutSpeakers,       &Edid::c_layoutVideoCapability,
        &Edid::c_layoutColorimetry, &Edid::c_layoutHdrStatic,      &Edid::c_layoutHdmi,
        &Edid::c_layoutHdmiForum,   &Edid::c_layoutSection,        &Edid::c_layoutDataBlock,
        &Edid::c_layoutTypeI,       &Edid::c_layoutTypeVII,        &Edid::c_layoutProductId,
        &Edid::c_layoutProductId2,  &Edid::c_layoutParameters,     &Edid::c_layoutTiledDisplay,
        &Edid::c_layoutHdrDynamic,  &Edid::c_layoutHdmiAudio,      &Edid::c_layoutHdmiAudio3D,
        &Edid::c_layoutRoom,        &Edid::c_layoutSpeakerLocation};
    return s_vecLayouts;
}

/// Three blocks: a base block whose last descriptor has a tag, a CTA extension whose data block has it, and a
/// DisplayID extension whose data block has it.
QByteArray TaggedEdid(int nTag, bool bExtendedTag)
{
    QByteArray edid(3 * c_nEdidBlockSize, '\x01');
    const int nDescriptor = Edid::c_nDescriptorOffset + 3 * Edid::c_nDescriptorSize;
    edid.replace(nDescriptor, 3, QByteArray(3, '\0'));
    edid[nDescriptor + Edid::c_nTagOffset] = char(nTag);
    const int nCta = c_nEdidBlockSize;
    edid.replace(nCta, 4, QByteArray("\x02\x03\x20\x00", 4));
    constexpr int c_nLength = 0x1B;
    edid[nCta + 4] = char(bExtendedTag ? Edid::enCtaExtended << 5 | c_nLength : (nTag & 7) << 5 | c_nLength);
    edid[nCta + 5] = char(nTag);
    const int nDisplayId = 2 * c_nEdidBlockSize;
    edid.replace(nDisplayId, 9, QByteArray("\x70\x13\x79\x00\x00\x00\x00\x30\x00", 9));
    edid[nDisplayId + 5] = char(nTag);
    return edid;
}

std::vector<SField> FieldsOf(const QByteArray& edid)
{
    std::vector<SField> vecFields;
    Edid::Explain(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), vecFields);
    return vecFields;
}

/// Every row of every kind of block: tags select them.
std::vector<SField> FieldsOfAllTags()
{
    std::vector<SField> vecAll;
    for (const bool bExtendedTag : {false, true})
        for (int nTag = 0; nTag < 256; ++nTag) {
            const std::vector<SField> vecFields = FieldsOf(TaggedEdid(nTag, bExtendedTag));
            vecAll.insert(vecAll.end(), vecFields.begin(), vecFields.end());
            QByteArray extension = TaggedEdid(nTag, bExtendedTag).left(2 * c_nEdidBlockSize);
            extension[c_nEdidBlockSize] = char(nTag);
            const std::vector<SField> vecExtension = FieldsOf(extension + QByteArray(5, 'x'));
            vecAll.insert(vecAll.end(), vecExtension.begin(), vecExtension.end());
        }
    return vecAll;
}

} // namespace

class TestEdidWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryRowOfTheLayoutsHasWords();
    void EveryRowThatATagSelectsHasWords();
    void EveryDataBlockHasWords();
    void ValuesHoldNoEnglish();
    void NumbersFollowTheirLabel();
    void AChoiceOffersItsNames();
};

void TestEdidWords::EveryRowOfTheLayoutsHasWords()
{
    QStringList listUnknown;
    for (const Edid::SLayout* pLayout : Layouts())
        for (const SFieldType& type : *pLayout)
            listUnknown += UnknownTexts(type);
    QVERIFY2(listUnknown.isEmpty(), qPrintable(listUnknown.join(QStringLiteral("; "))));
}

void TestEdidWords::EveryRowThatATagSelectsHasWords()
{
    QSet<QString> setUnknown;
    for (const SField& field : FieldsOfAllTags())
        for (const QString& strText : UnknownTexts(*field.pType))
            setUnknown.insert(strText);
    QVERIFY2(setUnknown.isEmpty(), qPrintable(setUnknown.values().join(QStringLiteral("; "))));
}

void TestEdidWords::EveryDataBlockHasWords()
{
    QSet<QString> setUnknown;
    for (int nTag = 0; nTag < 256; ++nTag) {
        for (const char* szName : {Edid::CtaBlockName(nTag & 7, nTag), Edid::CtaBlockName(7, nTag),
                                   Edid::DisplayIdBlockName(quint8(nTag))})
            if (!EdidWords::HasWord(szName))
                setUnknown.insert(QString::fromLatin1(szName));
    }
    QVERIFY2(setUnknown.isEmpty(), qPrintable(setUnknown.values().join(QStringLiteral("; "))));
}

void TestEdidWords::ValuesHoldNoEnglish()
{
    static const QRegularExpression s_words(
        QStringLiteral("\\b(at|unused|right|wrong|should|native|unknown|yes|no|not|preferred|reduced|pixels|"
                       "lines|bytes|reserved|none)\\b"));
    for (const int nTag : {0xF7, 0xF8, 0xFA, 0xFD, 0x0E, 0x02}) {
        const QByteArray edid = TaggedEdid(nTag, true);
        for (const SField& field : FieldsOf(edid)) {
            const QString strValue =
                EdidWords::Value(field, reinterpret_cast<const quint8*>(edid.constData()));
            const QString strText = EdidWords::Label(field) + QLatin1Char(' ') + strValue;
            QVERIFY2(!s_words.match(strText).hasMatch(), qPrintable(strText));
        }
    }
}

void TestEdidWords::NumbersFollowTheirLabel()
{
    const QByteArray edid = TaggedEdid(0xFC, false);
    QStringList listLabels;
    for (const SField& field : FieldsOf(edid))
        listLabels += EdidWords::Label(field);
    QVERIFY(listLabels.contains(QStringLiteral("标准时序 8")));
    QVERIFY(listLabels.contains(QStringLiteral("描述符 4：名称")));
    QVERIFY(listLabels.contains(QStringLiteral("详细时序 1")));
}

void TestEdidWords::AChoiceOffersItsNames()
{
    const QByteArray edid = TaggedEdid(0xFD, false);
    const std::vector<SField> vecFields = FieldsOf(edid);
    const auto it = std::find_if(vecFields.begin(), vecFields.end(), [](const SField& field) {
        return QByteArray(field.pType->szKey) == "display_type";
    });
    QVERIFY(it != vecFields.end());
    const QVector<EdidWords::SChoice> vecChoices = EdidWords::Choices(*it);
    QCOMPARE(vecChoices.size(), 4);
    QCOMPARE(vecChoices.constFirst().strName, QStringLiteral("单色"));
}

QTEST_MAIN(TestEdidWords)
#include "TestEdidWords.moc"

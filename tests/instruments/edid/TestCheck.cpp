#include "instruments/edid/Checksum.h"
#include "instruments/edid/Rules.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QDate>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <random>

namespace {

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

std::vector<Edid::SFinding> FindingsOf(const QByteArray& edid)
{
    std::vector<Edid::SFinding> vecFindings;
    Edid::Check(BytesOf(edid), edid.size(), {QDate::currentDate().year()}, vecFindings);
    return vecFindings;
}

QString NameOf(Edid::enRule rule)
{
    return QString::fromLatin1(Edid::RuleOf(rule).szName);
}

QSet<QString> ErrorsOf(const QByteArray& edid)
{
    QSet<QString> setNames;
    for (const Edid::SFinding& finding : FindingsOf(edid))
        if (Edid::RuleOf(finding.rule).severity == Edid::enSeverity::enError)
            setNames.insert(NameOf(finding.rule));
    return setNames;
}

/// What the decoder calls a failure, and the rule that finds it. Rules of one group are judged together.
struct SFailure
{
    const char* szPattern;
    const char* szRule;
};

constexpr SFailure c_arrFailures[] = {
    {"Invalid checksum", "base.checksum"},
    {"Manufacturer name field contains garbage", "product.maker"},
    {"Invalid week", "product.week"},
    {"does not support week 54", "product.week54"},
    {"does not support week 0xff", "product.model_year"},
    {"more than one year in the future", "product.year"},
    {"Unknown EDID major version", "base.version"},
    {"Color Bit Depth set to reserved", "input.bit_depth"},
    {"Digital Video Interface Standard set to reserved", "input.interface"},
    {"requires that the first detailed timing is the preferred", "features.preferred"},
    {"sRGB is signaled", "features.srgb"},
    {"as the invalid Standard Timings code", "standard.unused"},
    {"Missing preferred timing", "detailed.missing"},
    {"Has descriptor blocks other than detailed timings", "descriptor.age"},
    {"Monitor descriptor block has byte", "descriptor.reserved"},
    {"Unknown Type", "descriptor.tag"},
    {"Invalid detailed timing descriptor ordering", "descriptor.order"},
    {"Pixelclock < 10 MHz", "detailed.clock"},
    {"Detailed Timing Descriptor #\\d: 0 values in the video timing", "detailed.zero"},
    {"Detailed Timing Descriptor #\\d: 0 or negative horizontal back porch", "detailed.h_porch"},
    {"Detailed Timing Descriptor #\\d: 0 or negative vertical back porch", "detailed.v_porch"},
    {"Detailed Timing Descriptor #\\d: 0 or negative horizontal front porch", "detailed.zero"},
    {"image size is not set, but display size is", "detailed.size_missing"},
    {"Mismatch of image size \\d", "detailed.size"},
    {"which is larger than the display size", "detailed.size"},
    {"but the display size is not specified", "display.size"},
    {": Empty string", "text.empty"},
    {"Non-printable character", "text.character"},
    {"trailing spaces", "text.spaces"},
    {"Non-space after newline", "name.terminator"},
    {"Missing Display Product Name", "name.missing"},
    {"Dummy block filled with garbage", "dummy.content"},
    {"Established timings III: Not allowed", "established.age"},
    {"CVT 3 Byte Timing Codes: Not allowed", "cvt.age"},
    {"CVT 3 Byte Timing Codes: Invalid version", "cvt.version"},
    {"which is a reserved value", "cvt.reserved"},
    {"CVT 3 Byte Timing Codes: Reserved bit", "cvt.reserved"},
    {"does not support any vertical rates", "cvt.rate"},
    {"preferred CVT Vertical Rate is not supported", "cvt.preferred"},
    {"Missing Display Range Limits", "range.missing"},
    {"Min vertical rate > max", "range.vertical"},
    {"Min horizontal freq > max", "range.horizontal"},
    {"does not set max dotclock", "range.clock"},
    {"Unknown range class", "range.formula"},
    {"is not allowed for EDID", "range.age"},
    {"combined with non-continuous", "range.continuous"},
    {"Byte 11 is", "range.padding"},
    {"Bytes 12-17 must be", "range.padding"},
    {"Display Range Limits: Reserved bits", "range.reserved"},
    {"out of range of the Monitor Ranges", "range.timings"},
    {"extension block\\(s\\), but found", "base.extensions"},
};

/// Where our verdict differs on purpose. The rule is left out of the comparison while the reason applies.
struct SDifference
{
    const char* szRule;
    const char* szReason;
    bool (*pApplies)(const QByteArray& edid, const QString& strDecoded);
};

bool HasFormulaTimings(const QByteArray&, const QString& strDecoded)
{
    return strDecoded.contains(QRegularExpression(QStringLiteral("(GTF|CVT) *: +\\d+x")));
}

bool HasDescriptorTwice(const QByteArray& edid, const QString&)
{
    int nRanges = 0;
    for (int nOffset = 0x36; nOffset < 0x7E; nOffset += 18)
        nRanges += edid.mid(nOffset, 2) == QByteArray(2, '\0') && edid.at(nOffset + 3) == '\xFD' ? 1 : 0;
    return nRanges > 1;
}

bool HasBrokenTiming(const QByteArray&, const QString& strDecoded)
{
    return strDecoded.contains(QLatin1String("0 values in the video timing")) ||
           strDecoded.contains(QLatin1String("negative"));
}

bool IsVersion(const QByteArray& edid, const QString&)
{
    return edid.at(0x12) != '\1';
}

/// Behind the line feed of a text.
bool HasTail(const QByteArray& edid, const QString&)
{
    const QByteArray arrTextTags = "\xFF\xFE\xFC";
    for (int nOffset = 0x36; nOffset < 0x7E; nOffset += 18) {
        const bool bText =
            edid.mid(nOffset, 2) == QByteArray(2, '\0') && arrTextTags.contains(edid.at(nOffset + 3));
        const QByteArray content = edid.mid(nOffset + 5, 13);
        const QByteArray tail =
            content.contains('\n') ? content.mid(content.indexOf('\n') + 1) : QByteArray();
        if (bText && std::any_of(tail.begin(), tail.end(), [](char ch) { return ch != ' ' && ch != 0; }))
            return true;
    }
    return false;
}

constexpr SDifference c_arrDifferences[] = {
    {"name.terminator", "the standard asks for blanks behind the end; the decoder takes printable characters",
     &HasTail},
    {"text.character",
     "behind the end every byte but a blank is one finding; the decoder names some as characters", &HasTail},
    {"range.timings", "modes that a computer has to calculate by a formula are judged by the decoder alone",
     &HasFormulaTimings},
    {"range.timings", "the decoder adds up the limits of several range descriptors", &HasDescriptorTwice},
    {"range.timings", "the rates of a timing with zeros mean nothing; that timing is an error of its own",
     &HasBrokenTiming},
    {"range.timings", "the rows of another major version have no meaning that could be judged", &IsVersion},
};

QSet<QString> LeftOut(const QByteArray& edid, const QString& strDecoded)
{
    QSet<QString> setRules;
    for (const SDifference& difference : c_arrDifferences)
        if (difference.pApplies(edid, strDecoded))
            setRules.insert(QString::fromLatin1(difference.szRule));
    return setRules;
}

/// Failures that only say more about one that stands before them, or about modes that a formula makes.
bool IsDetail(const QString& strLine)
{
    static const QRegularExpression s_regDetail(
        QStringLiteral("^ {4}|^  Standard Timing.*(values in|negative)|^  CVT .*(values in|negative)"));
    return s_regDetail.match(strLine).hasMatch();
}

QString RuleOfLine(const QString& strLine)
{
    for (const SFailure& failure : c_arrFailures)
        if (strLine.contains(QRegularExpression(QString::fromLatin1(failure.szPattern))))
            return QString::fromLatin1(failure.szRule);
    return QStringLiteral("no rule for:") + strLine;
}

QSet<QString> DecoderFailures(const QString& strDecoded)
{
    QSet<QString> setRules;
    const int nBegin = strDecoded.indexOf(QLatin1String("\nFailures:"));
    if (nBegin < 0)
        return setRules;
    for (const QString& strLine : strDecoded.mid(nBegin).split(QLatin1Char('\n')))
        if (strLine.startsWith(QLatin1String("  ")) && !IsDetail(strLine))
            setRules.insert(RuleOfLine(strLine));
    return setRules;
}

QByteArray Clean()
{
    QByteArray edid = SampleEdid::Rich().left(128);
    edid[0x7E] = 0;
    edid[0x5F + 5] = 1; // range limits without a formula: the display has no continuous frequency
    return SampleEdid::WithChecksums(edid);
}

QByteArray Clean13()
{
    QByteArray edid = Clean();
    edid[0x13] = 3;
    edid[0x14] = '\x81';
    edid[0x18] = 0x0A;
    edid[0x5F] = 23;
    edid[0x60] = 120;
    edid[0x5F + 5] = 0;
    return SampleEdid::WithChecksums(edid);
}

QByteArray With(QByteArray edid, int nOffset, const char* szHex)
{
    const QByteArray bytes = QByteArray::fromHex(szHex);
    return SampleEdid::WithChecksums(edid.replace(nOffset, bytes.size(), bytes));
}

constexpr char c_szName[] = "000000FC00 4C454420 57414C4C 0A20202020";

/// Descriptors that are right and wrong in every way that is judged.
constexpr const char* c_arrDescriptors[] = {
    c_szName,
    "000000FC00 0A202020202020202020202020",
    "000000FC00 41202020202020202020202020",
    "000000FC00 410A4120202020202020202020",
    "000000FF00 41000A20202020202020202020",
    "000000FE00 41414141414141414141414141",
    "000000FE00 E4410A20202020202020202020",
    "000000FE01 41410A20202020202020202020",
    "000001FE00 41410A20202020202020202020",
    "000000FD00 17781E9911000A202020202020",
    "000000FD00 17781E993C010A202020202020",
    "000000FD00 17781E993C000A202020202000",
    "000000FD00 17781E993C020020505802 8028",
    "000000FD00 17781E993C020A202020202020",
    "000000FD00 17781E993C041100F0F858F03C",
    "000000FD00 78171E993C000A202020202020",
    "000000FD00 1778991E3C000A202020202020",
    "000000FD0B 17781E9900010A202020202020",
    "000000FD00 17781E993C070A202020202020",
    "000000FB00 0105505478000000000A2020 00",
    "000000FA00 D1C00101010101010101010 10A",
    "000000FA00 D1C00000010101010101010 10A",
    "000000F900 03640064006400640064006400",
    "000000F800 017F1C28000000000000000000",
    "000000F800 017F1CA8000000000000000000",
    "000000F800 027F1C28000000000000000000",
    "000000F800 017F1C20000000000000000000",
    "000000F700 0A000000000010000000000000",
    "0000001000 00000000000000000000000000",
    "0000001000 00000001000000000000000000",
    "0000000500 11111111111111111111111111",
    "0000004200 11111111111111111111111111",
    "2936 80A070381F4030203500 585421 0000 1A",
    "0103 80A070381F4030203500 585421 0000 1A",
    "2936 00A000381F4030203500 585421 0000 1A",
    "2936 80A070381F4030803500 585421 0000 1A",
    "2936 80A070380840 30203500 585421 0000 1A",
    "2936 80A070381F4030203500 000000 0000 1A",
    "2936 80A070381F4030203500 FFFF22 0000 1A",
    "2936 80A070381F4030203500 585421 0804 1A",
};

} // namespace

/// Our verdicts beside those of the installed decoder.
class TestCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryRuleHasWords();
    void AGoodBlockHasNoFinding();
    void EveryRuleIsFound_data();
    void EveryRuleIsFound();
    void SingleViolationsAreTheDecodersFailures_data();
    void SingleViolationsAreTheDecodersFailures();
    void RandomBlocksAreTheDecodersFailures();
    void FindingsStayInsideTheBytes();
};

namespace {

/// Empty when both agree, else what differs.
QString Disagreement(const QByteArray& edid)
{
    const QString strDecoded = EdidDecode(
        {QStringLiteral("--check"), QStringLiteral("--skip-hex-dump"), QStringLiteral("--skip-sha")}, edid);
    const QSet<QString> setLeftOut = LeftOut(edid, strDecoded);
    const QSet<QString> setTheirs = DecoderFailures(strDecoded) - setLeftOut;
    const QSet<QString> setOurs = ErrorsOf(edid) - setLeftOut;
    if (setTheirs == setOurs)
        return {};
    return QStringLiteral("only the decoder: %1; only we: %2\n%3\n%4")
        .arg(QStringList((setTheirs - setOurs).values()).join(QLatin1Char(' ')),
             QStringList((setOurs - setTheirs).values()).join(QLatin1Char(' ')),
             QString::fromLatin1(edid.toHex(' ')), strDecoded);
}

} // namespace

void TestCheck::EveryRuleHasWords()
{
    QSet<QString> setNames;
    for (int i = 0; i < int(Edid::enRule::enCount); ++i) {
        const Edid::SRule& rule = Edid::RuleOf(Edid::enRule(i));
        QVERIFY2(QRegularExpression(QStringLiteral("^[a-z]+\\.[a-z0-9_]+$"))
                     .match(NameOf(Edid::enRule(i)))
                     .hasMatch(),
                 rule.szName);
        QVERIFY(qstrlen(rule.szWrong) > 0 && qstrlen(rule.szRemedy) > 0);
        setNames.insert(NameOf(Edid::enRule(i)));
    }
    QCOMPARE(setNames.size(), int(Edid::enRule::enCount));
}

void TestCheck::AGoodBlockHasNoFinding()
{
    QCOMPARE(ErrorsOf(Clean()), QSet<QString>());
    QCOMPARE(ErrorsOf(Clean13()), QSet<QString>());
}

void TestCheck::EveryRuleIsFound_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<int>("offset");
    const auto Add = [](const char* szRule, const QByteArray& edid, int nOffset) {
        QTest::newRow(szRule) << edid << nOffset;
    };
    const QByteArray rich = SampleEdid::Rich();
    Add("base.header", With(Clean(), 0, "01"), 0x00);
    Add("base.checksum", Clean().left(127) + '\0', 0x7F);
    Add("base.extensions", With(Clean(), 0x7E, "03"), 0x7E);
    Add("product.maker", SampleEdid::Built(1920, 1080, 60.0F), 0x08);
    Add("extension.tag", Clean() + QByteArray(128, '\0'), 0x80);
    Add("cta.timings", With(rich, 0x82, "02"), 0x82);
    Add("cta.block", With(rich, 0x84, "5F"), 0xA7);
    Add("displayid.length", With(rich, 0x102, "7A"), 0x102);
    Add("displayid.checksum", With(rich, 0x104, "01"), 0x17E);
    Add("detailed.borders", With(Clean(), 0x45, "01"), 0x45);
}

void TestCheck::EveryRuleIsFound()
{
    QFETCH(QByteArray, edid);
    QFETCH(int, offset);
    for (const Edid::SFinding& finding : FindingsOf(edid))
        if (NameOf(finding.rule) == QLatin1String(QTest::currentDataTag())) {
            QCOMPARE(finding.nOffset, offset);
            QVERIFY(!Edid::WrongText(finding).contains(QLatin1Char('%')));
            return;
        }
    QFAIL("not found");
}

void TestCheck::SingleViolationsAreTheDecodersFailures_data()
{
    QTest::addColumn<QByteArray>("edid");
    const struct
    {
        const char* szName;
        QByteArray edid;
    } arrBases[] = {{"1.4", Clean()}, {"1.3", Clean13()}};
    for (const auto& base : arrBases) {
        for (const char* szDescriptor : c_arrDescriptors)
            for (int nPlace = 0; nPlace < 4; ++nPlace)
                QTest::addRow("%s, descriptor %d: %s", base.szName, nPlace + 1, szDescriptor)
                    << With(base.edid, 0x36 + 18 * nPlace, szDescriptor);
        for (int nByte = 8; nByte < 0x36; ++nByte)
            for (const char* szValue : {"00", "01", "37", "80", "FF"})
                QTest::addRow("%s, byte %02x is %s", base.szName, nByte, szValue)
                    << With(base.edid, nByte, szValue);
        for (const char* szRevision : {"00", "01", "02", "03", "04"})
            QTest::addRow("%s, revision %s", base.szName, szRevision) << With(base.edid, 0x13, szRevision);
    }
}

void TestCheck::SingleViolationsAreTheDecodersFailures()
{
    QFETCH(QByteArray, edid);
    QCOMPARE(Disagreement(edid), QString());
}

void TestCheck::RandomBlocksAreTheDecodersFailures()
{
    constexpr int c_nBlocks = 1200;
    std::mt19937 random(861);
    const auto Below = [&](unsigned nEnd) { return int(random() % nEnd); };
    for (int i = 0; i < c_nBlocks; ++i) {
        QByteArray edid = i % 2 == 0 ? Clean() : Clean13();
        for (int nPlace = 0; nPlace < 4; ++nPlace)
            if (Below(2) == 0)
                edid = With(edid, 0x36 + 18 * nPlace,
                            c_arrDescriptors[Below(unsigned(std::size(c_arrDescriptors)))]);
        for (int nChanges = Below(4); nChanges > 0; --nChanges)
            edid[8 + Below(118)] = char(random());
        // Where the decoder stops reading there is nothing to compare.
        edid = SampleEdid::WithChecksums(edid);
        if (Below(8) == 0)
            edid[127] = char(edid.at(127) + 1);
        const QString strDisagreement = Disagreement(edid);
        QVERIFY2(strDisagreement.isEmpty(),
                 qPrintable(QStringLiteral("block %1: %2").arg(i).arg(strDisagreement)));
    }
}

void TestCheck::FindingsStayInsideTheBytes()
{
    std::mt19937 random(13);
    for (int i = 0; i < 20000; ++i) {
        QByteArray edid(128 * (1 + i % 3), '\0');
        for (char& ch : edid)
            ch = char(random());
        for (int nBlock = 128; nBlock < edid.size(); nBlock += 128)
            edid[nBlock] = i % 2 == 0 ? '\x02' : '\x70';
        for (const Edid::SFinding& finding : FindingsOf(edid))
            QVERIFY(finding.nOffset >= 0 && finding.nSize > 0 &&
                    finding.nOffset + finding.nSize <= edid.size());
    }
}

QTEST_GUILESS_MAIN(TestCheck)
#include "TestCheck.moc"

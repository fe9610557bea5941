#include "tests/edid/TimingRecords.h"

#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

// What the block declares as its monitor's range.
constexpr double c_dLowestLineRate = 30.0;   ///< kHz
constexpr double c_dHighestLineRate = 153.0; ///< kHz
constexpr double c_dHighestClock = 170.0;    ///< MHz

// What `edid-decode --check` may complain of. Any other line fails the test.

/// Always: the manufacturer's letters are beyond the alphabet on purpose.
const QString c_strManufacturer =
    QStringLiteral("Vendor & Product Identification: Manufacturer name field contains garbage.");
/// Names under 13 characters: no terminator and no padding is written, zeros follow.
const QString c_strShortName = QStringLiteral("Display Product Name: Non-printable character.");
/// The range limits are constants of the product, and a mode may go beyond them: a clock above 170 MHz, or a
/// line rate below 30 kHz such as that of 1080p at 24 Hz.
const QString c_strRanges = QStringLiteral("Base EDID: Some timings are out of range of the Monitor Ranges:");
/// A width of 4096 needs a 13th bit and is stored as 0.
const QString c_strZero = QStringLiteral("Detailed Timing Descriptor #1: 0 values in the video timing:");

QString Decoded(const QByteArray& block)
{
    QProcess process;
    process.start(QStringLiteral(EDID_DECODE), {QStringLiteral("--check"), QStringLiteral("--skip-hex-dump"),
                                                QStringLiteral("--skip-sha")});
    process.write(block);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

QByteArray Block(int nWidth, int nHeight, float fRate)
{
    CEDIDRaw edid;
    edid.ChangeWH(nWidth, nHeight, fRate);
    return BlockOf(edid);
}

/// What a pattern catches in the text, empty when it does not match.
QStringList Captured(const QString& strText, const QString& strPattern)
{
    return QRegularExpression(strPattern).match(strText).capturedTexts().mid(1);
}

QList<int> Numbers(const QStringList& listTexts)
{
    QList<int> listNumbers;
    for (const QString& strText : listTexts)
        listNumbers += strText.toInt();
    return listNumbers;
}

/// The lines of complaint, without indentation, headings and verdict.
QStringList Complaints(const QString& strDecoded)
{
    QStringList listComplaints;
    const QString strReport = strDecoded.section(QStringLiteral("\n----------------\n"), 1);
    for (const QString& strLine : strReport.split(QLatin1Char('\n'))) {
        const bool bHeading = !strLine.startsWith(QLatin1Char(' '));
        if (!bHeading)
            listComplaints += strLine.trimmed();
        else if (strLine.startsWith(QLatin1String("Warnings")))
            listComplaints += strLine;
    }
    return listComplaints;
}

struct SMode
{
    int nWidth;
    int nHeight;
    float fRate;
};

const SMode c_arrCommonModes[] = {
    {640, 480, 60.0F},   {720, 576, 50.0F},    {800, 600, 60.0F},   {800, 600, 120.0F},
    {1024, 768, 60.0F},  {1280, 720, 50.0F},   {1280, 720, 59.94F}, {1280, 720, 60.0F},
    {1280, 960, 60.0F},  {1280, 1024, 75.0F},  {1366, 768, 60.0F},  {1400, 1050, 60.0F},
    {1440, 900, 60.0F},  {1600, 900, 60.0F},   {1680, 1050, 60.0F}, {1920, 1080, 23.976F},
    {1920, 1080, 24.0F}, {1920, 1080, 29.97F}, {1920, 1080, 50.0F}, {1920, 1080, 59.94F},
    {1920, 1080, 60.0F}, {1920, 1080, 120.0F}, {1920, 1200, 60.0F}, {2048, 1152, 60.0F},
    {2560, 1440, 60.0F}, {2560, 1600, 60.0F},  {3840, 1080, 60.0F}, {3840, 2160, 24.0F},
    {3840, 2160, 30.0F}, {3840, 2160, 60.0F},  {1080, 1920, 60.0F}, {4000, 2000, 60.0F},
};

} // namespace

/// A second opinion: the block as the decoder of a computer reads it.
class TestEdidDecode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheDecoderReadsWhatWeMean_data();
    void TheDecoderReadsWhatWeMean();
    void TheDecoderComplainsOfNothingElse_data();
    void TheDecoderComplainsOfNothingElse();
    void TheConstantsAreReadAsMeant();
    void AWidthOf4096IsReadAsZero();
    void AWrongChecksumWouldBeNoticed();
};

void TestEdidDecode::TheDecoderReadsWhatWeMean_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("rate");
    for (const SMode& mode : c_arrCommonModes)
        QTest::addRow("%dx%d at %g Hz", mode.nWidth, mode.nHeight, double(mode.fRate))
            << mode.nWidth << mode.nHeight << mode.fRate;
}

void TestEdidDecode::TheDecoderReadsWhatWeMean()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    const QByteArray block = Block(width, height, rate);
    const QString strDecoded = Decoded(block);
    tagSBlankTiming timing = {};
    CEDIDRaw().CalCVTtiming(width, height, rate, 0, 1, 0, &timing);

    QCOMPARE(Captured(strDecoded, QStringLiteral("Display Product Name: '(.*)'")).value(0),
             QString::asprintf("LED%5dX%d", width, height));

    const QStringList listTiming =
        Captured(strDecoded, QStringLiteral("DTD 1: +(\\d+)x(\\d+) .* ([0-9.]+) MHz"));
    QCOMPARE(Numbers(listTiming.mid(0, 2)), (QList<int>{width, height}));
    const double dClock = double(width + timing.wHBlank) * double(height + timing.wVBlank) * double(rate);
    QVERIFY(std::fabs(listTiming.value(2).toDouble() - std::floor(dClock / 10000.0) / 100.0) < 1e-9);

    QCOMPARE(
        Numbers(Captured(strDecoded, QStringLiteral("Hfront +(\\d+) Hsync +(\\d+) Hback +(\\d+) Hpol P"))),
        (QList<int>{timing.wHFrontPorch, timing.wHSync,
                    timing.wHBlank - timing.wHFrontPorch - timing.wHSync}));
    QCOMPARE(
        Numbers(Captured(strDecoded, QStringLiteral("Vfront +(\\d+) Vsync +(\\d+) Vback +(\\d+) Vpol N"))),
        (QList<int>{timing.byVFrontPorch, timing.byVSync,
                    timing.wVBlank - timing.byVFrontPorch - timing.byVSync}));

    QCOMPARE(Captured(strDecoded, QStringLiteral("\nChecksum: (.*)\n")).value(0),
             QString::asprintf("0x%02x", quint8(block[127])));
}

void TestEdidDecode::TheDecoderComplainsOfNothingElse_data()
{
    TheDecoderReadsWhatWeMean_data();
}

void TestEdidDecode::TheDecoderComplainsOfNothingElse()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    const QString strDecoded = Decoded(Block(width, height, rate));
    const QStringList listTiming =
        Captured(strDecoded, QStringLiteral("DTD 1: .* ([0-9.]+) kHz +([0-9.]+) MHz"));
    // The decoder compares whole kHz.
    const double dLineRate = std::round(listTiming.value(0).toDouble());
    const bool bClock = listTiming.value(1).toDouble() > c_dHighestClock;
    const bool bLineRate = dLineRate < c_dLowestLineRate || dLineRate > c_dHighestLineRate;

    QStringList listComplaints = Complaints(strDecoded);
    QVERIFY2(listComplaints.removeOne(c_strManufacturer), qPrintable(strDecoded));
    if (QString::asprintf("LED%5dX%d", width, height).size() < 13)
        QVERIFY2(listComplaints.removeOne(c_strShortName), qPrintable(strDecoded));
    if (bClock || bLineRate)
        QVERIFY2(listComplaints.removeOne(c_strRanges), qPrintable(strDecoded));
    const auto Remove = [&](bool bExpected, const char* szBegin) {
        const auto Begins = [&](const QString& strLine) {
            return strLine.startsWith(QLatin1String(szBegin));
        };
        const auto it = std::find_if(listComplaints.begin(), listComplaints.end(), Begins);
        if (bExpected && it != listComplaints.end())
            listComplaints.erase(it);
    };
    Remove(bClock, "Maximum Clock: ");
    Remove(bLineRate, "Horizontal Freq: ");
    QCOMPARE(listComplaints, QStringList());
}

void TestEdidDecode::TheConstantsAreReadAsMeant()
{
    const QString strDecoded = Decoded(Block(1920, 1080, 60.0F));
    for (const char* szLine :
         {"EDID Structure Version & Revision: 1.3", "Manufacturer: ^^^", "Model: 0",
          "Serial Number: 16843009", "Made in: 2017", "DFP 1.x compatible TMDS", "Image size is variable",
          "Gamma: 2.20", "RGB color display", "First detailed timing is the preferred timing",
          "Red  : 0.6865, 0.3125", "Green: 0.1875, 0.7109", "White: 0.3125, 0.3291",
          "800x600    60.316541 Hz", "Standard Timings: none", "Display Product Serial Number: '000'",
          "Monitor ranges (GTF): 23-120 Hz V, 30-153 kHz H, max dotclock 170 MHz"})
        QVERIFY2(strDecoded.contains(QLatin1String(szLine)), szLine);
}

void TestEdidDecode::AWidthOf4096IsReadAsZero()
{
    const QStringList listComplaints = Complaints(Decoded(Block(4096, 2160, 24.0F)));
    QCOMPARE(listComplaints.mid(0, 3),
             (QStringList{c_strManufacturer, c_strZero, QStringLiteral("Horizontal Active/Blanking 0/160")}));
}

void TestEdidDecode::AWrongChecksumWouldBeNoticed()
{
    QByteArray block = Block(1920, 1080, 60.0F);
    block[127] = char(block[127] + 1);
    QVERIFY(Decoded(block).contains(QLatin1String("Checksum: 0x23 (should be 0x22)")));
}

QTEST_APPLESS_MAIN(TestEdidDecode)
#include "TestEdidDecode.moc"

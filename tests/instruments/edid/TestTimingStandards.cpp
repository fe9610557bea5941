#include "instruments/edid/TimingStandards.h"
#include "tests/instruments/edid/EdidDecode.h"

#include <QRegularExpression>
#include <QtTest>

#include <libxcvt/libxcvt.h>

#include <cmath>
#include <cstdlib>

namespace {

using Edid::enTimingStandard;

/// Sizes of displays, of walls, and what is no multiple of a cell.
constexpr int c_arrSizes[][2] = {{640, 480},   {800, 600},   {1024, 768},  {1280, 720},  {1280, 1024},
                                 {1366, 768},  {1440, 900},  {1600, 1200}, {1680, 1050}, {1920, 1080},
                                 {1920, 1200}, {2048, 1152}, {2560, 1080}, {2560, 1440}, {3072, 1728},
                                 {3840, 1080}, {3840, 2160}, {1080, 1920}, {720, 1280},  {1001, 333},
                                 {7680, 1080}, {1080, 5760}, {256, 4096},  {500, 500}};
constexpr double c_arrRates[] = {24.0, 25.0, 29.97, 30.0,   50.0,  59.94,
                                 60.0, 75.0, 100.0, 119.88, 120.0, 144.0};

QString Parts(const Edid::SModeTiming& timing)
{
    const auto Axis = [](const Edid::SAxis& axis) {
        return QString::asprintf("%d %d %d %d %c", axis.nActive, axis.nFront, axis.nSync, axis.nBack,
                                 axis.bPositive ? 'P' : 'N');
    };
    return QStringLiteral("%1, %2").arg(Axis(timing.horizontal), Axis(timing.vertical));
}

struct SDecoded
{
    QString strParts; ///< in the same words
    double dClock;    ///< kHz
};

SDecoded Decoded(const QString& strText)
{
    static const QRegularExpression s_regTiming(QStringLiteral(
        "(\\d+)x(\\d+)i? .* ([0-9.]+) MHz[^\n]*\n +Hfront +(-?\\d+) Hsync +(\\d+) Hback +(-?\\d+) "
        "Hpol (.)[^\n]*\n +Vfront +(-?\\d+) Vsync +(\\d+) Vback +(-?\\d+) Vpol (.)"));
    const QRegularExpressionMatch match = s_regTiming.match(strText);
    const auto Part = [&](int nPart) { return match.captured(nPart); };
    const QString strParts = QStringLiteral("%1 %2 %3 %4 %5, %6 %7 %8 %9 %10")
                                 .arg(Part(1), Part(4), Part(5), Part(6), Part(7), Part(2), Part(8), Part(9))
                                 .arg(Part(10), Part(11));
    return {strParts, Part(3).toDouble() * 1000.0};
}

QStringList DecoderOptions(enTimingStandard standard, const Edid::SModeRequest& request)
{
    const QString strMode = QStringLiteral("w=%1,h=%2,fps=%3%4")
                                .arg(request.nWidth)
                                .arg(request.nHeight)
                                .arg(request.dRate)
                                .arg(request.bInterlaced ? QStringLiteral(",interlaced") : QString());
    if (standard == enTimingStandard::enGtf)
        return {QStringLiteral("--gtf"), strMode};
    return {QStringLiteral("--cvt"), QStringLiteral("%1,rb=%2").arg(strMode).arg(int(standard))};
}

} // namespace

class TestTimingStandards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FormulasGiveTheDecodersTimings_data();
    void FormulasGiveTheDecodersTimings();
    void CvtIsThatOfTheLibrary_data();
    void CvtIsThatOfTheLibrary();
    void ListedTimingsAreFound_data();
    void ListedTimingsAreFound();
    void WhatHasNoTimingGivesNone_data();
    void WhatHasNoTimingGivesNone();
    void NamesLeadBack();
};

void TestTimingStandards::FormulasGiveTheDecodersTimings_data()
{
    QTest::addColumn<int>("standard");
    QTest::addColumn<bool>("interlaced");
    for (const enTimingStandard standard :
         {enTimingStandard::enCvt, enTimingStandard::enCvtRb, enTimingStandard::enCvtRb2,
          enTimingStandard::enCvtRb3, enTimingStandard::enGtf})
        for (const bool bInterlaced : {false, true})
            QTest::addRow("%s%s", Edid::StandardName(standard), bInterlaced ? ", interlaced" : "")
                << int(standard) << bInterlaced;
}

void TestTimingStandards::FormulasGiveTheDecodersTimings()
{
    QFETCH(int, standard);
    QFETCH(bool, interlaced);
    for (const auto& arrSize : c_arrSizes) {
        for (const double dRate : c_arrRates) {
            const Edid::SModeRequest request = {arrSize[0], arrSize[1], dRate, interlaced};
            const auto timing = Edid::StandardTimingOf(enTimingStandard(standard), request);
            // An odd number of lines has no two equal fields.
            if (!timing || (interlaced && request.nHeight % 2 != 0))
                continue;
            const QStringList listOptions = DecoderOptions(enTimingStandard(standard), request);
            const QString strDecoded = EdidDecode(listOptions);
            const SDecoded decoded = Decoded(strDecoded);
            QVERIFY2(Parts(*timing) == decoded.strParts, qPrintable(Parts(*timing) + strDecoded));
            // Where the clock is a whole number of kHz, the decoder's product may fall short of it
            // and be cut.
            QVERIFY2(std::fabs(double(timing->nClock) / 1000.0 - decoded.dClock) < 1.001,
                     qPrintable(strDecoded));
        }
    }
}

void TestTimingStandards::CvtIsThatOfTheLibrary_data()
{
    QTest::addColumn<int>("standard");
    QTest::newRow("standard blanking") << int(enTimingStandard::enCvt);
    QTest::newRow("reduced blanking") << int(enTimingStandard::enCvtRb);
}

void TestTimingStandards::CvtIsThatOfTheLibrary()
{
    QFETCH(int, standard);
    const bool bReduced = enTimingStandard(standard) == enTimingStandard::enCvtRb;
    for (int nWidth = 640; nWidth <= 4096; nWidth += 8) {
        for (const int nHeight : {480, 720, 1080, 1200, 2160}) {
            // The library calculates in single precision; at these rates it does not show.
            const auto timing =
                Edid::StandardTimingOf(enTimingStandard(standard), {nWidth, nHeight, 60.0, false});
            QVERIFY(timing.has_value());
            libxcvt_mode_info* pInfo = libxcvt_gen_mode_info(nWidth, nHeight, 60.0, bReduced, false);
            const QString strTheirs = QString::number(pInfo->htotal);
            const QString strOurs = QString::number(timing->horizontal.Total());
            const int nLinesOff = timing->FrameLines() - int(pInfo->vtotal);
            const int nSyncOff = int(pInfo->hsync_start) - (nWidth + timing->horizontal.nFront);
            const double dClockOff =
                std::fabs(double(pInfo->dot_clock) * 1000.0 / double(timing->nClock) - 1.0);
            free(pInfo);
            QCOMPARE(strOurs, strTheirs);
            // It keeps the six lines of back porch of CVT 1.1, where 1.2 has seven, and tells aspect ratios
            // apart in another order.
            QVERIFY2(std::abs(nLinesOff) <= 4, qPrintable(strOurs));
            // It moves the start of the sync to the next cell, also one that stands at a cell already.
            QVERIFY2(nSyncOff == 0 || nSyncOff == 8, qPrintable(strOurs));
            // It takes the clock of the estimated line instead of that of the rate.
            QVERIFY2(dClockOff < 0.02, qPrintable(strOurs));
        }
    }
}

void TestTimingStandards::ListedTimingsAreFound_data()
{
    QTest::addColumn<int>("standard");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("parts");
    QTest::addColumn<qint64>("clock");
    QTest::newRow("DMT") << int(enTimingStandard::enDmt) << 60.0
                         << QStringLiteral("1920 88 44 148 P, 1080 4 5 36 P") << qint64(148500000);
    QTest::newRow("CEA") << int(enTimingStandard::enCea) << 60.0
                         << QStringLiteral("1920 88 44 148 P, 1080 4 5 36 P") << qint64(148500000);
    QTest::newRow("CEA, a thousandth less")
        << int(enTimingStandard::enCea) << 59.94 << QStringLiteral("1920 88 44 148 P, 1080 4 5 36 P")
        << qint64(148351648);
    QTest::newRow("CEA, 50 Hz") << int(enTimingStandard::enCea) << 50.0
                                << QStringLiteral("1920 528 44 148 P, 1080 4 5 36 P") << qint64(148500000);
}

void TestTimingStandards::ListedTimingsAreFound()
{
    QFETCH(int, standard);
    QFETCH(double, rate);
    const auto timing = Edid::StandardTimingOf(enTimingStandard(standard), {1920, 1080, rate, false});
    QVERIFY(timing.has_value());
    QTEST(Parts(*timing), "parts");
    QTEST(timing->nClock, "clock");
}

void TestTimingStandards::WhatHasNoTimingGivesNone_data()
{
    QTest::addColumn<int>("standard");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("rate");
    const auto Add = [](const char* szName, enTimingStandard standard, int nWidth, int nHeight,
                        double dRate) {
        QTest::newRow(szName) << int(standard) << nWidth << nHeight << dRate;
    };
    Add("a size that is not listed", enTimingStandard::enDmt, 3072, 1728, 60.0);
    Add("a rate that is not listed", enTimingStandard::enCea, 1920, 1080, 61.0);
    Add("blanking longer than the frame", enTimingStandard::enCvt, 1920, 1080, 1900.0);
    Add("no width", enTimingStandard::enCvtRb, 0, 1080, 60.0);
    Add("no height", enTimingStandard::enGtf, 1920, 0, 60.0);
    Add("no rate", enTimingStandard::enCvtRb2, 1920, 1080, 0.0);
    Add("NaN", enTimingStandard::enCvtRb3, 1920, 1080, std::nan(""));
}

void TestTimingStandards::WhatHasNoTimingGivesNone()
{
    QFETCH(int, standard);
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, rate);
    QVERIFY(!Edid::StandardTimingOf(enTimingStandard(standard), {width, height, rate, false}).has_value());
}

void TestTimingStandards::NamesLeadBack()
{
    for (int i = 0; i < Edid::c_nTimingStandards; ++i) {
        const auto standard = enTimingStandard(i);
        QVERIFY(Edid::FindTimingStandard(QString::fromLatin1(Edid::StandardName(standard))) == standard);
    }
    QVERIFY(!Edid::FindTimingStandard(QStringLiteral("vga")).has_value());
}

QTEST_GUILESS_MAIN(TestTimingStandards)
#include "TestTimingStandards.moc"

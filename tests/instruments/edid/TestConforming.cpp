#include "instruments/edid/Conforming.h"
#include "instruments/edid/Explanation.h"
#include "instruments/edid/Rules.h"
#include "tests/instruments/edid/EdidDecode.h"

#include <QRegularExpression>
#include <QtTest>

#include <random>

Q_DECLARE_METATYPE(Edid::SConformRequest)

namespace {

QByteArray Made(int nWidth, int nHeight, float fRate)
{
    return Edid::MakeConforming({nWidth, nHeight, fRate, QStringLiteral("LED"), {}, 0, 0}).edid;
}

QString Findings(const QByteArray& edid)
{
    std::vector<Edid::SFinding> vecFindings;
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), {2026}, vecFindings);
    QString strFindings;
    for (const Edid::SFinding& finding : vecFindings)
        strFindings += Edid::WrongText(finding) + QLatin1Char('\n');
    return strFindings;
}

QString Decoded(const QByteArray& edid)
{
    return EdidDecode(
        {QStringLiteral("--check"), QStringLiteral("--skip-hex-dump"), QStringLiteral("--skip-sha")}, edid);
}

} // namespace

class TestConforming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheDecoderFindsTheModeAndNoFailure_data();
    void TheDecoderFindsTheModeAndNoFailure();
    void RandomModesHaveNoFailure();
    void OurCheckFindsNothing();
    void IdentityAndSizeAreWritten();
    void WhatDoesNotFitIsRefused_data();
    void WhatDoesNotFitIsRefused();
};

void TestConforming::TheDecoderFindsTheModeAndNoFailure_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("rate");
    QTest::addColumn<int>("blocks");
    const auto Add = [](int nWidth, int nHeight, float fRate, int nBlocks) {
        QTest::addRow("%dx%d at %g Hz", nWidth, nHeight, double(fRate))
            << nWidth << nHeight << fRate << nBlocks;
    };
    Add(1920, 1080, 60.0F, 1);
    Add(3072, 1728, 60.0F, 1);
    Add(640, 480, 60.0F, 1);
    Add(800, 600, 120.0F, 1);
    Add(1366, 768, 59.94F, 1);
    Add(3840, 2160, 60.0F, 1);
    Add(4095, 2160, 60.0F, 1);
    Add(1080, 3840, 60.0F, 1);
    Add(7680, 1080, 60.0F, 2);
    Add(1080, 5760, 60.0F, 2);
    Add(15360, 2160, 60.0F, 2);
    Add(4096, 2160, 30.0F, 2);
    Add(3840, 2160, 120.0F, 2);
    Add(16384, 16384, 240.0F, 2);
}

void TestConforming::TheDecoderFindsTheModeAndNoFailure()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    QFETCH(int, blocks);
    const QByteArray edid = Made(width, height, rate);
    QCOMPARE(edid.size(), blocks * 128);
    const QString strDecoded = Decoded(edid);
    QVERIFY2(strDecoded.contains(QLatin1String("EDID conformity: PASS")), qPrintable(strDecoded));
    const QRegularExpression regMode(QStringLiteral("DTD.*: +%1x%2 +([0-9.]+) Hz").arg(width).arg(height));
    const QRegularExpressionMatch match = regMode.match(strDecoded);
    QVERIFY2(match.hasMatch(), qPrintable(strDecoded));
    QVERIFY(std::abs(match.captured(1).toDouble() - double(rate)) < 0.01 * double(rate));
}

void TestConforming::RandomModesHaveNoFailure()
{
    std::mt19937 random(4711);
    for (int i = 0; i < 300; ++i) {
        const int nWidth = 64 + int(random() % 16321);
        const int nHeight = 64 + int(random() % 16321);
        const float fRate = float(23 + random() % 218);
        const QByteArray edid = Made(nWidth, nHeight, fRate);
        if (edid.isEmpty())
            continue;
        const QString strDecoded = Decoded(edid);
        QVERIFY2(
            strDecoded.contains(QLatin1String("EDID conformity: PASS")),
            qPrintable(
                QStringLiteral("%1x%2@%3\n%4").arg(nWidth).arg(nHeight).arg(double(fRate)).arg(strDecoded)));
    }
}

void TestConforming::OurCheckFindsNothing()
{
    // Every mode of 64..16384 x 64..16384 x 23..240 would be 58 thousand million: a grid of its ends, of
    // primes between them, and of the places where a block is exhausted.
    const QVector<int> vecSizes = {64,   67,   101,  256,  499,  641,  1023, 1024,  1367, 1920,
                                   2161, 3001, 4094, 4095, 4096, 4097, 8191, 12289, 16384};
    int nMade = 0;
    for (const int nWidth : vecSizes)
        for (const int nHeight : vecSizes)
            for (int nRate = 23; nRate <= 240; ++nRate) {
                const QByteArray edid = Made(nWidth, nHeight, float(nRate));
                if (edid.isEmpty())
                    continue;
                ++nMade;
                QVERIFY2(Findings(edid).isEmpty(), qPrintable(QStringLiteral("%1x%2@%3: %4")
                                                                  .arg(nWidth)
                                                                  .arg(nHeight)
                                                                  .arg(nRate)
                                                                  .arg(Findings(edid))));
            }
    QVERIFY(nMade > 60000);
}

void TestConforming::IdentityAndSizeAreWritten()
{
    const Edid::SConformResult result =
        Edid::MakeConforming({7680, 1080, 60.0F, QStringLiteral("XYZ"), QStringLiteral("Lobby"), 200, 28});
    QCOMPARE(result.strError, QString());
    const QString strDecoded = Decoded(result.edid);
    for (const char* szLine :
         {"Manufacturer: XYZ", "Display Product Name: 'Lobby'", "Maximum image size: 200 cm x 28 cm",
          "PNP ID 'XYZ'", "2000.0 mm x 280.0 mm", "EDID conformity: PASS"})
        QVERIFY2(strDecoded.contains(QLatin1String(szLine)), qPrintable(QLatin1String(szLine) + strDecoded));
}

void TestConforming::WhatDoesNotFitIsRefused_data()
{
    QTest::addColumn<Edid::SConformRequest>("request");
    QTest::addColumn<QString>("error");
    const auto Add = [](const char* szName, const Edid::SConformRequest& request, const char* szError) {
        QTest::newRow(szName) << request << QString::fromLatin1(szError);
    };
    const QString strLed = QStringLiteral("LED");
    Add("a maker of two letters", {1920, 1080, 60.0F, QStringLiteral("LE"), {}, 0, 0},
        "the maker 'LE' is not three letters A to Z");
    Add("small letters", {1920, 1080, 60.0F, QStringLiteral("led"), {}, 0, 0},
        "the maker 'led' is not three letters A to Z");
    Add("a long name", {1920, 1080, 60.0F, strLed, QStringLiteral("fourteen chars"), 0, 0},
        "the name: a text has 1 to 13 characters, and 'fourteen chars' has 14");
    Add("a name in Chinese", {1920, 1080, 60.0F, strLed, QString::fromUtf8("屏"), 0, 0},
        "holds other characters than printable ASCII");
    Add("a wide wall", {1920, 1080, 60.0F, strLed, {}, 256, 100},
        "the size of 256x100 cm does not fit; give 1 to 255 cm for both, or none");
    Add("half a size", {1920, 1080, 60.0F, strLed, {}, 100, 0}, "the size of 100x0 cm does not fit");
    Add("a low clock", {64, 64, 23.0F, strLed, {}, 0, 0}, "is below the 10 MHz that decoders accept");
    Add("a high rate", {1920, 1080, 5000.0F, strLed, {}, 0, 0}, "the rate leaves no time for the blanking");
}

void TestConforming::WhatDoesNotFitIsRefused()
{
    QFETCH(Edid::SConformRequest, request);
    QFETCH(QString, error);
    const Edid::SConformResult result = Edid::MakeConforming(request);
    QVERIFY(result.edid.isEmpty());
    QVERIFY2(result.strError.contains(error), qPrintable(result.strError));
}

QTEST_GUILESS_MAIN(TestConforming)
#include "TestConforming.moc"

#include "SenderModuleDialog/output/BackgroundRules.h"

#include <QTemporaryDir>
#include <QtTest>

class TestBackgroundRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PercentOfAlpha_data();
    void PercentOfAlpha();
    void AlphaOfPercent_data();
    void AlphaOfPercent();
    void AnAlphaOfThisDialogComesBackAndAnotherCanFallByOne();
    void APercentThatIsWrittenAndShownAgainIsTheSame();
    void BothConversionsAreMonotonous();
    void AlphaByte_data();
    void AlphaByte();
    void FitOfText_data();
    void FitOfText();
    void IsSameFile();
};

void TestBackgroundRules::PercentOfAlpha_data()
{
    QTest::addColumn<int>("nAlpha");
    QTest::addColumn<int>("nPercent");
    QTest::newRow("transparent") << 0 << 100;
    QTest::newRow("opaque") << 255 << 0;
    QTest::newRow("128 is 50.196") << 128 << 50;
    QTest::newRow("127 is 49.804") << 127 << 50;
    QTest::newRow("1 is 0.392") << 1 << 100;
    QTest::newRow("2 is 0.784") << 2 << 99;
}

void TestBackgroundRules::PercentOfAlpha()
{
    QFETCH(int, nAlpha);
    QTEST(BackgroundRules::PercentOfAlpha(nAlpha), "nPercent");
}

void TestBackgroundRules::AlphaOfPercent_data()
{
    QTest::addColumn<int>("nPercent");
    QTest::addColumn<int>("nAlpha");
    QTest::newRow("transparent") << 100 << 0;
    QTest::newRow("opaque") << 0 << 255;
    QTest::newRow("50 is 127.5, truncated") << 50 << 127;
    QTest::newRow("99 is 2.55, truncated") << 99 << 2;
    QTest::newRow("1 is 252.45, truncated") << 1 << 252;
}

void TestBackgroundRules::AlphaOfPercent()
{
    QFETCH(int, nPercent);
    QTEST(BackgroundRules::AlphaOfPercent(nPercent), "nAlpha");
}

void TestBackgroundRules::AnAlphaOfThisDialogComesBackAndAnotherCanFallByOne()
{
    QCOMPARE(BackgroundRules::AlphaOfPercent(BackgroundRules::PercentOfAlpha(128)), 127);
    for (int nPercent = 0; nPercent <= 100; ++nPercent) {
        const int nAlpha = BackgroundRules::AlphaOfPercent(nPercent);
        QCOMPARE(BackgroundRules::AlphaOfPercent(BackgroundRules::PercentOfAlpha(nAlpha)), nAlpha);
    }
}

void TestBackgroundRules::APercentThatIsWrittenAndShownAgainIsTheSame()
{
    for (int nPercent = 0; nPercent <= 100; ++nPercent)
        QCOMPARE(BackgroundRules::PercentOfAlpha(BackgroundRules::AlphaOfPercent(nPercent)), nPercent);
}

void TestBackgroundRules::BothConversionsAreMonotonous()
{
    for (int nAlpha = 1; nAlpha <= 255; ++nAlpha)
        QVERIFY(BackgroundRules::PercentOfAlpha(nAlpha) <= BackgroundRules::PercentOfAlpha(nAlpha - 1));
    for (int nPercent = 1; nPercent <= 100; ++nPercent)
        QVERIFY(BackgroundRules::AlphaOfPercent(nPercent) < BackgroundRules::AlphaOfPercent(nPercent - 1));
}

void TestBackgroundRules::AlphaByte_data()
{
    QTest::addColumn<int>("nAlpha");
    QTest::addColumn<int>("nByte");
    QTest::newRow("in range") << 127 << 127;
    QTest::newRow("largest") << 255 << 255;
    QTest::newRow("above") << 256 << 0;
    QTest::newRow("negative") << -1 << 255;
}

void TestBackgroundRules::AlphaByte()
{
    QFETCH(int, nAlpha);
    QTEST(int(BackgroundRules::AlphaByte(nAlpha)), "nByte");
}

void TestBackgroundRules::FitOfText_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nFit");
    QTest::newRow("one to one") << QStringLiteral("1:1") << 0;
    QTest::newRow("stretched") << QStringLiteral("拉伸") << 1;
    QTest::newRow("anything else is stretched") << QStringLiteral("1：1") << 1;
}

void TestBackgroundRules::FitOfText()
{
    QFETCH(QString, strText);
    QTEST(BackgroundRules::FitOfText(strText), "nFit");
}

void TestBackgroundRules::IsSameFile()
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(QStringLiteral("a.png"));
    const QString strOther = dir.filePath(QStringLiteral("b.png"));
    const QString strLink = dir.filePath(QStringLiteral("link.png"));
    for (const QString& strPath : {strFile, strOther}) {
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QFile::link(strFile, strLink));
    const QString strMissing = dir.filePath(QStringLiteral("missing.png"));
    QVERIFY(BackgroundRules::IsSameFile(strFile, strFile));
    QVERIFY(BackgroundRules::IsSameFile(strFile, dir.filePath(QStringLiteral("./a.png"))));
    QVERIFY2(BackgroundRules::IsSameFile(strFile, strLink), "a link leads to the file");
    QVERIFY(!BackgroundRules::IsSameFile(strFile, strOther));
    QVERIFY(!BackgroundRules::IsSameFile(strFile, strMissing));
    QVERIFY(BackgroundRules::IsSameFile(strMissing, strMissing));
    QVERIFY(!BackgroundRules::IsSameFile(strMissing, dir.filePath(QStringLiteral("./missing.png"))));
}

QTEST_GUILESS_MAIN(TestBackgroundRules)
#include "TestBackgroundRules.moc"

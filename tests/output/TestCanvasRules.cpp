#include "SenderModuleDialog/output/CanvasRules.h"

#include <QtTest>

class TestCanvasRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Presets_data();
    void Presets();
    void PresetCount_data();
    void PresetCount();
    void PresetOf_data();
    void PresetOf();
    void CheckMinimum_data();
    void CheckMinimum();
    void CheckLimit_data();
    void CheckLimit();
    void OpeningSize_data();
    void OpeningSize();
    void ThePresetLimitsAreTheLargestCanvas();
};

void TestCanvasRules::Presets_data()
{
    QTest::addColumn<int>("nId");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QSize>("size");
    QTest::newRow("0") << 0 << QStringLiteral("1920×1080") << QSize(1920, 1080);
    QTest::newRow("1") << 1 << QStringLiteral("3840×2160") << QSize(3840, 2160);
    QTest::newRow("2") << 2 << QStringLiteral("4096×2160") << QSize(4096, 2160);
}

void TestCanvasRules::Presets()
{
    QFETCH(int, nId);
    const CanvasRules::SPreset& preset = CanvasRules::c_arrPresets.at(std::size_t(nId));
    QTEST(QString::fromUtf8(preset.szText), "strText");
    QTEST(preset.size, "size");
}

void TestCanvasRules::PresetCount_data()
{
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<int>("nCount");
    QTest::newRow("16 has all") << 16 << 3;
    QTest::newRow("17 lacks the last") << 17 << 2;
    QTest::newRow("18 has all") << 18 << 3;
    QTest::newRow("0 has all") << 0 << 3;
}

void TestCanvasRules::PresetCount()
{
    QFETCH(int, nSenderType);
    QTEST(CanvasRules::PresetCount(nSenderType), "nCount");
}

void TestCanvasRules::PresetOf_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("nPreset");
    QTest::newRow("first") << QSize(1920, 1080) << 0;
    QTest::newRow("second") << QSize(3840, 2160) << 1;
    QTest::newRow("third") << QSize(4096, 2160) << 2;
    QTest::newRow("turned") << QSize(1080, 1920) << -1;
    QTest::newRow("one pixel off") << QSize(1921, 1080) << -1;
}

void TestCanvasRules::PresetOf()
{
    QFETCH(QSize, size);
    QTEST(CanvasRules::PresetOf(size), "nPreset");
}

void TestCanvasRules::CheckMinimum_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("bProblem");
    QTest::newRow("both at the minimum") << QSize(64, 64) << false;
    QTest::newRow("width below") << QSize(63, 64) << true;
    QTest::newRow("height below") << QSize(64, 63) << true;
    QTest::newRow("both far above") << QSize(40000, 40000) << false;
    QTest::newRow("negative") << QSize(-1, -1) << true;
}

void TestCanvasRules::CheckMinimum()
{
    QFETCH(QSize, size);
    QFETCH(bool, bProblem);
    const auto problem = CanvasRules::CheckMinimum(size);
    QCOMPARE(problem.has_value(), bProblem);
    if (bProblem) {
        QCOMPARE(QString::fromUtf8(problem->szText), QStringLiteral("画布的宽或高不能小于%1。"));
        QCOMPARE(problem->nLimit, 64);
    }
}

void TestCanvasRules::CheckLimit_data()
{
    const QString strWidth = QStringLiteral("画布的宽不能大于%1。");
    const QString strHeight = QStringLiteral("画布的高不能大于%1。");
    const QString strArea = QStringLiteral("画布的面积不能大于%1。");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<int>>("vecLimit");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nLimit");
    const QVector<int> vecPreset = {32768, 16384, 536870912};
    const QVector<int> vec4K = {3840, 2160, 8294400};
    const QVector<int> vecNoArea = {3840, 2160, 536870912};
    QTest::newRow("the largest canvas is exactly the preset area")
        << QSize(32768, 16384) << vecPreset << QString() << 0;
    QTest::newRow("4K on a 4K sender") << QSize(3840, 2160) << vec4K << QString() << 0;
    QTest::newRow("width alone") << QSize(3841, 100) << vec4K << strWidth << 3840;
    QTest::newRow("height alone") << QSize(100, 2161) << vec4K << strHeight << 2160;
    QTest::newRow("area alone") << QSize(3000, 2000) << QVector<int>{3840, 2160, 5999999} << strArea
                                << 5999999;
    QTest::newRow("area exact") << QSize(3000, 2000) << QVector<int>{3840, 2160, 6000000} << QString() << 0;
    QTest::newRow("height overwrites width") << QSize(3841, 2161) << vecNoArea << strHeight << 2160;
    QTest::newRow("area overwrites width") << QSize(4096, 2160) << vec4K << strArea << 8294400;
    QTest::newRow("area overwrites all") << QSize(4096, 2161) << vec4K << strArea << 8294400;
    QTest::newRow("an area beyond int is no overflow")
        << QSize(1 << 30, 1 << 30) << vecPreset << strArea << 536870912;
}

void TestCanvasRules::CheckLimit()
{
    QFETCH(QSize, size);
    QFETCH(QVector<int>, vecLimit);
    QFETCH(QString, strText);
    const auto problem = CanvasRules::CheckLimit(size, {vecLimit.at(0), vecLimit.at(1), vecLimit.at(2)});
    QCOMPARE(problem.has_value(), !strText.isEmpty());
    if (problem) {
        QCOMPARE(QString::fromUtf8(problem->szText), strText);
        QTEST(problem->nLimit, "nLimit");
    }
}

void TestCanvasRules::OpeningSize_data()
{
    QTest::addColumn<QSize>("sizeHardware");
    QTest::addColumn<QSize>("sizeOpening");
    QTest::newRow("none") << QSize(0, 0) << QSize(1920, 1080);
    QTest::newRow("no width") << QSize(0, 600) << QSize(0, 600);
    QTest::newRow("no height") << QSize(800, 0) << QSize(800, 0);
    QTest::newRow("a canvas") << QSize(2048, 1152) << QSize(2048, 1152);
}

void TestCanvasRules::OpeningSize()
{
    QFETCH(QSize, sizeHardware);
    QTEST(CanvasRules::OpeningSize(sizeHardware), "sizeOpening");
}

void TestCanvasRules::ThePresetLimitsAreTheLargestCanvas()
{
    const SCanvasLimit limit;
    QCOMPARE(limit.nMaxWidth, 32768);
    QCOMPARE(limit.nMaxHeight, 16384);
    QCOMPARE(limit.nMaxArea, 536870912);
}

QTEST_GUILESS_MAIN(TestCanvasRules)
#include "TestCanvasRules.moc"

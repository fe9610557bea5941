#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "workbench/edid/EdidFields.h"
#include "workbench/edid/EdidMemoryUpdater.h"

#include <QSet>
#include <QtTest>

namespace {

QByteArray BlockOf(int nWidth, int nHeight, float fRate)
{
    CEDIDRaw raw;
    raw.ChangeWH(nWidth, nHeight, fRate);
    return {reinterpret_cast<const char*>(&raw), c_nEdidBlockSize};
}

QString ValueOf(const QByteArray& block, const QString& strName)
{
    for (const SEdidField& field : EdidFields::Decode(block))
        if (field.strName == strName)
            return field.strValue;
    return QStringLiteral("no such field");
}

} // namespace

class TestEdidFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldReads_data();
    void AFieldReads();
    void AWrongChecksumIsTold();
    void EveryByteButTheUnusedOnesBelongsToAField();
    void ABlockOfAnotherLengthHasNoFields();
    void ChangedBytesAreFound();
    void TheBlockOfASettingIsThatOfItsMode();
};

void TestEdidFields::AFieldReads_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("header") << "标头"
                            << "正确";
    QTest::newRow("manufacturer: beyond the letters") << "制造商"
                                                      << "30 30 30（不是字母）";
    QTest::newRow("product code") << "产品代码"
                                  << "0";
    QTest::newRow("serial number") << "序列号"
                                   << "01 01 01 01";
    QTest::newRow("manufactured") << "制造时间"
                                  << "2017 年";
    QTest::newRow("version") << "EDID 版本"
                             << "1.3";
    QTest::newRow("input") << "输入"
                           << "数字";
    QTest::newRow("physical size") << "物理尺寸"
                                   << "未知";
    QTest::newRow("gamma") << "伽马"
                           << "2.20";
    QTest::newRow("red") << "红"
                         << "x 0.6865, y 0.3125";
    QTest::newRow("green") << "绿"
                           << "x 0.1875, y 0.7109";
    QTest::newRow("blue") << "蓝"
                          << "x 0.1367, y 0.0508";
    QTest::newRow("white") << "白"
                           << "x 0.3125, y 0.3291";
    QTest::newRow("established timings") << "既定时序"
                                         << "800 × 600, 60 Hz";
    QTest::newRow("standard timings") << "标准时序"
                                      << "无";
    QTest::newRow("pixel clock") << "像素时钟"
                                 << "138.65 MHz";
    QTest::newRow("width") << "宽"
                           << "1920 像素";
    QTest::newRow("horizontal blanking") << "水平消隐"
                                         << "160 像素";
    QTest::newRow("height") << "高"
                            << "1080 行";
    QTest::newRow("vertical blanking") << "垂直消隐"
                                       << "31 行";
    QTest::newRow("horizontal front porch") << "水平前肩"
                                            << "48 像素";
    QTest::newRow("horizontal sync") << "水平同步"
                                     << "32 像素";
    QTest::newRow("vertical front porch") << "垂直前肩"
                                          << "3 行";
    QTest::newRow("vertical sync") << "垂直同步"
                                   << "5 行";
    QTest::newRow("sync polarity") << "同步极性"
                                   << "水平 +，垂直 −";
    QTest::newRow("serial text") << "序列文本"
                                 << "000";
    QTest::newRow("display name") << "显示器名称"
                                  << "LED 1920X1080";
    QTest::newRow("vertical rates") << "垂直频率"
                                    << "23 – 120 Hz";
    QTest::newRow("horizontal rates") << "水平频率"
                                      << "30 – 153 kHz";
    QTest::newRow("maximum clock") << "最大像素时钟"
                                   << "170 MHz";
    QTest::newRow("extensions") << "扩展块"
                                << "0";
    QTest::newRow("checksum") << "校验和"
                              << "正确";
}

void TestEdidFields::AFieldReads()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QCOMPARE(ValueOf(BlockOf(1920, 1080, 60.0F), name), value);
}

void TestEdidFields::AWrongChecksumIsTold()
{
    QByteArray block = BlockOf(1920, 1080, 60.0F);
    block[0x60] = 'x';
    QCOMPARE(ValueOf(block, QStringLiteral("校验和")), QStringLiteral("错误"));
}

void TestEdidFields::EveryByteButTheUnusedOnesBelongsToAField()
{
    QSet<int> setBytes;
    for (const SEdidField& field : EdidFields::Decode(BlockOf(1920, 1080, 60.0F)))
        for (const int nOffset : field.vecBytes)
            setBytes.insert(nOffset);
    // The image size and borders of the detailed timing, and the range descriptor's head, formula and fill.
    const auto funcUnused = [](int nOffset) {
        return (nOffset >= 0x42 && nOffset <= 0x46) || (nOffset >= 0x6C && nOffset <= 0x70) ||
               (nOffset >= 0x76 && nOffset <= 0x7D);
    };
    for (int i = 0; i < c_nEdidBlockSize; ++i)
        QVERIFY2(setBytes.contains(i) != funcUnused(i), qPrintable(QString::number(i, 16)));
}

void TestEdidFields::ABlockOfAnotherLengthHasNoFields()
{
    QVERIFY(EdidFields::Decode(QByteArray()).isEmpty());
    QVERIFY(EdidFields::Decode(QByteArray(127, 0)).isEmpty());
}

void TestEdidFields::ChangedBytesAreFound()
{
    QByteArray block = BlockOf(1920, 1080, 60.0F);
    QVERIFY(EdidFields::ChangedBytes(block, block).isEmpty());
    QByteArray blockChanged = block;
    blockChanged[3] = 0;
    blockChanged[127] = 0;
    QCOMPARE(EdidFields::ChangedBytes(block, blockChanged), (QVector<int>{3, 127}));
    QCOMPARE(EdidFields::ChangedBytes(QByteArray(), block).size(), c_nEdidBlockSize);
}

void TestEdidFields::TheBlockOfASettingIsThatOfItsMode()
{
    SEdidSetting setting;
    setting.wWidth = 1920;
    setting.wHeight = 1080;
    setting.byRate = 60;
    QCOMPARE(CEdidMemoryUpdater::BlockOf(setting), BlockOf(1920, 1080, 60.0F));
}

QTEST_MAIN(TestEdidFields)
#include "TestEdidFields.moc"

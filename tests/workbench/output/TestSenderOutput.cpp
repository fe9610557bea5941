#include "simulator/CommonClass/SimulatedProject.h"
#include "workbench/output/SenderOutput.h"

#include <QtTest>

namespace {

constexpr QSize c_sizeRecord(1920, 1080);

SSimulatedSender Sender(bool bVideoProcessor, bool bFromHardware, QSize sizeHardware)
{
    SSimulatedSender sender;
    sender.capability.bVideoProcessor = bVideoProcessor;
    sender.capability.bCanvasFromHardware = bFromHardware;
    sender.record.sizeCanvas = c_sizeRecord;
    sender.sizeHardwareCanvas = sizeHardware;
    return sender;
}

} // namespace

class TestSenderOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCanvasInForce_data();
    void TheCanvasInForce();
    void StoringACanvas_data();
    void StoringACanvas();
    void DepthsOfTheHardwaresModes();
};

void TestSenderOutput::TheCanvasInForce_data()
{
    QTest::addColumn<bool>("videoProcessor");
    QTest::addColumn<bool>("fromHardware");
    QTest::addColumn<QSize>("hardware");
    QTest::addColumn<QSize>("expected");
    const QSize sizeHardware(3840, 2160);
    QTest::newRow("hardware keeps it") << true << true << sizeHardware << sizeHardware;
    QTest::newRow("hardware has none yet") << true << true << QSize(0, 0) << c_sizeRecord;
    QTest::newRow("hardware has a side of 0: taken as it is")
        << true << true << QSize(0, 600) << QSize(0, 600);
    QTest::newRow("hardware keeps none") << true << false << sizeHardware << c_sizeRecord;
    QTest::newRow("no video processor") << false << true << sizeHardware << c_sizeRecord;
}

void TestSenderOutput::TheCanvasInForce()
{
    QFETCH(bool, videoProcessor);
    QFETCH(bool, fromHardware);
    QFETCH(QSize, hardware);
    QTEST(SenderOutput::Canvas(Sender(videoProcessor, fromHardware, hardware)), "expected");
}

void TestSenderOutput::StoringACanvas_data()
{
    QTest::addColumn<bool>("fromHardware");
    QTest::addColumn<QSize>("expectedHardware");
    QTest::newRow("hardware that keeps a canvas is written") << true << QSize(800, 600);
    QTest::newRow("other hardware is left alone") << false << QSize(1, 2);
}

void TestSenderOutput::StoringACanvas()
{
    QFETCH(bool, fromHardware);
    SSimulatedSender sender = Sender(true, fromHardware, QSize(1, 2));
    SenderOutput::StoreCanvas(sender, {800, 600});
    QCOMPARE(sender.record.sizeCanvas, QSize(800, 600));
    QTEST(sender.sizeHardwareCanvas, "expectedHardware");
}

void TestSenderOutput::DepthsOfTheHardwaresModes()
{
    SSimulatedSender sender;
    for (const auto& [nMode, nDepth] : {std::pair(0, 8), std::pair(1, 10), std::pair(2, 12)}) {
        sender.nOutputDepthMode = nMode;
        QCOMPARE(SenderOutput::HardwareDepth(sender), nDepth);
    }
}

QTEST_APPLESS_MAIN(TestSenderOutput)
#include "TestSenderOutput.moc"

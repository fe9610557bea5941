#include "workbench/edid/EdidPage.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "instruments/edid/Reading.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/edid/FindingList.h"
#include "workbench/edid/HexView.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray Block()
{
    CEDIDRaw edid;
    edid.ChangeWH(1920, 1080, 60.0F);
    return QByteArray(reinterpret_cast<const char*>(&edid), sizeof edid);
}

} // namespace

/// The page over the first input of the simulator's first sender, whose memory holds a block.
class TestEdidPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheFindingsOfTheMemoryAreShown();
    void AChosenFindingMarksItsBytes();
    void TheSuffixNamesTheForm_data();
    void TheSuffixNamesTheForm();

private:
    SSelection m_selection;
};

void TestEdidPage::init()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    const SSimulatedSender* pSender = simulator.Project().FindSender(0);
    QVERIFY(pSender != nullptr && !pSender->listInputs.empty());
    m_selection = {0, pSender->listInputs.front().nInterfaceId};
    simulator.Document().Change([this](SSimulatedProject& project) {
        project.FindSender(0)->FindInput(m_selection.nInterfaceId)->baEdid = Block();
    });
}

void TestEdidPage::TheFindingsOfTheMemoryAreShown()
{
    CEdidPage page;
    const auto* pFindings = page.findChild<CFindingList*>();
    QCOMPARE(pFindings->topLevelItemCount(), 0);
    page.ShowSelection(m_selection);
    QCOMPARE(pFindings->topLevelItemCount(), 1);
    QCOMPARE(pFindings->Findings().front().rule, Edid::enRule::enMaker);
}

void TestEdidPage::AChosenFindingMarksItsBytes()
{
    CEdidPage page;
    page.ShowSelection(m_selection);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto* pFindings = page.findChild<CFindingList*>();
    QTest::mouseClick(pFindings->viewport(), Qt::LeftButton, Qt::NoModifier,
                      pFindings->visualItemRect(pFindings->topLevelItem(0)).center());
    QCOMPARE(page.findChild<CHexView*>()->Marked(), (QVector<int>{8, 9}));
}

void TestEdidPage::TheSuffixNamesTheForm_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("binary") << QStringLiteral("edid.bin") << QByteArray("\x00\xFF\xFF", 3);
    QTest::newRow("hexadecimal text")
        << QStringLiteral("edid.hex") << QByteArray("00 FF FF FF FF FF FF 00 7B DE");
    QTest::newRow("a C array") << QStringLiteral("edid.h")
                               << QByteArray("/* EDID */\nstatic const unsigned char");
    QTest::newRow("JSON") << QStringLiteral("edid.JSON") << QByteArray("{\n");
}

void TestEdidPage::TheSuffixNamesTheForm()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, begin);
    QTemporaryDir folder;
    CEdidPage page;
    page.ShowSelection(m_selection);
    QVERIFY(page.SaveBlock(folder.filePath(file)));
    QFile saved(folder.filePath(file));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QByteArray content = saved.readAll();
    QVERIFY2(content.startsWith(begin), content.constData());
    QCOMPARE(Edid::Read(content).vecEdids.value(0).bytes, Block());
}

QTEST_MAIN(TestEdidPage)
#include "TestEdidPage.moc"

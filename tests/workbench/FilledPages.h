#ifndef TESTS_WORKBENCH_FILLEDPAGES_H
#define TESTS_WORKBENCH_FILLEDPAGES_H

#include "simulator/CommonClass/Simulator.h"
#include "workbench/JournalDock.h"
#include "workbench/MainWindow.h"
#include "workbench/SenderTree.h"
#include "workbench/colour/MeasuredWall.h"

#include <QTabWidget>
#include <QtTest>

/// Every page of the workbench with contents, each tab of the colour page by itself.
namespace FilledPages {

/// Rows for a test: page, and tab of the page.
inline void AddRows()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("tab");
    QTest::newRow("EDID") << 0 << 0;
    QTest::newRow("colour: groups") << 1 << 0;
    QTest::newRow("colour: readings") << 1 << 1;
    QTest::newRow("colour: measured") << 1 << 2;
    QTest::newRow("output") << 2 << 0;
    QTest::newRow("addresses") << 3 << 0;
    QTest::newRow("simulation") << 4 << 0;
}

/// Shows a page about an input whose memory holds a block, with a measured wall, and the journal below.
inline void Show(CMainWindow& window, int nPage, int nTab)
{
    const QByteArray wall("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n"
                          "1,0.69,0.3,240,0.17,0.74,690,0.13,0.06,70\n"
                          "2,0.69,0.31,240,0.17,0.73,690,0.13,0.06,70\n");
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    QVERIFY(CSimulator::Instance().Hardware().SetEdidMemory(0, nInterfaceId, QByteArray(128, 1)));
    QVERIFY(!window.findChild<CMeasuredWall*>()->Import(wall));
    window.Tree().Select({0, nInterfaceId});
    window.ShowPage(window.Pages()[std::size_t(nPage)]);
    window.Journal().show();
    if (auto* pTabs = window.Pages()[std::size_t(nPage)]->findChild<QTabWidget*>())
        pTabs->setCurrentIndex(nTab);
}

} // namespace FilledPages

#endif // TESTS_WORKBENCH_FILLEDPAGES_H

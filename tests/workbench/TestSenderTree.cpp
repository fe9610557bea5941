#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/SenderTree.h"

#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QtTest>

namespace {

/// Counts how often a view measures one of its items.
class CMeasureCounter : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++nMeasured;
        return QStyledItemDelegate::sizeHint(option, index);
    }

    mutable int nMeasured = 0;
};

constexpr int c_nType = 21;
constexpr int c_nPorts = 16;

/// A tree on the screen over senders of one type, and what it measures from then on.
struct SShownTree
{
    CSenderTree tree;
    CMeasureCounter counter;
    QSignalSpy spyChanged{tree.model(), &QAbstractItemModel::dataChanged};

    explicit SShownTree(int nSenders)
    {
        CSimulator::Instance().Document().AddSenders(c_nType, nSenders, c_nPorts);
        tree.setItemDelegate(&counter);
        tree.show();
        Forget();
    }

    void Forget()
    {
        QCoreApplication::processEvents();
        counter.nMeasured = 0;
        spyChanged.clear();
    }

    int RowsPerSender() const { return 1 + tree.topLevelItem(0)->childCount(); }
};

} // namespace

class TestSenderTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void AddingSendersMeasuresEachRowAFewTimes_data();
    void AddingSendersMeasuresEachRowAFewTimes();
    void AChangeOfOneSenderRedrawsThatSenderAlone();
    void RowsOfOtherSendersStayWhenOneComesOrGoes();
    void RemovingTheSelectedSenderSelectsItsFollower();
    void RemovingTheLastSenderSelectsItsPredecessor();
    void RemovingAnotherSenderKeepsTheSelectedOne();
    void AWiderNameWidensItsColumn();
};

void TestSenderTree::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestSenderTree::init()
{
    CSimulator::Instance().Document().NewEmptyProject();
}

void TestSenderTree::AddingSendersMeasuresEachRowAFewTimes_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("10") << 10;
    QTest::newRow("100") << 100;
    QTest::newRow("1000") << 1000;
}

void TestSenderTree::AddingSendersMeasuresEachRowAFewTimes()
{
    constexpr int c_nPerRow = 4;
    constexpr int c_nPerRedraw = 200;
    QFETCH(int, count);
    SShownTree shown(1);
    CSimulator::Instance().Document().AddSenders(c_nType, count, c_nPorts);
    QCoreApplication::processEvents();
    QCOMPARE(shown.tree.topLevelItemCount(), count + 1);
    const int nLimit = count * shown.RowsPerSender() * c_nPerRow + c_nPerRedraw;
    QVERIFY2(shown.counter.nMeasured <= nLimit, QByteArray::number(shown.counter.nMeasured).constData());
}

void TestSenderTree::AChangeOfOneSenderRedrawsThatSenderAlone()
{
    SShownTree shown(100);
    CSimulator::Instance().Document().Change(
        [](SSimulatedProject& project) { project.listSenders[3].strName = QStringLiteral("left"); });
    QCOMPARE(shown.tree.topLevelItem(3)->text(0), QStringLiteral("left"));
    QCOMPARE(shown.spyChanged.count(), 1);
    QCOMPARE(shown.spyChanged.first().first().toModelIndex().row(), 3);
    QVERIFY(shown.counter.nMeasured < 4 * shown.RowsPerSender());
}

void TestSenderTree::RowsOfOtherSendersStayWhenOneComesOrGoes()
{
    SShownTree shown(3);
    const QTreeWidgetItem* pFirst = shown.tree.topLevelItem(0);
    const QTreeWidgetItem* pLast = shown.tree.topLevelItem(2);
    CSimulator::Instance().Document().RemoveSender(1);
    CSimulator::Instance().Document().AddSender(16);
    QCOMPARE(shown.tree.topLevelItemCount(), 3);
    QCOMPARE(shown.tree.topLevelItem(0), pFirst);
    QCOMPARE(shown.tree.topLevelItem(1), pLast);
    QVERIFY(shown.tree.topLevelItem(2)->isExpanded());
}

void TestSenderTree::RemovingTheSelectedSenderSelectsItsFollower()
{
    SShownTree shown(3);
    shown.tree.Select({1, -1});
    CSimulator::Instance().Document().Change(
        [](SSimulatedProject& project) { project.listSenders[2].strName = QStringLiteral("follower"); });
    CSimulator::Instance().Document().RemoveSender(1);
    QCOMPARE(shown.tree.currentItem()->text(0), QStringLiteral("follower"));
    QCOMPARE(shown.tree.Selection().nSender, 1);
}

void TestSenderTree::RemovingTheLastSenderSelectsItsPredecessor()
{
    SShownTree shown(3);
    shown.tree.Select({2, -1});
    CSimulator::Instance().Document().RemoveSender(2);
    QCOMPARE(shown.tree.Selection().nSender, 1);
}

void TestSenderTree::RemovingAnotherSenderKeepsTheSelectedOne()
{
    SShownTree shown(3);
    shown.tree.Select({2, -1});
    const QTreeWidgetItem* pSelected = shown.tree.currentItem();
    QSignalSpy spyMoved(&shown.tree, &CSenderTree::SelectionMoved);
    CSimulator::Instance().Document().RemoveSender(0);
    QCOMPARE(shown.tree.currentItem(), pSelected);
    // Its index is another one now.
    QCOMPARE(spyMoved.count(), 1);
    QCOMPARE(shown.tree.Selection().nSender, 1);
}

void TestSenderTree::AWiderNameWidensItsColumn()
{
    SShownTree shown(2);
    const int nBefore = shown.tree.columnWidth(0);
    const QString strLong(64, QLatin1Char('W'));
    CSimulator::Instance().Document().Change(
        [&strLong](SSimulatedProject& project) { project.listSenders[1].strName = strLong; });
    QVERIFY(shown.tree.columnWidth(0) > nBefore);
    QVERIFY(shown.tree.columnWidth(0) >= shown.tree.fontMetrics().horizontalAdvance(strLong));
}

QTEST_MAIN(TestSenderTree)
#include "TestSenderTree.moc"

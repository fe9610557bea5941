#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/AddSenderDialog.h"
#include "workbench/ProjectHistory.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>

namespace {

QStringList Names()
{
    QStringList listNames;
    for (const SSimulatedSender& sender : CSimulator::Instance().Project().listSenders)
        listNames.append(sender.strName);
    return listNames;
}

/// The workbench with the focus in the tree.
struct SFocusedTree : CWorkbenchFixture
{
    SFocusedTree()
    {
        Activate();
        Tree().setFocus();
        Tree().Select({0, -1});
    }

    CSenderTree& Tree() { return window.Tree(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Tree(), key, modifiers);
    }
    QPoint Place(QTreeWidgetItem* pItem) { return Tree().visualItemRect(pItem).center(); }
    void DoubleClick(QTreeWidgetItem* pItem)
    {
        // As a mouse does: the first click chooses the row.
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, Qt::NoModifier, Place(pItem));
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, Qt::NoModifier, Place(pItem));
    }
    void Type(const QString& strName)
    {
        auto* pEditor = Tree().findChild<QLineEdit*>();
        QVERIFY(pEditor != nullptr);
        pEditor->selectAll();
        QTest::keyClicks(pEditor, strName);
        QTest::keyClick(pEditor, Qt::Key_Return);
    }
};

/// Closes the next dialog and notes whether it was that for EDIDs.
class CEdidWatch
{
public:
    bool bOpened = false;

private:
    CDialogOperator m_operator{[this](QDialog* pDialog) {
        bOpened = qobject_cast<CEdidSetDlg*>(pDialog) != nullptr;
        pDialog->reject();
    }};
};

} // namespace

class TestSenderActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void EnterOnAnInputEditsItsEdid();
    void ADoubleClickOnAnInputEditsItsEdid();
    void F2RenamesTheSender();
    void ADoubleClickRenamesTheSender();
    void AClickRightAfterEnterTakesTheNameOnce();
    void AnEmptyNameIsNotTaken();
    void DeleteRemovesTheSelectedSendersInOneStep();
    void DeleteOnAnInputRemovesNothing();
    void TheContextMenuOffersTheActions();
    void SearchingFindsAType_data();
    void SearchingFindsAType();
    void TypesStandInGroups();
    void ArrowsInTheSearchMoveThroughTheList();
    void InsertAddsSeveralSenders();
    void ADoubleClickOnATypeAddsIt();
};

void TestSenderActions::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestSenderActions::EnterOnAnInputEditsItsEdid()
{
    SFocusedTree shown;
    shown.Press(Qt::Key_Down);
    QVERIFY(shown.Tree().Selection().HasInput());
    const CEdidWatch watch;
    shown.Press(Qt::Key_Return);
    QVERIFY(watch.bOpened);
}

void TestSenderActions::ADoubleClickOnAnInputEditsItsEdid()
{
    SFocusedTree shown;
    const CEdidWatch watch;
    shown.DoubleClick(shown.Tree().topLevelItem(0)->child(0));
    QVERIFY(watch.bOpened);
}

void TestSenderActions::F2RenamesTheSender()
{
    SFocusedTree shown;
    shown.Press(Qt::Key_F2);
    shown.Type(QStringLiteral("left"));
    QTRY_COMPARE(Names().first(), QStringLiteral("left"));
    QTest::keyClick(&shown.window, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Names().first() != QStringLiteral("left"));
    QVERIFY(!shown.window.isWindowModified());
}

void TestSenderActions::ADoubleClickRenamesTheSender()
{
    SFocusedTree shown;
    shown.DoubleClick(shown.Tree().topLevelItem(0));
    shown.Type(QStringLiteral("right"));
    QTRY_COMPARE(Names().first(), QStringLiteral("right"));
}

void TestSenderActions::AClickRightAfterEnterTakesTheNameOnce()
{
    SFocusedTree shown;
    const QStringList listBefore = Names();
    shown.Press(Qt::Key_F2);
    shown.Type(QStringLiteral("left"));
    // Nothing is processed between the key and the click, as when the program was busy.
    QTest::mouseClick(shown.Tree().viewport(), Qt::LeftButton, Qt::NoModifier,
                      shown.Place(shown.Tree().topLevelItem(1)));
    QTRY_VERIFY(shown.Tree().findChild<QLineEdit*>() == nullptr);
    QCOMPARE(Names().first(), QStringLiteral("left"));
    QTest::keyClick(&shown.window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Names(), listBefore);
    QVERIFY(!shown.window.isWindowModified());
}

void TestSenderActions::AnEmptyNameIsNotTaken()
{
    SFocusedTree shown;
    const QStringList listBefore = Names();
    shown.Press(Qt::Key_F2);
    shown.Type(QStringLiteral(" "));
    QTRY_VERIFY(shown.Tree().findChild<QLineEdit*>() == nullptr);
    QCOMPARE(Names(), listBefore);
    QCOMPARE(shown.Tree().topLevelItem(0)->text(0), listBefore.first());
}

void TestSenderActions::DeleteRemovesTheSelectedSendersInOneStep()
{
    SFocusedTree shown;
    const QStringList listBefore = Names();
    const auto Click = [&shown](int nSender, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(shown.Tree().viewport(), Qt::LeftButton, modifiers,
                          shown.Place(shown.Tree().topLevelItem(nSender)));
    };
    shown.Tree().collapseAll();
    Click(0, Qt::NoModifier);
    Click(2, Qt::ControlModifier);
    shown.Press(Qt::Key_Delete);
    QCOMPARE(Names(), (QStringList{listBefore[1]} + listBefore.mid(3)));
    QCOMPARE(shown.window.History().Steps().count(), 1);
    QTest::keyClick(&shown.window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Names(), listBefore);
    QVERIFY(!shown.window.isWindowModified());
    QTest::keyClick(&shown.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Names().size(), listBefore.size() - 2);
}

void TestSenderActions::DeleteOnAnInputRemovesNothing()
{
    SFocusedTree shown;
    const QStringList listBefore = Names();
    shown.Press(Qt::Key_Down);
    shown.Press(Qt::Key_Delete);
    QCOMPARE(Names(), listBefore);
}

void TestSenderActions::TheContextMenuOffersTheActions()
{
    SFocusedTree shown;
    QStringList listNames;
    for (const QAction* pAction : shown.Tree().actions())
        listNames.append(pAction->objectName());
    QCOMPARE(listNames.join(QLatin1Char(' ')), QStringLiteral("edit rename add remove"));
    QCOMPARE(shown.Tree().contextMenuPolicy(), Qt::ActionsContextMenu);
}

void TestSenderActions::SearchingFindsAType_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::newRow("a name in small letters") << QStringLiteral("r16") << 46;
    QTest::newRow("a code") << QStringLiteral("131074") << 131074;
    QTest::newRow("a group") << QStringLiteral("20 个输出口") << 68;
    QTest::newRow("nothing that is there") << QStringLiteral("R17") << -1;
}

void TestSenderActions::SearchingFindsAType()
{
    QFETCH(QString, text);
    CAddSenderDialog dialog;
    dialog.findChild<QLineEdit*>(QStringLiteral("search"))->setText(text);
    QTEST(dialog.Type(), "type");
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("ok"))->isEnabled(), dialog.Type() >= 0);
}

void TestSenderActions::TypesStandInGroups()
{
    const CAddSenderDialog dialog;
    const auto* pTypes = dialog.findChild<QTreeWidget*>();
    QVERIFY(pTypes->topLevelItemCount() > 4);
    int nTypes = 0;
    for (int i = 0; i < pTypes->topLevelItemCount(); ++i)
        nTypes += pTypes->topLevelItem(i)->childCount();
    QCOMPARE(nTypes, CCatalogue::Instance().Types().size());
    QVERIFY(pTypes->topLevelItem(0)->text(0).contains(QStringLiteral("发送卡")));
}

void TestSenderActions::ArrowsInTheSearchMoveThroughTheList()
{
    CAddSenderDialog dialog;
    dialog.show();
    const int nFirst = dialog.Type();
    QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("search")), Qt::Key_Down);
    QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("search")), Qt::Key_Down);
    QVERIFY(dialog.Type() != nFirst);
    QVERIFY(dialog.Type() >= 0);
}

void TestSenderActions::InsertAddsSeveralSenders()
{
    SFocusedTree shown;
    const int nBefore = Names().size();
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        QApplication::setActiveWindow(pDialog);
        QTest::keyClicks(pDialog->findChild<QLineEdit*>(QStringLiteral("search")), QStringLiteral("R16"));
        pDialog->findChild<QSpinBox*>(QStringLiteral("count"))->setValue(4);
        QTest::keyClick(pDialog, Qt::Key_Return);
    });
    shown.Press(Qt::Key_Insert);
    QCOMPARE(Names().size(), nBefore + 4);
    QCOMPARE(shown.Tree().Selection().nSender, nBefore);
    QCOMPARE(CSimulator::Instance().Project().listSenders.back().capability.nType, 46);
    QCOMPARE(shown.window.History().Steps().count(), 1);
    shown.window.History().Undo();
    QCOMPARE(Names().size(), nBefore);
}

void TestSenderActions::ADoubleClickOnATypeAddsIt()
{
    CAddSenderDialog dialog;
    dialog.show();
    auto* pTypes = dialog.findChild<QTreeWidget*>();
    QTreeWidgetItem* pType = pTypes->topLevelItem(1)->child(0);
    pTypes->scrollToItem(pType);
    const QPoint pos = pTypes->visualItemRect(pType).center();
    QTest::mouseClick(pTypes->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseDClick(pTypes->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(QString::number(dialog.Type()), pType->text(1));
}

QTEST_MAIN(TestSenderActions)
#include "TestSenderActions.moc"

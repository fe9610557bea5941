#include "host/OrviControl/CustomComboBox.h"

#include "host/OrviControl/CustomDialog.h"
#include "tests/simulator/OrviControl/Keyboard.h"

#include <QAccessible>
#include <QMenu>
#include <QTimer>

class TestCustomComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AssistiveToolsAreToldNameAndValue();
    void AssistiveToolsCanOpenIt();
    void init();
    void cleanup();

    void ChoosingAnActionShowsItsTextAndEmitsItsIndex();
    void TheTextHasChangedBeforeOtherSlotsReadIt();
    void TheFirstFlagMarksTheChosenItem_data();
    void TheFirstFlagMarksTheChosenItem();
    void TheMenuIsAsWideAsTheBox();
    void SetItemCheckedMarksOneItem_data();
    void SetItemCheckedMarksOneItem();
    void SetItemCheckedWithoutAMenuDoesNothing();
    void ASecondMenuReplacesTheFirst();
    void TheSameMenuGivenTwiceAnswersOnce();
    void AMenuOfSetMenuOfThePushButtonOpensAndLeavesTheTextAlone();
    void KeysOpenTheMenu_data();
    void KeysOpenTheMenu();
    void EnterGoesToTheDefaultButton_data();
    void EnterGoesToTheDefaultButton();
    void ArrowKeysStartFromTheShownEntry();
    void ArrowKeysStartFromTheMarkedEntryWhereTheBoxWordsItOtherwise();
    void EscClosesTheMenuAndChangesNothing();
    void AClickOpensTheMenu();
    void ADisabledBoxOpensNothing();

private:
    /// Runs an operation on the menu once it is open.
    template <class TOperation>
    void WhenOpen(TOperation operation);

    std::unique_ptr<QWidget> m_pWindow;
    CCustomComboBox* m_pBox = nullptr;
    QMenu* m_pMenu = nullptr;
    bool m_bOpened = false;
};

void TestCustomComboBox::init()
{
    m_pWindow = std::make_unique<QWidget>();
    m_pBox = new CCustomComboBox(m_pWindow.get());
    m_pBox->setFixedSize(160, 24);
    m_pMenu = new QMenu(m_pWindow.get());
    for (const char* szText : {"one", "two", "three"})
        m_pMenu->addAction(QString::fromLatin1(szText));
    m_bOpened = false;
    m_pWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get()));
    m_pBox->setFocus();
}

void TestCustomComboBox::cleanup()
{
    m_pWindow.reset();
}

template <class TOperation>
void TestCustomComboBox::WhenOpen(TOperation operation)
{
    connect(
        m_pMenu, &QMenu::aboutToShow, this,
        [this, operation] {
            QTimer::singleShot(0, m_pMenu, [this, operation] {
                m_bOpened = m_pMenu->isVisible();
                operation();
                m_pMenu->close();
            });
        },
        Qt::DirectConnection);
}

void TestCustomComboBox::ChoosingAnActionShowsItsTextAndEmitsItsIndex()
{
    m_pBox->SetMenu(m_pMenu, false, true, true);
    QSignalSpy spyActivated(m_pBox, &CCustomComboBox::Activated);
    m_pMenu->actions().at(2)->trigger();
    QCOMPARE(m_pBox->text(), QStringLiteral("three"));
    QCOMPARE(spyActivated.size(), 1);
    QCOMPARE(spyActivated.at(0).at(0).toInt(), 2);
}

void TestCustomComboBox::TheTextHasChangedBeforeOtherSlotsReadIt()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    QStringList listSeen;
    connect(m_pMenu, &QMenu::triggered, this, [&] { listSeen.append(m_pBox->text()); });
    connect(m_pBox, &CCustomComboBox::Activated, this, [&] { listSeen.append(m_pBox->text()); });
    m_pMenu->actions().at(1)->trigger();
    QCOMPARE(listSeen, QStringList({QStringLiteral("two"), QStringLiteral("two")}));
}

void TestCustomComboBox::TheFirstFlagMarksTheChosenItem_data()
{
    QTest::addColumn<bool>("bMark");
    QTest::newRow("marks") << true;
    QTest::newRow("leaves it to the caller") << false;
}

void TestCustomComboBox::TheFirstFlagMarksTheChosenItem()
{
    QFETCH(bool, bMark);
    m_pBox->SetMenu(m_pMenu, bMark, true, true);
    m_pMenu->actions().at(0)->trigger();
    m_pMenu->actions().at(1)->trigger();
    QCOMPARE(m_pMenu->actions().at(0)->isChecked(), false);
    QCOMPARE(m_pMenu->actions().at(1)->isChecked(), bMark);
}

void TestCustomComboBox::TheMenuIsAsWideAsTheBox()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    int nWidth = 0;
    WhenOpen([&] { nWidth = m_pMenu->width(); });
    QTest::mouseClick(m_pBox, Qt::LeftButton);
    QVERIFY(nWidth >= m_pBox->width());
}

void TestCustomComboBox::SetItemCheckedMarksOneItem_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 2;
    QTest::newRow("an index that the menu lacks marks none") << 3;
    QTest::newRow("a negative index marks none") << -1;
}

void TestCustomComboBox::SetItemCheckedMarksOneItem()
{
    QFETCH(int, nIndex);
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->SetItemChecked(1);
    m_pBox->SetItemChecked(nIndex);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(m_pMenu->actions().at(i)->isChecked(), i == nIndex);
}

void TestCustomComboBox::SetItemCheckedWithoutAMenuDoesNothing()
{
    m_pBox->SetItemChecked(0);
    QVERIFY(m_pBox->menu() == nullptr);
}

void TestCustomComboBox::ASecondMenuReplacesTheFirst()
{
    auto* pOther = new QMenu(m_pWindow.get());
    pOther->addAction(QStringLiteral("other"));
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->SetMenu(pOther, true, true, true);
    QSignalSpy spyActivated(m_pBox, &CCustomComboBox::Activated);
    m_pMenu->actions().at(0)->trigger();
    QCOMPARE(spyActivated.size(), 0);
    pOther->actions().at(0)->trigger();
    QCOMPARE(spyActivated.size(), 1);
    QCOMPARE(m_pBox->text(), QStringLiteral("other"));
}

void TestCustomComboBox::TheSameMenuGivenTwiceAnswersOnce()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->SetMenu(m_pMenu, true, true, true);
    const QSignalSpy spyActivated(m_pBox, &CCustomComboBox::Activated);
    m_pMenu->actions().at(0)->trigger();
    QCOMPARE(spyActivated.size(), 1);
}

void TestCustomComboBox::AMenuOfSetMenuOfThePushButtonOpensAndLeavesTheTextAlone()
{
    m_pBox->setMenu(m_pMenu);
    m_pBox->setText(QStringLiteral("before"));
    WhenOpen([] {});
    QTest::keyClick(m_pBox, Qt::Key_Down);
    QVERIFY(m_bOpened);
    m_pMenu->actions().at(0)->trigger();
    QCOMPARE(m_pBox->text(), QStringLiteral("before"));
    m_pBox->SetItemChecked(1);
    QVERIFY(m_pMenu->actions().at(1)->isChecked());
}

void TestCustomComboBox::KeysOpenTheMenu_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("Down") << int(Qt::Key_Down);
    QTest::newRow("Up") << int(Qt::Key_Up);
    QTest::newRow("F4") << int(Qt::Key_F4);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void TestCustomComboBox::KeysOpenTheMenu()
{
    QFETCH(int, nKey);
    m_pBox->SetMenu(m_pMenu, true, true, true);
    WhenOpen([] {});
    QTest::keyClick(m_pBox, Qt::Key(nKey));
    QVERIFY(m_bOpened);
}

void TestCustomComboBox::EnterGoesToTheDefaultButton_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
}

void TestCustomComboBox::EnterGoesToTheDefaultButton()
{
    QFETCH(int, nKey);
    CCustomDialog dialog(nullptr, false);
    auto* pBox = new CCustomComboBox(&dialog);
    auto* pMenu = new QMenu(&dialog);
    pMenu->addAction(QStringLiteral("60"));
    pBox->SetMenu(pMenu, true, true, true);
    auto* pDefault = new QPushButton(&dialog);
    pDefault->setDefault(true);
    QSignalSpy spyClicked(pDefault, &QPushButton::clicked);
    QSignalSpy spyOpened(pMenu, &QMenu::aboutToShow);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    pBox->setFocus();
    Keyboard::Press(Qt::Key(nKey));
    QCOMPARE(spyClicked.size(), 1);
    QCOMPARE(spyOpened.size(), 0);
}

void TestCustomComboBox::ArrowKeysStartFromTheShownEntry()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->setText(QStringLiteral("two"));
    QAction* pActive = nullptr;
    WhenOpen([&] {
        pActive = m_pMenu->activeAction();
        QTest::keyClick(m_pMenu, Qt::Key_Down);
        QTest::keyClick(m_pMenu, Qt::Key_Return);
    });
    QTest::keyClick(m_pBox, Qt::Key_Down);
    QVERIFY(m_bOpened);
    QCOMPARE(pActive, m_pMenu->actions().at(1));
    QCOMPARE(m_pBox->text(), QStringLiteral("three"));
}

void TestCustomComboBox::ArrowKeysStartFromTheMarkedEntryWhereTheBoxWordsItOtherwise()
{
    m_pBox->SetMenu(m_pMenu, true, true, false);
    m_pBox->SetItemChecked(1);
    m_pBox->setText(QStringLiteral("number two"));
    QAction* pActive = nullptr;
    WhenOpen([&] { pActive = m_pMenu->activeAction(); });
    QTest::keyClick(m_pBox, Qt::Key_Space);
    QVERIFY(m_bOpened);
    QCOMPARE(pActive, m_pMenu->actions().at(1));
}

void TestCustomComboBox::EscClosesTheMenuAndChangesNothing()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->setText(QStringLiteral("two"));
    QSignalSpy spyActivated(m_pBox, &CCustomComboBox::Activated);
    WhenOpen([&] { QTest::keyClick(m_pMenu, Qt::Key_Escape); });
    QTest::keyClick(m_pBox, Qt::Key_Down);
    QVERIFY(m_bOpened);
    QVERIFY(!m_pMenu->isVisible());
    QCOMPARE(spyActivated.size(), 0);
    QCOMPARE(m_pBox->text(), QStringLiteral("two"));
}

void TestCustomComboBox::AClickOpensTheMenu()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    WhenOpen([&] {
        QTest::mouseClick(m_pMenu, Qt::LeftButton, Qt::NoModifier,
                          m_pMenu->actionGeometry(m_pMenu->actions().at(0)).center());
    });
    QTest::mouseClick(m_pBox, Qt::LeftButton);
    QVERIFY(m_bOpened);
    QCOMPARE(m_pBox->text(), QStringLiteral("one"));
}

void TestCustomComboBox::ADisabledBoxOpensNothing()
{
    m_pBox->SetMenu(m_pMenu, true, true, true);
    m_pBox->setEnabled(false);
    WhenOpen([] {});
    QTest::mouseClick(m_pBox, Qt::LeftButton);
    QTest::keyClick(m_pBox, Qt::Key_Down);
    QVERIFY(!m_bOpened);
}

void TestCustomComboBox::AssistiveToolsAreToldNameAndValue()
{
    CCustomComboBox box;
    box.setAccessibleName(QStringLiteral("frame rate"));
    box.setText(QStringLiteral("60"));
    const QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(pInterface->role(), QAccessible::ComboBox);
    QCOMPARE(pInterface->text(QAccessible::Name), QStringLiteral("frame rate"));
    QCOMPARE(pInterface->text(QAccessible::Value), QStringLiteral("60"));
}

void TestCustomComboBox::AssistiveToolsCanOpenIt()
{
    CCustomComboBox box;
    QMenu menu;
    menu.addAction(QStringLiteral("60"));
    box.SetMenu(&menu, true, true, true);
    box.show();
    bool bOpened = false;
    connect(&menu, &QMenu::aboutToShow, &box, [&] {
        bOpened = true;
        QMetaObject::invokeMethod(&menu, "close", Qt::QueuedConnection);
    });
    QAccessible::queryAccessibleInterface(&box)->actionInterface()->doAction(
        QAccessibleActionInterface::showMenuAction());
    QVERIFY(bOpened);
}

QTEST_MAIN(TestCustomComboBox)
#include "TestCustomComboBox.moc"

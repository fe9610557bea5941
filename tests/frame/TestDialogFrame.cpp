#include "SenderModuleDialog/DialogFrame.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/Style.h"
#include "tests/support/ModalAnswers.h"

#include <QtTest>

#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>

#include <memory>

/// What the dialogs share.
class TestDialogFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommonSizes();
    void EachControlGetsItsStyleAndTheHostsFont();
    void ASpinBoxKeepsTheSelectorThatItIsGiven();
    void AMessageWaitsForItsOneButton();
    void AMessageCanStandWithoutAParent();
    void AQuestionIsAgreedToByYesAlone_data();
    void AQuestionIsAgreedToByYesAlone();
    void EnterAloneAgreesToNothing();
    void AMenuKeepsTextsAndData();
    void TheParentOwnsTheActionsOfItsMenu();
    void CheckingAnEntryUnchecksTheOthers();
    void OnlyTheFirstOfTwoEqualEntriesIsChecked();
    void DataThatNoEntryHasChecksNone();
    void TheButtonsAreTranslatedStyledAndConnected();
    void TheButtonsPassTheNumbersThatTheyAreGiven();
    void FinishSendsACloseEventWithTheResult();
    void ACaptionLeadsToItsControl();
    void ACaptionStandsToTheRight();
    void ACaptionCanBeCentred();
    void FixingASizeTwiceChangesNothing();
    void TextsAreLookedUpInTheCommonContext();
};

void TestDialogFrame::CommonSizes()
{
    QCOMPARE(DialogFrame::c_nFontSize, 12);
    QCOMPARE(DialogFrame::c_sizeButton, QSize(80, 24));
    QCOMPARE(DialogFrame::c_sizeSmallField, QSize(60, 24));
    QCOMPARE(DialogFrame::c_sizeAddressField, QSize(180, 25));
}

void TestDialogFrame::EachControlGetsItsStyleAndTheHostsFont()
{
    const auto Expected = [](const QString& strStyle, const char* szSelector) {
        return GetFontStyleSheet(strStyle, QString::fromLatin1(szSelector), 12);
    };
    CCustomLabel labelCaption;
    CCustomLabel labelWarning;
    QPushButton button;
    QMenu menu;
    QCheckBox checkBox;
    QDoubleSpinBox spinBox;
    DialogFrame::StyleCaption(&labelCaption);
    DialogFrame::StyleWarning(&labelWarning);
    DialogFrame::StyleButton(&button);
    DialogFrame::StyleMenu(&menu);
    DialogFrame::StyleCheckBox(&checkBox);
    DialogFrame::StyleSpinBox(&spinBox, "QDoubleSpinBox");
    QCOMPARE(labelCaption.styleSheet(), Expected(g_labelNoFrameStyle, "QLabel"));
    QCOMPARE(labelWarning.styleSheet(), Expected(g_labelWarnStyle, "QLabel"));
    QCOMPARE(button.styleSheet(), Expected(g_pushButtonStyle, "QPushButton"));
    QCOMPARE(menu.styleSheet(), Expected(g_menuStyle, "QMenu"));
    QCOMPARE(checkBox.styleSheet(), Expected(g_checkBoxStyle, "QCheckBox"));
    QCOMPARE(spinBox.styleSheet(), Expected(g_doubleSpinBoxStyle, "QDoubleSpinBox"));
}

void TestDialogFrame::ASpinBoxKeepsTheSelectorThatItIsGiven()
{
    // Intentional: the selector of one dialog is misspelt.
    QDoubleSpinBox spinBox;
    DialogFrame::StyleSpinBox(&spinBox, "QSpinxBox");
    QCOMPARE(spinBox.styleSheet(), GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QSpinxBox"), 12));
}

void TestDialogFrame::AMessageWaitsForItsOneButton()
{
    CModalAnswers answers;
    answers.Plan(1);
    QWidget parent;
    QStringList listButtons;
    QTimer::singleShot(0, &parent, [&] {
        for (const QPushButton* pButton : QApplication::activeModalWidget()->findChildren<QPushButton*>())
            listButtons.append(pButton->objectName());
    });
    DialogFrame::ShowMessage(&parent, QStringLiteral("text"));
    QCOMPARE(answers.Texts(), QStringList(QStringLiteral("text")));
    QCOMPARE(answers.Parents().first().data(), &parent);
    QCOMPARE(listButtons, QStringList(QStringLiteral("messageButton1")));
}

void TestDialogFrame::AMessageCanStandWithoutAParent()
{
    CModalAnswers answers;
    DialogFrame::ShowMessage(nullptr, QStringLiteral("text"));
    QVERIFY(answers.Parents().first().isNull());
}

void TestDialogFrame::AQuestionIsAgreedToByYesAlone_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("agreed");
    QTest::newRow("yes") << 2 << true;
    QTest::newRow("no") << 4 << false;
    QTest::newRow("closed without a button") << 0 << false;
}

void TestDialogFrame::AQuestionIsAgreedToByYesAlone()
{
    QFETCH(int, button);
    QFETCH(bool, agreed);
    CModalAnswers answers;
    if (button != 0)
        answers.Plan(button);
    QCOMPARE(DialogFrame::Ask(nullptr, QStringLiteral("go on?")), agreed);
    QCOMPARE(answers.Texts(), QStringList(QStringLiteral("go on?")));
}

void TestDialogFrame::EnterAloneAgreesToNothing()
{
    QTimer::singleShot(0, qApp, [] {
        QWidget* pBox = QApplication::activeModalWidget();
        QTest::keyClick(pBox, Qt::Key_Return);
        if (pBox->isVisible())
            pBox->close();
    });
    QVERIFY(!DialogFrame::Ask(nullptr, QStringLiteral("go on?")));
}

void TestDialogFrame::AMenuKeepsTextsAndData()
{
    QWidget parent;
    const QMenu* pMenu =
        DialogFrame::CreateMenu(&parent, {{QStringLiteral("one"), 10}, {QStringLiteral("two"), 20}});
    QCOMPARE(pMenu->parent(), &parent);
    QCOMPARE(pMenu->actions().size(), 2);
    QCOMPARE(pMenu->actions().at(1)->text(), QStringLiteral("two"));
    QCOMPARE(pMenu->actions().at(1)->data().toInt(), 20);
    QVERIFY(!pMenu->styleSheet().isEmpty());
}

void TestDialogFrame::TheParentOwnsTheActionsOfItsMenu()
{
    QWidget parent;
    const QMenu* pMenu = DialogFrame::CreateMenu(&parent, {{QStringLiteral("one"), 1}});
    QCOMPARE(pMenu->actions().first()->parent(), &parent);
}

namespace {

QList<bool> Checked(const QList<QAction*>& listActions)
{
    QList<bool> listChecked;
    for (const QAction* pAction : listActions)
        listChecked.append(pAction->isChecked());
    return listChecked;
}

QMenu* MenuOf(QWidget& parent, const std::vector<int>& vecData)
{
    QMenu* pMenu = DialogFrame::CreateMenu(&parent, {});
    for (const int nData : vecData)
        DialogFrame::AddEntry(pMenu, {QString::number(nData), nData});
    return pMenu;
}

} // namespace

void TestDialogFrame::CheckingAnEntryUnchecksTheOthers()
{
    QWidget parent;
    const QList<QAction*> listActions = MenuOf(parent, {5, 6, 7})->actions();
    DialogFrame::CheckEntry(listActions, 6);
    QCOMPARE(Checked(listActions), QList<bool>({false, true, false}));
    DialogFrame::CheckEntry(listActions, 5);
    QCOMPARE(Checked(listActions), QList<bool>({true, false, false}));
}

void TestDialogFrame::OnlyTheFirstOfTwoEqualEntriesIsChecked()
{
    QWidget parent;
    const QList<QAction*> listActions = MenuOf(parent, {5, 6, 6})->actions();
    DialogFrame::CheckEntry(listActions, 6);
    QCOMPARE(Checked(listActions), QList<bool>({false, true, false}));
}

void TestDialogFrame::DataThatNoEntryHasChecksNone()
{
    QWidget parent;
    const QList<QAction*> listActions = MenuOf(parent, {5, 6})->actions();
    DialogFrame::CheckEntry(listActions, 6);
    DialogFrame::CheckEntry(listActions, 7);
    QCOMPARE(Checked(listActions), QList<bool>({false, false}));
}

void TestDialogFrame::TheButtonsAreTranslatedStyledAndConnected()
{
    QWidget parent;
    QList<int> listPressed;
    const std::unique_ptr<QHBoxLayout> pRow(
        DialogFrame::CreateOkCancelRow(&parent, [&](int nID) { listPressed.append(nID); }));
    const QString strStyle = GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12);
    QStringList listTexts;
    for (int i = 0; i < pRow->count(); ++i) {
        auto* pButton = qobject_cast<QPushButton*>(pRow->itemAt(i)->widget());
        QVERIFY(pButton != nullptr);
        QCOMPARE(pButton->minimumSize(), QSize(80, 24));
        QCOMPARE(pButton->maximumSize(), QSize(80, 24));
        QCOMPARE(pButton->styleSheet(), strStyle);
        listTexts.append(pButton->text());
        QTest::mouseClick(pButton, Qt::LeftButton);
    }
    QCOMPARE(listTexts, QStringList({QStringLiteral("确定"), QStringLiteral("取消")}));
    QCOMPARE(listPressed, QList<int>({0, 1}));
}

void TestDialogFrame::TheButtonsPassTheNumbersThatTheyAreGiven()
{
    QWidget parent;
    QList<int> listPressed;
    const DialogFrame::SOkCancel buttons = DialogFrame::SOkCancel::Create(&parent, "确认");
    QCOMPARE(buttons.pOk->text(), QStringLiteral("确认"));
    QVERIFY(buttons.pOk->maximumWidth() > 1000); // left to the layout
    buttons.Connect([&](int nID) { listPressed.append(nID); }, 3, 4);
    QTest::mouseClick(buttons.pCancel, Qt::LeftButton);
    QTest::mouseClick(buttons.pOk, Qt::LeftButton);
    QCOMPARE(listPressed, QList<int>({4, 3}));
}

namespace {

/// Counts the close events of a widget.
class CCloseEvents : public QObject
{
public:
    explicit CCloseEvents(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        nCount += pEvent->type() == QEvent::Close ? 1 : 0;
        return QObject::eventFilter(pWatched, pEvent);
    }

    int nCount = 0;
};

} // namespace

void TestDialogFrame::FinishSendsACloseEventWithTheResult()
{
    QDialog dialog;
    const CCloseEvents events(dialog);
    dialog.show();
    DialogFrame::Finish(&dialog, DialogFrame::enAccepted);
    QCOMPARE(dialog.result(), 1);
    QVERIFY(dialog.isHidden());
    QCOMPARE(events.nCount, 1);
}

void TestDialogFrame::ACaptionLeadsToItsControl()
{
    QWidget parent;
    CCustomLabel* pCaption = DialogFrame::CreateCaption(&parent, QStringLiteral("caption"));
    auto* pSpinBox = new QDoubleSpinBox(&parent);
    DialogFrame::NameControl(pSpinBox, "value", pCaption);
    QCOMPARE(pSpinBox->objectName(), QStringLiteral("value"));
    QCOMPARE(pSpinBox->accessibleName(), QStringLiteral("caption"));
    QCOMPARE(pCaption->buddy(), pSpinBox);
}

void TestDialogFrame::ACaptionStandsToTheRight()
{
    QWidget parent;
    const CCustomLabel* pLabel = DialogFrame::CreateCaption(&parent, QStringLiteral("caption"));
    QCOMPARE(int(pLabel->alignment()), 130);
    QCOMPARE(pLabel->text(), QStringLiteral("caption"));
    QVERIFY(!pLabel->styleSheet().isEmpty());
}

void TestDialogFrame::ACaptionCanBeCentred()
{
    QWidget parent;
    const CCustomLabel* pLabel =
        DialogFrame::CreateCaption(&parent, QStringLiteral("caption"), Qt::AlignCenter);
    QCOMPARE(int(pLabel->alignment()), 132);
}

void TestDialogFrame::FixingASizeTwiceChangesNothing()
{
    QDialog dialog;
    DialogFrame::FixSize(&dialog, QSize(300, 199));
    QCOMPARE(dialog.size(), QSize(300, 199));
    QCOMPARE(dialog.minimumSize(), QSize(300, 199));
    QCOMPARE(dialog.maximumSize(), QSize(300, 199));
    DialogFrame::FixSize(&dialog, QSize(300, 199));
    QCOMPARE(dialog.size(), QSize(300, 199));
}

namespace {

/// Puts brackets around what is looked up in the common context.
class CBrackets : public QTranslator
{
public:
    QString translate(const char* szContext, const char* szText, const char*, int) const override
    {
        return qstrcmp(szContext, "CCustomDialog") == 0
                   ? QStringLiteral("[%1]").arg(QString::fromUtf8(szText))
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TestDialogFrame::TextsAreLookedUpInTheCommonContext()
{
    CBrackets translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QWidget parent;
    const DialogFrame::SOkCancel buttons = DialogFrame::SOkCancel::Create(&parent, "确认");
    QCOMPARE(buttons.pOk->text(), QStringLiteral("[确认]"));
    QCOMPARE(buttons.pCancel->text(), QStringLiteral("[取消]"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(TestDialogFrame)
#include "TestDialogFrame.moc"

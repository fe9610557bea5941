#include "host/OrviControl/CustomMessageBox.h"

#include "host/OrviControl/CustomDialog.h"
#include "tests/simulator/OrviControl/Keyboard.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <limits>

namespace {

constexpr int c_nNoTimeout = std::numeric_limits<int>::max();

/// Widest line that still reads well, pixels; only a word that is longer makes a wider one.
constexpr int c_nReadableWidth = 400;

const auto c_buttonsQuestion = CCustomMessageBox::StandardButtons(QFlag(6));

} // namespace

class TestCustomMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AMessageHasOneButtonThatClosesIt();
    void EnterClosesAMessage();
    void AQuestionGivesTheButtonPressed_data();
    void AQuestionGivesTheButtonPressed();
    void EnterAloneAgreesToNothing();
    void KeysReachYes();
    void EscIsNoAnswer();
    void ATimeoutIsNoAnswer();
    void TheBoxBelongsToItsParentAndBearsItsTitle();
    void WithoutAParentItBearsTheDisplayNameOfTheApplication();
    void NothingOfALongTextIsCut_data();
    void NothingOfALongTextIsCut();
    void MarkupIsShownAsItStands();
    void IconTextAndButtonsStandApart();

private:
    /// Shows a question and runs an operation on the box while it is open.
    template <class TOperation>
    CCustomMessageBox::StandardButton Question(const QString& strText, TOperation operation);
    template <class TOperation>
    CCustomMessageBox::StandardButton Message(const QString& strText, TOperation operation);
    template <class TOperation>
    static void WhenOpen(TOperation operation);
};

template <class TOperation>
void TestCustomMessageBox::WhenOpen(TOperation operation)
{
    QTimer::singleShot(0, qApp, [operation] {
        auto* pBox = qobject_cast<CCustomMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(pBox != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(pBox));
        operation(*pBox);
        pBox->close();
    });
}

template <class TOperation>
CCustomMessageBox::StandardButton TestCustomMessageBox::Question(const QString& strText, TOperation operation)
{
    WhenOpen(operation);
    return CCustomMessageBox::question(nullptr, strText, c_buttonsQuestion,
                                       CCustomMessageBox::StandardButton(8));
}

template <class TOperation>
CCustomMessageBox::StandardButton TestCustomMessageBox::Message(const QString& strText, TOperation operation)
{
    WhenOpen(operation);
    return CCustomMessageBox::information(nullptr, strText, CCustomMessageBox::Ok, CCustomMessageBox::Ok,
                                          c_nNoTimeout);
}

void TestCustomMessageBox::AMessageHasOneButtonThatClosesIt()
{
    int nButtons = 0;
    const auto result = Message(QStringLiteral("保存失败。"), [&](CCustomMessageBox& box) {
        nButtons = box.findChildren<QPushButton*>().size();
        QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("messageButton1")), Qt::LeftButton);
    });
    QCOMPARE(nButtons, 1);
    QCOMPARE(int(result), 1);
}

void TestCustomMessageBox::EnterClosesAMessage()
{
    const auto result =
        Message(QStringLiteral("保存失败。"), [](CCustomMessageBox&) { Keyboard::Press(Qt::Key_Return); });
    QCOMPARE(int(result), 1);
}

void TestCustomMessageBox::AQuestionGivesTheButtonPressed_data()
{
    QTest::addColumn<int>("nButton");
    QTest::newRow("yes") << 2;
    QTest::newRow("no") << 4;
}

void TestCustomMessageBox::AQuestionGivesTheButtonPressed()
{
    QFETCH(int, nButton);
    const auto result = Question(QStringLiteral("是否继续？"), [&](CCustomMessageBox& box) {
        QCOMPARE(box.findChildren<QPushButton*>().size(), 2);
        const QString strName = QStringLiteral("messageButton%1").arg(nButton);
        QTest::mouseClick(box.findChild<QPushButton*>(strName), Qt::LeftButton);
    });
    QCOMPARE(int(result), nButton);
}

void TestCustomMessageBox::EnterAloneAgreesToNothing()
{
    const auto result =
        Question(QStringLiteral("是否继续？"), [](CCustomMessageBox&) { Keyboard::Press(Qt::Key_Return); });
    QVERIFY(result != CCustomMessageBox::Yes);
}

void TestCustomMessageBox::KeysReachYes()
{
    const auto result = Question(QStringLiteral("是否继续？"), [](CCustomMessageBox&) {
        Keyboard::Press(Qt::Key_Tab);
        Keyboard::Press(Qt::Key_Return);
    });
    QCOMPARE(int(result), 2);
}

void TestCustomMessageBox::EscIsNoAnswer()
{
    const auto result =
        Question(QStringLiteral("是否继续？"), [](CCustomMessageBox&) { Keyboard::Press(Qt::Key_Escape); });
    QCOMPARE(int(result), int(CCustomMessageBox::NoButton));
}

void TestCustomMessageBox::ATimeoutIsNoAnswer()
{
    const auto result = CCustomMessageBox::information(nullptr, QStringLiteral("保存失败。"),
                                                       CCustomMessageBox::Ok, CCustomMessageBox::Ok, 1);
    QCOMPARE(int(result), int(CCustomMessageBox::NoButton));
}

void TestCustomMessageBox::TheBoxBelongsToItsParentAndBearsItsTitle()
{
    CCustomDialog dialog(nullptr, false);
    dialog.setWindowTitle(QStringLiteral("画布大小设置"));
    const QWidget* pParent = nullptr;
    QString strTitle;
    WhenOpen([&](CCustomMessageBox& box) {
        pParent = box.parentWidget();
        strTitle = box.windowTitle();
    });
    CCustomMessageBox::information(&dialog, QStringLiteral("x"), CCustomMessageBox::Ok, CCustomMessageBox::Ok,
                                   c_nNoTimeout);
    QCOMPARE(pParent, &dialog);
    QCOMPARE(strTitle, dialog.windowTitle());
}

void TestCustomMessageBox::WithoutAParentItBearsTheDisplayNameOfTheApplication()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Sender Workbench"));
    QString strTitle;
    Message(QStringLiteral("x"), [&](CCustomMessageBox& box) { strTitle = box.windowTitle(); });
    QCOMPARE(strTitle, QStringLiteral("Sender Workbench"));
}

void TestCustomMessageBox::NothingOfALongTextIsCut_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bWide");
    QTest::newRow("short Chinese") << QStringLiteral("保存失败。") << false;
    QTest::newRow("long Chinese")
        << QStringLiteral("工程设置支持的最大帧率小于实际输入的最大帧率，是否继续？").repeated(6) << false;
    QTest::newRow("long English")
        << QStringLiteral("The highest rate of the project is below the highest rate of the input. ")
               .repeated(8)
        << false;
    QTest::newRow("long word") << QStringLiteral("averylongname").repeated(7) << true;
    QTest::newRow("lines") << QStringLiteral("one\ntwo\nthree\nfour") << false;
}

void TestCustomMessageBox::NothingOfALongTextIsCut()
{
    QFETCH(QString, strText);
    Message(strText, [&](CCustomMessageBox& box) {
        QCOMPARE(box.text(), strText);
        const QList<QLabel*> listLabels = box.findChildren<QLabel*>();
        const auto itText = std::find_if(listLabels.cbegin(), listLabels.cend(),
                                         [&](const QLabel* pLabel) { return pLabel->text() == strText; });
        QVERIFY(itText != listLabels.cend());
        const QLabel& label = **itText;
        QVERIFY(label.height() >= label.heightForWidth(label.width()));
        QVERIFY(box.rect().contains(label.geometry()));
        QTEST(label.width() > c_nReadableWidth, "bWide");
        const QRect rcText =
            label.fontMetrics().boundingRect(QRect(0, 0, label.width(), 0), Qt::TextWordWrap, strText);
        QVERIFY(rcText.width() <= label.width());
    });
}

void TestCustomMessageBox::MarkupIsShownAsItStands()
{
    const QString strText = QStringLiteral("<b>name</b>");
    Message(strText, [&](CCustomMessageBox& box) {
        for (const QLabel* pLabel : box.findChildren<QLabel*>()) {
            if (pLabel->text() == strText)
                QCOMPARE(pLabel->textFormat(), Qt::PlainText);
        }
    });
}

void TestCustomMessageBox::IconTextAndButtonsStandApart()
{
    constexpr int c_nGap = 16;
    constexpr int c_nMargin = 18;
    Question(QStringLiteral("Go on?"), [](CCustomMessageBox& box) {
        const QList<QLabel*> listLabels = box.findChildren<QLabel*>();
        const QRect rcIcon = listLabels.at(0)->geometry();
        const QRect rcText = listLabels.at(1)->geometry();
        const QRect rcYes = box.findChild<QPushButton*>(QStringLiteral("messageButton2"))->geometry();
        const QRect rcNo = box.findChild<QPushButton*>(QStringLiteral("messageButton4"))->geometry();
        QCOMPARE(rcIcon.topLeft(), QPoint(c_nMargin, c_nMargin));
        QCOMPARE(rcText.left() - rcIcon.right() - 1, c_nGap);
        QCOMPARE(rcYes.top() - rcText.bottom() - 1, c_nGap);
        QCOMPARE(rcNo.left() - rcYes.right() - 1, c_nGap);
        QCOMPARE(box.height() - rcYes.bottom() - 1, c_nMargin);
        QCOMPARE(box.width() - rcText.right() - 1, c_nMargin);
        // The row stands in the middle.
        QVERIFY(qAbs(rcYes.left() - (box.width() - rcNo.right() - 1)) <= 1);
    });
}

QTEST_MAIN(TestCustomMessageBox)
#include "TestCustomMessageBox.moc"

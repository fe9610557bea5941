#include "host/OrviControl/CustomIPEdit.h"
#include "tests/simulator/OrviControl/Keyboard.h"

#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

/// A dialog with one control before the field and one behind it.
class TestCustomIPEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void NothingEnteredIsAnEmptyText();
    void Typing_data();
    void Typing();
    void SetText_data();
    void SetText();
    void SetTextWithAnEmptyTextClears();
    void Refusal_data();
    void Refusal();
    void TheNextKeyEndsTheSignOfRefusal();
    void Erasing_data();
    void Erasing();
    void ArrowsCrossTheDots();
    void HomeAndEndGoToTheEndsOfTheAddress();
    void DigitsReplaceASelectedOctet();
    void Pasting_data();
    void Pasting();
    void PastingOctetsFillsFromTheCursorOn();
    void CopyTakesTheWholeAddress();
    void SelectAllThenTypingStartsAnew();
    void SelectAllThenBackspaceClears();
    void ClickingAnOctetDropsTheSelectionOfAll();
    void ClickingTheOctetWithTheFocusDropsItToo();
    void TabPassesTheFieldAsOneControl();
    void ReturnAndEscReachTheDialog();
    void TextChangedComesOnceForEachChange();
    void KeysSentToTheFieldGoToItsCurrentOctet();
    void AWideDigitAndAChineseFullStopAreUnderstood();
    void ADisabledFieldTakesNoKey();

private:
    QLineEdit* Octet(int nIndex) const { return m_pEdit->findChildren<QLineEdit*>().at(nIndex); }

    std::unique_ptr<QDialog> m_pDialog;
    QPushButton* m_pBefore = nullptr;
    CCustomIPEdit* m_pEdit = nullptr;
    QPushButton* m_pBehind = nullptr;
};

void TestCustomIPEdit::init()
{
    m_pDialog = std::make_unique<QDialog>();
    m_pBefore = new QPushButton(m_pDialog.get());
    m_pEdit = new CCustomIPEdit(m_pDialog.get());
    m_pBehind = new QPushButton(m_pDialog.get());
    auto* pLayout = new QVBoxLayout(m_pDialog.get());
    pLayout->addWidget(m_pBefore);
    pLayout->addWidget(m_pEdit);
    pLayout->addWidget(m_pBehind);
    m_pEdit->setFixedSize(180, 25);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.get()));
    m_pEdit->setFocus();
    QVERIFY(Octet(0)->hasFocus());
}

void TestCustomIPEdit::cleanup()
{
    m_pDialog.reset();
}

void TestCustomIPEdit::NothingEnteredIsAnEmptyText()
{
    QCOMPARE(m_pEdit->text(), QString());
}

void TestCustomIPEdit::Typing_data()
{
    QTest::addColumn<QString>("strKeys");
    QTest::addColumn<QString>("strText");
    const auto Row = [](const char* szName, const char* szKeys, const char* szText) {
        QTest::newRow(szName) << QString::fromLatin1(szKeys) << QString::fromLatin1(szText);
    };
    Row("with all dots", "192.168.1.10", "192.168.1.10");
    Row("with dots after octets that went on by themselves", "10.0.0.1", "10.0.0.1");
    Row("without dots: three digits go on", "192168100255", "192.168.100.255");
    Row("without dots: a value that cannot grow goes on", "99887766", "99.88.77.66");
    Row("zeros go on by themselves", "0000", "0.0.0.0");
    Row("comma and blank separate too", "10,20 30.4", "10.20.30.4");
    Row("two dots leave an octet out", "1..3.4", "1..3.4");
    Row("a first octet alone", "12", "12...");
}

void TestCustomIPEdit::Typing()
{
    QFETCH(QString, strKeys);
    Keyboard::Type(strKeys);
    QTEST(m_pEdit->text(), "strText");
}

void TestCustomIPEdit::SetText_data()
{
    QTest::addColumn<QString>("strAddress");
    QTest::addColumn<QString>("strText");
    QTest::newRow("whole address") << QStringLiteral("192.168.1.10") << QStringLiteral("192.168.1.10");
    QTest::newRow("incomplete address comes back as it was")
        << QStringLiteral("1..3.") << QStringLiteral("1..3.");
    QTest::newRow("dots alone are nothing") << QStringLiteral("...") << QString();
    QTest::newRow("above 255") << QStringLiteral("256.1.1.1") << QStringLiteral("255.1.1.1");
}

void TestCustomIPEdit::SetText()
{
    QFETCH(QString, strAddress);
    m_pEdit->setText(strAddress);
    QTEST(m_pEdit->text(), "strText");
}

void TestCustomIPEdit::SetTextWithAnEmptyTextClears()
{
    m_pEdit->setText(QStringLiteral("1.2.3.4"));
    m_pEdit->setText(QString());
    QCOMPARE(m_pEdit->text(), QString());
}

void TestCustomIPEdit::Refusal_data()
{
    QTest::addColumn<QString>("strKeys");
    QTest::addColumn<QString>("strText");
    QTest::newRow("256") << QStringLiteral("256") << QStringLiteral("25...");
    QTest::newRow("a letter") << QStringLiteral("1a") << QStringLiteral("1...");
    QTest::newRow("a sign") << QStringLiteral("-") << QString();
    QTest::newRow("a dot behind the last octet") << QStringLiteral("1.2.3.4.") << QStringLiteral("1.2.3.4");
    QTest::newRow("a fourth digit in the last octet")
        << QStringLiteral("1.2.3.1234") << QStringLiteral("1.2.3.123");
}

void TestCustomIPEdit::Refusal()
{
    QFETCH(QString, strKeys);
    Keyboard::Type(strKeys);
    QTEST(m_pEdit->text(), "strText");
    QVERIFY(m_pEdit->isRefused());
}

void TestCustomIPEdit::TheNextKeyEndsTheSignOfRefusal()
{
    Keyboard::Type(QStringLiteral("256"));
    QVERIFY(m_pEdit->isRefused());
    Keyboard::Type(QStringLiteral("5"));
    QVERIFY(!m_pEdit->isRefused());
    QCOMPARE(m_pEdit->text(), QStringLiteral("255..."));
}

void TestCustomIPEdit::Erasing_data()
{
    QTest::addColumn<int>("nEnd");
    QTest::addColumn<int>("nErase");
    QTest::addColumn<int>("nTimes");
    QTest::addColumn<QString>("strText");
    QTest::newRow("Backspace in an octet")
        << int(Qt::Key_End) << int(Qt::Key_Backspace) << 1 << QStringLiteral("12.34.56.7");
    QTest::newRow("Backspace crosses one dot")
        << int(Qt::Key_End) << int(Qt::Key_Backspace) << 3 << QStringLiteral("12.34.5.");
    QTest::newRow("Backspace crosses all dots")
        << int(Qt::Key_End) << int(Qt::Key_Backspace) << 8 << QString();
    QTest::newRow("Backspace stops at the start")
        << int(Qt::Key_Home) << int(Qt::Key_Backspace) << 2 << QStringLiteral("12.34.56.78");
    QTest::newRow("Delete crosses one dot")
        << int(Qt::Key_Home) << int(Qt::Key_Delete) << 3 << QStringLiteral(".4.56.78");
    QTest::newRow("Delete stops at the end")
        << int(Qt::Key_End) << int(Qt::Key_Delete) << 2 << QStringLiteral("12.34.56.78");
}

void TestCustomIPEdit::Erasing()
{
    QFETCH(int, nEnd);
    QFETCH(int, nErase);
    QFETCH(int, nTimes);
    m_pEdit->setText(QStringLiteral("12.34.56.78"));
    Keyboard::Press(Qt::Key(nEnd));
    for (int i = 0; i < nTimes; ++i)
        Keyboard::Press(Qt::Key(nErase));
    QTEST(m_pEdit->text(), "strText");
}

void TestCustomIPEdit::ArrowsCrossTheDots()
{
    m_pEdit->setText(QStringLiteral("1.2.3.4"));
    Keyboard::Press(Qt::Key_Home);
    Keyboard::Press(Qt::Key_Right);
    QVERIFY(Octet(0)->hasFocus());
    Keyboard::Press(Qt::Key_Right);
    QVERIFY(Octet(1)->hasFocus());
    QCOMPARE(Octet(1)->cursorPosition(), 0);
    Keyboard::Press(Qt::Key_Left);
    QVERIFY(Octet(0)->hasFocus());
    QCOMPARE(Octet(0)->cursorPosition(), 1);
}

void TestCustomIPEdit::HomeAndEndGoToTheEndsOfTheAddress()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_End);
    QVERIFY(Octet(3)->hasFocus());
    QCOMPARE(Octet(3)->cursorPosition(), 2);
    Keyboard::Press(Qt::Key_Home);
    QVERIFY(Octet(0)->hasFocus());
    QCOMPARE(Octet(0)->cursorPosition(), 0);
}

void TestCustomIPEdit::DigitsReplaceASelectedOctet()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_Home);
    Keyboard::Type(QStringLiteral(".7"));
    QCOMPARE(m_pEdit->text(), QStringLiteral("10.7.30.40"));
}

void TestCustomIPEdit::Pasting_data()
{
    QTest::addColumn<QString>("strClipboard");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bRefused");
    QTest::newRow("whole address") << QStringLiteral("172.16.0.1") << QStringLiteral("172.16.0.1") << false;
    QTest::newRow("with line end") << QStringLiteral("172.16.0.1\n") << QStringLiteral("172.16.0.1") << false;
    QTest::newRow("out of range changes nothing")
        << QStringLiteral("172.16.0.300") << QStringLiteral("9.9.9.9") << true;
    QTest::newRow("no address changes nothing")
        << QStringLiteral("hello") << QStringLiteral("9.9.9.9") << true;
}

void TestCustomIPEdit::Pasting()
{
    QFETCH(QString, strClipboard);
    m_pEdit->setText(QStringLiteral("9.9.9.9"));
    QApplication::clipboard()->setText(strClipboard);
    Keyboard::Press(Qt::Key_End);
    Keyboard::Press(Qt::Key_V, Qt::ControlModifier);
    QTEST(m_pEdit->text(), "strText");
    QTEST(m_pEdit->isRefused(), "bRefused");
}

void TestCustomIPEdit::PastingOctetsFillsFromTheCursorOn()
{
    m_pEdit->setText(QStringLiteral("9.9.9.9"));
    QApplication::clipboard()->setText(QStringLiteral("20.30"));
    Keyboard::Press(Qt::Key_Home);
    Keyboard::Type(QStringLiteral("."));
    Keyboard::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_pEdit->text(), QStringLiteral("9.20.30.9"));
    Keyboard::Press(Qt::Key_End);
    Keyboard::Press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY2(m_pEdit->isRefused(), "two octets don't fit into the last");
    QCOMPARE(m_pEdit->text(), QStringLiteral("9.20.30.9"));
}

void TestCustomIPEdit::CopyTakesTheWholeAddress()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_pEdit->text(), QString());
    Keyboard::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_pEdit->text(), QStringLiteral("10.20.30.40"));
}

void TestCustomIPEdit::SelectAllThenTypingStartsAnew()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_End);
    Keyboard::Press(Qt::Key_A, Qt::ControlModifier);
    Keyboard::Type(QStringLiteral("7.8"));
    QCOMPARE(m_pEdit->text(), QStringLiteral("7.8.."));
}

void TestCustomIPEdit::SelectAllThenBackspaceClears()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_A, Qt::ControlModifier);
    Keyboard::Press(Qt::Key_Backspace);
    QCOMPARE(m_pEdit->text(), QString());
    QVERIFY(Octet(0)->hasFocus());
}

void TestCustomIPEdit::ClickingAnOctetDropsTheSelectionOfAll()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(Octet(2), Qt::LeftButton, Qt::NoModifier,
                      Octet(2)->rect().bottomRight() - QPoint(2, 5));
    Keyboard::Press(Qt::Key_Backspace);
    QCOMPARE(m_pEdit->text(), QStringLiteral("10.20.3.40"));
}

void TestCustomIPEdit::ClickingTheOctetWithTheFocusDropsItToo()
{
    m_pEdit->setText(QStringLiteral("10.20.30.40"));
    Keyboard::Press(Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(Octet(0), Qt::LeftButton, Qt::NoModifier,
                      Octet(0)->rect().bottomRight() - QPoint(2, 5));
    Keyboard::Press(Qt::Key_Backspace);
    QCOMPARE(m_pEdit->text(), QStringLiteral("1.20.30.40"));
}

void TestCustomIPEdit::TabPassesTheFieldAsOneControl()
{
    m_pBefore->setFocus();
    Keyboard::Press(Qt::Key_Tab);
    QVERIFY(Octet(0)->hasFocus());
    Keyboard::Press(Qt::Key_Tab);
    QVERIFY(m_pBehind->hasFocus());
    m_pEdit->setText(QStringLiteral("1.2.3.4"));
    m_pEdit->setFocus();
    Keyboard::Press(Qt::Key_End);
    Keyboard::Press(Qt::Key_Tab);
    QVERIFY(m_pBehind->hasFocus());
    m_pEdit->setFocus();
    Keyboard::Press(Qt::Key_End);
    Keyboard::Press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_pBefore->hasFocus());
}

void TestCustomIPEdit::ReturnAndEscReachTheDialog()
{
    QSignalSpy spyClicked(m_pBefore, &QPushButton::clicked);
    m_pBefore->setDefault(true);
    Keyboard::Press(Qt::Key_Return);
    QCOMPARE(spyClicked.size(), 1);
    Keyboard::Press(Qt::Key_Escape);
    QVERIFY(!m_pDialog->isVisible());
}

void TestCustomIPEdit::TextChangedComesOnceForEachChange()
{
    QSignalSpy spyChanged(m_pEdit, &CCustomIPEdit::textChanged);
    m_pEdit->setText(QStringLiteral("1.2.3.4"));
    QCOMPARE(spyChanged.size(), 1);
    QCOMPARE(spyChanged.at(0).at(0).toString(), QStringLiteral("1.2.3.4"));
    m_pEdit->setText(QStringLiteral("1.2.3.4"));
    QCOMPARE(spyChanged.size(), 1);
    Keyboard::Press(Qt::Key_End);
    Keyboard::Type(QStringLiteral("5"));
    QCOMPARE(spyChanged.size(), 2);
    QCOMPARE(spyChanged.at(1).at(0).toString(), QStringLiteral("1.2.3.45"));
}

void TestCustomIPEdit::KeysSentToTheFieldGoToItsCurrentOctet()
{
    QTest::keyClicks(m_pEdit, QStringLiteral("192.168.1.10"));
    QCOMPARE(m_pEdit->text(), QStringLiteral("192.168.1.10"));
    QTest::keyClick(m_pEdit, Qt::Key_Backspace);
    QCOMPARE(m_pEdit->text(), QStringLiteral("192.168.1.1"));
}

void TestCustomIPEdit::AWideDigitAndAChineseFullStopAreUnderstood()
{
    for (const QChar ch : QStringLiteral("１０。２")) {
        QInputMethodEvent event;
        event.setCommitString(ch);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QCOMPARE(m_pEdit->text(), QStringLiteral("10.2.."));
}

void TestCustomIPEdit::ADisabledFieldTakesNoKey()
{
    m_pEdit->setEnabled(false);
    QTest::keyClicks(m_pEdit, QStringLiteral("1"));
    QCOMPARE(m_pEdit->text(), QString());
}

QTEST_MAIN(TestCustomIPEdit)
#include "TestCustomIPEdit.moc"

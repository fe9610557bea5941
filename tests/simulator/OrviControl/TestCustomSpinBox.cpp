#include "host/OrviControl/CustomSpinBox.h"

#include "host/OrviControl/CustomDialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <QtTest>

class TestCustomSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstArgumentIsTheNumberOfDecimals();
    void SetMinMaxIncludesBothEnds();
    void KeysChangeTheValueWithinTheRange();
    void WhatIsTypedStaysAndIsTheValue_data();
    void WhatIsTypedStaysAndIsTheValue();
    void EachKeyIsAnnounced();
    void LeavingTheFieldGivesTheNearestAllowedValue_data();
    void LeavingTheFieldGivesTheNearestAllowedValue();
    void AClickElsewhereLeavesTheFieldToo();
    void EnterCorrectsBeforeItConfirms();
    void AStepStartsAtTheNearestAllowedValue_data();
    void AStepStartsAtTheNearestAllowedValue();
    void AProgramsValueIsHeldToTheRangeAfterTypingToo();
    void AClickOnTheArrowsSteps();
    void TheWheelStepsWithTheFocusOnly();
};

void TestCustomSpinBox::TheFirstArgumentIsTheNumberOfDecimals()
{
    CCustomSpinBox box(0, nullptr);
    QCOMPARE(box.decimals(), 0);
}

void TestCustomSpinBox::SetMinMaxIncludesBothEnds()
{
    CCustomSpinBox box(0, nullptr);
    box.SetMinMax(64, 32768);
    box.setValue(0);
    QCOMPARE(int(box.value()), 64);
    box.setValue(40000);
    QCOMPARE(int(box.value()), 32768);
}

void TestCustomSpinBox::KeysChangeTheValueWithinTheRange()
{
    CCustomSpinBox box(0, nullptr);
    box.SetMinMax(64, 32768);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("1920"));
    QCOMPARE(int(box.value()), 1920);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(int(box.value()), 1921);
    QTest::keyClicks(&box, QStringLiteral("x"));
    QCOMPARE(int(box.value()), 1921);
}

namespace {

/// A field from 64 to 16384 that shows 1080 and has the focus, beside another field.
struct SField
{
    QWidget window;
    CCustomSpinBox box{0, &window};
    QLineEdit other{&window};

    SField()
    {
        box.SetMinMax(64, 16384);
        box.setValue(1080);
        other.move(0, 40);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        box.setFocus();
        box.selectAll();
    }

    void Type(const QString& strKeys)
    {
        if (strKeys.isEmpty())
            QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, strKeys);
    }
};

} // namespace

void TestCustomSpinBox::WhatIsTypedStaysAndIsTheValue_data()
{
    QTest::addColumn<QString>("strKeys");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nValue");
    QTest::newRow("in the range") << QStringLiteral("720") << QStringLiteral("720") << 720;
    QTest::newRow("below it") << QStringLiteral("40") << QStringLiteral("40") << 40;
    QTest::newRow("above it") << QStringLiteral("16385") << QStringLiteral("16385") << 16385;
    QTest::newRow("the field is emptied") << QString() << QString() << 0;
    QTest::newRow("a letter is refused") << QStringLiteral("4x0") << QStringLiteral("40") << 40;
    QTest::newRow("a sign is refused") << QStringLiteral("-5") << QStringLiteral("5") << 5;
    QTest::newRow("a seventh digit is refused")
        << QStringLiteral("1234567") << QStringLiteral("123456") << 123456;
}

void TestCustomSpinBox::WhatIsTypedStaysAndIsTheValue()
{
    QFETCH(QString, strKeys);
    SField field;
    field.Type(strKeys);
    QTEST(field.box.text(), "strText");
    QTEST(int(field.box.value()), "nValue");
}

void TestCustomSpinBox::EachKeyIsAnnounced()
{
    SField field;
    QStringList listTexts;
    connect(&field.box, &QDoubleSpinBox::textChanged, this,
            [&](const QString& str) { listTexts.append(str); });
    field.Type(QStringLiteral("163"));
    QTest::keyClick(&field.box, Qt::Key_Backspace);
    QCOMPARE(listTexts, QStringList({QStringLiteral("1"), QStringLiteral("16"), QStringLiteral("163"),
                                     QStringLiteral("16")}));
}

void TestCustomSpinBox::LeavingTheFieldGivesTheNearestAllowedValue_data()
{
    QTest::addColumn<QString>("strKeys");
    QTest::addColumn<int>("nValue");
    QTest::newRow("in the range") << QStringLiteral("720") << 720;
    QTest::newRow("below it") << QStringLiteral("40") << 64;
    QTest::newRow("above it") << QStringLiteral("16385") << 16384;
    QTest::newRow("the field was emptied") << QString() << 64;
}

void TestCustomSpinBox::LeavingTheFieldGivesTheNearestAllowedValue()
{
    QFETCH(QString, strKeys);
    SField field;
    field.Type(strKeys);
    QTest::keyClick(&field.box, Qt::Key_Tab);
    QVERIFY(field.other.hasFocus());
    QTEST(int(field.box.value()), "nValue");
    QCOMPARE(field.box.text(), QString::number(int(field.box.value())));
}

void TestCustomSpinBox::AClickElsewhereLeavesTheFieldToo()
{
    SField field;
    field.Type(QStringLiteral("40"));
    QTest::mouseClick(&field.other, Qt::LeftButton);
    QCOMPARE(int(field.box.value()), 64);
}

void TestCustomSpinBox::EnterCorrectsBeforeItConfirms()
{
    CCustomDialog dialog(nullptr, false);
    CCustomSpinBox box(0, &dialog);
    box.SetMinMax(1, 255);
    QPushButton button(&dialog);
    button.setDefault(true);
    QList<int> listConfirmed;
    connect(&button, &QPushButton::clicked, this, [&] { listConfirmed.append(int(box.value())); });
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("300"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.text(), QStringLiteral("255"));
    QCOMPARE(listConfirmed, QList<int>());
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(listConfirmed, QList<int>({255}));
}

void TestCustomSpinBox::AStepStartsAtTheNearestAllowedValue_data()
{
    QTest::addColumn<QString>("strKeys");
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nValue");
    QTest::newRow("up from below") << QStringLiteral("40") << int(Qt::Key_Up) << 65;
    QTest::newRow("down from above") << QStringLiteral("20000") << int(Qt::Key_Down) << 16383;
    QTest::newRow("down from below") << QStringLiteral("40") << int(Qt::Key_Down) << 64;
}

void TestCustomSpinBox::AStepStartsAtTheNearestAllowedValue()
{
    QFETCH(QString, strKeys);
    QFETCH(int, nKey);
    SField field;
    field.Type(strKeys);
    QTest::keyClick(&field.box, Qt::Key(nKey));
    QTEST(int(field.box.value()), "nValue");
}

void TestCustomSpinBox::AProgramsValueIsHeldToTheRangeAfterTypingToo()
{
    SField field;
    field.Type(QStringLiteral("40"));
    QTest::keyClick(&field.box, Qt::Key_Tab);
    field.box.setValue(20000);
    QCOMPARE(int(field.box.value()), 16384);
    QCOMPARE(field.box.minimum(), 64.0);
    QCOMPARE(field.box.maximum(), 16384.0);
}

void TestCustomSpinBox::AClickOnTheArrowsSteps()
{
    CCustomSpinBox box(0, nullptr);
    box.SetMinMax(0, 10);
    box.setFixedSize(80, 24);
    box.setValue(5);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(72, 6));
    QCOMPARE(int(box.value()), 6);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(72, 18));
    QCOMPARE(int(box.value()), 5);
}

namespace {

/// Turns the wheel over a widget by one step.
/// @return true when the widget took it
bool TurnWheel(QWidget& widget)
{
    QWheelEvent event(QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5).toPoint()), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

} // namespace

void TestCustomSpinBox::TheWheelStepsWithTheFocusOnly()
{
    QWidget window;
    CCustomSpinBox box(0, &window);
    box.setValue(32);
    QLineEdit other(&window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    QVERIFY(!TurnWheel(box));
    QVERIFY(!box.hasFocus());
    QCOMPARE(box.value(), 32.0);
    box.setFocus();
    QVERIFY(TurnWheel(box));
    QCOMPARE(box.value(), 33.0);
}

QTEST_MAIN(TestCustomSpinBox)
#include "TestCustomSpinBox.moc"

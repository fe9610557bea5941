#include "host/OrviControl/CustomSpinBox.h"

#include <QApplication>
#include <QLineEdit>
#include <QWheelEvent>
#include <QtTest>

class TestCustomSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstArgumentIsTheNumberOfDecimals();
    void SetMinMaxIncludesBothEnds();
    void KeysChangeTheValueWithinTheRange();
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

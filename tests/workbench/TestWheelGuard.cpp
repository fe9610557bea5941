#include "workbench/WheelGuard.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>

namespace {

/// Fields in a page that scrolls.
struct SScrolledFields
{
    CWheelGuard guard;
    QScrollArea area;
    QSpinBox* pNumber = new QSpinBox;
    QComboBox* pChoice = new QComboBox;
    QSlider* pSlider = new QSlider(Qt::Horizontal);

    SScrolledFields()
    {
        auto* pContent = new QWidget;
        auto* pLayout = new QVBoxLayout(pContent);
        pNumber->setValue(32);
        pChoice->addItems({QStringLiteral("a"), QStringLiteral("b")});
        pSlider->setValue(50);
        for (QWidget* pField : Fields())
            pLayout->addWidget(pField);
        pContent->setMinimumHeight(2000);
        area.setWidget(pContent);
        area.setWidgetResizable(true);
        area.resize(300, 300);
        area.show();
        QApplication::setActiveWindow(&area);
        QCoreApplication::processEvents();
    }

    QList<QWidget*> Fields() const { return {pNumber, pChoice, pSlider}; }
    QList<int> Values() const { return {pNumber->value(), pChoice->currentIndex(), pSlider->value()}; }
};

void TurnWheelOver(QWidget* pWidget)
{
    const QPointF pos = pWidget->rect().center();
    QWheelEvent event(pos, pWidget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Qt hands only events of the window system on to the parent.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(pWidget, &event);
}

} // namespace

class TestWheelGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldWithoutFocusLeavesTheWheelToThePage_data();
    void AFieldWithoutFocusLeavesTheWheelToThePage();
    void AFieldWithFocusTakesTheWheel();
    void TheWheelGivesNoFieldTheFocus();
};

void TestWheelGuard::AFieldWithoutFocusLeavesTheWheelToThePage_data()
{
    QTest::addColumn<int>("field");
    QTest::newRow("number") << 0;
    QTest::newRow("choice") << 1;
    QTest::newRow("slider") << 2;
}

void TestWheelGuard::AFieldWithoutFocusLeavesTheWheelToThePage()
{
    QFETCH(int, field);
    SScrolledFields fields;
    const QList<int> listBefore = fields.Values();
    fields.area.setFocus();
    TurnWheelOver(fields.Fields().at(field));
    QCOMPARE(fields.Values(), listBefore);
    QVERIFY(fields.area.verticalScrollBar()->value() > 0);
}

void TestWheelGuard::AFieldWithFocusTakesTheWheel()
{
    SScrolledFields fields;
    QVERIFY(QTest::qWaitForWindowActive(&fields.area));
    fields.pNumber->setFocus();
    TurnWheelOver(fields.pNumber);
    QCOMPARE(fields.pNumber->value(), 31);
}

void TestWheelGuard::TheWheelGivesNoFieldTheFocus()
{
    const SScrolledFields fields;
    for (const QWidget* pField : fields.Fields())
        QVERIFY(pField->focusPolicy() != Qt::WheelFocus);
}

QTEST_MAIN(TestWheelGuard)
#include "TestWheelGuard.moc"

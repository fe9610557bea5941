#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomIPEdit.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

class TestCustomDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypingReplacesTheNumberThatTheDialogOpensAt();
    void TypingReplacesTheTextThatTheDialogOpensAt();
    void TypingReplacesTheFirstOctetThatTheDialogOpensAt();
    void TheWheelChangesNoFieldWithoutTheFocus();
    void TheWheelChangesTheFieldWithTheFocus();
};

namespace {

/// A dialog that is shown and has given its first field the focus.
template <class TField>
class CShownDialog
{
public:
    template <class TFill>
    explicit CShownDialog(TFill funcFill)
        : dialog(nullptr, false)
        , field(&dialog)
    {
        funcFill(field);
        auto* pLayout = new QVBoxLayout(&dialog);
        pLayout->addWidget(&field);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCoreApplication::processEvents();
    }

    void Type(const char* szText) { QTest::keyClicks(dialog.focusWidget(), QString::fromLatin1(szText)); }

    CCustomDialog dialog;
    TField field;
};

} // namespace

void TestCustomDialog::TypingReplacesTheNumberThatTheDialogOpensAt()
{
    CShownDialog<QDoubleSpinBox> shown([](QDoubleSpinBox& field) { field.setValue(3.0); });
    shown.Type("5");
    QCOMPARE(shown.field.value(), 5.0);
}

void TestCustomDialog::TypingReplacesTheTextThatTheDialogOpensAt()
{
    CShownDialog<QLineEdit> shown([](QLineEdit& field) { field.setText(QStringLiteral("old")); });
    shown.Type("new");
    QCOMPARE(shown.field.text(), QStringLiteral("new"));
}

void TestCustomDialog::TypingReplacesTheFirstOctetThatTheDialogOpensAt()
{
    CShownDialog<CCustomIPEdit> shown(
        [](CCustomIPEdit& field) { field.setText(QStringLiteral("10.0.0.7")); });
    shown.Type("192");
    QCOMPARE(shown.field.text(), QStringLiteral("192.0.0.7"));
}

namespace {

/// Turns the wheel over a widget by one step.
void TurnWheel(QWidget& widget)
{
    const QPointF pt = widget.rect().center();
    QWheelEvent event(pt, widget.mapToGlobal(pt.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// A dialog with Qt's own fields, the focus being elsewhere.
struct SPlainFields
{
    CCustomDialog dialog{nullptr, false};
    QLineEdit first{&dialog};
    QDoubleSpinBox number{&dialog};
    QSlider slider{Qt::Horizontal, &dialog};

    SPlainFields()
    {
        number.setValue(50.0);
        slider.setValue(50);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        first.setFocus();
    }

    void TurnWheelOverBoth()
    {
        TurnWheel(number);
        TurnWheel(slider);
    }
};

} // namespace

void TestCustomDialog::TheWheelChangesNoFieldWithoutTheFocus()
{
    SPlainFields fields;
    fields.TurnWheelOverBoth();
    QCOMPARE(fields.number.value(), 50.0);
    QCOMPARE(fields.slider.value(), 50);
    QVERIFY(fields.first.hasFocus());
}

void TestCustomDialog::TheWheelChangesTheFieldWithTheFocus()
{
    SPlainFields fields;
    fields.number.setFocus();
    fields.TurnWheelOverBoth();
    QCOMPARE(fields.number.value(), 51.0);
    QCOMPARE(fields.slider.value(), 50);
}

QTEST_MAIN(TestCustomDialog)
#include "TestCustomDialog.moc"

#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomIPEdit.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

class TestCustomDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypingReplacesTheNumberThatTheDialogOpensAt();
    void TypingReplacesTheTextThatTheDialogOpensAt();
    void TypingReplacesTheFirstOctetThatTheDialogOpensAt();
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

QTEST_MAIN(TestCustomDialog)
#include "TestCustomDialog.moc"

#include "host/OrviControl/CustomComboBox.h"
#include "tests/gui/AllDialogs.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QLabel>
#include <QtTest>

#include <algorithm>

namespace {

/// The controls of a dialog: what takes the focus and is not part of another control.
QList<QWidget*> Controls(const QWidget& dialog)
{
    QList<QWidget*> listControls;
    for (QWidget* pWidget : dialog.findChildren<QWidget*>()) {
        const bool bOwn = qobject_cast<QAbstractSpinBox*>(pWidget->parentWidget()) == nullptr;
        const bool bNamed = !pWidget->objectName().isEmpty() && pWidget->inherits("CCustomIPEdit");
        if (!pWidget->isHidden() && bOwn && (pWidget->focusPolicy() != Qt::NoFocus || bNamed))
            listControls.append(pWidget);
    }
    return listControls;
}

/// True for a control that says itself what it does: a button with a text of its own.
bool SaysItself(const QWidget& control)
{
    return control.inherits("QPushButton") && !control.inherits("CCustomComboBox");
}

bool IsBuddy(const QWidget& dialog, const QWidget* pControl)
{
    const QList<QLabel*> listLabels = dialog.findChildren<QLabel*>();
    return std::any_of(listLabels.cbegin(), listLabels.cend(),
                       [pControl](const QLabel* pLabel) { return pLabel->buddy() == pControl; });
}

} // namespace

/// What assistive tools are told of the dialogs.
class TestDialogAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryControlHasAName_data();
    void EveryControlHasAName();
    void EveryCaptionLeadsToItsControl_data();
    void EveryCaptionLeadsToItsControl();
    void NoTwoControlsOfADialogHaveOneObjectName_data();
    void NoTwoControlsOfADialogHaveOneObjectName();

private:
    static void AddVariants();
};

void TestDialogAccessibility::AddVariants()
{
    QTest::addColumn<AllDialogs::FuncMake>("funcMake");
    for (const auto& [szName, funcMake] : AllDialogs::Variants())
        QTest::newRow(szName) << funcMake;
}

void TestDialogAccessibility::EveryControlHasAName_data()
{
    AddVariants();
}

void TestDialogAccessibility::EveryControlHasAName()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    pDialog->show();
    const QList<QWidget*> listControls = Controls(*pDialog);
    QVERIFY(listControls.size() >= 3);
    for (QWidget* pControl : listControls) {
        const QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pControl);
        QVERIFY2(!pInterface->text(QAccessible::Name).isEmpty(), pControl->metaObject()->className());
    }
}

void TestDialogAccessibility::EveryCaptionLeadsToItsControl_data()
{
    AddVariants();
}

/// The controls without a caption are few and known.
void TestDialogAccessibility::EveryCaptionLeadsToItsControl()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    const QStringList listWithoutCaption = {
        QStringLiteral("resolution"),         // the first row of the EDID dialog
        QStringLiteral("size"),               // the first row of the canvas dialog
        QStringLiteral("connectPC"),          // has its text beside the mark
        QStringLiteral("transparencySlider"), // shares the caption of the number
    };
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    pDialog->show();
    for (const QWidget* pControl : Controls(*pDialog)) {
        const bool bPartOfAddress = pControl->parentWidget()->inherits("CCustomIPEdit");
        if (SaysItself(*pControl) || bPartOfAddress || listWithoutCaption.contains(pControl->objectName()))
            continue;
        QVERIFY2(IsBuddy(*pDialog, pControl), qPrintable(pControl->objectName()));
    }
}

void TestDialogAccessibility::NoTwoControlsOfADialogHaveOneObjectName_data()
{
    AddVariants();
}

void TestDialogAccessibility::NoTwoControlsOfADialogHaveOneObjectName()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    pDialog->show();
    QStringList listNames;
    for (const QWidget* pControl : Controls(*pDialog)) {
        if (pControl->parentWidget()->inherits("CCustomIPEdit"))
            continue;
        QVERIFY(!pControl->objectName().isEmpty());
        QVERIFY2(!listNames.contains(pControl->objectName()), qPrintable(pControl->objectName()));
        listNames.append(pControl->objectName());
    }
}

QTEST_MAIN(TestDialogAccessibility)
#include "TestDialogAccessibility.moc"

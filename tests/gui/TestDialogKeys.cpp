#include "host/OrviControl/CustomComboBox.h"
#include "tests/gui/AllDialogs.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

/// What keys and the wheel do in every dialog of the library alike.
class TestDialogKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AMenuOpenedByAKeyStartsAtTheCurrentEntry_data();
    void AMenuOpenedByAKeyStartsAtTheCurrentEntry();
    void TheFieldWithTheFirstFocusHasItsContentSelected_data();
    void TheFieldWithTheFirstFocusHasItsContentSelected();
    void TheWheelChangesNoFieldWithoutTheFocus_data();
    void TheWheelChangesNoFieldWithoutTheFocus();

private:
    static void AddVariants();
};

namespace {

void Show(QDialog& dialog)
{
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCoreApplication::processEvents();
}

/// The entry that a menu starts at when a key opens it.
QAction* FirstEntry(CCustomComboBox& box, Qt::Key key)
{
    QAction* pFirst = nullptr;
    QTimer::singleShot(0, &box, [&] {
        pFirst = box.menu()->activeAction();
        box.menu()->close();
    });
    box.setFocus();
    QTest::keyClick(&box, key);
    return pFirst;
}

/// The entry that a box shows: by its text, or by its mark where the menu words it otherwise.
QAction* CurrentEntry(const CCustomComboBox& box)
{
    const QList<QAction*> listActions = box.menu()->actions();
    for (QAction* pAction : listActions) {
        if (pAction->text() == box.text())
            return pAction;
    }
    for (QAction* pAction : listActions) {
        if (pAction->isChecked())
            return pAction;
    }
    return nullptr;
}

void TurnWheel(QWidget& widget)
{
    const QPointF pt = widget.rect().center();
    QWheelEvent event(pt, widget.mapToGlobal(pt.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void TestDialogKeys::AddVariants()
{
    QTest::addColumn<AllDialogs::FuncMake>("funcMake");
    for (const auto& [szName, funcMake] : AllDialogs::Variants())
        QTest::newRow(szName) << funcMake;
}

void TestDialogKeys::AMenuOpenedByAKeyStartsAtTheCurrentEntry_data()
{
    AddVariants();
}

void TestDialogKeys::AMenuOpenedByAKeyStartsAtTheCurrentEntry()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    Show(*pDialog);
    for (CCustomComboBox* pBox : pDialog->findChildren<CCustomComboBox*>()) {
        if (!pBox->isVisible() || !pBox->isEnabled())
            continue;
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_F4})
            QCOMPARE(FirstEntry(*pBox, key), CurrentEntry(*pBox));
    }
}

void TestDialogKeys::TheFieldWithTheFirstFocusHasItsContentSelected_data()
{
    AddVariants();
}

void TestDialogKeys::TheFieldWithTheFirstFocusHasItsContentSelected()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    Show(*pDialog);
    QWidget* pFocus = pDialog->focusWidget();
    QVERIFY(pFocus != nullptr);
    if (auto* pSpinBox = qobject_cast<QDoubleSpinBox*>(pFocus))
        QCOMPARE(pSpinBox->findChild<QLineEdit*>()->selectedText(), pSpinBox->cleanText());
    if (auto* pEdit = qobject_cast<QLineEdit*>(pFocus))
        QCOMPARE(pEdit->selectedText(), pEdit->text());
}

void TestDialogKeys::TheWheelChangesNoFieldWithoutTheFocus_data()
{
    AddVariants();
}

void TestDialogKeys::TheWheelChangesNoFieldWithoutTheFocus()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    Show(*pDialog);
    pDialog->setFocus();
    for (QDoubleSpinBox* pField : pDialog->findChildren<QDoubleSpinBox*>()) {
        const double dBefore = pField->value();
        pField->clearFocus();
        TurnWheel(*pField);
        QCOMPARE(pField->value(), dBefore);
    }
    for (QSlider* pField : pDialog->findChildren<QSlider*>()) {
        const int nBefore = pField->value();
        TurnWheel(*pField);
        QCOMPARE(pField->value(), nBefore);
    }
}

QTEST_MAIN(TestDialogKeys)
#include "TestDialogKeys.moc"

#ifndef TESTS_WORKBENCH_DIALOGOPERATOR_H
#define TESTS_WORKBENCH_DIALOGOPERATOR_H

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPushButton>
#include <QtTest>

#include <functional>
#include <utility>

/// Operates the next dialog that opens, from its own event loop, once it is active: with Qt 6 it becomes so
/// later than it is shown, and the field that an operator would type into has no focus before. Closes a
/// dialog that is left open: a failing check must not leave the test waiting.
class CDialogOperator : public QObject
{
public:
    explicit CDialogOperator(std::function<void(QDialog*)> funcOperate)
        : m_funcOperate(std::move(funcOperate))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        auto* pDialog = qobject_cast<QDialog*>(pWatched);
        if (pDialog != nullptr && pEvent->type() == QEvent::Show && m_funcOperate) {
            const auto funcOperate = std::exchange(m_funcOperate, {});
            const auto Operate = [funcOperate, pDialog] {
                if (QTest::qWaitFor([pDialog] { return pDialog->isActiveWindow(); }))
                    funcOperate(pDialog);
                if (pDialog->isVisible())
                    pDialog->reject();
            };
            QMetaObject::invokeMethod(pDialog, Operate, Qt::QueuedConnection);
        }
        return QObject::eventFilter(pWatched, pEvent);
    }

private:
    std::function<void(QDialog*)> m_funcOperate;
};

/// Clicks the button with that text; a dialog without it is closed.
inline void Press(QDialog* pDialog, const char* szText)
{
    for (QPushButton* pButton : pDialog->findChildren<QPushButton*>())
        if (pButton->text() == QString::fromUtf8(szText))
            return QTest::mouseClick(pButton, Qt::LeftButton);
    pDialog->reject();
}

#endif // TESTS_WORKBENCH_DIALOGOPERATOR_H

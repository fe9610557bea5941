#include "tests/robot/RobotActions.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QMenu>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

#include <numeric>

namespace {

constexpr int c_nLongestDrag = 12;   ///< moves
constexpr int c_nLongestText = 6;    ///< characters
constexpr int c_nWheelNotch = 120;   ///< eighths of a degree times 8: Qt's unit
constexpr int c_nLargestSize = 1600; ///< pixels of a window

/// Characters that fields of numbers, addresses and names are typed with, and some that they should refuse.
const QString c_strCharacters = QStringLiteral("0123456789.-,eE+ aZ中%/");

/// Keys without a character.
constexpr Qt::Key c_arrKeys[] = {Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Return, Qt::Key_Enter,
                                 Qt::Key_Escape, Qt::Key_Space,    Qt::Key_Left,   Qt::Key_Right,
                                 Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home,   Qt::Key_End,
                                 Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
                                 Qt::Key_F2,     Qt::Key_F4,       Qt::Key_F1,     Qt::Key_Menu};

/// Letters of the usual shortcuts with Ctrl.
constexpr Qt::Key c_arrShortcutKeys[] = {Qt::Key_Z, Qt::Key_Y, Qt::Key_A, Qt::Key_C,
                                         Qt::Key_V, Qt::Key_X, Qt::Key_1, Qt::Key_5};

template <class T, std::size_t nSize>
T One(CDice& dice, const T (&choices)[nSize])
{
    return choices[std::size_t(dice.Below(int(nSize)))];
}

Qt::KeyboardModifiers Modifiers(CDice& dice)
{
    constexpr Qt::KeyboardModifier c_arrModifiers[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                                       Qt::AltModifier};
    return dice.OnceIn(8) ? Qt::KeyboardModifiers(One(dice, c_arrModifiers))
                          : Qt::KeyboardModifiers(Qt::NoModifier);
}

/// A visible, enabled widget of the window, the window itself where there is none.
QWidget* SomeWidget(CDice& dice, QWidget& window)
{
    QList<QWidget*> listWidgets;
    for (QWidget* pWidget : window.findChildren<QWidget*>()) {
        if (pWidget->isVisible() && pWidget->isEnabled() && pWidget->window() == &window)
            listWidgets.append(pWidget);
    }
    return listWidgets.isEmpty() ? &window : listWidgets.at(dice.Below(int(listWidgets.size())));
}

QPoint SomePoint(CDice& dice, const QWidget& widget)
{
    return {dice.Below(widget.width()), dice.Below(widget.height())};
}

/// Sends an event as the window system does: Qt hands only such events on to the parents of a widget.
void Deliver(QWidget& widget, QEvent& event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event);
}

QWidget* FocusOf(QWidget& window)
{
    return window.focusWidget() != nullptr ? window.focusWidget() : &window;
}

void Click(CDice& dice, QWidget& window)
{
    QWidget* const pWidget = SomeWidget(dice, window);
    QTest::mouseClick(pWidget, Qt::LeftButton, Modifiers(dice), SomePoint(dice, *pWidget));
}

void DoubleClick(CDice& dice, QWidget& window)
{
    QWidget* const pWidget = SomeWidget(dice, window);
    QTest::mouseDClick(pWidget, Qt::LeftButton, Modifiers(dice), SomePoint(dice, *pWidget));
}

void OpenContextMenu(CDice& dice, QWidget& window)
{
    QWidget* const pWidget = SomeWidget(dice, window);
    const QPoint pos = SomePoint(dice, *pWidget);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, pWidget->mapToGlobal(pos));
    Deliver(*pWidget, event);
}

void Drag(CDice& dice, QWidget& window)
{
    const QPointer<QWidget> pWidget = SomeWidget(dice, window);
    QTest::mousePress(pWidget, Qt::LeftButton, Modifiers(dice), SomePoint(dice, *pWidget));
    for (int nMoves = dice.Below(c_nLongestDrag); nMoves > 0 && pWidget != nullptr; --nMoves) {
        // Qt Test moves without a button, so the event is made by hand.
        const QPoint pos = SomePoint(dice, *pWidget);
        QMouseEvent event(QEvent::MouseMove, pos, pWidget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        Deliver(*pWidget, event);
    }
    if (pWidget != nullptr)
        QTest::mouseRelease(pWidget, Qt::LeftButton, Qt::NoModifier, SomePoint(dice, *pWidget));
}

void Hover(CDice& dice, QWidget& window)
{
    QWidget* const pWidget = SomeWidget(dice, window);
    QTest::mouseMove(pWidget, SomePoint(dice, *pWidget));
}

void Wheel(CDice& dice, QWidget& window)
{
    QWidget* const pWidget = SomeWidget(dice, window);
    const QPoint pos = SomePoint(dice, *pWidget);
    const QPoint delta(0, dice.OnceIn(2) ? c_nWheelNotch : -c_nWheelNotch);
    QWheelEvent event(pos, pWidget->mapToGlobal(pos), QPoint(), delta, Qt::NoButton, Modifiers(dice),
                      Qt::NoScrollPhase, false);
    Deliver(*pWidget, event);
}

void Type(CDice& dice, QWidget& window)
{
    for (int nCharacters = 1 + dice.Below(c_nLongestText); nCharacters > 0; --nCharacters) {
        const QString strKey(c_strCharacters.at(dice.Below(int(c_strCharacters.size()))));
        QTest::sendKeyEvent(QTest::Click, FocusOf(window), Qt::Key_unknown, strKey, Qt::NoModifier);
    }
}

void PressKey(CDice& dice, QWidget& window)
{
    QTest::keyClick(FocusOf(window), One(dice, c_arrKeys), Modifiers(dice));
}

void PressShortcut(CDice& dice, QWidget& window)
{
    QTest::keyClick(FocusOf(window), One(dice, c_arrShortcutKeys), Qt::ControlModifier);
}

/// Any command of the window's menus, as if it had been found there.
void TriggerCommand(CDice& dice, QWidget& window)
{
    QList<QAction*> listActions;
    for (QAction* pAction : window.findChildren<QAction*>()) {
        if (pAction->isEnabled() && pAction->isVisible() && pAction->menu() == nullptr)
            listActions.append(pAction);
    }
    if (!listActions.isEmpty())
        listActions.at(dice.Below(int(listActions.size())))->trigger();
}

void Resize(CDice& dice, QWidget& window)
{
    window.resize(1 + dice.Below(c_nLargestSize), 1 + dice.Below(c_nLargestSize));
}

void Close(CDice& /*dice*/, QWidget& window)
{
    window.close();
}

} // namespace

int CDice::Below(int nCount)
{
    // The standard's distributions differ from library to library; this does not.
    return nCount <= 0 ? 0 : int(m_engine() % unsigned(nCount));
}

const std::vector<SRobotAction>& RobotActions()
{
    static const std::vector<SRobotAction> s_vecActions = {
        {"click", 40, &Click},
        {"type", 16, &Type},
        {"press a key", 12, &PressKey},
        {"drag", 8, &Drag},
        {"wheel", 6, &Wheel},
        {"hover", 6, &Hover},
        {"double click", 4, &DoubleClick},
        {"press a shortcut", 3, &PressShortcut},
        {"trigger a command", 3, &TriggerCommand},
        {"open a context menu", 2, &OpenContextMenu},
        {"resize", 1, &Resize},
        {"close", 1, &Close},
    };
    return s_vecActions;
}

const SRobotAction& ChooseAction(CDice& dice)
{
    const std::vector<SRobotAction>& vecActions = RobotActions();
    const int nSum =
        std::accumulate(vecActions.begin(), vecActions.end(), 0,
                        [](int nSoFar, const SRobotAction& action) { return nSoFar + action.nWeight; });
    int nLeft = dice.Below(nSum);
    for (const SRobotAction& action : vecActions) {
        nLeft -= action.nWeight;
        if (nLeft < 0)
            return action;
    }
    return vecActions.back();
}

void AnswerFileDialog(CDice& dice, QWidget& dialog)
{
    auto* const pFileDialog = qobject_cast<QFileDialog*>(&dialog);
    if (pFileDialog == nullptr || !dice.OnceIn(3))
        return void(dialog.close());
    pFileDialog->setDirectory(QDir::currentPath());
    pFileDialog->selectFile(QStringLiteral("robot-%1").arg(dice.Below(4)));
    QMetaObject::invokeMethod(pFileDialog, "accept");
}

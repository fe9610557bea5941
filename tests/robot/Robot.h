#ifndef TESTS_ROBOT_ROBOT_H
#define TESTS_ROBOT_ROBOT_H

#include "tests/robot/RobotActions.h"
#include "tests/robot/RobotWatch.h"

#include <QObject>

class QDialog;

/// Operates whatever window is in front, one action each time that control is in an event loop: so it works
/// in modal dialogs and menus too.
class CRobot : public QObject
{
    Q_OBJECT

public:
    CRobot(unsigned int nSeed, int nEvents);

    CDice& Dice() { return m_dice; }
    CRobotWatch& Watch() { return m_watch; }
    /// Whether all actions are done.
    bool IsDone() const { return m_nDone >= m_nEvents; }
    int Done() const { return m_nDone; }
    double PartDone() const { return double(m_nDone) / double(m_nEvents); }

    /// Shows a window, does up to nActions actions, and closes whatever is open.
    void Operate(QWidget& window, int nActions);
    /// The same with a dialog that is run modally.
    void OperateModal(QDialog& dialog, int nActions);

private:
    /// Posts the next action before doing this one, so that it comes also when this one enters an event loop.
    void PostNext();
    void Next();
    void Act(QWidget& window);
    /// The window that takes an operator's input now.
    QWidget* WindowInFront() const;
    void CloseInFront();

    CDice m_dice;
    CRobotWatch m_watch;
    int m_nEvents;
    int m_nDone = 0;
    int m_nLeft = 0;             ///< actions of this scene
    int m_nDepth = 0;            ///< actions that wait in event loops of their own
    QWidget* m_pScene = nullptr; ///< the window that the scene shows
    bool m_bOver = false;        ///< the scene ends as soon as nothing else is open
};

#endif // TESTS_ROBOT_ROBOT_H

#ifndef TESTS_ROBOT_ROBOTWATCH_H
#define TESTS_ROBOT_ROBOTWATCH_H

#include "tests/robot/MemoryTrend.h"

#include <QString>
#include <QStringList>

/// What must not happen while the robot works: warnings of Qt, events that block, memory that grows.
class CRobotWatch
{
public:
    CRobotWatch();
    ~CRobotWatch();
    CRobotWatch(const CRobotWatch&) = delete;
    CRobotWatch& operator=(const CRobotWatch&) = delete;

    /// Notes a failure; the first hundred are kept.
    void Fail(const QString& strWhat);
    const QStringList& Failures() const { return m_listFailures; }

    /// What the robot does now, for the messages of whatever goes wrong meanwhile.
    /// An action after which no other one comes ends the process with this text.
    void SetAction(const QString& strAction);
    QString Action() const { return m_strAction; }

    /// Notes the memory in use; call it between two scenes, when nothing is shown.
    /// @param dDone the part of the work that is done, 0 to 1
    void NoteMemory(double dDone);
    const CMemoryTrend& AllocatedMemory() const { return m_allocated; }
    const CMemoryTrend& ResidentMemory() const { return m_resident; }

    /// Milliseconds of processor time of the slowest action.
    qint64 SlowestAction() const { return m_nSlowest; }

    /// Measures the processor time of one action, so that a busy machine makes no difference. Actions that
    /// run while it waits in an event loop of its own are not counted.
    class CTimedAction
    {
    public:
        explicit CTimedAction(CRobotWatch& watch);
        ~CTimedAction();
        CTimedAction(const CTimedAction&) = delete;
        CTimedAction& operator=(const CTimedAction&) = delete;

    private:
        CRobotWatch& m_watch;
        QString m_strAction;
        qint64 m_nStart;      ///< milliseconds
        qint64 m_nOuterInner; ///< what the enclosing action had spent in inner ones
    };

private:
    QStringList m_listFailures;
    QString m_strAction;
    qint64 m_nInner = 0; ///< milliseconds that the running action has spent in inner ones
    qint64 m_nSlowest = 0;
    CMemoryTrend m_allocated;
    CMemoryTrend m_resident;
};

#endif // TESTS_ROBOT_ROBOTWATCH_H

#ifndef WORKBENCH_TOUR_JOURNEYWALK_H
#define WORKBENCH_TOUR_JOURNEYWALK_H

#include "workbench/tour/Hand.h"
#include "workbench/tour/Journey.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>

#include <deque>
#include <functional>
#include <memory>

/// Walks through a journey with one hand. Each touch is done from the event loop that runs then, so that a
/// modal dialog is operated like any other window.
class CJourneyWalk : public QObject
{
    Q_OBJECT

public:
    CJourneyWalk(CMainWindow& window, enHand hand, const QString& strFile);
    ~CJourneyWalk() override;

    /// Prepares the project and does all steps. When something cannot be done it closes what is open and
    /// ends.
    /// @param funcDone called after each step with its number, from 1
    /// @return what could not be done; empty when all was
    QString Walk(const SJourney& journey, const std::function<void(int nStep)>& funcDone);

private:
    struct STask
    {
        QString strWhere;
        STouch touch;
    };

    void NoteSteps(const SJourney& journey, const std::function<void(int nStep)>& funcDone);
    void Schedule();
    void Continue();
    void Do(const STask& task);
    void CloseAll();

    CMainWindow& m_window;
    const std::unique_ptr<CHand> m_pHand;
    const QString m_strFile;
    std::deque<STask> m_queueTasks;
    QElapsedTimer m_waiting; ///< since the last touch
    QEventLoop m_loop;
    QString m_strProblem;
};

#endif // WORKBENCH_TOUR_JOURNEYWALK_H

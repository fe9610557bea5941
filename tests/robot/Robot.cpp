#include "tests/robot/Robot.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QScopedValueRollback>

namespace {

/// Deeper than this, menus and messages are closed and not operated.
constexpr int c_nDeepest = 4;

QString Describe(const QWidget& window, const char* szAction, int nNumber)
{
    return QStringLiteral("action %1, %2 in %3 \"%4\"")
        .arg(nNumber)
        .arg(QString::fromLatin1(szAction), QString::fromLatin1(window.metaObject()->className()),
             window.windowTitle());
}

} // namespace

CRobot::CRobot(unsigned int nSeed, int nEvents)
    : m_dice(nSeed)
    , m_nEvents(nEvents)
{}

void CRobot::PostNext()
{
    QMetaObject::invokeMethod(this, &CRobot::Next, Qt::QueuedConnection);
}

QWidget* CRobot::WindowInFront() const
{
    if (QWidget* const pPopup = QApplication::activePopupWidget())
        return pPopup;
    if (QWidget* const pModal = QApplication::activeModalWidget())
        return pModal;
    return m_pScene;
}

void CRobot::CloseInFront()
{
    if (QWidget* const pFront = WindowInFront(); pFront != m_pScene)
        pFront->close();
}

void CRobot::Next()
{
    if (m_pScene == nullptr)
        return;
    m_bOver = m_bOver || m_nLeft <= 0 || IsDone() || !m_pScene->isVisible();
    QWidget* const pFront = WindowInFront();
    if (m_bOver && pFront == m_pScene && m_nDepth == 0) {
        // Closing would ask about unsaved changes.
        m_pScene->hide();
        m_pScene = nullptr;
        return;
    }
    PostNext();
    if (m_bOver || m_nDepth > c_nDeepest)
        CloseInFront();
    else
        Act(*pFront);
}

void CRobot::Act(QWidget& window)
{
    ++m_nDone;
    --m_nLeft;
    const QScopedValueRollback<int> depth(m_nDepth, m_nDepth + 1);
    const bool bFileDialog = qobject_cast<QFileDialog*>(&window) != nullptr;
    const SRobotAction& action = ChooseAction(m_dice);
    m_watch.SetAction(Describe(window, bFileDialog ? "answer" : action.szName, m_nDone));
    const CRobotWatch::CTimedAction timed(m_watch);
    if (bFileDialog)
        AnswerFileDialog(m_dice, window);
    else
        action.pDo(m_dice, window);
}

void CRobot::Operate(QWidget& window, int nActions)
{
    m_pScene = &window;
    m_nLeft = nActions;
    m_bOver = false;
    window.show();
    PostNext();
    while (m_pScene != nullptr)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void CRobot::OperateModal(QDialog& dialog, int nActions)
{
    m_pScene = &dialog;
    m_nLeft = nActions;
    m_bOver = false;
    PostNext();
    dialog.exec();
    m_pScene = nullptr;
}

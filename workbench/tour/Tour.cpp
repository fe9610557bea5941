#include "workbench/tour/Tour.h"

#include "host/OrviControl/CustomMessageBox.h"
#include "workbench/WorkbenchPage.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

#include <cstdio>
#include <cstdlib>

namespace {

/// The page that a picture shows, or the dialog.
QString WindowOf(QWidget& widget)
{
    for (QWidget* pWidget = &widget; pWidget != nullptr; pWidget = pWidget->parentWidget())
        if (qobject_cast<CWorkbenchPage*>(pWidget) != nullptr || qobject_cast<QDialog*>(pWidget) != nullptr)
            return QString::fromLatin1(pWidget->metaObject()->className());
    for (const CWorkbenchPage* pPage : widget.window()->findChildren<CWorkbenchPage*>())
        if (pPage->isVisible())
            return QString::fromLatin1(pPage->metaObject()->className());
    return QString::fromLatin1(widget.metaObject()->className());
}

/// Longest time between two pictures, ms: a commit with a progress bar takes a second in demo mode.
constexpr int c_nPatience = 120000;

} // namespace

CTour::CTour(const QString& strFolder)
    : m_strFolder(QDir().absoluteFilePath(strFolder))
{
    Check(QDir().mkpath(m_strFolder), QStringLiteral("the folder %1 cannot be made").arg(m_strFolder));
    qApp->installEventFilter(this);
    m_watchdog.setSingleShot(true);
    connect(&m_watchdog, &QTimer::timeout, this, &CTour::GiveUp);
    m_watchdog.start(c_nPatience);
}

CTour::~CTour()
{
    qApp->removeEventFilter(this);
}

void CTour::GiveUp()
{
    // A dialog without an answer blocks the tour: its results are invalid, and no operator can
    // close the dialog.
    std::fprintf(stderr, "sender-workbench: the tour is stuck after the picture %s\n",
                 qPrintable(m_listPictures.isEmpty() ? QStringLiteral("(none)") : m_listPictures.last()));
    std::_Exit(EXIT_FAILURE);
}

void CTour::Picture(QWidget* pWindow, const QString& strName)
{
    m_watchdog.start(c_nPatience);
    // Posted events lay out and paint the latest changes.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    const QString strFile = QStringLiteral("%1-%2.png").arg(m_strPrefix, strName);
    const QPixmap picture = pWindow->grab();
    Check(!picture.isNull() && picture.save(QDir(m_strFolder).filePath(strFile)),
          QStringLiteral("the picture %1 cannot be saved").arg(strFile));
    m_listPictures.append(strFile);
    m_listWindows.append(WindowOf(*pWindow));
}

void CTour::LeaveWindows()
{
    QByteArray lines;
    for (int i = 0; i < m_listPictures.size(); ++i)
        lines += QStringLiteral("%1 %2\n").arg(m_listPictures[i], m_listWindows[i]).toUtf8();
    QFile file(QDir(m_strFolder).filePath(QStringLiteral("windows.txt")));
    Check(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size(),
          QStringLiteral("the list of the windows cannot be saved"));
}

void CTour::Check(bool bHolds, const QString& strWhat)
{
    if (!bHolds)
        m_listFailures.append(m_strPrefix.isEmpty() ? strWhat
                                                    : QStringLiteral("%1: %2").arg(m_strPrefix, strWhat));
}

void CTour::WithDialog(QDialog& dialog, const std::function<void()>& funcAction)
{
    dialog.show();
    QCoreApplication::processEvents();
    funcAction();
    dialog.hide();
}

void CTour::WithMessage(const QString& strName, int nButton, const std::function<void()>& funcAction)
{
    m_strMessageName = strName;
    m_nMessageButton = nButton;
    funcAction();
    Check(m_strMessageName.isEmpty(), QStringLiteral("no message appeared for %1").arg(strName));
    m_strMessageName.clear();
}

bool CTour::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    auto* pMessage = qobject_cast<QDialog*>(pWatched);
    const bool bMessage = qobject_cast<CCustomMessageBox*>(pWatched) != nullptr ||
                          qobject_cast<QMessageBox*>(pWatched) != nullptr;
    if (bMessage && !m_bMessagesLeft && pEvent->type() == QEvent::Show)
        QMetaObject::invokeMethod(
            pMessage, [this, pMessage] { AnswerMessage(pMessage); }, Qt::QueuedConnection);
    return QObject::eventFilter(pWatched, pEvent);
}

void CTour::AnswerMessage(QDialog* pMessage)
{
    Check(!m_strMessageName.isEmpty(), QStringLiteral("a message appeared that nobody waited for"));
    Picture(pMessage, m_strMessageName.isEmpty() ? QStringLiteral("unexpected") : m_strMessageName);
    m_strMessageName.clear();
    auto* pButton =
        pMessage->findChild<QPushButton*>(QStringLiteral("messageButton%1").arg(m_nMessageButton));
    if (pButton == nullptr)
        pMessage->reject();
    else
        pButton->click();
}

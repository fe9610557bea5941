#include "workbench/Tour.h"

#include "host/OrviControl/CustomMessageBox.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QPixmap>
#include <QPushButton>

CTour::CTour(const QString& strFolder)
    : m_strFolder(strFolder)
{
    Check(QDir().mkpath(strFolder), QStringLiteral("the folder %1 cannot be made").arg(strFolder));
    qApp->installEventFilter(this);
}

CTour::~CTour()
{
    qApp->removeEventFilter(this);
}

void CTour::Picture(QWidget* pWindow, const QString& strName)
{
    // What was changed just now is laid out and painted by posted events.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    const QString strFile = QStringLiteral("%1-%2.png").arg(m_strPrefix, strName);
    const QPixmap picture = pWindow->grab();
    Check(!picture.isNull() && picture.save(QDir(m_strFolder).filePath(strFile)),
          QStringLiteral("the picture %1 cannot be saved").arg(strFile));
    m_listPictures.append(strFile);
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
    auto* pMessage = qobject_cast<CCustomMessageBox*>(pWatched);
    if (pMessage != nullptr && pEvent->type() == QEvent::Show)
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

#include "tests/support/ModalAnswers.h"

#include "host/OrviControl/CustomMessageBox.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QtTest>

CModalAnswers::CModalAnswers()
{
    qApp->installEventFilter(this);
}

CModalAnswers::~CModalAnswers()
{
    qApp->removeEventFilter(this);
}

void CModalAnswers::Plan(int nButton)
{
    m_listPlanned.append(nButton);
}

bool CModalAnswers::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    auto* pBox = qobject_cast<CCustomMessageBox*>(pWatched);
    if (pBox != nullptr && pEvent->type() == QEvent::Show)
        // The box is answered from its own event loop, as an operator would.
        QMetaObject::invokeMethod(
            pBox, [this, pBox] { Answer(pBox); }, Qt::QueuedConnection);
    return QObject::eventFilter(pWatched, pEvent);
}

void CModalAnswers::Answer(QWidget* pBox)
{
    auto* pMessage = qobject_cast<CCustomMessageBox*>(pBox);
    m_listTexts.append(pMessage->text());
    m_listParents.append(pMessage->parentWidget());
    if (m_listPlanned.isEmpty()) {
        pMessage->reject();
        return;
    }
    const QString strName = QStringLiteral("messageButton%1").arg(m_listPlanned.takeFirst());
    auto* pButton = pMessage->findChild<QPushButton*>(strName);
    if (pButton == nullptr)
        pMessage->reject();
    else
        QTest::mouseClick(pButton, Qt::LeftButton);
}

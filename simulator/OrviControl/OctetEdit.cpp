#include "simulator/OrviControl/OctetEdit.h"

#include "simulator/OrviControl/IPAddressText.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>

COctetEdit::COctetEdit(QWidget* pParent)
    : QLineEdit(pParent)
{
    setFrame(false);
    setMaxLength(IPAddressText::c_nMaxDigits);
    setAlignment(Qt::AlignCenter);
    setInputMethodHints(Qt::ImhDigitsOnly);
    setDragEnabled(false);
    setAcceptDrops(false);
}

bool COctetEdit::IsAtStart() const
{
    return !hasSelectedText() && cursorPosition() == 0;
}

bool COctetEdit::IsAtEnd() const
{
    return !hasSelectedText() && cursorPosition() == text().size();
}

void COctetEdit::keyPressEvent(QKeyEvent* pEvent)
{
    bool bHandled = false;
    Q_EMIT KeyPressed(pEvent, &bHandled);
    if (bHandled)
        pEvent->accept();
    else
        QLineEdit::keyPressEvent(pEvent);
}

void COctetEdit::inputMethodEvent(QInputMethodEvent* pEvent)
{
    if (!pEvent->commitString().isEmpty())
        Q_EMIT TextEntered(pEvent->commitString());
    pEvent->accept();
}

void COctetEdit::contextMenuEvent(QContextMenuEvent* pEvent)
{
    Q_EMIT MenuRequested(pEvent->globalPos());
}

void COctetEdit::mousePressEvent(QMouseEvent* pEvent)
{
    Q_EMIT MousePressed();
    QLineEdit::mousePressEvent(pEvent);
}

void COctetEdit::mouseReleaseEvent(QMouseEvent* pEvent)
{
    const QClipboard* pClipboard = QApplication::clipboard();
    if (pEvent->button() == Qt::MiddleButton && pClipboard->supportsSelection()) {
        Q_EMIT TextEntered(pClipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(pEvent);
}

void COctetEdit::focusInEvent(QFocusEvent* pEvent)
{
    QLineEdit::focusInEvent(pEvent);
    Q_EMIT FocusChanged();
}

void COctetEdit::focusOutEvent(QFocusEvent* pEvent)
{
    QLineEdit::focusOutEvent(pEvent);
    Q_EMIT FocusChanged();
}

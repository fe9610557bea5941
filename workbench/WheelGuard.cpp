#include "workbench/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace {

/// Whether the wheel changes the widget's value.
bool IsField(const QObject* pWatched)
{
    return qobject_cast<const QAbstractSpinBox*>(pWatched) != nullptr ||
           qobject_cast<const QComboBox*>(pWatched) != nullptr ||
           qobject_cast<const QSlider*>(pWatched) != nullptr;
}

} // namespace

CWheelGuard::CWheelGuard(QObject* pParent)
    : QObject(pParent)
{
    qApp->installEventFilter(this);
}

CWheelGuard::~CWheelGuard()
{
    qApp->removeEventFilter(this);
}

bool CWheelGuard::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if ((type != QEvent::Polish && type != QEvent::Wheel) || !IsField(pWatched))
        return QObject::eventFilter(pWatched, pEvent);
    auto* pField = static_cast<QWidget*>(pWatched);
    if (type == QEvent::Polish) {
        if (pField->focusPolicy() == Qt::WheelFocus)
            pField->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (pField->hasFocus())
        return false;
    // An event that is not accepted goes on to the parent, which scrolls.
    pEvent->ignore();
    return true;
}

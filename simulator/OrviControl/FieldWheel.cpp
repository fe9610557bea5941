#include "simulator/OrviControl/FieldWheel.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QEvent>
#include <QScrollBar>

namespace {

class CWheelFilter : public QObject
{
    Q_OBJECT

public:
    explicit CWheelFilter(QWidget* pField)
        : QObject(pField)
    {
        pField->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const bool bForeign =
            pEvent->type() == QEvent::Wheel && !qobject_cast<QWidget*>(pWatched)->hasFocus();
        if (bForeign)
            pEvent->ignore();
        return bForeign || QObject::eventFilter(pWatched, pEvent);
    }
};

} // namespace

void FieldWheel::NeedsFocus(QWidget* pField)
{
    if (pField->findChild<CWheelFilter*>(QString(), Qt::FindDirectChildrenOnly) != nullptr)
        return;
    new CWheelFilter(pField);
    if (pField->focusPolicy() == Qt::WheelFocus)
        pField->setFocusPolicy(Qt::StrongFocus);
}

void FieldWheel::NeedsFocusInAll(QWidget* pWindow)
{
    for (QAbstractSpinBox* pField : pWindow->findChildren<QAbstractSpinBox*>())
        NeedsFocus(pField);
    for (QAbstractSlider* pField : pWindow->findChildren<QAbstractSlider*>()) {
        if (qobject_cast<QScrollBar*>(pField) == nullptr)
            NeedsFocus(pField);
    }
}

#include "FieldWheel.moc"

#include "host/OrviControl/CustomSpinBox.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/Theme.h"

#include <QEvent>

namespace {

/// Passes the wheel to the scroll area while the field does not have the focus.
class CWheelFilter : public QObject
{
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

CCustomSpinBox::CCustomSpinBox(int nDecimals, QWidget* pParent)
    : QDoubleSpinBox(pParent)
{
    setDecimals(nDecimals);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    new CWheelFilter(this);
    setStyleSheet(
        GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), Theme::c_nFontSize));
}

CCustomSpinBox::~CCustomSpinBox() = default;

void CCustomSpinBox::SetMinMax(double dMin, double dMax)
{
    setRange(dMin, dMax);
}

#include "host/OrviControl/CustomSpinBox.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/Theme.h"

CCustomSpinBox::CCustomSpinBox(int nDecimals, QWidget* pParent)
    : QDoubleSpinBox(pParent)
{
    setDecimals(nDecimals);
    setStyleSheet(
        GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), Theme::c_nFontSize));
}

CCustomSpinBox::~CCustomSpinBox() = default;

void CCustomSpinBox::SetMinMax(double dMin, double dMax)
{
    setRange(dMin, dMax);
}

#include "host/OrviControl/CustomSpinBox.h"

#include "host/OrviControl/Style.h"

CCustomSpinBox::CCustomSpinBox(int nDecimals, QWidget* pParent)
    : QDoubleSpinBox(pParent)
{
    setDecimals(nDecimals);
    setStyleSheet(GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), 12));
}

CCustomSpinBox::~CCustomSpinBox() = default;

void CCustomSpinBox::SetMinMax(double dMin, double dMax)
{
    setRange(dMin, dMax);
}

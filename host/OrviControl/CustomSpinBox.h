#ifndef HOST_ORVICONTROL_CUSTOMSPINBOX_H
#define HOST_ORVICONTROL_CUSTOMSPINBOX_H

#include "host/HostExport.h"

#include <QDoubleSpinBox>

/// A spin box in the host's look.
class ORVICONTROL_EXPORT CCustomSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// @param nDecimals digits after the point; the library passes 0
    CCustomSpinBox(int nDecimals, QWidget* pParent);
    ~CCustomSpinBox() override;

    /// Sets the range, both ends included.
    void SetMinMax(double dMin, double dMax);
};

#endif // HOST_ORVICONTROL_CUSTOMSPINBOX_H

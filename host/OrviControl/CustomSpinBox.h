#ifndef HOST_ORVICONTROL_CUSTOMSPINBOX_H
#define HOST_ORVICONTROL_CUSTOMSPINBOX_H

#include "host/HostExport.h"

#include <QDoubleSpinBox>

/// A spin box in the host's look. What the operator types stays as it is while the field has the focus, also
/// beyond the range, and `value` gives it: the dialog judges it. On leaving the field, on Enter and on a step
/// the value becomes the nearest one of the range. Values that a program sets are held to the range at once.
class ORVICONTROL_EXPORT CCustomSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// @param nDecimals digits after the point; the library passes 0
    CCustomSpinBox(int nDecimals, QWidget* pParent);
    ~CCustomSpinBox() override;

    /// Sets the range, both ends included.
    void SetMinMax(double dMin, double dMax);

    /// Accepts every whole number of up to six digits, also beyond the range, and nothing typed yet.
    QValidator::State validate(QString& strText, int& nPosition) const override;
    /// Steps from the nearest value of the range.
    void stepBy(int nSteps) override;

protected:
    /// Enter corrects a value beyond the range, and confirms the dialog otherwise.
    void keyPressEvent(QKeyEvent* pEvent) override;
    /// Makes a value beyond the range the nearest of the range.
    void focusOutEvent(QFocusEvent* pEvent) override;
    /// Whether a step is possible in the range, also while what was typed is beyond it.
    StepEnabled stepEnabled() const override;

private:
    void AllowAllTyped();
    void HoldToRange();

    double m_dMinimum = 0.0;    ///< of the range that `HoldToRange` restores
    double m_dMaximum = 0.0;    ///< likewise
    bool m_bAllAllowed = false; ///< something was typed: the range is open until the field is left
};

#endif // HOST_ORVICONTROL_CUSTOMSPINBOX_H

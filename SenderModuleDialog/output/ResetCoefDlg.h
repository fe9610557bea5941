#ifndef SENDERMODULEDIALOG_OUTPUT_RESETCOEFDLG_H
#define SENDERMODULEDIALOG_OUTPUT_RESETCOEFDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

class QDoubleSpinBox;

/// Asks for one coefficient from 0 to 1, to reset either the correction or the seam repair with. It touches
/// nothing of the host: the host presets the value and reads it back. The result is 1 on OK and 0 on Cancel.
class SENDERMODULEDIALOG_EXPORT CResetCoefDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// @param bCorrection the wording: true for the correction coefficient, false for seam repair
    CResetCoefDlg(bool bCorrection, QWidget* pParent);
    ~CResetCoefDlg() override;

    /// Presets the coefficient. Without it the field shows 0.
    /// @param fValue kept as it is, also outside 0 to 1, where the field shows the nearer end
    void SetValue(float fValue);
    /// The preset value, 1 without one; after OK what the field showed, three decimals.
    float GetValue() const;

public Q_SLOTS:
    /// @param nID 0 OK, 1 Cancel; any other value does nothing
    void ActionSlots(int nID);

private:
    void InitControl();
    void Accept();

    bool m_bCorrection;
    float m_fValue = 1.0F;
    QDoubleSpinBox* m_pValueSpinBox = nullptr;
};

#endif // SENDERMODULEDIALOG_OUTPUT_RESETCOEFDLG_H

#ifndef SENDERMODULEDIALOG_OUTPUT_BACKGROUNDIMAGEDLG_H
#define SENDERMODULEDIALOG_OUTPUT_BACKGROUNDIMAGEDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

#include <QString>

class CCustomComboBox;
class CCustomLabel;
class CCustomSwitchButton;
class QDoubleSpinBox;
class QHBoxLayout;
class QPushButton;
class QSlider;

/// Gives the current sender a background picture. There is no OK: every change copies the picture to the
/// host's place for it, updates the sender's record and tells the host at once. No failure is reported; a
/// picture that cannot be copied leaves the record with opacity, switch and fit 0.
class SENDERMODULEDIALOG_EXPORT CBackgroundImageDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Shows what the current sender's record and the stored picture say.
    /// @param pParent owner of the dialog; may be null
    explicit CBackgroundImageDlg(QWidget* pParent);
    ~CBackgroundImageDlg() override;

public Q_SLOTS:
    /// @param nID 0 switch, 1 choose a file, 2 fit, 3 slider, 4 number; any other value does nothing
    void ActionSlots(int nID);

private:
    void InitControl();
    void RefreshWindow();
    void RefreshView(bool bImageChanged);

    QHBoxLayout* CreateRow(CCustomLabel* pCaption);
    QHBoxLayout* CreateSwitchRow();
    QHBoxLayout* CreateFitRow();
    QHBoxLayout* CreateTransparencyRow();
    CCustomLabel* CreateRowCaption(const char* szText);
    void EnableControls();
    void StorePicture();
    void ToggleEnable();
    void ChooseImage();
    void ChooseFit();
    void SliderMoved();
    void SpinChanged();

    CCustomSwitchButton* m_pEnableSwitch = nullptr;
    QPushButton* m_pChooseButton = nullptr;
    CCustomComboBox* m_pFitComboBox = nullptr;
    QSlider* m_pTransparencySlider = nullptr;         ///< per cent
    QDoubleSpinBox* m_pTransparencySpinBox = nullptr; ///< per cent
    bool m_bRefreshing = false;                       ///< the controls are being filled: ignore their signals
    bool m_bEnable = false;                           ///< the picture is switched on
    QString m_strImagePath;                           ///< the chosen or stored picture; empty without one
    qint32 m_nAlpha = 128;                            ///< opacity, 0 to 255
    qint32 m_nFit = 0;                                ///< 0 one to one, 1 stretched
};

#endif // SENDERMODULEDIALOG_OUTPUT_BACKGROUNDIMAGEDLG_H

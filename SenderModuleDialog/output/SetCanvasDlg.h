#ifndef SENDERMODULEDIALOG_OUTPUT_SETCANVASDLG_H
#define SENDERMODULEDIALOG_OUTPUT_SETCANVASDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

#include <QSize>
#include <QString>

class CCustomComboBox;
class CCustomLabel;
class CCustomSpinBox;
class QPushButton;

/// Asks for the canvas size of the current sender: a preset, or a width and a height. It validates on every
/// change and writes nothing: the host reads the size after OK. The result is 1 on OK and 0 on Cancel.
class SENDERMODULEDIALOG_EXPORT CSetCanvasDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Reads the canvas of the current sender: the hardware's where the sender has one, else the project's.
    /// @param pParent owner of the dialog; may be null
    explicit CSetCanvasDlg(QWidget* pParent);
    ~CSetCanvasDlg() override;

    /// The size that the operator chose, pixels. Until OK, and after Cancel, the size read at opening: also
    /// where it lies outside what the fields can show.
    QSize GetCanvasSize() const;
    /// Validates what the fields hold and shows the verdict: error text, OK enabled or not, window height.
    /// @return true when it is valid
    bool IsShowError();
    /// Shows or hides the error without validating: label, OK and window height.
    void ChangeSize(bool bShowError);

public Q_SLOTS:
    /// A preset was chosen.
    /// @param id 0, 1 or 2; any other value validates and changes nothing else
    void ComboBoxSelect(int id);
    /// Width or height was changed: shows them as the size's text and validates.
    void SpinBoxValueChanged();
    /// @param id 3 OK, 4 Cancel; any other value does nothing
    void ButtonClicked(int id);

private:
    void InitControl();
    void InitControlValue();
    void InitStyle();
    void SetControlRect();
    void InitControlConnect();
    void SetControlValue();

    QSize FieldSize() const;
    void ShowSizeText(QSize size);
    QString Judge(QSize size) const;
    void Accept();

    QSize m_sizeCanvas;
    QString m_strError; ///< empty when the input is valid

    CCustomComboBox* m_pSizeComboBox = nullptr;
    CCustomLabel* m_pWidthLabel = nullptr;
    CCustomSpinBox* m_pWidthSpinBox = nullptr;
    CCustomLabel* m_pHeightLabel = nullptr;
    CCustomSpinBox* m_pHeightSpinBox = nullptr;
    CCustomLabel* m_pErrorLabel = nullptr;
    QPushButton* m_pOkButton = nullptr;
    QPushButton* m_pCancelButton = nullptr;
};

#endif // SENDERMODULEDIALOG_OUTPUT_SETCANVASDLG_H

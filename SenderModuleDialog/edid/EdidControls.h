#ifndef SENDERMODULEDIALOG_EDID_EDIDCONTROLS_H
#define SENDERMODULEDIALOG_EDID_EDIDCONTROLS_H

#include "SenderModuleDialog/DialogFrame.h"

#include <QSize>
#include <QString>

class CCustomComboBox;
class CCustomLabel;
class CCustomSpinBox;
class QCheckBox;
class QWidget;
struct SEdidRow;

/// A row with a caption and one choice.
struct SEdidChoiceRow
{
    CCustomLabel* pLabel = nullptr;
    CCustomComboBox* pComboBox = nullptr;

    void Show(const SEdidRow& row) const;
};

/// The controls of the EDID dialog, laid out in their grid. Qt's parents own them.
struct SEdidControls
{
    /// Builds the controls on a dialog without a layout.
    /// @param sizeCustom what the spin boxes start with, pixels
    SEdidControls(QWidget* pDialog, QSize sizeCustom);

    /// What stands in the spin boxes.
    QSize TypedSize() const;
    /// Shows or hides the row of the custom size.
    void ShowSize(bool bShow) const;
    void EnableSize(bool bEnable) const;
    /// Shows a text in the error line; hides the line when there is none.
    void ShowError(const QString& strText) const;

    CCustomComboBox* const pResolution;
    CCustomLabel* const pSizeLabel;
    CCustomSpinBox* const pWidth;
    CCustomLabel* const pTimesLabel;
    CCustomSpinBox* const pHeight;
    const SEdidChoiceRow rowRate;
    const SEdidChoiceRow rowDepth;
    const SEdidChoiceRow rowFormat;
    const SEdidChoiceRow rowStandard;
    QCheckBox* const pConnectPC;
    CCustomLabel* const pError;
    const DialogFrame::SOkCancel buttons;
};

#endif // SENDERMODULEDIALOG_EDID_EDIDCONTROLS_H

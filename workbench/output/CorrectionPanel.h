#ifndef WORKBENCH_OUTPUT_CORRECTIONPANEL_H
#define WORKBENCH_OUTPUT_CORRECTIONPANEL_H

#include "workbench/Captions.h"

#include <QGroupBox>

#include <vector>

class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QPushButton;

/// The coefficients of correction and seam repair, each with the dialog that resets it and the value last
/// accepted from that dialog.
class CCorrectionPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit CCorrectionPanel(QWidget* pParent = nullptr);

    /// Puts all texts into the current language.
    void Retranslate();
    /// Whether the dialog can be opened: there is a sender.
    void EnableButtons(bool bEnabled);
    /// Clears the accepted values: another sender is shown.
    void Forget();
    /// Opens the coefficient dialog.
    /// @param bCorrection correction, else seam repair
    void Reset(bool bCorrection);
    /// Stores the dialog's result.
    void Take(bool bCorrection, float fValue);
    /// The value that the dialog opens with.
    float Preset(bool bCorrection) const;

Q_SIGNALS:
    /// One line for the status bar.
    void Reported(const QString& strText);

private:
    /// One use of the coefficient dialog.
    struct SCorrection
    {
        bool bCorrection; ///< the dialog's wording
        QDoubleSpinBox* pPreset;
        QLabel* pTaken;
        QPushButton* pButton;
    };

    void AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText);
    void AddRow(QGridLayout* pGrid, bool bCorrection, const char* szCaption, const char* szAccessibleName);
    const SCorrection& Correction(bool bCorrection) const;

    CCaptions m_captions;
    std::vector<SCorrection> m_vecCorrections;
};

#endif // WORKBENCH_OUTPUT_CORRECTIONPANEL_H

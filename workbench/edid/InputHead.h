#ifndef WORKBENCH_EDID_INPUTHEAD_H
#define WORKBENCH_EDID_INPUTHEAD_H

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
struct SSimulatedInput;

/// The input that is selected: its name, its mode with what a block cannot hold of it, and the button of the
/// dialog that sets the mode.
class CInputHead : public QWidget
{
    Q_OBJECT

public:
    explicit CInputHead(QWidget* pParent = nullptr);

    /// @param pInput may be null
    void Show(const SSimulatedInput* pInput);
    /// Puts the texts that are always there into the current language; `Show` does the others.
    void Retranslate();

    /// Whether the dialog is to offer the low rates alone.
    bool IsLowRatesOnly() const;

Q_SIGNALS:
    /// The operator wants the dialog.
    void EditPressed();

private:
    void ShowCuts(const SSimulatedInput* pInput);

    QLabel* m_pName;
    QLabel* m_pMode;
    QLabel* m_pCuts;
    QCheckBox* m_pLowRates;
    QPushButton* m_pEdit;
};

#endif // WORKBENCH_EDID_INPUTHEAD_H

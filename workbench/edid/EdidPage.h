#ifndef WORKBENCH_EDID_EDIDPAGE_H
#define WORKBENCH_EDID_EDIDPAGE_H

#include "workbench/WorkbenchPage.h"
#include "workbench/edid/EdidFields.h"

class CEdidMemoryUpdater;
class CFindingList;
class CHexView;
class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;
struct SSimulatedInput;

/// The EDID of the selected input: the mode in force, the memory as decoded fields beside its bytes, the
/// dialog that changes it, what is wrong with it, and what the last change did.
class CEdidPage : public CWorkbenchPage
{
    Q_OBJECT

public:
    explicit CEdidPage(QWidget* pParent = nullptr);

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;

    /// The input that is shown, or null.
    const SSimulatedInput* Input() const;
    /// Opens the EDID dialog for the input that is shown, and reports how the write ended.
    void EditEdid();
    /// Saves the block that is shown, in the format that the suffix names: `.hex` and `.txt` hexadecimal
    /// text, `.c` and `.h` an array of C, `.json` JSON, and binary for any other.
    /// @return false when the file could not be written; the status line says why
    bool SaveBlock(const QString& strFile);

private:
    QWidget* CreateHead();
    QWidget* CreateMemoryView();
    void ChooseFileAndSave();
    void Refresh();
    void ShowBlock(const QByteArray& block);
    void ShowFields(const QByteArray& block);
    void ShowChange(const QByteArray& blockBefore, const QByteArray& blockAfter);
    void MarkSelectedField();
    void SelectFieldOfByte(int nOffset);
    void MarkBytes(int nOffset, int nSize);

    SSelection m_selection;
    QVector<SEdidField> m_vecFields;
    CEdidMemoryUpdater* m_pUpdater = nullptr;
    QLabel* m_pInput = nullptr;
    QLabel* m_pMode = nullptr;
    QLabel* m_pChange = nullptr;
    QCheckBox* m_pLowRates = nullptr;
    QPushButton* m_pEdit = nullptr;
    QPushButton* m_pSave = nullptr;
    QTreeWidget* m_pFields = nullptr;
    CHexView* m_pBytes = nullptr;
    CFindingList* m_pFindings = nullptr;
};

#endif // WORKBENCH_EDID_EDIDPAGE_H

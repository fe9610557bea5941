#ifndef WORKBENCH_EDID_EDIDPAGE_H
#define WORKBENCH_EDID_EDIDPAGE_H

#include "workbench/WorkbenchPage.h"
#include "workbench/edid/EdidDocument.h"

#include <array>
#include <optional>

class CBytePanes;
class CEdidMemoryUpdater;
class CFieldModel;
class CFieldTree;
class CFindingList;
class CInputHead;
class QAction;
class QLabel;
class QStackedWidget;
class QToolButton;
struct SEdidSetting;
struct SEdidSource;
struct SSimulatedInput;

/// The EDID workshop. It shows the memory of the selected input, a file or pasted text: fields beside bytes,
/// what is wrong below, another EDID to compare with. Values are edited in their place, and the result is
/// saved or written into the memory. The dialog that sets the input's mode opens from here.
class CEdidPage : public CWorkbenchPage
{
    Q_OBJECT

public:
    explicit CEdidPage(QWidget* pParent = nullptr);

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;

    /// The input that is selected, or null.
    const SSimulatedInput* Input() const;
    CEdidDocument& Document() { return *m_pDocument; }
    /// Opens the EDID dialog for the input that is selected, and reports how the write ended.
    void EditEdid();
    /// Shows the EDID of a file; of several displays the operator chooses one.
    void OpenFile(const QString& strFile);
    void CompareWithFile(const QString& strFile);
    /// Saves the EDID that is shown, in the format that the suffix names: `.hex` and `.txt` hexadecimal
    /// text, `.c` and `.h` an array of C, `.json` JSON, and binary for any other.
    /// @return false when the file could not be written; a message says why
    bool SaveBlock(const QString& strFile);

protected:
    bool event(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;

private:
    enum enAction
    {
        enOpen,
        enPaste,
        enMemory,
        enBuild,
        enCompareFile,
        enComparePaste,
        enCompareMemory,
        enEndComparison,
        enNext,
        enPrevious,
        enUndo,
        enRedo,
        enFix,
        enSave,
        enWrite,
        enActionCount
    };

    /// An action of the page: its texts, its key and what it does.
    struct SActionRow
    {
        const char* szName; ///< object name
        const char* szText;
        const char* szToolTip; ///< null for the text alone
        const char* szKeys;    ///< null for none
        enAction action;
        void (CEdidPage::*pDo)();
    };

    static const SActionRow c_arrActions[enActionCount];

    /// A key with modifiers, and the action that it stands for.
    struct SStepKey
    {
        Qt::KeyboardModifiers modifiers;
        Qt::Key key;
        enAction action;
    };

    const SStepKey* StepOf(const QKeyEvent& event) const;

    void CreateActions();
    QWidget* CreateBars();
    QToolButton* CreateButton(enAction action);
    QWidget* CreatePlaceholder();
    QWidget* CreateMemoryView();

    void Open();
    void Paste();
    void LoadMemory();
    void Build();
    void ChooseAndCompare();
    void ComparePasted();
    void CompareMemory();
    void EndComparison();
    void ShowNextDifference();
    void ShowPreviousDifference();
    void ShowDifference(bool bForward);
    void Undo();
    void Redo();
    void Fix();
    void ChooseFileAndSave();
    void Write();

    /// The mode of the selected input, or that at which most computers start.
    SEdidSetting Setting() const;
    SEdidContent Memory() const;
    /// A file that the operator chooses; empty for none.
    QString ChosenFile(const QString& strTitle);
    std::optional<SEdidContent> ChosenFrom(const SEdidSource& source);
    void Load(const SEdidSource& source, const QString& strStep);
    void Compare(const SEdidSource& source);
    bool ConfirmBaseAlone(int nBlocks);
    void TakeMemory();
    void Refresh();
    void ShowDocument();
    void ShowBytes();
    void ShowSource();
    void EnableActions();
    QString Emptiness() const;
    void ShowChange(const QByteArray& blockBefore, const QByteArray& blockAfter);
    void Say(const QString& strText);
    void SayRefusal(const QString& strText);
    void MarkSelectedField();
    void SelectFieldOfByte(int nOffset);
    void MarkFinding(int nOffset, int nSize);

    SSelection m_selection;
    SEdidContent m_memory;     ///< of the selected input, as it was seen last
    QVector<int> m_vecChanged; ///< offsets that the last write changed
    CEdidDocument* m_pDocument = nullptr;
    CFieldModel* m_pModel = nullptr;
    CEdidMemoryUpdater* m_pUpdater = nullptr;
    std::array<QAction*, enActionCount> m_arrActions = {};
    CInputHead* m_pHead = nullptr;
    QLabel* m_pSource = nullptr;
    QLabel* m_pChange = nullptr;
    QLabel* m_pEmpty = nullptr;
    QToolButton* m_pCompare = nullptr;
    QStackedWidget* m_pStack = nullptr;
    CFieldTree* m_pFields = nullptr;
    CBytePanes* m_pBytes = nullptr;
    CFindingList* m_pFindings = nullptr;
};

#endif // WORKBENCH_EDID_EDIDPAGE_H

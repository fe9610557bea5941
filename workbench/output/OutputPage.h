#ifndef WORKBENCH_OUTPUT_OUTPUTPAGE_H
#define WORKBENCH_OUTPUT_OUTPUTPAGE_H

#include "workbench/WorkbenchPage.h"
#include "workbench/output/CanvasPicture.h"

#include <array>
#include <vector>

class CCanvasPreview;
class QDoubleSpinBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
struct SCanvasContent;
struct SSimulatedSender;

/// What the selected sender puts out: its canvas as the LED wall would show it, canvas, rate and depth by the
/// project and by the hardware, the background picture, and the dialogs that change them.
class COutputPage : public CWorkbenchPage
{
    Q_OBJECT

public:
    explicit COutputPage(QWidget* pParent = nullptr);
    ~COutputPage() override;

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;
    void Tour(CTour& tour, QWidget* pWorkbench) override;

    /// @name What the buttons do
    /// @{
    void SetCanvas();
    void SetRateAndDepth();
    void SetBackground();
    void ResetCorrection();
    void ResetSeamRepair();
    /// @}

private:
    /// A line of values.
    enum enFact
    {
        enCanvasProject,
        enCanvasHardware,
        enRateProject,
        enRateHardware,
        enInputRate,
        enDepthProject,
        enDepthHardware,
        enPictureSwitch,
        enPictureOpacity,
        enPictureFitting,
        enPictureFile,
        enFactCount
    };

    /// A text that is set anew in each language.
    struct SCaption
    {
        QWidget* pWidget;
        const char* szProperty; ///< of the widget, that holds the text
        const char* szText;
    };

    /// One use of the coefficient dialog.
    struct SCorrection
    {
        bool bCorrection; ///< the dialog's wording
        QDoubleSpinBox* pPreset;
        QLabel* pTaken;
        float fTaken;
        bool bTaken; ///< a value was taken for the sender that is shown
    };

    QWidget* CreateFacts();
    QGroupBox* CreateOutputGroup(QWidget* pParent);
    QGroupBox* CreatePictureGroup(QWidget* pParent);
    QGroupBox* CreateCorrectionGroup(QWidget* pParent);
    void AddCorrectionRow(QGridLayout* pGrid, bool bCorrection, const char* szCaption,
                          const char* szAccessibleName, void (COutputPage::*pAction)());
    QLabel* AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText);
    void AddFact(QGridLayout* pGrid, int nRow, int nColumn, enFact fact);
    QPushButton* CreateButton(QWidget* pParent, const char* szText, void (COutputPage::*pAction)());

    const SSimulatedSender* Sender() const;
    void Refresh();
    void ShowOutput(const SSimulatedSender& sender);
    void ShowPicture(const SSimulatedSender& sender);
    void ShowCorrections();
    void ForgetCorrections();
    void Set(enFact fact, const QString& strText);
    SCanvasContent Content(const SSimulatedSender& sender, const SCanvasPicture& picture) const;
    void LabelEvent(int nCode);
    void TakeCanvas(QSize size);
    void ReportRateAndDepth();
    void ResetCoefficient(SCorrection& correction);
    void TakeCoefficient(SCorrection& correction, float fValue);

    void TourOfCanvas(CTour& tour);
    void TourOfRateAndDepth(CTour& tour);
    void TourOfBackground(CTour& tour, QWidget* pWorkbench);
    void TourOfVanishedPicture(CTour& tour, QWidget* pWorkbench);
    void TourOfCorrection(CTour& tour);

    SSelection m_selection;
    CCanvasPictureReader m_pictureReader;
    CCanvasPreview* m_pPreview = nullptr;
    std::vector<SCaption> m_vecCaptions;
    std::vector<QPushButton*> m_vecButtons;
    std::array<QLabel*, enFactCount> m_arrFacts{};
    std::vector<SCorrection> m_vecCorrections;
};

#endif // WORKBENCH_OUTPUT_OUTPUTPAGE_H

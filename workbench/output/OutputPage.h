#ifndef WORKBENCH_OUTPUT_OUTPUTPAGE_H
#define WORKBENCH_OUTPUT_OUTPUTPAGE_H

#include "workbench/WorkbenchPage.h"
#include "workbench/output/CanvasPicture.h"

class CCanvasPreview;
class CCorrectionPanel;
class COutputFacts;
struct SCanvasContent;
struct SSimulatedSender;

/// The output of the selected sender: its canvas as the LED wall would show it, canvas, rate and depth by the
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

    /// @name What the buttons do
    /// @{
    void SetCanvas();
    void SetRateAndDepth();
    void SetBackground();
    /// @}

    /// Stores the result of the canvas dialog, which only asks.
    void TakeCanvas(QSize size);
    CCanvasPreview& Preview() { return *m_pPreview; }
    CCorrectionPanel& Corrections() { return *m_pCorrections; }
    /// The background picture's file, whether it exists or not.
    QString PictureFile() const;
    /// Looks again at the sender and at the picture's file.
    void Refresh();

private:
    QWidget* CreateFacts();
    const SSimulatedSender* Sender() const;
    SCanvasContent Content(const SSimulatedSender& sender, const SCanvasPicture& picture) const;
    void LabelEvent(int nCode);
    void ReportRateAndDepth();

    SSelection m_selection;
    CCanvasPictureReader m_pictureReader;
    CCanvasPreview* m_pPreview = nullptr;
    COutputFacts* m_pFacts = nullptr;
    CCorrectionPanel* m_pCorrections = nullptr;
};

#endif // WORKBENCH_OUTPUT_OUTPUTPAGE_H

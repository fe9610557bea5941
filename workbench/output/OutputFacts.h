#ifndef WORKBENCH_OUTPUT_OUTPUTFACTS_H
#define WORKBENCH_OUTPUT_OUTPUTFACTS_H

#include "workbench/Captions.h"

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
struct SCanvasPicture;
struct SSimulatedSender;

/// The output of a sender, in words: canvas, rate and depth by the project and by the hardware, and the
/// background picture, each group with the buttons that change it.
class COutputFacts : public QWidget
{
    Q_OBJECT

public:
    explicit COutputFacts(QWidget* pParent = nullptr);

    /// Puts all texts into the current language. The owner refreshes the facts themselves.
    void Retranslate();
    /// @param picture the background picture's file as it was read
    void Show(const SSimulatedSender& sender, const SCanvasPicture& picture);
    /// Shows that there is no sender.
    void ShowNothing();

Q_SIGNALS:
    void CanvasWanted();
    void RateAndDepthWanted();
    void BackgroundWanted();

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

    QGroupBox* CreateOutputGroup();
    QGroupBox* CreatePictureGroup();
    void AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText);
    void AddFact(QGridLayout* pGrid, int nRow, int nColumn, enFact fact);
    QPushButton* CreateButton(QWidget* pParent, const char* szName, const char* szText,
                              void (COutputFacts::*pSignal)());
    void EnableButtons(bool bEnabled);
    void ShowOutput(const SSimulatedSender& sender);
    void ShowPicture(const SSimulatedSender& sender, const SCanvasPicture& picture);
    void Set(enFact fact, const QString& strText);

    CCaptions m_captions;
    std::vector<QPushButton*> m_vecButtons;
    std::array<QLabel*, enFactCount> m_arrFacts{};
};

#endif // WORKBENCH_OUTPUT_OUTPUTFACTS_H

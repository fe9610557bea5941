#ifndef WORKBENCH_COLOUR_CHARTCONTROLS_H
#define WORKBENCH_COLOUR_CHARTCONTROLS_H

#include <QWidget>

class CChartView;
class QCheckBox;
class QLabel;
class QPushButton;
class QSlider;

/// The appearance of the chart and the constraints on its points: tips, snapping, standard's name,
/// background, grid, region.
class CChartControls : public QWidget
{
    Q_OBJECT

public:
    explicit CChartControls(CChartView& view, QWidget* pParent = nullptr);

    void Retranslate();

    /// @name What the controls do
    /// @{
    void SetTemperatureShown(bool bShown);
    void SetSnapping(bool bSnap);
    void SetStandardShown(bool bShown);
    void SetGridAlpha(int nAlpha);
    void SetBackground(const QColor& color);
    void ChooseBackground();
    void SetRegionOn(bool bOn);
    void DrawRegion();
    void ClearRegion();
    /// @}

Q_SIGNALS:
    /// The feasible region was replaced, or switched on or off.
    void RegionChanged();
    /// One line for the status bar.
    void Reported(const QString& strText);

private:
    void CreateLook();
    void CreateRegion();
    void LayOut();
    void Refresh();

    CChartView& m_view;
    QCheckBox* m_pTemperature = nullptr;
    QCheckBox* m_pSnap = nullptr;
    QCheckBox* m_pStandard = nullptr;
    QLabel* m_pGridCaption = nullptr;
    QSlider* m_pGrid = nullptr;
    QPushButton* m_pBackground = nullptr;
    QLabel* m_pRegionCaption = nullptr;
    QCheckBox* m_pRegionOn = nullptr;
    QPushButton* m_pDraw = nullptr;
    QPushButton* m_pClear = nullptr;
};

#endif // WORKBENCH_COLOUR_CHARTCONTROLS_H

#ifndef WORKBENCH_COLOUR_CHARTVIEW_H
#define WORKBENCH_COLOUR_CHARTVIEW_H

#include "workbench/colour/ChartEditor.h"
#include "workbench/colour/FeasibleRegion.h"

#include <QWidget>

class CPointKeys;
class CRegionOverlay;

/// The chart at the size of this widget, with what the workbench shows over it. It answers the chart's
/// question whether a dragged point may keep its place, and makes each drag one step of the editor.
///
/// A new size lays the chart out at once; the worker paints the bitmap for it, and the chart repaints
/// when it is ready. On screens with several device pixels per widget pixel, the chart paints everything
/// in device pixels.
class CChartView : public QWidget
{
    Q_OBJECT

public:
    explicit CChartView(QWidget* pParent = nullptr);

    CChromaticityDlgWnd& Chart() { return *m_pChart; }
    CChartEditor& Editor() { return *m_pEditor; }
    CFeasibleRegion& Region() { return m_region; }
    CRegionOverlay& Overlay() { return *m_pOverlay; }
    CPointKeys& Keys() { return *m_pKeys; }

    /// Moves a point by an offset like a step of a drag: it stays a real colour, inside the feasible region
    /// while that is on, and the group stays valid. The editor begins the drag and `EndDrag` ends it.
    void MovePoint(int nGroup, int nPoint, QPointF offset);
    /// Ends a drag, which is one undoable step.
    void EndDrag();

    /// Shows or hides the name of the first group's standard. A drag does not hide it.
    void SetStandardShown(bool bShown);
    bool IsStandardShown() const { return m_bStandardShown; }
    /// Chooses which of two standards with the same points is named.
    void PreferStandard(enColorStandard standard);

    /// The widget pixel of a chromaticity.
    QPoint PixelOf(CPointEx<float> point) const;
    /// Waits until the bitmap for the present size is painted.
    void WaitForBitmap();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

Q_SIGNALS:
    /// The mouse moved over the chart, and the chart has handled it.
    void MouseMoved();
    /// The mouse left the chart.
    void MouseLeft();
    /// The operator took hold of a point of this group.
    void PointTaken(int nGroup);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void LayOut();
    void Answer(int nGroup, int nPoint, bool& bSuccessed);
    void RememberPlace();
    void TakePoint(QPoint pos);
    void SelectDragged();
    void AskForStandard();

    CChromaticityDlgWnd* m_pChart = nullptr;
    CChartEditor* m_pEditor = nullptr;
    CFeasibleRegion m_region;
    CRegionOverlay* m_pOverlay = nullptr;
    CPointKeys* m_pKeys = nullptr;
    CPointEx<float> m_ptBefore; ///< position of the dragged point before the current move
    enColorStandard m_standard = enStandardSRGB;
    bool m_bStandardShown = false;
};

#endif // WORKBENCH_COLOUR_CHARTVIEW_H

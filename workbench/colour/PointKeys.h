#ifndef WORKBENCH_COLOUR_POINTKEYS_H
#define WORKBENCH_COLOUR_POINTKEYS_H

#include <QTimer>
#include <QVector>
#include <QWidget>

class CChartView;

/// A point of a group by its key and index.
struct SGroupPoint
{
    int nGroup = -1;
    int nPoint = -1;

    friend bool operator==(const SGroupPoint& first, const SGroupPoint& second)
    {
        return first.nGroup == second.nGroup && first.nPoint == second.nPoint;
    }
};

/// Moves the chart's points by keys: Tab goes from point to point, an arrow moves the focused one by 0.001,
/// with Shift by 0.0001, and Escape or a pause ends the undoable step. It lies over the chart, lets the mouse
/// through, and draws a ring around the focused point.
class CPointKeys : public QWidget
{
    Q_OBJECT

public:
    CPointKeys(CChartView& view, QWidget* pParent);

    /// The focused point, which may be gone by now.
    SGroupPoint Current() const { return m_current; }
    /// Focuses a point.
    void Select(SGroupPoint point);
    /// Every point that can be moved, in the order of Tab.
    QVector<SGroupPoint> Points() const;

Q_SIGNALS:
    /// A point has the focus, or the focused one moved: its name and place in words; empty when the focus is
    /// gone.
    void Told(const QString& strText);

protected:
    bool focusNextPrevChild(bool bNext) override;
    bool event(QEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    void Move(QPointF offset);
    void EndBurst();
    void Tell();

    CChartView& m_view;
    SGroupPoint m_current;
    QTimer m_pause; ///< runs out when no arrow follows
    bool m_bBurst = false;
};

#endif // WORKBENCH_COLOUR_POINTKEYS_H

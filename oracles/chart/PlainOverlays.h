#ifndef ORACLES_CHART_PLAINOVERLAYS_H
#define ORACLES_CHART_PLAINOVERLAYS_H

class CChromaticityDlgWnd;
class QPainter;

/// The chart's layers painted step by step from the chart's state, keeping only the dots' radii between
/// paints: what the layers are compared with.
class CPlainOverlays
{
public:
    explicit CPlainOverlays(CChromaticityDlgWnd& chart)
        : m_chart(chart)
    {}

    void DrawBorder(QPainter& painter) const;
    void DrawHexCoorDialog(QPainter& painter) const;
    void DrawTipsString(QPainter& painter) const;
    void DrawCrossLine(QPainter& painter) const;
    void DrawCCTLine(QPainter& painter) const;
    void DrawCCTLineString(QPainter& painter, double x, double y, int nCCT) const;
    void DrawChromTriangle(QPainter& painter);
    void DrawChromNote(QPainter& painter) const;
    void DrawCIEStandardShow(QPainter& painter) const;

private:
    double X(double dX) const;
    double Y(double dY) const;
    int Ratio() const;

    CChromaticityDlgWnd& m_chart;
    bool m_bHasRadii = false;
    float m_afRadius[4] = {0.0F, 0.0F, 0.0F, 0.0F};
};

#endif // ORACLES_CHART_PLAINOVERLAYS_H

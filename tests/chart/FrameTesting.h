#ifndef TESTS_CHART_FRAMETESTING_H
#define TESTS_CHART_FRAMETESTING_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "oracles/chart/PlainFrame.h"
#include "oracles/chart/PlainOverlays.h"
#include "oracles/chart/StandardGroup.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

#include <functional>
#include <memory>

/// A chart with two groups, its frames, and the same frames in the plain order of painting.
namespace FrameTesting {

inline constexpr QSize c_sizeChart(420, 360);

inline std::unique_ptr<CChromaticityDlgWnd> MakeChart(QWidget* pParent = nullptr)
{
    auto pChart = std::make_unique<CChromaticityDlgWnd>(pParent);
    pChart->resize(c_sizeChart);
    pChart->SetSize(c_sizeChart.width(), c_sizeChart.height());
    AddStandardGroup(*pChart, enOutputColorSpace, enStandardRec2020, true);
    AddStandardGroup(*pChart, enScreenColorSpace, enStandardDCIP3, false);
    pChart->m_ptMouse = QPoint(150, 200);
    return pChart;
}

using FuncPrepare = std::function<void(QPainter&)>;

inline void DrawFast(CChromaticityDlgWnd& chart, QPainter& painter)
{
    chart.Draw(painter);
}

inline void DrawPlain(CChromaticityDlgWnd& chart, QPainter& painter)
{
    CPlainOverlays overlays(chart);
    PlainFrame::Draw(chart, overlays, painter);
}

inline QImage Canvas(QImage::Format format, double dRatio = 1.0)
{
    QImage image((c_sizeChart + QSize(40, 30)) * dRatio, format);
    image.setDevicePixelRatio(dRatio);
    image.fill(QColor(200, 100, 20));
    return image;
}

inline QImage Painted(CChromaticityDlgWnd& chart, void (*funcDraw)(CChromaticityDlgWnd&, QPainter&),
                      QImage image, const FuncPrepare& funcPrepare)
{
    QPainter painter(&image);
    funcPrepare(painter);
    funcDraw(chart, painter);
    return image;
}

/// Whether two frames one after the other are the plain ones, the first of them perhaps painted anew.
inline bool IsPlain(
    CChromaticityDlgWnd& chart, const QImage& canvas, const FuncPrepare& funcPrepare = [](QPainter&) {})
{
    const QImage expected = Painted(chart, DrawPlain, canvas, funcPrepare);
    return Painted(chart, DrawFast, canvas, funcPrepare) == expected &&
           Painted(chart, DrawFast, canvas, funcPrepare) == expected;
}

/// A widget that paints a chart in the plain order.
class CPlainChartWidget : public QWidget
{
public:
    CPlainChartWidget(CChromaticityDlgWnd& chart, QWidget* pParent)
        : QWidget(pParent)
        , m_chart(chart)
    {
        resize(c_sizeChart);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        DrawPlain(m_chart, painter);
    }

private:
    CChromaticityDlgWnd& m_chart;
};

} // namespace FrameTesting

#endif // TESTS_CHART_FRAMETESTING_H

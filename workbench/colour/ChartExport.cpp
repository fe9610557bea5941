#include "workbench/colour/ChartExport.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/WholeFile.h"
#include "workbench/colour/ColourGroups.h"
#include "workbench/colour/RegionOverlay.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

namespace {

constexpr double c_dMetersPerInch = 0.0254;

/// Paints a separate chart with the same contents: the one on the screen follows the mouse.
void Paint(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, QSize size, QPainter& painter)
{
    CChromaticityDlgWnd copy(nullptr);
    copy.resize(size);
    copy.SetSize(size.width(), size.height());
    copy.SetBackgroundColor(chart.m_clrBackground);
    copy.SetGridLineAlpha(chart.m_nGridAlpha);
    copy.ShowCIEStandard(chart.m_nGroupIndex, enColorStandard(chart.m_nStandard), chart.m_bShowStandard);
    ColourGroups::Restore(copy, ColourGroups::Take(chart));
    copy.Draw(painter);
    CRegionOverlay::Paint(painter, copy, region);
}

} // namespace

SPictureSize ChartExport::ScreenSize(const CChromaticityDlgWnd& chart)
{
    const double dRatio = chart.devicePixelRatioF();
    return {(QSizeF(chart.m_nWndWidth, chart.m_nWndHeight) * dRatio).toSize(),
            qRound(dRatio * c_nScreenResolution)};
}

QImage ChartExport::Picture(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region,
                            const SPictureSize& size)
{
    QImage image(size.size, QImage::Format_RGB32);
    image.setDevicePixelRatio(size.Ratio());
    image.fill(chart.m_clrBackground);
    QPainter painter(&image);
    Paint(chart, region, size.Layout(), painter);
    painter.end();
    // Not before: sizes of letters would follow it.
    const int nDotsPerMeter = qRound(size.nResolution / c_dMetersPerInch);
    image.setDotsPerMeterX(nDotsPerMeter);
    image.setDotsPerMeterY(nDotsPerMeter);
    return image;
}

QString ChartExport::SavePng(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region,
                             const SPictureSize& size, const QString& strFile)
{
    QByteArray baContent;
    QBuffer buffer(&baContent);
    Picture(chart, region, size).save(&buffer, "PNG");
    return WholeFile::Write(strFile, baContent);
}

QString ChartExport::SaveSvg(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, QSize size,
                             const QString& strFile)
{
    QByteArray baContent;
    QBuffer buffer(&baContent);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    // Font sizes are in points: fonts must be as large as on the screen.
    generator.setResolution(chart.logicalDpiY());
    QPainter painter(&generator);
    Paint(chart, region, size, painter);
    painter.end();
    return WholeFile::Write(strFile, baContent);
}

#include "workbench/colour/ChartExport.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/WholeFile.h"
#include "workbench/colour/ColourGroups.h"
#include "workbench/colour/RegionOverlay.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

namespace {

/// Paints a separate chart with the same contents: the one on the screen follows the mouse.
void Paint(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, QPainter& painter)
{
    CChromaticityDlgWnd copy(nullptr);
    copy.resize(chart.size());
    copy.SetSize(chart.m_nWndWidth, chart.m_nWndHeight);
    copy.SetBackgroundColor(chart.m_clrBackground);
    copy.SetGridLineAlpha(chart.m_nGridAlpha);
    copy.ShowCIEStandard(chart.m_nGroupIndex, enColorStandard(chart.m_nStandard), chart.m_bShowStandard);
    ColourGroups::Restore(copy, ColourGroups::Take(chart));
    copy.Draw(painter);
    CRegionOverlay::Paint(painter, copy, region);
}

} // namespace

QImage ChartExport::Picture(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, double dRatio)
{
    QImage image((QSizeF(chart.m_nWndWidth, chart.m_nWndHeight) * dRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(dRatio);
    image.fill(chart.m_clrBackground);
    QPainter painter(&image);
    Paint(chart, region, painter);
    return image;
}

QString ChartExport::SavePng(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, double dRatio,
                             const QString& strFile)
{
    QByteArray baContent;
    QBuffer buffer(&baContent);
    Picture(chart, region, dRatio).save(&buffer, "PNG");
    return WholeFile::Write(strFile, baContent);
}

QString ChartExport::SaveSvg(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region,
                             const QString& strFile)
{
    const QSize size(chart.m_nWndWidth, chart.m_nWndHeight);
    QByteArray baContent;
    QBuffer buffer(&baContent);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    // Font sizes are in points: fonts must be as large as on the screen.
    generator.setResolution(chart.logicalDpiY());
    QPainter painter(&generator);
    Paint(chart, region, painter);
    painter.end();
    return WholeFile::Write(strFile, baContent);
}

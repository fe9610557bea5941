#include "reports/WallPainter.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPolygonF>

namespace {

const QColor c_clrModule(20, 20, 20, 90);
const QColor c_clrOdd(200, 0, 80, 220);
const QColor c_clrCommon(0, 0, 0);
const QColor c_clrCommonFill(255, 255, 255, 60);
constexpr double c_dModuleWidth = 0.7; ///< pixels: each of a thousand triangles stays visible
constexpr double c_dOddWidth = 1.4;
constexpr double c_dCommonWidth = 1.6;

QPolygonF Triangle(const SModule& module, const WallPainter::FuncToPixel& funcToPixel)
{
    const SPrimaries& primaries = module.primaries;
    return QPolygonF(
        {funcToPixel(primaries.red.xy), funcToPixel(primaries.green.xy), funcToPixel(primaries.blue.xy)});
}

void PaintModules(QPainter& painter, const Modules& modules, const SWallAnalysis& analysis, bool bOdd,
                  const WallPainter::FuncToPixel& funcToPixel)
{
    painter.setPen(bOdd ? QPen(c_clrOdd, c_dOddWidth, Qt::DashLine) : QPen(c_clrModule, c_dModuleWidth));
    for (std::size_t i = 0; i < modules.size(); ++i)
        if (analysis.spread.vecModules[i].IsOdd() == bOdd)
            painter.drawPolygon(Triangle(modules[i], funcToPixel));
}

void PaintCommon(QPainter& painter, const ModuleWall::SCommon& common,
                 const WallPainter::FuncToPixel& funcToPixel)
{
    QPolygonF polygon;
    for (const SPlace& place : common.intersection)
        polygon.append(funcToPixel({place.dX, place.dY}));
    painter.setPen(QPen(c_clrCommon, c_dCommonWidth));
    painter.setBrush(c_clrCommonFill);
    painter.drawPolygon(polygon);
}

} // namespace

void WallPainter::Paint(QPainter& painter, const Modules& modules, const SWallAnalysis& analysis,
                        const FuncToPixel& funcToPixel)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    PaintModules(painter, modules, analysis, false, funcToPixel);
    PaintModules(painter, modules, analysis, true, funcToPixel);
    if (analysis.common)
        PaintCommon(painter, *analysis.common, funcToPixel);
    painter.restore();
}

#include "workbench/colour/UcsView.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/SpectralLocus.h"
#include "instruments/colour/StandardGamut.h"
#include "workbench/colour/ChartEditor.h"
#include "workbench/colour/GroupReadings.h"
#include "workbench/colour/MeasuredWall.h"
#include "workbench/colour/WavelengthMarks.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

/// What the diagram shows: u' and v' from 0.
constexpr double c_dLargestU = 0.68;
constexpr double c_dLargestV = 0.64;
constexpr double c_dGridStep = 0.1;
constexpr double c_dMargin = 44.0; ///< pixels at each side, for the axes' numbers and the wavelengths

const QColor c_clrBackground(50, 50, 50);
const QColor c_clrGrid(255, 255, 255, 60);
const QColor c_clrText(170, 170, 170);
const QColor c_clrOutline(220, 220, 220);
constexpr double c_dGroupWidth = 2.0; ///< pixels
constexpr double c_dDotRadius = 4.0;  ///< pixels

SChromaticity ToXy(QPointF pt)
{
    return {pt.x(), pt.y()};
}

/// The nearest colour of a screen: linear light scaled so that the strongest channel is full, then gamma 2.2.
QRgb ScreenColour(const CColourMatrix& fromXyz, SChromaticity xy)
{
    constexpr double c_dGamma = 1.0 / 2.2;
    const STristimulus xyz = Chromaticity::ToTristimulus(xy, 1.0);
    const Vector3 rgb = fromXyz * Vector3{xyz.dX, xyz.dY, xyz.dZ};
    const double dStrongest = *std::max_element(rgb.begin(), rgb.end());
    const auto Byte = [dStrongest](double dLight) {
        return qRound(255.0 * std::pow(std::max(dLight, 0.0) / dStrongest, c_dGamma));
    };
    return qRgb(Byte(rgb[0]), Byte(rgb[1]), Byte(rgb[2]));
}

} // namespace

CUcsView::CUcsView(CChartEditor& editor, const CMeasuredWall& wall, QWidget* pParent)
    : QWidget(pParent)
    , m_editor(editor)
    , m_wall(wall)
{
    connect(&editor, &CChartEditor::Changed, this, QOverload<>::of(&QWidget::update));
    connect(&wall, &CMeasuredWall::Changed, this, QOverload<>::of(&QWidget::update));
}

void CUcsView::SetWallShown(bool bShown)
{
    m_bWallShown = bShown;
    update();
}

double CUcsView::Scale() const
{
    return std::min((width() - 2.0 * c_dMargin) / c_dLargestU, (height() - 2.0 * c_dMargin) / c_dLargestV);
}

QPointF CUcsView::PixelOf(SChromaticity xy) const
{
    const SUcs uv = Chromaticity::ToUcs(xy);
    return {c_dMargin + uv.dU * Scale(), height() - c_dMargin - uv.dV * Scale()};
}

QImage CUcsView::PaintColours() const
{
    QPolygonF outline;
    for (const QPointF& pt : SpectralLocus::Outline())
        outline.append(PixelOf(ToXy(pt)));
    QImage mask(size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    const SColourStandard& screen = c_arrColourStandards[enStandardSRGB];
    const CColourMatrix fromXyz =
        Primaries::SourceToXyz(StandardGamut::Primaries(screen), StandardGamut::White(screen), 1.0)
            ->Inverse();
    QImage colours(size(), QImage::Format_ARGB32_Premultiplied);
    for (int nY = 0; nY < colours.height(); ++nY) {
        auto* const pRow = reinterpret_cast<QRgb*>(colours.scanLine(nY));
        for (int nX = 0; nX < colours.width(); ++nX) {
            const SChromaticity xy =
                Chromaticity::FromUcs({(nX - c_dMargin) / Scale(), (height() - c_dMargin - nY) / Scale()});
            pRow[nX] = Chromaticity::Check(xy) == enColourFault::enNone ? ScreenColour(fromXyz, xy) : 0;
        }
    }
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(c_clrOutline, 1.0));
    painter.setBrush(QBrush(colours));
    painter.drawPolygon(outline);
    return mask;
}

void CUcsView::PaintGrid(QPainter& painter) const
{
    const auto At = [this](double dU, double dV) {
        return QPointF(c_dMargin + dU * Scale(), height() - c_dMargin - dV * Scale());
    };
    constexpr int c_nLines = 6;
    for (int i = 0; i <= c_nLines; ++i) {
        const double dValue = i * c_dGridStep;
        const QString strNumber = QString::number(dValue, 'f', 1);
        painter.setPen(c_clrGrid);
        painter.drawLine(At(dValue, 0.0), At(dValue, c_nLines * c_dGridStep));
        painter.drawLine(At(0.0, dValue), At(c_nLines * c_dGridStep, dValue));
        painter.setPen(c_clrText);
        painter.drawText(QRectF(At(dValue, 0.0) + QPointF(-15, 4), QSizeF(30, 18)), Qt::AlignCenter,
                         strNumber);
        painter.drawText(QRectF(At(0.0, dValue) + QPointF(-42, -9), QSizeF(24, 18)),
                         Qt::AlignRight | Qt::AlignVCenter, strNumber);
    }
    painter.drawText(QRectF(At(c_nLines * c_dGridStep, 0.0) + QPointF(18, 4), QSizeF(24, 18)),
                     QStringLiteral("u'"));
    painter.drawText(QRectF(At(0.0, c_nLines * c_dGridStep) + QPointF(-42, -32), QSizeF(24, 18)),
                     QStringLiteral("v'"));
}

void CUcsView::PaintGroups(QPainter& painter) const
{
    for (const SChromaGroupInfo* pGroup : m_editor.Chart().m_mapGroups) {
        if (!pGroup->bVisible)
            continue;
        const SGroupReadings readings = GroupReadings::Of(*pGroup);
        const QColor clrGroup =
            pGroup->bOwnColor ? QColor(pGroup->nColorR, pGroup->nColorG, pGroup->nColorB) : QColor(Qt::black);
        QPolygonF triangle;
        for (std::size_t i = 0; i < SGroupReadings::c_nPrimaries; ++i)
            triangle.append(PixelOf(readings.arrPoints[i]));
        painter.setPen(QPen(clrGroup, c_dGroupWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(triangle);
        painter.setBrush(clrGroup);
        for (const SChromaticity& xy : readings.arrPoints)
            painter.drawEllipse(PixelOf(xy), c_dDotRadius, c_dDotRadius);
    }
}

void CUcsView::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (m_colours.size() != size())
        m_colours = PaintColours();
    QPainter painter(this);
    painter.fillRect(rect(), c_clrBackground);
    painter.drawImage(0, 0, m_colours);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGrid(painter);
    const WallPainter::FuncToPixel funcToPixel = [this](SChromaticity xy) { return PixelOf(xy); };
    WavelengthMarks::Paint(painter, funcToPixel);
    if (m_bWallShown && m_wall.Analysis())
        WallPainter::Paint(painter, m_wall.GetModules(), *m_wall.Analysis(), funcToPixel);
    PaintGroups(painter);
}

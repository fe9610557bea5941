#include "reports/WallReport.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "reports/WallPainter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace {

/// Texts of the report.
class CWallReport
{
    Q_DECLARE_TR_FUNCTIONS(CWallReport)
};

constexpr int c_nDotsPerInch = 96;
constexpr int c_nMargin = 48;      ///< dots around a page's content
constexpr int c_nChartSide = 690;  ///< dots
constexpr int c_nLineHeight = 20;  ///< dots
constexpr int c_nTitleSize = 16;   ///< points
constexpr int c_nTextSize = 9;     ///< points
constexpr int c_nMostOddRows = 14; ///< that page two has room for
constexpr float c_fGroupWidth = 1.5F;
constexpr double c_dPerCent = 100.0;

QString PointText(SChromaticity xy)
{
    return QStringLiteral("%1, %2").arg(xy.dX, 0, 'f', 4).arg(xy.dY, 0, 'f', 4);
}

QString PerCent(double dPart)
{
    return QStringLiteral("%1 %").arg(dPart * c_dPerCent, 0, 'f', 1);
}

/// Writes lines and table rows down a page.
class CPage
{
public:
    CPage(QPainter& painter, int nWidth)
        : m_painter(painter)
        , m_nWidth(nWidth)
    {}

    int Y() const { return m_nY; }
    void Skip(int nHeight) { m_nY += nHeight; }

    void Title(const QString& strText)
    {
        SetFont(c_nTitleSize, true);
        m_painter.drawText(QRect(0, m_nY, m_nWidth, 2 * c_nLineHeight), Qt::AlignVCenter, strText);
        m_nY += 2 * c_nLineHeight;
    }

    void Heading(const QString& strText)
    {
        m_nY += c_nLineHeight / 2;
        SetFont(c_nTextSize, true);
        Row({strText});
        SetFont(c_nTextSize, false);
    }

    /// The first cell takes two shares of the width, the others one each.
    void Row(const QStringList& listCells)
    {
        const int nShare = m_nWidth / (std::max(int(listCells.size()), 2) + 1);
        for (int i = 0; i < listCells.size(); ++i) {
            const bool bLast = i + 1 == listCells.size();
            const int nLeft = i == 0 ? 0 : (i + 1) * nShare;
            const int nRight = bLast ? m_nWidth : (i + 2) * nShare;
            m_painter.drawText(QRect(nLeft, m_nY, nRight - nLeft, c_nLineHeight), Qt::AlignVCenter,
                               listCells[i]);
        }
        m_nY += c_nLineHeight;
    }

private:
    void SetFont(int nSize, bool bBold)
    {
        QFont font = m_painter.font();
        font.setPointSize(nSize);
        font.setBold(bBold);
        m_painter.setFont(font);
    }

    QPainter& m_painter;
    int m_nWidth;
    int m_nY = 0;
};

SChromaGroupInfo GroupOf(const SColourStandard& standard)
{
    SChromaGroupInfo group;
    group.strName = QString::fromLatin1(standard.szName);
    group.ptRed = standard.ptRed;
    group.ptGreen = standard.ptGreen;
    group.ptBlue = standard.ptBlue;
    group.ptWhite = standard.ptWhite;
    group.nPenStyle = int(Qt::SolidLine);
    group.fPenWidth = c_fGroupWidth;
    return group;
}

void PaintChart(QPainter& painter, const Modules& modules, const SWallAnalysis& analysis,
                const SColourStandard& standard)
{
    CChromaticityDlgWnd chart(nullptr);
    chart.resize(c_nChartSide, c_nChartSide);
    chart.SetSize(c_nChartSide, c_nChartSide);
    chart.AddChromaGroupByIndex(0, GroupOf(standard));
    chart.Draw(painter);
    const CChartMapping mapping = chart.Mapping();
    WallPainter::Paint(painter, modules, analysis,
                       [&mapping](SChromaticity xy) { return mapping.ToPixel(QPointF(xy.dX, xy.dY)); });
}

void WriteSummary(CPage& page, const Modules& modules, const SWallAnalysis& analysis)
{
    page.Row({CWallReport::tr("模组 %1 个，异常 %2 个").arg(modules.size()).arg(analysis.spread.OddCount())});
    page.Row({CWallReport::tr("细线：各模组；虚线：异常的模组；浅色区域：公共色域")});
}

void WriteMean(CPage& page, const SWallAnalysis& analysis)
{
    const QString arrNames[c_nWallColours] = {CWallReport::tr("红"), CWallReport::tr("绿"),
                                              CWallReport::tr("蓝"), CWallReport::tr("白")};
    page.Heading(CWallReport::tr("平均值"));
    for (std::size_t i = 0; i < c_nWallColours; ++i) {
        const SReading& mean = analysis.spread.arrMean[i];
        page.Row(
            {arrNames[i], PointText(mean.xy), QStringLiteral("%1 cd/m²").arg(mean.dLuminance, 0, 'f', 1)});
    }
    if (analysis.temperature)
        page.Row({CWallReport::tr("白点的相关色温"),
                  QStringLiteral("%1 K").arg(analysis.temperature->dKelvin, 0, 'f', 0),
                  QStringLiteral("Duv %1").arg(analysis.temperature->dDuv, 0, 'f', 4)});
}

void WriteCommon(CPage& page, const Modules& modules, const SWallAnalysis& analysis)
{
    page.Heading(CWallReport::tr("校正后各模组相同"));
    if (!analysis.common)
        return page.Row({CWallReport::tr("没有公共色域，或白点在其外")});
    const ModuleWall::SCommon& common = *analysis.common;
    page.Row({CWallReport::tr("公共色域"), PointText(common.gamut.red), PointText(common.gamut.green),
              PointText(common.gamut.blue)});
    page.Row({CWallReport::tr("白点"), PointText(common.white),
              QStringLiteral("%1 cd/m²").arg(common.dLevel, 0, 'f', 1),
              CWallReport::tr("受限于 %1").arg(modules[common.nLimitingModule].strName)});
}

void WriteCoverage(CPage& page, const SWallAnalysis& analysis)
{
    page.Heading(CWallReport::tr("覆盖的标准"));
    page.Row({QString(), CWallReport::tr("平均 xy"), CWallReport::tr("平均 u'v'"), CWallReport::tr("公共 xy"),
              CWallReport::tr("公共 u'v'")});
    for (std::size_t i = 0; i < Gamut::c_nStandards; ++i) {
        const Gamut::SStandardCoverage& mean = analysis.arrMeanCoverage[i];
        QStringList listCells = {QString::fromLatin1(mean.szName), PerCent(mean.xy.dCovered),
                                 PerCent(mean.ucs.dCovered)};
        if (analysis.commonCoverage)
            listCells += {PerCent((*analysis.commonCoverage)[i].xy.dCovered),
                          PerCent((*analysis.commonCoverage)[i].ucs.dCovered)};
        page.Row(listCells);
    }
}

void WriteFit(CPage& page, const SWallAnalysis& analysis, const SColourStandard& standard)
{
    const QString strName = QString::fromLatin1(standard.szName);
    page.Heading(CWallReport::tr("从 %1 到驱动值的矩阵（线性光）").arg(strName));
    if (!analysis.fit)
        return page.Row({CWallReport::tr("白点在色域之外")});
    for (std::size_t nRow = 0; nRow < 3; ++nRow) {
        QStringList listCells = {QString()};
        for (const double dElement : analysis.fit->drive.Row(nRow))
            listCells += QString::number(dElement, 'f', 5);
        page.Row(listCells);
    }
    page.Row({CWallReport::tr("超出范围的颜色"), PerCent(analysis.fit->clip.dClipped)});
}

void WriteOddModules(CPage& page, const Modules& modules, const SWallAnalysis& analysis)
{
    page.Heading(CWallReport::tr("异常的模组"));
    page.Row({CWallReport::tr("模组"), CWallReport::tr("u'v' 距离"), CWallReport::tr("亮度")});
    int nRows = 0;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const ModuleWall::SModuleSpread& spread = analysis.spread.vecModules[i];
        if (spread.IsOdd() && nRows++ < c_nMostOddRows)
            page.Row({modules[i].strName, QString::number(spread.worst.dUcs, 'f', 4),
                      PerCent(spread.worst.dLuminance)});
    }
    if (nRows > c_nMostOddRows)
        page.Row({CWallReport::tr("还有 %1 个").arg(nRows - c_nMostOddRows)});
}

void SetUp(QPdfWriter& writer, const QString& strTitle)
{
    writer.setTitle(strTitle);
    writer.setResolution(c_nDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
}

} // namespace

QByteArray WallReport::Pdf(const Modules& modules, const SWallAnalysis& analysis,
                           const SColourStandard& standard, const QString& strTitle)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    SetUp(writer, strTitle);
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const int nWidth = writer.width() - 2 * c_nMargin;
    painter.translate(c_nMargin, c_nMargin);
    CPage first(painter, nWidth);
    first.Title(strTitle);
    painter.save();
    const int nIndent = (nWidth - c_nChartSide) / 2;
    painter.translate(nIndent, first.Y());
    PaintChart(painter, modules, analysis, standard);
    painter.restore();
    first.Skip(c_nChartSide);
    first.Heading(QString());
    WriteSummary(first, modules, analysis);
    WriteMean(first, analysis);
    writer.newPage();
    CPage second(painter, nWidth);
    second.Title(strTitle);
    WriteCommon(second, modules, analysis);
    WriteCoverage(second, analysis);
    WriteFit(second, analysis, standard);
    WriteOddModules(second, modules, analysis);
    painter.end();
    return buffer.data();
}

#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace {

/// A chart is laid out for sides above this many pixels.
constexpr int c_nSmallestSide = 100;

/// The white point that a dragged white snaps to, in kelvin.
constexpr float c_fSnapTemperature = 6500.0F;

/// Coordinates closer than this are the same when a standard is recognised: two steps of a float near 1.
constexpr float c_fSameCoordinate = 2.3841858e-07F;

bool IsSamePoint(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return IsWithin(ptFirst, ptSecond, c_fSameCoordinate);
}

bool HasPointsOf(const SChromaGroupInfo& group, const SColourStandard& standard)
{
    return IsSamePoint(group.ptRed, standard.ptRed) && IsSamePoint(group.ptGreen, standard.ptGreen) &&
           IsSamePoint(group.ptBlue, standard.ptBlue) && IsSamePoint(group.ptWhite, standard.ptWhite);
}

/// The first standard that the group has the points of, -1 for none.
int RecogniseStandard(const SChromaGroupInfo& group)
{
    const auto* const pEnd = std::end(c_arrColourStandards);
    const auto* const pFound =
        std::find_if(std::begin(c_arrColourStandards), pEnd,
                     [&group](const auto& standard) { return HasPointsOf(group, standard); });
    return pFound == pEnd ? c_nNoColorStandard : int(pFound - std::begin(c_arrColourStandards));
}

} // namespace

CChromaticityDlgWnd::CChromaticityDlgWnd(QWidget* parent)
    : QWidget(parent)
{
    m_pCct = new CCCT2ColorCoord;
    m_pGamut = new CChromaGamutInterpolation;
    m_pPrivate = std::make_unique<CChromaticityDlgWndPrivate>(*this);
    const auto nBoundarySize = std::size_t(m_pPrivate->m_nBoundarySize);
    m_pBoundaryPx = new QPointF[nBoundarySize]();
    m_pBoundaryPxF = new CPointEx<float>[nBoundarySize]();
    setAttribute(Qt::WA_MouseTracking);
    m_pCct->CCTtoColorCoord(c_fSnapTemperature, &m_ptD65, false);
    m_pThread = new CChromaGamutThread(this);
    m_pThread->SetChromaticityDlgWnd(this);
    m_pPrivate->ConnectWndBitmapThread();
}

CChromaticityDlgWnd::~CChromaticityDlgWnd()
{
    m_pPrivate->ReleaseWndBitmapThread();
    delete m_pCct;
    delete m_pGamut;
    delete[] m_pBoundaryPx;
    delete[] m_pBoundaryPxF;
    delete[] m_pStaticPixels;
    delete m_pDefaultImage;
    ReleaseChromaData();
}

bool CChromaticityDlgWnd::AddChromaGroupByIndex(int nIndex, SChromaGroupInfo info)
{
    if (nIndex < 0 || m_mapGroups.contains(nIndex))
        return false;
    info.nGroupKey = nIndex;
    m_mapGroups.insert(nIndex, new SChromaGroupInfo(info));
    return true;
}

bool CChromaticityDlgWnd::RemoveChromaGroupByIndex(int nIndex)
{
    if (nIndex < 0 || !m_mapGroups.contains(nIndex))
        return false;
    delete m_mapGroups.take(nIndex);
    return true;
}

SChromaGroupInfo* CChromaticityDlgWnd::GetChromaGroupByIndex(int nIndex)
{
    return nIndex < 0 ? nullptr : m_mapGroups.value(nIndex, nullptr);
}

bool CChromaticityDlgWnd::SetChromaGroupByIndex(int nIndex, SChromaGroupInfo info)
{
    if (nIndex < 0)
        return false;
    // Replacing would leave every pointer that the host holds to the group dangling.
    Require(!m_mapGroups.contains(nIndex), "!m_mapGroups.contains(nIndex)");
    return AddChromaGroupByIndex(nIndex, std::move(info));
}

void CChromaticityDlgWnd::ReleaseChromaData()
{
    qDeleteAll(m_mapGroups);
    m_mapGroups.clear();
}

void CChromaticityDlgWnd::SetSize(int nWidth, int nHeight)
{
    Require(nWidth > c_nSmallestSide && nHeight > c_nSmallestSide, "nWidth > 100 && nHeight > 100");
    const CChartMapping mapping = CChartMapping::ForSize(nWidth, nHeight);
    const QVector<QPointF>& vecLocus = m_pGamut->GetQPointFData();
    const auto lock = m_pPrivate->m_pStore->Lock();
    m_nWndWidth = nWidth;
    m_nWndHeight = nHeight;
    m_rcChart = QRect(0, 0, nWidth, nHeight);
    m_fMarginX = mapping.MarginX();
    m_fMarginY = mapping.MarginY();
    m_fScale = mapping.Scale();
    for (int i = 0; i < m_pPrivate->BoundaryCount(); ++i) {
        m_pBoundaryPx[i] = mapping.ToPixel(vecLocus[i]);
        m_pBoundaryPxF[i] = QPointFToCPointF(m_pBoundaryPx[i]);
    }
}

CChromaticityDlgWndPrivate::CChromaticityDlgWndPrivate(CChromaticityDlgWnd& chart)
    : m_chart(chart)
    , m_nBoundarySize(int(chart.m_pGamut->GetQPointFData().size()))
    , m_pStore(MakeStore())
    , m_solver(*chart.m_pGamut)
    , m_cctCurve(*chart.m_pCct)
{}

int CChromaticityDlgWndPrivate::BoundaryCount() const
{
    return std::min(m_nBoundarySize, int(m_chart.m_pGamut->GetQPointFData().size()));
}

void CChromaticityDlgWnd::SetBackgroundColor(QColor color)
{
    m_clrBackground = std::move(color);
    update();
}

void CChromaticityDlgWnd::SetGridLineAlpha(int nAlpha)
{
    m_nGridAlpha = nAlpha;
}

void CChromaticityDlgWnd::SetNearstPoint(QPointF point)
{
    m_ptNearest = point;
}

void CChromaticityDlgWnd::ShowCIEStandard(int nGroupIndex, enColorStandard standard, bool bShow)
{
    m_nGroupIndex = nGroupIndex;
    m_nStandard = standard;
    m_bShowStandard = bShow;
}

void CChromaticityDlgWnd::CalcCIEStandardValid()
{
    // Intentional: only the first group in key order is ever compared, whatever its key.
    if (m_nGroupIndex != 0 || m_mapGroups.isEmpty())
        return;
    const SChromaGroupInfo& group = Deref(m_mapGroups.first(), "m_mapGroups.first() != nullptr");
    const int nFound = RecogniseStandard(group);
    // sRGB and Rec709 are the same points: a host that asked for Rec709 keeps it.
    if (nFound != enStandardSRGB || m_nStandard != enStandardRec709)
        m_nStandard = nFound;
}

QPointF CChromaticityDlgWnd::CPointFToQPointF(CPointEx<float> point)
{
    return Widened(point);
}

CPointEx<float> CChromaticityDlgWnd::QPointFToCPointF(QPointF point)
{
    return Narrowed(point);
}

CChartMapping CChromaticityDlgWnd::Mapping() const
{
    return {m_nWndHeight, m_fMarginX, m_fMarginY, m_fScale};
}

#include "workbench/colour/ProjectColours.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/RegionOverlay.h"

#include <QScopedValueRollback>

namespace {

/// A point of the project and the matching members of a group.
struct SPointPair
{
    SProjectColourPoint SProjectColourGroup::*pStored;
    CPointEx<float> SChromaGroupInfo::*pPlace;
    bool SChromaGroupInfo::*pMovable;
    bool SChromaGroupInfo::*pDotShown;
};

constexpr SPointPair c_arrPoints[] = {
    {&SProjectColourGroup::red, &SChromaGroupInfo::ptRed, &SChromaGroupInfo::bMoveRed,
     &SChromaGroupInfo::bShowRedDot},
    {&SProjectColourGroup::green, &SChromaGroupInfo::ptGreen, &SChromaGroupInfo::bMoveGreen,
     &SChromaGroupInfo::bShowGreenDot},
    {&SProjectColourGroup::blue, &SChromaGroupInfo::ptBlue, &SChromaGroupInfo::bMoveBlue,
     &SChromaGroupInfo::bShowBlueDot},
    {&SProjectColourGroup::white, &SChromaGroupInfo::ptWhite, &SChromaGroupInfo::bMoveWhite,
     &SChromaGroupInfo::bShowWhiteDot},
};

SProjectColourGroup Stored(int nKey, const SChromaGroupInfo& group)
{
    SProjectColourGroup stored;
    stored.nKey = nKey;
    stored.strName = group.strName;
    stored.bRgb = group.bRgbMode;
    for (const SPointPair& pair : c_arrPoints) {
        const CPointEx<float> place = group.*pair.pPlace;
        stored.*pair.pStored = {{place.x, place.y}, group.*pair.pMovable, group.*pair.pDotShown};
    }
    stored.bVisible = group.bVisible;
    stored.bNoteShown = group.bShowNote;
    stored.bOwnColour = group.bOwnColor;
    // The chart chooses palette colours on each paint.
    if (group.bOwnColor) {
        stored.byRed = group.nColorR;
        stored.byGreen = group.nColorG;
        stored.byBlue = group.nColorB;
    }
    stored.nPenStyle = group.nPenStyle;
    stored.fPenWidth = group.fPenWidth;
    return stored;
}

SChromaGroupInfo Group(const SProjectColourGroup& stored)
{
    SChromaGroupInfo group;
    group.nGroupKey = stored.nKey;
    group.strName = stored.strName;
    group.bRgbMode = stored.bRgb;
    for (const SPointPair& pair : c_arrPoints) {
        const SProjectColourPoint& point = stored.*pair.pStored;
        group.*pair.pPlace = {point.place.fX, point.place.fY};
        group.*pair.pMovable = point.bMovable;
        group.*pair.pDotShown = point.bDotShown;
    }
    group.bVisible = stored.bVisible;
    group.bShowNote = stored.bNoteShown;
    group.bOwnColor = stored.bOwnColour;
    group.nColorR = stored.byRed;
    group.nColorG = stored.byGreen;
    group.nColorB = stored.byBlue;
    group.nPenStyle = stored.nPenStyle;
    group.fPenWidth = stored.fPenWidth;
    return group;
}

/// The groups that a chart starts with.
ColourGroups::Groups FirstGroups()
{
    return {{enOutputColorSpace, ColourGroups::OutputSpace()},
            {enScreenColorSpace, ColourGroups::ScreenSpace()}};
}

ColourGroups::Groups GroupsOf(const SProjectColour& colour)
{
    ColourGroups::Groups groups;
    for (const SProjectColourGroup& stored : colour.listGroups)
        groups.insert(stored.nKey, Group(stored));
    return groups;
}

QPolygonF RegionOf(const SProjectColour& colour)
{
    QPolygonF region;
    for (const SProjectPoint& point : colour.listRegion)
        region.append({double(point.fX), double(point.fY)});
    return region;
}

} // namespace

CProjectColours::CProjectColours(CChartView& view, QObject* pParent)
    : QObject(pParent)
    , m_view(view)
{
    connect(&m_view.Editor(), &CChartEditor::Changed, this, &CProjectColours::Store);
    connect(&m_view.Editor(), &CChartEditor::StepBegan, this, &CProjectColours::StepBegan);
    connect(&m_view.Editor(), &CChartEditor::StepEnded, this, &CProjectColours::StepEnded);
    CProjectDocument& document = CSimulator::Instance().Document();
    connect(&document, &CProjectDocument::OnProjectReplaced, this, &CProjectColours::Load);
    connect(&document, &CProjectDocument::OnProjectChanged, this, &CProjectColours::FollowProject);
}

void CProjectColours::Load()
{
    const std::optional<SProjectColour>& colour = CSimulator::Instance().Project().colour;
    m_bInProject = colour.has_value();
    m_groupsLoaded = m_bInProject ? GroupsOf(*colour) : FirstGroups();
    m_regionLoaded = m_bInProject ? RegionOf(*colour) : QPolygonF();
    m_bRegionOnLoaded = m_bInProject && colour->bRegionOn;
    Show(m_groupsLoaded, m_regionLoaded, m_bRegionOnLoaded);
}

void CProjectColours::FollowProject()
{
    if (m_bBusy || m_view.Editor().IsDragging())
        return;
    const std::optional<SProjectColour>& colour = CSimulator::Instance().Project().colour;
    const ColourGroups::Groups groups = colour ? GroupsOf(*colour) : m_groupsLoaded;
    const QPolygonF region = colour ? RegionOf(*colour) : m_regionLoaded;
    const bool bRegionOn = colour ? colour->bRegionOn : m_bRegionOnLoaded;
    if (!IsShown(groups, region, bRegionOn))
        Show(groups, region, bRegionOn);
}

void CProjectColours::Show(const ColourGroups::Groups& groups, const QPolygonF& region, bool bRegionOn)
{
    const QScopedValueRollback<bool> busy(m_bBusy, true);
    m_view.Editor().EndDrag();
    ColourGroups::Restore(m_view.Chart(), groups);
    m_view.Region().SetPolygon(region);
    m_view.Region().SetOn(bRegionOn);
    m_view.Overlay().update();
    Q_EMIT m_view.Editor().Changed();
    Q_EMIT Loaded();
}

bool CProjectColours::IsShown(const ColourGroups::Groups& groups, const QPolygonF& region,
                              bool bRegionOn) const
{
    return ColourGroups::AreSame(ColourGroups::Take(m_view.Chart()), groups) &&
           m_view.Region().Polygon() == region && m_view.Region().IsOn() == bRegionOn;
}

SProjectColour CProjectColours::Present() const
{
    SProjectColour colour;
    const ColourGroups::Groups groups = ColourGroups::Take(m_view.Chart());
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        colour.listGroups.append(Stored(it.key(), it.value()));
    for (const QPointF& pt : m_view.Region().Polygon())
        colour.listRegion.append({float(pt.x()), float(pt.y())});
    colour.bRegionOn = m_view.Region().IsOn();
    return colour;
}

void CProjectColours::Store()
{
    // A drag counts as one change when it ends.
    if (m_bBusy || m_view.Editor().IsDragging())
        return;
    const QScopedValueRollback<bool> busy(m_bBusy, true);
    CSimulator::Instance().Document().Change([this](SSimulatedProject& project) {
        if (!m_bInProject && IsShown(m_groupsLoaded, m_regionLoaded, m_bRegionOnLoaded))
            project.colour.reset();
        else
            project.colour = Present();
    });
}

void CProjectColours::StoreRegion()
{
    Q_EMIT StepBegan(tr("可行区域"));
    Store();
    Q_EMIT StepEnded();
}

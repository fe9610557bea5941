#include "workbench/colour/ReadingsPanel.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/colour/ChartEditor.h"
#include "workbench/colour/GroupModel.h"
#include "workbench/colour/ReadingsModels.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

/// ms between two readings in a drag. Painting the tables takes longer than a step of the drag itself.
constexpr int c_nPause = 40;

} // namespace

CReadingsPanel::CReadingsPanel(CChartEditor& editor, QWidget* pParent)
    : QWidget(pParent)
    , m_editor(editor)
    , m_pPoints(new CPointReadingsModel(this))
    , m_pCoverage(new CCoverageModel(this))
    , m_pName(new QLabel(this))
    , m_pCoverageCaption(new QLabel(this))
    , m_pPointsTable(CreateTable(m_pPoints))
    , m_pCoverageTable(CreateTable(m_pCoverage))
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pName);
    pLayout->addWidget(m_pPointsTable, m_pPoints->rowCount());
    pLayout->addWidget(m_pCoverageCaption);
    pLayout->addWidget(m_pCoverageTable, m_pCoverage->rowCount());
    m_pause.setSingleShot(true);
    m_pause.setInterval(c_nPause);
    connect(&m_pause, &QTimer::timeout, this, &CReadingsPanel::Refresh);
    connect(&m_editor, &CChartEditor::Changed, this, &CReadingsPanel::Follow);
    Retranslate();
}

QTableView* CReadingsPanel::CreateTable(QAbstractItemModel* pModel)
{
    auto* pTable = new QTableView(this);
    pTable->setTabKeyNavigation(false);
    pTable->setModel(pModel);
    pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    pTable->setAlternatingRowColors(true);
    pTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    pTable->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return pTable;
}

void CReadingsPanel::Retranslate()
{
    m_pCoverageCaption->setText(tr("覆盖的标准"));
    m_pPointsTable->setAccessibleName(tr("所选组的读数"));
    m_pCoverageTable->setAccessibleName(tr("所选组覆盖的标准"));
    m_pPoints->Retranslate();
    m_pCoverage->Retranslate();
    Refresh();
}

void CReadingsPanel::ShowGroup(int nKey)
{
    if (nKey == m_nKey)
        return;
    m_nKey = nKey;
    Refresh();
}

void CReadingsPanel::showEvent(QShowEvent* pEvent)
{
    Refresh();
    QWidget::showEvent(pEvent);
}

void CReadingsPanel::Follow()
{
    if (!m_editor.IsDragging())
        Refresh();
    else if (!m_pause.isActive())
        m_pause.start();
}

void CReadingsPanel::Refresh()
{
    // A panel behind another tab is not visible; it is updated when it comes to the front.
    if (!isVisible())
        return;
    const SChromaGroupInfo* pGroup = m_editor.Chart().m_mapGroups.value(m_nKey, nullptr);
    const std::optional<SGroupReadings> readings =
        pGroup == nullptr ? std::nullopt : std::make_optional(GroupReadings::Of(*pGroup));
    m_pName->setText(pGroup == nullptr ? tr("没有选中的组") : CGroupModel::GroupName(*pGroup));
    m_pPoints->SetReadings(readings);
    m_pCoverage->SetReadings(readings);
}

#include "workbench/colour/GroupPanel.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "workbench/colour/ChartEditor.h"
#include "workbench/colour/GroupDelegate.h"
#include "workbench/colour/GroupModel.h"

#include <QAction>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolTip>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int c_nColumnWidth = 132; ///< pixels: a chromaticity of four digits with its tick

QMenu* StandardsMenu(QWidget* pParent, const std::function<void(enColorStandard)>& funcChosen)
{
    auto* pMenu = new QMenu(pParent);
    for (int i = 0; i < c_nColorStandardCount; ++i)
        pMenu->addAction(
            QStringLiteral("&%1 %2").arg(i + 1).arg(QString::fromLatin1(c_arrColourStandards[i].szName)),
            pParent, [funcChosen, i] { funcChosen(enColorStandard(i)); });
    return pMenu;
}

QString NameOf(enColorStandard standard)
{
    return QString::fromLatin1(c_arrColourStandards[standard].szName);
}

} // namespace

CGroupPanel::CGroupPanel(CChartEditor& editor, QWidget* pParent)
    : QWidget(pParent)
    , m_editor(editor)
    , m_pModel(new CGroupModel(editor, this))
    , m_pTable(new QTableView(this))
    , m_pCoverage(new QLabel(this))
{
    m_pTable->setTabKeyNavigation(false);
    CreateButtons();
    CreateTable();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(CreateBar());
    pLayout->addWidget(m_pTable, 1);
    pLayout->addWidget(m_pCoverage);
    connect(m_pModel, &CGroupModel::Refused, this, &CGroupPanel::Refuse);
    connect(&m_editor, &CChartEditor::Changed, this, &CGroupPanel::Refresh);
    Retranslate();
}

void CGroupPanel::CreateButtons()
{
    m_pAdd = new QPushButton(this);
    m_pAdd->setMenu(StandardsMenu(this, [this](enColorStandard standard) { AddStandard(standard); }));
    m_pAdd->menu()->addSeparator();
    m_pAddPair = m_pAdd->menu()->addAction(QString(), this, &CGroupPanel::AddCoveragePair);
    m_pPreset = new QPushButton(this);
    m_pPreset->setMenu(StandardsMenu(this, [this](enColorStandard standard) { ApplyStandard(standard); }));
    m_pRemove = new QPushButton(this);
    connect(m_pRemove, &QPushButton::clicked, this, &CGroupPanel::RemoveSelected);
}

QWidget* CGroupPanel::CreateBar()
{
    auto* pBar = new QWidget(this);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* pButton : {m_pAdd, m_pPreset, m_pRemove})
        pLayout->addWidget(pButton);
    pLayout->addStretch();
    return pBar;
}

void CGroupPanel::CreateTable()
{
    m_pTable->setModel(m_pModel);
    m_pTable->setItemDelegate(new CGroupDelegate(m_pTable));
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->horizontalHeader()->setDefaultSectionSize(c_nColumnWidth);
    m_pTable->horizontalHeader()->setTextElideMode(Qt::ElideRight);
    m_pTable->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(m_pTable, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.row() == CGroupModel::enColour)
            ChooseColour();
    });
    connect(m_pTable->selectionModel(), &QItemSelectionModel::currentChanged, this, &CGroupPanel::Refresh);
}

/// Says at the cell why what was typed is not there.
void CGroupPanel::Refuse(const QString& strText)
{
    Q_EMIT Reported(strText);
    const QRect rcCell = m_pTable->visualRect(m_pTable->currentIndex());
    const QPoint ptTip = m_pTable->viewport()->mapToGlobal(rcCell.bottomLeft());
    // The editor closes first: the change of focus would hide the tip.
    QMetaObject::invokeMethod(
        this, [this, ptTip, strText] { QToolTip::showText(ptTip, strText, m_pTable); }, Qt::QueuedConnection);
}

void CGroupPanel::Retranslate()
{
    m_pAdd->setText(tr("添加"));
    m_pAddPair->setText(tr("输出和屏幕色彩空间(&O)"));
    m_pPreset->setText(tr("预设"));
    m_pPreset->setToolTip(tr("所选的组取标准的色度坐标"));
    m_pRemove->setText(tr("删除"));
    m_pTable->setAccessibleName(tr("色彩组"));
    Refresh();
}

void CGroupPanel::Refresh()
{
    const int nKey = SelectedKey();
    m_pModel->Refresh();
    const CChromaticityDlgWnd& chart = m_editor.Chart();
    if (SelectedKey() < 0 && !chart.m_mapGroups.isEmpty())
        SelectKey(chart.m_mapGroups.contains(nKey) ? nKey : chart.m_mapGroups.firstKey());
    Q_EMIT GroupSelected(SelectedKey());
    const bool bSelected = SelectedKey() >= 0;
    m_pRemove->setEnabled(bSelected);
    m_pPreset->setEnabled(bSelected);
    m_pAddPair->setEnabled(!chart.m_mapGroups.contains(enOutputColorSpace));
    const std::optional<int> nCoverage = ColourGroups::Coverage(m_editor.Chart());
    m_pCoverage->setText(nCoverage ? tr("屏幕覆盖输出色彩空间的 %1%").arg(*nCoverage)
                                   : tr("没有覆盖率：需要显示输出和屏幕色彩空间"));
}

int CGroupPanel::SelectedKey() const
{
    return m_pModel->Key(m_pTable->currentIndex().column());
}

void CGroupPanel::SelectKey(int nKey)
{
    const int nColumn = m_pModel->Column(nKey);
    if (nColumn < 0)
        return;
    const QModelIndex index = m_pModel->index(qMax(0, m_pTable->currentIndex().row()), nColumn);
    m_pTable->setCurrentIndex(index);
    m_pTable->scrollTo(index);
}

void CGroupPanel::AddStandard(enColorStandard standard)
{
    CChromaticityDlgWnd& chart = m_editor.Chart();
    const int nKey = ColourGroups::FreeKey(chart);
    m_editor.Change(tr("添加 %1").arg(NameOf(standard)),
                    [&] { return chart.AddChromaGroupByIndex(nKey, ColourGroups::OfStandard(standard)); });
    SelectKey(nKey);
    TellStandard(nKey, standard);
}

void CGroupPanel::TellStandard(int nKey, enColorStandard standard)
{
    if (m_editor.Chart().m_mapGroups.firstKey() == nKey)
        Q_EMIT StandardChosen(standard);
}

void CGroupPanel::AddCoveragePair()
{
    CChromaticityDlgWnd& chart = m_editor.Chart();
    m_editor.Change(tr("添加输出和屏幕色彩空间"), [&chart] {
        return chart.AddChromaGroupByIndex(enOutputColorSpace, ColourGroups::OutputSpace()) &&
               chart.AddChromaGroupByIndex(enScreenColorSpace, ColourGroups::ScreenSpace());
    });
    SelectKey(enScreenColorSpace);
}

void CGroupPanel::RemoveSelected()
{
    const int nKey = SelectedKey();
    CChromaticityDlgWnd& chart = m_editor.Chart();
    m_editor.Change(tr("删除组"), [&chart, nKey] {
        if (!ColourGroups::IsCoverageKey(nKey))
            return chart.RemoveChromaGroupByIndex(nKey);
        return chart.RemoveChromaGroupByIndex(enOutputColorSpace) &&
               chart.RemoveChromaGroupByIndex(enScreenColorSpace);
    });
    if (ColourGroups::IsCoverageKey(nKey))
        Q_EMIT Reported(tr("已删除输出和屏幕色彩空间：覆盖率需要两者。"));
}

void CGroupPanel::ApplyStandard(enColorStandard standard)
{
    SChromaGroupInfo* pGroup = m_editor.Chart().GetChromaGroupByIndex(SelectedKey());
    if (pGroup == nullptr)
        return;
    m_editor.Change(tr("预设 %1").arg(NameOf(standard)), [pGroup, standard] {
        ColourGroups::SetStandard(*pGroup, standard);
        return true;
    });
    TellStandard(SelectedKey(), standard);
}

void CGroupPanel::ChooseColour()
{
    const QModelIndex index = m_pModel->index(CGroupModel::enColour, m_pTable->currentIndex().column());
    const QColor color = QColorDialog::getColor(index.data(Qt::DecorationRole).value<QColor>(), this,
                                                tr("组的颜色"), QColorDialog::DontUseNativeDialog);
    if (color.isValid())
        m_pModel->setData(index, color, Qt::EditRole);
}

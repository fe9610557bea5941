#include "workbench/colour/WallPanel.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "reports/WallReport.h"
#include "workbench/SaveDialog.h"
#include "workbench/WholeFile.h"
#include "workbench/colour/MeasurementProblem.h"
#include "workbench/colour/ModuleModel.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

/// A larger file cannot hold measurements and is not read into memory.
constexpr int c_nLargestFile = 64; ///< MB
constexpr qint64 c_nMegabyte = qint64(1024) * 1024;

constexpr double c_dPerCent = 100.0;
constexpr int c_nRowMargin = 6; ///< pixels by which a table row is higher than its text

QString PointText(SChromaticity xy)
{
    return QStringLiteral("%1, %2").arg(xy.dX, 0, 'f', 4).arg(xy.dY, 0, 'f', 4);
}

} // namespace

CWallPanel::CWallPanel(CMeasuredWall& wall, QWidget* pParent)
    : QWidget(pParent)
    , m_wall(wall)
    , m_pModel(new CModuleModel(wall, this))
    , m_pTable(new QTableView(this))
    , m_pSummary(new QLabel(this))
{
    CreateButtons();
    CreateTable();
    m_pSummary->setWordWrap(true);
    m_pSummary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(CreateBar());
    pLayout->addWidget(CreateChoices());
    pLayout->addWidget(m_pTable, 1);
    pLayout->addWidget(m_pSummary);
    connect(&m_wall, &CMeasuredWall::Changed, this, &CWallPanel::Refresh);
    connect(&m_wall, &CMeasuredWall::Unreadable, this,
            [this](const SMeasurementError& error) { Q_EMIT Reported(Show(error)); });
    Retranslate();
}

void CWallPanel::CreateButtons()
{
    m_pImport = new QPushButton(this);
    m_pPaste = new QPushButton(this);
    m_pExport = new QPushButton(this);
    m_pReport = new QPushButton(this);
    m_pClear = new QPushButton(this);
    connect(m_pReport, &QPushButton::clicked, this, &CWallPanel::ChooseReport);
    connect(m_pImport, &QPushButton::clicked, this, &CWallPanel::ChooseImport);
    connect(m_pPaste, &QPushButton::clicked, this, &CWallPanel::Paste);
    connect(m_pExport, &QPushButton::clicked, this, &CWallPanel::ChooseExport);
    connect(m_pClear, &QPushButton::clicked, this, &CWallPanel::Clear);
}

QWidget* CWallPanel::CreateBar()
{
    auto* pBar = new QWidget(this);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* pButton : {m_pImport, m_pPaste, m_pExport, m_pReport, m_pClear})
        pLayout->addWidget(pButton);
    return pBar;
}

QWidget* CWallPanel::CreateChoices()
{
    auto* pChoices = new QWidget(this);
    m_pStandardCaption = new QLabel(pChoices);
    m_pStandard = new QComboBox(pChoices);
    m_pStandardCaption->setBuddy(m_pStandard);
    for (const SColourStandard& standard : c_arrColourStandards)
        m_pStandard->addItem(QString::fromLatin1(standard.szName));
    m_pStandard->setCurrentIndex(m_wall.Standard());
    m_pShown = new QCheckBox(pChoices);
    m_pShown->setChecked(true);
    auto* pLayout = new QHBoxLayout(pChoices);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pStandardCaption);
    pLayout->addWidget(m_pStandard);
    pLayout->addStretch();
    pLayout->addWidget(m_pShown);
    connect(m_pStandard, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int nIndex) { m_wall.SetStandard(enColorStandard(nIndex)); });
    connect(m_pShown, &QCheckBox::toggled, this, &CWallPanel::ShownOnChart);
    return pChoices;
}

void CWallPanel::CreateTable()
{
    m_pTable->setTabKeyNavigation(false);
    auto* pSorted = new QSortFilterProxyModel(this);
    pSorted->setSourceModel(m_pModel);
    pSorted->setSortRole(CModuleModel::c_nSortRole);
    m_pTable->setModel(pSorted);
    m_pTable->setSortingEnabled(true);
    m_pTable->sortByColumn(CModuleModel::enName, Qt::AscendingOrder);
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->verticalHeader()->hide();
    m_pTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + c_nRowMargin);
    QHeaderView* const pHeader = m_pTable->horizontalHeader();
    pHeader->setSectionResizeMode(QHeaderView::ResizeToContents);
    pHeader->setSectionResizeMode(CModuleModel::enOdd, QHeaderView::Stretch);
}

void CWallPanel::Retranslate()
{
    m_pImport->setText(tr("导入..."));
    m_pPaste->setText(tr("粘贴"));
    m_pPaste->setToolTip(tr("从电子表格复制的测量数据，含表头"));
    m_pExport->setText(tr("导出..."));
    m_pReport->setText(tr("报告..."));
    m_pReport->setToolTip(tr("两页 PDF：色度图和表格"));
    m_pClear->setText(tr("清除"));
    m_pStandardCaption->setText(tr("标准"));
    m_pShown->setText(tr("在图上显示"));
    m_pTable->setAccessibleName(tr("测量的模组"));
    m_pModel->Retranslate();
    Refresh();
}

void CWallPanel::Refresh()
{
    m_pExport->setEnabled(!m_wall.IsEmpty());
    m_pReport->setEnabled(bool(m_wall.Analysis()));
    m_pClear->setEnabled(!m_wall.IsEmpty());
    if (m_wall.Analysis())
        m_pSummary->setText(Describe(*m_wall.Analysis()));
    else
        m_pSummary->setText(
            tr("导入或粘贴各模组的测量数据（CSV）：每个模组一行，例如 module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY。"));
}

QString CWallPanel::Summary() const
{
    return m_pSummary->text();
}

QString CWallPanel::Describe(const SWallAnalysis& analysis) const
{
    const SReading& white = analysis.spread.arrMean[std::size_t(enWallColour::enWhite)];
    const QString strTemperature = analysis.temperature ? tr("，相关色温 %1 K，Duv %2")
                                                              .arg(analysis.temperature->dKelvin, 0, 'f', 0)
                                                              .arg(analysis.temperature->dDuv, 0, 'f', 4)
                                                        : QString();
    return tr("%1 个模组，%2 个异常。平均白点 %3，%4 cd/m²%5。")
               .arg(m_wall.GetModules().size())
               .arg(analysis.spread.OddCount())
               .arg(PointText(white.xy))
               .arg(white.dLuminance, 0, 'f', 0)
               .arg(strTemperature) +
           QLatin1Char('\n') + DescribeCommon(analysis) + QLatin1Char('\n') + DescribeFit(analysis);
}

QString CWallPanel::DescribeCommon(const SWallAnalysis& analysis) const
{
    if (!analysis.common)
        return tr("没有公共色域：%1。").arg(MeasurementProblem::Text(analysis.common.Fault()));
    return tr("校正后共同的白点 %1 最高 %2 cd/m²，受限于模组 %3。")
        .arg(PointText(analysis.common->white))
        .arg(analysis.common->dLevel, 0, 'f', 0)
        .arg(m_wall.GetModules()[analysis.common->nLimitingModule].strName);
}

QString CWallPanel::DescribeFit(const SWallAnalysis& analysis) const
{
    const QString strName = QString::fromLatin1(c_arrColourStandards[m_wall.Standard()].szName);
    if (!analysis.fit)
        return tr("无法显示 %1：%2。").arg(strName, MeasurementProblem::Text(analysis.fit.Fault()));
    const Gamut::SStandardCoverage& coverage = analysis.arrMeanCoverage[m_wall.Standard()];
    return tr("%1：覆盖 xy %2%，u'v' %3%；%4% 的颜色超出范围。")
        .arg(strName)
        .arg(coverage.xy.dCovered * c_dPerCent, 0, 'f', 1)
        .arg(coverage.ucs.dCovered * c_dPerCent, 0, 'f', 1)
        .arg(analysis.fit->clip.dClipped * c_dPerCent, 0, 'f', 1);
}

QString CWallPanel::Show(const SMeasurementError& error)
{
    QString strText = MeasurementProblem::Text(error);
    m_pSummary->setText(strText);
    return strText;
}

bool CWallPanel::Report(const std::optional<SMeasurementError>& error)
{
    if (error)
        Q_EMIT Failed(tr("无法导入测量数据。%1。\n原来的数据没有改变。请更正后重试。").arg(Show(*error)));
    else
        Q_EMIT Reported(tr("已导入 %1 个模组").arg(m_wall.GetModules().size()));
    return !error;
}

bool CWallPanel::ImportFile(const QString& strFile)
{
    QFile file(strFile);
    const bool bOpen = file.open(QIODevice::ReadOnly);
    if (bOpen && file.size() <= c_nLargestFile * c_nMegabyte)
        return Report(m_wall.Import(file.readAll()));
    const QString strReason = bOpen ? tr("文件大于 %1 MB").arg(c_nLargestFile) : file.errorString();
    Q_EMIT Failed(tr("无法读取 %1：%2。请选择别的文件。").arg(QDir::toNativeSeparators(strFile), strReason));
    return false;
}

bool CWallPanel::Paste()
{
    return Report(m_wall.Import(QGuiApplication::clipboard()->text()));
}

bool CWallPanel::ExportFile(const QString& strFile)
{
    return Save(strFile, m_wall.Text().toUtf8());
}

bool CWallPanel::SaveReport(const QString& strFile)
{
    if (!m_wall.Analysis())
        return false;
    return Save(strFile, WallReport::Pdf(m_wall.GetModules(), *m_wall.Analysis(),
                                         c_arrColourStandards[m_wall.Standard()], tr("测量的屏幕")));
}

bool CWallPanel::Save(const QString& strFile, const QByteArray& content)
{
    const QString strError = WholeFile::Write(strFile, content);
    const QString strName = QDir::toNativeSeparators(strFile);
    if (strError.isEmpty())
        Q_EMIT Reported(tr("已保存 %1").arg(strName));
    else
        Q_EMIT Failed(tr("无法写入 %1：%2。请选择别的位置。").arg(strName, strError));
    return strError.isEmpty();
}

void CWallPanel::Clear()
{
    m_wall.Clear();
}

void CWallPanel::ChooseImport()
{
    const QString strFile =
        QFileDialog::getOpenFileName(this, tr("导入测量数据"), QString(), tr("测量数据 (*.csv *.tsv *.txt)"));
    if (!strFile.isEmpty())
        ImportFile(strFile);
}

void CWallPanel::ChooseReport()
{
    const QString strFile =
        SaveDialog::Ask(this, tr("保存报告"), QStringLiteral("wall.pdf"), tr("报告 (*.pdf)"));
    if (!strFile.isEmpty())
        SaveReport(strFile);
}

void CWallPanel::ChooseExport()
{
    const QString strFile =
        SaveDialog::Ask(this, tr("导出测量数据"), QStringLiteral("wall.csv"), tr("测量数据 (*.csv)"));
    if (!strFile.isEmpty())
        ExportFile(strFile);
}

#include "workbench/JournalDock.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/JournalFilter.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int c_nMargins = 16; ///< of a cell's text on both sides, pixels

/// A text for which a column has room; the call takes what is left.
struct SColumnWidth
{
    int nColumn;
    const char* szSample;
};

constexpr SColumnWidth c_arrColumnWidths[] = {
    {CHostJournal::enColumnNumber, "20000"},           {CHostJournal::enColumnTime, "00:00:00.000"},
    {CHostJournal::enColumnCategory, "write"},         {CHostJournal::enColumnObject, "CVideoSourceLogic"},
    {CHostJournal::enColumnResult, "failed 12345678"}, {CHostJournal::enColumnDuration, "1000.000"},
};

/// Asks for the height of a few rows: a low screen has no room for more, and a high one is given it.
class CJournalTable : public QTableView
{
public:
    using QTableView::QTableView;

    QSize sizeHint() const override
    {
        constexpr int c_nRows = 5;
        const int nRows = c_nRows * verticalHeader()->defaultSectionSize();
        return {QTableView::sizeHint().width(),
                horizontalHeader()->sizeHint().height() + nRows + 2 * frameWidth()};
    }
};

} // namespace

CJournalDock::CJournalDock(QWidget* pParent)
    : QDockWidget(pParent)
    , m_pFilter(new CJournalFilter(CSimulator::Instance().Journal(), this))
{
    setObjectName(QStringLiteral("journalDock"));
    auto* pContent = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pContent);
    pLayout->setContentsMargins(4, 4, 4, 4);
    pLayout->addWidget(CreateBar());
    pLayout->addWidget(CreateTable());
    setWidget(pContent);
    Retranslate();
}

QWidget* CJournalDock::CreateBar()
{
    auto* pBar = new QWidget(this);
    m_pText = new QLineEdit(pBar);
    m_pText->setClearButtonEnabled(true);
    m_pReads = new QCheckBox(pBar);
    m_pReads->setChecked(true);
    m_pFold = new QCheckBox(pBar);
    m_pFold->setObjectName(QStringLiteral("foldReads"));
    m_pFold->setChecked(true);
    m_pCopy = new QPushButton(pBar);
    m_pClear = new QPushButton(pBar);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pText, 1);
    pLayout->addWidget(m_pReads);
    pLayout->addWidget(m_pFold);
    pLayout->addWidget(m_pCopy);
    pLayout->addWidget(m_pClear);
    connect(m_pText, &QLineEdit::textChanged, m_pFilter, &CJournalFilter::SetText);
    connect(m_pReads, &QCheckBox::toggled, m_pFilter, &CJournalFilter::SetReadsShown);
    connect(m_pFold, &QCheckBox::toggled, m_pFilter, &CJournalFilter::SetRepeatsFolded);
    connect(m_pReads, &QCheckBox::toggled, m_pFold, &QCheckBox::setEnabled);
    connect(m_pCopy, &QPushButton::clicked, this, &CJournalDock::CopySelected);
    connect(m_pClear, &QPushButton::clicked, this, [] { CSimulator::Instance().Journal().Clear(); });
    return pBar;
}

QWidget* CJournalDock::CreateTable()
{
    m_pTable = new CJournalTable(this);
    m_pTable->setModel(m_pFilter);
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->setWordWrap(false);
    m_pTable->setTabKeyNavigation(false);
    m_pTable->verticalHeader()->hide();
    m_pTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    m_pTable->horizontalHeader()->setSectionResizeMode(CHostJournal::enColumnCall, QHeaderView::Stretch);
    for (const SColumnWidth& column : c_arrColumnWidths)
        m_pTable->setColumnWidth(column.nColumn,
                                 fontMetrics().horizontalAdvance(QString::fromLatin1(column.szSample)) +
                                     c_nMargins);
    m_pCopyAction = new QAction(m_pTable);
    m_pCopyAction->setShortcut(QKeySequence::Copy);
    m_pCopyAction->setShortcutContext(Qt::WidgetShortcut);
    m_pTable->addAction(m_pCopyAction);
    m_pTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_pCopyAction, &QAction::triggered, this, &CJournalDock::CopySelected);
    connect(m_pFilter, &QAbstractItemModel::rowsInserted, m_pTable, &QTableView::scrollToBottom);
    return m_pTable;
}

void CJournalDock::Retranslate()
{
    setWindowTitle(tr("主机调用记录"));
    m_pText->setPlaceholderText(tr("筛选"));
    m_pText->setAccessibleName(tr("筛选主机调用"));
    m_pReads->setText(tr("显示读取"));
    m_pFold->setText(tr("合并重复的读取"));
    m_pTable->setAccessibleName(windowTitle());
    m_pCopyAction->setText(tr("复制(&C)"));
    m_pCopy->setText(tr("复制"));
    m_pClear->setText(tr("清空"));
}

void CJournalDock::SetFilterText(const QString& strText)
{
    m_pText->setText(strText);
}

QString CJournalDock::Lines(const QModelIndexList& listRows) const
{
    QStringList listLines;
    for (const QModelIndex& index : listRows)
        listLines.append(index.data(CHostJournal::enRoleLine).toString());
    return listLines.join(QLatin1Char('\n'));
}

QString CJournalDock::ShownLines() const
{
    QModelIndexList listRows;
    for (int i = 0; i < m_pFilter->rowCount(); ++i)
        listRows.append(m_pFilter->index(i, 0));
    return Lines(listRows);
}

void CJournalDock::CopySelected()
{
    QModelIndexList listRows = m_pTable->selectionModel()->selectedRows();
    std::sort(listRows.begin(), listRows.end());
    // Nothing selected: everything that is shown.
    QGuiApplication::clipboard()->setText(listRows.isEmpty() ? ShownLines() : Lines(listRows));
}

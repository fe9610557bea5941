#include "workbench/addresses/AddressPage.h"

#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/addresses/AddressEditor.h"
#include "workbench/addresses/AddressListModel.h"
#include "workbench/addresses/VerdictText.h"

#include <QAction>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int c_nMaxProcessors = 5; ///< rows that the address dialog's fixed size shows
constexpr QSize c_sizeCheck(180, 25);

} // namespace

CAddressPage::CAddressPage(std::function<bool()> funcMayLeave, QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_pEditor(new CAddressEditor(std::move(funcMayLeave), this))
    , m_pModel(new CAddressListModel(this))
    , m_pTable(new QTableView(this))
    , m_pReport(new QLabel(this))
    , m_captions(staticMetaObject.className())
{
    m_pTable->setModel(m_pModel);
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->setTabKeyNavigation(false);
    m_pTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_pTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_pReport->setObjectName(QStringLiteral("report"));
    m_pReport->setWordWrap(true);
    auto* pMiddle = new QHBoxLayout;
    pMiddle->addWidget(m_pTable, 1);
    pMiddle->addWidget(CreateButtons());
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pMiddle, 1);
    pLayout->addWidget(m_pReport);
    pLayout->addWidget(CreateCheckRow());

    connect(m_pEditor, &CAddressEditor::Reported, m_pReport, &QLabel::setText);
    connect(m_pEditor, &CAddressEditor::Reported, this, &CAddressPage::Reported);
    connect(m_pEditor, &CAddressEditor::Failed, this, &CAddressPage::Failed);
    connect(m_pEditor, &CAddressEditor::StepBegan, this,
            [this](const QString& strText) { Q_EMIT StepBegan(strText); });
    connect(m_pEditor, &CAddressEditor::StepEnded, this, &CAddressPage::StepEnded);
    const CProjectDocument& document = CSimulator::Instance().Document();
    connect(&document, &CProjectDocument::OnProjectReplaced, this, &CAddressPage::Refresh);
    connect(&document, &CProjectDocument::OnProjectReplaced, m_pReport, &QLabel::clear);
    connect(&document, &CProjectDocument::OnProjectChanged, this, [this](const SProjectChange& change) {
        if (change.bAddresses)
            Refresh();
    });
    connect(m_pTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CAddressPage::EnableActions);
    connect(m_pTable, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { m_pEditor->Modify(index.row()); });
    CAddressPage::Retranslate();
}

CAddressPage::~CAddressPage() = default;

QPushButton* CAddressPage::CreateButton(const char* szName, const char* szText,
                                        const std::function<void()>& funcDo)
{
    auto* pButton = new QPushButton(this);
    pButton->setObjectName(QString::fromLatin1(szName));
    m_captions.Add(pButton, "text", szText);
    connect(pButton, &QPushButton::clicked, this, funcDo);
    return pButton;
}

/// A button for selected entries; the same stands in the list's context menu, and its keys work in the list.
QPushButton* CAddressPage::CreateEntryButton(const char* szName, const char* szText, enNeeds needs,
                                             const QList<QKeySequence>& listKeys,
                                             const std::function<void()>& funcDo)
{
    QPushButton* pButton = CreateButton(szName, szText, funcDo);
    auto* pAction = new QAction(this);
    pAction->setShortcuts(listKeys);
    pAction->setShortcutContext(Qt::WidgetShortcut);
    connect(pAction, &QAction::triggered, this, funcDo);
    connect(pAction, &QAction::changed, pButton,
            [pAction, pButton] { pButton->setEnabled(pAction->isEnabled()); });
    m_pTable->addAction(pAction);
    m_vecEntryActions.push_back({pAction, szText, needs});
    return pButton;
}

QWidget* CAddressPage::CreateButtons()
{
    auto* pPanel = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(CreateButton("batch", QT_TR_NOOP("批量添加..."), [this] { m_pEditor->AddBatch(); }));
    pLayout->addWidget(CreateSetBox());
    pLayout->addWidget(CreateEntryButton("modify", QT_TR_NOOP("修改(&M)..."), enNeeds::enOneEntry,
                                         {Qt::Key_Return, Qt::Key_Enter},
                                         [this] { m_pEditor->Modify(SelectedRows().first()); }));
    pLayout->addWidget(CreateEntryButton("reset", QT_TR_NOOP("恢复原样(&R)"), enNeeds::enEntries, {},
                                         [this] { m_pEditor->Reset(SelectedRows()); }));
    pLayout->addWidget(CreateEntryButton("remove", QT_TR_NOOP("删除(&D)"), enNeeds::enEntries,
                                         {QKeySequence::Delete},
                                         [this] { m_pEditor->Remove(SelectedRows()); }));
    pLayout->addWidget(
        CreateButton("byHand", QT_TR_NOOP("手动添加主控..."), [this] { m_pEditor->AddByHand(); }));
    pLayout->addWidget(
        CreateButton("demo", QT_TR_NOOP("新建演示工程..."), [this] { m_pEditor->StartDemo(); }));
    pLayout->addStretch();
    return pPanel;
}

/// The number of processors belongs to one button alone.
QWidget* CAddressPage::CreateSetBox()
{
    auto* pBox = new QGroupBox(this);
    auto* pCaption = new QLabel(pBox);
    m_pCount = new QSpinBox(pBox);
    m_pCount->setObjectName(QStringLiteral("count"));
    m_pCount->setRange(1, c_nMaxProcessors);
    pCaption->setBuddy(m_pCount);
    m_captions.Add(pBox, "title", QT_TR_NOOP("逐个设置地址"));
    m_captions.Add(pCaption, "text", QT_TR_NOOP("主控数量"));
    auto* pForm = new QFormLayout(pBox);
    pForm->addRow(pCaption, m_pCount);
    pForm->addRow(CreateButton("set", QT_TR_NOOP("设置地址..."),
                               [this] { m_pEditor->SetAddresses(m_pCount->value()); }));
    return pBox;
}

QWidget* CAddressPage::CreateCheckRow()
{
    auto* pRow = new QWidget(this);
    auto* pCaption = new QLabel(pRow);
    m_pCheck = new CCustomIPEdit(pRow);
    m_pCheck->setFixedSize(c_sizeCheck);
    m_pVerdict = new QLabel(pRow);
    m_captions.Add(pCaption, "text", QT_TR_NOOP("检查地址"));
    m_captions.Add(m_pCheck, "accessibleName", QT_TR_NOOP("要检查的地址"));
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pCaption);
    pLayout->addWidget(m_pCheck);
    pLayout->addWidget(m_pVerdict, 1);
    connect(m_pCheck, &CCustomIPEdit::textChanged, this, &CAddressPage::ShowVerdict);
    return pRow;
}

QString CAddressPage::Title() const
{
    return tr("地址");
}

void CAddressPage::ShowSelection(const SSelection& selection)
{
    // The list is the project's, not a sender's.
    Q_UNUSED(selection)
}

void CAddressPage::Retranslate()
{
    m_captions.Retranslate();
    for (const SEntryAction& action : m_vecEntryActions)
        action.pAction->setText(tr(action.szText));
    m_pTable->setAccessibleName(tr("主控的地址"));
    // It is in the language in which it was said.
    m_pReport->clear();
    Refresh();
}

void CAddressPage::Refresh()
{
    const QList<int> listRows = SelectedRows();
    m_pModel->Refresh();
    // Of removed entries, the one that follows takes over.
    if (!listRows.isEmpty())
        SelectRow(std::min(listRows.first(), m_pModel->rowCount() - 1));
    EnableActions();
    ShowVerdict();
}

void CAddressPage::EnableActions()
{
    const int nSelected = int(SelectedRows().size());
    for (const SEntryAction& action : m_vecEntryActions)
        action.pAction->setEnabled(action.needs == enNeeds::enOneEntry ? nSelected == 1 : nSelected > 0);
}

void CAddressPage::ShowVerdict()
{
    m_pVerdict->setText(m_pCheck->text().isEmpty() ? QString() : VerdictText::OfText(m_pCheck->text()));
}

void CAddressPage::CheckAddress(const QString& strAddress)
{
    m_pCheck->setText(strAddress);
}

QString CAddressPage::ShownVerdict() const
{
    return m_pVerdict->text();
}

QList<int> CAddressPage::SelectedRows() const
{
    QList<int> listRows;
    for (const QModelIndex& index : m_pTable->selectionModel()->selectedRows())
        listRows.append(index.row());
    std::sort(listRows.begin(), listRows.end());
    return listRows;
}

void CAddressPage::SelectRow(int nRow)
{
    if (nRow >= 0 && nRow < m_pModel->rowCount())
        m_pTable->selectRow(nRow);
}

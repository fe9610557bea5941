#include "workbench/edid/EdidPage.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"
#include "workbench/edid/BytePanes.h"
#include "workbench/edid/EdidColours.h"
#include "workbench/edid/EdidMemoryUpdater.h"
#include "workbench/edid/EdidSources.h"
#include "workbench/edid/FieldModel.h"
#include "workbench/edid/FieldTree.h"
#include "workbench/edid/FindingList.h"
#include "workbench/edid/InputHead.h"

#include <QAction>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QString ChangeText(bool bFirst, int nChanged)
{
    if (bFirst)
        return CEdidPage::tr("EDID 存储器原来是空的，已写入 128 个字节。");
    if (nChanged == 0)
        return CEdidPage::tr("EDID 存储器没有变化。");
    return CEdidPage::tr("EDID 存储器更改了 %1 个字节（以颜色标出）。").arg(nChanged);
}

QString OriginText(const SEdidContent& content)
{
    switch (content.origin) {
    case enEdidOrigin::enMemory:
        return CEdidPage::tr("%1 的 EDID 存储器").arg(content.strName);
    case enEdidOrigin::enFile:
        return CEdidPage::tr("文件 %1").arg(content.strName);
    case enEdidOrigin::enPasted:
        return content.strName.isEmpty() ? CEdidPage::tr("粘贴的文本")
                                         : CEdidPage::tr("粘贴的文本，%1").arg(content.strName);
    case enEdidOrigin::enBuilt:
        return CEdidPage::tr("为 %1 构建的块").arg(content.strName);
    default:
        return {};
    }
}

QString ContentText(const SEdidContent& content)
{
    const int nBlocks = int(content.bytes.size()) / c_nEdidBlockSize;
    const QString strOrigin = OriginText(content);
    const QString strShown = content.bEdited ? CEdidPage::tr("%1（已修改）").arg(strOrigin) : strOrigin;
    return nBlocks > 1 ? CEdidPage::tr("%1，%2 个块").arg(strShown).arg(nBlocks) : strShown;
}

} // namespace

const CEdidPage::SActionRow CEdidPage::c_arrActions[] = {
    {"edidOpen", QT_TR_NOOP("打开..."), QT_TR_NOOP("打开 EDID 文件；也可以把文件拖到这里"), "Ctrl+Shift+O",
     enOpen, &CEdidPage::Open},
    {"edidPaste", QT_TR_NOOP("粘贴"), QT_TR_NOOP("粘贴十六进制文本、xxd、C 数组、JSON 或 xrandr 的输出"),
     "Ctrl+V", enPaste, &CEdidPage::Paste},
    {"edidMemory", QT_TR_NOOP("发送器的存储器"), QT_TR_NOOP("显示所选输入的 EDID 存储器"), "F5", enMemory,
     &CEdidPage::LoadMemory},
    {"edidBuild", QT_TR_NOOP("构建块"), nullptr, nullptr, enBuild, &CEdidPage::Build},
    {"edidCompareFile", QT_TR_NOOP("与文件比较(&F)..."), nullptr, "Ctrl+Shift+D", enCompareFile,
     &CEdidPage::ChooseAndCompare},
    {"edidComparePaste", QT_TR_NOOP("与剪贴板中的文本比较(&T)"), nullptr, "Ctrl+Shift+V", enComparePaste,
     &CEdidPage::ComparePasted},
    {"edidCompareMemory", QT_TR_NOOP("与发送器的存储器比较(&M)"), nullptr, "Shift+F5", enCompareMemory,
     &CEdidPage::CompareMemory},
    {"edidEndComparison", QT_TR_NOOP("结束比较(&E)"), nullptr, nullptr, enEndComparison,
     &CEdidPage::EndComparison},
    {"edidNext", QT_TR_NOOP("下一处不同"), QT_TR_NOOP("显示下一个不同的字段"), "F8", enNext,
     &CEdidPage::ShowNextDifference},
    {"edidPrevious", QT_TR_NOOP("上一处不同(&P)"), nullptr, "Shift+F8", enPrevious,
     &CEdidPage::ShowPreviousDifference},
    {"edidUndo", QT_TR_NOOP("撤销"), QT_TR_NOOP("撤销对块的更改 (Ctrl+Z)"), nullptr, enUndo,
     &CEdidPage::Undo},
    {"edidRedo", QT_TR_NOOP("重做"), QT_TR_NOOP("重做对块的更改 (Ctrl+Shift+Z)"), nullptr, enRedo,
     &CEdidPage::Redo},
    {"edidFix", QT_TR_NOOP("全部修复"), QT_TR_NOOP("更正标头、扩展块数目和校验和"), nullptr, enFix,
     &CEdidPage::Fix},
    {"edidSave", QT_TR_NOOP("保存块..."), QT_TR_NOOP("保存为二进制、十六进制文本、C 数组或 JSON"), nullptr,
     enSave, &CEdidPage::ChooseFileAndSave},
    {"edidWrite", QT_TR_NOOP("写入存储器"), QT_TR_NOOP("写入所选输入的 EDID 存储器"), nullptr, enWrite,
     &CEdidPage::Write},
};

CEdidPage::CEdidPage(QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_pDocument(new CEdidDocument(this))
    , m_pModel(new CFieldModel(*m_pDocument, this))
    , m_pUpdater(new CEdidMemoryUpdater(this))
{
    setAcceptDrops(true);
    CreateActions();
    m_pChange = new QLabel(this);
    m_pChange->setObjectName(QStringLiteral("edidMessage"));
    m_pChange->setWordWrap(true);
    auto* pLayout = new QVBoxLayout(this);
    m_pHead = new CInputHead(this);
    pLayout->addWidget(m_pHead);
    pLayout->addWidget(CreateBars());
    m_pStack = new QStackedWidget(this);
    m_pStack->addWidget(CreateMemoryView());
    m_pStack->addWidget(CreatePlaceholder());
    pLayout->addWidget(m_pStack, 1);
    m_pFindings = new CFindingList(this);
    m_pFindings->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    pLayout->addWidget(m_pFindings);
    pLayout->addWidget(m_pChange);
    connect(m_pHead, &CInputHead::EditPressed, this, &CEdidPage::EditEdid);
    connect(m_pFindings, &CFindingList::FindingChosen, this, &CEdidPage::MarkFinding);
    connect(m_pDocument, &CEdidDocument::Changed, this, &CEdidPage::ShowDocument);
    connect(&m_pDocument->Steps(), &QUndoStack::indexChanged, this, &CEdidPage::EnableActions);
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged, this,
            &CEdidPage::Refresh);
    connect(
        m_pUpdater, &CEdidMemoryUpdater::BlockStored, this,
        [this](int nSender, int nInterfaceId, const QByteArray& blockBefore, const QByteArray& blockAfter) {
            if (nSender == m_selection.nSender && nInterfaceId == m_selection.nInterfaceId)
                ShowChange(blockBefore, blockAfter);
        });
    // An empty document announces no change when the first selection has no memory either.
    ShowDocument();
    CEdidPage::Retranslate();
}

void CEdidPage::CreateActions()
{
    for (const SActionRow& row : c_arrActions) {
        auto* pAction = new QAction(this);
        pAction->setObjectName(QString::fromLatin1(row.szName));
        pAction->setShortcut(QKeySequence(QString::fromLatin1(row.szKeys)));
        pAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(pAction, &QAction::triggered, this, row.pDo);
        addAction(pAction);
        m_arrActions[row.action] = pAction;
    }
}

QToolButton* CEdidPage::CreateButton(enAction action)
{
    auto* pButton = new QToolButton(this);
    pButton->setDefaultAction(m_arrActions[action]);
    pButton->setObjectName(m_arrActions[action]->objectName() + QStringLiteral("Button"));
    pButton->setFocusPolicy(Qt::StrongFocus);
    return pButton;
}

QWidget* CEdidPage::CreateBars()
{
    auto* pBars = new QWidget(this);
    m_pSource = new QLabel(pBars);
    m_pSource->setObjectName(QStringLiteral("edidSource"));
    m_pSource->setWordWrap(true);
    auto* pSources = new QHBoxLayout;
    pSources->addWidget(m_pSource, 1);
    for (const enAction action : {enOpen, enPaste, enMemory})
        pSources->addWidget(CreateButton(action));
    m_pCompare = new QToolButton(pBars);
    m_pCompare->setObjectName(QStringLiteral("edidCompareButton"));
    m_pCompare->setPopupMode(QToolButton::InstantPopup);
    m_pCompare->setFocusPolicy(Qt::StrongFocus);
    auto* pMenu = new QMenu(m_pCompare);
    for (const enAction action :
         {enCompareFile, enComparePaste, enCompareMemory, enPrevious, enEndComparison})
        pMenu->addAction(m_arrActions[action]);
    m_pCompare->setMenu(pMenu);
    auto* pWork = new QHBoxLayout;
    pWork->addWidget(m_pCompare);
    pWork->addWidget(CreateButton(enNext));
    pWork->addStretch();
    for (const enAction action : {enUndo, enRedo, enFix, enSave, enWrite})
        pWork->addWidget(CreateButton(action));
    auto* pLayout = new QVBoxLayout(pBars);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(pSources);
    pLayout->addLayout(pWork);
    return pBars;
}

QWidget* CEdidPage::CreatePlaceholder()
{
    auto* pPlaceholder = new QWidget(this);
    m_pEmpty = new QLabel(pPlaceholder);
    m_pEmpty->setObjectName(QStringLiteral("edidEmpty"));
    m_pEmpty->setWordWrap(true);
    m_pEmpty->setAlignment(Qt::AlignCenter);
    auto* pLayout = new QVBoxLayout(pPlaceholder);
    pLayout->addStretch();
    pLayout->addWidget(m_pEmpty);
    pLayout->addWidget(CreateButton(enBuild), 0, Qt::AlignHCenter);
    pLayout->addStretch();
    return pPlaceholder;
}

QWidget* CEdidPage::CreateMemoryView()
{
    auto* pSplitter = new QSplitter(this);
    m_pFields = new CFieldTree(*m_pModel, pSplitter);
    QHeaderView* pHeader = m_pFields->header();
    pHeader->setStretchLastSection(false);
    pHeader->setSectionResizeMode(CFieldModel::enValue, QHeaderView::Stretch);
    pHeader->setSectionResizeMode(CFieldModel::enOther, QHeaderView::Stretch);
    pSplitter->addWidget(m_pFields);
    m_pBytes = new CBytePanes(pSplitter);
    pSplitter->addWidget(m_pBytes);
    pSplitter->setStretchFactor(0, 1);
    pSplitter->setCollapsible(1, false);
    connect(m_pFields, &CFieldTree::CurrentMoved, this, &CEdidPage::MarkSelectedField);
    connect(m_pFields, &CFieldTree::Refused, this, &CEdidPage::SayRefusal);
    connect(m_pBytes, &CBytePanes::ByteChosen, this, &CEdidPage::SelectFieldOfByte);
    return pSplitter;
}

QString CEdidPage::Title() const
{
    return tr("EDID");
}

void CEdidPage::Retranslate()
{
    m_pHead->Retranslate();
    for (const SActionRow& row : c_arrActions) {
        QAction* pAction = m_arrActions[row.action];
        pAction->setText(tr(row.szText));
        // A button would leave the dots out.
        pAction->setIconText(tr(row.szText));
        const QString strKey = pAction->shortcut().toString(QKeySequence::NativeText);
        const QString strTip = tr(row.szToolTip != nullptr ? row.szToolTip : row.szText);
        pAction->setToolTip(strKey.isEmpty() ? strTip : QStringLiteral("%1 (%2)").arg(strTip, strKey));
    }
    m_pCompare->setText(tr("比较"));
    m_pFields->setAccessibleName(tr("EDID 字段"));
    m_pBytes->Retranslate();
    m_pModel->Retranslate();
    m_pFindings->Retranslate();
    Refresh();
    ShowSource();
}

const SSimulatedInput* CEdidPage::Input() const
{
    const SSimulatedSender* pSender = CSimulator::Instance().Project().FindSender(m_selection.nSender);
    return pSender == nullptr ? nullptr : pSender->FindInput(m_selection.nInterfaceId);
}

SEdidSetting CEdidPage::Setting() const
{
    const SSimulatedInput* pInput = Input();
    if (pInput != nullptr && pInput->setting)
        return *pInput->setting;
    SEdidSetting setting;
    setting.wWidth = 1920;
    setting.wHeight = 1080;
    setting.byRate = 60;
    return setting;
}

SEdidContent CEdidPage::Memory() const
{
    const SSimulatedInput* pInput = Input();
    if (pInput == nullptr)
        return {};
    return {pInput->baEdid, enEdidOrigin::enMemory, pInput->strName, false};
}

void CEdidPage::ShowSelection(const SSelection& selection)
{
    m_selection = selection;
    m_vecChanged.clear();
    Say(QString());
    Refresh();
}

void CEdidPage::Refresh()
{
    const SSimulatedInput* pInput = Input();
    m_pHead->Show(pInput);
    TakeMemory();
    m_arrActions[enBuild]->setIconText(tr("构建 %1 的块").arg(ModeText::Of(Setting())));
    m_pEmpty->setText(Emptiness());
    EnableActions();
}

/// Another memory replaces what is shown as long as nothing else was loaded or changed.
void CEdidPage::TakeMemory()
{
    const SEdidContent memory = Memory();
    const bool bSame = memory.bytes == m_memory.bytes && memory.strName == m_memory.strName &&
                       memory.origin == m_memory.origin;
    m_memory = memory;
    if (!bSame && m_pDocument->IsFollowing())
        m_pDocument->Follow(memory);
}

QString CEdidPage::Emptiness() const
{
    const SSimulatedInput* pInput = Input();
    if (pInput == nullptr)
        return tr("请在左边选择一个输入，或者打开、拖入、粘贴一个 EDID。");
    return tr("%1 的 EDID 存储器是空的：还没有向它写入过模式。\n用“编辑 EDID...”写入一个，或者在这里构建块，"
              "然后写入存储器。")
        .arg(pInput->strName);
}

void CEdidPage::EnableActions()
{
    const bool bInput = Input() != nullptr;
    const bool bShown = !m_pDocument->IsEmpty();
    const bool bMemory = !m_memory.bytes.isEmpty();
    const bool bComparing = m_pDocument->IsComparing();
    const QUndoStack& steps = m_pDocument->Steps();
    const std::pair<enAction, bool> arrEnabled[] = {
        {enMemory, bMemory},
        {enCompareFile, bShown},
        {enComparePaste, bShown},
        {enCompareMemory, bShown && bMemory},
        {enEndComparison, bComparing},
        {enNext, bComparing},
        {enPrevious, bComparing},
        {enUndo, steps.canUndo()},
        {enRedo, steps.canRedo()},
        {enFix, bShown},
        {enSave, bShown},
        {enWrite, bShown && bInput},
    };
    for (const auto& [action, bEnabled] : arrEnabled)
        m_arrActions[action]->setEnabled(bEnabled);
    m_pCompare->setEnabled(bShown);
}

void CEdidPage::ShowDocument()
{
    if (!m_pDocument->IsFollowing())
        m_vecChanged.clear();
    // What was said was about the values before.
    Say(QString());
    m_pStack->setCurrentIndex(m_pDocument->IsEmpty() ? 1 : 0);
    m_pFields->ShowOther(m_pDocument->IsComparing());
    ShowBytes();
    m_pFindings->ShowFindingsOf(m_pDocument->Content().bytes);
    ShowSource();
    MarkSelectedField();
    EnableActions();
}

void CEdidPage::ShowBytes()
{
    const bool bComparing = m_pDocument->IsComparing();
    const QVector<int> vecDifferent = m_pDocument->DifferentBytes();
    m_pBytes->Show({m_pDocument->Content().bytes, bComparing ? vecDifferent : m_vecChanged});
    m_pBytes->ShowOther({m_pDocument->Other().bytes, vecDifferent}, bComparing);
}

void CEdidPage::ShowSource()
{
    const SEdidContent& content = m_pDocument->Content();
    m_pSource->setText(content.bytes.isEmpty() ? QString() : tr("显示：%1").arg(ContentText(content)));
    m_pBytes->SetOtherTitle(tr("比较：%1，%2 个字段不同")
                                .arg(ContentText(m_pDocument->Other()))
                                .arg(m_pDocument->Differences().size()));
}

void CEdidPage::ShowChange(const QByteArray& blockBefore, const QByteArray& blockAfter)
{
    // Without a previous block, colouring all bytes would say nothing.
    const bool bFirst = blockBefore.isEmpty();
    m_vecChanged = bFirst ? QVector<int>() : ChangedOffsets(blockBefore, blockAfter);
    const QString strText = ChangeText(bFirst, int(m_vecChanged.size()));
    ShowBytes();
    Say(strText);
    Q_EMIT Reported(strText);
}

void CEdidPage::Say(const QString& strText)
{
    EdidColours::Set(*m_pChange, palette().color(QPalette::WindowText));
    m_pChange->setText(strText);
}

void CEdidPage::SayRefusal(const QString& strText)
{
    EdidColours::Set(*m_pChange, EdidColours::c_clrRefused);
    m_pChange->setText(strText);
}

void CEdidPage::MarkSelectedField()
{
    const QModelIndex index = m_pFields->currentIndex();
    m_pBytes->Mark(m_pModel->BytesOf(index), m_pModel->OtherBytesOf(index));
}

void CEdidPage::MarkFinding(int nOffset, int nSize)
{
    m_pFields->ShowRow(m_pModel->IndexOfByte(nOffset));
    m_pBytes->MarkRange(nOffset, nSize);
}

void CEdidPage::SelectFieldOfByte(int nOffset)
{
    m_pFields->ShowRow(m_pModel->IndexOfByte(nOffset));
}

/// The step that a key takes back or forward; null when there is none.
const CEdidPage::SStepKey* CEdidPage::StepOf(const QKeyEvent& event) const
{
    static constexpr SStepKey c_arrKeys[] = {
        {Qt::ControlModifier, Qt::Key_Z, enUndo},
        {Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z, enRedo},
        {Qt::ControlModifier, Qt::Key_Y, enRedo},
    };
    for (const SStepKey& key : c_arrKeys)
        if (key.modifiers == event.modifiers() && key.key == event.key() &&
            m_arrActions[key.action]->isEnabled())
            return &key;
    return nullptr;
}

bool CEdidPage::event(QEvent* pEvent)
{
    // The keys of the project's steps act on the block while it has steps of its own.
    if (pEvent->type() == QEvent::ShortcutOverride && StepOf(*static_cast<QKeyEvent*>(pEvent)) != nullptr) {
        pEvent->accept();
        return true;
    }
    return CWorkbenchPage::event(pEvent);
}

void CEdidPage::keyPressEvent(QKeyEvent* pEvent)
{
    if (const SStepKey* pKey = StepOf(*pEvent))
        m_arrActions[pKey->action]->trigger();
    else
        CWorkbenchPage::keyPressEvent(pEvent);
}

void CEdidPage::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (EdidSources::CanRead(*pEvent->mimeData()))
        pEvent->acceptProposedAction();
}

void CEdidPage::dropEvent(QDropEvent* pEvent)
{
    Load(EdidSources::FromMime(*pEvent->mimeData()), tr("拖入"));
    pEvent->acceptProposedAction();
}

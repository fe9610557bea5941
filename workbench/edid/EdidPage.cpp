#include "workbench/edid/EdidPage.h"

#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "instruments/edid/Writing.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"
#include "workbench/SaveDialog.h"
#include "workbench/WholeFile.h"
#include "workbench/edid/EdidMemoryUpdater.h"
#include "workbench/edid/FindingList.h"
#include "workbench/edid/HexView.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <numeric>

namespace {

enum enColumn
{
    enName,
    enValue,
    enColumnCount
};

/// A field's place in the list of fields; groups have none.
constexpr int c_nFieldRole = Qt::UserRole;

constexpr int c_nTitleSize = 16; ///< font size of the input's name, pixels

QString ChangeText(bool bFirst, int nChanged)
{
    if (bFirst)
        return CEdidPage::tr("EDID 存储器原来是空的，已写入 128 个字节。");
    if (nChanged == 0)
        return CEdidPage::tr("EDID 存储器没有变化。");
    return CEdidPage::tr("EDID 存储器更改了 %1 个字节（以颜色标出）。").arg(nChanged);
}

/// The format that a file's suffix names.
QByteArray FormFor(const QString& strFile, const QByteArray& edid)
{
    const QString strSuffix = QFileInfo(strFile).suffix().toLower();
    if (strSuffix == QLatin1String("hex") || strSuffix == QLatin1String("txt"))
        return Edid::HexForm(edid);
    if (strSuffix == QLatin1String("c") || strSuffix == QLatin1String("h"))
        return Edid::CForm(edid, QStringLiteral("EDID"));
    return strSuffix == QLatin1String("json") ? Edid::JsonForm(edid) : edid;
}

QString ModeLine(const SSimulatedInput& input)
{
    return input.setting ? ModeText::Of(*input.setting) : CEdidPage::tr("没有设置：对话框以默认值打开");
}

} // namespace

CEdidPage::CEdidPage(QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_pUpdater(new CEdidMemoryUpdater(this))
{
    m_pChange = new QLabel(this);
    m_pChange->setWordWrap(true);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(CreateHead());
    pLayout->addWidget(CreateMemoryView(), 1);
    m_pFindings = new CFindingList(this);
    m_pFindings->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    pLayout->addWidget(m_pFindings);
    connect(m_pFindings, &CFindingList::FindingChosen, this, &CEdidPage::MarkBytes);
    pLayout->addWidget(m_pChange);
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged, this,
            &CEdidPage::Refresh);
    connect(
        m_pUpdater, &CEdidMemoryUpdater::BlockStored, this,
        [this](int nSender, int nInterfaceId, const QByteArray& blockBefore, const QByteArray& blockAfter) {
            if (nSender == m_selection.nSender && nInterfaceId == m_selection.nInterfaceId)
                ShowChange(blockBefore, blockAfter);
        });
    CEdidPage::Retranslate();
}

QWidget* CEdidPage::CreateHead()
{
    auto* pHead = new QWidget(this);
    m_pInput = new QLabel(pHead);
    QFont fontTitle = m_pInput->font();
    fontTitle.setPixelSize(c_nTitleSize);
    fontTitle.setBold(true);
    m_pInput->setFont(fontTitle);
    m_pMode = new QLabel(pHead);
    m_pLowRates = new QCheckBox(pHead);
    m_pEdit = new QPushButton(pHead);
    m_pSave = new QPushButton(pHead);
    auto* pTexts = new QVBoxLayout;
    pTexts->addWidget(m_pInput);
    pTexts->addWidget(m_pMode);
    auto* pLayout = new QHBoxLayout(pHead);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(pTexts, 1);
    pLayout->addWidget(m_pLowRates);
    pLayout->addWidget(m_pEdit);
    pLayout->addWidget(m_pSave);
    connect(m_pEdit, &QPushButton::clicked, this, &CEdidPage::EditEdid);
    connect(m_pSave, &QPushButton::clicked, this, &CEdidPage::ChooseFileAndSave);
    return pHead;
}

QWidget* CEdidPage::CreateMemoryView()
{
    auto* pSplitter = new QSplitter(this);
    m_pFields = new QTreeWidget(pSplitter);
    m_pFields->setColumnCount(enColumnCount);
    m_pFields->setAlternatingRowColors(true);
    m_pFields->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_pBytes = new CHexView(pSplitter);
    pSplitter->addWidget(m_pFields);
    pSplitter->addWidget(m_pBytes);
    pSplitter->setStretchFactor(0, 1);
    pSplitter->setCollapsible(1, false);
    connect(m_pFields, &QTreeWidget::currentItemChanged, this, &CEdidPage::MarkSelectedField);
    connect(m_pBytes, &CHexView::ByteChosen, this, &CEdidPage::SelectFieldOfByte);
    return pSplitter;
}

QString CEdidPage::Title() const
{
    return tr("EDID");
}

void CEdidPage::Retranslate()
{
    m_pLowRates->setText(tr("只提供低帧率"));
    m_pLowRates->setToolTip(tr("对话框不提供 50 Hz 以上的帧率"));
    m_pEdit->setText(tr("编辑 EDID..."));
    m_pSave->setText(tr("保存块..."));
    m_pFields->setHeaderLabels({tr("字段"), tr("值")});
    m_pBytes->setAccessibleName(tr("EDID 字节"));
    m_pFindings->Retranslate();
    Refresh();
}

const SSimulatedInput* CEdidPage::Input() const
{
    const SSimulatedSender* pSender = CSimulator::Instance().Project().FindSender(m_selection.nSender);
    return pSender == nullptr ? nullptr : pSender->FindInput(m_selection.nInterfaceId);
}

void CEdidPage::ShowSelection(const SSelection& selection)
{
    m_selection = selection;
    m_pChange->clear();
    m_pBytes->SetChanged({});
    Refresh();
}

void CEdidPage::Refresh()
{
    const SSimulatedInput* pInput = Input();
    m_pEdit->setEnabled(pInput != nullptr);
    m_pLowRates->setEnabled(pInput != nullptr);
    m_pSave->setEnabled(pInput != nullptr && !pInput->baEdid.isEmpty());
    m_pInput->setText(pInput == nullptr ? tr("请选择一个输入") : pInput->strName);
    m_pMode->setText(pInput == nullptr ? QString() : ModeLine(*pInput));
    ShowBlock(pInput == nullptr ? QByteArray() : pInput->baEdid);
}

void CEdidPage::ShowBlock(const QByteArray& block)
{
    m_pBytes->SetBytes(block);
    ShowFields(block);
    m_pFindings->ShowFindingsOf(block);
}

void CEdidPage::ShowFields(const QByteArray& block)
{
    const QTreeWidgetItem* pCurrent = m_pFields->currentItem();
    const int nCurrent = pCurrent == nullptr ? -1 : pCurrent->data(enName, c_nFieldRole).toInt();
    m_pFields->clear();
    m_vecFields = EdidFields::Decode(block);
    QTreeWidgetItem* pGroup = nullptr;
    for (int i = 0; i < m_vecFields.size(); ++i) {
        const SEdidField& field = m_vecFields.at(i);
        if (pGroup == nullptr || pGroup->text(enName) != field.strGroup) {
            pGroup = new QTreeWidgetItem(m_pFields, {field.strGroup});
            pGroup->setData(enName, c_nFieldRole, -1);
        }
        auto* pItem = new QTreeWidgetItem(pGroup, {field.strName, field.strValue});
        pItem->setData(enName, c_nFieldRole, i);
        if (i == nCurrent)
            m_pFields->setCurrentItem(pItem);
    }
    m_pFields->expandAll();
}

void CEdidPage::ShowChange(const QByteArray& blockBefore, const QByteArray& blockAfter)
{
    // Without a previous block, colouring all bytes would say nothing.
    const bool bFirst = blockBefore.isEmpty();
    const QVector<int> vecChanged =
        bFirst ? QVector<int>() : EdidFields::ChangedBytes(blockBefore, blockAfter);
    m_pBytes->SetChanged(vecChanged);
    const QString strText = ChangeText(bFirst, vecChanged.size());
    m_pChange->setText(strText);
    Q_EMIT Reported(strText);
}

void CEdidPage::MarkSelectedField()
{
    const QTreeWidgetItem* pItem = m_pFields->currentItem();
    const int nField = pItem == nullptr ? -1 : pItem->data(enName, c_nFieldRole).toInt();
    const bool bField = nField >= 0 && nField < m_vecFields.size();
    m_pBytes->SetMarked(bField ? m_vecFields.at(nField).vecBytes : QVector<int>());
}

void CEdidPage::MarkBytes(int nOffset, int nSize)
{
    QVector<int> vecOffsets(nSize);
    std::iota(vecOffsets.begin(), vecOffsets.end(), nOffset);
    m_pBytes->SetMarked(vecOffsets);
}

void CEdidPage::SelectFieldOfByte(int nOffset)
{
    for (QTreeWidgetItemIterator it(m_pFields); *it != nullptr; ++it) {
        const int nField = (*it)->data(enName, c_nFieldRole).toInt();
        if (nField < 0 || !m_vecFields.at(nField).vecBytes.contains(nOffset))
            continue;
        m_pFields->setCurrentItem(*it);
        return;
    }
}

void CEdidPage::EditEdid()
{
    // The dialog also accepts a failed write, and its flag stays false after a successful full write: only a
    // write to the memory proves success.
    bool bTook = false;
    const auto connection =
        connect(m_pUpdater, &CEdidMemoryUpdater::BlockStored, this, [&bTook] { bTook = true; });
    CEdidSetDlg dialog(this, m_selection.nInterfaceId, m_pLowRates->isChecked());
    bool bAccepted = false;
    DoAsStep(tr("设置 EDID"), [&] { bAccepted = dialog.exec() == QDialog::Accepted; });
    disconnect(connection);
    const SSimulatedInput* pInput = Input();
    if (!bAccepted || pInput == nullptr)
        return;
    if (bTook && pInput->setting)
        Q_EMIT Reported(tr("当前模式：%1").arg(ModeText::Of(*pInput->setting)));
    else
        Q_EMIT Reported(tr("写入失败，%1 的 EDID 没有改变。原因见主机调用记录。").arg(pInput->strName));
}

void CEdidPage::ChooseFileAndSave()
{
    const QString strFile =
        SaveDialog::Ask(this, tr("保存 EDID 块"), QStringLiteral("edid.bin"),
                        tr("EDID 块 (*.bin);;十六进制文本 (*.hex *.txt);;C 数组 (*.c *.h);;"
                           "JSON (*.json);;所有文件 (*)"));
    if (!strFile.isEmpty())
        SaveBlock(strFile);
}

bool CEdidPage::SaveBlock(const QString& strFile)
{
    const SSimulatedInput* pInput = Input();
    if (pInput == nullptr)
        return false;
    const QString strError = WholeFile::Write(strFile, FormFor(strFile, pInput->baEdid));
    const QString strName = QDir::toNativeSeparators(strFile);
    if (strError.isEmpty())
        Q_EMIT Reported(tr("已保存 %1").arg(strName));
    else
        Q_EMIT Failed(tr("无法写入 %1：%2。请选择别的位置。").arg(strName, strError));
    return strError.isEmpty();
}

#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "instruments/edid/Editing.h"
#include "instruments/edid/Writing.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"
#include "workbench/SaveDialog.h"
#include "workbench/WholeFile.h"
#include "workbench/edid/BytePanes.h"
#include "workbench/edid/EdidMemoryUpdater.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/edid/EdidSources.h"
#include "workbench/edid/FieldModel.h"
#include "workbench/edid/FieldTree.h"
#include "workbench/edid/FindingList.h"
#include "workbench/edid/InputHead.h"
#include "workbench/edid/WriteProblem.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace {

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

} // namespace

void CEdidPage::EditEdid()
{
    // The dialog also accepts a failed write, and its flag stays false after a successful full write: only a
    // write to the memory proves success.
    bool bTook = false;
    const qint64 nLastCall = CSimulator::Instance().Journal().LastNumber();
    const auto connection =
        connect(m_pUpdater, &CEdidMemoryUpdater::BlockStored, this, [&bTook] { bTook = true; });
    CEdidSetDlg dialog(this, m_selection.nInterfaceId, m_pHead->IsLowRatesOnly());
    bool bAccepted = false;
    DoAsStep(tr("设置 EDID"), [&] { bAccepted = dialog.exec() == QDialog::Accepted; });
    disconnect(connection);
    const SSimulatedInput* pInput = Input();
    if (!bAccepted || pInput == nullptr)
        return;
    if (bTook && pInput->setting)
        Q_EMIT Reported(tr("当前模式：%1").arg(ModeText::Of(*pInput->setting)));
    else
        Q_EMIT Failed(
            WriteProblem::Text(pInput->strName, CSimulator::Instance().Journal().LastFailed(nLastCall)));
}

std::optional<SEdidContent> CEdidPage::ChosenFrom(const SEdidSource& source)
{
    if (!source.strError.isEmpty()) {
        Q_EMIT Failed(source.strError);
        return std::nullopt;
    }
    if (source.vecContents.size() == 1)
        return source.vecContents.constFirst();
    QStringList listNames;
    for (const SEdidContent& content : source.vecContents)
        listNames += QStringLiteral("%1. %2").arg(listNames.size() + 1).arg(content.strName);
    bool bChosen = false;
    const QString strChosen =
        QInputDialog::getItem(this, tr("选择显示器"), tr("这里有几个 EDID："), listNames, 0, false, &bChosen);
    if (!bChosen)
        return std::nullopt;
    return source.vecContents.at(listNames.indexOf(strChosen));
}

void CEdidPage::Load(const SEdidSource& source, const QString& strStep)
{
    if (const std::optional<SEdidContent> content = ChosenFrom(source))
        m_pDocument->Load(*content, strStep);
}

void CEdidPage::Compare(const SEdidSource& source)
{
    if (const std::optional<SEdidContent> content = ChosenFrom(source)) {
        m_pDocument->CompareWith(*content);
        if (m_pDocument->DifferentBytes().isEmpty())
            Say(tr("两个 EDID 相同。"));
    }
}

void CEdidPage::OpenFile(const QString& strFile)
{
    Load(EdidSources::FromFile(strFile), tr("打开"));
}

void CEdidPage::CompareWithFile(const QString& strFile)
{
    Compare(EdidSources::FromFile(strFile));
}

QString CEdidPage::ChosenFile(const QString& strTitle)
{
    return QFileDialog::getOpenFileName(this, strTitle, QString(),
                                        tr("EDID (*.bin *.edid *.hex *.txt *.c *.h *.json);;所有文件 (*)"));
}

void CEdidPage::Open()
{
    const QString strFile = ChosenFile(tr("打开 EDID"));
    if (!strFile.isEmpty())
        OpenFile(strFile);
}

void CEdidPage::Paste()
{
    Load(EdidSources::FromText(QApplication::clipboard()->text()), tr("粘贴"));
}

void CEdidPage::LoadMemory()
{
    m_pDocument->Load(m_memory, tr("发送器的存储器"));
}

void CEdidPage::Build()
{
    const SEdidSetting setting = Setting();
    m_pDocument->Load(
        {CEdidMemoryUpdater::BlockOf(setting), enEdidOrigin::enBuilt, ModeText::Of(setting), false},
        tr("构建块"));
}

void CEdidPage::ChooseAndCompare()
{
    const QString strFile = ChosenFile(tr("与文件比较"));
    if (!strFile.isEmpty())
        CompareWithFile(strFile);
}

void CEdidPage::ComparePasted()
{
    Compare(EdidSources::FromText(QApplication::clipboard()->text()));
}

void CEdidPage::CompareMemory()
{
    Compare({{m_memory}, QString()});
}

void CEdidPage::EndComparison()
{
    m_pDocument->EndComparison();
}

void CEdidPage::ShowNextDifference()
{
    ShowDifference(true);
}

void CEdidPage::ShowPreviousDifference()
{
    ShowDifference(false);
}

void CEdidPage::ShowDifference(bool bForward)
{
    const QModelIndex index = m_pModel->NextDifference(m_pFields->currentIndex(), bForward);
    if (!index.isValid())
        return Say(tr("没有不同的字段。"));
    m_pFields->ShowRow(index);
    m_pBytes->RevealMarked();
}

void CEdidPage::Undo()
{
    m_pDocument->Steps().undo();
}

void CEdidPage::Redo()
{
    m_pDocument->Steps().redo();
}

void CEdidPage::Fix()
{
    const QByteArray before = m_pDocument->Content().bytes;
    m_pDocument->FixAll();
    const int nChanged = int(ChangedOffsets(before, m_pDocument->Content().bytes).size());
    const int nLeft = int(m_pFindings->Findings().size());
    const QString strDone =
        nChanged == 0 ? tr("标头、扩展块数目和校验和本来就正确。") : tr("更正了 %1 个字节。").arg(nChanged);
    Say(nLeft == 0 ? strDone : strDone + tr("还有 %1 个问题，处理方法见下表。").arg(nLeft));
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
    if (m_pDocument->IsEmpty())
        return false;
    const QString strError = WholeFile::Write(strFile, FormFor(strFile, m_pDocument->Content().bytes));
    const QString strName = QDir::toNativeSeparators(strFile);
    if (strError.isEmpty())
        Q_EMIT Reported(tr("已保存 %1").arg(strName));
    else
        Q_EMIT Failed(tr("无法写入 %1：%2。请选择别的位置。").arg(strName, strError));
    return strError.isEmpty();
}

bool CEdidPage::ConfirmBaseAlone(int nBlocks)
{
    return QMessageBox::question(this, tr("写入存储器"),
                                 tr("输入的 EDID 存储器容纳一个 128 字节的块，这里有 %1 个。只写入基本块吗？"
                                    "扩展块数目将为 0。")
                                     .arg(nBlocks)) == QMessageBox::Yes;
}

void CEdidPage::Write()
{
    const SEdidContent before = m_memory;
    SEdidContent stored = {m_pDocument->Content().bytes, enEdidOrigin::enMemory, before.strName, false};
    const int nBlocks = int(stored.bytes.size()) / c_nEdidBlockSize;
    if (nBlocks > 1) {
        if (!ConfirmBaseAlone(nBlocks))
            return;
        Edid::DropExtensions(stored.bytes);
    }
    bool bStored = false;
    DoAsStep(tr("写入 EDID 存储器"), [&] {
        bStored = CSimulator::Instance().Hardware().SetEdidMemory(m_selection.nSender,
                                                                  m_selection.nInterfaceId, stored.bytes);
    });
    if (!bStored) {
        Q_EMIT Failed(tr("无法写入 %1 的 EDID 存储器。请重新选择输入。").arg(before.strName));
        return;
    }
    if (stored.bytes == m_pDocument->Content().bytes)
        m_pDocument->MarkStored(stored.strName);
    else
        m_pDocument->Load(stored, tr("写入存储器"));
    ShowChange(before.bytes, stored.bytes);
}

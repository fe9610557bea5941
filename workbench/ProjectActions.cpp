#include "workbench/ProjectActions.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/SaveDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>

namespace {

QString FileFilter()
{
    return CProjectActions::tr("工程 (*.json);;所有文件 (*)");
}

/// The present file: what is opened or saved next is mostly beside it.
QString ProposedFile()
{
    const QString strFile = CSimulator::Instance().Document().FilePath();
    return strFile.isEmpty() ? QStringLiteral("project.json") : strFile;
}

} // namespace

CProjectActions::CProjectActions(QWidget* pWindow, QSettings& settings)
    : QObject(pWindow)
    , m_pWindow(pWindow)
    , m_recentFiles(settings)
{}

bool CProjectActions::StartNew(const std::function<void()>& funcStart)
{
    if (!MayLeave())
        return false;
    funcStart();
    return true;
}

bool CProjectActions::NewDemo()
{
    return StartNew([] { CSimulator::Instance().Document().NewProject(); });
}

bool CProjectActions::NewCatalogue()
{
    return StartNew([] { CSimulator::Instance().Document().NewCatalogueProject(); });
}

bool CProjectActions::NewEmpty()
{
    return StartNew([] { CSimulator::Instance().Document().NewEmptyProject(); });
}

bool CProjectActions::ChooseAndOpen()
{
    if (!MayLeave())
        return false;
    const QString strFile = QFileDialog::getOpenFileName(
        m_pWindow, tr("打开工程"), QFileInfo(ProposedFile()).absolutePath(), FileFilter());
    return !strFile.isEmpty() && OpenWithoutAsking(strFile);
}

bool CProjectActions::Open(const QString& strFile)
{
    return MayLeave() && OpenWithoutAsking(strFile);
}

bool CProjectActions::OpenWithoutAsking(const QString& strFile)
{
    SFileProblem problem;
    if (!CSimulator::Instance().Document().Open(strFile, problem)) {
        if (!QFileInfo::exists(strFile))
            m_recentFiles.Forget(strFile);
        Tell(tr("无法打开工程。\n%1").arg(problem.Text()));
        return false;
    }
    m_recentFiles.Note(strFile);
    Q_EMIT Reported(tr("已打开 %1").arg(QDir::toNativeSeparators(strFile)));
    return true;
}

bool CProjectActions::Save()
{
    const QString strFile = CSimulator::Instance().Document().FilePath();
    return strFile.isEmpty() ? ChooseAndSave() : SaveAs(strFile);
}

bool CProjectActions::ChooseAndSave()
{
    const QString strFile = SaveDialog::Ask(m_pWindow, tr("保存工程"), ProposedFile(), FileFilter());
    return !strFile.isEmpty() && SaveAs(strFile);
}

bool CProjectActions::SaveAs(const QString& strFile)
{
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    const bool bSame = strFile == simulator.Document().FilePath();
    if (!(bSame ? simulator.Document().Save(problem) : simulator.Document().SaveAs(strFile, problem))) {
        Tell(tr("无法保存工程。\n%1").arg(problem.Text()));
        return false;
    }
    m_recentFiles.Note(strFile);
    if (!simulator.Document().KeptFile().isEmpty())
        Tell(tr("原有文件不是可读的工程，已另存为 %1。")
                 .arg(QDir::toNativeSeparators(simulator.Document().KeptFile())));
    Q_EMIT Reported(tr("已保存 %1").arg(QDir::toNativeSeparators(strFile)));
    return true;
}

bool CProjectActions::MayLeave()
{
    if (!CSimulator::Instance().Document().IsModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("未保存的更改"), tr("工程有未保存的更改。要保存吗？"),
                    QMessageBox::NoButton, m_pWindow);
    const QPushButton* pSave = box.addButton(tr("保存"), QMessageBox::AcceptRole);
    const QPushButton* pDiscard = box.addButton(tr("不保存"), QMessageBox::DestructiveRole);
    box.addButton(tr("取消"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == pSave)
        return Save();
    return box.clickedButton() == pDiscard;
}

void CProjectActions::OpenLast()
{
    const QStringList listFiles = m_recentFiles.List();
    const bool bOpened =
        !listFiles.isEmpty() && QFileInfo::exists(listFiles.first()) && OpenWithoutAsking(listFiles.first());
    if (!bOpened)
        CSimulator::Instance().Document().NewProject();
}

void CProjectActions::Tell(const QString& strText)
{
    QMessageBox::warning(m_pWindow, tr("工程"), strText);
}

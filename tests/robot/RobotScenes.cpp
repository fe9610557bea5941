#include "tests/robot/RobotScenes.h"

#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/robot/Robot.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"

#include <QDir>
#include <QSettings>

namespace {

constexpr int c_nDialogActions = 60;
constexpr int c_nChartActions = 200;
constexpr int c_nWorkbenchActions = 600;
constexpr int c_nMostAddresses = 5; ///< rows of a dialog that sets addresses

/// Makes one of the catalogue's senders the current one.
const SSimulatedSender& ChooseSender(CDice& dice)
{
    CSimulator& simulator = CSimulator::Instance();
    if (simulator.Project().listSenders.empty())
        simulator.Document().NewCatalogueProject();
    const auto& listSenders = simulator.Project().listSenders;
    const int nSender = dice.Below(int(listSenders.size()));
    simulator.Document().SetCurrentSender(nSender);
    return listSenders[std::size_t(nSender)];
}

void Edid(CRobot& robot)
{
    const SSimulatedSender& sender = ChooseSender(robot.Dice());
    if (sender.listInputs.empty())
        return;
    const auto nInput = std::size_t(robot.Dice().Below(int(sender.listInputs.size())));
    CEdidSetDlg dialog(nullptr, sender.listInputs[nInput].nInterfaceId, robot.Dice().OnceIn(3));
    robot.OperateModal(dialog, c_nDialogActions);
}

void Canvas(CRobot& robot)
{
    ChooseSender(robot.Dice());
    CSetCanvasDlg dialog(nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

void DepthRate(CRobot& robot)
{
    ChooseSender(robot.Dice());
    CSetDepthRateDlg dialog(nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

void BackgroundImage(CRobot& robot)
{
    ChooseSender(robot.Dice());
    CBackgroundImageDlg dialog(nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

void ResetCoef(CRobot& robot)
{
    CResetCoefDlg dialog(robot.Dice().OnceIn(2), nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

/// Fills the address lists with nCount entries.
void ListAddresses(int nCount)
{
    QStringList listEntries;
    for (int i = 0; i < nCount; ++i)
        listEntries.append(QStringLiteral("192.168.7.%1(Processor %1)").arg(i + 1));
    CSimulator::Instance().Document().Change([&listEntries](SSimulatedProject& project) {
        project.addresses = {listEntries, listEntries, listEntries};
    });
}

void SetAddresses(CRobot& robot)
{
    ListAddresses(c_nMostAddresses);
    constexpr int c_nBatch = -1;
    const bool bSet = robot.Dice().OnceIn(2);
    const int nCount = robot.Dice().OnceIn(3) ? c_nBatch : 1 + robot.Dice().Below(c_nMostAddresses);
    CSetIPOfflineDlg dialog(0, bSet ? nCount : 1, bSet, robot.Dice().OnceIn(2), nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

void AddProcessors(CRobot& robot)
{
    ChooseSender(robot.Dice());
    // The search for a free address has no end in a full list, so the list starts empty.
    ListAddresses(0);
    CCustomAddProcessorDlg dialog(nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

void DemoProject(CRobot& robot)
{
    CDemoProjectConfigDlg dialog(nullptr);
    robot.OperateModal(dialog, c_nDialogActions);
}

SChromaGroupInfo SomeGroup(CDice& dice)
{
    SChromaGroupInfo group;
    for (CPointEx<float>* pPoint : {&group.ptRed, &group.ptGreen, &group.ptBlue, &group.ptWhite})
        *pPoint = {float(dice.Below(800)) / 1000.0F, float(dice.Below(900)) / 1000.0F};
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    group.nPenStyle = int(Qt::SolidLine);
    group.strName = QStringLiteral("Robot");
    return group;
}

void Chart(CRobot& robot)
{
    CChromaticityDlgWnd chart(nullptr);
    const int nSide = 101 + robot.Dice().Below(900);
    chart.resize(nSide, nSide);
    chart.SetSize(nSide, nSide);
    for (int nGroup = robot.Dice().Below(4); nGroup > 0; --nGroup)
        chart.AddChromaGroupByIndex(nGroup, SomeGroup(robot.Dice()));
    const bool bAgree = robot.Dice().OnceIn(2);
    QObject::connect(&chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &chart,
                     [bAgree](int /*nGroup*/, int /*nPoint*/, bool& bSuccessed) { bSuccessed = bAgree; });
    robot.Operate(chart, c_nChartActions);
}

void Workbench(CRobot& robot)
{
    CLanguage language;
    language.Set(robot.Dice().OnceIn(2) ? enLanguage::enChinese : enLanguage::enEnglish);
    QSettings settings(QDir::current().filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CMainWindow window(language, settings);
    if (robot.Dice().OnceIn(2))
        CSimulator::Instance().Document().NewProject();
    else
        CSimulator::Instance().Document().NewCatalogueProject();
    robot.Operate(window, c_nWorkbenchActions);
    CSimulator::Instance().Document().NewCatalogueProject();
}

struct SScene
{
    const char* szName;
    void (*pPlay)(CRobot& robot);
};

constexpr SScene c_arrScenes[] = {
    {"EDID", &Edid},
    {"EDID", &Edid}, // the dialog with the most controls and the most sender types
    {"EDID", &Edid},
    {"canvas", &Canvas},
    {"depth and rate", &DepthRate},
    {"background picture", &BackgroundImage},
    {"coefficient", &ResetCoef},
    {"addresses", &SetAddresses},
    {"add processors", &AddProcessors},
    {"demo project", &DemoProject},
    {"chart", &Chart},
    {"workbench", &Workbench},
};

} // namespace

void PlayScenes(CRobot& robot)
{
    CSimulator::Instance().Document().NewCatalogueProject();
    while (!robot.IsDone()) {
        const SScene& scene = c_arrScenes[std::size_t(robot.Dice().Below(int(std::size(c_arrScenes))))];
        robot.Watch().SetAction(QStringLiteral("scene ") + QString::fromLatin1(scene.szName));
        scene.pPlay(robot);
        robot.Watch().NoteMemory(robot.PartDone());
    }
}

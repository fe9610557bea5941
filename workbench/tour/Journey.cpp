#include "workbench/tour/Journey.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/JournalDock.h"
#include "workbench/MainMenu.h"
#include "workbench/MainWindow.h"
#include "workbench/SenderActions.h"
#include "workbench/SenderTree.h"
#include "workbench/edid/FindingList.h"
#include "workbench/simulation/SenderProperties.h"
#include "workbench/tour/Hand.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>

namespace {

/// The pages in the order of their tabs.
enum enPage
{
    enEdidPage,
    enColourPage,
    enOutputPage,
    enAddressPage,
    enSimulationPage
};

constexpr int c_nProcessors = 4;
const QString c_strModel = QStringLiteral("T6 PRO");
const QString c_strFirstAddress = QStringLiteral("192.168.1.21");

QString Count()
{
    return QString::number(c_nProcessors);
}

CHand::FuncFind Tree(CMainWindow& window)
{
    return [&window] { return &window.Tree(); };
}

/// The button that accepts a dialog with Qt's row of buttons.
QWidget* AcceptButton()
{
    const auto* pButtons = Find::InputWindow()->findChild<QDialogButtonBox*>();
    if (pButtons == nullptr)
        return nullptr;
    for (QAbstractButton* pButton : pButtons->buttons()) {
        if (pButtons->buttonRole(pButton) == QDialogButtonBox::AcceptRole)
            return pButton;
    }
    return nullptr;
}

void StartEmpty(CHand& hand, CMainWindow&, const QString&)
{
    hand.ChooseInMenu({CMainMenu::tr("工程(&P)"), CMainMenu::tr("新建(&N)"), CMainMenu::tr("空工程(&E)")});
}

void AddProcessors(CHand& hand, CMainWindow&, const QString&)
{
    hand.ChooseInMenu({CMainMenu::tr("发送器(&S)"), CSenderActions::tr("添加(&A)...")});
    hand.Type(Find::Named("search"), c_strModel);
    hand.Type(Find::Named("count"), Count());
    hand.Confirm(Find::Named("ok"));
}

void SetModes(CHand& hand, CMainWindow& window, const QString&)
{
    hand.ShowPage(enEdidPage);
    for (int i = 0; i < c_nProcessors; ++i) {
        hand.OpenRow(Tree(window), {i, 0});
        hand.Choose(Find::Named("resolution"), QStringLiteral("1920 × 1080"));
        hand.Confirm(Find::Named("ok"));
    }
}

void SetCanvases(CHand& hand, CMainWindow& window, const QString&)
{
    hand.ShowPage(enOutputPage);
    for (int i = 0; i < c_nProcessors; ++i) {
        hand.SelectRow(Tree(window), {i});
        hand.Press(Find::Named("canvas"));
        hand.Type(Find::Named("width"), QStringLiteral("1920"));
        hand.Type(Find::Named("height"), QStringLiteral("1080"));
        hand.Confirm(Find::Named("ok"));
    }
}

void AddAddresses(CHand& hand, CMainWindow&, const QString&)
{
    hand.ShowPage(enAddressPage);
    hand.Press(Find::Named("batch"));
    hand.Type(Find::Named("count"), Count());
    hand.Type(Find::Named("address"), c_strFirstAddress);
    hand.Confirm(Find::Named("ok"));
}

void Save(CHand& hand, CMainWindow&, const QString& strFile)
{
    hand.ChooseInMenu({CMainMenu::tr("工程(&P)"), CMainMenu::tr("保存(&S)")});
    hand.Type(Find::Named("fileNameEdit"), strFile);
    hand.Confirm(AcceptButton);
}

/// The first input has a memory with a wrong byte, and its hardware refuses writes.
void PrepareFault()
{
    CProjectDocument& document = CSimulator::Instance().Document();
    document.NewProject();
    document.Change([](SSimulatedProject& project) {
        SSimulatedSender& sender = project.listSenders.front();
        sender.faults.nEdidWriteResult = 1;
        sender.listInputs.front().baEdid = QByteArray(c_nEdidBlockSize, char(0xFF));
    });
}

void SelectInput(CHand& hand, CMainWindow& window, const QString&)
{
    hand.ShowPage(enEdidPage);
    hand.SelectRow(Tree(window), {0, 0});
}

void ReadFindings(CHand& hand, CMainWindow&, const QString&)
{
    hand.SelectRow(Find::Only<CFindingList>(), {0});
}

void WriteMode(CHand& hand, CMainWindow& window, const QString&)
{
    hand.OpenRow(Tree(window), {0, 0});
    hand.Confirm(Find::Named("ok"));
}

void WriteModeInVain(CHand& hand, CMainWindow& window, const QString& strFile)
{
    WriteMode(hand, window, strFile);
    // The dialog says that the write failed, and the page says why.
    hand.Confirm(Find::Named("messageButton1"));
    hand.Confirm(Find::Only<QAbstractButton>());
}

void FindFailedCall(CHand& hand, CMainWindow& window, const QString&)
{
    hand.Type([&window] { return window.Journal().findChild<QLineEdit*>(); }, QStringLiteral("Edid"));
    hand.Press([&window] { return window.Journal().findChild<QCheckBox*>(); });
}

void EndFault(CHand& hand, CMainWindow&, const QString&)
{
    hand.ShowPage(enSimulationPage);
    hand.Press(Find::Captioned(SenderProperties::Text("EDID 写入失败")));
}

void WriteModeAgain(CHand& hand, CMainWindow& window, const QString& strFile)
{
    hand.ShowPage(enEdidPage);
    WriteMode(hand, window, strFile);
}

void PrepareNothing()
{
    CSimulator::Instance().Document().NewProject();
}

} // namespace

const std::vector<SJourney>& Journeys::All()
{
    static const std::vector<SJourney> s_vecJourneys = {
        {"Set up a wall of four processors",
         "wall",
         PrepareNothing,
         {{"Start an empty project", StartEmpty},
          {"Add four processors", AddProcessors},
          {"Set the mode of each processor's input", SetModes},
          {"Set the canvas of each processor", SetCanvases},
          {"Add their addresses", AddAddresses},
          {"Save the project", Save}}},
        {"Find out why an input shows no picture",
         "no-picture",
         PrepareFault,
         {{"Select the input", SelectInput},
          {"Read what is wrong with its EDID", ReadFindings},
          {"Write its mode again", WriteModeInVain},
          {"Find the failed call in the journal", FindFailedCall},
          {"Remove the cause", EndFault},
          {"Write the mode once more", WriteModeAgain},
          {"Save the project", Save}}}};
    return s_vecJourneys;
}

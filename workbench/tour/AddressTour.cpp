#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/MainWindow.h"
#include "workbench/addresses/AddressPage.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"
#include "workbench/tour/TourNetwork.h"

namespace {

/// The modes of the address dialog.
struct SMode
{
    const char* szName;
    int nCount;
    bool bSet;
};

constexpr SMode c_arrModes[] = {{"address-batch", -1, true},
                                {"address-set-one", 1, true},
                                {"address-set-two", 2, true},
                                {"address-modify", 1, false}};

void PictureOfHandDialog(CTour& tour, QWidget* pParent, bool bExisting, bool bAddresses)
{
    CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
        project.addressing.nAddedSenderCount = bExisting ? 1 : 0;
        project.addressing.bIPAddressMode = bAddresses;
    });
    CCustomAddProcessorDlg dialog(pParent);
    tour.WithDialog(dialog, [&] {
        tour.Picture(&dialog, QStringLiteral("address-hand%1%2")
                                  .arg(bExisting ? QString() : QStringLiteral("-ports"),
                                       bAddresses ? QStringLiteral("-addresses") : QString()));
    });
}

} // namespace

void PageTours::Addresses(CTour& tour, CMainWindow& window)
{
    CAddressPage& page = *window.findChild<CAddressPage*>();
    CSimulator& simulator = CSimulator::Instance();
    const CTourNetwork network;
    {
        CSetIPOfflineDlg dialog(0, -1, true, false, &page);
        tour.WithDialog(dialog, [&] {
            dialog.findChild<CCustomIPEdit*>()->setText(QStringLiteral("192.168.1.20"));
            QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, 0));
        });
        simulator.Document().NoticeChanges();
        tour.Check(simulator.Project().addresses.listStored.size() == 16,
                   QStringLiteral("the first batch did not fill the list up to 16"));
    }
    page.SelectRow(2);
    for (const SMode& mode : c_arrModes) {
        CSetIPOfflineDlg dialog(2, mode.nCount, mode.bSet, false, &page);
        tour.WithDialog(dialog, [&] { tour.Picture(&dialog, QString::fromLatin1(mode.szName)); });
    }
    {
        CSetIPOfflineDlg dialog(0, -1, true, false, &page);
        dialog.findChild<CCustomIPEdit*>()->setText(QStringLiteral("192.168.1.10"));
        tour.WithMessage(QStringLiteral("address-question"), 4,
                         [&] { QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, 0)); });
        dialog.findChild<CCustomIPEdit*>()->setText(QStringLiteral("192.168.1.1"));
        tour.WithMessage(QStringLiteral("address-refused"), 1,
                         [&] { QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, 0)); });
    }
    for (const bool bExisting : {false, true})
        for (const bool bAddresses : {false, true})
            PictureOfHandDialog(tour, &page, bExisting, bAddresses);
    CDemoProjectConfigDlg dialogDemo(&page);
    tour.WithDialog(dialogDemo, [&] { tour.Picture(&dialogDemo, QStringLiteral("demo-project")); });
    page.CheckAddress(QStringLiteral("192.168.1.255"));
    tour.Picture(&page, QStringLiteral("addresses"));
    page.CheckAddress(QString());
}

#include "workbench/tour/PageTours.h"

#include "workbench/AddSenderDialog.h"
#include "workbench/KeysDialog.h"
#include "workbench/MainWindow.h"
#include "workbench/simulation/SimulationPage.h"
#include "workbench/tour/Tour.h"

#include <QScrollArea>

namespace {

/// The dialogs that belong to no page.
void TourOfDialogs(CTour& tour, CMainWindow& window)
{
    CAddSenderDialog dialogAdd(&window);
    tour.WithDialog(dialogAdd, [&] { tour.Picture(&dialogAdd, QStringLiteral("add-senders")); });
    CKeysDialog dialogKeys(&window);
    tour.WithDialog(dialogKeys, [&] { tour.Picture(&dialogKeys, QStringLiteral("keys")); });
}

} // namespace

namespace PageTours {

void Simulation(CTour& tour, CMainWindow& window)
{
    auto* pPage = window.findChild<CSimulationPage*>();
    tour.Picture(pPage, QStringLiteral("simulation"));
    const auto* pScroll = pPage->findChild<QScrollArea*>();
    tour.Picture(pScroll->widget(), QStringLiteral("simulation-all"));
}

void Everything(CTour& tour, CMainWindow& window)
{
    // In the order of the pages' tabs.
    constexpr void (*c_arrTours[])(CTour&, CMainWindow&) = {Edid, Colour, Output, Addresses, Simulation};
    tour.Picture(&window, QStringLiteral("workbench"));
    TourOfDialogs(tour, window);
    std::size_t nPage = 0;
    for (const auto pTour : c_arrTours) {
        window.ShowPage(window.Pages()[nPage++]);
        pTour(tour, window);
    }
}

} // namespace PageTours

#include "workbench/tour/PageTours.h"

#include "workbench/MainWindow.h"
#include "workbench/simulation/SimulationPage.h"
#include "workbench/tour/Tour.h"

#include <QScrollArea>

namespace PageTours {

void Simulation(CTour& tour, CMainWindow& window)
{
    tour.Picture(&window, QStringLiteral("simulation"));
    const auto* pScroll = window.findChild<CSimulationPage*>()->findChild<QScrollArea*>();
    tour.Picture(pScroll->widget(), QStringLiteral("simulation-all"));
}

void Everything(CTour& tour, CMainWindow& window)
{
    // In the order of the pages' tabs.
    constexpr void (*c_arrTours[])(CTour&, CMainWindow&) = {Edid, Colour, Output, Addresses, Simulation};
    tour.Picture(&window, QStringLiteral("workbench"));
    std::size_t nPage = 0;
    for (const auto pTour : c_arrTours) {
        window.ShowPage(window.Pages()[nPage++]);
        pTour(tour, window);
    }
}

} // namespace PageTours

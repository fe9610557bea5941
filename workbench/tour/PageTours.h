#ifndef WORKBENCH_TOUR_PAGETOURS_H
#define WORKBENCH_TOUR_PAGETOURS_H

class CLanguage;
class CMainWindow;
class CTour;
class QSettings;

/// Walks through the workbench, one for each page. Each finds its page in the window and operates it.
namespace PageTours {

void Edid(CTour& tour, CMainWindow& window);
void Colour(CTour& tour, CMainWindow& window);
void Output(CTour& tour, CMainWindow& window);
void Addresses(CTour& tour, CMainWindow& window);
void Simulation(CTour& tour, CMainWindow& window);

/// The whole window, then each page in turn, in the current language.
void Everything(CTour& tour, CMainWindow& window);

/// The journeys of the README in windows of their own, by mouse and by keys, in the current language.
void Journeys(CTour& tour, CLanguage& language, QSettings& settings);

} // namespace PageTours

#endif // WORKBENCH_TOUR_PAGETOURS_H

#ifndef WORKBENCH_TOUR_JOURNEY_H
#define WORKBENCH_TOUR_JOURNEY_H

#include <QString>

#include <vector>

class CHand;
class CMainWindow;

/// One step of a journey.
struct SJourneyStep
{
    const char* szName; ///< as the README has it
    /// Notes what the hand does.
    /// @param strFile the project file of the journey
    void (*pDo)(CHand& hand, CMainWindow& window, const QString& strFile);
};

/// A task of an operator from its beginning to its end, as the README describes it.
struct SJourney
{
    const char* szTitle; ///< the heading in the README
    const char* szName;  ///< in the names of pictures
    void (*pPrepare)();  ///< makes the project that the operator finds
    std::vector<SJourneyStep> vecSteps;
};

namespace Journeys {

/// All journeys in the order of the README.
const std::vector<SJourney>& All();

} // namespace Journeys

#endif // WORKBENCH_TOUR_JOURNEY_H

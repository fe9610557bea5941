#ifndef WORKBENCH_PROJECTSNAPSHOT_H
#define WORKBENCH_PROJECTSNAPSHOT_H

#include "simulator/CommonClass/SimulatedProject.h"

#include <memory>
#include <vector>

struct SProjectChange;

/// The values of a project at one moment. Consecutive snapshots share the senders that did not change, so
/// that many of them fit into memory.
class CProjectSnapshot
{
public:
    explicit CProjectSnapshot(const SSimulatedProject& project);

    /// The snapshot after a change of the project.
    CProjectSnapshot Next(const SSimulatedProject& project, const SProjectChange& change) const;
    /// The project as it was.
    SSimulatedProject Project() const;

private:
    CProjectSnapshot() = default;
    void TakeRest(const SSimulatedProject& project);

    SSimulatedProject m_rest; ///< all but the senders
    std::vector<std::shared_ptr<const SSimulatedSender>> m_vecSenders;
};

#endif // WORKBENCH_PROJECTSNAPSHOT_H

#ifndef WORKBENCH_EDID_WRITEPROBLEM_H
#define WORKBENCH_EDID_WRITEPROBLEM_H

#include "simulator/CommonClass/HostJournal.h"

#include <optional>

/// The words about a mode that was not written. The dialog itself only says that it failed, and nothing where
/// the sender takes the write without applying it.
namespace WriteProblem {

/// What failed, why, and what to do.
/// @param strInput name of the input
/// @param failedCall the host call that failed
QString Text(const QString& strInput, const std::optional<SJournalEntry>& failedCall);

} // namespace WriteProblem

#endif // WORKBENCH_EDID_WRITEPROBLEM_H

#ifndef TOOLS_TIMINGCOMMAND_H
#define TOOLS_TIMINGCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool timing`: the calculated blanking of a mode and the rate that it really has.
SSubcommand TimingSubcommand();

#endif // TOOLS_TIMINGCOMMAND_H

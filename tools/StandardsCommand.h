#ifndef TOOLS_STANDARDSCOMMAND_H
#define TOOLS_STANDARDSCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool standards`: the standard colour spaces with their names and chromaticities.
SSubcommand StandardsSubcommand();

#endif // TOOLS_STANDARDSCOMMAND_H

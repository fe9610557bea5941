#ifndef TOOLS_EDIDCOMMAND_H
#define TOOLS_EDIDCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool edid`: the 128-byte block of a mode.
SSubcommand EdidSubcommand();

#endif // TOOLS_EDIDCOMMAND_H

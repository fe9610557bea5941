#ifndef TOOLS_MANUALCOMMAND_H
#define TOOLS_MANUALCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool manual`: the manual page, made from the tables of the subcommands.
SSubcommand ManualSubcommand();

#endif // TOOLS_MANUALCOMMAND_H

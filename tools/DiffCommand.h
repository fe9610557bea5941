#ifndef TOOLS_DIFFCOMMAND_H
#define TOOLS_DIFFCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool diff`: what two EDIDs have different.
SSubcommand DiffSubcommand();

#endif // TOOLS_DIFFCOMMAND_H

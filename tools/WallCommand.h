#ifndef TOOLS_WALLCOMMAND_H
#define TOOLS_WALLCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool wall`: what the measured modules of a wall can show, and which are odd.
SSubcommand WallSubcommand();

#endif // TOOLS_WALLCOMMAND_H

#ifndef TOOLS_GAMUTCOMMAND_H
#define TOOLS_GAMUTCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool gamut`: how much of one gamut another covers.
SSubcommand GamutSubcommand();

#endif // TOOLS_GAMUTCOMMAND_H

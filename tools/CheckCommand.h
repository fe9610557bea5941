#ifndef TOOLS_CHECKCOMMAND_H
#define TOOLS_CHECKCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool check`: what is wrong with an EDID.
SSubcommand CheckSubcommand();

#endif // TOOLS_CHECKCOMMAND_H

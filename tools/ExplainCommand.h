#ifndef TOOLS_EXPLAINCOMMAND_H
#define TOOLS_EXPLAINCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool explain`: what the bytes of an EDID say.
SSubcommand ExplainSubcommand();

#endif // TOOLS_EXPLAINCOMMAND_H

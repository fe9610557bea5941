#ifndef TOOLS_COMPLETIONCOMMAND_H
#define TOOLS_COMPLETIONCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool completion`: what makes a shell complete subcommands, options and values.
SSubcommand CompletionSubcommand();

#endif // TOOLS_COMPLETIONCOMMAND_H

#ifndef TOOLS_LOCUSCOMMAND_H
#define TOOLS_LOCUSCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool locus`: the outline of the CIE 1931 diagram.
SSubcommand LocusSubcommand();

#endif // TOOLS_LOCUSCOMMAND_H

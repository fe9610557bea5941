#ifndef TOOLS_CCTCOMMAND_H
#define TOOLS_CCTCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool cct`: colour temperature to chromaticity and back.
SSubcommand CctSubcommand();

#endif // TOOLS_CCTCOMMAND_H

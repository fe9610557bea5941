#ifndef TOOLS_CHARTCOMMAND_H
#define TOOLS_CHARTCOMMAND_H

#include "tools/Subcommand.h"

/// `chart`: paints the chromaticity chart into a picture.
SSubcommand ChartSubcommand();

#endif // TOOLS_CHARTCOMMAND_H

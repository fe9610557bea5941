#ifndef TOOLS_MATRIXCOMMAND_H
#define TOOLS_MATRIXCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool matrix`: matrices in linear light between gamuts and XYZ.
SSubcommand MatrixSubcommand();

#endif // TOOLS_MATRIXCOMMAND_H

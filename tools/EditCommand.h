#ifndef TOOLS_EDITCOMMAND_H
#define TOOLS_EDITCOMMAND_H

#include "tools/Subcommand.h"

/// `sender-tool edit`: changes an EDID, or writes it in another form.
SSubcommand EditSubcommand();

#endif // TOOLS_EDITCOMMAND_H

#include "tools/CctCommand.h"
#include "tools/ChartCommand.h"
#include "tools/CheckCommand.h"
#include "tools/CompletionCommand.h"
#include "tools/DiffCommand.h"
#include "tools/EdidCommand.h"
#include "tools/EditCommand.h"
#include "tools/ExplainCommand.h"
#include "tools/GamutCommand.h"
#include "tools/LocusCommand.h"
#include "tools/ManualCommand.h"
#include "tools/MatrixCommand.h"
#include "tools/StandardsCommand.h"
#include "tools/Subcommand.h"
#include "tools/TimingCommand.h"
#include "tools/WallCommand.h"

std::vector<SSubcommand> AllSubcommands()
{
    return {
        EdidSubcommand(),
        TimingSubcommand(),
        ExplainSubcommand(),
        CheckSubcommand(),
        DiffSubcommand(),
        EditSubcommand(),
        CctSubcommand(),
        GamutSubcommand(),
        LocusSubcommand(),
        StandardsSubcommand(),
        MatrixSubcommand(),
        WallSubcommand(),
        ChartSubcommand(),
        // What describes the others comes last.
        ManualSubcommand(),
        CompletionSubcommand(),
    };
}

#ifndef TOOLS_SUBCOMMAND_H
#define TOOLS_SUBCOMMAND_H

#include <vector>

class CArguments;

/// The application object that a subcommand runs in.
enum class enApplication
{
    enCore,    ///< calculation and files
    enWidgets, ///< widgets and painting, on no screen
};

/// An option that a subcommand knows, beside `--help`, which all know.
struct SOption
{
    const char* szName;  ///< long name, without its dashes
    char chShort;        ///< short name, 0 for none
    const char* szValue; ///< what its value is called in the help; null for a flag
    const char* szHelp;
    /// The values to choose from, separated by blanks; null where any may be given. Shells offer them.
    const char* szChoices = nullptr;
};

/// One subcommand: everything that the frame needs to list it, explain it, parse for it and run it.
struct SSubcommand
{
    const char* szName;
    const char* szArguments; ///< positional arguments, as the help shows them
    int nMinArguments;
    int nMaxArguments;
    const char* szSummary; ///< one line
    const char* szDetails; ///< the rest of the help: whole lines, each with its newline
    std::vector<SOption> vecOptions;
    enApplication application;
    /// Does the work. Whatever is wrong with the input or the output is thrown as `CToolError`.
    void (*pRun)(const CArguments& arguments);
};

/// Every subcommand, in the order of the help.
std::vector<SSubcommand> AllSubcommands();

#endif // TOOLS_SUBCOMMAND_H

#ifndef WORKBENCH_WORKBENCH_H
#define WORKBENCH_WORKBENCH_H

#include <QString>

/// What the program was asked to do.
struct SWorkbenchOptions
{
    QString strFile;       ///< project to open; empty: the one that was open last
    QString strTourFolder; ///< folder of a tour's pictures; empty: no tour
    QString strLanguage;   ///< "zh" or "en"; empty: as set last, or by the locale
};

/// Runs the workbench until its window is closed.
/// @return exit status of the program
int RunWorkbench(const SWorkbenchOptions& options);

/// Walks through the workbench in both languages and leaves pictures, the project file and an EDID block.
/// @return 0 when nothing failed; else 1, with one line to standard error for each failure
int RunTour(const SWorkbenchOptions& options);

#endif // WORKBENCH_WORKBENCH_H

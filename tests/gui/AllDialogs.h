#ifndef TESTS_GUI_ALLDIALOGS_H
#define TESTS_GUI_ALLDIALOGS_H

#include "tests/support/RecordingHost.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

/// Every dialog of the library in each of its variants, for tests that walk them all.
namespace AllDialogs {

/// Sets up a host and builds a dialog on it.
using FuncMake = std::function<std::unique_ptr<QDialog>(CRecordingHost& host)>;

struct SVariant
{
    const char* szName;
    FuncMake funcMake;
};

/// All variants, each with every row that it can show.
std::vector<SVariant> Variants();

} // namespace AllDialogs

Q_DECLARE_METATYPE(AllDialogs::FuncMake)

#endif // TESTS_GUI_ALLDIALOGS_H

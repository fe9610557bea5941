#ifndef SENDERMODULEDIALOG_EDID_EDIDENVIRONMENT_H
#define SENDERMODULEDIALOG_EDID_EDIDENVIRONMENT_H

#include <QString>

#include <functional>

/// What the EDID dialog takes from the machine it runs on. Tests put their own functions in place, so that
/// they neither wait nor depend on the system.
struct SEdidEnvironment
{
    std::function<void(unsigned int nMicroseconds)> funcWait; ///< sleeps, `usleep` by default
    std::function<QString()> funcProductType;                 ///< `QSysInfo::productType` by default
    std::function<QString()> funcProductVersion;              ///< `QSysInfo::productVersion` by default
};

/// The one environment of the process.
SEdidEnvironment& EdidEnvironment();

#endif // SENDERMODULEDIALOG_EDID_EDIDENVIRONMENT_H

#include "SenderModuleDialog/edid/EdidEnvironment.h"

#include "SenderModuleDialog/Constants.h"

#include <QSysInfo>

#include <unistd.h>

SEdidEnvironment& EdidEnvironment()
{
    static SEdidEnvironment s_environment = {
        [](unsigned int nMicroseconds) { usleep(nMicroseconds); },
        [] { return QSysInfo::productType(); },
        [] { return QSysInfo::productVersion(); },
    };
    return s_environment;
}

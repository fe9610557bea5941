#include "host/TevraData/MonitorData.h"

CMonitorData* GetMonitorData()
{
    static CMonitorData s_data;
    return &s_data;
}

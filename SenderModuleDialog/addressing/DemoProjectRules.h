#ifndef SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTRULES_H
#define SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTRULES_H

#include "host/TevraData/DemoSenderType.h"

#include <QString>

#include <array>

/// The processor types of a demonstration project.
namespace DemoProjectRules {

/// A processor type that can be demonstrated.
struct SDemoType
{
    const char* szName; ///< shown as it stands in every language
    int nSenderType;    ///< value for `CProjectData::SetDemoSenderType`
};

/// In menu order.
constexpr std::array<SDemoType, 6> c_arrTypes = {{
    {"M6K", enDemoM6K},
    {"R16 PRO", enDemoR16Pro},
    {"T4", enDemoT4},
    {"T6", enDemoT6},
    {"T6 PRO", enDemoT6Pro},
    {"T8", enDemoT8},
}};

/// The type with that index, null outside the table.
const SDemoType* TypeAt(int nIndex);

/// The name of the type with that index, empty outside the table.
QString NameAt(int nIndex);

} // namespace DemoProjectRules

#endif // SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTRULES_H

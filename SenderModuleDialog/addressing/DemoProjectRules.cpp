#include "SenderModuleDialog/addressing/DemoProjectRules.h"

namespace DemoProjectRules {

const SDemoType* TypeAt(int nIndex)
{
    const bool bInside = nIndex >= 0 && nIndex < int(c_arrTypes.size());
    return bInside ? &c_arrTypes[std::size_t(nIndex)] : nullptr;
}

QString NameAt(int nIndex)
{
    const SDemoType* pType = TypeAt(nIndex);
    return pType == nullptr ? QString() : QString::fromLatin1(pType->szName);
}

} // namespace DemoProjectRules

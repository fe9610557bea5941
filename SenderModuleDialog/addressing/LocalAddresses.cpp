#include "SenderModuleDialog/addressing/LocalAddresses.h"

#include "SenderModuleDialog/Constants.h"

#include <QNetworkInterface>

#include <utility>

namespace LocalAddresses {

namespace {

FuncSource& Source()
{
    static FuncSource s_funcSource;
    return s_funcSource;
}

} // namespace

QList<QHostAddress> All()
{
    return Source() ? Source()() : QNetworkInterface::allAddresses();
}

void SetSource(FuncSource funcSource)
{
    Source() = std::move(funcSource);
}

} // namespace LocalAddresses

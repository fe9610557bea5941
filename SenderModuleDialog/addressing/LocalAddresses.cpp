#include "SenderModuleDialog/addressing/LocalAddresses.h"

#include "SenderModuleDialog/Constants.h"

#include <QNetworkInterface>

#include <utility>

namespace LocalAddresses {

namespace {

FSource& Source()
{
    static FSource s_funcSource;
    return s_funcSource;
}

} // namespace

QList<QHostAddress> All()
{
    return Source() ? Source()() : QNetworkInterface::allAddresses();
}

void SetSource(FSource funcSource)
{
    Source() = std::move(funcSource);
}

} // namespace LocalAddresses

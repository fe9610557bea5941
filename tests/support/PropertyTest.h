#ifndef TESTS_SUPPORT_PROPERTYTEST_H
#define TESTS_SUPPORT_PROPERTYTEST_H

#include <QByteArray>

#include <rapidcheck.h>

#include <utility>

/// Whether a property holds for generated arguments. The seed is fixed, so that runs repeat; set RC_PARAMS,
/// for instance to "seed=7 max_success=100000", for other arguments.
template <class TProperty>
bool PropertyHolds(const char* szDescription, TProperty&& property)
{
    if (qEnvironmentVariableIsEmpty("RC_PARAMS"))
        qputenv("RC_PARAMS", "seed=20260 max_success=2000 max_discard_ratio=100");
    return rc::check(szDescription, std::forward<TProperty>(property));
}

#endif // TESTS_SUPPORT_PROPERTYTEST_H

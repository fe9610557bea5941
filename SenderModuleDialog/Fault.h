#ifndef SENDERMODULEDIALOG_FAULT_H
#define SENDERMODULEDIALOG_FAULT_H

#include <cstdio>
#include <cstdlib>

/// @file
/// Checks that stay active in every build. A broken rule ends the process where it is broken, with one line
/// that names the place: going on would be undefined behaviour.

/// A place in the source.
struct SSourcePlace
{
    const char* szFunction;
    const char* szFile;
    int nLine;

    /// The caller's place, when used as a default argument.
    static constexpr SSourcePlace Here(const char* szFunction = __builtin_FUNCTION(),
                                       const char* szFile = __builtin_FILE(), int nLine = __builtin_LINE())
    {
        return {szFunction, szFile, nLine};
    }
};

/// Prints function, source, line and expression to standard error and aborts.
[[noreturn]] inline void Fault(const char* szExpression, SSourcePlace place = SSourcePlace::Here())
{
    std::fprintf(stderr, "SenderModuleDialog: fault in \"%s\", %s, line %d: \"%s\" does not hold\n",
                 place.szFunction, place.szFile, place.nLine, szExpression);
    std::fflush(stderr);
    std::abort();
}

/// Faults unless the condition holds.
inline void Require(bool bHolds, const char* szExpression, SSourcePlace place = SSourcePlace::Here())
{
    if (!bHolds)
        Fault(szExpression, place);
}

/// The object behind a pointer that the rules say is there; faults on null.
template <class T>
T& Deref(T* pObject, const char* szExpression, SSourcePlace place = SSourcePlace::Here())
{
    if (pObject == nullptr)
        Fault(szExpression, place);
    return *pObject;
}

#endif // SENDERMODULEDIALOG_FAULT_H

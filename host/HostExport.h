#ifndef HOST_HOSTEXPORT_H
#define HOST_HOSTEXPORT_H

#include <QtGlobal>

/// @file
/// Import and export marks of the host's libraries. Each library defines its `..._LIBRARY` while it is built.

#ifdef ORVICONTROL_LIBRARY
#define ORVICONTROL_EXPORT Q_DECL_EXPORT
#else
#define ORVICONTROL_EXPORT Q_DECL_IMPORT
#endif

#ifdef TEVRADATA_LIBRARY
#define TEVRADATA_EXPORT Q_DECL_EXPORT
#else
#define TEVRADATA_EXPORT Q_DECL_IMPORT
#endif

#ifdef HARDWARESUPPORT_LIBRARY
#define HARDWARESUPPORT_EXPORT Q_DECL_EXPORT
#else
#define HARDWARESUPPORT_EXPORT Q_DECL_IMPORT
#endif

#ifdef COMMONCLASS_LIBRARY
#define COMMONCLASS_EXPORT Q_DECL_EXPORT
#else
#define COMMONCLASS_EXPORT Q_DECL_IMPORT
#endif

#endif // HOST_HOSTEXPORT_H

#ifndef HOST_HOSTEXPORT_H
#define HOST_HOSTEXPORT_H

#include <QtGlobal>

/// @file
/// Import and export marks of the host's libraries. Each library defines its `..._LIBRARY` while it is built.

/// Marks what the library `OrviControl` gives to others; everything else of it may be hidden.
#ifdef ORVICONTROL_LIBRARY
#define ORVICONTROL_EXPORT Q_DECL_EXPORT
#else
#define ORVICONTROL_EXPORT Q_DECL_IMPORT
#endif

/// Marks what the library `TevraData` gives to others; everything else of it may be hidden.
#ifdef TEVRADATA_LIBRARY
#define TEVRADATA_EXPORT Q_DECL_EXPORT
#else
#define TEVRADATA_EXPORT Q_DECL_IMPORT
#endif

/// Marks what the library `HardwareSupport` gives to others; everything else of it may be hidden.
#ifdef HARDWARESUPPORT_LIBRARY
#define HARDWARESUPPORT_EXPORT Q_DECL_EXPORT
#else
#define HARDWARESUPPORT_EXPORT Q_DECL_IMPORT
#endif

/// Marks what the library `CommonClass` gives to others; everything else of it may be hidden.
#ifdef COMMONCLASS_LIBRARY
#define COMMONCLASS_EXPORT Q_DECL_EXPORT
#else
#define COMMONCLASS_EXPORT Q_DECL_IMPORT
#endif

#endif // HOST_HOSTEXPORT_H

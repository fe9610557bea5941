#ifndef HOST_QTCOMPAT_H
#define HOST_QTCOMPAT_H

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QScreen>
#include <QTextStream>
#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QDesktopWidget>
#endif

/// @file
/// What Qt 5.15 and Qt 6 spell differently, under one name. It is the only place that asks for Qt's version;
/// it is not installed.

namespace QtCompat {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

inline QPointF EventPosition(const QMouseEvent& event)
{
    return event.localPos();
}

/// The size of all screens together.
inline QSize DesktopSize()
{
    return QApplication::desktop()->size();
}

inline QList<QFontDatabase::WritingSystem> WritingSystems(const QString& strFamily)
{
    return QFontDatabase().writingSystems(strFamily);
}

inline QStringList FontFamilies(QFontDatabase::WritingSystem script)
{
    return QFontDatabase().families(script);
}

/// The folder with Qt's own translations.
inline QString TranslationsFolder()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

inline void ReadUtf8(QTextStream& stream)
{
    stream.setCodec("UTF-8");
}

/// Sends a dialog that is over its close event.
inline void CloseHidden(QDialog& dialog)
{
    dialog.close();
}

/// Before the application: sizes in logical pixels, and pictures as sharp as the screen.
inline void EnableHighDpi()
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

#else

inline QPointF EventPosition(const QMouseEvent& event)
{
    return event.position();
}

inline QSize DesktopSize()
{
    return QGuiApplication::primaryScreen()->virtualSize();
}

inline QList<QFontDatabase::WritingSystem> WritingSystems(const QString& strFamily)
{
    return QFontDatabase::writingSystems(strFamily);
}

inline QStringList FontFamilies(QFontDatabase::WritingSystem script)
{
    return QFontDatabase::families(script);
}

inline QString TranslationsFolder()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

inline void ReadUtf8(QTextStream& stream)
{
    stream.setEncoding(QStringConverter::Utf8);
}

/// `close` does nothing more for a dialog that is over.
inline void CloseHidden(QDialog& dialog)
{
    QCloseEvent event;
    QApplication::sendEvent(&dialog, &event);
}

inline void EnableHighDpi() {}

#endif

} // namespace QtCompat

#endif // HOST_QTCOMPAT_H

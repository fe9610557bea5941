#ifndef TESTS_SUPPORT_CONTROLS_H
#define TESTS_SUPPORT_CONTROLS_H

#include <QLatin1String>
#include <QWidget>

/// The control of a dialog with that object name; ends the test when there is none of that kind.
template <class TControl>
TControl& Control(const QWidget& dialog, const char* szName)
{
    auto* pControl = dialog.findChild<TControl*>(QLatin1String(szName));
    if (pControl == nullptr)
        qFatal("the dialog has no %s \"%s\"", TControl::staticMetaObject.className(), szName);
    return *pControl;
}

#endif // TESTS_SUPPORT_CONTROLS_H

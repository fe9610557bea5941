#ifndef TESTS_SIMULATOR_ORVICONTROL_KEYBOARD_H
#define TESTS_SIMULATOR_ORVICONTROL_KEYBOARD_H

#include <QApplication>
#include <QtTest>

/// The keyboard of an operator: keys go to whatever has the focus at that moment.
namespace Keyboard {

inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

inline void Type(const QString& strText)
{
    for (const QChar ch : strText)
        QTest::keyClicks(QApplication::focusWidget(), QString(ch));
}

} // namespace Keyboard

#endif // TESTS_SIMULATOR_ORVICONTROL_KEYBOARD_H

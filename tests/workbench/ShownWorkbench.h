#ifndef TESTS_WORKBENCH_SHOWNWORKBENCH_H
#define TESTS_WORKBENCH_SHOWNWORKBENCH_H

#include "simulator/CommonClass/Simulator.h"
#include "workbench/MainWindow.h"
#include "workbench/SenderTree.h"

#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

/// A workbench with separate settings.
class CWorkbenchFixture
{
public:
    CWorkbenchFixture()
        : settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
        , window(language, settings)
    {
        CSimulator::Instance().Document().NewProject();
    }

    /// The window shown and active, so that keys find the focus.
    void Activate()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QString File(const char* szName) const { return folder.filePath(QString::fromLatin1(szName)); }

    QTemporaryDir folder;
    CLanguage language;
    QSettings settings;
    CMainWindow window;
};

/// Presses the button with that text in the next message box, and notes what the box said.
class CMessageAnswer : public QObject
{
public:
    explicit CMessageAnswer(const char* szButton)
        : m_strButton(QString::fromUtf8(szButton))
    {
        qApp->installEventFilter(this);
    }

    QString strText;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        auto* pBox = qobject_cast<QMessageBox*>(pWatched);
        if (pBox != nullptr && pEvent->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                pBox, [this, pBox] { Press(pBox); }, Qt::QueuedConnection);
        return QObject::eventFilter(pWatched, pEvent);
    }

private:
    void Press(QMessageBox* pBox)
    {
        strText = pBox->text();
        for (QAbstractButton* pButton : pBox->buttons())
            if (pButton->text() == m_strButton)
                return pButton->click();
        pBox->reject();
    }

    const QString m_strButton;
};

#endif // TESTS_WORKBENCH_SHOWNWORKBENCH_H

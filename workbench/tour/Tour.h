#ifndef WORKBENCH_TOUR_TOUR_H
#define WORKBENCH_TOUR_TOUR_H

#include <QObject>
#include <QSize>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;
class QWidget;

/// A walk through the workbench that leaves a picture of each window and notes what went wrong.
class CTour : public QObject
{
    Q_OBJECT

public:
    static constexpr QSize c_sizeScreen{1920, 1040}; ///< of the screen that the pictures are made for

    /// @param strFolder where the pictures go; created when it does not exist
    explicit CTour(const QString& strFolder);
    ~CTour() override;

    QString Folder() const { return m_strFolder; }
    /// Sets the prefix of the following pictures' names: the language and the page.
    void SetPrefix(const QString& strPrefix) { m_strPrefix = strPrefix; }

    /// Lays out and paints a window and saves its picture under `prefix-name.png`.
    void Picture(QWidget* pWindow, const QString& strName);
    /// Notes a failure unless the condition holds.
    void Check(bool bHolds, const QString& strWhat);
    /// Shows a dialog without blocking, lets the action look at it and operate it, and closes it.
    void WithDialog(QDialog& dialog, const std::function<void()>& funcAction);
    /// Runs an action that shows a modal message; the message's picture is saved under the name, and the
    /// button of `CCustomMessageBox` with that value is pressed.
    void WithMessage(const QString& strName, int nButton, const std::function<void()>& funcAction);

    /// Leaves the messages that appear to a hand that presses their buttons.
    void LeaveMessages(bool bLeft) { m_bMessagesLeft = bLeft; }

    QStringList Failures() const { return m_listFailures; }
    QStringList Pictures() const { return m_listPictures; }
    /// Writes `windows.txt`: a line for each picture with its file and the window that it shows, a page of
    /// the workbench or a dialog.
    void LeaveWindows();

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void AnswerMessage(QDialog* pMessage);
    void GiveUp();

    QString m_strFolder; ///< absolute: dialogs are handed files in it
    QTimer m_watchdog;   ///< expires when a dialog without an answer blocks the tour
    QString m_strPrefix;
    QString m_strMessageName;
    int m_nMessageButton = 0;
    bool m_bMessagesLeft = false;
    QStringList m_listFailures;
    QStringList m_listPictures;
    QStringList m_listWindows; ///< by picture
};

#endif // WORKBENCH_TOUR_TOUR_H

#ifndef TESTS_SUPPORT_MODALANSWERS_H
#define TESTS_SUPPORT_MODALANSWERS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Answers the modal messages that a test expects, in order, by clicking the button with the given value. A
/// message without a planned answer is closed and recorded too.
class CModalAnswers : public QObject
{
    Q_OBJECT

public:
    CModalAnswers();
    ~CModalAnswers() override;

    /// The next message will be answered by this button of `CCustomMessageBox`.
    void Plan(int nButton);
    /// Texts of the messages shown so far, in order.
    QStringList Texts() const { return m_listTexts; }
    /// The parents that they were shown over, null where they had none.
    QList<QPointer<QWidget>> Parents() const { return m_listParents; }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void Answer(QWidget* pBox);

    QList<int> m_listPlanned;
    QStringList m_listTexts;
    QList<QPointer<QWidget>> m_listParents;
};

#endif // TESTS_SUPPORT_MODALANSWERS_H

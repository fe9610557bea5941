#ifndef WORKBENCH_WORKBENCHPAGE_H
#define WORKBENCH_WORKBENCHPAGE_H

#include <QWidget>

#include <functional>

/// What is selected in the tree of senders.
struct SSelection
{
    int nSender = -1;      ///< index of the sender, -1 for none
    int nInterfaceId = -1; ///< video interface of that sender, -1 when the sender itself is selected

    bool HasSender() const { return nSender >= 0; }
    bool HasInput() const { return HasSender() && nInterfaceId >= 0; }
};

/// One page of the workbench: a view of the selected sender or input with the dialogs that belong to it.
class CWorkbenchPage : public QWidget
{
    Q_OBJECT

public:
    explicit CWorkbenchPage(QWidget* pParent = nullptr)
        : QWidget(pParent)
    {}

    /// The page's title in the current language.
    virtual QString Title() const = 0;
    /// Shows another sender or input.
    virtual void ShowSelection(const SSelection& selection) = 0;
    /// Puts all texts into the current language.
    virtual void Retranslate() = 0;

    /// Does something to the project as one undoable step.
    /// @param strText what it does
    /// @param strMerge a step continues the one before it when both have the same text here
    void DoAsStep(const QString& strText, const std::function<void()>& funcDo,
                  const QString& strMerge = QString())
    {
        Q_EMIT StepBegan(strText, strMerge);
        funcDo();
        Q_EMIT StepEnded();
    }

Q_SIGNALS:
    /// One line for the status bar: what has just happened.
    void Reported(const QString& strText);
    /// Something failed: what, why, and what to do. Shown as a message.
    void Failed(const QString& strText);
    /// Another sender or input is to be selected in the tree.
    void SelectionWanted(const SSelection& selection);
    /// What changes in the project from now until `StepEnded` is one step. Prefer `DoAsStep`.
    void StepBegan(const QString& strText, const QString& strMerge = QString());
    void StepEnded();
};

#endif // WORKBENCH_WORKBENCHPAGE_H

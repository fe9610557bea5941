#ifndef WORKBENCH_SENDERACTIONS_H
#define WORKBENCH_SENDERACTIONS_H

#include <QObject>

class CProjectHistory;
class CSenderTree;
class QAction;
class QMenu;

/// What can be done to the senders of the tree. The actions stand in the menu and in the tree's context menu;
/// their keys work in the tree.
class CSenderActions : public QObject
{
    Q_OBJECT

public:
    CSenderActions(CSenderTree& tree, CProjectHistory& history, QObject* pParent = nullptr);

    void AddTo(QMenu* pMenu) const;
    void Retranslate();

    /// Renames the sender, or asks for the EDID editor of the input.
    void EditCurrent();
    void RenameCurrent();
    /// Asks for type and number, adds the senders and selects the first.
    void Add();
    void RemoveSelected();

Q_SIGNALS:
    /// The setting of the current input is to be edited.
    void EdidWanted();
    /// One line for the status bar.
    void Reported(const QString& strText);

private:
    QAction* CreateAction(const char* szName, const QList<QKeySequence>& listKeys,
                          void (CSenderActions::*pAction)());
    void Rename(int nSender, const QString& strName);
    void EnableActions();

    CSenderTree& m_tree;
    CProjectHistory& m_history;
    QAction* m_pEdit = nullptr;
    QAction* m_pRename = nullptr;
    QAction* m_pAdd = nullptr;
    QAction* m_pRemove = nullptr;
};

#endif // WORKBENCH_SENDERACTIONS_H

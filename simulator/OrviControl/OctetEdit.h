#ifndef SIMULATOR_ORVICONTROL_OCTETEDIT_H
#define SIMULATOR_ORVICONTROL_OCTETEDIT_H

#include <QLineEdit>

/// One cell of the address editor. It passes every key, committed text and clipboard action to its owner
/// first: only the owner knows the neighbours.
class COctetEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit COctetEdit(QWidget* pParent);

    /// True when the cursor stands before the first character, or behind the last, and nothing is selected.
    bool IsAtStart() const;
    bool IsAtEnd() const;

Q_SIGNALS:
    /// A key was pressed.
    /// @param pHandled set to true by the owner: the cell then does nothing itself
    void KeyPressed(QKeyEvent* pEvent, bool* pHandled);
    /// An input method or the mouse entered text.
    void TextEntered(const QString& strText);
    /// The operator asked for the context menu, at this global position.
    void MenuRequested(const QPoint& ptGlobal);
    void FocusChanged();
    void MousePressed();

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;
    void inputMethodEvent(QInputMethodEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
};

#endif // SIMULATOR_ORVICONTROL_OCTETEDIT_H

#ifndef WORKBENCH_COLOUR_CHARTEDITOR_H
#define WORKBENCH_COLOUR_CHARTEDITOR_H

#include "workbench/colour/ColourGroups.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <optional>

/// Changes the groups of a chart in undoable steps. A drag is one step, however long.
class CChartEditor : public QObject
{
    Q_OBJECT

public:
    explicit CChartEditor(CChromaticityDlgWnd& chart, QObject* pParent = nullptr);
    ~CChartEditor() override;

    CChromaticityDlgWnd& Chart() { return m_chart; }
    const CChromaticityDlgWnd& Chart() const { return m_chart; }
    QUndoStack& Steps() { return m_steps; }

    /// Runs a change on the live groups as one step.
    /// @param funcChange returns false to restore everything
    /// @return what the change returned
    bool Change(const QString& strText, const std::function<bool()>& funcChange);

    /// A drag begins: what it changes until `EndDrag` is one step.
    void BeginDrag();
    void EndDrag();
    bool IsDragging() const { return bool(m_groupsBeforeDrag); }

    /// Takes a step back or forward; not in the middle of a drag.
    /// @{
    void Undo();
    void Redo();
    /// @}

Q_SIGNALS:
    /// The groups or the undoable steps changed.
    void Changed();

private:
    void Push(const QString& strText, const ColourGroups::Groups& groupsBefore);

    CChromaticityDlgWnd& m_chart;
    QUndoStack m_steps;
    std::optional<ColourGroups::Groups> m_groupsBeforeDrag;
};

#endif // WORKBENCH_COLOUR_CHARTEDITOR_H

#ifndef WORKBENCH_COLOUR_CHARTEDITOR_H
#define WORKBENCH_COLOUR_CHARTEDITOR_H

#include "workbench/colour/ColourGroups.h"

#include <QObject>

#include <functional>
#include <optional>

/// Changes the groups of a chart in steps. A drag is one step, however long.
class CChartEditor : public QObject
{
    Q_OBJECT

public:
    explicit CChartEditor(CChromaticityDlgWnd& chart, QObject* pParent = nullptr);

    CChromaticityDlgWnd& Chart() { return m_chart; }
    const CChromaticityDlgWnd& Chart() const { return m_chart; }

    /// Runs a change on the live groups as one step.
    /// @param funcChange returns false to restore everything
    /// @return what the change returned
    bool Change(const QString& strText, const std::function<bool()>& funcChange);

    /// A drag begins: what it changes until `EndDrag` is one step.
    void BeginDrag();
    void EndDrag();
    bool IsDragging() const { return bool(m_groupsBeforeDrag); }

Q_SIGNALS:
    /// The groups changed.
    void Changed();
    /// What changes from now until `StepEnded` is one step.
    void StepBegan(const QString& strText);
    void StepEnded();

private:
    void AnnounceChange(const ColourGroups::Groups& groupsBefore);

    CChromaticityDlgWnd& m_chart;
    std::optional<ColourGroups::Groups> m_groupsBeforeDrag;
};

#endif // WORKBENCH_COLOUR_CHARTEDITOR_H

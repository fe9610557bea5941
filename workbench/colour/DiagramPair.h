#ifndef WORKBENCH_COLOUR_DIAGRAMPAIR_H
#define WORKBENCH_COLOUR_DIAGRAMPAIR_H

#include <QWidget>

/// The chart and the u'v' diagram: one of them, or both beside each other where a single one would leave half
/// of the room empty. A diagram is nearly as wide as it is high, so more width does not make it larger.
class CDiagramPair : public QWidget
{
    Q_OBJECT

public:
    explicit CDiagramPair(QWidget* pParent = nullptr);

    /// The diagrams, which become children.
    void SetDiagrams(QWidget* pChart, QWidget* pUcs);

    /// Shows the u'v' diagram instead of the chart, or the chart again, where there is room for one.
    void ShowUcs(bool bShown);
    bool HasRoomForBoth() const;

Q_SIGNALS:
    /// There is room for both now, or no longer.
    void RoomChanged(bool bBoth);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void Arrange();

    QWidget* m_pChart = nullptr;
    QWidget* m_pUcs = nullptr;
    bool m_bUcsShown = false;
    bool m_bBoth = false;
};

#endif // WORKBENCH_COLOUR_DIAGRAMPAIR_H

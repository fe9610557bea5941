#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"

#include <QApplication>

/// The chromaticity chart alone in a window, with one group whose points can be dragged.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    CChromaticityDlgWnd chart(nullptr);
    chart.resize(1000, 1000);
    chart.SetSize(1000, 1000); // before the first paint, both above 100

    SChromaGroupInfo group;
    group.ptRed = {0.68F, 0.32F};
    group.ptGreen = {0.265F, 0.69F};
    group.ptBlue = {0.15F, 0.06F};
    group.ptWhite = {0.3127F, 0.329F};
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    group.nPenStyle = Qt::SolidLine;
    group.strName = QStringLiteral("Wall 7");
    chart.AddChromaGroupByIndex(0, group);

    // Asked at every step of a drag, directly. Only true keeps the new place; without an answer the point
    // goes to the last solved one.
    QObject::connect(&chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &chart,
                     [](int nGroup, int nPoint, bool& bSuccessed) { bSuccessed = true; });
    chart.show();
    return QApplication::exec();
}

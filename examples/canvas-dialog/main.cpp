#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "simulator/CommonClass/Simulator.h"

#include <QApplication>

/// Asks for the canvas of a simulated sender and prints it.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    CSimulator& simulator = CSimulator::Instance();
    SenderModuleDialogInit(simulator.Label()); // once, before the first dialog
    simulator.Document().NewProject();

    CSetCanvasDlg dialog(nullptr);
    if (dialog.exec() != 1) // 0: cancelled
        return 1;
    const QSize size = dialog.GetCanvasSize();
    qInfo("canvas %d x %d", size.width(), size.height());
    return 0;
}

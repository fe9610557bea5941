#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"

#include "simulator/CommonClass/Simulator.h"

#include <QApplication>
#include <QPointF>

#include <cstdio>

/// Uses each family of the library once, as a host would.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    CSimulator::Instance().Document().NewProject();
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CEDIDRaw raw;
    raw.ChangeWH(1920, 1080, 60.0F);
    QPointF ptWhite;
    CCCT2ColorCoord converter;
    converter.CCTtoColorCoord(6500.0F, &ptWhite, false);
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(400, 400);
    const SWndBitmap bitmap;
    const QPointF ptPixel = chart.Mapping().ToPixel(ptWhite);
    const CPolygon polygon = QVector<QPointF>{ptWhite, ptPixel, chart.Mapping().ToChromaticity(ptPixel)};
    if (bitmap.bReady || polygon.size() != 3)
        return 1;
    CResetCoefDlg dialog(true, nullptr);
    dialog.SetValue(0.5F);
    const CSetCanvasDlg dialogCanvas(nullptr);
    std::printf("%02X %.4f %.1f\n", unsigned(reinterpret_cast<const unsigned char*>(&raw)[127]), ptWhite.x(),
                double(dialog.GetValue()));
    return 0;
}

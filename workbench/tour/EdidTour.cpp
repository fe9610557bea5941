#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/MainWindow.h"
#include "workbench/SenderTree.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/edid/FieldModel.h"
#include "workbench/edid/FieldTree.h"
#include "workbench/edid/HexView.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"

#include <QCoreApplication>
#include <QDir>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int c_nChosenResolution = 2; ///< entry of the resolution menu that the tour picks, 0 being custom
constexpr int c_nProgressTime = 300; ///< ms after OK until the picture, roughly half-way through the progress

SSelection FirstInput()
{
    const SSimulatedSender* pSender = CSimulator::Instance().Project().FindSender(0);
    if (pSender == nullptr || pSender->listInputs.empty())
        return {};
    return {0, pSender->listInputs.front().nInterfaceId};
}

void Invoke(QDialog& dialog, const char* szSlot)
{
    QMetaObject::invokeMethod(&dialog, szSlot);
}

void PictureOfProgress(CTour& tour, QDialog& dialog)
{
    if (auto* pProgress = dialog.findChild<QProgressDialog*>())
        tour.Picture(pProgress, QStringLiteral("edid-progress"));
}

void AcceptMode(CTour& tour, CEdidPage& page, int nResolution)
{
    CEdidSetDlg dialog(&page, page.Input()->nInterfaceId, false);
    tour.WithDialog(dialog, [&] {
        QMetaObject::invokeMethod(&dialog, "OnResolutionComboBoxSelect", Q_ARG(int, nResolution));
        QTimer::singleShot(c_nProgressTime, &dialog, [&] { PictureOfProgress(tour, dialog); });
        Invoke(dialog, "OnOKPushButtonClicked");
    });
    tour.Check(dialog.result() == QDialog::Accepted, QStringLiteral("the EDID dialog did not accept"));
}

void TourOfDialog(CTour& tour, CEdidPage& page)
{
    // The first write fills an empty memory; the second shows what a change of mode changes.
    AcceptMode(tour, page, 0);
    CEdidSetDlg dialog(&page, page.Input()->nInterfaceId, false);
    tour.WithDialog(dialog, [&] {
        tour.Picture(&dialog, QStringLiteral("edid-dialog"));
        QMetaObject::invokeMethod(&dialog, "OnResolutionComboBoxSelect", Q_ARG(int, 0));
        tour.Picture(&dialog, QStringLiteral("edid-dialog-custom"));
    });
    AcceptMode(tour, page, c_nChosenResolution);
}

void TourOfSenders(CTour& tour, CEdidPage& page)
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewCatalogueProject();
    const int nSenders = int(simulator.Project().listSenders.size());
    for (int nSender = 0; nSender < nSenders; ++nSender) {
        const SSimulatedSender* pSender = simulator.Project().FindSender(nSender);
        if (pSender->listInputs.empty())
            continue;
        simulator.Document().SetCurrentSender(nSender);
        CEdidSetDlg dialog(&page, pSender->listInputs.front().nInterfaceId, false);
        tour.WithDialog(dialog, [&] {
            tour.Picture(&dialog, QStringLiteral("edid-type%1").arg(pSender->capability.nType));
        });
    }
    simulator.Document().NewProject();
}

void TourOfFailure(CTour& tour, CEdidPage& page)
{
    CSimulator& simulator = CSimulator::Instance();
    const int nSender = simulator.Project().nCurSender;
    simulator.Document().Change(
        [nSender](SSimulatedProject& project) { project.FindSender(nSender)->faults.nEdidWriteResult = 1; });
    CEdidSetDlg dialog(&page, page.Input()->nInterfaceId, false);
    tour.WithMessage(QStringLiteral("edid-write-failed"), 1,
                     [&] { tour.WithDialog(dialog, [&] { Invoke(dialog, "OnOKPushButtonClicked"); }); });
    tour.Check(!dialog.IsSetSuccessed(), QStringLiteral("a write that failed was reported as good"));
    simulator.Document().Change(
        [nSender](SSimulatedProject& project) { project.FindSender(nSender)->faults.nEdidWriteResult = 0; });
}

QModelIndex RowOfByte(CEdidPage& page, int nOffset)
{
    return page.findChild<CFieldModel*>()->IndexOfByte(nOffset).siblingAtColumn(CFieldModel::enValue);
}

/// Another EDID beside the memory, a value that is refused and one that is taken, and all of it taken back.
void TourOfWorkshop(CTour& tour, CMainWindow& window, CEdidPage& page)
{
    constexpr int c_nMakerOffset = 0x08;
    constexpr int c_nGammaOffset = 0x17;
    auto& fields = *page.findChild<CFieldTree*>();
    auto& model = *page.findChild<CFieldModel*>();
    const QByteArray before = page.Document().Content().bytes;
    const QString strFile = QDir(tour.Folder()).filePath(QStringLiteral("edid.json"));
    tour.Check(page.SaveBlock(strFile), QStringLiteral("the block cannot be saved as %1").arg(strFile));
    tour.Check(model.setData(RowOfByte(page, c_nMakerOffset), QStringLiteral("LED")),
               QStringLiteral("the maker LED was refused"));
    tour.Check(!model.setData(RowOfByte(page, c_nGammaOffset), QStringLiteral("9.5")),
               QStringLiteral("a gamma of 9.5 was taken"));
    tour.Picture(&window, QStringLiteral("edid-refused"));
    model.setData(RowOfByte(page, c_nGammaOffset), QStringLiteral("2.4"));
    page.CompareWithFile(strFile);
    tour.Check(page.Document().DifferentBytes().size() == 4, // two of the maker, gamma, checksum
               QStringLiteral("the comparison does not show what was edited"));
    fields.ShowRow(model.NextDifference({}, true));
    tour.Picture(&page, QStringLiteral("edid-compared"));
    page.Document().EndComparison();
    while (page.Document().Steps().canUndo())
        page.Document().Steps().undo();
    tour.Check(page.Document().Content().bytes == before,
               QStringLiteral("undoing everything did not bring the block back"));
}

/// What the block cannot hold is said before anything is written.
void TourOfLargeMode(CTour& tour, CMainWindow& window, CEdidPage& page)
{
    const SSelection input = FirstInput();
    const SSimulatedInput inputBefore = *page.Input();
    const auto SetInput = [&](const SSimulatedInput& value) {
        CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
            *project.FindSender(input.nSender)->FindInput(input.nInterfaceId) = value;
        });
    };
    SSimulatedInput inputLarge = inputBefore;
    inputLarge.baEdid.clear();
    inputLarge.setting->wWidth = 8192;
    inputLarge.setting->wHeight = 1080;
    SetInput(inputLarge);
    tour.Picture(&window, QStringLiteral("edid-large-mode"));
    SetInput(inputBefore);
}

} // namespace

void PageTours::Edid(CTour& tour, CMainWindow& window)
{
    CEdidPage& page = *window.findChild<CEdidPage*>();
    TourOfSenders(tour, page);
    window.Tree().Select(FirstInput());
    tour.Check(page.Input() != nullptr, QStringLiteral("the project has no input"));
    if (page.Input() == nullptr)
        return;
    tour.Picture(&window, QStringLiteral("edid-before"));
    TourOfDialog(tour, page);
    tour.Check(page.Input()->baEdid.size() == c_nEdidBlockSize,
               QStringLiteral("the EDID memory holds no block after the dialog"));
    tour.Check(page.findChild<CHexView*>()->Bytes() == page.Input()->baEdid,
               QStringLiteral("the page shows another block"));
    tour.Picture(&window, QStringLiteral("edid-after"));
    TourOfWorkshop(tour, window, page);
    TourOfLargeMode(tour, window, page);
    const QString strFile = QDir(tour.Folder()).filePath(QStringLiteral("edid.bin"));
    tour.Check(page.SaveBlock(strFile), QStringLiteral("the block cannot be saved as %1").arg(strFile));
    TourOfFailure(tour, page);
}

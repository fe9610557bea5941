#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "simulator/CommonClass/Simulator.h"
#include "simulator/HardwareSupport/OutputLimits.h"
#include "workbench/MainWindow.h"
#include "workbench/SenderTree.h"
#include "workbench/output/CanvasPreview.h"
#include "workbench/output/CorrectionPanel.h"
#include "workbench/output/OutputPage.h"
#include "workbench/output/SenderOutput.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"

#include <QAction>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QMenu>
#include <QPainter>
#include <QTimer>

namespace {

// The ids of the dialogs' slots.
constexpr int c_nCanvasOk = 3;
constexpr int c_nRateOk = 2;
constexpr int c_nPictureSwitch = 0;
constexpr int c_nPictureChoose = 1;
constexpr int c_nCoefficientOk = 0;

/// A limit for which each of the three checks can fail alone.
constexpr int c_nTourMaxWidth = 3840;
constexpr int c_nTourMaxHeight = 2160;
constexpr int c_nTourMaxArea = 6000000;

struct SCanvasState
{
    const char* szName;
    QSize size;
    bool bValid;
};

constexpr SCanvasState c_arrCanvasStates[] = {
    {"canvas-preset", {1920, 1080}, true},    {"canvas-custom", {2560, 1440}, true},
    {"canvas-too-small", {10, 600}, false},   {"canvas-too-wide", {4000, 1000}, false},
    {"canvas-too-high", {1000, 3000}, false}, {"canvas-too-large", {3000, 2100}, false}};

/// Sender types for the two wordings of a limit, and a flag that sets no limit.
constexpr int c_nSmallType = 16;
constexpr int c_nLargeType = 21;
constexpr unsigned int c_nUnknownLimit = 1;

struct SRateState
{
    const char* szName;
    int nSenderType;
    unsigned int nFlags;
};

constexpr SRateState c_arrRateStates[] = {{"rate-area-small", c_nSmallType, enLimitOutputArea},
                                          {"rate-area", c_nLargeType, enLimitOutputArea},
                                          {"rate-dvi1to4", c_nLargeType, enLimitDvi1To4},
                                          {"rate-dvi5to8", c_nLargeType, enLimitDvi5To8},
                                          {"rate-port-area", c_nLargeType, enLimitPortArea},
                                          {"rate-edid-area-small", c_nSmallType, enLimitEdidArea},
                                          {"rate-edid-area", c_nLargeType, enLimitEdidArea},
                                          {"rate-empty-warning", c_nLargeType, c_nUnknownLimit}};

constexpr float c_fTourInputRate = 75; ///< Hz; above the project's 60

struct SPictureState
{
    const char* szName;
    const char* szFit; ///< entry of the fit menu; the library has its translation
    int nTransparency; ///< per cent
};

constexpr SPictureState c_arrPictureStates[] = {{"one-to-one-0", "1:1", 0},
                                                {"one-to-one-60", "1:1", 60},
                                                {"stretched-0", "拉伸", 0},
                                                {"stretched-60", "拉伸", 60}};

/// The tour's picture: narrower than the canvas, so that the two fits differ.
constexpr QSize c_sizeTourPicture(1280, 960);
constexpr int c_nHorizon = 600;
constexpr QRect c_rectSun(860, 140, 200, 200);
constexpr QPoint c_arrHills[] = {{0, 700}, {320, 420}, {560, 620}, {800, 480}, {1280, 720}};

void ChangeSender(const std::function<void(SSimulatedSender& sender)>& funcChange)
{
    CSimulator::Instance().Document().Change(
        [&](SSimulatedProject& project) { funcChange(*project.FindSender(project.nCurSender)); });
}

void Invoke(QDialog& dialog, const char* szSlot, int nId)
{
    QMetaObject::invokeMethod(&dialog, szSlot, Q_ARG(int, nId));
}

/// Chooses an entry of one of the dialog's menus.
/// @return false when no menu has it
bool ChooseEntry(QDialog& dialog, const QString& strText)
{
    for (const QMenu* pMenu : dialog.findChildren<QMenu*>())
        for (QAction* pAction : pMenu->actions())
            if (pAction->text() == strText) {
                pAction->trigger();
                return true;
            }
    return false;
}

void EnterCanvas(QDialog& dialog, QSize size)
{
    const auto listFields = dialog.findChildren<CCustomSpinBox*>();
    for (CCustomSpinBox* pField : listFields)
        // Typing cannot go below the smallest side, so its message would never be shown.
        pField->setMinimum(0);
    listFields[0]->setValue(size.width());
    listFields[1]->setValue(size.height());
}

void DrawSky(QPainter& painter)
{
    QLinearGradient gradient(0, 0, 0, c_nHorizon);
    gradient.setColorAt(0, QColor(20, 40, 110));
    gradient.setColorAt(1, QColor(250, 170, 90));
    painter.fillRect(QRect(QPoint(), c_sizeTourPicture), gradient);
    painter.setBrush(QColor(255, 240, 180));
    painter.drawEllipse(c_rectSun);
}

void DrawLand(QPainter& painter)
{
    QPolygon hills(QVector<QPoint>(std::begin(c_arrHills), std::end(c_arrHills)));
    hills << QPoint(c_sizeTourPicture.width(), c_sizeTourPicture.height())
          << QPoint(0, c_sizeTourPicture.height());
    painter.setBrush(QColor(30, 90, 70));
    painter.drawPolygon(hills);
}

/// Draws a picture with a frame that shows its edges.
bool DrawPicture(const QString& strFile)
{
    QImage image(c_sizeTourPicture, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    DrawSky(painter);
    DrawLand(painter);
    painter.setPen(QPen(Qt::white, 16));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(image.rect());
    painter.end();
    return image.save(strFile, "PNG");
}

/// Answers the next file dialog with a file.
void AnswerFileDialog(QDialog& dialog, const QString& strFile)
{
    QTimer::singleShot(0, &dialog, [&dialog, strFile] {
        auto* pFiles = dialog.findChild<QFileDialog*>();
        if (pFiles == nullptr)
            return;
        pFiles->selectFile(strFile);
        QMetaObject::invokeMethod(pFiles, "accept");
    });
}

const SSimulatedSender* CurrentSender()
{
    const SSimulatedProject& project = CSimulator::Instance().Project();
    return project.FindSender(project.nCurSender);
}

void TourOfCanvas(CTour& tour, COutputPage& page)
{
    ChangeSender([](SSimulatedSender& sender) {
        sender.capability.canvasLimit = {c_nTourMaxWidth, c_nTourMaxHeight, c_nTourMaxArea};
    });
    CSetCanvasDlg dialog(&page);
    tour.WithDialog(dialog, [&] {
        for (const SCanvasState& state : c_arrCanvasStates) {
            EnterCanvas(dialog, state.size);
            tour.Picture(&dialog, QString::fromLatin1(state.szName));
            tour.Check(dialog.IsShowError() == state.bValid,
                       QStringLiteral("%1 was judged wrongly").arg(QString::fromLatin1(state.szName)));
        }
        tour.WithMessage(QStringLiteral("canvas-message"), CCustomMessageBox::Ok,
                         [&] { Invoke(dialog, "ButtonClicked", c_nCanvasOk); });
        EnterCanvas(dialog, {2560, 1440});
        Invoke(dialog, "ButtonClicked", c_nCanvasOk);
    });
    page.TakeCanvas(dialog.GetCanvasSize());
    tour.Check(page.Preview().Content().sizeCanvas == QSize(2560, 1440),
               QStringLiteral("the page does not show the canvas that was chosen"));
}

void TourOfRateAndDepth(CTour& tour, COutputPage& page)
{
    for (const SRateState& state : c_arrRateStates) {
        ChangeSender([&](SSimulatedSender& sender) {
            sender.capability.nType = state.nSenderType;
            sender.outputLimitFlags = state.nFlags;
        });
        CSetDepthRateDlg dialog(&page);
        tour.WithDialog(dialog, [&] {
            tour.Check(ChooseEntry(dialog, QStringLiteral("120Hz")), QStringLiteral("there is no 120 Hz"));
            tour.Picture(&dialog, QString::fromLatin1(state.szName));
        });
    }
    ChangeSender([](SSimulatedSender& sender) {
        sender.capability.bSupport10Bit = true;
        sender.outputLimitFlags = 0;
        sender.fMaxInputFrameRate = c_fTourInputRate;
    });
    CSetDepthRateDlg dialog(&page);
    tour.WithDialog(dialog, [&] {
        tour.Picture(&dialog, QStringLiteral("rate-plain"));
        ChooseEntry(dialog, QStringLiteral("10bit"));
        tour.WithMessage(QStringLiteral("rate-question"), CCustomMessageBox::Yes,
                         [&] { Invoke(dialog, "ButtonClicked", c_nRateOk); });
    });
    CSimulator::Instance().Document().NoticeChanges();
    tour.Check(CurrentSender()->record.nColorDepth == 10 &&
                   SenderOutput::HardwareDepth(*CurrentSender()) == 10,
               QStringLiteral("the depth that was chosen did not reach the hardware"));
}

void TourOfBackground(CTour& tour, COutputPage& page)
{
    const QString strFile = QDir(tour.Folder()).filePath(QStringLiteral("background.png"));
    tour.Check(DrawPicture(strFile), QStringLiteral("the picture %1 cannot be saved").arg(strFile));
    CBackgroundImageDlg dialog(&page);
    tour.WithDialog(dialog, [&] {
        tour.Picture(&dialog, QStringLiteral("background-off"));
        Invoke(dialog, "ActionSlots", c_nPictureSwitch);
        tour.Picture(&dialog, QStringLiteral("background-nothing-chosen"));
        AnswerFileDialog(dialog, strFile);
        Invoke(dialog, "ActionSlots", c_nPictureChoose);
        for (const SPictureState& state : c_arrPictureStates) {
            const QString strName = QString::fromLatin1(state.szName);
            tour.Check(ChooseEntry(dialog, CCustomDialog::tr(state.szFit)),
                       QStringLiteral("the fit of %1 is not in the menu").arg(strName));
            dialog.findChild<QDoubleSpinBox*>()->setValue(state.nTransparency);
            tour.Picture(&dialog, QStringLiteral("background-%1").arg(strName));
            tour.Check(!page.Preview().Content().imgPicture.isNull(),
                       QStringLiteral("the page does not show the picture of %1").arg(strName));
            tour.Picture(&page, QStringLiteral("output-%1").arg(strName));
        }
    });
}

void TourOfVanishedPicture(CTour& tour, COutputPage& page)
{
    tour.Check(QFile::remove(page.PictureFile()), QStringLiteral("the stored picture cannot be removed"));
    page.Refresh();
    tour.Check(page.Preview().Content().bWarning, QStringLiteral("a vanished picture is not told"));
    CBackgroundImageDlg dialog(&page);
    tour.WithDialog(dialog, [&] { tour.Picture(&dialog, QStringLiteral("background-vanished")); });
    tour.Picture(&page, QStringLiteral("output-vanished"));
}

void TourOfCorrection(CTour& tour, COutputPage& page)
{
    for (const bool bCorrection : {true, false}) {
        const QString strName = bCorrection ? QStringLiteral("correction") : QStringLiteral("seam-repair");
        CResetCoefDlg dialog(bCorrection, &page);
        tour.WithDialog(dialog, [&] {
            tour.Picture(&dialog, QStringLiteral("reset-%1-unset").arg(strName));
            dialog.SetValue(page.Corrections().Preset(bCorrection));
            tour.Picture(&dialog, QStringLiteral("reset-%1").arg(strName));
            dialog.findChild<QDoubleSpinBox*>()->setValue(0.875);
            Invoke(dialog, "ActionSlots", c_nCoefficientOk);
        });
        page.Corrections().Take(bCorrection, dialog.GetValue());
    }
}

} // namespace

void PageTours::Output(CTour& tour, CMainWindow& window)
{
    COutputPage& page = *window.findChild<COutputPage*>();
    window.Tree().Select({0, -1});
    if (CurrentSender() == nullptr) {
        tour.Check(false, QStringLiteral("the project has no sender"));
        return;
    }
    const SSimulatedSender senderBefore = *CurrentSender();
    tour.Picture(&window, QStringLiteral("output"));
    TourOfCanvas(tour, page);
    TourOfRateAndDepth(tour, page);
    TourOfCorrection(tour, page);
    TourOfBackground(tour, page);
    TourOfVanishedPicture(tour, page);
    ChangeSender([&](SSimulatedSender& sender) { sender = senderBefore; });
}

#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "tests/support/RecordingHost.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <functional>

namespace {

/// Room that a combo box keeps for its arrow, and a button for its frame, pixels.
constexpr int c_nArrowRoom = 25;
constexpr int c_nFrameRoom = 10;

bool LabelFits(const QLabel& label)
{
    if (label.wordWrap())
        return label.heightForWidth(label.width()) <= label.height();
    return label.fontMetrics().horizontalAdvance(label.text()) <= label.width();
}

bool ButtonFits(const QPushButton& button)
{
    const int nRoom = qobject_cast<const CCustomComboBox*>(&button) == nullptr ? c_nFrameRoom : c_nArrowRoom;
    return button.fontMetrics().horizontalAdvance(button.text()) <= button.width() - nRoom;
}

/// The texts that are cut, or that lie outside the window.
QStringList CutTexts(const QWidget& window)
{
    QStringList listCut;
    const auto Inside = [&window](const QWidget& widget) {
        return window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size()));
    };
    for (const QLabel* pLabel : window.findChildren<QLabel*>()) {
        if (pLabel->isVisible() && !(LabelFits(*pLabel) && Inside(*pLabel)))
            listCut.append(pLabel->text());
    }
    for (const QPushButton* pButton : window.findChildren<QPushButton*>()) {
        if (pButton->isVisible() && !(ButtonFits(*pButton) && Inside(*pButton)))
            listCut.append(pButton->text());
    }
    return listCut;
}

using Dialog = std::unique_ptr<QDialog>;
using Maker = std::function<Dialog(CRecordingHost&)>;

/// The canvas dialog with an error of each kind.
Maker CanvasWith(SCanvasLimit limit)
{
    return [limit](CRecordingHost& host) -> Dialog {
        host.projectData.sender.sizeCanvas = QSize(32768, 16384);
        host.senderLogic.canvasLimit = limit;
        return std::make_unique<CSetCanvasDlg>(nullptr);
    };
}

/// The rate and depth dialog with a warning.
Maker DepthRateWith(unsigned int nFlags, int nSenderType)
{
    return [nFlags, nSenderType](CRecordingHost& host) -> Dialog {
        host.senderLogic.nSenderType = nSenderType;
        host.videoSourceLogic.limitFlags = nFlags;
        auto pDialog = std::make_unique<CSetDepthRateDlg>(nullptr);
        pDialog->show();
        QAction action(QStringLiteral("240Hz"));
        pDialog->ComboBoxSelect(&action);
        return pDialog;
    };
}

} // namespace

Q_DECLARE_METATYPE(Maker)

/// No dialog can grow, so its texts must fit as they are, in Chinese and in the English that comes with the
/// library.
class TestOutputTextsFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoTextIsCut_data();
    void NoTextIsCut();
};

void TestOutputTextsFit::NoTextIsCut_data()
{
    QTest::addColumn<Maker>("funcMake");
    QTest::addColumn<bool>("bEnglish");
    constexpr int c_nAnyArea = 1 << 30;
    const QVector<QPair<const char*, Maker>> vecStates = {
        {"canvas", CanvasWith(SCanvasLimit())},
        {"canvas, width", CanvasWith({32767, 16384, c_nAnyArea})},
        {"canvas, height", CanvasWith({32768, 16383, c_nAnyArea})},
        {"canvas, area", CanvasWith({32768, 16384, 536870911})},
        {"rate and depth",
         [](CRecordingHost&) -> Dialog { return std::make_unique<CSetDepthRateDlg>(nullptr); }},
        {"area, small", DepthRateWith(0x800, 16)},
        {"area", DepthRateWith(0x800, 17)},
        {"DVI 1 to 4", DepthRateWith(0x1000, 17)},
        {"DVI 5 to 8", DepthRateWith(0x2000, 17)},
        {"port", DepthRateWith(0x8000000, 17)},
        {"EDID area, small", DepthRateWith(0x10000000, 16)},
        {"EDID area", DepthRateWith(0x10000000, 17)},
        {"background",
         [](CRecordingHost&) -> Dialog { return std::make_unique<CBackgroundImageDlg>(nullptr); }},
        {"correction",
         [](CRecordingHost&) -> Dialog { return std::make_unique<CResetCoefDlg>(true, nullptr); }},
        {"seam repair",
         [](CRecordingHost&) -> Dialog { return std::make_unique<CResetCoefDlg>(false, nullptr); }},
    };
    for (const auto& [szName, funcMake] : vecStates) {
        QTest::addRow("%s, Chinese", szName) << funcMake << false;
        QTest::addRow("%s, English", szName) << funcMake << true;
    }
}

void TestOutputTextsFit::NoTextIsCut()
{
    QFETCH(Maker, funcMake);
    QFETCH(bool, bEnglish);
    QTranslator translator;
    if (bEnglish) {
        QVERIFY(translator.load(QStringLiteral(SENDER_ENGLISH_FILE)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    CRecordingHost host;
    const Dialog pDialog = funcMake(host);
    pDialog->show();
    QCOMPARE(CutTexts(*pDialog), QStringList());
}

QTEST_MAIN(TestOutputTextsFit)
#include "TestOutputTextsFit.moc"

#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/CustomSwitchButton.h"
#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/Theme.h"
#include "tests/support/Contrast.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

/// Greatest contrast of a part of a picture to a colour.
double GreatestContrast(const QImage& image, const QRect& rcPart, QRgb rgbGround)
{
    double dGreatest = 0.0;
    for (int nY = rcPart.top(); nY <= rcPart.bottom(); ++nY) {
        for (int nX = rcPart.left(); nX <= rcPart.right(); ++nX)
            dGreatest = std::max(dGreatest, Contrast(image.pixel(nX, nY), rgbGround));
    }
    return dGreatest;
}

/// The colour that most pixels of a part have.
QRgb Ground(const QImage& image, const QRect& rcPart)
{
    QHash<QRgb, int> hashCounts;
    for (int nY = rcPart.top(); nY <= rcPart.bottom(); ++nY) {
        for (int nX = rcPart.left(); nX <= rcPart.right(); ++nX)
            ++hashCounts[image.pixel(nX, nY)];
    }
    const auto itMost = std::max_element(hashCounts.cbegin(), hashCounts.cend());
    return itMost.key();
}

/// The middle of each side of a rectangle, as deep as an outline can lie.
QVector<QRect> Sides(const QRect& rc)
{
    constexpr int c_nDepth = 3;
    const QPoint ptMiddle = rc.center();
    return {{rc.left(), ptMiddle.y(), c_nDepth, 1},
            {rc.right() - c_nDepth + 1, ptMiddle.y(), c_nDepth, 1},
            {ptMiddle.x(), rc.top(), 1, c_nDepth},
            {ptMiddle.x(), rc.bottom() - c_nDepth + 1, 1, c_nDepth}};
}

enum class enState
{
    enNormal,
    enHover,
    enFocus,
    enDisabled
};

/// Makes a control as the dialogs do, in a window.
using FuncMakeControl = std::function<QWidget*(QWidget* pWindow)>;

template <class TControl>
TControl* Styled(TControl* pControl, const QString& strStyle, const char* szSelector)
{
    pControl->setStyleSheet(GetFontStyleSheet(strStyle, QString::fromLatin1(szSelector), Theme::c_nFontSize));
    return pControl;
}

struct SControl
{
    const char* szName;
    FuncMakeControl funcMake;
    bool bText; ///< has a text of its own
};

const QString c_strText = QStringLiteral("1920");

std::vector<SControl> StyledControls()
{
    const auto CheckBox = [](bool bChecked) {
        return [bChecked](QWidget* pWindow) {
            auto* pBox = Styled(new QCheckBox(c_strText, pWindow), g_checkBoxStyle, "QCheckBox");
            pBox->setChecked(bChecked);
            return pBox;
        };
    };
    const auto Switch = [](bool bOpen) {
        return [bOpen](QWidget* pWindow) {
            auto* pSwitch = new CCustomSwitchButton(pWindow);
            pSwitch->setOpen(bOpen, false);
            return pSwitch;
        };
    };
    return {
        {"button",
         [](QWidget* p) { return Styled(new QPushButton(c_strText, p), g_pushButtonStyle, "QPushButton"); },
         true},
        {"combo box",
         [](QWidget* p) {
             auto* pBox = new CCustomComboBox(p);
             pBox->setText(c_strText);
             return pBox;
         },
         true},
        {"box without a tick", CheckBox(false), true},
        {"box with a tick", CheckBox(true), true},
        {"number",
         [](QWidget* p) {
             auto* pBox = new CCustomSpinBox(0, p);
             pBox->SetMinMax(0, 9999);
             pBox->setValue(1920);
             return pBox;
         },
         true},
        {"address",
         [](QWidget* p) {
             auto* pEdit = new CCustomIPEdit(p);
             pEdit->setText(QStringLiteral("10.0.0.1"));
             return pEdit;
         },
         true},
        {"name",
         [](QWidget* p) {
             return Styled(new QLineEdit(c_strText, p),
                           QStringLiteral("QLineEdit{background:rgb(31,31,31); color:white; border:1px solid "
                                          "rgb(7,7,7); border-radius: 4px;}"),
                           "QLineEdit");
         },
         true},
        {"switch that is off", Switch(false), false},
        {"switch that is on", Switch(true), false},
    };
}

std::vector<SControl> PlainControls()
{
    const auto Box = [](auto* pBox, bool bChecked) {
        pBox->setText(c_strText);
        pBox->setChecked(bChecked);
        return pBox;
    };
    return {
        {"plain button", [](QWidget* p) { return new QPushButton(c_strText, p); }, true},
        {"plain box without a tick", [Box](QWidget* p) { return Box(new QCheckBox(p), false); }, true},
        {"plain box with a tick", [Box](QWidget* p) { return Box(new QCheckBox(p), true); }, true},
        {"plain round button", [Box](QWidget* p) { return Box(new QRadioButton(p), false); }, true},
        {"plain choice",
         [](QWidget* p) {
             auto* pBox = new QComboBox(p);
             pBox->addItem(c_strText);
             return pBox;
         },
         true},
        {"plain number",
         [](QWidget* p) {
             auto* pBox = new QSpinBox(p);
             pBox->setMaximum(9999);
             pBox->setValue(1920);
             return pBox;
         },
         true},
        {"plain text", [](QWidget* p) { return new QLineEdit(c_strText, p); }, true},
    };
}

/// What the outline of a control surrounds.
QRect Outlined(const QWidget& control)
{
    if (qobject_cast<const CCustomSwitchButton*>(&control) != nullptr)
        return control.rect().adjusted(1, 1, -1, -1);
    const bool bRound = qobject_cast<const QRadioButton*>(&control) != nullptr;
    if (!bRound && qobject_cast<const QCheckBox*>(&control) == nullptr)
        return control.rect();
    QStyleOptionButton option;
    option.initFrom(&control);
    return control.style()->subElementRect(
        bRound ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, &control);
}

} // namespace

Q_DECLARE_METATYPE(FuncMakeControl)
Q_DECLARE_METATYPE(enState)

/// Contrasts, computed from the theme's colours and from the pixels of each control in each state.
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TextsStandOutFromWhatTheyStandOn_data();
    void TextsStandOutFromWhatTheyStandOn();
    void OutlinesAndMarksStandOutFromWhatTheyStandOn_data();
    void OutlinesAndMarksStandOutFromWhatTheyStandOn();
    void AnOutlineCanBeSeen_data();
    void AnOutlineCanBeSeen();
    void ATextCanBeRead_data();
    void ATextCanBeRead();
    void FocusCanBeSeen_data();
    void FocusCanBeSeen();
    void FocusIsDrawnOnce_data();
    void FocusIsDrawnOnce();
    void ABoxInATableCanBeSeen_data();
    void ABoxInATableCanBeSeen();
    void AChosenMenuEntryCanBeRead();

private:
    static void AddControls(const std::vector<SControl>& vecControls, const QVector<enState>& vecStates);
    static void AddAllControls(const QVector<enState>& vecStates);
    /// A window with a control in a state, and its picture.
    struct SShown
    {
        SShown(const FuncMakeControl& funcMake, enState state);

        CCustomDialog dialog{nullptr, false};
        QPushButton other{&dialog};
        QWidget* pControl = nullptr;
        QImage image;
    };
};

void TestContrast::initTestCase()
{
    QApplication::setStyle(Theme::CreateStyle());
    QApplication::setPalette(Theme::Palette());
    QApplication::setFont(Theme::Font());
}

void TestContrast::TextsStandOutFromWhatTheyStandOn_data()
{
    QTest::addColumn<QRgb>("rgbText");
    QTest::addColumn<QRgb>("rgbGround");
    QTest::newRow("text on a window") << Theme::c_rgbText << Theme::c_rgbWindow;
    QTest::newRow("text in a field") << Theme::c_rgbText << Theme::c_rgbField;
    QTest::newRow("text on a button") << Theme::c_rgbText << Theme::c_rgbButton;
    QTest::newRow("text on a button below the mouse") << Theme::c_rgbText << Theme::c_rgbButtonHover;
    QTest::newRow("text on a pressed button") << Theme::c_rgbText << Theme::c_rgbButtonPressed;
    QTest::newRow("selected text") << Theme::c_rgbText << Theme::c_rgbSelection;
    QTest::newRow("warning on a window") << Theme::c_rgbWarning << Theme::c_rgbWindow;
    QTest::newRow("warning in a field") << Theme::c_rgbWarning << Theme::c_rgbField;
    QTest::newRow("note on a window") << Theme::c_rgbNote << Theme::c_rgbWindow;
    QTest::newRow("note in a field") << Theme::c_rgbNote << Theme::c_rgbField;
    QTest::newRow("link on a window") << Theme::c_rgbFocus << Theme::c_rgbWindow;
}

void TestContrast::TextsStandOutFromWhatTheyStandOn()
{
    QFETCH(QRgb, rgbText);
    QFETCH(QRgb, rgbGround);
    QVERIFY(Contrast(rgbText, rgbGround) >= c_dTextContrast);
}

void TestContrast::OutlinesAndMarksStandOutFromWhatTheyStandOn_data()
{
    QTest::addColumn<QRgb>("rgbMark");
    QTest::addColumn<QRgb>("rgbGround");
    QTest::newRow("outline on a window") << Theme::c_rgbEdge << Theme::c_rgbWindow;
    QTest::newRow("outline of a field, from inside") << Theme::c_rgbEdge << Theme::c_rgbField;
    QTest::newRow("outline with the focus on a window") << Theme::c_rgbFocus << Theme::c_rgbWindow;
    QTest::newRow("outline with the focus, from inside a button") << Theme::c_rgbFocus << Theme::c_rgbButton;
    QTest::newRow("refused address on a window") << Theme::c_rgbWarning << Theme::c_rgbWindow;
    QTest::newRow("tick in a box") << Theme::c_rgbText << Theme::c_rgbAccent;
    QTest::newRow("switch that is on") << Theme::c_rgbAccent << Theme::c_rgbWindow;
    QTest::newRow("knob of a switch that is off") << Theme::c_rgbText << Theme::c_rgbTrackOff;
    QTest::newRow("chosen entry in a menu") << Theme::c_rgbSelection << Theme::c_rgbField;
}

void TestContrast::OutlinesAndMarksStandOutFromWhatTheyStandOn()
{
    QFETCH(QRgb, rgbMark);
    QFETCH(QRgb, rgbGround);
    QVERIFY(Contrast(rgbMark, rgbGround) >= c_dOutlineContrast);
}

TestContrast::SShown::SShown(const FuncMakeControl& funcMake, enState state)
{
    constexpr QRect c_rcControl(20, 60, 120, 24);
    dialog.resize(200, 120);
    pControl = funcMake(&dialog);
    pControl->move(c_rcControl.topLeft());
    pControl->setDisabled(state == enState::enDisabled);
    if (pControl->minimumSize() != pControl->maximumSize())
        pControl->resize(c_rcControl.size());
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    other.setFocus();
    if (state == enState::enFocus)
        QTest::keyClick(&other, Qt::Key_Tab);
    if (state == enState::enHover) {
        QTest::mouseMove(&dialog, QPoint(1, 1));
        QTest::mouseMove(pControl);
        QVERIFY(pControl->underMouse());
    }
    image = dialog.grab(pControl->geometry()).toImage();
}

void TestContrast::AddControls(const std::vector<SControl>& vecControls, const QVector<enState>& vecStates)
{
    constexpr std::array<const char*, 4> c_arrNames = {"", ", below the mouse", ", with the focus",
                                                       ", disabled"};
    for (const SControl& control : vecControls) {
        for (const enState state : vecStates)
            QTest::addRow("%s%s", control.szName, c_arrNames[std::size_t(state)])
                << control.funcMake << state << control.bText;
    }
}

void TestContrast::AddAllControls(const QVector<enState>& vecStates)
{
    QTest::addColumn<FuncMakeControl>("funcMake");
    QTest::addColumn<enState>("state");
    QTest::addColumn<bool>("bText");
    AddControls(StyledControls(), vecStates);
    AddControls(PlainControls(), vecStates);
}

void TestContrast::AnOutlineCanBeSeen_data()
{
    AddAllControls({enState::enNormal, enState::enHover, enState::enFocus, enState::enDisabled});
}

void TestContrast::AnOutlineCanBeSeen()
{
    QFETCH(FuncMakeControl, funcMake);
    QFETCH(enState, state);
    const SShown shown(funcMake, state);
    for (const QRect& rcSide : Sides(Outlined(*shown.pControl))) {
        const double dContrast = GreatestContrast(shown.image, rcSide, Theme::c_rgbWindow);
        const double dWanted = state == enState::enDisabled ? c_dDisabledContrast : c_dOutlineContrast;
        QVERIFY2(dContrast >= dWanted, qPrintable(QString::number(dContrast)));
    }
}

void TestContrast::ATextCanBeRead_data()
{
    AddAllControls({enState::enNormal, enState::enHover});
}

void TestContrast::ATextCanBeRead()
{
    QFETCH(FuncMakeControl, funcMake);
    QFETCH(enState, state);
    QFETCH(bool, bText);
    if (!bText)
        return;
    const SShown shown(funcMake, state);
    constexpr int c_nOutline = 3;
    const QRect rcOutlined = Outlined(*shown.pControl);
    const bool bBeside = rcOutlined != shown.pControl->rect();
    const QRect rcInside = shown.image.rect().adjusted(bBeside ? rcOutlined.right() + c_nOutline : c_nOutline,
                                                       c_nOutline, -c_nOutline, -c_nOutline);
    QVERIFY(GreatestContrast(shown.image, rcInside, Ground(shown.image, rcInside)) >= c_dTextContrast);
}

void TestContrast::FocusCanBeSeen_data()
{
    AddAllControls({enState::enFocus});
}

void TestContrast::FocusCanBeSeen()
{
    QFETCH(FuncMakeControl, funcMake);
    const SShown shownWith(funcMake, enState::enFocus);
    const SShown shownWithout(funcMake, enState::enNormal);
    double dGreatest = 0.0;
    for (int nY = 0; nY < shownWith.image.height(); ++nY) {
        for (int nX = 0; nX < shownWith.image.width(); ++nX)
            dGreatest = std::max(dGreatest,
                                 Contrast(shownWith.image.pixel(nX, nY), shownWithout.image.pixel(nX, nY)));
    }
    QVERIFY2(dGreatest >= c_dOutlineContrast, qPrintable(QString::number(dGreatest)));
}

void TestContrast::FocusIsDrawnOnce_data()
{
    QTest::addColumn<FuncMakeControl>("funcMake");
    // Fields select their content and show a cursor; a switch and a tick are as wide as their outline lets
    // them.
    const QByteArrayList listSteady = {"button", "combo box", "box without a tick"};
    for (const SControl& control : StyledControls()) {
        if (listSteady.contains(control.szName))
            QTest::newRow(control.szName) << control.funcMake;
    }
}

/// By the outline alone: nothing inside it changes.
void TestContrast::FocusIsDrawnOnce()
{
    QFETCH(FuncMakeControl, funcMake);
    const SShown shownWith(funcMake, enState::enFocus);
    const SShown shownWithout(funcMake, enState::enNormal);
    constexpr int c_nOutline = 3;
    const QRect rcOutlined = Outlined(*shownWith.pControl);
    const QRect rcInside = rcOutlined.adjusted(c_nOutline, c_nOutline, -c_nOutline, -c_nOutline);
    QCOMPARE(shownWith.image.copy(rcInside), shownWithout.image.copy(rcInside));
}

void TestContrast::ABoxInATableCanBeSeen_data()
{
    QTest::addColumn<int>("nRow");
    QTest::addColumn<bool>("bChecked");
    QTest::addColumn<bool>("bSelected");
    for (const int nRow : {0, 1}) {
        for (const bool bChecked : {false, true}) {
            for (const bool bSelected : {false, true})
                QTest::addRow("%s row, %s tick, %s", nRow == 0 ? "plain" : "alternate",
                              bChecked ? "with" : "without", bSelected ? "selected" : "not selected")
                    << nRow << bChecked << bSelected;
        }
    }
}

void TestContrast::ABoxInATableCanBeSeen()
{
    QFETCH(int, nRow);
    QFETCH(bool, bChecked);
    QFETCH(bool, bSelected);
    QStandardItemModel model(2, 1);
    const QModelIndex index = model.index(nRow, 0);
    model.setData(index, bChecked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    QTableView table;
    table.setModel(&model);
    table.setAlternatingRowColors(true);
    table.clearSelection();
    if (bSelected)
        table.selectRow(nRow);
    table.show();
    QVERIFY(QTest::qWaitForWindowActive(&table));
    table.clearFocus();
    const QRect rcCell = table.visualRect(index);
    const QImage image = table.viewport()->grab(rcCell).toImage();
    QStyleOptionViewItem option;
    option.initFrom(&table);
    option.rect = QRect(QPoint(0, 0), rcCell.size());
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect rcBox = table.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &table);
    const QRgb rgbGround = image.pixel(rcCell.width() - 10, rcCell.height() / 2);
    for (const QRect& rcSide : Sides(rcBox)) {
        const double dContrast = GreatestContrast(image, rcSide, rgbGround);
        QVERIFY2(dContrast >= c_dOutlineContrast, qPrintable(QString::number(dContrast)));
    }
}

void TestContrast::AChosenMenuEntryCanBeRead()
{
    QMenu menu;
    Styled(&menu, g_menuStyle, "QMenu");
    QAction* pAction = menu.addAction(c_strText);
    menu.popup(QPoint(0, 0));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    menu.setActiveAction(pAction);
    const QRect rcEntry = menu.actionGeometry(pAction);
    const QImage image = menu.grab(rcEntry).toImage();
    QCOMPARE(Ground(image, image.rect()), Theme::c_rgbSelection);
    QVERIFY(GreatestContrast(image, image.rect(), Theme::c_rgbSelection) >= c_dTextContrast);
}

QTEST_MAIN(TestContrast)
#include "TestContrast.moc"

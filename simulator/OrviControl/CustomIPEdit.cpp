#include "host/OrviControl/CustomIPEdit.h"

#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/IPAddressText.h"
#include "simulator/OrviControl/OctetEdit.h"
#include "simulator/OrviControl/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

/// Width of a dot between two octets and of the frame around them, pixels.
constexpr int c_nDotWidth = 6;
constexpr int c_nFrame = 2;

/// Size that holds four octets of three digits at the font of the controls, pixels.
constexpr QSize c_sizeHint(140, 24);
constexpr QSize c_sizeMinimum(120, 20);

constexpr int c_nLast = IPAddressText::c_nOctets - 1;

} // namespace

class CCustomIPEdit::CPrivate
{
public:
    /// Where the cursor is placed in an octet that it enters.
    enum enCursor
    {
        enAtStart,
        enAtEnd,
        enSelected
    };

    explicit CPrivate(CCustomIPEdit* pOwner);

    IPAddressText::Octets Octets() const;
    void SetOctets(const IPAddressText::Octets& arrOctets);
    QRect CellRect(int nIndex) const;
    void Paint(QPainter& painter) const;
    void ShowMenu(const QPoint& ptGlobal);

    COctetEdit& Cell(int nIndex) const { return *arrCells.at(std::size_t(nIndex)); }
    COctetEdit& Current() const { return Cell(nCurrent); }

    void GoTo(int nIndex, enCursor cursor);
    bool HandleKey(QKeyEvent* pEvent);
    void EnterText(const QString& strText);

    CCustomIPEdit* pEdit;
    std::array<COctetEdit*, IPAddressText::c_nOctets> arrCells{};
    int nCurrent = 0;          ///< the octet that has the focus or had it last
    bool bDotExpected = false; ///< the cursor advanced by itself: a dot typed next is the one just passed
    bool bAllSelected = false;
    bool bRefused = false;
    bool bForwarding = false; ///< a key that came to the field itself is on its way to the current octet

private:
    void ConnectCell(int nIndex);
    bool HandleClipboardKey(QKeyEvent* pEvent);
    bool HandleMove(int nKey);
    bool HandleErase(int nKey);
    void TypeDigit(QChar ch);
    void TypeSeparator();
    void Copy() const;
    void Clear();
    void SelectAll();
    void DropSelection();
    void Refuse();
    void Announce();

    QString m_strAnnounced;
};

CCustomIPEdit::CPrivate::CPrivate(CCustomIPEdit* pOwner)
    : pEdit(pOwner)
{
    const QString strStyle =
        Theme::Resolve("QLineEdit{background:transparent; color:@text@; border:none; padding:0px;"
                       " selection-background-color:@selection@; selection-color:@text@;}"
                       "QLineEdit:disabled{color:@text-disabled@;}");
    for (int i = 0; i < IPAddressText::c_nOctets; ++i) {
        auto* pCell = new COctetEdit(pOwner);
        arrCells.at(std::size_t(i)) = pCell;
        pCell->setAccessibleName(CCustomDialog::tr("第 %1 段").arg(i + 1));
        pCell->setStyleSheet(GetFontStyleSheet(strStyle, QStringLiteral("QLineEdit"), Theme::c_nFontSize));
        // Tab treats the field as one control: only its first octet is a tab stop.
        pCell->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        ConnectCell(i);
    }
}

void CCustomIPEdit::CPrivate::ConnectCell(int nIndex)
{
    const COctetEdit* pCell = &Cell(nIndex);
    QObject::connect(pCell, &COctetEdit::KeyPressed, pEdit,
                     [this](QKeyEvent* pEvent, bool* pHandled) { *pHandled = HandleKey(pEvent); });
    QObject::connect(pCell, &COctetEdit::TextEntered, pEdit,
                     [this](const QString& strText) { EnterText(strText); });
    QObject::connect(pCell, &COctetEdit::MenuRequested, pEdit,
                     [this](const QPoint& ptGlobal) { ShowMenu(ptGlobal); });
    QObject::connect(pCell, &COctetEdit::MousePressed, pEdit, [this] { DropSelection(); });
    QObject::connect(pCell, &QLineEdit::textChanged, pEdit, [this] { Announce(); });
    QObject::connect(pCell, &COctetEdit::FocusChanged, pEdit, [this, nIndex, pCell] {
        if (pCell->hasFocus())
            nCurrent = nIndex;
        else
            DropSelection();
        bRefused = false;
        pEdit->update();
    });
}

void CCustomIPEdit::CPrivate::GoTo(int nIndex, enCursor cursor)
{
    nCurrent = nIndex;
    Current().setFocus(Qt::OtherFocusReason);
    if (cursor == enSelected)
        Current().selectAll();
    else
        Current().setCursorPosition(cursor == enAtStart ? 0 : int(Current().text().size()));
}

IPAddressText::Octets CCustomIPEdit::CPrivate::Octets() const
{
    IPAddressText::Octets arrOctets;
    std::transform(arrCells.cbegin(), arrCells.cend(), arrOctets.begin(),
                   [](const COctetEdit* pCell) { return pCell->text(); });
    return arrOctets;
}

/// All octets change before any signal is sent.
void CCustomIPEdit::CPrivate::SetOctets(const IPAddressText::Octets& arrOctets)
{
    for (int i = 0; i < IPAddressText::c_nOctets; ++i) {
        const QSignalBlocker blocker(&Cell(i));
        Cell(i).setText(arrOctets.at(std::size_t(i)));
    }
    Announce();
}

void CCustomIPEdit::CPrivate::Announce()
{
    const QString strNow = IPAddressText::Join(Octets());
    if (strNow == m_strAnnounced)
        return;
    m_strAnnounced = strNow;
    Q_EMIT pEdit->textChanged(strNow);
}

QRect CCustomIPEdit::CPrivate::CellRect(int nIndex) const
{
    const int nRoom = pEdit->width() - 2 * c_nFrame - c_nLast * c_nDotWidth;
    const int nLeft = c_nFrame + nIndex * c_nDotWidth + nRoom * nIndex / IPAddressText::c_nOctets;
    const int nRight = c_nFrame + nIndex * c_nDotWidth + nRoom * (nIndex + 1) / IPAddressText::c_nOctets;
    return {nLeft, c_nFrame, nRight - nLeft, pEdit->height() - 2 * c_nFrame};
}

void CCustomIPEdit::CPrivate::Paint(QPainter& painter) const
{
    const bool bFocus =
        std::any_of(arrCells.cbegin(), arrCells.cend(), [](const COctetEdit* p) { return p->hasFocus(); });
    const QRgb rgbFrame = bRefused ? Theme::c_rgbWarning : bFocus ? Theme::c_rgbFocus : Theme::c_rgbEdge;
    const qreal fWidth = bFocus ? Theme::c_nFocusWidth : 1;
    const bool bEnabled = pEdit->isEnabled();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(rgbFrame), fWidth));
    painter.setBrush(QColor(bEnabled ? Theme::c_rgbField : Theme::c_rgbFieldDisabled));
    painter.drawRoundedRect(QRectF(pEdit->rect()).adjusted(fWidth / 2, fWidth / 2, -fWidth / 2, -fWidth / 2),
                            Theme::c_nRadius, Theme::c_nRadius);
    painter.setFont(Cell(0).font());
    painter.setPen(QColor(bEnabled ? Theme::c_rgbText : Theme::c_rgbTextDisabled));
    for (int i = 0; i < c_nLast; ++i) {
        const QRect rcDot(CellRect(i).right() + 1, c_nFrame, c_nDotWidth, CellRect(i).height());
        painter.drawText(rcDot, Qt::AlignCenter, QStringLiteral("."));
    }
}

bool CCustomIPEdit::CPrivate::HandleKey(QKeyEvent* pEvent)
{
    const bool bModifierAlone = pEvent->key() >= Qt::Key_Shift && pEvent->key() <= Qt::Key_ScrollLock;
    if (bModifierAlone)
        return false;
    if (bRefused) {
        bRefused = false;
        pEdit->update();
    }
    if (HandleClipboardKey(pEvent))
        return true;
    const bool bPlain = (pEvent->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == Qt::NoModifier;
    if (bPlain && (HandleErase(pEvent->key()) || HandleMove(pEvent->key())))
        return true;
    const bool bCommand =
        (pEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString strTyped = pEvent->text();
    if (bCommand || strTyped.isEmpty() || !strTyped.at(0).isPrint())
        return false;
    EnterText(strTyped);
    return true;
}

bool CCustomIPEdit::CPrivate::HandleClipboardKey(QKeyEvent* pEvent)
{
    if (pEvent->matches(QKeySequence::SelectAll)) {
        SelectAll();
        return true;
    }
    if (pEvent->matches(QKeySequence::Paste)) {
        EnterText(QApplication::clipboard()->text());
        return true;
    }
    // The octet itself copies a selected part; otherwise the whole address is copied.
    const bool bPart = Current().hasSelectedText() && Current().selectedText() != Current().text();
    if (bPart)
        return false;
    const bool bCut = pEvent->matches(QKeySequence::Cut);
    if (!bCut && !pEvent->matches(QKeySequence::Copy))
        return false;
    Copy();
    if (bCut)
        Clear();
    return true;
}

bool CCustomIPEdit::CPrivate::HandleMove(int nKey)
{
    const bool bWasAll = bAllSelected;
    if (nKey == Qt::Key_Home || nKey == Qt::Key_End || nKey == Qt::Key_Left || nKey == Qt::Key_Right)
        DropSelection();
    if (nKey == Qt::Key_Home || (bWasAll && nKey == Qt::Key_Left)) {
        GoTo(0, enAtStart);
        return true;
    }
    if (nKey == Qt::Key_End || (bWasAll && nKey == Qt::Key_Right)) {
        GoTo(c_nLast, enAtEnd);
        return true;
    }
    if (nKey == Qt::Key_Left && Current().IsAtStart() && nCurrent > 0) {
        GoTo(nCurrent - 1, enAtEnd);
        return true;
    }
    if (nKey == Qt::Key_Right && Current().IsAtEnd() && nCurrent < c_nLast) {
        GoTo(nCurrent + 1, enAtStart);
        return true;
    }
    return false;
}

bool CCustomIPEdit::CPrivate::HandleErase(int nKey)
{
    if (nKey != Qt::Key_Backspace && nKey != Qt::Key_Delete)
        return false;
    bDotExpected = false;
    if (bAllSelected) {
        Clear();
        return true;
    }
    if (nKey == Qt::Key_Backspace && Current().IsAtStart() && nCurrent > 0) {
        GoTo(nCurrent - 1, enAtEnd);
        Current().backspace();
        return true;
    }
    if (nKey == Qt::Key_Delete && Current().IsAtEnd() && nCurrent < c_nLast) {
        GoTo(nCurrent + 1, enAtStart);
        Current().del();
        return true;
    }
    return false;
}

/// Handles typed, pasted and committed text alike. A single character acts as a key; longer text is an
/// address, or part of one from the current octet on, and is accepted whole or not at all.
void CCustomIPEdit::CPrivate::EnterText(const QString& strText)
{
    if (strText.size() == 1) {
        const QChar ch = strText.at(0);
        if (IPAddressText::IsSeparator(ch))
            TypeSeparator();
        else
            TypeDigit(ch);
        return;
    }
    const auto arrPasted = IPAddressText::Parse(strText);
    if (!arrPasted) {
        Refuse();
        return;
    }
    const int nGiven = IPAddressText::CountGiven(*arrPasted);
    const int nFirst = bAllSelected || nGiven == IPAddressText::c_nOctets ? 0 : nCurrent;
    if (nFirst + nGiven > IPAddressText::c_nOctets) {
        Refuse();
        return;
    }
    IPAddressText::Octets arrOctets = bAllSelected ? IPAddressText::Octets() : Octets();
    std::copy_n(arrPasted->cbegin(), nGiven, arrOctets.begin() + nFirst);
    DropSelection();
    SetOctets(arrOctets);
    GoTo(nFirst + nGiven - 1, enAtEnd);
}

void CCustomIPEdit::CPrivate::TypeDigit(QChar ch)
{
    bDotExpected = false;
    const bool bReplaceAll = bAllSelected;
    COctetEdit& cell = bReplaceAll ? Cell(0) : Current();
    QString strText = cell.text();
    int nPlace = cell.cursorPosition();
    if (cell.hasSelectedText()) {
        nPlace = cell.selectionStart();
        strText.remove(nPlace, cell.selectedText().size());
    }
    const bool bAtEnd = nPlace == strText.size();
    // Chinese input methods also produce full-width digits.
    strText.insert(nPlace, ch.digitValue() < 0 ? ch : QChar(u'0' + char16_t(ch.digitValue())));
    const auto strOctet = IPAddressText::Canonical(strText);
    if (!strOctet) {
        Refuse();
        return;
    }
    if (bReplaceAll)
        Clear();
    cell.setText(*strOctet);
    cell.setCursorPosition(bAtEnd ? int(strOctet->size()) : nPlace + 1);
    if (!bAtEnd || IPAddressText::CanGrow(*strOctet) || nCurrent == c_nLast)
        return;
    GoTo(nCurrent + 1, enSelected);
    bDotExpected = true;
}

void CCustomIPEdit::CPrivate::TypeSeparator()
{
    if (bDotExpected) {
        bDotExpected = false;
        return;
    }
    DropSelection();
    if (nCurrent == c_nLast)
        Refuse();
    else
        GoTo(nCurrent + 1, enSelected);
}

void CCustomIPEdit::CPrivate::Copy() const
{
    const QString strAddress = IPAddressText::Join(Octets());
    if (!strAddress.isEmpty())
        QApplication::clipboard()->setText(strAddress);
}

void CCustomIPEdit::CPrivate::Clear()
{
    DropSelection();
    SetOctets({});
    GoTo(0, enAtStart);
}

void CCustomIPEdit::CPrivate::SelectAll()
{
    for (COctetEdit* pCell : arrCells)
        pCell->selectAll();
    bAllSelected = true;
}

void CCustomIPEdit::CPrivate::DropSelection()
{
    bDotExpected = false;
    if (!bAllSelected)
        return;
    bAllSelected = false;
    for (COctetEdit* pCell : arrCells)
        pCell->deselect();
}

void CCustomIPEdit::CPrivate::Refuse()
{
    bRefused = true;
    pEdit->update();
}

void CCustomIPEdit::CPrivate::ShowMenu(const QPoint& ptGlobal)
{
    QMenu menu(pEdit);
    menu.setStyleSheet(GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), Theme::c_nFontSize));
    const bool bText = !IPAddressText::Join(Octets()).isEmpty();
    menu.addAction(CCustomDialog::tr("复制"), pEdit, [this] { Copy(); })->setEnabled(bText);
    menu.addAction(CCustomDialog::tr("粘贴"), pEdit,
                   [this] { EnterText(QApplication::clipboard()->text()); });
    menu.addAction(CCustomDialog::tr("清空"), pEdit, [this] { Clear(); })->setEnabled(bText);
    menu.exec(ptGlobal);
}

CCustomIPEdit::CCustomIPEdit(QWidget* pParent)
    : QWidget(pParent)
    , m_pPrivate(std::make_unique<CPrivate>(this))
{
    setFocusProxy(&m_pPrivate->Cell(0));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

CCustomIPEdit::~CCustomIPEdit()
{
    // The octets still report loss of focus while the children are deleted.
    for (COctetEdit* pCell : m_pPrivate->arrCells)
        pCell->disconnect(this);
}

QString CCustomIPEdit::text() const
{
    return IPAddressText::Join(m_pPrivate->Octets());
}

void CCustomIPEdit::setText(const QString& strAddress)
{
    m_pPrivate->SetOctets(IPAddressText::Split(strAddress));
}

bool CCustomIPEdit::isRefused() const
{
    return m_pPrivate->bRefused;
}

QSize CCustomIPEdit::sizeHint() const
{
    return c_sizeHint;
}

QSize CCustomIPEdit::minimumSizeHint() const
{
    return c_sizeMinimum;
}

void CCustomIPEdit::keyPressEvent(QKeyEvent* pEvent)
{
    // A key that the octet ignores returns here and goes on to the dialog.
    if (m_pPrivate->bForwarding) {
        QWidget::keyPressEvent(pEvent);
        return;
    }
    m_pPrivate->bForwarding = true;
    QApplication::sendEvent(&m_pPrivate->Current(), pEvent);
    m_pPrivate->bForwarding = false;
}

bool CCustomIPEdit::focusNextPrevChild(bool bNext)
{
    // Backwards from a later octet the focus goes to the control before the field, not to its first octet.
    if (!bNext && m_pPrivate->nCurrent > 0)
        m_pPrivate->Cell(0).setFocus(Qt::BacktabFocusReason);
    return QWidget::focusNextPrevChild(bNext);
}

void CCustomIPEdit::mousePressEvent(QMouseEvent* pEvent)
{
    // A click on a dot or the frame goes to the octet left of it.
    int nIndex = c_nLast;
    while (nIndex > 0 && m_pPrivate->CellRect(nIndex).left() > pEvent->pos().x())
        --nIndex;
    m_pPrivate->GoTo(nIndex, CPrivate::enAtEnd);
}

void CCustomIPEdit::paintEvent(QPaintEvent* pEvent)
{
    Q_UNUSED(pEvent)
    QPainter painter(this);
    m_pPrivate->Paint(painter);
}

void CCustomIPEdit::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    for (int i = 0; i < IPAddressText::c_nOctets; ++i)
        m_pPrivate->Cell(i).setGeometry(m_pPrivate->CellRect(i));
}

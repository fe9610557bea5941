#include "host/OrviControl/CustomSpinBox.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/FieldWheel.h"
#include "simulator/OrviControl/Theme.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace {

/// The range while the operator types: every number of as many digits as a field takes.
constexpr int c_nMaxDigits = 6;
constexpr double c_dLargestTyped = 999999.0;

/// Whether a text is a whole number of the range while the operator types. Nothing typed yet counts as 0, so
/// that the dialog judges an emptied field too.
bool IsTypedNumber(const QString& strText)
{
    return strText.size() <= c_nMaxDigits && std::all_of(strText.cbegin(), strText.cend(), [](QChar ch) {
               return ch >= QLatin1Char('0') && ch <= QLatin1Char('9');
           });
}

} // namespace

CCustomSpinBox::CCustomSpinBox(int nDecimals, QWidget* pParent)
    : QDoubleSpinBox(pParent)
{
    setDecimals(nDecimals);
    FieldWheel::NeedsFocus(this);
    setStyleSheet(
        GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), Theme::c_nFontSize));
    // It precedes the signal that makes the text the value.
    connect(lineEdit(), &QLineEdit::textEdited, this, &CCustomSpinBox::AllowAllTyped);
}

CCustomSpinBox::~CCustomSpinBox() = default;

void CCustomSpinBox::SetMinMax(double dMin, double dMax)
{
    m_bAllAllowed = false;
    setRange(dMin, dMax);
}

QValidator::State CCustomSpinBox::validate(QString& strText, int& nPosition) const
{
    const QValidator::State state = QDoubleSpinBox::validate(strText, nPosition);
    return IsTypedNumber(strText) ? QValidator::Acceptable : state;
}

void CCustomSpinBox::AllowAllTyped()
{
    if (m_bAllAllowed)
        return;
    m_dMinimum = minimum();
    m_dMaximum = maximum();
    m_bAllAllowed = true;
    setRange(std::min(m_dMinimum, 0.0), std::max(m_dMaximum, c_dLargestTyped));
}

void CCustomSpinBox::HoldToRange()
{
    if (!m_bAllAllowed)
        return;
    m_bAllAllowed = false;
    setRange(m_dMinimum, m_dMaximum);
}

void CCustomSpinBox::stepBy(int nSteps)
{
    HoldToRange();
    QDoubleSpinBox::stepBy(nSteps);
}

/// From outside the range a step in either direction ends in it.
QAbstractSpinBox::StepEnabled CCustomSpinBox::stepEnabled() const
{
    if (!m_bAllAllowed)
        return QDoubleSpinBox::stepEnabled();
    StepEnabled steps = StepNone;
    steps.setFlag(StepUpEnabled, value() != m_dMaximum);
    steps.setFlag(StepDownEnabled, value() != m_dMinimum);
    return steps;
}

/// Enter corrects a value that is not allowed instead of pressing OK, so that no dialog takes over a value
/// that the operator has not seen.
void CCustomSpinBox::keyPressEvent(QKeyEvent* pEvent)
{
    const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    const double dTyped = value();
    if (bEnter)
        HoldToRange();
    if (bEnter && value() != dTyped) {
        selectAll();
        pEvent->accept();
        return;
    }
    QDoubleSpinBox::keyPressEvent(pEvent);
}

void CCustomSpinBox::focusOutEvent(QFocusEvent* pEvent)
{
    // The menu of the field and another window come and go: the operator has not left the field.
    if (pEvent->reason() != Qt::PopupFocusReason && pEvent->reason() != Qt::ActiveWindowFocusReason)
        HoldToRange();
    QDoubleSpinBox::focusOutEvent(pEvent);
}

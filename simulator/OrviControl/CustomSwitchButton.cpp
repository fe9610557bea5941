#include "host/OrviControl/CustomSwitchButton.h"

#include <QPainter>

class CCustomSwitchButton::CPrivate
{};

CCustomSwitchButton::CCustomSwitchButton(QWidget* pParent)
    : QAbstractButton(pParent)
    , m_pPrivate(std::make_unique<CPrivate>())
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(sizeHint());
}

CCustomSwitchButton::~CCustomSwitchButton() = default;

void CCustomSwitchButton::setOpen(bool bOpen, bool bAnimate)
{
    Q_UNUSED(bAnimate)
    setChecked(bOpen);
    update();
}

bool CCustomSwitchButton::isOpen() const
{
    return isChecked();
}

QSize CCustomSwitchButton::sizeHint() const
{
    return {44, 22};
}

void CCustomSwitchButton::nextCheckState()
{
    setChecked(!isChecked());
    Q_EMIT checked(isChecked());
}

void CCustomSwitchButton::paintEvent(QPaintEvent* pEvent)
{
    Q_UNUSED(pEvent)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QColor(255, 255, 255) : Qt::transparent);
    painter.setBrush(isChecked() ? QColor(74, 144, 226) : QColor(120, 120, 120));
    const QRectF rcTrack = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.drawRoundedRect(rcTrack, rcTrack.height() / 2, rcTrack.height() / 2);
    const qreal fKnob = rcTrack.height() - 4;
    const qreal fLeft = isChecked() ? rcTrack.right() - fKnob - 2 : rcTrack.left() + 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(fLeft, rcTrack.top() + 2, fKnob, fKnob));
}

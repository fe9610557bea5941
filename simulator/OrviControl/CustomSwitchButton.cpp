#include "host/OrviControl/CustomSwitchButton.h"

#include "simulator/OrviControl/Theme.h"

#include <QPainter>
#include <QVariantAnimation>

namespace {

/// Size of the switch, pixels.
constexpr QSize c_sizeSwitch(44, 22);

/// Room around the track for the focus ring, and around the knob within the track, pixels.
constexpr qreal c_fRing = 1.5;
constexpr qreal c_fKnobGap = 2.0;

/// A colour between two, by the position of the knob.
QColor Mix(QRgb rgbFrom, QRgb rgbTo, qreal fPosition)
{
    const auto Channel = [fPosition](int nFrom, int nTo) {
        return nFrom + qRound((nTo - nFrom) * fPosition);
    };
    return {Channel(qRed(rgbFrom), qRed(rgbTo)), Channel(qGreen(rgbFrom), qGreen(rgbTo)),
            Channel(qBlue(rgbFrom), qBlue(rgbTo))};
}

QColor TrackColour(bool bEnabled, bool bOpen, qreal fPosition)
{
    if (!bEnabled)
        return bOpen ? Mix(Theme::c_rgbWindow, Theme::c_rgbAccent, 0.4) : QColor(Theme::c_rgbButtonDisabled);
    return Mix(Theme::c_rgbTrackOff, Theme::c_rgbAccent, fPosition);
}

} // namespace

class CCustomSwitchButton::CPrivate
{
public:
    QVariantAnimation animation;
    bool bAnimated = Theme::AreAnimationsOn();
    bool bSlideNext = true; ///< the current change of state may slide
    qreal fPosition = 0.0;  ///< of the knob, 0 off to 1 on
};

CCustomSwitchButton::CCustomSwitchButton(QWidget* pParent)
    : QAbstractButton(pParent)
    , m_pPrivate(std::make_unique<CPrivate>())
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(c_sizeSwitch);
    m_pPrivate->animation.setDuration(Theme::c_nSlideDuration);
    connect(&m_pPrivate->animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_pPrivate->fPosition = value.toReal();
        update();
    });
    connect(this, &QAbstractButton::toggled, this, [this] { MoveKnob(m_pPrivate->bSlideNext); });
}

CCustomSwitchButton::~CCustomSwitchButton() = default;

void CCustomSwitchButton::setOpen(bool bOpen, bool bAnimate)
{
    m_pPrivate->bSlideNext = bAnimate;
    setChecked(bOpen);
    m_pPrivate->bSlideNext = true;
}

bool CCustomSwitchButton::isOpen() const
{
    return isChecked();
}

bool CCustomSwitchButton::isAnimated() const
{
    return m_pPrivate->bAnimated;
}

void CCustomSwitchButton::setAnimated(bool bAnimated)
{
    m_pPrivate->bAnimated = bAnimated;
}

QSize CCustomSwitchButton::sizeHint() const
{
    return c_sizeSwitch;
}

void CCustomSwitchButton::nextCheckState()
{
    setChecked(!isChecked());
    Q_EMIT checked(isChecked());
}

void CCustomSwitchButton::MoveKnob(bool bAnimate)
{
    const qreal fTarget = isChecked() ? 1.0 : 0.0;
    m_pPrivate->animation.stop();
    if (bAnimate && m_pPrivate->bAnimated && isVisible()) {
        m_pPrivate->animation.setStartValue(m_pPrivate->fPosition);
        m_pPrivate->animation.setEndValue(fTarget);
        m_pPrivate->animation.start();
        return;
    }
    m_pPrivate->fPosition = fTarget;
    update();
}

void CCustomSwitchButton::paintEvent(QPaintEvent* pEvent)
{
    Q_UNUSED(pEvent)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rcTrack = QRectF(rect()).adjusted(c_fRing, c_fRing, -c_fRing, -c_fRing);
    painter.setPen(hasFocus() ? QPen(QColor(Theme::c_rgbText), 1.5) : QPen(QColor(Theme::c_rgbEdge), 1.0));
    painter.setBrush(TrackColour(isEnabled(), isChecked(), m_pPrivate->fPosition));
    painter.drawRoundedRect(rcTrack, rcTrack.height() / 2, rcTrack.height() / 2);

    const qreal fKnob = rcTrack.height() - 2 * c_fKnobGap;
    const qreal fTravel = rcTrack.width() - 2 * c_fKnobGap - fKnob;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(isEnabled() ? Theme::c_rgbText : Theme::c_rgbTextDisabled));
    painter.drawEllipse(QRectF(rcTrack.left() + c_fKnobGap + fTravel * m_pPrivate->fPosition,
                               rcTrack.top() + c_fKnobGap, fKnob, fKnob));
}

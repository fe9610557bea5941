#ifndef HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H
#define HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H

#include "host/HostExport.h"

#include <QAbstractButton>

#include <memory>

/// An on/off switch. Space and a click switch it.
class ORVICONTROL_EXPORT CCustomSwitchButton : public QAbstractButton
{
    Q_OBJECT
    /// Whether the knob slides, see `setAnimated`; to be set in style sheets too.
    Q_PROPERTY(bool animated READ isAnimated WRITE setAnimated)

public:
    /// A switch that is off.
    explicit CCustomSwitchButton(QWidget* pParent = nullptr);
    ~CCustomSwitchButton() override;

    /// Sets the shown state. Emits nothing: `checked` tells of the operator's doing alone.
    /// @param bOpen true: on
    /// @param bAnimate the knob slides to its place where animations are on
    void setOpen(bool bOpen, bool bAnimate);
    /// The shown state.
    bool isOpen() const;

    /// The knob slides; when off it jumps. The state changes at once in either case.
    bool isAnimated() const;
    /// @param bAnimated the default is true, or false where the desktop wants no animation or the environment
    ///                  variable ORVICONTROL_ANIMATIONS is 0
    void setAnimated(bool bAnimated);

    /// The fixed size of every switch, 44 by 22 pixels.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The operator switched.
    void checked(bool bOpen);

protected:
    /// Paints track, knob and focus ring.
    void paintEvent(QPaintEvent* pEvent) override;
    /// The operator's click or Space: switches and emits `checked`.
    void nextCheckState() override;

private:
    void MoveKnob(bool bAnimate);

    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H

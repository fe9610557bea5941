#ifndef HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H
#define HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H

#include "host/HostExport.h"

#include <QAbstractButton>

#include <memory>

/// An on/off switch.
class ORVICONTROL_EXPORT CCustomSwitchButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit CCustomSwitchButton(QWidget* pParent = nullptr);
    ~CCustomSwitchButton() override;

    /// Sets the shown state. Emits nothing: `checked` tells of the operator's doing alone.
    /// @param bOpen true: on
    /// @param bAnimate the knob slides to its place where animations are on
    void setOpen(bool bOpen, bool bAnimate);
    /// The shown state.
    bool isOpen() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The operator switched.
    void checked(bool bOpen);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void nextCheckState() override;

private:
    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMSWITCHBUTTON_H

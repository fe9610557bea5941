#ifndef SIMULATOR_ORVICONTROL_OUTLINEDSTYLE_H
#define SIMULATOR_ORVICONTROL_OUTLINEDSTYLE_H

#include <QHash>
#include <QPalette>
#include <QProxyStyle>

/// Fusion on dark windows. Fusion draws the outlines of fields, buttons and boxes in a darker colour than the
/// window's, which cannot be seen there; here they are lighter. Texts and fillings keep their colours.
/// Messages have the kit's signs, which are sharp at any scale.
class COutlinedStyle : public QProxyStyle
{
    Q_OBJECT

public:
    COutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* pOption, QPainter* pPainter,
                            const QWidget* pWidget) const override;
    QIcon standardIcon(StandardPixmap sign, const QStyleOption* pOption,
                       const QWidget* pWidget) const override;

private:
    QPalette Outlined(const QPalette& palette) const;
    template <class TOption, class TDraw>
    bool DrawOutlined(const QStyleOption* pOption, TDraw funcDraw) const;

    /// By the key of the palette that they are made from: Fusion keeps pictures of controls by such keys.
    mutable QHash<qint64, QPalette> m_hashOutlined;
};

#endif // SIMULATOR_ORVICONTROL_OUTLINEDSTYLE_H

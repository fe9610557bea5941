#ifndef WORKBENCH_EDID_EDIDCOLOURS_H
#define WORKBENCH_EDID_EDIDCOLOURS_H

#include <QColor>

class QLabel;

/// The colours that fields and bytes share.
namespace EdidColours {

/// What is different or was changed.
const QColor c_clrChanged(255, 190, 80);
/// What was refused.
const QColor c_clrRefused(255, 120, 110);

/// Gives the text of a label a colour.
void Set(QLabel& label, const QColor& clr);

} // namespace EdidColours

#endif // WORKBENCH_EDID_EDIDCOLOURS_H

#ifndef WORKBENCH_EDID_EDIDCOLOURS_H
#define WORKBENCH_EDID_EDIDCOLOURS_H

#include <QColor>

/// The colours that fields and bytes share.
namespace EdidColours {

/// What is different or was changed.
const QColor c_clrChanged(255, 190, 80);
/// What was refused.
const QColor c_clrRefused(255, 120, 110);

} // namespace EdidColours

#endif // WORKBENCH_EDID_EDIDCOLOURS_H

#include "workbench/edid/EdidColours.h"

#include <QLabel>
#include <QPalette>

void EdidColours::Set(QLabel& label, const QColor& clr)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, clr);
    label.setPalette(palette);
}

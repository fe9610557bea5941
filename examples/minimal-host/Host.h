#ifndef EXAMPLES_MINIMAL_HOST_HOST_H
#define EXAMPLES_MINIMAL_HOST_HOST_H

#include <QWidget>

/// A window with a button for each dialog and for the chart.
class CHostWindow : public QWidget
{
public:
    CHostWindow();
};

#endif // EXAMPLES_MINIMAL_HOST_HOST_H

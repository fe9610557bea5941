#include "workbench/PageTabs.h"

#include "simulator/OrviControl/Theme.h"

#include <QPainter>
#include <QTabBar>

namespace {

constexpr int c_nFrameWidth = 2;  ///< pixels
constexpr int c_nFrameMargin = 3; ///< from the tab's edge to the frame, pixels

class CPageTabBar : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    void paintEvent(QPaintEvent* pEvent) override
    {
        QTabBar::paintEvent(pEvent);
        if (!hasFocus())
            return;
        QPainter painter(this);
        painter.setPen(QPen(QColor(Theme::c_rgbFocus), c_nFrameWidth));
        painter.drawRect(tabRect(currentIndex())
                             .adjusted(c_nFrameMargin, c_nFrameMargin, -c_nFrameMargin, -c_nFrameMargin));
    }
};

} // namespace

CPageTabs::CPageTabs(QWidget* pParent)
    : QTabWidget(pParent)
{
    setTabBar(new CPageTabBar(this));
}

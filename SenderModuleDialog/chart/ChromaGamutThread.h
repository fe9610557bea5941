#ifndef SENDERMODULEDIALOG_CHART_CHROMAGAMUTTHREAD_H
#define SENDERMODULEDIALOG_CHART_CHROMAGAMUTTHREAD_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"

#include <QThread>

#include <functional>
#include <mutex>

class CChromaticityDlgWnd;

/// Paints a chart's bitmaps of the types 0 to 4 away from the GUI thread. The chart makes one as its child;
/// `CChromaticityDlgWnd::StartWndBitmapThread` sets it to work.
class SENDERMODULEDIALOG_EXPORT CChromaGamutThread : public QThread
{
    Q_OBJECT

public:
    /// A thread that rests and has no chart.
    /// @param parent owner, of the GUI thread; may be null
    explicit CChromaGamutThread(QObject* parent);
    ~CChromaGamutThread() override;

    /// The chart to paint for, null for none. It is not owned, and may go before the thread. A run that has
    /// begun goes on with the chart that it began with.
    void SetChromaticityDlgWnd(CChromaticityDlgWnd* pWnd);

    /// Paints the types 0 to 4 in this order if a chart is set, and emits `RunOver` in any case, when it has
    /// let go of the chart.
    void run() override;

Q_SIGNALS:
    /// The end of `run`, emitted from the thread that ran it.
    void RunOver();

private:
    std::mutex m_mutex;               ///< a run may begin while a chart is set
    std::function<void()> m_funcWork; ///< of the chart that is set; empty for none
};

#endif // SENDERMODULEDIALOG_CHART_CHROMAGAMUTTHREAD_H

#ifndef HOST_ORVICONTROL_CUSTOMLABEL_H
#define HOST_ORVICONTROL_CUSTOMLABEL_H

#include "host/HostExport.h"

#include <QLabel>

/// A label in the host's look. It has operations of its own beside those of `QLabel`, with the same meaning:
/// call them on this type.
class ORVICONTROL_EXPORT CCustomLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label.
    /// @param flags the library passes none
    explicit CCustomLabel(QWidget* pParent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    /// A label with a text.
    /// @param flags the library passes none
    explicit CCustomLabel(const QString& strText, QWidget* pParent = nullptr,
                          Qt::WindowFlags flags = Qt::WindowFlags());
    ~CCustomLabel() override;

    /// As `QLabel::setText`.
    void setText(const QString& strText);
    /// As `QWidget::setStyleSheet`; the library passes what `GetFontStyleSheet` gave.
    void setStyleSheet(const QString& strStyle);
    /// As `QWidget::setFixedSize`, in pixels.
    void setFixedSize(const QSize& size);
    /// As `QWidget::setFixedSize`, in pixels.
    void setFixedSize(int nWidth, int nHeight);
    /// As `QWidget::setFixedHeight`, in pixels.
    void setFixedHeight(int nHeight);
    /// As `QWidget::setMaximumWidth`, in pixels: a longer text wraps where `setWordWrap` allows it.
    void setMaximumWidth(int nWidth);
    /// As `QLabel::setWordWrap`.
    void setWordWrap(bool bWrap);
};

#endif // HOST_ORVICONTROL_CUSTOMLABEL_H

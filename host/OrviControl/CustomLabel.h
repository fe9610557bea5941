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
    explicit CCustomLabel(QWidget* pParent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit CCustomLabel(const QString& strText, QWidget* pParent = nullptr,
                          Qt::WindowFlags flags = Qt::WindowFlags());
    ~CCustomLabel() override;

    void setText(const QString& strText);
    void setStyleSheet(const QString& strStyle);
    void setFixedSize(const QSize& size);
    void setFixedSize(int nWidth, int nHeight);
    void setFixedHeight(int nHeight);
    void setMaximumWidth(int nWidth);
    void setWordWrap(bool bWrap);
};

#endif // HOST_ORVICONTROL_CUSTOMLABEL_H

#include "host/OrviControl/CustomLabel.h"

CCustomLabel::CCustomLabel(QWidget* pParent, Qt::WindowFlags flags)
    : QLabel(pParent, flags)
{}

CCustomLabel::CCustomLabel(const QString& strText, QWidget* pParent, Qt::WindowFlags flags)
    : QLabel(strText, pParent, flags)
{}

CCustomLabel::~CCustomLabel() = default;

void CCustomLabel::setText(const QString& strText)
{
    QLabel::setText(strText);
}

void CCustomLabel::setStyleSheet(const QString& strStyle)
{
    QLabel::setStyleSheet(strStyle);
}

void CCustomLabel::setFixedSize(const QSize& size)
{
    QLabel::setFixedSize(size);
}

void CCustomLabel::setFixedSize(int nWidth, int nHeight)
{
    QLabel::setFixedSize(nWidth, nHeight);
}

void CCustomLabel::setFixedHeight(int nHeight)
{
    QLabel::setFixedHeight(nHeight);
}

void CCustomLabel::setMaximumWidth(int nWidth)
{
    QLabel::setMaximumWidth(nWidth);
}

void CCustomLabel::setWordWrap(bool bWrap)
{
    QLabel::setWordWrap(bWrap);
}

#ifndef WORKBENCH_EDID_BYTEPANES_H
#define WORKBENCH_EDID_BYTEPANES_H

#include <QVector>
#include <QWidget>

class CHexView;
class QLabel;
class QScrollArea;

/// The bytes of an EDID, and below them those of another while two are compared. Both scroll together: the
/// same byte stands at the same place.
class CBytePanes : public QWidget
{
    Q_OBJECT

public:
    /// Bytes, and the offsets of those that are coloured.
    struct SContent
    {
        QByteArray bytes;
        QVector<int> vecColoured;
    };

    explicit CBytePanes(QWidget* pParent = nullptr);

    void Show(const SContent& content);
    /// @param bShown false hides the other bytes with their title
    void ShowOther(const SContent& content, bool bShown);
    void SetOtherTitle(const QString& strTitle);
    void Retranslate();

    /// Marks bytes in both views and scrolls to the first.
    void Mark(const QVector<int>& vecOffsets, const QVector<int>& vecOtherOffsets);
    /// Marks bytes of the first view that follow each other, and scrolls to them.
    void MarkRange(int nOffset, int nSize);
    /// Scrolls both views to what is marked.
    void RevealMarked();

Q_SIGNALS:
    /// The operator chose a byte of the first view.
    void ByteChosen(int nOffset);

private:
    CHexView* m_pBytes;
    CHexView* m_pOtherBytes;
    QLabel* m_pOtherTitle;
    QScrollArea* m_pArea;
    QScrollArea* m_pOtherArea;
};

#endif // WORKBENCH_EDID_BYTEPANES_H

#ifndef SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWND_H
#define SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWND_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "host/CommonClass/PointEx.h"

#include <QColor>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QWidget>

#include <atomic>
#include <functional>
#include <memory>

class CCCT2ColorCoord;
class CChromaGamutInterpolation;
class CChromaGamutThread;
class CChromaticityDlgWndPrivate;
class QImage;
class QPainter;

/// The CIE 1931 xy chromaticity diagram with colour groups on it, whose points the operator drags.
///
/// A host constructs the widget and gives it its geometry, calls `SetSize` before the first paint, names
/// the bitmaps that it will use with `SetWndData` and picks one with `SetWndType` (type -1, the default
/// bitmap, needs neither), adds groups, and connects `OnPositionChangeSignal` directly. While running it
/// reads and edits the live groups, calls `ReCalRGB` or `ReCalCMY` after it has written coordinates into
/// one, and `update()`.
///
/// Everything belongs to the GUI thread, except that the worker started by `StartWndBitmapThread`
/// paints bitmaps.
class SENDERMODULEDIALOG_EXPORT CChromaticityDlgWnd : public QWidget
{
    Q_OBJECT

public:
    /// A chart without groups, laid out for no size: call `SetSize` before the first paint.
    /// @param parent owner of the widget; may be null
    explicit CChromaticityDlgWnd(QWidget* parent);
    /// Stops a worker that is painting and waits for it, then frees what the chart owns, the groups too.
    ~CChromaticityDlgWnd() override;

    /// @name Groups
    /// The chart owns a copy of each group. Any key that is not negative is legal; groups are drawn, hit and
    /// listed in key order.
    /// @{

    /// Adds a copy of the group, with the key written into it. The points are taken as they are: nothing
    /// makes them legal. No repaint.
    /// @return false, with nothing changed, for a negative or a present key
    bool AddChromaGroupByIndex(int nIndex, SChromaGroupInfo info);
    /// Frees the group; every pointer to it is invalid from then on. No repaint.
    /// @return false for a negative or an absent key
    bool RemoveChromaGroupByIndex(int nIndex);
    /// The live group, for the host to read and write; null for a negative or an absent key. It stays valid
    /// until the group is removed.
    SChromaGroupInfo* GetChromaGroupByIndex(int nIndex);
    /// Adds the group under an absent key. It does not replace a group: a present key ends the process. To
    /// change a group, edit it in place or remove it and add it again.
    /// @return false for a negative key
    bool SetChromaGroupByIndex(int nIndex, SChromaGroupInfo info);
    /// Frees every group, as `RemoveChromaGroupByIndex` frees one.
    void ReleaseChromaData();
    /// @}

    /// @name Size and appearance
    /// @{

    /// Lays the chart out: margins, scale, and the locus in pixels. Neither resizes the widget nor repaints,
    /// and bitmaps that are painted already stay as they are.
    /// @param nWidth, nHeight in pixels, both above 100; otherwise the process ends
    void SetSize(int nWidth, int nHeight);
    /// Fills the chart behind the bitmap. Repaints.
    void SetBackgroundColor(QColor color);
    /// Alpha of the grid lines, 0 to 255; the labels keep theirs. No range check, no repaint.
    void SetGridLineAlpha(int nAlpha);
    /// Stores the point that a refused drag falls back to. The misspelt name is part of the interface.
    void SetNearstPoint(QPointF point);
    /// Chooses the group whose standard `DrawCIEStandardShow` names, and the standard to prefer. No repaint.
    void ShowCIEStandard(int nGroupIndex, enColorStandard standard, bool bShow);
    /// Recognises the chosen group's standard into `m_nStandard`. Only the first group in key order is ever
    /// compared, and only while `m_nGroupIndex` is 0; with any other value nothing changes.
    void CalcCIEStandardValid();
    /// @}

    /// @name Background bitmaps
    /// Type -1 is the default bitmap at the size of `SetSize`; types 0 to 4 have sizes of their own. The type
    /// selects the background and nothing else.
    /// @{

    /// Picks the bitmap to show. No repaint, no check: another type shows the background alone.
    void SetWndType(int nType);
    /// Stores the size of a type 0 to 4; then, for every value, paints that type's bitmap on the
    /// calling thread.
    /// @param nWidth, nHeight in pixels
    void SetWndData(int nType, int nWidth, int nHeight);
    /// Stores the size of a type 0 to 4 and paints nothing: for the worker to paint. Any other type
    /// does nothing.
    void StoreWndData(int nType, int nWidth, int nHeight);
    /// Reads the stored size of a type 0 to 4. Any other type leaves both arguments untouched.
    void GetWndData(int nType, int& nWidth, int& nHeight);
    /// Does nothing; hosts may call it. To start the worker, call `StartWndBitmapThread`.
    void InitialWndBitMap();
    /// Paints the bitmap of a type on the calling thread and shows it from then on. The outline is that
    /// of `SetSize`, the colours and the box are those of the bitmap's own size. Any type but -1 to 4
    /// does nothing.
    void GetChromaticityBmp(int nType);
    /// Starts painting the types 0 to 4 at their stored sizes in the worker thread, beginning anew if it is
    /// at work, and repaints when it is done. A type painted before shows its old bitmap meanwhile. Called in
    /// another thread than the chart's, for one in a slot of the worker's signal, it starts as soon as the
    /// chart's thread is back in its event loop.
    void StartWndBitmapThread();
    /// Stops every worker that paints for this chart and waits until the chart's own has ended and a host's
    /// has let go of the chart. A bitmap that was not finished stays as it was.
    void StopWndBitmapThread();
    /// What a worker does for this chart: paints the types 0 to 4 at their stored sizes. It may be called in
    /// any thread; it ends early when the chart stops its workers, and does nothing once the chart is gone.
    std::function<void()> WorkOfWndBitmapThread() const;
    /// Hands the chart a list of chromaticities, which it keeps in widget pixels with a colour. Nothing
    /// paints them: they are kept for the host.
    /// @return false, with nothing changed, if the pointer is null, or the count is negative or more than the
    /// memory has room for
    bool DrawStaticPiexl(QPointF* pPoints, int nCount, unsigned char r, unsigned char g, unsigned char b,
                         unsigned char a);
    /// @}

    /// @name Points
    /// @{

    /// The same coordinates in double precision; no scaling.
    QPointF CPointFToQPointF(CPointEx<float> point);
    /// The same coordinates in single precision; no scaling.
    CPointEx<float> QPointFToCPointF(QPointF point);
    /// The mapping between chromaticities and widget pixels, as `SetSize` laid it out.
    CChartMapping Mapping() const;
    /// @}

    /// @name Keeping groups legal
    /// Every point of a legal group lies inside the spectral locus, and its white inside its triangle. A
    /// point that breaks a rule is not refused but moved to the nearest legal boundary and 0.0001 inward. All
    /// coordinates are xy chromaticities.
    /// @{

    /// Where a segment leaves a closed polygon: on the crossed edge that comes last in list order, a
    /// step inward.
    /// @return false, with `ptOut` unchanged, for fewer than 3 points or without a crossing
    bool GetCIEIntersection(const QList<CPointEx<float>>& list, CPointEx<float> ptFrom, CPointEx<float> ptTo,
                            CPointEx<float>& ptOut);
    /// Stops the point under the mouse at a region, seen from its group's white. `point` receives the
    /// answer; its value is ignored, and it is unchanged without an answer. The misspelt name is part of
    /// the interface.
    void GetFeasibleRegionNearstPoint(QList<CPointEx<float>>& region, CPointEx<float>& point);
    /// The same, seen from the mean of the region's vertices.
    void GetFeasibleRegionNearstPoint2(QList<CPointEx<float>>& region, CPointEx<float>& point);
    /// Moves a vertex so that the white lies in its triangle, and inside the locus; the result
    /// is `m_ptNearest`.
    /// @return false, with `m_ptNearest` unchanged, when the lines to meet are parallel
    bool GetNearestPoint(CPointEx<float> ptWhite, CPointEx<float> ptCur, CPointEx<float> ptA,
                         CPointEx<float> ptB);
    /// The same without the locus; the result is `ptOut`, and `m_ptNearest` is left alone.
    bool GetNearestPoint2(CPointEx<float> ptWhite, CPointEx<float> ptCur, CPointEx<float> ptA,
                          CPointEx<float> ptB, CPointEx<float>& ptOut);
    /// Brings a white point back to its group's triangle; the result is `m_ptNearest`.
    /// @return false for no group or a triangle without width or height
    bool GetWhiteIntersection(SChromaGroupInfo* pGroup, CPointEx<float> ptWhite);
    /// Takes a solved point 0.0001 further along the line that comes from an outside point.
    /// @param point the solved point, moved
    /// @param ptFrom the outside point that it was solved for
    void AddFloatExcursion(QPointF& point, QPointF ptFrom);
    /// Makes point `nIndex` of an RGB group legal, after the host wrote it.
    /// @return false for an illegal white
    bool ReCalRGB(SChromaGroupInfo* pGroup, int nIndex);
    /// Makes a CMY group legal, after the host wrote it.
    /// @return false, with the points as they were, if the white is outside the locus
    bool ReCalCMY(SChromaGroupInfo* pGroup);
    /// Whether the group is legal as it stands, with its point `nIndex` tested against the locus.
    bool IsPointInRegion(SChromaGroupInfo* pGroup, int nIndex);
    /// @}

    /// @name Painting
    /// `Draw` paints the whole chart; the others are its layers, in their order, and `DrawCIEStandardShow`,
    /// which a host calls with a painter of its own. Each takes an active painter in widget pixels, and
    /// leaves the pen, brush and font that it set.
    /// @{

    /// The whole chart: background, bitmap, and the layers below but the last. This is what a paint event
    /// runs; call it to paint the chart on a picture or a printer.
    /// @param painter an active one; otherwise the process ends
    void Draw(QPainter& painter);
    /// The outline of the spectral locus as `SetSize` laid it out.
    void DrawBorder(QPainter& painter);
    /// The grid, a line for each tenth of a unit, with its labels; the name is part of the interface.
    void DrawHexCoorDialog(QPainter& painter);
    /// The coordinates of the point under the mouse or being dragged, at the lower right; with `m_bShowCCT` a
    /// white point's colour temperature too. Nothing while the point is outside the locus.
    void DrawTipsString(QPainter& painter);
    /// The cross hair at the mouse, or at the point being dragged. Nothing while the mouse is
    /// outside the locus.
    void DrawCrossLine(QPainter& painter);
    /// The curve of colour temperatures (`CCCT2ColorCoord`) with its ticks and their labels.
    void DrawCCTLine(QPainter& painter);
    /// The label of one tick of that curve.
    /// @param fValue ignored; part of the interface
    /// @param pos place of the tick, widget pixels
    /// @param nCCT colour temperature, kelvin
    void DrawCCTLineString(QPainter& painter, float fValue, QPointF pos, int nCCT);
    /// The triangles and dots of all visible groups in key order. A group without a colour of its own takes
    /// the palette's, and keeps it in its record.
    void DrawChromTriangle(QPainter& painter);
    /// The legend: a row for each visible group that has a note.
    void DrawChromNote(QPainter& painter);
    /// The name of the standard that the chosen group has, with a line to the group. Nothing unless
    /// `ShowCIEStandard` asked for it and a standard is recognised. With another group chosen than 0, or
    /// without a group, the process ends.
    void DrawCIEStandardShow(QPainter& painter);
    /// How much of the output colour space (key 0x200) the screen's (key 0x300) covers, in whole percent; -1
    /// unless both groups are there and visible. Asking leaves an empty entry for a missing key.
    int CalcRatio();
    /// @}

    /// @name Mouse
    /// @{

    /// The point under a widget pixel.
    /// @param pos widget pixels
    /// @param nGroup takes the group's key, -1 for none
    /// @param nPoint takes the point, an `enChromaPoint`, -1 for none
    void HitTest(QPoint pos, int& nGroup, int& nPoint);
    /// Moves the group's point `m_nHoverPoint` to the legal position for a widget pixel. No repaint.
    /// @param pGroup not null; otherwise the process ends
    void CalcCurrentPoint(QPointF pos, SChromaGroupInfo* pGroup);
    /// @}

Q_SIGNALS:
    /// A point was dragged; only true in `bSuccessed`, which starts as false, keeps the new position. The
    /// answer is read right after the emission, so connect directly. Emitted on the GUI thread, once for each
    /// mouse move of the drag.
    /// @param groupIndex key of the group
    /// @param pointIndex point of the group, an `enChromaPoint`
    /// @param bSuccessed the answer; a white point keeps its new position whatever it is
    void OnPositionChangeSignal(int groupIndex, int pointIndex, bool& bSuccessed);

protected:
    /// The left button takes hold of the point under the mouse; one that may not be moved stays.
    void mousePressEvent(QMouseEvent* event) override;
    /// Lets go of the point. A drag is not announced once more.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Drags with the left button held, and marks the point under the mouse otherwise.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// Repaints; what was marked under the mouse stays marked.
    void leaveEvent(QEvent* event) override;
    /// Runs `Draw`.
    void paintEvent(QPaintEvent* event) override;

public:
    /// @name State
    /// Open to the host, as the groups are. `m_bShowCCT`, `m_bSnapWhite` and `m_bAbortPaint` are for the host
    /// to set, and no operation does; the others are for it to read.
    /// @{
    int m_nStandard = enStandardSRGB;              ///< the chosen group's standard, -1 for none
    int m_nHoverGroup = -1;                        ///< key of the group under the mouse or being dragged
    int m_nHoverPoint = enNoPoint;                 ///< point index under the mouse or being dragged
    int m_nGroupIndex = 0;                         ///< the group that `ShowCIEStandard` chose
    int m_nWndType = -1;                           ///< the bitmap that is shown
    int m_nWndHeight = 0;                          ///< in pixels, from `SetSize`
    int m_nWndWidth = 0;                           ///< in pixels, from `SetSize`
    bool m_bShowCCT = false;                       ///< tips show the colour temperature
    bool m_bSnapWhite = false;                     ///< a dragged white snaps to 6500 K
    bool m_bHasStaticPixels = false;               ///< set by `DrawStaticPiexl`
    bool m_bHitWhite = false;                      ///< the last hit test touched a white point
    bool m_bMouseInside = false;                   ///< written by the mouse, read by nothing
    bool m_bDefaultDirty = true;                   ///< the default bitmap is still to be painted
    bool m_bFirstPress = true;                     ///< cleared by the first press on a point, read by nothing
    bool m_bCanDrag = true;                        ///< the point under the mouse may be dragged
    bool m_bPressed = false;                       ///< a press has hit a point; never cleared
    bool m_bDragging = false;                      ///< the left button holds a point that may be moved
    bool m_bShowStandard = false;                  ///< set by `ShowCIEStandard`, cleared by a drag
    std::atomic<bool> m_bAbortPaint{false};        ///< cuts the painting of bitmaps short while it is set
    QPointF* m_pBoundaryPx = nullptr;              ///< owned; the locus in widget pixels
    CPointEx<float>* m_pBoundaryPxF = nullptr;     ///< owned; the same in single precision
    CChromaGamutInterpolation* m_pGamut = nullptr; ///< owned; the locus
    CCCT2ColorCoord* m_pCct = nullptr;             ///< owned; colour temperatures
    QImage* m_pDefaultImage = nullptr;             ///< owned; the bitmap of type -1
    QRect m_rcChart;                               ///< (0, 0) to (width - 1, height - 1)
    QColor m_clrBackground{50, 50, 50};            ///< shown where the bitmap is not; `SetBackgroundColor`
    int m_nGridAlpha = 120;                        ///< alpha of the grid lines
    float m_fMarginX = 25.0F;                      ///< left margin in pixels
    float m_fMarginY = 25.0F;                      ///< bottom margin in pixels
    float m_fScale = 500.0F;                       ///< pixels per unit of chromaticity
    float m_fTextRatio = 1.0F;                     ///< factor of the legend's spacing
    QPointF m_ptNearest;                ///< last solved point, and what a refused drag falls back to
    QPointF m_ptD65;                    ///< the chromaticity of 6500 K
    QPointF* m_pStaticPixels = nullptr; ///< owned; from `DrawStaticPiexl`, in widget pixels
    int m_nStaticPixelCount = 0;        ///< from `DrawStaticPiexl`
    unsigned char m_nStaticColor[4] = {255, 0, 0, 0}; ///< from `DrawStaticPiexl`: red, green, blue, alpha
    QPoint m_ptMouse;                                 ///< last mouse position in widget pixels
    QMap<int, SChromaGroupInfo*> m_mapGroups;         ///< owned
    CChromaGamutThread* m_pThread = nullptr;          ///< the worker, a child of the chart
    SWndBitmap m_wndBitmap0;                          ///< bitmap of type 0, `SetWndData`
    SWndBitmap m_wndBitmap3;                          ///< bitmap of type 3
    SWndBitmap m_wndBitmap1;                          ///< bitmap of type 1
    SWndBitmap m_wndBitmap2;                          ///< bitmap of type 2
    SWndBitmap m_wndBitmap4;                          ///< bitmap of type 4
    /// @}

private:
    /// The rooms that do the work, and the steps between them.
    std::unique_ptr<CChromaticityDlgWndPrivate> m_pPrivate;
};

#endif // SENDERMODULEDIALOG_CHART_CCHROMATICITYDLGWND_H

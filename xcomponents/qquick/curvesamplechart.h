#ifndef CURVESAMPLECHART_H
#define CURVESAMPLECHART_H

#include "xcomponents/qquick/customplotitem.h"

#include <QPointer>
#include <QVector>

#include <string>
#include <vector>

class BaseCustomAxisTicker;
#include "xcomponents/qquick/curvecursor.h"
class CustomLabelAxisTicker;
class XCPGraph;

/**
 * The sample curve chart (trend chart): one graph per channel over a running
 * sample number (mode 0), a labelled sample number (mode 1) or time (mode 2).
 *
 * x range. orgRange is the range at scale 1.0; the shown span is
 * orgRange's size times the scale. In real-time mode the view follows the
 * newest sample: a pushed key at or beyond the upper bound moves the range so
 * that the key is its right edge; a key below it leaves the view alone.
 * Dragging the plot leaves real-time mode; it comes back when the newest key
 * is in view at the end of the drag, on a double click, or through
 * resumeRealMode().
 *
 * y range. The y axis runs over [0, N] in tick units (N: the y ticker's tick
 * count). A value v is shown at (v - low) / (high - low) * 100 / (100 / N),
 * low and high being the y ticker's limits; NaN and infinite values leave a
 * gap in the line.
 *
 * Keys count per graph: the k-th value pushed to a channel has key k, so
 * channels pushed unequal numbers of values run apart on purpose.
 */
class CurveSampleChart : public CustomPlotItem {
    Q_OBJECT
    Q_PROPERTY(int xAxisMode READ xAxisMode CONSTANT)
    Q_PROPERTY(bool realTime READ isRealTimeCurve NOTIFY realTimeChanged)
    Q_PROPERTY(double xScale READ xScale NOTIFY xScaleChanged)
    Q_PROPERTY(bool settingBtnVisible READ useSettingBtn NOTIFY buttonsChanged)
    Q_PROPERTY(bool restoreBtnVisible READ restoreBtnShown NOTIFY buttonsChanged)

public:
    enum XAxisMode { SampleAxis = 0, SampleLabelAxis = 1, TimeAxis = 2 };
    Q_ENUM(XAxisMode)
    /** Most channels a chart takes. */
    static constexpr int kMaxChannels = 64;
    /** Most values taken per channel and call. */
    static constexpr size_t kMaxPush = 1000000;

    explicit CurveSampleChart(QQuickItem* parent = nullptr);
    ~CurveSampleChart() override;

    int xAxisMode() const { return m_xAxisMode; }
    /** Installs the x ticker of \a mode (unknown modes: 0) with \a subTicks minor ticks and \a clockFormat. */
    void setXAxisMode(int mode, int subTicks, const QString& clockFormat);
    BaseCustomAxisTicker* xTicker() const;
    /** Key 0 of the time axis; the time ticker follows. */
    void setTimeOffset(double seconds) override;
    CustomLabelAxisTicker* yTicker() const;

    QCPRange orgRange() const { return m_orgRange; }
    /** The range at scale 1.0; the x axis shows it. */
    void setOrgRange(const QCPRange& range);
    double xScale() const { return m_scale; }
    /** Sets the scale (shown span = orgRange's size * scale) by the scale rule; non-positive or
     *  non-finite scales change nothing. */
    void setXScale(double scale);
    /** The restore button's action: scale 1.0, the restore button hidden. */
    Q_INVOKABLE void currentScaleChange(double scale);

    bool isRealTimeCurve() const { return m_realTime; }
    void setRealTimeCurve(bool on);
    unsigned disp() const { return m_disp; }
    void setDisp(unsigned samples) { m_disp = samples; }
    int getTickerCount() const;
    void setTickerCount(int count);
    double xMinData() const { return m_xMin; }
    void setXMinData(double x) { m_xMin = x; }
    double xMaxData() const { return m_xMax; }
    void setXMaxData(double x) { m_xMax = x; }

    /** Adds one channel (graph) with \a style; null beyond kMaxChannels. */
    XCPGraph* addChannel(const CurveChannelStyle& style);
    int channelCount() const { return m_graphs.size(); }
    XCPGraph* graphAt(int channel) const;

    /** Sets channel \a channel visible = !hide; false when there is no such channel. */
    bool hideChannel(unsigned channel, bool hide);
    /** Appends labels[i] and values[c][i] (modes 0 and 1; the push rule). */
    void pushData(const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values);
    /** Appends values[c][i] at keys[i] to channel c (time axes); labels[i] under keys[i]. */
    void pushKeyed(const QVector<double>& keys, const std::vector<std::string>& labels,
        const std::vector<std::vector<double>>& values);
    /** The plot value of engineering value \a value (NaN for NaN and infinities). */
    double plotValue(double value) const;
    /**
     * Replaces the data of the listed channels with a page: values[i] for channels[i], keys
     * start, start + 1, ...; labels per sample. The x range is left where it is.
     */
    void replaceData(const std::vector<unsigned>& channels, const std::vector<std::string>& labels,
        const std::vector<std::vector<double>>& values, double start);
    /** As above with a key per sample. */
    void replaceDataKeyed(const std::vector<unsigned>& channels, const std::vector<std::string>& labels,
        const std::vector<std::vector<double>>& values, const QVector<double>& keys);
    /** Clears the listed graphs, the label table, the data bounds and the x range (back to orgRange). */
    void clearData(const std::vector<unsigned>& channels);
    /** Text labels of the y axis (empty: numbers). */
    void setYLabels(const QVector<QString>& labels);
    /** The y labels' decimals, then data type, then limits (null limits: unchanged). */
    void setYLimit(int dataType, unsigned char decimals, const double* limits);
    /** The x tick count (modes 0 and 1). */
    void changeDispNum(unsigned count);
    /** Scrolls to the newest data and follows it again. */
    void resumeRealMode();

    /** Scrolls so that the newest key is the right edge (the scroll-to-last rule). */
    void scroolToLast();
    /** In real-time mode, and only for \a x at or beyond the upper bound: \a x becomes the right edge. */
    void scroolToNext(double x);
    /** True when the newest key lies within [range.lower, range.upper + 0.5]. */
    bool inRange(const QCPRange& range) const;
    /** True when \a x lies within the current x range, both ends included. */
    bool pointInCurrent(double x) const;

    QCPItemStraightLine* cursorLine() const { return m_cursorLine; }
    QPen cursorLinePen() const { return m_cursorPen; }
    void setCursorLinePen(const QPen& pen);
    bool cursorLineDataInited() const { return m_cursorInited; }
    void setCursorLineDataInited(bool inited) { m_cursorInited = inited; }
    /** Shows or hides the cursor line (and the cursor window). */
    void setCursorEnabled(bool on);
    bool cursorEnabled() const { return m_cursorEnabled; }
    /** Whether the logic layer wrote the cursor window's title or rows: new samples then leave the
     *  window alone (a move of the cursor fills it again, and clears this). */
    bool cursorContentFromLogic() const { return m_cursorContentFromLogic; }
    void setCursorContentFromLogic(bool fromLogic) { m_cursorContentFromLogic = fromLogic; }
    /** Puts the cursor line at key \a key (the nearest whole sample outside time mode). */
    void moveCursorTo(double key);
    double cursorKey() const { return m_cursorKey; }
    CurveCursor* cursorWindow() const { return m_cursorWindow.data(); }
    /** The cursor window (a child of the chart), filled and placed whenever the cursor moves. */
    void setCursorWindow(CurveCursor* window);
    /** Channel names and units for the cursor window (a channel past the lists: "Channel n", no unit). */
    void setChannelNames(const QStringList& names, const QStringList& units);
    /** Fills the cursor window for the cursor's key: the title and, per visible channel, its colour,
     *  name, value at the nearest sample, and unit. */
    void fillCursorWindow();

    bool useSettingBtn() const { return m_settingBtn; }
    void setSettingBtnVisible(bool on);
    bool restoreBtnVisible() const { return m_restoreBtn; }
    /** Allows the restore button: it shows while the view is zoomed (scale other than 1.0). */
    void setRestoreBtnVisible(bool on);
    /** True while the restore button is shown. */
    bool restoreBtnShown() const { return m_restoreBtn && m_zoomed; }

    /** Press on the plot area at \a pos (item coordinates): the plot is told, event 2 goes out. */
    void pressAt(QMouseEvent* event);
    /** Release: the plot is told, the cursor moves when it was a tap, event 3 with the cursor goes out. */
    void releaseAt(QMouseEvent* event);
    /** Double click: event 5, real-time mode again. */
    void doubleClickAt(QMouseEvent* event);

public Q_SLOTS:
    /** The setting button: opens the search dialog (the views layer listens to settingRequested). */
    void slotSettingBtnClicked();
    /** The restore button: scale 1.0. */
    void onRestoreBtnClicked();

Q_SIGNALS:
    void realTimeChanged();
    void xScaleChanged();
    void buttonsChanged();
    /** The setting button was clicked. */
    void settingRequested();
    /** A double click asked for real-time mode again. */
    void realTimeRequested();
    /** The cursor line moved (a tap on the plot, or moveCursorTo). */
    void cursorMoved(double key);

private:
    void onXRangeChanged(const QCPRange& range);
    void setZoomed(bool zoomed);
    /** After samples up to \a maxKey (from \a minKey) were added: data bounds, following, replot. */
    void tookSamples(double minKey, double maxKey);
    /** Fills the cursor window again when it is shown and new samples may have changed its values. */
    void refreshCursorWindow();

    int m_xAxisMode = SampleAxis;
    QCPRange m_orgRange { 0, 100 };
    double m_scale = 1.0;
    bool m_realTime = true;
    unsigned m_disp = 0;
    double m_xMin = 0;
    double m_xMax = 0;
    QVector<XCPGraph*> m_graphs;
    QCPItemStraightLine* m_cursorLine = nullptr;
    QPen m_cursorPen { Qt::red };
    bool m_cursorInited = false;
    bool m_cursorEnabled = false;
    /** Every shown channel holds a sample at or after the cursor: samples appended later cannot be
     *  nearer, and the cursor window's values stand. */
    bool m_cursorSettled = false;
    bool m_cursorContentFromLogic = false;
    double m_cursorKey = 0;
    QPointer<CurveCursor> m_cursorWindow;
    QStringList m_channelNames;
    QStringList m_channelUnits;
    bool m_settingBtn = false;
    bool m_restoreBtn = false;
    bool m_zoomed = false;
    QPointF m_pressPos;
};

#endif // CURVESAMPLECHART_H

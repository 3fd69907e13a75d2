#ifndef CURVESAMPLECHARTTIMEMODECONTROLLER_H
#define CURVESAMPLECHARTTIMEMODECONTROLLER_H

#include <QHash>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <string>
#include <vector>

#include <qcustomplot.h>

class CurveSampleChart;
class CurveSampleDlg;
class QmlWindowManage;

/**
 * The time axis and the history search of the sample curve charts (owned by
 * ViewManage; every chart is attached at creation).
 *
 * Time axis (mode 2). A key is a number of seconds after the chart's time
 * offset. At creation the offset is the creation time less the record's x
 * span (upper - lower seconds, 600 when not given), and the view shows
 * [0, span]: the last span of seconds up to now. View_CurveSampleInit with a
 * date-time text ("yyyy-MM-dd hh:mm:ss", optional ".zzz") moves the offset
 * there (an empty or unreadable text: now less the span) and forgets the keys
 * held. A pushed sample's key comes from its label read as such a date-time;
 * a sample without a readable label is taken at the time of the call.
 *
 * States of a chart, with what moves it (every mode):
 *
 *   state       | event                                   | next      | sent
 *   ------------+-----------------------------------------+-----------+---------------------------
 *   RealTime    | search dialog confirmed                 | Searching | 1540 {1, 0, start, end}
 *   RealTime    | View_CurveSampleSetSearchMode(on)       | Searching | -
 *   RealTime    | View_RestoreCurveSampleSearchState      | Restored  | 1540 {1, 2, start, end}
 *   RealTime    | page answering this chart's 1537/1538   | Searching | 1539 after the page is shown
 *   RealTime    | any other page                          | RealTime  | - (ignored)
 *   Searching,  | page                                    | same      | 1539 after the page is shown
 *   Restored    | drag past the first / last key held     | same      | 1537 / 1538
 *               | search dialog confirmed                 | Searching | 1540 {1, 0, start, end}
 *               | View_RestoreCurveSampleSearchState      | Restored  | 1540 {1, 2, start, end}
 *               | View_CurveSampleSetSearchMode(off),     | RealTime  | -
 *               | View_CurveSampleResumeRealMode          |           |
 *               | double click on the plot                | RealTime  | 5, then 1540 {0, 1, "", ""}
 *   RealTime    | double click on the plot                | RealTime  | 5, then 1540 {0, 1, "", ""}
 *   RealTime    | drag past the first / last key held     | RealTime  | 1537 / 1538 (a request pending)
 *
 * Results: View_CurveSampleSetSearchMode, View_RestoreCurveSampleSearchState
 * and View_CurveSampleResumeRealMode return 0 in every state for a sample
 * chart and -1 for any other id. Restoring with no search saved for the chart
 * (no confirmed search yet) changes nothing and sends nothing.
 *
 * Entering a search state puts the data shown so far aside and shows an
 * empty plot until the logic layer sends a page; samples pushed meanwhile
 * are added to the data aside, so that coming back to real time shows
 * everything pushed, scrolled to the newest sample. Pages replace the shown
 * data of the channels they list. In real-time state a page is taken only
 * while a request of this chart is pending (the first page of a drag into
 * history, which enters Searching); any other page there answers a search
 * already left and is ignored.
 *
 * The search dialog (the chart's setting button) offers the chart's last
 * confirmed times (GlobalConfig's search-time store) again when it opens.
 * After a confirmed search a time-axis chart shows [start, end] (an end left
 * open: the start plus the current span; a start left open: the end less it).
 */
class CurveSampleChartTimeModeController : public QObject {
    Q_OBJECT

public:
    enum State { RealTime = 0, Searching = 1, Restored = 2 };

    explicit CurveSampleChartTimeModeController(QmlWindowManage* windows = nullptr, QObject* parent = nullptr);
    ~CurveSampleChartTimeModeController() override;

    /** Connects the chart's requests (drags past the data, setting button, double click). */
    void attach(CurveSampleChart* chart);
    /** Mode 2 creation: the offset and the initial range from the record's x bounds (seconds). */
    void setOrgRange(CurveSampleChart* chart, double lower, double upper);
    /** Mode 2 View_CurveSampleInit. */
    void init(CurveSampleChart* chart, const QString& text);
    /** View_CurveSamplePushData for every mode (mode 2 keys by time). */
    void push(CurveSampleChart* chart, const std::vector<std::string>& labels,
        const std::vector<std::vector<double>>& values);
    /** View_CurveSampleClearData: clears what is shown and, in a search, what was put aside. */
    void clearData(CurveSampleChart* chart, const std::vector<unsigned>& channels);
    /** View_CurveSampleUpdateData: a page, taken only in a search state; 1539 follows. */
    void updateData(CurveSampleChart* chart, const std::vector<unsigned>& channels,
        const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values, unsigned start,
        bool last);
    void setSearchMode(CurveSampleChart* chart, bool on);
    void restoreSearchState(CurveSampleChart* chart);
    void resumeRealMode(CurveSampleChart* chart);
    /** The search dialog's confirmation: both ends "yyyy-MM-dd hh:mm:ss", an end left open "". */
    void confirmSearch(CurveSampleChart* chart, const QString& start, const QString& end);
    /** Opens the search dialog of \a chart. */
    void openSearchDialog(CurveSampleChart* chart);
    State state(const CurveSampleChart* chart) const;
    /** The search dialog open now; null when none is. */
    CurveSampleDlg* searchDialog() const;

    /** A sample's time from its label; invalid when the label is not a date-time. */
    static QDateTime parseTime(const std::string& label);

private:
    struct ChartState {
        State state = RealTime;
        QVector<QSharedPointer<QCPGraphDataContainer>> aside; // live data while searching
        QHash<double, QString> asideLabels;
        double asideMin = 0;
        double asideMax = 0;
        bool lastPage = false;
        bool requestPending = false; // a 1537/1538 sent in real-time state awaits its page
    };

    void enterSearch(CurveSampleChart* chart, State state);
    void leaveSearch(CurveSampleChart* chart);
    void showSearchSpan(CurveSampleChart* chart, const QString& start, const QString& end);
    void sendSearchEvent(CurveSampleChart* chart, int state, int source, const QString& start, const QString& end);

    QmlWindowManage* m_windows;
    QHash<const CurveSampleChart*, ChartState> m_states;
    QPointer<CurveSampleDlg> m_dialog;
};

#endif // CURVESAMPLECHARTTIMEMODECONTROLLER_H

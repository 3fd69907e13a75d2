#include "trendscreen.h"

#include "operatortouch.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <list>
#include <cstdio>
#include <string>
#include <vector>

namespace TrendScreen {

namespace {

const unsigned kChart = 700;
const unsigned kPump = 701; // the XY chart of the pump characteristic
const unsigned kDb = 2;
const unsigned kQueryPage = 1;
const unsigned kQueryInsert = 2;
const int kPage = 600; // one minute of samples per page
const char* const kForm = "yyyy-MM-dd hh:mm:ss.zzz";

unsigned g_window = 0;
bool g_built = false;
bool g_started = false;
std::string g_from; // the first and last times of the page shown in history
std::string g_to;
bool g_pageIsOlder = true;

Font g_axisFont { nullptr, 13, 400, 0, 0, 0, 0, 0xFF33414Fu, 0 };

/** The four channels at time \a t (seconds since the epoch): sine, ramp, noise, step, in 0..100. */
void values(double t, double out[4])
{
    out[0] = 50 + 40 * std::sin(2 * M_PI * t / 20.0);
    out[1] = std::fmod(t, 30.0) / 30.0 * 100.0;
    unsigned x = unsigned(std::llround(t * 10)) * 2654435761u;
    out[2] = 50 + double(x % 2001) / 100.0 - 10;
    out[3] = std::fmod(t, 20.0) < 10 ? 80 : 20;
}

std::string timeText(const QDateTime& t)
{
    return t.toString(QString::fromLatin1(kForm)).toStdString();
}

/** Sends rows (time, four values) to the chart as a page. */
void sendPage(const std::vector<std::vector<std::string>>& rows)
{
    if (rows.empty())
        return; // nothing older or newer: the chart keeps what it shows
    std::vector<std::string> labels;
    std::vector<std::vector<double>> v(4);
    for (const auto& row : rows) {
        if (row.size() < 5)
            continue;
        labels.push_back(row[0]);
        for (int c = 0; c < 4; ++c)
            v[size_t(c)].push_back(std::atof(row[size_t(c) + 1].c_str()));
    }
    g_from = labels.front();
    g_to = labels.back();
    View_CurveSampleUpdateData(kChart, { 0, 1, 2, 3 }, labels, v, 0, rows.size() < size_t(kPage));
}

void onResult(xDatabase::DbQueryResult* r)
{
    if (r->errorType != 0) {
        std::printf("demo: history query failed: %s\n", r->errorText.c_str());
        return;
    }
    if (r->queryId != kQueryPage)
        return;
    std::vector<std::vector<std::string>> rows = r->rows;
    if (g_pageIsOlder) // asked newest first
        std::reverse(rows.begin(), rows.end());
    sendPage(rows);
}

void requestPage(const std::string& where, bool older, int limit = kPage)
{
    g_pageIsOlder = older;
    const std::string sql = "SELECT ts, sine, ramp, noise, step FROM history WHERE " + where + " ORDER BY ts "
        + (older ? "DESC" : "ASC") + " LIMIT " + std::to_string(limit);
    xDatabase::db_query(kDb, kQueryPage, sql.c_str(), true);
}

/** Head (m) of the pump at flow \a q (m3/h) and speed \a rpm: the affinity laws on one curve. */
double head(double q, double rpm)
{
    const double r = rpm / 1450.0;
    return std::max(0.0, 42 * r * r - 0.0035 * q * q);
}

/** The two speed curves over flows \a from..\a to, \a points points each. */
void sendPumpCurves(double from, double to, int points)
{
    std::vector<std::list<FPoint>> curves(2);
    for (int i = 0; i <= points; ++i) {
        const double q = from + (to - from) * i / points;
        curves[0].push_back(FPoint { q, head(q, 1450) });
        curves[1].push_back(FPoint { q, head(q, 1750) });
    }
    View_CurveXyUpdateData(kPump, { 0, 1 }, curves);
}

void buildPump(unsigned windowId)
{
    static View_CurveChannel curves[2] {};
    curves[0].pen = Pen { 0xFF2F6FD0u, 2, PEN_SOLID };
    curves[0].lineStyle = CURVE_LINE_PLAIN;
    curves[0].scatterShape = SCATTER_CIRCLE;
    curves[0].scatterSize = 5;
    curves[0].scatterColor = 0xFF2F6FD0u;
    curves[1] = curves[0];
    curves[1].pen.color = 0xFFD03A2Fu;
    curves[1].scatterColor = 0xFFD03A2Fu;
    View_CurveXy rec {};
    rec.rect = Rect { 656, 20, 344, 520 };
    rec.id = kPump;
    rec.plotBrush = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    for (View_CurveAxis* a : { &rec.xAxis, &rec.yAxis }) {
        a->basePen = Pen { 0xFF33414Fu, 1, PEN_SOLID };
        a->tickPen = a->basePen;
        a->subTickPen = a->basePen;
        a->tickLengthIn = 6;
        a->labelFont = &g_axisFont;
        a->gridPen = Pen { 0xFFD5DCE4u, 1, PEN_DOT };
        a->tickCount = 5;
    }
    rec.xAxis.upper = 120; // flow, m3/h
    rec.yAxis.upper = 70; // head, m
    rec.channels = curves;
    rec.channelCount = 2;
    rec.selectPen = Pen { 0xFF2F6FD0u, 1, PEN_DASH };
    rec.selectBrush = Brush { BRUSH_SOLID, 0x302F6FD0u, 0, 0 };
    View_CreateCurveXy(&rec, windowId);
    sendPumpCurves(0, 120, 12);
}

} // namespace

void start()
{
    if (g_started)
        return;
    g_started = true;
    std::system("mkdir -p demo-project");
    std::remove("demo-project/history.db");
    std::list<xDatabase::DbConnInfo> infos(1);
    infos.front().dbNo = kDb;
    infos.front().driver = "QSQLITE";
    infos.front().dbName = "demo-project/history.db";
    xDatabase::db_init(infos, onResult);
    // ten minutes of history before now, at the live rate
    std::list<std::string> setup { "CREATE TABLE history (ts TEXT PRIMARY KEY, sine REAL, ramp REAL, noise REAL,"
                                   " step REAL)" };
    const QDateTime now = QDateTime::currentDateTime();
    std::string insert;
    for (int i = 6000; i > 0; --i) {
        const QDateTime t = now.addMSecs(-qint64(i) * 100);
        double v[4];
        values(double(t.toMSecsSinceEpoch()) / 1000.0, v);
        char row[160];
        std::snprintf(row, sizeof(row), "%s('%s', %.3f, %.3f, %.3f, %.3f)", insert.empty() ? "" : ", ",
            timeText(t).c_str(), v[0], v[1], v[2], v[3]);
        insert += row;
        if (i % 500 == 1) {
            setup.push_back("INSERT INTO history VALUES " + insert);
            insert.clear();
        }
    }
    const xDatabase::DbQueryResult r = xDatabase::db_querySync(kDb, setup);
    if (r.errorType != 0)
        std::printf("demo: history table not made: %s\n", r.errorText.c_str());
}

void build(unsigned windowId)
{
    g_window = windowId;
    if (g_built) {
        View_SetWidgetParent(kChart, windowId);
        return;
    }
    g_built = true;
    static View_CurveChannel channels[4] {};
    const unsigned colours[4] = { 0xFFD03A2Fu, 0xFF2F6FD0u, 0xFF8A8F96u, 0xFF2E9E4Fu };
    for (int c = 0; c < 4; ++c) {
        channels[c].pen = Pen { colours[c], c == 2 ? 1 : 2, PEN_SOLID };
        channels[c].lineStyle = c == 3 ? CURVE_LINE_STEP_LEFT : CURVE_LINE_PLAIN;
    }
    channels[0].smooth = 1; // the sine drawn as a smooth curve
    View_CurveSample rec {};
    rec.rect = Rect { 24, 20, 620, 520 };
    rec.id = kChart;
    rec.xAxisMode = CURVE_X_TIME;
    rec.plotBrush = Brush { BRUSH_LINEAR, 0xFFFFFFFFu, 0xFFF1F4F8u, 90 };
    rec.interactions = CURVE_DRAG_X | CURVE_ZOOM_X;
    for (View_CurveAxis* a : { &rec.xAxis, &rec.yAxis }) {
        a->basePen = Pen { 0xFF33414Fu, 1, PEN_SOLID };
        a->tickPen = a->basePen;
        a->subTickPen = a->basePen;
        a->tickLengthIn = 6;
        a->subTickLengthIn = 3;
        a->labelFont = &g_axisFont;
        a->gridPen = Pen { 0xFFD5DCE4u, 1, PEN_DOT };
        a->subGridPen = Pen { 0xFFE9EDF2u, 1, PEN_DOT };
    }
    rec.xAxis.tickCount = 4;
    rec.xAxis.subTickCount = 4;
    rec.xAxis.lower = 0;
    rec.xAxis.upper = 60; // one minute across
    rec.yAxis.tickCount = 5;
    rec.yAxis.lower = 0;
    rec.yAxis.upper = 100;
    rec.channels = channels;
    rec.channelCount = 4;
    rec.cursorPen = Pen { 0xFF6A4FB3u, 1, PEN_DASH };
    rec.settingButton = 1;
    rec.restoreButton = 1;
    rec.doubleScale = 1; // the scale on both sides: the panel is read from either end of the line
    View_CreateCurveSample(&rec, windowId);
    double limits[2] = { 0, 100 };
    View_CurveSampleUpdateDataLimit(kChart, 11, 0, limits); // plain numbers, no decimals
    // the cursor window names the channels; a tap on the plot moves the cursor to the nearest sample
    View_CurveSampleShowCursor(kChart, "", { { 0, "Sine\t%" }, { 1, "Ramp\t%" }, { 2, "Noise\t%" }, { 3, "Step\t%" } });
    // the last minute from the history, so that the chart opens full
    const xDatabase::DbQueryResult r = xDatabase::db_querySync(kDb,
        "SELECT ts, sine, ramp, noise, step FROM (SELECT * FROM history ORDER BY ts DESC LIMIT 600) ORDER BY ts", true);
    std::vector<std::string> labels;
    std::vector<std::vector<double>> v(4);
    for (const auto& row : r.rows) {
        if (row.size() < 5)
            continue;
        labels.push_back(row[0]);
        for (int c = 0; c < 4; ++c)
            v[size_t(c)].push_back(std::atof(row[size_t(c) + 1].c_str()));
    }
    View_CurveSamplePushData(kChart, labels, v);
    buildPump(windowId);
}

void sample()
{
    const QDateTime now = QDateTime::currentDateTime();
    double v[4];
    values(double(now.toMSecsSinceEpoch()) / 1000.0, v);
    const std::string ts = timeText(now);
    char sql[200];
    std::snprintf(sql, sizeof(sql), "INSERT INTO history VALUES ('%s', %.3f, %.3f, %.3f, %.3f)", ts.c_str(), v[0],
        v[1], v[2], v[3]);
    if (g_started)
        xDatabase::db_query(kDb, kQueryInsert, sql, false);
    if (g_built)
        View_CurveSamplePushData(kChart, { ts }, { { v[0] }, { v[1] }, { v[2] }, { v[3] } });
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id == kPump) {
        if (code == EVT_CURVE_XY_SELECT) { // the operator zoomed in: the curves again, finer, over that flow range
            const auto* r = static_cast<const View_EvtXyRect*>(data);
            std::printf("demo: pump zoom to flow %.1f..%.1f m3/h, head %.1f..%.1f m\n", r->left, r->right, r->bottom,
                r->top);
            sendPumpCurves(std::max(0.0, r->left), std::max(r->left, r->right), 24);
        } else if (code == EVT_CURVE_XY_RESTORE) {
            sendPumpCurves(0, 120, 12);
        }
        return true;
    }
    if (id != kChart)
        return false;
    switch (code) {
    case EVT_CURVE_PRELOAD: { // older than what is shown: the first time, older than the live data
        const std::string before = g_from.empty() ? timeText(QDateTime::currentDateTime().addSecs(-60)) : g_from;
        requestPage("ts < '" + before + "'", true);
        break;
    }
    case EVT_CURVE_NEXTLOAD:
        if (!g_to.empty())
            requestPage("ts > '" + g_to + "'", false);
        break;
    case EVT_CURVE_SEARCH: {
        const auto* s = static_cast<const View_EvtCurveSearch*>(data);
        if (s && s->state == CURVE_SEARCHING) { // a confirmed or restored search: its span from the table
            const std::string from = s->start && *s->start ? s->start : "0000";
            const std::string to = s->end && *s->end ? std::string(s->end) + ".999" : "9999";
            requestPage("ts BETWEEN '" + from + "' AND '" + to + "'", false, 6000);
        } else {
            g_from.clear();
            g_to.clear();
        }
        break;
    }
    default:
        break;
    }
    return true;
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    switch (n) {
    case 0:
        shot("20-trend");
        return true;
    case 1: // the operator drags the chart to the right, into older samples
        OperatorTouch::dragWidget(kChart, 300, 260, 900, 260);
        return true;
    case 3:
        shot("21-trend-history");
        return true;
    case 4: // back to real time with a double tap
        OperatorTouch::touchWidget(kChart, 500, 260);
        OperatorTouch::touchWidget(kChart, 500, 260);
        return true;
    case 6: // the search dialog, confirmed with both ends open: the history from its oldest sample
        OperatorTouch::touchItem("settingBtn");
        return true;
    case 7:
        shot("22-trend-search");
        return true;
    case 8:
        OperatorTouch::touchItem("okButton");
        return true;
    case 10:
        shot("23-trend-searched");
        return true;
    case 11:
        View_CurveSampleResumeRealMode(kChart);
        // three wheel notches over the newest samples: the chart zooms in about the pointer
        OperatorTouch::wheelWidget(kChart, 600, 200, 3);
        return true;
    case 12: // a tap a little left of the middle: the cursor and its window move there
        OperatorTouch::touchWidget(kChart, 250, 300);
        return true;
    case 13:
        shot("24-trend-zoomed");
        return true;
    case 14: // a rectangle dragged on the pump chart, around the working range
        OperatorTouch::dragWidget(kPump, 120, 60, 260, 300);
        return true;
    case 16:
        shot("25-pump-zoomed");
        return true;
    case 2:
    case 5:
    case 9:
    case 15:
        return true;
    default:
        return false;
    }
}

} // namespace TrendScreen

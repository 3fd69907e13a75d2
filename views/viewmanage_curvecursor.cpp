// The cursor of the sample curve charts: the line (a tap on the plot moves it to
// the nearest sample) and the window beside it, which the chart fills with each
// channel's value at the cursor; the logic layer names the channels and may
// replace the window's title, heads and cells.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/tablesetup.h"
#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/xcpaxis.h"

using GuiQtAdapt::Core;

int ViewManage::View_CurveEnableCursor(unsigned int id, bool enable)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return -1;
    chart->setCursorEnabled(enable);
    return 0;
}

int ViewManage::View_CurveSampleShowCursor(
    unsigned int id, const std::string& title, const std::vector<std::pair<unsigned short, std::string>>& rows)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart || !chart->cursorWindow())
        return -1;
    // each row names a channel: "name" or "name<TAB>unit"
    QStringList names;
    QStringList units;
    for (const auto& row : rows) {
        if (row.first >= CurveSampleChart::kMaxChannels)
            continue;
        while (names.size() <= row.first) {
            names.append(QString());
            units.append(QString());
        }
        const QString text = Core::cutText(Core::fromUtf8(row.second.c_str()), 256);
        names[row.first] = text.section(QLatin1Char('\t'), 0, 0);
        units[row.first] = text.section(QLatin1Char('\t'), 1, 1);
    }
    chart->setChannelNames(names, units);
    if (!chart->cursorLineDataInited())
        chart->moveCursorTo(chart->xAxis() ? chart->xAxis()->range().center() : 0);
    chart->setCursorEnabled(true);
    chart->fillCursorWindow();
    // the window follows new samples until the logic layer writes it
    chart->setCursorContentFromLogic(!title.empty());
    if (!title.empty())
        chart->cursorWindow()->setTitle(Core::cutText(Core::fromUtf8(title.c_str()), 256));
    return 0;
}

int ViewManage::View_CurveUpdateCursorContent(
    unsigned int id, const char* title, const std::vector<std::vector<View_ListColData>>& rows)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart || !chart->cursorWindow())
        return -1;
    chart->setCursorContentFromLogic(true);
    if (title)
        chart->cursorWindow()->setTitle(Core::cutText(Core::fromUtf8(title), 256));
    chart->cursorWindow()->setRows(TableSetup::toPage(rows, CurveCursor::kMaxColumns));
    return 0;
}

int ViewManage::View_CurveUpdateCursorParams(
    unsigned int id, const std::vector<View_Text>& heads, const std::vector<Font*>& fonts)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart || !chart->cursorWindow())
        return -1;
    QStringList texts;
    for (const View_Text& head : heads)
        texts.append(Core::cutText(Core::fromUtf8(head.text), 256));
    QVector<QFont> columnFonts;
    for (const Font* font : fonts)
        columnFonts.append(Core::toQFont(font));
    chart->cursorWindow()->setHeads(texts);
    chart->cursorWindow()->setColumnFonts(columnFonts);
    return 0;
}

int ViewManage::View_CurveUpdateCursorTitle(unsigned int id, const View_Text& title)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart || !chart->cursorWindow())
        return -1;
    chart->setCursorContentFromLogic(true);
    chart->cursorWindow()->setTitle(Core::cutText(Core::fromUtf8(title.text), 256));
    return 0;
}

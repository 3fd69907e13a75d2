// Alarm bar benchmarks on a real panel (run under Xvfb): a table bar and a
// marquee bar of 50 alarms stepped one pixel per cycle through
// View_CarouselText, the frame time of each step, against the same texts as
// plain Qt Quick items (two copies of Rectangle + Text rows or cells, moved
// the same way) in the same window and the same run.
#include "benchframe.h"
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"

#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>

#include <string>
#include <vector>

namespace {

const int kAlarms = 50;

/** The plain side: two copies of the alarms as rows (vertical) or cells (horizontal). */
QQuickItem* plainBand(QQmlEngine* engine, QQuickItem* parent, bool vertical, const QStringList& texts)
{
    engine->rootContext()->setContextProperty(QStringLiteral("alarmTexts"), texts);
    QQmlComponent component(engine);
    const QByteArray layout = vertical ? "Column" : "Row";
    component.setData("import QtQuick 2.15\n"
                      "Item { clip: true; property real pos: 0\n"
                      "  property alias first: a; property alias second: b\n"
                      "  " + layout + " { id: a; Repeater { model: alarmTexts; delegate: Rectangle {\n"
                      "    width: " + (vertical ? "500" : "t.implicitWidth + 20") + "; height: 28;"
                      " color: index % 2 ? '#f1f4f8' : 'white'\n"
                      "    Text { id: t; x: 10; height: 28; verticalAlignment: Text.AlignVCenter; font.pixelSize: 16;"
                      " text: modelData } } } }\n"
                      "  " + layout + " { id: b; Repeater { model: alarmTexts; delegate: Rectangle {\n"
                      "    width: " + (vertical ? "500" : "t2.implicitWidth + 20") + "; height: 28;"
                      " color: index % 2 ? '#f1f4f8' : 'white'\n"
                      "    Text { id: t2; x: 10; height: 28; verticalAlignment: Text.AlignVCenter; font.pixelSize: 16;"
                      " text: modelData } } } } }\n",
        QUrl());
    auto* item = qobject_cast<QQuickItem*>(component.create());
    if (item)
        item->setParentItem(parent);
    else
        qWarning("%s", qPrintable(component.errorString()));
    return item;
}

/** One plain step: both copies moved, the band closed again after a whole copy. */
void plainStep(QQuickItem* band, bool vertical, qreal& pos)
{
    auto* a = band->property("first").value<QQuickItem*>();
    auto* b = band->property("second").value<QQuickItem*>();
    const qreal size = vertical ? a->height() : a->width();
    pos -= 1;
    if (pos <= -size)
        pos += size;
    if (vertical) {
        a->setY(pos);
        b->setY(pos + size);
    } else {
        a->setX(pos);
        b->setX(pos + size);
    }
}

} // namespace

int main(int argc, char** argv)
{
    Bench::noVsync(); // frame times, not the display's refresh
    GuiApplication app(argc, argv);
    PanelFixture panel;
    const unsigned A = PanelFixture::wid(1, 1);
    if (!Bench::openPanel(panel, QSize(1024, 600), A))
        return 1;
    QQuickView* view = panel.view();
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindow(A);
    QQmlEngine* engine = ViewManage::getInstance()->getQmlEngine();

    std::vector<std::string> times, texts;
    QStringList plainTexts;
    for (int i = 0; i < kAlarms; ++i) {
        times.push_back("14:" + std::to_string(10 + i % 50) + ":00");
        texts.push_back("Alarm " + std::to_string(i) + ": conveyor " + std::to_string(i % 7) + " stopped");
        plainTexts << QString::fromStdString(times.back() + "  " + texts.back());
    }
    std::vector<std::vector<View_ListColData>> page;
    for (int i = 0; i < kAlarms; ++i)
        page.push_back({ { times[size_t(i)].c_str(), nullptr, nullptr, 0, 0 },
            { texts[size_t(i)].c_str(), nullptr, nullptr, 0, 0 } });

    Font font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF1C2733u, 0 };
    View_ListColumn cols[2] = { { "Time", 90, 0, COL_TIME, nullptr, 0, 0 }, { "Alarm", 0, 0, COL_STRING, nullptr, 0, 0 } };
    auto makeBar = [&](unsigned id, int direction, Rect r) {
        View_listAlarmBar rec {};
        rec.list.rect = r;
        rec.list.id = id;
        rec.list.columns = cols;
        rec.list.columnCount = 2;
        rec.list.flags = (unsigned(direction) << CAROUSE_DIR_SHIFT) | LIST_HIDE_HEADER;
        rec.list.rowHeight = 28;
        rec.list.contentFont = &font;
        rec.list.headerFont = &font;
        rec.list.backColor = 0xFFFFFFFFu;
        rec.list.altBackColor = 0xFFF1F4F8u;
        rec.colSpace = 10;
        View_CreateListAlarmBar(&rec, A);
        View_ChangeListCtrlContent(id, page);
    };

    for (bool vertical : { true, false }) {
        const unsigned id = vertical ? 10 : 11;
        const Rect ourBox = vertical ? Rect { 0, 0, 500, 280 } : Rect { 0, 0, 1024, 28 };
        makeBar(id, vertical ? 0 : 2, ourBox);
        QQuickItem* band = plainBand(engine, window, vertical, plainTexts);
        if (!band)
            return 1;
        band->setPosition(vertical ? QPointF(510, 0) : QPointF(0, 300));
        band->setSize(vertical ? QSizeF(500, 280) : QSizeF(1024, 28));
        Bench::settleFrames(view);
        std::vector<double> o, b, call;
        qreal pos = 0;
        QElapsedTimer t;
        for (int i = 0; i < 200; ++i) {
            o.push_back(Bench::toFrame(view, [&] {
                t.start();
                View_CarouselText(id, vertical ? 0 : -1, vertical ? -1 : 0);
                call.push_back(t.nsecsElapsed() / 1e3);
            }));
            b.push_back(Bench::toFrame(view, [&] { plainStep(band, vertical, pos); }));
        }
        const std::string what = vertical ? "table bar" : "marquee bar";
        Bench::report("frame while a " + what + " of 50 alarms steps 1 px vs plain items", Bench::median(o),
            Bench::median(b), "ms", "<= 1.3");
        Bench::note("View_CarouselText on a " + what + " of 50 alarms, the call alone", Bench::median(call), "us");
        View_DeleteWidgets({ id });
        delete band;
    }
    return 0;
}

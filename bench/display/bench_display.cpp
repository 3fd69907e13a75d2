// Display widget benchmarks on a real panel (run under Xvfb), each against plain
// Qt Quick items doing the same in the same run:
//  - a screen of 200 widgets (120 tanks that fill and turn, 40 bars, 40
//    meters) all changed every 10 ms cycle: the GUI thread's time for the
//    changes, and the time until the frame that shows them, against
//    Rectangles (a clipped child for the fill, a rotation), Rectangle bars and
//    a rotated needle with the same 300 ms swing;
//  - the creation of 500 shapes through the interface up to the frame that
//    shows them, against 500 Rectangles from one QML component;
//  - an idle screen of 20 flowing pipelines: the GUI thread's share of one
//    core over three seconds, against 20 plain QML animations of the same
//    marks (a row of arrow heads sliding inside a clipped pipe).
#include "benchframe.h"
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"

#include <QElapsedTimer>
#include <QTest>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <sys/resource.h>

#include <cmath>
#include <vector>

namespace {

const unsigned A = PanelFixture::wid(1, 1);

double threadCpuMs()
{
    rusage u {};
    getrusage(RUSAGE_THREAD, &u);
    return u.ru_utime.tv_sec * 1e3 + u.ru_utime.tv_usec / 1e3 + u.ru_stime.tv_sec * 1e3 + u.ru_stime.tv_usec / 1e3;
}

/** The GUI thread's share of one core (percent) while the event loop runs for \a ms. */
double idleShare(int ms)
{
    QElapsedTimer wall;
    const double cpu0 = threadCpuMs();
    wall.start();
    QTest::qWait(ms);
    return 100.0 * (threadCpuMs() - cpu0) / double(wall.elapsed());
}

QQuickItem* create(QQmlEngine* engine, QQuickItem* parent, const QByteArray& qml)
{
    QQmlComponent c(engine);
    c.setData("import QtQuick 2.15\nimport QtQuick.Shapes 1.15\n" + qml, QUrl());
    auto* item = qobject_cast<QQuickItem*>(c.create());
    if (!item) {
        qWarning("%s", qPrintable(c.errorString()));
        return nullptr;
    }
    item->setParentItem(parent);
    return item;
}

} // namespace

int main(int argc, char** argv)
{
    Bench::noVsync();
    GuiApplication app(argc, argv);
    PanelFixture panel;
    if (!Bench::openPanel(panel, QSize(1024, 600), A, 0xFFF0F0F0u))
        return 1;
    QQuickWindow* view = panel.view();
    QQmlEngine* engine = panel.view()->engine();
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindow(A);
    const Font font { nullptr, 10, 400, 0, 0, 0, 0, 0xFF202020u, 0 };

    // ---- 200 widgets changed every cycle
    {
        unsigned id = 1000;
        static const Point star[] = { { 20, 0 }, { 26, 14 }, { 40, 20 }, { 26, 26 }, { 20, 40 }, { 14, 26 }, { 0, 20 },
            { 14, 14 } };
        for (int i = 0; i < 120; ++i) {
            const int x = (i % 20) * 50, y = (i / 20) * 50;
            View_GraphRect r { 0, Rect { x + 2, y + 2, 44, 44 }, id++, Pen { 0xFF33414Fu, 2, PEN_SOLID },
                Brush { BRUSH_SOLID, 0xFFE0E6ECu, 0, 0 }, 6 };
            View_CreateGraphRect(&r, A);
            View_GraphPolygon p { 0, Rect { x + 5, y + 5, 40, 40 }, id++, Pen { 0xFF1F5FAFu, 1, PEN_SOLID },
                Brush { BRUSH_SOLID, 0xFF5B8FD6u, 0, 0 }, star, 8 };
            View_CreateGraphPolygon(&p, A);
        }
        for (int i = 0; i < 40; ++i) {
            View_Bar b {};
            b.rect = Rect { (i % 20) * 50 + 2, 300 + (i / 20) * 60, 44, 56 };
            b.id = id++;
            b.barCount = 1;
            b.background = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
            b.border = Pen { 0xFF808080u, 1, PEN_SOLID };
            View_CreateBar(&b, A);
        }
        for (int i = 0; i < 40; ++i) {
            View_Meter m {};
            m.rect = Rect { (i % 20) * 50 + 2, 420 + (i / 20) * 60, 56, 56 };
            m.id = id++;
            m.startAngle = 225;
            m.spanAngle = -270;
            m.maximum = 100;
            m.dialBrush = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
            m.scalePen = Pen { 0xFF33414Fu, 1, PEN_SOLID };
            m.majorCount = 5;
            m.minorCount = 1;
            m.font = &font;
            m.needlePen = Pen { 0xFFD03A2Fu, 2, PEN_SOLID };
            View_CreateMeter(&m, A);
        }
        Bench::settleFrames(view);
        int cycle = 0;
        auto ours = [&] {
            ++cycle;
            unsigned i = 1000;
            for (int k = 0; k < 120; ++k, i += 2) {
                View_FillWidget(i, BAR_UP, (cycle * 3 + k * 7) % 100, 100, Brush { BRUSH_SOLID, 0xFF2F6FD0u, 0, 0 });
                View_RotateWidget(i + 1, cycle * 5 + k, 4);
            }
            char text[16];
            for (int k = 0; k < 40; ++k, ++i) {
                std::snprintf(text, sizeof(text), "%d", (cycle * 2 + k * 11) % 100);
                View_BarUpdateVar(i, 0, text, Brush { BRUSH_SOLID, 0xFF2E9E4Fu, 0, 0 });
            }
            for (int k = 0; k < 40; ++k, ++i)
                View_MeterUpdateVal(i, (cycle * 4 + k * 13) % 100);
        };
        std::vector<double> oursCpu, oursFrame;
        for (int r = 0; r < 60; ++r) {
            oursCpu.push_back(Bench::medianMs(1, ours));
            oursFrame.push_back(Bench::toFrame(view, ours));
        }
        std::list<unsigned> ids;
        for (unsigned k = 1000; k < id; ++k)
            ids.push_back(k);
        View_DeleteWidgets(ids);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        // the same screen in plain Qt Quick items
        QQuickItem* root = create(engine, window,
            "Item { width: 1024; height: 600\n"
            " Repeater { model: 120; Rectangle { property real level: 0; x: (index % 20) * 50 + 2;"
            "  y: Math.floor(index / 20) * 50 + 2; width: 44; height: 44; radius: 6; color: '#e0e6ec';"
            "  border.color: '#33414f'; border.width: 2; clip: true; antialiasing: true\n"
            "  Rectangle { width: parent.width; height: parent.height * parent.level; y: parent.height - height;"
            "   color: '#2f6fd0' }\n"
            "  Shape { x: 3; y: 3; width: 40; height: 40; rotation: 0; antialiasing: true\n"
            "   ShapePath { strokeColor: '#1f5faf'; fillColor: '#5b8fd6'; startX: 20; startY: 0\n"
            "    PathPolyline { path: [Qt.point(20,0), Qt.point(26,14), Qt.point(40,20), Qt.point(26,26),"
            "     Qt.point(20,40), Qt.point(14,26), Qt.point(0,20), Qt.point(14,14), Qt.point(20,0)] } } } } }\n"
            " Repeater { model: 40; Rectangle { property real level: 0; x: (index % 20) * 50 + 2;"
            "  y: 300 + Math.floor(index / 20) * 60; width: 44; height: 56; color: 'white'; border.color: 'gray'\n"
            "  Rectangle { x: 6; width: parent.width - 12; height: (parent.height - 2) * parent.level;"
            "   y: parent.height - 1 - height; color: '#2e9e4f' } } }\n"
            " Repeater { model: 40; Rectangle { property real value: 0; x: (index % 20) * 50 + 2;"
            "  y: 420 + Math.floor(index / 20) * 60; width: 56; height: 56; radius: 28; color: 'white';"
            "  border.color: '#33414f'; antialiasing: true\n"
            "  Rectangle { x: 28; y: 27; width: 22; height: 2; color: '#d03a2f'; antialiasing: true;"
            "   transformOrigin: Item.Left; rotation: -(225 - 2.7 * parent.value)\n"
            "   Behavior on rotation { NumberAnimation { duration: 300; easing.type: Easing.OutCubic } } } } } }");
        if (!root)
            return 1;
        QList<QQuickItem*> tanks, bars, meters;
        for (QQuickItem* child : root->childItems()) {
            if (child->width() == 44 && child->height() == 44)
                tanks.append(child);
            else if (child->width() == 44)
                bars.append(child);
            else if (child->width() == 56)
                meters.append(child);
        }
        Bench::settleFrames(view);
        cycle = 0;
        auto base = [&] {
            ++cycle;
            for (int k = 0; k < tanks.size(); ++k) {
                tanks[k]->setProperty("level", ((cycle * 3 + k * 7) % 100) / 100.0);
                tanks[k]->childItems().last()->setRotation(cycle * 5 + k);
            }
            for (int k = 0; k < bars.size(); ++k)
                bars[k]->setProperty("level", ((cycle * 2 + k * 11) % 100) / 100.0);
            for (int k = 0; k < meters.size(); ++k)
                meters[k]->setProperty("value", (cycle * 4 + k * 13) % 100);
        };
        std::vector<double> baseCpu, baseFrame;
        for (int r = 0; r < 60; ++r) {
            baseCpu.push_back(Bench::medianMs(1, base));
            baseFrame.push_back(Bench::toFrame(view, base));
        }
        Bench::report("200 widgets changed in one cycle: GUI thread time vs plain Qt Quick", Bench::median(oursCpu),
            Bench::median(baseCpu), "ms", "<= 1.3");
        Bench::report("200 widgets changed in one cycle: time to the frame vs plain Qt Quick",
            Bench::median(oursFrame), Bench::median(baseFrame), "ms", "<= 1.3");
        delete root;
        Bench::settleFrames(view);
    }

    // ---- creation of 500 shapes
    {
        std::vector<double> oursMs, baseMs;
        QQmlComponent rectangle(engine);
        rectangle.setData("import QtQuick 2.15\nRectangle { width: 40; height: 30; radius: 4; color: '#d03a2f';"
                          " border.color: 'black'; border.width: 2; antialiasing: true }",
            QUrl());
        for (int r = 0; r < 5; ++r) {
            oursMs.push_back(Bench::toFrame(view, [&] {
                for (int i = 0; i < 500; ++i) {
                    View_GraphRect rec { 0, Rect { (i % 25) * 40, (i / 25) * 30, 40, 30 }, unsigned(5000 + i),
                        Pen { 0xFF000000u, 2, PEN_SOLID }, Brush { BRUSH_SOLID, 0xFFD03A2Fu, 0, 0 }, 4 };
                    View_CreateGraphRect(&rec, A);
                }
            }));
            std::list<unsigned> ids;
            for (unsigned i = 0; i < 500; ++i)
                ids.push_back(5000 + i);
            View_DeleteWidgets(ids);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Bench::settleFrames(view);
            std::vector<QQuickItem*> made;
            baseMs.push_back(Bench::toFrame(view, [&] {
                for (int i = 0; i < 500; ++i) {
                    auto* item = qobject_cast<QQuickItem*>(rectangle.create());
                    item->setPosition(QPointF((i % 25) * 40, (i / 25) * 30));
                    item->setParentItem(window);
                    made.push_back(item);
                }
            }));
            qDeleteAll(made);
            Bench::settleFrames(view);
        }
        Bench::report("create 500 shapes up to their frame vs 500 QML Rectangles", Bench::median(oursMs),
            Bench::median(baseMs), "ms", "<= 1.5");
    }

    // ---- 20 flowing pipelines, nothing else happening
    {
        static const Point route[] = { { 10, 12 }, { 400, 12 } };
        for (int i = 0; i < 20; ++i) {
            View_Pipeline p {};
            p.rect = Rect { 20 + (i % 2) * 500, 20 + (i / 2) * 28, 420, 24 };
            p.id = unsigned(6000 + i);
            p.points = route;
            p.pointCount = 2;
            p.width = 20;
            p.pipe = Brush { BRUSH_SOLID, 0xFF9AA5B1u, 0, 0 };
            p.border = Pen { 0xFF4A5561u, 1, PEN_SOLID };
            p.flowShape = FLOW_ARROW;
            p.flowColor = 0xFFFFFFFFu;
            p.flowrate = 60;
            View_CreatePipeline(&p, A);
        }
        Bench::settleFrames(view);
        idleShare(500);
        const double ours = idleShare(3000);
        std::list<unsigned> ids;
        for (unsigned i = 0; i < 20; ++i)
            ids.push_back(6000 + i);
        View_DeleteWidgets(ids);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QQuickItem* root = create(engine, window,
            "Item { width: 1024; height: 600\n"
            " Repeater { model: 20; Rectangle { x: 20 + (index % 2) * 500; y: 20 + Math.floor(index / 2) * 28 + 2;"
            "  width: 400; height: 20; color: '#9aa5b1'; border.color: '#4a5561'; clip: true\n"
            "  Row { id: marks; y: 4; spacing: 12; x: 0\n"
            "   NumberAnimation on x { from: -24; to: 0; duration: 400; loops: Animation.Infinite }\n"
            "   Repeater { model: 18; Shape { width: 12; height: 12; antialiasing: true\n"
            "    ShapePath { strokeColor: 'transparent'; fillColor: 'white'; startX: 0; startY: 0\n"
            "     PathLine { x: 12; y: 6 } PathLine { x: 0; y: 12 } PathLine { x: 0; y: 0 } } } } } } } }");
        if (!root)
            return 1;
        Bench::settleFrames(view);
        idleShare(500);
        const double base = idleShare(3000);
        Bench::report("20 flowing pipelines, idle screen: GUI thread share of a core vs 20 QML animations", ours,
            base, "%", "<= 1.2, ours < 5 %");
        delete root;
    }
    return 0;
}

// One start-up measured in a fresh process (one application object per
// process): "ours" runs View_MainThreadLoop up to the first frame of the
// panel; "bare" shows an empty scene in a plain QQuickView with the same
// multisampled surface format. Prints the time
// from process entry to the first swapped frame in milliseconds.
#include "app/guiapplication.h"
#include "app/xquickview.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QSurfaceFormat>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstring>

#include <qgui/view.h>

namespace {
std::chrono::steady_clock::time_point g_t0;
double g_firstFrameMs = -1;

double sinceStart()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - g_t0).count();
}

int onStart()
{
    // the view exists by now; quit at its first frame
    QTimer::singleShot(0, [] {
        XQuickView* view = GuiApplication::instance()->view();
        QObject::connect(view, &QQuickWindow::frameSwapped, qApp, [] {
            if (g_firstFrameMs < 0) {
                g_firstFrameMs = sinceStart();
                QCoreApplication::quit();
            }
        });
    });
    return 0;
}
} // namespace

int main(int argc, char** argv)
{
    g_t0 = std::chrono::steady_clock::now();
    const bool ours = argc > 1 && std::strcmp(argv[1], "ours") == 0;
    if (ours) {
        _Main_CallBacks cb {};
        cb.start = onStart;
        char* args[] = { argv[0], nullptr };
        View_MainThreadLoop(1, args, &cb);
    } else {
        // the same multisampled surface the panel asks for, so only the start-up work differs
        if (const int samples = GuiApplication::antialiasingSamples(); samples > 0) {
            QSurfaceFormat format = QSurfaceFormat::defaultFormat();
            format.setSamples(samples);
            QSurfaceFormat::setDefaultFormat(format);
        }
        QGuiApplication app(argc, argv);
        QQuickView view;
        QObject::connect(&view, &QQuickWindow::frameSwapped, &app, [] {
            if (g_firstFrameMs < 0) {
                g_firstFrameMs = sinceStart();
                QCoreApplication::quit();
            }
        });
        auto* root = new QQuickItem;
        root->setSize({ 1024, 600 });
        root->setParentItem(view.contentItem());
        view.resize(1024, 600);
        view.show();
        app.exec();
    }
    std::printf("%.3f\n", g_firstFrameMs);
    return 0;
}

// PDF view benchmark on a real panel: a 200-page manual opened through the interface
// (View_CreatePdf, fit width) until its first page's picture is on the GUI thread, and until the
// frame that shows it, against a bare QPdfDocument::load + render of that page at the same size in
// the same run. The bare work shows nothing: the frame (texture upload and drawing, in software
// under Xvfb) is ours alone; "a frame with nothing new" tells what one costs on this machine.
#include "benchframe.h"
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xpdfview.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPdfDocument>
#include <QTemporaryDir>
#include <QTimer>

#include <qgui/view.h>

#include <list>
#include <string>
#include <vector>

namespace {

const unsigned A = PanelFixture::wid(1, 1);

/** A table long enough for \a pages A4 pages. */
bool writeManual(const QString& path, int pages)
{
    std::vector<std::vector<std::string>> rows;
    for (int i = 0; i < pages * 45; ++i)
        rows.push_back({ std::to_string(i + 1), "Check the filler nozzle " + std::to_string(i % 12) + " seal",
            "每班检查一次", "Maintenance, chapter " + std::to_string(i / 400 + 1) });
    return View_CreatePdfWriter(1, path.toUtf8().constData()) == 0
        && View_Write2Pdf(1, { "Step", "Action", "周期", "Reference" }, rows, false) == 0 && View_ClosePdfWriter(1) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    Bench::noVsync();
    GuiApplication app(argc, argv);
    PanelFixture panel;
    if (!Bench::openPanel(panel, QSize(1024, 600), A))
        return 1;
    QTemporaryDir dir;
    const QString manual = dir.filePath(QStringLiteral("manual.pdf"));
    if (!writeManual(manual, 200))
        return 1;
    const QByteArray path = manual.toUtf8();

    // ours: from the call to the frame that shows page 1, each time from a panel at rest
    unsigned id = 100;
    std::vector<double> toPicture, toFrame;
    QSize pageSize;
    int pages = 0;
    for (int repeat = 0; repeat < 7; ++repeat) {
        View_Pdf rec {};
        rec.rect = Rect { 0, 0, 800, 600 };
        rec.id = ++id;
        rec.path = path.constData();
        rec.displayMode = PDF_FIT_WIDTH;
        QEventLoop loop;
        QElapsedTimer clock;
        clock.start();
        View_CreatePdf(&rec, A);
        auto* view = qobject_cast<XPdfView*>(ViewManage::getInstance()->getItemById(id));
        if (!view)
            return 1;
        QMetaObject::Connection shown;
        QObject::connect(view, &XPdfView::pageShown, &loop, [&] {
            toPicture.push_back(clock.nsecsElapsed() / 1e6);
            shown = QObject::connect(panel.view(), &QQuickWindow::frameSwapped, &loop, [&] {
                toFrame.push_back(clock.nsecsElapsed() / 1e6);
                loop.quit();
            });
        });
        QTimer::singleShot(30000, &loop, &QEventLoop::quit);
        loop.exec();
        QObject::disconnect(shown);
        pageSize = view->pageRect(0).size().toSize();
        pages = view->pageCount();
        View_DeleteWidgets(std::list<unsigned> { id });
        Bench::settleFrames(panel.view());
    }
    const double oursMs = Bench::median(toFrame);
    std::vector<double> idleFrame;
    for (int repeat = 0; repeat < 7; ++repeat)
        idleFrame.push_back(Bench::toFrame(panel.view(), [&] { panel.view()->update(); }));

    const double bareMs = Bench::medianMs(7, [&] {
        QPdfDocument document;
        document.load(manual);
        const QImage image = document.render(0, pageSize);
        Q_UNUSED(image)
    });
    Bench::note("manual pages", pages, "pages");
    Bench::note("a frame of the panel with nothing new", Bench::median(idleFrame), "ms");
    Bench::report("open a 200-page PDF, page 1 ready to draw on the GUI thread vs bare QPdfDocument load + render",
        Bench::median(toPicture), bareMs, "ms", "<= 1.2");
    Bench::report("open a 200-page PDF and show page 1 (its frame on screen) vs bare QPdfDocument load + render",
        oursMs, bareMs, "ms", "<= 1.2");
    return 0;
}

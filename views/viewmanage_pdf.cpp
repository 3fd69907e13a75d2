// PDF view (pages rendered off the GUI thread), PDF writer (tables into a file) and the export of
// the logic layer's own files.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "platform/nlogger.h"
#include "utils/pdftablewriter.h"
#include "views/lifecyclemanager.h"
#include "views/pdfwriterstate.h"
#include "xcomponents/qquick/xpdfview.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QFileInfo>

#include <QThreadPool>

using GuiQtAdapt::Core;

namespace {

const QUrl kToolBarUrl(QStringLiteral("qrc:/pdf/QmlPdfToolBar.qml"));

XPdfView* pdfView(const LifeCycleManager& registry, unsigned int id)
{
    return qobject_cast<XPdfView*>(registry.findItemMaybeVisible(id));
}

} // namespace

int ViewManage::View_ClosePdfWriter(unsigned int id)
{
    return m_pdfWriters->close(id) ? 0 : -1; // a writer closed twice: -1 the second time
}

int ViewManage::View_CreatePdf(const View_Pdf* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* view = new XPdfView(window);
    view->setDisplayMode(rec->displayMode); // unknown modes: a single page
    view->setZoom(int(qMin<U32>(rec->zoom, XPdfView::kMaxZoom)));
    if (rec->showToolBar) {
        QQuickItem* bar = XQmlComponentManage::getInstance()->createItem(
            kToolBarUrl, view, { { QStringLiteral("view"), QVariant::fromValue(view) } });
        if (bar)
            bar->setParent(view); // deleted with the view
    }
    placeWidget(view, rec, windowId);
    // the file opens on the render thread; 2561 reports how it went
    view->setSource(Core::fromUtf8(rec->path), int(qMin<U32>(rec->page, INT_MAX)));
    return 0;
}

int ViewManage::View_CreatePdfWriter(unsigned int id, const char* path)
{
    return m_pdfWriters->open(id, Core::fromUtf8(path)) ? 0 : -1;
}

int ViewManage::View_Export2File(void* context, std::function<void(void*)> work)
{
    // the logic layer's own file export: run on the global pool, never on the GUI thread
    if (!work)
        return -1;
    QThreadPool::globalInstance()->start([this, context, work = std::move(work)]() {
        work(context);
        QMetaObject::invokeMethod(this, [] { NLog::NLogger::instance()->logger()->info("export finished"); },
            Qt::QueuedConnection);
    });
    return 0;
}

int ViewManage::View_PdfSetDisplayMode(unsigned int id, int mode)
{
    XPdfView* view = pdfView(*m_lifeCycle, id);
    return view && view->setDisplayMode(mode) ? 0 : -1;
}

int ViewManage::View_PdfSwitchPage(unsigned int id, unsigned int page)
{
    XPdfView* view = pdfView(*m_lifeCycle, id);
    return view && page <= unsigned(INT_MAX) && view->switchPage(int(page)) ? 0 : -1;
}

int ViewManage::View_PdfUpdateFile(unsigned int id, const char* path)
{
    XPdfView* view = pdfView(*m_lifeCycle, id);
    if (!view)
        return -1;
    const QString file = Core::fromUtf8(path);
    if (!file.isEmpty() && !QFileInfo(file).isFile())
        return -1; // nothing there: the document shown stays
    view->setSource(file);
    return 0;
}

int ViewManage::View_PdfZoom(unsigned int id, unsigned int percent)
{
    XPdfView* view = pdfView(*m_lifeCycle, id);
    if (!view)
        return -1;
    view->setZoom(int(qMin<unsigned>(percent, XPdfView::kMaxZoom)));
    return 0;
}

int ViewManage::View_Write2Pdf(unsigned int id, const std::vector<std::string>& heads,
    const std::vector<std::vector<std::string>>& rows, bool landscape)
{
    PdfTableWriter* writer = m_pdfWriters->writer(id);
    if (!writer)
        return -1;
    // texts are UTF-8 (invalid bytes replaced) and cut to what a cell can show
    auto toList = [](const std::vector<std::string>& cells) {
        QStringList list;
        const size_t n = qMin<size_t>(cells.size(), PdfTableWriter::kMaxColumns);
        list.reserve(int(n));
        for (size_t i = 0; i < n; ++i)
            list.append(Core::cutText(Core::fromUtf8(cells[i].c_str()), 1024));
        return list;
    };
    QVector<QStringList> table;
    const size_t n = qMin<size_t>(rows.size(), PdfTableWriter::kMaxRows);
    table.reserve(int(n));
    for (size_t r = 0; r < n; ++r)
        table.append(toList(rows[r]));
    return writer->writeTable(toList(heads), table, landscape) ? 0 : -1;
}

#include "xcomponents/qquick/xpdfview.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/pdfpagerenderer.h"
#include <qgui/events.h>

#include <QPdfDocument>
#include <QQuickWindow>
#include <QSGSimpleRectNode>
#include <QSGSimpleTextureNode>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal kPixelsPerPoint = 96.0 / 72.0; // zoom 100 %: a page at its printed size on a 96 dpi panel
const QColor kBackground(0x60, 0x64, 0x68);

/** The view's scene: a background, then per page in sight a sheet of paper with its picture on it. */
struct PdfSceneNode : QSGNode {
    QSGSimpleRectNode* background = nullptr;
    struct Page {
        QSGSimpleRectNode* paper = nullptr; // white, the picture is its child
        QSGSimpleTextureNode* picture = nullptr; // null while the page has none
        qint64 key = 0; // the picture's key; 0 without one
    };
    QHash<int, Page> pages;
};

} // namespace

XPdfView::XPdfView(QQuickItem* parent)
    : XBaseControl(parent)
    , m_renderer(new PdfPageRenderer(this))
{
    // nothing is drawn before the first file has opened: no frame competes with its first page
    setClip(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    connect(m_renderer, &PdfPageRenderer::loaded, this, &XPdfView::onLoaded);
    connect(m_renderer, &PdfPageRenderer::pageSizesRead, this, &XPdfView::onPageSizesRead);
    connect(m_renderer, &PdfPageRenderer::rendered, this, &XPdfView::onRendered);
}

XPdfView::~XPdfView() = default;

void XPdfView::setSource(const QString& path, int page)
{
    m_source = path;
    m_wantedPage = qMax(0, page);
    m_pictures.clear();
    m_asked.clear();
    const bool hadPages = !m_pageSizes.isEmpty();
    m_pageSizes.clear();
    m_pageTops.clear();
    m_contentPos = QPointF();
    setStatus(path.isEmpty() ? Empty : Loading);
    // the first page is rendered with the file's opening, at the size this view will want for it
    const QSizeF view = size();
    const int mode = m_mode, zoom = m_zoom;
    const qreal dpr = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    m_renderer->load(path, m_wantedPage, [view, mode, zoom, dpr](const QSizeF& points) {
        return pictureSize(points, scaleFor(points, view, mode, zoom), dpr);
    });
    Q_EMIT sourceChanged();
    if (hadPages)
        Q_EMIT pageCountChanged();
    update();
}

void XPdfView::onLoaded(int error, int pageCount, int first, const QSizeF& firstSize, const QImage& picture)
{
    setFlag(ItemHasContents);
    View_EvtPdfSource report {};
    if (error != QPdfDocument::NoError) {
        setStatus(Failed);
        report.value = -qMax(1, error);
        report.flagCleared = 0;
    } else {
        m_pageSizes = QVector<QSizeF>(pageCount, firstSize); // the others' sizes follow
        setStatus(m_source.isEmpty() ? Empty : Ready);
        report.value = pageCount;
        report.flagCleared = 1;
        Q_EMIT pageCountChanged();
    }
    if (first != m_page) {
        m_page = first;
        Q_EMIT pageChanged();
    }
    const bool shown = !picture.isNull() && picture.size() == renderSize(first);
    if (shown)
        m_pictures.insert(first, picture);
    relayout();
    if (m_mode == Continuous && m_page < m_pageTops.size()) {
        m_contentPos.setY(m_pageTops.at(m_page));
        clampContent();
        requestPictures();
    }
    if (shown)
        Q_EMIT pageShown(first);
    LogicLayerCaller::call(getId(), EVT_PDF_SOURCE, &report);
}

void XPdfView::onPageSizesRead(const QVector<QSizeF>& sizes)
{
    if (sizes.size() != m_pageSizes.size() || sizes == m_pageSizes)
        return;
    const qreal top = m_pageTops.value(m_page);
    const qreal offset = m_contentPos.y() - top;
    m_pageSizes = sizes;
    relayout();
    if (m_mode == Continuous) { // the page in sight stays where it was
        m_contentPos.setY(m_pageTops.value(m_page) + offset);
        clampContent();
        requestPictures();
    }
}

void XPdfView::onRendered(int page, const QImage& image, quint64 generation)
{
    if (generation != m_renderer->generation())
        return;
    m_asked.remove(page);
    if (page >= m_pageSizes.size() || image.size() != renderSize(page))
        return;
    m_pictures.insert(page, image);
    update();
    Q_EMIT pageShown(page);
}

bool XPdfView::switchPage(int page)
{
    if (page < 0 || page >= m_pageSizes.size())
        return false;
    if (m_mode == Continuous) {
        m_contentPos.setY(m_pageTops.value(page));
    } else {
        m_contentPos = QPointF();
    }
    clampContent();
    if (page != m_page) {
        m_page = page;
        Q_EMIT pageChanged();
    }
    requestPictures();
    update();
    return true;
}

void XPdfView::setZoom(int percent)
{
    const int zoom = percent == 0 ? 0 : qBound(kMinZoom, percent, kMaxZoom);
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    Q_EMIT zoomChanged();
    relayout();
}

bool XPdfView::setDisplayMode(int mode)
{
    if (mode < SinglePage || mode > FitPage)
        return false;
    if (mode != m_mode) {
        m_mode = mode;
        Q_EMIT displayModeChanged();
        m_contentPos = QPointF();
        relayout();
        switchPage(m_page);
    }
    return true;
}

qreal XPdfView::scaleFor(const QSizeF& page, const QSizeF& view, int mode, int zoom)
{
    if (page.width() <= 0 || page.height() <= 0)
        return kPixelsPerPoint;
    const qreal byWidth = view.width() > 0 ? view.width() / page.width() : kPixelsPerPoint;
    switch (mode) {
    case FitWidth:
        return byWidth;
    case FitPage:
        return view.height() > 0 ? qMin(byWidth, view.height() / page.height()) : byWidth;
    default:
        return zoom == 0 ? byWidth : zoom / 100.0 * kPixelsPerPoint;
    }
}

QSize XPdfView::pictureSize(const QSizeF& page, qreal scale, qreal devicePixelRatio)
{
    QSizeF size = page * scale * devicePixelRatio;
    const qreal longest = qMax(size.width(), size.height());
    if (longest > kMaxRenderSide)
        size *= kMaxRenderSide / longest;
    return QSize(qMax(1, qRound(size.width())), qMax(1, qRound(size.height())));
}

qreal XPdfView::scaleOf(int page) const
{
    return scaleFor(m_pageSizes.value(page), size(), m_mode, m_zoom);
}

QRectF XPdfView::pageRect(int page) const
{
    if (page < 0 || page >= m_pageSizes.size())
        return QRectF();
    const QSizeF size = m_pageSizes.at(page) * scaleOf(page);
    const qreal x = qMax<qreal>(0, (width() - size.width()) / 2) - m_contentPos.x();
    if (m_mode == Continuous)
        return QRectF(QPointF(x, m_pageTops.value(page) - m_contentPos.y()), size);
    if (page != m_page)
        return QRectF();
    return QRectF(QPointF(x, qMax<qreal>(0, (height() - size.height()) / 2) - m_contentPos.y()), size);
}

bool XPdfView::isSettled() const
{
    if (m_status == Loading)
        return false;
    const QVector<int> pages = pagesInSight();
    return std::all_of(pages.begin(), pages.end(),
        [this](int p) { return m_pictures.value(p).size() == renderSize(p); });
}

QSizeF XPdfView::contentSize() const
{
    if (m_pageSizes.isEmpty())
        return QSizeF();
    if (m_mode != Continuous)
        return m_pageSizes.at(m_page) * scaleOf(m_page);
    qreal w = 0;
    for (int i = 0; i < m_pageSizes.size(); ++i)
        w = qMax(w, m_pageSizes.at(i).width() * scaleOf(i));
    const int last = m_pageSizes.size() - 1;
    return QSizeF(w, m_pageTops.value(last) + m_pageSizes.at(last).height() * scaleOf(last));
}

QSize XPdfView::renderSize(int page) const
{
    return pictureSize(m_pageSizes.value(page), scaleOf(page), window() ? window()->effectiveDevicePixelRatio() : 1.0);
}

QVector<int> XPdfView::pagesInSight() const
{
    QVector<int> pages;
    if (m_pageSizes.isEmpty())
        return pages;
    if (m_mode != Continuous) {
        pages.append(m_page);
        return pages;
    }
    // the first page whose bottom is below the view's top, then on while the tops are inside it
    const qreal top = m_contentPos.y(), bottom = top + height();
    auto it = std::upper_bound(m_pageTops.begin(), m_pageTops.end(), top);
    int first = qMax(0, int(it - m_pageTops.begin()) - 1);
    for (int p = first; p < m_pageTops.size() && m_pageTops.at(p) < bottom; ++p)
        pages.append(p);
    return pages;
}

void XPdfView::relayout()
{
    m_pageTops.clear();
    if (m_mode == Continuous) {
        m_pageTops.reserve(m_pageSizes.size());
        qreal y = 0;
        for (int i = 0; i < m_pageSizes.size(); ++i) {
            m_pageTops.append(y);
            y += m_pageSizes.at(i).height() * scaleOf(i) + kPageGap;
        }
    }
    // pictures at the old size stay on screen, scaled, until the new ones are back
    m_renderer->nextGeneration();
    m_asked.clear();
    clampContent();
    requestPictures();
    update();
}

void XPdfView::clampContent()
{
    const QSizeF content = contentSize();
    m_contentPos.setX(qBound<qreal>(0, m_contentPos.x(), qMax<qreal>(0, content.width() - width())));
    m_contentPos.setY(qBound<qreal>(0, m_contentPos.y(), qMax<qreal>(0, content.height() - height())));
}

void XPdfView::requestPictures()
{
    const QVector<int> inSight = pagesInSight();
    QVector<int> keep = inSight;
    QVector<int> neighbours;
    if (!inSight.isEmpty()) { // the neighbours too, so the next page is there at once
        const int before = inSight.first() - 1, after = inSight.last() + 1;
        if (before >= 0)
            neighbours.append(before);
        if (after < m_pageSizes.size())
            neighbours.append(after);
        keep += neighbours;
    }
    for (auto it = m_pictures.begin(); it != m_pictures.end();) {
        if (keep.contains(it.key())) {
            ++it;
        } else {
            it = m_pictures.erase(it);
        }
    }
    // requests for pages that left the sight are dropped: a fast page-through renders only its end
    const QList<int> asked = m_asked.keys();
    if (std::any_of(asked.begin(), asked.end(), [&keep](int p) { return !keep.contains(p); })) {
        m_renderer->nextGeneration();
        m_asked.clear();
    }
    requestPages(inSight);
    QObject::disconnect(m_neighbours);
    const bool inSightReady = std::all_of(inSight.begin(), inSight.end(),
        [this](int p) { return m_pictures.value(p).size() == renderSize(p); });
    if (inSightReady || !window()) {
        requestPages(neighbours);
    } else {
        m_neighbours = connect(window(), &QQuickWindow::frameSwapped, this, [this]() {
            QObject::disconnect(m_neighbours);
            requestPictures(); // the pages in sight have been shown by now, or are still on their way
        }, Qt::QueuedConnection);
    }
}

void XPdfView::requestPages(const QVector<int>& pages)
{
    for (int p : pages) {
        const QSize size = renderSize(p);
        if (m_pictures.value(p).size() == size || m_asked.value(p) == size)
            continue;
        m_asked.insert(p, size);
        m_renderer->render(p, size);
    }
}

void XPdfView::scrollBy(const QPointF& delta)
{
    const QPointF before = m_contentPos;
    m_contentPos += delta;
    clampContent();
    if (m_contentPos == before)
        return;
    followPageFromScroll();
    requestPictures();
    update();
}

void XPdfView::followPageFromScroll()
{
    if (m_mode != Continuous || m_pageTops.isEmpty())
        return;
    // the page under the upper third of the view is the current one
    const qreal mark = m_contentPos.y() + height() / 3;
    auto it = std::upper_bound(m_pageTops.begin(), m_pageTops.end(), mark);
    const int page = qMax(0, int(it - m_pageTops.begin()) - 1);
    if (page != m_page) {
        m_page = page;
        Q_EMIT pageChanged();
    }
}

void XPdfView::setStatus(int status)
{
    if (status != m_status) {
        m_status = status;
        Q_EMIT statusChanged();
    }
}

void XPdfView::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        relayout();
}

void XPdfView::mousePressEvent(QMouseEvent* event)
{
    m_lastPoint = event->localPos();
    XBaseControl::mousePressEvent(event);
}

void XPdfView::mouseMoveEvent(QMouseEvent* event)
{
    scrollBy(m_lastPoint - event->localPos());
    m_lastPoint = event->localPos();
    event->accept();
}

void XPdfView::mouseReleaseEvent(QMouseEvent* event)
{
    XBaseControl::mouseReleaseEvent(event);
}

void XPdfView::touchEvent(QTouchEvent* event)
{
    if (!event->touchPoints().isEmpty()) {
        const QPointF point = event->touchPoints().constFirst().pos();
        if (event->type() == QEvent::TouchUpdate)
            scrollBy(m_lastPoint - point);
        m_lastPoint = point;
    }
    XBaseControl::touchEvent(event);
}

QSGNode* XPdfView::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    auto* scene = static_cast<PdfSceneNode*>(old);
    if (!scene) {
        scene = new PdfSceneNode;
        scene->background = new QSGSimpleRectNode(QRectF(), kBackground);
        scene->appendChildNode(scene->background);
    }
    scene->background->setRect(boundingRect());
    const QVector<int> inSight = pagesInSight();
    for (auto it = scene->pages.begin(); it != scene->pages.end();) {
        if (inSight.contains(it.key())) {
            ++it;
            continue;
        }
        scene->removeChildNode(it->paper);
        delete it->paper; // its picture with it (owned by the parent)
        it = scene->pages.erase(it);
    }
    for (int p : inSight) {
        PdfSceneNode::Page& page = scene->pages[p];
        if (!page.paper) {
            page.paper = new QSGSimpleRectNode(QRectF(), Qt::white);
            scene->appendChildNode(page.paper);
        }
        const QRectF rect = pageRect(p);
        page.paper->setRect(rect);
        const QImage picture = m_pictures.value(p);
        const qint64 key = picture.isNull() ? 0 : picture.cacheKey();
        if (key != page.key) { // a new picture (or none any more)
            delete page.picture;
            page.picture = nullptr;
            page.key = 0;
            if (QSGTexture* texture = key && window() ? window()->createTextureFromImage(picture) : nullptr) {
                page.picture = new QSGSimpleTextureNode;
                page.picture->setTexture(texture);
                page.picture->setOwnsTexture(true);
                page.picture->setFiltering(QSGTexture::Linear);
                page.picture->setFlag(QSGNode::OwnedByParent);
                page.paper->appendChildNode(page.picture);
                page.key = key;
            }
        }
        if (page.picture)
            page.picture->setRect(rect);
    }
    return scene;
}

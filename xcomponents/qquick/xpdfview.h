#ifndef XPDFVIEW_H
#define XPDFVIEW_H

#include "xcomponents/qquick/xbasecontrol.h"

#include <QHash>
#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QVector>

class PdfPageRenderer;

/**
 * The PDF view: shows a document's pages, rendered off the GUI thread, in one
 * of four display modes; pages are switched and zoomed by the logic layer or
 * by the tool bar, and dragged with the finger when they are larger than the
 * view.
 *
 * When a file has been opened (or has failed to open), the view sends event
 * 2561 with View_EvtPdfSource: the page count, or the negative load error, and
 * 1 when the document opened, 0 when it did not.
 *
 * Pages are rendered at most kMaxRenderSide pixels on their longer side; a
 * larger zoom scales that picture up. Only the pages in sight (and their
 * neighbours) are kept, so a 1000-page manual costs what two pages cost.
 */
class XPdfView : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QString source READ source NOTIFY sourceChanged)
    Q_PROPERTY(int page READ page NOTIFY pageChanged)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pageCountChanged)
    Q_PROPERTY(int zoom READ zoom NOTIFY zoomChanged)
    Q_PROPERTY(int displayMode READ displayMode NOTIFY displayModeChanged)
    Q_PROPERTY(int status READ status NOTIFY statusChanged)

public:
    /** How pages are laid out (the interface's PDF display modes). */
    enum DisplayMode {
        SinglePage = 0, /**< one page at the zoom, dragged when larger than the view */
        Continuous = 1, /**< every page, one below the other, at the zoom; scrolled */
        FitWidth = 2, /**< one page as wide as the view */
        FitPage = 3 /**< one page wholly inside the view */
    };
    Q_ENUM(DisplayMode)
    /** Where the document is. */
    enum Status { Empty = 0, Loading = 1, Ready = 2, Failed = 3 };
    Q_ENUM(Status)

    static constexpr int kMinZoom = 10; /**< smallest zoom, percent */
    static constexpr int kMaxZoom = 800; /**< largest zoom, percent */
    static constexpr int kMaxRenderSide = 4096; /**< longest side of a rendered page, pixels */
    static constexpr qreal kPageGap = 8; /**< space between pages in continuous mode, pixels */

    explicit XPdfView(QQuickItem* parent = nullptr);
    ~XPdfView() override;

    QString source() const { return m_source; }
    /** Opens \a path (empty: shows nothing); the page goes back to \a page, 2561 follows. */
    void setSource(const QString& path, int page = 0);
    int page() const { return m_page; }
    int pageCount() const { return m_pageSizes.size(); }
    int zoom() const { return m_zoom; }
    int displayMode() const { return m_mode; }
    int status() const { return m_status; }

    /** Shows \a page (from 0); false when the document has no such page. */
    Q_INVOKABLE bool switchPage(int page);
    /** Zoom in percent, kept within kMinZoom..kMaxZoom; 0 fits the page width. */
    Q_INVOKABLE void setZoom(int percent);
    /** One of DisplayMode; false (and nothing changes) for other numbers. */
    Q_INVOKABLE bool setDisplayMode(int mode);
    /** Pixels per point at which \a page is shown. */
    qreal scaleOf(int page) const;
    /** Where \a page is drawn, in the view's coordinates; empty when it is not laid out. */
    QRectF pageRect(int page) const;
    /** The scroll position: how far the content is moved up and left. */
    QPointF contentPos() const { return m_contentPos; }
    /** True when the pages in sight have all been rendered at their current size. */
    bool isSettled() const;
    /** The renderer working for this view. */
    PdfPageRenderer* renderer() const { return m_renderer; }

Q_SIGNALS:
    void sourceChanged();
    void pageChanged();
    void pageCountChanged();
    void zoomChanged();
    void displayModeChanged();
    void statusChanged();
    /** The picture of a page in sight arrived; the next frame shows it. */
    void pageShown(int page);

protected:
    /* inherits documentation from base class */
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;

    /** Pixels per point of a page of \a page points in a view of \a view pixels. */
    static qreal scaleFor(const QSizeF& page, const QSizeF& view, int mode, int zoom);
    /** The picture size of a page of \a page points at \a scale, capped at kMaxRenderSide. */
    static QSize pictureSize(const QSizeF& page, qreal scale, qreal devicePixelRatio);

private:
    void onLoaded(int error, int pageCount, int first, const QSizeF& firstSize, const QImage& picture);
    void onPageSizesRead(const QVector<QSizeF>& sizes);
    void onRendered(int page, const QImage& image, quint64 generation);
    /** The scale or the layout changed: pictures are asked for again at their new size. */
    void relayout();
    QSizeF contentSize() const;
    QSize renderSize(int page) const;
    QVector<int> pagesInSight() const;
    void scrollBy(const QPointF& delta);
    void clampContent();
    /** Asks for the pictures of the pages in sight at once, and for their neighbours once a frame has shown
     *  what is in sight (so that rendering them does not slow that frame down). */
    void requestPictures();
    void requestPages(const QVector<int>& pages);
    void setStatus(int status);
    void followPageFromScroll();

    PdfPageRenderer* m_renderer;
    QString m_source;
    QVector<QSizeF> m_pageSizes; // points; until all are read, each as large as the first one shown
    QVector<qreal> m_pageTops; // continuous mode: top of each page in the content, pixels
    QHash<int, QImage> m_pictures; // page -> rendered picture
    QHash<int, QSize> m_asked; // page -> size asked for and not yet back
    QMetaObject::Connection m_neighbours; // the wait for the frame after which the neighbours are asked for
    int m_page = 0;
    int m_wantedPage = 0;
    int m_zoom = 100;
    int m_mode = SinglePage;
    int m_status = Empty;
    QPointF m_contentPos;
    QPointF m_lastPoint;
};

#endif // XPDFVIEW_H

#ifndef PDFPAGERENDERER_H
#define PDFPAGERENDERER_H

#include <QImage>
#include <QObject>
#include <QSizeF>
#include <QThread>
#include <QVector>

#include <atomic>
#include <functional>

class QPdfDocument;

/**
 * Loads a PDF and renders its pages on a thread of its own, so a large manual
 * never blocks the panel. The document lives on that thread (a document is not
 * safe to share between threads); the GUI thread only sends requests and gets
 * results back as queued signals.
 *
 * Opening a file renders the page to show first right away, with the size the
 * view gives for it, and reports both in loaded(); the sizes of all pages
 * follow in pageSizesRead(), read in slices between other requests so that
 * paging never waits for a long document to be measured.
 *
 * Every request carries a generation: when the view changes its scale or its
 * file, it raises the generation and the renderer skips the requests that are
 * still queued from before, so a fast page-through renders only what is still
 * wanted.
 */
class PdfPageRenderer : public QObject {
    Q_OBJECT

public:
    /** The picture size for a page of the given size in points. */
    using SizeRule = std::function<QSize(const QSizeF& points)>;

    explicit PdfPageRenderer(QObject* parent = nullptr);
    ~PdfPageRenderer() override;

    /**
     * Opens \a path (an empty path closes the document) and renders page
     * \a first (the last one when the document is shorter) at the size \a rule
     * gives; loaded() follows, then pageSizesRead(). Requests still queued for
     * an earlier file are dropped. \a rule runs on the render thread: it must
     * only use what it holds by value.
     */
    void load(const QString& path, int first, const SizeRule& rule);
    /** Asks for \a page at \a size pixels; rendered() follows unless the generation moved on. */
    void render(int page, const QSize& size);
    /** Raises the generation: requests made before are skipped. Returns the new one. */
    quint64 nextGeneration();
    quint64 generation() const { return m_generation.load(); }
    /** Pages rendered since the renderer was made (requests skipped are not counted). */
    int renderedCount() const { return m_rendered.load(); }

Q_SIGNALS:
    /**
     * The file asked for by the latest load() was opened or not: \a error is
     * one of QPdfDocument::DocumentError (0 when it was opened); \a pageCount
     * pages; page \a first measures \a firstSize points and shows as
     * \a picture (null when it could not be rendered).
     */
    void loaded(int error, int pageCount, int first, const QSizeF& firstSize, const QImage& picture);
    /** The size in points of every page of the file of the latest loaded(). */
    void pageSizesRead(const QVector<QSizeF>& sizes);
    /** \a image shows \a page; made for \a generation. */
    void rendered(int page, const QImage& image, quint64 generation);

private:
    /** On the render thread: measures pages from \a from on, a slice at a time. */
    void readSizes(quint64 serial, QVector<QSizeF> sizes);
    /** On the render thread: \a page at \a size, premultiplied and transparent where nothing is printed (the
     *  view's paper shows through); null when it cannot be rendered. */
    QImage renderPage(int page, const QSize& size);

    QThread m_thread;
    QObject* m_context = nullptr; // lives on m_thread, owns the document
    QPdfDocument* m_document = nullptr; // touched on m_thread only
    std::atomic<quint64> m_generation { 1 };
    std::atomic<quint64> m_loadSerial { 0 };
    std::atomic<int> m_rendered { 0 };
};

#endif // PDFPAGERENDERER_H

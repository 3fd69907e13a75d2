#include "xcomponents/qquick/pdfpagerenderer.h"

#include <QPdfDocument>

namespace {

constexpr int kSizesPerSlice = 32; // pages measured between two other requests

} // namespace

PdfPageRenderer::PdfPageRenderer(QObject* parent)
    : QObject(parent)
    , m_context(new QObject)
{
    m_thread.setObjectName(QStringLiteral("pdf render"));
    m_context->moveToThread(&m_thread);
    m_thread.start();
}

PdfPageRenderer::~PdfPageRenderer()
{
    m_thread.quit();
    m_thread.wait();
    delete m_context; // with the document; its thread has stopped, nothing else touches them
}

void PdfPageRenderer::load(const QString& path, int first, const SizeRule& rule)
{
    nextGeneration();
    const quint64 serial = ++m_loadSerial;
    QMetaObject::invokeMethod(m_context, [this, path, first, rule, serial] {
        if (serial != m_loadSerial.load())
            return; // a newer file was asked for meanwhile
        if (!m_document)
            m_document = new QPdfDocument(m_context);
        m_document->close();
        int error = QPdfDocument::NoError;
        int count = 0, page = 0;
        QSizeF size;
        QImage picture;
        if (!path.isEmpty()) {
            error = m_document->load(path);
            if (error != QPdfDocument::NoError)
                m_document->close();
            count = error == QPdfDocument::NoError ? m_document->pageCount() : 0;
        }
        if (count > 0) {
            page = qBound(0, first, count - 1);
            size = m_document->pageSize(page);
            if (rule)
                picture = renderPage(page, rule(size));
        }
        QMetaObject::invokeMethod(this, [=] {
            if (serial == m_loadSerial.load())
                Q_EMIT loaded(error, count, page, size, picture);
        }, Qt::QueuedConnection);
        if (count > 0)
            readSizes(serial, QVector<QSizeF>());
    });
}

void PdfPageRenderer::readSizes(quint64 serial, QVector<QSizeF> sizes)
{
    if (serial != m_loadSerial.load() || !m_document)
        return;
    const int count = m_document->pageCount();
    if (sizes.isEmpty())
        sizes.reserve(count);
    for (int n = 0; n < kSizesPerSlice && sizes.size() < count; ++n)
        sizes.append(m_document->pageSize(sizes.size()));
    if (sizes.size() < count) { // the rest after the requests queued meanwhile
        QMetaObject::invokeMethod(m_context, [this, serial, sizes] { readSizes(serial, sizes); }, Qt::QueuedConnection);
        return;
    }
    QMetaObject::invokeMethod(this, [this, serial, sizes] {
        if (serial == m_loadSerial.load())
            Q_EMIT pageSizesRead(sizes);
    }, Qt::QueuedConnection);
}

QImage PdfPageRenderer::renderPage(int page, const QSize& size)
{
    if (!m_document || page < 0 || page >= m_document->pageCount() || size.isEmpty())
        return QImage();
    ++m_rendered;
    QImage image = m_document->render(page, size);
    if (image.isNull())
        return image;
    // transparent where nothing is printed: the view lays it on its paper; premultiplied, it goes to the
    // texture as it is (one fast pass here instead of one in every upload)
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

void PdfPageRenderer::render(int page, const QSize& size)
{
    const quint64 generation = m_generation.load();
    QMetaObject::invokeMethod(m_context, [this, page, size, generation] {
        if (generation != m_generation.load())
            return;
        const QImage image = renderPage(page, size);
        if (image.isNull())
            return;
        QMetaObject::invokeMethod(this, [this, page, image, generation] {
            Q_EMIT rendered(page, image, generation);
        }, Qt::QueuedConnection);
    });
}

quint64 PdfPageRenderer::nextGeneration()
{
    return ++m_generation;
}

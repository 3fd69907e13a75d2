#include "xcomponents/qquick/xqrcodeimageprovider.h"

#include <QMutexLocker>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {
constexpr int kKept = 32; // documents kept for pictures not yet loaded
constexpr int kDefaultSide = 256;
// no symbol is rendered larger, whatever is asked: the item stretches it
constexpr int kMaxSide = 4096;
}

XQRCodeImageProvider::XQRCodeImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

XQRCodeImageProvider::~XQRCodeImageProvider() = default;

void XQRCodeImageProvider::setDocument(int number, const QByteArray& svg)
{
    QMutexLocker lock(&m_mutex);
    m_documents.insert(number, svg);
    m_latest = number;
    while (m_documents.size() > kKept)
        m_documents.erase(m_documents.begin());
}

QByteArray XQRCodeImageProvider::document() const
{
    QMutexLocker lock(&m_mutex);
    return m_documents.value(m_latest);
}

QSize XQRCodeImageProvider::lastRequestedSize() const
{
    QMutexLocker lock(&m_mutex);
    return m_requested;
}

QByteArray XQRCodeImageProvider::documentFor(const QString& id, const QSize& requestedSize, QSize* target)
{
    QMutexLocker lock(&m_mutex);
    m_requested = requestedSize;
    bool ok = false;
    const int n = id.toInt(&ok);
    QSize s = requestedSize;
    if (s.width() <= 0)
        s.setWidth(s.height() > 0 ? s.height() : kDefaultSide);
    if (s.height() <= 0)
        s.setHeight(s.width());
    *target = s.boundedTo(QSize(kMaxSide, kMaxSide));
    return m_documents.value(ok ? n : m_latest, m_documents.value(m_latest));
}

QImage XQRCodeImageProvider::render(const QByteArray& svg, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    if (renderer.isValid()) {
        QPainter p(&image);
        renderer.render(&p, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    return image;
}

QImage XQRCodeImageProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    QSize target;
    const QByteArray svg = documentFor(id, requestedSize, &target);
    if (size)
        *size = target;
    return render(svg, target);
}

QPixmap XQRCodeImageProvider::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize)
{
    return QPixmap::fromImage(requestImage(id, size, requestedSize));
}

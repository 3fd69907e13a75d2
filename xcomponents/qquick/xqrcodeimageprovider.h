#ifndef XQRCODEIMAGEPROVIDER_H
#define XQRCODEIMAGEPROVIDER_H

#include <QByteArray>
#include <QMap>
#include <QMutex>
#include <QQuickImageProvider>
#include <QSize>

/**
 * Serves the QR-code widgets' pictures under "image://xqrcode/<n>": the widget
 * hands over its SVG document with setDocument(n, svg) and points its source
 * at the URL; a request renders that document scaled to the whole requested
 * size. The last few documents are kept, so that several widgets updated in
 * the same cycle each get their own.
 */
class XQRCodeImageProvider : public QQuickImageProvider {
public:
    XQRCodeImageProvider();
    ~XQRCodeImageProvider() override;

    void setDocument(int number, const QByteArray& svg);
    /** The latest document handed over. */
    QByteArray document() const;
    /** The size of the last request. */
    QSize lastRequestedSize() const;

    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

    /** Renders \a svg onto an image of \a size (the symbol fills it). */
    static QImage render(const QByteArray& svg, const QSize& size);

private:
    QByteArray documentFor(const QString& id, const QSize& requestedSize, QSize* target);

    mutable QMutex m_mutex;
    QMap<int, QByteArray> m_documents; // by picture number, the latest few
    int m_latest = -1;
    QSize m_requested;
};

#endif // XQRCODEIMAGEPROVIDER_H

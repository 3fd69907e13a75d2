#ifndef XQRCODE_H
#define XQRCODE_H

#include "xcomponents/qquick/xquickimage.h"

#include <QByteArray>
#include <QColor>

namespace qrcodegen {
class QrCode;
}
class XQRCodeImageProvider;

/**
 * The QR-code widget: encodes its content as a QR symbol (the smallest version
 * for the error-correction level), writes it as an SVG document in the
 * widget's two colours with a quiet border of one module, and shows it through
 * the "xqrcode" image provider, stretched to the widget's box.
 *
 * Every new content loads a fresh picture (a new "image://xqrcode/<n>" URL,
 * numbered by a process-wide counter). A text too long for the largest symbol
 * keeps the previous picture and content, and logs the failure. Nothing is
 * drawn until the first content arrives.
 */
class XQRCode : public XQuickImage {
    Q_OBJECT
    Q_PROPERTY(int ecc READ ecc WRITE setEcc NOTIFY eccChanged)
    Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor NOTIFY backColorChanged)
    Q_PROPERTY(QColor frontColor READ frontColor WRITE setFrontColor NOTIFY frontColorChanged)
    Q_PROPERTY(QString content READ content WRITE setContent NOTIFY contentChanged)

public:
    explicit XQRCode(QQuickItem* parent = nullptr);
    ~XQRCode() override;

    /** Error-correction level 0 (low) to 3 (high); the default is 0. Out-of-range values are
     *  clamped. */
    int ecc() const { return m_ecc; }
    void setEcc(int level);
    /** Colour of the light modules and the border; white by default. Alpha is not drawn. */
    QColor backColor() const { return m_backColor; }
    void setBackColor(const QColor& color);
    /** Colour of the dark modules; black by default. Alpha is not drawn. */
    QColor frontColor() const { return m_frontColor; }
    void setFrontColor(const QColor& color);

    Q_INVOKABLE quint32 getId() const { return m_id; }
    Q_INVOKABLE void setId(quint32 id) { m_id = id; }
    Q_INVOKABLE quint32 getWindowId() const { return m_windowId; }
    Q_INVOKABLE void setWindowId(quint32 id) { m_windowId = id; }

    QString content() const { return m_content; }
    /** Encodes UTF-8 \a text (null is empty) and shows it; false when it is too long. */
    bool setContent(const char* text);
    bool setContent(const QString& text);

    /** The SVG document of the last content. */
    QByteArray svgDocument() const { return m_svg; }
    /** The SVG document of \a code in \a front on \a back. */
    static QByteArray toSvg(const qrcodegen::QrCode& code, const QColor& front, const QColor& back);

    /** The process's provider, made on first use. */
    static XQRCodeImageProvider* imageProvider();
    /** Whether the provider has been added to the library's current engine. */
    static bool imageProviderInit();
    /** Adds the provider to \a engine (once). */
    static void initImageProvider(QQmlEngine* engine);

Q_SIGNALS:
    void eccChanged();
    void backColorChanged();
    void frontColorChanged();
    void contentChanged();

private:
    int m_ecc = 0;
    QColor m_backColor = Qt::white;
    QColor m_frontColor = Qt::black;
    quint32 m_id = 0;
    quint32 m_windowId = 0;
    QString m_content;
    QByteArray m_svg;
};

#endif // XQRCODE_H

#include "xcomponents/qquick/xqrcode.h"

#include "platform/nlogger.h"
#include "xcomponents/qquick/xqrcodeimageprovider.h"

#include <QPointer>
#include <QQmlEngine>

#include <qrcodegen.hpp>

#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace {

const QString kProvider = QStringLiteral("xqrcode");

int g_pictureCounter = 0; // numbers the generated pictures

struct ProviderSlot {
    XQRCodeImageProvider* provider = nullptr; // owned by s_engine once added
    QPointer<QQmlEngine> engine;
    bool added = false;
};

ProviderSlot& slot()
{
    static ProviderSlot s;
    return s;
}

void colourString(char* out, const QColor& c)
{
    std::snprintf(out, 8, "#%02X%02X%02X", c.red() & 0xFF, c.green() & 0xFF, c.blue() & 0xFF);
}

void appendInt(QByteArray& out, int v)
{
    char buf[12];
    const int n = std::snprintf(buf, sizeof buf, "%d", v);
    out.append(buf, n);
}

} // namespace

XQRCode::XQRCode(QQuickItem* parent)
    : XQuickImage(parent)
{
    setCache(false); // every picture is used once: keep none of the old ones
    setSmooth(false);
}

XQRCode::~XQRCode() = default;

void XQRCode::setEcc(int level)
{
    level = qBound(0, level, 3);
    if (m_ecc == level)
        return;
    m_ecc = level;
    Q_EMIT eccChanged();
}

void XQRCode::setBackColor(const QColor& color)
{
    if (m_backColor == color)
        return;
    m_backColor = color;
    Q_EMIT backColorChanged();
}

void XQRCode::setFrontColor(const QColor& color)
{
    if (m_frontColor == color)
        return;
    m_frontColor = color;
    Q_EMIT frontColorChanged();
}

XQRCodeImageProvider* XQRCode::imageProvider()
{
    ProviderSlot& s = slot();
    if (s.provider && s.added && !s.engine) {
        // the engine that owned it is gone, and the provider with it
        s.provider = nullptr;
        s.added = false;
    }
    if (!s.provider)
        s.provider = new XQRCodeImageProvider;
    return s.provider;
}

bool XQRCode::imageProviderInit()
{
    const ProviderSlot& s = slot();
    return s.added && s.engine;
}

void XQRCode::initImageProvider(QQmlEngine* engine)
{
    if (!engine)
        return;
    ProviderSlot& s = slot();
    if (s.added && s.engine == engine)
        return;
    XQRCodeImageProvider* p = imageProvider();
    if (s.added && s.engine) // another engine holds this one: a new provider for this engine
        p = s.provider = new XQRCodeImageProvider;
    engine->addImageProvider(kProvider, p);
    s.engine = engine;
    s.added = true;
}

QByteArray XQRCode::toSvg(const qrcodegen::QrCode& code, const QColor& front, const QColor& back)
{
    const int size = code.getSize();
    const int n = size + 2; // one module of quiet border on each side
    char fg[8];
    char bg[8];
    colourString(fg, front);
    colourString(bg, back);

    QByteArray out;
    out.reserve(300 + size * size * 9);
    out.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    out.append("<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" "
               "\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">\n");
    out.append("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" viewBox=\"0 0 ");
    appendInt(out, n);
    out.append(' ');
    appendInt(out, n);
    out.append("\" stroke=\"none\">\n");
    out.append("\t<rect width=\"");
    appendInt(out, n);
    out.append("\" height=\"");
    appendInt(out, n);
    out.append("\" fill=\"").append(bg).append("\"/>\n");
    out.append("\t<path d=\"");
    bool first = true;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if (!code.getModule(x, y))
                continue;
            if (!first)
                out.append(' ');
            first = false;
            out.append('M');
            appendInt(out, x + 1);
            out.append(',');
            appendInt(out, y + 1);
            out.append("h1v1h-1z");
        }
    }
    out.append("\" fill=\"").append(fg).append("\"/>\n");
    out.append("</svg>\n");
    return out;
}

bool XQRCode::setContent(const QString& text)
{
    return setContent(text.toUtf8().constData());
}

bool XQRCode::setContent(const char* text)
{
    if (!text)
        text = "";
    static const qrcodegen::QrCode::Ecc levels[] = { qrcodegen::QrCode::Ecc::LOW,
        qrcodegen::QrCode::Ecc::MEDIUM, qrcodegen::QrCode::Ecc::QUARTILE, qrcodegen::QrCode::Ecc::HIGH };
    QByteArray svg;
    try {
        const qrcodegen::QrCode code = qrcodegen::QrCode::encodeText(text, levels[m_ecc]);
        svg = toSvg(code, m_frontColor, m_backColor);
    } catch (const std::exception& e) {
        // too long for the largest symbol at this level: the previous picture stays
        NLog::NLogger::instance()->log(spdlog::level::err, "qgui/xcomponents/XQRCode", "setContent",
            "widget {}: cannot encode {} bytes: {}", m_id, std::strlen(text), e.what());
        return false;
    }
    m_svg = svg;
    m_content = QString::fromUtf8(text);
    setVisibleSourceSize(size());
    if (QQmlEngine* engine = qmlEngine(this))
        initImageProvider(engine);
    const int number = g_pictureCounter++;
    imageProvider()->setDocument(number, svg);
    if (qmlEngine(this))
        setSource(QUrl(QStringLiteral("image://xqrcode/") + QString::number(number)));
    Q_EMIT contentChanged();
    return true;
}

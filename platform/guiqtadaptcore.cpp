#include "platform/guiqtadaptcore.h"

#include <limits>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QQuickItem>
#include <QRadialGradient>
#include <QtMath>

namespace GuiQtAdapt {

namespace {
constexpr int kMaxPixelSize = 1024;
constexpr int kDefaultPixelSize = 16;

Qt::PenStyle penStyle(unsigned style)
{
    switch (style) {
    case PEN_NONE:
        return Qt::NoPen;
    case PEN_DASH:
        return Qt::DashLine;
    case PEN_DOT:
        return Qt::DotLine;
    case PEN_DASHDOT:
        return Qt::DashDotLine;
    case PEN_DASHDOTDOT:
        return Qt::DashDotDotLine;
    default:
        return Qt::SolidLine;
    }
}
} // namespace

QString Core::cutText(const QString& text, int maxChars)
{
    if (maxChars < 1)
        return QString();
    if (text.size() <= maxChars)
        return text;
    int keep = maxChars - 1;
    if (keep > 0 && text.at(keep - 1).isHighSurrogate())
        --keep;
    return text.left(keep) + QChar(0x2026);
}

QFont Core::toQFont(const Font* font)
{
    QFont f = QGuiApplication::font();
    if (!font) {
        if (f.pixelSize() <= 0)
            f.setPixelSize(kDefaultPixelSize);
        return f;
    }
    // no family name is longer: a corrupt one would only slow down font matching
    QString family = cutText(fromUtf8(font->family).trimmed(), kMaxFamily);
    if (!family.isEmpty())
        f.setFamily(family);
    int px = font->pixelSize;
    if (px <= 0)
        px = f.pixelSize() > 0 ? f.pixelSize() : kDefaultPixelSize;
    f.setPixelSize(qBound(1, px, kMaxPixelSize));
    if (font->weight > 0)
        f.setWeight(qBound(0, (qBound(1, font->weight, 1000) * 99) / 1000, 99));
    f.setItalic(font->italic != 0);
    f.setUnderline(font->underline != 0);
    f.setStrikeOut(font->strikeout != 0);
    return f;
}

QBrush Core::toQBrush(const Brush& brush, const QRectF& rect)
{
    QColor c1 = toQColor(brush.color);
    QColor c2 = toQColor(brush.color2);
    switch (brush.style) {
    case BRUSH_NONE:
        return QBrush(Qt::NoBrush);
    case BRUSH_LINEAR: {
        // the gradient runs through the centre along the angle, edge to edge
        QPointF c = rect.center();
        qreal rad = qDegreesToRadians(qreal(brush.angle % 360));
        qreal half = (qAbs(qCos(rad)) * rect.width() + qAbs(qSin(rad)) * rect.height()) / 2.0;
        QPointF d(qCos(rad) * half, qSin(rad) * half);
        QLinearGradient g(c - d, c + d);
        g.setColorAt(0, c1);
        g.setColorAt(1, c2);
        return QBrush(g);
    }
    case BRUSH_RADIAL: {
        QRadialGradient g(rect.center(), qMax<qreal>(1.0, qMax(rect.width(), rect.height()) / 2.0));
        g.setColorAt(0, c1);
        g.setColorAt(1, c2);
        return QBrush(g);
    }
    default:
        return QBrush(c1);
    }
}

QPen Core::toQPen(const Pen& pen)
{
    QPen p(toQColor(pen.color));
    p.setWidth(qBound(0, pen.width, 1024));
    p.setStyle(penStyle(pen.style));
    return p;
}

QColor Core::toQColor(unsigned word)
{
    return QColor::fromRgba(word);
}

qreal Core::toOpacity(unsigned header)
{
    unsigned transparency = qMin(header & 0xFFu, 100u);
    return 1.0 - transparency / 100.0;
}

int Core::toQAlignment(const Font* font)
{
    return font ? int(toQAlignment(font->align)) : 0;
}

Qt::Alignment Core::toQAlignment(unsigned word)
{
    return Qt::Alignment(word & (QGUI_ALIGN_HMASK | QGUI_ALIGN_VMASK));
}

QRect Core::toQRect(const Rect& rect)
{
    // negative sizes are empty; a box reaching past the largest coordinate ends there, and one at the
    // smallest starts a pixel later (an empty box there would end before the smallest coordinate)
    auto origin = [](int at) { return qMax(at, std::numeric_limits<int>::min() + 1); };
    auto extent = [](int at, int size) {
        const qint64 largest = qint64(std::numeric_limits<int>::max()) - qMax(0, at);
        return int(qMin<qint64>(qMax(0, size), largest));
    };
    const int x = origin(rect.x), y = origin(rect.y);
    return QRect(x, y, extent(x, rect.width), extent(y, rect.height));
}

QColor Core::toFontColor(const Brush* brush)
{
    return brush ? toQColor(brush->color) : QColor(Qt::black);
}

QString Core::fromUtf8(const char* text)
{
    return text ? QString::fromUtf8(text) : QString();
}

QString Core::fromString(const char* text)
{
    QString s = fromUtf8(text).trimmed();
    s.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return s;
}

std::string Core::toUtf8StdString(const QString& text)
{
    return text.toStdString();
}

QRectF Core::textLayoutRect(const View_TextLayout* layout, const QRectF& box)
{
    if (!layout)
        return box;
    QRectF r = box;
    Qt::Alignment a = toQAlignment(layout->align);
    if (a & Qt::AlignLeft)
        r.setLeft(r.left() + layout->hMargin);
    else if (a & Qt::AlignRight)
        r.setRight(r.right() - layout->hMargin);
    if (a & Qt::AlignTop)
        r.setTop(r.top() + layout->vMargin);
    else if (a & Qt::AlignBottom)
        r.setBottom(r.bottom() - layout->vMargin);
    return r.normalized();
}

QSizeF Core::textLayoutSize(const QString& text, const QFont& font)
{
    QFontMetricsF fm(font);
    return fm.boundingRect(QRectF(0, 0, 1e6, 1e6), Qt::AlignLeft | Qt::AlignTop, text).size();
}

QQuickItem* Core::getChildByProp(QQuickItem* root, const char* name, const QVariant& value)
{
    if (!root || !name)
        return nullptr;
    QVariant v = root->property(name);
    if (v.isValid() && (!value.isValid() || v == value))
        return root;
    const auto children = root->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* hit = getChildByProp(child, name, value))
            return hit;
    }
    return nullptr;
}

} // namespace GuiQtAdapt

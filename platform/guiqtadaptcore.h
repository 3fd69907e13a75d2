#ifndef GUIQTADAPTCORE_H
#define GUIQTADAPTCORE_H

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QString>
#include <QVariant>

#include <string>

#include <qgui/types.h>

class QQuickItem;

namespace GuiQtAdapt {

/**
 * Conversions between the interface records and Qt values. Widgets read the
 * records only through these functions. Every function accepts null pointers
 * and out-of-range values and returns a usable default.
 */
class Core {
public:
    /** Font record to QFont; null gives the application font. Sizes are clamped to 1..1024 px. */
    static QFont toQFont(const Font* font);
    /** Brush record to QBrush for an area \a rect (gradients are laid out over it). */
    static QBrush toQBrush(const Brush& brush, const QRectF& rect);
    static QPen toQPen(const Pen& pen);
    /** Colour word 0xAARRGGBB to QColor. */
    static QColor toQColor(unsigned word);
    /** Header word to an opacity 0..1: the low byte is the transparency in percent. */
    static qreal toOpacity(unsigned header);
    /** Header word: the drag-window flag (byte 2, bit 0). */
    static bool dragFlag(unsigned header) { return (header >> 16) & 1u; }
    /** The font's own line alignment as Qt::Alignment bits (0 for a null font). */
    static int toQAlignment(const Font* font);
    /** An alignment word to Qt::Alignment; unknown bits are dropped. */
    static Qt::Alignment toQAlignment(unsigned word);
    /** Rect record to QRect; negative sizes become 0. */
    static QRect toQRect(const Rect& rect);
    static QRectF toQRectF(const Rect& rect) { return QRectF(toQRect(rect)); }
    /** The colour a text drawn with \a brush shows (its first colour); null gives black. */
    static QColor toFontColor(const Brush* brush);
    /** UTF-8 text to QString; null gives an empty string, invalid sequences become U+FFFD. */
    static QString fromUtf8(const char* text);
    /** A path or name given as UTF-8: like fromUtf8, with backslashes turned into slashes and
     *  surrounding blanks removed. */
    static QString fromString(const char* text);
    static std::string toUtf8StdString(const QString& text);
    /** \a text cut to at most \a maxChars UTF-16 units, ending in "…" when cut, never inside a
     *  surrogate pair. What a widget shows is cut so that a runaway text never stalls the panel. */
    static QString cutText(const QString& text, int maxChars);
    /** Longest text a text widget, button caption or message shows (UTF-16 units). */
    static constexpr int kMaxShownText = 4096;
    /** Longest font family name taken from a Font record. */
    static constexpr int kMaxFamily = 256;
    /** The text area inside \a box once the layout's margins are applied to its aligned edges. */
    static QRectF textLayoutRect(const View_TextLayout* layout, const QRectF& box);
    /** The size \a text takes in \a font (multi-line aware). */
    static QSizeF textLayoutSize(const QString& text, const QFont& font);
    /** First descendant of \a root (depth first, \a root included) that has the property
     *  \a name, and whose value equals \a value when \a value is valid. */
    static QQuickItem* getChildByProp(QQuickItem* root, const char* name, const QVariant& value = QVariant());
};

} // namespace GuiQtAdapt

#endif // GUIQTADAPTCORE_H

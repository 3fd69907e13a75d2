#include "xcomponents/qquick/xpinyinboard.h"

#include "platform/guiqtadaptcore.h"
#include "platform/logiclayercaller.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickWindow>

#include <cmath>

#include <qgui/events.h>
#include <qgui/records_input.h>

namespace {

constexpr qreal kHPad = 10; // space left and right of a candidate's text
constexpr qreal kVPad = 6; // space above and below the text when the bar sizes itself
constexpr qreal kMinButton = 24; // smallest side of a page button

using GuiQtAdapt::Core;

QString shownText(const QString& candidate)
{
    return Core::cutText(candidate, XPinyinBoard::kMaxShownChars);
}

bool hasChinese(const QFontDatabase& db, const QString& family)
{
    return db.writingSystems(family).contains(QFontDatabase::SimplifiedChinese);
}

/** An installed family with Chinese glyphs (a sans-serif one when there is), empty when none. */
QString chineseFamily()
{
    static const QString family = [] {
        const QFontDatabase db;
        const QStringList all = db.families(QFontDatabase::SimplifiedChinese);
        for (const char* preferred : { "Noto Sans CJK SC", "Noto Sans SC", "Source Han Sans SC" }) {
            if (all.contains(QLatin1String(preferred)))
                return QString::fromLatin1(preferred);
        }
        for (const QString& f : all) {
            if (f.contains(QLatin1String("Sans"), Qt::CaseInsensitive))
                return f;
        }
        return all.value(0);
    }();
    return family;
}

} // namespace

XPinyinBoard::XPinyinBoard(QQuickItem* parent)
    : XBasePaintedItem(parent)
    , m_font(withChineseGlyphs(Core::toQFont(nullptr)))
{
    setAcceptedMouseButtons(Qt::LeftButton);
    showChinese();
}

XPinyinBoard::~XPinyinBoard() = default;

QFont XPinyinBoard::withChineseGlyphs(const QFont& font)
{
    const QFontDatabase db;
    if (hasChinese(db, QFontInfo(font).family()))
        return font;
    const QString family = chineseFamily();
    if (family.isEmpty())
        return font; // nothing better installed: the system's fallback draws what it can
    QFont f = font;
    f.setFamily(family);
    return f;
}

void XPinyinBoard::init(const View_keyBoardData* data)
{
    if (!data)
        return;
    const QString text = Core::fromUtf8(data->candidates);
    // empty pieces are candidates too: the logic layer counts its indexes over them
    m_candidates = text.isEmpty() ? QStringList() : text.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    m_pageStarts.clear();
    m_pageStart = 0;
    m_font = withChineseGlyphs(Core::toQFont(data->font));
    m_textColor = data->font ? Core::toQColor(data->font->color) : QColor(Qt::black);
    m_backColor = Core::toQColor(data->backColor);
    m_selectColor = Core::toQColor(data->selectColor);
    const QRect r = Core::toQRect(data->rect);
    m_fixedSize = r.width() > 0 && r.height() > 0;
    if (m_fixedSize)
        setSize(r.size());
    setSelected(-1);
    showChinese();
    Q_EMIT candidatesChanged();
}

qreal XPinyinBoard::maxWidth() const
{
    if (m_fixedSize)
        return width();
    const QQuickWindow* w = window();
    return w && w->width() > 0 ? w->width() : kDefaultMaxWidth;
}

void XPinyinBoard::showChinese()
{
    const QFontMetricsF fm(m_font);
    const qreal barHeight = m_fixedSize ? height() : std::ceil(fm.height() + 2 * kVPad);
    const qreal button = qMax(kMinButton, barHeight);
    const qreal avail = qMax<qreal>(0, maxWidth() - 2 * button);

    m_rects.clear();
    qreal x = 0;
    const int size = m_candidates.size();
    for (int i = m_pageStart; i < size && m_rects.size() < kMaxPerPage; ++i) {
        qreal w = fm.horizontalAdvance(shownText(m_candidates.at(i))) + 2 * kHPad;
        if (!m_rects.isEmpty() && x + w > avail)
            break;
        w = qMin(w, qMax(avail, 2 * kHPad)); // a lone candidate wider than the bar is cut
        m_rects.append(QRectF(x, 0, w, barHeight));
        x += w;
    }

    const qreal right = m_fixedSize ? width() : x + 2 * button;
    m_nextRect = QRectF(right - button, 0, button, barHeight);
    m_prevRect = QRectF(right - 2 * button, 0, button, barHeight);
    if (!m_fixedSize)
        setSize(QSizeF(right, barHeight));
    update();
    Q_EMIT pageChanged();
}

void XPinyinBoard::setChinese(int index)
{
    if (index < 0 || index >= m_candidates.size())
        return;
    m_candidates.clear();
    m_pageStarts.clear();
    m_pageStart = 0;
    setSelected(-1);
    showChinese();
    Q_EMIT candidatesChanged();
}

void XPinyinBoard::nextPage()
{
    if (!hasNextPage())
        return;
    m_pageStarts.append(m_pageStart);
    m_pageStart += m_rects.size();
    setSelected(-1);
    showChinese();
}

void XPinyinBoard::prevPage()
{
    if (!hasPrevPage())
        return;
    m_pageStart = m_pageStarts.takeLast();
    setSelected(-1);
    showChinese();
}

QRectF XPinyinBoard::candidateRect(int shown) const
{
    return m_rects.value(shown);
}

void XPinyinBoard::setSelected(int shown)
{
    if (m_selected == shown)
        return;
    m_selected = shown;
    update();
    Q_EMIT selectedIndexChanged();
}

void XPinyinBoard::paint(QPainter* painter)
{
    painter->fillRect(boundingRect(), m_backColor);
    painter->setFont(m_font);
    const QFontMetricsF fm(m_font);
    for (int i = 0; i < m_rects.size(); ++i) {
        const QRectF& r = m_rects.at(i);
        if (i == m_selected)
            painter->fillRect(r, m_selectColor);
        painter->setPen(m_textColor);
        const QRectF textRect = r.adjusted(kHPad, 0, -kHPad, 0);
        const QString text = shownText(m_candidates.at(m_pageStart + i));
        painter->drawText(textRect, Qt::AlignCenter, fm.elidedText(text, Qt::ElideRight, textRect.width()));
    }
    // chevrons; a button with no page that way is drawn faint (it still reports its press)
    painter->setRenderHint(QPainter::Antialiasing);
    for (const bool next : { false, true }) {
        const QRectF r = next ? m_nextRect : m_prevRect;
        QColor c = m_textColor;
        if (!(next ? hasNextPage() : hasPrevPage()))
            c.setAlphaF(c.alphaF() * 0.3);
        painter->setPen(QPen(c, qMax<qreal>(2.0, r.height() / 14), Qt::SolidLine, Qt::RoundCap));
        const QRectF g = r.adjusted(r.width() * 0.38, r.height() * 0.3, -r.width() * 0.38, -r.height() * 0.3);
        const qreal tipX = next ? g.right() : g.left();
        const qreal baseX = next ? g.left() : g.right();
        painter->drawLine(QPointF(baseX, g.top()), QPointF(tipX, g.center().y()));
        painter->drawLine(QPointF(tipX, g.center().y()), QPointF(baseX, g.bottom()));
    }
}

void XPinyinBoard::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    const QPointF pos = event->localPos();
    for (int i = 0; i < m_rects.size(); ++i) {
        if (!m_rects.at(i).contains(pos))
            continue;
        setSelected(i);
        int shown = i; // the logic layer may refill the bar during the call
        LogicLayerCaller::call(0, EVT_PINYIN_SELECT, &shown);
        return;
    }
    if (m_nextRect.contains(pos)) {
        nextPage();
        LogicLayerCaller::call(0, EVT_PINYIN_NEXT_PAGE, nullptr);
    } else if (m_prevRect.contains(pos)) {
        prevPage();
        LogicLayerCaller::call(0, EVT_PINYIN_PREV_PAGE, nullptr);
    }
}

#include "xcomponents/qquick/xskcausetext.h"

#include "xcomponents/qquick/xsktextlabel.h"

#include <QQuickItem>
#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>

#include <cmath>

namespace {

/** A diagonal stroke from the bottom-left to the top-right corner, in the colour of the text. */
class SlashItem : public QQuickItem {
public:
    explicit SlashItem(XskTextLabel* label)
        : QQuickItem(label)
        , m_label(label)
    {
        setFlag(ItemHasContents, true);
        setSize(label->size());
        QObject::connect(label, &QQuickItem::widthChanged, this, [this] {
            setSize(m_label->size());
            update();
        });
        QObject::connect(label, &QQuickItem::heightChanged, this, [this] {
            setSize(m_label->size());
            update();
        });
        QObject::connect(label, &XskTextLabel::colorChanged, this, &QQuickItem::update);
        setZ(1);
    }

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override
    {
        auto* node = static_cast<QSGGeometryNode*>(old);
        if (!node) {
            node = new QSGGeometryNode;
            auto* geometry = new QSGGeometry(QSGGeometry::defaultAttributes_Point2D(), 2);
            geometry->setDrawingMode(QSGGeometry::DrawLines);
            geometry->setLineWidth(2);
            node->setGeometry(geometry);
            node->setFlag(QSGNode::OwnsGeometry);
            node->setMaterial(new QSGFlatColorMaterial);
            node->setFlag(QSGNode::OwnsMaterial);
        }
        QSGGeometry::Point2D* v = node->geometry()->vertexDataAsPoint2D();
        v[0].set(0, float(height()));
        v[1].set(float(width()), 0);
        static_cast<QSGFlatColorMaterial*>(node->material())->setColor(m_label->color());
        node->markDirty(QSGNode::DirtyGeometry | QSGNode::DirtyMaterial);
        return node;
    }

private:
    XskTextLabel* m_label;
};

} // namespace

XskCauseText::XskCauseText(QQuickItem* host)
    : m_host(host)
{
    m_label = new XskTextLabel(host);
}

QQuickItem* XskCauseText::getMaskItem()
{
    if (!m_mask) {
        m_mask = new QQuickItem(m_host);
        m_mask->setClip(true);
        m_mask->setSize(m_host->size());
        m_label->setParentItem(m_mask);
    }
    return m_mask;
}

XskCauseText::~XskCauseText() = default;

void XskCauseText::layoutCauseText(const QSizeF& size)
{
    if (m_mask)
        m_mask->setSize(size);
    m_label->setSize(size);
}

void XskCauseText::makeCarouselLabel()
{
    if (m_carousel)
        return;
    XskTextLabel* main = m_label;
    auto* c = new XskTextLabel(getMaskItem());
    m_carousel = c;
    c->setSize(main->size());
    c->setText(main->text());
    c->setFont(main->font());
    c->setColor(main->color());
    c->setHorizontalAlignment(main->horizontalAlignment());
    c->setVerticalAlignment(main->verticalAlignment());
    c->setAlignment(main->alignment());
    c->setFontAlignment(main->fontAlignment());
    c->setLineSpace(main->lineSpace());
    c->setTextHMargin(main->textHMargin());
    c->setTextVMargin(main->textVMargin());
    c->setWrapMode(main->wrapMode());

    // every later change of the main label reaches the copy at once
    QObject::connect(main, &XskTextLabel::textChanged, c, [c, main] { c->setText(main->text()); });
    QObject::connect(main, &XskTextLabel::fontChanged, c, [c, main] { c->setFont(main->font()); });
    QObject::connect(main, &XskTextLabel::colorChanged, c, [c, main] { c->setColor(main->color()); });
    QObject::connect(main, &XskTextLabel::horizontalAlignmentChanged, c,
        [c, main] { c->setHorizontalAlignment(main->horizontalAlignment()); });
    QObject::connect(main, &XskTextLabel::verticalAlignmentChanged, c,
        [c, main] { c->setVerticalAlignment(main->verticalAlignment()); });
    QObject::connect(
        main, &XskTextLabel::aligmentChanged, c, [c, main] { c->setAlignment(main->alignment()); });
    QObject::connect(main, &XskTextLabel::fontAligmentChanged, c,
        [c, main] { c->setFontAlignment(main->fontAlignment()); });
    QObject::connect(
        main, &XskTextLabel::lineSpaceChanged, c, [c, main] { c->setLineSpace(main->lineSpace()); });
    QObject::connect(
        main, &XskTextLabel::textHMarginChanged, c, [c, main] { c->setTextHMargin(main->textHMargin()); });
    QObject::connect(
        main, &XskTextLabel::textVMarginChanged, c, [c, main] { c->setTextVMargin(main->textVMargin()); });
    QObject::connect(
        main, &XskTextLabel::wrapModeChanged, c, [c, main] { c->setWrapMode(main->wrapMode()); });
    QObject::connect(main, &QQuickItem::widthChanged, c, [c, main] { c->setWidth(main->width()); });
    QObject::connect(main, &QQuickItem::heightChanged, c, [c, main] { c->setHeight(main->height()); });

    if (m_slashOn)
        setSlash(true);
}

void XskCauseText::setCarouse(const QPoint& step)
{
    if (step.isNull())
        return;
    makeCarouselLabel();
    m_carousel->setVisible(true);
    const bool horizontal = step.x() != 0;
    const qreal length = horizontal ? m_mask->width() : m_mask->height();
    qreal& acc = horizontal ? m_accX : m_accY;
    (horizontal ? m_accY : m_accX) = 0;
    acc += horizontal ? step.x() : step.y();
    if (length <= 0)
        acc = 0;
    else if (std::abs(acc) >= length)
        acc = std::fmod(acc, length); // back by whole box lengths: the band starts over
    placeLabels(horizontal ? step.x() : step.y(), horizontal);
    m_host->update();
}

void XskCauseText::placeLabels(qreal stepSign, bool horizontal)
{
    const qreal acc = horizontal ? m_accX : m_accY;
    const qreal length = horizontal ? m_mask->width() : m_mask->height();
    // the copy fills the gap the main label leaves behind: on the side the text comes from
    const qreal side = acc > 0 ? -1 : acc < 0 ? 1 : (stepSign > 0 ? -1 : 1);
    const qreal copy = acc + side * length;
    if (horizontal) {
        m_label->setPosition(QPointF(acc, 0));
        m_carousel->setPosition(QPointF(copy, 0));
    } else {
        m_label->setPosition(QPointF(0, acc));
        m_carousel->setPosition(QPointF(0, copy));
    }
}

void XskCauseText::buttonTextCarouse(const QPoint& step)
{
    if (!m_followsParent) {
        m_followsParent = true;
        // the copy lives in the caption's mask and so moves with the caption; when the caption
        // leaves the scene the copy goes with it and its slash is hidden
        QObject::connect(m_host, &QQuickItem::parentChanged, getMaskItem(), [this](QQuickItem* parent) {
            if (parent || !m_carousel)
                return;
            m_carousel->setVisible(false);
            if (m_carouselSlash)
                m_carouselSlash->setVisible(false);
        });
    }
    setCarouse(step);
}

void XskCauseText::hideCarouselItem()
{
    if (m_carousel)
        m_carousel->setVisible(false);
}

void XskCauseText::setSlash(bool on)
{
    m_slashOn = on;
    if (on && !m_slash)
        m_slash = new SlashItem(m_label);
    if (on && m_carousel && !m_carouselSlash)
        m_carouselSlash = new SlashItem(m_carousel);
    if (m_slash)
        m_slash->setVisible(on);
    if (m_carouselSlash)
        m_carouselSlash->setVisible(on);
}

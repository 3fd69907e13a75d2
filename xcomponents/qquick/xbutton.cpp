#include "xcomponents/qquick/xbutton.h"

#include "config/globalconfig.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xquickimage.h"
#include "xcomponents/qquick/xsktextlabel.h"
#include "xcomponents/qquick/xwindow.h"
#include "xcomponents/qquick/xwindowlocator.h"

#include <QQmlEngine>
#include <QTouchEvent>
#include <QtQuick/private/qquickmousearea_p.h>

XButton::XButton(QQuickItem* parent)
    : XBaseControl(parent)
    , m_text(new XCauseText(this))
{
    // the caption is looks only: presses belong to the button
    m_text->setAcceptedMouseButtons(Qt::NoButton);
    m_text->setAcceptTouchEvents(false);
    m_text->setZ(1);
    setAcceptTouchEvents(GlobalConfig::getInstance()->canMutiTouch());
    connect(this, &QQuickControl::fontChanged, this, &XButton::onFontChanged);
    connect(m_text.data(), &XCauseText::textChanged, this, &XButton::textChanged);
}

XButton::~XButton() = default;

void XButton::setImage(const QUrl& url)
{
    m_image = XQuickImage::showBackground(this, m_image.data(), url);
}

void XButton::setImageVisible(bool visible)
{
    if (m_image)
        m_image->setVisible(visible);
}

QString XButton::text() const
{
    return m_text ? m_text->text() : QString();
}

void XButton::setText(const QString& text)
{
    if (m_text)
        m_text->setText(text);
}

void XButton::setLineSpace(int space)
{
    if (m_text)
        m_text->setLineSpace(space);
}

void XButton::setFontColor(const QColor& color)
{
    if (m_fontColor == color)
        return;
    m_fontColor = color;
    if (m_text && !grayFlag())
        m_text->mainLabel()->setColor(color);
    Q_EMIT fontColorChanged();
}

void XButton::setItemBrush(const QBrush& brush)
{
    XBaseControl::setItemBrush(brush);
    setFontColor(brush.color());
}

void XButton::setFontAlignment(int align)
{
    if (m_text)
        m_text->setFontAlignment(align);
}

void XButton::setAlignment(Qt::Alignment align)
{
    if (m_text)
        m_text->setAlignment(align);
}

void XButton::setTextHMargin(int margin)
{
    if (m_text)
        m_text->setTextHMargin(margin);
}

void XButton::setTextVMargin(int margin)
{
    if (m_text)
        m_text->setTextVMargin(margin);
}

void XButton::showSlashItem()
{
    if (m_text)
        m_text->showSlashItem();
}

void XButton::hideSlashItem()
{
    if (m_text)
        m_text->hideSlashItem();
}

bool XButton::hasSlashAnimation() const
{
    return m_text && m_text->hasSlashAnimation();
}

void XButton::setGrayFlag(bool on)
{
    XBaseControl::setGrayFlag(on);
    if (m_text)
        m_text->mainLabel()->setColor(on ? QColor(QStringLiteral("gray")) : m_fontColor);
}

void XButton::setCarouse(const QPoint& step)
{
    if (step.isNull() || !m_text)
        return;
    m_text->buttonTextCarouse(step);
    update();
}

void XButton::hideCarouselItem()
{
    if (m_text)
        m_text->hideCarouselItem();
}

void XButton::resetState()
{
    if (m_text && m_text->parentItem() != this) {
        m_text->setParentItem(this);
        m_text->setPosition(QPointF(0, 0));
        m_text->setSize(size());
    }
}

bool XButton::isTextOutOfRange(int direction)
{
    if (!m_text)
        return false;
    bool out = false;
    if (direction == 0 || direction == 1)
        out = m_text->mainLabel()->contentHeight() > height();
    else if (direction == 2 || direction == 3)
        out = m_text->mainLabel()->contentWidth() > width();
    if (!out)
        m_text->hideCarouselItem();
    return out;
}

void XButton::setDragTarget(QQuickItem* item)
{
    if (!m_dragArea) {
        m_dragArea = new QQuickMouseArea(this);
        m_dragArea->setSize(size());
        m_dragArea->setZ(2);
    }
    if (QObject* drag = m_dragArea->property("drag").value<QObject*>())
        drag->setProperty("target", QVariant::fromValue(item));
}

QQuickItem* XButton::dragArea() const
{
    return m_dragArea.data();
}

void XButton::onFontChanged()
{
    if (m_text)
        m_text->setTextFont(font());
}

void XButton::handOver(const QPointF& pos, bool press)
{
    const XWindowLocator* locator = XWindowLocator::getInstance();
    QQuickItem* holder = locator ? locator->getWindowObj(getWindowId()) : nullptr;
    if (auto* dialog = qobject_cast<XLumoDialog*>(holder)) {
        const QPointF p = mapToItem(dialog, pos);
        press ? dialog->pressHandler(p, this) : dialog->releaseHandler(p, this);
    } else if (auto* window = qobject_cast<XWindow*>(holder)) {
        const QPointF p = mapToItem(window, pos);
        press ? window->pressHandler(p, this) : window->releaseHandler(p, this);
    }
}

void XButton::mousePressEvent(QMouseEvent* event)
{
    handOver(event->localPos(), true);
    event->accept();
}

void XButton::mouseReleaseEvent(QMouseEvent* event)
{
    handOver(event->localPos(), false);
    event->accept();
}

void XButton::touchEvent(QTouchEvent* event)
{
    if (event->type() != QEvent::TouchBegin && event->type() != QEvent::TouchEnd) {
        QQuickItem::touchEvent(event);
        return;
    }
    const QPointF pos = event->touchPoints().isEmpty() ? QPointF() : event->touchPoints().first().pos();
    handOver(pos, event->type() == QEvent::TouchBegin);
    event->accept();
}

void XButton::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    if (m_text && m_text->parentItem() == this)
        m_text->setSize(newGeometry.size());
    XQuickImage::fit(m_image, newGeometry.size());
    if (m_dragArea)
        m_dragArea->setSize(newGeometry.size());
}

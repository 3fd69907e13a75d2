#include "xcomponents/qquick/xbasetextinputcontrol.h"

#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xquickimage.h"

#include <QQmlEngine>
#include <QTimer>

XBaseTextInputControl::XBaseTextInputControl(QQuickItem* parent)
    : XBaseControl(parent)
{
}

XBaseTextInputControl::~XBaseTextInputControl() = default;

void XBaseTextInputControl::setItemPen(const QColor& color)
{
    if (m_pen == color)
        return;
    m_pen = color;
    if (!grayFlag())
        applyTextColor(color);
    Q_EMIT itemPenChanged();
}

void XBaseTextInputControl::setGrayFlag(bool on)
{
    XBaseControl::setGrayFlag(on);
    applyTextColor(on ? QColor(Qt::gray) : m_pen);
}

void XBaseTextInputControl::setInputMode(bool on)
{
    setCursorShown(on);
    if (!on)
        select(0, 0);
    if (m_inputMode == on)
        return;
    m_inputMode = on;
    Q_EMIT inputModeChanged();
}

void XBaseTextInputControl::setInputFlag()
{
    if (!m_blink) {
        m_blink = new QTimer(this);
        m_blink->setInterval(500);
        connect(m_blink, &QTimer::timeout, this, [this] { setCursorShown(!cursorShown()); });
    }
    setCursorShown(true);
    m_blink->start();
}

void XBaseTextInputControl::clearInputFlag()
{
    if (m_blink)
        m_blink->stop();
    setCursorShown(false);
}

bool XBaseTextInputControl::inputFlag() const
{
    return m_blink && m_blink->isActive();
}

void XBaseTextInputControl::setSlashText(const QString& text)
{
    if (m_slashText == text)
        return;
    m_slashText = text;
    Q_EMIT slashTextChanged();
}

void XBaseTextInputControl::setSource(const QUrl& url)
{
    m_image = XQuickImage::showBackground(this, m_image.data(), url);
}

void XBaseTextInputControl::setImageVisible(bool visible)
{
    if (m_image)
        m_image->setVisible(visible);
}

XQuickImage* XBaseTextInputControl::image() const
{
    return m_image.data();
}

void XBaseTextInputControl::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    XQuickImage::fit(m_image, newGeometry.size());
}

#include "xcomponents/qquick/xquickcombobox.h"

#include "platform/logiclayercaller.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"

#include <QMouseEvent>
#include <QTouchEvent>
#include <QtMath>

#include <qgui/events.h>
#include <qgui/types.h>

XQuickComboBox::XQuickComboBox(QQuickItem* parent)
    : XBaseControl(parent)
    , m_popup(new XPopup)
{
    m_popup->setParent(this); // deleted with the box; its item parent is the overlay
    m_popup->setObjectName(QStringLiteral("comboPopup"));
    m_popup->setModal(true);
    m_popup->setClosePolicy(XPopup::CloseOnPressOutside);
    m_popup->setZ(2);
    m_popup->setHeight(m_popHeight);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
}

XQuickComboBox::~XQuickComboBox()
{
    delete m_popup; // before the view it holds goes with the item tree
}

void XQuickComboBox::setPopHeight(int height)
{
    height = qMax(1, height);
    if (m_popHeight == height)
        return;
    m_popHeight = height;
    m_popup->setHeight(height);
    Q_EMIT popHeightChanged();
}

void XQuickComboBox::setFontColor(const QColor& color)
{
    m_fontColor = color;
    Q_EMIT styleChanged();
}

void XQuickComboBox::setBoxColor(const QColor& color)
{
    m_boxColor = color;
    Q_EMIT styleChanged();
}

void XQuickComboBox::setBorderWidth(int width)
{
    m_borderWidth = qBound(0, width, 32);
    Q_EMIT styleChanged();
}

void XQuickComboBox::setItemBrush(const QBrush& brush)
{
    XBaseControl::setItemBrush(brush);
    setBoxColor(brush.color());
}

void XQuickComboBox::setView(QQuickItem* view)
{
    if (m_view == view)
        return;
    delete m_view.data();
    m_view = view;
    if (view) {
        QQuickItem* content = m_popup->contentItem();
        view->setParentItem(content);
        view->setParent(m_popup);
        view->setPosition(QPointF(0, 0));
        view->setSize(content->size());
        connect(content, &QQuickItem::widthChanged, view, [view, content] { view->setWidth(content->width()); });
        connect(content, &QQuickItem::heightChanged, view, [view, content] { view->setHeight(content->height()); });
        if (view->metaObject()->indexOfSignal("itemClicked(int)") >= 0)
            connect(view, SIGNAL(itemClicked(int)), m_popup, SLOT(close()));
    }
    Q_EMIT viewChanged();
}

void XQuickComboBox::setDisplayText(const QString& text)
{
    if (m_displayText == text)
        return;
    m_displayText = text;
    Q_EMIT displayTextChanged();
}

void XQuickComboBox::setDisplayImage(const QUrl& url)
{
    if (url == m_displayImage)
        return;
    m_displayImage = url;
    Q_EMIT displayImageChanged();
}

void XQuickComboBox::setDisplayTextFont(const QFont& font)
{
    m_displayFont = font;
    Q_EMIT styleChanged();
}

void XQuickComboBox::setDisplayTextAlign(unsigned align, int margin)
{
    m_hAlign = (align & QGUI_ALIGN_RIGHT) ? Qt::AlignRight
        : (align & QGUI_ALIGN_HCENTER)    ? Qt::AlignHCenter
                                          : Qt::AlignLeft;
    m_vAlign = (align & QGUI_ALIGN_TOP) ? Qt::AlignTop : (align & QGUI_ALIGN_BOTTOM) ? Qt::AlignBottom : Qt::AlignVCenter;
    m_margin = qBound(0, margin, 1000);
    Q_EMIT styleChanged();
}

void XQuickComboBox::placePopup()
{
    XOverlay* overlay = m_popup->overlay();
    m_popup->setWidth(width());
    m_popup->setHeight(m_popHeight);
    if (!overlay)
        return;
    const QPointF corner(qFloor(x()), qFloor(y() + height()));
    const QPointF at = parentItem() ? overlay->mapFromItem(parentItem(), corner) : corner;
    m_popup->setPosition(QPointF(qFloor(at.x()), qFloor(at.y())));
}

bool XQuickComboBox::openPopup()
{
    if (!m_popup->overlay())
        return false;
    placePopup();
    m_popup->open();
    return true;
}

bool XQuickComboBox::isPopupOpen() const
{
    return m_popup->isOpened();
}

void XQuickComboBox::open(bool opened)
{
    LogicLayerCaller::call(getId(), 3 - int(opened), nullptr);
}

void XQuickComboBox::pressed()
{
    m_pressed = true;
    m_pressedWhileOpen = m_popup->isOpened();
    if (!m_pressedWhileOpen)
        open(true);
}

void XQuickComboBox::released()
{
    if (!m_pressed)
        return;
    m_pressed = false;
    if (m_pressedWhileOpen) {
        m_pressedWhileOpen = false;
        m_popup->close(); // the release after a press on the open box closes it and reports nothing
        return;
    }
    open(false);
}

void XQuickComboBox::mousePressEvent(QMouseEvent* event)
{
    pressed();
    event->accept();
}

void XQuickComboBox::mouseReleaseEvent(QMouseEvent* event)
{
    released();
    event->accept();
}

void XQuickComboBox::touchEvent(QTouchEvent* event)
{
    if (event->type() == QEvent::TouchBegin)
        pressed();
    else if (event->type() == QEvent::TouchEnd || event->type() == QEvent::TouchCancel)
        released();
    event->accept();
}

void XQuickComboBox::itemChange(ItemChange change, const ItemChangeData& data)
{
    XBaseControl::itemChange(change, data);
    if ((change == ItemVisibleHasChanged && !data.boolValue) || (change == ItemParentHasChanged && !data.item)
        || (change == ItemSceneChange && !data.window))
        m_popup->close();
}

// Static texts: creation, restyle, content, colour, carousel steps, and whether
// a carousel is needed. Texts, button captions and other text-bearing widgets
// take content and colour by method name, so any widget offering the method
// takes part.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xsktextlabel.h"

#include <QMetaObject>
#include <QQuickItem>

using GuiQtAdapt::Core;

namespace {

using Props = WidgetPropertyManage;

/** Sets \a text on any widget that offers setText(QString). */
void sendText(QQuickItem* item, const QString& text)
{
    if (auto* t = qobject_cast<XCauseText*>(item))
        t->setText(text); // the common case, without the look-up by name
    else
        Props::invokeIf(item, "setText", "setText(QString)", Q_ARG(QString, text));
}

/** The label that takes font, spacing, alignment and margins, if the item has one. */
XskTextLabel* labelOf(QQuickItem* item)
{
    if (auto* cause = dynamic_cast<XskCauseText*>(item))
        return cause->mainLabel();
    return qobject_cast<XskTextLabel*>(item);
}

void applyLayout(XskTextLabel* label, const View_TextLayout* layout)
{
    if (!layout)
        return;
    label->setAlignment(Core::toQAlignment(layout->align));
    label->setTextHMargin(layout->hMargin);
    label->setTextVMargin(layout->vMargin);
}

} // namespace

int ViewManage::View_CreateText(const View_Text* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* text = new XCauseText(window);
    text->setText(Core::fromUtf8(rec->text));
    text->setTextFont(Core::toQFont(rec->font));
    if (rec->font) {
        text->setLineSpace(rec->font->lineSpace);
        text->setFontAlignment(Core::toQAlignment(rec->font));
        text->setFontColor(Core::toQColor(rec->font->color));
    }
    applyLayout(text->mainLabel(), rec->layout);
    placeWidget(text, rec, windowId);
    return 0;
}

int ViewManage::View_ChangeTextParam(unsigned int id, const View_Text* rec)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item || !rec)
        return -1;
    WidgetPropertyManage::applyHeader(item, rec->header);
    sendText(item, Core::fromUtf8(rec->text));
    if (!rec->font)
        return 0;
    const QFont font = Core::toQFont(rec->font);
    if (XskTextLabel* label = labelOf(item)) {
        label->setFont(font);
        label->setLineSpace(rec->font->lineSpace);
        label->setFontAlignment(Core::toQAlignment(rec->font));
        applyLayout(label, rec->layout);
    } else if (auto* control = qobject_cast<QQuickControl*>(item)) {
        control->setFont(font);
    }
    // the pen colour is the text colour
    Props::invokeIf(
        item, "setItemPen", "setItemPen(QPen)", Q_ARG(QPen, QPen(Core::toQColor(rec->font->color))));
    return 0;
}

int ViewManage::View_ChangeTitle(unsigned int id, const View_Text* rec)
{
    // a widget's title is its caption: text, and with a font its font and colour
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item || !rec)
        return -1;
    sendText(item, Core::fromUtf8(rec->text));
    if (rec->font) {
        if (XskTextLabel* label = labelOf(item))
            label->setFont(Core::toQFont(rec->font));
        Props::invokeIf(
            item, "setFontColor", "setFontColor(QColor)", Q_ARG(QColor, Core::toQColor(rec->font->color)));
    }
    return 0;
}

int ViewManage::View_ChangeText(unsigned int id, const char* text, const Font* font)
{
    Q_UNUSED(font) // the content only; the style changes with View_ChangeTextParam
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        sendText(item, Core::fromUtf8(text));
    return 0;
}

int ViewManage::View_ChangeFontColor(unsigned int id, const Brush* brush)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    const QBrush solid(Core::toFontColor(brush));
    Props::invokeIf(item, "setItemBrush", "setItemBrush(QBrush)", Q_ARG(QBrush, solid));
    return 0;
}

int ViewManage::View_CarouselText(unsigned int id, int dx, int dy)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return -1;
    const QPoint step(dx, dy);
    if (auto* text = dynamic_cast<XskCauseText*>(item)) {
        text->setCarouse(step);
        item->update();
        return 0;
    }
    // buttons, alarm bars and tables move too, but report -1: the logic layer relies on it
    if (auto* button = qobject_cast<XButton*>(item))
        button->setCarouse(step);
    else if (item->inherits("XAlarmBarControl") || item->inherits("XHAlarmBarControl")
        || item->inherits("XTableViewControl"))
        Props::invokeIf(item, "setCarouse", "setCarouse(QPoint)", Q_ARG(QPoint, step));
    return -1;
}

int ViewManage::View_IsTextOutOfRange(unsigned int id, int direction)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return -1;
    if (auto* button = qobject_cast<XButton*>(item); button && button->isTextOutOfRange(direction))
        return 0;
    return item->inherits("XTableViewControl") ? 0 : -1;
}

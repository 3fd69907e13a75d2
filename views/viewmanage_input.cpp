// Text and numeric input fields: the single-line and multi-line fields, their
// restyle and their cursor and selection calls. The fields only show the value:
// the logic layer opens the keyboard on their press events and writes the
// accepted value back.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xlineinputtext.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xquickimage.h"
#include "xcomponents/qquick/xquicktextedit.h"
#include "xcomponents/qquick/xtextedit.h"

#include <QQuickItem>

using GuiQtAdapt::Core;

namespace {

/** Font, text colour and the layout of the text in the field, shared by creation and restyle. */
void applyLineStyle(XLineInputText* field, const View_Input* rec)
{
    if (rec->font) {
        field->setFont(Core::toQFont(rec->font));
        field->setItemPen(Core::toQColor(rec->font->color));
        field->setFontAlignment(int(rec->font->align));
    }
    if (const View_TextLayout* layout = rec->layout)
        field->setAlignment(int(layout->align), layout->hMargin, layout->vMargin);
    else
        field->setAlignment(0x01 | 0x80, 0, 0);
}

void applyEditStyle(XTextEdit* field, const View_Input* rec)
{
    if (rec->font) {
        field->setFont(Core::toQFont(rec->font));
        field->setItemPen(Core::toQColor(rec->font->color));
        field->setHeightSpacing(rec->font->lineSpace);
    }
    field->setAlignment(rec->layout ? int(rec->layout->align) : 0x01 | 0x20);
    if (rec->font)
        field->setFontAlignment(int(rec->font->align));
    field->setPadding(rec->paddingLeft, rec->paddingTop, rec->paddingRight, rec->paddingBottom);
    field->setLineNumber(rec->lineNumber);
    field->setTotalLine(rec->totalLine);
}

/** Background picture and texts, at creation only. */
void applyContent(XBaseTextInputControl* field, const View_Input* rec)
{
    if (rec->image && *rec->image) {
        const QUrl url = PictureCacheManage::getInstance()->getUrl(Core::fromString(rec->image));
        if (url.isValid())
            field->setSource(url);
    }
    field->setSlashText(Core::cutText(Core::fromUtf8(rec->slashText), Core::kMaxShownText));
    field->setText(Core::fromUtf8(rec->text));
}

} // namespace

int ViewManage::View_CreateInputText(const View_Input* rec, unsigned int windowId)
{
    if (!rec || !(rec->flags & INPUT_MULTILINE))
        return View_CreateNumInputText(rec, windowId);
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/QmlTextEdit.qml")), window);
    auto* field = qobject_cast<XTextEdit*>(item);
    if (!field) {
        delete item;
        return -1;
    }
    // the rectangle first, so that the text wraps once at its final width
    const QRect r = Core::toQRect(rec->rect);
    field->setSize(r.size());
    field->setPosition(r.topLeft());
    applyContent(field, rec);
    applyEditStyle(field, rec);
    placeWidget(field, rec, windowId);
    return 0;
}

int ViewManage::View_CreateNumInputText(const View_Input* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* field = new XLineInputText(window);
    applyContent(field, rec);
    applyLineStyle(field, rec);
    placeWidget(field, rec, windowId);
    return 0;
}

int ViewManage::View_ChangeInputParam(unsigned int id, const View_Input* rec)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    auto* line = qobject_cast<XLineInputText*>(item);
    auto* edit = qobject_cast<XTextEdit*>(item);
    if ((!line && !edit) || !rec)
        return -1;
    const QRect r = Core::toQRect(rec->rect);
    item->setSize(r.size());
    item->setPosition(r.topLeft());
    WidgetPropertyManage::applyHeader(item, rec->header);
    if (line)
        applyLineStyle(line, rec);
    else
        applyEditStyle(edit, rec);
    return 0;
}

int ViewManage::View_SetTextCursorFocus(unsigned int)
{
    return 0; // the fields never take focus: the keyboard's entry line has it
}

int ViewManage::View_SetTextCursorPosition(unsigned int id, unsigned int position)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return -1;
    const int pos = int(qMin<unsigned>(position, unsigned(INT_MAX)));
    return WidgetPropertyManage::invokeIf(item, "setCursorPosition", "setCursorPosition(int)", Q_ARG(int, pos))
        ? 0
        : -1;
}

int ViewManage::View_SetTextSelectCursor(unsigned int id, unsigned int start, unsigned int end)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id)) {
        const int s = int(qMin<unsigned>(start, unsigned(INT_MAX)));
        const int e = int(qMin<unsigned>(end, unsigned(INT_MAX)));
        WidgetPropertyManage::invokeIf(item, "select", "select(int,int)", Q_ARG(int, s), Q_ARG(int, e));
    }
    return 0;
}

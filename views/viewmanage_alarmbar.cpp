// Alarm bars: the table bar (directions 0 and 1 scroll the rows, 2 and 3 the
// whole table sideways) and the marquee bar (directions 2 and 3 run the cells
// along one line). Titles, alarms and column visibility change through the
// list family's calls; View_CarouselText steps a bar.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/tablesetup.h"
#include "xcomponents/qquick/xalarmbarcontrol.h"
#include "xcomponents/qquick/xhalarmbarcontrol.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QUrl>

namespace {
const QUrl kTableBarUrl(QStringLiteral("qrc:/list/QmlAlarmBar.qml"));
const QUrl kMarqueeBarUrl(QStringLiteral("qrc:/list/QmlHAlarmBar.qml"));
} // namespace

int ViewManage::View_CreateListAlarmBar(const View_listAlarmBar* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    const View_List& list = rec->list;
    const int direction = int((list.flags & CAROUSE_DIR_MASK) >> CAROUSE_DIR_SHIFT);
    const bool marquee = direction == CAROUSE_DIR_LEFT || direction == CAROUSE_DIR_RIGHT;
    XQmlComponentManage* components = XQmlComponentManage::getInstance();
    QQuickItem* made = components->createItem(marquee ? kMarqueeBarUrl : kTableBarUrl, window);
    if (!made)
        return -1;
    auto* bar = qobject_cast<XAlarmBar*>(made);
    if (!bar || (marquee != bool(qobject_cast<XHAlarmBarControl*>(bar))))
        return 0; // not the bar expected: left as it is, not registered
    const QRect r = GuiQtAdapt::Core::toQRect(list.rect);
    bar->setSize(QSizeF(qMax(0, r.width()), qMax(0, r.height()))); // laid out once, at its size
    if (!bar->initialze(TableSetup::toSetup(list, true), direction, rec->colSpace, components->engine())) {
        delete bar;
        return -1;
    }
    if (auto* line = qobject_cast<XHAlarmBarControl*>(bar))
        line->setDirectionLeftToRight(direction == CAROUSE_DIR_RIGHT);
    placeWidget(bar, &list, windowId);
    return 0;
}

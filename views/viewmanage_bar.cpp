// Bar graphs: bars filled in percent of their range from an origin, a target
// band and a scale.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/shapesetup.h"
#include "xcomponents/qquick/xbar.h"

#include <cmath>

using GuiQtAdapt::Core;

int ViewManage::View_CreateBar(const View_Bar* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* bar = new XBar(window);
    bar->setDirection(rec->direction <= BAR_RIGHT ? XBar::Direction(rec->direction) : XBar::Up);
    bar->setBarCount(rec->barCount);
    bar->setOrigin(rec->origin);
    bar->setTargetVisible(rec->showTarget != 0);
    const QRectF box(0, 0, qMax(0, rec->rect.width), qMax(0, rec->rect.height));
    bar->setLook(Core::toQBrush(rec->background, box), Core::toQPen(rec->border), Core::toQPen(rec->scalePen),
        Core::toQPen(rec->targetPen));
    bar->setScale(rec->showScale != 0, rec->majorCount, rec->minorCount, Core::toQFont(rec->font),
        rec->font ? Core::toQColor(rec->font->color) : QColor(Qt::black));
    placeWidget(bar, rec, windowId);
    return 0;
}

int ViewManage::View_BarUpdateOrigin(unsigned int id, unsigned char percent)
{
    auto* bar = qobject_cast<XBar*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!bar)
        return -1;
    bar->setOrigin(percent);
    return 0;
}

int ViewManage::View_BarUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    auto* bar = qobject_cast<XBar*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!bar)
        return -1;
    bar->setLabels(ShapeSetup::toLabels(labels, XBar::kMaxTicks + 1));
    return 0;
}

int ViewManage::View_BarUpdateTarget(unsigned int id, unsigned char low, unsigned char high)
{
    auto* bar = qobject_cast<XBar*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!bar)
        return -1;
    bar->setTarget(low, high);
    return 0;
}

int ViewManage::View_BarUpdateVar(unsigned int id, unsigned char index, const char* value, const Brush& brush)
{
    auto* bar = qobject_cast<XBar*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!bar || index >= bar->barCount())
        return -1;
    const QRectF box(0, 0, bar->width(), bar->height());
    // a text that is no number keeps the level and changes the fill only
    bool number = false;
    const double percent = value ? QByteArray(value).trimmed().toDouble(&number) : 0;
    if (number && std::isfinite(percent))
        bar->setValue(index, percent, Core::toQBrush(brush, box));
    else
        bar->setBarBrush(index, Core::toQBrush(brush, box));
    return 0;
}

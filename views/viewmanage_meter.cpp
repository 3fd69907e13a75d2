// Dial meters: a scale on a circle, alarm arc, labels and a swinging needle.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/shapesetup.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xmeter.h"

using GuiQtAdapt::Core;

// Reserved: a meter group is made as a group with View_CreateGroup and meters put into it.
int ViewManage::View_CreateGroupMeter()
{
    return -1;
}

int ViewManage::View_CreateMeter(const View_Meter* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* meter = new XMeter(window);
    ScaleCircle& scale = meter->scale();
    scale.setRange(rec->minimum, rec->maximum);
    scale.setAngles(rec->startAngle, qBound(-360, rec->spanAngle, 360));
    scale.setTickCount(qBound(1, rec->majorCount, 1000), qBound(0, rec->minorCount, 100));
    meter->scaleChanged();
    const int side = qMax(1, qMin(rec->rect.width, rec->rect.height));
    QImage dial;
    const QUrl url = PictureCacheManage::getInstance()->getUrl(Core::fromUtf8(rec->dial));
    if (url.isValid()) {
        QSize size;
        dial = PictureCacheManage::getInstance()->image(url.path().mid(1), &size, QSize(side, side));
    }
    meter->setDial(dial, Core::toQBrush(rec->dialBrush, QRectF(0, 0, side, side)));
    meter->setPens(Core::toQPen(rec->scalePen), Core::toQPen(rec->needlePen));
    meter->setFont(Core::toQFont(rec->font), rec->font ? Core::toQColor(rec->font->color) : QColor(Qt::black));
    meter->setAlarmColor(Core::toQColor(rec->alarmColor));
    meter->setValue(rec->minimum, false);
    placeWidget(meter, rec, windowId);
    return 0;
}

int ViewManage::View_MeterUpdateAlarmRange(unsigned int id, int low, int high)
{
    auto* meter = qobject_cast<XMeter*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!meter)
        return -1;
    meter->setAlarmRange(low, high); // in the record's alarm colour
    return 0;
}

int ViewManage::View_MeterUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    auto* meter = qobject_cast<XMeter*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!meter)
        return -1;
    meter->setLabels(ShapeSetup::toLabels(labels, meter->scale().majorCount() + 1));
    return 0;
}

int ViewManage::View_MeterUpdateVal(unsigned int id, int value)
{
    auto* meter = qobject_cast<XMeter*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!meter)
        return -1;
    meter->setValue(value);
    return 0;
}

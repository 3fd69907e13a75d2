// Sliders: a handle on a groove with an optional ruler; presses, drags and
// releases report the value under the finger.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/shapesetup.h"
#include "xcomponents/qquick/baseslider.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/sliderruler.h"

using GuiQtAdapt::Core;

int ViewManage::View_CreateSlider(const View_Slider* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* slider = new BaseSlider(window);
    slider->setSize(QSizeF(qMax(0, rec->rect.width), qMax(0, rec->rect.height)));
    slider->setDirection(rec->direction <= BAR_RIGHT ? BaseSlider::Direction(rec->direction) : BaseSlider::Right);
    slider->setRange(rec->minimum, rec->maximum); // non-finite ends keep 0..100
    slider->setStep(rec->step);
    slider->setValue(rec->value);
    QImage handle;
    const QUrl url = PictureCacheManage::getInstance()->getUrl(Core::fromUtf8(rec->handle));
    if (url.isValid()) {
        QSize size;
        handle = PictureCacheManage::getInstance()->image(url.path().mid(1), &size, QSize(64, 64));
    }
    const QRectF box(0, 0, qMax(0, rec->rect.width), qMax(0, rec->rect.height));
    slider->setLook(Core::toQBrush(rec->groove, box), handle, Core::toQBrush(rec->handleBrush, QRectF(0, 0, 48, 48)));
    slider->setScale(rec->majorCount, Core::toQFont(rec->font),
        rec->font ? Core::toQColor(rec->font->color) : QColor(Qt::black));
    placeWidget(slider, rec, windowId);
    return 0;
}

int ViewManage::View_ChangeSliderLabels(unsigned int id, const std::vector<std::string>& labels)
{
    auto* slider = qobject_cast<BaseSlider*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!slider)
        return -1;
    if (SliderRuler* ruler = slider->ruler()) // a slider without a scale has nowhere to show labels
        ruler->setLabels(ShapeSetup::toLabels(labels, ruler->majorCount() + 1));
    return 0;
}

int ViewManage::View_ChangeSliderPos(unsigned int id, double value)
{
    auto* slider = qobject_cast<BaseSlider*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!slider)
        return -1;
    slider->setValue(value); // NaN and infinities are ignored
    return 0;
}

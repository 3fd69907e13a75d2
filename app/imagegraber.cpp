#include "app/imagegraber.h"

#include "app/framepacer.h"
#include "app/guishell.h"
#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"
#include "xcomponents/qquick/xwindowlocator.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>

#include <qgui/events.h>

ImageGraber* ImageGraber::getInstance()
{
    static ImageGraber* graber = new ImageGraber; // lives as long as the process
    return graber;
}

ImageGraber::ImageGraber(QObject* parent)
    : QObject(parent)
{
}

QQuickItem* ImageGraber::itemFor(unsigned windowId) const
{
    if (windowId == 0) {
        GuiShell* shell = GuiShell::instance();
        return shell ? shell->getGuiRect() : nullptr;
    }
    const XWindowLocator* locator = XWindowLocator::getInstance();
    return locator ? locator->getWindowObj(windowId) : nullptr;
}

void ImageGraber::report(unsigned id, int result, const QString& path)
{
    const QByteArray p = path.toUtf8();
    View_EvtScreenShot ev {};
    ev.result = result;
    ev.path = p.constData();
    LogicLayerCaller::call(id, EVT_SCREENSHOT, &ev);
}

bool ImageGraber::grabImageOf(
    unsigned id, QQuickItem* item, const QRect& rect, int quality, const QString& path)
{
    if (!item || path.isEmpty() || !item->window() || !item->window()->isVisible() || item->width() <= 0
        || item->height() <= 0)
        return false;
    GuiShell* shell = GuiShell::instance();
    if (shell && item == shell->getGuiRect()) {
        // the whole panel as the operator sees it: what lies over it (the on-screen keyboard and its
        // entry line) is in the picture too
        QImage img = FramePacer::grab(item->window());
        const QRect onScreen = item->mapRectToScene(item->boundingRect()).toAlignedRect();
        img = img.copy(onScreen.intersected(img.rect()));
        if (rect.width() > 0 && rect.height() > 0)
            img = img.copy(rect);
        ++m_pending;
        QMetaObject::invokeMethod(
            this,
            [this, img, id, quality, path]() {
                --m_pending;
                save(id, img, quality, path);
            },
            Qt::QueuedConnection);
        return true;
    }
    QSharedPointer<QQuickItemGrabResult> result = item->grabToImage();
    if (!result)
        return false;
    ++m_pending;
    QPointer<ImageGraber> self(this);
    connect(
        result.data(), &QQuickItemGrabResult::ready, this, [this, self, result, id, rect, quality, path]() {
            --m_pending;
            QImage img = result->image();
            if (rect.width() > 0 && rect.height() > 0)
                img = img.copy(rect);
            save(id, img, quality, path);
        });
    return true;
}

void ImageGraber::save(unsigned id, const QImage& img, int quality, const QString& path)
{
    const QFileInfo fi(path);
    QDir().mkpath(fi.absolutePath());
    const bool ok = !img.isNull() && img.save(path, nullptr, quality > 0 ? qMin(quality, 100) : -1);
    if (!ok)
        NLog::NLogger::instance()->logger()->warn("screenshot not written: {}", path.toStdString());
    report(id, ok ? 0 : -1, path);
}

bool ImageGraber::loadImage(unsigned id, const QString& path)
{
    QImage img(path);
    const QByteArray p = path.toUtf8();
    View_EvtScreenShot ev {};
    ev.path = p.constData();
    if (img.isNull()) {
        ev.result = -1;
        LogicLayerCaller::call(id, EVT_SCREENSHOT, &ev);
        return false;
    }
    img = img.convertToFormat(QImage::Format_ARGB32);
    ev.result = 0;
    ev.width = img.width();
    ev.height = img.height();
    ev.bytesPerLine = img.bytesPerLine();
    ev.bits = img.constBits();
    LogicLayerCaller::call(id, EVT_SCREENSHOT, &ev);
    return true;
}

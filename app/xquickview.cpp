#include "app/xquickview.h"

#include "app/framepacer.h"
#include "app/guiapplication.h"
#include "app/guishell.h"
#include "app/rasterthreads.h"
#include "config/globalconfig.h"
#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"

#include <QKeyEvent>
#include <QQuickItem>
#include <QResizeEvent>

#include <qgui/events.h>

XQuickView::XQuickView(QWindow* parent)
    : QQuickView(parent)
{
    // not in the initialiser list: making the pacer a child sends this view an event
    if (FramePacer::enabledByEnvironment()) {
        m_pacer = new FramePacer(this);
        if (GuiApplication* app = GuiApplication::instance())
            m_pacer->setBeat(app->beat());
    }
    // the software renderer's threads exist once the scene graph has its context (render thread)
    connect(this, &QQuickWindow::sceneGraphInitialized, this, [] {
        static const int nice = RasterThreads::niceFromEnvironment();
        if (const int n = RasterThreads::lowerPriority(nice))
            NLog::NLogger::instance()->logger()->info("{} rasterising threads run at niceness {}", n, nice);
    }, Qt::DirectConnection);
}

XQuickView::~XQuickView()
{
    if (GlobalConfig::getInstance()->scaleSource() == this)
        GlobalConfig::getInstance()->setScaleSource(nullptr);
}

void XQuickView::setXResizeMode(XResizeMode mode)
{
    m_resizeMode = mode;
    setResizeMode(
        mode == SizeViewToRootObject ? QQuickView::SizeViewToRootObject : QQuickView::SizeRootObjectToView);
}

double XQuickView::rootItemScale() const
{
    GuiShell* shell = GuiShell::instance();
    QQuickItem* rect = shell ? shell->getGuiRect() : nullptr;
    return rect ? rect->scale() : 1.0;
}

void XQuickView::setRootItemScale(double scale)
{
    if (GuiShell* shell = GuiShell::instance())
        shell->setGuiRectScale(scale);
}

void XQuickView::onChangeZoom(int index, const QString& percent)
{
    bool ok = false;
    double p = percent.trimmed().toDouble(&ok);
    if (!ok || p <= 0.0)
        return; // a zoom text that is not a positive number changes nothing
    m_zoomIndex = index;
    const double scale = p / 100.0;
    setRootItemScale(scale);
    Q_EMIT rootItemScaleChanged(scale);
}

bool XQuickView::event(QEvent* event)
{
    Q_EMIT beforeEvent(event);
    if (!m_pacer)
        return QQuickView::event(event);
    if (m_pacer->holdUpdate(event))
        return true;
    m_pacer->windowEventStarted(event);
    const bool handled = QQuickView::event(event);
    m_pacer->windowEventEnded(event);
    return handled;
}

void XQuickView::resizeEvent(QResizeEvent* event)
{
    if (m_resizeMode == SizeRootObjectToViewFirst) {
        if (QQuickItem* root = rootObject())
            root->setSize(QSizeF(event->size()));
    }
    QQuickView::resizeEvent(event);
}

int XQuickView::reportedKeyCode(const QKeyEvent* event)
{
    const QString text = event->text();
    if (!text.isEmpty())
        return int(static_cast<signed char>(text.at(0).toLatin1()));
    switch (event->key()) {
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Delete:
        return 127;
    default:
        return event->key();
    }
}

bool XQuickView::reportKey(QKeyEvent* event, int code)
{
    if (event->isAutoRepeat()) {
        event->accept();
        return true;
    }
    if (event->nativeScanCode() != 0) {
        int key = reportedKeyCode(event);
        LogicLayerCaller::call(0, code, &key);
    }
    return false;
}

void XQuickView::keyPressEvent(QKeyEvent* event)
{
    if (!reportKey(event, EVT_KEY_PRESS))
        QQuickView::keyPressEvent(event);
}

void XQuickView::keyReleaseEvent(QKeyEvent* event)
{
    if (!reportKey(event, EVT_KEY_RELEASE))
        QQuickView::keyReleaseEvent(event);
}

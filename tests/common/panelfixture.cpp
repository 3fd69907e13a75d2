#include "panelfixture.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "testutil.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QQuickItem>
#include <QTest>

PanelFixture::PanelFixture()
    : m_touch(QTest::createTouchDevice())
{
}

PanelFixture::~PanelFixture()
{
    stop();
}

bool PanelFixture::start(QSize size)
{
    stop();
    m_view = std::make_unique<XQuickView>();
    if (auto* app = GuiApplication::instance())
        app->setView(m_view.get());
    m_view->setXResizeMode(XQuickView::SizeRootObjectToViewFirst);
    XQmlComponentManage::getInstance()->setEngine(m_view->engine());
    m_view->setSource(QUrl(QStringLiteral("qrc:/shell/halvex.qml")));
    if (m_view->status() != QQuickView::Ready)
        return false;
    m_view->resize(size);
    if (!TestUtil::waitForFrame(m_view.get()))
        return false;
    ViewManage::getInstance();
    View_CreateDesktop(Size { size.width(), size.height() }, 1);
    // the view fits the panel: with the panel as large as the window there is no scrolling offset
    m_view->resize(size);
    QTest::qWait(20);
    return TestUtil::waitForFrame(m_view.get());
}

void PanelFixture::stop()
{
    if (!m_view)
        return;
    ViewManage::destroyInstance();
    settle();
    XQmlComponentManage::getInstance()->setEngine(nullptr);
    if (auto* app = GuiApplication::instance())
        app->setView(nullptr);
    m_view.reset();
    settle();
}

int PanelFixture::switchWindow(unsigned windowId, const Rect& rect, unsigned color)
{
    View_Window w {};
    w.rect = rect;
    w.id = windowId;
    w.background = Brush { BRUSH_SOLID, color, 0, 0 };
    return View_SwitchWindow(&w);
}

int PanelFixture::popup(
    unsigned windowId, const Rect& rect, int z, bool modal, unsigned buttons, const char* title)
{
    View_Window w {};
    w.rect = rect;
    w.id = windowId;
    w.background = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    w.border = Pen { 0xFF000000u, 2, PEN_SOLID };
    w.title = title;
    View_Popup p {};
    p.z = z;
    p.modal = modal ? 1 : 0;
    p.movable = 1;
    p.buttons = U8(buttons);
    p.titleHeight = 40;
    return View_PopupWindow(&w, windowId, &p, 0);
}

QPoint PanelFixture::scenePoint(const QQuickItem* item, QPointF local) const
{
    return item->mapToScene(local).toPoint();
}

QPoint PanelFixture::sceneCenter(const QQuickItem* item) const
{
    return scenePoint(item, QPointF(item->width() / 2, item->height() / 2));
}

void PanelFixture::click(QPoint p)
{
    QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, p);
}

bool PanelFixture::typeOnKeyboard(const QStringList& keys)
{
    VirtualKeyboardManager* vkb = VirtualKeyboardManager::instance();
    if (!TestUtil::waitForFrame(m_view.get()))
        return false;
    for (const QString& k : keys) {
        QQuickItem* key = TestUtil::findItem(vkb->keyboardItem(), "key_" + k);
        if (!key || !key->isVisible())
            return false;
        click(sceneCenter(key));
    }
    return true;
}

void PanelFixture::press(QPoint p)
{
    QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::NoModifier, p);
}

void PanelFixture::release(QPoint p)
{
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::NoModifier, p);
}

void PanelFixture::touch(QPoint p)
{
    QTest::touchEvent(m_view.get(), m_touch).press(0, p, m_view.get());
    QTest::touchEvent(m_view.get(), m_touch).release(0, p, m_view.get());
}

XBaseControl* PanelFixture::control(unsigned id, unsigned windowId, QPointF pos)
{
    QQuickItem* content = ViewManage::getInstance()->windowManage()->getWindow(windowId);
    auto* c = new XBaseControl(content);
    c->setSize({ 80, 50 });
    c->setPosition(pos);
    c->setId(id);
    c->setWindowId(windowId);
    ViewManage::getInstance()->appendItem(id, c);
    return c;
}

void PanelFixture::settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

// QR codes: creation and content.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "xcomponents/qquick/xqrcode.h"

#include <QQmlContext>
#include <QQmlEngine>

using GuiQtAdapt::Core;

int ViewManage::View_CreateQRCode(const View_QRCode* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* code = new XQRCode(window);
    QQmlEngine* engine = getQmlEngine();
    if (!engine)
        engine = qmlEngine(window);
    if (engine) {
        QQmlEngine::setContextForObject(code, engine->rootContext());
        if (!XQRCode::imageProviderInit())
            XQRCode::initImageProvider(engine);
    }
    code->setFrontColor(Core::toQColor(rec->frontColor));
    code->setBackColor(Core::toQColor(rec->backColor));
    code->setEcc(int(rec->ecc & 3));
    placeWidget(code, rec, windowId);
    return 0;
}

int ViewManage::View_UpdateQRCodeContent(unsigned int id, const char* text)
{
    if (auto* code = qobject_cast<XQRCode*>(m_lifeCycle->findItemMaybeVisible(id)))
        code->setContent(text); // a text too long keeps the previous symbol (logged)
    return 0;
}

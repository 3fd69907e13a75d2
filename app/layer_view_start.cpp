// Exports: start-up and main loop of the panel, and the project package.
#include "app/ccrashstack.h"
#include "app/guiapplication.h"
#include "app/guishell.h"
#include "app/layerlog.h"
#include "app/metatypes.h"
#include "app/xquickview.h"
#include "config/fontmange.h"
#include "config/globalconfig.h"
#include "config/qmltypes.h"
#include "config/xeventfilter.h"
#include "platform/logiclayercaller.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QIcon>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSurfaceFormat>

#include <memory>
#include <string>
#include <vector>

#include <qgui/view.h>

namespace {
const char* const kMessagePattern
    = "[%{if-debug}D%{endif}%{if-info}I%{endif}%{if-warning}W%{endif}%{if-critical}C%{endif}"
      "%{if-fatal}F%{endif} %{file}:%{line}] %{message}";
}

int View_MainThreadLoop(int argc, char** argv, const _Main_CallBacks* callbacks)
{
    auto* log = NLog::NLogger::instance();
    // 1. the start-up arguments, converted from the local encoding
    if (argc != 1) {
        log->log(spdlog::level::info, "qgui/app/layer_view", "View_MainThreadLoop", "start-up arguments: {}",
            argc);
        for (int i = 0; argv && i < argc; ++i) {
            const std::string arg = argv[i] ? argv[i] : "";
            log->logger()->info("\n\tArg #{}: {}", i, View_CvtEncode2(2, 0, arg));
        }
    } else {
        QGUI_LAYER_LOG("");
    }
    if (!callbacks) {
        log->logger()->error("View_MainThreadLoop: null call-back record, nothing started");
        return -1;
    }
    if (QCoreApplication::instance()) {
        log->logger()->error("View_MainThreadLoop: an application object exists already");
        return -1;
    }

    // 2. - 5.
    qSetMessagePattern(QString::fromLatin1(kMessagePattern));
    QGuiMetaTypes::registerAll();
    CCrashStack::install();
    CCrashStack::preventReplacement();
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::OpenGL);

    // 6. the application; null argv entries are passed on as empty words
    std::vector<std::string> args;
    for (int i = 0; argv && i < argc; ++i)
        args.emplace_back(argv[i] ? argv[i] : "");
    if (args.empty())
        args.emplace_back("qgui");
    std::vector<char*> cargv;
    for (auto& a : args)
        cargv.push_back(a.data());
    cargv.push_back(nullptr);
    int cargc = int(args.size());
    auto app = std::make_unique<GuiApplication>(cargc, cargv.data());
    app->setCallbacks(*callbacks);

    // 7. - 9.
    QApplication::setDoubleClickInterval(0);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/svg/windowIcon.svg")));
    QCoreApplication::setOrganizationName(QStringLiteral("Lumo"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("morvi"));
    const int samples = GuiApplication::antialiasingSamples();
    GlobalConfig::getInstance()->setAntialiasing(samples > 0);
    if (samples > 0) {
        QSurfaceFormat format = QSurfaceFormat::defaultFormat();
        format.setSamples(samples);
        QSurfaceFormat::setDefaultFormat(format);
    }

    // 10. - 16.
    registerQmlTypes();
    QObject::connect(app.get(), &QCoreApplication::aboutToQuit, app.get(), &GuiApplication::onaboutToQuit);
    auto view = std::make_unique<XQuickView>();
    app->setView(view.get());
    view->setXResizeMode(XQuickView::SizeRootObjectToViewFirst);
    view->installEventFilter(XEventFilter::getInstance());
    XQmlComponentManage::getInstance()->setEngine(view->engine());
    ViewManage::getInstance(); // made before any logic-layer call can reach it
    app->init();
    LogicLayerCaller::setCallBack(callbacks->event);
    FontMange::getInstance()->loadDefaultFont();
    view->setSource(QUrl(QStringLiteral("qrc:/shell/halvex.qml")));
    for (const QQmlError& e : view->errors())
        log->logger()->error("shell scene: {}", e.toString().toStdString());
    view->resize(1024, 600);
    view->show();

    // 17. device initialisation, then the event loop
    int result = 0;
    if (app->deviceInit(0, QString(), QString()) == 0) {
        CCrashStack::reassert();
        result = app->exec();
    }

    // 18. the registry's items go first, while their scene and engine still exist
    ViewManage::destroyInstance();
    XQmlComponentManage::getInstance()->setEngine(nullptr);
    app->setView(nullptr);
    view.reset();
    app.reset();
    LogicLayerCaller::setCallBack(nullptr);
    log->logger()->info("View_MainThreadLoop: finished with {}", result);
    log->logger()->flush();
    return result;
}

int View_CreateProPkg()
{
    QGUI_LAYER_LOG("\n\t创建 {}", "工程包");
    if (!GuiThreadGuard::allows(__func__))
        return -1;
    if (GuiShell* shell = GuiShell::instance())
        shell->createProPkg();
    return 0;
}

#include "app/guiapplication.h"

#include "app/cyclebeat.h"
#include "app/cyclepriority.h"
#include "app/xquickview.h"
#include "config/fontmange.h"
#include "config/globalconfig.h"
#include "config/projectmanage.h"
#include "platform/nlogger.h"
#include "utils/processkiller.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
#include <QSocketNotifier>
#include <QTimerEvent>

#include <qgui/ids.h>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {
int g_termFds[2] = { -1, -1 };

void onTermSignal(int)
{
    char c = 1;
    ssize_t r = ::write(g_termFds[0], &c, 1);
    (void)r;
}
} // namespace

GuiApplication::GuiApplication(int& argc, char** argv)
    : QApplication(argc, argv)
    , m_beat(new CycleBeat(10'000'000, this))
{
    // The text glyph texture grows from a copy kept in memory instead of a read-back through the
    // graphics driver: without a graphics processor the read-back waits for the whole frame being
    // drawn (about 100 ms against 40 ms). Left alone when the environment chooses.
    if (!qEnvironmentVariableIsSet("QML_USE_GLYPHCACHE_WORKAROUND"))
        qputenv("QML_USE_GLYPHCACHE_WORKAROUND", "1");
    installTermination();
}

GuiApplication::~GuiApplication()
{
    if (m_termNotifier) {
        ::signal(SIGTERM, SIG_DFL);
        ::signal(SIGINT, SIG_DFL);
    }
}

GuiApplication* GuiApplication::instance()
{
    return qobject_cast<GuiApplication*>(QCoreApplication::instance());
}

void GuiApplication::installTermination()
{
    if (g_termFds[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM, 0, g_termFds) != 0)
        return;
    m_termNotifier = new QSocketNotifier(g_termFds[1], QSocketNotifier::Read, this);
    connect(m_termNotifier, &QSocketNotifier::activated, this, [this]() {
        char c;
        ssize_t r = ::read(g_termFds[1], &c, 1);
        (void)r;
        NLog::NLogger::instance()->logger()->info("termination signal: quitting");
        quit();
    });
    struct sigaction sa { };
    sa.sa_handler = onTermSignal;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &sa, nullptr);
    ::sigaction(SIGINT, &sa, nullptr);
}

void GuiApplication::init()
{
    if (m_callbacks.start)
        m_callbacks.start();
    static const int priority = CyclePriority::priorityFromEnvironment();
    if (CyclePriority::raiseThisThread(priority))
        NLog::NLogger::instance()->logger()->info("the cycle runs at real-time priority {}", priority);
    else if (priority > 0)
        NLog::NLogger::instance()->logger()->info("the cycle runs at ordinary priority (no real-time class allowed)");
    m_timer10 = startTimer(10, Qt::CoarseTimer);
    m_next100Ns = m_beat->clockNs() + 100'000'000; // slot 5 first at the tenth tick
    connect(this, &QGuiApplication::lastWindowClosed, this, [this]() {
        if (m_timer10)
            killTimer(m_timer10);
        m_timer10 = 0;
        m_beat->stop();
    });
}

void GuiApplication::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer10 && m_timer10)
        runCycle();
    else
        QApplication::timerEvent(event);
}

void GuiApplication::runCycle()
{
    static constexpr qint64 k100Ns = 100'000'000;
    static constexpr qint64 kHalfTickNs = 5'000'000;
    m_beat->started();
    const qint64 now = m_beat->clockNs();
    if (m_callbacks.cycle10ms)
        m_callbacks.cycle10ms();
    // slot 5 at the tick nearest its 100 ms (a tick is at most half a tick early); after a stall
    // of several hundred ms the missed ones are not made up
    if (now >= m_next100Ns - kHalfTickNs) {
        m_next100Ns += k100Ns;
        if (m_next100Ns < now)
            m_next100Ns = now + k100Ns;
        if (m_callbacks.cycle100ms)
            m_callbacks.cycle100ms(0);
    }
    m_beat->ended();
}

int GuiApplication::deviceInit(unsigned deviceNo, const QString& a, const QString& b)
{
    QString projectPath;
    QString options;
    parseCmdline(projectPath, options);
    if (!projectPath.isEmpty() && !projectPath.endsWith(QLatin1Char('/')))
        projectPath += QLatin1Char('/');
    ProjectManage::getInstance()->setPrjPath(projectPath);
    if (!projectPath.isEmpty())
        NLog::NLogger::instance()->setLogFolder((projectPath + QStringLiteral("disk/hmi/log")).toStdString());

    unsigned words[3] = { 0, 0, 0 };
    parseInitOpts(options, words);
    checkPath(projectPath, words);
    FontMange::getInstance()->loadFontFile();

    int result = 0;
    if (m_callbacks.deviceInit) {
        const QByteArray ua = a.toUtf8();
        const QByteArray ub = b.toUtf8();
        result = m_callbacks.deviceInit(deviceNo, ua.constData(), ub.constData(), words);
    }
    if (result != 0) {
        NLog::NLogger::instance()->logger()->error("device initialisation failed: {}", result);
        onaboutToQuit();
    }
    return result;
}

void GuiApplication::onDownloadFinished(unsigned deviceNo, const QString& a, const QString& b)
{
    deviceInit(deviceNo, a, b);
}

void GuiApplication::loadFontFile()
{
    const QString file = applicationDirPath() + QStringLiteral("/font_Arial.ttf");
    int id = QFontDatabase::addApplicationFont(file);
    if (id >= 0)
        QFontDatabase::applicationFontFamilies(id);
}

void GuiApplication::parseCmdline(QString& projectPath, QString& options)
{
    parseCmdline(arguments(), projectPath, options);
}

void GuiApplication::parseCmdline(const QStringList& args, QString& projectPath, QString& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("halvex"));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addHelpOption();
    parser.addVersionOption();
    const char* names[] = { "hmifile", "hmidat", "imagepath", "fontpath", "regpath", "rcppath", "option",
        "online", "rotation" };
    for (const char* n : names)
        parser.addOption(QCommandLineOption(QString::fromLatin1(n), QString(), QStringLiteral("value")));
    // unknown options are an error for the parser but not for the panel: the known ones still count
    if (!parser.parse(args))
        NLog::NLogger::instance()->logger()->warn("command line: {}", parser.errorText().toStdString());

    projectPath.clear();
    if (parser.isSet(QStringLiteral("hmifile"))) {
        const QString dir = parser.value(QStringLiteral("hmifile")).trimmed();
        if (!dir.isEmpty()) {
            projectPath = QDir(dir).absolutePath();
            if (!projectPath.endsWith(QLatin1Char('/')))
                projectPath += QLatin1Char('/');
        }
    }
    options = parser.value(QStringLiteral("option"));
    if (parser.isSet(QStringLiteral("rotation")))
        setRotation(parser.value(QStringLiteral("rotation")).trimmed().toInt());
    if (parser.isSet(QStringLiteral("online"))) {
        const bool online = parser.value(QStringLiteral("online")).trimmed().toLongLong() != 0;
        setWindowIcon(
            QIcon(online ? QStringLiteral(":/svg/windowIcon1.svg") : QStringLiteral(":/svg/windowIcon.svg")));
    }
}

void GuiApplication::parseInitOpts(const QString& options, unsigned* words)
{
    if (!words)
        return;
    const QStringList parts = options.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        bool ok = false;
        unsigned v = part.trimmed().toUInt(&ok, 10);
        if (!ok)
            v = 0;
        unsigned kind = GetTypeOfOption(v);
        if (kind < 3)
            words[kind] = v;
    }
}

QList<QPair<QString, qint64>> GuiApplication::preparedFiles()
{
    // scratch state of the GUI, reset at every start
    return { qMakePair(QStringLiteral("disk/hmi/gui_state.bin"), qint64(4096)) };
}

void GuiApplication::checkPath(const QString& projectPath, const unsigned* words)
{
    Q_UNUSED(words)
    if (projectPath.isEmpty())
        return; // no project: nothing of the working folder is touched
    QDir root(projectPath);
    for (unsigned n = 0; n <= 4; ++n) {
        const QString sub = QString::fromLatin1(getStorePath(n));
        if (n == 0 && root.exists(sub))
            QDir(root.filePath(sub)).removeRecursively();
        root.mkpath(sub);
    }
    for (const auto& f : preparedFiles()) {
        const QString path = root.filePath(f.first);
        QFile::remove(path);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.resize(f.second);
    }
}

int GuiApplication::antialiasingSamples()
{
    // read as an integer: unset, 0 or text that is no number all mean "antialiasing on"
    if (qEnvironmentVariableIntValue("X_DISABLE_ANTIALIASING") != 0)
        return 0;
    bool ok = false;
    const int samples = qEnvironmentVariableIntValue("X_ANTIALIASING_SAMPLES", &ok);
    // antialiasing is on whenever it is not disabled: fewer than 2 samples would switch it off
    if (!ok || samples < 2)
        return 4;
    return qMin(samples, 16);
}

void GuiApplication::onaboutToQuit()
{
    const int n = ProcessKiller::killByName(commServerName());
    NLog::NLogger::instance()->logger()->info("quit: stopped {} communication server process(es)", n);
}

void GuiApplication::setView(XQuickView* view)
{
    m_view = view;
    GlobalConfig::getInstance()->setScaleSource(view);
}

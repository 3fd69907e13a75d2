#include "config/globalconfig.h"

#include "config/viewscalesource.h"
#include "config/xeventfilter.h"
#include "platform/globalinfo.h"
#include "platform/guiqtadaptcore.h"
#include "platform/nlogger.h"

#include <QCoreApplication>
#include <QTranslator>

#include <qgui/records_window.h>

GlobalConfig* GlobalConfig::getInstance()
{
    static GlobalConfig* instance = new GlobalConfig; // lives as long as the process
    return instance;
}

GlobalConfig::GlobalConfig(QObject* parent)
    : QObject(parent)
{
    m_defaultFont.setPixelSize(16);
    GlobalInfo::instance()->setLocale(m_locale);
}

void GlobalConfig::setLocale(unsigned lang)
{
    if (lang == 1) {
        if (m_translator && m_translatorInstalled) {
            QCoreApplication::removeTranslator(m_translator);
            m_translatorInstalled = false;
        }
        setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
        return;
    }
    if (!m_translator) {
        m_translator = new QTranslator(this);
        if (!m_translator->load(QStringLiteral(":/ts/halvex.qm")))
            NLog::NLogger::instance()->logger()->warn("translation \":/ts/halvex.qm\" not loaded");
    }
    if (!m_translatorInstalled && QCoreApplication::instance() && !m_translator->isEmpty())
        m_translatorInstalled = QCoreApplication::installTranslator(m_translator);
    setLocale(QLocale(QLocale::Chinese, QLocale::China));
}

void GlobalConfig::setLocale(const QLocale& locale)
{
    m_locale = locale;
    GlobalInfo::instance()->setLocale(locale);
    Q_EMIT langTokenChanged();
}

double GlobalConfig::scale()
{
    if (!m_scaleSource)
        return 1.0;
    if (!m_scaleConnected) {
        connect(m_scaleSource->scaleNotifier(), SIGNAL(rootItemScaleChanged(double)), this,
            SIGNAL(scaleChanged(double)));
        m_scaleConnected = true;
    }
    return m_scaleSource->rootItemScale();
}

void GlobalConfig::setScaleSource(ViewScaleSource* source)
{
    if (m_scaleSource == source)
        return;
    if (m_scaleSource && m_scaleConnected)
        disconnect(m_scaleSource->scaleNotifier(), nullptr, this, nullptr);
    m_scaleSource = source;
    m_scaleConnected = false;
}

double GlobalConfig::pixelLock(double scale, double len) const
{
    // a length that would be drawn wider than one device pixel per unit is nudged so that
    // rounding never loses the last pixel
    constexpr double kFactor = 1.0;
    if (scale > 0.0 && len > scale * kFactor)
        return 1.0001 / scale;
    return 1.0;
}

void GlobalConfig::saveCurveSampleSearchTime(unsigned id, const QPair<QString, QString>& times)
{
    m_curveSearchTimes.insert(id, times);
}

QPair<QString, QString> GlobalConfig::getCurveSampleSearchTime(unsigned id) const
{
    return m_curveSearchTimes.value(id, qMakePair(QString(), QString()));
}

int GlobalConfig::setGlobalConfigue(const View_GlobalConfig* cfg)
{
    if (!cfg)
        return 0;
    if (cfg->inputMethod <= INPUT_METHOD_BOTH)
        m_inputMethod = InputMethod(cfg->inputMethod);
    if (cfg->scrollBarWidth > 0)
        m_scrollBarWidth = qMin(cfg->scrollBarWidth, 200);
    if (cfg->listRowLimit > 0)
        m_listRowLimit = cfg->listRowLimit;
    if (cfg->textLengthLimit > 0)
        m_textLengthLimit = cfg->textLengthLimit;
    if (cfg->doubleClickInterval > 0)
        XEventFilter::getInstance()->setDoubleInterval(cfg->doubleClickInterval);
    if (cfg->pressDistance > 0)
        XEventFilter::getInstance()->setPressDistance(cfg->pressDistance);
    return 0;
}

int GlobalConfig::setInterfaceConfigue(const View_InterfaceConfigue* cfg)
{
    if (!cfg)
        return 0;
    if (cfg->defaultPen.color != 0 || cfg->defaultPen.width != 0)
        m_defaultPen = GuiQtAdapt::Core::toQPen(cfg->defaultPen);
    if (cfg->defaultTextColor != 0)
        m_defaultTextColor = GuiQtAdapt::Core::toQColor(cfg->defaultTextColor);
    if (cfg->defaultBackColor != 0)
        m_defaultBackColor = GuiQtAdapt::Core::toQColor(cfg->defaultBackColor);
    if (cfg->selectionColor != 0)
        m_selectionColor = GuiQtAdapt::Core::toQColor(cfg->selectionColor);
    if (cfg->highlightColor != 0)
        m_highlightColor = GuiQtAdapt::Core::toQColor(cfg->highlightColor);
    if (cfg->defaultFont)
        m_defaultFont = GuiQtAdapt::Core::toQFont(cfg->defaultFont);
    Q_EMIT interfaceChanged();
    return 0;
}

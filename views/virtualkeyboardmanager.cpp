#include "views/virtualkeyboardmanager.h"

#include "platform/nlogger.h"
#include "platform/qvkbpluginloader.h"
#include "platform/xvkbinterface.h"
#include "xcomponents/qquick/integrali64validator.h"
#include "xcomponents/qquick/integralu64validator.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QDateTime>
#include <QDoubleValidator>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpressionValidator>

#include <limits>
#include <memory>

namespace {

// Years 0001..9999, months of 31 and 30 days, 1..28 February, and 29 February of the leap years.
const char* const kDatePattern
    = "^((([0-9]{3}[1-9]|[0-9]{2}[1-9][0-9]{1}|[0-9]{1}[1-9][0-9]{2}|[1-9][0-9]{3})-(((0[13578]|1[02])-(0["
      "1-9]|[12][0-9]|3[01]))|((0[469]|11)-(0[1-9]|[12][0-9]|30))|(02-(0[1-9]|[1][0-9]|2[0-8]))))|((([0-"
      "9]{2})(0[48]|[2468][048]|[13579][26])|((0[48]|[2468][048]|[3579][26])00))-02-29))$";
const char* const kTimeOfDate = "\\s*([0-1]?[0-9]|2[0-3]):([0-5][0-9]):([0-5][0-9])$";
const char* const kTimePattern = "^([0-1]?[0-9]|2[0-3]):([0-5][0-9]):([0-5][0-9])$";

/** The date followed by the time: the date pattern without its end anchor, then the time. */
QString dateTimePattern()
{
    QString date = QString::fromLatin1(kDatePattern);
    date.chop(1);
    return date + QString::fromLatin1(kTimeOfDate);
}

bool isDateOrTime(int type)
{
    return type == VKB_DATETIME || type == VKB_DATE || type == VKB_TIME;
}

void log(const char* what, const QString& detail = QString())
{
    NLog::NLogger::instance()->logger()->info("keyboard: {} {}", what, detail.toStdString());
}

struct IntRange {
    int base;
    qint64 bottom;
    qint64 top;
};

/** Signed validators of the kinds 2..9 and 11..17. */
bool signedRange(int kind, IntRange& r)
{
    constexpr qint64 lo = std::numeric_limits<qint64>::min();
    constexpr qint64 hi = std::numeric_limits<qint64>::max();
    static const IntRange table[] = {
        { 10, 0, 1 }, // 2
        { 10, -128, 127 }, // 3
        { 10, 0, 255 }, // 4
        { 10, -32768, 32767 }, // 5
        { 10, 0, 65535 }, // 6
        { 10, -2147483648LL, 2147483647LL }, // 7
        { 10, 0, 4294967295LL }, // 8
        { 10, lo, hi }, // 9
    };
    static const IntRange hexTable[] = {
        { 16, -128, 127 }, // 11
        { 16, 0, 255 }, // 12
        { 16, -32768, 32767 }, // 13
        { 16, 0, 65535 }, // 14
        { 16, -2147483648LL, 2147483647LL }, // 15
        { 16, 0, 4294967295LL }, // 16
        { 16, lo, hi }, // 17
    };
    if (kind >= 2 && kind <= 9) {
        r = table[kind - 2];
        return true;
    }
    if (kind >= 11 && kind <= 17) {
        r = hexTable[kind - 11];
        return true;
    }
    return false;
}

} // namespace

VirtualKeyboardManager* VirtualKeyboardManager::instance()
{
    static auto* manager = new VirtualKeyboardManager; // lives until the process ends
    return manager;
}

VirtualKeyboardManager::VirtualKeyboardManager() = default;

XVkbInterface* VirtualKeyboardManager::vkb() const
{
    return QVkbPluginLoader::instance()->vkb();
}

bool VirtualKeyboardManager::isInitialised() const
{
    return m_layer && m_input && m_root;
}

void VirtualKeyboardManager::init(QQuickItem* root)
{
    if (!root)
        return;
    if (isInitialised() && m_root == root)
        return;
    QQuickWindow* window = root->window();
    QQuickItem* top = window ? window->contentItem() : root;
    if (m_shown)
        hideVkb();
    delete m_layer.data(); // the layer of an earlier panel that still exists
    m_root = root;
    m_baseY = root->y();
    m_anchor = 0;
    m_shown = false;

    // the keys and the line above everything of the panel, dimming included
    auto* layer = new QQuickItem(top);
    layer->setObjectName(QStringLiteral("vkbLayer"));
    layer->setZ(2147483647.0);
    layer->setSize(top->size());
    connect(top, &QQuickItem::widthChanged, layer, [layer, top] { layer->setWidth(top->width()); });
    connect(top, &QQuickItem::heightChanged, layer, [layer, top] { layer->setHeight(top->height()); });
    m_layer = layer;

    XQmlComponentManage* components = XQmlComponentManage::getInstance();
    QQmlEngine* engine = components->engine() ? components->engine() : qmlEngine(root);
    QQuickItem* keys = vkb()->createItem(engine, layer);
    if (keys && keys->parentItem() != layer) {
        keys->setParentItem(layer);
        keys->setParent(layer);
    }
    m_popup = components->createItem(QUrl(QString::fromLatin1(popupUrl)), layer);
    if (!m_popup) {
        log("entry line not created");
        return;
    }
    m_popup->setZ(1);
    m_popup->setProperty("keyboard", QVariant::fromValue<QQuickItem*>(keys));
    m_popup->setProperty("light", m_light);
    m_input = m_popup->property("input").value<QQuickItem*>();
    if (m_input)
        connect(m_input, SIGNAL(enterText(QString)), this, SLOT(onVkbEditFinished(QString)));
    if (keys) {
        connect(keys, &QQuickItem::xChanged, this, &VirtualKeyboardManager::placePopup);
        connect(keys, &QQuickItem::yChanged, this, &VirtualKeyboardManager::placePopup);
        connect(keys, &QQuickItem::widthChanged, this, &VirtualKeyboardManager::placePopup);
    }
    placePopup();
    warmUp(window);
}

void VirtualKeyboardManager::warmUp(QQuickWindow* window)
{
    // Two frames with the line and the keys drawn almost transparent, so that their scene-graph
    // nodes, textures and glyphs exist before the operator's first touch on a field. The second
    // frame adds glyphs, so that the glyph texture has grown once: its first growth prepares the
    // copy it needs, which alone costs a frame of about 100 ms without a graphics processor.
    if (!window || !window->isVisible() || m_shown)
        return;
    m_warming = true;
    m_layer->setOpacity(0.01);
    m_layer->setEnabled(false); // takes no press while nearly invisible
    vkb()->show();
    m_popup->setVisible(true);
    showGlyphSample(false);
    // queued: several swaps may already be queued when the connection goes
    auto connection = std::make_shared<QMetaObject::Connection>();
    auto frames = std::make_shared<int>(0);
    // (a queued swap may also arrive after the window is gone: it is only looked at through a guard)
    QPointer<QQuickWindow> guard(window);
    *connection = connect(window, &QQuickWindow::frameSwapped, this, [this, connection, frames, guard] {
        if (++*frames == 1 && m_warming && guard) {
            showGlyphSample(true);
            guard->update();
            return;
        }
        disconnect(*connection);
        endWarmUp();
    }, Qt::QueuedConnection);
}

void VirtualKeyboardManager::showGlyphSample(bool latinSupplement)
{
    if (!m_layer || !m_popup)
        return;
    // The glyphs of the other layouts and of what an operator types, then those of the accented
    // Latin letters: a glyph drawn for the first time is made and stored in the text's glyph
    // texture on the frame that shows it.
    QString glyphs = vkb()->glyphs();
    for (char16_t c = 0x20; c < 0x7F; ++c)
        glyphs += QChar(c);
    if (latinSupplement) {
        for (char16_t c = 0xA1; c <= 0xFF; ++c)
            glyphs += QChar(c);
    }
    if (m_input) {
        // the entry line's text, then its range hint, which is a text item of its own
        m_input->setProperty("text", latinSupplement ? QString() : glyphs);
        // shown selected, as an opening shows its text, though the line has no focus yet
        m_input->setProperty("persistentSelection", !latinSupplement);
        if (!latinSupplement)
            QMetaObject::invokeMethod(m_input, "selectAll");
        if (latinSupplement) {
            m_placeholder = m_input->property("placeholderText").toString();
            m_input->setProperty("placeholderText", glyphs);
        }
    }
    if (m_glyphSample) {
        m_glyphSample->setProperty("glyphs", glyphs);
        return;
    }
    QQmlEngine* engine = qmlEngine(m_popup);
    if (!engine)
        return;
    QQmlComponent component(engine);
    component.setData("import QtQuick 2.15\n"
                      "Column { property string glyphs\n"
                      "  Text { text: parent.glyphs; font.pixelSize: 26 }\n"
                      "  Text { text: parent.glyphs; font.pixelSize: 40 } }\n",
        QUrl());
    auto* sample = qobject_cast<QQuickItem*>(component.create());
    if (!sample)
        return;
    sample->setProperty("glyphs", glyphs);
    sample->setParentItem(m_layer);
    m_glyphSample = sample;
}

void VirtualKeyboardManager::endWarmUp()
{
    if (!m_warming)
        return;
    m_warming = false;
    delete m_glyphSample.data();
    if (m_input && !m_shown)
        m_input->setProperty("text", QString());
    if (m_input && m_placeholder)
        m_input->setProperty("placeholderText", *m_placeholder);
    m_placeholder.reset();
    if (m_layer) {
        m_layer->setOpacity(1.0);
        m_layer->setEnabled(true);
    }
    if (m_shown)
        return; // opened meanwhile: it stays
    vkb()->hide();
    if (m_popup)
        m_popup->setVisible(false);
}

QQuickItem* VirtualKeyboardManager::keyboardItem() const
{
    return vkb()->item();
}

void VirtualKeyboardManager::placePopup()
{
    QQuickItem* keys = keyboardItem();
    if (!m_popup || !keys)
        return;
    const qreal h = m_popup->height();
    m_popup->setWidth(qMax<qreal>(keys->width(), 320));
    m_popup->setX(keys->x() + (keys->width() - m_popup->width()) / 2);
    m_popup->setY(qMax<qreal>(0, keys->y() - h - 6));
}

void VirtualKeyboardManager::popupVirtualKeyBord(
    VkbLayoutType type, QObject* target, const QString& text, int anchor)
{
    if (!isInitialised()) {
        log("not shown: no panel");
        return;
    }
    setInputPanelType(type, text);
    if (!m_shown)
        m_anchor = anchor;
    showVkb(true);
    setActiveText(target);
    m_input->forceActiveFocus();
}

void VirtualKeyboardManager::popupRawVKB(VkbLayoutType type)
{
    if (!isInitialised())
        return;
    vkb()->setLayoutType(type);
    showVkb(true);
    m_input->forceActiveFocus();
}

void VirtualKeyboardManager::showVkb(bool show)
{
    if (!show) {
        hideVkb();
        return;
    }
    if (!isInitialised())
        return;
    if (!m_shown && m_root)
        m_baseY = m_root->y();
    m_shown = true;
    endWarmUp();
    vkb()->show();
    QMetaObject::invokeMethod(m_popup, "open");
    placePopup();
    if (m_anchor != 0)
        updateGuiRect(m_anchor);
}

void VirtualKeyboardManager::hideVkb()
{
    const bool wasShown = m_shown;
    m_shown = false;
    endWarmUp();
    if (m_popup)
        QMetaObject::invokeMethod(m_popup, "close");
    vkb()->hide();
    if (m_anchor != 0) {
        updateGuiRect(m_anchor);
        m_anchor = 0;
    }
    setActiveText(nullptr);
    if (wasShown)
        Q_EMIT vkbHid();
}

bool VirtualKeyboardManager::isVisible() const
{
    return m_shown;
}

QRectF VirtualKeyboardManager::getVkbRect() const
{
    return keyboardItem() ? vkb()->rect() : QRectF();
}

void VirtualKeyboardManager::setVKBPos(const QPointF& pos)
{
    vkb()->move(pos);
}

void VirtualKeyboardManager::showVKBDragBar(bool show)
{
    vkb()->showDragBar(show);
}

void VirtualKeyboardManager::setLight(const QColor& color)
{
    m_light = color.isValid() ? color : QColor(Qt::transparent);
    if (m_popup)
        m_popup->setProperty("light", m_light);
}

void VirtualKeyboardManager::setInputPanelType(VkbLayoutType type, QString text)
{
    if (!m_input)
        return;
    const int t = int(type);
    QString mask;
    if (isDateOrTime(t)) {
        static const char* const formats[] = { "yyyy-MM-dd hh:mm:ss", "yyyy-MM-dd", "hh:mm:ss" };
        static const char* const masks[] = { "9999-99-99 99:99:99", "9999-99-99", "99:99:99" };
        if (text.isEmpty())
            text = QDateTime::currentDateTime().toString(QString::fromLatin1(formats[t - VKB_DATETIME]));
        mask = QString::fromLatin1(masks[t - VKB_DATETIME]);
    }
    // the mask goes before the validator and the text, so that both see the masked line
    m_input->setProperty("inputMask", mask);
    switch (t) {
    case VKB_DECIMAL:
        changeValidator(VALIDATOR_INT64);
        break;
    case VKB_HEX:
        changeValidator(VALIDATOR_HEX_INT64);
        break;
    case VKB_DATETIME:
    case VKB_DATE:
    case VKB_TIME:
        changeValidator(TextValidator(21 + (t - VKB_DATETIME)));
        break;
    default:
        changeValidator(VALIDATOR_NONE);
        break;
    }
    setInputMethodHints(type);
    setBackspaceBehavior(type);
    vkb()->setLayoutType(t);
    m_input->setProperty("text", text);
    if (isDateOrTime(t))
        m_input->setProperty("cursorPosition", 0);
    else
        QMetaObject::invokeMethod(m_input, "selectAll");
}

void VirtualKeyboardManager::installValidator(QValidator* validator)
{
    QValidator* old = m_validator.data();
    m_validator = validator;
    if (m_input) {
        if (validator)
            validator->setParent(m_input);
        m_input->setProperty("validator", QVariant::fromValue<QValidator*>(validator));
    }
    delete old;
}

void VirtualKeyboardManager::changeValidator(TextValidator kind)
{
    const int k = int(kind);
    IntRange range {};
    if (k == VALIDATOR_KEEP || k < 0 || k > 23)
        return; // unknown kinds keep the current validator
    if (k == VALIDATOR_NONE) {
        installValidator(nullptr);
        setDisplayRange(false, QString(), QString());
    } else if (signedRange(k, range)) {
        auto* v = new IntegralI64Validator;
        v->setBase(range.base);
        v->setRange(range.bottom, range.top);
        installValidator(v);
        setRangeI(range.bottom, range.top);
    } else if (k == 10 || k == 18) {
        auto* v = new IntegralU64Validator;
        v->setBase(k == 10 ? 10 : 16);
        installValidator(v);
        setRangeU(0, std::numeric_limits<quint64>::max());
    } else if (k == 19 || k == 20) {
        // 19: plain decimal notation; 20: scientific notation ("1.5e3") as well
        auto* v = new QDoubleValidator;
        v->setNotation(k == 19 ? QDoubleValidator::StandardNotation : QDoubleValidator::ScientificNotation);
        v->setLocale(QLocale::c());
        installValidator(v);
        setDisplayRange(false, QString(), QString());
    } else {
        const QString pattern = k == 21 ? dateTimePattern()
            : k == 22                   ? QString::fromLatin1(kDatePattern)
                                        : QString::fromLatin1(kTimePattern);
        installValidator(new QRegularExpressionValidator(QRegularExpression(pattern)));
        setDisplayRange(false, QString(), QString());
    }
}

void VirtualKeyboardManager::setRangeI(qint64 min, qint64 max)
{
    auto* v = qobject_cast<IntegralI64Validator*>(m_validator.data());
    if (!v) {
        setDisplayRange(false, QString(), QString());
        return;
    }
    v->setRange(min, max);
    setDisplayRange(true, v->bottomStr(), v->topStr());
}

void VirtualKeyboardManager::setRangeU(quint64 min, quint64 max)
{
    auto* v = qobject_cast<IntegralU64Validator*>(m_validator.data());
    if (!v) {
        setDisplayRange(false, QString(), QString());
        return;
    }
    v->setRange(min, max);
    setDisplayRange(true, v->bottomStr(), v->topStr());
}

void VirtualKeyboardManager::setRangeD(double min, double max)
{
    auto* v = qobject_cast<QDoubleValidator*>(m_validator.data());
    if (!v) {
        setDisplayRange(false, QString(), QString());
        return;
    }
    v->setRange(min, max, v->decimals());
    setDisplayRange(true, QString::number(min, 'g', 6), QString::number(max, 'g', 6));
}

void VirtualKeyboardManager::setDisplayRange(bool show, const QString& min, const QString& max)
{
    if (!m_input)
        return;
    m_placeholder.reset(); // a warm-up ending later keeps this one
    m_input->setProperty("placeholderText",
        show ? QStringLiteral("[ ") + min + QStringLiteral(" , ") + max + QStringLiteral(" ]") : QString());
}

void VirtualKeyboardManager::setInputMethodHints(VkbLayoutType type)
{
    if (!m_input)
        return;
    int hints = Qt::ImhPreferLowercase | Qt::ImhNoPredictiveText; // 0x60
    switch (int(type)) {
    case VKB_DECIMAL:
    case VKB_DATETIME:
    case VKB_DATE:
    case VKB_TIME:
        hints = Qt::ImhDigitsOnly | Qt::ImhNoPredictiveText; // 0x10040
        break;
    case VKB_HEX:
        hints = Qt::ImhEmailCharactersOnly | Qt::ImhNoPredictiveText; // 0x200040
        break;
    case VKB_TEXT_PREDICTIVE:
        hints = Qt::ImhPreferLowercase; // 0x20
        break;
    default:
        break;
    }
    m_input->setProperty("inputMethodHints", hints);
}

void VirtualKeyboardManager::setBackspaceBehavior(VkbLayoutType type)
{
    if (m_input)
        m_input->setProperty("backSpaceToBackWard", isDateOrTime(int(type)));
}

void VirtualKeyboardManager::setActiveText(QObject* object)
{
    if (m_activeText == object)
        return;
    disconnect(m_activeConnection);
    m_activeText = object;
    if (object)
        m_activeConnection
            = connect(object, &QObject::destroyed, this, &VirtualKeyboardManager::onActiveTextDestroyed);
}

void VirtualKeyboardManager::onActiveTextDestroyed()
{
    disconnect(m_activeConnection);
    m_activeText = nullptr;
    hideVkb();
}

void VirtualKeyboardManager::onVkbEditFinished(const QString& text)
{
    if (QObject* target = m_activeText.data()) {
        if (target->metaObject()->indexOfProperty("text") >= 0)
            target->setProperty("text", text);
        else
            QMetaObject::invokeMethod(target, "setText", Q_ARG(QString, text));
        setActiveText(nullptr);
    }
    Q_EMIT vkbEntered(text);
    hideVkb();
}

void VirtualKeyboardManager::updateGuiRect(int anchor)
{
    if (!m_root)
        return;
    if (!m_shown) {
        shiftPanel(0);
        return;
    }
    const QRectF keys = getVkbRect();
    if (anchor < 40)
        shiftPanel(40);
    else if (anchor >= keys.top())
        shiftPanel(-keys.height());
    else
        shiftPanel(0);
}

void VirtualKeyboardManager::shiftPanel(qreal dy)
{
    // A shell that centres its panel says how far the keyboard moves it, so the centring still
    // follows a resized or rotated window while the keyboard is open; otherwise the panel's
    // place is set.
    static const char shiftName[] = "keyboardShift";
    if (m_root->metaObject()->indexOfProperty(shiftName) >= 0)
        m_root->setProperty(shiftName, dy);
    else
        m_root->setY(m_baseY + dy);
}

bool VirtualKeyboardManager::containsScenePoint(const QPointF& scenePos) const
{
    if (!m_shown)
        return false;
    if (m_popup && m_popup->contains(m_popup->mapFromScene(scenePos)))
        return true;
    QQuickItem* keys = keyboardItem();
    return keys && keys->isVisible() && keys->contains(keys->mapFromScene(scenePos));
}

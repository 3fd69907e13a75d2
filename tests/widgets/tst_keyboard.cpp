// The on-screen keyboard on a real panel, driven as an operator does: a field
// is pressed, the keyboard opens for it, keys are pressed with the mouse, Enter
// sends the text (event 1281) and the hiding (1282). Also the layouts' masks,
// validators, hints and selections, the validator kinds as tables, the range
// placeholder, the anchor rule, the dimming, the active text object, the
// keyboard window's entry line, and bad input.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "platform/qvkbpluginloader.h"
#include "platform/xvkbinterface.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "views/virtualkeyboardmanager.h"
#include <QSet>
#include "xcomponents/qquick/integrali64validator.h"
#include "xcomponents/qquick/integralu64validator.h"
#include "xcomponents/qquick/keyboardwindowtitile.h"
#include "xcomponents/qquick/xkeyboardedit.h"
#include "xcomponents/qquick/xlineinputtext.h"

#include <QDoubleValidator>
#include <QQuickItem>
#include <QRegularExpressionValidator>

#include <qgui/events.h>

class tst_Keyboard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void field_press_keys_enter_sends_the_text_to_the_requester_data();
    void field_press_keys_enter_sends_the_text_to_the_requester();
    void layouts_set_mask_validator_hints_and_selection_data();
    void layouts_set_mask_validator_hints_and_selection();
    void date_and_time_open_at_now_and_backspace_moves_left_data();
    void date_and_time_open_at_now_and_backspace_moves_left();
    void validator_kinds_place_their_ranges_data();
    void validator_kinds_place_their_ranges();
    void date_patterns_data();
    void date_patterns();
    void typing_keeps_only_in_range_prefixes_data();
    void typing_keeps_only_in_range_prefixes();
    void double_range_shows_six_digits();
    void anchor_rule_moves_the_panel_data();
    void anchor_rule_moves_the_panel();
    void keyboard_stays_usable_on_a_dimmed_panel();
    void preparation_leaves_no_trace();
    void active_text_object_receives_the_text_and_is_forgotten();
    void requester_deleted_while_open_still_gets_its_events();
    void keyboard_window_calls();
    void bad_input();

private:
    VirtualKeyboardManager* vkb() const { return VirtualKeyboardManager::instance(); }
    QQuickItem* key(const QString& name) const;
    void pressKey(const QString& name);
    void type(const QString& keys);
    QString lineText() const { return vkb()->inputLine()->property("text").toString(); }

    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_Keyboard::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_Keyboard::cleanup()
{
    View_CloseVirtualKeyboard();
    View_SetLight(100);
    m_panel.stop();
}

QQuickItem* tst_Keyboard::key(const QString& name) const
{
    return TestUtil::findItem(vkb()->keyboardItem(), QStringLiteral("key_") + name);
}

void tst_Keyboard::pressKey(const QString& name)
{
    QQuickItem* k = key(name);
    QVERIFY2(k, qPrintable("no key " + name));
    QVERIFY2(k->isVisible(), qPrintable("key not shown: " + name));
    m_panel.click(m_panel.sceneCenter(k));
}

void tst_Keyboard::type(const QString& keys)
{
    for (const QString& k : keys.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        pressKey(k);
}

void tst_Keyboard::field_press_keys_enter_sends_the_text_to_the_requester_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("initial");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("decimal: the first key replaces the selection, a sign inside is refused")
        << 0 << "12" << "5 0 - 7" << QByteArray("507");
    QTest::newRow("decimal: sign first") << 0 << "" << "- 4 2" << QByteArray("-42");
    QTest::newRow("hexadecimal") << 1 << "0" << "7 F F F" << QByteArray("7FFF");
    QTest::newRow("free text: shift for one capital") << 5 << "old" << "shift h i" << QByteArray("Hi");
    QTest::newRow("free text: backspace deletes") << 6 << "abc" << "x y backspace" << QByteArray("x");
}

void tst_Keyboard::field_press_keys_enter_sends_the_text_to_the_requester()
{
    QFETCH(int, layout);
    QFETCH(QString, initial);
    QFETCH(QString, keys);
    QFETCH(QByteArray, sent);
    View_Input field {};
    field.rect = Rect { 40, 40, 200, 50 };
    field.id = 31;
    field.text = "0";
    QCOMPARE(View_CreateNumInputText(&field, A), 0);
    m_panel.click(m_panel.sceneCenter(ViewManage::getInstance()->getItemById(31)));
    QCOMPARE(m_rec.count(EVT_WIDGET_RELEASE), 1);

    // the logic layer answers the release by opening the keyboard
    const QByteArray text = initial.toUtf8();
    QCOMPARE(View_PopupVirtualKeyboard(31, layout, text.constData()), 0);
    QVERIFY(vkb()->isVisible());
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QVERIFY(vkb()->inputLine()->hasActiveFocus());
    type(keys);
    QCOMPARE(lineText().toUtf8(), sent);
    m_rec.clear();
    pressKey("enter");
    const QList<EventRecorder::Event> events = m_rec.events();
    QList<int> codes;
    for (const auto& e : events) {
        if (e.code == EVT_VKB_ENTER || e.code == EVT_VKB_HIDE)
            codes << e.code;
    }
    QCOMPARE(codes, (QList<int> { EVT_VKB_ENTER, EVT_VKB_HIDE }));
    const EventRecorder::Event entered = m_rec.eventsWithCode(EVT_VKB_ENTER).first();
    QCOMPARE(entered.id, 31u);
    QCOMPARE(entered.payload, sent);
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_HIDE).first().id, 31u);
    QVERIFY(!vkb()->isVisible());
    // closing emptied the line and its mask
    QVERIFY(lineText().isEmpty());
    QVERIFY(vkb()->inputLine()->property("inputMask").toString().isEmpty());
}

void tst_Keyboard::layouts_set_mask_validator_hints_and_selection_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("validator");
    QTest::addColumn<int>("hints");
    QTest::addColumn<bool>("backward");
    QTest::newRow("0 decimal") << 0 << "" << "IntegralI64Validator" << 0x10040 << false;
    QTest::newRow("1 hexadecimal") << 1 << "" << "IntegralI64Validator" << 0x200040 << false;
    QTest::newRow("2 date and time") << 2 << "9999-99-99 99:99:99; " << "QRegularExpressionValidator" << 0x10040 << true;
    QTest::newRow("3 date") << 3 << "9999-99-99; " << "QRegularExpressionValidator" << 0x10040 << true;
    QTest::newRow("4 time") << 4 << "99:99:99; " << "QRegularExpressionValidator" << 0x10040 << true;
    QTest::newRow("5 text") << 5 << "" << "" << 0x60 << false;
    QTest::newRow("6 predictive text") << 6 << "" << "" << 0x20 << false;
    QTest::newRow("99 unknown: text") << 99 << "" << "" << 0x60 << false;
    QTest::newRow("-1 unknown: text") << -1 << "" << "" << 0x60 << false;
}

void tst_Keyboard::layouts_set_mask_validator_hints_and_selection()
{
    QFETCH(int, layout);
    QFETCH(QString, mask);
    QFETCH(QString, validator);
    QFETCH(int, hints);
    QFETCH(bool, backward);
    // a validator of another kind is installed first: every layout replaces it
    QCOMPARE(View_PopupVirtualKeyboard(5, 3, "2020-01-01"), 0);
    QCOMPARE(View_PopupVirtualKeyboard(5, layout, layout >= 2 && layout <= 4 ? "" : "12"), 0);
    QQuickItem* line = vkb()->inputLine();
    QCOMPARE(line->property("inputMask").toString(), mask);
    QCOMPARE(vkb()->validator() ? QString(vkb()->validator()->metaObject()->className()) : QString(), validator);
    QCOMPARE(line->property("inputMethodHints").toInt(), hints);
    QCOMPARE(line->property("backSpaceToBackWard").toBool(), backward);
    QCOMPARE(QVkbPluginLoader::instance()->vkb()->layoutType(), layout);
    if (!backward)
        QCOMPARE(line->property("selectedText").toString(), QString("12"));
}

void tst_Keyboard::date_and_time_open_at_now_and_backspace_moves_left_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("format");
    QTest::newRow("2 date and time") << 2 << "yyyy-MM-dd hh:mm:ss";
    QTest::newRow("3 date") << 3 << "yyyy-MM-dd";
    QTest::newRow("4 time") << 4 << "hh:mm:ss";
}

void tst_Keyboard::date_and_time_open_at_now_and_backspace_moves_left()
{
    QFETCH(int, layout);
    QFETCH(QString, format);
    QCOMPARE(View_PopupVirtualKeyboard(6, layout, nullptr), 0);
    const QDateTime opened = QDateTime::fromString(lineText(), format);
    QVERIFY2(opened.isValid() || QTime::fromString(lineText(), format).isValid(), qPrintable(lineText()));
    if (layout != 4)
        QCOMPARE(opened.date(), QDate::currentDate());
    QQuickItem* line = vkb()->inputLine();
    QCOMPARE(line->property("cursorPosition").toInt(), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QString before = lineText();
    type("right right right");
    const int moved = line->property("cursorPosition").toInt();
    QVERIFY(moved >= 3); // separators are stepped over
    pressKey("backspace");
    QCOMPARE(line->property("cursorPosition").toInt(), moved - 1);
    QCOMPARE(lineText(), before);
    // overtyping: a digit replaces the one after the cursor (skipping a separator), nothing is inserted
    pressKey("1");
    QVERIFY(line->property("cursorPosition").toInt() > 2);
    QCOMPARE(lineText().size(), before.size());
}

void tst_Keyboard::validator_kinds_place_their_ranges_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("validator");
    QTest::addColumn<QString>("placeholder");
    QTest::newRow("1 none") << 1 << "" << "";
    QTest::newRow("2") << 2 << "IntegralI64Validator" << "[ 0 , 1 ]";
    QTest::newRow("3") << 3 << "IntegralI64Validator" << "[ -128 , 127 ]";
    QTest::newRow("4") << 4 << "IntegralI64Validator" << "[ 0 , 255 ]";
    QTest::newRow("5") << 5 << "IntegralI64Validator" << "[ -32768 , 32767 ]";
    QTest::newRow("6") << 6 << "IntegralI64Validator" << "[ 0 , 65535 ]";
    QTest::newRow("7") << 7 << "IntegralI64Validator" << "[ -2147483648 , 2147483647 ]";
    QTest::newRow("8") << 8 << "IntegralI64Validator" << "[ 0 , 4294967295 ]";
    QTest::newRow("9") << 9 << "IntegralI64Validator" << "[ -9223372036854775808 , 9223372036854775807 ]";
    QTest::newRow("10") << 10 << "IntegralU64Validator" << "[ 0 , 18446744073709551615 ]";
    QTest::newRow("11") << 11 << "IntegralI64Validator" << "[ -80 , 7f ]";
    QTest::newRow("12") << 12 << "IntegralI64Validator" << "[ 0 , ff ]";
    QTest::newRow("13") << 13 << "IntegralI64Validator" << "[ -8000 , 7fff ]";
    QTest::newRow("14") << 14 << "IntegralI64Validator" << "[ 0 , ffff ]";
    QTest::newRow("15") << 15 << "IntegralI64Validator" << "[ -80000000 , 7fffffff ]";
    QTest::newRow("16") << 16 << "IntegralI64Validator" << "[ 0 , ffffffff ]";
    QTest::newRow("17") << 17 << "IntegralI64Validator" << "[ -8000000000000000 , 7fffffffffffffff ]";
    QTest::newRow("18") << 18 << "IntegralU64Validator" << "[ 0 , ffffffffffffffff ]";
    QTest::newRow("19") << 19 << "QDoubleValidator" << "";
    QTest::newRow("20") << 20 << "QDoubleValidator" << "";
    QTest::newRow("21") << 21 << "QRegularExpressionValidator" << "";
    QTest::newRow("22") << 22 << "QRegularExpressionValidator" << "";
    QTest::newRow("23") << 23 << "QRegularExpressionValidator" << "";
}

void tst_Keyboard::validator_kinds_place_their_ranges()
{
    QFETCH(int, kind);
    QFETCH(QString, validator);
    QFETCH(QString, placeholder);
    QCOMPARE(View_PopupVirtualKeyboard(7, 0, "1"), 0);
    QPointer<QValidator> previous = vkb()->validator();
    vkb()->changeValidator(TextValidator(kind));
    QCOMPARE(vkb()->validator() ? QString(vkb()->validator()->metaObject()->className()) : QString(), validator);
    QCOMPARE(vkb()->inputLine()->property("placeholderText").toString(), placeholder);
    QCOMPARE(vkb()->inputLine()->property("validator").value<QValidator*>(), vkb()->validator());
    QVERIFY2(!previous, "the replaced validator is deleted");
    // kind 0 and unknown kinds keep what is installed
    QValidator* now = vkb()->validator();
    vkb()->changeValidator(VALIDATOR_KEEP);
    vkb()->changeValidator(TextValidator(77));
    QCOMPARE(vkb()->validator(), now);
}

void tst_Keyboard::date_patterns_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("acceptable");
    QTest::newRow("date") << 22 << "2024-06-30" << true;
    QTest::newRow("31 in a 30-day month") << 22 << "2024-06-31" << false;
    QTest::newRow("29 Feb 2024") << 22 << "2024-02-29" << true;
    QTest::newRow("29 Feb 2023") << 22 << "2023-02-29" << false;
    QTest::newRow("29 Feb 2000") << 22 << "2000-02-29" << true;
    QTest::newRow("29 Feb 1900") << 22 << "1900-02-29" << false;
    QTest::newRow("29 Feb 1200 (refused by the century rule)") << 22 << "1200-02-29" << false;
    QTest::newRow("29 Feb 1600 (refused by the century rule)") << 22 << "1600-02-29" << false;
    QTest::newRow("year 0000") << 22 << "0000-01-01" << false;
    QTest::newRow("year 0001") << 22 << "0001-01-01" << true;
    QTest::newRow("month 13") << 22 << "2024-13-01" << false;
    QTest::newRow("time") << 23 << "23:59:59" << true;
    QTest::newRow("time without leading zero") << 23 << "7:05:00" << true;
    QTest::newRow("hour 24") << 23 << "24:00:00" << false;
    QTest::newRow("date and time") << 21 << "2024-02-29 23:59:59" << true;
    QTest::newRow("date and time, bad minute") << 21 << "2024-02-28 23:60:00" << false;
}

void tst_Keyboard::date_patterns()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QFETCH(bool, acceptable);
    QCOMPARE(View_PopupVirtualKeyboard(8, 5, ""), 0);
    vkb()->changeValidator(TextValidator(kind));
    QValidator* v = vkb()->validator();
    QVERIFY(v);
    int pos = 0;
    QCOMPARE(v->validate(text, pos) == QValidator::Acceptable, acceptable);
}

void tst_Keyboard::typing_keeps_only_in_range_prefixes_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shown");
    QTest::newRow("-128..127: 200 is refused after 20") << 0 << 3 << "2 0 0" << "20";
    QTest::newRow("0..255: no sign") << 0 << 4 << "- 2 5 5" << "255";
    QTest::newRow("0..1") << 0 << 2 << "1 1 0" << "1";
    QTest::newRow("hex 0..ff") << 1 << 12 << "F F F" << "FF";
    QTest::newRow("hex unsigned 64 bits") << 1 << 18 << "F F F F F F F F F F F F F F F F F"
                                          << "FFFFFFFFFFFFFFFF";
}

void tst_Keyboard::typing_keeps_only_in_range_prefixes()
{
    QFETCH(int, layout);
    QFETCH(int, kind);
    QFETCH(QString, keys);
    QFETCH(QString, shown);
    QCOMPARE(View_PopupVirtualKeyboard(9, layout, ""), 0);
    QCOMPARE(View_SetVirtualKeyboardValidator(kind), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    type(keys);
    QCOMPARE(lineText(), shown);
}

void tst_Keyboard::double_range_shows_six_digits()
{
    QCOMPARE(View_PopupVirtualKeyboard(10, 5, ""), 0);
    vkb()->setRangeD(0, 1); // not a double validator: the placeholder is emptied
    QVERIFY(vkb()->inputLine()->property("placeholderText").toString().isEmpty());
    vkb()->changeValidator(TextValidator(19));
    QCOMPARE(View_SetVirtualKeyboardRangeD(-0.123456789, 12345678.9), 0);
    QCOMPARE(vkb()->inputLine()->property("placeholderText").toString(), QString("[ -0.123457 , 1.23457e+07 ]"));
    vkb()->setRangeI(0, 5); // not a signed validator
    QVERIFY(vkb()->inputLine()->property("placeholderText").toString().isEmpty());
    QCOMPARE(View_SetVirtualKeyboardValidator(11), 0);
    QCOMPARE(View_SetVirtualKeyboardRangeI(-255, 255), 0);
    QCOMPARE(vkb()->inputLine()->property("placeholderText").toString(), QString("[ -ff , ff ]"));
    QCOMPARE(View_SetVirtualKeyboardValidator(10), 0);
    QCOMPARE(View_SetVirtualKeyboardRangeU(5, 18446744073709551615ULL), 0);
    QCOMPARE(vkb()->inputLine()->property("placeholderText").toString(), QString("[ 5 , 18446744073709551615 ]"));
}

void tst_Keyboard::anchor_rule_moves_the_panel_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("move");
    QTest::newRow("39: down by 40") << "39" << "down40";
    QTest::newRow("40, above the keyboard: stays") << "40" << "none";
    QTest::newRow("at the keyboard's top: up by its height") << "top" << "up";
    QTest::newRow("below the keyboard's top: up by its height") << "below" << "up";
    QTest::newRow("0: no anchor, stays") << "0" << "none";
}

void tst_Keyboard::anchor_rule_moves_the_panel()
{
    QFETCH(QString, where);
    QFETCH(QString, move);
    QCOMPARE(View_PopupVirtualKeyboard(11, 0, "1"), 0); // makes the layer and keys
    View_CloseVirtualKeyboard();
    QQuickItem* root = vkb()->guiRoot();
    QVERIFY(root);
    const qreal base = root->y();
    vkb()->showVkb(true);
    const QRectF keys = vkb()->getVkbRect();
    vkb()->hideVkb();
    QVERIFY(keys.height() > 0 && keys.top() > 40);
    int anchor = where == "top" ? int(keys.top()) : where == "below" ? int(keys.top()) + 10 : where.toInt();
    vkb()->popupVirtualKeyBord(VKB_DECIMAL, nullptr, "1", anchor);
    const qreal expected = move == "down40" ? base + 40 : move == "up" ? base - keys.height() : base;
    QCOMPARE(root->y(), expected);
    QCOMPARE(vkb()->anchor(), anchor);
    // a second request while open keeps the first anchor
    vkb()->popupVirtualKeyBord(VKB_DECIMAL, nullptr, "2", 39);
    QCOMPARE(vkb()->anchor(), anchor);
    // the window grows while the keyboard is open: the panel stays centred, moved as before
    const QSize size = m_panel.view()->size();
    m_panel.view()->resize(size + QSize(0, 100));
    QTRY_COMPARE(root->y(), expected + 50);
    vkb()->hideVkb();
    QCOMPARE(root->y(), base + 50);
    QCOMPARE(vkb()->anchor(), 0);
    m_panel.view()->resize(size);
    QTRY_COMPARE(root->y(), base);
}

void tst_Keyboard::keyboard_stays_usable_on_a_dimmed_panel()
{
    QCOMPARE(View_PopupVirtualKeyboard(12, 0, ""), 0);
    QCOMPARE(View_SetLight(40), 0);
    const QColor dim = vkb()->light();
    QVERIFY(dim.alpha() > 0);
    QCOMPARE(vkb()->popup()->property("light").value<QColor>(), dim);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    type("4 2");
    QCOMPARE(lineText(), QString("42"));
    // the keys are drawn darker than on a bright panel, and the line shows the colour too
    const QPoint at = m_panel.scenePoint(vkb()->keyboardItem(), QPointF(2, vkb()->keyboardItem()->height() / 2));
    const QColor dimmed = m_panel.view()->grabWindow().pixelColor(at);
    QCOMPARE(View_SetLight(100), 0);
    QCOMPARE(vkb()->light().alpha(), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QColor bright = m_panel.view()->grabWindow().pixelColor(at);
    QVERIFY2(dimmed.lightness() < bright.lightness() || bright.lightness() < 40,
        qPrintable(QString("%1 vs %2").arg(dimmed.name(), bright.name())));
}

void tst_Keyboard::preparation_leaves_no_trace()
{
    // the panel draws the keys, the line and every glyph they can show once, unseen, soon after
    // the desktop is made; afterwards everything is as if it never happened
    QTRY_VERIFY(vkb()->isInitialised());
    QQuickItem* layer = vkb()->popup()->parentItem();
    QVERIFY(layer);
    QTRY_COMPARE(layer->childItems().size(), 2); // the keys and the line, no glyph sample left
    QCOMPARE(layer->opacity(), 1.0);
    QVERIFY(layer->isEnabled());
    QVERIFY(!vkb()->popup()->isVisible());
    QVERIFY(!vkb()->keyboardItem()->isVisible());
    QQuickItem* line = vkb()->inputLine();
    QCOMPARE(lineText(), QString());
    QCOMPARE(line->property("placeholderText").toString(), QString());
    QCOMPARE(line->property("persistentSelection").toBool(), false);
    // the keys say which glyphs they show: every label of every layout and page
    const QString glyphs = vkb()->keyboardItem()->property("glyphs").toString();
    for (const QString& c : { "7", "A", "q", "Q", "\u232b", "\u21ea", "~", "?", "E" })
        QVERIFY2(glyphs.contains(c), qPrintable(c));
    QCOMPARE(QSet<QChar>(glyphs.begin(), glyphs.end()).size(), glyphs.size()); // each once

    // and an opening right after shows only its own text and range
    QCOMPARE(View_PopupVirtualKeyboard(12, 0, "7"), 0);
    QCOMPARE(View_SetVirtualKeyboardValidator(VALIDATOR_INT16), 0);
    QCOMPARE(View_SetVirtualKeyboardRangeI(-5, 9), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(lineText(), QString("7"));
    QCOMPARE(line->property("placeholderText").toString(), QString("[ -5 , 9 ]"));
}

void tst_Keyboard::active_text_object_receives_the_text_and_is_forgotten()
{
    View_Input rec {};
    rec.rect = Rect { 10, 10, 200, 40 };
    rec.id = 13;
    rec.text = "old";
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    auto* field = qobject_cast<XLineInputText*>(ViewManage::getInstance()->getItemById(13));
    QCOMPARE(View_PopupVirtualKeyboard(13, 5, "old"), 0); // makes the layer
    vkb()->popupVirtualKeyBord(VKB_TEXT, field, "old", 0);
    QCOMPARE(vkb()->activeText(), field);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    type("n e w enter");
    QCOMPARE(field->text(), QString("new")); // through its setText: the field has no text property
    QVERIFY(!vkb()->activeText());

    // a destroyed active object hides the keyboard (1282) and is not touched again
    auto* target = new QObject;
    target->setProperty("dummy", 1);
    vkb()->popupVirtualKeyBord(VKB_TEXT, target, "x", 0);
    m_rec.clear();
    delete target;
    QVERIFY(!vkb()->isVisible());
    QVERIFY(!vkb()->activeText());
    QCOMPARE(m_rec.count(EVT_VKB_HIDE), 1);
    vkb()->onVkbEditFinished("after"); // a confirmation with no requester object still reports
    QCOMPARE(m_rec.count(EVT_VKB_ENTER), 1);
}

void tst_Keyboard::requester_deleted_while_open_still_gets_its_events()
{
    View_Input rec {};
    rec.rect = Rect { 10, 10, 200, 40 };
    rec.id = 14;
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    QCOMPARE(View_PopupVirtualKeyboard(99, 0, "1"), 0);
    QCOMPARE(View_PopupVirtualKeyboard(14, 0, "1"), 0); // asked twice: the latest requester counts
    QCOMPARE(View_DeleteWidgets({ 14 }), 0);
    QVERIFY(vkb()->isVisible());
    m_rec.clear();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    type("7 enter");
    QCOMPARE(m_rec.count(EVT_VKB_ENTER), 1);
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).first().id, 14u);
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).first().payload, QByteArray("7"));
    QCOMPARE(m_rec.count(EVT_VKB_HIDE), 1);
    // closing a hidden keyboard is not a transition: nothing more is sent
    QCOMPARE(View_CloseVirtualKeyboard(), 0);
    QCOMPARE(m_rec.count(EVT_VKB_HIDE), 1);
}

void tst_Keyboard::keyboard_window_calls()
{
    const unsigned K = PanelFixture::wid(1, 5);
    View_Window w {};
    w.rect = Rect { 100, 100, 400, 200 };
    w.id = K;
    w.title = "keys";
    View_Popup p {};
    p.z = 10;
    p.titleHeight = 40;
    QCOMPARE(View_PopupWindow(&w, K, &p, POPUP_FLAG_KEYBOARD), 0);
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindowObj(K);
    QVERIFY(window);
    auto* title = window->findChild<KeyBoardWindowTitile*>();
    QVERIFY(title);
    XKeyBoardEdit* edit = title->lineEdit();
    Font big { nullptr, 99, 400, 0, 0, 0, 0, 0xFFFF0000u, 0 };
    QCOMPARE(View_ChangeKBoardTextContent(K, "abcdef", &big), 0);
    QCOMPARE(edit->text(), QString("abcdef"));
    QCOMPARE(View_SetKBoardTextCursorPosition(K, 2), 0);
    QCOMPARE(View_SetKBoardTextSelectCursor(K, 1, 3), 0);
    QCOMPARE(View_SetKBoardTextCursorFocus(), 0);
    // unknown window
    QCOMPARE(View_ChangeKBoardTextContent(PanelFixture::wid(1, 77), "x", nullptr), 0);
    QCOMPARE(View_SetKBoardTextCursorPosition(PanelFixture::wid(1, 77), 1), -1);
    QCOMPARE(View_SetKBoardTextSelectCursor(PanelFixture::wid(1, 77), 0, 1), 0);
    QCOMPARE(edit->text(), QString("abcdef"));
}

void tst_Keyboard::bad_input()
{
    // a text longer than the mask keeps what the mask holds
    QCOMPARE(View_PopupVirtualKeyboard(15, 4, "12:34:56:78:90"), 0);
    QCOMPARE(lineText(), QString("12:34:56"));
    // invalid UTF-8 and a huge text
    QCOMPARE(View_PopupVirtualKeyboard(15, 5, "a\xff" "b"), 0);
    QCOMPARE(lineText(), QString("a\uFFFDb"));
    const QByteArray huge(1 << 20, 'z');
    QCOMPARE(View_PopupVirtualKeyboard(15, 5, huge.constData()), 0);
    QVERIFY(lineText().size() <= 32767);
    // a text the validator refuses is shown as given and can be typed over
    QCOMPARE(View_PopupVirtualKeyboard(15, 0, "not a number"), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    type("3");
    QCOMPARE(lineText(), QString("3"));
    // a date that does not parse opens as given, under the mask
    QCOMPARE(View_PopupVirtualKeyboard(15, 3, "yesterday"), 0);
    QVERIFY(vkb()->isVisible());
}

QGUI_GUIAPP_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"

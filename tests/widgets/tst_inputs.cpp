// Entry fields on a real panel: the single-line and multi-line creators, the
// change calls and their results for unknown ids and wrong kinds, the anchor
// rule of the single-line alignment, the blink timer, input mode, grey and
// slash states through the registry's generic calls, presses, and bad input.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xlineinputtext.h"
#include "xcomponents/qquick/xquicktextedit.h"
#include "xcomponents/qquick/xtextedit.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTimer>
#include <QtQuick/private/qquicktext_p.h>
#include <QtQuick/private/qquicktextinput_p.h>

#include <qgui/events.h>

class tst_Inputs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void creators_refuse_null_records_and_unknown_windows();
    void single_line_path_is_the_same_with_or_without_the_text_creator();
    void multi_line_field_wraps_and_keeps_its_record_values();
    void change_calls_answer_unknown_ids_and_wrong_kinds_data();
    void change_calls_answer_unknown_ids_and_wrong_kinds();
    void alignment_anchors_the_text_line_data();
    void alignment_anchors_the_text_line();
    void blink_timer_is_made_once_and_stops_on_clear();
    void input_mode_off_clears_the_selection_data();
    void input_mode_off_clears_the_selection();
    void grey_and_slash_states_through_the_registry();
    void presses_are_reported_data();
    void presses_are_reported();
    void bad_input_is_shown_safely_data();
    void bad_input_is_shown_safely();

private:
    View_Input record(unsigned id, const char* text, U32 flags = 0, Rect r = Rect { 100, 100, 300, 60 });
    static QQuickItem* item(unsigned id) { return ViewManage::getInstance()->getItemById(id); }
    static XLineInputText* line(unsigned id) { return qobject_cast<XLineInputText*>(item(id)); }
    static XTextEdit* edit(unsigned id) { return qobject_cast<XTextEdit*>(item(id)); }

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 24, 400, 0, 0, 0, 0, 0xFF0000C0u, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER };
    View_TextLayout m_layout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 6, 0 };
    const unsigned A = PanelFixture::wid(1, 1);
};

View_Input tst_Inputs::record(unsigned id, const char* text, U32 flags, Rect r)
{
    View_Input rec {};
    rec.rect = r;
    rec.id = id;
    rec.text = text;
    rec.font = &m_font;
    rec.layout = &m_layout;
    rec.flags = flags;
    rec.slashText = "****";
    return rec;
}

void tst_Inputs::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_Inputs::cleanup()
{
    m_panel.stop();
}

void tst_Inputs::creators_refuse_null_records_and_unknown_windows()
{
    View_Input rec = record(10, "1");
    QCOMPARE(View_CreateInputText(nullptr, A), -1);
    QCOMPARE(View_CreateNumInputText(nullptr, A), -1);
    QCOMPARE(View_CreateNumInputText(&rec, PanelFixture::wid(1, 99)), -1);
    rec.flags = INPUT_MULTILINE;
    QCOMPARE(View_CreateInputText(&rec, PanelFixture::wid(1, 99)), -1);
    QVERIFY(!item(10));
}

void tst_Inputs::single_line_path_is_the_same_with_or_without_the_text_creator()
{
    View_Input a = record(11, "42");
    View_Input b = record(12, "42");
    b.rect.y = 200;
    QCOMPARE(View_CreateInputText(&a, A), 0);
    QCOMPARE(View_CreateNumInputText(&b, A), 0);
    XLineInputText* la = line(11);
    XLineInputText* lb = line(12);
    QVERIFY(la && lb);
    QCOMPARE(la->metaObject(), lb->metaObject());
    QCOMPARE(la->text(), lb->text());
    QCOMPARE(la->size(), lb->size());
    QCOMPARE(la->textLine()->position(), lb->textLine()->position());
    QCOMPARE(la->font(), lb->font());
    QCOMPARE(la->itemPen(), QColor(0, 0, 0xC0));
    QCOMPARE(la->getWgtRect(), QRect(100, 100, 300, 60));
}

void tst_Inputs::multi_line_field_wraps_and_keeps_its_record_values()
{
    View_Input rec = record(13, "one two three four five six seven eight nine ten eleven twelve", INPUT_MULTILINE,
        Rect { 50, 50, 160, 120 });
    rec.paddingLeft = 4;
    rec.paddingTop = 3;
    rec.lineNumber = 7;
    rec.totalLine = 9;
    QCOMPARE(View_CreateInputText(&rec, A), 0);
    XTextEdit* field = edit(13);
    QVERIFY(field);
    XQuickTextEdit* text = field->textItem();
    QVERIFY(text);
    QCOMPARE(field->size(), QSizeF(160, 120));
    QCOMPARE(text->wrapMode(), QQuickTextEdit::Wrap);
    QVERIFY2(text->lineCount() > 1, "a long text wraps at the field's width");
    QCOMPARE(text->leftPadding(), 4.0);
    QCOMPARE(text->topPadding(), 3.0);
    QCOMPARE(text->lineNumber(), 7);
    QCOMPARE(text->totalLine(), 9);
    QCOMPARE(text->color(), QColor(0, 0, 0xC0));

    // restyle: geometry and the multi-line values change, the text stays
    rec.rect = Rect { 60, 70, 400, 100 };
    rec.lineNumber = 2;
    QCOMPARE(View_ChangeInputParam(13, &rec), 0);
    QCOMPARE(field->position(), QPointF(60, 70));
    QCOMPARE(field->width(), 400.0);
    QCOMPARE(text->lineNumber(), 2);
    QVERIFY(field->text().startsWith("one two"));
}

void tst_Inputs::change_calls_answer_unknown_ids_and_wrong_kinds_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("unknown");
    QTest::addColumn<int>("wrongKind");
    QTest::addColumn<int>("field");
    QTest::newRow("ChangeInputParam") << "param" << -1 << -1 << 0;
    QTest::newRow("SetTextCursorPosition") << "cursor" << -1 << -1 << 0;
    QTest::newRow("SetTextSelectCursor") << "select" << 0 << 0 << 0;
    QTest::newRow("SetTextCursorFocus") << "focus" << 0 << 0 << 0;
}

void tst_Inputs::change_calls_answer_unknown_ids_and_wrong_kinds()
{
    QFETCH(QString, call);
    QFETCH(int, unknown);
    QFETCH(int, wrongKind);
    QFETCH(int, field);
    View_Input rec = record(20, "12345");
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    View_Text text {};
    text.rect = Rect { 0, 0, 50, 20 };
    text.id = 21;
    text.text = "static";
    QCOMPARE(View_CreateText(&text, A), 0);
    auto run = [&](unsigned id) {
        if (call == "param")
            return View_ChangeInputParam(id, &rec);
        if (call == "cursor")
            return View_SetTextCursorPosition(id, 3);
        if (call == "select")
            return View_SetTextSelectCursor(id, 1, 4);
        return View_SetTextCursorFocus(id);
    };
    QCOMPARE(run(999), unknown);
    QCOMPARE(run(21), wrongKind);
    QCOMPARE(run(20), field);
    if (call == "cursor")
        QCOMPARE(line(20)->textLine()->cursorPosition(), 3);
    if (call == "select")
        QCOMPARE(line(20)->textLine()->selectedText(), QString("234"));
    QCOMPARE(View_ChangeInputParam(20, nullptr), -1);
}

void tst_Inputs::alignment_anchors_the_text_line_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("horizontal");
    QTest::addColumn<QString>("vertical");
    QTest::newRow("left top") << 0x21 << "left" << "top";
    QTest::newRow("right bottom") << 0x42 << "right" << "bottom";
    QTest::newRow("hcenter vcenter") << 0x84 << "hcenter" << "vcenter";
    QTest::newRow("hcenter top (margins only on edges)") << 0x24 << "hcenter" << "top";
    QTest::newRow("no bits: unanchored") << 0x00 << "none" << "none";
    QTest::newRow("two horizontal bits: unanchored") << (0x03 | 0x80) << "none" << "vcenter";
}

void tst_Inputs::alignment_anchors_the_text_line()
{
    QFETCH(int, flags);
    QFETCH(QString, horizontal);
    QFETCH(QString, vertical);
    View_Input rec = record(30, "7");
    rec.rect = Rect { 0, 0, 300, 100 };
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    XLineInputText* field = line(30);
    // move the line away first: an unanchored direction keeps this place
    field->setAlignment(0, 0, 0);
    field->textLine()->setPosition(QPointF(17, 19));
    field->setAlignment(flags, 10, 8);
    QQuickTextInput* t = field->textLine();
    const qreal w = t->width(), h = t->height();
    QCOMPARE(w, 300.0); // the line's width follows the field's
    const QHash<QString, qreal> xs { { "left", 10 }, { "right", 300 - 10 - w }, { "hcenter", (300 - w) / 2 },
        { "none", 17 } };
    const QHash<QString, qreal> ys { { "top", 8 }, { "bottom", 100 - 8 - h }, { "vcenter", (100 - h) / 2 },
        { "none", 19 } };
    // centring anchors round to whole pixels
    QVERIFY2(qAbs(t->x() - xs.value(horizontal)) <= 0.5, qPrintable(QString::number(t->x())));
    QVERIFY2(qAbs(t->y() - ys.value(vertical)) <= 0.5, qPrintable(QString::number(t->y())));
    // the anchors hold when the field is resized
    field->setHeight(200);
    if (vertical == "bottom")
        QCOMPARE(t->y(), 200 - 8 - h);
    if (vertical == "vcenter")
        QVERIFY(qAbs(t->y() - (200 - h) / 2) <= 0.5);
}

void tst_Inputs::blink_timer_is_made_once_and_stops_on_clear()
{
    View_Input rec = record(40, "5");
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    XLineInputText* field = line(40);
    QVERIFY(!field->blinkTimer());
    QCOMPARE(View_SetInputFlag(40), 0);
    QCOMPARE(View_SetInputFlag(40), 0);
    QCOMPARE(field->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QVERIFY(field->blinkTimer() && field->blinkTimer()->isActive());
    QCOMPARE(field->blinkTimer()->interval(), 500);
    // the cursor toggles on every tick
    const bool before = field->cursorShown();
    QSignalSpy ticks(field->blinkTimer(), &QTimer::timeout);
    QVERIFY(ticks.wait(1000));
    QCOMPARE(field->cursorShown(), !before);
    QCOMPARE(View_ClrInputFlag(40), 0);
    QVERIFY(!field->blinkTimer()->isActive());
    QVERIFY(!field->cursorShown());
    QCOMPARE(View_SetInputFlag(999), 0);
}

void tst_Inputs::input_mode_off_clears_the_selection_data()
{
    QTest::addColumn<bool>("multiLine");
    QTest::newRow("single line") << false;
    QTest::newRow("multi line") << true;
}

void tst_Inputs::input_mode_off_clears_the_selection()
{
    QFETCH(bool, multiLine);
    View_Input rec = record(50, "abcdef", multiLine ? INPUT_MULTILINE : 0);
    QCOMPARE(View_CreateInputText(&rec, A), 0);
    auto* field = qobject_cast<XBaseTextInputControl*>(item(50));
    QVERIFY(field);
    QCOMPARE(View_SetInputMode(50, true), 0);
    QVERIFY(field->cursorShown());
    QCOMPARE(View_SetTextSelectCursor(50, 1, 3), 0);
    const QString selected = multiLine ? edit(50)->textItem()->selectedText() : line(50)->textLine()->selectedText();
    QCOMPARE(selected, QString("bc"));
    QCOMPARE(View_ClrInputMode(50), 0);
    QVERIFY(!field->cursorShown());
    const QString after = multiLine ? edit(50)->textItem()->selectedText() : line(50)->textLine()->selectedText();
    QVERIFY(after.isEmpty());
}

void tst_Inputs::grey_and_slash_states_through_the_registry()
{
    View_Input rec = record(60, "1234");
    QCOMPARE(View_CreateNumInputText(&rec, A), 0);
    View_Input multi = record(61, "multi", INPUT_MULTILINE, Rect { 100, 200, 300, 120 });
    QCOMPARE(View_CreateInputText(&multi, A), 0);
    XLineInputText* single = line(60);
    XTextEdit* many = edit(61);

    QCOMPARE(View_SetDisableFlag(60, 4), 0);
    QCOMPARE(View_SetDisableFlag(61, 4), 0);
    QCOMPARE(single->textLine()->color(), QColor(Qt::gray));
    QCOMPARE(many->textItem()->color(), QColor(Qt::gray));
    QCOMPARE(View_ClrDisableFlag(60, 4), 0);
    QCOMPARE(View_ClrDisableFlag(61, 4), 0);
    QCOMPARE(single->textLine()->color(), QColor(0, 0, 0xC0));
    QCOMPARE(many->textItem()->color(), QColor(0, 0, 0xC0));

    // slash: the single-line field shows its substitute in the slash item, the multi-line one in its text
    QCOMPARE(View_ShowWidget(60, 0, ITEM_SLASH_SLASH), 0);
    QCOMPARE(View_ShowWidget(61, 0, ITEM_SLASH_SLASH), 0);
    QVERIFY(single->slashItem()->isVisible());
    QCOMPARE(single->slashItem()->text(), QString("****"));
    QCOMPARE(single->text(), QString("1234"));
    QCOMPARE(many->text(), QString("****"));
    QCOMPARE(View_HideWidget(60, ITEM_SLASH_SLASH), 0);
    QCOMPARE(View_HideWidget(61, ITEM_SLASH_SLASH), 0);
    QVERIFY(!single->slashItem()->isVisible());
    QVERIFY(many->text().isEmpty());

    // deletion through the registry
    QCOMPARE(View_DeleteWidgets({ 60, 61 }), 0);
    QVERIFY(!item(60) && !item(61));
}

void tst_Inputs::presses_are_reported_data()
{
    QTest::addColumn<bool>("multiLine");
    QTest::addColumn<bool>("touch");
    QTest::newRow("single line, mouse") << false << false;
    QTest::newRow("single line, touch") << false << true;
    QTest::newRow("multi line (on its text), mouse") << true << false;
    QTest::newRow("multi line (on its text), touch") << true << true;
}

void tst_Inputs::presses_are_reported()
{
    QFETCH(bool, multiLine);
    QFETCH(bool, touch);
    View_Input rec = record(70, "press me", multiLine ? INPUT_MULTILINE : 0);
    QCOMPARE(View_CreateInputText(&rec, A), 0);
    m_rec.clear();
    // on the first characters: the text item lies there
    const QPoint at = m_panel.scenePoint(item(70), QPointF(30, 20));
    touch ? m_panel.touch(at) : m_panel.click(at);
    const QList<EventRecorder::Event> presses = m_rec.eventsWithCode(EVT_WIDGET_PRESS);
    const QList<EventRecorder::Event> releases = m_rec.eventsWithCode(EVT_WIDGET_RELEASE);
    QCOMPARE(presses.size(), 1);
    QCOMPARE(releases.size(), 1);
    QCOMPARE(presses.first().id, 70u);
    QCOMPARE(releases.first().id, 70u);
    // a field only shows its value: keys never edit it, even when something gives it focus
    item(70)->forceActiveFocus();
    QTest::keyClick(m_panel.view(), Qt::Key_X);
    QTest::keyClick(m_panel.view(), Qt::Key_Backspace);
    QCOMPARE(qobject_cast<XBaseTextInputControl*>(item(70))->text(), QString("press me"));
}

void tst_Inputs::bad_input_is_shown_safely_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("multiLine");
    QTest::addColumn<int>("shownLength");
    const QByteArray mib(1 << 20, 'x');
    QTest::newRow("1 MiB, single line") << mib << false << int(XBaseTextInputControl::kMaxFieldText);
    QTest::newRow("1 MiB, multi line") << mib << true << int(XBaseTextInputControl::kMaxFieldText);
    QTest::newRow("invalid UTF-8") << QByteArray("a\xff\xfe" "b") << false << 4;
    QTest::newRow("null text") << QByteArray() << false << 0;
}

void tst_Inputs::bad_input_is_shown_safely()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, multiLine);
    QFETCH(int, shownLength);
    View_Input rec = record(80, text.isNull() ? nullptr : text.constData(), multiLine ? INPUT_MULTILINE : 0,
        Rect { 0, 0, 1000000, -5 });
    rec.image = "no/such/picture.png";
    QCOMPARE(View_CreateInputText(&rec, A), 0);
    auto* field = qobject_cast<XBaseTextInputControl*>(item(80));
    QVERIFY(field);
    QCOMPARE(field->text().size(), shownLength);
    QCOMPARE(field->height(), 0.0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(View_SetTextCursorPosition(80, 4000000000u), 0); // clamped to the end
    QCOMPARE(View_SetTextSelectCursor(80, 4000000000u, 0), 0);
}

QGUI_GUIAPP_TEST_MAIN(tst_Inputs)
#include "tst_inputs.moc"

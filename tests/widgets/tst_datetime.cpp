// The clock field and the date/time popups on a real panel: creation, presses,
// the popup preset from a text and confirmed by a real press, one popup at a
// time talking to its own field, bad texts, the start-end popup's ends, and
// what the operator sees.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "config/globalconfig.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xdatetimeedit.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QDateTime>
#include <QQuickItem>
#include <QSignalSpy>
#include <QtQuick/private/qquicktext_p.h>

#include <qgui/events.h>

class tst_DateTime : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void creation_takes_the_record_data();
    void creation_takes_the_record();
    void presses_on_the_field_are_reported_and_change_nothing_data();
    void presses_on_the_field_are_reported_and_change_nothing();
    void confirm_sends_the_preset_moment_for_the_field_data();
    void confirm_sends_the_preset_moment_for_the_field();
    void unparsable_text_presets_the_current_moment_data();
    void unparsable_text_presets_the_current_moment();
    void pressed_day_and_page_turn_reach_the_sent_text();
    void cancel_sends_nothing_and_closes();
    void second_popup_replaces_the_first_and_talks_only_to_its_field();
    void unknown_id_or_other_kind_opens_nothing();
    void grey_and_slash_states_through_the_registry();
    void picker_and_field_are_visible_on_screen();
    void buttons_follow_the_language();
    void start_end_confirm_gives_the_switched_on_ends_data();
    void start_end_confirm_gives_the_switched_on_ends();

private:
    static XDateTimeEdit* clock(unsigned id)
    {
        return qobject_cast<XDateTimeEdit*>(ViewManage::getInstance()->getItemById(id));
    }
    static XPopup* popup() { return ViewManage::getInstance()->windowManage()->dateTimeWindow(); }
    int create(unsigned id, const char* text, Rect r = Rect { 100, 40, 240, 48 });
    /** The item named \a name under \a root, searched through the item tree (delegates included). */
    static QQuickItem* item(QQuickItem* root, const QString& name);
    void press(QQuickItem* root, const QString& name);
    QList<EventRecorder::Event> dateTimeEvents() const { return m_rec.eventsWithCode(EVT_DATETIME_OK); }
    QImage grab();

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 20, 400, 0, 0, 0, 0, 0xFF0000C0u, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER };
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_DateTime::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_DateTime::cleanup()
{
    m_panel.stop();
}

int tst_DateTime::create(unsigned id, const char* text, Rect r)
{
    View_InputClock rec { 0, r, id, nullptr, text, &m_font, 30 };
    return View_CreateInputClock(&rec, A);
}

QQuickItem* tst_DateTime::item(QQuickItem* root, const QString& name)
{
    if (!root)
        return nullptr;
    for (QQuickItem* child : root->childItems()) {
        if (child->objectName() == name)
            return child;
        if (QQuickItem* found = item(child, name))
            return found;
    }
    return nullptr;
}

void tst_DateTime::press(QQuickItem* root, const QString& name)
{
    QQuickItem* target = item(root, name);
    QVERIFY2(target, qPrintable(name));
    QVERIFY2(target->isVisible(), qPrintable(name));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_panel.click(m_panel.sceneCenter(target));
    PanelFixture::settle();
}

QImage tst_DateTime::grab()
{
    // a popup's first frame may still be on its way to the final look: grab until two frames agree
    QImage last;
    for (int i = 0; i < 20; ++i) {
        if (!TestUtil::waitForFrame(m_panel.view()))
            return QImage();
        QImage shot = m_panel.view()->grabWindow();
        if (shot == last)
            break;
        last = shot;
    }
    return last;
}

void tst_DateTime::creation_takes_the_record_data()
{
    QTest::addColumn<bool>("nullRecord");
    QTest::addColumn<unsigned>("window");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("shown");
    const unsigned a = PanelFixture::wid(1, 1);
    QTest::newRow("null record") << true << a << QByteArray("x") << -1 << QString();
    QTest::newRow("unknown window") << false << PanelFixture::wid(1, 77) << QByteArray("x") << -1
                                    << QString();
    QTest::newRow("window 0") << false << 0u << QByteArray("x") << -1 << QString();
    QTest::newRow("date-time text") << false << a << QByteArray("2024-02-29 07:05:09") << 0
                                    << QStringLiteral("2024-02-29 07:05:09");
    QTest::newRow("null text is empty") << false << a << QByteArray() << 0 << QString();
    QTest::newRow("invalid utf-8") << false << a << QByteArray("20\xff\xfe") << 0
                                   << QStringLiteral("20\uFFFD\uFFFD");
    QTest::newRow("megabyte text is cut")
        << false << a << QByteArray(1 << 20, '9') << 0 << QString(4095, '9') + QChar(0x2026);
}

void tst_DateTime::creation_takes_the_record()
{
    QFETCH(bool, nullRecord);
    QFETCH(unsigned, window);
    QFETCH(QByteArray, text);
    QFETCH(int, result);
    QFETCH(QString, shown);
    View_InputClock rec { 0, Rect { 10, 20, 200, 40 }, 31, nullptr,
        text.isNull() ? nullptr : text.constData(), &m_font, 30 };
    QCOMPARE(View_CreateInputClock(nullRecord ? nullptr : &rec, window), result);
    if (result != 0) {
        QVERIFY(!ViewManage::getInstance()->getItemById(31));
        return;
    }
    XDateTimeEdit* c = clock(31);
    QVERIFY(c);
    QCOMPARE(c->text(), shown);
    QCOMPARE(c->textItem()->color(), QColor(0, 0, 0xC0));
    QCOMPARE(c->textItem()->lineHeightMode(), QQuickText::FixedHeight);
    QCOMPARE(c->textItem()->lineHeight(), 30.0);
    QCOMPARE(c->textItem()->font().pixelSize(), 20);
}

void tst_DateTime::presses_on_the_field_are_reported_and_change_nothing_data()
{
    QTest::addColumn<bool>("touch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

void tst_DateTime::presses_on_the_field_are_reported_and_change_nothing()
{
    QFETCH(bool, touch);
    QCOMPARE(create(32, "2024-01-01 00:00:00"), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    const QPoint at = m_panel.sceneCenter(clock(32));
    touch ? m_panel.touch(at) : m_panel.click(at);
    QList<EventRecorder::Event> events;
    for (const auto& e : m_rec.events()) {
        if (e.code == EVT_WIDGET_PRESS || e.code == EVT_WIDGET_RELEASE)
            events << e;
    }
    QCOMPARE(events.size(), 2);
    QCOMPARE(events[0].code, int(EVT_WIDGET_PRESS));
    QCOMPARE(events[0].id, 32u);
    QCOMPARE(events[1].code, int(EVT_WIDGET_RELEASE));
    QCOMPARE(events[1].id, 32u);
    QVERIFY(!popup()); // the logic layer decides to open it
    QCOMPARE(clock(32)->text(), QStringLiteral("2024-01-01 00:00:00"));
}

void tst_DateTime::confirm_sends_the_preset_moment_for_the_field_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QStringList>("columns"); // hour, minute, second as the tumblers show them
    QTest::newRow("small numbers show no leading zero")
        << "2024-02-29 07:05:09" << QStringList { "7", "5", "9" };
    QTest::newRow("midnight") << "2000-01-01 00:00:00" << QStringList { "0", "0", "0" };
    QTest::newRow("last second of a year") << "2023-12-31 23:59:59" << QStringList { "23", "59", "59" };
}

void tst_DateTime::confirm_sends_the_preset_moment_for_the_field()
{
    QFETCH(QString, preset);
    QFETCH(QStringList, columns);
    QCOMPARE(create(33, "shown"), 0);
    const QByteArray text = preset.toUtf8();
    QCOMPARE(View_PopupDateTimeDialog(33, text.constData()), 0);
    XPopup* p = popup();
    QVERIFY(p);
    QVERIFY(p->isOpened());
    const QDateTime moment = QDateTime::fromString(preset, "yyyy-MM-dd hh:mm:ss");
    QCOMPARE(p->property("selectDate").toDateTime().date(), moment.date());
    QCOMPARE(p->property("currentDate").toDateTime().date().month(), moment.date().month());
    const QString dayName = QStringLiteral("day_%1_%2_%3")
                                .arg(moment.date().year())
                                .arg(moment.date().month())
                                .arg(moment.date().day());
    QVERIFY(item(p, dayName));

    press(p, "timeLine"); // opens the columns in place of the calendar
    QVERIFY(!item(p, "calendar")->isVisible());
    const char* const names[] = { "hourTumbler", "minuteTumbler", "secondTumbler" };
    const int rows[] = { 24, 60, 60 };
    for (int i = 0; i < 3; ++i) {
        QQuickItem* tumbler = item(p, names[i]);
        QVERIFY(tumbler && tumbler->isVisible());
        QCOMPARE(tumbler->property("count").toInt(), rows[i]);
        auto* current = tumbler->property("currentItem").value<QQuickItem*>();
        QVERIFY(current);
        QCOMPARE(current->property("text").toString(), columns[i]);
        // and it is the row in the middle of the column, where the operator reads it
        const QPointF middle
            = current->mapToItem(tumbler, QPointF(current->width() / 2, current->height() / 2));
        QTRY_VERIFY2(qAbs(middle.y() - tumbler->height() / 2) < 2, qPrintable(QString::number(middle.y())));
    }

    m_rec.clear();
    press(p, "okButton");
    const auto events = dateTimeEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].id, 33u);
    QVERIFY(!events[0].nullData);
    QCOMPARE(events[0].payload, text); // exactly the text, NUL-terminated
    QCOMPARE(clock(33)->text(), QStringLiteral("shown")); // the logic layer writes it back
    QVERIFY(!popup());
}

void tst_DateTime::unparsable_text_presets_the_current_moment_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("nullText");
    QTest::newRow("null") << QByteArray() << true;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("words") << QByteArray("tomorrow at noon") << false;
    QTest::newRow("month 13") << QByteArray("2024-13-01 10:00:00") << false;
    QTest::newRow("30 February") << QByteArray("2024-02-30 10:00:00") << false;
    QTest::newRow("no seconds") << QByteArray("2024-02-01 10:00") << false;
    QTest::newRow("invalid utf-8") << QByteArray("2024-\xff\xfe-01 10:00:00") << false;
    QTest::newRow("megabyte") << QByteArray(1 << 20, '7') << false;
}

void tst_DateTime::unparsable_text_presets_the_current_moment()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, nullText);
    QCOMPARE(create(34, ""), 0);
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QCOMPARE(View_PopupDateTimeDialog(34, nullText ? nullptr : text.constData()), 0);
    QVERIFY(popup());
    m_rec.clear();
    press(popup(), "okButton");
    const QDateTime after = QDateTime::currentDateTime().addSecs(1);
    const auto events = dateTimeEvents();
    QCOMPARE(events.size(), 1);
    const QDateTime sent = QDateTime::fromString(events[0].text(), "yyyy-MM-dd hh:mm:ss");
    QVERIFY2(sent.isValid(), qPrintable(events[0].text()));
    QVERIFY2(sent >= before.addMSecs(-before.time().msec()) && sent <= after, qPrintable(events[0].text()));
}

void tst_DateTime::pressed_day_and_page_turn_reach_the_sent_text()
{
    QCOMPARE(create(35, ""), 0);
    QCOMPARE(View_PopupDateTimeDialog(35, "2024-02-10 12:34:56"), 0);
    press(popup(), "day_2024_2_20");
    QCOMPARE(popup()->property("selectDate").toDateTime().date(), QDate(2024, 2, 20));
    press(popup(), "nextMonth");
    press(popup(), "day_2024_3_31");
    press(popup(), "prevYear");
    press(popup(), "day_2023_3_1");
    m_rec.clear();
    press(popup(), "okButton");
    const auto events = dateTimeEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].text(), QStringLiteral("2023-03-01 12:34:56"));
}

void tst_DateTime::cancel_sends_nothing_and_closes()
{
    QCOMPARE(create(36, ""), 0);
    QCOMPARE(View_PopupDateTimeDialog(36, "2024-02-10 12:34:56"), 0);
    QPointer<XPopup> p = popup();
    QSignalSpy reject(p.data(), SIGNAL(reject(QString)));
    m_rec.clear();
    press(p, "cancelButton");
    QCOMPARE(reject.count(), 1);
    QCOMPARE(reject[0][0].toString(), QStringLiteral("2024-02-10 12:34:56"));
    QCOMPARE(dateTimeEvents().size(), 0);
    QVERIFY(!popup());
    QVERIFY(!p); // deleted once closed
}

void tst_DateTime::second_popup_replaces_the_first_and_talks_only_to_its_field()
{
    QCOMPARE(create(37, "", Rect { 10, 10, 200, 40 }), 0);
    QCOMPARE(create(38, "", Rect { 10, 60, 200, 40 }), 0);
    QCOMPARE(View_PopupDateTimeDialog(37, "2021-01-01 01:01:01"), 0);
    QPointer<XPopup> first = popup();
    QCOMPARE(View_PopupDateTimeDialog(38, "2022-02-02 02:02:02"), 0);
    XPopup* second = popup();
    QVERIFY(second && second != first);
    // the first is closed and cut off, even while it still exists
    m_rec.clear();
    QVERIFY(first);
    QVERIFY(!first->isOpened());
    QMetaObject::invokeMethod(first, "onOkClicked", Q_ARG(QString, "2021-01-01 01:01:01"));
    QCOMPARE(dateTimeEvents().size(), 0);
    PanelFixture::settle();
    QVERIFY(!first);
    int open = 0;
    for (QQuickItem* child : ViewManage::getInstance()->windowManage()->getOverlay(1)->childItems()) {
        auto* p = qobject_cast<XPopup*>(child);
        open += p && p->isOpened() && p->property("dateTime").isValid();
    }
    QCOMPARE(open, 1);
    m_rec.clear();
    press(second, "okButton");
    const auto events = dateTimeEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].id, 38u);
    QCOMPARE(events[0].text(), QStringLiteral("2022-02-02 02:02:02"));

    // the field deleted while its popup is open: the popup goes with it, nothing is sent
    m_rec.clear();
    QCOMPARE(View_PopupDateTimeDialog(37, "2021-01-01 01:01:01"), 0);
    QPointer<XPopup> orphan = popup();
    QCOMPARE(View_DeleteWidgets({ 37u }), 0);
    PanelFixture::settle();
    QVERIFY(!orphan || !orphan->isOpened());
    QVERIFY(!popup());
    QCOMPARE(dateTimeEvents().size(), 0);
    // the field's window closed (its widgets kept for the next visit): its popup closes too
    QCOMPARE(View_PopupDateTimeDialog(38, ""), 0);
    QVERIFY(popup() && popup()->isOpened());
    QCOMPARE(View_CloseWindow(A), 0);
    PanelFixture::settle();
    QVERIFY(!popup());
}

void tst_DateTime::unknown_id_or_other_kind_opens_nothing()
{
    QCOMPARE(View_PopupDateTimeDialog(999, "2024-01-01 00:00:00"), 0);
    QVERIFY(!popup());
    View_Text text { 0, Rect { 0, 0, 50, 50 }, 39, "t", nullptr, nullptr };
    QCOMPARE(View_CreateText(&text, A), 0);
    QCOMPARE(View_PopupDateTimeDialog(39, "2024-01-01 00:00:00"), 0);
    QVERIFY(!popup());
}

void tst_DateTime::grey_and_slash_states_through_the_registry()
{
    QCOMPARE(create(40, "2024-01-01 00:00:00"), 0);
    XDateTimeEdit* c = clock(40);
    QCOMPARE(View_SetDisableFlag(40, 4), 0);
    QCOMPARE(c->textItem()->color(), QColor(Qt::gray));
    QCOMPARE(View_ClrDisableFlag(40, 4), 0);
    QCOMPARE(c->textItem()->color(), QColor(0, 0, 0xC0));
    QCOMPARE(View_ShowWidget(40, 0, ITEM_SLASH_SLASH), 0); // the slash state hides the value
    QVERIFY(!c->textItem()->isVisible());
    QCOMPARE(View_HideWidget(40, ITEM_SLASH_SLASH), 0);
    QVERIFY(c->textItem()->isVisible());
    QCOMPARE(View_SetInputFlag(40), 0);
    QVERIFY(c->inputFlag());
    QCOMPARE(View_ClrInputFlag(40), 0);
    QVERIFY(!c->inputFlag());
    QCOMPARE(View_ChangeTextContent(40, "2025-05-05 05:05:05", nullptr), 0);
    QCOMPARE(c->text(), QStringLiteral("2025-05-05 05:05:05"));
}

void tst_DateTime::picker_and_field_are_visible_on_screen()
{
    QCOMPARE(create(41, "8888-88-88 88:88:88", Rect { 20, 20, 300, 40 }), 0);
    const QImage before = grab();
    QVERIFY(!before.isNull());
    int ink = 0; // the field's blue text on the white window
    for (int y = 20; y < 60; ++y)
        for (int x = 20; x < 320; ++x)
            ink += QColor(before.pixel(x, y)).blue() > 120 && QColor(before.pixel(x, y)).red() < 100;
    QVERIFY2(ink > 100, qPrintable(QString::number(ink)));

    QCOMPARE(View_PopupDateTimeDialog(41, "2024-02-29 07:05:09"), 0);
    const QImage shot = grab();
    QVERIFY(item(popup(), "okButton") && item(popup(), "day_2024_2_29") && item(popup(), "day_2024_2_28"));
    const QColor button(shot.pixel(m_panel.scenePoint(item(popup(), "okButton"), QPointF(6, 6))));
    QCOMPARE(button, QColor("#537bad"));
    const QColor day(shot.pixel(m_panel.scenePoint(item(popup(), "day_2024_2_29"), QPointF(4, 4))));
    QCOMPARE(day, QColor("#537bad"));
    const QColor other(shot.pixel(m_panel.scenePoint(item(popup(), "day_2024_2_28"), QPointF(4, 4))));
    QVERIFY(other != QColor("#537bad"));
}

void tst_DateTime::buttons_follow_the_language()
{
    auto buttonTexts = [this] {
        QQuickItem* cancel = item(popup(), "cancelButton");
        QQuickItem* ok = item(popup(), "okButton");
        return cancel && ok ? cancel->property("text").toString() + QLatin1Char('|')
                + ok->property("contentItem").value<QQuickItem*>()->property("text").toString()
                            : QString();
    };
    QCOMPARE(create(42, "2024-01-01 00:00:00"), 0);
    QCOMPARE(View_PopupDateTimeDialog(42, "2024-01-01 00:00:00"), 0);
    QCOMPARE(buttonTexts(), QString("Cancel|Confirm"));
    GlobalConfig::getInstance()->setLocale(0); // while it is open
    QCOMPARE(buttonTexts(), QString::fromUtf8("取消|确认"));
    GlobalConfig::getInstance()->setLocale(1);
    QCOMPARE(buttonTexts(), QString("Cancel|Confirm"));
}

void tst_DateTime::start_end_confirm_gives_the_switched_on_ends_data()
{
    QTest::addColumn<bool>("startOn");
    QTest::addColumn<bool>("endOn");
    QTest::newRow("only end") << false << true;
    QTest::newRow("only start") << true << false;
    QTest::newRow("both") << true << true;
    QTest::newRow("neither") << false << false;
}

void tst_DateTime::start_end_confirm_gives_the_switched_on_ends()
{
    QFETCH(bool, startOn);
    QFETCH(bool, endOn);
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    XOverlay* overlay = ViewManage::getInstance()->windowManage()->getOverlay(1);
    auto* p = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(
        QUrl("qrc:/datetimeset/StartEndDateTimePopup.qml"), overlay));
    QVERIFY(p);
    QScopedPointer<XPopup> owner(p);
    p->setOverlay(overlay);
    p->setZ(100);
    // a start that parses switches the start on; the empty end stays off
    QMetaObject::invokeMethod(p, "initDateTime", Q_ARG(QVariant, "2024-03-04 05:06:07"), Q_ARG(QVariant, ""));
    p->open();
    QCOMPARE(item(p, "startPicker")->property("checked").toBool(), true);
    QCOMPARE(item(p, "endPicker")->property("checked").toBool(), false);
    if (!startOn)
        press(item(p, "startPicker"), "option");
    if (endOn)
        press(item(p, "endPicker"), "option");
    QCOMPARE(item(p, "startPicker")->property("checked").toBool(), startOn);
    QCOMPARE(item(p, "endPicker")->property("checked").toBool(), endOn);

    QSignalSpy confirm(p, SIGNAL(confirm(QString, QString)));
    QSignalSpy cancel(p, SIGNAL(cancel()));
    press(p, "okButton");
    QCOMPARE(confirm.count(), 1);
    QCOMPARE(cancel.count(), 0);
    QVERIFY(!p->isOpened());
    const QString start = confirm[0][0].toString();
    const QString end = confirm[0][1].toString();
    QCOMPARE(start, startOn ? QStringLiteral("2024-03-04 05:06:07") : QString());
    if (!endOn) {
        QCOMPARE(end, QString());
    } else {
        // the end was not preset: it starts at the moment the popup was made
        const QDateTime e = QDateTime::fromString(end, "yyyy-MM-dd hh:mm:ss");
        QVERIFY2(e.isValid() && e >= before && e <= QDateTime::currentDateTime(), qPrintable(end));
    }
}

QGUI_GUIAPP_TEST_MAIN(tst_DateTime)
#include "tst_datetime.moc"

#ifndef XSETTINGTOOLCONTROL_H
#define XSETTINGTOOLCONTROL_H

#include <QQuickItem>
#include <QString>

/**
 * The paging bar under a table: home, up, next and end buttons, the page entry
 * and the numbers "total records", "page" and "of pages". The logic layer owns
 * the paging: the buttons only report (events 517, 514, 515, 516 with the
 * table's id), a page typed in the entry is reported as 513 with its number,
 * and the three numbers change only when the logic layer sets them.
 *
 * Its looks are "list/QmlSettingToolDlg.qml", whose root is this item.
 */
class XSettingToolControl : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ widgetId WRITE setWidgetId NOTIFY widgetIdChanged)
    Q_PROPERTY(QString totalNum READ totalNum NOTIFY numbersChanged)
    Q_PROPERTY(QString pageNum READ pageNum NOTIFY numbersChanged)
    Q_PROPERTY(QString totalPageNum READ totalPageNum NOTIFY numbersChanged)
    Q_PROPERTY(bool hindControlBtn READ hindControlBtn WRITE setHindControlBtn NOTIFY hidingChanged)
    Q_PROPERTY(bool hindPageNum READ hindPageNum WRITE setHindPageNum NOTIFY hidingChanged)
    Q_PROPERTY(bool hindTotalNum READ hindTotalNum WRITE setHindTotalNum NOTIFY hidingChanged)

public:
    explicit XSettingToolControl(QQuickItem* parent = nullptr);
    ~XSettingToolControl() override;

    quint32 widgetId() const { return m_id; }
    void setWidgetId(quint32 id);
    QString totalNum() const { return m_total; }
    QString pageNum() const { return m_page; }
    QString totalPageNum() const { return m_pages; }
    /** The three numbers, shown in decimal. */
    void setNumbers(unsigned total, unsigned page, unsigned pages);

    bool hindControlBtn() const { return m_hideButtons; }
    void setHindControlBtn(bool hide);
    bool hindPageNum() const { return m_hidePage; }
    void setHindPageNum(bool hide);
    bool hindTotalNum() const { return m_hideTotal; }
    void setHindTotalNum(bool hide);

    /** The buttons: each sends its event. */
    Q_INVOKABLE void home();
    Q_INVOKABLE void up();
    Q_INVOKABLE void next();
    Q_INVOKABLE void end();
    /** The page entry was touched: asks for the keyboard (pageEntryRequested). */
    Q_INVOKABLE void popupVirtualKey();
    /** A page typed in: a whole number is sent as 513 (sigGoToPage); anything else is dropped. */
    Q_INVOKABLE void goToPage(const QString& text);

Q_SIGNALS:
    void widgetIdChanged();
    void numbersChanged();
    void hidingChanged();
    void sigGoToPage(int page);
    void pageEntryRequested(const QString& current);

private:
    quint32 m_id = 0;
    QString m_total { QStringLiteral("0") };
    QString m_page { QStringLiteral("0") };
    QString m_pages { QStringLiteral("0") };
    bool m_hideButtons = false;
    bool m_hidePage = false;
    bool m_hideTotal = false;
};

#endif // XSETTINGTOOLCONTROL_H

#ifndef XALARMBARCONTROL_H
#define XALARMBARCONTROL_H

#include "xcomponents/qquick/xalarmbar.h"

#include <QPointer>

class XAlarmTableBar;
class XAlarmTableBarHeader;

/**
 * The table alarm bar ("list/QmlAlarmBar.qml", whose root is this item): the
 * alarm rows under their titles, in two identical copies of the body placed
 * one after the other so that the rows run as an endless band.
 *
 * Directions 0 (upwards) and 1 (downwards) scroll the rows vertically under a
 * fixed title row; directions 2 and 3 move the whole table (titles with it)
 * sideways, centred in the bar. Every step moves both copies; when the
 * leading copy has gone one whole copy away, the copies swap and the band is
 * placed again, so it stays seamless. The body always has at least as many
 * rows as fill the bar (empty rows after the alarms).
 */
class XAlarmBarControl : public XAlarmBar {
    Q_OBJECT
    Q_PROPERTY(XAlarmBarModel* model READ model CONSTANT)
    Q_PROPERTY(XQuickHeaderModel* headerModel READ headerModel CONSTANT)
    Q_PROPERTY(qreal contentWidth READ contentWidth NOTIFY contentSizeChanged)
    Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY contentSizeChanged)

public:
    explicit XAlarmBarControl(QQuickItem* parent = nullptr);
    ~XAlarmBarControl() override;

    /** The copy of the body leading the band, and the one following it. */
    XAlarmTableBar* table() const;
    XAlarmTableBar* secondTable() const;
    /** The title rows over each copy (the second one shows only in the sideways directions). */
    XAlarmTableBarHeader* tableHeader() const;
    XAlarmTableBarHeader* secondTableHeader() const;
    /** Size of one copy of the body. */
    qreal contentWidth() const { return m_contentWidth; }
    qreal contentHeight() const { return m_contentHeight; }

    void setCarouse(const QPoint& step) override;

Q_SIGNALS:
    void contentSizeChanged();

protected:
    bool build(QQmlEngine* engine) override;
    void relayout() override;

private:
    /** Places the copies for the direction (the leading copy at its offset). */
    void setDir();
    /** Puts the following copy (and its titles) one copy after the leading one. */
    void resetPosition();
    /** Starts \a view (a copy of the rows, or of the titles) and puts it in the bar. */
    bool start(XAlarmTableBar* view, QQmlEngine* engine, bool header);

    QPointer<XAlarmTableBar> m_lead; // the copy leading the band
    QPointer<XAlarmTableBar> m_follow;
    QPointer<XAlarmTableBarHeader> m_leadHeader;
    QPointer<XAlarmTableBarHeader> m_followHeader;
    qreal m_offset = 0; /**< how far the leading copy has moved from its place */
    qreal m_contentWidth = 0;
    qreal m_contentHeight = 0;
};

#endif // XALARMBARCONTROL_H

#ifndef XHALARMBARCONTROL_H
#define XHALARMBARCONTROL_H

#include "xcomponents/qquick/xalarmbar.h"

#include <QColor>
#include <QPointer>
#include <QVariant>

class XHAlarmBarRepeater;

/**
 * The marquee alarm bar ("list/QmlHAlarmBar.qml", whose root is this item):
 * the alarms run along one line, each alarm as one cell per visible column
 * ("list/QmlHAlarmBarComp.qml": the column's title over the alarm's text, the
 * title only while titles are shown), in two runs placed one after the other
 * so that the line is endless.
 *
 * Only the sideways directions move: 2 right to left, 3 left to right; steps
 * for the other directions are ignored. A cell is as wide as its title or its
 * image (20 px) and text, plus colSpace on both sides, and at least the
 * column's width from the record.
 */
class XHAlarmBarControl : public XAlarmBar {
    Q_OBJECT
    Q_PROPERTY(bool headerIsVisible READ headerIsVisible CONSTANT)
    Q_PROPERTY(int headerHeight READ headerHeight CONSTANT)
    Q_PROPERTY(QColor headerColor READ headerColor CONSTANT)
    Q_PROPERTY(int colSpace READ colSpace CONSTANT)
    Q_PROPERTY(bool directionLeftToRight READ directionLeftToRight WRITE setDirectionLeftToRight NOTIFY
            directionLeftToRightChanged)
    Q_PROPERTY(qreal contentWidth READ contentWidth NOTIFY contentSizeChanged)
    Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY contentSizeChanged)

public:
    /** The values of a cell (getValue). */
    enum AlarmBarDataType {
        TitleText,
        MinHeaderWidthRole,
        TitleColor,
        TitleFont,
        ContentFont,
        ContentText,
        AlternateBase,
        ContentTextHAlign,
        ContentTextVAlign,
        ContentColor,
        ContentImageUrl
    };
    Q_ENUM(AlarmBarDataType)

    explicit XHAlarmBarControl(QQuickItem* parent = nullptr);
    ~XHAlarmBarControl() override;

    bool headerIsVisible() const { return !m_setup.hideHeader; }
    QColor headerColor() const { return m_setup.headerColor; }
    int colSpace() const { return m_colSpace; }
    bool directionLeftToRight() const { return m_leftToRight; }
    void setDirectionLeftToRight(bool on);

    /** A value of the first alarm's cell of \a column. */
    Q_INVOKABLE QVariant getValue(int column, int type) const;
    /** A value of the cell of alarm \a row in \a column; invalid outside the alarms. */
    QVariant cellValue(int row, int column, int type) const;
    /** Width of that cell by the rule above. */
    qreal cellWidth(int row, int column) const;

    /** The run leading the line, and the one following it. */
    XHAlarmBarRepeater* table() const;
    XHAlarmBarRepeater* secondTable() const;
    qreal contentWidth() const;
    qreal contentHeight() const;

    void setCarouse(const QPoint& step) override;

Q_SIGNALS:
    void directionLeftToRightChanged();
    void contentSizeChanged();

protected:
    bool build(QQmlEngine* engine) override;
    void relayout() override;

private:
    void resetPosition();

    QPointer<XHAlarmBarRepeater> m_lead;
    QPointer<XHAlarmBarRepeater> m_follow;
    QPointer<QQmlComponent> m_cellComponent;
    bool m_leftToRight = false;
    qreal m_offset = 0; /**< x of the leading run */
};

#endif // XHALARMBARCONTROL_H

#ifndef XALARMBAR_H
#define XALARMBAR_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xlistcontent.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QPoint>

class QQmlEngine;
class XAlarmBarModel;
class XQuickHeaderModel;

/**
 * What both alarm bars share: the columns and colours of the record, the
 * titles and the alarms (a page of cells, as for the tables), and the scroll
 * direction. A bar never moves by itself: the logic layer steps it with
 * View_CarouselText, which calls setCarouse(); the step's size and rate make
 * the speed.
 *
 * The table bar (XAlarmBarControl) scrolls its rows up or down, or its columns
 * sideways; the marquee bar (XHAlarmBarControl) runs its cells along one line.
 */
class XAlarmBar : public XBaseControl, public XListContent {
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation NOTIFY orientationChanged)
    Q_PROPERTY(int direction READ direction CONSTANT)

public:
    using Setup = XTableViewControl::Setup;
    /** Scroll directions (bits 28-29 of the record's flags). */
    enum Direction { DirTop = 0, DirBottom = 1, DirLeft = 2, DirRight = 3 };

    explicit XAlarmBar(QQuickItem* parent = nullptr);
    ~XAlarmBar() override;

    /** Sets the bar up from the converted record; false when its QML parts cannot be made. */
    bool initialze(const Setup& setup, int direction, int colSpace, QQmlEngine* engine);

    int direction() const { return m_direction; }
    Qt::Orientation orientation() const { return m_direction <= DirBottom ? Qt::Vertical : Qt::Horizontal; }
    XAlarmBarModel* model() const { return m_model; }
    XQuickHeaderModel* headerModel() const { return m_headerModel; }

    int columnCount() const override { return m_setup.columns.size(); }
    void updateHeader(const QStringList& titles) override;
    void updateData(const QVector<QVector<XTableCell>>& rows) override;
    void setTableColVisible(int column, bool visible) override;

    /** Moves the bar by \a step (View_CarouselText). */
    Q_INVOKABLE virtual void setCarouse(const QPoint& step) = 0;

    /** Height of a row: the record's, or the line height of the column fonts. */
    int rowHeight() const;
    /** Height of the title row; 0 when the titles are hidden. */
    int headerHeight() const;
    /** Rows shown at least: the bar's height over the row height, rounded up. */
    int getMinRowCount() const;

Q_SIGNALS:
    void orientationChanged();

protected:
    /** Makes the bar's parts (after the models are set up). */
    virtual bool build(QQmlEngine* engine) = 0;
    /** Places the parts after a change of size, columns, titles or rows. */
    virtual void relayout() = 0;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

    Setup m_setup;
    int m_direction = DirTop;
    int m_colSpace = 0;
    XAlarmBarModel* m_model;
    XQuickHeaderModel* m_headerModel;
    bool m_built = false;
};

#endif // XALARMBAR_H

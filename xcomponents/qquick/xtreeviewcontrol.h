#ifndef XTREEVIEWCONTROL_H
#define XTREEVIEWCONTROL_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xtreeview.h"

#include <QColor>
#include <QPointer>

/**
 * Tree content of a menu as a widget ("qrc:/menu/QmlTreeView.qml"): it takes
 * the presses over the rows of its XTreeview. A press on the expander of a
 * node with children (its indentation plus one indent step) expands or
 * collapses the node and reports nothing. A press on an entry is reported as
 * event 2 and its release as event 3, with the entry's number (int32) and the
 * widget id (in a drop-down menu, the box's id); after the release
 * itemClicked(number) is emitted. Dragging scrolls the rows.
 */
class XTreeViewControl : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(XTreeview* treeview READ treeview WRITE setTreeview NOTIFY treeviewChanged)
    Q_PROPERTY(QColor frameColor READ frameColor NOTIFY frameColorChanged)

public:
    explicit XTreeViewControl(QQuickItem* parent = nullptr);
    ~XTreeViewControl() override;

    /** The registry's item type number of a menu's tree. */
    enum { TypeMenuTree = 42 };
    /* inherits documentation from base class */
    int getItemType() const override { return TypeMenuTree; }

    XTreeview* treeview() const { return m_tree.data(); }
    void setTreeview(XTreeview* tree);
    /** The tree's frame colour (the drop-down box draws its border with it). */
    QColor frameColor() const;

    /** The visible row under \a pos (item coordinates), or -1. */
    Q_INVOKABLE int rowAt(const QPointF& pos) const;
    /** The entry number shown in \a row, or -1. */
    Q_INVOKABLE int entryIndexAt(int row) const;

Q_SIGNALS:
    void treeviewChanged();
    void frameColorChanged();
    /** An entry was pressed and released (after event 3). */
    void itemClicked(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;

private:
    void pressAt(const QPointF& pos);
    void dragTo(const QPointF& pos);
    void releaseAt();

    QPointer<XTreeview> m_tree;
    int m_pressedEntry = -1; // entry number whose press was reported, -1 when none
    bool m_entryPressed = false;
    bool m_pressing = false;
    bool m_dragging = false;
    qreal m_pressY = 0;
    qreal m_pressContentY = 0;
};

#endif // XTREEVIEWCONTROL_H

#ifndef XGROUP_H
#define XGROUP_H

#include "xcomponents/qquick/xbasecontrol.h"

#include <QPointer>

class XShapeItem;

/**
 * A widget group: a box that holds widgets (put into it with the registry's
 * re-parenting), positioned relative to its top-left corner. Showing, hiding,
 * deleting the group, and closing its window, act on every member; a window
 * hit test looks through the group at its members. The box draws an optional
 * background and border and may cut its members at its edges.
 *
 * Presses on the group's own background (not on a member) are reported as
 * events 2/3 with the group's id.
 */
class XGroup : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(bool isGroup READ isGroup CONSTANT)

public:
    explicit XGroup(QQuickItem* parent = nullptr);
    ~XGroup() override;

    bool isGroup() const { return true; }
    /** The background and border (a brush of Qt::NoBrush and a pen of Qt::NoPen draw nothing). */
    void setFrame(const QBrush& background, const QPen& border);
    /** Members are cut at the box. */
    void setClipMembers(bool clip) { setClip(clip); }

    /** True when \a item is \a group or lies inside it (through any depth of groups). */
    static bool holds(const QQuickItem* group, const QQuickItem* item);

private:
    QPointer<XShapeItem> m_frame;
};

#endif // XGROUP_H

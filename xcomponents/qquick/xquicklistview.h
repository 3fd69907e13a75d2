#ifndef XQUICKLISTVIEW_H
#define XQUICKLISTVIEW_H

#include <QtQuick/private/qquicklistview_p.h>

/**
 * The program's list view item: Qt Quick's list view that the finger does not
 * move; its owner scrolls it by setting offsetY (pixels from the first row).
 */
class XQuickListView : public QQuickListView {
    Q_OBJECT
    Q_PROPERTY(qreal offsetY READ offsetY WRITE setOffsetY NOTIFY offsetYChanged)

public:
    explicit XQuickListView(QQuickItem* parent = nullptr);
    ~XQuickListView() override;

    qreal offsetY() const { return m_offsetY; }
    void setOffsetY(qreal y);

Q_SIGNALS:
    void offsetYChanged();

private:
    void follow();

    qreal m_offsetY = 0;
};

class XListView;

// Delegates keep Qt Quick's own "ListView." attached properties; the program's
// list types add none under their own names.
namespace QQmlPrivate {
template <> struct OverridableAttachedType<XQuickListView, QQuickListViewAttached> {
    using Type = void;
};
template <> struct OverridableAttachedType<XListView, QQuickListViewAttached> {
    using Type = void;
};
} // namespace QQmlPrivate

#endif // XQUICKLISTVIEW_H

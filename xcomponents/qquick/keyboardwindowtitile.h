#ifndef KEYBOARDWINDOWTITILE_H
#define KEYBOARDWINDOWTITILE_H

#include "xcomponents/qquick/xwindowtitile.h"

class XKeyBoardEdit;

/**
 * The title bar of a keyboard window: a WindowTitile whose left part is a
 * one-line entry (lineEdit()) that the keyboard window calls write into.
 */
class KeyBoardWindowTitile : public WindowTitile {
    Q_OBJECT

public:
    explicit KeyBoardWindowTitile(QQuickItem* parent = nullptr);

    XKeyBoardEdit* lineEdit() const { return m_edit; }
    Q_INVOKABLE void setText(const QString& text);
    Q_INVOKABLE QString text() const;

protected:
    qreal reservedLeft() const override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    XKeyBoardEdit* m_edit; // child item
};

#endif // KEYBOARDWINDOWTITILE_H

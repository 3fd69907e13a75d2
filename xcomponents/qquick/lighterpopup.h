#ifndef LIGHTERPOPUP_H
#define LIGHTERPOPUP_H

#include "platform/xpopup.h"

#include <QColor>

/**
 * The dimming layer of a desktop: a popup filling the panel in a translucent
 * black that lowers the apparent brightness. It lies above everything else.
 */
class LighterPopup : public XPopup {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit LighterPopup(QQuickItem* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_color { 0, 0, 0, 0 };
};

#endif // LIGHTERPOPUP_H

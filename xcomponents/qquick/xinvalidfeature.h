#ifndef XINVALIDFEATURE_H
#define XINVALIDFEATURE_H

#include "xcomponents/qquick/xbasepainteditem.h"

/**
 * The placeholder shown where a widget kind is not available on this panel
 * (cameras, media player, remote desktop, web browser, pie chart): a hatched
 * box with the kind's name, so the operator sees that something belongs there.
 */
class XInvalidFeature : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString featureName READ featureName WRITE setFeatureName NOTIFY featureNameChanged)

public:
    explicit XInvalidFeature(QQuickItem* parent = nullptr);

    QString featureName() const { return m_featureName; }
    void setFeatureName(const QString& name);

    Q_INVOKABLE QRect getWgtRect() const;
    Q_INVOKABLE void setItemOpacity(qreal opacity) { setOpacity(qBound<qreal>(0.0, opacity, 1.0)); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void featureNameChanged();

private:
    QString m_featureName;
};

#endif // XINVALIDFEATURE_H

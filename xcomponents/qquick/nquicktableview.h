#ifndef NQUICKTABLEVIEW_H
#define NQUICKTABLEVIEW_H

#include <QtQuick/private/qquicktableview_p.h>

/**
 * Qt Quick's table view with rows of one height (rowHeight, which the
 * delegates take as their implicit height) and a hit test by row, which the
 * table view of this Qt version does not offer.
 */
class NQuickTableView : public QQuickTableView {
    Q_OBJECT
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged)

public:
    explicit NQuickTableView(QQuickItem* parent = nullptr);
    ~NQuickTableView() override;

    int rowHeight() const { return m_rowHeight; }
    /** Height of every row; values below 1 are taken as 1. */
    void setRowHeight(int height);
    /** The row under \a y (view coordinates, scrolling included), -1 when there is none. */
    Q_INVOKABLE int rowAt(qreal y) const;
    /** Scroll offset clamped to the rows' extent. */
    Q_INVOKABLE void scrollTo(qreal contentY);

Q_SIGNALS:
    void rowHeightChanged();

private:
    int m_rowHeight = 24;
};

#endif // NQUICKTABLEVIEW_H

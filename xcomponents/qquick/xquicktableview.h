#ifndef XQUICKTABLEVIEW_H
#define XQUICKTABLEVIEW_H

#include <QColor>
#include <QVector>
#include <QtQuick/private/qquicktableview_p.h>

class QAbstractItemModel;
class QQmlEngine;

/**
 * The program's table view item: Qt Quick's table view with column widths and
 * the row height kept in C++ (a width of 0 hides a column), the grid's colour
 * and width for its cells, and a single-line flag for the cell texts.
 *
 * Made from C++: start() gives it the QML engine, the model and the cell
 * component (a QML file whose root shows one cell from the model's roles).
 */
class XQuickTableView : public QQuickTableView {
    Q_OBJECT
    Q_PROPERTY(QColor gridColor READ gridColor WRITE setGridColor NOTIFY gridChanged)
    Q_PROPERTY(int gridWidth READ gridWidth WRITE setGridWidth NOTIFY gridChanged)
    Q_PROPERTY(bool singleLine READ singleLine WRITE setSingleLine NOTIFY singleLineChanged)

public:
    explicit XQuickTableView(QQuickItem* parent = nullptr);
    ~XQuickTableView() override;

    /** Gives the view its engine, model and cell component; false when the component fails. */
    bool start(QQmlEngine* engine, QAbstractItemModel* model, const QUrl& cellComponent);

    /** Widths of the columns in pixels (0 hides one); missing ones are 0. */
    void setColumnWidths(const QVector<qreal>& widths);
    QVector<qreal> columnWidths() const { return m_widths; }
    Q_INVOKABLE qreal columnWidthAt(int column) const;
    void setRowHeight(qreal height);
    Q_INVOKABLE qreal rowHeightAt(int row) const;
    qreal rowHeight() const { return m_rowHeight; }

    /** The cell under \a pos (the view's coordinates); (-1, -1) outside the cells. */
    QPoint cellAt(const QPointF& pos) const;
    /** Left edge of \a column in content coordinates. */
    qreal columnX(int column) const;

    QColor gridColor() const { return m_gridColor; }
    void setGridColor(const QColor& color);
    int gridWidth() const { return m_gridWidth; }
    void setGridWidth(int width);
    bool singleLine() const { return m_singleLine; }
    void setSingleLine(bool on);

Q_SIGNALS:
    void gridChanged();
    void singleLineChanged();

private:
    void installProviders(QQmlEngine* engine);

    QVector<qreal> m_widths;
    qreal m_rowHeight = 32;
    QColor m_gridColor { 0xC8, 0xCC, 0xD2 };
    int m_gridWidth = 1;
    bool m_singleLine = false;
    QQmlComponent* m_cell = nullptr;
};

#endif // XQUICKTABLEVIEW_H

#ifndef CURVECURSOR_H
#define CURVECURSOR_H

#include "xcomponents/qquick/xtablemodel.h"

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QStringList>
#include <QVector>

/**
 * The cursor window of a sample curve chart: a small table beside the cursor
 * line with a title line (the cursor's time or sample), an optional head row,
 * and one row per channel. The chart fills it whenever the cursor moves: a
 * colour mark and the channel's name, its value at the cursor, and its unit.
 * The logic layer can name the channels and give their units
 * (View_CurveSampleShowCursor) or replace the title, the heads and the cells
 * outright (View_CurveUpdateCursorTitle, ...Params, ...Content); cells it sets
 * stay until the next automatic fill.
 */
class CurveCursor : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY contentChanged)
    Q_PROPERTY(QString title READ title NOTIFY contentChanged)

public:
    /** Most columns and rows shown. */
    static constexpr int kMaxColumns = 8;
    static constexpr int kMaxRows = 64;

    struct Style {
        QColor back { 255, 255, 255, 230 };
        QColor head { 0xE4, 0xE9, 0xEF };
        QColor border { 0x8A, 0x96, 0xA3 };
        QFont font;
        QColor text { Qt::black };
        QVector<int> columnWidths; /**< empty: 96 pixels each */
        int defaultHeight = 60;
        bool showHead = false;
        bool showTitle = true;
    };

    explicit CurveCursor(QQuickItem* parent = nullptr);

    void setStyle(const Style& style);
    const Style& style() const { return m_style; }

    bool hasContent() const { return !m_rows.isEmpty() || !m_title.isEmpty(); }
    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QStringList heads() const { return m_heads; }
    void setHeads(const QStringList& heads);
    /** Fonts per column (a column past the list keeps the style's). */
    void setColumnFonts(const QVector<QFont>& fonts);
    /** The rows: cells, and a colour mark per row (invalid: none). */
    void setRows(const QVector<QVector<XTableCell>>& rows, const QVector<QColor>& marks = {});
    const QVector<QVector<XTableCell>>& rows() const { return m_rows; }
    /** The text of cell (\a row, \a column); empty when there is none. */
    QString cellText(int row, int column) const;

    /** Puts the window beside \a x (item coordinates of the parent chart), inside \a area. */
    void placeBeside(double x, const QRectF& area);

    /* inherits documentation from base class */
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void contentChanged();

private:
    int columnWidth(int column) const;
    int rowHeight() const;
    void resize();

    Style m_style;
    QString m_title;
    QStringList m_heads;
    QVector<QFont> m_fonts;
    QVector<QVector<XTableCell>> m_rows;
    QVector<QColor> m_marks;
};

#endif // CURVECURSOR_H

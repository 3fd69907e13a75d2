#ifndef XBASETEXT_H
#define XBASETEXT_H

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QQuickItem>

/**
 * A light text item with its own id and window id, drawn by its own scene
 * graph node (BaseTextSgNode); it clips to its box. For fast, single-style
 * texts where the carousel label is not needed.
 */
class XBaseText : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit XBaseText(QQuickItem* parent = nullptr);
    ~XBaseText() override;

    QString text() const { return m_text; }
    Q_INVOKABLE void setText(const QString& text);
    QFont font() const { return m_font; }
    void setFont(const QFont& font);
    /** Invalid until set; an invalid colour draws black. */
    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    Q_INVOKABLE quint32 getId() const { return m_id; }
    Q_INVOKABLE void setId(quint32 id) { m_id = id; }
    Q_INVOKABLE quint32 getWindowId() const { return m_windowId; }
    Q_INVOKABLE void setWindowId(quint32 id) { m_windowId = id; }
    /** Placement of the text block in the box (Qt::Alignment bits; 0 = top left). */
    void setAlignment(int align);
    /** Alignment of the lines inside the block. */
    void setFontAlignment(int align);
    /** Distance from the aligned edges, pixels. */
    void setMargin(const QPoint& margin);
    void setLineSpace(int space);

    Q_INVOKABLE void moveTo(int x, int y);
    Q_INVOKABLE void zoom(qreal w, qreal h, int origin);
    Q_INVOKABLE void rotate(qreal angle, int origin);
    /** Grey look of a disabled widget. */
    Q_INVOKABLE void setGrayFlag(bool on);
    bool grayFlag() const { return m_gray; }

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QString m_text;
    QFont m_font;
    QColor m_color;
    quint32 m_id = 0;
    quint32 m_windowId = 0;
    int m_alignment = 0;
    int m_fontAlignment = 0;
    QPoint m_margin;
    int m_lineSpace = 0;
    bool m_textDirty = true;
    bool m_fontDirty = true;
    bool m_gray = false;
};

#endif // XBASETEXT_H

#ifndef MONOTEXT_H
#define MONOTEXT_H

#include <QColor>
#include <QFont>
#include <QQuickItem>

/**
 * A one-line, one-colour text drawn by a MonoSGNode. With the latin flag (the
 * default) the text is drawn glyph by glyph from the raw font, without
 * shaping; clear it for texts that need shaping (Arabic, Indic, mixed
 * scripts). A text that is blank after trimming draws nothing.
 */
class MonoText : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool latin READ latin WRITE setLatin NOTIFY latinChanged)

public:
    explicit MonoText(QQuickItem* parent = nullptr);
    ~MonoText() override;

    QString text() const { return m_text; }
    Q_INVOKABLE void setText(const QString& text);
    QFont font() const { return m_font; }
    void setFont(const QFont& font);
    /** Invalid until set; an invalid colour draws black. */
    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    bool latin() const { return m_latin; }
    void setLatin(bool on);

    /** The text's advance width at the last paint (-1 before). */
    qreal paintedWidth() const { return m_width; }

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();
    void latinChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QString m_text;
    QFont m_font;
    QColor m_color;
    bool m_latin = true;
    bool m_dirty = true;
    qreal m_width = -1.0;
    qreal m_height = -1.0;
};

#endif // MONOTEXT_H

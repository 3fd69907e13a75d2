#ifndef XTREEVIEW_H
#define XTREEVIEW_H

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QQuickItem>
#include <QUrl>

#include <memory>

class NQuickTreeView;
class TreeItem;
class TreeModel;

/**
 * Tree content of a menu: the look of the rows and the TreeModel they show.
 * The rows are drawn by its NQuickTreeView ("treeView", set by
 * "qrc:/menu/QmlTreeView.qml"); currentIndex is an entry's number
 * (TreeModel::EntryIndexRole), not a row, so it stays on its entry when
 * nodes are expanded or collapsed.
 */
class XTreeview : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QColor background READ background WRITE setBackground NOTIFY styleChanged)
    Q_PROPERTY(QColor frameColor READ frameColor WRITE setFrameColor NOTIFY styleChanged)
    Q_PROPERTY(int rowSpace READ rowSpace WRITE setRowSpace NOTIFY styleChanged)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY styleChanged)
    Q_PROPERTY(QFont defaultFont READ defaultFont WRITE setDefaultFont NOTIFY styleChanged)
    Q_PROPERTY(QColor defaultFontColor READ defaultFontColor WRITE setDefaultFontColor NOTIFY styleChanged)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor NOTIFY styleChanged)
    Q_PROPERTY(int indent READ indent WRITE setIndent NOTIFY styleChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE updateSelection NOTIFY currentIndexChanged)
    Q_PROPERTY(QUrl bgImage READ bgImage WRITE setBgImage NOTIFY styleChanged)
    Q_PROPERTY(TreeModel* model READ model CONSTANT)
    Q_PROPERTY(NQuickTreeView* treeView READ treeView WRITE setTreeView NOTIFY treeViewChanged)

public:
    explicit XTreeview(QQuickItem* parent = nullptr);
    ~XTreeview() override;

    QColor background() const { return m_background; }
    void setBackground(const QColor& c);
    QColor frameColor() const { return m_frameColor; }
    void setFrameColor(const QColor& c);
    /** Height of a row in pixels (at least 1). */
    int rowSpace() const { return m_rowSpace; }
    void setRowSpace(int height);
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);
    QFont defaultFont() const { return m_font; }
    void setDefaultFont(const QFont& font);
    QColor defaultFontColor() const { return m_fontColor; }
    void setDefaultFontColor(const QColor& c);
    QColor highlightColor() const { return m_highlightColor; }
    void setHighlightColor(const QColor& c);
    /** Indentation per level in pixels (0..1000). */
    int indent() const { return m_indent; }
    void setIndent(int indent);
    QUrl bgImage() const { return m_bgImage; }
    Q_INVOKABLE void setBgImage(const QUrl& url);

    int currentIndex() const { return m_currentIndex; }
    /** Highlights the entry numbered \a index and expands the nodes above it; a number no entry has
     *  highlights none. */
    Q_INVOKABLE void updateSelection(int index);
    /** Expands every node above the entry numbered \a index, so that it can be seen. */
    void revealEntry(int index);

    TreeModel* model() const { return m_model; }
    /** Replaces the tree; nodes marked as initially expanded are expanded. */
    void updateData(std::unique_ptr<TreeItem> root);

    NQuickTreeView* treeView() const;
    void setTreeView(NQuickTreeView* view);

Q_SIGNALS:
    void styleChanged();
    void currentIndexChanged();
    void treeViewChanged();

private:
    TreeModel* m_model; // object child
    QPointer<NQuickTreeView> m_view;
    QColor m_background = Qt::white;
    QColor m_frameColor = Qt::black;
    int m_rowSpace = 24;
    int m_borderWidth = 1;
    QFont m_font;
    QColor m_fontColor = Qt::black;
    QColor m_highlightColor = QColor(0x33, 0x99, 0xFF);
    int m_indent = 16;
    int m_currentIndex = -1;
    QUrl m_bgImage;
};

#endif // XTREEVIEW_H

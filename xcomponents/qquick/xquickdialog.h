#ifndef XQUICKDIALOG_H
#define XQUICKDIALOG_H

#include "platform/xpopup.h"

#include <QPointer>

/**
 * A popup with a header (title bar) above its content, an id and a window id.
 * The content item starts below the header; titleHeight() is the header's
 * height (0 without a header).
 */
class XQuickDialog : public XPopup {
    Q_OBJECT
    Q_PROPERTY(QQuickItem* header READ header WRITE setHeader NOTIFY headerChanged)
    Q_PROPERTY(int titleHeight READ titleHeight WRITE setTitleHeight NOTIFY titleHeightChanged)

public:
    explicit XQuickDialog(QQuickItem* parent = nullptr);
    ~XQuickDialog() override;

    Q_INVOKABLE quint32 getId() const { return m_id; }
    void setId(quint32 id) { m_id = id; }
    quint32 getWindowId() const { return m_windowId; }
    void setWindowId(quint32 id) { m_windowId = id; }

    QQuickItem* header() const { return m_header.data(); }
    /** Installs \a header (owned from now on) across the top of the dialog. */
    void setHeader(QQuickItem* header);
    int titleHeight() const { return m_titleHeight; }
    void setTitleHeight(int height);

Q_SIGNALS:
    void headerChanged();
    void titleHeightChanged();

protected:
    qreal contentTop() const override { return m_header && m_header->isVisible() ? m_titleHeight : 0; }
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void layoutHeader();

    quint32 m_id = 0;
    quint32 m_windowId = 0;
    QPointer<QQuickItem> m_header;
    int m_titleHeight = 0;
};

#endif // XQUICKDIALOG_H

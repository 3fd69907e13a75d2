#include "xcomponents/qquick/xpipeline.h"

#include "xcomponents/qquick/pipeflowmaterial.h"
#include "xcomponents/qquick/xshapeitem.h"

#include <QPainterPathStroker>
#include <QQuickWindow>
#include <QSGGeometryNode>

#include <cmath>

XPipeLine::XPipeLine(QQuickItem* parent)
    : QQuickItem(parent)
    , m_body(new XShapeItem(this))
{
    setFlag(ItemHasContents);
    m_body->setZ(-1); // under the flow
    m_body->setAcceptedMouseButtons(Qt::NoButton);
    // made inside a window, the item gets no scene change: follow that window's frames from here
    if (QQuickWindow* w = window())
        m_frames = connect(w, &QQuickWindow::afterAnimating, this, &XPipeLine::nextFrame);
}

XPipeLine::~XPipeLine() = default;

void XPipeLine::setId(quint32 id)
{
    if (m_id == id)
        return;
    m_id = id;
    Q_EMIT widgetIdChanged();
}

void XPipeLine::setPoints(const QPolygonF& points, const QSizeF& designSize)
{
    m_points.clear();
    for (const QPointF& p : points) {
        if (m_points.size() >= kMaxPoints)
            break;
        if (std::isfinite(p.x()) && std::isfinite(p.y()))
            m_points.append(p);
    }
    m_designSize = designSize;
    rebuildBody();
    settleDistance();
    kick();
}

void XPipeLine::setPipe(qreal width, const QBrush& fill, const QPen& border)
{
    m_width = std::isfinite(width) ? qBound<qreal>(1, width, 10000) : 12;
    m_fill = fill;
    m_border = border;
    rebuildBody();
}

void XPipeLine::setFlowShape(int shape)
{
    m_shape = shape >= PipeFlowMaterial::Block && shape <= PipeFlowMaterial::Circle ? shape : 0;
    m_geometryDirty = true;
    update();
}

void XPipeLine::setFlowColor(const QColor& color)
{
    m_flowColor = color;
    update();
}

void XPipeLine::setFlowRate(quint32 rate)
{
    settleDistance();
    m_rate = rate;
    kick();
}

void XPipeLine::setReverse(bool reverse)
{
    m_reverse = reverse;
    update();
}

bool XPipeLine::isFlowing() const
{
    return m_rate > 0 && isVisible() && opacity() > 0 && window() && m_points.size() >= 2;
}

qreal XPipeLine::flowDistance() const
{
    return m_distance + (m_clock.isValid() ? m_clock.elapsed() * qreal(m_rate) / 1000.0 : 0.0);
}

QPolygonF XPipeLine::drawnPoints() const
{
    return m_body ? m_body->designTransform().map(m_points) : m_points;
}

qreal XPipeLine::length() const
{
    const QPolygonF p = drawnPoints();
    qreal total = 0;
    for (int i = 1; i < p.size(); ++i)
        total += QLineF(p.at(i - 1), p.at(i)).length();
    return total;
}

void XPipeLine::settleDistance()
{
    if (m_clock.isValid()) {
        m_distance = flowDistance();
        m_clock.invalidate();
    }
}

void XPipeLine::kick()
{
    if (isFlowing() && !m_clock.isValid())
        m_clock.start();
    update();
}

void XPipeLine::nextFrame()
{
    if (isFlowing())
        update(); // the next frame advances the marks; nothing else is done here
}

void XPipeLine::rebuildBody()
{
    if (!m_body)
        return;
    m_body->setSize(size());
    m_body->setDesignSize(m_designSize);
    QPainterPath line;
    if (!m_points.isEmpty())
        line.addPolygon(m_points);
    QPainterPathStroker stroker;
    stroker.setWidth(m_width);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCapStyle(Qt::FlatCap);
    QPainterPath pipe = stroker.createStroke(line);
    if (m_points.size() <= 2000)
        pipe = pipe.simplified(); // one clean outline around the bends
    m_body->setPath(pipe, true);
    m_body->setBrush(m_fill);
    m_body->setPen(m_border);
    m_geometryDirty = true;
    update();
}

void XPipeLine::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size() && m_body) {
        m_body->setSize(newGeometry.size());
        m_geometryDirty = true;
        update();
    }
}

void XPipeLine::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    switch (change) {
    case ItemSceneChange:
        disconnect(m_frames);
        if (value.window)
            m_frames = connect(value.window, &QQuickWindow::afterAnimating, this, &XPipeLine::nextFrame);
        Q_FALLTHROUGH();
    case ItemVisibleHasChanged:
    case ItemOpacityHasChanged:
        // hidden or transparent, the flow stops where it is; seen again, it goes on from there
        settleDistance();
        kick();
        break;
    default:
        break;
    }
}

QSGNode* XPipeLine::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    auto* node = static_cast<QSGGeometryNode*>(old);
    const QPolygonF p = drawnPoints();
    if (p.size() < 2 || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = new QSGGeometryNode;
        auto* geometry = new QSGGeometry(PipeFlowMaterial::attributes(), 0);
        geometry->setDrawingMode(QSGGeometry::DrawTriangles);
        node->setGeometry(geometry);
        node->setFlag(QSGNode::OwnsGeometry);
        node->setMaterial(new PipeFlowMaterial);
        node->setFlag(QSGNode::OwnsMaterial);
        m_geometryDirty = true;
    }
    auto* material = static_cast<PipeFlowMaterial*>(node->material());
    const float half = float(qMax<qreal>(1.5, m_width * 0.3));
    if (m_geometryDirty) {
        // a quad per segment, each vertex with its distance along the pipe and its side
        QSGGeometry* g = node->geometry();
        g->allocate((p.size() - 1) * 6);
        auto* v = static_cast<PipeFlowMaterial::Vertex*>(g->vertexData());
        float along = 0;
        for (int i = 1; i < p.size(); ++i) {
            const QLineF seg(p.at(i - 1), p.at(i));
            const float len = float(seg.length());
            QPointF n = len > 0 ? QPointF(-seg.dy() / len, seg.dx() / len) * half : QPointF();
            const QPointF a0 = seg.p1() + n, a1 = seg.p1() - n, b0 = seg.p2() + n, b1 = seg.p2() - n;
            const PipeFlowMaterial::Vertex quad[6] = {
                { float(a0.x()), float(a0.y()), along, 1 },
                { float(a1.x()), float(a1.y()), along, -1 },
                { float(b0.x()), float(b0.y()), along + len, 1 },
                { float(b0.x()), float(b0.y()), along + len, 1 },
                { float(a1.x()), float(a1.y()), along, -1 },
                { float(b1.x()), float(b1.y()), along + len, -1 },
            };
            std::copy(quad, quad + 6, v + (i - 1) * 6);
            along += len;
        }
        material->total = along;
        node->markDirty(QSGNode::DirtyGeometry);
        m_geometryDirty = false;
    }
    material->color = m_flowColor;
    material->shape = PipeFlowMaterial::Shape(m_shape);
    material->halfWidth = half;
    material->reverse = m_reverse;
    material->offset = float(std::fmod(flowDistance(), qreal(material->period())));
    node->markDirty(QSGNode::DirtyMaterial);
    return node;
}

#ifndef PIPEFLOWMATERIAL_H
#define PIPEFLOWMATERIAL_H

#include <QColor>
#include <QSGGeometry>
#include <QSGMaterial>

/**
 * The marks flowing inside a pipe, drawn by the graphics card: the geometry is
 * a band along the pipe whose vertices carry their distance along the pipe
 * and their side (-1 .. 1 across); the fragment shader cuts the band into
 * marks (blocks, arrow heads or dots) shifted by the flow's offset. Moving the
 * flow only changes the offset: no geometry is rebuilt and nothing is painted
 * on the GUI thread.
 */
class PipeFlowMaterial : public QSGMaterial {
public:
    /** Shapes of the marks (the interface's flow shapes). */
    enum Shape { Block = 0, Arrow = 1, Circle = 2 };

    /** x, y, distance along the pipe, side across. */
    struct Vertex {
        float x;
        float y;
        float along;
        float across;
    };
    static const QSGGeometry::AttributeSet& attributes();

    PipeFlowMaterial();
    ~PipeFlowMaterial() override;

    QSGMaterialType* type() const override;
    QSGMaterialShader* createShader() const override;
    int compare(const QSGMaterial* other) const override;

    QColor color { Qt::white };
    Shape shape = Block;
    float halfWidth = 4; /**< half the band's width, pixels */
    float offset = 0; /**< how far the marks have moved, pixels, within one period */
    float total = 0; /**< length of the pipe, pixels */
    bool reverse = false; /**< the marks run from the end of the pipe to its start */

    /** Length of one mark and the distance from one mark's start to the next, pixels. */
    float markLength() const;
    float period() const;
};

#endif // PIPEFLOWMATERIAL_H

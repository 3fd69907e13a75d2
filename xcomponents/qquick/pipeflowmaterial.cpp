#include "xcomponents/qquick/pipeflowmaterial.h"

#include <QOpenGLShaderProgram>
#include <QSGMaterialShader>

namespace {

class PipeFlowShader : public QSGMaterialShader {
public:
    const char* const* attributeNames() const override
    {
        static const char* const names[] = { "vertex", "flow", nullptr };
        return names;
    }

    void updateState(const RenderState& state, QSGMaterial* newMaterial, QSGMaterial*) override
    {
        auto* m = static_cast<PipeFlowMaterial*>(newMaterial);
        QOpenGLShaderProgram* p = program();
        if (state.isMatrixDirty())
            p->setUniformValue(m_matrix, state.combinedMatrix());
        if (state.isOpacityDirty())
            p->setUniformValue(m_opacity, state.opacity());
        p->setUniformValue(m_color, m->color);
        p->setUniformValue(m_offset, m->offset);
        p->setUniformValue(m_period, m->period());
        p->setUniformValue(m_mark, m->markLength());
        p->setUniformValue(m_half, m->halfWidth);
        p->setUniformValue(m_total, m->total);
        p->setUniformValue(m_reverse, m->reverse ? 1.0f : 0.0f);
        p->setUniformValue(m_shape, float(m->shape));
    }

protected:
    const char* vertexShader() const override
    {
        return "attribute highp vec4 vertex;\n"
               "attribute highp vec2 flow;\n"
               "uniform highp mat4 matrix;\n"
               "varying highp vec2 vFlow;\n"
               "void main() {\n"
               "    vFlow = flow;\n"
               "    gl_Position = matrix * vertex;\n"
               "}\n";
    }

    const char* fragmentShader() const override
    {
        // x: position inside the current mark's period; y: distance from the pipe's centre line
        return "uniform lowp vec4 color;\n"
               "uniform lowp float opacity;\n"
               "uniform highp float offset;\n"
               "uniform highp float period;\n"
               "uniform highp float markLength;\n"
               "uniform highp float halfWidth;\n"
               "uniform highp float total;\n"
               "uniform highp float reverse;\n"
               "uniform highp float shape;\n"
               "varying highp vec2 vFlow;\n"
               "void main() {\n"
               "    highp float s = mix(vFlow.x, total - vFlow.x, reverse);\n"
               "    highp float x = mod(s - offset, period);\n"
               "    highp float y = abs(vFlow.y) * halfWidth;\n"
               "    lowp float a;\n"
               "    if (shape < 0.5) {\n"
               "        a = (1.0 - smoothstep(markLength - 1.0, markLength, x)) * smoothstep(0.0, 1.0, x);\n"
               "    } else if (shape < 1.5) {\n"
               "        highp float edge = markLength * (1.0 - y / halfWidth);\n"
               "        a = (1.0 - smoothstep(edge - 1.0, edge, x)) * step(0.0, edge);\n"
               "    } else {\n"
               "        highp float d = length(vec2(x - halfWidth, y));\n"
               "        a = 1.0 - smoothstep(halfWidth - 1.0, halfWidth, d);\n"
               "    }\n"
               "    gl_FragColor = vec4(color.rgb * color.a, color.a) * (a * opacity);\n"
               "}\n";
    }

    void initialize() override
    {
        QOpenGLShaderProgram* p = program();
        m_matrix = p->uniformLocation("matrix");
        m_opacity = p->uniformLocation("opacity");
        m_color = p->uniformLocation("color");
        m_offset = p->uniformLocation("offset");
        m_period = p->uniformLocation("period");
        m_mark = p->uniformLocation("markLength");
        m_half = p->uniformLocation("halfWidth");
        m_total = p->uniformLocation("total");
        m_reverse = p->uniformLocation("reverse");
        m_shape = p->uniformLocation("shape");
    }

private:
    int m_matrix = -1;
    int m_opacity = -1;
    int m_color = -1;
    int m_offset = -1;
    int m_period = -1;
    int m_mark = -1;
    int m_half = -1;
    int m_total = -1;
    int m_reverse = -1;
    int m_shape = -1;
};

} // namespace

const QSGGeometry::AttributeSet& PipeFlowMaterial::attributes()
{
    static const QSGGeometry::Attribute attrs[] = {
        QSGGeometry::Attribute::createWithAttributeType(0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(1, 2, QSGGeometry::FloatType, QSGGeometry::TexCoordAttribute),
    };
    static const QSGGeometry::AttributeSet set = { 2, sizeof(Vertex), attrs };
    return set;
}

PipeFlowMaterial::PipeFlowMaterial()
{
    setFlag(Blending);
}

PipeFlowMaterial::~PipeFlowMaterial() = default;

QSGMaterialType* PipeFlowMaterial::type() const
{
    static QSGMaterialType t;
    return &t;
}

QSGMaterialShader* PipeFlowMaterial::createShader() const
{
    return new PipeFlowShader;
}

int PipeFlowMaterial::compare(const QSGMaterial* other) const
{
    // every pipe's flow is its own batch: the offsets differ
    return this < other ? -1 : (this == other ? 0 : 1);
}

float PipeFlowMaterial::markLength() const
{
    switch (shape) {
    case Arrow:
        return halfWidth * 2.0f;
    case Circle:
        return halfWidth * 2.0f;
    case Block:
    default:
        return halfWidth * 3.0f;
    }
}

float PipeFlowMaterial::period() const
{
    return qMax(2.0f, markLength() * 2.0f);
}

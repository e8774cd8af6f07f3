// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/MarkRecorder.h"

#include "document/Page.h"
#include "pages/MarkPainter.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>

namespace {

constexpr int side = 1 << 14;

/** Keeps what a painter fills and strokes. Text arrives as paths. */
class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine()
        : QPaintEngine(PainterPaths | PrimitiveTransform | AlphaBlend | Antialiasing)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}

    void drawPath(const QPainterPath &path) override
    {
        const QTransform transform = state->transform();
        Ofd::DrawnPath drawn;
        drawn.path = transform.map(path);
        drawn.path.setFillRule(path.fillRule());
        const QBrush brush = state->brush();
        if (brush.style() == Qt::SolidPattern)
            drawn.fill = brush.color();
        drawn.pen = state->pen();
        drawn.pen.setWidthF(drawn.pen.widthF() * std::sqrt(std::abs(transform.determinant())));
        paths.append(drawn);
    }

    using QPaintEngine::drawPolygon;
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i)
            path.lineTo(points[i]);
        if (mode != PolylineMode)
            path.closeSubpath();
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        drawPath(path);
    }

    QVector<Ofd::DrawnPath> paths;
};

class RecordingDevice : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const QVector<Ofd::DrawnPath> &paths() const { return m_engine.paths; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return side;
        case PdmWidthMM:
        case PdmHeightMM:
            return int(side / unitsPerMillimetre);
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return int(unitsPerInch);
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 1;
        }
    }

private:
    mutable RecordingEngine m_engine;
};

} // namespace

QVector<Ofd::DrawnPath> recordedMark(const Mark &mark)
{
    RecordingDevice device;
    QPainter painter(&device);
    paintMark(painter, mark);
    painter.end();
    return device.paths();
}

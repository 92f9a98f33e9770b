#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>
#include <vector>

#include "quickcode/gcode_reader.h"

class QLabel;
class QHBoxLayout;

namespace tavrin {

// One drawing of a program's moves, seen along one axis: rapids dashed,
// feeds and arcs solid, holes as numbered circles, on a grid in inches.
// The wheel zooms about the cursor, a drag pans.
class PathPlotWidget : public QWidget {
    Q_OBJECT
  public:
    // Which axes stand across and up the drawing.
    enum class Projection { PlanXY, SideXZ, LatheZX };

    PathPlotWidget(Projection projection, QWidget* parent = nullptr);
    void setReading(const PathReading& reading);
    // The whole program in sight.
    void fit();
    // Pixels an inch.
    double scale() const { return scale_; }
    // The program's point drawn at a pixel of the widget, and back.
    QPointF toModel(QPointF pixel) const;
    QPointF toPixel(QPointF model) const;
    // The wheel's turn at a pixel: a notch (120) zooms by a quarter.
    void zoomAt(QPointF pixel, int angleDelta);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    struct Stroke {
        MoveKind kind;
        std::vector<QPointF> points;
        int number;
    };
    QRectF area() const;
    void drawGrid(class QPainter& p, double step) const;

    Projection projection_;
    std::vector<Stroke> strokes_;
    QRectF bounds_;
    double holeSpacing_ = 0;  // the least distance between two holes in turn
    double scale_ = 1;
    QPointF centre_;  // the program's point at the middle of the drawing area
    QPointF dragFrom_;
    bool fitted_ = false;
};

// A generator's path window: one drawing, or for a milling program the plan
// beside the side view; a Fit button; and the lines that were not drawn.
class PathWindow : public QWidget {
    Q_OBJECT
  public:
    explicit PathWindow(QWidget* owner);
    void setPlot(const PathPlot& plot);
    const std::vector<PathPlotWidget*>& plots() const { return plots_; }
    void fit();

  private:
    QHBoxLayout* row_;
    std::vector<PathPlotWidget*> plots_;
    QLabel* problems_;
};

}  // namespace tavrin

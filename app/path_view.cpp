#include "app/path_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace tavrin {

namespace {

// Room for the tick figures on the left and below, the title above.
constexpr int kLeft = 62;
constexpr int kBottom = 40;
constexpr int kTop = 26;
constexpr int kRight = 14;
constexpr double kHoleRadius = 6;  // pixels: the program gives no hole size
// Beyond this a pixel coordinate means nothing on screen, and a painter may stumble.
constexpr double kFar = 1e6;

const QColor kRapidColour(200, 70, 0);
const QColor kFeedColour(0, 80, 200);
const QColor kHoleColour(20, 20, 20);
const QColor kGridColour(225, 228, 235);
const QColor kAxisColour(120, 120, 130);

QPointF Project(const Point3& p, PathPlotWidget::Projection projection) {
    switch (projection) {
        case PathPlotWidget::Projection::SideXZ:
            return {p.x, p.z};
        case PathPlotWidget::Projection::LatheZX:
            return {p.z, p.x};
        case PathPlotWidget::Projection::PlanXY:
            break;
    }
    return {p.x, p.y};
}

QString Title(PathPlotWidget::Projection projection) {
    switch (projection) {
        case PathPlotWidget::Projection::SideXZ:
            return QStringLiteral("Side view (X-Z)");
        case PathPlotWidget::Projection::LatheZX:
            return QStringLiteral("Z-X plane, X on the diameter as programmed");
        case PathPlotWidget::Projection::PlanXY:
            break;
    }
    return QStringLiteral("Plan view (X-Y)");
}

// The names across and up.
std::pair<QString, QString> AxisNames(PathPlotWidget::Projection projection) {
    switch (projection) {
        case PathPlotWidget::Projection::SideXZ:
            return {QStringLiteral("X, in"), QStringLiteral("Z, in")};
        case PathPlotWidget::Projection::LatheZX:
            return {QStringLiteral("Z, in"), QStringLiteral("X (diameter), in")};
        case PathPlotWidget::Projection::PlanXY:
            break;
    }
    return {QStringLiteral("X, in"), QStringLiteral("Y, in")};
}

// A grid step of 1, 2 or 5 times a power of ten, about `wanted` long.
double NiceStep(double wanted) {
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double m : {1.0, 2.0, 5.0}) {
        if (m * power >= wanted) {
            return m * power;
        }
    }
    return 10 * power;
}

QString Figure(double v, double step) {
    const int places = std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, 9);
    // -0 would print with its sign.
    return QString::number(std::abs(v) < step / 2 ? 0.0 : v, 'f', places);
}

QPointF Clamped(QPointF p) {
    return {std::clamp(p.x(), -kFar, kFar), std::clamp(p.y(), -kFar, kFar)};
}

}  // namespace

PathPlotWidget::PathPlotWidget(Projection projection, QWidget* parent)
    : QWidget(parent), projection_(projection) {
    setMinimumSize(320, 280);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::OpenHandCursor);
}

void PathPlotWidget::setReading(const PathReading& reading) {
    strokes_.clear();
    bounds_ = QRectF();
    holeSpacing_ = 0;
    bool first = true;
    QPointF lastHole;
    bool anyHole = false;
    const auto include = [&](QPointF p) {
        if (first) {
            bounds_ = QRectF(p, p);
            first = false;
        }
        bounds_.setLeft(std::min(bounds_.left(), p.x()));
        bounds_.setRight(std::max(bounds_.right(), p.x()));
        bounds_.setTop(std::min(bounds_.top(), p.y()));
        bounds_.setBottom(std::max(bounds_.bottom(), p.y()));
    };
    for (const PathMove& move : reading.moves) {
        Stroke stroke{move.kind, {}, move.number};
        for (const Point3& p : PointsAlong(move)) {
            stroke.points.push_back(Project(p, projection_));
            include(stroke.points.back());
        }
        if (move.kind == MoveKind::Hole) {
            const QPointF at = stroke.points.back();
            const double d = std::hypot(at.x() - lastHole.x(), at.y() - lastHole.y());
            if (anyHole && d > 0 && (holeSpacing_ == 0 || d < holeSpacing_)) {
                holeSpacing_ = d;
            }
            lastHole = at;
            anyHole = true;
        }
        strokes_.push_back(std::move(stroke));
    }
    fit();
}

QRectF PathPlotWidget::area() const {
    return QRectF(kLeft, kTop, std::max(width() - kLeft - kRight, 1),
                  std::max(height() - kTop - kBottom, 1));
}

void PathPlotWidget::fit() {
    fitted_ = true;
    QRectF b = bounds_;
    // A drawing with no breadth (a line of pecks, one hole) is given some.
    const double extent = std::max({b.width(), b.height(), 0.0});
    const double least = extent > 0 ? extent * 0.2 : 1.0;
    if (b.width() < least) {
        b.adjust(-(least - b.width()) / 2, 0, (least - b.width()) / 2, 0);
    }
    if (b.height() < least) {
        b.adjust(0, -(least - b.height()) / 2, 0, (least - b.height()) / 2);
    }
    const QRectF a = area().adjusted(2 * kHoleRadius + 6, 2 * kHoleRadius + 6, -2 * kHoleRadius - 6,
                                     -2 * kHoleRadius - 6);
    scale_ = std::min(std::max(a.width(), 1.0) / b.width(), std::max(a.height(), 1.0) / b.height());
    if (!std::isfinite(scale_) || scale_ <= 0) {
        scale_ = 1;
    }
    centre_ = b.center();
    update();
}

QPointF PathPlotWidget::toPixel(QPointF model) const {
    const QPointF mid = area().center();
    return {mid.x() + (model.x() - centre_.x()) * scale_,
            mid.y() - (model.y() - centre_.y()) * scale_};
}

QPointF PathPlotWidget::toModel(QPointF pixel) const {
    const QPointF mid = area().center();
    return {centre_.x() + (pixel.x() - mid.x()) / scale_,
            centre_.y() - (pixel.y() - mid.y()) / scale_};
}

void PathPlotWidget::zoomAt(QPointF pixel, int angleDelta) {
    const QPointF held = toModel(pixel);
    const double next = scale_ * std::pow(1.25, angleDelta / 120.0);
    if (!std::isfinite(next) || next < 1e-9 || next > 1e12) {
        return;
    }
    scale_ = next;
    // The point under the cursor stays there.
    const QPointF moved = toModel(pixel);
    centre_ += held - moved;
    update();
}

void PathPlotWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (fitted_) {
        fit();
    }
}

void PathPlotWidget::wheelEvent(QWheelEvent* event) {
    zoomAt(event->position(), event->angleDelta().y());
    event->accept();
}

void PathPlotWidget::mousePressEvent(QMouseEvent* event) {
    dragFrom_ = event->position();
    // A resize after the user has moved the drawing keeps it where it is.
    fitted_ = false;
}

void PathPlotWidget::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) {
        const QPointF d = event->position() - dragFrom_;
        centre_ += QPointF(-d.x() / scale_, d.y() / scale_);
        dragFrom_ = event->position();
        update();
    }
}

void PathPlotWidget::drawGrid(QPainter& p, double step) const {
    const QRectF a = area();
    const QPointF low = toModel(a.bottomLeft());
    const QPointF high = toModel(a.topRight());
    const QFontMetricsF fm(font());
    p.setPen(QPen(kGridColour, 0));
    for (double u = std::ceil(low.x() / step) * step; u <= high.x(); u += step) {
        const double x = toPixel({u, 0}).x();
        p.setPen(QPen(kGridColour, 0));
        p.drawLine(QPointF(x, a.top()), QPointF(x, a.bottom()));
        p.setPen(palette().color(QPalette::WindowText));
        p.drawLine(QPointF(x, a.bottom()), QPointF(x, a.bottom() + 4));
        const QString t = Figure(u, step);
        p.drawText(QPointF(x - fm.horizontalAdvance(t) / 2, a.bottom() + 6 + fm.ascent()), t);
    }
    for (double v = std::ceil(low.y() / step) * step; v <= high.y(); v += step) {
        const double y = toPixel({0, v}).y();
        p.setPen(QPen(kGridColour, 0));
        p.drawLine(QPointF(a.left(), y), QPointF(a.right(), y));
        p.setPen(palette().color(QPalette::WindowText));
        p.drawLine(QPointF(a.left() - 4, y), QPointF(a.left(), y));
        const QString t = Figure(v, step);
        p.drawText(QPointF(a.left() - 6 - fm.horizontalAdvance(t), y + fm.ascent() / 2 - 1), t);
    }
    // The axes through the origin, where they are in sight.
    p.setPen(QPen(kAxisColour, 0));
    const QPointF origin = toPixel({0, 0});
    if (origin.x() >= a.left() && origin.x() <= a.right()) {
        p.drawLine(QPointF(origin.x(), a.top()), QPointF(origin.x(), a.bottom()));
    }
    if (origin.y() >= a.top() && origin.y() <= a.bottom()) {
        p.drawLine(QPointF(a.left(), origin.y()), QPointF(a.right(), origin.y()));
    }
}

void PathPlotWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Window));
    const QRectF a = area();
    p.fillRect(a, Qt::white);
    // About 80 pixels a grid step, so that the figures never crowd.
    const double step = NiceStep(80 / scale_);
    if (std::isfinite(step) && step > 0 && (a.width() / scale_) / step < 1000) {
        drawGrid(p, step);
    }
    const QFontMetricsF fm(font());
    const auto [across, up] = AxisNames(projection_);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(QPointF(a.right() - fm.horizontalAdvance(across), height() - 4), across);
    p.drawText(QPointF(4, kTop - 8), up);
    const QString title = Title(projection_);
    p.drawText(QPointF(a.center().x() - fm.horizontalAdvance(title) / 2, kTop - 8), title);
    const QString scaleNote = QStringLiteral("grid %1 in").arg(Figure(step, step));
    p.drawText(QPointF(kLeft, height() - 4), scaleNote);

    p.setClipRect(a);
    p.setRenderHint(QPainter::Antialiasing);
    QPen rapid(kRapidColour, 1.2, Qt::DashLine);
    rapid.setCosmetic(true);
    QPen feed(kFeedColour, 2);
    feed.setCosmetic(true);
    const bool lathe = projection_ == Projection::LatheZX;
    // Feeds first, so that a rapid back over a cut still shows its dashes.
    for (const bool drawRapids : {false, true}) {
        for (const Stroke& s : strokes_) {
            const bool isRapid = s.kind == MoveKind::Rapid || s.kind == MoveKind::Hole;
            if (isRapid != drawRapids || s.points.size() < 2) {
                continue;
            }
            QPainterPath path(Clamped(toPixel(s.points.front())));
            for (std::size_t i = 1; i < s.points.size(); ++i) {
                path.lineTo(Clamped(toPixel(s.points[i])));
            }
            if (path.length() < 0.5) {
                continue;
            }
            p.setPen(isRapid ? rapid : feed);
            p.drawPath(path);
            // On a lathe the pecks run along one line: a tick marks where each stops.
            if (lathe && s.kind == MoveKind::Feed) {
                const QPointF end = toPixel(s.points.back());
                p.drawLine(end - QPointF(0, 5), end + QPointF(0, 5));
            }
        }
    }
    const bool numbered = holeSpacing_ * scale_ >= 28;
    p.setPen(QPen(kHoleColour, 1.4));
    for (const Stroke& s : strokes_) {
        if (s.kind != MoveKind::Hole) {
            continue;
        }
        const QPointF at = toPixel(s.points.back());
        if (!a.adjusted(-20, -20, 20, 20).contains(at)) {
            continue;
        }
        p.setBrush(QColor(255, 245, 200));
        p.drawEllipse(at, kHoleRadius, kHoleRadius);
        p.setBrush(Qt::NoBrush);
        p.drawLine(at - QPointF(kHoleRadius + 3, 0), at + QPointF(kHoleRadius + 3, 0));
        p.drawLine(at - QPointF(0, kHoleRadius + 3), at + QPointF(0, kHoleRadius + 3));
        if (numbered || holeSpacing_ == 0) {
            p.drawText(at + QPointF(kHoleRadius + 2, -kHoleRadius - 2), QString::number(s.number));
        }
    }
    p.setClipping(false);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(kAxisColour);
    p.setBrush(Qt::NoBrush);
    p.drawRect(a);
}

PathWindow::PathWindow(QWidget* owner) : QWidget(owner, Qt::Window) {
    setObjectName(QStringLiteral("PathWindow"));
    auto* column = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    auto* legend = new QLabel(
        QStringLiteral("Rapid moves dashed, feeds and arcs solid, holes as numbered circles. "
                       "Wheel: zoom; drag: pan."),
        this);
    legend->setWordWrap(true);
    top->addWidget(legend, 1);
    auto* fitButton = new QPushButton(QStringLiteral("Fit"), this);
    fitButton->setObjectName(QStringLiteral("cmdFit"));
    connect(fitButton, &QPushButton::clicked, this, &PathWindow::fit);
    top->addWidget(fitButton);
    column->addLayout(top);
    row_ = new QHBoxLayout;
    column->addLayout(row_, 1);
    problems_ = new QLabel(this);
    problems_->setWordWrap(true);
    problems_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(problems_);
}

void PathWindow::setPlot(const PathPlot& plot) {
    setWindowTitle(plot.title);
    std::vector<PathPlotWidget::Projection> wanted;
    switch (plot.view) {
        case PathView::Mill:
            wanted = {PathPlotWidget::Projection::PlanXY, PathPlotWidget::Projection::SideXZ};
            break;
        case PathView::Lathe:
            wanted = {PathPlotWidget::Projection::LatheZX};
            break;
        case PathView::Holes:
            wanted = {PathPlotWidget::Projection::PlanXY};
            break;
    }
    if (plots_.size() != wanted.size()) {
        for (PathPlotWidget* w : plots_) {
            delete w;
        }
        plots_.clear();
        for (const auto projection : wanted) {
            plots_.push_back(new PathPlotWidget(projection, this));
            row_->addWidget(plots_.back(), 1);
        }
        resize(plots_.size() == 1 ? QSize(640, 560) : QSize(1040, 560));
    }
    for (PathPlotWidget* w : plots_) {
        w->setReading(plot.reading);
    }
    QStringList lines;
    for (const PathProblem& problem : plot.reading.problems) {
        if (lines.size() == 5) {
            lines << QStringLiteral("and %1 more").arg(plot.reading.problems.size() - 5);
            break;
        }
        lines << QStringLiteral("Line %1: %2").arg(problem.line).arg(problem.text);
    }
    problems_->setText(QStringLiteral("Not drawn: ") + lines.join(QStringLiteral("; ")));
    problems_->setVisible(!lines.isEmpty());
}

void PathWindow::fit() {
    for (PathPlotWidget* w : plots_) {
        w->fit();
    }
}

}  // namespace tavrin

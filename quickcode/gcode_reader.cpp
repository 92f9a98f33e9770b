// Reads a Quick Code program back into moves, so that it can be drawn. The
// user may have edited the text (Strip "N" does): every line either moves,
// sets a mode, or is reported with its number, and nothing throws.

#include "quickcode/gcode_reader.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace tavrin {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
// Ends closer than this are one point: the arc is a full turn.
constexpr double kSamePoint = 1e-9;
// How far an arc's end may stand off its circle: the last figure of a
// four-place program, and then some.
constexpr double kOffCircle = 0.001;

enum Motion { kNone = -1, kRapid = 0, kFeed = 1, kCw = 2, kCcw = 3, kThread = 92 };

double& At(Point3& p, int axis) {
    return axis == 0 ? p.x : axis == 1 ? p.y : p.z;
}
double At(const Point3& p, int axis) {
    return axis == 0 ? p.x : axis == 1 ? p.y : p.z;
}

// The two axes of an arc's plane, counter-clockwise from the first to the
// second, and the one across it.
struct Axes {
    int a, b, across;
};
Axes AxesOf(ArcPlane plane) {
    switch (plane) {
        case ArcPlane::ZX:
            return {2, 0, 1};
        case ArcPlane::YZ:
            return {1, 2, 0};
        case ArcPlane::XY:
            break;
    }
    return {0, 1, 2};
}

// What one line says, before any of it takes effect.
struct Block {
    std::optional<double> axis[3];    // X Y Z
    std::optional<double> offset[3];  // I J K
    std::optional<double> radius;     // R
    std::optional<int> motion;
    std::optional<bool> incremental;
    std::optional<ArcPlane> plane;
    bool listed = false;  // " 1] X.." of a hole list
    int listNumber = 0;

    bool hasAxis() const { return axis[0] || axis[1] || axis[2]; }
};

struct State {
    Point3 pos;
    bool known[3] = {false, false, false};
    int motion = kNone;
    bool incremental = false;
    ArcPlane plane = ArcPlane::XY;
    std::optional<double> threadEnd;
    int holes = 0;
};

bool IsLetter(QChar c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

QString CannotRead(const QString& line, qsizetype from) {
    qsizetype end = from;
    while (end < line.size() && !line[end].isSpace() && line[end] != u'(') {
        ++end;
    }
    return QStringLiteral("cannot read \"%1\"").arg(line.mid(from, end - from));
}

// The G word's effect on the block, or false for a code this reader does not know.
bool TakeG(double code, Block& b) {
    if (code != std::floor(code)) {
        return false;
    }
    switch (static_cast<int>(std::clamp(code, -1.0, 100.0))) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 92:
            b.motion = static_cast<int>(code);
            return true;
        case 17:
            b.plane = ArcPlane::XY;
            return true;
        case 18:
            b.plane = ArcPlane::ZX;
            return true;
        case 19:
            b.plane = ArcPlane::YZ;
            return true;
        case 40:
        case 41:
        case 42:
            return true;
        case 90:
        case 91:
            b.incremental = code == 91;
            return true;
        default:
            return false;
    }
}

// Fills the block from the line; the problem, or an empty text.
QString Parse(const QString& line, Block& b) {
    static const QRegularExpression listed(QStringLiteral(R"(^\s*(\d+)\])"));
    static const QRegularExpression number(QStringLiteral(R"([+-]?(\d+\.?\d*|\.\d+))"));
    qsizetype i = 0;
    if (const QRegularExpressionMatch m = listed.match(line); m.hasMatch()) {
        b.listed = true;
        b.listNumber = m.captured(1).toInt();  // 0 when too long
        i = m.capturedEnd();
    }
    while (i < line.size()) {
        const QChar c = line[i];
        if (c.isSpace()) {
            ++i;
            continue;
        }
        if (c == u'(') {
            const qsizetype close = line.indexOf(u')', i);
            if (close < 0) {
                return QStringLiteral("a comment is not closed");
            }
            i = close + 1;
            continue;
        }
        if (!IsLetter(c)) {
            return CannotRead(line, i);
        }
        const QChar letter = c.toUpper();
        const QRegularExpressionMatch m =
            number.match(line, i + 1, QRegularExpression::NormalMatch,
                         QRegularExpression::AnchorAtOffsetMatchOption);
        if (!m.hasMatch()) {
            return QStringLiteral("%1 has no number").arg(letter);
        }
        bool ok = false;
        const double v = m.captured().toDouble(&ok);
        if (!ok || !std::isfinite(v)) {
            return QStringLiteral("%1 is out of range").arg(letter);
        }
        static const QString axes = QStringLiteral("XYZ");
        static const QString offsets = QStringLiteral("IJK");
        static const QString ignored = QStringLiteral("NFMST");
        if (axes.contains(letter)) {
            b.axis[axes.indexOf(letter)] = v;
        } else if (offsets.contains(letter)) {
            b.offset[offsets.indexOf(letter)] = v;
        } else if (letter == u'R') {
            b.radius = v;
        } else if (!(letter == u'G' ? TakeG(v, b) : ignored.contains(letter))) {
            return CannotRead(line, i);
        }
        i = m.capturedEnd();
    }
    return QString();
}

// The centre, radius and sweep of an arc from `m.from` to `m.to`.
QString MakeArc(PathMove& m, const Block& b, ArcPlane plane, bool ccw) {
    const Axes ax = AxesOf(plane);
    const double fa = At(m.from, ax.a);
    const double fb = At(m.from, ax.b);
    const double ta = At(m.to, ax.a);
    const double tb = At(m.to, ax.b);
    const double chord = std::hypot(ta - fa, tb - fb);
    double ca = 0;
    double cb = 0;
    if (b.radius) {
        const double r = *b.radius;
        if (chord < kSamePoint) {
            return QStringLiteral("R cannot make a full turn");
        }
        const double half = chord / 2;
        if (half - std::abs(r) > kOffCircle) {
            return QStringLiteral("R%1 is too short for an end %2 away").arg(r).arg(chord);
        }
        const double h = std::sqrt(std::max(0.0, r * r - half * half));
        // A short counter-clockwise arc turns about a centre left of its chord;
        // a negative R asks for the long way round.
        const double side = (ccw ? 1 : -1) * (r < 0 ? -1 : 1);
        ca = fa + (ta - fa) / 2 - side * h * (tb - fb) / chord;
        cb = fb + (tb - fb) / 2 + side * h * (ta - fa) / chord;
    } else {
        const std::optional<double>& oa = b.offset[ax.a];
        const std::optional<double>& ob = b.offset[ax.b];
        if (!oa && !ob) {
            return QStringLiteral("an arc needs I, J, K or R");
        }
        ca = fa + oa.value_or(0);
        cb = fb + ob.value_or(0);
    }
    const double r0 = std::hypot(fa - ca, fb - cb);
    const double r1 = std::hypot(ta - ca, tb - cb);
    if (r0 < kSamePoint) {
        return QStringLiteral("the arc has no radius");
    }
    if (std::abs(r1 - r0) > kOffCircle) {
        return QStringLiteral("the arc's end is %1 off its circle").arg(std::abs(r1 - r0));
    }
    m.centre = m.from;
    At(m.centre, ax.a) = ca;
    At(m.centre, ax.b) = cb;
    m.radius = r0;
    m.plane = plane;
    if (chord < kSamePoint) {
        m.sweep = ccw ? kTurn : -kTurn;
    } else {
        m.sweep = std::atan2(tb - cb, ta - ca) - std::atan2(fb - cb, fa - ca);
        if (ccw && m.sweep <= 0) {
            m.sweep += kTurn;
        } else if (!ccw && m.sweep >= 0) {
            m.sweep -= kTurn;
        }
    }
    return QString();
}

PathMove Move(MoveKind kind, const Point3& from, const Point3& to, int line) {
    PathMove m;
    m.kind = kind;
    m.from = from;
    m.to = to;
    m.line = line;
    return m;
}

// The moves of the G92 cycle: in to the diameter, along to the end, out, back.
void ThreadCycle(const Point3& start, double x, double end, int line, std::vector<PathMove>& out) {
    const Point3 in{x, start.y, start.z};
    const Point3 along{x, start.y, end};
    const Point3 back{start.x, start.y, end};
    out.push_back(Move(MoveKind::Rapid, start, in, line));
    out.push_back(Move(MoveKind::Feed, in, along, line));
    out.push_back(Move(MoveKind::Rapid, along, back, line));
    out.push_back(Move(MoveKind::Rapid, back, start, line));
}

// Takes the block into the state and adds its moves; with a problem, neither.
QString Step(const Block& b, int line, State& s, std::vector<PathMove>& moves) {
    State t = s;
    t.motion = b.motion.value_or(t.motion);
    t.incremental = b.incremental.value_or(t.incremental);
    t.plane = b.plane.value_or(t.plane);
    Point3 target = t.pos;
    Point3 from = t.pos;
    for (int k = 0; k < 3; ++k) {
        if (b.axis[k]) {
            At(target, k) = t.incremental ? At(t.pos, k) + *b.axis[k] : *b.axis[k];
            // Where an axis first appears, the tool came from somewhere unknown.
            if (!t.known[k]) {
                At(from, k) = At(target, k);
            }
            t.known[k] = true;
        }
    }
    if (!std::isfinite(target.x) || !std::isfinite(target.y) || !std::isfinite(target.z)) {
        return QStringLiteral("the position is out of range");
    }
    std::vector<PathMove> made;
    PathMove m = Move(MoveKind::Rapid, from, target, line);
    if (b.listed || (t.motion == kNone && b.hasAxis())) {
        if (!b.hasAxis()) {
            return QStringLiteral("hole %1 has no position").arg(b.listNumber);
        }
        ++t.holes;
        m.kind = MoveKind::Hole;
        m.number = b.listNumber > 0 ? b.listNumber : t.holes;
        made.push_back(m);
        t.pos = target;
    } else if (t.motion == kThread) {
        if (b.axis[2]) {
            t.threadEnd = target.z;
        }
        if (b.hasAxis()) {
            if (!t.threadEnd) {
                return QStringLiteral("G92 needs a Z end");
            }
            ThreadCycle(from, target.x, *t.threadEnd, line, made);
            t.pos = from;  // the cycle ends where it began
        }
    } else if (t.motion == kRapid || t.motion == kFeed) {
        if (b.hasAxis()) {
            m.kind = t.motion == kRapid ? MoveKind::Rapid : MoveKind::Feed;
            made.push_back(m);
            t.pos = target;
        }
    } else if (t.motion == kCw || t.motion == kCcw) {
        if (b.hasAxis() || b.offset[0] || b.offset[1] || b.offset[2] || b.radius) {
            m.kind = t.motion == kCw ? MoveKind::ArcCw : MoveKind::ArcCcw;
            const QString problem = MakeArc(m, b, t.plane, t.motion == kCcw);
            if (!problem.isEmpty()) {
                return problem;
            }
            made.push_back(m);
            t.pos = target;
        }
    }
    s = t;
    moves.insert(moves.end(), made.begin(), made.end());
    return QString();
}

}  // namespace

PathReading ReadPath(const QString& program) {
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n|\r"));
    PathReading reading;
    State state;
    const QStringList lines = program.split(lineEnd);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const int line = static_cast<int>(i + 1);
        Block block;
        QString problem = Parse(lines[i], block);
        if (problem.isEmpty()) {
            problem = Step(block, line, state, reading.moves);
        }
        if (!problem.isEmpty()) {
            reading.problems.push_back({line, problem});
        }
    }
    return reading;
}

std::vector<Point3> PointsAlong(const PathMove& move, int perTurn) {
    if (move.kind != MoveKind::ArcCw && move.kind != MoveKind::ArcCcw) {
        return {move.from, move.to};
    }
    const Axes ax = AxesOf(move.plane);
    const double ca = At(move.centre, ax.a);
    const double cb = At(move.centre, ax.b);
    const double a0 = std::atan2(At(move.from, ax.b) - cb, At(move.from, ax.a) - ca);
    const double rise = At(move.to, ax.across) - At(move.from, ax.across);
    const int steps = std::max(
        2, static_cast<int>(std::ceil(std::abs(move.sweep) / kTurn * std::max(perTurn, 4))));
    std::vector<Point3> points;
    points.reserve(static_cast<std::size_t>(steps) + 1);
    for (int k = 0; k < steps; ++k) {
        const double f = static_cast<double>(k) / steps;
        Point3 p = move.from;
        At(p, ax.a) = ca + move.radius * std::cos(a0 + move.sweep * f);
        At(p, ax.b) = cb + move.radius * std::sin(a0 + move.sweep * f);
        At(p, ax.across) = At(move.from, ax.across) + rise * f;
        points.push_back(p);
    }
    points.push_back(move.to);
    return points;
}

QString MoveKindName(MoveKind kind) {
    switch (kind) {
        case MoveKind::Feed:
            return QStringLiteral("feed");
        case MoveKind::ArcCw:
            return QStringLiteral("cw");
        case MoveKind::ArcCcw:
            return QStringLiteral("ccw");
        case MoveKind::Hole:
            return QStringLiteral("hole");
        case MoveKind::Rapid:
            break;
    }
    return QStringLiteral("rapid");
}

}  // namespace tavrin

// The twenty plane figures of the Area / Volume solver. The short constants
// stand as they have always been stored; Pi only where a formula names it.

#include "frame/angles.h"
#include "reference/figures.h"

namespace tavrin {

namespace {

using Kind = FigureAnswer::Kind;

QString Triangle(const Real* t) {
    const Real s = (t[1] + t[0] + t[2]) * 0.5;
    return FigureLine("Area= ", Sqr((s - t[0]) * s * (s - t[1]) * (s - t[2])));
}

QString Ring(const Real* t) {
    return FigureLine("Area= ", Pi() * (Square(t[0]) - Square(t[1])));
}

QString RingSector(const Real* t) {
    return FigureLine("Area= ", ((t[2] * Pi()) / 360) * (Square(t[0]) - Square(t[1])));
}

QString Cycloid(const Real* t) {
    return FigureLine("Area= ", Square(t[0]) * 9.4248) + "\r\n" + FigureLine("Length= ", t[0] * 8);
}

QString Ellipse(const Real* t) {
    const Real a = t[0] / 2;
    const Real b = t[1] / 2;
    return FigureLine("Area= ", Pi() * a * b) + "\r\n" +
           FigureLine("Circumference= ", Pi() * Sqr(2 * (Square(a) + Square(b))));
}

// Two thirds, one digit shorter for the parabola than for its segment.
QString Parabola(const Real* t) {
    return FigureLine("Area= ", (t[0] * 0.6666666666666) * t[1]);
}

QString ParabolaSegment(const Real* t) {
    return FigureLine("Area= ", (t[0] * 0.66666666666666) * t[1]);
}

QString Parallelogram(const Real* t) {
    return FigureLine("Area= ", t[0] * t[1]);
}

QString Rectangle(const Real* t) {
    return FigureLine("Area= ", t[0] * t[1]) + "\r\n" +
           FigureLine("Diagonal Length= ", Sqr(Square(t[0]) + Square(t[1])));
}

QString SquareFigure(const Real* t) {
    return FigureLine("Area= ", Square(t[0])) + "\r\n" +
           FigureLine("Diagonal Length= ", t[0] * 1.414);
}

QString Trapezium(const Real* t) {
    return FigureLine("Area= ", ((t[0] + t[1]) * t[2] + t[1] * t[3] + t[0] * t[4]) / 2);
}

QString Trapezoid(const Real* t) {
    return FigureLine("Area= ", ((t[0] + t[1]) * t[2]) / 2);
}

const SimpleFigure kSimple[] = {
    {0, 3, Triangle},       {3, 2, Ring},       {4, 3, RingSector},    {8, 1, Cycloid},
    {10, 2, Ellipse},       {18, 3, Triangle},  {20, 2, Parabola},     {21, 2, ParabolaSegment},
    {22, 2, Parallelogram}, {27, 2, Rectangle}, {30, 1, SquareFigure}, {38, 5, Trapezium},
    {39, 3, Trapezoid},
};

// Rules 1, 3 to 6 refuse a zero among their two values, leaving the answer.
FigureAnswer CircularSector(const FigureFields& f, const FigureBoxes& boxes) {
    const int n = CountFilled(f);
    if (n > 2) {
        return Refuse(boxes, "Error, Please fill only two data fields.", true);
    }
    if (n < 2) {
        return Refuse(boxes, "Error, Please fill two data fields.", true);
    }
    const Real* t = f.t;
    const bool* typed = f.typed;
    const auto given = [&](int i, int j) { return typed[i] && typed[j]; };
    const auto zero = [&](int i, int j) { return t[i] == 0 || t[j] == 0; };
    const char* const zeroMessage = "Please fill data fields with values greater than zero.";
    if (given(0, 1)) {
        if (zero(0, 1)) {
            return Refuse(boxes, zeroMessage, false);
        }
        return Lines(FigureLine("Angle= ", (t[0] * 57.296) / t[1]) + "\r\n" +
                     FigureLine("Area= ", (t[0] * t[1]) * 0.5));
    }
    if (given(2, 3)) {
        return Refuse(boxes, "Error, Solution not possible with Angle and Area only.", true);
    }
    if (given(1, 2)) {
        if (zero(1, 2)) {
            return Refuse(boxes, zeroMessage, false);
        }
        const Real c = ((t[1] * t[2]) * Pi()) / 180;
        // No blank after this one label's equals sign.
        return Lines(FigureLine("Arc Length=", c) + "\r\n" +
                     FigureLine("Area= ", (t[1] * c) * 0.5));
    }
    if (given(0, 2)) {
        if (zero(0, 2)) {
            return Refuse(boxes, zeroMessage, false);
        }
        const Real r = (t[0] * 57.296) / t[2];
        return Lines(FigureLine("Radius= ", r) + "\r\n" + FigureLine("Area= ", (t[0] * r) * 0.5));
    }
    if (given(0, 3)) {
        if (zero(0, 3)) {
            return Refuse(boxes, zeroMessage, false);
        }
        const Real r = (t[3] + t[3]) / t[0];
        return Lines(FigureLine("Radius= ", r) + "\r\n" +
                     FigureLine("Angle= ", (t[0] * 57.296) / r));
    }
    if (given(1, 3)) {
        if (zero(1, 3)) {
            return Refuse(boxes, zeroMessage, false);
        }
        const Real c = (t[3] + t[3]) / t[1];
        return Lines(FigureLine("Arc= ", c) + "\r\n" + FigureLine("Angle= ", (c * 57.296) / t[1]));
    }
    return {Kind::Empty, {}};
}

QString HexagonLines(const FigureFields& f) {
    const Real* t = f.t;
    if (f.typed[0]) {
        return FigureLine("Area= ", Square(t[0]) * 2.598) + "\r\n" +
               FigureLine("Inside Diameter= ", 2 * (t[0] * 0.866)) + "\r\n" +
               FigureLine("Outside Diameter= ", 2 * t[0]);
    }
    if (f.typed[1]) {
        const Real r = t[1] / 2;
        return FigureLine("Area= ", Square(r) * 2.598) + "\r\n" + FigureLine("Side= ", r) + "\r\n" +
               FigureLine("Inside Diameter= ", 2 * (r * 0.866));
    }
    const Real r = t[2] / 2;
    return FigureLine("Area= ", Square(r) * 3.464) + "\r\n" + FigureLine("Side= ", r * 1.155) +
           "\r\n" + FigureLine("Outside Diameter= ", 2 * (r * 1.155));
}

QString OctagonLines(const FigureFields& f) {
    const Real* t = f.t;
    if (f.typed[0]) {
        return FigureLine("Area= ", Square(t[0]) * 4.828) + "\r\n" +
               FigureLine("Inside Diameter= ", 2 * (t[0] * 1.207)) + "\r\n" +
               FigureLine("Outside Diameter= ", 2 * (t[0] * 1.307));
    }
    if (f.typed[1]) {
        const Real r = t[1] / 2;
        return FigureLine("Area= ", Square(r) * 2.828) + "\r\n" + FigureLine("Side= ", r * 0.765) +
               "\r\n" + FigureLine("Inside Diameter= ", 2 * (r * 0.924));
    }
    const Real r = t[2] / 2;
    return FigureLine("Area= ", Square(r) * 3.314) + "\r\n" + FigureLine("Side= ", r * 0.828) +
           "\r\n" + FigureLine("Outside Diameter= ", 2 * (r * 1.082));
}

// The first non-empty field decides, even one holding 0.
FigureAnswer RegularPolygon(const FigureFields& f, const FigureBoxes& boxes, bool hexagon) {
    if (CountFilled(f) > 1) {
        return Refuse(
            boxes, "Error, Please fill only one data field with a value greater than zero.", true);
    }
    if (!f.typed[0] && !f.typed[1] && !f.typed[2]) {
        return {Kind::Empty, {}};
    }
    return Lines(hexagon ? HexagonLines(f) : OctagonLines(f));
}

FigureAnswer Hyperbola(const FigureFields& f, const FigureBoxes& boxes) {
    const Real* t = f.t;
    if (t[0] == 0 || t[1] == 0 || t[2] == 0 || t[3] == 0) {
        return Refuse(boxes, "Please fill all four data fields with values greater than zero.",
                      false);
    }
    return Lines(FigureLine(
        "Area= ", (t[0] * t[1]) / 2 - ((t[3] * t[2]) / 2) * Log(t[0] / t[2] + t[1] / t[3])));
}

FigureAnswer Polygon(const FigureFields& f, const FigureBoxes& boxes) {
    const int n = CountFilled(f);
    if (n > 3) {
        return Refuse(boxes, "Error, Please fill only three data fields.", true);
    }
    if (n != 3) {
        return Refuse(boxes, "Error, Please fill three data fields with values greater than zero.",
                      true);
    }
    if (!f.typed[2]) {
        return Refuse(boxes, "Error, Number of sides data must be entered.", true);
    }
    boxes.warning(
        "All three data items you entered must be correct or else you will get an inaccurate "
        "answer.");
    const Real* t = f.t;
    const bool* typed = f.typed;
    if (typed[0] && typed[2] && typed[3]) {
        const Real h = Sqr(Square(t[0] / 2) - Square(t[3]) / 4);
        return Lines(FigureLine("Area= ", (t[2] * (t[3] / 2)) * h) + "\r\n" +
                     FigureLine("Inside Diameter= ", 2 * h));
    }
    if (typed[1] && typed[2] && typed[3]) {
        return Lines(
            FigureLine("Area= ", ((t[2] * t[3]) * (t[1] / 2)) / 2) + "\r\n" +
            FigureLine("Outside Diameter= ", 2 * Sqr(Square(t[1] / 2) + Square(t[3]) / 4)));
    }
    if (typed[0] && typed[1] && typed[2]) {
        const Real s = 2 * Sqr(Square(t[0] / 2) - Square(t[1] / 2));
        return Lines(FigureLine("Area= ", ((t[2] * s) * (t[1] / 2)) / 2) + "\r\n" +
                     FigureLine("Side= ", s));
    }
    return {Kind::Empty, {}};
}

// Too few filled fields is told, and the rules still run after it.
FigureAnswer RightTriangle(const FigureFields& f, const FigureBoxes& boxes) {
    FigureAnswer answer;
    const int n = CountFilled(f);
    if (n < 2) {
        answer = Refuse(boxes, "Error, Please fill two data fields.", true);
    }
    if (n == 3) {
        return Refuse(boxes, "Error, Please fill only two data fields.", false);
    }
    const Real* t = f.t;
    const bool* typed = f.typed;
    const auto invalid = [&] {
        boxes.message("Error, Invalid input.");
        return answer;
    };
    if (typed[0] && typed[1]) {
        if (Square(t[0]) + Square(t[1]) < 0) {
            return invalid();
        }
        return Lines(FigureLine("Area= ", (t[1] * t[0]) / 2) + "\r\n" +
                     FigureLine("Hypotenuse= ", Sqr(Square(t[0]) + Square(t[1]))));
    }
    if (typed[0] && typed[2]) {
        const Real q = Square(t[2]) - Square(t[0]);
        if (q < 0) {
            return invalid();
        }
        return Lines(FigureLine("Area= ", (Sqr(q) * t[0]) / 2) + "\r\n" +
                     FigureLine("Side Adjacent= ", Sqr(q)));
    }
    if (typed[1] && typed[2]) {
        const Real q = Square(t[2]) - Square(t[1]);
        if (q < 0) {
            return invalid();
        }
        return Lines(FigureLine("Area= ", (t[1] * Sqr(q)) / 2) + "\r\n" +
                     FigureLine("Side Opposite= ", Sqr(q)));
    }
    return answer;
}

// An empty window reads the chord: "Area= 0.0000".
FigureAnswer Spandrel(const FigureFields& f, const FigureBoxes& boxes) {
    if (CountFilled(f) > 1) {
        return Refuse(
            boxes, "Error, Please fill only one data field with a value greater than zero.", true);
    }
    if (f.typed[0]) {
        return Lines(FigureLine("Area= ", Square(f.t[0]) * 0.215));
    }
    return Lines(FigureLine("Area= ", Square(f.t[1]) * 0.1075));
}

}  // namespace

bool SolvePlaneFigure(int number, const FigureFields& f, const FigureBoxes& boxes,
                      FigureAnswer& answer) {
    if (SolveSimple(kSimple, number, f, boxes, answer)) {
        return true;
    }
    switch (number) {
        case 5:
            answer = CircularSector(f, boxes);
            return true;
        case 14:
        case 19:
            answer = RegularPolygon(f, boxes, number == 14);
            return true;
        case 17:
            answer = Hyperbola(f, boxes);
            return true;
        case 23:
            answer = Polygon(f, boxes);
            return true;
        case 28:
            answer = RightTriangle(f, boxes);
            return true;
        case 29:
            answer = Spandrel(f, boxes);
            return true;
        default:
            return false;
    }
}

}  // namespace tavrin

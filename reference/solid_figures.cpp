// The twenty-one solids of the Area / Volume solver, under the rules of the
// plane figures. The short constants stand as stored; Pi only where written.

#include "frame/angles.h"
#include "frame/numeric_text.h"
#include "reference/figures.h"

namespace tavrin {

namespace {

using Kind = FigureAnswer::Kind;

QString BarrelOfCircle(const Real* t) {
    return FigureLine("Volume= ", (2 * Square(t[0]) + Square(t[1])) * (t[2] * 0.262));
}

QString BarrelOfParabola(const Real* t) {
    return FigureLine("Volume= ",
                      (t[1] * t[0] + 2 * Square(t[0]) + Square(t[1]) * 0.75) * (t[2] * 0.209));
}

QString Cube(const Real* t) {
    return FigureLine("Volume= ", t[0] * t[0] * t[0]);
}

QString Cylinder(const Real* t) {
    return FigureLine("Area= ", (t[0] * 6.2832) * t[1]) + "\r\n" +
           FigureLine("Volume= ", (Pi() * Square(t[0])) * t[1]) + "\r\n" +
           FigureLine("Total Area= ", (t[1] + t[0]) * (t[0] * 6.2832));
}

QString Ellipsoid(const Real* t) {
    return FigureLine("Volume= ", ((t[1] / 2) * 4.1888) * Square(t[0] / 2));
}

QString FrustumOfCone(const Real* t) {
    return FigureLine("Volume= ", (t[2] * t[1] + Square(t[1]) + Square(t[2])) * (t[0] * 0.2618));
}

QString FrustumOfPyramid(const Real* t) {
    return FigureLine("Volume= ", (t[0] / 3) * (Sqr(t[1] * t[2]) + t[1] + t[2]));
}

QString HollowCylinder(const Real* t) {
    return FigureLine("Volume= ", (Pi() * t[0]) * (Square(t[1] / 2) - Square(t[2] / 2)));
}

QString HollowSphere(const Real* t) {
    return FigureLine("Volume= ", (t[0] * t[0] * t[0] - t[1] * t[1] * t[1]) * 0.5236);
}

QString PortionOfCylinder(const Real* t) {
    return FigureLine("Area= ", (Pi() * (t[0] / 2)) * (t[2] + t[1])) + "\r\n" +
           FigureLine("Volume= ", (t[2] + t[1]) * (Square(t[0] / 2) * 1.5708));
}

QString Prism(const Real* t) {
    return FigureLine("Volume= ", t[0] * t[1]);
}

QString Pyramid(const Real* t) {
    return FigureLine("Volume= ", (t[0] * 0.333333333) * t[1]);
}

QString SquarePrism(const Real* t) {
    return FigureLine("Volume= ", (t[0] * t[1]) * t[2]);
}

QString Sphere(const Real* t) {
    const Real r = t[0] / 2;
    return FigureLine("Area= ", (Pi() * 4) * Square(r)) + "\r\n" +
           FigureLine("Volume= ", (r * (Pi() * 4) * r * r) / 3);
}

QString SphericalWedge(const Real* t) {
    return FigureLine("Area= ", (t[1] * 0.0349) * Square(t[0])) + "\r\n" +
           FigureLine("Volume= ", (t[0] * t[0] * t[0]) * (t[1] * 0.0116));
}

// The torus volume alone goes to the pattern unrounded.
QString Torus(const Real* t) {
    return FigureLine("Area= ", (t[0] * t[1]) * (Square(Pi()) * 4)) + "\r\nVolume= " +
           FormatNum((Square(t[0]) * t[1]) * (2 * Square(Pi())), "#########0.0000");
}

QString Wedge(const Real* t) {
    return FigureLine("Volume= ", ((2 * t[0] + t[2]) * (t[3] * t[1])) / 6);
}

const SimpleFigure kSimple[] = {
    {1, 3, BarrelOfCircle},
    {2, 3, BarrelOfParabola},
    {7, 1, Cube},
    {9, 2, Cylinder},
    {11, 2, Ellipsoid},
    {12, 3, FrustumOfCone},
    {13, 3, FrustumOfPyramid},
    {15, 3, HollowCylinder},
    {16, 2, HollowSphere},
    {24, 3, PortionOfCylinder},
    {25, 2, Prism},
    {26, 2, Pyramid},
    {31, 3, SquarePrism},
    {32, 1, Sphere},
    {35, 2, SphericalWedge},
    {37, 2, Torus},
    {40, 4, Wedge},
};

// The rules go by the texts and the count by the values: a typed "0" height
// beside a radius and a side still meets the radius complaint.
FigureAnswer Cone(const FigureFields& f, const FigureBoxes& boxes) {
    const int n = CountFilled(f);
    if (n < 2) {
        return Refuse(boxes, "Error, Please fill two data fields.", true);
    }
    if (n > 2) {
        return Refuse(boxes, "Error, Please fill only two data fields.", true);
    }
    const Real* t = f.t;
    if (f.typed[2] && f.typed[0]) {
        return Refuse(boxes, "Error, Radius data must be entered.", true);
    }
    if (f.typed[1] && f.typed[0]) {
        const Real s = Sqr(Square(t[1]) + Square(t[0]));
        return Lines(FigureLine("Volume= ", ((Pi() * Square(t[1])) * t[0]) / 3) + "\r\n" +
                     FigureLine("Area= ", (Pi() * t[1]) * s) + "\r\n" + FigureLine("Side= ", s));
    }
    if (f.typed[2] && f.typed[1]) {
        const Real h = Sqr(Square(t[2]) - Square(t[1]));
        return Lines(FigureLine("Volume= ", ((Pi() * Square(t[1])) * h) / 3) + "\r\n" +
                     FigureLine("Area= ", (Pi() * t[1]) * t[2]) + "\r\n" +
                     FigureLine("Height= ", h));
    }
    return {};
}

Real SphereChord(const Real* t) {
    return Sqr((t[0] + t[0]) * (t[0] + t[0]) - ((t[0] - t[1]) * (t[0] - t[1])) * 4);
}

const char* const kTooHigh = "Error, Height greater than 2x the radius.";

FigureAnswer SphericalSector(const FigureFields& f, const FigureBoxes& boxes) {
    const Real* t = f.t;
    if (CountFilled(f) < 2) {
        return Refuse(boxes, kDefaultComplaint, true);
    }
    if (t[0] + t[0] < t[1]) {
        return Refuse(boxes, kTooHigh, true);
    }
    const Real c = SphereChord(t);
    return Lines(FigureLine("Area= ", (Pi() * t[0]) * ((t[1] + t[1]) + c * 0.5)) + "\r\n" +
                 FigureLine("Volume= ", (((Pi() + Pi()) * Square(t[0])) * t[1]) / 3) + "\r\n" +
                 FigureLine("Chord= ", c));
}

// The message names a field #4 this figure has not; it stands as written.
FigureAnswer SphericalSegment(const FigureFields& f, const FigureBoxes& boxes) {
    const Real* t = f.t;
    const bool* typed = f.typed;
    if (CountFilled(f) < 2) {
        return Refuse(boxes, "Error, Insufficient data entered.", true);
    }
    if ((typed[0] && typed[1] && typed[2]) || (typed[0] && typed[2])) {
        return Refuse(boxes, "Error, Please fill only data fields #1 & #2 or #3 & #4.", true);
    }
    if (typed[0] && typed[1]) {
        if (t[0] + t[0] < t[1]) {
            return Refuse(boxes, kTooHigh, true);
        }
        const Real c = SphereChord(t);
        return Lines(FigureLine("Area= ", ((Pi() + Pi()) * t[0]) * t[1]) + "\r\n" +
                     FigureLine("Volume= ", (Pi() * Square(t[1])) * (t[0] - t[1] / 3)) + "\r\n" +
                     FigureLine("Chord= ", c));
    }
    const Real r = (t[2] * t[2] + (t[1] * t[1]) * 4) / (t[1] * 8);
    return Lines(FigureLine("Area= ", ((Pi() + Pi()) * r) * t[1]) + "\r\n" +
                 FigureLine("Volume= ", (Pi() * Square(t[1])) * (r - t[1] / 3)) + "\r\n" +
                 FigureLine("Radius= ", r));
}

FigureAnswer SphericalZone(const FigureFields& f, const FigureBoxes& boxes) {
    const Real* t = f.t;
    const bool* typed = f.typed;
    const int n = CountFilled(f);
    if (n < 2) {
        return Refuse(boxes, "Error, Insufficient data entered.", true);
    }
    if (n == 4) {
        return Refuse(boxes, "Error, Please only fill data fields #1 & #2 & #3 OR #3 & #4.", true);
    }
    if (typed[2] && typed[3] && !typed[0] && !typed[1]) {
        if (t[3] + t[3] < t[2]) {
            return Refuse(boxes, kTooHigh, true);
        }
        return Lines(FigureLine("Area= ", ((Pi() + Pi()) * t[3]) * t[2]));
    }
    if (typed[0] && typed[1] && typed[2] && !typed[3]) {
        // The root closes behind the first term; the second is added outside it.
        const Real r = Sqr(Square(t[1]) / 4) +
                       Square(Square(t[1]) - Square(t[0]) - Square(t[2]) * 4) / (t[2] * 8);
        return Lines(FigureLine("Volume= ",
                                ((Square(t[1]) * 3) / 4 + (Square(t[0]) * 3) / 4 + Square(t[2])) *
                                    (t[2] * 0.5236)) +
                     "\r\n" + FigureLine("Area= ", ((Pi() + Pi()) * r) * t[2]) + "\r\n" +
                     FigureLine("Radius= ", r));
    }
    return Refuse(boxes, "Error, wrong data fields filled.", true);
}

}  // namespace

bool SolveSolid(int number, const FigureFields& f, const FigureBoxes& boxes, FigureAnswer& answer) {
    if (SolveSimple(kSimple, number, f, boxes, answer)) {
        return true;
    }
    switch (number) {
        case 6:
            answer = Cone(f, boxes);
            return true;
        case 33:
            answer = SphericalSector(f, boxes);
            return true;
        case 34:
            answer = SphericalSegment(f, boxes);
            return true;
        case 36:
            answer = SphericalZone(f, boxes);
            return true;
        default:
            return false;
    }
}

}  // namespace tavrin

// The forty-one figures of the Area / Volume catalogue, in the list's own
// order: "Wedge" closes it and "Sphere" stands behind "Square Prism". The row
// number is the figure's number in the solver.

#include "reference/figure_catalogue.h"

namespace tavrin {

const std::vector<Figure>& FigureCatalogue() {
    static const std::vector<Figure> figures{
        {"Acute Angle Triangle", nullptr, {"Side A", "Side B", "Side C", "", ""}},
        {"Barrel (arc of circle)", nullptr, {"Middle Diameter", "End Diameter", "Height", "", ""}},
        {"Barrel (arc of parabola)",
         nullptr,
         {"Middle Diameter", "End Diameter", "Height", "", ""}},
        {"Circular Ring", nullptr, {"Outside Radius", "Inside Radius", "", "", ""}},
        {"Circular Ring Sector", nullptr, {"Outside Radius", "Inside Radius", "Angle", "", ""}},
        {"Circular Sector", nullptr, {"Arc Length", "Radius", "Angle", "Area", ""}},
        {"Cone", nullptr, {"Height", "Radius", "Side", "", ""}},
        {"Cube", nullptr, {"Size of Side", "", "", "", ""}},
        {"Cycloid", nullptr, {"Radius of Circle", "", "", "", ""}},
        {"Cylinder", nullptr, {"Radius", "Height", "", "", ""}},
        {"Ellipse", nullptr, {"Minor Axis", "Major Axis", "", "", ""}},
        {"Ellipsoid", nullptr, {"Minor Axis", "Major Axis", "", "", ""}},
        {"Frustrum of Cone",
         "Frustrum of a Cone",
         {"Height", "Base Diameter", "Top Diameter", "", ""}},
        {"Frustrum of Pyramid",
         "Frustrum of a Pyramid",
         {"Height", "Bottom Area", "Top Area", "", ""}},
        {"Hexagon", nullptr, {"Side", "Outside Diameter", "Inside Diameter", "", ""}},
        {"Hollow Cylinder", nullptr, {"Height", "Outside Diameter", "Inside Diameter", "", ""}},
        {"Hollow Sphere", nullptr, {"Outside Diameter", "Inside Diameter", "", "", ""}},
        {"Hyperbola", nullptr, {"Base", "Height", "Half Axis Base", "Half Axis Height", ""}},
        {"Obtuse Angle Triangle", nullptr, {"Side A", "Side B", "Side C", "", ""}},
        {"Octagon", nullptr, {"Side", "Outside Diameter", "Inside Diameter", "", ""}},
        {"Parabola", nullptr, {"Base", "Height", "", "", ""}},
        {"Parabola Segment", nullptr, {"Chord Length", "Size Between", "", "", ""}},
        {"Parallelogram", nullptr, {"Side 1", "Side 2", "", "", ""}},
        {"Polygon",
         nullptr,
         {"Outside Diameter", "Inside Diameter", "# of Sides", "Side Length", ""}},
        {"Portion of a Cylinder", nullptr, {"Diameter", "1st Height", "2nd Height", "", ""}},
        {"Prism", nullptr, {"Area", "Height", "", "", ""}},
        {"Pyramid", nullptr, {"Base Area", "Height", "", "", ""}},
        {"Rectangle", nullptr, {"Side 1", "Side 2", "", "", ""}},
        {"Right Triangle", nullptr, {"Side Opposite", "Side Adjacent", "Hypotenuse", "", ""}},
        {"Spandrel or Fillet", nullptr, {"Radius", "Chord", "", "", ""}},
        {"Square", nullptr, {"Side Length", "", "", "", ""}},
        {"Square Prism", nullptr, {"Height", "Length", "Width", "", ""}},
        {"Sphere", nullptr, {"Diameter", "", "", "", ""}},
        {"Spherical Sector", nullptr, {"Radius", "Height", "", "", ""}},
        {"Spherical Segment", nullptr, {"Radius", "Height", "Chord", "", ""}},
        {"Spherical Wedge", nullptr, {"Radius", "Angle", "", "", ""}},
        {"Spherical Zone", nullptr, {"Chord #1", "Chord #2", "Height", "Radius", ""}},
        {"Torus", nullptr, {"Radius #1", "Radius #2", "", "", ""}},
        {"Trapezium",
         nullptr,
         {"Height #1(H tall)", "Height #2(h short)", "Length a (H to h)", "Length b (left)",
          "Length c (right)"}},
        {"Trapezoid", nullptr, {"Side #1", "Side #2", "Height", "", ""}},
        {"Wedge",
         nullptr,
         {"Side a (base length)", "Side b (base width)", "Side c (top length)", "Height", ""}},
    };
    return figures;
}

QString FigureTitle(const Figure& figure) {
    return QString::fromUtf8(figure.title != nullptr ? figure.title : figure.listText);
}

}  // namespace tavrin

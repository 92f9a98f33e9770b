// Polygons: across points, across flats and the size of one flat of a square,
// hexagon or octagon. Calculate writes its answers into the other fields.

#include "geometry/polygons.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

PolygonSizes SolvePolygon(int shape, int known, Real value, int decPlace) {
    auto RD = [decPlace](Real x) { return RoundTo(x, decPlace); };
    PolygonSizes s{value, value, value};
    switch (shape) {
        case SquareShape:
            if (known == AcrossFlats) {
                s.points = RD(value / CosDeg(45));
            } else if (known == AcrossPoints) {
                s.flats = RD(value * CosDeg(45));
                s.flat = s.flats;
            } else {
                s.points = RD(value / CosDeg(45));
            }
            break;
        case HexagonShape:
            // The flat from the tangent of 30, as it has always been.
            if (known == AcrossFlats) {
                s.points = RD(value / CosDeg(30));
                s.flat = RD(TanDeg(30) * value);
            } else if (known == AcrossPoints) {
                const Real flats = (value / TanDeg(30)) / 2;
                s.flats = RD(flats);
                s.flat = RD(TanDeg(30) * flats);
            } else {
                const Real points = value / SinDeg(30);
                s.points = RD(points);
                s.flats = RD(CosDeg(30) * points);
            }
            break;
        default:
            // The flat is the points times the sine of 22.5, as stored.
            if (known == AcrossFlats) {
                const Real points = value / CosDeg(22.5);
                s.points = RD(points);
                s.flat = RD(SinDeg(22.5) * points);
            } else if (known == AcrossPoints) {
                s.flat = RD(value * SinDeg(22.5));
                s.flats = RD(value * CosDeg(22.5));
            } else {
                const Real points = value / SinDeg(22.5);
                s.points = RD(points);
                s.flats = RD(CosDeg(22.5) * points);
            }
            break;
    }
    return s;
}

namespace {

const char* const kFields[] = {"txtPol1", "txtPol2", "txtPol3"};
const char* const kPictures[] = {"imgSquare", "imgHex", "imgOct"};

void Calculate(Form& f) {
    int filled = 0;
    int known = AcrossPoints;
    for (int i = AcrossPoints; i <= SizeOfFlat; ++i) {
        if (!f.text(kFields[i]).isEmpty()) {
            ++filled;
            known = i;
        }
    }
    if (filled >= 2) {
        ProgramMessage(f, "Please fill only one data field.");
        return;
    }
    if (filled == 0) {
        ProgramMessage(f, "Please fill one data field.");
        return;
    }
    const int shape = f.listIndex("cboShape");
    if (shape < SquareShape || shape > OctagonShape) {
        return;
    }
    const QString typed = f.text(kFields[known]);
    const PolygonSizes s = SolvePolygon(shape, known, ValOf(typed), f.app().decPlace);
    const Real values[] = {s.points, s.flats, s.flat};
    for (int i = AcrossPoints; i <= SizeOfFlat; ++i) {
        if (i == known) {
            continue;
        }
        // A square's flat and flats are one size: the typed text is copied as it stands.
        const bool copied = shape == SquareShape && known != AcrossPoints && i != AcrossPoints;
        f.setText(kFields[i], copied ? typed : NumToStr(values[i]));
    }
}

void Build(Form& f) {
    f.setTitle("Polygons");
    f.addLabel("Label4", "Shape-->");
    Control& shape = f.add(ControlKind::DropDownList, "cboShape");
    shape.items = QStringList{"Square", "Hexagon", "Octagon"};
    f.addRow(RowKind::Fields, {"Label4", "cboShape"});
    f.addField("Label1", "Across Points", "txtPol1");
    f.addField("Label2", "Across Flats", "txtPol2");
    f.addField("Label3", "Size of Flat", "txtPol3");
    f.addImage("imgSquare", "polygon_square");
    f.addImage("imgHex", "polygon_hexagon");
    f.addImage("imgOct", "polygon_octagon");
    // Three pictures on one spot: only the chosen shape shows.
    f.addRow(RowKind::Line, {"imgSquare", "imgHex", "imgOct"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onLoad([](Form& f) { f.setListIndex("cboShape", SquareShape); });
    f.onClick("cboShape", [](Form& f) {
        for (int i = SquareShape; i <= OctagonShape; ++i) {
            f.setVisible(kPictures[i], i == f.listIndex("cboShape"));
        }
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) { EmptyTexts(f, kFields); });
}

const FormRegistration registration("frmPolygons", Build);

}  // namespace

}  // namespace tavrin

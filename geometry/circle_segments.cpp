// Circle Segments: chord, radius, height, arc length or included angle of a
// circular segment from two of the others. Each cell keeps the constant it
// has always had: 57.296 and .01745 in some, Pi in others.

#include "geometry/circle_segments.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

// The included angle of a segment of radius r and height h.
Real Seg(Real r, Real h) {
    return 180 - (2 * ArcSinDeg((r - h) / r));
}

SegmentAnswer Value(Real v) {
    return {QString(), v};
}

SegmentAnswer Refused(const char* message) {
    return {QString::fromUtf8(message), Real()};
}

SegmentAnswer Chord(const SegmentKnown& k) {
    if (k.h && k.l) {
        return Refused("Error, Solution not possible with Height and Arc Length only.");
    }
    if (k.l && k.a) {
        const Real l = *k.l, a = *k.a;
        const Real r = (l * 57.296) / a;
        return Value((r + r) * SinDeg(a / 2));
    }
    if (k.l && k.r) {
        const Real l = *k.l, r = *k.r;
        const Real a = (l * 57.296) / r;
        return Value((r + r) * SinDeg(a / 2));
    }
    if (k.h && k.a) {
        return Value((*k.h * TanDeg((180 - *k.a / 2) / 2)) * 2);
    }
    if (k.r && k.h) {
        const Real r = *k.r, h = *k.h;
        // "Less than": a height of the whole diameter passes, with a chord of 0.
        if (r + r < h) {
            return Refused("Error, Height greater than two times the radius.");
        }
        const Real d = r + r;
        const Real x = r - h;
        return Value(Sqr(d * d - (x * x) * 4));
    }
    return Value((*k.r + *k.r) * SinDeg(*k.a / 2));
}

SegmentAnswer Radius(const SegmentKnown& k) {
    if (k.l && k.h) {
        return Refused("Error, Solution not possible with Arc Length and Height only.");
    }
    if (k.l && k.c) {
        return Refused("Error, Solution not possible with Arc Length and Chord only.");
    }
    if (k.c && k.h) {
        const Real c = *k.c, h = *k.h;
        return Value((c * c + (h * h) * 4) / (h * 8));
    }
    if (k.l && k.a) {
        return Value((*k.l * 57.296) / *k.a);
    }
    if (k.a && k.c) {
        return Value((*k.c / 2) / SinDeg(*k.a / 2));
    }
    return Value((*k.h * TanDeg((180 - *k.a / 2) / 2)) / SinDeg(*k.a / 2));
}

SegmentAnswer Height(const SegmentKnown& k) {
    if (k.l && k.c) {
        return Refused("Error, Solution not possible with Arc Length and Chord Length only.");
    }
    if (k.a && k.c) {
        const Real a = *k.a;
        const Real r = (*k.c / 2) / SinDeg(a / 2);
        return Value(r - CosDeg(a / 2) * r);
    }
    if (k.l && k.r) {
        const Real r = *k.r;
        const Real a = (*k.l * 57.296) / r;
        return Value(r - CosDeg(a / 2) * r);
    }
    if (k.l && k.a) {
        const Real a = *k.a;
        const Real r = (*k.l * 57.296) / a;
        return Value(r - CosDeg(a / 2) * r);
    }
    if (k.c && k.r) {
        const Real c = *k.c, r = *k.r;
        if (r + r <= c) {
            return Refused("Error, Chord equal to or greater than two times the radius");
        }
        return Value(r - Sqr(r * r - (c / 2) * (c / 2)));
    }
    return Value(*k.r - CosDeg(*k.a / 2) * *k.r);
}

SegmentAnswer Arc(const SegmentKnown& k) {
    if (k.a && k.c) {
        const Real a = *k.a;
        const Real r = (*k.c / 2) / SinDeg(a / 2);
        return Value((a * r * Pi()) / 180);
    }
    if (k.c && k.r) {
        const Real c = *k.c, r = *k.r;
        if (r + r <= c) {
            return Refused("Error, Chord equal to or greater than two times the radius");
        }
        const Real h = r - (Sqr(Square(r) * 4 - Square(c))) / 2;
        return Value((r * Seg(r, h) * Pi()) / 180);
    }
    if (k.c && k.h) {
        const Real h = *k.h;
        const Real r = (Square(*k.c) + Square(h) * 4) / (h * 8);
        return Value((Seg(r, h) * r * Pi()) / 180);
    }
    if (k.r && k.h) {
        const Real r = *k.r, h = *k.h;
        if (r + r <= h) {
            return Refused("Error, Height equal to or greater than two times the radius");
        }
        return Value((r * Seg(r, h) * Pi()) / 180);
    }
    if (k.r && k.a) {
        return Value((*k.r * 0.01745) * *k.a);
    }
    const Real a = *k.a;
    const Real c = (*k.h * TanDeg((180 - a / 2) / 2)) * 2;
    const Real r = (c / 2) / SinDeg(a / 2);
    return Value((a * r * Pi()) / 180);
}

SegmentAnswer Angle(const SegmentKnown& k) {
    if (k.l && k.h) {
        return Refused("Error, Solution not possible with Arc Length and Height only.");
    }
    if (k.l && k.c) {
        return Refused("Error, Solution not possible with Arc Length and Chord Length only.");
    }
    if (k.c && k.r) {
        const Real c = *k.c, r = *k.r;
        // With a full stop here, unlike the same test of the other modes.
        if (r + r <= c) {
            return Refused("Error, Chord equal to or greater than two times the radius.");
        }
        const Real h = r - (Sqr(Square(r) * 4 - Square(c))) / 2;
        return Value(Seg(r, h));
    }
    if (k.c && k.h) {
        const Real h = *k.h;
        const Real r = (Square(*k.c) + Square(h) * 4) / (h * 8);
        return Value(Seg(r, h));
    }
    if (k.r && k.h) {
        const Real r = *k.r, h = *k.h;
        if (r + r <= h) {
            return Refused("Error, Height equal to or greater than two times the radius");
        }
        return Value(Seg(r, h));
    }
    return Value((*k.l * 57.296) / *k.r);
}

}  // namespace

SegmentAnswer SolveSegment(int sought, const SegmentKnown& k) {
    switch (sought) {
        case FindChord:
            return Chord(k);
        case FindRadius:
            return Radius(k);
        case FindHeight:
            return Height(k);
        case FindArc:
            return Arc(k);
        default:
            return Angle(k);
    }
}

namespace {

const char* const kFields[] = {"txtArc", "txtAng", "txtRadius", "txtHeight"};
const char* const kCaptionNames[] = {"lblArc", "lblAng", "lblRadius", "lblHeight"};

struct Mode {
    const char* label;
    const char* letters;  // what the four fields hold, in the order of kFields
    const char* captions[4];
};

const Mode kModes[] = {
    {"Chord Length= ", "LARH", {"Arc Length", "Angle", "Radius", "Height"}},
    {"Size of Radius= ", "LACH", {"Arc Length", "Angle", "Chord Length", "Height"}},
    {"Segment Height= ", "LARC", {"Arc Length", "Angle", "Radius", "Chord Length"}},
    {"Length of Arc= ", "HCRA", {"Height", "Chord Length", "Radius", "Angle"}},
    {"Angle= ", "HCRL", {"Height", "Chord Length", "Radius", "Length of Arc"}},
};

void Calculate(Form& f) {
    int filled = 0;
    for (const char* field : kFields) {
        filled += f.text(field).isEmpty() ? 0 : 1;
    }
    if (filled < 2) {
        ProgramMessage(f, "You must fill two data fields.");
        return;
    }
    if (filled > 2) {
        ProgramMessage(f, "Error, Only two data fields should be filled.");
        return;
    }
    // Zero only: negative values pass.
    for (const char* field : kFields) {
        if (!f.text(field).isEmpty() && ValOf(f.text(field)) == 0) {
            ProgramMessage(f, "Error, Values must be greater than zero.");
            return;
        }
    }
    const int mode = f.listIndex("popSeg");
    if (mode < FindChord || mode > FindAngle) {
        return;
    }
    f.setText("lblAnsSeg", "Calculating...");
    SegmentKnown k;
    for (int i = 0; i < 4; ++i) {
        if (f.text(kFields[i]).isEmpty()) {
            continue;
        }
        const Real v = ValOf(f.text(kFields[i]));
        switch (kModes[mode].letters[i]) {
            case 'R':
                k.r = v;
                break;
            case 'C':
                k.c = v;
                break;
            case 'H':
                k.h = v;
                break;
            case 'L':
                k.l = v;
                break;
            default:
                k.a = v;
                break;
        }
    }
    const SegmentAnswer answer = SolveSegment(mode, k);
    if (!answer.refusal.isEmpty()) {
        ProgramMessage(f, answer.refusal);
        f.setText("lblAnsSeg", QString());
        return;
    }
    f.setText("lblAnsSeg", kModes[mode].label + NumToStr(RoundTo(answer.value, f.app().decPlace)));
}

void SoughtChosen(Form& f) {
    const int mode = f.listIndex("popSeg");
    if (mode < FindChord || mode > FindAngle) {
        return;
    }
    for (int i = 0; i < 4; ++i) {
        f.setCaption(kCaptionNames[i], kModes[mode].captions[i]);
    }
}

void Build(Form& f) {
    f.setTitle("Circle Segments");
    f.addLabel("Label1", "Find-->");
    Control& sought = f.add(ControlKind::DropDownList, "popSeg");
    sought.items = QStringList{"Chord Length", "Size of Radius", "Height of Segment",
                               "Length of Arc", "Angle"};
    f.addRow(RowKind::Fields, {"Label1", "popSeg"});
    for (int i = 0; i < 4; ++i) {
        f.addField(kCaptionNames[i], kModes[FindChord].captions[i], kFields[i]);
    }
    f.addAnswerLine("lblAnsSeg").widthChars = 30;
    f.addRow(RowKind::Line, {"lblAnsSeg"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) { f.setListIndex("popSeg", FindChord); });
    f.onClick("popSeg", SoughtChosen);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("lblAnsSeg", QString());
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmCircSegImage"); });
}

const FormRegistration registration("frmCircSegments", Build);

}  // namespace

}  // namespace tavrin

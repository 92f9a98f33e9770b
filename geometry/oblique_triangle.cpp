// Oblique Triangle Trigonometry: any triangle from three known values among
// sides a, b, c and angles A, B, C, side a facing angle A and so on. Two sides
// and an angle not between them may allow two triangles; both are answered.

#include "geometry/oblique_triangle.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

const QString kFillThree = "Error, Please fill three data fields with values greater than zero.";
const QString kInvalid = "Error, Invalid Input";

const QStringList kSideFields{"txtO_Side_a", "txtO_Side_b", "txtO_Side_c"};
const QStringList kAngleFields{"txtO_Angle_A", "txtO_Angle_B", "txtO_Angle_C"};
// Everything that gives way to the answer box.
const QStringList kEntries{
    "txtO_Side_a", "txtO_Side_b", "txtO_Side_c",  "txtO_Angle_A", "txtO_Angle_B", "txtO_Angle_C",
    "chkDMSObl",   "lbla",        "lblb",         "lblc",         "lblAAng",      "lblBAng",
    "lblCAng",     "lblOblSides", "lblOblAngles", "cmdOblCalc",   "cmdOblClear",  "cmdODone"};

Real S(Real x) {
    return SinDeg(x);
}

Real Q(Real x) {
    return Square(x);
}

}  // namespace

Real& ObliqueTriangle::operator[](QChar letter) {
    switch (letter.unicode()) {
        case 'a':
            return a;
        case 'b':
            return b;
        case 'c':
            return c;
        case 'A':
            return A;
        case 'B':
            return B;
        default:
            return C;
    }
}

QString MeasureOblique(const ObliqueTriangle& t, const QString& flatMessage, Real& area) {
    const Real s = 0.5 * ((t.a + t.b) + t.c);
    if (s == 0) {
        return kInvalid;
    }
    if (((s - t.a) * (s - t.b) * (s - t.c)) / s <= 0) {
        return flatMessage;
    }
    area = Sqr((s - t.a) * s * (s - t.b) * (s - t.c));
    if (((t.a * t.b * t.c) * 2) / (4 * area) <= 0) {
        return kInvalid;
    }
    return QString();
}

// The second triangle has always read "Angle C= " and four places on its
// decimal angles; both stay as users know them.
QString ObliqueAnswerLines(const ObliqueTriangle& t, Real area, int decPlace, bool second) {
    const int anglePlaces = second ? 4 : 6;
    const Real p = (t.a + t.b) + t.c;
    const Real d1 = ((2 * area) * 2) / p;
    const Real d2 = ((t.a * t.b * t.c) * 2) / (4 * area);
    QStringList l;
    l << "Side a= " + NumToStr(RoundTo(t.a, 4));
    l << "Side b= " + NumToStr(RoundTo(t.b, 4));
    l << "Side c= " + NumToStr(RoundTo(t.c, 4));
    l << "Angle A DD= " + NumToStr(RoundTo(t.A, anglePlaces));
    l << "Angle A DMS= " + DdToDmsText(NumToStr(t.A));
    l << "Angle B DD= " + NumToStr(RoundTo(t.B, anglePlaces));
    l << "Angle B DMS= " + DdToDmsText(NumToStr(t.B));
    l << QString(second ? "Angle C= " : "Angle C DD= ") + NumToStr(RoundTo(t.C, anglePlaces));
    l << "Angle C DMS= " + DdToDmsText(NumToStr(t.C));
    l << "Area= " + NumToStr(RoundTo(area, decPlace));
    l << "Perimeter= " + NumToStr(RoundTo(p, 4));
    l << "Inscribed Circle" + QString(kDiameterSign) + "= " + NumToStr(RoundTo(d1, 4));
    l << "Circumscribed Circle" + QString(kDiameterSign) + "= " + NumToStr(RoundTo(d2, 4));
    return l.join("\r\n");
}

namespace {

// The third angle from the other two; none left is no triangle.
bool ThirdAngle(Real& third, Real one, Real two) {
    third = 180 - (one + two);
    return third > 0;
}

// The other triangle of the ambiguous case: p1 faces the known angle p3, p2 is
// the other known side; the mode's letters name p2, p1 and p3. The refusal of
// its tests, or an empty text, with or without a second triangle.
QString FindSecond(Real p1, Real p2, Real p3, const QString& mode, SecondSolution& second) {
    const Real h = SinDeg(p3) * p2;
    if (p1 <= h || p1 >= p2) {
        return QString();
    }
    const Real angle1 = ArcSinDeg(h / p1);
    const Real t1 = CosDeg(angle1) * p1;
    const Real t2 = CosDeg(p3) * p2;
    const QChar side2 = mode[0];
    const QChar side1 = mode[1];
    const QChar angle = mode[2];
    QChar third = u'a';
    while (third == side1 || third == side2) {
        third = QChar(third.unicode() + 1);
    }
    ObliqueTriangle& t = second.t;
    t[side2] = p2;
    t[side1] = p1;
    t[angle] = p3;
    t[side2.toUpper()] = 180 - angle1;
    t[third.toUpper()] = 180 - ((180 - angle1) + p3);
    t[third] = t2 - t1;
    second.exists = true;
    return MeasureOblique(t, kInvalid, second.area);
}

// The known triples, in the order in which they are tried.
const char* const kRows[] = {"aAB", "abC", "abA", "abc", "acA", "bBC", "abB", "acB", "aBC", "aAC",
                             "acC", "bcA", "bcB", "bAB", "bAC", "bcC", "cAB", "cAC", "cBC"};

bool Known(ObliqueTriangle& t, const char* row) {
    for (const char* p = row; *p != 0; ++p) {
        if (t[QChar::fromLatin1(*p)] == 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

QString SolveOblique(ObliqueTriangle& t, Ambiguous& pending) {
    int row = 0;
    for (int i = 0; i < static_cast<int>(std::size(kRows)); ++i) {
        if (Known(t, kRows[i])) {
            row = i + 1;
            break;
        }
    }
    Real v;
    Real r;
    switch (row) {
        case 1:
            t.b = (t.a * S(t.B)) / S(t.A);
            if (!ThirdAngle(t.C, t.A, t.B))
                return kInvalid;
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 2:
            if (t.C >= 180)
                return kInvalid;
            t.c = Sqr(Q(t.a) + Q(t.b) - ((2 * t.a) * t.b) * CosDeg(t.C));
            v = (Q(t.c) + Q(t.b) - Q(t.a)) / ((2 * t.c) * t.b);
            if (v <= -1 || v >= 1)
                return "Error, Invalid Input.";
            t.A = ArcCosDeg(v);
            t.B = 180 - (t.A + t.C);
            return QString();
        case 3:
            if (t.A >= 180)
                return kInvalid;
            r = (t.b * S(t.A)) / t.a;
            if (r <= -1 || r >= 1)
                return kInvalid;
            pending = {row, r, {}};
            return FindSecond(t.a, t.b, t.A, "baA", pending.second);
        case 4: {
            const Real u = (Q(t.b) + Q(t.c) - Q(t.a)) / ((2 * t.b) * t.c);
            v = (Q(t.a) + Q(t.c) - Q(t.b)) / ((2 * t.a) * t.c);
            const Real w = (Q(t.a) + Q(t.b) - Q(t.c)) / ((2 * t.a) * t.b);
            // Only u is tested.
            if (u <= -1 || u >= 1)
                return kInvalid;
            t.A = RoundTo(ArcCosDeg(u), 6);
            t.B = RoundTo(ArcCosDeg(v), 6);
            t.C = RoundTo(ArcCosDeg(w), 6);
            return QString();
        }
        case 5:
            if (t.A >= 180)
                return kInvalid;
            r = (t.c * S(t.A)) / t.a;
            if (r <= -1 || r >= 1)
                return kInvalid;
            pending = {row, r, {}};
            return FindSecond(t.a, t.c, t.A, "caA", pending.second);
        case 6:
            if (t.C >= 180)
                return kInvalid;
            if (!ThirdAngle(t.A, t.B, t.C))
                return kInvalid;
            t.a = (S(t.A) * t.b) / S(t.B);
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 7:
            if (t.B >= 180)
                return kInvalid;
            r = (t.a * S(t.B)) / t.b;
            if (r <= -1 || r >= 1)
                return "Invalid Input";
            pending = {row, r, {}};
            return FindSecond(t.b, t.a, t.B, "abB", pending.second);
        case 8:
            if (t.B >= 180)
                return kInvalid;
            t.b = Sqr(Q(t.a) + Q(t.c) - ((2 * t.a) * t.c) * CosDeg(t.B));
            v = (Q(t.b) + Q(t.c) - Q(t.a)) / ((2 * t.b) * t.c);
            if (v <= -1 || v >= 1)
                return kInvalid;
            t.A = ArcCosDeg(v);
            t.C = 180 - (t.A + t.B);
            return QString();
        case 9:
            if (!ThirdAngle(t.A, t.B, t.C))
                return kInvalid;
            t.b = (t.a * S(t.B)) / S(t.A);
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 10:
            if (!ThirdAngle(t.B, t.A, t.C))
                return kInvalid;
            t.b = (t.a * S(t.B)) / S(t.A);
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 11:
            if (t.C >= 180)
                return kInvalid;
            r = (t.a * S(t.C)) / t.c;
            if (r <= -1 || r >= 1)
                return kInvalid;
            pending = {row, r, {}};
            return FindSecond(t.c, t.a, t.C, "acC", pending.second);
        case 12:
            if (t.A >= 180)
                return kInvalid;
            t.a = Sqr(Q(t.b) + Q(t.c) - ((2 * t.b) * t.c) * CosDeg(t.A));
            v = (Q(t.a) + Q(t.c) - Q(t.b)) / ((2 * t.a) * t.c);
            if (v <= -1 || v >= 1)
                return "Error, Invalid Input.";
            t.B = ArcCosDeg(v);
            t.C = 180 - (t.A + t.B);
            return QString();
        case 13:
            if (t.B >= 180)
                return kInvalid;
            r = (t.c * S(t.B)) / t.b;
            if (r <= -1 || r >= 1)
                return "Invalid Input";
            pending = {row, r, {}};
            return FindSecond(t.b, t.c, t.B, "cbB", pending.second);
        case 14:
            if (!ThirdAngle(t.C, t.A, t.B))
                return kInvalid;
            t.a = (S(t.A) * t.b) / S(t.B);
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 15:
            if (!ThirdAngle(t.B, t.A, t.C))
                return kInvalid;
            t.a = (S(t.A) * t.b) / S(t.B);
            t.c = (t.a * S(t.C)) / S(t.A);
            return QString();
        case 16:
            if (t.C >= 180)
                return kInvalid;
            r = (t.b * S(t.C)) / t.c;
            if (r <= -1 || r >= 1)
                return "Invalid Input";
            pending = {row, r, {}};
            return FindSecond(t.c, t.b, t.C, "bcC", pending.second);
        case 17:
            if (!ThirdAngle(t.C, t.A, t.B))
                return kInvalid;
            t.a = (S(t.A) * t.c) / S(t.C);
            t.b = (t.a * S(t.B)) / S(t.A);
            return QString();
        case 18:
            if (!ThirdAngle(t.B, t.A, t.C))
                return kInvalid;
            t.a = (S(t.A) * t.c) / S(t.C);
            t.b = (t.a * S(t.B)) / S(t.A);
            return QString();
        case 19:
            if (!ThirdAngle(t.A, t.B, t.C))
                return kInvalid;
            t.a = (S(t.A) * t.c) / S(t.C);
            t.b = (t.a * S(t.B)) / S(t.A);
            return QString();
        default:
            // A packed angle that converts to 0 leaves no row; the tests
            // below then find no triangle.
            return QString();
    }
}

void SolveFirstOfTwo(ObliqueTriangle& t, const Ambiguous& pending) {
    const Real r = pending.ratio;
    switch (pending.row) {
        case 3:
            t.B = ArcSinDeg(r);
            t.C = 180 - (t.A + t.B);
            t.c = (t.a * S(t.C)) / S(t.A);
            break;
        case 5:
            t.C = ArcSinDeg(r);
            t.B = 180 - (t.A + t.C);
            t.b = (t.a * S(t.B)) / S(t.A);
            break;
        case 7:
            t.A = ArcSinDeg(r);
            t.C = 180 - (t.A + t.B);
            t.c = (t.b * S(t.C)) * (1 / S(t.B));
            break;
        case 11:
            t.A = ArcSinDeg(r);
            t.B = 180 - (t.A + t.C);
            t.b = (t.a * S(t.B)) / S(t.A);
            break;
        case 13:
            t.C = ArcSinDeg(r);
            t.A = 180 - (t.B + t.C);
            t.a = (S(t.A) * t.b) / S(t.B);
            break;
        case 16:
            t.B = ArcSinDeg(r);
            t.A = 180 - (t.B + t.C);
            t.a = (S(t.A) * t.b) / S(t.B);
            break;
        default:
            // Not an ambiguous triple: solved already.
            break;
    }
}

namespace {

void AnswerLayout(Form& f, bool answer) {
    ShowAnswerBox(f, answer);
}

// The message, and back to the entries; the answer box keeps what it had.
void Fail(Form& f, const QString& message) {
    ProgramMessage(f, message);
    AnswerLayout(f, false);
}

void Calculate(Form& f) {
    AnswerLayout(f, true);
    f.setText("txtOblAns", "Calculating...");
    int filled = 0;
    int typed = 0;
    for (const QStringList* fields : {&kSideFields, &kAngleFields}) {
        for (const QString& name : *fields) {
            // Negative values count as filled.
            if (ValOf(f.text(name)) != 0) {
                ++filled;
            }
        }
    }
    if (filled != 3) {
        Fail(f, kFillThree);
        return;
    }
    for (const QStringList* fields : {&kSideFields, &kAngleFields}) {
        for (const QString& name : *fields) {
            if (!f.text(name).isEmpty()) {
                ++typed;
            }
        }
    }
    if (typed != 3) {
        Fail(f, kFillThree);
        return;
    }
    bool angleEmpty = false;
    for (const QString& name : kAngleFields) {
        angleEmpty = angleEmpty || f.text(name).isEmpty();
    }
    if (!angleEmpty) {
        Fail(f, "Error, Three angles cannot be entered.");
        return;
    }
    const bool dms = f.value("chkDMSObl");
    auto angleOf = [&](const QString& name) {
        return dms ? ValOf(DmsTextToDd(f.text(name))) : ValOf(f.text(name));
    };
    ObliqueTriangle t{ValOf(f.text("txtO_Side_a")), ValOf(f.text("txtO_Side_b")),
                      ValOf(f.text("txtO_Side_c")), angleOf("txtO_Angle_A"),
                      angleOf("txtO_Angle_B"),      angleOf("txtO_Angle_C")};
    Ambiguous pending;
    const QString refusal = SolveOblique(t, pending);
    if (!refusal.isEmpty()) {
        Fail(f, refusal);
        return;
    }
    const int decPlace = f.app().decPlace;
    QString second;
    if (pending.second.exists) {
        ProgramMessage(f, "There are two solutions possible, both will be calculated.");
        f.setText("txtOblAns", "Calculating two solutions...");
        second = "***Second Solution***\r\n" +
                 ObliqueAnswerLines(pending.second.t, pending.second.area, decPlace, true);
    }
    SolveFirstOfTwo(t, pending);
    Real k;
    const QString flat = MeasureOblique(t, "invalid input", k);
    if (!flat.isEmpty()) {
        Fail(f, flat);
        return;
    }
    // The blank line after the first answer stands with or without a second.
    f.setText("txtOblAns", ObliqueAnswerLines(t, k, decPlace, false) + "\r\n\r\n" + second);
}

void EmptyFields(Form& f) {
    for (const QStringList* fields : {&kSideFields, &kAngleFields}) {
        EmptyTexts(f, *fields);
    }
}

void Build(Form& f) {
    f.setTitle("Oblique Triangle Trigonometry");
    f.setAnswerSwap({kEntries, {"txtOblAns", "cmdOblDone"}});
    f.addLabel("lblOblSides", "Sides");
    f.addLabel("lblOblAngles", "Angles");
    const char* sideCaptions[] = {"a", "b", "c"};
    const char* sideLabels[] = {"lbla", "lblb", "lblc"};
    const char* angleCaptions[] = {"A", "B", "C"};
    const char* angleLabels[] = {"lblAAng", "lblBAng", "lblCAng"};
    for (int i = 0; i < 3; ++i) {
        f.addLabel(sideLabels[i], sideCaptions[i]);
        f.addTextBox(kSideFields[i]).widthChars = 9;
        f.addLabel(angleLabels[i], angleCaptions[i]);
        f.addTextBox(kAngleFields[i]).widthChars = 9;
    }
    f.addCheck(QString(), "chkDMSObl", "Entering DMS");
    f.addButton("cmdOblCalc", "Calculate");
    f.addButton("cmdOblClear", "Clear All");
    f.addButton("cmdODone", "Done");
    f.addButton("cmdOblDone", "Done").visible = false;
    Control& answer = f.addAnswerBox("txtOblAns", 13, ScrollBars::Vertical);
    answer.visible = false;
    answer.widthChars = 30;
    // The drawing carries the same letters as these labels.
    const char* marks[][2] = {{"Label3", "a"}, {"Label4", "b"}, {"Label5", "c"},
                              {"Label6", "A"}, {"Label7", "C"}, {"Label8", "B"}};
    for (const auto& m : marks) {
        f.addLabel(m[0], m[1]).offLayout = true;
    }
    f.addImage("imgTriangle", "oblique_triangle");
    f.setSide("imgTriangle");

    // Two empty labels put each head over its own column of fields.
    f.addLabel("lblSidesGap", QString());
    f.addLabel("lblAnglesGap", QString());
    f.addRow(RowKind::Fields, {"lblSidesGap", "lblOblSides", "lblAnglesGap", "lblOblAngles"});
    for (int i = 0; i < 3; ++i) {
        f.addRow(RowKind::Fields, {sideLabels[i], kSideFields[i], angleLabels[i], kAngleFields[i]});
    }
    f.addRow(RowKind::Line, {"chkDMSObl"});
    f.addRow(RowKind::Line, {"txtOblAns"});
    f.addRow(RowKind::Buttons, {"cmdOblCalc", "cmdOblClear", "cmdODone"});
    f.addRow(RowKind::Buttons, {"cmdOblDone"});

    f.onClick("cmdOblCalc", Calculate);
    f.onClick("cmdOblClear", [](Form& f) {
        EmptyFields(f);
        f.setText("txtOblAns", QString());
    });
    f.onClick("cmdODone", [](Form& f) {
        EmptyFields(f);
        f.app().unload(f);
    });
    f.onClick("cmdOblDone", [](Form& f) {
        f.setVisible("txtOblAns", false);
        f.setVisible("cmdOblDone", false);
        f.setText("txtOblAns", QString());
        AnswerLayout(f, false);
    });
}

const FormRegistration registration("frmOblique", Build);

}  // namespace

}  // namespace tavrin

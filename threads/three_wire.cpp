// Three Wire Check: measurement over wires, pitch diameter and basic
// measurement for seven thread forms, with best wire sizes and thread depth.

#include "threads/three_wire.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

namespace {

const QChar kOUmlaut(0x00F6);

// The two forms whose sizes are worked in millimetres.
bool WorksInMillimetres(int form) {
    return form == Loewenherz || form == BritishAssoc;
}

QStringList ThreadForms() {
    return {"ANSU (60" + QString(kDegreeSign) + ")",
            "Whitworth (55" + QString(kDegreeSign) + ")",
            "Sharp V (60" + QString(kDegreeSign) + ")",
            "Acme (29" + QString(kDegreeSign) + ")",
            "L" + QString(kOUmlaut) + "wenherz (53" + QString(kDegreeSign) + " 8')",
            "British Assoc. (47" + QString(kDegreeSign) + " 30')",
            "ISO Metric (60" + QString(kDegreeSign) + ")"};
}

struct WireLimits {
    Real smallest;
    Real largest;
};

// In inches, or in millimetres for the two metric-based forms.
WireLimits LimitsOf(int form, Real t) {
    switch (form) {
        case Whitworth:
            return {0.54 / t, 0.76 / t};
        case Acme:
            return {0.487263 / t, 0.650013 / t};
        case Loewenherz: {
            const Real p = (1 / t) * 25.4;
            return {0.54076 * p, 0.97828 * p};
        }
        case BritishAssoc: {
            const Real p = (1 / t) * 25.4;
            return {0.49852 * p, 0.72889 * p};
        }
        default:  // ANSU, Sharp V, ISO Metric
            return {0.56 / t, 0.9 / t};
    }
}

// s is the pitch diameter (find 0), the measurement over wires (find 1) or the
// major diameter (find 2).
Real Formula(int form, int find, Real w, Real s, Real t) {
    const Real p = WorksInMillimetres(form) ? (1 / t) * 25.4 : Real(0);
    switch (form) {
        case Whitworth:
            if (find == 0)
                return s + (3.16568 * w - 0.96049 / t);
            if (find == 1)
                return s - (3.16568 * w - 0.96049 / t);
            return (s - 1.60082 / t) + 3.16568 * w;
        case SharpV:
            if (find == 0)
                return s + (3 * w - 0.86603 / t);
            if (find == 1)
                return s - (3 * w - 0.86603 / t);
            return (s - 1.73205 / t) + 3 * w;
        case Acme:
            if (find == 0)
                return s + (4.9939 * w - 1.933357 / t);
            if (find == 1)
                return s - (4.9939 * w - 1.933357 / t);
            return (s - 2.43334 / t) + 4.9939 * w;
        case Loewenherz:
            if (find == 0)
                return s + (3.23594 * w - p);
            if (find == 1)
                return s - (3.23594 * w - p);
            return (s - 1.75 * p) + 3.23594 * w;
        case BritishAssoc:
            if (find == 0)
                return s + (3.4829 * w - 1.13634 * p);
            if (find == 1)
                return s - (3.4829 * w - 1.13634 * p);
            return (s - 1.73634 * p) + 3.4829 * w;
        default:  // ANSU and ISO Metric
            if (find == 0)
                return s + (3 * w - 0.86603 / t);
            if (find == 1)
                return s - (3 * w - 0.86603 / t);
            return (s - 1.51555 / t) + 3 * w;
    }
}

QString AnswerLabel(int find) {
    switch (find) {
        case 0:
            return "Over Wire= ";
        case 1:
            return "Pitch Dia.= ";
        default:
            return "Basic Meas O/W= ";
    }
}

// Inches and millimetres to five places, whatever DecPlace holds.
QString InchAndMillimetres(Real size) {
    return NumToStr(RoundTo(size, 5)) + " [" + NumToStr(RoundTo(size * 25.4, 5)) + " mm]";
}

}  // namespace

Real ThreadsPerInch(Real entry, bool metric, bool pitch) {
    Real t = entry;
    if (metric) {
        t = t * 0.03937;
    }
    if (pitch) {
        t = 1 / t;
    }
    return t;
}

WireEntry WireEntryInInches(Real wire, Real known, Real tpi, bool metric, bool pitch) {
    if (metric) {
        wire = wire * 0.03937;
        known = known * 0.03937;
    }
    return {wire, known, ThreadsPerInch(tpi, metric, pitch)};
}

Real WorkingWire(int form, Real wire) {
    if (WorksInMillimetres(form)) {
        wire = wire * 25.4;
    }
    return wire;
}

bool WireFits(int form, Real workingWire, Real tpi) {
    const WireLimits limits = LimitsOf(form, tpi);
    return !(workingWire < limits.smallest || workingWire > limits.largest);
}

Real ThreeWireFigure(int form, int find, Real workingWire, Real known, Real tpi) {
    if (WorksInMillimetres(form)) {
        known = known * 25.4;
    }
    return Formula(form, find, workingWire, known, tpi);
}

QString ThreeWireAnswer(int form, int find, Real figure, int decPlace) {
    const Real v = RoundTo(figure, decPlace);
    const QString text = NumToStr(v);
    if (WorksInMillimetres(form)) {
        // The inch line still comes first; the bracket always holds millimetres.
        return AnswerLabel(find) + NumToStr(RoundTo(ValOf(text) * 0.03937, 4)) + "\r\n [" + text +
               " mm]";
    }
    return AnswerLabel(find) + text + "\r\n [" + NumToStr(RoundTo(ValOf(text) * 25.4, 4)) + " mm]";
}

WireSizes BestWires(int form, Real t) {
    Real best;
    Real smallest;
    Real largest;
    switch (form) {
        case Whitworth:
            best = 0.56369 / t, smallest = 0.54 / t, largest = 0.76 / t;
            break;
        case Acme:
            best = 0.51645 / t, smallest = 0.487263 / t, largest = 0.650013 / t;
            break;
        case Loewenherz: {
            const Real p = (1 / t) * 25.4;
            best = 0.55902 * p, smallest = 0.54076 * p, largest = 0.97828 * p;
            best = best * 0.03937, smallest = smallest * 0.03937, largest = largest * 0.03937;
            break;
        }
        case BritishAssoc: {
            const Real p = (1 / t) * 25.4;
            best = 0.54625 * p, smallest = 0.49852 * p, largest = 0.72889 * p;
            best = best * 0.03937, smallest = smallest * 0.03937, largest = largest * 0.03937;
            break;
        }
        default:  // ANSU, Sharp V, ISO Metric
            best = 0.57735 / t, smallest = 0.56 / t, largest = 0.9 / t;
            break;
    }
    return {best, smallest, largest};
}

QString BestWireText(const WireSizes& sizes) {
    return "Best wire size is " + InchAndMillimetres(sizes.best) + "\r\n" +
           "Largest wire size is " + InchAndMillimetres(sizes.largest) + "\r\n" +
           "Smallest wire size is " + InchAndMillimetres(sizes.smallest);
}

Real SingleThreadDepth(int form, Real t) {
    Real d;
    switch (form) {
        case Whitworth:
            d = 0.64033 / t;
            break;
        case SharpV:
            d = 0.8660254 / t;
            break;
        case Acme:
            d = 1 / (2 * t);
            break;
        case Loewenherz:
            d = (1 / t) * 25.4 * 0.758 * 0.03937;
            break;
        case BritishAssoc:
            d = (1 / t) * 25.4 * 0.6 * 0.03937;
            break;
        default:  // ANSU and ISO Metric
            d = 0.61343 / t;
            break;
    }
    return d;
}

QString ThreadDepthText(Real d) {
    return "Single depth of thread= " + NumToStr(RoundTo(d, 5)) + "\r\n [" +
           NumToStr(RoundTo(d * 25.4, 5)) + " mm]";
}

namespace {

void Calculate(Form& f) {
    if (ValOf(f.text("txtTPI")) == 0 || ValOf(f.text("txtWireSize")) == 0 ||
        ValOf(f.text("txtPitchOrOverWire")) == 0) {
        ProgramMessage(f,
                       "Error, Please fill all three data fields with values greater than zero.");
        return;
    }
    const Real wire = ValOf(f.text("txtWireSize"));
    const Real known = ValOf(f.text("txtPitchOrOverWire"));
    const Real tpi = ValOf(f.text("txtTPI"));
    const WireEntry entry =
        WireEntryInInches(wire, known, tpi, f.value("chkTWMet"), f.value("chkPitch"));
    f.setText("txtTWans", "Calculating...");

    const int form = f.listIndex("popTypThd");
    const Real w = WorkingWire(form, entry.wire);
    if (!WireFits(form, w, entry.tpi)) {
        const bool goOn = f.app().ui().question(
            "Incorrect wire size",
            "You have entered an invalid wire size for the data entered, continue?");
        if (!goOn) {
            f.setText("txtTWans", QString());
            return;
        }
    }
    const int find = f.listIndex("popFindThd");
    const Real figure = ThreeWireFigure(form, find, w, entry.known, entry.tpi);
    f.setText("txtTWans", ThreeWireAnswer(form, find, figure, f.app().decPlace));
}

void BestWire(Form& f) {
    if (ValOf(f.text("txtTPI")) == 0) {
        ProgramMessage(f, "Error, Pitch value must be greater than zero.");
        return;
    }
    const Real t =
        ThreadsPerInch(ValOf(f.text("txtTPI")), f.value("chkTWMet"), f.value("chkPitch"));
    ProgramMessage(f, BestWireText(BestWires(f.listIndex("popTypThd"), t)));
}

void ThreadDepth(Form& f) {
    if (ValOf(f.text("txtTPI")) == 0) {
        ProgramMessage(f, "Error, TPI or Pitch value must be greater than zero.");
        return;
    }
    const Real t =
        ThreadsPerInch(ValOf(f.text("txtTPI")), f.value("chkTWMet"), f.value("chkPitch"));
    ProgramMessage(f, ThreadDepthText(SingleThreadDepth(f.listIndex("popTypThd"), t)));
}

// The caption of the known size follows what is sought.
void KnownSizeCaption(Form& f) {
    switch (f.listIndex("popFindThd")) {
        case 0:
            f.setCaption("txtMultiThd", "Pitch Dia.");
            break;
        case 1:
            f.setCaption("txtMultiThd", "Meas. Over Wires");
            break;
        case 2:
            f.setCaption("txtMultiThd", "Major Dia.");
            break;
        default:
            break;
    }
}

void ClearAll(Form& f) {
    f.setText("txtWireSize", QString());
    f.setText("txtPitchOrOverWire", QString());
    f.setText("txtTPI", QString());
    f.setText("txtTWans", QString());
}

void Load(Form& f) {
    f.setCaption("txtMultiThd", "Meas. Over Wires");
    for (const QString& entry : ThreadForms()) {
        f.addItem("popTypThd", entry);
    }
    f.setListIndex("popTypThd", 0);
    f.setListIndex("popFindThd", 1);
}

void Build(Form& f) {
    f.setTitle("Three Wire Check");
    f.addLabel("Label3", "Type-->");
    f.add(ControlKind::DropDownList, "popTypThd").widthChars = 24;
    f.addRow(RowKind::Fields, {"Label3", "popTypThd"});
    f.addLabel("Label4", "Find-->");
    Control& find = f.add(ControlKind::DropDownList, "popFindThd");
    find.items = QStringList{"Measurement Over Wires", "Pitch Diameter", "Basic Meas. Over Wires"};
    find.widthChars = 24;
    f.addRow(RowKind::Fields, {"Label4", "popFindThd"});
    f.addField("Label1571", "TPI", "txtTPI");
    f.addField("Label2", "Wire Size", "txtWireSize");
    f.addField("txtMultiThd", QString(), "txtPitchOrOverWire");
    f.addCheck(QString(), "chkTWMet", "Metric Input");
    f.addCheck(QString(), "chkPitch", "Entering Pitch");
    f.addRow(RowKind::Line, {"chkTWMet", "chkPitch"});
    f.addAnswerBox("txtTWans", 2, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtTWans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Best Wire");
    f.addButton("Command4", "Thd Depth");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3", "Command4"});

    f.onLoad(Load);
    f.onClick("chkPitch",
              [](Form& f) { f.setCaption("Label1571", f.value("chkPitch") ? "Pitch" : "TPI"); });
    f.onClick("popFindThd", KnownSizeCaption);
    f.onClick("popTypThd", KnownSizeCaption);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", BestWire);
    f.onClick("Command4", ThreadDepth);
}

const FormRegistration registration("frmThreeWire", Build);

}  // namespace

}  // namespace tavrin

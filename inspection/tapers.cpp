// Tapers: small end, large end, length and taper per foot, three known and
// the fourth sought, with the angles; a taper per foot to an angle and back.

#include "inspection/tapers.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

const QString kLineEnd = QStringLiteral("\r\n");

// The angle per side, rounded to six places before anything else uses it.
QString AngleLines(const QString& first, Real small, Real large, Real len, const char* sideLabel) {
    const Real a = RoundTo(90 - AtanDeg(len / ((large - small) / 2)), 6);
    return first + kLineEnd + "Included Angle DMS= " + DdToDmsText(NumToStr(a * 2)) + kLineEnd +
           sideLabel + DdToDmsText(NumToStr(a)) + kLineEnd +
           "Included Angle DD= " + NumToStr(RoundTo(a * 2, 6)) + kLineEnd +
           "Angle per Side DD= " + NumToStr(RoundTo(a, 6));
}

}  // namespace

QString TaperAnswer(int taperCase, Real one, Real two, Real three, int decPlace) {
    const char* const side = "Angle per Side DMS= ";
    switch (taperCase) {
        case 0: {
            const Real large = two / 12 * three + one;
            return AngleLines("Large End= " + NumToStr(RoundTo(large, decPlace)), one, large, three,
                              side);
        }
        case 1: {
            const Real small = one - two / 12 * three;
            return AngleLines("Small End= " + NumToStr(RoundTo(small, decPlace)), small, one, three,
                              side);
        }
        case 2: {
            const Real len = (three - one) / two * 12;
            return AngleLines("Length= " + NumToStr(RoundTo(len, decPlace)), one, three, len, side);
        }
        case 3: {
            const Real tpf = (two - one) / three * 12;
            // No blank after this one label.
            return AngleLines("Taper per Foot= " + NumToStr(RoundTo(tpf, decPlace)), one, two,
                              three, "Angle per Side DMS=");
        }
        case 4:
            return "TaperAmount= " + NumToStr(RoundTo(two / 12 * one, decPlace));
        case 5: {
            // A capital P, and the decimal lines are not rounded again.
            const Real a = RoundTo(90 - AtanDeg(12 / (one / 2)), 6);
            return "Included Angle DMS= " + DdToDmsText(NumToStr(a * 2)) + kLineEnd +
                   "Angle Per Side DMS= " + DdToDmsText(NumToStr(a)) + kLineEnd +
                   "Included Angle DD= " + NumToStr(a * 2) + kLineEnd +
                   "Angle Per Side DD= " + NumToStr(a);
        }
        default:
            return "Taper per Foot= " + NumToStr(RoundTo(TanDeg(one) * 12 * 2, decPlace));
    }
}

namespace {

const char* const kFields[] = {"txt1", "txt2", "txt3"};

// How many fields each case reads, from txt1 on.
const int kUsedFields[] = {3, 3, 3, 3, 2, 1, 1};

void Calculate(Form& f) {
    const int taperCase = f.listIndex("popTaper");
    if (taperCase < 0 || taperCase > 6) {
        return;
    }
    // Every field of the case is read before the test, even after one fails.
    bool allAbove = true;
    for (int i = 0; i < kUsedFields[taperCase]; ++i) {
        allAbove = ValOf(f.text(kFields[i])) > 0 && allAbove;
    }
    if (!allAbove) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    const char* const large = taperCase == 2 ? "txt3" : "txt2";
    if ((taperCase == 2 || taperCase == 3) && !(ValOf(f.text(large)) > ValOf(f.text("txt1")))) {
        ProgramMessage(f, "Error, Small end larger than or equal to large end.");
        return;
    }
    f.setText("txtTaperAns", "Calculating...");
    QString first = f.text("txt1");
    if (taperCase == 6 && f.value("optTaperDMS")) {
        first = DmsTextToDd(first);
    }
    f.setText("txtTaperAns", TaperAnswer(taperCase, ValOf(first), ValOf(f.text("txt2")),
                                         ValOf(f.text("txt3")), f.app().decPlace));
}

// What a case sets; a control it does not name keeps what earlier cases left.
struct CaseLook {
    const char* lbl1;
    const char* lbl2;  // nullptr: unchanged
    const char* lbl3;
    QStringList shown;
    QStringList hidden;
};

void CaseChange(Form& f) {
    static const CaseLook looks[] = {
        {"Small End",
         "Taper Per Foot",
         "Taper Length",
         {"lbl2", "lbl3", "txt2", "txt3"},
         {"Frame1"}},
        {"Large End", "Taper Per Foot", "Taper Length", {"lbl2", "lbl3"}, {"Frame1"}},
        {"Small End", "Taper Per Foot", "Large End", {"lbl2"}, {"Frame1"}},
        {"Small End", "Large End", "Taper Length", {"lbl2", "lbl3", "txt2"}, {"Frame1"}},
        {"Taper Length", "Taper Per Foot", nullptr, {"lbl2", "txt2"}, {"Frame1", "lbl3"}},
        {"Taper Per Foot", nullptr, nullptr, {}, {"Frame1", "lbl2", "lbl3", "txt2", "txt3"}},
        {"Angle per Side", nullptr, nullptr, {"Frame1"}, {"lbl2", "lbl3", "txt2", "txt3"}},
    };
    const int taperCase = f.listIndex("popTaper");
    if (taperCase < 0 || taperCase > 6) {
        return;
    }
    const CaseLook& look = looks[taperCase];
    f.setCaption("lbl1", look.lbl1);
    if (look.lbl2 != nullptr) {
        f.setCaption("lbl2", look.lbl2);
    }
    if (look.lbl3 != nullptr) {
        f.setCaption("lbl3", look.lbl3);
    }
    for (const QString& name : look.shown) {
        f.setVisible(name, true);
    }
    for (const QString& name : look.hidden) {
        f.setVisible(name, false);
    }
}

void Load(Form& f) {
    f.setVisible("Frame1", false);
    f.setListIndex("popTaper", 0);
    for (const char* name : {"lbl2", "lbl3", "txt2", "txt3"}) {
        f.setVisible(name, true);
    }
    // "Length" until a case is picked, "Taper Length" after.
    f.setCaption("lbl1", "Small End");
    f.setCaption("lbl2", "Taper Per Foot");
    f.setCaption("lbl3", "Length");
    f.setText("txtTaperAns", QString());
}

void Build(Form& f) {
    f.setTitle("Tapers");
    Control& cases = f.add(ControlKind::Combo, "popTaper");
    // The entries as they have always been spelled, blanks and all.
    cases.items = QStringList{"Small End & Tpf & Length",        "Large End & Tpf & Length",
                              "Small End  & Tpf & Large End ",   "Small End  & Large End & Length",
                              "Length & Tpf (Gives Taper Amt.)", "Taper per Foot (Gives Angle)",
                              "Angle per Side (Gives Tpf)"};
    cases.widthChars = 30;
    f.addRow(RowKind::Line, {"popTaper"});
    f.addField("lbl1", QString(), "txt1");
    f.addField("lbl2", QString(), "txt2");
    f.addField("lbl3", QString(), "txt3");
    f.add(ControlKind::Frame, "Frame1", "Angle");
    f.addOption("Frame1", "optTaperDD", "DD", true);
    f.addOption("Frame1", "optTaperDMS", "DMS");
    f.addRow(RowKind::Group, {"Frame1", "optTaperDD", "optTaperDMS"});
    f.addAnswerBox("txtTaperAns", 5, ScrollBars::None).widthChars = 32;
    f.addRow(RowKind::Line, {"txtTaperAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad(Load);
    f.onClick("popTaper", CaseChange);
    f.onClick("optTaperDMS", [](Form& f) { ProgramMessage(f, "enter " + DmsExample()); });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) { EmptyTexts(f, {"txt1", "txt2", "txt3", "txtTaperAns"}); });
    f.onClick("Command3", [](Form& f) { f.app().show("frmtapersView"); });
}

const FormRegistration registration("frmTapers", Build);
const FormRegistration view("frmtapersView",
                            [](Form& f) { DeclarePictureWindow(f, "Tapers", "tapers"); });

}  // namespace

}  // namespace tavrin

// IPM <--> IPR: a feed between inches per minute and per revolution.

#include "cutting/ipm_ipr.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString FeedAnswer(const FeedInputs& in, int decPlace) {
    // An entered spindle speed comes back through the surface speed, and
    // 3.81972 is not quite 12 / 3.1416: the last places differ, as always.
    Real sfm = in.rpmEntered ? (in.speed * 3.1416 * in.cutter) / 12 : in.speed;
    Real rpm = (sfm / in.cutter) * 3.81972;
    QString answer;
    if (in.toIpm) {
        Real ipm = in.feed * rpm;
        const Real tooth = RoundTo(in.feed / in.teeth, decPlace);
        rpm = RoundTo(rpm, 0);
        ipm = RoundTo(ipm, decPlace);
        sfm = RoundTo(sfm, 0);
        answer = "Inches per Minute= " + NumToStr(ipm) + "\r\nFeed Per Tooth= " + NumToStr(tooth);
    } else {
        Real tooth = in.feed / (in.teeth * rpm);
        Real ipr = in.teeth * tooth;
        tooth = RoundTo(tooth, decPlace);
        rpm = RoundTo(rpm, 0);
        ipr = RoundTo(ipr, decPlace);
        sfm = RoundTo(sfm, 0);
        answer =
            "Feed Per Tooth= " + NumToStr(tooth) + "\r\nInches per Revolution= " + NumToStr(ipr);
    }
    return answer + "\r\n" +
           (in.rpmEntered ? "Surface Feet per Minute= " + NumToStr(sfm)
                          : "Revolutions per Minute= " + NumToStr(rpm));
}

namespace {

const char* const kFields[] = {"txtCutter", "txtChipLoad", "txtFlutes", "txtSfm2"};

void Calculate(Form& f) {
    for (const char* name : kFields) {
        if (f.text(name).isEmpty()) {
            ProgramMessage(f, "You must fill all four data fields.");
            return;
        }
    }
    for (const char* name : kFields) {
        if (ValOf(f.text(name)) <= 0) {
            ProgramMessage(f, "Error, Values must be greater than zero");
            return;
        }
    }
    f.setText("lblAns", "Calculating...");
    const FeedInputs in{ValOf(f.text("txtCutter")), ValOf(f.text("txtChipLoad")),
                        ValOf(f.text("txtFlutes")), ValOf(f.text("txtSfm2")),
                        f.value("chkRevPerMin"),    f.value("optIpm")};
    f.setText("lblAns", FeedAnswer(in, f.app().decPlace));
}

void ClearAll(Form& f) {
    EmptyTexts(f, kFields);
    f.setText("lblAns", QString());
}

void Build(Form& f) {
    f.setTitle("IPM<-->IPR");
    f.addField("Label1", "Cutter Size or Diameter", "txtCutter");
    f.addField("lblChipLoad", QString(), "txtChipLoad");
    f.addField("Label3", "# of Teeth (1 for lathe)", "txtFlutes");
    f.addField("lblRpmOrSfm", QString(), "txtSfm2");
    f.addCheck(QString(), "chkRevPerMin", "Using Revolutions per Minute");
    f.addRow(RowKind::Line, {"chkRevPerMin"});
    f.add(ControlKind::Frame, "Frame1", "Convert to:");
    f.addOption("Frame1", "optIpm", "IPM");
    f.addOption("Frame1", "optIpr", "IPR", true);
    f.addRow(RowKind::Group, {"Frame1", "optIpm", "optIpr"});
    f.addAnswerBox("lblAns", 3, ScrollBars::None).widthChars = 32;
    f.addRow(RowKind::Line, {"lblAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onLoad([](Form& f) {
        f.setCaption("lblRpmOrSfm", "Surface Feet Per Minute");
        f.setCaption("lblChipLoad", "Inches per Minute");
    });
    f.onClick("chkRevPerMin", [](Form& f) {
        f.setCaption("lblRpmOrSfm", f.value("chkRevPerMin") ? "Revolutions Per Minute"
                                                            : "Surface Feet Per Minute");
    });
    f.onClick("optIpm", [](Form& f) { f.setCaption("lblChipLoad", "Inches per Revolution"); });
    f.onClick("optIpr", [](Form& f) { f.setCaption("lblChipLoad", "Inches per Minute"); });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
}

const FormRegistration registration("frmIpmIpr", Build);

}  // namespace

}  // namespace tavrin

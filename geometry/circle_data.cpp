// Circle Data: radius, diameter, circumference or area from one known value.

#include "geometry/circle_data.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

// 3.1416, 6.2832, .7854 and 1.128: this window has always used the short
// constants, never Pi.
Real CircleDataValue(int sought, bool lower, Real known) {
    switch (sought) {
        case SeekRadius:
            return lower ? known / 6.2832 : (Sqr(known) * 1.128) / 2;
        case SeekDiameter:
            return lower ? known / 3.1416 : Sqr(known) * 1.128;
        case SeekCircumference:
            return lower ? known * 3.1416 : (known + known) * 3.1416;
        default: {
            if (lower) {
                return (known * known) * 0.7854;
            }
            const Real d = known + known;
            return (d * 0.7854) * d;
        }
    }
}

namespace {

const char* const kLabels[] = {"Radius= ", "Diameter= ", "Circumference= ", "Area= "};

void Calculate(Form& f) {
    const bool upperEmpty = f.text("txtInput2").isEmpty();
    const bool lowerEmpty = f.text("txtInput").isEmpty();
    if (upperEmpty && lowerEmpty) {
        ProgramMessage(f, "Error, You must fill one data field.");
        return;
    }
    if (!upperEmpty && !lowerEmpty) {
        ProgramMessage(f, "Error, Please fill only one data field.");
        return;
    }
    const int sought = f.listIndex("pupList");
    if (sought < SeekRadius || sought > SeekArea) {
        return;
    }
    // The lower field is looked at first.
    const bool lower = !lowerEmpty;
    const Real value =
        CircleDataValue(sought, lower, ValOf(f.text(lower ? "txtInput" : "txtInput2")));
    f.setText("lblAns2", kLabels[sought] + NumToStr(RoundTo(value, f.app().decPlace)));
}

void SoughtChosen(Form& f) {
    const bool fromRadius = f.listIndex("pupList") >= SeekCircumference;
    f.setCaption("lblCd1", fromRadius ? "Radius" : "Area");
    f.setCaption("lblCd2", fromRadius ? "Diameter" : "Circumference");
}

void Build(Form& f) {
    f.setTitle("Circle Data");
    f.addLabel("Label1", "Find-->");
    Control& sought = f.add(ControlKind::DropDownList, "pupList");
    sought.items = QStringList{"Radius", "Diameter", "Circumference", "Area"};
    f.addRow(RowKind::Fields, {"Label1", "pupList"});
    f.addField("lblCd1", "Area", "txtInput2");
    f.addField("lblCd2", "Circumference", "txtInput");
    Control& answer = f.addAnswerLine("lblAns2");
    answer.tabStop = false;
    answer.widthChars = 28;
    f.addRow(RowKind::Line, {"lblAns2"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onLoad([](Form& f) { f.setListIndex("pupList", SeekRadius); });
    f.onClick("pupList", SoughtChosen);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        f.setText("txtInput2", QString());
        f.setText("txtInput", QString());
        f.setText("lblAns2", QString());
    });
}

const FormRegistration registration("frmCircleData", Build);

}  // namespace

}  // namespace tavrin

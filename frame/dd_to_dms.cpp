// DD <--> DMS: decimal degrees to degrees, minutes and seconds, and back.

#include "frame/dd_to_dms.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString DdToDmsAnswer(const QString& entry, bool toDms) {
    if (toDms) {
        return "DMS= " + DdToDmsText(entry);
    }
    return "DD= " + DmsTextToDd(entry);
}

namespace {

// The packed form of 22 degrees, 3 minutes, 22 seconds, shown while DD is on.
QString PackedHint() {
    return "      enter " + DmsExample();
}

void FindDd(Form& f) {
    f.setCaption("Label1242", "Deg. Min. Sec.");
    f.setCaption("field1262", PackedHint());
    f.setText("txtDDans", QString());
}

void FindDms(Form& f) {
    f.setCaption("Label1242", "Decimal Degrees");
    f.setCaption("field1262", QString());
    f.setText("txtDDans", QString());
}

void Calculate(Form& f) {
    if (f.text("txtDD1").isEmpty()) {
        ProgramMessage(f, "Error, Please enter data.");
        return;
    }
    // Zero only: a negative angle converts like any other.
    if (ValOf(f.text("txtDD1")) == 0) {
        ProgramMessage(f, "Value must be greater than zero.");
        return;
    }
    f.setText("txtDDans", DdToDmsAnswer(f.text("txtDD1"), f.value("optDMS")));
}

void ClearAll(Form& f) {
    f.setText("txtDD1", QString());
    f.setText("txtDDans", QString());
}

void Build(Form& f) {
    f.setTitle("DD<-->DMS");
    f.add(ControlKind::Frame, "Frame1", "Find");
    f.addOption("Frame1", "optDMS", "DMS", true);
    f.addOption("Frame1", "optDD", "DD");
    f.addRow(RowKind::Group, {"Frame1", "optDMS", "optDD"});
    f.addField("Label1242", "Decimal Degrees", "txtDD1");
    f.addLabel("field1262", QString());
    Control& answer = f.addAnswerLine("txtDDans");
    answer.text = QStringLiteral(" ");
    answer.tabStop = false;
    answer.widthChars = 26;
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");

    f.addRow(RowKind::Line, {"field1262"});
    f.addRow(RowKind::Line, {"txtDDans"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("optDD", FindDd);
    f.onClick("optDMS", FindDms);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
}

const FormRegistration registration("frmDDtoDMS", Build);

}  // namespace

}  // namespace tavrin

// True Position: the positional error of a hole from its X and Y deviations.

#include "inspection/true_position.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real TruePosition(Real x, Real y) {
    return 2 * Sqr(Square(x) + Square(y));
}

namespace {

// No test: empty fields count as 0.
void Calculate(Form& f) {
    const Real zone = TruePosition(ValOf(f.text("txtXpos")), ValOf(f.text("txtYpos")));
    f.setText("txtTPosAns", "True Position= " + NumToStr(RoundTo(zone, f.app().decPlace)));
}

void Build(Form& f) {
    f.setTitle("True Position");
    f.addField("Label1", "X Diff", "txtXpos");
    f.addField("Label2", "Y Diff", "txtYpos");
    f.addAnswerLine("txtTPosAns").widthChars = 24;
    f.addRow(RowKind::Line, {"txtTPosAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "true_position");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) { EmptyTexts(f, {"txtXpos", "txtYpos", "txtTPosAns"}); });
}

const FormRegistration registration("frmTruePos", Build);

}  // namespace

}  // namespace tavrin

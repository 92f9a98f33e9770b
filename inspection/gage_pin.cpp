// Gage Pin In A Diamond Shape: the pin that fits a diamond from its two
// diagonals.

#include "inspection/gage_pin.h"
#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real GagePinInDiamond(Real one, Real two) {
    const Real p = one / 2;
    const Real q = two / 2;
    const Real w = Atn(q / p) * 180 / Pi();
    return (p / (1 / SinDeg(w))) * 2;
}

namespace {

void Calculate(Form& f) {
    f.setText("txtDiamondAns", "Calculating...");
    // Zero only: negative sides pass.
    if (f.text("txtDiamond1").isEmpty() || f.text("txtDiamond2").isEmpty() ||
        ValOf(f.text("txtDiamond1")) == 0 || ValOf(f.text("txtDiamond2")) == 0) {
        f.setText("txtDiamondAns", QString());
        ProgramMessage(f, "Error, Please fill both data fields with values greater than zero.");
        return;
    }
    const Real d = GagePinInDiamond(ValOf(f.text("txtDiamond1")), ValOf(f.text("txtDiamond2")));
    f.setText("txtDiamondAns", "Gage Pin Diameter= " + NumToStr(RoundTo(d, f.app().decPlace)));
}

void Build(Form& f) {
    f.setTitle("Gage Pin In A Diamond Shape");
    f.addField("Label1", "Side One", "txtDiamond1");
    f.addField("Label2", "Side Two", "txtDiamond2");
    f.addAnswerLine("txtDiamondAns").widthChars = 26;
    f.addRow(RowKind::Line, {"txtDiamondAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtDiamond1", "txtDiamond2", "txtDiamondAns"});
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmPinView"); });
}

const FormRegistration registration("frmPinInaDiamond", Build);
const FormRegistration view("frmPinView",
                            [](Form& f) { DeclarePictureWindow(f, "Gage Pin", "gage_pin"); });

}  // namespace

}  // namespace tavrin

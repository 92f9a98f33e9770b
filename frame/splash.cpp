// The splash: three texts in turn, about a second each, while the home window
// loads behind it.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Tick(Form& f) {
    App& app = f.app();
    if (app.splashShown) {
        return;
    }
    float second = 1;
    app.waitSeconds(second);
    f.setCaption("lblProductName", QStringLiteral("© 2026 The Tavrin developers"));
    app.waitSeconds(second);
    f.setCaption("lblProductName",
                 QStringLiteral("Shop math for machinists, toolmakers and CNC programmers"));
    app.waitSeconds(second);
    app.splashShown = true;
}

void Build(Form& f) {
    f.setStyle(FormStyle::Splash);
    f.addImage("Image1", "splash");
    Control& product =
        f.addLabel("lblProductName", QStringLiteral("Tavrin™ v4.0      for Windows® "));
    product.widthChars = 56;
    product.centred = true;
    f.add(ControlKind::Timer, "Timer1").interval = 5;
    f.addRow(RowKind::Line, {"Image1"});
    f.addRow(RowKind::Line, {"lblProductName"});
    f.on("Timer1", Event::Timer, Tick);
}

const FormRegistration registration("frmSplash", Build);

}  // namespace

}  // namespace tavrin

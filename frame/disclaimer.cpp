// Disclaimer: the terms of use, to read and nothing more.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

// Each line as it has always read, trailing blanks and all.
const char* const kTerms[] = {
    "This software is distributed as is.",
    "Although this software has been tested for errors,",
    "the author(s) disclaims all warranties, expressed or ",
    "implied.",
    "No guarantee is made as to its suitability or fitness ",
    "for any particular use.",
    "It may contain bugs and/or errors, so use of this ",
    "tool is at your own risk.",
    "The author(s) will assume absolutely no liability ",
    "whatsoever for scrap parts, incorrect calculations, ",
    "machine damage, and any other damages  either ",
    "from the direct use of this product or as a ",
    "consequence of the use of this product.",
    "This software should not be used where human life ",
    "or limb may be in any way at risk. ",
    "If you do not agree to any portion whatsoever of ",
    "the preceding disclaimer please discontinue use of ",
    "this software immediately!",
};

QString Terms() {
    QString text;
    for (const char* line : kTerms) {
        text += QString::fromLatin1(line) + QStringLiteral("\r\n");
    }
    return text;
}

void Build(Form& f) {
    f.setTitle("Disclaimer");
    Control& terms = f.add(ControlKind::TextBox, "Text1");
    terms.text = Terms();
    terms.locked = true;
    terms.multiLine = true;
    terms.scrollBars = ScrollBars::Vertical;
    terms.heightLines = 12;
    terms.widthChars = 46;
    f.addImage("Image1", "disclaimer");
    f.addRow(RowKind::Line, {"Image1"});
    f.addRow(RowKind::Line, {"Text1"});
}

const FormRegistration registration("frmDisclaimer", Build);

}  // namespace

}  // namespace tavrin

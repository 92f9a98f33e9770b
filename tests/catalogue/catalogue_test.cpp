// Every registered window as a whole: it builds with every control placed,
// its spins have buddies, every name the launch tables give is a window or
// known to be not built yet, and no button or list item meets a programming
// fault on empty fields.

#include <gtest/gtest.h>

#include <stdexcept>

#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/launch_tables.h"
#include "frame/window_kit.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

TEST(Catalogue, EveryLaunchNameIsAWindowOrNotBuiltYet) {
    const QStringList registered = RegisteredFormNames();
    for (const auto* table : {&LaunchList(), &QuickLauncherTable()}) {
        for (const LaunchEntry& e : *table) {
            EXPECT_TRUE(registered.contains(e.form) || NotYetBuilt().contains(e.form)) << e.form;
        }
    }
    for (const QString& name : NotYetBuilt()) {
        EXPECT_FALSE(registered.contains(name)) << name << " is built: take it off the list";
    }
}

TEST(Catalogue, AControlInNoRowIsRefused) {
    Harness h;
    Form f(h.app, "frmStray");
    f.addTextBox("txtPlaced");
    f.addTextBox("txtStray");
    f.addRow(RowKind::Line, {"txtPlaced"});
    EXPECT_THROW(f.checkPlaced(), std::logic_error);
    f.setOffLayout({"txtStray"});
    EXPECT_NO_THROW(f.checkPlaced());
}

// Each clickable control and each list item, on a fresh program with the
// window just opened: a fatal box may come, a programming fault may not.
TEST(Catalogue, EveryWindowBuildsAndEveryControlRunsOnEmptyFields) {
    for (const QString& name : RegisteredFormNames()) {
        Harness probe;
        ASSERT_NO_THROW(probe.app.guarded([&] { probe.app.load(name); })) << name;
        for (const auto& c : probe.app.find(name)->controls()) {
            if (c->kind == ControlKind::Spin) {
                const Form* form = probe.app.find(name);
                EXPECT_TRUE(form->has(c->buddy) &&
                            form->control(c->buddy).kind == ControlKind::TextBox)
                    << name << "." << c->name;
            }
            const int runs = IsList(c->kind) ? static_cast<int>(c->items.size()) : 1;
            for (int i = 0; i < runs; ++i) {
                Harness h;
                Form& form = h.open(name);
                const QString what = name + "." + c->name + " " + QString::number(i);
                if (IsList(c->kind)) {
                    EXPECT_NO_THROW(h.app.userSelect(form, c->name, i)) << what;
                } else if (c->kind == ControlKind::Button || c->kind == ControlKind::Option ||
                           c->kind == ControlKind::Check || c->kind == ControlKind::MenuItem) {
                    EXPECT_NO_THROW(h.app.userClick(form, c->name)) << what;
                } else if (c->kind == ControlKind::Spin) {
                    EXPECT_NO_THROW(h.app.userSpin(form, c->name, 1)) << what;
                }
            }
        }
    }
}

// Clear All empties every text box of its window, the answers with them, but
// for the few that are kept or set back on purpose.
TEST(Catalogue, ClearAllEmptiesEveryBoxButTheKeptOnes) {
    QStringList left;
    for (const QString& name : RegisteredFormNames()) {
        Harness probe;
        probe.app.guarded([&] { probe.app.load(name); });
        for (const auto& c : probe.app.find(name)->controls()) {
            if (c->kind == ControlKind::Button && c->caption == "Clear All") {
                left << testing::BoxesClearAllLeaves(name, c->name);
            }
        }
    }
    EXPECT_EQ(left, QStringList({"frmBallDrop.txtHoleDepth=1", "frmPolar.txtXPolarPresent=0",
                                 "frmPolar.txtYPolarPresent=0", "frmTrig.field2747=1",
                                 "frmWeight.txtCost=1"}));
}

}  // namespace
}  // namespace tavrin

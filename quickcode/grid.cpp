// Grid Hole Pattern: the holes of a rectangular grid, rows drilled back and
// forth for the least travel.

#include "quickcode/grid.h"

#include <algorithm>
#include <cstdint>

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "quickcode/program_tools.h"

namespace tavrin {

namespace {

// Appended piece by piece: 30,000 lines come at a click.
void AppendHoleLine(QString& list, std::int16_t c, Real x, Real y, bool noNumbers) {
    static const QString pattern = QStringLiteral("####0.0######");
    if (!noNumbers) {
        list += NumToStr(c + 1);
        list += QStringLiteral("] ");
    }
    list += u'X';
    list += FormatNum(x, pattern);
    list += u'Y';
    list += FormatNum(y, pattern);
    list += QStringLiteral("\r\n");
}

}  // namespace

QString GridList(const GridJob& job, int decPlace, const std::function<bool()>& keepGoing) {
    const std::int16_t total = ToInt16(job.holesX * job.holesY);
    const std::int16_t row = ToInt16(job.holesX);
    std::int16_t c = 0;
    Real x = job.x0;
    Real y = job.y0;
    QString list;
    list.reserve(static_cast<qsizetype>(std::max<int>(total, 0)) * 32);
    // The rounded position is the running one: each hole builds on the last.
    const auto write = [&] {
        x = RoundTo(x, decPlace);
        y = RoundTo(y, decPlace);
        AppendHoleLine(list, c, x, y, job.noNumbers);
    };
    while (c <= total) {
        for (int i = 0; i < row; ++i) {
            write();
            x = x + job.stepX;
            Step16(c);
        }
        if (c == total) {
            break;
        }
        y = y + job.stepY;
        x = x - job.stepX;
        for (int i = 0; i < row; ++i) {
            write();
            x = x - job.stepX;
            Step16(c);
        }
        y = y + job.stepY;
        x = job.x0;
        if (c == total) {
            break;
        }
        if (!keepGoing()) {
            return QString();
        }
    }
    return list;
}

namespace {

const char* const kFields[] = {"txtX", "txtY", "txtHx", "txtHy", "txtXstep", "txtYstep"};

void Calculate(Form& f) {
    for (const char* name : {"txtX", "txtY", "txtXstep", "txtYstep"}) {
        if (IsNumberText(f.text(name)) == 0) {
            ProgramMessage(f, "Error, one or more fields contain invalid data.");
            return;
        }
    }
    for (const char* name : kFields) {
        if (f.text(name).isEmpty()) {
            ProgramMessage(f, "Please fill all data fields.");
            return;
        }
    }
    // No full stop after "holes" here, unlike the bolt circle's.
    f.setText("txtGridAns", "Please wait...\r\nCalculating " +
                                NumToStr(ValOf(f.text("txtHx")) * ValOf(f.text("txtHy"))) +
                                " holes");
    App& app = f.app();
    app.ui().processEvents();
    const GridJob job{ValOf(f.text("txtX")),  ValOf(f.text("txtY")),     ValOf(f.text("txtHx")),
                      ValOf(f.text("txtHy")), ValOf(f.text("txtXstep")), ValOf(f.text("txtYstep")),
                      f.value("chkNoNumbers")};
    // The window stays alive during a long list; closed, it stops the list.
    const auto windowOpen = [&app, &f] {
        app.ui().processEvents();
        return app.find("frmGrid") == &f && !app.ended();
    };
    const QString list = GridList(job, app.decPlace, windowOpen);
    if (windowOpen()) {
        f.setText("txtGridAns", list);
    }
}

void ClearAll(Form& f) {
    EmptyTexts(f, kFields);
    f.setText("txtGridAns", QString());
}

void Build(Form& f) {
    f.setTitle("Grid Hole Pattern");
    f.addField("Label1", "X Start", "txtX");
    f.addField("Label2", "Y Start", "txtY");
    f.addField("Label3", "# of Holes X", "txtHx");
    f.addField("Label4", "# of Holes Y", "txtHy");
    f.addField("Label5", "X Step Distance", "txtXstep");
    f.addField("Label6", "Y Step Distance", "txtYstep");
    f.addCheck(QString(), "chkNoNumbers", "Do not add number count");
    f.addRow(RowKind::Line, {"chkNoNumbers"});
    f.addAnswerBox("txtGridAns", 12, ScrollBars::Both).widthChars = 32;
    f.addRow(RowKind::Line, {"txtGridAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) {
        ProgramMessage(f, "Enter negative or positive step values to set pattern direction.");
    });
    AddProgramTools(f, "txtGridAns", PathView::Holes);
}

const FormRegistration registration("frmGrid", Build);

}  // namespace

}  // namespace tavrin

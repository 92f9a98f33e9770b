// The longest Quick Code programs: a bolt circle of the largest 16-bit hole
// count, a 280-turn thread, a grid of 100 by 300 holes, the longest drilling
// cycle whose block numbers stay within 16 bits (two blocks a peck from N20 in
// fives: 3,270 pecks end at N32720), and the 292 passes the label table holds
// for a lathe thread. Both the logic and the screen benchmarks run them.

#pragma once

#include <QStringList>
#include <vector>

#include "frame/app.h"
#include "frame/form.h"

namespace tavrin {

struct LongProgram {
    const char* name;
    const char* form;
    const char* answer;  // the box the program is written into
    // "field=text" typed, "list#N" chosen, a bare name clicked; in this order.
    QStringList steps;
    int items;  // holes, turns, pecks or passes
};

inline const std::vector<LongProgram>& LongPrograms() {
    static const std::vector<LongProgram> programs = {
        {"BoltCircle32767Holes",
         "frmBoltCircle",
         "Text7",
         {"Text1=100", "Text2=32767", "Text3=1.5", "Text4=-2", "Text5=15"},
         32767},
        {"ThreadMilling280Turns",
         "frmThdMill",
         "fld_TM_Answer",
         {"fld_TM_ZStart=.1", "fld_TM_Depth=279", "fld_TM_Major=1", "fld_TM_ToolDia=.5",
          "fld_TM_Pitch=1", "fld_TM_Feed=5", "popTM_Tool#1", "Checkbox1208"},
         280},
        {"Grid100By300",
         "frmGrid",
         "txtGridAns",
         {"txtX=0", "txtY=0", "txtHx=100", "txtHy=300", "txtXstep=.125", "txtYstep=-.25"},
         30000},
        {"LatheDrilling3270Pecks",
         "frmLatheDrill",
         "fld_lathe_drill_ans",
         {"fldx_start=0", "fldz_start=.1", "fldz_depth=327", "fldq_peck=.1",
          "fld_chipclearance=.02", "fld_feedrate=.004", "fldr_plane=.05"},
         3270},
        {"LatheThreading292Passes",
         "frmLatheThread",
         "fldLT_Ans",
         {"popPasses#1", "fldLT_Major=.5", "fldLT_tpu=20", "fldLT_xstart=.6", "fldLT_zstart=.1",
          "fldLT_zdist=-.75", "fld_passes=292"},
         292},
    };
    return programs;
}

inline void Dress(App& app, Form& form, const QStringList& steps) {
    for (const QString& step : steps) {
        if (step.contains(u'=')) {
            app.userType(form, step.section(u'=', 0, 0), step.section(u'=', 1));
        } else if (step.contains(u'#')) {
            app.userSelect(form, step.section(u'#', 0, 0), step.section(u'#', 1).toInt());
        } else {
            app.userClick(form, step);
        }
    }
}

}  // namespace tavrin

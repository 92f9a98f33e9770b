// Save As..., Copy and View Path under the generators, through the recording
// display: what is written, asked, copied and shown.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

TEST(ProgramTools, SaveAsCopyAndViewPathTakeTheAnswerAsItStands) {
    QTemporaryDir dir;
    Harness h;
    Form& f = h.open("frmBoltCircle");
    EXPECT_EQ(f.caption("cmdSaveAs") + f.caption("cmdCopy") + f.caption("cmdViewPath"),
              "Save As...CopyView Path");
    for (const char* button : {"cmdSaveAs", "cmdCopy", "cmdViewPath"}) {
        h.click(f, button);
    }
    EXPECT_EQ(h.ui.messageTexts(),
              QStringList(3, "There is no program yet: press Calculate first."));
    EXPECT_EQ(h.ui.shown.size(), 3u) << "nothing asked, copied or shown";
    f.setText("Text7", "G01 X1\r\nX2");
    h.click(f, "cmdCopy");
    h.click(f, "cmdViewPath");
    EXPECT_EQ(h.ui.texts(RecordingUi::Kind::Clipboard), QStringList{"G01 X1\r\nX2"});
    ASSERT_EQ(h.ui.plots.size(), 1u);
    EXPECT_EQ(h.ui.plots[0].title, "Bolt Circle: Path");

    h.ui.saveNames = {dir.filePath("no such folder/p"), dir.filePath("first"),
                      dir.filePath("second"), dir.filePath("third.txt")};
    h.click(f, "cmdSaveAs");  // a failed write is told, and its folder forgotten
    EXPECT_EQ(h.ui.messageTexts().value(3).section(" (", 0, 0),
              "Error, the program could not be saved as " + dir.filePath("no such folder/p.nc"));
    EXPECT_EQ(h.settings.get("QuickCode", "LastFolder", "none"), "none");
    h.click(f, "cmdSaveAs");
    EXPECT_EQ(h.ui.saveStart, QDir::homePath() + "/BoltCircle.nc");
    QFile first(dir.filePath("first.nc"));
    ASSERT_TRUE(first.open(QIODevice::ReadOnly));
    EXPECT_EQ(first.readAll(), "G01 X1\r\nX2");
    EXPECT_EQ(h.settings.get("QuickCode", "LastFolder", "none"), dir.path());
    h.ui.saveFilter = 1;
    h.click(f, "cmdSaveAs");
    EXPECT_EQ(h.ui.saveStart, dir.path() + "/BoltCircle.nc") << "begins where the last one went";
    EXPECT_TRUE(QFile::exists(dir.filePath("second.tap"))) << "the chosen type's extension";
    h.click(f, "cmdSaveAs");
    EXPECT_TRUE(QFile::exists(dir.filePath("third.txt"))) << "a typed extension is kept";
    h.click(f, "cmdSaveAs");  // no name left: cancelled
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 3);
    EXPECT_EQ(h.settings.get("QuickCode", "LastFolder", "none"), dir.path()) << "nor elsewhere";
    EXPECT_EQ(h.ui.messageTexts().size(), 4) << "nothing more told";
}

TEST(ProgramTools, EveryGeneratorHasThemInARowOfTheirOwnUnderItsRows) {
    const struct {
        const char* form;
        const char* answer;
        PathView view;
    } rows[] = {{"frmBoltCircle", "Text7", PathView::Holes},
                {"frmGrid", "txtGridAns", PathView::Holes},
                {"frmThdMill", "fld_TM_Answer", PathView::Mill},
                {"frmLatheDrill", "fld_lathe_drill_ans", PathView::Lathe},
                {"frmLatheThread", "fldLT_Ans", PathView::Lathe}};
    for (const auto& row : rows) {
        Harness h;
        Form& f = h.open(row.form);
        EXPECT_EQ(f.rows().back().names, QStringList({"cmdSaveAs", "cmdCopy", "cmdViewPath"}));
        f.setText(row.answer, "G01 X1");
        h.click(f, "cmdViewPath");
        ASSERT_EQ(h.ui.plots.size(), 1u) << row.form;
        EXPECT_EQ(h.ui.plots[0].view, row.view) << row.form;
    }
}

}  // namespace
}  // namespace tavrin

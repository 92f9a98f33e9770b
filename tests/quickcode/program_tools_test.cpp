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

const QStringList kBoltCircle{"Text1=2", "Text2=3", "Text3=0", "Text4=0", "Text5=90", "Command1"};

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

TEST(ProgramTools, SaveAsWritesTheAnswerAsItStandsAndRemembersTheFolder) {
    QTemporaryDir dir;
    Harness h;
    Form& f = h.run("frmBoltCircle", kBoltCircle);
    h.ui.saveNames = {dir.filePath("first"), dir.filePath("second"), dir.filePath("third.txt")};
    h.click(f, "cmdSaveAs");
    EXPECT_EQ(h.ui.saveStart, QDir::homePath() + "/BoltCircle.nc");
    EXPECT_EQ(Bytes(dir.filePath("first.nc")),
              " 1] X0.0Y1.0\r\n 2] X-0.866Y-0.5\r\n 3] X0.866Y-0.5\r\n");
    EXPECT_EQ(h.settings.get("QuickCode", "LastFolder", "none"), dir.path());
    h.ui.saveFilter = 1;
    h.click(f, "cmdSaveAs");
    EXPECT_EQ(h.ui.saveStart, dir.path() + "/BoltCircle.nc") << "begins where the last one went";
    EXPECT_TRUE(QFile::exists(dir.filePath("second.tap"))) << "the chosen type's extension";
    h.click(f, "cmdSaveAs");
    EXPECT_TRUE(QFile::exists(dir.filePath("third.txt"))) << "a typed extension is kept";
    h.click(f, "cmdSaveAs");  // no name left: cancelled
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 3);
    EXPECT_TRUE(h.ui.messageTexts().isEmpty());
}

TEST(ProgramTools, AFailedWriteIsToldAndForgotten) {
    QTemporaryDir dir;
    Harness h;
    Form& f = h.run("frmBoltCircle", kBoltCircle);
    h.ui.saveNames = {dir.filePath("no such folder/p")};
    h.click(f, "cmdSaveAs");
    EXPECT_EQ(h.ui.messageTexts().value(0).section(" (", 0, 0),
              "Error, the program could not be saved as " + dir.filePath("no such folder/p.nc"));
    EXPECT_EQ(h.settings.get("QuickCode", "LastFolder", "none"), "none");
}

TEST(ProgramTools, CopyAndViewPathAndAnEmptyBox) {
    Harness h;
    Form& f = h.open("frmBoltCircle");
    for (const char* button : {"cmdSaveAs", "cmdCopy", "cmdViewPath"}) {
        h.click(f, button);
    }
    EXPECT_EQ(h.ui.messageTexts(),
              QStringList(3, "There is no program yet: press Calculate first."));
    EXPECT_EQ(h.ui.shown.size(), 3u) << "nothing asked, copied or shown";
    h.run("frmBoltCircle", kBoltCircle + QStringList{"cmdCopy", "cmdViewPath"});
    EXPECT_EQ(h.ui.texts(RecordingUi::Kind::Clipboard), QStringList{f.text("Text7")});
    ASSERT_EQ(h.ui.plots.size(), 1u);
    EXPECT_EQ(h.ui.plots[0].title, "Bolt Circle: Path");
    EXPECT_EQ(h.ui.plots[0].reading.moves.size(), 3u);
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
        EXPECT_EQ(f.caption("cmdSaveAs") + f.caption("cmdCopy") + f.caption("cmdViewPath"),
                  "Save As...CopyView Path");
        f.setText(row.answer, "G01 X1");
        h.click(f, "cmdViewPath");
        ASSERT_EQ(h.ui.plots.size(), 1u) << row.form;
        EXPECT_EQ(h.ui.plots[0].view, row.view) << row.form;
    }
}

}  // namespace
}  // namespace tavrin

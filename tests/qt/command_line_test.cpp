// The command line of tavrin: what each option prints, its exit code, and the
// window it leaves to open.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>

#include "app/command_line.h"

namespace tavrin {
namespace {

struct Cli {
    QString out, err;
    StartRequest request;
    Cli(const QStringList& options, const QString& settings = "/nonexistent/Tavrin.ini") {
        QTextStream o(&out), e(&err);
        request = ReadCommandLine(QStringList("tavrin") + options, settings, o, e);
    }
};

TEST(CommandLine, EachOptionAnswersOrLeavesAWindowToOpen) {
    EXPECT_TRUE(Cli({}).request.startWindows && Cli({}).request.openForm.isEmpty());
    const Cli open({"--open", "frmSfmToRpm"});
    EXPECT_TRUE(open.request.startWindows && open.request.openForm == "frmSfmToRpm");
    const Cli unknown({"--open", "frmNone"});
    EXPECT_EQ(unknown.err,
              "tavrin: no window named 'frmNone'; tavrin --list-windows shows the names\n");
    EXPECT_TRUE(!unknown.request.startWindows && unknown.request.exitCode == 2);
    EXPECT_EQ(Cli({"--bogus"}).request.exitCode, 2);
    EXPECT_EQ(Cli({"stray"}).request.exitCode, 2) << "no file arguments";
    EXPECT_EQ(Cli({"--version"}).out, "tavrin " TAVRIN_VERSION "\n");
    const Cli help({"--help"});
    EXPECT_TRUE(help.out.contains("--open <FORM>") && help.out.contains("--reset-settings"));
    const Cli list({"--list-windows"});
    EXPECT_FALSE(list.request.startWindows);
    EXPECT_TRUE(list.out.contains(QRegularExpression("\nfrmSfmToRpm +SFM<-->RPM\n")))
        << list.out.toStdString();
}

TEST(CommandLine, ResetMovesTheSettingsAsideAndSaysWhere) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Tavrin.ini");
    EXPECT_EQ(Cli({"--reset-settings"}, path).out,
              "tavrin: no settings file at " + path + "; nothing to reset\n");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("[Reg]\nDecPlace=x\n") > 0);
    file.close();
    const Cli reset({"--reset-settings"}, path);
    EXPECT_FALSE(reset.request.startWindows || QFile::exists(path));
    const QStringList kept = QDir(dir.path()).entryList({"Tavrin.ini.*.bak"});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(reset.out, "tavrin: settings moved to " + dir.filePath(kept[0]) +
                             "; the next start takes the defaults\n");
}

}  // namespace
}  // namespace tavrin

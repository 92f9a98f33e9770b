// The settings file when it is damaged, huge or cannot be written: the
// program starts as the texts it can read say, and a write either reaches
// the file whole or leaves it as it was, the store then giving back what the
// file holds.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <csignal>
#include <tuple>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SettingsFile, ADamagedFileGivesWhatCanBeReadAndTheNextWriteMendsIt) {
    const QString defaults = "4 3420 5000 Circle Segments";
    QByteArray junk;
    for (int i = 0; i < 4096; ++i) {
        junk.append(static_cast<char>((i * 7919 + 13) % 256));
    }
    // An editor's "Unicode": UTF-16 with its byte order mark.
    QStringEncoder utf16(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
    const std::tuple<const char*, QByteArray, QString> rows[] = {
        {"cut inside a number", "[Reg]\nDecPlace=6\n[Xpos]\nXpos=12", "6 12 5000 Circle Segments"},
        {"binary junk", junk, defaults},
        {"UTF-16: no key of ours", utf16(QString("[Reg]\r\nDecPlace=6\r\n")), defaults},
        {"a million keys before ours",
         "[Other]\n" + QByteArray("k=v\n").repeated(1000000) + "[Ypos]\nYpos=-7\n",
         "4 3420 -7 Circle Segments"},
    };
    for (const auto& [kind, bytes, start] : rows) {
        QTemporaryDir dir;
        const QString path = dir.filePath("Tavrin.ini");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        {
            IniSettings settings(path);
            RecordingUi ui;
            App app(ui, settings);
            app.splashEnabled = false;
            app.start();
            const Form& home = *app.find("frmHome");
            EXPECT_EQ(QString("%1 %2 %3 ").arg(app.decPlace).arg(home.left()).arg(home.top()) +
                          home.control("Combo1").items.value(0) + ui.fatalTexts().join(""),
                      start)
                << kind;
            settings.save("Quicklaunch", "2", "Sine Plate");
            EXPECT_EQ(settings.get("Quicklaunch", "2", "Tapers"), "Sine Plate") << kind;
        }
        EXPECT_EQ(IniSettings(path).get("Quicklaunch", "2", "Tapers"), "Sine Plate") << kind;
    }
}

// A file size limit stops the write halfway, as a full disk would; unlike a
// read-only folder, it stops root too.
TEST(SettingsFile, AWriteStoppedHalfwayLeavesTheFileAsItWas) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Tavrin.ini");
    IniSettings settings(path);
    settings.save("Reg", "DecPlace", "6");
    const QByteArray before = Content(path);
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    rlimit lowered = saved;
    lowered.rlim_cur = before.size() + 8;
    setrlimit(RLIMIT_FSIZE, &lowered);
    std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead of the process
    settings.save("Quicklaunch", "2", "Sine Plate");
    settings.save("Reg", "DecPlace", "7777777777");  // held by the file: the old text comes back
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(Content(path), before);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"Tavrin.ini"});  // no leftover
    EXPECT_EQ(settings.get("Quicklaunch", "2", "Tapers"), "Tapers");
    // Once the disk takes it, the next write goes through.
    settings.save("Quicklaunch", "3", "Polygons");
    EXPECT_EQ(settings.get("Quicklaunch", "3", "?") + settings.get("Reg", "DecPlace", "?"),
              "Polygons6");
    EXPECT_TRUE(Content(path).contains("3=Polygons"));
}

}  // namespace
}  // namespace tavrin

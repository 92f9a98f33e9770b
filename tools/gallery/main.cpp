// tavrin-gallery: every registered window, offscreen, at 100% and 200%, into
// one folder with an index.html that shows them all with their names.
//   tavrin-gallery FOLDER          both scales and the index
//   tavrin-gallery FOLDER SCALE    one scale (the program runs itself so, as
//                                  Qt takes its scale once, at start)

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>

#include "app/form_view.h"
#include "app/path_view.h"
#include "app/qt_ui.h"
#include "frame/app.h"
#include "frame/form_registry.h"
#include "tools/gallery/examples.h"

namespace tavrin {
namespace {

// Boxes are noted, not shown: nothing may wait for a click.
class GalleryUi : public QtUi {
  public:
    void message(const QString&, const QString&) override {}
    bool question(const QString&, const QString&) override { return false; }
    void fatal(const QString&, const QString& text) override {
        std::fprintf(stderr, "fatal box: %s\n", qPrintable(text));
    }
};

struct Shot {
    QString name, title;
};

int Render(const QString& folder) {
    int failures = 0;
    QDir().mkpath(folder);
    QFile list(folder + "/windows.txt");
    list.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream titles(&list);
    for (const QString& name : RegisteredFormNames()) {
        GalleryUi ui;
        MemorySettings settings;
        App app(ui, settings);
        ui.setApp(&app);
        app.splashEnabled = false;
        app.start();
        app.guarded([&] { app.show(name); });
        Form* form = app.find(name);
        FormView* view = form != nullptr ? ui.viewOf(*form) : nullptr;
        if (view == nullptr) {
            std::fprintf(stderr, "%s: did not open\n", qPrintable(name));
            ++failures;
            continue;
        }
        for (const Example& e : kExamples) {
            if (name == e.form) {
                for (const QString& field : e.fields) {
                    app.userType(*form, field.section('=', 0, 0), field.section('=', 1));
                }
                app.userClick(*form, e.button);
            }
        }
        QApplication::processEvents();
        if (!view->grab().save(folder + "/" + name + ".png")) {
            std::fprintf(stderr, "%s: could not be saved\n", qPrintable(name));
            ++failures;
        }
        titles << name << '\t' << form->title() << '\n';
        // The worked programs of the generators, drawn as View Path shows them.
        static const QStringList plotted{"frmBoltCircle", "frmGrid", "frmThdMill", "frmLatheDrill",
                                         "frmLatheThread"};
        if (plotted.contains(name)) {
            app.userClick(*form, "cmdViewPath");
            QApplication::processEvents();
            PathWindow* path = ui.pathOf(*form);
            if (path == nullptr || !path->grab().save(folder + "/" + name + "-path.png")) {
                std::fprintf(stderr, "%s: its path could not be saved\n", qPrintable(name));
                ++failures;
            } else {
                titles << name << "-path\t" << path->windowTitle() << '\n';
            }
        }
        for (Form* f : app.loadedForms()) {
            delete ui.viewOf(*f);
        }
    }
    return failures == 0 ? 0 : 1;
}

QString Escaped(const QString& text) {
    return text.toHtmlEscaped();
}

int WriteIndex(const QString& folder) {
    QFile file(folder + "/1x/windows.txt");
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return 1;
    }
    QFile index(folder + "/index.html");
    index.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream html(&index);
    html << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Tavrin: every "
            "window</title>\n<style>body{font-family:sans-serif;background:#eee}"
            "section{background:#fff;margin:1em;padding:1em}img{margin:0.5em;"
            "vertical-align:top;border:1px solid #ccc}</style></head><body>\n"
            "<h1>Tavrin: every window, at 100% and 200%</h1>\n";
    int count = 0;
    while (!file.atEnd()) {
        const QStringList line = QString::fromUtf8(file.readLine()).chopped(1).split('\t');
        const QString name = Escaped(line.value(0));
        html << "<section id=\"" << name << "\"><h2>" << name << ": " << Escaped(line.value(1))
             << "</h2>\n<a href=\"1x/" << name << ".png\"><img src=\"1x/" << name << ".png\" alt=\""
             << name << " at 100%\"></a>\n<a href=\"2x/" << name << ".png\"><img src=\"2x/" << name
             << ".png\" alt=\"" << name << " at 200%\" width=\"50%\"></a></section>\n";
        ++count;
    }
    html << "</body></html>\n";
    std::printf("%d windows at 100%% and 200%%: %s/index.html\n", count, qPrintable(folder));
    return count > 0 ? 0 : 1;
}

}  // namespace
}  // namespace tavrin

int main(int argc, char** argv) {
    if (argc == 3) {
        qputenv("QT_SCALE_FACTOR", argv[2]);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QApplication application(argc, argv);
        return tavrin::Render(QString::fromLocal8Bit(argv[1]) + "/" + argv[2] + "x");
    }
    if (argc != 2) {
        std::fprintf(stderr, "usage: tavrin-gallery FOLDER\n");
        return 2;
    }
    QCoreApplication application(argc, argv);
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    for (const char* scale : {"1", "2"}) {
        const int code =
            QProcess::execute(QCoreApplication::applicationFilePath(), {folder, scale});
        if (code != 0) {
            std::fprintf(stderr, "tavrin-gallery: the %sx pictures failed\n", scale);
            return 1;
        }
    }
    return tavrin::WriteIndex(folder);
}

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "frame/ui.h"
#include "quickcode/gcode_reader.h"

namespace tavrin {

// A display that has none: it keeps each message, question and fatal box in
// order, answers questions from a queue (No when it is empty) and save
// questions from another (cancelled when it is empty), keeps what goes to the
// clipboard and each path shown, starts only
// the programs it is told are installed, and its clock moves half a second a
// reading. The script driver and the tests both run the windows on it.
class RecordingUi : public Ui {
  public:
    // A save question's text is the name given; a clipboard's, the text put there.
    enum class Kind { Message, Question, Fatal, SaveName, Clipboard, Path };
    struct Shown {
        Kind kind;
        QString title;
        QString text;
        bool answer = false;  // of a question
    };

    std::vector<Shown> shown;
    std::deque<bool> answers;
    std::deque<QString> saveNames;
    int saveFilter = 0;  // the file type chosen with each name
    QString saveStart;   // where the last save question began
    std::vector<PathPlot> plots;
    QStringList installedPrograms;
    QStringList startAttempts;
    QStringList shownWindows;
    int quits = 0;
    float clock = 0;
    // Told of each box as it comes.
    std::function<void(const Shown&)> onShown;
    // Told of each pass a long loop gives the display.
    std::function<void()> onProcessEvents;
    // Runs the user's steps while a window stands modal; without it the
    // window is left at once, as if its user had hidden it straight away.
    std::function<void(Form&)> onModal;

    void showWindow(Form& form) override;
    void showModal(Form& form) override;
    void hideWindow(Form& form) override;
    void windowUnloaded(Form& form) override;
    void message(const QString& title, const QString& text) override;
    bool question(const QString& title, const QString& text) override;
    void fatal(const QString& title, const QString& text) override;
    void processEvents() override {
        if (onProcessEvents) {
            onProcessEvents();
        }
    }
    bool startProgram(const QString& program) override;
    float secondsSinceMidnight() override { return clock += 0.5f; }
    void quit() override { ++quits; }
    QString saveFileName(const QString& title, const QString& start, const QStringList& filters,
                         int& filter) override;
    void setClipboardText(const QString& text) override;
    void showPath(Form& form, const PathPlot& plot) override;

    // The texts of the boxes of one kind, in order.
    QStringList texts(Kind kind) const;
    QStringList messageTexts() const { return texts(Kind::Message); }
    QStringList questionTexts() const { return texts(Kind::Question); }
    QStringList fatalTexts() const { return texts(Kind::Fatal); }
    // Shown modal and neither hidden nor unloaded since.
    bool isModal(const Form& form) const { return modal_.contains(&form); }

  private:
    void record(Shown box);

    QSet<const Form*> modal_;
};

}  // namespace tavrin

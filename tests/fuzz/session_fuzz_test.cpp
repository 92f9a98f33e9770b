// Hostile sessions on every window: random controls, texts a careless or
// malicious user might type, list choices, windows closed and reopened and
// the places changed between Calculates. A session may end in the fatal box
// of a numbered run-time error; it may never meet a programming fault, hang
// or take the process down (the sanitizer build catches that).

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <random>
#include <stdexcept>

#include "frame/form.h"
#include "frame/form_registry.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

QStringList HostileTexts() {
    QStringList texts{"",          " ",       "0",       "-0",     "1",      "-1",
                      ".5",        "-.5",     "2",       "12.5",   "90",     "180",
                      "360",       "-1.6000", "22.5959", "32767",  "32768",  "-32769",
                      "1E400",     "1e308",   "-1e308",  "1e-320", "&H8000", "&H123456789",
                      "abc",       ".",       "-",       "1.2.3",  "--1",    "1 2",
                      "0.0000001", "NaN",     "inf",     "12abc",  "3,5",    "+7"};
    texts << QString(500, u'9') << QString(10000, u'7') << QString(QChar(0))
          << QString(QChar(0xD800)) << QString::fromUtf8("22°");
    return texts;
}

// Fatal boxes must be the numbered run-time errors and nothing else.
const QRegularExpression kNumbered(
    "^Run-time error '(5|6|9|11|13|53)':\r\n\r\n(Invalid procedure call or argument|Overflow|"
    "Subscript out of range|Division by zero|Type mismatch|File not found)$");

// Ends a session whose user would sit at a modal window for ever.
struct SessionOver {};

struct Session {
    std::mt19937 random;
    const QStringList texts = HostileTexts();
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

    // One step of a user on the window; false when the window is gone.
    void step(testing::Harness& h, Form& f) {
        const auto& controls = f.controls();
        const Control& c = *controls[pick(static_cast<int>(controls.size()))];
        switch (c.kind) {
            case ControlKind::TextBox:
                h.app.userType(f, c.name, texts[pick(texts.size())]);
                break;
            case ControlKind::Combo:
                if (pick(3) == 0) {
                    h.app.userType(f, c.name, texts[pick(texts.size())]);
                    break;
                }
                [[fallthrough]];
            case ControlKind::DropDownList:
            case ControlKind::ListBox:
                if (!c.items.isEmpty()) {
                    h.app.userSelect(f, c.name, pick(c.items.size()));
                }
                break;
            case ControlKind::Spin:
                h.app.userSpin(f, c.name, pick(2) == 0 ? 1 : -1);
                break;
            case ControlKind::Button:
            case ControlKind::Option:
            case ControlKind::Check:
            case ControlKind::MenuItem:
                h.app.userClick(f, c.name);
                break;
            default:
                break;
        }
    }

    // Returns what went wrong, or nothing.
    QString run(const QString& window, int steps) {
        testing::Harness h;
        int passes = 0;
        h.ui.onProcessEvents = [&] {
            if (++passes % 100000 == 0) {  // a loop without end: its user closes the window
                if (Form* f = h.app.find(window)) {
                    h.app.userClose(*f);
                }
            }
        };
        int modals = 0;
        h.ui.onModal = [&](Form&) {
            if (++modals > 200) {
                throw SessionOver{};
            }
        };
        for (int i = 0; i < 8; ++i) {
            h.ui.answers.push_back(pick(2) == 0);
        }
        try {
            for (int i = 0; i < steps && !h.app.ended(); ++i) {
                Form* f = h.app.find(window);
                if (f == nullptr || pick(25) == 0) {
                    if (f != nullptr) {
                        h.app.userClose(*f);
                    }
                    h.open(window);
                    continue;
                }
                if (pick(15) == 0) {
                    h.app.decPlace = static_cast<std::int16_t>(pick(9) - 1);
                }
                step(h, *f);
            }
        } catch (const SessionOver&) {
            return {};
        } catch (const std::exception& fault) {
            return QString("a programming fault: ") + fault.what();
        }
        for (const QString& text : h.ui.fatalTexts()) {
            if (!kNumbered.match(text).hasMatch()) {
                return "a fatal box that is no numbered error: " + text;
            }
        }
        return {};
    }
};

TEST(SessionFuzz, EveryWindowSurvivesHostileSessions) {
    const int sessions = qEnvironmentVariableIntValue("TAVRIN_FUZZ_SESSIONS") > 0
                             ? qEnvironmentVariableIntValue("TAVRIN_FUZZ_SESSIONS")
                             : 300;
    const QString only = qEnvironmentVariable("TAVRIN_FUZZ_WINDOW");
    for (const QString& window : RegisteredFormNames()) {
        if (!only.isEmpty() && window != only) {
            continue;
        }
        for (int s = 0; s < sessions; ++s) {
            const unsigned seed = qHash(window) ^ static_cast<unsigned>(s);
            Session session{std::mt19937(seed)};
            EXPECT_EQ(session.run(window, 60), "") << window << ", seed " << seed;
        }
    }
}

}  // namespace
}  // namespace tavrin

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

namespace tavrin {

class App;
class Form;

enum class ControlKind {
    Label,
    TextBox,
    Button,
    Option,        // option button; the ones in one container exclude each other
    Check,         // check box
    Frame,         // a captioned frame holding options or checks
    Combo,         // drop-down with an edit field
    DropDownList,  // drop-down without an edit field
    ListBox,
    Image,  // a picture, by name, from the pictures folder
    Spin,   // up and down arrows tied to a text box
    Timer,
    Menu,
    MenuItem,
};

// A drop-down, with or without its edit field, or a list box.
bool IsList(ControlKind kind);

enum class ScrollBars { None, Vertical, Both };

struct Control {
    QString name;
    ControlKind kind = ControlKind::Label;
    QString caption;
    QString text;
    bool value = false;
    QStringList items;
    int listIndex = -1;
    bool visible = true;
    bool enabled = true;
    QString container;  // frame of an option or check, menu of a menu item
    // Declared for the handlers but drawn by no row (a caption the picture
    // carries itself, say).
    bool offLayout = false;
    // Hidden, it keeps its place, so that the rows below stand still.
    bool keepsPlace = false;

    // Text boxes.
    bool locked = false;
    bool multiLine = false;
    bool centred = false;
    ScrollBars scrollBars = ScrollBars::None;
    bool tabStop = true;
    int widthChars = 0;   // 0: the renderer's usual width
    int heightLines = 0;  // visible lines of a multi-line box or a list

    QString picture;  // images
    int minimum = 0;  // spin controls
    int maximum = 0;
    QString buddy;     // the text box a spin control steps
    int interval = 0;  // timers, milliseconds
};

enum class Event { Load, Unload, Click, Change, Timer };

using Handler = std::function<void(Form&)>;

// How the controls stand on the window, from the top down.
enum class RowKind {
    Fields,   // caption and field pairs side by side, captions aligned in a grid
    Line,     // one control (or several) across the whole width
    Group,    // a frame, then the options or checks it holds
    Buttons,  // a row of buttons
};

struct Row {
    RowKind kind;
    QStringList names;
};

enum class FormStyle {
    Dialog,  // centred fixed dialog, not in the task bar
    Home,    // placed from its stored position, in the task bar
    Splash,  // no frame and no title, centred
};

// Told of every change the logic makes, so that a display can follow it.
class FormObserver {
  public:
    virtual ~FormObserver() = default;
    virtual void controlChanged(const Control& control) = 0;
    virtual void titleChanged() = 0;
    virtual void focusMoved(const Control& control) { (void)control; }
};

// One window: its declared controls and layout, its handlers, and the state of
// its controls while it is loaded. Handlers reach the controls by name; a name
// that the window does not declare is a programming fault and throws.
class Form {
  public:
    Form(App& app, QString name);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    App& app() const { return app_; }
    const QString& name() const { return name_; }

    // ---- declaration, used by each window's build function ----
    void setTitle(const QString& title);
    const QString& title() const { return title_; }
    void setStyle(FormStyle style) { style_ = style; }
    FormStyle style() const { return style_; }
    // A picture control standing to the right of all rows.
    void setSide(const QString& name) { side_ = name; }
    const QString& side() const { return side_; }

    Control& add(ControlKind kind, const QString& name, const QString& caption = {});
    Control& addLabel(const QString& name, const QString& caption);
    Control& addTextBox(const QString& name);
    Control& addButton(const QString& name, const QString& caption);
    // A locked, centred single-line answer box.
    Control& addAnswerLine(const QString& name);
    // A locked multi-line answer box.
    Control& addAnswerBox(const QString& name, int lines, ScrollBars bars = ScrollBars::Vertical);
    Control& addOption(const QString& frame, const QString& name, const QString& caption,
                       bool on = false);
    Control& addCheck(const QString& frame, const QString& name, const QString& caption);
    Control& addImage(const QString& name, const QString& picture);

    // Layout rows; each names controls declared before.
    void addRow(RowKind kind, const QStringList& names);
    // A caption label and a text box in one step, on a row of their own.
    void addField(const QString& labelName, const QString& caption, const QString& boxName);
    const std::vector<Row>& rows() const { return rows_; }
    void setOffLayout(const QStringList& names);
    // Entry controls and an answer box with its own button that take each
    // other's place: the display gives the window room for either from the start.
    struct AnswerSwap {
        QStringList entries;
        QStringList answer;
    };
    void setAnswerSwap(AnswerSwap swap) { answerSwap_ = std::move(swap); }
    const AnswerSwap& answerSwap() const { return answerSwap_; }
    // Every control stands in a row, is the side picture, a menu or a timer, or
    // is marked off-layout; otherwise the window is refused, naming the stray.
    void checkPlaced() const;

    void on(const QString& control, Event event, Handler handler);
    void onLoad(Handler handler) { on(QString(), Event::Load, std::move(handler)); }
    void onUnload(Handler handler) { on(QString(), Event::Unload, std::move(handler)); }
    void onClick(const QString& control, Handler handler) {
        on(control, Event::Click, std::move(handler));
    }
    const Handler* handler(const QString& control, Event event) const;

    // ---- the user-interface operations of the logic ----
    QString text(const QString& name) const;
    void setText(const QString& name, const QString& text);
    QString caption(const QString& name) const;
    void setCaption(const QString& name, const QString& caption);
    bool value(const QString& name) const;
    // Turning an option on turns the others of its frame off; both fire Click.
    void setValue(const QString& name, bool on);
    int listIndex(const QString& name) const;
    // Fires the same Click step as a user's choice.
    void setListIndex(const QString& name, int index);
    QString listText(const QString& name) const;
    int listCount(const QString& name) const;
    void addItem(const QString& name, const QString& item, int index = -1);
    void removeItem(const QString& name, int index);
    void clearList(const QString& name);
    void setVisible(const QString& name, bool visible);
    void setEnabled(const QString& name, bool enabled);
    void setPicture(const QString& name, const QString& picture);
    // Puts the focus on a control; the few handlers that move it say so.
    void setFocus(const QString& name);
    const QString& focus() const { return focus_; }

    // Position in twips; read and written for the home window.
    double left() const { return left_; }
    double top() const { return top_; }
    void setPosition(double left, double top);

    // ---- what a display or driver needs ----
    const Control& control(const QString& name) const;
    bool has(const QString& name) const { return index_.contains(name); }
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
    void setObserver(FormObserver* observer) { observer_ = observer; }
    // The user's own edits: the text is taken as typed, without a Click.
    void typeText(const QString& name, const QString& text);
    void fire(const QString& control, Event event);
    // One step of a spin control: its text box moves by delta within the range.
    void spin(const QString& name, int delta);

  private:
    Control& mutableControl(const QString& name);
    void changed(const Control& c);

    App& app_;
    QString name_;
    QString title_;
    FormStyle style_ = FormStyle::Dialog;
    QString side_;
    std::vector<std::unique_ptr<Control>> controls_;
    QHash<QString, std::size_t> index_;
    std::vector<Row> rows_;
    AnswerSwap answerSwap_;
    QHash<QString, Handler> handlers_;
    double left_ = 0;
    double top_ = 0;
    FormObserver* observer_ = nullptr;
    QString focus_;
};

}  // namespace tavrin

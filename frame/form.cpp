#include "frame/form.h"

#include <QSet>
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "frame/numeric_text.h"
#include "frame/run_time_error.h"

namespace tavrin {

namespace {

QString HandlerKey(const QString& control, Event event) {
    return control + u'|' + QString::number(static_cast<int>(event));
}

}  // namespace

bool IsList(ControlKind kind) {
    return kind == ControlKind::Combo || kind == ControlKind::DropDownList ||
           kind == ControlKind::ListBox;
}

Form::Form(App& app, QString name) : app_(app), name_(std::move(name)) {}

void Form::setTitle(const QString& title) {
    title_ = title;
    if (observer_ != nullptr) {
        observer_->titleChanged();
    }
}

Control& Form::add(ControlKind kind, const QString& name, const QString& caption) {
    if (index_.contains(name)) {
        throw std::logic_error("control declared twice: " + name.toStdString());
    }
    auto c = std::make_unique<Control>();
    c->name = name;
    c->kind = kind;
    c->caption = caption;
    index_.insert(name, controls_.size());
    controls_.push_back(std::move(c));
    return *controls_.back();
}

Control& Form::addLabel(const QString& name, const QString& caption) {
    return add(ControlKind::Label, name, caption);
}

Control& Form::addTextBox(const QString& name) {
    return add(ControlKind::TextBox, name);
}

Control& Form::addButton(const QString& name, const QString& caption) {
    return add(ControlKind::Button, name, caption);
}

Control& Form::addAnswerLine(const QString& name) {
    Control& c = add(ControlKind::TextBox, name);
    c.locked = true;
    c.centred = true;
    return c;
}

Control& Form::addAnswerBox(const QString& name, int lines, ScrollBars bars) {
    Control& c = add(ControlKind::TextBox, name);
    c.locked = true;
    c.multiLine = true;
    c.heightLines = lines;
    c.scrollBars = bars;
    return c;
}

Control& Form::addOption(const QString& frame, const QString& name, const QString& caption,
                         bool on) {
    Control& c = add(ControlKind::Option, name, caption);
    c.container = frame;
    c.value = on;
    return c;
}

Control& Form::addCheck(const QString& frame, const QString& name, const QString& caption) {
    Control& c = add(ControlKind::Check, name, caption);
    c.container = frame;
    return c;
}

Control& Form::addImage(const QString& name, const QString& picture) {
    Control& c = add(ControlKind::Image, name);
    c.picture = picture;
    return c;
}

void Form::addRow(RowKind kind, const QStringList& names) {
    for (const QString& n : names) {
        control(n);  // a row may only name declared controls
    }
    rows_.push_back(Row{kind, names});
}

void Form::setOffLayout(const QStringList& names) {
    for (const QString& n : names) {
        mutableControl(n).offLayout = true;
    }
}

void Form::checkPlaced() const {
    QSet<QString> placed{side_};
    for (const Row& row : rows_) {
        for (const QString& n : row.names) {
            placed.insert(n);
        }
    }
    for (const auto& c : controls_) {
        const bool unseen = c->kind == ControlKind::Menu || c->kind == ControlKind::MenuItem ||
                            c->kind == ControlKind::Timer;
        if (!unseen && !c->offLayout && !placed.contains(c->name)) {
            throw std::logic_error("control " + c->name.toStdString() + " of " +
                                   name_.toStdString() + " stands in no row");
        }
    }
}

void Form::addField(const QString& labelName, const QString& caption, const QString& boxName) {
    addLabel(labelName, caption);
    addTextBox(boxName);
    addRow(RowKind::Fields, {labelName, boxName});
}

void Form::on(const QString& control, Event event, Handler handler) {
    if (!control.isEmpty()) {
        this->control(control);
    }
    handlers_.insert(HandlerKey(control, event), std::move(handler));
}

const Handler* Form::handler(const QString& control, Event event) const {
    auto it = handlers_.find(HandlerKey(control, event));
    return it == handlers_.end() ? nullptr : &it.value();
}

void Form::fire(const QString& control, Event event) {
    if (const Handler* h = handler(control, event)) {
        // A copy, so that a handler may unload its own window safely.
        Handler run = *h;
        run(*this);
    }
}

void Form::spin(const QString& name, int delta) {
    const Control& s = control(name);
    const int current = static_cast<int>(std::clamp(std::nearbyint(ValOf(text(s.buddy)).value()),
                                                    double(s.minimum), double(s.maximum)));
    const int next = std::clamp(current + delta, s.minimum, s.maximum);
    typeText(s.buddy, QString::number(next));
    fire(name, Event::Change);
}

const Control& Form::control(const QString& name) const {
    auto it = index_.find(name);
    if (it == index_.end()) {
        throw std::logic_error("no control " + name.toStdString() + " on " + name_.toStdString());
    }
    return *controls_[it.value()];
}

Control& Form::mutableControl(const QString& name) {
    return const_cast<Control&>(control(name));
}

void Form::changed(const Control& c) {
    if (observer_ != nullptr) {
        observer_->controlChanged(c);
    }
}

QString Form::text(const QString& name) const {
    return control(name).text;
}

void Form::setText(const QString& name, const QString& text) {
    Control& c = mutableControl(name);
    c.text = text;
    if (c.kind == ControlKind::Combo) {
        c.listIndex = static_cast<int>(c.items.indexOf(text));
    }
    changed(c);
}

void Form::typeText(const QString& name, const QString& text) {
    Control& c = mutableControl(name);
    c.text = text;
    if (c.kind == ControlKind::Combo) {
        c.listIndex = -1;
    }
    changed(c);
    fire(name, Event::Change);
}

QString Form::caption(const QString& name) const {
    return control(name).caption;
}

void Form::setCaption(const QString& name, const QString& caption) {
    Control& c = mutableControl(name);
    c.caption = caption;
    changed(c);
}

bool Form::value(const QString& name) const {
    return control(name).value;
}

void Form::setValue(const QString& name, bool on) {
    Control& c = mutableControl(name);
    if (c.kind == ControlKind::Option) {
        if (!on) {
            c.value = false;
            changed(c);
            return;
        }
        for (auto& other : controls_) {
            if (other->kind == ControlKind::Option && other.get() != &c &&
                other->container == c.container && other->value) {
                other->value = false;
                changed(*other);
            }
        }
        c.value = true;
        changed(c);
        fire(name, Event::Click);
        return;
    }
    const bool was = c.value;
    c.value = on;
    changed(c);
    if (was != on) {
        fire(name, Event::Click);
    }
}

int Form::listIndex(const QString& name) const {
    return control(name).listIndex;
}

void Form::setListIndex(const QString& name, int index) {
    Control& c = mutableControl(name);
    if (index < -1 || index >= c.items.size()) {
        Raise(ErrorNumber::InvalidCall);
    }
    c.listIndex = index;
    if (c.kind != ControlKind::ListBox) {
        c.text = index < 0 ? QString() : c.items[index];
    }
    changed(c);
    fire(name, Event::Click);
}

QString Form::listText(const QString& name) const {
    const Control& c = control(name);
    if (c.kind == ControlKind::Combo) {
        return c.text;
    }
    return c.listIndex < 0 ? QString() : c.items[c.listIndex];
}

int Form::listCount(const QString& name) const {
    return static_cast<int>(control(name).items.size());
}

void Form::addItem(const QString& name, const QString& item, int index) {
    Control& c = mutableControl(name);
    if (index > c.items.size() || index < -1) {
        Raise(ErrorNumber::InvalidCall);
    }
    if (index < 0) {
        c.items.append(item);
    } else {
        c.items.insert(index, item);
        if (c.listIndex >= index) {
            ++c.listIndex;
        }
    }
    changed(c);
}

void Form::removeItem(const QString& name, int index) {
    Control& c = mutableControl(name);
    if (!IsList(c.kind) || index < 0 || index >= c.items.size()) {
        Raise(ErrorNumber::InvalidCall);
    }
    c.items.removeAt(index);
    if (c.listIndex == index) {
        c.listIndex = -1;
    } else if (c.listIndex > index) {
        --c.listIndex;
    }
    changed(c);
}

void Form::clearList(const QString& name) {
    Control& c = mutableControl(name);
    c.items.clear();
    c.listIndex = -1;
    changed(c);
}

void Form::setFocus(const QString& name) {
    const Control& c = control(name);
    focus_ = name;
    if (observer_ != nullptr) {
        observer_->focusMoved(c);
    }
}

void Form::setVisible(const QString& name, bool visible) {
    Control& c = mutableControl(name);
    c.visible = visible;
    changed(c);
}

void Form::setEnabled(const QString& name, bool enabled) {
    Control& c = mutableControl(name);
    c.enabled = enabled;
    changed(c);
}

void Form::setPicture(const QString& name, const QString& picture) {
    Control& c = mutableControl(name);
    c.picture = picture;
    changed(c);
}

void Form::setPosition(double left, double top) {
    left_ = left;
    top_ = top;
}

}  // namespace tavrin

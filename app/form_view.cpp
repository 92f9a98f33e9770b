#include "app/form_view.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/display_text.h"
#include "app/pictures.h"
#include "frame/app.h"

namespace tavrin {

namespace {

constexpr int kUsualFieldChars = 14;

int CharsWide(const QWidget* w, int chars) {
    return w->fontMetrics().horizontalAdvance(QLatin1Char('0')) * chars + 12;
}

bool IsSelector(ControlKind k) {
    return k == ControlKind::Option || k == ControlKind::Check || k == ControlKind::Combo ||
           k == ControlKind::DropDownList || k == ControlKind::ListBox || k == ControlKind::Spin;
}

Qt::WindowFlags FlagsFor(FormStyle style) {
    const Qt::WindowFlags fixedFrame = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
    switch (style) {
        case FormStyle::Home:
            return Qt::Window | fixedFrame;
        case FormStyle::Splash:
            return Qt::SplashScreen | Qt::FramelessWindowHint;
        case FormStyle::Dialog:
            break;
    }
    return Qt::Dialog | fixedFrame;
}

}  // namespace

FormView::FormView(App& app, Form& form, QWidget* owner)
    : QWidget(owner, FlagsFor(form.style())), app_(app), form_(&form) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setObjectName(form.name());
    setWindowTitle(form.title());
    for (const auto& c : form.controls()) {
        if (c->kind == ControlKind::Menu || c->kind == ControlKind::MenuItem ||
            c->kind == ControlKind::Timer) {
            continue;
        }
        if (!c->container.isEmpty() && form.has(c->container)) {
            continue;  // made inside its frame by buildRows
        }
        if (c->offLayout) {
            continue;
        }
        widgets_.insert(c->name, createWidget(*c, this));
    }
    buildMenus();
    buildRows();
    setTabOrder();
    for (const auto& c : form.controls()) {
        sync(*c);
    }
    form.setObserver(this);
    startTimers();
    place();
}

FormView::~FormView() {
    if (form_ != nullptr) {
        form_->setObserver(nullptr);
    }
}

void FormView::dropForm() {
    if (form_ != nullptr) {
        form_->setObserver(nullptr);
    }
    form_ = nullptr;
    hide();
    deleteLater();
}

QWidget* FormView::createWidget(const Control& c, QWidget* parent) {
    QWidget* w = createBareWidget(c, parent);
    if (c.keepsPlace) {
        QSizePolicy policy = w->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        w->setSizePolicy(policy);
    }
    return w;
}

QWidget* FormView::createBareWidget(const Control& c, QWidget* parent) {
    switch (c.kind) {
        case ControlKind::Label: {
            auto* label = new QLabel(parent);
            label->setTextInteractionFlags(Qt::NoTextInteraction);
            // A label whose text changes keeps one width, so the window does not jump.
            if (c.widthChars > 0) {
                label->setFixedWidth(CharsWide(label, c.widthChars));
            }
            if (c.centred) {
                label->setAlignment(Qt::AlignCenter);
            }
            return label;
        }
        case ControlKind::TextBox:
            return createTextBox(c, parent);
        case ControlKind::Button: {
            auto* button = new QPushButton(parent);
            button->setAutoDefault(false);
            button->setDefault(false);
            if (!c.picture.isEmpty()) {
                const QPixmap picture = LoadPicture(c.picture);
                button->setIcon(picture);
                button->setIconSize(picture.size());
            }
            connect(button, &QPushButton::clicked, this, [this, name = c.name] {
                if (form_ != nullptr) {
                    app_.userClick(*form_, name);
                }
            });
            return button;
        }
        case ControlKind::Option:
        case ControlKind::Check: {
            QAbstractButton* button = c.kind == ControlKind::Option
                                          ? static_cast<QAbstractButton*>(new QRadioButton(parent))
                                          : new QCheckBox(parent);
            button->setAutoExclusive(false);  // the logic turns the others off
            connect(button, &QAbstractButton::clicked, this, [this, name = c.name] {
                if (form_ != nullptr) {
                    app_.userClick(*form_, name);
                    if (form_ != nullptr) {
                        sync(form_->control(name));
                    }
                }
            });
            return button;
        }
        case ControlKind::Frame:
            return new QGroupBox(parent);
        case ControlKind::Combo:
        case ControlKind::DropDownList:
        case ControlKind::ListBox:
            return createList(c, parent);
        case ControlKind::Image: {
            auto* image = new QLabel(parent);
            image->setAlignment(Qt::AlignCenter);
            return image;
        }
        case ControlKind::Spin: {
            auto* box = new QWidget(parent);
            auto* column = new QVBoxLayout(box);
            column->setContentsMargins(0, 0, 0, 0);
            column->setSpacing(0);
            for (const int delta : {+1, -1}) {
                auto* arrow = new QToolButton(box);
                arrow->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
                arrow->setFixedSize(18, 12);
                arrow->setObjectName(c.name + (delta > 0 ? "Up" : "Down"));
                connect(arrow, &QToolButton::clicked, this, [this, name = c.name, delta] {
                    if (form_ != nullptr) {
                        app_.userSpin(*form_, name, delta);
                    }
                });
                column->addWidget(arrow);
            }
            return box;
        }
        case ControlKind::Timer:
        case ControlKind::Menu:
        case ControlKind::MenuItem:
            break;
    }
    return new QWidget(parent);
}

QWidget* FormView::createTextBox(const Control& c, QWidget* parent) {
    if (c.multiLine) {
        auto* box = new QPlainTextEdit(parent);
        // Columns of figures and G-code line up in a fixed-width font.
        box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        box->setReadOnly(c.locked);
        if (c.locked) {
            // Read-only, yet the keyboard moves, selects and copies as in any text box.
            box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        }
        box->setTabChangesFocus(true);
        box->setVerticalScrollBarPolicy(c.scrollBars == ScrollBars::None ? Qt::ScrollBarAlwaysOff
                                                                         : Qt::ScrollBarAlwaysOn);
        box->setHorizontalScrollBarPolicy(
            c.scrollBars == ScrollBars::Both ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        box->setLineWrapMode(c.scrollBars == ScrollBars::Both ? QPlainTextEdit::NoWrap
                                                              : QPlainTextEdit::WidgetWidth);
        const int lines = c.heightLines > 0 ? c.heightLines : 4;
        box->setFixedHeight(box->fontMetrics().lineSpacing() * lines + 12);
        // The characters asked for stand beside the scroll bar, not under it.
        const int bar = c.scrollBars == ScrollBars::None
                            ? 0
                            : box->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        box->setFixedWidth(CharsWide(box, c.widthChars > 0 ? c.widthChars : 40) + bar);
        connect(box, &QPlainTextEdit::textChanged, this, [this, box, name = c.name] {
            if (!syncing_ && form_ != nullptr) {
                app_.userType(*form_, name, FromDisplay(box->toPlainText()));
            }
        });
        return box;
    }
    auto* edit = new QLineEdit(parent);
    edit->setReadOnly(c.locked);
    if (c.centred) {
        edit->setAlignment(Qt::AlignCenter);
    }
    edit->setFixedWidth(CharsWide(edit, c.widthChars > 0 ? c.widthChars : kUsualFieldChars));
    connect(edit, &QLineEdit::textEdited, this, [this, name = c.name](const QString& text) {
        if (form_ != nullptr) {
            app_.userType(*form_, name, text);
        }
    });
    return edit;
}

QWidget* FormView::createList(const Control& c, QWidget* parent) {
    if (c.kind == ControlKind::ListBox) {
        auto* list = new QListWidget(parent);
        const int lines = c.heightLines > 0 ? c.heightLines : 6;
        list->setFixedHeight(list->fontMetrics().lineSpacing() * lines + 8);
        if (c.widthChars > 0) {
            list->setFixedWidth(CharsWide(list, c.widthChars));
        }
        // Only the user's own moves and clicks are Clicks: Qt also makes the
        // first row current when an empty list takes the focus.
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
        connect(list, &QListWidget::currentRowChanged, this, [this, name = c.name](int row) {
            if (syncing_ || form_ == nullptr) {
                return;
            }
            if (!listInput_ || row < 0) {
                QTimer::singleShot(0, this, [this, name] {
                    if (form_ != nullptr) {
                        sync(form_->control(name));
                    }
                });
                return;
            }
            listJustChanged_ = true;
            QTimer::singleShot(0, this, [this] { listJustChanged_ = false; });
            app_.userSelect(*form_, name, row);
        });
        // A click on the row already chosen is a Click too.
        connect(list, &QListWidget::itemClicked, this, [this, list, name = c.name] {
            if (listJustChanged_ || form_ == nullptr) {
                return;
            }
            app_.userSelect(*form_, name, list->currentRow());
        });
        return list;
    }
    auto* combo = new QComboBox(parent);
    combo->setEditable(c.kind == ControlKind::Combo);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setMinimumWidth(CharsWide(combo, c.widthChars > 0 ? c.widthChars : 24));
    connect(combo, &QComboBox::activated, this, [this, name = c.name](int index) {
        if (form_ != nullptr) {
            app_.userSelect(*form_, name, index);
            if (form_ != nullptr) {
                sync(form_->control(name));
            }
        }
    });
    if (combo->lineEdit() != nullptr) {
        connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                [this, name = c.name](const QString& text) {
                    if (form_ != nullptr) {
                        app_.userType(*form_, name, text);
                    }
                });
    }
    return combo;
}

void FormView::buildMenus() {
    for (const auto& c : form_->controls()) {
        if (c->kind != ControlKind::Menu) {
            continue;
        }
        if (menuBar_ == nullptr) {
            menuBar_ = new QMenuBar(this);
        }
        QMenu* menu = menuBar_->addMenu(c->caption);
        actions_.insert(c->name, menu->menuAction());
        for (const auto& item : form_->controls()) {
            if (item->kind == ControlKind::MenuItem && item->container == c->name) {
                QAction* action = menu->addAction(item->caption);
                actions_.insert(item->name, action);
                connect(action, &QAction::triggered, this, [this, name = item->name] {
                    if (form_ != nullptr) {
                        app_.userClick(*form_, name);
                    }
                });
            }
        }
    }
}

void FormView::buildRows() {
    // The window's size is set by fitSize, which never lets it shrink: rows
    // stand from the top, and what is hidden leaves room below.
    auto* outer = new QHBoxLayout(this);
    outer->setSizeConstraint(QLayout::SetNoConstraint);
    if (menuBar_ != nullptr) {
        outer->setMenuBar(menuBar_);
    }
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    auto* column = new QVBoxLayout;
    column->addLayout(grid);
    column->addStretch();
    outer->addLayout(column);
    int columns = 2;
    for (const Row& row : form_->rows()) {
        if (row.kind == RowKind::Fields) {
            columns = std::max(columns, static_cast<int>(row.names.size()));
        }
    }
    int r = 0;
    for (const Row& row : form_->rows()) {
        switch (row.kind) {
            case RowKind::Fields:
                for (int i = 0; i < row.names.size(); ++i) {
                    QWidget* w = widgets_.value(row.names[i]);
                    const QString next = i + 1 < row.names.size() ? row.names[i + 1] : QString();
                    if (!next.isEmpty() && form_->control(next).kind == ControlKind::Spin &&
                        form_->control(next).buddy == row.names[i]) {
                        // The arrows stand against their box, as tall as it.
                        QWidget* spin = widgets_.value(next);
                        for (QToolButton* arrow : spin->findChildren<QToolButton*>()) {
                            arrow->setFixedHeight(w->sizeHint().height() / 2);
                        }
                        auto* pair = new QHBoxLayout;
                        pair->setSpacing(0);
                        pair->addWidget(w);
                        pair->addWidget(spin);
                        grid->addLayout(pair, r, i, Qt::AlignLeft | Qt::AlignVCenter);
                        ++i;
                        continue;
                    }
                    grid->addWidget(w, r, i, Qt::AlignLeft | Qt::AlignVCenter);
                }
                break;
            case RowKind::Line: {
                auto* line = new QHBoxLayout;
                line->setSpacing(8);
                for (const QString& name : row.names) {
                    line->addWidget(widgets_.value(name), 0, Qt::AlignCenter);
                }
                grid->addLayout(line, r, 0, 1, columns, Qt::AlignHCenter);
                break;
            }
            case RowKind::Group: {
                auto* frame = static_cast<QGroupBox*>(widgets_.value(row.names.front()));
                auto* inside = new QHBoxLayout(frame);
                inside->setSpacing(16);
                for (int i = 1; i < row.names.size(); ++i) {
                    QWidget* w = createWidget(form_->control(row.names[i]), frame);
                    widgets_.insert(row.names[i], w);
                    inside->addWidget(w);
                }
                inside->addStretch();
                grid->addWidget(frame, r, 0, 1, columns);
                break;
            }
            case RowKind::Buttons: {
                auto* line = new QHBoxLayout;
                line->setSpacing(8);
                line->addStretch();
                for (const QString& name : row.names) {
                    QWidget* w = widgets_.value(name);
                    w->setMinimumWidth(std::max(w->sizeHint().width(), 90));
                    line->addWidget(w);
                }
                line->addStretch();
                grid->addLayout(line, r, 0, 1, columns);
                break;
            }
        }
        ++r;
    }
    if (!form_->side().isEmpty()) {
        outer->addWidget(widgets_.value(form_->side()), 0, Qt::AlignTop);
    }
}

void FormView::setTabOrder() {
    // Fields from the top down, then selectors, then the buttons in their order.
    QList<QWidget*> order;
    auto take = [&](auto accept) {
        for (const Row& row : form_->rows()) {
            for (const QString& name : row.names) {
                const Control& c = form_->control(name);
                QWidget* w = widgets_.value(name);
                if (w == nullptr || !accept(c) || order.contains(w)) {
                    continue;
                }
                if (c.kind == ControlKind::Spin) {
                    // Qt skips a widget that takes no focus: the arrows take the turn.
                    for (QToolButton* arrow : w->findChildren<QToolButton*>()) {
                        order << arrow;
                    }
                } else {
                    order << w;
                }
            }
        }
    };
    take([](const Control& c) { return c.kind == ControlKind::TextBox && !c.locked; });
    take([](const Control& c) { return IsSelector(c.kind); });
    take([](const Control& c) { return c.kind == ControlKind::Button; });
    take([](const Control& c) { return c.kind == ControlKind::TextBox && c.tabStop; });
    for (int i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(order[i - 1], order[i]);
    }
    for (const auto& c : form_->controls()) {
        if (c->kind == ControlKind::TextBox && !c->tabStop) {
            if (QWidget* w = widgets_.value(c->name)) {
                w->setFocusPolicy(Qt::ClickFocus);
            }
        }
    }
}

void FormView::startTimers() {
    for (const auto& c : form_->controls()) {
        if (c->kind != ControlKind::Timer) {
            continue;
        }
        auto* timer = new QTimer(this);
        timer->setInterval(c->interval);
        connect(timer, &QTimer::timeout, this, [this, name = c->name] {
            if (form_ != nullptr) {
                app_.userTimer(*form_, name);
            }
        });
        timer->start();
    }
}

void FormView::fitSize() {
    // Entry and answer layouts come and go on one window: it grows to hold
    // each, and never shrinks back, so that it does not jump as they change.
    if (kept_.isEmpty()) {
        kept_ = answerLayoutHint();
    }
    kept_ = kept_.expandedTo(layout()->totalSizeHint());
    if (size() != kept_ || minimumSize() != kept_ || maximumSize() != kept_) {
        setFixedSize(kept_);
    }
}

namespace {
// Forgets every size the layout and the layouts within it have worked out.
void InvalidateAll(QLayout* layout) {
    for (int i = 0; i < layout->count(); ++i) {
        if (QLayout* inner = layout->itemAt(i)->layout()) {
            InvalidateAll(inner);
        }
        layout->itemAt(i)->invalidate();
    }
    layout->invalidate();
}
}  // namespace

// The size the other of a window's two layouts needs, tried on the widgets
// alone and then put back, so that the window has room for both from the start.
QSize FormView::answerLayoutHint() {
    const Form::AnswerSwap& swap = form_->answerSwap();
    const auto flip = [this](const QStringList& names, bool flipped) {
        for (const QString& name : names) {
            if (QWidget* w = widget(name)) {
                w->setVisible(form_->control(name).visible != flipped);
            }
        }
    };
    flip(swap.entries, true);
    flip(swap.answer, true);
    InvalidateAll(layout());
    const QSize hint = layout()->totalSizeHint();
    flip(swap.entries, false);
    flip(swap.answer, false);
    InvalidateAll(layout());
    return hint;
}

bool FormView::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && form_ != nullptr) {
        fitSize();
    }
    return handled;
}

void FormView::keepOnScreen() {
    // Moved just enough to stand wholly on the screen (at 200% the default
    // place puts the buttons below it); the place it then has is the one stored.
    const QScreen* screen = this->screen();
    QRect placed = frameGeometry();
    if (screen == nullptr || screen->availableGeometry().contains(placed)) {
        return;
    }
    const QRect area = screen->availableGeometry();
    placed.moveRight(std::min(placed.right(), area.right()));
    placed.moveBottom(std::min(placed.bottom(), area.bottom()));
    placed.moveLeft(std::max(placed.left(), area.left()));
    placed.moveTop(std::max(placed.top(), area.top()));
    move(placed.topLeft());
    form_->setPosition(placed.x() * 1440.0 / logicalDpiX(), placed.y() * 1440.0 / logicalDpiY());
}

void FormView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // The frame is known only once the window is shown.
    if (form_ != nullptr && form_->style() == FormStyle::Home) {
        keepOnScreen();
    }
}

void FormView::place() {
    fitSize();
    QScreen* screen = this->screen();
    if (form_->style() == FormStyle::Home) {
        move(qRound(form_->left() * logicalDpiX() / 1440.0),
             qRound(form_->top() * logicalDpiY() / 1440.0));
        keepOnScreen();
        return;
    }
    if (screen != nullptr) {
        const QRect area = screen->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}

void FormView::controlChanged(const Control& control) {
    sync(control);
}

void FormView::titleChanged() {
    if (form_ != nullptr) {
        setWindowTitle(form_->title());
    }
}

void FormView::focusMoved(const Control& control) {
    if (QWidget* w = widgets_.value(control.name)) {
        w->setFocus(Qt::OtherFocusReason);
    }
}

void FormView::sync(const Control& c) {
    syncing_ = true;
    if (QAction* action = actions_.value(c.name)) {
        action->setText(c.caption);
        action->setVisible(c.visible);
        action->setEnabled(c.enabled);
    }
    QWidget* w = widgets_.value(c.name);
    if (w == nullptr) {
        syncing_ = false;
        return;
    }
    if (auto* label = qobject_cast<QLabel*>(w)) {
        if (c.kind == ControlKind::Image) {
            label->setPixmap(LoadPicture(c.picture));
        } else {
            label->setText(c.caption);
        }
    } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        if (edit->text() != c.text) {
            edit->setText(c.text);
            edit->setCursorPosition(0);
        }
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(w)) {
        const QString shown = ForDisplay(c.text);
        if (box->toPlainText() != shown) {
            box->setPlainText(shown);
        }
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        button->setText(c.caption);
        if (c.kind == ControlKind::Option || c.kind == ControlKind::Check) {
            button->setChecked(c.value);
        }
    } else if (auto* frame = qobject_cast<QGroupBox*>(w)) {
        frame->setTitle(c.caption);
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i) {
            shown << combo->itemText(i);
        }
        if (shown != c.items) {
            combo->clear();
            combo->addItems(c.items);
        }
        combo->setCurrentIndex(c.listIndex);
        if (combo->isEditable()) {
            combo->setEditText(c.text);
        }
    } else if (auto* list = qobject_cast<QListWidget*>(w)) {
        QStringList shown;
        for (int i = 0; i < list->count(); ++i) {
            shown << list->item(i)->text();
        }
        if (shown != c.items) {
            list->clear();
            list->addItems(c.items);
        }
        list->setCurrentRow(c.listIndex);
    }
    w->setEnabled(c.enabled);
    w->setVisible(c.visible);
    syncing_ = false;
}

void FormView::closeEvent(QCloseEvent* event) {
    if (form_ == nullptr) {
        event->accept();
        return;
    }
    // The logic decides: the closing step runs, and the window goes when the
    // logic unloads it.
    event->ignore();
    app_.userClose(*form_);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type t = event->type();
    if (t == QEvent::MouseButtonPress || t == QEvent::KeyPress) {
        listInput_ = true;
        QTimer::singleShot(0, this, [this] { listInput_ = false; });
    }
    return QWidget::eventFilter(watched, event);
}

void FormView::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (form_ != nullptr && form_->style() == FormStyle::Home && isVisible()) {
        form_->setPosition(pos().x() * 1440.0 / logicalDpiX(), pos().y() * 1440.0 / logicalDpiY());
    }
}

}  // namespace tavrin

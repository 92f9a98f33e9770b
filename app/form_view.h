#pragma once

#include <QHash>
#include <QWidget>

#include "frame/form.h"

class QAction;
class QGridLayout;
class QMenuBar;

namespace tavrin {

class App;

// Renders any window from its declared controls and rows, follows every
// change the logic makes, and hands every user action to the logic.
class FormView : public QWidget, public FormObserver {
    Q_OBJECT
  public:
    FormView(App& app, Form& form, QWidget* owner);
    ~FormView() override;

    // The logic unloaded the window: go without asking it again.
    void dropForm();
    QWidget* widget(const QString& name) const { return widgets_.value(name); }
    QAction* action(const QString& name) const { return actions_.value(name); }

    void controlChanged(const Control& control) override;
    void titleChanged() override;
    void focusMoved(const Control& control) override;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* createWidget(const Control& c, QWidget* parent);
    QWidget* createBareWidget(const Control& c, QWidget* parent);
    QWidget* createTextBox(const Control& c, QWidget* parent);
    QWidget* createList(const Control& c, QWidget* parent);
    void buildMenus();
    void buildRows();
    void setTabOrder();
    void startTimers();
    void fitSize();
    QSize answerLayoutHint();
    void place();
    void keepOnScreen();
    void sync(const Control& c);

    App& app_;
    Form* form_;
    QHash<QString, QWidget*> widgets_;
    QHash<QString, QAction*> actions_;
    QMenuBar* menuBar_ = nullptr;
    QSize kept_;  // the largest size the window's layouts have needed
    bool syncing_ = false;
    bool listJustChanged_ = false;
    bool listInput_ = false;  // a key or mouse press on a list is being handled
};

}  // namespace tavrin

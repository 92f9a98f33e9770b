#include "app/qt_ui.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QTime>
#include <QTimer>
#include <cstdlib>

#include "app/display_text.h"
#include "app/form_view.h"
#include "app/path_view.h"
#include "frame/app.h"

namespace tavrin {

namespace {

QWidget* ActiveParent() {
    return QApplication::activeWindow();
}

}  // namespace

FormView* QtUi::viewOf(const Form& form) const {
    return views_.value(&form);
}

PathWindow* QtUi::pathOf(const Form& form) const {
    return paths_.value(&form);
}

FormView* QtUi::ensureView(Form& form) {
    FormView* view = views_.value(&form);
    if (view == nullptr) {
        FormView* home = nullptr;
        if (Form* h = app_->find(QStringLiteral("frmHome")); h != nullptr && h != &form) {
            home = views_.value(h);
        }
        view = new FormView(*app_, form, home);
        views_.insert(&form, view);
    }
    return view;
}

void QtUi::showWindow(Form& form) {
    FormView* view = ensureView(form);
    view->show();
    view->raise();
    view->activateWindow();
}

void QtUi::showModal(Form& form) {
    FormView* view = ensureView(form);
    view->setWindowModality(Qt::ApplicationModal);
    view->show();
    view->raise();
    view->activateWindow();
    // As QDialog::exec: a loop of its own until the window is hidden or goes.
    QEventLoop loop;
    modalLoops_.insert(&form, &loop);
    QObject::connect(view, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::DialogExec);
    modalLoops_.remove(&form);
}

void QtUi::hideWindow(Form& form) {
    if (FormView* view = views_.value(&form)) {
        view->hide();
    }
    if (QEventLoop* loop = modalLoops_.value(&form)) {
        loop->quit();
    }
}

void QtUi::windowUnloaded(Form& form) {
    paths_.remove(&form);  // the path window goes with its owner's view
    if (FormView* view = views_.take(&form)) {
        view->dropForm();
    }
    if (QEventLoop* loop = modalLoops_.value(&form)) {
        loop->quit();
    }
}

void QtUi::message(const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Warning, title, ForDisplay(text), QMessageBox::Ok, ActiveParent());
    box.exec();
}

bool QtUi::question(const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Warning, title, ForDisplay(text),
                    QMessageBox::Yes | QMessageBox::No, ActiveParent());
    return box.exec() == QMessageBox::Yes;
}

void QtUi::fatal(const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Critical, title, ForDisplay(text), QMessageBox::Ok,
                    ActiveParent());
    box.exec();
    std::_Exit(3);
}

void QtUi::processEvents() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtUi::waitForEvents() {
    // The timer is the event that ends the wait when nothing else comes.
    QTimer tick;
    tick.setSingleShot(true);
    tick.start(10);
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

bool QtUi::startProgram(const QString& program) {
    return QProcess::startDetached(program, {});
}

float QtUi::secondsSinceMidnight() {
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0f;
}

QString QtUi::saveFileName(const QString& title, const QString& start, const QStringList& filters,
                           int& filter) {
    QFileDialog dialog(ActiveParent(), title, start);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    // The dialog adds the chosen type's extension itself, so that it can ask
    // before overwriting the file that name really means.
    const auto extension = [](const QString& filter) {
        const auto star = filter.lastIndexOf(QStringLiteral("*."));
        return star < 0 ? QString() : filter.mid(star + 2).chopped(1);
    };
    dialog.setDefaultSuffix(extension(filters.value(0)));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& chosen) { dialog.setDefaultSuffix(extension(chosen)); });
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
    filter = static_cast<int>(filters.indexOf(dialog.selectedNameFilter()));
    return dialog.selectedFiles().value(0);
}

void QtUi::setClipboardText(const QString& text) {
    // As the answer box's own copy gives it: the desktop's line ends.
    QGuiApplication::clipboard()->setText(ForDisplay(text));
}

void QtUi::showPath(Form& form, const PathPlot& plot) {
    QPointer<PathWindow>& window = paths_[&form];
    if (window == nullptr) {
        // A child of the generator's view: it closes and goes with it.
        window = new PathWindow(views_.value(&form));
    }
    window->setPlot(plot);
    window->show();
    window->raise();
    window->activateWindow();
}

void QtUi::quit() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace tavrin

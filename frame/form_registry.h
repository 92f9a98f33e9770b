#pragma once

#include <QString>
#include <QStringList>

namespace tavrin {

class Form;

// Declares a window's controls, layout and handlers on a fresh form.
using FormBuildFn = void (*)(Form&);

// Each window file holds one of these, naming the window and its build
// function; nothing else in the tree needs to know the window exists.
class FormRegistration {
  public:
    FormRegistration(const char* name, FormBuildFn build);
};

FormBuildFn FindFormBuilder(const QString& name);
QStringList RegisteredFormNames();

}  // namespace tavrin

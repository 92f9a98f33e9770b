#include "frame/form_registry.h"

#include <QMap>
#include <stdexcept>

namespace tavrin {

namespace {
QMap<QString, FormBuildFn>& Builders() {
    static QMap<QString, FormBuildFn> builders;
    return builders;
}
}  // namespace

FormRegistration::FormRegistration(const char* name, FormBuildFn build) {
    const QString key = QString::fromLatin1(name);
    if (Builders().contains(key)) {
        throw std::logic_error(std::string("window registered twice: ") + name);
    }
    Builders().insert(key, build);
}

FormBuildFn FindFormBuilder(const QString& name) {
    return Builders().value(name, nullptr);
}

QStringList RegisteredFormNames() {
    return Builders().keys();
}

}  // namespace tavrin

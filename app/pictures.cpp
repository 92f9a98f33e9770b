#include "app/pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tavrin {

namespace {

QString SvgPath(const QString& name) {
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

QString PngPath(const QString& name) {
    return QStringLiteral(":/pictures/%1.png").arg(name);
}

}  // namespace

bool PictureExists(const QString& name) {
    return QFile::exists(SvgPath(name)) || QFile::exists(PngPath(name));
}

QPixmap LoadPicture(const QString& name) {
    if (QFile::exists(SvgPath(name))) {
        QSvgRenderer renderer(SvgPath(name));
        QPixmap pixmap(renderer.defaultSize());
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        return pixmap;
    }
    if (QFile::exists(PngPath(name))) {
        return QPixmap(PngPath(name));
    }
    qWarning("no picture %s", qPrintable(name));
    return QPixmap();
}

}  // namespace tavrin

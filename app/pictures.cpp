#include "app/pictures.h"

#include <QFile>
#include <QFileInfo>
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

// A full path names a picture file the logic has found, such as the dove
// tail bitmaps beside the program.
bool PictureExists(const QString& name) {
    if (QFileInfo(name).isAbsolute()) {
        return QFile::exists(name);
    }
    return QFile::exists(SvgPath(name)) || QFile::exists(PngPath(name));
}

QPixmap LoadPicture(const QString& name) {
    if (name.isEmpty()) {
        return QPixmap();  // an image emptied on purpose
    }
    if (QFileInfo(name).isAbsolute()) {
        return QPixmap(name);
    }
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

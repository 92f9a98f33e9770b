#include "app/pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tavrin {

QPixmap LoadPicture(const QString& name) {
    const QString svg = QStringLiteral(":/pictures/%1.svg").arg(name);
    if (QFile::exists(svg)) {
        QSvgRenderer renderer(svg);
        QPixmap pixmap(renderer.defaultSize());
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        return pixmap;
    }
    const QString png = QStringLiteral(":/pictures/%1.png").arg(name);
    return QFile::exists(png) ? QPixmap(png) : QPixmap();
}

}  // namespace tavrin

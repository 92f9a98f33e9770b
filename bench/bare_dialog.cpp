// The yardstick for start-up: a bare Qt dialog of the same kind as a Tavrin
// window (labels, fields, buttons, an SVG picture), built the same way and
// doing nothing else. scripts/bench runs it beside tavrin.

#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QDialog dialog;
    dialog.setWindowTitle("Bare dialog");
    auto* rows = new QVBoxLayout(&dialog);
    auto* fields = new QFormLayout;
    for (const char* caption : {"Cutter Size or Diameter", "Surface Feet Per Minute"}) {
        fields->addRow(caption, new QLineEdit);
    }
    rows->addLayout(fields);
    QSvgRenderer svg(QStringLiteral(TAVRIN_PICTURE));
    QPixmap picture(svg.defaultSize());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    svg.render(&painter);
    painter.end();
    auto* image = new QLabel;
    image->setPixmap(picture);
    rows->addWidget(image);
    for (const char* caption : {"Calculate", "Clear All"}) {
        rows->addWidget(new QPushButton(caption));
    }
    dialog.show();
    return application.exec();
}

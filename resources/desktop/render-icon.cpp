// Renders one SVG icon into PNG files of the sizes the hicolor theme asks for, at build time,
// so that the PNGs always match the SVG they come from and nothing rendered is checked in.
//
//   tavrin-render-icon INPUT.svg SIZE=OUTPUT.png...
//
// It paints on a QImage with the raster engine only: no platform plugin and no display are
// needed, so it runs in a package build or a CI container.

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextStream>

#include <cstdlib>

namespace {

struct Target {
    int size = 0;
    QString path;
};

bool parseTarget(const QString& argument, Target& target)
{
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    if (equals <= 0 || equals == argument.size() - 1)
        return false;
    bool ok = false;
    target.size = argument.left(equals).toInt(&ok);
    target.path = argument.mid(equals + 1);
    // hicolor stops at 512; anything larger is a typo, not an icon.
    return ok && target.size > 0 && target.size <= 1024;
}

bool render(QSvgRenderer& renderer, const Target& target)
{
    QImage image(target.size, target.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        // The view box is square for every icon of ours; a non-square one is centred rather
        // than stretched.
        const QSizeF box = renderer.viewBoxF().size();
        const qreal scale = target.size / qMax(box.width(), box.height());
        const QSizeF drawn = box * scale;
        renderer.render(&painter, QRectF(QPointF((target.size - drawn.width()) / 2,
                                                 (target.size - drawn.height()) / 2),
                                         drawn));
    }
    return image.convertToFormat(QImage::Format_ARGB32).save(target.path, "PNG");
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() < 2) {
        err << "usage: tavrin-render-icon INPUT.svg SIZE=OUTPUT.png...\n";
        return 2;
    }

    QSvgRenderer renderer(arguments.first());
    if (!renderer.isValid() || renderer.viewBoxF().isEmpty()) {
        err << "tavrin-render-icon: cannot read " << arguments.first() << " as SVG\n";
        return EXIT_FAILURE;
    }

    for (const QString& argument : arguments.mid(1)) {
        Target target;
        if (!parseTarget(argument, target)) {
            err << "tavrin-render-icon: expected SIZE=OUTPUT.png, got " << argument << '\n';
            return 2;
        }
        if (!render(renderer, target)) {
            err << "tavrin-render-icon: cannot write " << target.path << '\n';
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}

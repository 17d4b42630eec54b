#ifndef NOCTURNE_TESTSUPPORT_H
#define NOCTURNE_TESTSUPPORT_H

#include "qtversion.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// main() of a widget test: without a display and at 96 DPI, unless the caller chose otherwise, and
/// with the font that Qt 5 starts with.
#define NOCTURNE_TEST_MAIN(TestClass) \
    int main(int argc, char *argv[]) \
    { \
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) \
            qputenv("QT_QPA_PLATFORM", "offscreen"); \
        qputenv("QT_FONT_DPI", "96"); \
        QApplication app(argc, argv); \
        if (QtVersion::isQt6) \
            QApplication::setFont(QFont(QStringLiteral("Sans"), 12)); \
        TestClass test; \
        return QTest::qExec(&test, argc, argv); \
    }

namespace TestSupport {

/// What \a paint draws on a \a background of \a size units, at \a ratio device pixels per unit.
template <typename Paint>
QImage paintOn(const QSize &size, const QColor &background, Paint paint, qreal ratio = 1.0)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(background);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/// What \a widget paints with its children over a transparent surface.
inline QImage render(QWidget &widget, qreal ratio = 1.0)
{
    const auto paint = [&widget](QPainter &painter) {
        widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    };
    return paintOn(widget.size(), Qt::transparent, paint, ratio);
}

/// Opaque result of \a top over \a bottom, as the raster engine blends it.
inline QColor blended(const QColor &top, const QColor &bottom)
{
    const auto paint = [&top](QPainter &painter) { painter.fillRect(0, 0, 1, 1, top); };
    return paintOn(QSize(1, 1), bottom, paint).pixelColor(0, 0);
}

/// How many device pixels of \a area have exactly \a color.
inline int count(const QImage &image, const QRect &area, const QColor &color)
{
    int hits = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            hits += image.pixelColor(x, y) == color;
    }
    return hits;
}

/// Whether all of \a area has exactly \a color.
inline bool isFilled(const QImage &image, const QRect &area, const QColor &color)
{
    return count(image, area, color) == area.width() * area.height();
}

/// Fails with both colours and the place where one of the device pixels at \a points is not
/// \a color.
inline void comparePixels(const QImage &image, const QColor &color, const QVector<QPoint> &points)
{
    const auto nameAt = [](const QPoint &point, const QColor &color) {
        return QStringLiteral("%1,%2 ").arg(point.x()).arg(point.y()) + color.name(QColor::HexArgb);
    };
    for (const QPoint &point : points)
        QCOMPARE(nameAt(point, image.pixelColor(point)), nameAt(point, color));
}

} // namespace TestSupport

#define COMPARE_PIXEL(image, x, y, color) TestSupport::comparePixels(image, color, {{x, y}})

#endif

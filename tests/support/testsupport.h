#ifndef NOCTURNE_TESTSUPPORT_H
#define NOCTURNE_TESTSUPPORT_H

#include "qtversion.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// main() of a widget test: without a display and at 96 DPI, unless the caller chose otherwise.
#define NOCTURNE_TEST_MAIN(TestClass) \
    int main(int argc, char *argv[]) \
    { \
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) \
            qputenv("QT_QPA_PLATFORM", "offscreen"); \
        qputenv("QT_FONT_DPI", "96"); \
        QApplication app(argc, argv); \
        QtVersion::setUpFont(); \
        TestClass test; \
        return QTest::qExec(&test, argc, argv); \
    }

namespace TestSupport {

/// What \a widget paints with its children over a transparent surface, at \a ratio device pixels
/// per unit.
inline QImage render(QWidget &widget, qreal ratio = 1.0)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// What \a paint draws on a \a background of \a size units.
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

/// Opaque result of \a top over \a bottom, as the raster engine blends it.
inline QColor blended(const QColor &top, const QColor &bottom)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(bottom);
    QPainter painter(&image);
    painter.fillRect(0, 0, 1, 1, top);
    painter.end();
    return image.pixelColor(0, 0);
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

} // namespace TestSupport

/// Fails with both colours and the place when the device pixel at x, y differs.
#define COMPARE_PIXEL(image, x, y, expected) \
    do { \
        const QColor actualColor = (image).pixelColor(x, y); \
        const QColor expectedColor = QColor(expected); \
        QVERIFY2(actualColor.rgba() == expectedColor.rgba(), \
                 qPrintable(QStringLiteral("pixel (%1, %2) is %3, expected %4") \
                                .arg(x) \
                                .arg(y) \
                                .arg(actualColor.name(QColor::HexArgb), \
                                     expectedColor.name(QColor::HexArgb)))); \
    } while (false)

namespace TestSupport {

/// Fails where one of the device pixels at \a points is not \a color.
inline void comparePixels(const QImage &image, const QColor &color, const QVector<QPoint> &points)
{
    for (const QPoint &point : points)
        COMPARE_PIXEL(image, point.x(), point.y(), color);
}

} // namespace TestSupport

#endif

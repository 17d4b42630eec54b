#ifndef NOCTURNE_TOOLKITEXPORTS_P_H
#define NOCTURNE_TOOLKITEXPORTS_P_H

#include <QtGui/QPalette>
#include <QtWidgets/qtwidgetsglobal.h>

class QImage;
class QPainter;

// Functions that the toolkit exports but declares in none of its public headers.

/// Draws \a image, blurred by \a radius pixels, at the painter's origin. \a image is used up.
Q_WIDGETS_EXPORT void qt_blurImage(QPainter *painter, QImage &image, qreal radius, bool quality,
                                   bool alphaOnly, int transposed = 0);

/// The standard palette of the built-in Fusion style.
Q_GUI_EXPORT QPalette qt_fusionPalette();

/// The logical DPI of the primary screen.
Q_GUI_EXPORT int qt_defaultDpiX();

#endif

#include "devicepixels_p.h"

#include <QtGui/QPainter>

int Nocturne::wholeRatio(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    const int ratio = qRound(transform.m11());
    const QTransform whole(ratio, 0, 0, ratio, qRound(transform.dx()), qRound(transform.dy()));
    return ratio > 0 && transform == whole ? ratio : 0;
}

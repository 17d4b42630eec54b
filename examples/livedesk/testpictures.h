#ifndef TESTPICTURES_H
#define TESTPICTURES_H

#include <QtGui/QImage>

struct Look;

constexpr int testPatternCount = 4;
constexpr QSize pictureSize(640, 360);

/// The picture of \a frame, counted from 0, in one of the test patterns: colour bars, a grey ramp,
/// a grid with a sweeping line, a clock.
QImage testPicture(int pattern, int frame);

/// \a picture with levels, ramp and position of \a look. \a colorTable holds the ramp as 256
/// colours 0xffRRGGBB.
QImage graded(QImage picture, const Look &look, const QVector<unsigned int> &colorTable);

/// \a share, 0.0 to 1.0, of \a over on top of \a under.
QImage mixed(const QImage &under, const QImage &over, double share);

#endif

#include "testpictures.h"

#include "deskstate.h"

#include <QtGui/QPainter>

#include <array>

namespace {

void paintBars(QPainter &painter, int frame)
{
    const std::array<QColor, 8> bars{Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                                     Qt::magenta, Qt::red,    Qt::blue, Qt::black};
    const int width = pictureSize.width() / int(bars.size());
    for (std::size_t i = 0; i < bars.size(); ++i)
        painter.fillRect(int(i) * width, 0, width, pictureSize.height(), bars[i]);
    const int x = frame * 4 % pictureSize.width();
    painter.fillRect(x, pictureSize.height() - 40, 40, 40, QColor(40, 40, 40));
}

void paintRamp(QPainter &painter, int frame)
{
    QLinearGradient ramp(0, 0, pictureSize.width(), 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, Qt::white);
    painter.fillRect(QRect(QPoint(), pictureSize), ramp);
    const int x = frame * 3 % pictureSize.width();
    painter.fillRect(x, 0, 4, pictureSize.height() / 2, QColor(128, 128, 128));
}

void paintGrid(QPainter &painter, int frame)
{
    painter.fillRect(QRect(QPoint(), pictureSize), QColor(24, 28, 36));
    painter.setPen(QColor(90, 100, 120));
    for (int i = 0; i < pictureSize.width(); i += 40) {
        painter.drawLine(i, 0, i, pictureSize.height());
        painter.drawLine(0, i, pictureSize.width(), i);
    }
    painter.fillRect(frame * 5 % pictureSize.width(), 0, 6, pictureSize.height(),
                     QColor(240, 200, 80));
}

void paintClock(QPainter &painter, int frame)
{
    painter.fillRect(QRect(QPoint(), pictureSize), QColor(60, 30, 40));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(230, 120, 60));
    const int turn = 360 * 16 * (frame % 100) / 100;
    painter.drawPie(QRect(200, 60, 240, 240), 90 * 16, -turn);
}

QRgb mixedColor(QRgb under, QRgb over, int share256)
{
    const auto mix = [=](int a, int b) { return a + (b - a) * share256 / 256; };
    return qRgb(mix(qRed(under), qRed(over)), mix(qGreen(under), qGreen(over)),
                mix(qBlue(under), qBlue(over)));
}

} // namespace

QImage testPicture(int pattern, int frame)
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    const std::array patterns{paintBars, paintRamp, paintGrid, paintClock};
    static_assert(patterns.size() == testPatternCount);
    patterns.at(pattern)(painter, frame);
    return picture;
}

QImage graded(QImage picture, const Look &look, const QVector<unsigned int> &colorTable)
{
    std::array<int, 256> levels;
    for (int i = 0; i < 256; ++i)
        levels[i] = qBound(0, (i - look.black) * 255 / qMax(1, look.white - look.black), 255);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb level =
                qRgb(levels[qRed(line[x])], levels[qGreen(line[x])], levels[qBlue(line[x])]);
            line[x] = mixedColor(level, colorTable.at(qGray(level)), look.amount * 256 / 100);
        }
    }
    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(Qt::black);
    QPainter(&result).drawImage(look.x, look.y, picture);
    return result;
}

QImage mixed(const QImage &under, const QImage &over, double share)
{
    QImage result(under);
    QPainter painter(&result);
    painter.setOpacity(share);
    painter.drawImage(0, 0, over);
    return result;
}

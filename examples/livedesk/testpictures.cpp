#include "testpictures.h"

#include "deskstate.h"

#include <QtGui/QPainter>

#include <array>

namespace {

constexpr int framesPerTurn = 100;

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
    for (int x = 0; x < pictureSize.width(); x += 40)
        painter.drawLine(x, 0, x, pictureSize.height());
    for (int y = 0; y < pictureSize.height(); y += 40)
        painter.drawLine(0, y, pictureSize.width(), y);
    painter.fillRect(frame * 5 % pictureSize.width(), 0, 6, pictureSize.height(),
                     QColor(240, 200, 80));
}

void paintClock(QPainter &painter, int frame)
{
    painter.fillRect(QRect(QPoint(), pictureSize), QColor(60, 30, 40));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(230, 120, 60));
    painter.drawPie(QRect(200, 60, 240, 240), 90 * 16,
                    -360 * 16 * (frame % framesPerTurn) / framesPerTurn);
}

unsigned int mixedColor(unsigned int under, unsigned int over, int share256)
{
    const auto channel = [=](int shift) {
        const int a = int(under >> shift & 0xff);
        const int b = int(over >> shift & 0xff);
        return static_cast<unsigned int>(a + (b - a) * share256 / 256) << shift;
    };
    return 0xff000000u | channel(16) | channel(8) | channel(0);
}

} // namespace

QImage testPicture(int pattern, int frame)
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    switch (pattern) {
    case 0:
        paintBars(painter, frame);
        break;
    case 1:
        paintRamp(painter, frame);
        break;
    case 2:
        paintGrid(painter, frame);
        break;
    default:
        paintClock(painter, frame);
        break;
    }
    return picture;
}

QImage graded(const QImage &picture, const Look &look, const QVector<unsigned int> &colorTable)
{
    std::array<int, 256> levels;
    for (int i = 0; i < 256; ++i)
        levels[i] = qBound(0, (i - look.black) * 255 / qMax(1, look.white - look.black), 255);
    const int share = look.amount * 256 / 100;

    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(Qt::black);
    const QRect shown = QRect(look.position, picture.size()).intersected(picture.rect());
    for (int y = shown.top(); y <= shown.bottom(); ++y) {
        const auto *source =
            reinterpret_cast<const QRgb *>(picture.constScanLine(y - look.position.y()));
        auto *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = shown.left(); x <= shown.right(); ++x) {
            const QRgb pixel = source[x - look.position.x()];
            const QRgb level =
                qRgb(levels[qRed(pixel)], levels[qGreen(pixel)], levels[qBlue(pixel)]);
            target[x] = mixedColor(level, colorTable.at(qGray(level)), share);
        }
    }
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

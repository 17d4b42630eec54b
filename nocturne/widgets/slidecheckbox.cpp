#include "slidecheckbox.h"

#include <QtGui/QPainter>

namespace {

constexpr int textHeight = 28;
constexpr QRgb onColor = 0xff3232ff;  // rgb(50, 50, 255)
constexpr QRgb offColor = 0xff323232; // rgb(50, 50, 50)

QFont switchFont(QFont font)
{
    font.setFamily(QStringLiteral("Courier New"));
    font.setPixelSize(textHeight);
    return font;
}

} // namespace

SlideCheckBox::SlideCheckBox(QWidget *parent)
    : QCheckBox(parent)
{}

bool SlideCheckBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void SlideCheckBox::paintEvent(QPaintEvent *)
{
    const int w = width();
    const int h = height();
    const int radius = h / 2;
    const bool on = isChecked();

    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(switchFont(painter.font()));

    painter.setBrush(QColor(on ? onColor : offColor));
    painter.drawRoundedRect(0, 0, w - 2, h - 2, radius, radius);
    painter.setBrush(Qt::white);
    painter.drawEllipse(on ? w - h : 0, 0, h, h);
    painter.drawText(on ? w / 4 : w / 2, int(h / 1.5),
                     on ? QStringLiteral("On") : QStringLiteral("Off"));
}

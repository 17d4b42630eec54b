#include "gallerypage.h"

#include <nocturne/ProgressBar>
#include <nocturne/ProgressIndicator>
#include <nocturne/RoundProgressBar>

#include <QtCore/QTimer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int tickMilliseconds = 40;
constexpr double startShare = 0.65;

QFont fontOf(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

struct RingSample
{
    const char *title;
    const char *format;
    RoundProgressBar::BarStyle style;
    double maximum;
    bool unitMode;
    int decimals;
};

const RingSample ringSamples[] = {
    {QT_TRANSLATE_NOOP("Gallery", "Render"), "%p%", RoundProgressBar::DonutStyle, 100, false, 0},
    {QT_TRANSLATE_NOOP("Gallery", "Stream"), "%byte", RoundProgressBar::DonutStyle, 8e6, true, 1},
    {QT_TRANSLATE_NOOP("Gallery", "Clients"), "%connect", RoundProgressBar::DonutStyle, 12, true,
     0},
    {QT_TRANSLATE_NOOP("Gallery", "Buffer"), "%p%", RoundProgressBar::PieStyle, 250, true, 1},
    {QT_TRANSLATE_NOOP("Gallery", "Level"), "%v", RoundProgressBar::LineStyle, 10, false, 2},
};

QWidget *createRings(QTimer *timer)
{
    auto *box = new QGroupBox(Gallery::tr("Rings"));
    auto *row = new QHBoxLayout(box);
    for (const RingSample &sample : ringSamples) {
        auto *ring = new RoundProgressBar;
        ring->setMinimumSize(ring->minimumSizeHint());
        ring->setRange(0, sample.maximum);
        ring->setDecimals(sample.decimals);
        ring->setFormat(QLatin1String(sample.format));
        ring->setBarStyle(sample.style);
        ring->setOutlinePenWidth(6);
        ring->setDataPenWidth(6);
        ring->setTitle(Gallery::tr(sample.title), fontOf(13), fontOf(26), sample.unitMode ? 0.9 : 0,
                       sample.unitMode);
        const double step = sample.maximum / 200;
        QObject::connect(timer, &QTimer::timeout, ring, [ring, step] {
            ring->setValue(ring->value() >= ring->maximum() ? ring->minimum()
                                                            : ring->value() + step);
        });
        // A ring takes no value before it is visible.
        const double start = sample.maximum * startShare;
        QTimer::singleShot(0, ring, [ring, start] { ring->setValue(start); });
        row->addWidget(ring);
    }
    return box;
}

QWidget *createBars(QTimer *timer)
{
    auto *box = new QGroupBox(Gallery::tr("Bars"));
    auto *grid = new QGridLayout(box);
    const int shares[] = {0, 3, 50, 100};
    int row = 0;
    for (int share : shares) {
        for (bool full : {false, true}) {
            auto *bar = new ProgressBar;
            bar->setRange(0, 100);
            bar->setValue(share);
            bar->setFullSize(full);
            grid->addWidget(bar, row, full ? 1 : 0);
        }
        ++row;
    }
    auto *moving = new ProgressBar;
    moving->setRange(0, 500);
    moving->setValue(120);
    QObject::connect(timer, &QTimer::timeout, moving,
                     [moving] { moving->setValue((moving->value() + 1) % 501); });
    grid->addWidget(moving, row, 0, 1, 2);
    return box;
}

QWidget *createWheels()
{
    auto *box = new QGroupBox(Gallery::tr("Busy wheels"));
    auto *row = new QHBoxLayout(box);
    const int sides[] = {16, 20, 32, 40, 64};
    for (int side : sides) {
        auto *wheel = new ProgressIndicator;
        wheel->setFixedSize(side, side);
        wheel->setColor(QColor(65, 155, 249));
        wheel->startAnimation();
        row->addWidget(wheel);
    }
    auto *stopped = new ProgressIndicator;
    stopped->setFixedSize(40, 40);
    stopped->setColor(QColor(0xbb, 0xbb, 0xbb));
    row->addWidget(stopped);
    auto *turn = new QCheckBox(Gallery::tr("Turn the grey one"));
    QObject::connect(turn, &QCheckBox::toggled, stopped, [stopped](bool on) {
        if (on)
            stopped->startAnimation();
        else
            stopped->stopAnimation();
    });
    row->addWidget(turn);
    row->addStretch();
    return box;
}

QWidget *createProgressPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *column = new QVBoxLayout(page);
    auto *timer = new QTimer(page);
    column->addWidget(createRings(timer));
    column->addWidget(createBars(timer));
    column->addWidget(createWheels());
    column->addStretch();
    timer->start(tickMilliseconds);
    return page;
}

} // namespace

GALLERY_PAGE(330, "progress", QT_TRANSLATE_NOOP("Gallery", "Progress"), createProgressPage)

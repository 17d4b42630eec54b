#include "gallerypage.h"

#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>
#include <nocturne/SpanSlider>

#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int longestLog = 500;
constexpr int frameCount = 1500;

/// Minutes, seconds and frames.
QString timecode(int frame, double frameRate)
{
    const int rate = qMax(1, qRound(frameRate));
    const auto two = [](int number) {
        return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
    };
    return QStringLiteral("%1:%2:%3")
        .arg(two(frame / rate / 60), two(frame / rate % 60), two(frame % rate));
}

/// The clip above its range slider: what is trimmed away is dark, the play-head is a line.
class ClipStrip : public QWidget
{
public:
    explicit ClipStrip(RangeSlider *slider)
        : m_slider(slider)
    {
        setMinimumHeight(70);
        const auto repaint = [this] { update(); };
        connect(slider, &RangeSlider::minimumValueChanged, this, repaint);
        connect(slider, &RangeSlider::maximumValueChanged, this, repaint);
        connect(slider, &RangeSlider::mainValueChanged, this, repaint);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QPalette &colors = DarkUX::getInstance().palette();
        painter.fillRect(rect(), colors.color(QPalette::Base));
        painter.setPen(QColor(65, 155, 249));
        for (int frame = 0; frame <= frameCount; frame += 4) {
            // A made-up waveform: two beats that drift apart.
            const int loudness = (frame * 37 % 97 + frame * 11 % 61) * height() / 400;
            const int x = xOf(frame);
            painter.drawLine(x, height() / 2 - loudness, x, height() / 2 + loudness);
        }
        const int in = xOf(m_slider->minimumValue());
        const int out = xOf(m_slider->maximumValue());
        const QColor shade(0, 0, 0, 150);
        painter.fillRect(QRect(QPoint(0, 0), QPoint(qMin(in, out) - 1, height())), shade);
        painter.fillRect(QRect(QPoint(qMax(in, out) + 1, 0), QPoint(width(), height())), shade);
        painter.setPen(colors.color(QPalette::Active, QPalette::HighlightedText));
        painter.drawLine(xOf(m_slider->mainValue()), 0, xOf(m_slider->mainValue()), height());
    }

private:
    int xOf(int frame) const
    {
        const int halfHandle = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, m_slider) / 2;
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        return halfHandle
               + QStyle::sliderPositionFromValue(0, frameCount, frame, width() - 2 * halfHandle,
                                                 mirrored);
    }

    RangeSlider *m_slider;
};

/// Lets \a log show what \a slider reports.
void logSignals(RangeSlider *slider, QPlainTextEdit *log)
{
    const auto one = [log](const char *name) {
        return [log, name](int value) {
            log->appendPlainText(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(value));
        };
    };
    const auto three = [log](const char *name) {
        return [log, name](int a, int b, int c) {
            log->appendPlainText(
                QStringLiteral("%1(%2, %3, %4)").arg(QLatin1String(name)).arg(a).arg(b).arg(c));
        };
    };
    QObject::connect(slider, &RangeSlider::minimumValueChanged, log, one("minimumValueChanged"));
    QObject::connect(slider, &RangeSlider::maximumValueChanged, log, one("maximumValueChanged"));
    QObject::connect(slider, &RangeSlider::mainValueChanged, log, one("mainValueChanged"));
    QObject::connect(slider, &RangeSlider::valuesChanged, log, three("valuesChanged"));
    QObject::connect(slider, &RangeSlider::minimumPositionChanged, log,
                     one("minimumPositionChanged"));
    QObject::connect(slider, &RangeSlider::maximumPositionChanged, log,
                     one("maximumPositionChanged"));
    QObject::connect(slider, &RangeSlider::mainPositionChanged, log, one("mainPositionChanged"));
    QObject::connect(slider, &RangeSlider::positionsChanged, log, three("positionsChanged"));
    QObject::connect(slider, &RangeSlider::sliderMoveChanged, log, three("sliderMoveChanged"));
    QObject::connect(slider, &RangeSlider::mousePressed, log, one("mousePressed"));
    QObject::connect(slider, &RangeSlider::mouseReleased, log, one("mouseReleased"));
}

/// Keeps the play-head of \a slider going round between its range handles while \a play is down.
void addPlayback(RangeSlider *slider, ClipStrip *strip, QPushButton *play)
{
    auto *timer = new QTimer(slider);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setInterval(qRound(1000.0 / slider->frameRate()));
    QObject::connect(timer, &QTimer::timeout, slider, [slider, strip] {
        if (slider->isMousePressed())
            return;
        const int next = slider->mainValue() + 1;
        const bool inside = next >= slider->minimumValue() && next <= slider->maximumValue();
        slider->positionChange(inside ? next : slider->minimumValue());
        strip->update();
    });
    play->setCheckable(true);
    QObject::connect(play, &QPushButton::toggled, timer, [timer](bool on) {
        if (on)
            timer->start();
        else
            timer->stop();
    });
    play->setChecked(true);
}

QCheckBox *addOption(QBoxLayout *layout, const char *name, bool checked)
{
    auto *box = new QCheckBox(Gallery::tr(name));
    box->setChecked(checked);
    layout->addWidget(box);
    return box;
}

QGroupBox *createTimeline(QPlainTextEdit *log)
{
    auto *box = new QGroupBox(Gallery::tr("Trim a clip"));
    auto *layout = new QVBoxLayout(box);
    auto *slider = new RangeSlider(Qt::Horizontal);
    slider->setRange(0, frameCount);
    slider->setEnableRange(true);
    slider->setHandleToolTip(Gallery::tr("Frame %1"));
    slider->setValues(100, 1350, 450);
    auto *strip = new ClipStrip(slider);
    auto *times = new QLabel;
    const auto showTimes = [slider, times] {
        const double rate = slider->frameRate();
        times->setText(Gallery::tr("In %1   Out %2   Length %3")
                           .arg(timecode(slider->minimumValue(), rate),
                                timecode(slider->maximumValue(), rate),
                                timecode(slider->maximumValue() - slider->minimumValue(), rate)));
    };
    QObject::connect(slider, &RangeSlider::minimumValueChanged, times, showTimes);
    QObject::connect(slider, &RangeSlider::maximumValueChanged, times, showTimes);
    showTimes();

    auto *options = new QHBoxLayout;
    auto *play = new QPushButton(Gallery::tr("Play"));
    options->addWidget(play);
    QCheckBox *range = addOption(options, QT_TRANSLATE_NOOP("Gallery", "Range handles"), true);
    QCheckBox *symmetric =
        addOption(options, QT_TRANSLATE_NOOP("Gallery", "Symmetric moves"), false);
    QCheckBox *tracking = addOption(options, QT_TRANSLATE_NOOP("Gallery", "Tracking"), true);
    options->addStretch();
    QObject::connect(range, &QCheckBox::toggled, slider, &RangeSlider::setEnableRange);
    QObject::connect(symmetric, &QCheckBox::toggled, slider, &RangeSlider::setSymmetricMoves);
    QObject::connect(tracking, &QCheckBox::toggled, slider, &QSlider::setTracking);

    // Without tracking the values wait for someone to commit them; this page does on release.
    QObject::connect(slider, &RangeSlider::mouseReleased, slider, [slider] {
        slider->setValues(slider->minimumPosition(), slider->maximumPosition(),
                          slider->mainPosition());
    });

    layout->addWidget(strip);
    layout->addWidget(slider);
    layout->addWidget(times);
    layout->addLayout(options);
    logSignals(slider, log);
    for (int step = 1; step <= 10; ++step) { // somebody has trimmed it before
        slider->setMinimumPosition(100 + 15 * step);
        slider->setMaximumPosition(1350 - 15 * step);
        slider->setMainPosition(450 + 15 * step);
    }
    addPlayback(slider, strip, play);
    return box;
}

SpanSlider *createSpan(SpanSlider::HandleMovementMode mode, Qt::Orientation orientation,
                       const QString &name, QPlainTextEdit *log)
{
    auto *slider = new SpanSlider(orientation);
    slider->setHandleMovementMode(mode);
    slider->setSpan(20, 60);
    QObject::connect(slider, &SpanSlider::spanChanged, log, [log, name](int lower, int upper) {
        log->appendPlainText(
            QStringLiteral("%1: spanChanged(%2, %3)").arg(name).arg(lower).arg(upper));
    });
    return slider;
}

QGroupBox *createSpans(QPlainTextEdit *log)
{
    auto *box = new QGroupBox(Gallery::tr("Spans"));
    auto *form = new QFormLayout(box);
    struct Mode
    {
        SpanSlider::HandleMovementMode mode;
        const char *name;
    };
    const Mode modes[] = {
        {SpanSlider::FreeMovement, QT_TRANSLATE_NOOP("Gallery", "Handles pass")},
        {SpanSlider::NoCrossing, QT_TRANSLATE_NOOP("Gallery", "Handles meet")},
        {SpanSlider::NoOverlapping, QT_TRANSLATE_NOOP("Gallery", "Handles keep apart")},
    };
    for (const Mode &mode : modes) {
        const QString name = Gallery::tr(mode.name);
        form->addRow(name, createSpan(mode.mode, Qt::Horizontal, name, log));
    }
    const QString ticked = Gallery::tr("With tick marks");
    auto *ticks = createSpan(SpanSlider::FreeMovement, Qt::Horizontal, ticked, log);
    ticks->setTickPosition(QSlider::TicksBelow);
    form->addRow(ticked, ticks);

    auto *upright = new QHBoxLayout;
    const QString vertical = Gallery::tr("Vertical");
    upright->addWidget(createSpan(SpanSlider::FreeMovement, Qt::Vertical, vertical, log));
    for (bool range : {true, false}) {
        auto *slider = new RangeSlider(Qt::Vertical);
        slider->setEnableRange(range);
        slider->setValues(20, 80, 50);
        slider->setMinimumHeight(140);
        logSignals(slider, log);
        upright->addWidget(slider);
    }
    upright->addStretch();
    form->addRow(vertical, upright);
    return box;
}

QWidget *createRangesPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *columns = new QHBoxLayout(page);
    auto *log = new QPlainTextEdit;
    log->setReadOnly(true);
    log->setMaximumBlockCount(longestLog);

    auto *controls = new QVBoxLayout;
    controls->addWidget(createTimeline(log));
    controls->addWidget(createSpans(log), 1);
    columns->addLayout(controls, 2);
    columns->addWidget(log, 1);
    return page;
}

} // namespace

GALLERY_PAGE(320, "ranges", QT_TRANSLATE_NOOP("Gallery", "Ranges"), createRangesPage)

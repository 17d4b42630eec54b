#include "gallerypage.h"

#include <nocturne/Slider>

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int longestLog = 500;

/// Lets \a log show what \a slider reports.
void logSignals(Slider *slider, const QString &name, QPlainTextEdit *log)
{
    QObject::connect(slider, &Slider::valueChanged, log, [log, name](double value, bool first) {
        log->appendPlainText(QStringLiteral("%1: valueChanged(%2, %3)")
                                 .arg(name)
                                 .arg(value)
                                 .arg(first ? QLatin1String("true") : QLatin1String("false")));
    });
    QObject::connect(slider, &Slider::sliderMoveChanged, log, [log, name](int x, int y, int value) {
        log->appendPlainText(
            QStringLiteral("%1: sliderMoveChanged(%2, %3, %4)").arg(name).arg(x).arg(y).arg(value));
    });
    QObject::connect(slider, &Slider::mousePressed, log, [log, name] {
        log->appendPlainText(QStringLiteral("%1: mousePressed()").arg(name));
    });
    QObject::connect(slider, &Slider::mouseDoubleClick, log, [log, name] {
        log->appendPlainText(QStringLiteral("%1: mouseDoubleClick()").arg(name));
    });
}

Slider *addSlider(QFormLayout *form, const char *name, int value, QPlainTextEdit *log)
{
    auto *slider = new Slider(Qt::Horizontal);
    slider->setValue(value);
    form->addRow(Gallery::tr(name), slider);
    logSignals(slider, Gallery::tr(name), log);
    return slider;
}

/// Somebody has dragged it before the page is seen.
void dragBefore(Slider *slider)
{
    const auto send = [slider](QEvent::Type type, int x, Qt::MouseButtons buttons) {
        const QPointF point(x, slider->height() / 2.0);
        QMouseEvent event(type, point, slider->mapToGlobal(point.toPoint()),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &event);
    };
    const int from = slider->width() * 4 / 10;
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    for (int step = 1; step <= 7; ++step)
        send(QEvent::MouseMove, from + slider->width() * step / 40, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, from + slider->width() * 7 / 40, Qt::NoButton);
}

QWidget *createSlidersPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *columns = new QHBoxLayout(page);
    auto *log = new QPlainTextEdit;
    log->setReadOnly(true);
    log->setMaximumBlockCount(longestLog);

    auto *box = new QGroupBox(Gallery::tr("Click to jump, drag, hover"));
    auto *form = new QFormLayout(box);
    Slider *level = addSlider(form, QT_TRANSLATE_NOOP("Gallery", "Level"), 60, log);
    Slider *ticked = addSlider(form, QT_TRANSLATE_NOOP("Gallery", "With tick marks"), 30, log);
    ticked->setTickPosition(QSlider::TicksBothSides);
    addSlider(form, QT_TRANSLATE_NOOP("Gallery", "Inverted"), 30, log)->setInvertedAppearance(true);
    addSlider(form, QT_TRANSLATE_NOOP("Gallery", "Without jump"), 45, log)
        ->setEnableDirectJump(false);
    addSlider(form, QT_TRANSLATE_NOOP("Gallery", "Disabled"), 45, log)->setEnabled(false);

    dragBefore(level);
    dragBefore(ticked);

    auto *silent = new QPushButton(Gallery::tr("Set the level to 30 without a signal"));
    QObject::connect(silent, &QPushButton::clicked, level, [level] { level->positionChange(30); });
    form->addRow(silent);

    auto *faders = new QHBoxLayout;
    for (int value : {20, 50, 80}) {
        auto *fader = new Slider(Qt::Vertical);
        fader->setValue(value);
        fader->setMinimumHeight(160);
        fader->setEnableDirectJump(false); // A jump would go by x.
        logSignals(fader, Gallery::tr("Fader"), log);
        faders->addWidget(fader);
    }
    faders->addStretch();
    form->addRow(Gallery::tr("Faders"), faders);

    columns->addWidget(box, 1);
    columns->addWidget(log, 1);
    return page;
}

} // namespace

GALLERY_PAGE(310, "sliders", QT_TRANSLATE_NOOP("Gallery", "Sliders"), createSlidersPage)

// Drags each slider 10,000 moves back and forth, beside a plain slider of the toolkit under its
// built-in Fusion style. A move is the mouse event and the repaint it asks for.

#include "benchmark.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>

namespace {

// Batches far shorter than a time slice, so that the median has few with an interruption in them.
constexpr int movesPerBatch = 50;
constexpr int batches = 200;
constexpr QSize sliderSize(600, 30);
constexpr int firstX = 20;
constexpr int lastX = 580;

void send(QWidget *widget, QEvent::Type type, int x)
{
    const bool move = type == QEvent::MouseMove;
    const bool release = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, QPointF(x, sliderSize.height() / 2.0),
                      move ? Qt::NoButton : Qt::LeftButton, release ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// A slider in a window of its own whose handle is held and moved by a pixel a step.
class Drag : public QObject
{
public:
    Drag(QSlider *slider, QStyle *style, int pressX)
        : m_slider(slider)
        , m_x(pressX)
    {
        m_slider->setStyle(style);
        m_slider->setRange(0, 10000);
        m_slider->resize(sliderSize);
        m_slider->show();
        QCoreApplication::processEvents();
    }

    void press() { send(m_slider.get(), QEvent::MouseButtonPress, m_x); }

    void step()
    {
        if (m_x >= lastX || m_x <= firstX)
            m_direction = m_x >= lastX ? -1 : 1;
        m_x += m_direction;
        send(m_slider.get(), QEvent::MouseMove, m_x);
        QEvent paint(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(m_slider.get(), &paint);
    }

    /// Whether every one of some moves is followed by exactly one repaint.
    bool repaintsOnceAMove()
    {
        constexpr int moves = 1000;
        m_paints = 0;
        m_slider->installEventFilter(this);
        for (int i = 0; i < moves; ++i)
            step();
        m_slider->removeEventFilter(this);
        return m_paints == moves;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints;
        return false;
    }

private:
    std::unique_ptr<QSlider> m_slider;
    int m_x;
    int m_direction = 1;
    int m_paints = 0;
};

std::unique_ptr<Drag> dragOf(const QByteArray &kind, QStyle *style)
{
    constexpr int middle = (firstX + lastX) / 2;
    if (kind == "QSlider") {
        auto *slider = new QSlider(Qt::Horizontal);
        auto drag = std::make_unique<Drag>(slider, style, middle);
        slider->setValue(5000);
        return drag;
    }
    if (kind == "Slider")
        return std::make_unique<Drag>(new Slider(Qt::Horizontal), style, middle);
    if (kind == "RangeSlider") {
        auto *slider = new RangeSlider(Qt::Horizontal);
        auto drag = std::make_unique<Drag>(slider, style, middle);
        slider->setEnableRange(true);
        slider->setValues(1000, 9000, 5000);
        return drag;
    }
    auto *slider = new SpanSlider(Qt::Horizontal);
    auto drag = std::make_unique<Drag>(slider, style, middle);
    slider->setSpan(1000, 5000);
    return drag;
}

} // namespace

int main(int argc, char *argv[])
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    DarkUX theme;
    const std::unique_ptr<QStyle> dark(theme.style());
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    app.setPalette(theme.palette());

    struct Subject
    {
        QByteArray kind;
        double limit;
    };
    const Subject subjects[] = {{"RangeSlider", 1.5}, {"Slider", 1.25}, {"SpanSlider", 1.25}};

    Benchmark benchmark;
    bool good = true;
    for (QStyle *style : {dark.get(), fusion.get()}) {
        for (const Subject &subject : subjects) {
            const auto ours = dragOf(subject.kind, style);
            const auto peer = dragOf("QSlider", fusion.get());
            ours->press();
            peer->press();
            if (!ours->repaintsOnceAMove() || !peer->repaintsOnceAMove()) {
                std::fprintf(stderr, "%s: the drag does not repaint once a move\n",
                             subject.kind.constData());
                return 1;
            }
            const QString name = QLatin1String(subject.kind) + QLatin1String(", ")
                                 + (style == dark.get() ? QLatin1String("dark style")
                                                        : QLatin1String("built-in Fusion"));
            const Benchmark::Result result = benchmark.compare(
                name, [&ours] { ours->step(); }, [&peer] { peer->step(); }, movesPerBatch, batches);
            if (style == dark.get() && result.ratio() > subject.limit) {
                std::fprintf(stderr, "%s: more than %.2f times a plain slider\n",
                             subject.kind.constData(), subject.limit);
                good = false;
            }
        }
    }
    benchmark.print("ours, a move", "QSlider, a move");
    return good ? 0 : 1;
}

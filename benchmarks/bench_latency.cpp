// Moves the pointer on an X server while a slider is held in a window full of controls, and
// measures by the clock how long it takes until the server has shown the moved handle: under
// DarkFusionStyle and under the toolkit's built-in Fusion style, alternating, both with the theme's
// palette.

#include "darkapplication.h"
#include "panel.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>
#include <qpa/qplatformnativeinterface.h>

#include <cstdlib>
#include <xcb/xcb.h>

namespace {

constexpr int moves = 2000;
constexpr int wayPoints = 60;       // of a drag from one end of the slider to the other
constexpr qint64 longestWait = 200; // milliseconds
constexpr int mostLost = 20;

/// Tells when a window has painted what changed.
class RepaintWatch : public QObject
{
public:
    explicit RepaintWatch(QWidget *slider) { slider->installEventFilter(this); }
    bool hasRepainted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        hasRepainted = hasRepainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

/// A window whose slider is held with the mouse.
class HeldSlider
{
public:
    explicit HeldSlider(QStyle *style, const QPoint &position)
        : m_window(panelWindow(48, 8))
        , m_slider(m_window->findChild<QSlider *>())
        , m_watch(m_slider)
    {
        m_slider->setMouseTracking(true); // as no button of the server's pointer is down
        m_window->setStyle(style);
        for (QWidget *child : m_window->findChildren<QWidget *>())
            child->setStyle(style);
        m_window->setWindowFlag(Qt::X11BypassWindowManagerHint);
        m_window->setGeometry(QRect(position, QSize(1280, 420)));
        m_window->show();
    }

    void hold()
    {
        const QPointF middle = QRectF(m_slider->rect()).center();
        m_slider->setValue(50);
        QMouseEvent press(QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_slider, &press);
    }

    /// Microseconds from the move to the end of the repaint, or -1 when none came.
    double move(xcb_connection_t *mouse, xcb_connection_t *screen, int step)
    {
        const int phase = step % (2 * wayPoints);
        const int along = phase < wayPoints ? phase : 2 * wayPoints - phase;
        const QPoint target(10 + along * (m_slider->width() - 20) / wayPoints,
                            m_slider->height() / 2);
        const QPoint onWindow = m_slider->mapTo(m_window.get(), target);
        m_watch.hasRepainted = false;

        QElapsedTimer timer;
        timer.start();
        xcb_warp_pointer(mouse, XCB_NONE, xcb_window_t(m_window->winId()), 0, 0, 0, 0,
                         short(onWindow.x()), short(onWindow.y()));
        xcb_flush(mouse);
        while (!m_watch.hasRepainted) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            if (timer.hasExpired(longestWait))
                return -1.0;
        }
        // What was sent before this question has been done when the answer comes.
        std::free(xcb_get_input_focus_reply(screen, xcb_get_input_focus(screen), nullptr));
        return timer.nsecsElapsed() / 1000.0;
    }

private:
    std::unique_ptr<QMainWindow> m_window;
    QSlider *m_slider;
    RepaintWatch m_watch;
};

double percentile(QVector<double> values, int percent)
{
    std::sort(values.begin(), values.end());
    return values.at((values.size() - 1) * percent / 100);
}

} // namespace

int main(int argc, char *argv[])
{
    const DarkApplication application(argc, argv);
    auto *screen = static_cast<xcb_connection_t *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("connection"));
    xcb_connection_t *mouse = xcb_connect(nullptr, nullptr);
    if (QGuiApplication::platformName() != QLatin1String("xcb") || !screen
        || xcb_connection_has_error(mouse))
    {
        std::fprintf(stderr, "bench_latency: needs an X server\n");
        return 1;
    }

    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    HeldSlider ours(QApplication::style(), QPoint(0, 0));
    HeldSlider peer(fusion.get(), QPoint(0, 430));
    QCoreApplication::processEvents();

    HeldSlider *sides[] = {&ours, &peer};
    QVector<double> times[2];
    int lost = 0;
    for (int i = 0; i < moves && lost <= mostLost; ++i) {
        // The first move of each turn brings the pointer over from the other window.
        const int side = i / wayPoints % 2;
        if (i % wayPoints == 0)
            sides[side]->hold();
        const double time = sides[side]->move(mouse, screen, i % wayPoints + 1);
        if (time < 0.0)
            ++lost;
        else if (i % wayPoints > 0)
            times[side] << time;
    }
    xcb_disconnect(mouse);
    if (lost > mostLost) {
        std::fprintf(stderr, "bench_latency: the slider did not follow the pointer\n");
        return 1;
    }

    std::printf("Pointer move to finished repaint, by the clock\n");
    Benchmark benchmark;
    for (const auto &[name, percent] : {std::pair("median", 50), std::pair("99th percentile", 99)})
        benchmark.add(QLatin1String(name), percentile(times[0], percent),
                      percentile(times[1], percent));
    benchmark.print("DarkFusion", "Fusion", false);
    return 0;
}

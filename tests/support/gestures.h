#ifndef NOCTURNE_GESTURES_H
#define NOCTURNE_GESTURES_H

#include "testsupport.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>

namespace TestSupport {

/// Whether \a widget takes a mouse event with exactly these buttons.
inline bool sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position,
                      Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// A move with the left button held.
inline bool sendDrag(QWidget *widget, const QPoint &position)
{
    return sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

inline QWheelEvent wheelOver(const QWidget &widget, const QPoint &position = QPoint(5, 5))
{
    return QWheelEvent(position, widget.mapToGlobal(position), QPoint(), QPoint(0, -120),
                       Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
}

/// Whether \a widget keeps the wheel to itself.
inline bool takesWheel(QWidget *widget)
{
    QWheelEvent wheel = wheelOver(*widget);
    QCoreApplication::sendEvent(widget, &wheel);
    return wheel.isAccepted();
}

inline bool showActive(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

inline bool showExposed(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

/// What the window shows now, as opposed to what it would paint anew.
inline QImage onScreen(QWidget &window)
{
    QCoreApplication::processEvents();
    return window.screen()
        ->grabWindow(window.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

inline QImage freshlyPainted(QWidget &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Whether no gesture of before has left a mouse grab or a cursor behind.
inline bool nothingIsHeld()
{
    return !QApplication::overrideCursor() && !QWidget::mouseGrabber();
}

/// The ways to take a widget away from under a pressed button, as rows for interrupt().
inline void addInterruptions()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"hidden", "disabled", "modal window"})
        QTest::newRow(how) << QString(how);
}

/// The window that shuts \a widget out, or none.
inline std::unique_ptr<QDialog> interrupt(QWidget *widget, const QString &how)
{
    if (how == "hidden") {
        widget->hide();
        return nullptr;
    }
    if (how == "disabled") {
        widget->setEnabled(false);
        return nullptr;
    }
    auto dialog = std::make_unique<QDialog>();
    dialog->setModal(true);
    showActive(dialog.get());
    return dialog;
}

/// Whether every pixel is the same, give or take one of 255: what shines through a smoothed corner
/// is rounded once more when the corner was kept.
inline bool sameImage(const QImage &a, const QImage &b)
{
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            if (qAbs(p.red() - q.red()) > 1 || qAbs(p.green() - q.green()) > 1
                || qAbs(p.blue() - q.blue()) > 1 || qAbs(p.alpha() - q.alpha()) > 1)
                return false;
        }
    }
    return a.size() == b.size();
}

/// A slider with a hand on its handles and a log of its signals, which the subclass connects.
template <typename Base>
class Driven : public Base
{
public:
    explicit Driven(Qt::Orientation orientation)
        : Base(orientation)
    {
        this->resize(orientation == Qt::Horizontal ? QSize(320, 30) : QSize(30, 320));
    }

    virtual QStyleOptionSlider optionAt(int position) const = 0;

    QRect rectOf(QStyle::SubControl control, int position = 0) const
    {
        const QStyleOptionSlider option = optionAt(position);
        return this->style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    }
    QRect handleAt(int position) const { return rectOf(QStyle::SC_SliderHandle, position); }
    /// The middle of a handle at that position.
    QPoint place(int position) const { return handleAt(position).center(); }

    bool press(const QPoint &point, Qt::MouseButton button = Qt::LeftButton,
               Qt::MouseButtons others = Qt::NoButton)
    {
        return sendMouse(this, QEvent::MouseButtonPress, point, button, button | others);
    }
    bool drag(const QPoint &point) { return sendDrag(this, point); }
    bool release(const QPoint &point, Qt::MouseButton button = Qt::LeftButton,
                 Qt::MouseButtons others = Qt::NoButton)
    {
        return sendMouse(this, QEvent::MouseButtonRelease, point, button, others);
    }
    /// Carries out steps such as "press 20, drag 30, release 30" and returns what was noted. Each
    /// goes to a place off the middle of the handle at that position, so that a lost offset shows;
    /// "right" and "rightup" are a second button over a held left one. Steps that are left to the
    /// parent note "ignored"; other words are for perform().
    QString run(const QString &script)
    {
        for (const QString &step : script.split(", ", Qt::SkipEmptyParts)) {
            const QStringList words = step.split(' ');
            const QString verb = words.first();
            const int number = words.value(1).toInt();
            const bool horizontal = this->orientation() == Qt::Horizontal;
            const QPoint point = place(number) + (horizontal ? QPoint(2, 0) : QPoint(0, 2));
            if (verb == "press")
                noteIgnored(press(point));
            else if (verb == "jump") // at the middle
                noteIgnored(press(place(number)));
            else if (verb == "drag")
                noteIgnored(drag(point));
            else if (verb == "leave")
                drag(point + (horizontal ? QPoint(0, 60) : QPoint(60, 0)));
            else if (verb == "release")
                release(point);
            else if (verb == "right")
                press(point, Qt::RightButton, Qt::LeftButton);
            else if (verb == "rightup")
                release(point, Qt::RightButton, Qt::LeftButton);
            else
                perform(verb, number);
        }
        return takeLog();
    }
    virtual void perform(const QString &verb, int number)
    {
        QFAIL(qPrintable(QString("%1 %2").arg(verb).arg(number)));
    }

    /// Whether the slider paints what \a paint does, pixel by pixel.
    template <typename Paint>
    bool paintsLike(Paint paint)
    {
        for (int ratio : {1, 2}) {
            const auto onGray = [&](auto work) {
                return paintOn(this->size(), Qt::darkGray, work, ratio);
            };
            if (!sameImage(onGray([this](QPainter &p) {
                               this->render(&p, {}, {}, QWidget::DrawChildren);
                           }),
                           onGray([paint](QPainter &p) { paint(&p); })))
                return false;
        }
        return true;
    }

    /// A slot that adds the name and the values of a signal to the log.
    auto note(const char *name)
    {
        return [this, name](auto... values) {
            const QStringList entry{name, QString::number(values)...};
            m_log << entry.join(' ');
        };
    }
    /// What was noted since the last call, separated by commas.
    QString takeLog() { return std::exchange(m_log, {}).join(", "); }

private:
    void noteIgnored(bool accepted)
    {
        if (!accepted)
            m_log << "ignored";
    }

private:
    QStringList m_log;
};

/// Fusion with a drag area of 20 units around the slider.
class LimitedDragStyle : public QProxyStyle
{
public:
    LimitedDragStyle()
        : QProxyStyle("fusion")
    {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_MaximumDragDistance ? 20
                                                : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace TestSupport

#endif

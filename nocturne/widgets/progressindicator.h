#ifndef NOCTURNE_PROGRESSINDICATOR_H
#define NOCTURNE_PROGRESSINDICATOR_H

#include <nocturne/nocturneglobal.h>

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

/// A busy wheel of twelve fading capsules that a timer turns.
///
/// \code
/// auto *busy = new ProgressIndicator(statusBar());
/// busy->setColor(palette().color(QPalette::WindowText));
/// busy->setDisplayedWhenStopped(false);
/// busy->startAnimation();
/// \endcode
class NOCTURNE_EXPORT ProgressIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int delay READ animationDelay WRITE setAnimationDelay)
    Q_PROPERTY(bool displayedWhenStopped READ isDisplayedWhenStopped WRITE setDisplayedWhenStopped)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    /// Starts out stopped, shown, black, with a delay of 60 ms.
    explicit ProgressIndicator(QWidget *parent = nullptr);
    ~ProgressIndicator() override;

    /// Milliseconds from one twelfth of a turn to the next.
    int animationDelay() const { return m_delay; }

    /// Whether the wheel is turning.
    bool isAnimated() const { return m_timerId != noTimer; }

    /// Whether the wheel is painted while it stands still.
    bool isDisplayedWhenStopped() const { return m_displayedWhenStopped; }

    /// The colour of the foremost capsule; the others fade from it.
    QColor color() const { return m_color; }

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Starts turning from the upright position; while turning, only returns to it.
    void startAnimation();
    /// Stops where the wheel stands.
    void stopAnimation();
    /// Sets the delay in milliseconds, at once when turning. Negative delays are ignored.
    void setAnimationDelay(int delay);
    void setDisplayedWhenStopped(bool state);
    void setColor(QColor color);

protected:
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int noTimer = -1;

    int m_angle = 0;
    int m_timerId = noTimer;
    int m_delay = 60;
    bool m_displayedWhenStopped = true;
    QColor m_color = Qt::black;
};

#endif

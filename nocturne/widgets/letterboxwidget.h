#ifndef NOCTURNE_LETTERBOXWIDGET_H
#define NOCTURNE_LETTERBOXWIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QFrame>

/// Holds one widget, such as a video preview, at a fixed aspect ratio: as large as fits, centred,
/// with the frame's background around it.
///
/// The ratio is the held widget's size increment; a widget without one fills the container less the
/// margin. Its minimum and maximum size and its size policy are respected. With a resize delay an
/// expensive widget is resized only once the user has stopped dragging.
///
/// \code
/// auto *box = new LetterBoxWidget(panel);
/// preview->setSizeIncrement(16, 9);
/// box->setWidget(preview);
/// box->setResizeDelay(100);
/// \endcode
class NOCTURNE_EXPORT LetterBoxWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int margin READ margin WRITE setMargin)
    Q_PROPERTY(uint resizeDelay READ resizeDelay WRITE setResizeDelay)
    Q_PROPERTY(
        QColor backgroundColor READ backgroundColor WRITE setBackgroundColor RESET enableBackground)

public:
    /// Starts out empty, with a margin of 1, no delay and the default background.
    explicit LetterBoxWidget(QWidget *parent = nullptr);
    ~LetterBoxWidget() override;

    /// Holds \a w as a child, which it owns from now on; null holds nothing. A widget held before
    /// is deleted once control returns to the event loop. As with any new child, show \a w when
    /// the container is visible already.
    Q_INVOKABLE void setWidget(QWidget *w);

    /// The held widget; null when there is none, or when somebody else has deleted it or given it
    /// another parent.
    QWidget *widget() const { return m_widget; }

    /// The space left free on each side, in units.
    void setMargin(int margin);
    int margin() const { return m_margin; }

    /// Milliseconds from the last resize to the layout; 0 lays out at each resize.
    void setResizeDelay(unsigned int ms);
    int resizeDelay() const { return m_timer.interval(); }

    /// Fills the free space with the theme's Window colour, a little darkened. Needs a DarkUX.
    void enableBackground();

    /// Fills the free space with \a color.
    void setBackgroundColor(const QColor &color);
    QColor backgroundColor() const;

    /// Leaves the free space unpainted.
    void clearBackgroundColor();

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Lays the held widget out now.
    void resizeWidget();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    QPointer<QWidget> m_widget;
    QTimer m_timer;
    int m_margin = 1;
};

#endif

#ifndef NOCTURNE_COLORBUTTON_H
#define NOCTURNE_COLORBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPoint>
#include <QtGui/QColor>
#include <QtWidgets/QAbstractButton>

/// A button that shows a colour. A click opens a colour dialog; the colour can be dragged out of it
/// and dropped onto another one.
///
/// \code
/// auto *key = new ColorButton(Qt::green, panel);
/// connect(key, &ColorButton::colorChanged, keyer, [=](double, bool complete) {
///     keyer->setKeyColor(key->color(), complete);
/// });
/// \endcode
class NOCTURNE_EXPORT ColorButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(bool realtimeChange MEMBER m_realtimeChange WRITE setRealtimeChange)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    explicit ColorButton(const QColor &color, QWidget *parent = nullptr);
    /// Starts out black.
    explicit ColorButton(QWidget *parent = nullptr);
    ~ColorButton() override;

    const QColor &color() const { return m_color; }
    /// Changes the colour without a signal.
    void setColor(const QColor &color);

    /// Whether the button takes on and reports the dialog's colours while it is open. On at first.
    void setRealtimeChange(bool realtime);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has changed the colour; the number is always 0.0. The bool is true when a colour
    /// was accepted in the dialog or dropped onto the button. It is false for each preview while
    /// the dialog is open, and for the return to the old colour when the dialog closes, which
    /// comes before the accepted colour.
    void colorChanged(double value, bool complete);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    void drawButton(QPainter *painter);
    void drawButtonLabel(QPainter *painter);

private Q_SLOTS:
    void changeColor();
    void colorChange(QColor c);

private:
    QColor m_color;
    QPoint m_pressPoint;
    bool m_dragPending = false;
    bool m_realtimeChange = true;
};

#endif

#ifndef NOCTURNE_COLORBAR_H
#define NOCTURNE_COLORBAR_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

/// Shows a colour as a bar, or as a dot that can blink, such as a tally light.
///
/// \code
/// auto *tally = new ColorBar(panel);
/// tally->setElipse(true);
/// tally->setColor(Qt::red);
/// tally->startFlicker();
/// \endcode
class NOCTURNE_EXPORT ColorBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor)
    Q_PROPERTY(bool elipse MEMBER m_elipse WRITE setElipse)

public:
    /// Starts out as a transparent bar.
    explicit ColorBar(QWidget *parent = nullptr);
    ~ColorBar() override;

    void setColor(const QColor &color);

    /// Chooses the dot (true) or the bar; shown by the next repaint.
    void setElipse(bool elipse);

    /// Starts blinking, half a second on and half a second off. Only a dot shows it.
    void startFlicker();
    /// Stops blinking; a dot is then shown.
    void stopFlicker();

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void timeOut();

private:
    QColor m_color = Qt::transparent;
    bool m_elipse = false;
    QTimer m_timer;
    bool m_phaseOn = true;
    bool m_flickering = false;
};

#endif

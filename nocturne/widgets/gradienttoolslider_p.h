#ifndef NOCTURNE_GRADIENTTOOLSLIDER_P_H
#define NOCTURNE_GRADIENTTOOLSLIDER_P_H

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace Nocturne {

/// How far a key moves a stop.
constexpr double stopKeyStep = 0.01;

} // namespace Nocturne

/// The marker of one colour stop. Its tip is 4 units right of its left edge. Mouse events pass
/// through to the editor.
class GradientToolSlider : public QWidget
{
    Q_OBJECT

public:
    GradientToolSlider(QWidget *parent, const QColor &color);

    const QColor &color() const { return m_color; }
    void setColor(const QColor &color);

    /// Whether its stop is the selected one: it has a triangular head then.
    bool isActive() const { return m_active; }
    void setActive(bool active);

    /// Hides what it paints while its stop is about to be removed.
    void setPainted(bool painted);

protected Q_SLOTS:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
    bool m_active = false;
    bool m_painted = true;
};

#endif

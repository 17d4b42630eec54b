#ifndef LOOKPANEL_H
#define LOOKPANEL_H

#include <QtWidgets/QWidget>

class Desk;
class GradientTool;
class QLabel;
class Slider;
class SpanSlider;
class SpinBox;

/// Levels, colour ramp and position of the picture.
class LookPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LookPanel(Desk *desk, QWidget *parent = nullptr);

    /// Sets the amount of the ramp, in percent, as one step or as more of the last one.
    void setAmount(int percent, bool newStep);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void retranslate();
    SpinBox *positionBox(const QString &name, int range, bool horizontal);

    Desk *m_desk;
    SpanSlider *m_levels;
    GradientTool *m_ramp;
    Slider *m_amount;
    SpinBox *m_x;
    SpinBox *m_y;
    SpinBox *m_transition;
    QLabel *m_levelsLabel;
    QLabel *m_rampLabel;
    QLabel *m_amountLabel;
    QLabel *m_positionLabel;
    QLabel *m_transitionLabel;
    bool m_newLevels = false;
    bool m_newRamp = false;
};

#endif

#ifndef PLAYER_H
#define PLAYER_H

#include "deskstate.h"

#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class ColorBar;
class Desk;
class GradientTool;
class QLabel;
class QPushButton;
class RangeSlider;

/// Shows a picture as large as the widget. Made to be held by a LetterBoxWidget.
class Monitor : public QWidget
{
    Q_OBJECT

public:
    explicit Monitor(const QString &name);

    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
};

/// Preview and program with transport, trim and transition.
class Player : public QWidget
{
    Q_OBJECT

public:
    explicit Player(Desk *desk);

    /// The \a clip's picture at \a frame with the look on it.
    QImage picture(const Clip &clip, int frame) const;

    int playHead() const { return m_playHead; }
    bool isOnAir() const { return m_program.isValid(); }

public Q_SLOTS:
    void togglePlay();
    /// Puts the preview on air at once.
    void cut();
    /// Puts the preview on air by a mix of the set length.
    void autoMix();

private:
    /// What is on air: a clip with its own play-head.
    struct Program
    {
        Clip clip;
        int frame = -1;

        bool isValid() const { return frame >= 0; }
    };

    void refresh();
    void trim();
    void nextFrame();
    void showPreview();
    void showProgram();

    Desk *m_desk;
    Monitor *m_preview;
    Monitor *m_programMonitor;
    RangeSlider *m_trim;
    QPushButton *m_play;
    ColorBar *m_tally;
    QLabel *m_time;
    QTimer m_clock;
    GradientTool *m_ramp; ///< not to be seen: gives the colours of the state's ramp
    Program m_program;
    Program m_leaving;
    int m_mixFrame = 0;
    int m_playHead = 0;
    bool m_playing = false;
};

#endif

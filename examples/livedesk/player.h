#ifndef PLAYER_H
#define PLAYER_H

#include "deskstate.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class ColorBar;
class DelayButton;
class Desk;
class Monitor;
class QLabel;
class QPushButton;
class RangeSlider;

/// Preview and program with transport, trim and transition.
class Player : public QWidget
{
    Q_OBJECT

public:
    explicit Player(Desk *desk, QWidget *parent = nullptr);

    /// The current clip's picture at \a frame with the look on it; null without a clip.
    QImage pictureAt(int frame) const;

    int playHead() const { return m_playHead; }
    bool isOnAir() const { return m_program.isValid(); }

public Q_SLOTS:
    void togglePlay();
    /// Puts the preview on air at once.
    void cut();
    /// Puts the preview on air by a mix of the set length.
    void autoMix();

protected:
    void changeEvent(QEvent *event) override;

private:
    /// What is on air: a clip with its own play-head.
    struct Program
    {
        Clip clip;
        int frame = -1;

        bool isValid() const { return frame >= 0; }
    };

    void refresh();
    void retranslate();
    void seek(int frame);
    void trim(int in, int out);
    void nextFrame();
    void showPreview();
    void showProgram();
    QImage gradedPicture(const Clip &clip, int frame) const;

    Desk *m_desk;
    Monitor *m_preview;
    Monitor *m_programMonitor;
    RangeSlider *m_trim;
    QPushButton *m_play;
    DelayButton *m_cut;
    DelayButton *m_auto;
    ColorBar *m_tally;
    QLabel *m_time;
    QTimer m_clock;
    QVector<unsigned int> m_colorTable;
    Ramp m_colorTableRamp;
    Program m_program;
    Program m_leaving;
    int m_mixFrame = 0;
    int m_playHead = 0;
    bool m_playing = false;
    bool m_newTrim = false;
};

#endif

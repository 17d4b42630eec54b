#include "player.h"

#include "desk.h"
#include "testpictures.h"

#include <nocturne/ColorBar>
#include <nocturne/DelayButton>
#include <nocturne/GradientTool>
#include <nocturne/LetterBoxWidget>
#include <nocturne/RangeSlider>

#include <QtWidgets/QtWidgets>

#include <algorithm>

namespace {

constexpr int framesPerSecond = 25;

LetterBoxWidget *letterBox(Monitor *monitor)
{
    auto *box = new LetterBoxWidget;
    box->setWidget(monitor);
    box->enableBackground();
    return box;
}

DelayButton *takeButton(const char *name)
{
    auto *button = new DelayButton;
    button->setObjectName(name);
    button->setCheckable(true); // only a checkable button locks itself after a click
    button->setDelay(300);
    return button;
}

QString timeCode(int frame)
{
    return QString("%1:%2")
        .arg(frame / framesPerSecond)
        .arg(frame % framesPerSecond, 2, 10, QLatin1Char('0'));
}

int frameAfter(int frame, const Clip &clip)
{
    return frame >= clip.out ? clip.in : frame + 1;
}

} // namespace

Monitor::Monitor(const QString &name)
{
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizeIncrement(pictureSize); // the ratio that a letter box keeps
    setMinimumSize(pictureSize / 4);
}

void Monitor::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

void Monitor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(rect(), m_picture);
}

Player::Player(Desk *desk)
    : m_desk(desk)
    , m_preview(new Monitor("preview"))
    , m_programMonitor(new Monitor("program"))
    , m_trim(new RangeSlider(Qt::Horizontal))
    , m_play(new QPushButton)
    , m_tally(new ColorBar)
    , m_time(new QLabel)
    , m_ramp(new GradientTool(this))
{
    m_ramp->hide();
    m_trim->setObjectName("trim");
    m_trim->setEnableRange(true);
    m_trim->setFrameRate(framesPerSecond);
    m_trim->setMinimumHeight(40);
    m_play->setObjectName("play");
    m_play->setIcon(QIcon(":/resources/appicons/play.png"));
    m_tally->setElipse(true);
    m_tally->setFixedSize(18, 18);
    DelayButton *cut = takeButton("cut");
    DelayButton *mix = takeButton("auto");

    auto *transport = new QHBoxLayout;
    transport->addWidget(m_play);
    transport->addWidget(m_time);
    transport->addStretch();
    transport->addWidget(m_tally);
    transport->addWidget(cut);
    transport->addWidget(mix);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(letterBox(m_programMonitor), 1);
    layout->addWidget(letterBox(m_preview), 1);
    layout->addWidget(m_trim);
    layout->addLayout(transport);

    connect(m_trim, &RangeSlider::mousePressed, desk, &Desk::beginGesture);
    connect(m_trim, &RangeSlider::minimumValueChanged, this, &Player::trim);
    connect(m_trim, &RangeSlider::maximumValueChanged, this, &Player::trim);
    connect(m_trim, &RangeSlider::mainValueChanged, this, [this](int frame) {
        m_playHead = frame;
        showPreview();
    });
    connect(m_play, &QPushButton::clicked, this, &Player::togglePlay);
    connect(cut, &QPushButton::clicked, this, &Player::cut);
    connect(mix, &QPushButton::clicked, this, &Player::autoMix);
    connect(&m_clock, &QTimer::timeout, this, &Player::nextFrame);
    m_clock.start(1000 / framesPerSecond);
    desk->follow(this, [this] { refresh(); });
    desk->speak(this, [=] {
        refresh();
        cut->setText(tr("Cut"));
        mix->setText(tr("Auto"));
        m_trim->setHandleToolTip(tr("Frame %1"));
    });
}

QImage Player::picture(const Clip &clip, int frame) const
{
    return graded(testPicture(clip.pattern, frame), m_desk->state().look, m_ramp->getColorTable());
}

void Player::togglePlay()
{
    m_playing = !m_playing && m_desk->state().currentClip();
    refresh();
}

void Player::cut()
{
    const Clip *clip = m_desk->state().currentClip();
    if (!clip)
        return;
    m_tally->stopFlicker();
    m_leaving = Program();
    m_program = {*clip, m_playHead};
    refresh();
}

void Player::autoMix()
{
    const Program before = m_program;
    cut();
    m_leaving = before;
    m_mixFrame = 0;
    if (before.isValid())
        m_tally->startFlicker();
}

void Player::refresh()
{
    const DeskState &state = m_desk->state();
    const Clip *clip = state.currentClip();
    if (!isSameRamp(m_ramp->getRamp(), state.look.ramp))
        m_ramp->setRamp(state.look.ramp);
    m_playing = m_playing && clip;
    m_play->setText(m_playing ? tr("Pause") : tr("Play"));
    m_play->setEnabled(clip);
    m_trim->setEnabled(clip);
    const QSignalBlocker blocker(m_trim);
    m_trim->setRange(0, clip ? clip->length - 1 : 1);
    if (!m_trim->isMousePressed()) {
        m_playHead = clip ? std::clamp(m_playHead, clip->in, clip->out) : 0;
        m_trim->setValues(clip ? clip->in : 0, clip ? clip->out : 1, m_playHead);
    }
    const bool live = clip && m_program.isValid() && m_program.clip.path == clip->path;
    m_tally->setColor(live ? Qt::red : m_program.isValid() ? Qt::darkGreen : Qt::darkGray);
    showPreview();
    showProgram();
}

void Player::trim()
{
    m_desk->edit(tr("Trim"), !m_trim->isMousePressed(), [this](DeskState &state) {
        if (Clip *clip = state.currentClip()) {
            clip->in = m_trim->minimumValue();
            clip->out = m_trim->maximumValue();
        }
    });
}

void Player::nextFrame()
{
    const Clip *clip = m_desk->state().currentClip();
    if (m_playing && clip && !m_trim->isMousePressed()) {
        m_playHead = frameAfter(m_playHead, *clip);
        m_trim->positionChange(m_playHead);
        showPreview();
    }
    for (Program *program : {&m_program, &m_leaving}) {
        if (program->isValid())
            program->frame = frameAfter(program->frame, program->clip);
    }
    if (m_leaving.isValid() && ++m_mixFrame >= m_desk->state().look.transition) {
        m_leaving = Program();
        m_tally->stopFlicker();
    }
    if (m_program.isValid())
        showProgram();
}

void Player::showPreview()
{
    const Clip *clip = m_desk->state().currentClip();
    m_preview->setPicture(clip ? picture(*clip, m_playHead) : QImage());
    m_time->setText(timeCode(m_playHead));
}

void Player::showProgram()
{
    if (!m_program.isValid())
        return;
    QImage shown = picture(m_program.clip, m_program.frame);
    if (m_leaving.isValid()) {
        shown = mixed(picture(m_leaving.clip, m_leaving.frame), shown,
                      double(m_mixFrame) / m_desk->state().look.transition);
    }
    m_programMonitor->setPicture(shown);
}

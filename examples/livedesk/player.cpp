#include "player.h"

#include "desk.h"
#include "monitor.h"
#include "testpictures.h"

#include <nocturne/ColorBar>
#include <nocturne/DelayButton>
#include <nocturne/GradientTool>
#include <nocturne/LetterBoxWidget>
#include <nocturne/RangeSlider>

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int framesPerSecond = 25;

LetterBoxWidget *letterBox(Monitor *monitor, const QString &name)
{
    monitor->setObjectName(name);
    auto *box = new LetterBoxWidget;
    box->setWidget(monitor);
    box->enableBackground();
    return box;
}

DelayButton *takeButton(const QString &name)
{
    auto *button = new DelayButton;
    button->setObjectName(name);
    button->setCheckable(true); // only a checkable button locks itself after a click
    button->setDelay(300);
    return button;
}

QString timeCode(int frame)
{
    return QStringLiteral("%1:%2")
        .arg(frame / framesPerSecond)
        .arg(frame % framesPerSecond, 2, 10, QLatin1Char('0'));
}

} // namespace

Player::Player(Desk *desk, QWidget *parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_preview(new Monitor)
    , m_programMonitor(new Monitor)
    , m_trim(new RangeSlider(Qt::Horizontal))
    , m_play(new QPushButton)
    , m_cut(takeButton(QStringLiteral("cut")))
    , m_auto(takeButton(QStringLiteral("auto")))
    , m_tally(new ColorBar)
    , m_time(new QLabel)
{
    m_trim->setObjectName(QStringLiteral("trim"));
    m_trim->setEnableRange(true);
    m_trim->setFrameRate(framesPerSecond);
    m_trim->setMinimumHeight(40);
    m_play->setObjectName(QStringLiteral("play"));
    m_play->setIcon(QIcon(QStringLiteral(":/resources/appicons/play.png")));
    m_tally->setElipse(true);
    m_tally->setFixedSize(18, 18);

    auto *monitors = new QVBoxLayout;

    monitors->addWidget(letterBox(m_programMonitor, QStringLiteral("program")));
    monitors->addWidget(letterBox(m_preview, QStringLiteral("preview")));
    auto *transport = new QHBoxLayout;
    transport->addWidget(m_play);
    transport->addWidget(m_time);
    transport->addStretch();
    transport->addWidget(m_tally);
    transport->addWidget(m_cut);
    transport->addWidget(m_auto);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(monitors, 1);
    layout->addWidget(m_trim);
    layout->addLayout(transport);

    connect(m_trim, &RangeSlider::mousePressed, this, [this] { m_newTrim = true; });
    connect(m_trim, &RangeSlider::minimumValueChanged, this,
            [this](int in) { trim(in, m_trim->maximumValue()); });
    connect(m_trim, &RangeSlider::maximumValueChanged, this,
            [this](int out) { trim(m_trim->minimumValue(), out); });
    connect(m_trim, &RangeSlider::mainValueChanged, this, &Player::seek);
    connect(m_play, &QPushButton::clicked, this, &Player::togglePlay);
    connect(m_cut, &QPushButton::clicked, this, &Player::cut);
    connect(m_auto, &QPushButton::clicked, this, &Player::autoMix);
    connect(&m_clock, &QTimer::timeout, this, &Player::nextFrame);
    connect(desk, &Desk::changed, this, &Player::refresh);
    m_clock.start(1000 / framesPerSecond);
    retranslate();
    refresh();
}

QImage Player::pictureAt(int frame) const
{
    const Clip *clip = m_desk->state().currentClip();
    return clip ? gradedPicture(*clip, frame) : QImage();
}

void Player::togglePlay()
{
    m_playing = !m_playing && m_desk->state().currentClip();
    retranslate();
}

void Player::cut()
{
    const Clip *clip = m_desk->state().currentClip();
    if (!clip)
        return;
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

void Player::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void Player::refresh()
{
    const DeskState &state = m_desk->state();
    const Clip *clip = state.currentClip();
    if (m_colorTable.isEmpty() || !isSameRamp(m_colorTableRamp, state.look.ramp)) {
        GradientTool table;
        table.setRamp(state.look.ramp);
        m_colorTable = table.getColorTable();
        m_colorTableRamp = state.look.ramp;
    }
    {
        const QSignalBlocker blocker(m_trim);
        m_trim->setEnabled(clip);
        m_trim->setRange(0, clip ? clip->length - 1 : 1);
        if (!m_trim->isMousePressed()) {
            m_playHead = clip ? std::clamp(m_playHead, clip->in, clip->out) : 0;
            m_trim->setValues(clip ? clip->in : 0, clip ? clip->out : 1, m_playHead);
        }
    }
    if (!clip)
        m_playing = false;
    m_play->setEnabled(clip);
    const bool live = clip && m_program.isValid() && m_program.clip.path == clip->path;
    m_tally->setColor(live ? Qt::red : m_program.isValid() ? Qt::darkGreen : Qt::darkGray);
    showPreview();
    showProgram();
}

void Player::retranslate()
{
    m_play->setText(m_playing ? tr("Pause") : tr("Play"));
    m_cut->setText(tr("Cut"));
    m_auto->setText(tr("Auto"));
    m_trim->setHandleToolTip(tr("Frame %1"));
}

void Player::seek(int frame)
{
    m_playHead = frame;
    showPreview();
}

void Player::trim(int in, int out)
{
    const Desk::Step step = std::exchange(m_newTrim, false) ? Desk::NewStep : Desk::SameGesture;
    m_desk->edit(Desk::Trim, step, tr("Trim"), [=](DeskState &state) {
        if (!state.currentClip())
            return;
        state.clips[state.current].in = in;
        state.clips[state.current].out = out;
    });
}

void Player::nextFrame()
{
    const Clip *clip = m_desk->state().currentClip();
    if (m_playing && clip && !m_trim->isMousePressed()) {
        m_playHead = m_playHead >= clip->out ? clip->in : m_playHead + 1;
        m_trim->positionChange(m_playHead);
        showPreview();
    }
    for (Program *program : {&m_program, &m_leaving}) {
        if (program->isValid())
            program->frame =
                program->frame >= program->clip.out ? program->clip.in : program->frame + 1;
    }
    if (m_leaving.isValid() && ++m_mixFrame >= m_desk->state().transition) {
        m_leaving = Program();
        m_tally->stopFlicker();
    }
    if (m_program.isValid())
        showProgram();
}

void Player::showPreview()
{
    m_preview->setPicture(pictureAt(m_playHead));
    m_time->setText(timeCode(m_playHead));
}

void Player::showProgram()
{
    if (!m_program.isValid())
        return;
    QImage picture = gradedPicture(m_program.clip, m_program.frame);
    if (m_leaving.isValid()) {
        picture = mixed(gradedPicture(m_leaving.clip, m_leaving.frame), picture,
                        double(m_mixFrame) / m_desk->state().transition);
    }
    m_programMonitor->setPicture(picture);
}

QImage Player::gradedPicture(const Clip &clip, int frame) const
{
    return graded(testPicture(clip.pattern, frame), m_desk->state().look, m_colorTable);
}

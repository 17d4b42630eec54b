#include "gallerypage.h"

#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>

#include <QtCore/QTimer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>

#include <utility>

namespace {

constexpr int monitorLines = 300;
constexpr int monitorInterval = 40; // ms between two updates of the list
constexpr int streamInterval = 5;   // ms between two bursts of the simulated stream
constexpr int streamBurst = 50;     // messages
constexpr int idleInterval = 250;   // ms between two messages of the simulated controller
constexpr int idleLines = 24;       // that it has sent when the page opens

/// The last messages, as text. Takes any number of them: what arrives between two updates waits in
/// a list that is no longer than the text can become.
class Monitor : public QGroupBox
{
public:
    Monitor()
        : QGroupBox(Gallery::tr("Received"))
    {
        auto *layout = new QVBoxLayout(this);
        m_text->setReadOnly(true);
        m_text->setMaximumBlockCount(monitorLines);
        layout->addWidget(m_text);
        layout->addWidget(m_total);
        showTotal();
        m_timer.setSingleShot(true);
        m_timer.setInterval(monitorInterval);
        connect(&m_timer, &QTimer::timeout, this, [this] { showWaiting(); });
    }

    void add(const QMidiMessage &message)
    {
        ++m_count;
        if (m_waiting.size() == monitorLines)
            m_waiting.removeFirst();
        m_waiting << message;
        if (!m_timer.isActive())
            m_timer.start();
    }

    void showWaiting()
    {
        QStringList lines;
        for (const QMidiMessage &message : std::as_const(m_waiting)) {
            lines << QStringLiteral("%1 %2  %3 %4")
                         .arg(QMidiMessage::typeName(message.type()))
                         .arg(message.channel())
                         .arg(message.key())
                         .arg(message.value());
        }
        m_waiting.clear();
        m_text->appendPlainText(lines.join(QLatin1Char('\n')));
        showTotal();
    }

private:
    void showTotal() { m_total->setText(Gallery::tr("%1 messages").arg(m_count)); }

    QPlainTextEdit *m_text = new QPlainTextEdit;
    QLabel *m_total = new QLabel;
    QTimer m_timer;
    QVector<QMidiMessage> m_waiting;
    qint64 m_count = 0;
};

class MidiPage : public QWidget
{
public:
    explicit MidiPage(QWidget *parent);

private:
    template <typename Port>
    QGroupBox *createPortBox(const QString &title, Port *port, const QString &virtualName);
    QGroupBox *createSendBox();
    QGroupBox *createLearnBox();
    void receive(QMidiMessage message);
    void simulate(int count);
    void send(int type, int key, int value);

    // A picture shows the same on every machine.
    QMidiIn *m_input = Gallery::isPhotographed() ? nullptr : new QMidiIn(this);
    QMidiOut *m_output = Gallery::isPhotographed() ? nullptr : new QMidiOut(this);
    Monitor *m_monitor = new Monitor;
    QMidiMessage m_binding;
    MidiSequenceEdit *m_field = new MidiSequenceEdit;
    QPushButton *m_learn = new QPushButton(Gallery::tr("Learn"));
    QSlider *m_level = new QSlider(Qt::Horizontal);
    QTimer m_stream;
    int m_streamPosition = 0;
    bool m_isSimulated = false;
};

MidiPage::MidiPage(QWidget *parent)
    : QWidget(parent)
{
    auto *columns = new QHBoxLayout(this);
    auto *left = new QVBoxLayout;
    left->addWidget(createPortBox(Gallery::tr("Input"), m_input, QStringLiteral("gallery in")));
    left->addWidget(createPortBox(Gallery::tr("Output"), m_output, QStringLiteral("gallery out")));
    left->addWidget(createSendBox());
    left->addWidget(createLearnBox());
    left->addStretch(1);
    columns->addLayout(left);
    columns->addWidget(m_monitor, 1);

    if (m_input)
        connect(m_input, &QMidiIn::midiMessageReceived, this, &MidiPage::receive);
    connect(&m_stream, &QTimer::timeout, this, [this] { simulate(streamBurst); });

    // Without a MIDI service there is something to see as well.
    m_isSimulated = !m_input || m_input->portNames().isEmpty();
    if (m_isSimulated) {
        simulate(idleLines);
        m_monitor->showWaiting();
        auto *idle = new QTimer(this);
        connect(idle, &QTimer::timeout, this, [this] { simulate(1); });
        idle->start(idleInterval);
    }
}

template <typename Port>
QGroupBox *MidiPage::createPortBox(const QString &title, Port *port, const QString &virtualName)
{
    auto *box = new QGroupBox(title);
    auto *grid = new QGridLayout(box);
    auto *names = new QComboBox;
    auto *state = new QLabel;
    auto *refresh = new QPushButton(Gallery::tr("Refresh"));
    auto *open = new QPushButton(Gallery::tr("Open the port"));
    auto *openVirtual = new QPushButton(Gallery::tr("Open a virtual port"));

    const auto list = [port, names, state, open] {
        names->clear();
        if (port)
            names->addItems(port->portNames());
        const bool any = names->count() > 0;
        const QString simulated = Gallery::tr("Simulated controller");
        if (!any)
            names->addItem(simulated);
        names->setEnabled(any);
        open->setEnabled(any);
        state->setText(any ? Gallery::tr("No port is open.")
                           : Gallery::tr("%1 is open.").arg(simulated));
    };
    connect(refresh, &QPushButton::clicked, box, list);
    connect(open, &QPushButton::clicked, box, [port, names, state] {
        const QString name = names->currentText();
        state->setText(port->openPort(name) ? Gallery::tr("%1 is open.").arg(name)
                                            : Gallery::tr("%1 is gone.").arg(name));
    });
    connect(openVirtual, &QPushButton::clicked, box, [port, virtualName, state] {
        port->openVirtualPort(virtualName);
        state->setText(Gallery::tr("Asked for the virtual port %1.").arg(virtualName));
    });

    state->setWordWrap(true);
    names->setMinimumWidth(200);
    grid->addWidget(names, 0, 0);
    grid->addWidget(open, 0, 1);
    grid->addWidget(openVirtual, 1, 0);
    grid->addWidget(refresh, 1, 1);
    grid->addWidget(state, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    list();
    return box;
}

QGroupBox *MidiPage::createSendBox()
{
    auto *box = new QGroupBox(Gallery::tr("Send to the output"));
    auto *layout = new QHBoxLayout(box);
    auto *note = new QPushButton(Gallery::tr("Note (hold)"));
    auto *controller = new QSlider(Qt::Horizontal);
    controller->setMaximum(127);
    connect(note, &QPushButton::pressed, this, [this] { send(QMidiMessage::NoteOn, 60, 100); });
    connect(note, &QPushButton::released, this, [this] { send(QMidiMessage::NoteOff, 60, 0); });
    connect(controller, &QSlider::valueChanged, this,
            [this](int value) { send(QMidiMessage::ControlChange, 7, value); });
    layout->addWidget(note);
    layout->addWidget(new QLabel(Gallery::tr("Controller 7")));
    layout->addWidget(controller, 1);
    return box;
}

QGroupBox *MidiPage::createLearnBox()
{
    auto *box = new QGroupBox(Gallery::tr("Learn a message for the level"));
    auto *grid = new QGridLayout(box);
    auto *clear = new QPushButton(Gallery::tr("Clear"));
    auto *undo = new QPushButton(Gallery::tr("Undo"));
    auto *stream = new QPushButton(Gallery::tr("Simulate a stream of 10,000 messages a second"));
    m_learn->setCheckable(true);
    stream->setCheckable(true);
    m_level->setMaximum(127);
    m_field->setMinimumSize(240, 26);

    m_binding.setType(QMidiMessage::ControlChange);
    m_binding.setKey(7);
    m_field->setKeySequence(&m_binding);
    m_field->updateOldKeySequence();
    connect(m_learn, &QPushButton::toggled, m_field, [this](bool learning) {
        if (learning)
            m_field->updateOldKeySequence();
    });
    connect(clear, &QPushButton::clicked, m_field, &MidiSequenceEdit::clearKeySequence);
    connect(undo, &QPushButton::clicked, m_field, &MidiSequenceEdit::restoreKeySequence);
    connect(stream, &QPushButton::toggled, this, [this](bool on) {
        if (on)
            m_stream.start(streamInterval);
        else
            m_stream.stop();
    });

    grid->addWidget(m_field, 0, 0, 1, 3);
    grid->addWidget(m_learn, 1, 0);
    grid->addWidget(clear, 1, 1);
    grid->addWidget(undo, 1, 2);
    grid->addWidget(m_level, 2, 0, 1, 3);
    grid->addWidget(stream, 3, 0, 1, 3);
    return box;
}

void MidiPage::receive(QMidiMessage message)
{
    m_monitor->add(message);
    if (m_learn->isChecked()) {
        m_field->updateKeySequence(&message);
        m_learn->setChecked(false);
    } else if (message.type() == m_binding.type() && message.channel() == m_binding.channel()
               && message.key() == m_binding.key())
    {
        m_level->setValue(message.value());
    }
}

/// Without a MIDI service what is sent comes back at once.
void MidiPage::send(int type, int key, int value)
{
    QMidiMessage message;
    message.setType(type);
    message.setKey(key);
    message.setValue(value);
    message.setNote(key);
    message.setVelocity(value);
    if (m_isSimulated)
        receive(message);
    else
        m_output->sendMessage(message);
}

/// What a controller sends, without any port.
void MidiPage::simulate(int count)
{
    for (int i = 0; i < count; ++i) {
        QMidiMessage message;
        message.setType(QMidiMessage::ControlChange);
        message.setKey(7 + m_streamPosition % 4);
        message.setValue((40 + m_streamPosition) % 128);
        ++m_streamPosition;
        receive(message);
    }
}

QWidget *createMidiPage(QWidget *parent)
{
    return new MidiPage(parent);
}

} // namespace

GALLERY_PAGE(500, "midi", QT_TRANSLATE_NOOP("Gallery", "MIDI"), createMidiPage)

#ifndef NOCTURNE_GESTURES_H
#define NOCTURNE_GESTURES_H

#include "testsupport.h"

#include <nocturne/DarkFusionStyle>

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <QAction>

#include <memory>
#include <utility>

namespace TestSupport {

/// Whether \a widget takes a mouse event with exactly these buttons.
inline bool sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position,
                      Qt::MouseButton button, Qt::MouseButtons buttons,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons, modifiers);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// A move with the left button held.
inline bool sendDrag(QWidget *widget, const QPoint &position)
{
    return sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

/// The key that is called Qt::Key_\a name.
inline Qt::Key keyCalled(const QString &name)
{
    return Qt::Key(QMetaEnum::fromType<Qt::Key>().keyToValue(("Key_" + name).toLatin1()));
}

inline QWheelEvent wheelOver(const QWidget &widget, const QPoint &position = QPoint(5, 5))
{
    return QWheelEvent(position, widget.mapToGlobal(position), QPoint(), QPoint(0, -120),
                       Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
}

/// Whether \a widget keeps the wheel to itself.
inline bool takesWheel(QWidget *widget)
{
    QWheelEvent wheel = wheelOver(*widget);
    QCoreApplication::sendEvent(widget, &wheel);
    return wheel.isAccepted();
}

/// An event that says no more than its type.
inline void sendPlain(QObject *receiver, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(receiver, &event);
}

/// Drags \a data to \a position of \a widget and drops it. Whether each event was accepted.
inline QVector<bool> drop(QWidget *widget, const QMimeData &data, const QPoint &position)
{
    QVector<bool> accepted;
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDragMoveEvent move(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, {});
    for (QDropEvent *event : QVector<QDropEvent *>{&enter, &move, &drop}) {
        event->ignore();
        QCoreApplication::sendEvent(widget, event);
        accepted << event->isAccepted();
    }
    return accepted;
}

inline bool showActive(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

inline bool showExposed(QWidget *window)
{
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

/// What the window shows now, as opposed to what it would paint anew.
inline QImage onScreen(QWidget &window)
{
    QCoreApplication::processEvents();
    return window.screen()
        ->grabWindow(window.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

inline QImage freshlyPainted(QWidget &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Whether no gesture of before has left a mouse grab or a cursor behind.
inline bool nothingIsHeld()
{
    return !QApplication::overrideCursor() && !QWidget::mouseGrabber();
}

/// The paragraphs of a file in tests/widgets, each on one line, without its comments.
inline QStringList paragraphsOf(const QString &name)
{
    QFile file(NOCTURNE_SOURCE_DIR "/tests/widgets/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    const QString text = QString::fromUtf8(file.readAll());
    QStringList paragraphs;
    for (const QString &paragraph : text.split("\n\n")) {
        const QStringList lines = paragraph.split('\n').filter(QRegularExpression("^(?!# )"));
        paragraphs << lines.join(' ').simplified();
    }
    paragraphs.removeAll({});
    return paragraphs;
}

/// Rows from such a file: a script for run(), "=>" and what it notes. "(taken away)" stands for
/// each way to take a widget away from under a pressed button.
inline void addScripts(const QString &file)
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("log");
    for (const QString &paragraph : paragraphsOf(file)) {
        for (const char *how : {"hide", "disable", "modal", "popup", "enter", "lost, move 35"}) {
            const QString taken = QString(how) + ", held, restore";
            const QString script = paragraph.section(" =>", 0, 0).replace("(taken away)", taken);
            QTest::newRow(qPrintable(script)) << script << paragraph.section("=> ", 1);
            if (!paragraph.contains("(taken away)"))
                break;
        }
    }
}

/// A widget with a hand on it and a log of its signals, which the subclass connects.
template <typename Base>
class Driven : public Base
{
public:
    using Base::Base;

    virtual QPoint place(int number) const = 0;
    /// How far from that place it is pressed, so that a lost offset shows.
    virtual QPoint grip() const { return {}; }
    /// Whether anything is left of a gesture.
    virtual bool isHeld() const = 0;
    /// Does what the steps here do not know, and says whether it does.
    virtual bool perform(const QString &, const QVector<int> &) { return false; }

    /// Carries out steps such as "press 20, move 30, release 30" and returns what was noted.
    /// Presses, and moves with a button, that are left to the parent note "ignored". "key Left"
    /// presses that key and "ctrl 1" holds one; a second number of a place is further down; the
    /// name of a property or a slot sets or calls it, as in "value 7" and "setSpan 1 2", and with a
    /// question mark notes it, as in "value?".
    QString run(const QString &script)
    {
        static const QHash<QString, std::pair<QEvent::Type, Qt::MouseButton>> events = {
            {"press", {QEvent::MouseButtonPress, Qt::LeftButton}},
            {"release", {QEvent::MouseButtonRelease, Qt::LeftButton}},
            {"right", {QEvent::MouseButtonPress, Qt::RightButton}},
            {"rightup", {QEvent::MouseButtonRelease, Qt::RightButton}},
            {"double", {QEvent::MouseButtonDblClick, Qt::LeftButton}},
            {"move", {QEvent::MouseMove, Qt::NoButton}}};
        for (const QString &step : script.split(", ", Qt::SkipEmptyParts)) {
            const QStringList words = step.split(' ');
            const QString &verb = words.first();
            QVector<int> numbers;
            for (const QString &word : words.mid(1))
                numbers << word.toInt();
            const int number = numbers.value(0);
            if (events.contains(verb))
                send(events[verb].first, place(number) + grip() + QPoint(0, numbers.value(1)),
                     events[verb].second);
            else if (verb == "ctrl")
                m_modifiers.setFlag(Qt::ControlModifier, number);
            else if (verb == "shift")
                m_modifiers.setFlag(Qt::ShiftModifier, number);
            else if (verb == "drag") // from the first place to the others
                drag(numbers);
            else if (verb == "jump") // to the place itself
                send(QEvent::MouseButtonPress, place(number), Qt::LeftButton);
            else if (verb == "leave") // the drag area
                send(QEvent::MouseMove, place(number) + QPoint(60, 60), Qt::NoButton);
            else if (verb == "held")
                note("held")(isHeld());
            else if (verb == "wheel")
                note(takesWheel(this) ? "takes wheel" : "leaves wheel")();
            else if (verb == "key")
                QTest::keyPress(this, keyCalled(words.at(1)), m_modifiers);
            else if (!perform(verb, numbers) && !showOrTakeAway(verb) && !access(verb, numbers))
                qFatal("unknown: %s", qPrintable(step));
        }
        return takeLog();
    }

    bool send(QEvent::Type type, const QPoint &point, Qt::MouseButton button)
    {
        m_buttons.setFlag(button, button && type != QEvent::MouseButtonRelease);
        const bool taken = sendMouse(this, type, point, button, m_buttons, m_modifiers);
        if (!taken && m_buttons && type != QEvent::MouseButtonRelease)
            m_log << "ignored";
        return taken;
    }

    /// A slot that adds the name and the values of a signal to the log.
    auto note(const QString &name)
    {
        return [this, name](auto... values) {
            const QStringList entry{name, QString::number(values)...};
            m_log << entry.join(' ');
        };
    }
    /// What was noted since the last call, separated by commas.
    QString takeLog() { return std::exchange(m_log, {}).join(", "); }

private:
    void drag(const QVector<int> &numbers)
    {
        send(QEvent::MouseButtonPress, place(numbers.first()) + grip(), Qt::LeftButton);
        for (int number : numbers.mid(1))
            send(QEvent::MouseMove, place(number) + grip(), Qt::NoButton);
        send(QEvent::MouseButtonRelease, place(numbers.last()) + grip(), Qt::LeftButton);
    }

    bool access(const QString &name, QVector<int> numbers)
    {
        const QByteArray latin = name.toLatin1();
        if (name.endsWith('?')) {
            note(name.chopped(1) + ' ' + this->property(latin.chopped(1)).toString())();
            return true;
        }
        if (this->metaObject()->indexOfProperty(latin) >= 0)
            return this->setProperty(latin, numbers.value(0));
        QGenericArgument arguments[3];
        for (int i = 0; i < numbers.size(); ++i)
            arguments[i] = {"int", &numbers[i]};
        return QMetaObject::invokeMethod(this, latin, arguments[0], arguments[1], arguments[2]);
    }

    bool showOrTakeAway(const QString &verb)
    {
        if (verb == "show") {
            showActive(this->window());
        } else if (verb == "hide") {
            this->hide();
        } else if (verb == "disable") {
            this->setEnabled(false);
        } else if (verb == "modal") {
            m_above = std::make_unique<QDialog>();
            m_above->setWindowModality(Qt::ApplicationModal);
            showActive(m_above.get());
        } else if (verb == "popup") {
            m_above = std::make_unique<QMenu>();
            m_above->addAction(new QAction("action", m_above.get()));
            m_above->show();
        } else if (verb == "deactivate") {
            m_above = std::make_unique<QWidget>();
            showActive(m_above.get());
        } else if (verb == "enter") {
            sendPlain(this, QEvent::Enter);
        } else if (verb == "exit") {
            sendPlain(this, QEvent::Leave);
        } else if (verb == "lost") { // The release went elsewhere.
            m_buttons = Qt::NoButton;
        } else if (verb == "restore") {
            m_above.reset();
            this->show();
            this->setEnabled(true);
            m_buttons = Qt::NoButton;
        } else {
            return false;
        }
        return true;
    }

    QStringList m_log;
    Qt::MouseButtons m_buttons;
    Qt::KeyboardModifiers m_modifiers;
    std::unique_ptr<QWidget> m_above;
};

} // namespace TestSupport

#endif

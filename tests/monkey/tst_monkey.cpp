#include "qtversion.h"
#include "subjects.h"

#include <nocturne-headers.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>

// A monkey: random events and calls on one class after the other. After every step it checks what
// the class promises; a script that breaks something is cut down to the shortest that still does.
//
//   tst_monkey                             a short run over all classes
//   tst_monkey --seed 7 --steps 100000     as long as wanted; --class Slider for one class
//   tst_monkey --class Slider --replay 12,77,1034    the script that was printed

namespace {

/// A step is the seed of its dice, so any part of a script can be replayed on its own.
using Script = QStringList;

/// Warnings of the toolkit that say nothing about the library.
const char *const expectedWarnings[] = {
    "QStandardPaths: XDG_RUNTIME_DIR not set",
    "skipping QEventPoint", // a touch that ends where no window is any more
    "This plugin does not support",
    "Unimplemented code.", // what the offscreen platform says of windows it can't raise
    "QWidget::setMinimumSize: ",
    "QWidget::setMaximumSize: ",
    "QWidget::repaint: Recursive repaint",
    "QGradient::setColorAt: ", // a stop outside 0 to 1 is left out
    "QFont::setPointSizeF: ",
    "QFont::setPixelSize: ",
    "SpanSlider::triggerAction: Unknown action",
    "QDrag: No mimedata set",
    "QWidget::paintEngine: Should no longer be called", // a scroll bar's repaint of its parent
    // Items removed in the middle of a removal; the library itself removes none.
    "QAbstractItemModel::endRemoveRows:  Invalid index",
    "Trying to construct an instance of an invalid type", // dropped items with values of no type
    "QSplitter",
    // A line edit's own: nothing of the library selects by position.
    "QWidgetLineControl::setSelection: Invalid start position",
};

QString failure;
QString lastWarning;
unsigned long long eventCount = 0;

void fail(const QString &what)
{
    if (failure.isEmpty())
        failure = what;
}

void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const bool expected = std::any_of(std::begin(expectedWarnings), std::end(expectedWarnings),
                                      [&](const char *known) { return text.startsWith(known); });
    // After that repaint the toolkit goes on without a device to paint on.
    if (text.startsWith("QPainter::") && lastWarning.startsWith("QWidget::paintEngine: "))
        return;
    lastWarning = text;
    if (type != QtDebugMsg && !expected)
        fail("warning: " + text);
}

class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(const Subject &subject, quint32 firstStep)
        : m_subject(subject)
    {
        std::unique_ptr<QStyle> style(m_theme->style());
        if (firstStep % 4 == 1)
            style.reset(QStyleFactory::create("Fusion"));
        else if (firstStep % 4 == 2)
            style = std::make_unique<DarkProxyStyle>("Fusion");
        else if (firstStep % 4 == 3)
            m_window->setStyleSheet(
                "QWidget { color: #ddd; } QSlider::handle { width: 9px; } QListView::item { "
                "margin: 2px } QAbstractSpinBox { border: 1px solid red; }");
        QApplication::setStyle(style.release());
        QApplication::setPalette(m_theme->palette());

        new QVBoxLayout(m_window.get());
        m_window->resize(300, 200);
        makeSubject();
        m_window->show();

        // Dialogs and menus that a step has opened end by themselves.
        connect(&m_closer, &QTimer::timeout, [] {
            QDrag::cancel();
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        m_closer.start(2);
    }

    ~Monkey() override
    {
        m_closer.stop();
        QBalloonTip::hideBalloon();
        delete m_widget;
        m_window.reset();
        QApplication::setStyle(QStyleFactory::create("Fusion"));
    }

    void step(quint32 seed)
    {
        lastWarning.clear();
        Dice dice(seed);
        using Action = void (Monkey::*)(Dice &);
        static const Action actions[] = {
            &Monkey::mouse, &Monkey::mouse,        &Monkey::mouse,        &Monkey::mouse,
            &Monkey::mouse, &Monkey::mouse,        &Monkey::keys,         &Monkey::keys,
            &Monkey::keys,  &Monkey::otherInput,   &Monkey::otherInput,   &Monkey::otherInput,
            &Monkey::drop,  &Monkey::changeWidget, &Monkey::changeWidget, &Monkey::changeWorld};
        (this->*actions[dice.roll(16)])(dice);
        const QString broken = m_widget ? brokenPromise(m_widget) : QString();
        if (!broken.isEmpty())
            fail("broken promise: " + broken);
    }

    /// Lets go of everything; nothing may be left behind then.
    void rest()
    {
        m_armed = -1;
        m_buttons = Qt::NoButton;
        for (int i = 0; i < 10 && QApplication::activePopupWidget(); ++i)
            QApplication::activePopupWidget()->close();
        // What a real pointer would show next: it moves with no button held.
        const QPoint place(1, 1);
        using Receiver = QPointer<QWidget>;
        for (const Receiver &receiver : {Receiver(QWidget::mouseGrabber()), m_widget}) {
            if (receiver && m_widget)
                send(receiver, QMouseEvent(QEvent::MouseMove, place, receiver->mapToGlobal(place),
                                           Qt::NoButton, Qt::NoButton, Qt::NoModifier));
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // After the toolkit has told of its own pointer, which may stand on the widget.
        send(m_widget, QEvent(QEvent::Leave));
        if (QWidget::mouseGrabber())
            fail("the mouse stays grabbed");
        if (QApplication::overrideCursor())
            fail("an override cursor stays");
        if (QApplication::activePopupWidget())
            fail("a popup stays");
    }

private Q_SLOTS:
    /// Of any signal of the subject. Does something violent in the middle of it if asked to.
    void heard()
    {
        const int what = std::exchange(m_armed, -1);
        if (what < 0 || !m_widget)
            return;
        const QMetaObject *meta = m_widget->metaObject();
        const bool isOwn = meta->method(senderSignalIndex()).enclosingMetaObject() == meta;
        // Neither the toolkit's own signals nor a call from outside bear it.
        if (what == 0 && isOwn && !m_calling && !m_subject.onlyDeletedLater) {
            delete m_widget;
        } else if (what == 0) {
            m_widget->deleteLater();
        } else if (what == 1) {
            m_widget->hide();
        } else if (what == 2) {
            m_widget->setEnabled(false);
        } else if (what == 3) {
            reparent(nullptr);
        } else if (what == 4 && m_calling && qobject_cast<QMenu *>(m_widget)) {
            m_widget->update(); // nor does the toolkit's popup() bear a nested loop
        } else if (what == 4) {
            // A popup whose appearance ends a gesture is not yet fit to be closed.
            m_closer.stop();
            QEventLoop loop;
            QTimer::singleShot(1, &loop, &QEventLoop::quit);
            loop.exec();
            m_closer.start(2);
        } else if (!m_calling) { // the toolkit's models bear no change in the middle of another
            Dice inner(82);
            m_subject.call(m_widget, inner);
        }
    }

private:
    void makeSubject()
    {
        m_widget = m_subject.create();
        if (!m_widget->isWindow() || !(m_widget->windowFlags() & Qt::Popup))
            m_window->layout()->addWidget(m_widget);
        m_widget->show();
        const QMetaObject *meta = m_widget->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Signal && method.name() != "destroyed")
                connect(m_widget, QByteArray("2" + method.methodSignature()), this, SLOT(heard()));
        }
    }

    /// The subject or one of the widgets inside it.
    QWidget *target(Dice &dice)
    {
        if (!m_widget)
            makeSubject();
        if (m_buttons && m_pressedOn)
            return QWidget::mouseGrabber() ? QWidget::mouseGrabber() : m_pressedOn.data();
        const QList<QWidget *> inside = m_widget->findChildren<QWidget *>();
        if (inside.isEmpty() || dice.coin())
            return m_widget;
        return inside.at(dice.roll(inside.size()));
    }

    static QPoint pointOn(const QWidget *widget, Dice &dice)
    {
        return {dice.roll(widget->width() + 20) - 10, dice.roll(widget->height() + 20) - 10};
    }

    static void send(const QPointer<QWidget> &receiver, QEvent &&event)
    {
        if (!receiver)
            return;
        ++eventCount;
        QCoreApplication::sendEvent(receiver, &event);
    }

    void reparent(QWidget *parent)
    {
        if (m_widget->isWindow())
            return; // the toolkit's own windows don't bear it
        m_widget->setParent(parent);
        m_window->layout()->addWidget(m_widget);
    }

    void mouse(Dice &dice)
    {
        static const Qt::MouseButton allButtons[] = {Qt::LeftButton,   Qt::LeftButton,
                                                     Qt::LeftButton,   Qt::RightButton,
                                                     Qt::MiddleButton, Qt::BackButton};
        QWidget *widget = target(dice);
        const QPoint place = pointOn(widget, dice);
        const Qt::MouseButton button = allButtons[dice.roll(6)];
        const auto modifiers = static_cast<Qt::KeyboardModifiers>(dice.roll(4) << 25);
        QEvent::Type type = QEvent::MouseMove;
        const int what = dice.roll(6);
        if (what == 0) {
            if (widget->size().isEmpty())
                return; // the toolkit's header paints a picture as high as itself
            type = dice.roll(4) ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick;
            if (!m_buttons)
                m_pressedOn = widget;
            m_buttons |= button;
        } else if (what == 1) {
            type = QEvent::MouseButtonRelease;
            m_buttons &= ~button;
        } else if (what == 2 && dice.roll(4) == 0) { // A release that went elsewhere.
            m_buttons = Qt::NoButton;
        }
        send(widget,
             QMouseEvent(type, place, widget->mapToGlobal(place),
                         type == QEvent::MouseMove ? Qt::NoButton : button, m_buttons, modifiers));
    }

    void keys(Dice &dice)
    {
        static const int all[] = {
            Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,      Qt::Key_Down,      Qt::Key_Home,
            Qt::Key_End,     Qt::Key_PageUp, Qt::Key_Delete,  Qt::Key_Return,    Qt::Key_Escape,
            Qt::Key_Space,   Qt::Key_Tab,    Qt::Key_A,       Qt::Key_Backspace, Qt::Key_F2,
            Qt::Key_Backtab, Qt::Key_Menu,   Qt::Key_unknown, Qt::Key_Shift,     Qt::Key_Z};
        const QPointer<QWidget> widget = target(dice);
        const int key = all[dice.roll(20)];
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
            m_armed = -1; // as for setFocus() below
        const auto modifiers =
            static_cast<Qt::KeyboardModifiers>(dice.roll(3) ? 0 : dice.roll(8) << 25);
        const QString text = key >= Qt::Key_A && key <= Qt::Key_Z ? QString(QChar(key)) : QString();
        if (dice.roll(4) == 0)
            send(widget, QKeyEvent(QEvent::ShortcutOverride, key, modifiers, text));
        for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            const bool repeats = dice.coin();
            if (dice.roll(5))
                send(widget, QKeyEvent(type, key, modifiers, text, repeats));
        }
    }

    void drop(Dice &dice)
    {
        const QPointer<QWidget> widget = target(dice);
        QMimeData data;
        if (dice.coin())
            data.setUrls({QUrl(dice.text()), QUrl::fromLocalFile("/a/b.mov"), QUrl()});
        if (dice.coin())
            data.setColorData(dice.coin() ? QVariant(QColor(1, 2, 3)) : QVariant(dice.text()));
        for (const char *format : {"text/plain", "application/x-qabstractitemmodeldatalist"}) {
            if (dice.coin())
                data.setData(format, dice.text().toUtf8());
        }
        const QPoint place = pointOn(widget, dice);
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        send(widget, QDragEnterEvent(place, actions, &data, Qt::LeftButton, {}));
        send(widget, QDragMoveEvent(place, actions, &data, Qt::LeftButton, {}));
        if (dice.coin())
            send(widget, QDropEvent(place, actions, &data, Qt::LeftButton, {}));
        else
            send(widget, QDragLeaveEvent());
    }

    void otherInput(Dice &dice)
    {
        QWidget *widget = target(dice);
        const QPoint place = pointOn(widget, dice);
        const QPoint global = widget->mapToGlobal(place);
        const auto reason = static_cast<Qt::FocusReason>(dice.roll(8));
        const bool coin = dice.coin();
        const int what = dice.roll(24);
        if (what < 8) {
            const QPoint angle(dice.roll(3) * 120 - 120, dice.roll(5) * 120 - 240);
            send(widget, QWheelEvent(place, global, QPoint(), angle, m_buttons, Qt::NoModifier,
                                     Qt::NoScrollPhase, false));
        } else if (what < 12) {
            static auto *device = QTest::createTouchDevice();
            auto touch = QTest::touchEvent(widget, device);
            coin ? touch.press(0, place, widget) : touch.release(0, place, widget);
        } else if (what < 16) {
            const auto type = coin ? QEvent::TabletPress : QEvent::TabletMove;
            send(widget, QtVersion::penEvent(type, place, global));
        } else if (what == 16) {
            send(widget, QContextMenuEvent(QContextMenuEvent::Mouse, place, global));
        } else if (what == 17) {
            send(widget, QHelpEvent(coin ? QEvent::ToolTip : QEvent::WhatsThis, place, global));
        } else if (what == 18) {
            QInputMethodEvent input(dice.text(), {});
            input.setCommitString(dice.text());
            send(widget, std::move(input));
        } else if (what == 19) {
            send(widget, QHoverEvent(coin ? QEvent::HoverMove : QEvent::HoverLeave, place, place));
        } else if (what == 20) {
            send(widget, QFocusEvent(coin ? QEvent::FocusIn : QEvent::FocusOut, reason));
        } else if (what == 21) {
            send(widget, QEvent(coin ? QEvent::Leave : QEvent::WindowDeactivate));
        } else if (what == 22) {
            m_armed = -1; // the toolkit's call does not outlive a widget that is deleted in it
            widget->setFocus(reason);
        } else {
            auto *menu = new QMenu(m_window.get());
            menu->setAttribute(Qt::WA_DeleteOnClose);
            menu->addAction(dice.text());
            menu->popup(global);
        }
    }

    void changeWidget(Dice &dice)
    {
        if (!m_widget)
            makeSubject();
        ++eventCount;
        const int what = dice.roll(12);
        if (what == 0) {
            m_widget->setEnabled(dice.coin());
        } else if (what == 1) {
            m_widget->setVisible(dice.roll(4));
        } else if (what == 2) {
            const int edge = dice.roll(20) ? 400 : 16384;
            m_window->resize(dice.roll(edge), dice.roll(edge == 400 ? 400 : 60));
        } else if (what == 3) {
            delete m_widget;
        } else if (what == 4) {
            m_widget->deleteLater();
        } else if (what == 5) {
            QWidget other;
            reparent(&other);
            m_widget->show();
        } else if (what == 6 && !m_widget->size().isEmpty()) {
            QPixmap pixmap(m_widget->size().boundedTo({400, 400}) * 3);
            pixmap.setDevicePixelRatio(1.0 + dice.roll(5) / 2.0);
            m_widget->render(&pixmap);
        } else {
            m_calling = true;
            m_subject.call(m_widget, dice);
            m_calling = false;
        }
    }

    void changeWorld(Dice &dice)
    {
        const int what = dice.roll(17);
        if (what == 0) {
            QPalette palette = m_theme->palette();
            palette.setColor(QPalette::Window, QColor(dice.roll(256), dice.roll(256), 40));
            m_theme->setPalette(palette, true);
            m_window->setPalette(palette);
        } else if (what == 1) {
            m_window->setLayoutDirection(dice.coin() ? Qt::RightToLeft : Qt::LeftToRight);
        } else if (what == 2) {
            QFont font = m_window->font();
            font.setPixelSize(1 + dice.roll(60));
            font.setBold(dice.coin());
            m_window->setFont(font);
        } else if (what == 3) {
            send(m_widget ? m_widget.data() : m_window.get(), QEvent(QEvent::LanguageChange));
        } else if (what == 4) {
            // Widgets exist without a theme, as long as none of them paints.
            m_theme.reset();
            m_theme = std::make_unique<DarkUX>();
            const std::unique_ptr<DarkFusionStyle> unusedStyle(m_theme->style());
        } else if (what == 5) {
            m_window->setStyleSheet(dice.coin() ? QString() : "* { padding: 3px; color: red; }");
        } else if (what == 6) {
            QBalloonTip::showBalloon(
                static_cast<QSystemTrayIcon::MessageIcon>(dice.roll(4)), dice.text(), dice.text(),
                nullptr, QPoint(dice.roll(800), dice.roll(800)), dice.roll(9) - 2, dice.coin());
        } else if (what == 7) {
            rest();
        } else if (what < 15) {
            m_armed = dice.roll(6);
        } else {
            QCoreApplication::processEvents();
        }
    }

    const Subject &m_subject;
    std::unique_ptr<DarkUX> m_theme = std::make_unique<DarkUX>();
    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    QPointer<QWidget> m_widget;
    QPointer<QWidget> m_pressedOn;
    Qt::MouseButtons m_buttons;
    QTimer m_closer;
    bool m_calling = false;
    int m_armed = -1; ///< what is done when the next signal is heard, nothing if negative
};

/// Runs \a text as a script in this process and says what went wrong. Inside an event loop, as in a
/// host: what is deleted later is deleted there.
int replay(const Subject &subject, const QString &text)
{
    QFile input;
    const bool isRead = text == "-" && input.open(stdin, QIODevice::ReadOnly);
    const Script script = (isRead ? QString(input.readAll()) : text).split(',');
    qInstallMessageHandler(onMessage);
    QTimer::singleShot(0, qApp, [&] {
        {
            Monkey monkey(subject, script.first().toUInt());
            for (int i = 0; i < script.size() && failure.isEmpty(); ++i)
                monkey.step(script.at(i).toUInt());
            if (failure.isEmpty())
                monkey.rest();
        }
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    qInstallMessageHandler(nullptr);
    std::printf("%s\nevents %llu\n", qPrintable(failure), eventCount);
    return failure.isEmpty() ? 0 : 1;
}

/// Runs \a script in a process of its own, which may crash or hang. What went wrong, or nothing.
QString runApart(const char *name, const Script &script, unsigned long long *events = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--class", name, "--replay", "-"});
    process.write(script.join(',').toLatin1());
    process.closeWriteChannel();
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        return "hangs";
    }
    const QByteArray output = process.readAll();
    if (events)
        *events += output.mid(output.lastIndexOf("events ") + 7).trimmed().toULongLong();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return QString();
    if (process.exitStatus() == QProcess::CrashExit && output.size() < 300)
        return "crashes";
    return QString::fromLocal8Bit(output.right(6000));
}

/// What went wrong without the numbers in it, to tell whether two failures are alike; of a
/// checker's report, its summary.
QString kindOf(const QString &wrong)
{
    return wrong.mid(qMax(0, int(wrong.indexOf("SUMMARY:"))))
        .remove(QRegularExpression("0x[0-9a-f]+|[0-9]+"));
}

/// Leaves out ever smaller parts of \a script while it goes on failing.
Script shortened(const char *name, Script script, const QString &wrong)
{
    QElapsedTimer clock;
    clock.start();
    const auto fails = [&](const Script &part) {
        return kindOf(runApart(name, part)) == kindOf(wrong);
    };
    for (int part = int(script.size()) / 2; part > 0; part /= 2) {
        for (int at = 0; at < script.size() && clock.elapsed() < 300000;) {
            const Script shorter = script.mid(0, at) + script.mid(at + part);
            if (fails(shorter))
                script = shorter;
            else
                at += part;
        }
    }
    return script;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"seed", "The first random number.", "value", "1"},
                       {"steps", "Steps for each class.", "value", "2400"},
                       {"class", "One class only.", "value"},
                       {"replay", "The steps of a script, or - to read them.", "value"}});
    parser.process(app);
    const quint32 seed = parser.value("seed").toUInt();
    const quint32 steps = parser.value("steps").toUInt();

    int failures = 0;
    for (const Subject &subject : subjects()) {
        if (parser.isSet("class") && parser.value("class") != subject.name)
            continue;
        if (parser.isSet("replay"))
            return replay(subject, parser.value("replay"));
        // Four scripts, one for each style.
        unsigned long long events = 0;
        const char *verdict = "passed";
        for (quint32 part = 0; part < 4; ++part) {
            Script script{QString::number(seed * 4 + part)};
            for (quint32 i = 1; i < std::max(2u, steps / 4); ++i)
                script << QString::number(seed * 1000003u + part * 7919u + i * 31u);
            const QString wrong = runApart(subject.name, script, &events);
            if (wrong.isEmpty())
                continue;
            verdict = "FAILED";
            ++failures;
            std::printf("%s fails with seed %u, and is cut down: %s\n", subject.name, seed,
                        qPrintable(wrong));
            std::fflush(stdout);
            const Script shortest = shortened(subject.name, script, wrong);
            std::printf("replay with: --class %s --replay %s\n", subject.name,
                        qPrintable(shortest.join(',')));
        }
        std::printf("%-20s %9llu events %s\n", subject.name, events, verdict);
        std::fflush(stdout);
    }
    return failures ? 1 : 0;
}

#include "tst_monkey.moc"

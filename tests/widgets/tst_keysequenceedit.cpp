#include "gestures.h"
#include "qtversion.h"
#include "xserver.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>

#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>

#include <QAction>

#include <cstdio>
#include <utility>

/// What xdotool presses, and the sequence that it makes or 0.
using Presses = QVector<QPair<QString, int>>;

namespace {

const int shift = Qt::SHIFT;
const int control = Qt::CTRL;
const int alt = Qt::ALT;
const int keypad = Qt::KeypadModifier;

QString shownText(const KeySequenceEdit &field)
{
    return field.findChild<QLabel *>("edit")->text();
}

/// A window with the field and with menu actions on keys that the tests press.
class Window : public QMainWindow
{
public:
    KeySequenceEdit *field = new KeySequenceEdit(this);
    QVector<QAction *> actions;

    Window()
    {
        setCentralWidget(field);
        QMenu *menu = menuBar()->addMenu("&File");
        for (const char *keys : {"Ctrl+S", "F5", "Alt+F4", "X", "Ctrl+Alt+Del"})
            actions << menu->addAction(
                keys, [] {}, QKeySequence(keys));
    }
};

/// Whether \a field takes the key press.
bool sendPress(KeySequenceEdit &field, int key, int modifiers, const QString &text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
    event.ignore();
    QCoreApplication::sendEvent(&field, &event);
    return event.isAccepted();
}

/// The program under the real keyboard: says on its standard output what happens.
int runClient(int argc, char *argv[])
{
    QApplication app(argc, argv);
    DarkUX theme;
    Window window;
    const auto say = [](const QString &line) {
        std::printf("%s\n", line.toUtf8().constData());
        std::fflush(stdout);
    };
    QObject::connect(window.field, &KeySequenceEdit::keySequenceChanged, window.field,
                     [say](const QKeySequence &sequence) {
                         say(QString::number(QtVersion::firstKey(sequence), 16));
                     });
    for (QAction *action : std::as_const(window.actions)) {
        QObject::connect(action, &QAction::triggered, action,
                         [say, action] { say("menu " + action->text()); });
    }
    window.setWindowTitle("shortcut client");
    window.setGeometry(100, 100, 400, 120);
    window.show();
    window.activateWindow();
    window.field->setFocus(Qt::MouseFocusReason);
    return app.exec();
}

/// A client on an X server of its own.
class Keyboard
{
public:
    ~Keyboard()
    {
        m_client.kill();
        m_client.waitForFinished(5000);
    }

    bool start(const QStringList &layout)
    {
        if (!m_server.start())
            return false;
        QProcess setLayout;
        setLayout.setProcessEnvironment(m_server.environment());
        setLayout.start("setxkbmap", layout);
        if (!setLayout.waitForFinished(20000) || setLayout.exitCode() != 0)
            return false;
        m_client.setProcessEnvironment(m_server.environment());
        m_client.start(QCoreApplication::applicationFilePath(), {"--client"});
        const QString window =
            m_server.xdotool({"search", "--sync", "--onlyvisible", "--name", "shortcut client"});
        m_server.xdotool({"windowfocus", "--sync", window});
        m_server.xdotool({"mousemove", "300", "180", "click", "1"});
        // The field has the focus when a press is answered.
        for (int i = 0; i < 50; ++i) {
            if (press("F12", 500) == QString::number(Qt::Key_F12, 16))
                return true;
        }
        return false;
    }

    /// Presses \a keys and returns the lines that the client says until it is quiet, having
    /// waited \a longest ms for the first.
    QString press(const QString &keys, int longest)
    {
        m_server.xdotool({"key", keys});
        QString said;
        while (m_client.waitForReadyRead(said.isEmpty() ? longest : 60))
            said += QString::fromUtf8(m_client.readAllStandardOutput());
        return said.trimmed().replace('\n', ", ");
    }

private:
    XServer m_server;
    QProcess m_client;
};

} // namespace

class TestKeySequenceEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { delete m_theme.style(); }

    void recordsPresses_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        const auto row = [](const QString &name, int key, int modifiers, const QString &text,
                            int expected) {
            QTest::newRow(qPrintable(name)) << key << modifiers << text << (modifiers | expected);
        };
        row("plain", Qt::Key_A, 0, "a", Qt::Key_A);
        row("letter", Qt::Key_A, shift, "A", Qt::Key_A);
        row("Ctrl", Qt::Key_S, control, "\x13", Qt::Key_S);
        row("keypad", Qt::Key_5, keypad, "5", Qt::Key_5);
        row("no Shift", Qt::Key_Question, 0, "?", Qt::Key_Question);
        row("other text", Qt::Key_Question, shift, "x", Qt::Key_Question);
        row("longer text", Qt::Key_Question, shift, "??", Qt::Key_Question);
        row("all modifiers", Qt::Key_Exclam, shift | control | alt | Qt::META, "!", Qt::Key_1);
        const QString shifted = "~!@#$%^&*()_+}{|:\"<>?";
        const QString plain = "`1234567890-=][\\;',./";
        for (int i = 0; i < shifted.size(); ++i)
            row(shifted.at(i), shifted.at(i).unicode(), shift, shifted.at(i),
                plain.at(i).unicode());
    }

    void recordsPresses()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, text);
        QFETCH(int, expected);
        KeySequenceEdit field;
        QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
        QVERIFY(sendPress(field, key, modifiers, text));
        QVERIFY(sendPress(field, key, modifiers, text));
        QCOMPARE(field.keySequence(), QKeySequence(expected));
        QCOMPARE(field.oldKeySequence(), QKeySequence());
        QCOMPARE(shownText(field), QKeySequence(expected).toString(QKeySequence::NativeText));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.first().first().value<QKeySequence>(), QKeySequence(expected));
    }

    void ignoresModifiersAlone()
    {
        KeySequenceEdit field;
        for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_Super_L,
                        Qt::Key_Super_R, Qt::Key_AltGr})
            QVERIFY(sendPress(field, key, shift, "!"));
        QCOMPARE(field.keySequence(), QKeySequence());
    }

    void keepsThePreviousSequence()
    {
        KeySequenceEdit field;
        field.setOldKeySequence(QKeySequence("F1"));
        field.setKeySequence(QKeySequence("Ctrl+K, Ctrl+C"));
        QCOMPARE(shownText(field), QString("Ctrl+K, Ctrl+C"));
        QCOMPARE(field.oldKeySequence(), QKeySequence("F1"));
        for (int press = 0; press < 2; ++press) {
            QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(field.oldKeySequence(), QKeySequence("Ctrl+K, Ctrl+C"));
        }
        QTest::keyClick(&field, Qt::Key_F2);
        QCOMPARE(field.oldKeySequence(), QKeySequence("Ctrl+S"));
    }

    void clearsAndReturnsToDefault()
    {
        KeySequenceEdit field;
        QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
        field.clearKeySequence();
        field.setDefaultKeySequence(QKeySequence("Ctrl+T"));
        QCOMPARE(shownText(field), QString());
        field.defaultKeySequence();
        QCOMPARE(field.keySequence(), QKeySequence("Ctrl+T"));
        QCOMPARE(shownText(field), QString("Ctrl+T"));
        QCOMPARE(changes.count(), 0);
        field.clearKeySequence();
        field.clearKeySequence();
        QCOMPARE(shownText(field), QString());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.first().first().value<QKeySequence>(), QKeySequence());
    }

    void takesShortcutsFromMenus()
    {
        Window window;
        QVERIFY(TestSupport::showActive(&window));
        QSignalSpy saved(window.actions.first(), &QAction::triggered);
        window.setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(saved.count(), 1);
        QTest::mouseClick(window.field, Qt::LeftButton);
        QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(saved.count(), 1);
        QCOMPARE(window.field->keySequence(), QKeySequence("Ctrl+S"));
    }

    void recordsRealKeys_data()
    {
        QTest::addColumn<QStringList>("layout");
        QTest::addColumn<Presses>("presses");
        // Numbers are key codes of the server: 10 is the key of 1, 24 of Q, 87 of 1 on the keypad.
        QTest::newRow("US") << QStringList{"us"}
                            << Presses{{"ctrl+s", control | Qt::Key_S},
                                       {"ctrl+s", 0},
                                       {"F5", Qt::Key_F5},
                                       {"x", Qt::Key_X},
                                       {"ctrl+alt+Delete", control | alt | Qt::Key_Delete},
                                       {"alt+F4", alt | Qt::Key_F4},
                                       {"shift+10", shift | Qt::Key_1},
                                       {"shift+61", shift | Qt::Key_Slash},
                                       {"shift+a", shift | Qt::Key_A},
                                       {"Shift_L", 0},
                                       {"Control_R", 0},
                                       {"Alt_L", 0},
                                       {"Super_L", 0}};
        QTest::newRow("Caps Lock") << QStringList{"us"}
                                   << Presses{{"Caps_Lock", Qt::Key_CapsLock},
                                              {"38", Qt::Key_A},
                                              {"shift+38", shift | Qt::Key_A},
                                              {"shift+10", shift | Qt::Key_1},
                                              {"ctrl+38", control | Qt::Key_A}};
        QTest::newRow("keypad") << QStringList{"us"}
                                << Presses{{"87", keypad | Qt::Key_End},
                                           {"Num_Lock", Qt::Key_NumLock},
                                           {"87", keypad | Qt::Key_1},
                                           {"10", Qt::Key_1},
                                           {"ctrl+87", control | keypad | Qt::Key_1},
                                           {"86", keypad | Qt::Key_Plus}};
        QTest::newRow("dead keys") << QStringList{"us", "intl"}
                                   << Presses{{"48", Qt::Key_Dead_Acute},
                                              {"e", Qt::Key_E},
                                              {"shift+48", shift | Qt::Key_Dead_Diaeresis},
                                              {"ISO_Level3_Shift", 0}};
        QTest::newRow("German") << QStringList{"de"}
                                << Presses{{"52", Qt::Key_Y},
                                           {"34", Qt::Key_Udiaeresis},
                                           {"shift+11", shift | Qt::Key_Apostrophe},
                                           {"shift+16", shift | Qt::Key_Slash},
                                           {"shift+15", shift | Qt::Key_7},
                                           {"ISO_Level3_Shift+24",
                                            int(Qt::GroupSwitchModifier) | Qt::Key_At}};
    }

    // The client's window has menu actions on several of the combinations; none of them may run.
    void recordsRealKeys()
    {
        for (const char *program : {"Xvfb", "xdotool", "setxkbmap"}) {
            if (QStandardPaths::findExecutable(program).isEmpty())
                QSKIP(qPrintable(QString("%1 is not installed").arg(program)));
        }
        QFETCH(QStringList, layout);
        QFETCH(Presses, presses);
        Keyboard keyboard;
        QVERIFY(keyboard.start(layout));
        for (const auto &press : std::as_const(presses)) {
            const QString expected = press.second ? QString::number(press.second, 16) : QString();
            const QString said = keyboard.press(press.first, press.second ? 10000 : 400);
            QVERIFY2(said == expected, qPrintable(QString("%1: recorded \"%2\", expected \"%3\"")
                                                      .arg(press.first, said, expected)));
        }
    }

private:
    DarkUX m_theme;
};

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], "--client") == 0)
        return runClient(argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    TestKeySequenceEdit test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keysequenceedit.moc"

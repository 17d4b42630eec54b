#include "qtversion.h"
#include "testsupport.h"
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

    /// Presses \a keys, one after the other, and returns the lines that the client says until it is
    /// quiet, having waited \a longest ms for the first.
    QString press(const QString &keys, int longest)
    {
        m_server.xdotool(QStringList{"key"} + keys.split(','));
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

    void recordsPresses()
    {
        const auto compare = [](int key, int modifiers, const QString &text, int expected) {
            KeySequenceEdit field;
            QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
            QVERIFY(sendPress(field, key, modifiers, text));
            QVERIFY(sendPress(field, key, modifiers, text));
            const QKeySequence sequence(modifiers | expected);
            QCOMPARE(field.keySequence(), sequence);
            QCOMPARE(shownText(field), sequence.toString(QKeySequence::NativeText));
            QCOMPARE(changes, QList<QVariantList>{{QVariant::fromValue(sequence)}});
        };
        compare(Qt::Key_S, control, "\x13", Qt::Key_S);
        compare(Qt::Key_5, keypad, "5", Qt::Key_5);
        compare(Qt::Key_Question, 0, "?", Qt::Key_Question);
        compare(Qt::Key_Question, shift, "x", Qt::Key_Question);
        compare(Qt::Key_Question, shift, "??", Qt::Key_Question);
        compare(Qt::Key_Exclam, shift | control | alt | Qt::META, "!", Qt::Key_1);
        const QString shifted = "A~!@#$%^&*()_+}{|:\"<>?";
        const QString plain = "A`1234567890-=][\\;',./";
        for (int i = 0; i < shifted.size(); ++i)
            compare(shifted.at(i).unicode(), shift, shifted.at(i), plain.at(i).unicode());
        KeySequenceEdit field;
        for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_Super_L,
                        Qt::Key_Super_R, Qt::Key_AltGr})
            QVERIFY(sendPress(field, key, shift, "!"));
        QCOMPARE(field.keySequence(), QKeySequence());
    }

    void keepsThePreviousSequenceAndTheDefault()
    {
        KeySequenceEdit field;
        QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
        field.clearKeySequence();
        field.setOldKeySequence(QKeySequence("F1"));
        field.setKeySequence(QKeySequence("Ctrl+K, Ctrl+C"));
        QCOMPARE(field.oldKeySequence(), QKeySequence("F1"));
        QCOMPARE(changes.count(), 0);
        for (int press = 0; press < 2; ++press) {
            QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(field.oldKeySequence(), QKeySequence("Ctrl+K, Ctrl+C"));
        }
        QTest::keyClick(&field, Qt::Key_F2);
        QCOMPARE(field.oldKeySequence(), QKeySequence("Ctrl+S"));
        changes.clear();
        field.setDefaultKeySequence(QKeySequence("Ctrl+T"));
        field.defaultKeySequence();
        QCOMPARE(shownText(field), QString("Ctrl+T"));
        QCOMPARE(changes.count(), 0);
        field.clearKeySequence();
        field.clearKeySequence();
        QCOMPARE(changes, QList<QVariantList>{{QVariant::fromValue(QKeySequence())}});
    }

    void recordsRealKeys_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("presses");
        // What xdotool presses, and the sequence that it makes, as text or number. What makes none
        // comes before what does, with commas between. Numbers are key codes of the server: 10
        // is the key of 1, 24 of Q, 87 of 1 on the keypad.
        QTest::newRow("US")
            << "us"
            << "ctrl+s=Ctrl+S ctrl+s,F5=F5 x=X ctrl+alt+Delete=Ctrl+Alt+Del alt+F4=Alt+F4 "
               "Shift_L,Control_R,Alt_L,Super_L,shift+10=Shift+1 shift+61=Shift+/ shift+a=Shift+A";
        QTest::newRow("Caps Lock")
            << "us"
            << "Caps_Lock=CapsLock 38=A shift+38=Shift+A shift+10=Shift+1 ctrl+38=Ctrl+A";
        QTest::newRow("keypad")
            << "us"
            << "87=Num+End Num_Lock=NumLock 87=Num+1 10=1 ctrl+87=Ctrl+Num+1 86=Num++";
        QTest::newRow("dead keys") << "us intl"
                                   << "48=0x1001251 e=E ISO_Level3_Shift,shift+48=0x3001257";
        QTest::newRow("German")
            << "de"
            << "52=Y 34=\u00dc shift+11=Shift+' shift+16=Shift+/ shift+15=Shift+7 "
               "ISO_Level3_Shift+24=0x40000040";
    }

    // The client's window has menu actions on several of the combinations; none of them may run.
    void recordsRealKeys()
    {
        for (const char *program : {"Xvfb", "xdotool", "setxkbmap"}) {
            if (QStandardPaths::findExecutable(program).isEmpty())
                QSKIP(qPrintable(QString("%1 is not installed").arg(program)));
        }
        QFETCH(QString, layout);
        QFETCH(QString, presses);
        Keyboard keyboard;
        QVERIFY(keyboard.start(layout.split(' ')));
        for (const QString &press : presses.split(' ')) {
            const QString sequence = press.section('=', 1);
            QString expected = sequence.mid(2);
            if (!sequence.startsWith("0x"))
                expected = QString::number(QtVersion::firstKey(QKeySequence(sequence)), 16);
            const QString said = keyboard.press(press.section('=', 0, 0), 10000);
            QVERIFY2(said == expected, qPrintable(press + " recorded " + said));
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

#include "testsupport.h"
#include "xserver.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>

#include <cstdio>

namespace {

QString shownText(const KeySequenceEdit &field)
{
    return field.findChild<QLabel *>(QStringLiteral("edit"))->text();
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
        QMenu *menu = menuBar()->addMenu(QStringLiteral("&File"));
        for (const char *keys : {"Ctrl+S", "F5", "Alt+F4", "X", "Ctrl+Alt+Del"}) {
            auto *action = menu->addAction(QLatin1String(keys));
            action->setShortcut(QKeySequence(QLatin1String(keys)));
            actions << action;
        }
    }
};

/// What the client says for one press after the other.
QString codes(const QVector<int> &keys)
{
    QStringList lines;
    for (int key : keys)
        lines << QString::number(key, 16);
    return lines.join(QStringLiteral(", "));
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
    QObject::connect(
        window.field, &KeySequenceEdit::keySequenceChanged, window.field,
        [say](const QKeySequence &sequence) { say(QString::number(sequence[0], 16)); });
    for (QAction *action : qAsConst(window.actions)) {
        QObject::connect(action, &QAction::triggered, action,
                         [say, action] { say(QStringLiteral("menu ") + action->text()); });
    }
    window.setWindowTitle(QStringLiteral("shortcut client"));
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
        setLayout.start(QStringLiteral("setxkbmap"), layout);
        if (!setLayout.waitForFinished(20000) || setLayout.exitCode() != 0)
            return false;
        m_client.setProcessEnvironment(m_server.environment());
        m_client.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--client")});
        const QString window = m_server.xdotool(
            {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
             QStringLiteral("--name"), QStringLiteral("shortcut client")});
        m_server.xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), window});
        m_server.xdotool({QStringLiteral("mousemove"), QStringLiteral("300"), QStringLiteral("180"),
                          QStringLiteral("click"), QStringLiteral("1")});
        // The field has the focus when a press is answered.
        for (int i = 0; i < 50; ++i) {
            if (press(QStringLiteral("F12"), 500) == codes({Qt::Key_F12}))
                return true;
        }
        return false;
    }

    /// Presses \a keys and returns the lines that the client says until it is quiet, having
    /// waited \a longest ms for the first.
    QString press(const QString &keys, int longest)
    {
        m_server.xdotool({QStringLiteral("key"), keys});
        QString said;
        while (m_client.waitForReadyRead(said.isEmpty() ? longest : 60))
            said += QString::fromUtf8(m_client.readAllStandardOutput());
        return said.trimmed().replace(QLatin1Char('\n'), QStringLiteral(", "));
    }

private:
    XServer m_server;
    QProcess m_client;
};

} // namespace

class TestKeySequenceEdit : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { delete m_theme.style(); }

    void recordsPresses_data();
    void recordsPresses();
    void ignoresModifiersAlone();
    void keepsThePreviousSequence();
    void clearsAndReturnsToDefault();
    void takesShortcutsFromMenus();
    void recordsRealKeys_data();
    void recordsRealKeys();

private:
    DarkUX m_theme;
};

void TestKeySequenceEdit::recordsPresses_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");

    const int shift = Qt::SHIFT;
    QTest::newRow("plain") << int(Qt::Key_A) << 0 << QStringLiteral("a") << int(Qt::Key_A);
    QTest::newRow("letter") << int(Qt::Key_A) << shift << QStringLiteral("A")
                            << (shift | Qt::Key_A);
    QTest::newRow("Ctrl") << int(Qt::Key_S) << int(Qt::CTRL) << QStringLiteral("\x13")
                          << int(Qt::CTRL | Qt::Key_S);
    QTest::newRow("keypad") << int(Qt::Key_5) << int(Qt::KeypadModifier) << QStringLiteral("5")
                            << int(Qt::KeypadModifier | Qt::Key_5);
    QTest::newRow("no Shift") << int(Qt::Key_Question) << 0 << QStringLiteral("?")
                              << int(Qt::Key_Question);
    QTest::newRow("other text") << int(Qt::Key_Question) << shift << QStringLiteral("x")
                                << (shift | Qt::Key_Question);
    QTest::newRow("longer text") << int(Qt::Key_Question) << shift << QStringLiteral("??")
                                 << (shift | Qt::Key_Question);
    QTest::newRow("all modifiers")
        << int(Qt::Key_Exclam) << int(shift | Qt::CTRL | Qt::ALT | Qt::META) << QStringLiteral("!")
        << int(shift | Qt::CTRL | Qt::ALT | Qt::META | Qt::Key_1);

    const QString shifted = QStringLiteral("~!@#$%^&*()_+}{|:\"<>?");
    const QString plain = QStringLiteral("`1234567890-=][\\;',./");
    for (int i = 0; i < shifted.size(); ++i) {
        QTest::newRow(qPrintable(shifted.mid(i, 1)))
            << int(shifted.at(i).unicode()) << shift << shifted.mid(i, 1)
            << (shift | plain.at(i).unicode());
    }
}

void TestKeySequenceEdit::recordsPresses()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QFETCH(int, expected);
    KeySequenceEdit field;
    QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
    for (int press = 0; press < 2; ++press) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
        event.ignore();
        QCoreApplication::sendEvent(&field, &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(field.keySequence(), QKeySequence(expected));
    QCOMPARE(field.keySequence().count(), 1);
    QCOMPARE(field.oldKeySequence(), QKeySequence());
    QCOMPARE(shownText(field), QKeySequence(expected).toString(QKeySequence::NativeText));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().value<QKeySequence>(), QKeySequence(expected));
}

void TestKeySequenceEdit::ignoresModifiersAlone()
{
    KeySequenceEdit field;
    QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
    for (Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_Super_L,
                        Qt::Key_Super_R, Qt::Key_AltGr})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::ShiftModifier, QStringLiteral("!"));
        event.ignore();
        QCoreApplication::sendEvent(&field, &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(field.keySequence(), QKeySequence());
    QCOMPARE(changes.count(), 0);
}

void TestKeySequenceEdit::keepsThePreviousSequence()
{
    KeySequenceEdit field;
    field.setOldKeySequence(QKeySequence(QStringLiteral("F1")));
    QCOMPARE(field.oldKeySequence(), QKeySequence(QStringLiteral("F1")));
    field.setKeySequence(QKeySequence(QStringLiteral("Ctrl+K, Ctrl+C")));
    QCOMPARE(shownText(field), QStringLiteral("Ctrl+K, Ctrl+C"));
    QCOMPARE(field.oldKeySequence(), QKeySequence(QStringLiteral("F1")));

    QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(field.oldKeySequence(), QKeySequence(QStringLiteral("Ctrl+K, Ctrl+C")));
    QTest::keyClick(&field, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(field.oldKeySequence(), QKeySequence(QStringLiteral("Ctrl+K, Ctrl+C")));
    QTest::keyClick(&field, Qt::Key_F2);
    QCOMPARE(field.oldKeySequence(), QKeySequence(QStringLiteral("Ctrl+S")));
}

void TestKeySequenceEdit::clearsAndReturnsToDefault()
{
    KeySequenceEdit field;
    QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
    field.clearKeySequence();
    field.setDefaultKeySequence(QKeySequence(QStringLiteral("Ctrl+T")));
    QCOMPARE(shownText(field), QString());
    field.defaultKeySequence();
    QCOMPARE(field.keySequence(), QKeySequence(QStringLiteral("Ctrl+T")));
    QCOMPARE(shownText(field), QStringLiteral("Ctrl+T"));
    QCOMPARE(changes.count(), 0);

    field.clearKeySequence();
    QCOMPARE(shownText(field), QString());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().value<QKeySequence>(), QKeySequence());
    field.clearKeySequence();
    QCOMPARE(changes.count(), 1);
}

void TestKeySequenceEdit::takesShortcutsFromMenus()
{
    Window window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QAction *save = window.actions.first();
    QSignalSpy saved(save, &QAction::triggered);
    window.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);

    QTest::mouseClick(window.field, Qt::LeftButton);
    QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(window.field->keySequence(), QKeySequence(QStringLiteral("Ctrl+S")));
}

void TestKeySequenceEdit::recordsRealKeys_data()
{
    QTest::addColumn<QStringList>("layout");
    QTest::addColumn<QVector<QPair<QString, QVector<int>>>>("presses");

    using Presses = QVector<QPair<QString, QVector<int>>>;
    const int shift = Qt::SHIFT;
    const int control = Qt::CTRL;
    const int alt = Qt::ALT;
    const int keypad = Qt::KeypadModifier;

    // Numbers are key codes of the server: 10 is the key of 1, 24 of Q, 87 of 1 on the keypad.
    QTest::newRow("US") << QStringList{QStringLiteral("us")}
                        << Presses{
                               {QStringLiteral("ctrl+s"), {control | Qt::Key_S}},
                               {QStringLiteral("ctrl+s"), {}},
                               {QStringLiteral("F5"), {Qt::Key_F5}},
                               {QStringLiteral("x"), {Qt::Key_X}},
                               {QStringLiteral("ctrl+alt+Delete"),
                                {control | alt | Qt::Key_Delete}},
                               {QStringLiteral("alt+F4"), {alt | Qt::Key_F4}},
                               {QStringLiteral("shift+10"), {shift | Qt::Key_1}},
                               {QStringLiteral("shift+61"), {shift | Qt::Key_Slash}},
                               {QStringLiteral("shift+a"), {shift | Qt::Key_A}},
                               {QStringLiteral("Shift_L"), {}},
                               {QStringLiteral("Control_R"), {}},
                               {QStringLiteral("Alt_L"), {}},
                               {QStringLiteral("Super_L"), {}},
                           };
    QTest::newRow("Caps Lock") << QStringList{QStringLiteral("us")}
                               << Presses{
                                      {QStringLiteral("Caps_Lock"), {Qt::Key_CapsLock}},
                                      {QStringLiteral("38"), {Qt::Key_A}},
                                      {QStringLiteral("shift+38"), {shift | Qt::Key_A}},
                                      {QStringLiteral("shift+10"), {shift | Qt::Key_1}},
                                      {QStringLiteral("ctrl+38"), {control | Qt::Key_A}},
                                  };
    QTest::newRow("keypad") << QStringList{QStringLiteral("us")}
                            << Presses{
                                   {QStringLiteral("87"), {keypad | Qt::Key_End}},
                                   {QStringLiteral("Num_Lock"), {Qt::Key_NumLock}},
                                   {QStringLiteral("87"), {keypad | Qt::Key_1}},
                                   {QStringLiteral("10"), {Qt::Key_1}},
                                   {QStringLiteral("ctrl+87"), {control | keypad | Qt::Key_1}},
                                   {QStringLiteral("86"), {keypad | Qt::Key_Plus}},
                               };
    QTest::newRow("dead keys") << QStringList{QStringLiteral("us"), QStringLiteral("intl")}
                               << Presses{
                                      {QStringLiteral("48"), {Qt::Key_Dead_Acute}},
                                      {QStringLiteral("e"), {Qt::Key_E}},
                                      {QStringLiteral("shift+48"),
                                       {shift | Qt::Key_Dead_Diaeresis}},
                                      {QStringLiteral("ISO_Level3_Shift"), {}},
                                  };
    QTest::newRow("German") << QStringList{QStringLiteral("de")}
                            << Presses{
                                   {QStringLiteral("52"), {Qt::Key_Y}},
                                   {QStringLiteral("34"), {Qt::Key_Udiaeresis}},
                                   {QStringLiteral("shift+11"), {shift | Qt::Key_Apostrophe}},
                                   {QStringLiteral("shift+16"), {shift | Qt::Key_Slash}},
                                   {QStringLiteral("shift+15"), {shift | Qt::Key_7}},
                                   {QStringLiteral("ISO_Level3_Shift+24"),
                                    {int(Qt::GroupSwitchModifier) | Qt::Key_At}},
                               };
}

// The client's window has menu actions on several of the combinations; none of them may run.
void TestKeySequenceEdit::recordsRealKeys()
{
    for (const char *program : {"Xvfb", "xdotool", "setxkbmap"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            QSKIP(qPrintable(QStringLiteral("%1 is not installed").arg(QLatin1String(program))));
    }
    QFETCH(QStringList, layout);
    using Presses = QVector<QPair<QString, QVector<int>>>;
    QFETCH(Presses, presses);
    Keyboard keyboard;
    QVERIFY(keyboard.start(layout));
    for (const auto &press : qAsConst(presses)) {
        const QString said = keyboard.press(press.first, press.second.isEmpty() ? 400 : 10000);
        QVERIFY2(said == codes(press.second),
                 qPrintable(QStringLiteral("%1: recorded \"%2\", expected \"%3\"")
                                .arg(press.first, said, codes(press.second))));
    }
}

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

#include "gestures.h"
#include "qtversion.h"

#include <nocturne/CroppingLabel>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>
#include <nocturne/SearchLineEdit>

#include <QtCore/QProcess>
#include <QtCore/QResource>
#include <QtCore/QTemporaryDir>
#include <QtGui/QTextDocument>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QVBoxLayout>

namespace {

/// Puts a clear picture of 15 by 13 among the resources, as a host does.
bool addClearPicture(const QTemporaryDir &folder)
{
    QImage picture(15, 13, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QFile description(folder.filePath("host.qrc"));
    if (!picture.save(folder.filePath("picture.png")) || !description.open(QIODevice::WriteOnly))
        return false;
    description.write("<RCC><qresource prefix=\"/resources/icons\">"
                      "<file alias=\"deleffect.png\">picture.png</file></qresource></RCC>");
    description.close();
    const QString bundle = folder.filePath("host.rcc");
    QProcess::execute(QtVersion::toolsPath() + "/rcc",
                      {"--binary", description.fileName(), "-o", bundle});
    return QResource::registerResource(bundle);
}

QString shownText(const KeySequenceEdit &field)
{
    return field.findChild<QLabel *>("edit")->text();
}

/// A label in an active window, with a neighbour to give the focus to, and what it reports.
class LabelFixture
{
public:
    LabelFixture()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(label);
        layout->addWidget(neighbour);
        window.resize(300, 120);
        QVERIFY(TestSupport::showActive(&window));
        neighbour->setFocus();
        QObject::connect(label, &CroppingLabel::editFinished, label, [this](const QString &text) {
            reports << "finished " + text + '|' + label->fullText();
        });
        QObject::connect(label, &CroppingLabel::editRemoved, label,
                         [this] { reports << "removed " + label->fullText(); });
        QObject::connect(label, &CroppingLabel::clicked, label, [this] { reports << "clicked"; });
    }

    QLineEdit *editor() const { return label->findChild<QLineEdit *>(); }
    void open()
    {
        QTest::mouseClick(label, Qt::LeftButton);
        QVERIFY(editor()->isVisible());
        QVERIFY(editor()->hasFocus());
        reports.clear();
    }

    QStringList reports;
    QWidget window;
    CroppingLabel *label = new CroppingLabel(&window);
    QLineEdit *neighbour = new QLineEdit(&window);
};

} // namespace

class TestTextFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { delete m_theme.style(); } // no application has taken it

    void searchField()
    {
        QCOMPARE(SearchLineEdit().textMargins(), QMargins(4, 0, 0, 0)); // without a picture
        const QTemporaryDir folder;
        QVERIFY(addClearPicture(folder));
        SearchLineEdit field;
        auto *button = field.findChild<LineEditButton *>();
        QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(button->toolTip(), QString("Clear"));
        QCOMPARE(field.minimumWidth(), 37);
        QCOMPARE(field.textMargins(), QMargins(4, 0, 22, 0));
        field.resize(200, 25);
        field.show();
        QCOMPARE(button->geometry(), QRect(177, 6, 15, 13));
        QVERIFY(!button->isVisible());
        QTest::keyClicks(&field, "ab");
        QVERIFY(button->isVisible());
        COMPARE_PIXEL(TestSupport::render(field), 180, 10, Qt::red);
        field.setCursorPosition(0);
        QStringList reports;
        connect(&field, &SearchLineEdit::clearButtonClicked, this,
                [&] { reports << "clear " + field.text(); });
        QTest::mouseClick(button, Qt::RightButton);
        QCOMPARE(field.text(), QString("ab"));
        // What the field itself is told of a press on the button leaves the cursor alone.
        for (bool over : {true, false}) {
            button->setAttribute(Qt::WA_UnderMouse, over);
            QTest::mouseClick(&field, Qt::LeftButton, {}, QPoint(160, 12));
            QCOMPARE(field.cursorPosition(), over ? 0 : 2);
        }
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(reports, QStringList{"clear "});
        QVERIFY(!button->isVisible());
    }

    void labelElides()
    {
        CroppingLabel label;
        label.setText("  <b>name</b> of & clip  ");
        const QString text = "<b>name</b> of & clip";
        QCOMPARE(label.fullText(), text);
        const int width = label.fontMetrics().horizontalAdvance(text);
        const int dots = label.fontMetrics().horizontalAdvance("...");
        label.resize(width - 10, 20);
        label.show();
        QVERIFY(label.text().endsWith(QChar(0x2026)));
        QCOMPARE(label.toolTip(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
        label.setElideMode(Qt::ElideLeft);
        QVERIFY(label.text().startsWith(QChar(0x2026)));
        label.resize(width + 10, 20);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.toolTip(), QString());
        QFont font = label.font();
        font.setPixelSize(60);
        label.setFont(font);
        QVERIFY(label.text() != text);

        label.setFont(QFont());
        QCOMPARE(label.minimumSizeHint().width(), dots);
        label.minimizeMaximumWidth();
        QCOMPARE(label.maximumWidth(), width + dots);
    }

    /// By Return and by taking the focus away.
    void editing()
    {
        // What is reported of a text typed over "old".
        const auto reportsOf = [](const QString &typed, bool byReturn) {
            LabelFixture f;
            f.label->setText("old");
            f.open();
            f.editor()->setText(f.editor()->text() == "old" ? typed : "not the text");
            if (byReturn)
                QTest::keyClick(f.editor(), Qt::Key_Return);
            else
                f.neighbour->setFocus();
            return f.editor()->isVisible() ? "open" : f.reports.join(", ");
        };
        for (bool byReturn : {true, false}) {
            QCOMPARE(reportsOf(" new  name ", byReturn),
                     QString("finished  new  name |old, removed new  name"));
            QCOMPARE(reportsOf("old ", byReturn), QString("removed old"));
            QCOMPARE(reportsOf("x 100", byReturn), QString("finished x 100|old, removed x 100"));
            const QString unseen = QString("a\tb\vc\fd") + QChar(0) + u8"e\u2028";
            QCOMPARE(reportsOf(unseen, byReturn), "finished " + unseen + "|old, removed abcde");
        }
    }

    void aTextMayBeSetMeanwhile()
    {
        for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab}) {
            LabelFixture f;
            f.label->editBegin();
            f.label->setText("new");
            QCOMPARE(f.editor()->selectedText(), QString("new"));
            QTest::keyClicks(f.editor(), "typed");
            f.label->setText("newer");
            QCOMPARE(f.editor()->text(), QString("typed"));
            QTest::keyClick(f.editor(), key);
            QCOMPARE(f.reports.join(", "),
                     QString(key == Qt::Key_Escape ? "removed newer"
                                                   : "finished typed|newer, removed typed"));
        }
    }

    void whatOpensTheEditor()
    {
        LabelFixture f;
        f.label->setText("old");
        f.label->setEditable(false);
        QTest::mouseClick(f.label, Qt::LeftButton);
        QVERIFY(!f.label->testAttribute(Qt::WA_SetCursor) && !f.editor()->isVisible());
        QCOMPARE(f.reports, QStringList{"clicked"});
        f.label->setEditable(true);
        QCOMPARE(f.label->cursor().shape(), Qt::PointingHandCursor);
        f.label->editBegin();
        QCOMPARE(f.editor()->selectedText(), QString("old"));
        QTest::keyClicks(f.editor(), "typed");
        QTest::mouseClick(f.label, Qt::LeftButton); // What is typed stays.
        QCOMPARE(f.editor()->text(), QString("typed"));
    }

    void onlyTheEditorIsSeenWhileEditing()
    {
        LabelFixture f;
        f.label->setFixedHeight(60);
        f.label->setText("\u2588\u2588\u2588");
        f.label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        f.label->resize(200, 60);
        const QImage closed = TestSupport::render(*f.label);
        f.open();
        QCOMPARE(f.editor()->height(), 24);
        const QImage open = TestSupport::render(*f.label);
        QVERIFY(closed.pixelColor(10, 8).alpha() > 0);
        QCOMPARE(open.pixelColor(10, 8).alpha(), 0);
    }

    void aLabelMayGoWhileItIsEdited()
    {
        bool reported = false;
        {
            CroppingLabel window;
            window.resize(200, 30);
            QVERIFY(TestSupport::showActive(&window));
            window.editBegin();
            connect(&window, &CroppingLabel::editRemoved, this, [&reported] { reported = true; });
        }
        QVERIFY(!reported);
    }

    void recordsPresses()
    {
        const auto compare = [](int key, int modifiers, const QString &text, int expected) {
            KeySequenceEdit field;
            QSignalSpy changes(&field, &KeySequenceEdit::keySequenceChanged);
            for (int press = 0; press < 2; ++press) {
                QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
                event.ignore();
                QCoreApplication::sendEvent(&field, &event);
                QVERIFY(event.isAccepted());
            }
            const QKeySequence sequence(expected);
            QCOMPARE(field.keySequence(), sequence);
            QCOMPARE(shownText(field), sequence.toString(QKeySequence::NativeText));
            if (expected)
                QCOMPARE(changes, QList<QVariantList>{{QVariant::fromValue(sequence)}});
        };
        const int shift = Qt::SHIFT;
        const int control = Qt::CTRL;
        const int keypad = Qt::KeypadModifier;
        const int allModifiers = shift | control | Qt::ALT | Qt::META;
        compare(Qt::Key_S, control, "\x13", control | Qt::Key_S);
        compare(Qt::Key_5, keypad, "5", keypad | Qt::Key_5);
        compare(Qt::Key_Question, 0, "?", Qt::Key_Question);
        for (const char *text : {"x", "??"})
            compare(Qt::Key_Question, shift, text, shift | Qt::Key_Question);
        compare(Qt::Key_Exclam, allModifiers, "!", allModifiers | Qt::Key_1);
        const QString shifted = "A~!@#$%^&*()_+}{|:\"<>?";
        const QString plain = "A`1234567890-=][\\;',./";
        for (int i = 0; i < shifted.size(); ++i)
            compare(shifted[i].unicode(), shift, shifted[i], shift | plain[i].unicode());
        for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_Super_L,
                        Qt::Key_Super_R, Qt::Key_AltGr})
            compare(key, shift, "!", 0);
    }

    /// Also what would run an action of the window.
    void keepsThePreviousSequenceAndTheDefault()
    {
        QMainWindow window;
        auto *field = new KeySequenceEdit(&window);
        window.setCentralWidget(field);
        window.menuBar()->addMenu("&File")->addAction(
            "Save", [] { QFAIL("an action ran"); }, QKeySequence("Ctrl+S"));
        QVERIFY(TestSupport::showActive(&window));
        QSignalSpy changes(field, &KeySequenceEdit::keySequenceChanged);
        field->clearKeySequence();
        field->setOldKeySequence(QKeySequence("F1"));
        field->setKeySequence(QKeySequence("Ctrl+K, Ctrl+C"));
        QCOMPARE(field->oldKeySequence(), QKeySequence("F1"));
        QCOMPARE(changes.count(), 0);
        for (int press = 0; press < 2; ++press) {
            QTest::keyClick(field, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(field->oldKeySequence(), QKeySequence("Ctrl+K, Ctrl+C"));
        }
        QTest::keyClick(field, Qt::Key_F, Qt::AltModifier);
        QCOMPARE(field->oldKeySequence(), QKeySequence("Ctrl+S"));
        changes.clear();
        field->setDefaultKeySequence(QKeySequence("Ctrl+T"));
        field->defaultKeySequence();
        QCOMPARE(shownText(*field), QString("Ctrl+T"));
        QCOMPARE(changes.count(), 0);
        for (int call = 0; call < 2; ++call)
            field->clearKeySequence();
        QCOMPARE(changes, QList<QVariantList>{{QVariant::fromValue(QKeySequence())}});
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestTextFields)

#include "tst_textfields.moc"

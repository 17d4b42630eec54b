#include "gestures.h"

#include <nocturne/SpinBox>

#include <QtWidgets/QLineEdit>

namespace {

const auto changed = QOverload<double, bool>::of(&SpinBox::valueChanged);

/// A spin box of -100 to 100 whose places are along x.
class TestSpin : public TestSupport::Driven<SpinBox>
{
public:
    explicit TestSpin(QWidget *parent)
        : Driven(parent)
    {
        setRange(-100, 100);
        connect(this, changed, this, note("value"));
    }

    QPoint place(int number) const override { return QPoint(number, 10); }
    bool isHeld() const override { return isDragging(); }

    void perform(const QString &verb, int number) override
    {
        if (verb == "set")
            setValue(number);
        else if (verb == "relative")
            setValue(number, true);
        else if (verb == "absolute")
            setValue(number, false);
        else if (verb == "exit")
            sendPlain(QEvent::Leave);
        else if (verb == "cursor") // or -1 where it is nobody's
            note("cursor")(QApplication::overrideCursor() ? QApplication::overrideCursor()->shape()
                                                          : -1);
        else if (verb == "editing")
            note("editing")(!field()->isReadOnly());
        else if (verb == "text")
            note(qPrintable(field()->text()))();
        else if (verb == "selected")
            note(qPrintable(field()->selectedText()))();
        else if (verb == "type")
            QTest::keyClicks(field(), QString::number(number));
        else if (verb == "focus")
            setFocus(Qt::MouseFocusReason);
    }

    QLineEdit *field() const { return lineEdit(); }
    void sendPlain(QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(this, &event);
    }
};

/// Two spin boxes in an active window.
class Fixture
{
public:
    Fixture()
    {
        window.resize(400, 100);
        box->setGeometry(20, 20, 120, 24);
        sibling->setGeometry(200, 20, 120, 24);
        // Focus that a spin box got from the window would start it in edit mode.
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        QCursor::setPos(0, 0);
        QVERIFY(TestSupport::showActive(&window));
    }

    QWidget window;
    TestSpin *box = new TestSpin(&window);
    TestSpin *sibling = new TestSpin(&window);
};

} // namespace

class TestSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void gestures_data()
    {
        TestSupport::addScripts({
            // One drag, one start; nothing more is told at the end of the range.
            {"press 30, held, move 30, move 32, move 35, move 300, move 310, release 310, held, "
             "editing",
             "held 1, value 2 1, value 5 0, value 100 0, held 0, editing 0"},
            {"press 30, move 29, release 29, set 7", "value -1 1, value 7 1"},
            {"press 30, move 35, release 500, held, move 40", "value 5 1, held 0"},
            // Other buttons neither start nor disturb a drag.
            {"right 30, held, rightup 30, editing", "held 0, editing 0"},
            {"press 30, move 32, right 32, move 33, rightup 33, held, move 34, release 34",
             "value 2 1, value 3 0, held 1, value 4 0"},
            // A click starts editing.
            {"relative 42, text, enter, cursor, press 30, release 30, cursor, editing, selected, "
             "exit, cursor",
             "value 42 1, --, cursor 6, cursor 4, editing 1, 42, cursor -1"},
            {"press 30, release 30, exit, type 57, press 30, held, release 30",
             "value 5 1, value 57 1, held 0"},
            {"relative 3, text, set 4, text, absolute 4, text", "value 3 1, --, value 4 1, --, 4"},
            {"press 30, move 35, deactivate, move 37, release 37", "value 5 1, value 7 0"},
        });
        for (const char *how : {"hide", "disable", "modal", "popup", "focus, popup"}) {
            QTest::addRow("cursor: %s", how)
                << QString("enter, press 30, move 35, %1, cursor").arg(how)
                << "value 5 1, cursor -1";
        }
        TestSupport::addInterruptions("press 30, move 35",
                                      ", move 50, press 30, move 32, release 32, exit",
                                      "value 5 1, held 0, value 7 1");
    }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        // The press goes on to the parent, as with any spin box.
        QCOMPARE(Fixture().box->run(script).remove("ignored, "), log);
    }

    void dragSteps()
    {
        const auto dragged = [](const QVector<QPoint> &points, int modifiers) {
            Fixture f;
            f.box->run("press 30");
            for (const QPoint &point : points)
                f.box->send(QEvent::MouseMove, point, Qt::NoButton,
                            Qt::KeyboardModifiers(modifiers));
            return f.box->run("release 500").remove("ignored, ");
        };
        QCOMPARE(dragged({{40, 14}}, 0), QString("value 6 1"));
        QCOMPARE(dragged({{40, 14}}, Qt::ControlModifier), QString("value 12 1"));
        QCOMPARE(dragged({{40, 14}}, Qt::ShiftModifier), QString("value 3 1"));
        QCOMPARE(dragged({{40, 14}}, Qt::ControlModifier | Qt::ShiftModifier),
                 QString("value 6 1"));
        // Halving truncates each step toward zero.
        QCOMPARE(dragged({{31, 10}, {28, 10}}, Qt::ShiftModifier), QString("value -1 1"));
    }

    void aRealPressOnTheFieldDragsFromThere()
    {
        Fixture f;
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        QTest::mousePress(f.box->field(), Qt::LeftButton, {},
                          f.box->field()->mapFrom(f.box, QPoint(30, 10)));
        QVERIFY(f.box->isDragging());
        TestSupport::sendDrag(f.box, QPoint(31, 10));
        QCOMPARE(f.box->run("release 31, exit"), QString("value 1 1"));
    }

    void focusAndHoverChooseTheMode()
    {
        Fixture f;
        const auto editing = [&f](SpinBox *focused, Qt::FocusReason reason, bool hovered = false) {
            focused->setFocus(reason);
            QHoverEvent hover(QEvent::HoverMove, QPointF(5, 5), QPointF(4, 5));
            if (hovered)
                QCoreApplication::sendEvent(f.sibling, &hover);
            return !f.box->field()->isReadOnly();
        };
        QCursor::setPos(f.window.mapToGlobal(QPoint(380, 90)));
        QVERIFY(editing(f.box, Qt::TabFocusReason));
        QVERIFY(editing(f.box, Qt::TabFocusReason, true));
        QVERIFY(!editing(f.sibling, Qt::TabFocusReason));
        QVERIFY(editing(f.box, Qt::TabFocusReason));
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        QVERIFY(editing(f.sibling, Qt::OtherFocusReason));
        QVERIFY(!editing(f.sibling, Qt::OtherFocusReason, true));
        f.box->run("exit");
    }

    void valuesAreRoundedAndClamped()
    {
        TestSpin box(nullptr);
        const QVector<QPair<double, int>> values = {
            {5.5, 6}, {-2.5, QtVersion::roundedNegativeHalf}, {1e300, 100}, {qQNaN(), 100}};
        for (const auto &value : values) {
            box.setValue(value.first);
            QCOMPARE(box.value(), value.second);
        }
        QVERIFY(!TestSupport::takesWheel(&box) && !TestSupport::takesWheel(box.field()));
        QCOMPARE(box.value(), 100);
    }

    void theSpinBoxMayBeDeletedInMidDrag()
    {
        Fixture f;
        f.box->run("enter, press 30, move 35");
        delete f.box;
        QVERIFY(TestSupport::nothingIsHeld());

        const QPointer<SpinBox> box(f.sibling);
        connect(f.sibling, changed, this, [&f] { delete f.sibling; });
        f.sibling->run("press 30");
        TestSupport::sendDrag(f.sibling, QPoint(33, 10));
        QVERIFY(!box);
    }

    void restoresOnlyItsOwnCursor()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        Fixture().box->run("exit, press 30, move 35, release 500");
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
    }
};

NOCTURNE_TEST_MAIN(TestSpinBox)

#include "tst_spinbox.moc"

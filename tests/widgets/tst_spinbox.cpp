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

    bool perform(const QString &verb, const QVector<int> &numbers) override
    {
        if (verb == "set")
            setValue(numbers[0]);
        else if (verb == "relative")
            setValue(numbers[0], true);
        else if (verb == "absolute")
            setValue(numbers[0], false);
        else if (verb == "cursor") // or -1 where it is nobody's
            note("cursor")(QApplication::overrideCursor() ? QApplication::overrideCursor()->shape()
                                                          : -1);
        else if (verb == "editing")
            note("editing")(!field()->isReadOnly());
        else if (verb == "text") // and what of it is selected
            note(field()->text() + '|' + field()->selectedText())();
        else if (verb == "type")
            QTest::keyClicks(field(), QString::number(numbers[0]));
        else
            return false;
        return true;
    }

    QLineEdit *field() const { return lineEdit(); }
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

    void gestures_data() { TestSupport::addScripts("spinbox.txt"); }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        // The press goes on to the parent, as with any spin box.
        QCOMPARE(Fixture().box->run(script).remove("ignored, "), log);
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
        QVector<int> values;
        for (double value : {5.5, -2.5, 1e300, qQNaN()}) {
            box.setValue(value);
            values << box.value();
        }
        QCOMPARE(values, QVector<int>({6, QtVersion::roundedNegativeHalf, 100, 100}));
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

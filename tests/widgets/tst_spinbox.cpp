#include "testsupport.h"

#include <nocturne/DarkUX>
#include <nocturne/SpinBox>

#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

namespace {

using Change = QPair<double, bool>;
using Changes = QVector<Change>;

/// A spin box in a shown window, with what it reports.
class Fixture
{
public:
    Fixture()
    {
        window.resize(400, 100);
        box->setGeometry(20, 20, 120, 24);
        sibling->setGeometry(200, 20, 120, 24);
        for (SpinBox *spinBox : {box, sibling})
            spinBox->setRange(-100, 100);
        QObject::connect(box, QOverload<double, bool>::of(&SpinBox::valueChanged), box,
                         [this](double value, bool first) { changes << Change(value, first); });
        // Focus that a spin box got from the window would start it in edit mode.
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        QCursor::setPos(0, 0);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void press(const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
    {
        buttons |= button;
        send(QEvent::MouseButtonPress, position, button);
    }
    void move(const QPoint &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseMove, position, Qt::NoButton, modifiers);
    }
    void release(const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
    {
        buttons &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, position, button);
    }
    void enter() { sendPlain(QEvent::Enter); }
    void leave() { sendPlain(QEvent::Leave); }

    QLineEdit *field() const { return box->findChild<QLineEdit *>(); }

    QWidget window;
    SpinBox *box = new SpinBox(&window);
    SpinBox *sibling = new SpinBox(&window);
    Changes changes;
    Qt::MouseButtons buttons;

private:
    void send(QEvent::Type type, const QPoint &position, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, position, box->mapTo(&window, position), box->mapToGlobal(position),
                          button, buttons, modifiers);
        QCoreApplication::sendEvent(box, &event);
    }
    void sendPlain(QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(box, &event);
    }
};

int overrideCursorsLeft()
{
    int count = 0;
    while (QApplication::overrideCursor()) {
        QApplication::restoreOverrideCursor();
        ++count;
    }
    return count;
}

} // namespace

class TestSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QVERIFY(!QWidget::mouseGrabber());
        QCOMPARE(overrideCursorsLeft(), 0);
    }

    void dragStep_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<double>("expected");

        QTest::newRow("plain") << Qt::KeyboardModifiers(Qt::NoModifier) << 6.0;
        QTest::newRow("control") << Qt::KeyboardModifiers(Qt::ControlModifier) << 12.0;
        QTest::newRow("shift") << Qt::KeyboardModifiers(Qt::ShiftModifier) << 3.0;
        QTest::newRow("both") << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier)
                              << 6.0;
    }

    void dragStep()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(double, expected);
        Fixture f;
        f.press({30, 10});
        QVERIFY(f.box->isDragging());
        f.move({40, 14}, modifiers);
        QCOMPARE(f.changes, Changes({{expected, true}}));
        f.release({40, 14});
        QVERIFY(!f.box->isDragging());
        QVERIFY(f.field()->isReadOnly());
    }

    void halvingTruncatesEachStepTowardZero()
    {
        Fixture f;
        f.press({30, 10});
        f.move({31, 10}, Qt::ShiftModifier);
        f.move({28, 10}, Qt::ShiftModifier);
        QCOMPARE(f.changes, Changes({{-1.0, true}}));
        f.release({28, 10});
    }

    void onlyTheFirstChangeOfADragIsFlagged()
    {
        Fixture f;
        f.press({30, 10});
        f.move({30, 10});
        f.move({32, 10});
        f.move({35, 10});
        f.move({300, 10});
        f.move({310, 10});
        f.release({310, 10});
        QCOMPARE(f.changes, Changes({{2, true}, {5, false}, {100, false}}));

        f.changes.clear();
        f.press({30, 10});
        f.move({29, 10});
        f.release({29, 10});
        f.box->setValue(7);
        QCOMPARE(f.changes, Changes({{99, true}, {7, true}}));
    }

    void aRealPressOnTheFieldDragsFromThere()
    {
        Fixture f;
        const QPoint inField = f.field()->mapFrom(f.box, QPoint(30, 10));
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        QTest::mousePress(f.field(), Qt::LeftButton, {}, inField);
        QVERIFY(f.box->isDragging());
        f.buttons = Qt::LeftButton;
        f.move({31, 10});
        QCOMPARE(f.changes, Changes({{1, true}}));
        f.release({31, 10});
    }

    void aClickStartsEditing()
    {
        Fixture f;
        f.box->setValue(42, true);
        QCOMPARE(f.field()->text(), QStringLiteral("--"));
        f.enter();
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        f.press({30, 10});
        f.release({30, 10});
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::IBeamCursor);
        QVERIFY(!f.field()->isReadOnly());
        QVERIFY(!f.box->relative());
        QCOMPARE(f.field()->selectedText(), QStringLiteral("42"));
        f.leave();
        QVERIFY(!QApplication::overrideCursor());

        f.changes.clear();
        QTest::keyClicks(f.field(), QStringLiteral("57"));
        QCOMPARE(f.changes, Changes({{5, true}, {57, true}}));
        f.press({30, 10});
        QVERIFY(!f.box->isDragging());
        f.release({30, 10});
    }

    void focusAndHoverChooseTheMode()
    {
        Fixture f;
        QCursor::setPos(f.window.mapToGlobal(QPoint(380, 90)));
        f.box->setFocus(Qt::TabFocusReason);
        QVERIFY(!f.field()->isReadOnly());
        QHoverEvent hover(QEvent::HoverMove, QPointF(5, 5), QPointF(4, 5));
        QCoreApplication::sendEvent(f.sibling, &hover);
        QVERIFY(!f.field()->isReadOnly());

        f.sibling->setFocus(Qt::TabFocusReason);
        QVERIFY(f.field()->isReadOnly());

        f.box->setFocus(Qt::TabFocusReason);
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        f.sibling->setFocus(Qt::OtherFocusReason);
        QVERIFY(!f.field()->isReadOnly());
        QCoreApplication::sendEvent(f.sibling, &hover);
        QVERIFY(f.field()->isReadOnly());
    }

    void setValueRoundsClampsAndComparesTheMode()
    {
        Fixture f;
        f.box->setValue(5.5);
        QCOMPARE(f.box->value(), 6);
        f.box->setValue(-2.5);
        QCOMPARE(f.box->value(), -2);
        f.box->setValue(1e300);
        QCOMPARE(f.box->value(), 100);
        f.box->setValue(qQNaN());
        QCOMPARE(f.box->value(), 100);
        f.box->setValue(3, true);
        QCOMPARE(f.field()->text(), QStringLiteral("--"));
        f.box->setValue(4);
        QVERIFY(f.box->relative());
        QCOMPARE(f.field()->text(), QStringLiteral("--"));
        f.changes.clear();
        f.box->setValue(4, false);
        QCOMPARE(f.field()->text(), QStringLiteral("4"));
        QCOMPARE(f.changes, Changes());
    }

    void theWheelIsLeftToTheParent()
    {
        Fixture f;
        for (QWidget *target : {static_cast<QWidget *>(f.box), static_cast<QWidget *>(f.field())}) {
            QWheelEvent wheel(QPointF(5, 5), target->mapToGlobal(QPoint(5, 5)), QPoint(),
                              QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QCoreApplication::sendEvent(target, &wheel);
            QVERIFY(!wheel.isAccepted());
        }
        QCOMPARE(f.box->value(), 0);
    }

    void otherButtonsNeitherStartNorDisturbADrag()
    {
        Fixture f;
        f.press({30, 10}, Qt::MiddleButton);
        QVERIFY(!f.box->isDragging());
        f.release({30, 10}, Qt::MiddleButton);
        QVERIFY(f.field()->isReadOnly());

        f.press({30, 10});
        f.move({32, 10});
        f.press({32, 10}, Qt::MiddleButton);
        f.move({33, 10});
        f.release({33, 10}, Qt::MiddleButton);
        QVERIFY(f.box->isDragging());
        f.move({34, 10});
        f.release({34, 10});
        QCOMPARE(f.changes, Changes({{2, true}, {3, false}, {4, false}}));
    }

    void interruptedDragsLeaveNothingBehind_data()
    {
        QTest::addColumn<int>("interruption");

        QTest::newRow("hidden") << 0;
        QTest::newRow("disabled") << 1;
        QTest::newRow("modal window") << 2;
        QTest::newRow("destroyed") << 3;
        QTest::newRow("popup") << 5;
        QTest::newRow("released outside") << 4;
    }

    void interruptedDragsLeaveNothingBehind()
    {
        QFETCH(int, interruption);
        Fixture f;
        f.enter();
        f.press({30, 10});
        f.box->setFocus(Qt::MouseFocusReason);
        f.move({35, 10});
        QVERIFY(QApplication::overrideCursor());
        QDialog dialog;
        QMenu menu;
        menu.addAction(QStringLiteral("Action"));
        switch (interruption) {
        case 0:
            f.box->hide();
            break;
        case 1:
            f.box->setEnabled(false);
            break;
        case 2:
            dialog.setModal(true);
            dialog.show();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            break;
        case 3:
            delete f.box;
            break;
        case 4:
            f.release({500, 300});
            break;
        case 5:
            menu.popup(QPoint(300, 300));
            break;
        }
        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(f.changes, Changes({{5, true}}));
    }

    void aDragGoesOnWhenTheWindowLosesTheFocus()
    {
        Fixture f;
        f.press({30, 10});
        f.move({35, 10});
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        f.move({37, 10});
        f.release({37, 10});
        QCOMPARE(f.changes, Changes({{5, true}, {7, false}}));
    }

    void aReceiverMayDeleteTheSpinBox()
    {
        Fixture f;
        const QPointer<SpinBox> box(f.box);
        connect(f.box, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
                [&f] { delete f.box; });
        f.press({30, 10});
        QMouseEvent move(QEvent::MouseMove, QPointF(33, 10), QPointF(33, 10), QPointF(33, 10),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(f.box, &move);
        QVERIFY(!box);
    }

    void restoresOnlyItsOwnCursor()
    {
        Fixture f;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        f.leave();
        f.press({30, 10});
        f.move({35, 10});
        f.release({500, 10});
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QCOMPARE(overrideCursorsLeft(), 1);
    }
};

NOCTURNE_TEST_MAIN(TestSpinBox)

#include "tst_spinbox.moc"

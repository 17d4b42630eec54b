#include "gestures.h"
#include "modaldialog.h"

#include <nocturne/GradientTool>

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QPushButton>

#include <utility>

namespace {

using Ramp = QVector<QPair<double, QColor>>;
/// An editor in a shown window: its bar is (5, 5, 200, 34), its markers are at y = 40.
class Editor : public TestSupport::Driven<GradientTool>
{
public:
    Editor()
    {
        resize(210, 60);
        connect(this, &GradientTool::mousePressed, note("down"));
        connect(this, &GradientTool::rampChanged, this, [this](double value, bool complete) {
            QCOMPARE(value, 0.0);
            note("ramp")(complete);
        });
        connect(this, &GradientTool::sliderChanged, note("slider"));
        connect(this, &GradientTool::updateSliderColorRequest, note("request"));
        connect(this, &GradientTool::opacityValueChange, note("opacity"));
        show();
    }

    /// Among the markers. The bar is 30 above, and 31 below is too far away.
    QPoint place(int number) const override { return {number, 50}; }
    bool isHeld() const override { return isMousePressed(); }
    bool perform(const QString &verb, const QVector<int> &) override
    {
        if (verb == "three") {
            setRamp({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}});
        } else if (verb == "unsorted") {
            setRamp({{1, Qt::red}, {0, Qt::green}, {0.5, Qt::blue}});
        } else if (verb.startsWith("repeat")) { // A key is held.
            QKeyEvent key(QEvent::KeyPress, TestSupport::keyCalled(verb.mid(6)), {}, {}, true);
            QCoreApplication::sendEvent(this, &key);
        } else if (verb == "nodialog") {
            setColorChoose(nullptr);
        } else if (verb == "stops") { // by the pixel
            QString stops = "stops";
            for (const auto &stop : getRamp())
                stops += QString(" %1").arg(stop.first * 200);
            note(stops)();
        } else if (verb == "look") { // Has it changed since the last look?
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QImage image = grab().toImage();
            note(std::exchange(m_seen, image) == image ? "same" : "other")();
        } else {
            return false;
        }
        return true;
    }

private:
    QImage m_seen;
};

} // namespace

class TestGradientTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorTable()
    {
        const auto compare = [](const QString &stops, const QString &entries) {
            Ramp ramp;
            for (const QString &stop : stops.split(' ', Qt::SkipEmptyParts))
                ramp << qMakePair(stop.section('=', 0, 0).toDouble(), QColor(stop.section('=', 1)));
            GradientTool editor;
            editor.setRamp(ramp);
            const auto table = editor.getColorTable();
            for (const QString &entry : entries.split(' ')) {
                const QRgb color = table.at(entry.section('=', 0, 0).toInt());
                QCOMPARE(QColor(color).name(), QColor(entry.section('=', 1)).name());
            }
        };
        compare("", "0=white 51=#cccccc 255=black");
        compare("1=black 0=white", "0=white 51=#cccccc 255=black"); // out of order
        compare("0.2=red 0.8=blue", "0=red 51=red 204=blue 255=blue");
        compare("0=#000a141e 1=#280a141e", "0=#0a141e 100=#0a141e");  // alpha is left out
        compare("0=red 0.5=red 0.5=blue 1=blue", "127=red 128=blue"); // a hard edge
        // Stops closer than samples, in one place, and out of range.
        compare("0=red 0.5=red 0.5005=green 0.501=blue 1=blue", "127=red 128=blue 129=blue");
        compare("0.5=red 0.5=blue", "0=red 255=blue");
        compare("-5=red 7=blue", "0=red 255=blue");
    }

    void selectionAndAlpha()
    {
        Editor editor;
        editor.setRamp({{0.0, QColor(1, 2, 3, 4)}, {0.5, Qt::red}, {1.0, Qt::blue}});
        editor.setOpacity(50);
        QCOMPARE(editor.getCurrentColor(), QColor(1, 2, 3, 128));
        QCOMPARE(editor.run("activeSlider 99, activeSlider -1"),
                 QString("opacity 100, opacity %1").arg(128 / 2.55));
        editor.setAlphaValue(127.9);
        QCOMPARE(editor.getSliderAlpha(0), 127);
        editor.setAlphaValue(1e9);
        editor.setOpacity(qQNaN());
        QCOMPARE(editor.getSliderAlpha(-3), 255);
        for (int number : {-1, 2, 3})
            editor.setSliderColor(number, QColor(9, 9, 9, 77));
        QCOMPARE(editor.getSliderAlpha(99), 77);
        editor.setCurrentColor(QColor(5, 6, 7, 8));
        editor.colorChange(QColor(50, 60, 70, 80));
        QCOMPARE(editor.getRamp().first().second, QColor(50, 60, 70, 8));
        QCOMPARE(editor.takeLog(), QString("ramp 1, ramp 0"));
        editor.setActiveSlider(2);
        editor.setRamp({{0.0, Qt::red}, {1.0, Qt::blue}});
        QVERIFY(!editor.getCurrentColor().isValid());
        editor.colorChange(Qt::green);
        editor.setOpacity(3);
        QCOMPARE(editor.takeLog(), QString("opacity %1").arg(77 / 2.55));
        QCOMPARE(editor.getRamp(), Ramp({{0.0, Qt::red}, {1.0, Qt::blue}}));
    }

    void gestures_data() { TestSupport::addScripts("gradienttool.txt"); }

    void gestures()
    {
        QFETCH(QString, script);
        Editor editor;
        QTEST(editor.run(script), "log");
    }

    void aHostMayWriteTheRampBack()
    {
        Editor editor;
        connect(&editor, &GradientTool::rampChanged, &editor,
                [&editor] { editor.setRamp(editor.getRamp()); });
        // Through the window, so that the toolkit chooses who gets the rest of the drag.
        QWindow *window = editor.windowHandle();
        const auto drag = [window](const QPoint &from, const QPoint &to) {
            QTest::mousePress(window, Qt::LeftButton, {}, from);
            for (int x : {125, 145})
                QTest::mouseMove(window, {x, 50});
            QTest::mouseMove(window, to);
            QTest::mouseRelease(window, Qt::LeftButton, {}, to);
        };
        drag({105, 20}, {165, 50});
        QCOMPARE(editor.run("stops").section(", ", -1), QString("stops 0 200 160"));
        drag({165, 50}, {105, 100});
        QCOMPARE(editor.run("stops"),
                 QString("down, opacity 100, slider 0 0, ramp 1, ramp 0, ramp 0, opacity 100, "
                         "ramp 0, stops 0 200"));

        // A ramp without the stop that is dragged ends the drag, even if another takes its number.
        editor.disconnect(&editor);
        editor.run("press 105 -30, move 105 31");
        editor.setRamp({{0, Qt::red}, {1, Qt::blue}});
        QCOMPARE(editor.run("three, release 105, stops"), QString("stops 0 100 200"));
    }

    /// From left to right, whatever the numbers, and out at both ends.
    void tabs()
    {
        QWidget window;
        QPushButton before(&window);
        Editor editor;
        editor.setParent(&window);
        QPushButton after(&window);
        editor.run("unsorted");
        QVERIFY(TestSupport::showActive(&window));
        before.setFocus();
        QString visited;
        for (int i = 0; i < 9; ++i) {
            QTest::keyClick(window.focusWidget(), i < 4 || i == 8 ? Qt::Key_Tab : Qt::Key_Backtab);
            visited += editor.hasFocus() ? QString::number(editor.getActiveSlider()) : "-";
        }
        QCOMPARE(visited, QString("120-021-1"));
        editor.setEnabled(false);
        QVERIFY(after.hasFocus());
    }

    void receiversMayReplaceOrDeleteEverything()
    {
        Editor editor;
        connect(&editor, &GradientTool::rampChanged, &editor, [&editor] {
            editor.setRamp({{0.25, Qt::red}, {0.75, Qt::blue}});
        });
        editor.run("press 105 -30, release 105, press 55, move 65, move 66, release 66");
        QCOMPARE(editor.getSliderNum(), 2);
        for (const QPoint &point : {QPoint(105, 20), QPoint(5, 50)}) {
            const QPointer<GradientTool> deleted(new Editor);
            connect(deleted, &GradientTool::opacityValueChange, this,
                    [deleted] { delete deleted; });
            TestSupport::sendMouse(deleted, QEvent::MouseButtonPress, point, Qt::LeftButton,
                                   Qt::LeftButton);
            QVERIFY(!deleted);
        }
    }

    void colorDialog()
    {
        for (bool accept : {false, true}) {
            Editor editor;
            editor.setCurrentColor(QColor(10, 20, 30, 40));
            whenOpen<QColorDialog>([&](QColorDialog *dialog) {
                QVERIFY(!editor.isMousePressed());
                for (const QColor &color : {QColor(1, 1, 1), QColor(200, 100, 50)}) {
                    dialog->setCurrentColor(color);
                    QCOMPARE(editor.getCurrentColor().rgb(), color.rgb());
                }
                clickButton(dialog, accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
            });
            QCOMPARE(editor.run("press 5, release 5, double 5"),
                     QString("down, opacity %1, slider 0 0, down, request 0, opacity %1, ramp 0, "
                             "ramp 0, ramp 0%2")
                         .arg(40 / 2.55)
                         .arg(accept ? ", ramp 1" : ""));
            QCOMPARE(editor.getCurrentColor(),
                     accept ? QColor(200, 100, 50, 40) : QColor(10, 20, 30, 40));
        }
        // One of the host, until it is taken back.
        Editor editor;
        QColorDialog own;
        editor.setColorChoose(&own);
        own.setCurrentColor(QColor(7, 8, 9));
        editor.setColorChoose(nullptr);
        own.setCurrentColor(QColor(70, 80, 90));
        QCOMPARE(editor.takeLog(), QString("ramp 0"));
        QCOMPARE(editor.getCurrentColor(), QColor(7, 8, 9));
    }

    void deletedWhileItsDialogIsOpen()
    {
        Editor editor;
        whenOpen<QColorDialog>([&editor](QColorDialog *dialog) {
            editor.run("three");
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            dialog->close();
        });
        editor.run("press 5, release 5, double 5");
        QCOMPARE(editor.getRamp().first().second, QColor(Qt::red));
    }
};

NOCTURNE_TEST_MAIN(TestGradientTool)

#include "tst_gradienttool.moc"

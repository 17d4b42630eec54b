#include "gestures.h"
#include "modaldialog.h"

#include <nocturne/GradientTool>

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

namespace {

using Ramp = QVector<QPair<double, QColor>>;
using Log = QStringList;

/// An editor of 210 x 60 in a shown window: its bar is (5, 5, 200, 34), its markers are at y = 40.
class Fixture
{
public:
    Fixture()
    {
        editor.resize(210, 60);
        QObject::connect(
            &editor, &GradientTool::rampChanged, &editor, [this](double value, bool complete) {
                QCOMPARE(value, 0.0);
                log << (complete ? QStringLiteral("ramp true") : QStringLiteral("ramp false"));
            });
        QObject::connect(&editor, &GradientTool::sliderChanged, &editor,
                         [this](double, bool complete) {
                             QVERIFY(!complete);
                             log << QStringLiteral("slider");
                         });
        QObject::connect(&editor, &GradientTool::updateSliderColorRequest, &editor,
                         [this](int index) { log << QStringLiteral("request %1").arg(index); });
        QObject::connect(
            &editor, &GradientTool::opacityValueChange, &editor,
            [this](double opacity) { log << QStringLiteral("opacity %1").arg(opacity); });
        editor.show();
    }

    /// The widget that a real pointer would hit, and the point on it.
    void press(const QPoint &point)
    {
        m_target = editor.childAt(point);
        if (!m_target)
            m_target = &editor;
        send(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
    }
    void move(const QPoint &point) { send(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton); }
    void release(const QPoint &point)
    {
        send(QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void doubleClick(const QPoint &point)
    {
        press(point);
        release(point);
        log.clear();
        send(QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton);
    }
    Log takeLog()
    {
        Log taken = log;
        log.clear();
        return taken;
    }

    GradientTool editor;
    Log log;

private:
    void send(QEvent::Type type, const QPoint &point, Qt::MouseButton button,
              Qt::MouseButtons buttons)
    {
        if (!m_target)
            return;
        QMouseEvent event(type, m_target->mapFrom(&editor, point), editor.mapToGlobal(point),
                          button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(m_target, &event);
    }

    QPointer<QWidget> m_target;
};

void clickButton(QColorDialog *dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

constexpr QPoint firstMarker(5, 50);
constexpr QPoint lastMarker(205, 50);

} // namespace

class TestGradientTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithWhiteToBlack()
    {
        GradientTool editor;
        QCOMPARE(editor.getRamp(), Ramp({{0.0, Qt::white}, {1.0, Qt::black}}));
        QCOMPARE(editor.getActiveSlider(), 0);
        QCOMPARE(editor.minimumSize(), QSize(30, 44));
        const auto table = editor.getColorTable();
        QCOMPARE(table.size(), 256);
        QCOMPARE(table.first(), 0xffffffffu);
        QCOMPARE(table.at(51), 0xffccccccu);
        QCOMPARE(table.last(), 0xff000000u);
    }

    void colorTable_data()
    {
        QTest::addColumn<Ramp>("ramp");
        QTest::addColumn<QVector<QPair<int, QRgb>>>("entries");
        using Entries = QVector<QPair<int, QRgb>>;

        QTest::newRow("out of order")
            << Ramp({{1.0, Qt::black}, {0.0, Qt::white}})
            << Entries({{0, 0xffffffff}, {51, 0xffcccccc}, {255, 0xff000000}});
        QTest::newRow("ends inside")
            << Ramp({{0.2, Qt::red}, {0.8, Qt::blue}})
            << Entries({{0, 0xffff0000}, {51, 0xffff0000}, {204, 0xff0000ff}, {255, 0xff0000ff}});
        QTest::newRow("alpha is left out")
            << Ramp({{0.0, QColor(10, 20, 30, 0)}, {1.0, QColor(10, 20, 30, 40)}})
            << Entries({{0, 0xff0a141e}, {100, 0xff0a141e}});
        QTest::newRow("a hard edge")
            << Ramp({{0.0, Qt::red}, {0.5, Qt::red}, {0.5, Qt::blue}, {1.0, Qt::blue}})
            << Entries({{127, 0xffff0000}, {128, 0xff0000ff}});
        QTest::newRow("stops closer than samples")
            << Ramp({{0.0, Qt::red},
                     {0.5, Qt::red},
                     {0.5005, Qt::green},
                     {0.501, Qt::blue},
                     {1.0, Qt::blue}})
            << Entries({{127, 0xffff0000}, {128, 0xff0000ff}, {129, 0xff0000ff}});
        QTest::newRow("all in one place") << Ramp({{0.5, Qt::red}, {0.5, Qt::blue}})
                                          << Entries({{0, 0xffff0000}, {255, 0xff0000ff}});
        QTest::newRow("positions out of range") << Ramp({{-5.0, Qt::red}, {7.0, Qt::blue}})
                                                << Entries({{0, 0xffff0000}, {255, 0xff0000ff}});
    }

    void colorTable()
    {
        QFETCH(Ramp, ramp);
        using Entries = QVector<QPair<int, QRgb>>;
        QFETCH(Entries, entries);
        GradientTool editor;
        editor.setRamp(ramp);
        const auto table = editor.getColorTable();
        for (const auto &entry : qAsConst(entries))
            QCOMPARE(QColor(table.at(entry.first)).name(), QColor(entry.second).name());
    }

    void selectionAndAlpha()
    {
        Fixture f;
        f.editor.setRamp({{0.0, QColor(1, 2, 3, 4)}, {0.5, Qt::red}, {1.0, Qt::blue}});
        QCOMPARE(f.takeLog(), Log());
        f.editor.setActiveSlider(99);
        QCOMPARE(f.editor.getActiveSlider(), 2);
        f.editor.setActiveSlider(-1);
        QCOMPARE(f.editor.getActiveSlider(), 0);
        f.takeLog();
        f.editor.setOpacity(50);
        QCOMPARE(f.editor.getCurrentColor(), QColor(1, 2, 3, 128));
        QCOMPARE(f.takeLog(), Log());
        f.editor.setActiveSlider(0);
        QCOMPARE(f.takeLog(), Log({QStringLiteral("opacity %1").arg(128 / 2.55)}));
        f.editor.setAlphaValue(127.9);
        QCOMPARE(f.editor.getSliderAlpha(0), 127);
        f.editor.setAlphaValue(1e9);
        f.editor.setOpacity(qQNaN());
        QCOMPARE(f.editor.getSliderAlpha(-3), 255);
        f.editor.setSliderColor(2, QColor(9, 9, 9, 77));
        QCOMPARE(f.editor.getSliderAlpha(99), 77);
        QCOMPARE(f.takeLog(), Log({"ramp true"}));
        f.editor.setSliderColor(3, Qt::red);
        f.editor.setSliderColor(-1, Qt::red);
        f.editor.setRamp({{0.0, Qt::red}});
        QCOMPARE(f.editor.getSliderNum(), 3);
        f.editor.setCurrentColor(QColor(5, 6, 7, 8));
        QCOMPARE(f.takeLog(), Log());
        f.editor.colorChange(QColor(50, 60, 70, 80));
        QCOMPARE(f.editor.getCurrentColor(), QColor(50, 60, 70, 8));
        QCOMPARE(f.takeLog(), Log({"ramp false"}));
        f.editor.setActiveSlider(2);
        f.editor.setRamp({{0.0, Qt::red}, {1.0, Qt::blue}});
        QVERIFY(!f.editor.getCurrentColor().isValid());
        f.takeLog();
        f.editor.colorChange(Qt::green);
        f.editor.setOpacity(3);
        QCOMPARE(f.takeLog(), Log());
        QCOMPARE(f.editor.getRamp(), Ramp({{0.0, Qt::red}, {1.0, Qt::blue}}));
    }

    void aPressInTheBarAddsAStopThatFollows()
    {
        Fixture f;
        f.press({105, 20});
        QCOMPARE(f.takeLog(), Log({"opacity 100", "ramp true"}));
        QCOMPARE(f.editor.getSliderNum(), 3);
        QCOMPARE(f.editor.getActiveSlider(), 2);
        const auto added = f.editor.getRamp().at(2);
        QCOMPARE(added.first, 0.5);
        QVERIFY(qAbs(added.second.red() - 128) <= 1);
        f.move({65, 20});
        f.move({66, 20});
        f.release({66, 20});
        QCOMPARE(f.takeLog(), Log({"ramp true", "ramp false"}));
        QCOMPARE(f.editor.getRamp().at(2).first, 61.0 / 200);
    }

    void draggingAMarker()
    {
        Fixture f;
        f.press(lastMarker);
        QCOMPARE(f.takeLog(), Log({"opacity 100", "slider"}));
        f.move({155, 50});
        QCOMPARE(f.editor.getRamp().at(1).first, 0.75);
        f.move({305, 50});
        QCOMPARE(f.editor.getRamp().at(1).first, 0.75);
        f.editor.setSlideUpdate(true);
        f.move({105, 50});
        f.release({105, 50});
        QCOMPARE(f.takeLog(), Log({"ramp true", "ramp false", "ramp true", "ramp false"}));

        // Without a button nothing moves, even though a marker was grabbed before.
        f.press({60, 56});
        QCOMPARE(f.takeLog(), Log());
        f.move({20, 50});
        f.release({20, 50});
        QCOMPARE(f.editor.getRamp().at(1).first, 0.5);
        QCOMPARE(f.takeLog(), Log());
    }

    void draggingFarBelowRemoves()
    {
        Fixture f;
        f.press({105, 20});
        f.release({105, 20});
        f.takeLog();
        // The contents are 50 high and start at 5: more than 75 below that removes.
        f.press({105, 50});
        f.move({105, 80});
        const QImage shown = f.editor.grab().toImage();
        f.move({105, 81});
        QVERIFY(f.editor.grab().toImage() != shown);
        f.move({105, 80});
        QCOMPARE(f.editor.grab().toImage(), shown);
        f.move({105, 81});
        f.release({105, 81});
        QCOMPARE(f.editor.getSliderNum(), 2);
        QCOMPARE(f.editor.getActiveSlider(), 0);
        QCOMPARE(f.takeLog(), Log({"opacity 100", "slider", "ramp true", "ramp false", "ramp false",
                                   "ramp false", "opacity 100", "ramp false"}));

        // The last two stay.
        f.press(lastMarker);
        f.move({205, 200});
        f.release({205, 200});
        QCOMPARE(f.editor.getSliderNum(), 2);
        f.press({105, 20});
        f.release({105, 20});
        QCOMPARE(f.editor.getSliderNum(), 3);
    }

    void anInterruptedRemovalKeepsTheStop_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("hidden") << QStringLiteral("hide");
        QTest::newRow("disabled") << QStringLiteral("disable");
        QTest::newRow("modal window") << QStringLiteral("modal");
    }

    void anInterruptedRemovalKeepsTheStop()
    {
        QFETCH(QString, how);
        Fixture f;
        f.editor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.editor));
        f.editor.setRamp({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}});
        f.editor.setActiveSlider(1);
        const QImage before = f.editor.grab().toImage();
        f.press({105, 50});
        f.move({105, 100});
        QVERIFY(f.editor.grab().toImage() != before);

        QDialog dialog;
        if (how == QLatin1String("hide")) {
            f.editor.hide();
            f.editor.show();
        } else if (how == QLatin1String("disable")) {
            f.editor.setEnabled(false);
            f.editor.setEnabled(true);
        } else {
            dialog.setModal(true);
            dialog.show();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
        }
        QCOMPARE(f.editor.grab().toImage(), before);
        f.release({105, 100});
        QCOMPARE(f.editor.getSliderNum(), 3);
    }

    void aLostReleaseRemovesNothingLater()
    {
        Fixture f;
        f.editor.setRamp({{0, Qt::red}, {0.5, Qt::green}, {1, Qt::blue}});
        const QImage before = f.editor.grab().toImage();
        f.press({105, 50});
        f.move({105, 100});
        f.press(firstMarker);
        f.release(firstMarker);
        QCOMPARE(f.editor.getSliderNum(), 3);
        const QImage after = f.editor.grab().toImage();
        QCOMPARE(after.pixelColor(105, 53), before.pixelColor(105, 53));
    }

    void aDoubleClickGoesOverIntoADrag()
    {
        Fixture f;
        f.editor.setColorChoose(nullptr);
        f.doubleClick(lastMarker);
        f.move({155, 50});
        f.move({105, 50});
        f.release({105, 50});
        QCOMPARE(f.takeLog(), Log({"request 1", "opacity 100", "ramp true", "ramp false"}));
        f.doubleClick({65, 20});
        f.move({75, 20});
        f.release({75, 20});
        QCOMPARE(f.takeLog(), Log({"ramp true"}));
        QCOMPARE(f.editor.getRamp().at(2).first, 0.35);
    }

    void aHostMayWriteTheRampBack()
    {
        Fixture f;
        GradientTool &editor = f.editor;
        connect(&editor, &GradientTool::rampChanged, &editor,
                [&editor] { editor.setRamp(editor.getRamp()); });
        // Through the window, so that the toolkit chooses who gets the rest of the drag.
        QWindow *window = editor.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, {105, 20});
        for (int x : {125, 145, 165})
            QTest::mouseMove(window, {x, 50});
        QTest::mouseRelease(window, Qt::LeftButton, {}, {165, 50});
        QCOMPARE(editor.getRamp().at(2).first, 0.8);
        QTest::mousePress(window, Qt::LeftButton, {}, {165, 50});
        for (int x : {125, 145, 105})
            QTest::mouseMove(window, {x, 50});
        QCOMPARE(editor.getRamp().at(2).first, 0.5);
        f.takeLog();
        QTest::mouseMove(window, {105, 100});
        QTest::mouseRelease(window, Qt::LeftButton, {}, {105, 100});
        QCOMPARE(f.takeLog(), Log({"ramp false", "opacity 100", "ramp false"}));
        QCOMPARE(editor.getRamp(), Ramp({{0.0, Qt::white}, {1.0, Qt::black}}));
    }

    void aRampWithoutTheDraggedStopEndsTheDrag()
    {
        Fixture f;
        const Ramp ramp{{0, Qt::red}, {0.25, Qt::green}, {1, Qt::blue}};
        f.press({105, 20});
        f.move({105, 100});
        f.editor.setRamp({{0, Qt::red}, {1, Qt::blue}});
        f.editor.setRamp(ramp);
        f.release({105, 100});
        QCOMPARE(f.editor.getRamp(), ramp);
    }

    void keys()
    {
        QWidget window;
        QPushButton before(&window);
        Fixture f;
        f.editor.setParent(&window);
        QPushButton after(&window);
        f.editor.setRamp({{1.0, Qt::red}, {0.0, Qt::green}, {0.5, Qt::blue}});
        QVERIFY(TestSupport::showActive(&window));
        before.setFocus();
        const auto press = [&](Qt::Key key) { QTest::keyClick(window.focusWidget(), key); };
        const auto hold = [&](Qt::Key key) {
            QKeyEvent repeated(QEvent::KeyPress, key, {}, {}, true);
            QCoreApplication::sendEvent(&f.editor, &repeated);
        };

        // Left to right, and out at both ends.
        QString visited;
        for (int i = 0; i < 4; ++i) {
            press(Qt::Key_Tab);
            visited += after.hasFocus() ? "-" : QString::number(f.editor.getActiveSlider());
        }
        for (int i = 0; i < 4; ++i) {
            press(Qt::Key_Backtab);
            visited += before.hasFocus() ? "-" : QString::number(f.editor.getActiveSlider());
        }
        QCOMPARE(visited, QString("120-021-"));

        press(Qt::Key_Tab);
        f.takeLog();
        press(Qt::Key_Left);
        QCOMPARE(f.takeLog(), Log());
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        hold(Qt::Key_Right);
        f.editor.setSlideUpdate(true);
        hold(Qt::Key_Right);
        QCOMPARE(f.takeLog(), Log({"ramp true", "ramp true", "ramp false", "ramp true"}));
        QCOMPARE(f.editor.getRamp().at(1).first, 0.04);
        f.editor.setSlideUpdate(false);
        f.press(firstMarker);
        f.release(firstMarker);
        f.takeLog();
        hold(Qt::Key_Right);
        QTest::keyClick(&f.editor, Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(f.takeLog(), Log({"ramp true"}));

        hold(Qt::Key_Delete);
        press(Qt::Key_Delete);
        press(Qt::Key_Delete);
        QCOMPARE(f.takeLog(), Log({"opacity 100", "ramp true"}));
        QCOMPARE(f.editor.getRamp(), Ramp({{1.0, Qt::red}, {0.5, Qt::blue}}));

        // The pointer has them now.
        f.press(lastMarker);
        press(Qt::Key_Left);
        QCOMPARE(f.editor.getRamp().first().first, 1.0);
    }

    void receiversMayReplaceOrDeleteEverything()
    {
        {
            Fixture f;
            connect(&f.editor, &GradientTool::rampChanged, &f.editor, [&f] {
                f.editor.setRamp({{0.25, Qt::red}, {0.75, Qt::blue}});
            });
            f.press({105, 20});
            f.release({105, 20});
            f.press(QPoint(55, 50));
            f.move({65, 50});
            f.move({66, 50});
            f.release({66, 50});
            QCOMPARE(f.editor.getSliderNum(), 2);
        }
        auto *editor = new GradientTool;
        const QPointer<GradientTool> guard(editor);
        editor->resize(210, 60);
        editor->show();
        connect(editor, &GradientTool::rampChanged, this, [editor] { editor->deleteLater(); });
        QTest::mouseClick(editor, Qt::LeftButton, {}, {105, 20});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!guard);

        for (const QPoint &point : {QPoint(105, 20), firstMarker}) {
            const QPointer<GradientTool> deleted(new GradientTool);
            deleted->resize(210, 60);
            deleted->show();
            connect(deleted, &GradientTool::opacityValueChange, this,
                    [deleted] { delete deleted; });
            QMouseEvent press(QEvent::MouseButtonPress, point, deleted->mapToGlobal(point),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(deleted, &press);
            QVERIFY(!deleted);
        }
    }

    void dialogAcceptedAndCancelled()
    {
        Fixture f;
        f.editor.setCurrentColor(QColor(10, 20, 30, 40));
        whenOpen<QColorDialog>([](QColorDialog *dialog) {
            dialog->setCurrentColor(QColor(1, 1, 1));
            dialog->setCurrentColor(QColor(200, 100, 50));
            clickButton(dialog, QDialogButtonBox::Cancel);
        });
        f.doubleClick(firstMarker);
        QCOMPARE(f.takeLog(), Log({"request 0", QStringLiteral("opacity %1").arg(40 / 2.55),
                                   "ramp false", "ramp false", "ramp false"}));
        QCOMPARE(f.editor.getCurrentColor(), QColor(10, 20, 30, 40));

        whenOpen<QColorDialog>([&f](QColorDialog *dialog) {
            dialog->setCurrentColor(QColor(1, 2, 3));
            QCOMPARE(f.editor.getCurrentColor(), QColor(1, 2, 3, 40));
            clickButton(dialog, QDialogButtonBox::Ok);
        });
        f.doubleClick(firstMarker);
        QCOMPARE(f.takeLog().mid(2), Log({"ramp false", "ramp false", "ramp true"}));
        QCOMPARE(f.editor.getCurrentColor(), QColor(1, 2, 3, 40));
    }

    void dialogOfTheHost()
    {
        Fixture f;
        auto *own = new QColorDialog;
        const QPointer<QColorDialog> guard(own);
        f.editor.setColorChoose(own);
        own->setCurrentColor(QColor(7, 8, 9));
        QCOMPARE(f.editor.getCurrentColor(), QColor(7, 8, 9));
        f.editor.setColorChoose(nullptr);
        f.takeLog();
        own->setCurrentColor(QColor(70, 80, 90));
        QCOMPARE(f.takeLog(), Log());
        f.doubleClick(firstMarker);
        QCOMPARE(f.takeLog(), Log({"request 0", "opacity 100"}));
        QVERIFY(guard);
        delete own;
    }

    void deletedWhileItsDialogIsOpen()
    {
        auto *f = new Fixture;
        whenOpen<QColorDialog>([f](QColorDialog *) {
            f->editor.setRamp({{0, Qt::red}, {1, Qt::blue}});
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QApplication::activeModalWidget()->close();
        });
        f->doubleClick(firstMarker);
        QCOMPARE(f->editor.getRamp().first().second, QColor(Qt::red));
        delete f;
    }

    void pixels_data()
    {
        QTest::addColumn<int>("ratio");
        QTest::newRow("1x") << 1;
        QTest::newRow("2x") << 2;
    }

    void pixels()
    {
        QFETCH(int, ratio);
        Fixture f;
        f.editor.setRamp({{0.0, QColor(255, 0, 0, 0)}, {1.0, Qt::blue}});
        f.editor.setActiveSlider(0);
        const QImage image = TestSupport::render(f.editor, ratio);
        const auto at = [&](int x, int y) { return QPoint(x * ratio, y * ratio); };
        const auto compare = [&](int x, int y, const QColor &color) {
            COMPARE_PIXEL(image, at(x, y).x(), at(x, y).y(), color);
        };
        // Outline, squares of the board through the transparent end, and the opaque other end.
        compare(5, 20, Qt::black);
        compare(205, 20, Qt::black);
        compare(100, 5, Qt::black);
        compare(100, 39, Qt::black);
        QVERIFY(image.pixelColor(at(7, 7)).red() < 216 && image.pixelColor(at(7, 7)).red() > 205);
        QVERIFY(image.pixelColor(at(7, 17)).red() > 250);
        QVERIFY(image.pixelColor(at(204, 20)).blue() > 250);
        QVERIFY(image.pixelColor(at(204, 20)).red() < 5);
        // The active marker has a head, the other one a line; both point at the ends of the bar.
        compare(205, 43, Qt::black);
        compare(204, 43, Qt::transparent);
        compare(203, 50, Qt::blue);
        compare(1, 50, Qt::black);
        QVERIFY(image.pixelColor(at(8, 46)).alpha() > 0);
        QCOMPARE(image.pixelColor(at(1, 42)).alpha(), 0);
    }

    void resizingMovesTheMarkers()
    {
        Fixture f;
        f.editor.resize(410, 80);
        f.press({405, 70});
        QCOMPARE(f.editor.getActiveSlider(), 1);
        f.editor.resize(0, 0);
        TestSupport::render(f.editor, 1);
        f.move({1, 1});
    }
};

NOCTURNE_TEST_MAIN(TestGradientTool)

#include "tst_gradienttool.moc"

#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/Dial>
#include <nocturne/Frame>
#include <nocturne/GroupBox>
#include <nocturne/LineEdit>
#include <nocturne/ListView>
#include <nocturne/Menu>
#include <nocturne/Splitter>
#include <nocturne/SplitterHandle>
#include <nocturne/StatusBar>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>
#include <nocturne/Widget>

#include <QtCore/QStringListModel>
#include <QtGui/QWindow>

#include <functional>

using TestSupport::count;
using TestSupport::isFilled;

namespace {

using MakeWidget = std::function<QWidget *()>;
using Points = QVector<QPoint>;
using Probes = QVector<QPair<QPoint, QColor>>;

/// Device pixels that must have a colour.
Probes at(const QColor &color, const Points &points)
{
    Probes probes;
    for (const QPoint &point : points)
        probes.append({point, TestSupport::blended(color, Qt::transparent)});
    return probes;
}

/// Probes down the column \a x of a gradient that goes from \a from to \a to units.
Probes ramp(int x, const QVector<int> &rows, qreal ratio, qreal from, qreal to,
            const QGradientStops &stops)
{
    QLinearGradient gradient(0, from, 0, to);
    gradient.setStops(stops);
    const QImage image = TestSupport::paintOn(
        QSize(1, 200), Qt::transparent,
        [&](QPainter &painter) { painter.fillRect(0, 0, 1, 200, gradient); }, ratio);
    Probes probes;
    for (int y : rows)
        probes.append({QPoint(x, y), image.pixelColor(0, y)});
    return probes;
}

// The theme's window colour plus or minus n.
QColor w(int n, int alpha = 255)
{
    return QColor(0x1f + n, 0x21 + n, 0x26 + n, alpha);
}

const QColor nothing(0, 0, 0, 0);
const QColor softBlack(0, 0, 0, 128);
const QColor accent(65, 155, 249);
const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);
const QColor highlightedCaption(0xed, 0x6e, 0x00);

template <typename Class>
Class *sized(int width, int height)
{
    auto *widget = new Class;
    widget->resize(width, height);
    return widget;
}

MakeWidget frame(QFrame::Shape shape, QFrame::Shadow shadow)
{
    return [=] {
        auto *frame = sized<Frame>(40, 20);
        frame->setFrameShape(shape);
        frame->setFrameShadow(shadow);
        return frame;
    };
}

MakeWidget groupBox(bool checkable, bool checked)
{
    return [=] {
        auto *box = sized<GroupBox>(160, 60);
        box->setCheckable(checkable);
        box->setChecked(checked);
        return box;
    };
}

/// A tab widget whose pages do not cover what it paints.
TabWidget *tabWidget(const QStringList &tabs)
{
    auto *widget = sized<TabWidget>(400, 60);
    for (const QString &text : tabs)
        widget->addTab(new QWidget, text);
    widget->ensurePolished();
    return widget;
}

TabBar *tabBar(const QStringList &tabs)
{
    auto *bar = sized<TabBar>(400, 30);
    for (const QString &text : tabs)
        bar->addTab(text);
    return bar;
}

template <typename Class>
MakeWidget tabs(Class *make(const QStringList &), const QStringList &texts)
{
    return [=] { return make(texts); };
}

/// The contents of a line edit end two units above the lower edge under this style, which paints
/// nothing behind them.
class InsetStyle : public QProxyStyle
{
public:
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override
    {
        return element == SE_LineEditContents
                   ? option->rect.adjusted(1, 1, -1, -2)
                   : QProxyStyle::subElementRect(element, option, widget);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_PanelLineEdit)
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

LineEdit *lineEdit()
{
    static InsetStyle style;
    auto *edit = sized<LineEdit>(80, 24);
    edit->setStyle(&style);
    return edit;
}

} // namespace

Q_DECLARE_METATYPE(MakeWidget)

class TestContainers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(m_theme.style());
        // The colours are the theme's, not those of the application.
        QApplication::setPalette(QPalette(Qt::red, Qt::green));
    }

    void paints_data()
    {
        QTest::addColumn<MakeWidget>("make");
        QTest::addColumn<Probes>("at1");
        QTest::addColumn<Probes>("at2");
        addFrames();
        addTabs();
        addGroupBoxes();
    }

    /// Enabled and disabled look the same.
    void paints()
    {
        QFETCH(MakeWidget, make);
        QFETCH(Probes, at1);
        QFETCH(Probes, at2);
        const std::unique_ptr<QWidget> widget(make());
        for (bool enabled : {true, false}) {
            widget->setEnabled(enabled);
            for (int ratio : {1, 2}) {
                QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
                image.setDevicePixelRatio(ratio);
                image.fill(Qt::transparent);
                widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
                for (const auto &probe : ratio == 1 ? at1 : at2)
                    COMPARE_PIXEL(image, probe.first.x(), probe.first.y(), probe.second);
            }
        }
    }

    void captions()
    {
        GroupBox box;
        box.resize(200, 60);
        box.setTitle("MMMMMMMMMMMMMMMMMMMMMMMM");
        for (bool enabled : {true, false}) {
            box.setEnabled(enabled);
            const QImage image = TestSupport::render(box);
            const QColor color = enabled ? caption : disabledCaption;
            QVERIFY(count(image, QRect(25, 0, 100, 25), color) > 100);
            QVERIFY(isFilled(image, QRect(0, 0, 25, 60), nothing));
            QVERIFY(isFilled(image, QRect(125, 0, 75, 60), nothing));
            QVERIFY(isFilled(image, QRect(0, 25, 200, 35), nothing));
        }

        const std::unique_ptr<LineEdit> edit(lineEdit());
        QVERIFY(!edit->hasFrame());
        QVERIFY(!edit->testAttribute(Qt::WA_MacShowFocusRect));
        QPalette palette(Qt::black);
        palette.setColor(QPalette::Text, Qt::yellow);
        edit->setPalette(palette);
        edit->setText("MMM");
        const QImage image = TestSupport::render(*edit);
        QVERIFY(count(image, edit->rect(), Qt::yellow) > 10);
        QVERIFY(count(image, edit->rect(), w(-11)) > 100);
    }

    void groupBoxIsMirrored()
    {
        const std::unique_ptr<QWidget> box(groupBox(true, true)());
        box->setLayoutDirection(Qt::RightToLeft);
        box->setProperty("title", "M");
        const QImage image = TestSupport::render(*box);
        TestSupport::comparePixels(image, accent, {{142, 12}, {152, 12}});
        TestSupport::comparePixels(image, w(-5), {{140, 12}, {154, 12}});
        TestSupport::comparePixels(image, nothing, {{12, 12}, {139, 12}, {155, 12}});
        QVERIFY(count(image, QRect(115, 0, 20, 25), caption) > 5);
        QVERIFY(isFilled(image, QRect(0, 0, 115, 25), nothing));
    }

    /// Everywhere on the painted square, and on the title.
    void groupBoxIsClicked()
    {
        for (bool rightToLeft : {false, true}) {
            GroupBox box;
            box.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            box.setTitle("Title");
            box.setCheckable(true);
            box.resize(160, 60);
            QVERIFY(TestSupport::showExposed(&box));
            QSignalSpy toggled(&box, &GroupBox::toggled);
            QSignalSpy clicked(&box, &GroupBox::clicked);
            const auto place = [&](const QPoint &p) {
                return rightToLeft ? QPoint(box.width() - 1 - p.x(), p.y()) : p;
            };
            const auto click = [&](const QPoint &from, const QPoint &to) {
                QTest::mousePress(&box, Qt::LeftButton, {}, place(from));
                QTest::mouseRelease(&box, Qt::LeftButton, {}, place(to));
            };
            int clicks = 0;
            for (const QPoint &hit : Points{{5, 5}, {19, 5}, {12, 12}, {5, 19}, {19, 19}, {30, 12}})
            {
                click(hit, hit);
                QCOMPARE(clicked.count(), ++clicks);
                QCOMPARE(toggled.count(), clicks);
            }
            for (const QPoint &miss : Points{{12, 40}, {150, 12}}) {
                click(miss, miss);
                click(QPoint(19, 19), miss);
                click(miss, QPoint(19, 19));
            }
            box.setCheckable(false);
            click(QPoint(19, 19), QPoint(19, 19));
            QCOMPARE(toggled.count(), clicks);
        }
    }

    void tabCaptionsFollowTheMouse()
    {
        const std::unique_ptr<TabBar> bar(tabBar({"MMM", "MMM", ""}));
        QVERIFY(TestSupport::showExposed(bar.get()));
        const auto isLit = [&](int tab, const QColor &color) {
            return count(TestSupport::render(*bar), bar->tabRect(tab), color) > 5;
        };
        QVERIFY(isLit(0, highlightedCaption));
        QVERIFY(isLit(1, caption) && !isLit(1, highlightedCaption));
        const QPoint second = bar->tabRect(1).center();
        QTest::mouseMove(bar.get(), second);
        QTRY_VERIFY(isLit(1, highlightedCaption));
        QTest::mouseClick(bar.get(), Qt::LeftButton, {}, second);
        QTest::mouseMove(bar.get(), bar->tabRect(2).center());
        QTRY_VERIFY(isLit(0, caption));
        QVERIFY(isLit(1, highlightedCaption));
    }

    void tabSizes()
    {
        class Bar : public TabBar
        {
        public:
            using TabBar::tabSizeHint;
        };
        Bar bar;
        QVERIFY(bar.expanding() && bar.documentMode());
        QCOMPARE(bar.elideMode(), Qt::ElideNone);
        for (const char *text : {"Media", "A text much longer than its tab is wide", ""})
            bar.addTab(text);
        for (const QPoint &widths : Points{{400, 212}, {188, 0}, {150, 0}}) {
            bar.resize(widths.x(), 30);
            QCOMPARE(bar.tabSizeHint(0), QSize(90, 30));
            QCOMPARE(bar.tabSizeHint(1), QSize(90, 30));
            QCOMPARE(bar.tabSizeHint(2), QSize(widths.y(), 30));
        }

        const std::unique_ptr<TabWidget> tabs(tabWidget({"Media", "Audio", ""}));
        QVERIFY(TestSupport::showExposed(tabs.get()));
        QVERIFY(tabs->findChild<TabBar *>()->tabRect(2).width() >= 212);
    }

    void tabBarWidth()
    {
        const QRect usual(90, 0, 90, 30);
        const QRect wide(120, 0, 120, 30);
        for (bool shownBefore : {true, false}) {
            const std::unique_ptr<TabWidget> tabs(tabWidget({"Media", "Audio"}));
            const auto *bar = tabs->findChild<TabBar *>();
            QVERIFY(bar);
            QVERIFY(!shownBefore || TestSupport::showExposed(tabs.get()));
            QVERIFY(!shownBefore || bar->tabRect(1) == usual);
            tabs->setTabBarWidth(120);
            QCOMPARE(bar->tabRect(1), wide);
            QVERIFY(TestSupport::showExposed(tabs.get()));
            QCOMPARE(bar->tabRect(1), wide);
        }

        const std::unique_ptr<TabBar> alone(tabBar({"Media", "Audio"}));
        alone->adjustSize();
        QVERIFY(TestSupport::showExposed(alone.get()));
        QCOMPARE(alone->tabRect(1), usual);
        alone->setWidth(120);
        QCOMPARE(alone->tabRect(1), wide);
        QCOMPARE(alone->width(), 240);
    }

    void splitterHandle()
    {
        Splitter splitter;
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.setHandleWidth(10);
        splitter.setChildrenCollapsible(false);
        splitter.resize(410, 100);
        splitter.setSizes({200, 200});
        QVERIFY(TestSupport::showExposed(&splitter));
        auto *handle = qobject_cast<SplitterHandle *>(splitter.handle(1));
        QVERIFY(handle);
        QVERIFY(handle->hasMouseTracking());
        for (int ratio : {1, 2}) {
            const QImage image = TestSupport::render(*handle, ratio);
            QVERIFY(isFilled(image, image.rect(), w(0)));
        }

        QStringList log;
        connect(handle, &SplitterHandle::handlePressed, this, [&log] { log << "pressed"; });
        connect(handle, &SplitterHandle::handleReleased, this, [&log] { log << "released"; });
        const QList<int> before = splitter.sizes();
        const QList<int> after = {before.at(0) + 50, before.at(1) - 50};
        // A button held since before the pointer came over the handle does not drag it.
        TestSupport::sendDrag(handle, QPoint(60, 50));
        QCOMPARE(splitter.sizes(), before);
        QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(5, 50));
        QCOMPARE(log, QStringList{"pressed"});
        TestSupport::sendDrag(handle, QPoint(55, 50));
        QCOMPARE(splitter.sizes(), after);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(5, 50));
        QCOMPARE(log, QStringList({"pressed", "released"}));
        TestSupport::sendDrag(handle, QPoint(-60, 50));
        QCOMPARE(splitter.sizes(), after);

        sendEvent(handle, QEvent::Enter);
        QCOMPARE(handle->cursor().shape(), Qt::SplitHCursor);
        new QWidget(handle);
        for (QEvent::Type type : {QEvent::Enter, QEvent::Leave}) {
            handle->setCursor(Qt::SplitHCursor);
            sendEvent(handle, QEvent::Show);
            QCOMPARE(handle->cursor().shape(), Qt::SplitHCursor);
            sendEvent(handle, type);
            QCOMPARE(handle->cursor().shape(), Qt::ArrowCursor);
        }
    }

    void listViewDrawsNoItems()
    {
        QStringListModel model({"MMMMMMMM", "MMMMMMMM"});
        ListView view;
        QCOMPARE(view.frameShape(), QFrame::NoFrame);
        view.resize(120, 60);
        const QImage empty = TestSupport::render(view);
        view.setModel(&model);
        view.setCurrentIndex(model.index(0));
        QCOMPARE(TestSupport::render(view), empty);
        QVERIFY(isFilled(empty, QRect(0, 6, 120, 48), Qt::darkGray));
        QVERIFY(empty.pixelColor(0, 0) != QColor(Qt::darkGray));
    }

    void wheelGoesPastTheDial()
    {
        class Parent : public QWidget
        {
        public:
            int wheels = 0;

        protected:
            void wheelEvent(QWheelEvent *) override { ++wheels; }
        };
        Parent parent;
        Dial dial(&parent);
        dial.setValue(40);
        QVERIFY(TestSupport::showExposed(&parent));
        QWheelEvent wheel = TestSupport::wheelOver(parent, dial.geometry().center());
        QSpontaneKeyEvent::setSpontaneous(&wheel); // only the user's events go on to parents
        qApp->notify(parent.windowHandle(), &wheel);
        QCOMPARE(dial.value(), 40);
        QCOMPARE(parent.wheels, 1);
    }

    void menuIsLeft()
    {
        Menu titled("Transition");
        QCOMPARE(titled.title(), QString("Transition"));
        Menu menu;
        QVERIFY(titled.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
        QAction *cut = menu.addAction("Cut");
        menu.popup(QPoint(50, 50));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(cut);
        QSignalSpy leaved(&menu, &Menu::leaved);
        sendEvent(&menu, QEvent::Leave);
        QCOMPARE(leaved.count(), 1);
        QCOMPARE(menu.activeAction(), cut);
    }

    void paletteIsReadAtEachPaint()
    {
        Widget widget;
        COMPARE_PIXEL(TestSupport::render(widget), 1, 1, w(0));
        m_theme.setPalette(QPalette(Qt::blue), false);
        COMPARE_PIXEL(TestSupport::render(widget), 1, 1, QColor(Qt::blue));
        m_theme.initialize();
        COMPARE_PIXEL(TestSupport::render(widget), 1, 1, w(0));
    }

private:
    static void sendEvent(QObject *receiver, QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(receiver, &event);
    }

    static void add(const char *name, const MakeWidget &make, const Probes &at1, const Probes &at2)
    {
        QTest::newRow(name) << make << at1 << at2;
    }

    // At ratio 1 an antialiased outline lies half on either side of its edge; at ratio 2 it covers
    // the outermost device pixels.
    static void addFrames()
    {
        add("plain frame", frame(QFrame::NoFrame, QFrame::Plain),
            at(TestSupport::blended(softBlack, w(-7)), {{20, 0}, {0, 10}})
                + at(w(-7), {{1, 1}, {20, 17}, {38, 10}}) + at(w(18), {{2, 19}, {38, 19}})
                + at(softBlack, {{1, 19}, {39, 19}}),
            at(Qt::black, {{40, 0}, {0, 20}, {79, 20}, {77, 38}}) + at(w(-7), {{1, 1}, {40, 36}})
                + at(w(18), {{40, 37}, {40, 38}, {3, 38}, {76, 38}}));
        const QGradientStops raised = {{0.0, w(10)}, {1.0, w(-7)}};
        add("raised frame", frame(QFrame::Panel, QFrame::Raised),
            ramp(20, {2, 5, 10, 15, 18}, 1, 1, 18, raised) + at(QColor(20, 21, 24), {{20, 0}})
                + at(w(23), {{2, 1}, {37, 1}}) + at(w(10), {{1, 1}, {38, 1}}),
            ramp(40, {3, 10, 20, 38}, 2, 1, 18, raised) + at(Qt::black, {{40, 0}, {40, 39}})
                + at(w(23), {{3, 1}, {40, 2}, {74, 2}}) + at(w(10), {{2, 2}, {75, 2}}));
        const QGradientStops sunken = {{0.0, w(0)}, {0.4, w(5)}, {1.0, w(-3)}};
        add("sunken frame", frame(QFrame::StyledPanel, QFrame::Sunken),
            ramp(0, {0, 4, 7, 8, 12, 19}, 1, 0, 20, sunken),
            ramp(79, {0, 8, 15, 16, 24, 39}, 2, 0, 20, sunken));
        add("box", frame(QFrame::Box, QFrame::Raised),
            at(Qt::black, {{0, 0}, {39, 19}}) + at(nothing, {{1, 1}, {38, 18}}),
            at(Qt::black, {{0, 0}, {40, 37}, {77, 20}}) + at(nothing, {{2, 2}}));
        add("rule", frame(QFrame::HLine, QFrame::Sunken),
            at(nothing, {{20, 0}, {20, 2}}) + at(softBlack, {{0, 1}, {39, 1}}),
            at(nothing, {{40, 0}, {40, 3}}) + at(softBlack, {{40, 1}, {40, 2}}));
        const MakeWidget widget = [] { return sized<Widget>(20, 20); };
        const MakeWidget splitter = [] { return sized<Splitter>(20, 20); };
        add("widget", widget, at(w(0), {{0, 0}, {19, 19}}), at(w(0), {{0, 0}, {39, 39}}));
        add("splitter", splitter, at(nothing, {{10, 10}}), at(nothing, {{20, 20}}));
        const auto statusBar = [] {
            auto *bar = sized<StatusBar>(100, 40);
            bar->setSizeGripEnabled(false);
            bar->showMessage("MMMM");
            return bar;
        };
        const QGradientStops bar = {{0.0, w(0)}, {1.0, w(-7)}};
        add("status bar", statusBar,
            ramp(0, {0, 20, 39}, 1, 0, 40, bar) + ramp(99, {0, 20, 39}, 1, 0, 40, bar)
                + ramp(20, {18, 20, 22}, 1, 0, 40, bar),
            ramp(0, {0, 40, 79}, 2, 0, 40, bar) + ramp(199, {0, 40, 79}, 2, 0, 40, bar));
        add("line edit", lineEdit,
            at(w(-11), {{40, 1}, {1, 12}, {78, 12}, {40, 21}})
                + at(w(33, 96), {{40, 22}, {5, 22}, {74, 22}})
                + at(nothing, {{40, 0}, {0, 12}, {79, 12}, {4, 22}, {75, 22}, {40, 23}, {1, 1}}),
            at(w(-11), {{80, 2}, {2, 24}, {157, 24}, {80, 42}}) + at(w(33, 96), {{80, 44}})
                + at(nothing, {{80, 1}, {80, 46}, {8, 44}, {2, 2}}));
    }

    static void addTabs()
    {
        const QGradientStops bar = {{0.0, w(-8)}, {1.0, w(-16)}};
        const QGradientStops selected = {{0.0, w(10)}, {1.0, w(0)}};
        add("tab bar", tabs(tabBar, {"", "M"}),
            ramp(100, {1, 10, 20, 27}, 1, 1, 28, bar)
                + at(TestSupport::blended(softBlack, w(-8)), {{100, 0}})
                + at(softBlack, {{100, 28}}) + at(nothing, {{100, 29}}),
            ramp(200, {2, 20, 40, 54}, 2, 1, 28, bar) + at(softBlack, {{200, 56}})
                + at(nothing, {{200, 57}}));
        add("selected tab", tabs(tabBar, {" ", ""}),
            ramp(50, {4, 10, 20, 29}, 1, 4, 30, selected) + ramp(3, {10, 20}, 1, 1, 28, bar)
                + ramp(5, {10, 20}, 1, 4, 30, selected),
            ramp(100, {8, 20, 40, 59}, 2, 4, 30, selected));
        add("tab widget", tabs(tabWidget, {"A", ""}),
            at(nothing, {{0, 40}, {399, 40}, {200, 58}})
                + at(w(0), {{1, 40}, {398, 40}, {200, 57}}),
            at(nothing, {{1, 80}, {798, 80}, {400, 116}})
                + at(w(0), {{2, 80}, {797, 80}, {400, 115}}));
        const QColor edge = w(20, 128);
        add("one textless tab", tabs(tabWidget, {""}),
            at(Qt::black, {{0, 45}, {1, 45}, {0, 59}, {1, 59}}) + at(edge, {{2, 59}})
                + at(TestSupport::blended(edge, w(0)), {{2, 45}}) + at(w(0), {{3, 45}})
                + at(nothing, {{3, 59}}),
            at(Qt::black, {{0, 90}, {2, 90}}) + at(w(0), {{5, 90}})
                + at(TestSupport::blended(edge, w(0)), {{3, 90}, {4, 90}}));
    }

    static void addGroupBoxes()
    {
        const Probes cell = at(w(-5), {{12, 5}, {5, 12}, {19, 12}, {12, 19}})
                            + at(nothing, {{12, 4}, {4, 12}, {20, 12}, {12, 20}});
        const Probes cellAt2 = at(w(-5), {{24, 10}, {39, 24}}) + at(nothing, {{24, 9}, {40, 24}})
                               + at(w(5), {{20, 59}, {300, 60}, {1, 60}})
                               + at(nothing, {{20, 58}, {300, 61}, {0, 60}});
        add("group box", groupBox(false, false), at(nothing, {{12, 12}, {80, 30}, {0, 0}}),
            at(nothing, {{24, 24}, {160, 60}}));
        add("unchecked group box", groupBox(true, false),
            cell + at(w(-5), {{12, 12}}) + at(nothing, {{80, 28}, {80, 31}}),
            cellAt2 + at(w(-5), {{24, 24}}));
        add("checked group box", groupBox(true, true),
            cell + at(w(-5), {{12, 6}, {6, 12}, {18, 12}, {12, 18}})
                + at(accent, {{12, 7}, {7, 12}, {17, 12}, {12, 17}}),
            cellAt2 + at(w(-5), {{24, 13}, {36, 24}}) + at(accent, {{24, 14}, {35, 24}}));
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestContainers)
#include "tst_containers.moc"

#include "testsupport.h"

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
#include <QtWidgets/QProxyStyle>

#include <memory>

namespace {

using MakeWidget = QWidget *(*)();

QWidget *asWidget(QWidget *widget)
{
    return widget;
}

/// A device pixel and the colour it must have.
struct Probe
{
    int x;
    int y;
    QColor color;
};

using Probes = QVector<Probe>;

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
        probes << Probe{x, y, image.pixelColor(0, y)};
    return probes;
}

int count(const QImage &image, const QRect &area, const QColor &color)
{
    int hits = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            hits += image.pixelColor(x, y) == color;
    }
    return hits;
}

Frame *frame(QFrame::Shape shape, QFrame::Shadow shadow)
{
    auto *frame = new Frame;
    frame->setFrameShape(shape);
    frame->setFrameShadow(shadow);
    frame->resize(40, 20);
    return frame;
}

/// A tab widget whose pages do not cover what it paints.
TabWidget *tabWidget(const QStringList &tabs)
{
    auto *widget = new TabWidget;
    for (const QString &text : tabs)
        widget->addTab(new QWidget, text);
    widget->resize(400, 60);
    widget->ensurePolished();
    return widget;
}

TabBar *tabBar(const QStringList &tabs)
{
    auto *bar = new TabBar;
    bar->resize(400, 30);
    for (const QString &text : tabs)
        bar->addTab(text);
    return bar;
}

GroupBox *groupBox(bool checkable, bool checked)
{
    auto *box = new GroupBox;
    box->setCheckable(checkable);
    box->setChecked(checked);
    box->resize(160, 60);
    return box;
}

/// The contents of a line edit end two units above the lower edge under this style, which paints
/// nothing behind them.
class InsetStyle : public QProxyStyle
{
public:
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override
    {
        if (element == SE_LineEditContents)
            return option->rect.adjusted(1, 1, -1, -2);
        return QProxyStyle::subElementRect(element, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_PanelLineEdit)
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

QStyle *insetStyle()
{
    static InsetStyle style;
    return &style;
}

LineEdit *lineEdit()
{
    auto *edit = new LineEdit;
    edit->setStyle(insetStyle());
    edit->resize(80, 24);
    return edit;
}

} // namespace

Q_DECLARE_METATYPE(MakeWidget)
Q_DECLARE_METATYPE(Probes)

class TestContainers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setStyle(m_theme.style());
        // The colours are the theme's, not those of the application.
        QApplication::setPalette(QPalette(Qt::red, Qt::green));
    }

    void paints_data()
    {
        QTest::addColumn<MakeWidget>("make");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<Probes>("probes");
        addFrames();
        addSurfaces();
        addTabs();
        addGroupBoxes();
    }

    void paints()
    {
        QFETCH(MakeWidget, make);
        QFETCH(qreal, ratio);
        QFETCH(bool, enabled);
        QFETCH(Probes, probes);

        const std::unique_ptr<QWidget> widget(make());
        widget->setEnabled(enabled);
        QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        for (const Probe &probe : qAsConst(probes))
            COMPARE_PIXEL(image, probe.x, probe.y,
                          TestSupport::blended(probe.color, Qt::transparent));
    }

    void captions()
    {
        GroupBox box;
        box.resize(200, 60);
        box.setTitle(QStringLiteral("MMMMMMMMMMMMMMMMMMMMMMMM"));
        for (bool enabled : {true, false}) {
            box.setEnabled(enabled);
            const QImage image = TestSupport::render(box);
            const QColor color = enabled ? caption : disabledCaption;
            QVERIFY(count(image, QRect(25, 0, 100, 25), color) > 100);
            QCOMPARE(count(image, QRect(0, 0, 25, 60), nothing), 25 * 60);
            QCOMPARE(count(image, QRect(125, 0, 75, 60), nothing), 75 * 60);
            QCOMPARE(count(image, QRect(0, 25, 200, 35), nothing), 200 * 35);
        }

        LineEdit edit;
        QVERIFY(!edit.hasFrame());
        QVERIFY(!edit.testAttribute(Qt::WA_MacShowFocusRect));
        edit.setStyle(insetStyle());
        QPalette palette(Qt::black);
        palette.setColor(QPalette::Text, Qt::yellow);
        edit.setPalette(palette);
        edit.resize(80, 24);
        edit.setText(QStringLiteral("MMM"));
        const QImage image = TestSupport::render(edit);
        QVERIFY(count(image, edit.rect(), Qt::yellow) > 10);
        QVERIFY(count(image, edit.rect(), w(-11)) > 100);
    }

    void groupBoxIsMirrored()
    {
        GroupBox box;
        box.setLayoutDirection(Qt::RightToLeft);
        box.setCheckable(true);
        box.resize(160, 60);
        box.setTitle(QStringLiteral("M"));
        const QImage image = TestSupport::render(box);
        for (int x : {142, 152})
            COMPARE_PIXEL(image, x, 12, accent);
        COMPARE_PIXEL(image, 12, 12, nothing);
        COMPARE_PIXEL(image, 139, 12, nothing);
        COMPARE_PIXEL(image, 140, 12, w(-5));
        COMPARE_PIXEL(image, 154, 12, w(-5));
        COMPARE_PIXEL(image, 155, 12, nothing);
        QVERIFY(count(image, QRect(115, 0, 20, 25), caption) > 5);
        QCOMPARE(count(image, QRect(0, 0, 115, 25), nothing), 115 * 25);
    }

    void groupBoxIsClicked_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    /// Everywhere on the painted square, and on the title.
    void groupBoxIsClicked()
    {
        QFETCH(bool, rightToLeft);
        GroupBox box;
        box.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        box.setTitle(QStringLiteral("Title"));
        box.setCheckable(true);
        box.resize(160, 60);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy toggled(&box, &GroupBox::toggled);
        QSignalSpy clicked(&box, &GroupBox::clicked);
        const auto click = [&](const QPoint &from, const QPoint &to) {
            const auto place = [&](const QPoint &p) {
                return rightToLeft ? QPoint(box.width() - 1 - p.x(), p.y()) : p;
            };
            QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, place(from));
            QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, place(to));
        };

        int clicks = 0;
        for (const QPoint &place : {QPoint(5, 5), QPoint(19, 5), QPoint(12, 12), QPoint(5, 19),
                                    QPoint(19, 19), QPoint(30, 12)})
        {
            click(place, place);
            QCOMPARE(clicked.count(), ++clicks);
            QCOMPARE(toggled.count(), clicks);
        }
        for (const QPoint &place : {QPoint(12, 40), QPoint(150, 12)}) {
            click(place, place);
            click(QPoint(19, 19), place);
            click(place, QPoint(19, 19));
        }
        QCOMPARE(toggled.count(), clicks);
        box.setCheckable(false);
        click(QPoint(19, 19), QPoint(19, 19));
        QCOMPARE(toggled.count(), clicks);
    }

    void tabCaptionsFollowTheMouse()
    {
        const std::unique_ptr<TabBar> bar(
            tabBar({QStringLiteral("MMM"), QStringLiteral("MMM"), QString()}));
        bar->show();
        QVERIFY(QTest::qWaitForWindowExposed(bar.get()));
        const QRect first = bar->tabRect(0);
        const QRect second = bar->tabRect(1);

        QImage image = TestSupport::render(*bar);
        QVERIFY(count(image, first, highlightedCaption) > 5);
        QVERIFY(count(image, second, caption) > 5);
        QCOMPARE(count(image, second, highlightedCaption), 0);

        QTest::mouseMove(bar.get(), second.center());
        QTRY_VERIFY(count(TestSupport::render(*bar), second, highlightedCaption) > 5);
        QTest::mouseClick(bar.get(), Qt::LeftButton, Qt::NoModifier, second.center());
        QTest::mouseMove(bar.get(), bar->tabRect(2).center());
        QTRY_VERIFY(count(TestSupport::render(*bar), first, caption) > 5);
        QVERIFY(count(TestSupport::render(*bar), second, highlightedCaption) > 5);
    }

    void tabSizes()
    {
        class Bar : public TabBar
        {
        public:
            using TabBar::tabSizeHint;
        };
        Bar bar;
        QVERIFY(bar.expanding());
        QVERIFY(bar.documentMode());
        QCOMPARE(bar.elideMode(), Qt::ElideNone);
        bar.resize(400, 30);
        for (const char *text : {"Media", "A text much longer than its tab is wide", ""})
            bar.addTab(QLatin1String(text));
        QCOMPARE(bar.tabSizeHint(0), QSize(90, 30));
        QCOMPARE(bar.tabSizeHint(1), QSize(90, 30));
        QCOMPARE(bar.tabSizeHint(2), QSize(212, 30));
        bar.resize(188, 30);
        QCOMPARE(bar.tabSizeHint(2), QSize(0, 30));
        bar.resize(150, 30);
        QCOMPARE(bar.tabSizeHint(2), QSize(0, 30));
    }

    void tabBarWidth_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("before it is shown") << false;
        QTest::newRow("while it is shown") << true;
    }

    void tabBarWidth()
    {
        QFETCH(bool, shown);
        const std::unique_ptr<TabWidget> tabs(
            tabWidget({QStringLiteral("Media"), QStringLiteral("Audio")}));
        auto *bar = tabs->findChild<TabBar *>();
        QVERIFY(bar);
        QCOMPARE(bar->parentWidget(), tabs.get());
        if (shown) {
            tabs->show();
            QVERIFY(QTest::qWaitForWindowExposed(tabs.get()));
            QCOMPARE(bar->tabRect(1), QRect(90, 0, 90, 30));
        }
        tabs->setTabBarWidth(120);
        QCOMPARE(bar->tabRect(0).size(), QSize(120, 30));
        QCOMPARE(bar->tabRect(1), QRect(120, 0, 120, 30));
        tabs->show();
        QVERIFY(QTest::qWaitForWindowExposed(tabs.get()));
        QCOMPARE(bar->tabRect(1), QRect(120, 0, 120, 30));
    }

    void tabBarWidthOfALoneBar()
    {
        const std::unique_ptr<TabBar> bar(
            tabBar({QStringLiteral("Media"), QStringLiteral("Audio")}));
        bar->adjustSize();
        bar->show();
        QVERIFY(QTest::qWaitForWindowExposed(bar.get()));
        QCOMPARE(bar->tabRect(1), QRect(90, 0, 90, 30));
        bar->setWidth(120);
        QCOMPARE(bar->tabRect(1), QRect(120, 0, 120, 30));
        QCOMPARE(bar->width(), 240);
    }

    void textlessTabFillsTheTabWidget()
    {
        const std::unique_ptr<TabWidget> tabs(
            tabWidget({QStringLiteral("Media"), QStringLiteral("Audio"), QString()}));
        tabs->show();
        QVERIFY(QTest::qWaitForWindowExposed(tabs.get()));
        const TabBar *bar = tabs->findChild<TabBar *>();
        QCOMPARE(bar->tabRect(0).width(), 90);
        QCOMPARE(bar->tabRect(1).width(), 90);
        QVERIFY(bar->tabRect(2).width() >= 212);
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
        splitter.show();
        QVERIFY(QTest::qWaitForWindowExposed(&splitter));
        auto *handle = qobject_cast<SplitterHandle *>(splitter.handle(1));
        QVERIFY(handle);
        QVERIFY(handle->hasMouseTracking());
        QCOMPARE(handle->orientation(), Qt::Horizontal);
        QSignalSpy pressed(handle, &SplitterHandle::handlePressed);
        QSignalSpy released(handle, &SplitterHandle::handleReleased);
        const QList<int> before = splitter.sizes();
        for (qreal ratio : {1.0, 2.0}) {
            const QImage image = TestSupport::render(*handle, ratio);
            QCOMPARE(count(image, image.rect(), w(0)), image.width() * image.height());
        }

        // A button held since before the pointer came over the handle does not drag it.
        moveOver(handle, QPoint(60, 50));
        QCOMPARE(splitter.sizes(), before);

        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 50));
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(released.count(), 0);
        moveOver(handle, QPoint(55, 50));
        QCOMPARE(splitter.sizes(), QList<int>({before.at(0) + 50, before.at(1) - 50}));
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 50));
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(released.count(), 1);

        moveOver(handle, QPoint(-60, 50));
        QCOMPARE(splitter.sizes(), QList<int>({before.at(0) + 50, before.at(1) - 50}));
    }

    void splitterHandleCursor()
    {
        Splitter splitter;
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        QSplitterHandle *handle = splitter.handle(1);
        const Qt::CursorShape shape = handle->cursor().shape();
        QVERIFY(shape != Qt::ArrowCursor);
        sendEvent(handle, QEvent::Enter);
        QCOMPARE(handle->cursor().shape(), shape);

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
        QStringListModel model({QStringLiteral("MMMMMMMM"), QStringLiteral("MMMMMMMM")});
        ListView view;
        QCOMPARE(view.frameShape(), QFrame::NoFrame);
        view.resize(120, 60);
        const QImage empty = TestSupport::render(view);
        view.setModel(&model);
        view.setCurrentIndex(model.index(0));
        QCOMPARE(TestSupport::render(view), empty);
        QCOMPARE(count(empty, QRect(0, 6, 120, 48), Qt::darkGray), 120 * 48);
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
        auto *dial = new Dial(&parent);
        dial->setValue(40);
        parent.resize(100, 100);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        const QPoint position = dial->geometry().center();
        QWheelEvent wheel(position, parent.mapToGlobal(position), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // only the user's events go on to parents
        qApp->notify(parent.windowHandle(), &wheel);
        QCOMPARE(dial->value(), 40);
        QCOMPARE(parent.wheels, 1);
    }

    void menuIsLeft()
    {
        Menu titled(QStringLiteral("Transition"));
        QCOMPARE(titled.title(), QStringLiteral("Transition"));
        Menu menu;
        for (const QMenu *each : {static_cast<QMenu *>(&menu), static_cast<QMenu *>(&titled)})
            QVERIFY(each->testAttribute(Qt::WA_TranslucentBackground));

        QAction *cut = menu.addAction(QStringLiteral("Cut"));
        menu.popup(QPoint(50, 50));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(cut);
        QSignalSpy leaved(&menu, &Menu::leaved);
        sendEvent(&menu, QEvent::Leave);
        QCOMPARE(leaved.count(), 1);
        QCOMPARE(menu.activeAction(), cut);
        menu.close();
    }

    /// Each class reads the palette when it paints.
    void paletteIsReadAtEachPaint()
    {
        const std::unique_ptr<QWidget> widget(new Widget);
        widget->resize(4, 4);
        COMPARE_PIXEL(TestSupport::render(*widget), 1, 1, w(0));
        m_theme.setPalette(QPalette(Qt::blue), false);
        COMPARE_PIXEL(TestSupport::render(*widget), 1, 1, QColor(Qt::blue));
        m_theme.initialize();
        COMPARE_PIXEL(TestSupport::render(*widget), 1, 1, w(0));
    }

private:
    static void sendEvent(QObject *receiver, QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(receiver, &event);
    }

    static void moveOver(QWidget *widget, const QPoint &position)
    {
        QMouseEvent move(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
    }

    /// Enabled and disabled look the same.
    static void add(const char *name, MakeWidget make, const Probes &at1, const Probes &at2)
    {
        for (bool enabled : {true, false}) {
            const char *state = enabled ? "enabled" : "disabled";
            QTest::addRow("%s, %s", name, state) << make << 1.0 << enabled << at1;
            QTest::addRow("%s, %s, ratio 2", name, state) << make << 2.0 << enabled << at2;
        }
    }

    // At ratio 1 an antialiased outline lies half on either side of its edge; at ratio 2 it covers
    // the outermost device pixels.
    static void addFrames()
    {
        const QColor halfBlack = TestSupport::blended(softBlack, w(-7));
        add("plain frame", [] { return asWidget(frame(QFrame::NoFrame, QFrame::Plain)); },
            {{20, 0, halfBlack},
             {0, 10, halfBlack},
             {1, 1, w(-7)},
             {20, 17, w(-7)},
             {38, 10, w(-7)},
             {2, 19, w(18)},
             {38, 19, w(18)},
             {1, 19, softBlack},
             {39, 19, softBlack}},
            {{40, 0, Qt::black},
             {0, 20, Qt::black},
             {79, 20, Qt::black},
             {1, 1, w(-7)},
             {40, 36, w(-7)},
             {40, 37, w(18)},
             {40, 38, w(18)},
             {3, 38, w(18)},
             {76, 38, w(18)},
             {77, 38, Qt::black}});

        const QGradientStops raised = {{0.0, w(10)}, {1.0, w(-7)}};
        add(
            "raised frame", [] { return asWidget(frame(QFrame::Panel, QFrame::Raised)); },
            ramp(20, {2, 5, 10, 15, 18}, 1, 1, 18, raised)
                + Probes{{20, 0, QColor(0x14, 0x15, 0x18)},
                         {2, 1, w(23)},
                         {37, 1, w(23)},
                         {1, 1, w(10)},
                         {38, 1, w(10)}},
            ramp(40, {3, 10, 20, 38}, 2, 1, 18, raised)
                + Probes{{40, 0, Qt::black},
                         {40, 39, Qt::black},
                         {3, 1, w(23)},
                         {40, 2, w(23)},
                         {74, 2, w(23)},
                         {2, 2, w(10)},
                         {75, 2, w(10)}});

        const QGradientStops sunken = {{0.0, w(0)}, {0.4, w(5)}, {1.0, w(-3)}};
        add(
            "sunken frame", [] { return asWidget(frame(QFrame::StyledPanel, QFrame::Sunken)); },
            ramp(0, {0, 4, 7, 8, 12, 19}, 1, 0, 20, sunken),
            ramp(79, {0, 8, 15, 16, 24, 39}, 2, 0, 20, sunken));

        add("box", [] { return asWidget(frame(QFrame::Box, QFrame::Raised)); },
            {{0, 0, Qt::black}, {39, 19, Qt::black}, {1, 1, nothing}, {38, 18, nothing}},
            {{0, 0, Qt::black}, {2, 2, nothing}, {40, 37, Qt::black}, {77, 20, Qt::black}});
        add("rule", [] { return asWidget(frame(QFrame::HLine, QFrame::Sunken)); },
            {{20, 0, nothing}, {0, 1, softBlack}, {39, 1, softBlack}, {20, 2, nothing}},
            {{40, 0, nothing}, {40, 1, softBlack}, {40, 2, softBlack}, {40, 3, nothing}});
    }

    static void addSurfaces()
    {
        add("widget",
            [] {
                auto *widget = new Widget;
                widget->resize(20, 20);
                return asWidget(widget);
            },
            {{0, 0, w(0)}, {19, 19, w(0)}}, {{0, 0, w(0)}, {39, 39, w(0)}});
        add("splitter",
            [] {
                auto *splitter = new Splitter;
                splitter->resize(20, 20);
                return asWidget(splitter);
            },
            {{0, 0, nothing}, {10, 10, nothing}}, {{0, 0, nothing}, {20, 20, nothing}});

        const QGradientStops bar = {{0.0, w(0)}, {1.0, w(-7)}};
        add(
            "status bar",
            [] {
                auto *bar = new StatusBar;
                bar->setSizeGripEnabled(false);
                bar->resize(100, 40);
                bar->showMessage(QStringLiteral("MMMM"));
                return asWidget(bar);
            },
            ramp(0, {0, 20, 39}, 1, 0, 40, bar) + ramp(99, {0, 20, 39}, 1, 0, 40, bar)
                + ramp(20, {18, 20, 22}, 1, 0, 40, bar),
            ramp(0, {0, 40, 79}, 2, 0, 40, bar) + ramp(199, {0, 40, 79}, 2, 0, 40, bar));
        add("line edit", [] { return asWidget(lineEdit()); },
            {{40, 0, nothing},
             {40, 1, w(-11)},
             {0, 12, nothing},
             {1, 12, w(-11)},
             {78, 12, w(-11)},
             {79, 12, nothing},
             {40, 21, w(-11)},
             {40, 22, w(33, 96)},
             {5, 22, w(33, 96)},
             {4, 22, nothing},
             {74, 22, w(33, 96)},
             {75, 22, nothing},
             {40, 23, nothing},
             {1, 1, nothing}},
            {{80, 1, nothing},
             {80, 2, w(-11)},
             {2, 24, w(-11)},
             {157, 24, w(-11)},
             {80, 42, w(-11)},
             {80, 44, w(33, 96)},
             {80, 46, nothing},
             {8, 44, nothing},
             {2, 2, nothing}});
    }

    static void addTabs()
    {
        const QGradientStops bar = {{0.0, w(-8)}, {1.0, w(-16)}};
        const QGradientStops selected = {{0.0, w(10)}, {1.0, w(0)}};
        add(
            "tab bar",
            [] {
                return asWidget(tabBar({QString(), QStringLiteral("M")}));
            },
            ramp(100, {1, 10, 20, 27}, 1, 1, 28, bar)
                + Probes{{100, 0, TestSupport::blended(softBlack, w(-8))},
                         {100, 28, softBlack},
                         {100, 29, nothing}},
            ramp(200, {2, 20, 40, 54}, 2, 1, 28, bar)
                + Probes{{200, 56, softBlack}, {200, 57, nothing}});
        add(
            "selected tab",
            [] {
                return asWidget(tabBar({QStringLiteral(" "), QString()}));
            },
            ramp(50, {4, 10, 20, 29}, 1, 4, 30, selected) + ramp(3, {10, 20}, 1, 1, 28, bar)
                + ramp(5, {10, 20}, 1, 4, 30, selected),
            ramp(100, {8, 20, 40, 59}, 2, 4, 30, selected));

        const QColor edge = w(20, 128);
        add("tab widget",
            [] {
                return asWidget(tabWidget({QStringLiteral("A"), QString()}));
            },
            {{0, 40, nothing},
             {1, 40, w(0)},
             {398, 40, w(0)},
             {399, 40, nothing},
             {200, 57, w(0)},
             {200, 58, nothing}},
            {{1, 80, nothing},
             {2, 80, w(0)},
             {797, 80, w(0)},
             {798, 80, nothing},
             {400, 115, w(0)},
             {400, 116, nothing}});
        add("tab widget with one textless tab", [] { return asWidget(tabWidget({QString()})); },
            {{0, 45, Qt::black},
             {1, 45, Qt::black},
             {2, 45, TestSupport::blended(edge, w(0))},
             {3, 45, w(0)},
             {0, 59, Qt::black},
             {1, 59, Qt::black},
             {2, 59, edge},
             {3, 59, nothing}},
            {{0, 90, Qt::black},
             {2, 90, Qt::black},
             {3, 90, TestSupport::blended(edge, w(0))},
             {4, 90, TestSupport::blended(edge, w(0))},
             {5, 90, w(0)}});
    }

    static void addGroupBoxes()
    {
        const Probes cell = {{12, 4, nothing}, {12, 5, w(-5)},    {4, 12, nothing},
                             {5, 12, w(-5)},   {19, 12, w(-5)},   {20, 12, nothing},
                             {12, 19, w(-5)},  {12, 20, nothing}, {5, 5, nothing}};
        const Probes cellAt2 = {
            {24, 9, nothing}, {24, 10, w(-5)}, {39, 24, w(-5)}, {40, 24, nothing}};
        const Probes ruleAt2 = {{20, 58, nothing},  {20, 59, w(5)},   {300, 60, w(5)},
                                {300, 61, nothing}, {0, 60, nothing}, {1, 60, w(5)}};
        add("group box", [] { return asWidget(groupBox(false, false)); },
            {{12, 12, nothing}, {80, 30, nothing}, {0, 0, nothing}},
            {{24, 24, nothing}, {160, 60, nothing}});
        add(
            "unchecked group box", [] { return asWidget(groupBox(true, false)); },
            cell.mid(0, 8) + Probes{{12, 12, w(-5)}, {80, 28, nothing}, {80, 31, nothing}},
            cellAt2 + ruleAt2 + Probes{{24, 24, w(-5)}});
        add(
            "checked group box", [] { return asWidget(groupBox(true, true)); },
            cell.mid(0, 8)
                + Probes{{12, 6, w(-5)},
                         {12, 7, accent},
                         {6, 12, w(-5)},
                         {7, 12, accent},
                         {17, 12, accent},
                         {18, 12, w(-5)},
                         {12, 17, accent},
                         {12, 18, w(-5)}},
            cellAt2 + ruleAt2
                + Probes{{24, 13, w(-5)}, {24, 14, accent}, {35, 24, accent}, {36, 24, w(-5)}});
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestContainers)
#include "tst_containers.moc"

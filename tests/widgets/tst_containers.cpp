#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/Frame>
#include <nocturne/GroupBox>
#include <nocturne/LetterBoxWidget>
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
#include <QtWidgets/QProxyStyle>

using TestSupport::addPainting;
using TestSupport::compareProbes;
using TestSupport::count;
using TestSupport::made;
using Points = QVector<QPoint>;

namespace {

const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);
const QColor highlightedCaption(0xed, 0x6e, 0x00);

MakeWidget frame(QFrame::Shape shape, QFrame::Shadow shadow)
{
    return made<Frame>({40, 20}, {{"frameShape", shape}, {"frameShadow", shadow}});
}

MakeWidget groupBox(bool checkable, bool checked, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return made<GroupBox>(
        {160, 60},
        {{"checkable", checkable}, {"checked", checked}, {"layoutDirection", direction}});
}

/// With these tabs, and pages that do not cover what the widget paints.
MakeWidget tabWidget(const QString &tabs)
{
    return made<TabWidget>({400, 60}, {}, [tabs](TabWidget *widget) {
        for (const QString &text : tabs.split(','))
            widget->addTab(new QWidget, text);
        widget->ensurePolished();
    });
}

MakeWidget tabBar(const QString &tabs)
{
    return made<TabBar>({400, 30}, {}, [tabs](TabBar *bar) {
        for (const QString &text : tabs.split(','))
            bar->addTab(text);
    });
}

template <typename Class>
std::unique_ptr<Class> built(const MakeWidget &make)
{
    return std::unique_ptr<Class>(static_cast<Class *>(make()));
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
    void drawPrimitive(PrimitiveElement, const QStyleOption *, QPainter *,
                       const QWidget *) const override
    {}
};

QWidget *lineEdit()
{
    static InsetStyle style;
    auto *edit = new LineEdit;
    edit->resize(80, 24);
    edit->setStyle(&style);
    return edit;
}

/// What a letter box holds.
class Child : public QWidget
{
public:
    explicit Child(const QSize &ratio) { setSizeIncrement(ratio); }
    QSize sizeHint() const override { return QSize(123, 45); }
    int layouts = 0;

protected:
    void resizeEvent(QResizeEvent *) override { ++layouts; }
};

} // namespace

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

    // At ratio 1 an antialiased outline lies half on either side of its edge; at ratio 2 it covers
    // the outermost device pixels.
    void paints_data()
    {
        TestSupport::addPaintingColumns();
        addPainting(
            "plain frame", frame(QFrame::NoFrame, QFrame::Plain),
            "black/128|w-7 20,0 0,10; w-7 1,1 20,17 38,10; w+18 2,19 38,19; black/128 1,19 39,19",
            "black 40,0 0,20 79,20 77,38; w-7 1,1 40,36; w+18 40,37 40,38 3,38 76,38");
        addPainting("raised frame", frame(QFrame::Panel, QFrame::Raised),
                    "w-7 20,18; w+23 2,1 37,1; w+10 1,1 38,1",
                    "w+9 40,3; black 40,0 40,39; w+23 3,1; w+10 2,2");
        addPainting("sunken frame", frame(QFrame::StyledPanel, QFrame::Sunken),
                    "w+0 0,0; w+3 0,4; w+5 0,7; w+2 0,12; w-3 0,19");
        addPainting("box", frame(QFrame::Box, QFrame::Raised), "black 0,0 39,19; none 1,1 38,18");
        addPainting("rule", frame(QFrame::HLine, QFrame::Sunken),
                    "none 20,0 20,2; black/128 0,1 39,1");
        addPainting("widget", made<Widget>({20, 20}), "w+0 0,0 19,19");
        addPainting("letter box", made<LetterBoxWidget>({20, 20}), "w-10 10,10");
        addPainting("splitter", made<Splitter>({20, 20}), "none 10,10");
        addPainting("status bar", made<StatusBar>({100, 40}),
                    "w+0 0,0 99,0; w-4 0,20 20,20; w-7 0,39", "w-3 0,30 150,30; w-7 150,79");
        addPainting("line edit", lineEdit,
                    "w-11 40,1 1,12 78,12 40,21; w+33/96 40,22 5,22 74,22; "
                    "none 40,0 0,12 79,12 4,22 75,22 40,23 1,1",
                    "w-11 80,2 157,24 80,42; w+33/96 80,44; none 80,1 80,46 8,44 2,2");
        addPainting("tab bar", tabBar(",M"),
                    "w-8 100,1; w-11 100,10; w-16 100,27; black/128|w-8 100,0; black/128 100,28; "
                    "none 100,29",
                    "w-11 200,20; w-14 200,40; black/128 200,56; none 200,57");
        addPainting("selected tab", tabBar(" ,"),
                    "w+10 50,4; w+7 50,11; w+0 50,29; w-11 3,10; w+7 5,11");
        addPainting("tab widget", tabWidget(",A"),
                    "none 0,40 399,40 200,58; w+0 1,40 398,40 200,57", "none 1,80; w+0 2,80");
        addPainting("one textless tab", tabWidget(""),
                    "black 0,45 1,59; w+20/128 2,59; w+20/128|w+0 2,45; w+0 3,45; none 3,59",
                    "black 0,90 2,90; w+0 5,90; w+20/128|w+0 3,90 4,90");
        addPainting("group box", groupBox(false, false), "none 12,12 80,30 0,0");
        addPainting("unchecked group box", groupBox(true, false),
                    "w-5 12,12 12,5 5,12 19,12 12,19; none 12,4 4,12 20,12 12,20 80,28 80,31",
                    "w-5 24,24 24,10 39,24; w+5 20,59 300,60 1,60; none 24,9 40,24 20,58 300,61");
        addPainting("checked group box", groupBox(true, true),
                    "w-5 12,5 12,6 6,12 18,12 12,18; #419bf9 12,7 7,12 17,12 12,17");
        addPainting("mirrored group box", groupBox(true, true, Qt::RightToLeft),
                    "#419bf9 142,12 152,12; w-5 140,12 154,12; none 12,12 139,12 155,12");
    }

    void paints() { TestSupport::comparePainting(); }

    void captions()
    {
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const auto box = built<GroupBox>(groupBox(false, false, direction));
            box->setTitle("MMMMMMMMMMMMMMMMMMMMMMMM");
            for (bool enabled : {true, false}) {
                box->setEnabled(enabled);
                const QImage image = TestSupport::render(*box);
                const QRect title(direction == Qt::RightToLeft ? 35 : 25, 0, 100, 25);
                QVERIFY(count(image, title, enabled ? caption : disabledCaption) > 100);
                QCOMPARE(count(image, image.rect(), Qt::transparent)
                             - count(image, title, Qt::transparent),
                         160 * 60 - 100 * 25);
            }
        }
    }

    /// Everywhere on the painted square, and on the title.
    void groupBoxIsClicked()
    {
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const auto box = built<GroupBox>(groupBox(true, false, direction));
            box->setTitle("Title");
            QVERIFY(TestSupport::showExposed(box.get()));
            QSignalSpy toggled(box.get(), &GroupBox::toggled);
            const auto clickToggles = [&](QPoint from, QPoint to) {
                toggled.clear();
                for (QPoint *place : {&from, &to})
                    place->setX(direction == Qt::RightToLeft ? 159 - place->x() : place->x());
                QTest::mousePress(box.get(), Qt::LeftButton, {}, from);
                QTest::mouseRelease(box.get(), Qt::LeftButton, {}, to);
                return toggled.count() == 1;
            };
            for (const QPoint &hit : Points{{5, 5}, {19, 5}, {12, 12}, {5, 19}, {19, 19}, {30, 12}})
                QVERIFY(clickToggles(hit, hit));
            for (const QPoint &miss : Points{{12, 40}, {150, 12}}) {
                QVERIFY(!clickToggles(miss, miss) && !clickToggles(miss, {19, 19}));
                QVERIFY(!clickToggles({19, 19}, miss));
            }
            box->setCheckable(false);
            QVERIFY(!clickToggles({19, 19}, {19, 19}));
        }
    }

    void tabCaptionsFollowTheMouse()
    {
        const auto bar = built<TabBar>(tabBar("MMM,MMM,"));
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

    void tabWidths()
    {
        const auto bar = built<TabBar>(tabBar("Media,Longer than its tab is wide,"));
        QVERIFY(TestSupport::showExposed(bar.get()));
        QVERIFY(bar->tabRect(2).width() >= 212);
        bar->removeTab(2);
        bar->adjustSize();
        QCOMPARE(bar->tabRect(1), QRect(90, 0, 90, 30));
        bar->setWidth(120);
        QCOMPARE(bar->tabRect(1), QRect(120, 0, 120, 30));
        QCOMPARE(bar->width(), 240);
        const auto tabs = built<TabWidget>(tabWidget("Media,Audio"));
        tabs->setTabBarWidth(120);
        QVERIFY(TestSupport::showExposed(tabs.get()));
        QCOMPARE(tabs->findChild<TabBar *>()->tabRect(1), QRect(120, 0, 120, 30));
    }

    void splitterHandle()
    {
        Splitter splitter;
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.setHandleWidth(10);
        splitter.resize(410, 100);
        splitter.setSizes({200, 200});
        QVERIFY(TestSupport::showExposed(&splitter));
        auto *handle = qobject_cast<SplitterHandle *>(splitter.handle(1));
        QVERIFY(handle && handle->hasMouseTracking());
        compareProbes(TestSupport::render(*handle), "w+0 0,0 9,99");

        QSignalSpy pressed(handle, &SplitterHandle::handlePressed);
        QSignalSpy released(handle, &SplitterHandle::handleReleased);
        const QList<int> before = splitter.sizes();
        // A button held since before the pointer came over the handle does not drag it.
        TestSupport::sendDrag(handle, QPoint(60, 50));
        QCOMPARE(splitter.sizes(), before);
        QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(5, 50));
        QVERIFY(pressed.count() == 1 && released.count() == 0);
        TestSupport::sendDrag(handle, QPoint(55, 50));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(5, 50));
        QVERIFY(pressed.count() == 1 && released.count() == 1);
        TestSupport::sendDrag(handle, QPoint(-60, 50));
        QCOMPARE(splitter.sizes(), QList<int>({before.at(0) + 50, before.at(1) - 50}));

        const auto cursorAfter = [handle](QEvent::Type type) {
            handle->setCursor(Qt::SplitHCursor);
            TestSupport::sendPlain(handle, type);
            return handle->cursor().shape();
        };
        QCOMPARE(cursorAfter(QEvent::Enter), Qt::SplitHCursor);
        new QWidget(handle);
        QCOMPARE(cursorAfter(QEvent::Show), Qt::SplitHCursor);
        QCOMPARE(cursorAfter(QEvent::Enter), Qt::ArrowCursor);
        QCOMPARE(cursorAfter(QEvent::Leave), Qt::ArrowCursor);
    }

    void listViewDrawsNoItems()
    {
        QStringListModel model({"MMMMMMMM", "MMMMMMMM"});
        ListView view;
        view.resize(120, 60);
        view.setModel(&model);
        view.setCurrentIndex(model.index(0));
        const QImage image = TestSupport::render(view);
        QVERIFY(TestSupport::isFilled(image, QRect(0, 6, 120, 48), Qt::darkGray));
        QVERIFY(image.pixelColor(0, 0) != QColor(Qt::darkGray));
    }

    void menuIsLeft()
    {
        Menu menu;
        QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
        QAction *cut = menu.addAction("Cut");
        menu.popup(QPoint(50, 50));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.setActiveAction(cut);
        QSignalSpy leaved(&menu, &Menu::leaved);
        TestSupport::sendPlain(&menu, QEvent::Leave);
        QCOMPARE(leaved.count(), 1);
        QCOMPARE(menu.activeAction(), cut);
    }

    void paletteIsReadAtEachPaint()
    {
        Widget widget;
        m_theme.setPalette(QPalette(Qt::blue), false);
        compareProbes(TestSupport::render(widget), "blue 1,1");
        m_theme.initialize();
        compareProbes(TestSupport::render(widget), "w+0 1,1");
    }

    void letterBoxGeometry()
    {
        // The child of a box of that size with that ratio and margin.
        const auto childOf = [](const QSize &size, const QSize &ratio, int margin) {
            LetterBoxWidget box;
            auto *child = new Child(ratio);
            child->setMaximumHeight(2000);
            box.setWidget(child);
            box.setMargin(margin);
            box.resize(size);
            box.resizeWidget();
            return box.sizeHint() == child->sizeHint() ? child->geometry() : QRect();
        };
        QCOMPARE(childOf({1000, 500}, {16, 9}, 1), QRect(57, 1, 886, 498));
        QCOMPARE(childOf({160, 500}, {16, 9}, 0), QRect(0, 205, 160, 90));
        QCOMPARE(childOf({300, 200}, {}, 10), QRect(10, 10, 280, 180));
        QCOMPARE(childOf({300, 200}, {16, 0}, 10), QRect(10, 10, 280, 180)); // half a ratio
        QCOMPARE(childOf({0, 0}, {16, 9}, 1).size(), QSize(0, 0));
        QCOMPARE(childOf({10000, 10}, {4, 3}, 0), QRect(4994, 0, 13, 10));
        QCOMPARE(childOf({2100, 2000}, {1, 1}, 0), QRect(50, 0, 2000, 2000)); // at most
    }

    void letterBoxDelay()
    {
        LetterBoxWidget box;
        auto *child = new Child(QSize(16, 9));
        box.setWidget(child);
        box.show();
        const auto layoutsOfResizes = [&](int size) {
            child->layouts = 0;
            for (int i = 0; i < 100; ++i)
                box.resize(size + i, size + 100 + i);
            return child->layouts;
        };
        QCOMPARE(layoutsOfResizes(500), 100);
        box.setResizeDelay(50);
        QCOMPARE(layoutsOfResizes(1600), 0);
        QTRY_COMPARE(child->layouts, 1);
        QTest::qWait(60);
        QCOMPARE(child->layouts, 1);
        QCOMPARE(child->width(), 1699 - 2);
        box.setResizeDelay(0xffffffffu);
        QCOMPARE(box.resizeDelay(), std::numeric_limits<int>::max());
    }

    void letterBoxHoldsForgetsAndDeletes()
    {
        LetterBoxWidget box;
        const QPointer<QWidget> first(new Child(QSize(1, 1)));
        box.setWidget(first);
        box.setWidget(first);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first && first->parentWidget() == &box);
        const QPointer<QWidget> second(new Child(QSize(1, 1)));
        box.setWidget(second);
        QVERIFY(first);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first);
        delete second;
        QVERIFY(!box.widget());
        Child taken(QSize(1, 1));
        box.setWidget(&taken);
        taken.setParent(nullptr);
        QVERIFY(!box.widget());
        box.resizeWidget();
        QCOMPARE(box.sizeHint(), QFrame().sizeHint());
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestContainers)
#include "tst_containers.moc"

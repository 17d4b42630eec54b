#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/GroupBox>
#include <nocturne/LetterBoxWidget>
#include <nocturne/ListView>
#include <nocturne/Menu>
#include <nocturne/Splitter>
#include <nocturne/SplitterHandle>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>
#include <nocturne/Widget>

#include <QtCore/QStringListModel>

using TestSupport::compareProbes;

namespace {

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

    /// Everywhere on the painted square, and on the title.
    void groupBoxIsClicked()
    {
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            GroupBox box;
            box.resize(160, 60);
            box.setCheckable(true);
            box.setTitle("Title");
            box.setLayoutDirection(direction);
            QVERIFY(TestSupport::showExposed(&box));
            QSignalSpy toggled(&box, &GroupBox::toggled);
            const auto clickToggles = [&](QPoint from, QPoint to) {
                toggled.clear();
                for (QPoint *place : {&from, &to})
                    place->setX(direction == Qt::RightToLeft ? 159 - place->x() : place->x());
                QTest::mousePress(&box, Qt::LeftButton, {}, from);
                QTest::mouseRelease(&box, Qt::LeftButton, {}, to);
                return toggled.count() == 1;
            };
            const QPoint corner(19, 19);
            for (const QPoint &hit : {QPoint(5, 5), {19, 5}, {5, 19}, corner, {30, 12}})
                QVERIFY(clickToggles(hit, hit));
            for (const QPoint &miss : {QPoint(12, 40), {150, 12}})
                QVERIFY(!clickToggles(miss, corner) && !clickToggles(corner, miss));
            box.setCheckable(false);
            QVERIFY(!clickToggles(corner, corner));
        }
    }

    /// That of the current tab and of the one under it.
    void tabCaptionsFollowTheMouse()
    {
        TabBar bar;
        for (const char *text : {"MMM", "MMM", ""})
            bar.addTab(text);
        QVERIFY(TestSupport::showExposed(&bar));
        const auto lit = [&bar] {
            QVector<bool> lit;
            for (int tab : {0, 1}) {
                const QImage image = TestSupport::render(bar);
                lit << (TestSupport::count(image, bar.tabRect(tab), 0xffed6e00) > 5);
                lit << (TestSupport::count(image, bar.tabRect(tab), 0xffbbbbbb) > 5);
            }
            return lit;
        };
        const QPoint second = bar.tabRect(1).center();
        QCOMPARE(lit(), QVector<bool>({true, false, false, true}));
        QTest::mouseMove(&bar, second);
        QTRY_COMPARE(lit(), QVector<bool>({true, false, true, false}));
        QTest::mouseClick(&bar, Qt::LeftButton, {}, second);
        QTest::mouseMove(&bar, bar.tabRect(2).center());
        QTRY_COMPARE(lit(), QVector<bool>({false, true, true, false}));
    }

    void tabWidths()
    {
        TabWidget tabs;
        tabs.resize(400, 60);
        for (const char *text : {"Media", "Longer than its tab is wide", ""})
            tabs.addTab(new QWidget, text);
        auto *bar = tabs.findChild<TabBar *>();
        QVERIFY(TestSupport::showExposed(&tabs));
        QVERIFY(bar->tabRect(2).width() >= 212);
        tabs.removeTab(2);
        QCOMPARE(bar->tabRect(1), QRect(90, 0, 90, 30));
        tabs.setTabBarWidth(120);
        QCOMPARE(bar->tabRect(1), QRect(120, 0, 120, 30));
        TabBar alone;
        for (const char *text : {"Media", "Audio"})
            alone.addTab(text);
        QVERIFY(TestSupport::showExposed(&alone));
        alone.adjustSize();
        alone.setWidth(130);
        QCOMPARE(alone.tabRect(1), QRect(130, 0, 130, 30));
        QCOMPARE(alone.width(), 260);
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

        QStringList heard;
        connect(handle, &SplitterHandle::handlePressed, this, [&heard] { heard << "pressed"; });
        connect(handle, &SplitterHandle::handleReleased, this, [&heard] { heard << "released"; });
        const QList<int> before = splitter.sizes();
        // A button held since before the pointer came over the handle does not drag it.
        TestSupport::sendDrag(handle, QPoint(60, 50));
        QCOMPARE(splitter.sizes(), before);
        QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(5, 50));
        TestSupport::sendDrag(handle, QPoint(55, 50));
        QCOMPARE(heard, QStringList{"pressed"});
        QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(5, 50));
        QCOMPARE(heard, QStringList({"pressed", "released"}));
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
        for (int i = 0; i < 2; ++i) {
            box.setWidget(first);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(first && first->parentWidget() == &box);
        }
        const QPointer<QWidget> second(new Child(QSize(1, 1)));
        box.setWidget(second);
        QVERIFY(first); // until control returns
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

#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/IListItem>
#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>
#include <nocturne/SimpleListWidget>
#include <nocturne/TreeWidget>

#include <QtCore/QDataStream>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <climits>
#include <functional>

namespace {

constexpr QRgb background = 0xff191b20;

/// Leaves nothing to be seen of \a view but its rows.
void makeBare(QAbstractItemView &view)
{
    view.setFrameShape(QFrame::NoFrame);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setFocusPolicy(Qt::NoFocus);
    QCursor::setPos(2000, 1500); // and hovers over nothing
}

/// Which of the shadows at its ends \a view paints, when it is that far through its range.
QString shadowsOf(QAbstractItemView &view, double scrolled)
{
    // A black bar of six units, blurred over thirty.
    const QMap<int, QRgb> shadow = {
        {0, 0xff0a0b0d}, {10, 0xff14161a}, {20, 0xff181a1f}, {30, background}};
    view.verticalScrollBar()->setValue(int(view.verticalScrollBar()->maximum() * scrolled));
    QString seen;
    for (qreal ratio : {1.0, 1.5, 2.0}) {
        const QImage image = TestSupport::render(view, ratio);
        const auto isAt = [&](bool top, bool there) {
            return std::all_of(shadow.keyBegin(), shadow.keyEnd(), [&](int y) {
                const int row = qRound(y * ratio);
                return image.pixel(image.width() / 2, top ? row : image.height() - 1 - row)
                       == (there ? shadow[y] : background);
            });
        };
        for (bool top : {true, false})
            seen += isAt(top, true) ? (top ? "top " : "bottom ") : isAt(top, false) ? "" : "? ";
    }
    return seen;
}

class KeyedItem : public QListWidgetItem, public IListItem
{
public:
    explicit KeyedItem(const QString &key)
        : m_key(key)
    {}
    const QString &itemKey() const override { return m_key; }

private:
    QString m_key;
};

struct OpenDelegate : ItemDelegate
{
    using ItemDelegate::drawDecoration;
    using ItemDelegate::drawDisplay;
};

void fill(QListWidget &list, int rows, int rowHeight = 40, const QString &text = "Item")
{
    for (int row = 0; row < rows; ++row) {
        auto *item =
            new QListWidgetItem(text.isEmpty() ? text : text + QString::number(row), &list);
        item->setSizeHint(QSize(100, rowHeight));
    }
}

bool showsWhatItPaints(QWidget &view)
{
    for (int i = 0; i < 3; ++i) // lay out, then paint
        QCoreApplication::processEvents();
    return TestSupport::onScreen(view) == TestSupport::freshlyPainted(view);
}

/// Shows rows of the heights asked for, without anything painted in them, and counts them.
class BareTree : public TreeWidget
{
public:
    using TreeWidget::verticalOffset;

    BareTree()
    {
        makeBare(*this);
        setHeaderHidden(true);
        setRootIsDecorated(false);
        setSelectionMode(QAbstractItemView::NoSelection);
    }

    QTreeWidgetItem *addRow(int height, const QString &text = QString())
    {
        auto *item = new QTreeWidgetItem(this, {text});
        item->setSizeHint(0, QSize(10, height));
        return item;
    }

    mutable int drawnRows = 0;

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override
    {
        ++drawnRows;
        TreeWidget::drawRow(painter, option, index);
    }
};

} // namespace

class TestItemViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(m_theme.style());
        QApplication::setPalette(m_theme.palette());
    }

    void shadowsTellOfMore()
    {
        ListWidget list;
        BareTree tree;
        makeBare(list);
        for (QAbstractItemView *view : QVector<QAbstractItemView *>{&list, &tree}) {
            view->resize(200, 200);
            view->show();
            const auto add = [&](int rows) {
                fill(list, rows, 20, QString());
                for (int i = 0; i < rows; ++i)
                    tree.addRow(20);
            };
            add(3);
            QCOMPARE(shadowsOf(*view, 0), QString());
            add(40);
            const QString top = "top ";
            const QString bottom = "bottom ";
            QCOMPARE(shadowsOf(*view, 0), bottom.repeated(3));
            QCOMPARE(shadowsOf(*view, 0.5), (top + bottom).repeated(3));
            COMPARE_PIXEL(TestSupport::render(*view), 0, 0, 0xff101115);
            QCOMPARE(shadowsOf(*view, 1), top.repeated(3));
            list.clear();
            tree.clear();
        }
        fill(list, 40, 20, QString());
        list.shadow(false);
        QCOMPARE(shadowsOf(list, 0.5), QString());
    }

    /// With a bar that counts rows, the offset in pixels passes the maximum within a few rows.
    void shadowsFollowTheVerticalOffset()
    {
        BareTree tree;
        tree.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        for (int i = 0; i < 120; ++i) {
            QTreeWidgetItem *item = tree.addRow(8 + i % 5);
            for (int child = 0; child < 4; ++child)
                (new QTreeWidgetItem(item))->setSizeHint(0, QSize(10, 12));
        }
        tree.resize(100, 120);
        tree.show();
        const QVector<std::function<void()>> changes = {
            [] {}, [&] { tree.expandItem(tree.topLevelItem(1)); },
            [&] { tree.topLevelItem(2)->setSizeHint(0, QSize(10, 3)); },
            [&] { tree.topLevelItem(0)->setHidden(true); }, [&] { tree.clear(); }};
        for (const auto &change : changes) {
            change();
            QCoreApplication::processEvents();
            const int maximum = tree.verticalScrollBar()->maximum();
            for (int step = 0; step <= 2 * maximum; ++step) { // down and up again
                tree.verticalScrollBar()->setValue(step <= maximum ? step : 2 * maximum - step);
                const int offset = tree.verticalOffset();
                const QImage image = TestSupport::render(tree);
                QCOMPARE(image.pixel(50, 0) != background, offset > 0);
                QCOMPARE(image.pixel(50, 119) != background, offset < maximum);
            }
        }
    }

    /// Scrolling copies what is on the screen; the shadows must not be copied along, and only the
    /// rows at the edges are painted.
    void treeLeavesNoTrace()
    {
        for (int i = 0; i < 8; ++i) {
            const bool bars = i & 1;
            BareTree tree;
            if (bars) {
                tree.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
                tree.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
                tree.setHeaderHidden(false);
                tree.setFrameShape(QFrame::StyledPanel);
            }
            tree.setLayoutDirection(i & 2 ? Qt::RightToLeft : Qt::LeftToRight);
            tree.setVerticalScrollMode(i & 4 ? QAbstractItemView::ScrollPerPixel
                                             : QAbstractItemView::ScrollPerItem);
            for (int row = 0; row < 200; ++row)
                tree.addRow(16 + row % 7, QString("row %1 with a long text").arg(row));
            tree.resize(90, 400);
            tree.header()->setStretchLastSection(false); // not all of the width has a column
            tree.setColumnWidth(0, bars ? 300 : 60);
            QVERIFY(TestSupport::showExposed(&tree));
            QScrollBar &bar = *tree.verticalScrollBar();
            for (int value : {1, 2, 4, 3, 0, 9, 8, 7, 60, 61, 62, 100000, 150, 151, 1, 0}) {
                const int step = qAbs(value - bar.value());
                QCoreApplication::processEvents();
                tree.drawnRows = 0;
                bar.setValue(value);
                QCoreApplication::processEvents();
                QVERIFY(bars || step > 2 || tree.drawnRows <= 8);
                QVERIFY(showsWhatItPaints(tree));
            }
            bar.setValue(5);
            bar.setValue(3); // both before the next paint
            QVERIFY(showsWhatItPaints(tree));
            tree.horizontalScrollBar()->setValue(7);
            QVERIFY(showsWhatItPaints(tree));
            bar.setValue(100000);
            QVERIFY(showsWhatItPaints(tree));
            tree.addRow(20);
            QVERIFY(showsWhatItPaints(tree));
        }
    }

    void findsItemsAndRows()
    {
        ListWidget list;
        list.addItem("b");
        auto *first = new KeyedItem("b");
        for (QListWidgetItem *item : QVector<QListWidgetItem *>{first, new KeyedItem("b")})
            list.addItem(item);
        QCOMPARE(list.findItem("b"), static_cast<IListItem *>(first));
        QVERIFY(!list.findItem("B") && !list.findItem(QString()));
        QMetaObject::invokeMethod(&list, "setCurrentRowSlot", Q_ARG(int, 2));
        QCOMPARE(list.currentRow(), 2);
        QMetaObject::invokeMethod(&list, "itemClick", Q_ARG(QListWidgetItem *, list.item(1)));
        QCOMPARE(list.currentRow(), 1);
        // The content lies five pixels in.
        list.show();
        QCOMPARE(list.visualItemRect(list.item(0)).topLeft(), QPoint(5, 5));
    }

    void singleSelectionIsNeverEmpty()
    {
        ListWidget list;
        fill(list, 3);
        list.resize(200, 200);
        list.show();
        QVector<int> rows;
        connect(&list, &ListWidget::itemSelectionChanged, this,
                [&](int row) { rows << (list.selectedItems().isEmpty() ? -1 : row); });
        const auto click = [&list](Qt::KeyboardModifier modifier) {
            QTest::mouseClick(list.viewport(), Qt::LeftButton, modifier,
                              list.visualItemRect(list.item(1)).center());
            return list.item(1)->isSelected();
        };
        QVERIFY(click(Qt::NoModifier));
        QVERIFY(click(Qt::ControlModifier));
        list.clearSelection();
        QVERIFY(list.item(1)->isSelected());
        QCOMPARE(rows, QVector<int>({1, 1, 1}));
        QVERIFY(!list.signalsBlocked());
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        QVERIFY(!click(Qt::ControlModifier));
        QCOMPARE(rows.size(), 3);
    }

    void smallMovesStayWithThePress()
    {
        ListWidget list;
        fill(list, 5);
        list.resize(200, 300);
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        list.show();
        const QPoint lastOfRow = list.visualItemRect(list.item(1)).bottomLeft() + QPoint(20, 0);

        // Moving to the next row extends the selection, unless the list holds the move back.
        for (bool dragEnabled : {true, false}) {
            list.setDragEnabled(dragEnabled);
            list.item(1)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            QTest::mousePress(list.viewport(), Qt::LeftButton, {}, lastOfRow);
            TestSupport::sendDrag(list.viewport(), lastOfRow + QPoint(0, 2));
            QCOMPARE(list.selectedItems().size(), dragEnabled ? 1 : 2);
            QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, lastOfRow);
        }
    }

    void listLeavesNoTrace()
    {
        const std::unique_ptr<QStyle> lightStyle(QStyleFactory::create("Windows"));
        for (int rowHeight : {21, 22, 80, 400}) {
            for (bool light : {true, false}) { // with scroll bars beside the rows and above them
                ListWidget list;
                if (light) {
                    list.setStyle(lightStyle.get());
                    list.verticalScrollBar()->setStyle(lightStyle.get());
                }
                fill(list, 500, rowHeight);
                list.setViewMode(rowHeight == 80 ? QListView::IconMode : QListView::ListMode);
                list.setVerticalScrollMode(rowHeight == 22 ? QAbstractItemView::ScrollPerItem
                                                           : QAbstractItemView::ScrollPerPixel);
                list.resize(250, 300);
                // The dark style fills a hovered or focused row with a gradient, whose shades may
                // round either way when a part of it is painted anew.
                list.setFocusPolicy(Qt::NoFocus);
                list.show();
                QCursor::setPos(list.mapToGlobal(QPoint(800, 100)));
                TestSupport::onScreen(list);
                QScrollBar *bar = list.verticalScrollBar();
                for (int step : {1, 2, 7, 40, -39, 60, -9, -3, -2, 200, -1000, 5}) {
                    bar->setValue(bar->value() + step);
                    if (step % 2 == 0) // two before the next paint
                        bar->setValue(bar->value() + 3);
                    if (light)
                        QCursor::setPos(list.mapToGlobal(QPoint(60, 40 + step % 7)));
                    QVERIFY(showsWhatItPaints(list));
                }
                // Nor does what is gone.
                const QImage before = TestSupport::freshlyPainted(list);
                for (int row : {0, 0})
                    delete list.item(row);
                QVERIFY(TestSupport::freshlyPainted(list) != before);
                QVERIFY(showsWhatItPaints(list));
            }
        }
    }

    /// A sound item is taken. One in a place that no list has is not even looked at, nor is a value
    /// with a length in front of it that the toolkit would believe.
    void itemsFromOutside()
    {
        const auto countAfter = [](auto list, int row, const QVariant &value) {
            QByteArray items;
            QDataStream(&items, QIODevice::WriteOnly)
                << row << 0 << QMap<int, QVariant>{{Qt::DisplayRole, value}};
            QMimeData data;
            data.setData("application/x-qabstractitemmodeldatalist", items);
            list->setDragDropMode(QAbstractItemView::DragDrop);
            list->show();
            TestSupport::drop(list->viewport(), data, QPoint(9, 9));
            return list->model()->rowCount();
        };
        QCOMPARE(countAfter(std::make_unique<ListWidget>(), 0, "A"), 1);
        QCOMPARE(countAfter(std::make_unique<ListWidget>(), 0, QColor(Qt::red)), 1);
        for (int row : {-1, INT_MAX}) {
            QCOMPARE(countAfter(std::make_unique<ListWidget>(), row, "A"), 0);
            QCOMPARE(countAfter(std::make_unique<SimpleListWidget>(), row, "A"), 0);
            QCOMPARE(countAfter(std::make_unique<TreeWidget>(), row, "A"), 0);
        }
        QCOMPARE(countAfter(std::make_unique<ListWidget>(), 0, QPolygon({{1, 1}})), 0);
    }

    void delegateSizes()
    {
        const auto sizeIn = [](int listWidth, bool text, int width = 100) {
            QListWidget list;
            list.resize(listWidth, 200);
            fill(list, 1);
            list.item(0)->setSizeHint(QSize(width, 50));
            ItemDelegate delegate(&list);
            delegate.setTopMargin(7);
            delegate.setEnableText(text);
            return delegate.sizeHint({}, list.model()->index(0, 0));
        };
        QCOMPARE(sizeIn(340, true), QSize(108, 64));
        QCOMPARE(sizeIn(340, false), QSize(108, 50));
        QCOMPARE(sizeIn(101, true), QSize(85, 64));
        QCOMPARE(sizeIn(100, true), QSize(100, 50));
        QCOMPARE(sizeIn(340, true, 0), QSize(0, 50));
    }

    void delegatePaints()
    {
        QPixmap picture(20, 20);
        picture.fill(Qt::blue);
        OpenDelegate delegate;
        QStyleOptionViewItem option;
        option.palette.setColor(QPalette::ButtonText, Qt::green);
        option.font.setPixelSize(20);
        const auto compare = [&](bool withText, const QString &probes) {
            const QImage image = TestSupport::paintOn({80, 80}, Qt::black, [&](QPainter &painter) {
                if (withText)
                    delegate.drawDisplay(&painter, option, {10, 10, 40, 30},
                                         QString(QChar(0x2588)));
                else
                    delegate.drawDecoration(&painter, option, {20, 20, 40, 30}, picture);
            });
            TestSupport::compareProbes(image, probes);
        };
        for (bool selected : {false, true}) {
            option.state.setFlag(QStyle::State_Selected, selected);
            delegate.setTopMargin(5);
            // A line two wide around the frame's edge lies on the pixels to both sides of it.
            const QString frame = selected ? "#ed6e00" : "black";
            compare(false, frame + " 40,22 40,23; black 40,21 40,24 60,40; blue 20,25 59,54");
            QCOMPARE(delegate.rect(), QRect(18, 23, 44, 34));
            delegate.setTopMargin(11);
            compare(true, QString(selected ? "#ed6e00" : "#00ff00") + " 15,19 15,25; black 15,13");
        }
        delegate.setEnableText(false);
        compare(true, "black 15,25");
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestItemViews)
#include "tst_itemviews.moc"

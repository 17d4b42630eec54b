#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/TreeWidget>

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>

namespace {

constexpr QRgb background = 0xff191b20;

/// Shows rows of the heights asked for, without anything painted in them, and counts them.
class BareTree : public TreeWidget
{
public:
    using TreeWidget::verticalOffset;

    BareTree()
    {
        setHeaderHidden(true);
        setRootIsDecorated(false);
        setFrameShape(QFrame::NoFrame);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSelectionMode(QAbstractItemView::NoSelection);
        setFocusPolicy(Qt::NoFocus);
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

class TestTreeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(m_theme.style()); }

    void backgroundAndShadows_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("top");
        QTest::addColumn<bool>("bottom");
        QTest::newRow("no scroll range") << 3 << 0 << false << false;
        QTest::newRow("at the start") << 40 << 0 << false << true;
        QTest::newRow("in the middle") << 40 << 100 << true << true;
        QTest::newRow("at the end") << 40 << 100000 << true << false;
    }

    void backgroundAndShadows()
    {
        QFETCH(int, rows);
        QFETCH(int, value);
        QFETCH(bool, top);
        QFETCH(bool, bottom);
        BareTree tree;
        tree.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        for (int i = 0; i < rows; ++i)
            tree.addRow(20);
        tree.resize(212, 160);
        tree.show();
        tree.verticalScrollBar()->setValue(value);
        // A black bar of six units, blurred over thirty.
        const QMap<int, QRgb> shadow = {
            {0, 0xff0a0b0d}, {10, 0xff14161a}, {20, 0xff181a1f}, {30, background}};
        for (qreal ratio : {1.0, 1.5, 2.0}) {
            const QImage image = TestSupport::render(tree, ratio);
            const int x = image.width() / 2;
            for (int y : shadow.keys()) {
                const int row = qRound(y * ratio);
                COMPARE_PIXEL(image, x, row, top ? shadow[y] : background);
                COMPARE_PIXEL(image, x, image.height() - 1 - row, bottom ? shadow[y] : background);
            }
            COMPARE_PIXEL(image, 0, 0, top ? 0xff101115 : background);
        }
    }

    /// With a bar that counts rows, the offset in pixels passes the maximum within a few rows.
    void shadowsFollowTheVerticalOffset()
    {
        for (bool uniform : {true, false}) {
            BareTree tree;
            tree.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
            tree.setUniformRowHeights(uniform);
            for (int i = 0; i < 120; ++i) {
                QTreeWidgetItem *item = tree.addRow(uniform ? 10 : 8 + i % 5);
                for (int child = 0; child < 4; ++child)
                    (new QTreeWidgetItem(item))->setSizeHint(0, QSize(10, 12));
            }
            tree.resize(100, 120);
            tree.show();
            QVERIFY(followsOffset(tree));
            tree.expandItem(tree.topLevelItem(1));
            QVERIFY(followsOffset(tree));
            for (int i = 0; i < 10; ++i)
                tree.topLevelItem(i)->setSizeHint(0, QSize(10, 3));
            QVERIFY(followsOffset(tree));
            tree.topLevelItem(0)->setHidden(true);
            delete tree.takeTopLevelItem(1);
            QVERIFY(followsOffset(tree));
            tree.clear();
            QVERIFY(followsOffset(tree));
        }
    }

    void scrollingLeavesNoTrace_data()
    {
        QTest::addColumn<QAbstractItemView::ScrollMode>("mode");
        QTest::addColumn<bool>("bars");
        for (auto mode : {QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel}) {
            for (bool bars : {false, true})
                QTest::addRow("mode %d, bars %d", mode, bars) << mode << bars;
        }
    }

    /// Scrolling copies what is on the screen; the shadows must not be copied along, and only the
    /// rows at the edges are painted.
    void scrollingLeavesNoTrace()
    {
        QFETCH(QAbstractItemView::ScrollMode, mode);
        QFETCH(bool, bars);
        for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            BareTree tree;
            if (bars) {
                tree.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
                tree.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
                tree.setHeaderHidden(false);
                tree.setFrameShape(QFrame::StyledPanel);
            }
            tree.setLayoutDirection(direction);
            tree.setVerticalScrollMode(mode);
            for (int i = 0; i < 200; ++i)
                tree.addRow(16 + i % 7, QString("row %1 with a long text").arg(i));
            tree.resize(90, 400);
            tree.header()->setStretchLastSection(false); // not all of the width has a column
            tree.setColumnWidth(0, bars ? 300 : 60);
            QVERIFY(TestSupport::showExposed(&tree));
            const auto settle = [&tree] {
                for (int i = 0; i < 3; ++i) // lay out, then paint
                    QCoreApplication::processEvents();
                const int drawn = tree.drawnRows;
                const bool fresh = TestSupport::onScreen(tree) == TestSupport::freshlyPainted(tree);
                tree.drawnRows = 0;
                return fresh ? drawn : 1000;
            };
            settle();
            for (int value : {1, 2, 4, 3, 0, 9, 8, 7, 60, 61, 62, 100000, 150, 151, 1, 0}) {
                const int step = qAbs(value - tree.verticalScrollBar()->value());
                tree.verticalScrollBar()->setValue(value);
                const int drawn = settle();
                QVERIFY2(drawn < 1000, qPrintable(QString::number(value)));
                QVERIFY(bars || step > 2 || drawn <= 8);
            }
            tree.verticalScrollBar()->setValue(5);
            tree.verticalScrollBar()->setValue(3); // both before the next paint
            QVERIFY(settle() < 1000);
            tree.horizontalScrollBar()->setValue(7);
            QVERIFY(settle() < 1000);
            tree.verticalScrollBar()->setValue(100000);
            settle();
            tree.addRow(20);
            QVERIFY(settle() < 1000);
        }
    }

    /// Whatever a row costs, the shadows need only as many rows as the bar has steps in pixels.
    void farRowsAreNotMeasured()
    {
        class CountingDelegate : public QStyledItemDelegate
        {
        public:
            QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
            {
                ++count;
                return QSize(10, 20);
            }
            mutable int count = 0;
        };

        QList<QTreeWidgetItem *> items;
        for (int i = 0; i < 20000; ++i)
            items << new QTreeWidgetItem;
        BareTree tree;
        CountingDelegate delegate;
        tree.setItemDelegate(&delegate);
        tree.addTopLevelItems(items);
        tree.resize(100, 200);
        QVERIFY(TestSupport::showExposed(&tree));
        const auto countedTo = [&](int value) {
            delegate.count = 0;
            for (int i = qMax(value - 10, tree.verticalScrollBar()->value()); i <= value; ++i)
                tree.verticalScrollBar()->setValue(i);
            QCoreApplication::processEvents();
            return delegate.count;
        };
        QVERIFY(countedTo(15000) < 1200);
        QVERIFY(countedTo(15010) < 100);
    }

private:
    static bool followsOffset(BareTree &tree)
    {
        QCoreApplication::processEvents();
        const int maximum = tree.verticalScrollBar()->maximum();
        for (int step = 0; step <= 2 * maximum; ++step) {
            tree.verticalScrollBar()->setValue(step <= maximum ? step : 2 * maximum - step);
            const int offset = tree.verticalOffset();
            const QImage image = TestSupport::render(tree);
            const bool top = image.pixel(50, 0) != background;
            const bool bottom = image.pixel(50, 119) != background;
            if (top != (offset > 0) || bottom != (offset < maximum)) {
                qWarning("offset %d of %d: top %d, bottom %d", offset, maximum, top, bottom);
                return false;
            }
        }
        return true;
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestTreeWidget)
#include "tst_treewidget.moc"

#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/TreeWidget>

#include <QtGui/QPaintEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>

namespace {

constexpr QRgb background = 0xff191b20;

/// Shows rows of the heights asked for, without anything painted in them.
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
        for (bool enabled : {true, false}) {
            tree.setEnabled(enabled);
            for (qreal ratio : {1.0, 1.5, 2.0}) {
                const QImage image = TestSupport::render(tree, ratio);
                for (int y : shadow.keys()) {
                    const int row = qRound(y * ratio);
                    const int x = image.width() / 2;
                    COMPARE_PIXEL(image, x, row, top ? shadow[y] : background);
                    COMPARE_PIXEL(image, x, image.height() - 1 - row,
                                  bottom ? shadow[y] : background);
                }
                COMPARE_PIXEL(image, 0, 0, top ? 0xff101115 : background);
            }
        }
    }

    void shadowsFollowTheVerticalOffset()
    {
        shadowsFollow(true);
        shadowsFollow(false);
    }

    void scrollingLeavesNoTrace_data()
    {
        QTest::addColumn<QAbstractItemView::ScrollMode>("mode");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<bool>("bars");
        for (auto mode : {QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel}) {
            for (bool rightToLeft : {false, true}) {
                for (bool bars : {false, true}) {
                    QTest::addRow("mode %d, right to left %d, bars %d", mode, rightToLeft, bars)
                        << mode << rightToLeft << bars;
                }
            }
        }
    }

    /// Scrolling copies what is on the screen; the shadows must not be copied along.
    void scrollingLeavesNoTrace()
    {
        QFETCH(QAbstractItemView::ScrollMode, mode);
        QFETCH(bool, rightToLeft);
        QFETCH(bool, bars);
        BareTree tree;
        if (bars) {
            tree.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
            tree.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
            tree.setHeaderHidden(false);
            tree.setFrameShape(QFrame::StyledPanel);
        }
        tree.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        tree.setVerticalScrollMode(mode);
        for (int i = 0; i < 200; ++i)
            tree.addRow(16 + i % 7, QString("row %1 with a long text").arg(i));
        tree.resize(90, 200);
        tree.setColumnWidth(0, 300);
        QVERIFY(TestSupport::showExposed(&tree));

        const auto settle = [&tree] {
            for (int i = 0; i < 3; ++i) // lay out, then paint
                QCoreApplication::processEvents();
            return TestSupport::onScreen(tree) == TestSupport::freshlyPainted(tree);
        };
        QVERIFY(settle());
        for (int value : {1, 2, 4, 3, 0, 9, 8, 7, 60, 61, 62, 100000, 150, 151, 1, 0}) {
            tree.verticalScrollBar()->setValue(value);
            QVERIFY2(settle(), qPrintable(QString::number(value)));
        }
        tree.verticalScrollBar()->setValue(5);
        tree.verticalScrollBar()->setValue(3); // both before the next paint
        QVERIFY(settle());
        tree.horizontalScrollBar()->setValue(7);
        QVERIFY(settle());
        tree.verticalScrollBar()->setValue(100000);
        QVERIFY(settle());
        tree.addRow(20);
        QVERIFY(settle());
    }

    void scrollingPaintsOnlyTheEdges_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    /// A step paints the rows at the edges, and the others only under a bar that floats above them.
    void scrollingPaintsOnlyTheEdges()
    {
        class CountingTree : public TreeWidget
        {
        public:
            mutable int rows = 0;

        protected:
            void paintEvent(QPaintEvent *event) override
            {
                const QRect bar(verticalScrollBar()->mapTo(this, QPoint()) - viewport()->pos(),
                                verticalScrollBar()->size());
                const int before = rows;
                TreeWidget::paintEvent(event);
                if (bar.contains(event->region().boundingRect()))
                    rows = before;
            }
            void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const override
            {
                ++rows;
                TreeWidget::drawRow(painter, option, index);
            }
        };

        QFETCH(bool, rightToLeft);
        CountingTree tree;
        tree.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        tree.header()->setStretchLastSection(false); // not all of the width has columns
        for (int i = 0; i < 400; ++i)
            tree.addTopLevelItem(new QTreeWidgetItem({QString("row %1").arg(i)}));
        tree.resize(300, 600);
        QVERIFY(TestSupport::showExposed(&tree));
        QScrollBar *bar = tree.verticalScrollBar();
        bar->setValue(5);
        QTRY_VERIFY(tree.rows > 20);

        for (int step : {1, -1, 3, -3}) {
            QTest::qWait(1);
            tree.rows = 0;
            bar->setValue(bar->value() + step);
            QTRY_VERIFY(tree.rows > 0);
            QVERIFY2(tree.rows <= 6 + qAbs(step), qPrintable(QString::number(tree.rows)));
        }
    }

    /// Whatever a row costs, the shadows need only as many rows as the bar has steps in pixels.
    void farRowsAreNotMeasured()
    {
        class CountingDelegate : public QStyledItemDelegate
        {
        public:
            using QStyledItemDelegate::QStyledItemDelegate;
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

        delegate.count = 0;
        tree.verticalScrollBar()->setValue(15000);
        QCoreApplication::processEvents();
        QVERIFY2(delegate.count < 1200, qPrintable(QString::number(delegate.count)));
        delegate.count = 0;
        for (int value = 15001; value < 15011; ++value)
            tree.verticalScrollBar()->setValue(value);
        QCoreApplication::processEvents();
        QVERIFY2(delegate.count < 100, qPrintable(QString::number(delegate.count)));
    }

private:
    /// With a bar that counts rows, the offset in pixels passes the maximum within a few rows.
    static void shadowsFollow(bool uniform)
    {
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
        tree.topLevelItem(3)->setHidden(true);
        QVERIFY(followsOffset(tree));
        delete tree.takeTopLevelItem(1);
        auto *first = new QTreeWidgetItem;
        first->setSizeHint(0, QSize(10, 40));
        tree.insertTopLevelItem(0, first);
        QVERIFY(followsOffset(tree));
        tree.clear();
        QVERIFY(followsOffset(tree));
    }

    static bool followsOffset(BareTree &tree)
    {
        QCoreApplication::processEvents();
        const int maximum = tree.verticalScrollBar()->maximum();
        const int x = tree.width() / 2;
        for (int step = 0; step <= 2 * maximum; ++step) {
            tree.verticalScrollBar()->setValue(step <= maximum ? step : 2 * maximum - step);
            const int offset = tree.verticalOffset();
            const QImage image = TestSupport::render(tree);
            const bool top = image.pixel(x, 0) != background;
            const bool bottom = image.pixel(x, image.height() - 1) != background;
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

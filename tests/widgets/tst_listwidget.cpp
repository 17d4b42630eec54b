#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/IListItem>
#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>

#include <QtWidgets/QScrollBar>

namespace {

const QColor background(25, 27, 32);

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

class OpenList : public ListWidget
{
public:
    using ListWidget::horizontalOffset;
    using ListWidget::mimeTypes;
    using ListWidget::supportedDropActions;
    using ListWidget::verticalOffset;
};

class OpenDelegate : public ItemDelegate
{
public:
    using ItemDelegate::drawDecoration;
    using ItemDelegate::drawDisplay;
    using ItemDelegate::ItemDelegate;
};

void fill(QListWidget &list, int rows, int rowHeight = 40)
{
    for (int row = 0; row < rows; ++row) {
        auto *item = new QListWidgetItem(QString("Item %1").arg(row), &list);
        item->setSizeHint(QSize(100, rowHeight));
    }
}

QPoint centerOf(const QListWidget &list, int row)
{
    return list.visualItemRect(list.item(row)).center();
}

int darkness(const QImage &image, int x, int y)
{
    return background.green() - image.pixelColor(x, y).green();
}

} // namespace

class TestListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_theme = std::make_unique<DarkUX>();
        QApplication::setStyle(m_theme->style());
        QApplication::setPalette(m_theme->palette());
    }

    void findsItemsAndRows()
    {
        OpenList list;
        QVERIFY(!list.findItem(QString()));
        list.addItem("b");
        auto *first = new KeyedItem("b");
        list.addItem(first);
        list.addItem(new KeyedItem("B"));
        list.addItem(new KeyedItem("b"));
        QCOMPARE(list.findItem("b"), static_cast<IListItem *>(first));
        QVERIFY(!list.findItem("c"));

        QMetaObject::invokeMethod(&list, "setCurrentRowSlot", Q_ARG(int, 2));
        QCOMPARE(list.currentRow(), 2);
        QMetaObject::invokeMethod(&list, "itemClick", Q_ARG(QListWidgetItem *, list.item(1)));
        QCOMPARE(list.currentRow(), 1);

        const QStringList types = list.mimeTypes();
        QVERIFY(types.size() > 2);
        QCOMPARE(types.mid(types.size() - 2), QStringList({"text/uri-list", "text/plain"}));
        QCOMPARE(list.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);

        // The content lies five pixels in.
        list.show();
        QCOMPARE(list.visualItemRect(list.item(0)).topLeft(), QPoint(5, 5));
        QCOMPARE(list.verticalOffset(), -5);
        QCOMPARE(list.horizontalOffset(), -5);
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
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centerOf(list, 1));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centerOf(list, 1));
        QVERIFY(list.item(1)->isSelected());
        list.clearSelection();
        QVERIFY(list.item(1)->isSelected());
        QCOMPARE(rows, QVector<int>({1, 1, 1}));
        QVERIFY(!list.signalsBlocked());

        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centerOf(list, 1));
        QVERIFY(list.selectedItems().isEmpty());
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

    void shadowsTellOfMore_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<double>("scrolled");
        QTest::addColumn<bool>("top");
        QTest::addColumn<bool>("bottom");
        QTest::newRow("all fits") << 3 << 0.0 << false << false;
        QTest::newRow("at the top") << 50 << 0.0 << false << true;
        QTest::newRow("in the middle") << 50 << 0.5 << true << true;
        QTest::newRow("at the bottom") << 50 << 1.0 << true << false;
    }

    void shadowsTellOfMore()
    {
        QFETCH(int, rows);
        QFETCH(double, scrolled);
        QFETCH(bool, top);
        QFETCH(bool, bottom);
        ListWidget list;
        list.setFrameShape(QFrame::NoFrame);
        list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        fill(list, rows);
        for (int row = 0; row < rows; ++row)
            list.item(row)->setText(QString());
        list.resize(200, 300);
        list.show();
        list.verticalScrollBar()->setValue(int(list.verticalScrollBar()->maximum() * scrolled));
        QImage image = TestSupport::render(list);
        COMPARE_PIXEL(image, 100, 150, background);
        QCOMPARE(darkness(image, 100, 0) > 3, top);
        QCOMPARE(darkness(image, 100, 299) > 3, bottom);
        QVERIFY(darkness(image, 100, 0) >= darkness(image, 100, 10));
        list.shadow(false);
        image = TestSupport::render(list);
        TestSupport::comparePixels(image, background, {{100, 0}, {100, 299}});
    }

    void scrollingLeavesNoTraces_data()
    {
        QTest::addColumn<bool>("light");
        QTest::addColumn<QAbstractItemView::ScrollMode>("scrollMode");
        QTest::addColumn<QListView::ViewMode>("viewMode");
        QTest::addColumn<int>("rowHeight");
        const auto pixels = QAbstractItemView::ScrollPerPixel;
        // With scroll bars beside the rows and above them.
        for (bool light : {true, false}) {
            QTest::addRow("pixels, light %d", light)
                << light << pixels << QListView::ListMode << 21;
            QTest::addRow("items, light %d", light)
                << light << QAbstractItemView::ScrollPerItem << QListView::ListMode << 21;
            QTest::addRow("icons, light %d", light) << light << pixels << QListView::IconMode << 80;
            QTest::addRow("high, light %d", light) << light << pixels << QListView::ListMode << 400;
        }
    }

    void scrollingLeavesNoTraces()
    {
        QFETCH(bool, light);
        QFETCH(QAbstractItemView::ScrollMode, scrollMode);
        QFETCH(QListView::ViewMode, viewMode);
        QFETCH(int, rowHeight);
        const std::unique_ptr<QStyle> lightStyle(QStyleFactory::create("Windows"));
        ListWidget list;
        if (light) {
            list.setStyle(lightStyle.get());
            list.verticalScrollBar()->setStyle(lightStyle.get());
        }
        fill(list, 500, rowHeight);
        list.setViewMode(viewMode);
        list.setVerticalScrollMode(scrollMode);
        list.resize(250, 300);
        // The dark style fills a hovered or focused row with a gradient, whose shades may round
        // either way when a part of it is painted anew.
        list.setFocusPolicy(Qt::NoFocus);
        list.show();
        QCursor::setPos(list.mapToGlobal(QPoint(800, 100)));
        TestSupport::onScreen(list);
        QScrollBar *bar = list.verticalScrollBar();
        for (const QVector<int> &steps :
             {QVector<int>{1}, {2, 3}, {7}, {40, -39, 60}, {-9}, {-3, -2}, {200}, {-1000}, {5}})
        {
            for (int step : steps)
                bar->setValue(bar->value() + step);
            if (light)
                QCursor::setPos(list.mapToGlobal(QPoint(60, 40 + 20 * steps.size())));
            const QImage shown = TestSupport::onScreen(list);
            QCOMPARE(shown, TestSupport::freshlyPainted(list));
        }
    }

    void aPictureShowsTheItemsOfNow()
    {
        ListWidget list;
        list.setFrameShape(QFrame::NoFrame);
        list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        list.setFocusPolicy(Qt::NoFocus);
        list.resize(200, 200);
        list.show();
        QCursor::setPos(list.mapToGlobal(QPoint(800, 100)));
        QImage last = TestSupport::onScreen(list);
        const auto compareAfter = [&](auto change) {
            change();
            const QImage picture = TestSupport::freshlyPainted(list);
            QVERIFY(picture != last);
            last = picture;
            QTRY_COMPARE(TestSupport::onScreen(list), picture);
        };
        compareAfter([&list] { fill(list, 10); });
        compareAfter([&list] { delete list.item(1); });
        list.scrollToBottom();
        last = TestSupport::onScreen(list);
        compareAfter([&list] { delete list.item(8); });
    }

    void delegateSizes()
    {
        struct Row
        {
            int listWidth;
            QSize hint;
            bool text;
            QSize expected;
        };
        for (const Row &row :
             {Row{340, {100, 50}, true, {108, 64}}, Row{340, {100, 50}, false, {108, 50}},
              Row{101, {100, 50}, true, {85, 64}}, Row{100, {100, 50}, true, {100, 50}},
              Row{340, {0, 50}, true, {0, 50}}})
        {
            QListWidget list;
            list.resize(row.listWidth, 200);
            fill(list, 1);
            list.item(0)->setSizeHint(row.hint);
            ItemDelegate delegate(&list);
            delegate.setTopMargin(7);
            delegate.setEnableText(row.text);
            const QModelIndex index = list.model()->index(0, 0);
            QCOMPARE(delegate.sizeHint(QStyleOptionViewItem(), index), row.expected);
            QCOMPARE(ItemDelegate().sizeHint(QStyleOptionViewItem(), index), row.hint);
        }
    }

    void delegatePaints()
    {
        QPixmap picture(20, 20);
        picture.fill(Qt::blue);
        OpenDelegate delegate;
        QCOMPARE(delegate.rect(), QRect());
        QStyleOptionViewItem option;
        option.palette.setColor(QPalette::ButtonText, Qt::green);
        option.font.setPixelSize(20);
        const auto paint = [&](auto work) {
            return TestSupport::paintOn({80, 80}, Qt::black, work);
        };
        const auto paintPicture = [&](QPainter &painter) {
            delegate.drawDecoration(&painter, option, QRect(20, 20, 40, 30), picture);
        };
        const auto paintText = [&](QPainter &painter) {
            delegate.drawDisplay(&painter, option, QRect(10, 10, 40, 30), QString(QChar(0x2588)));
        };
        for (bool selected : {false, true}) {
            option.state.setFlag(QStyle::State_Selected, selected);
            const QColor orange(237, 110, 0);
            delegate.setTopMargin(5);
            const QImage image = paint(paintPicture);
            QCOMPARE(delegate.rect(), QRect(18, 23, 44, 34));
            // A line two wide around the frame's edge lies on the pixels to both sides of it.
            TestSupport::comparePixels(image, selected ? orange : QColor(Qt::black),
                                       {{40, 22}, {40, 23}});
            TestSupport::comparePixels(image, Qt::black, {{40, 21}, {40, 24}, {60, 40}});
            TestSupport::comparePixels(image, Qt::blue, {{20, 25}, {59, 54}});
            QVERIFY(image.pixelColor(17, 22) != orange);

            delegate.setTopMargin(11);
            const QImage text = paint(paintText);
            TestSupport::comparePixels(text, selected ? orange : QColor(Qt::green),
                                       {{15, 19}, {15, 25}});
            COMPARE_PIXEL(text, 15, 13, Qt::black);
        }
        delegate.setEnableText(false);
        COMPARE_PIXEL(paint(paintText), 15, 25, Qt::black);
    }

private:
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestListWidget)

#include "tst_listwidget.moc"

#include "gestures.h"
#include "probes.h"

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

void fill(QListWidget &list, int rows, int rowHeight = 40, const QString &text = "Item")
{
    for (int row = 0; row < rows; ++row) {
        auto *item =
            new QListWidgetItem(text.isEmpty() ? text : text + QString::number(row), &list);
        item->setSizeHint(QSize(100, rowHeight));
    }
}

QPoint centerOf(const QListWidget &list, int row)
{
    return list.visualItemRect(list.item(row)).center();
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
        list.addItem("b");
        auto *first = new KeyedItem("b");
        list.addItem(first);
        list.addItem(new KeyedItem("B"));
        list.addItem(new KeyedItem("b"));
        QCOMPARE(list.findItem("b"), static_cast<IListItem *>(first));
        QVERIFY(!list.findItem("c") && !list.findItem(QString()));
        QMetaObject::invokeMethod(&list, "setCurrentRowSlot", Q_ARG(int, 2));
        QCOMPARE(list.currentRow(), 2);
        QMetaObject::invokeMethod(&list, "itemClick", Q_ARG(QListWidgetItem *, list.item(1)));
        QCOMPARE(list.currentRow(), 1);
        QCOMPARE(list.mimeTypes().mid(list.mimeTypes().size() - 2),
                 QStringList({"text/uri-list", "text/plain"}));
        QCOMPARE(list.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
        // The content lies five pixels in.
        list.show();
        QCOMPARE(list.visualItemRect(list.item(0)).topLeft(), QPoint(5, 5));
        QCOMPARE(QPoint(list.horizontalOffset(), list.verticalOffset()), QPoint(-5, -5));
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

    void shadowsTellOfMore()
    {
        ListWidget list;
        list.setFrameShape(QFrame::NoFrame);
        list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        list.resize(200, 300);
        list.show();
        const auto shadows = [&list](double scrolled) {
            list.verticalScrollBar()->setValue(int(list.verticalScrollBar()->maximum() * scrolled));
            const QImage image = TestSupport::render(list);
            const auto darkness = [&image](int y) {
                return background.green() - image.pixelColor(100, y).green();
            };
            return QString(darkness(0) > 3 && darkness(0) >= darkness(10) ? "top " : "")
                   + (darkness(150) ? "middle " : "") + (darkness(299) > 3 ? "bottom" : "");
        };
        fill(list, 3, 40, QString());
        QCOMPARE(shadows(0), QString());
        fill(list, 50, 40, QString());
        QCOMPARE(shadows(0), QString("bottom"));
        QCOMPARE(shadows(0.5), QString("top bottom"));
        QCOMPARE(shadows(1), QString("top "));
        list.shadow(false);
        QCOMPARE(shadows(0.5), QString());
    }

    void scrollingLeavesNoTraces_data()
    {
        QTest::addColumn<bool>("light");
        QTest::addColumn<QAbstractItemView::ScrollMode>("scrollMode");
        QTest::addColumn<QListView::ViewMode>("viewMode");
        QTest::addColumn<int>("rowHeight");
        const auto row = [](const char *name, QAbstractItemView::ScrollMode scrollMode,
                            QListView::ViewMode viewMode, int rowHeight) {
            // With scroll bars beside the rows and above them.
            for (bool light : {true, false}) {
                QTest::addRow("%s, light %d", name, light)
                    << light << scrollMode << viewMode << rowHeight;
            }
        };
        row("pixels", QAbstractItemView::ScrollPerPixel, QListView::ListMode, 21);
        row("items", QAbstractItemView::ScrollPerItem, QListView::ListMode, 21);
        row("icons", QAbstractItemView::ScrollPerPixel, QListView::IconMode, 80);
        row("high", QAbstractItemView::ScrollPerPixel, QListView::ListMode, 400);
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
        const auto sizeIn = [](int listWidth, const QSize &hint, bool text) {
            QListWidget list;
            list.resize(listWidth, 200);
            fill(list, 1);
            list.item(0)->setSizeHint(hint);
            ItemDelegate delegate(&list);
            delegate.setTopMargin(7);
            delegate.setEnableText(text);
            return delegate.sizeHint({}, list.model()->index(0, 0));
        };
        QCOMPARE(sizeIn(340, {100, 50}, true), QSize(108, 64));
        QCOMPARE(sizeIn(340, {100, 50}, false), QSize(108, 50));
        QCOMPARE(sizeIn(101, {100, 50}, true), QSize(85, 64));
        QCOMPARE(sizeIn(100, {100, 50}, true), QSize(100, 50));
        QCOMPARE(sizeIn(340, {0, 50}, true), QSize(0, 50));
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
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestListWidget)

#include "tst_listwidget.moc"

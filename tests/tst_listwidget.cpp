#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/IListItem>
#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QScreen>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleFactory>

#include <memory>

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
        auto *item = new QListWidgetItem(QStringLiteral("Item %1").arg(row), &list);
        item->setSizeHint(QSize(100, rowHeight));
    }
}

template <typename Event>
Event *sendDrag(QListWidget &list, const QPoint &position, QMimeData *data,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    static std::unique_ptr<Event> event;
    event = std::make_unique<Event>(position, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton,
                                    modifiers);
    event->ignore();
    QCoreApplication::sendEvent(list.viewport(), event.get());
    return event.get();
}

QPoint centerOf(const QListWidget &list, int row)
{
    return list.visualItemRect(list.item(row)).center();
}

/// What the window of \a list shows, as opposed to what it would paint anew.
QImage onScreen(QListWidget &list)
{
    QCoreApplication::processEvents();
    return list.screen()->grabWindow(list.winId()).toImage().convertToFormat(QImage::Format_RGB32);
}

int darkness(const QImage &image, int x, int y)
{
    return background.green() - image.pixelColor(x, y).green();
}

} // namespace

class TestListWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_theme = std::make_unique<DarkUX>();
        QApplication::setStyle(m_theme->style());
        QApplication::setPalette(m_theme->palette());
    }

    void findsItemsByKey()
    {
        ListWidget list;
        QVERIFY(!list.findItem(QString()));
        list.addItem(QStringLiteral("b"));
        auto *first = new KeyedItem(QStringLiteral("b"));
        for (QListWidgetItem *item :
             {static_cast<QListWidgetItem *>(first),
              static_cast<QListWidgetItem *>(new KeyedItem(QStringLiteral("B"))),
              static_cast<QListWidgetItem *>(new KeyedItem(QStringLiteral("b")))})
            list.addItem(item);
        QCOMPARE(list.findItem(QStringLiteral("b")), static_cast<IListItem *>(first));
        QVERIFY(!list.findItem(QStringLiteral("c")));
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
        QCOMPARE(rows, QVector<int>{1});
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centerOf(list, 1));
        QCOMPARE(rows, QVector<int>({1, 1}));
        QVERIFY(list.item(1)->isSelected());
        list.clearSelection();
        QCOMPARE(rows, QVector<int>({1, 1, 1}));
        QVERIFY(list.item(1)->isSelected());
        QVERIFY(!list.signalsBlocked());

        rows.clear();
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centerOf(list, 1));
        QVERIFY(list.selectedItems().isEmpty());
        QVERIFY(rows.isEmpty());
    }

    void slotsForHosts()
    {
        ListWidget list;
        fill(list, 3);
        QMetaObject::invokeMethod(&list, "setCurrentRowSlot", Q_ARG(int, 2));
        QCOMPARE(list.currentRow(), 2);
        QMetaObject::invokeMethod(&list, "itemClick", Q_ARG(QListWidgetItem *, list.item(1)));
        QCOMPARE(list.currentRow(), 1);
    }

    void whatMayBeDropped()
    {
        OpenList list;
        const QStringList own = list.mimeTypes();
        QCOMPARE(own.mid(own.size() - 2),
                 QStringList({QStringLiteral("text/uri-list"), QStringLiteral("text/plain")}));
        QVERIFY(own.size() > 2);
        QCOMPARE(list.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }

    void dragsFromOutside()
    {
        ListWidget list;
        fill(list, 3);
        list.resize(200, 300);
        list.setDragDropMode(QAbstractItemView::DragDrop);
        list.show();
        QVector<QStringList> drops;
        connect(&list, &ListWidget::dragDropFiles, this,
                [&drops](const QStringList &files) { drops << files; });
        QMimeData files;
        files.setUrls(
            {QUrl::fromLocalFile(QStringLiteral("/a b")), QUrl(QStringLiteral("http://c"))});
        QMimeData nothing;

        QVERIFY(sendDrag<QDragEnterEvent>(list, {5, 5}, &files)->isAccepted());
        QVERIFY(sendDrag<QDragMoveEvent>(list, {9, 9}, &files)->isAccepted());
        QVERIFY(sendDrag<QDropEvent>(list, {9, 9}, &files)->isAccepted());
        QCOMPARE(drops, QVector<QStringList>({{QStringLiteral("/a b"), QString()}}));
        QVERIFY(!sendDrag<QDragEnterEvent>(list, {5, 5}, &nothing)->isAccepted());
        QVERIFY(!sendDrag<QDragMoveEvent>(list, {9, 9}, &nothing)->isAccepted());
        sendDrag<QDropEvent>(list, {9, 9}, &nothing);
        QCOMPARE(drops.size(), 1);

        for (Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier})
            QVERIFY(!sendDrag<QDragEnterEvent>(list, {5, 5}, &files, modifier)->isAccepted());
        QCOMPARE(list.count(), 3);
    }

    void smallMovesStayWithThePress()
    {
        ListWidget list;
        fill(list, 5);
        list.resize(200, 300);
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        list.show();
        const auto moveTo = [&list](const QPoint &position) {
            QMouseEvent move(QEvent::MouseMove, position, list.viewport()->mapToGlobal(position),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(list.viewport(), &move);
        };
        const QPoint lastOfRow = list.visualItemRect(list.item(1)).bottomLeft() + QPoint(20, 0);

        // Moving to the next row extends the selection, unless the list holds the move back.
        for (bool dragEnabled : {true, false}) {
            list.setDragEnabled(dragEnabled);
            list.item(1)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            QTest::mousePress(list.viewport(), Qt::LeftButton, {}, lastOfRow);
            moveTo(lastOfRow + QPoint(0, 2));
            QCOMPARE(list.selectedItems().size(), dragEnabled ? 1 : 2);
            QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, lastOfRow);
        }
    }

    void contentLiesFivePixelsIn()
    {
        OpenList list;
        fill(list, 3);
        list.resize(200, 300);
        list.show();
        QCOMPARE(list.visualItemRect(list.item(0)).topLeft(), QPoint(5, 5));
        QCOMPARE(list.verticalOffset(), -5);
        QCOMPARE(list.horizontalOffset(), -5);
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
        COMPARE_PIXEL(image, 100, 0, background);
        COMPARE_PIXEL(image, 100, 299, background);
    }

    void scrollingLeavesNoTraces_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QAbstractItemView::ScrollMode>("scrollMode");
        QTest::addColumn<QListView::ViewMode>("viewMode");
        QTest::addColumn<int>("rowHeight");

        // With scroll bars beside the rows and above them.
        for (const QString &style : {QStringLiteral("Windows"), QString()}) {
            const auto add = [&style](const char *tag, QAbstractItemView::ScrollMode scrollMode,
                                      QListView::ViewMode viewMode, int rowHeight) {
                QTest::addRow("%s, %s", tag, style.isEmpty() ? "dark" : "light")
                    << style << scrollMode << viewMode << rowHeight;
            };
            add("pixels", QAbstractItemView::ScrollPerPixel, QListView::ListMode, 21);
            add("items", QAbstractItemView::ScrollPerItem, QListView::ListMode, 21);
            add("icons", QAbstractItemView::ScrollPerPixel, QListView::IconMode, 80);
            add("high rows", QAbstractItemView::ScrollPerPixel, QListView::ListMode, 400);
        }
    }

    void scrollingLeavesNoTraces()
    {
        QFETCH(QString, style);
        QFETCH(QAbstractItemView::ScrollMode, scrollMode);
        QFETCH(QListView::ViewMode, viewMode);
        QFETCH(int, rowHeight);
        ListWidget list;
        const std::unique_ptr<QStyle> light(QStyleFactory::create(style));
        if (light) {
            list.setStyle(light.get());
            list.verticalScrollBar()->setStyle(light.get());
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
        onScreen(list);
        QScrollBar *bar = list.verticalScrollBar();
        for (const QVector<int> &steps :
             {QVector<int>{1}, {2, 3}, {7}, {40, -39, 60}, {-9}, {-3, -2}, {200}, {-1000}, {5}})
        {
            for (int step : steps)
                bar->setValue(bar->value() + step);
            if (light)
                QCursor::setPos(list.mapToGlobal(QPoint(60, 40 + 20 * steps.size())));
            const QImage shown = onScreen(list);
            QCOMPARE(shown, list.grab().toImage().convertToFormat(QImage::Format_RGB32));
        }
    }

    void delegateSizes_data()
    {
        QTest::addColumn<int>("listWidth");
        QTest::addColumn<QSize>("hint");
        QTest::addColumn<bool>("text");
        QTest::addColumn<QSize>("expected");

        QTest::newRow("three columns") << 340 << QSize(100, 50) << true << QSize(108, 64);
        QTest::newRow("without text") << 340 << QSize(100, 50) << false << QSize(108, 50);
        QTest::newRow("a hair wider") << 101 << QSize(100, 50) << true << QSize(85, 64);
        QTest::newRow("as wide") << 100 << QSize(100, 50) << true << QSize(100, 50);
        QTest::newRow("empty") << 340 << QSize(0, 50) << true << QSize(0, 50);
    }

    void delegateSizes()
    {
        QFETCH(int, listWidth);
        QFETCH(QSize, hint);
        QFETCH(bool, text);
        QFETCH(QSize, expected);
        QListWidget list;
        list.resize(listWidth, 200);
        fill(list, 1);
        list.item(0)->setSizeHint(hint);
        ItemDelegate delegate(&list);
        delegate.setTopMargin(7);
        delegate.setEnableText(text);
        const QModelIndex index = list.model()->index(0, 0);
        QCOMPARE(delegate.sizeHint(QStyleOptionViewItem(), index), expected);
        QCOMPARE(ItemDelegate().sizeHint(QStyleOptionViewItem(), index), hint);
    }

    void delegateFramesTheSelected()
    {
        QPixmap picture(20, 20);
        picture.fill(Qt::blue);
        OpenDelegate delegate;
        QCOMPARE(delegate.rect(), QRect());
        QStyleOptionViewItem option;
        const QRect rect(20, 20, 40, 30);
        const QColor orange(237, 110, 0);
        for (bool selected : {false, true}) {
            option.state.setFlag(QStyle::State_Selected, selected);
            const QImage image = TestSupport::paintOn({80, 80}, Qt::black, [&](QPainter &painter) {
                delegate.drawDecoration(&painter, option, rect, picture);
            });
            QCOMPARE(delegate.rect(), QRect(18, 23, 44, 34));
            // A line two wide around the frame's edge lies on the pixels to both sides of it.
            COMPARE_PIXEL(image, 40, 21, Qt::black);
            COMPARE_PIXEL(image, 40, 22, selected ? orange : QColor(Qt::black));
            COMPARE_PIXEL(image, 40, 23, selected ? orange : QColor(Qt::black));
            COMPARE_PIXEL(image, 40, 24, Qt::black);
            COMPARE_PIXEL(image, 18, 23, selected ? image.pixelColor(18, 23) : QColor(Qt::black));
            QVERIFY(!selected || image.pixelColor(17, 22) != orange);
            COMPARE_PIXEL(image, 20, 25, Qt::blue);
            COMPARE_PIXEL(image, 59, 54, Qt::blue);
            COMPARE_PIXEL(image, 60, 40, Qt::black);
        }
    }

    void delegateColorsTheText()
    {
        OpenDelegate delegate;
        delegate.setTopMargin(11);
        QStyleOptionViewItem option;
        option.palette.setColor(QPalette::ButtonText, Qt::green);
        option.font.setPixelSize(20);
        for (bool selected : {false, true}) {
            option.state.setFlag(QStyle::State_Selected, selected);
            const QImage image = TestSupport::paintOn({60, 60}, Qt::black, [&](QPainter &painter) {
                delegate.drawDisplay(&painter, option, QRect(10, 10, 40, 30),
                                     QString(QChar(0x2588)));
            });
            COMPARE_PIXEL(image, 15, 25, selected ? QColor(237, 110, 0) : QColor(Qt::green));
            COMPARE_PIXEL(image, 15, 13, Qt::black);
        }
        delegate.setEnableText(false);
        const QImage image = TestSupport::paintOn({60, 60}, Qt::black, [&](QPainter &painter) {
            delegate.drawDisplay(&painter, option, QRect(10, 10, 40, 30), QString(QChar(0x2588)));
        });
        COMPARE_PIXEL(image, 15, 25, Qt::black);
    }

private:
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestListWidget)

#include "tst_listwidget.moc"

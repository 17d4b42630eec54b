#include "gestures.h"
#include "xserver.h"

#include <nocturne/CheckComboBox>
#include <nocturne/ColorButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ListWidget>
#include <nocturne/SimpleListWidget>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDrag>
#include <QtWidgets/QScrollBar>

#include <atomic>
#include <functional>
#include <thread>

// Drags with a real pointer between real windows.

namespace {

constexpr QRect listGeometry(100, 100, 300, 400);
constexpr QRect sourceGeometry(700, 100, 300, 200);
constexpr int rowHeight = 40;

/// Sees when the pointer reaches our windows.
class Watch : public QObject
{
public:
    Watch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        static const QSet<int> ofThePointer = {QEvent::MouseMove,          QEvent::MouseButtonPress,
                                               QEvent::MouseButtonRelease, QEvent::DragMove,
                                               QEvent::DragLeave,          QEvent::Drop};
        if (ofThePointer.contains(event->type()))
            seen = true;
        return false;
    }
    std::atomic<bool> seen{false};
};

/// Lets xdotool carry out one command after the other while our windows go on living, also when
/// they wait for the end of a drag. The next comes when one has been seen here, or has had the time
/// to be seen elsewhere.
void pointer(const QStringList &commands)
{
    Watch watch;
    std::atomic<int> result{-1};
    std::thread driver([&] {
        int failures = 0;
        for (const QString &command : commands) {
            watch.seen = false;
            failures += QProcess::execute("xdotool", command.split(' ')) != 0;
            for (int i = 0; i < 20 && !watch.seen && !command.startsWith("sleep"); ++i)
                QThread::msleep(5);
            QThread::msleep(10);
        }
        result = failures;
    });
    const bool done = QTest::qWaitFor([&result] { return result >= 0; }, 20000);
    driver.join();
    QVERIFY(done && result == 0);
}

QString at(const QPoint &position)
{
    return QString("mousemove %1 %2").arg(position.x()).arg(position.y());
}

/// Presses at \a from, begins a drag there, takes it to \a to and drops.
void dragAndDrop(const QPoint &from, const QPoint &to)
{
    pointer({at(from), "mousedown 1", at(from + QPoint(6, 2)), at(from + QPoint(16, 4)),
             at(from + QPoint(20, 4)), at((from + to) / 2), at(to - QPoint(2, 2)), at(to),
             "sleep 0.1", "mouseup 1"});
    QTest::qWait(50);
}

QPoint centerOf(const QListWidget &list, int row)
{
    return list.viewport()->mapToGlobal(list.visualItemRect(list.item(row)).center());
}

/// Calls \a work while a drag from \a source is on its way.
void duringDragFrom(QObject *source, const std::function<void()> &work)
{
    auto *drag = new QDrag(source);
    drag->setMimeData(new QMimeData);
    QTimer::singleShot(0, source, [&work] {
        work();
        QDrag::cancel();
    });
    drag->exec(Qt::CopyAction | Qt::MoveAction);
}

template <typename Event>
void sendDrag(QListWidget &list, int row)
{
    QMimeData data;
    data.setUrls({QUrl("file:///a")});
    const QPoint position = list.visualItemRect(list.item(row)).center();
    Event event(position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &event);
    QVERIFY(event.isAccepted());
}

class OpenSimpleList : public SimpleListWidget
{
public:
    using SimpleListWidget::startDrag;
};

template <typename List>
std::unique_ptr<List> shownList()
{
    auto list = std::make_unique<List>();
    list->setGeometry(listGeometry);
    list->addItems({"A", "B", "C", "D", "E"});
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setSizeHint(QSize(100, rowHeight));
    list->setDragDropMode(QAbstractItemView::DragDrop);
    TestSupport::showExposed(list.get());
    return list;
}

QString textsOf(const QListWidget &list)
{
    QString texts;
    for (int row = 0; row < list.count(); ++row)
        texts += list.item(row)->text();
    return texts;
}

} // namespace

class TestDragDrop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Dropped from another application.
    void files()
    {
        const QStringList paths{"/clips/intro.mov", "/clips/take 2 of 3.mov",
                                QString::fromUtf8("/clips/Zażółć gęślą \u97f3\u697d.mov")};
        QMimeData data;
        QList<QUrl> urls{QUrl("https://example.org/live.m3u8")};
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        const auto list = shownList<ListWidget>();
        QSignalSpy dropped(list.get(), &ListWidget::dragDropFiles);
        QCOMPARE(TestSupport::drop(list->viewport(), data, {20, 100}).count(true), 3);
        QCOMPARE(dropped, QList<QVariantList>{{QStringList{""} + paths}});
        QCOMPARE(textsOf(*list), QString("ABCDE"));
        for (auto modifier : {Qt::ControlModifier, Qt::ShiftModifier}) {
            QDragEnterEvent enter({20, 100}, Qt::CopyAction, &data, Qt::LeftButton, modifier);
            QCoreApplication::sendEvent(list->viewport(), &enter);
            QVERIFY(!enter.isAccepted());
        }
    }

    void colors()
    {
        ColorButton button(Qt::black);
        button.setGeometry(listGeometry);
        QVERIFY(TestSupport::showExposed(&button));
        QSignalSpy arrived(&button, &ColorButton::colorChanged);
        ColorButton from(Qt::magenta);
        from.setGeometry(sourceGeometry);
        QVERIFY(TestSupport::showExposed(&from));
        QSignalSpy clicked(&from, &ColorButton::clicked);
        QSignalSpy left(&from, &ColorButton::colorChanged);
        dragAndDrop(sourceGeometry.center(), listGeometry.center());
        QCOMPARE(button.color(), QColor(Qt::magenta));
        QCOMPARE(arrived, QList<QVariantList>({{0.0, true}}));
        // Dragged out and back again, a color has not changed.
        dragAndDrop(sourceGeometry.center(), sourceGeometry.center() + QPoint(60, 40));
        QCOMPARE(clicked.count() + left.count(), 0);
    }

    void aClickOpensACheckComboBox()
    {
        QWidget window;
        window.setGeometry(listGeometry);
        CheckComboBox combo(&window);
        combo.setGeometry(20, 50, 200, 26);
        for (const char *text : {"A", "B", "C", "D"})
            combo.addCheckItem(text, {}, Qt::Unchecked);
        QVERIFY(TestSupport::showActive(&window));
        pointer({at(combo.mapToGlobal(QPoint(50, 13)))});
        bool open = false;
        for (const char *held : {"0", "0", "0.5", "0"}) {
            pointer({"mousedown 1", QString("sleep %1").arg(held), "mouseup 1"});
            open = !open;
            QCOMPARE(combo.view()->isVisible(), open);
        }
    }

    void itemsWithinTheList()
    {
        const auto movesOf = [](QAbstractItemView::DragDropMode mode, int from, int to) {
            const auto list = shownList<ListWidget>();
            list->setDragDropMode(mode);
            QString seen;
            connect(list.get(), &ListWidget::itemMoved, list.get(),
                    [&seen](QListWidgetItem *item, QListWidgetItem *target) {
                        seen += item->text() + '>' + (target ? target->text() : QString());
                    });
            const QPoint emptySpace = listGeometry.bottomRight() - QPoint(60, 60);
            dragAndDrop(centerOf(*list, from), to < 0 ? emptySpace : centerOf(*list, to));
            return seen + ' ' + textsOf(*list);
        };
        QCOMPARE(movesOf(QAbstractItemView::DragDrop, 0, 3), QString("A>D ABCDE"));
        QCOMPARE(movesOf(QAbstractItemView::InternalMove, 4, 1), QString("E>B ABCDE"));
        QCOMPARE(movesOf(QAbstractItemView::DragDrop, 2, 2), QString(" ABCDE"));
        QCOMPARE(movesOf(QAbstractItemView::InternalMove, 1, -1), QString("B> ABCDE"));

        // Nothing comes in from another list.
        const auto source = shownList<QListWidget>();
        source->setGeometry(sourceGeometry);
        source->setDefaultDropAction(Qt::MoveAction);
        const auto list = shownList<ListWidget>();
        QSignalSpy moved(list.get(), &ListWidget::itemMoved);
        dragAndDrop(centerOf(*source, 1), centerOf(*list, 3));
        QCOMPARE(moved.count(), 0);
        QCOMPARE(textsOf(*source) + textsOf(*list), QString("ABCDEABCDE"));
    }

    void draggedItemIsForgotten()
    {
        const auto list = shownList<ListWidget>();
        QString seen;
        connect(list.get(), &ListWidget::itemMoved, this,
                [&seen](QListWidgetItem *item) { seen += item->text(); });
        pointer({at(listGeometry.bottomRight() + QPoint(300, 300))});
        duringDragFrom(list.get(), [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            sendDrag<QDropEvent>(*list, 1);
        });

        // A drag is given up, and then something from elsewhere in the application comes.
        duringDragFrom(list.get(), [&] { sendDrag<QDragEnterEvent>(*list, 0); });
        QTest::mouseRelease(list->viewport(), Qt::LeftButton);
        duringDragFrom(this, [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            sendDrag<QDropEvent>(*list, 2);
        });
        duringDragFrom(list.get(), [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            delete list->item(0);
            sendDrag<QDropEvent>(*list, 2);
        });
        QCOMPARE(seen + ' ' + textsOf(*list), QString("A BCDE"));
    }

    void simpleListDragsWhatIsSeen()
    {
        const auto shown = shownList<OpenSimpleList>();
        OpenSimpleList &list = *shown;
        list.resize(200, 130);
        list.setSelectionMode(QAbstractItemView::MultiSelection);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        list.verticalScrollBar()->setValue(20);
        for (int row : {0, 2, 4})
            list.item(row)->setSelected(true);
        QCursor::setPos(list.viewport()->mapToGlobal(QPoint(30, 35)));

        QImage image;
        QTimer::singleShot(0, &list, [&] {
            const auto *drag = list.findChild<QDrag *>();
            QVERIFY(drag);
            QCOMPARE(drag->hotSpot(), QPoint(30, 35));
            image = drag->pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
            QListWidget target;
            QVERIFY(target.model()->dropMimeData(drag->mimeData(), Qt::CopyAction, 0, 0, {}));
            QCOMPARE(textsOf(target), QString("ACE"));
            QDrag::cancel();
        });
        list.startDrag(Qt::CopyAction | Qt::MoveAction);
        const QRect viewport = list.viewport()->rect();
        QCOMPARE(image.size(), viewport.size());
        for (int row : {0, 2}) {
            const QRect seen = list.visualItemRect(list.item(row)).intersected(viewport);
            QCOMPARE(image.copy(seen).convertToFormat(QImage::Format_RGB32),
                     list.viewport()->grab(seen).toImage().convertToFormat(QImage::Format_RGB32));
        }
        for (const QPoint &beside : {list.visualItemRect(list.item(1)).center(), QPoint(40, 120)})
            QCOMPARE(image.pixelColor(beside).alpha(), 0);

        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        list.clearSelection();
        list.startDrag(Qt::CopyAction);
        QVERIFY(!list.findChild<QDrag *>());
    }
};

int main(int argc, char *argv[])
{
    XServer server;
    if (!server.start())
        qFatal("Xvfb does not start, and there is no other display to be sure of");
    qputenv("DISPLAY", server.display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    TestDragDrop test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dragdrop.moc"

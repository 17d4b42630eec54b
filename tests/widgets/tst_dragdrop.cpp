#include "gestures.h"
#include "xserver.h"

#include <nocturne/CheckComboBox>
#include <nocturne/ColorButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ListWidget>
#include <nocturne/SimpleListWidget>
#include <nocturne/SpinBox>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDrag>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>

// Drags with a real pointer between real windows: the test process shows what is dropped on, and a
// second process of the same program shows a window to drag out of.

namespace {

constexpr QRect listGeometry(100, 100, 300, 400);
constexpr QRect sourceGeometry(700, 100, 300, 200);
constexpr int rowHeight = 40;

/// What lies in the other window: dragging from anywhere in it drags a color or URLs.
class DragSource : public QWidget
{
public:
    explicit DragSource(const QStringList &what)
        : m_what(what)
    {
        setGeometry(sourceGeometry);
    }

protected:
    void mousePressEvent(QMouseEvent *) override {}
    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *drag = new QDrag(this);
        auto *data = new QMimeData;
        if (m_what.first().startsWith('#'))
            data->setColorData(QColor(m_what.first()));
        else
            data->setUrls(QUrl::fromStringList(m_what));
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    }

private:
    QStringList m_what;
};

/// The second process: shows one until it is killed.
int runSource(QApplication &app)
{
    DragSource source(app.arguments().mid(2));
    if (!TestSupport::showExposed(&source))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return app.exec();
}

XServer &server()
{
    static XServer server;
    return server;
}

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

/// A drag from the window of another process to \a to while \a modifier is held. The process has
/// to live until the drop has arrived.
class DragFromProcess : public QtVersion::MortalProcess
{
public:
    DragFromProcess(const QStringList &source, const QPoint &to, const QString &modifier)
    {
        start(QCoreApplication::applicationFilePath(), QStringList{"--source"} + source);
        QTRY_VERIFY_WITH_TIMEOUT(canReadLine(), 20000);
        pointer({"keydown " + modifier});
        dragAndDrop(sourceGeometry.center(), to);
        pointer({"keyup " + modifier});
    }
    ~DragFromProcess() override
    {
        kill();
        waitForFinished();
    }
};

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
    void filesFromAnotherProcess()
    {
        const QStringList paths{"/clips/intro.mov", "/clips/take 2 of 3.mov",
                                QString::fromUtf8("/clips/Zażółć gęślą \u97f3\u697d.mov")};
        QStringList urls{"https://example.org/live.m3u8"};
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        for (const QString modifier : {"alt", "ctrl", "shift"}) {
            const auto list = shownList<ListWidget>();
            QSignalSpy dropped(list.get(), &ListWidget::dragDropFiles);
            const DragFromProcess drag(urls, centerOf(*list, 2), modifier);
            QTRY_COMPARE(dropped.count(), int(modifier == "alt"));
            QVERIFY(modifier != "alt" || dropped[0][0] == QStringList{""} + paths);
            QCOMPARE(textsOf(*list), QString("ABCDE"));
        }
    }

    void colors()
    {
        ColorButton button(Qt::black);
        button.setGeometry(listGeometry);
        QVERIFY(TestSupport::showExposed(&button));
        QSignalSpy arrived(&button, &ColorButton::colorChanged);
        const DragFromProcess drag({"#0cc84d"}, listGeometry.center(), "shift");
        QTRY_COMPARE(button.color().name(), QString("#0cc84d"));
        QCOMPARE(arrived, QList<QVariantList>({{0.0, true}}));

        ColorButton from(Qt::magenta);
        from.setGeometry(sourceGeometry);
        QVERIFY(TestSupport::showExposed(&from));
        QSignalSpy clicked(&from, &ColorButton::clicked);
        QSignalSpy left(&from, &ColorButton::colorChanged);
        dragAndDrop(sourceGeometry.center(), listGeometry.center());
        QCOMPARE(button.color(), QColor(Qt::magenta));
        QCOMPARE(arrived.count(), 2);
        // Dragged out and back again, a colour has not changed.
        dragAndDrop(sourceGeometry.center(), sourceGeometry.center() + QPoint(60, 40));
        QCOMPARE(clicked.count() + left.count(), 0);
    }

    void acrossASpinBox()
    {
        QWidget window;
        window.setGeometry(listGeometry);
        QLineEdit other(&window);
        other.move(20, 100);
        SpinBox box(&window);
        box.setGeometry(20, 20, 120, 24);
        box.setRange(-1000, 1000);
        QStringList changes;
        connect(&box, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
                [&changes](double value, bool first) {
                    changes << QString("%1 %2").arg(value).arg(first);
                });
        other.setFocus();
        QVERIFY(TestSupport::showActive(&window));

        // Far out of the window and back is one drag.
        const QPoint start = box.mapToGlobal(box.rect().center());
        pointer({at(start), "mousedown 1", at(start + QPoint(10, 0)), at(start + QPoint(10, -100)),
                 at(start + QPoint(400, -100)), at(start + QPoint(5, 0)), "mouseup 1"});
        QCOMPARE(changes, QStringList({"10 1", "110 0", "500 0", "5 0"}));
        QVERIFY(!QWidget::mouseGrabber());

        pointer({"click 1", "type 7"});
        QTRY_COMPARE(box.value(), 7);
        pointer({at(other.mapToGlobal(QPoint(5, 5))), "click 1"});
        QVERIFY(other.hasFocus() && !QApplication::overrideCursor());
    }

    void aClickOpensACheckComboBox()
    {
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create("fusion"));
        for (QStyle *style : {QApplication::style(), fusion.get()}) {
            QWidget window;
            window.setGeometry(listGeometry);
            CheckComboBox combo(&window);
            combo.setStyle(style);
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
    const bool isSource = argc > 1 && qstrcmp(argv[1], "--source") == 0;
    if (!isSource) {
        if (!server().start()) {
            std::puts("Xvfb does not start, and there is no other display to be sure of");
            return 1;
        }
        qputenv("DISPLAY", server().display().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (isSource)
        return runSource(app);
    DarkUX theme;
    app.setStyle(theme.style());
    TestDragDrop test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dragdrop.moc"

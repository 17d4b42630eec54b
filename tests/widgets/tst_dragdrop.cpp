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

#include <cstdio>
#include <functional>

// Drags with a real pointer between real windows: the test process shows what is dropped on, and a
// second process of the same program shows a window to drag out of.

namespace {

constexpr QRect listGeometry(100, 100, 300, 400);
constexpr QRect sourceGeometry(700, 100, 300, 200);
constexpr int rowHeight = 40;

/// What lies in the other window: dragging from anywhere in it drags the URLs.
class DragSource : public QWidget
{
public:
    explicit DragSource(const QList<QUrl> &urls)
        : m_urls(urls)
    {}

protected:
    void mousePressEvent(QMouseEvent *) override {}
    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *data = new QMimeData;
        data->setUrls(m_urls);
        auto *drag = new QDrag(this);
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    }

private:
    QList<QUrl> m_urls;
};

/// The second process: shows what \a arguments ask for, a color or URLs, until it is killed.
int runSource(QApplication &app, const QStringList &arguments)
{
    const DarkUX theme;
    std::unique_ptr<QWidget> source;
    if (arguments.first() == "color")
        source = std::make_unique<ColorButton>(QColor(arguments.value(1)));
    else
        source = std::make_unique<DragSource>(QUrl::fromStringList(arguments));
    source->setGeometry(sourceGeometry);
    if (!TestSupport::showExposed(source.get()))
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

/// Lets xdotool carry out one command after the other while our windows go on living.
void pointer(const QString &commands)
{
    QProcess xdotool;
    xdotool.setProcessEnvironment(server().environment());
    xdotool.start("xdotool", commands.split(' '));
    QTRY_COMPARE_WITH_TIMEOUT(xdotool.state(), QProcess::NotRunning, 20000);
    QCOMPARE(xdotool.exitCode(), 0);
    QTest::qWait(200);
}

QString at(const QPoint &position)
{
    return QString("mousemove %1 %2 sleep 0.1").arg(position.x()).arg(position.y());
}

/// Presses at \a from, begins a drag there, takes it to \a to and drops.
void dragAndDrop(const QPoint &from, const QPoint &to)
{
    QStringList commands{at(from), "mousedown 1 sleep 0.1"};
    for (const QPoint &place : {from + QPoint(6, 2), from + QPoint(16, 4), from + QPoint(20, 4),
                                (from + to) / 2, to - QPoint(2, 2), to})
        commands << at(place);
    pointer((commands << "sleep 0.2 mouseup 1 sleep 0.2").join(' '));
}

/// Drags from the window of another process to \a to; \a modifier is held.
void dragFromProcess(const QStringList &source, const QPoint &to, const QString &modifier = {})
{
    QProcess process;
    process.setProcessEnvironment(server().environment());
    process.start(QCoreApplication::applicationFilePath(), QStringList{"--source"} + source);
    QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 20000);
    if (!modifier.isEmpty())
        pointer("keydown " + modifier);
    dragAndDrop(sourceGeometry.center(), to);
    if (!modifier.isEmpty())
        pointer("keyup " + modifier);
    process.kill();
    process.waitForFinished();
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
    void filesFromAnotherProcess()
    {
        QStringList paths{"/clips/intro.mov", "/clips/take 2 of 3.mov",
                          QString::fromUtf8("/clips/Zażółć gęślą \u97f3\u697d.mov")};
        QStringList urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        urls << "https://example.org/live.m3u8";
        paths << QString();
        for (const QString modifier : {"", "ctrl", "shift"}) {
            const auto list = shownList<ListWidget>();
            QVector<QStringList> drops;
            connect(list.get(), &ListWidget::dragDropFiles, this,
                    [&drops](const QStringList &files) { drops << files; });
            dragFromProcess(urls, centerOf(*list, 2), modifier);
            QCOMPARE(drops,
                     modifier.isEmpty() ? QVector<QStringList>{paths} : QVector<QStringList>());
            QCOMPARE(textsOf(*list), QString("ABCDE"));
        }
    }

    void colors()
    {
        ColorButton button(Qt::black);
        button.setGeometry(listGeometry);
        QVERIFY(TestSupport::showExposed(&button));
        QSignalSpy arrived(&button, &ColorButton::colorChanged);
        const QColor dragged(12, 200, 77);
        dragFromProcess({"color", dragged.name()}, listGeometry.center());
        QCOMPARE(button.color().rgb(), dragged.rgb());
        QCOMPARE(arrived.count(), 1);
        QCOMPARE(arrived.first(), QVariantList({0.0, true}));

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
        QString moves = at(start) + " mousedown 1 sleep 0.1 ";
        for (const QPoint &to : {QPoint(10, 0), QPoint(10, -100), QPoint(400, -100), QPoint(5, 0)})
            moves += at(start + to) + ' ';
        pointer(moves + "mouseup 1");
        QCOMPARE(changes, QStringList({"10 1", "110 0", "500 0", "5 0"}));
        QVERIFY(!QWidget::mouseGrabber());

        pointer("click 1 sleep 0.1 type 7");
        QCOMPARE(box.value(), 7);
        pointer(at(other.mapToGlobal(QPoint(5, 5))) + " click 1");
        QVERIFY(other.hasFocus() && !QApplication::overrideCursor());
    }

    void aClickOpensACheckComboBox()
    {
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create("fusion"));
        for (QStyle *style : {QApplication::style(), fusion.get()}) {
            for (const char *held : {"0", "0.7"}) {
                QWidget window;
                window.setGeometry(listGeometry);
                CheckComboBox combo(&window);
                combo.setStyle(style);
                combo.setGeometry(20, 50, 200, 26);
                for (const char *text : {"A", "B", "C", "D"})
                    combo.addCheckItem(text, {}, Qt::Unchecked);
                QVERIFY(TestSupport::showActive(&window));
                const QLineEdit *field = combo.lineEdit();
                const QString click = at(field->mapToGlobal(field->rect().center()))
                                      + QString(" mousedown 1 sleep %1 mouseup 1").arg(held);
                for (bool open : {true, false, true}) {
                    pointer(click);
                    QCOMPARE(combo.view()->isVisible(), open);
                }
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
    }

    void fromOneListToTheOther()
    {
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
        QStringList seen;
        connect(list.get(), &ListWidget::itemMoved, this,
                [&seen](QListWidgetItem *item) { seen << item->text(); });
        pointer(at(listGeometry.bottomRight() + QPoint(300, 300)));
        duringDragFrom(list.get(), [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            sendDrag<QDropEvent>(*list, 1);
        });
        QCOMPARE(seen, QStringList{"A"});

        // A drag is given up, and then something from elsewhere in the application comes.
        duringDragFrom(list.get(), [&] { sendDrag<QDragEnterEvent>(*list, 0); });
        QTest::mouseRelease(list->viewport(), Qt::LeftButton);
        duringDragFrom(this, [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            sendDrag<QDropEvent>(*list, 2);
        });
        QCOMPARE(seen.size(), 1);

        duringDragFrom(list.get(), [&] {
            sendDrag<QDragEnterEvent>(*list, 0);
            delete list->item(0);
            sendDrag<QDropEvent>(*list, 2);
        });
        QCOMPARE(seen, QStringList{"A"});
        QCOMPARE(textsOf(*list), QString("BCDE"));
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
        QPoint hotSpot;
        bool whole = false;
        QTimer::singleShot(0, &list, [&] {
            if (const auto *drag = list.findChild<QDrag *>()) {
                hotSpot = drag->hotSpot();
                image = drag->pixmap().toImage();
                QListWidget target;
                whole = target.model()->dropMimeData(drag->mimeData(), Qt::CopyAction, 0, 0, {})
                        && target.count() == 3;
            }
            QDrag::cancel();
        });
        list.startDrag(Qt::CopyAction | Qt::MoveAction);
        QCOMPARE(hotSpot, QPoint(30, 35));
        QVERIFY(whole);
        QCOMPARE(image.size(), list.viewport()->size());
        for (int row : {0, 2}) {
            const QRect seen =
                list.visualItemRect(list.item(row)).intersected(list.viewport()->rect());
            QCOMPARE(image.copy(seen).convertToFormat(QImage::Format_RGB32),
                     list.viewport()->grab(seen).toImage().convertToFormat(QImage::Format_RGB32));
        }
        QCOMPARE(image.pixelColor(list.visualItemRect(list.item(1)).center()).alpha(), 0);
        QCOMPARE(image.pixelColor(40, 120).alpha(), 0);

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
        return runSource(app, app.arguments().mid(2));
    DarkUX theme;
    app.setStyle(theme.style());
    TestDragDrop test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dragdrop.moc"

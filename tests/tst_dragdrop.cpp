#include "testsupport.h"
#include "xserver.h"

#include <nocturne/ColorButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ListWidget>
#include <nocturne/SimpleListWidget>
#include <nocturne/SpinBox>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDrag>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include <cstdio>
#include <functional>
#include <memory>

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

/// Shows \a source in the second process until it is killed.
int runSource(QApplication &app, QWidget &source)
{
    source.setGeometry(sourceGeometry);
    source.show();
    if (!QTest::qWaitForWindowExposed(&source))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return app.exec();
}

int runDragSource(QApplication &app)
{
    QList<QUrl> urls;
    const QStringList arguments = app.arguments().mid(2);
    for (const QString &argument : arguments)
        urls << QUrl(argument);
    DragSource source(urls);
    return runSource(app, source);
}

int runColorSource(QApplication &app)
{
    const DarkUX theme;
    ColorButton source(QColor(app.arguments().value(2)));
    return runSource(app, source);
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
    xdotool.start(QStringLiteral("xdotool"), commands.split(QLatin1Char(' ')));
    QTRY_COMPARE_WITH_TIMEOUT(xdotool.state(), QProcess::NotRunning, 20000);
    QCOMPARE(xdotool.exitCode(), 0);
    QTest::qWait(200);
}

QString at(const QPoint &position)
{
    return QStringLiteral("mousemove %1 %2 sleep 0.1").arg(position.x()).arg(position.y());
}

/// Commands of a press at \a from and of moves that begin a drag there and take it to \a to.
QString drag(const QPoint &from, const QPoint &to)
{
    return QStringList{at(from),
                       QStringLiteral("mousedown 1 sleep 0.1"),
                       at(from + QPoint(6, 2)),
                       at(from + QPoint(16, 4)),
                       at(from + QPoint(20, 4)),
                       at((from + to) / 2),
                       at(to - QPoint(2, 2)),
                       at(to)}
        .join(QLatin1Char(' '));
}

const QString drop = QStringLiteral(" sleep 0.2 mouseup 1 sleep 0.2");

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
    data.setUrls({QUrl(QStringLiteral("file:///a"))});
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
    list->addItems({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                    QStringLiteral("D"), QStringLiteral("E")});
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setSizeHint(QSize(100, rowHeight));
    list->setDragDropMode(QAbstractItemView::DragDrop);
    list->show();
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

private slots:
    void filesFromAnotherProcess_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<bool>("accepted");

        QTest::newRow("plain") << QString() << true;
        QTest::newRow("control") << QStringLiteral("keydown ctrl") << false;
        QTest::newRow("shift") << QStringLiteral("keydown shift") << false;
    }

    void filesFromAnotherProcess()
    {
        QFETCH(QString, before);
        QFETCH(bool, accepted);
        const QStringList paths{QStringLiteral("/clips/intro.mov"),
                                QStringLiteral("/clips/take 2 of 3.mov"),
                                QString::fromUtf8("/clips/Zażółć gęślą \u97f3\u697d.mov")};
        QStringList arguments{QStringLiteral("--source")};
        for (const QString &path : paths)
            arguments << QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        arguments.insert(2, QStringLiteral("https://example.org/live.m3u8"));
        QStringList expected = paths;
        expected.insert(1, QString());

        const auto list = shownList<ListWidget>();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        QVector<QStringList> drops;
        connect(list.get(), &ListWidget::dragDropFiles, this,
                [&drops](const QStringList &files) { drops << files; });

        QProcess source;
        source.setProcessEnvironment(server().environment());
        source.start(QCoreApplication::applicationFilePath(), arguments);
        QTRY_VERIFY_WITH_TIMEOUT(source.canReadLine(), 20000);

        const QPoint from = sourceGeometry.center();
        if (!before.isEmpty())
            pointer(before);
        pointer(drag(from, centerOf(*list, 2)) + drop);
        if (!before.isEmpty())
            pointer(QString(before).replace(QStringLiteral("keydown"), QStringLiteral("keyup")));
        source.kill();
        source.waitForFinished();

        QCOMPARE(drops, accepted ? QVector<QStringList>{expected} : QVector<QStringList>());
        QCOMPARE(textsOf(*list), QStringLiteral("ABCDE"));
    }

    void aColorFromAnotherProcess()
    {
        ColorButton button(Qt::black);
        button.setGeometry(listGeometry);
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QSignalSpy changed(&button, &ColorButton::colorChanged);

        const QColor dragged(12, 200, 77);
        QProcess source;
        source.setProcessEnvironment(server().environment());
        source.start(QCoreApplication::applicationFilePath(),
                     {QStringLiteral("--color-source"), dragged.name()});
        QTRY_VERIFY_WITH_TIMEOUT(source.canReadLine(), 20000);
        pointer(drag(sourceGeometry.center(), listGeometry.center()) + drop);
        source.kill();
        source.waitForFinished();

        QCOMPARE(button.color().rgb(), dragged.rgb());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first(), QVariantList({0.0, true}));
    }

    void aColorFromOneButtonToAnother()
    {
        ColorButton from(Qt::magenta);
        from.setGeometry(sourceGeometry);
        ColorButton to(Qt::black);
        to.setGeometry(listGeometry);
        for (ColorButton *button : {&from, &to}) {
            button->show();
            QVERIFY(QTest::qWaitForWindowExposed(button));
        }
        QSignalSpy clicked(&from, &ColorButton::clicked);
        QSignalSpy left(&from, &ColorButton::colorChanged);
        QSignalSpy arrived(&to, &ColorButton::colorChanged);
        pointer(drag(sourceGeometry.center(), listGeometry.center()) + drop);
        QCOMPARE(to.color(), QColor(Qt::magenta));
        QCOMPARE(arrived.count(), 1);
        QCOMPARE(clicked.count() + left.count(), 0);

        // Dragged out and back again, a colour has not changed.
        pointer(drag(sourceGeometry.center(), sourceGeometry.center() + QPoint(60, 40)) + drop);
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
        QVector<QPair<double, bool>> changes;
        connect(&box, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
                [&changes](double value, bool first) {
                    changes.append({value, first});
                });
        other.setFocus();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        // Far out of the window and back is one drag.
        const QPoint start = box.mapToGlobal(box.rect().center());
        const QStringList moves{at(start),
                                QStringLiteral("mousedown 1 sleep 0.1"),
                                at(start + QPoint(10, 0)),
                                at(start + QPoint(10, -100)),
                                at(start + QPoint(400, -100)),
                                at(start + QPoint(5, 0)),
                                QStringLiteral("mouseup 1")};
        pointer(moves.join(QLatin1Char(' ')));
        const decltype(changes) dragged{{10, true}, {110, false}, {500, false}, {5, false}};
        QCOMPARE(changes, dragged);
        QVERIFY(!QWidget::mouseGrabber());

        pointer(QStringLiteral("click 1 sleep 0.1 type 7"));
        QCOMPARE(box.value(), 7);
        pointer(at(other.mapToGlobal(QPoint(5, 5))) + QStringLiteral(" click 1"));
        QVERIFY(other.hasFocus());
        QVERIFY(!QApplication::overrideCursor());
    }

    void itemsWithinTheList_data()
    {
        QTest::addColumn<QAbstractItemView::DragDropMode>("mode");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("moves");

        QTest::newRow("onto another")
            << QAbstractItemView::DragDrop << 0 << 3 << QStringList{QStringLiteral("A>D")};
        QTest::newRow("onto another, as a move")
            << QAbstractItemView::InternalMove << 4 << 1 << QStringList{QStringLiteral("E>B")};
        QTest::newRow("onto itself") << QAbstractItemView::DragDrop << 2 << 2 << QStringList();
        QTest::newRow("to the empty space")
            << QAbstractItemView::InternalMove << 1 << -1 << QStringList{QStringLiteral("B>")};
    }

    void itemsWithinTheList()
    {
        QFETCH(QAbstractItemView::DragDropMode, mode);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QStringList, moves);

        const auto list = shownList<ListWidget>();
        list->setDragDropMode(mode);
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        QStringList seen;
        connect(list.get(), &ListWidget::itemMoved, this,
                [&seen](QListWidgetItem *item, QListWidgetItem *target) {
                    seen << item->text() + QLatin1Char('>') + (target ? target->text() : QString());
                });
        const QPoint target =
            to < 0 ? listGeometry.bottomRight() - QPoint(60, 60) : centerOf(*list, to);
        pointer(drag(centerOf(*list, from), target) + drop);
        QCOMPARE(seen, moves);
        QCOMPARE(textsOf(*list), QStringLiteral("ABCDE"));
    }

    void fromOneListToTheOther()
    {
        const auto source = shownList<QListWidget>();
        source->setGeometry(sourceGeometry);
        source->setDefaultDropAction(Qt::MoveAction);
        const auto list = shownList<ListWidget>();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
        bool moved = false;
        connect(list.get(), &ListWidget::itemMoved, this, [&moved] { moved = true; });
        pointer(drag(centerOf(*source, 1), centerOf(*list, 3)) + drop);
        QVERIFY(!moved);
        QCOMPARE(textsOf(*source), QStringLiteral("ABCDE"));
        QCOMPARE(textsOf(*list), QStringLiteral("ABCDE"));
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
            sendDrag<QDragMoveEvent>(*list, 1);
            sendDrag<QDropEvent>(*list, 1);
        });
        QCOMPARE(seen, QStringList{QStringLiteral("A")});

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
        QCOMPARE(seen, QStringList{QStringLiteral("A")});
        QCOMPARE(textsOf(*list), QStringLiteral("BCDE"));
    }

    void simpleListDragsWhatIsSeen()
    {
        const auto shown = shownList<OpenSimpleList>();
        OpenSimpleList &list = *shown;
        list.resize(200, 130);
        list.setSelectionMode(QAbstractItemView::MultiSelection);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.verticalScrollBar()->setValue(20);
        for (int row : {0, 2, 4})
            list.item(row)->setSelected(true);
        QCursor::setPos(list.viewport()->mapToGlobal(QPoint(30, 35)));

        QImage image;
        bool whole = false;
        QTimer::singleShot(0, &list, [&] {
            const auto *drag = list.findChild<QDrag *>();
            QVERIFY(drag);
            QCOMPARE(drag->hotSpot(), QPoint(30, 35));
            image = drag->pixmap().toImage();
            QListWidget target;
            whole = target.model()->dropMimeData(drag->mimeData(), Qt::CopyAction, 0, 0, {})
                    && target.count() == 3;
            QDrag::cancel();
        });
        list.startDrag(Qt::CopyAction | Qt::MoveAction);

        QVERIFY(whole);
        QCOMPARE(image.size(), list.viewport()->size());
        for (int row : {0, 1, 2}) {
            const QRect seen =
                list.visualItemRect(list.item(row)).intersected(list.viewport()->rect());
            const QImage expected = list.viewport()->grab(seen).toImage();
            const QImage part = image.copy(seen).convertToFormat(QImage::Format_RGB32);
            if (row == 1)
                QCOMPARE(image.copy(seen).pixelColor(40, 20).alpha(), 0);
            else
                QCOMPARE(part, expected.convertToFormat(QImage::Format_RGB32));
        }
        QCOMPARE(image.pixelColor(40, 120).alpha(), 0);

        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        list.clearSelection();
        list.startDrag(Qt::CopyAction);
        QVERIFY(!list.findChild<QDrag *>());
    }

    void dragImageOfSimpleListWidget()
    {
        const auto list = shownList<SimpleListWidget>();
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (int row : {0, 2, 3})
            list->item(row)->setSelected(true);
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));

        const QPoint start = centerOf(*list, 2);
        const QPoint end = start + QPoint(500, 300);
        QImage screen;
        QPoint hotSpot;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            const auto *drag = list->findChild<QDrag *>();
            if (!drag || QCursor::pos() != end)
                return;
            hotSpot = drag->hotSpot();
            screen = list->screen()->grabWindow(0).toImage();
        });
        watch.start(50);
        pointer(drag(start, end) + QStringLiteral(" sleep 0.6") + drop);

        // The server cuts the very first pixel off the window that shows the image.
        QVERIFY(!screen.isNull());
        const QRect inner(1, 1, list->visualItemRect(list->item(0)).width() - 2, rowHeight - 2);
        for (int row = 0; row < list->count(); ++row) {
            const QRect inList = list->visualItemRect(list->item(row));
            const QImage shown = screen.copy(inList.translated(end - hotSpot));
            if (list->item(row)->isSelected()) {
                const QImage original = list->viewport()->grab(inList).toImage();
                QCOMPARE(shown.copy(inner).convertToFormat(QImage::Format_RGB32),
                         original.copy(inner).convertToFormat(QImage::Format_RGB32));
            } else {
                COMPARE_PIXEL(shown, inList.width() / 2, rowHeight / 2, Qt::black);
            }
        }
    }
};

int main(int argc, char *argv[])
{
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode != "--source" && mode != "--color-source") {
        if (!server().start()) {
            std::puts("Xvfb does not start, and there is no other display to be sure of");
            return 1;
        }
        qputenv("DISPLAY", server().display().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (mode == "--source")
        return runDragSource(app);
    if (mode == "--color-source")
        return runColorSource(app);
    DarkUX theme;
    app.setStyle(theme.style());
    TestDragDrop test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dragdrop.moc"

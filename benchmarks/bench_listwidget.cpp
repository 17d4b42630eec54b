#include "darkapplication.h"

#include <nocturne/ListWidget>

#include <QtWidgets/QScrollBar>

namespace {

constexpr int itemCount = 50000;

/// Each list has texts of its own, so that none finds what the other has had shaped.
void fill(QListWidget &list, const QString &text)
{
    list.setWindowFlags(Qt::Window);
    list.resize(300, 600);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (int i = 0; i < itemCount; ++i)
        list.addItem(text.arg(i));
    list.show();
    list.verticalScrollBar()->setValue(1000);
    QCoreApplication::processEvents();
}

/// Scrolls back and forth by \a pixels and lets the list paint.
std::function<void()> scrolling(QListWidget &list, int pixels)
{
    return [&list, pixels, down = true]() mutable {
        QScrollBar *bar = list.verticalScrollBar();
        if (bar->value() > bar->maximum() / 2 || bar->value() < 1000)
            down = !down;
        bar->setValue(bar->value() + (down ? pixels : -pixels));
        QCoreApplication::processEvents();
    };
}

/// Jumps far, as a dragged scroll bar does.
std::function<void()> jumping(QListWidget &list)
{
    return [&list, step = 0]() mutable {
        QScrollBar *bar = list.verticalScrollBar();
        bar->setValue(int(bar->maximum() * ((++step * 37) % 100) / 100.0));
        QCoreApplication::processEvents();
    };
}

std::function<void()> repainting(QListWidget &list)
{
    return [&list] { list.viewport()->repaint(); };
}

} // namespace

int main(int argc, char *argv[])
{
    const DarkApplication application(argc, argv);

    ListWidget ours;
    QListWidget peer;
    fill(ours, QStringLiteral("Clip %1"));
    fill(peer, QStringLiteral("Clap %1"));

    Benchmark benchmark;
    for (const bool hovered : {true, false}) {
        // The lists lie at the same place, so the pointer is over both or over neither.
        QCursor::setPos(hovered ? ours.mapToGlobal(ours.rect().center()) : QPoint(700, 500));
        QCoreApplication::processEvents();
        const QString pointer = hovered ? QStringLiteral("over the list") : QStringLiteral("away");
        for (const int pixels : {3, 51, 200}) {
            benchmark.compare(
                QStringLiteral("scroll by %1 px, pointer %2").arg(pixels).arg(pointer),
                scrolling(ours, pixels), scrolling(peer, pixels));
        }
    }
    benchmark.compare(QStringLiteral("jump"), jumping(ours), jumping(peer));
    benchmark.compare(QStringLiteral("repaint"), repainting(ours), repainting(peer));

    std::printf("%d items, 300 x 600 pixels\n", itemCount);
    benchmark.print("ListWidget", "QListWidget");
    return 0;
}

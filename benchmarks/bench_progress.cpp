// A tick of each progress display (new value, then the repaint it asks for) beside a tick of the
// toolkit's progress bar in its built-in Fusion style, at the same size.

#include "benchmark.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ProgressBar>
#include <nocturne/RoundProgressBar>

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <memory>

namespace {

void repaint(QWidget &widget, QImage &canvas)
{
    widget.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
}

/// Compares at one size; \a ours is any widget with setValue(int).
template <typename Ours>
void compare(Benchmark &benchmark, const QString &name, Ours &ours, const QSize &size)
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    QProgressBar peer;
    peer.setStyle(fusion.get());
    QImage ourCanvas(size, QImage::Format_RGB32);
    QImage peerCanvas(size, QImage::Format_RGB32);
    for (QWidget *widget : {static_cast<QWidget *>(&ours), static_cast<QWidget *>(&peer)}) {
        widget->resize(size);
        widget->show();
    }
    ours.setRange(0, 1000);
    peer.setRange(0, 1000);
    int ourValue = 0;
    int peerValue = 0;
    benchmark.compare(
        name,
        [&] {
            ours.setValue(ourValue = (ourValue + 7) % 1001);
            repaint(ours, ourCanvas);
        },
        [&] {
            peer.setValue(peerValue = (peerValue + 7) % 1001);
            repaint(peer, peerCanvas);
        });
}

} // namespace

int main(int argc, char *argv[])
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    DarkUX theme;
    Benchmark benchmark;

    ProgressBar bar;
    compare(benchmark, QStringLiteral("ProgressBar 600 x 24"), bar, QSize(600, 24));
    ProgressBar fullBar;
    fullBar.setFullSize(true);
    compare(benchmark, QStringLiteral("ProgressBar, full size, 600 x 24"), fullBar, QSize(600, 24));
    RoundProgressBar ring;
    compare(benchmark, QStringLiteral("RoundProgressBar 160 x 160"), ring, QSize(160, 160));
    RoundProgressBar bareRing;
    bareRing.setFormat(QString());
    compare(benchmark, QStringLiteral("RoundProgressBar, no text, 160 x 160"), bareRing,
            QSize(160, 160));

    benchmark.print("libnocturne", "QProgressBar");
    return 0;
}

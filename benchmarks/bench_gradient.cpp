// A step of dragging a stop, with the repaint it asks for, beside a plain repaint of the same bar.

#include "benchmark.h"

#include <nocturne/GradientTool>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

namespace {

void send(QWidget &widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

QVector<QPair<double, QColor>> rampOf(int stops)
{
    QVector<QPair<double, QColor>> ramp;
    for (int i = 0; i < stops; ++i)
        ramp.append({double(i) / (stops - 1), QColor::fromHsv(i * 7 % 360, 200, 220)});
    return ramp;
}

void compare(Benchmark &benchmark, int stops)
{
    GradientTool editor;
    editor.resize(1210, 60);
    editor.setRamp(rampOf(stops));
    editor.show();
    QCoreApplication::processEvents();

    const QPoint lastMarker(1205, 50);
    send(editor, QEvent::MouseButtonPress, lastMarker, Qt::LeftButton);
    int step = 0;
    benchmark.compare(
        QStringLiteral("%1 stops").arg(stops),
        [&] {
            step = (step + 1) % 100;
            send(editor, QEvent::MouseMove, lastMarker - QPoint(1 + step, 0), Qt::NoButton);
            QCoreApplication::processEvents();
        },
        [&] {
            editor.update();
            QCoreApplication::processEvents();
        },
        10);
}

} // namespace

int main(int argc, char *argv[])
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    Benchmark benchmark;
    for (int stops : {2, 100, 1000})
        compare(benchmark, stops);
    benchmark.print("drag step", "repaint");
    return 0;
}

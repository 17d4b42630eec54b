// How often the caches of drawings, of text and of text on its ground have what a minute of use
// asks for: a window full of views and controls, resized, swept by the pointer, and with values
// that change, thirty times a second. Then the window as it was at first, to tell whether one-off
// sizes have pushed that out.

#include "darkapplication.h"
#include "panel.h"

#include <nocturne/painting/cacheuse_p.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QDial>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

namespace {

constexpr int stepsPerSecond = 30;
constexpr QSize firstSize(1280, 800);

QStandardItemModel *clips(int rows, int columns, QObject *parent)
{
    auto *model = new QStandardItemModel(rows, columns, parent);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            auto *item = new QStandardItem(QStringLiteral("Clip %1.%2").arg(row).arg(column));
            item->setCheckable(column == 1);
            model->setItem(row, column, item);
        }
    }
    return model;
}

/// A table and a tree above a panel of controls.
std::unique_ptr<QMainWindow> workspace()
{
    std::unique_ptr<QMainWindow> window = panelWindow(48, 8);
    auto *panel = window->takeCentralWidget();
    auto *views = new QSplitter;
    auto *table = new QTableView;
    table->setModel(clips(500, 6, table));
    auto *tree = new QTreeView;
    tree->setModel(clips(100, 2, tree));
    views->addWidget(table);
    views->addWidget(tree);
    views->addWidget(new QDial);
    auto *all = new QSplitter(Qt::Vertical);
    all->addWidget(views);
    all->addWidget(panel);
    window->setCentralWidget(all);
    for (const char *text : {"File", "Edit", "View"})
        window->menuBar()->addMenu(QLatin1String(text))->addAction(QStringLiteral("Action"));
    window->resize(firstSize);
    return window;
}

void resizeStep(QMainWindow *window, int step)
{
    const int grown = qAbs(step % 400 - 200);
    window->resize(firstSize - QSize(2 * grown, grown));
}

/// The pointer goes on to the next control.
void hoverStep(QMainWindow *window, int step)
{
    const auto widgets = window->centralWidget()->findChildren<QWidget *>();
    QWidget *left = widgets.at(step % widgets.size());
    QWidget *entered = widgets.at((step + 1) % widgets.size());
    left->setAttribute(Qt::WA_UnderMouse, false);
    left->update();
    entered->setAttribute(Qt::WA_UnderMouse);
    entered->update();
}

void valueStep(QMainWindow *window, int step)
{
    for (QAbstractSlider *slider : window->centralWidget()->findChildren<QAbstractSlider *>())
        slider->setValue(slider->minimum() + step % 100);
    for (QProgressBar *bar : window->findChildren<QProgressBar *>())
        bar->setValue(step % 100);
    for (QSpinBox *box : window->findChildren<QSpinBox *>())
        box->setValue(step % 100);
}

double percent(const Nocturne::CacheUse &use)
{
    return use.lookUps ? 100.0 * double(use.hits) / double(use.lookUps) : 100.0;
}

/// Takes \a steps steps, lets the window repaint after each, and prints what was found.
template <typename Step>
void use(const char *name, QMainWindow *window, int steps, Step step)
{
    const std::initializer_list<Nocturne::CacheUse *> uses = {
        &Nocturne::keptPixmapUse, &Nocturne::keptTextUse, &Nocturne::textPictureUse};
    for (Nocturne::CacheUse *use : uses)
        *use = {};
    for (int i = 0; i < steps; ++i) {
        step(window, i);
        QCoreApplication::processEvents();
    }
    std::printf("%-36s", name);
    for (const Nocturne::CacheUse *use : uses)
        std::printf(" %9llu %7.1f %%", use->lookUps, percent(*use));
    std::printf("\n");
}

} // namespace

int main(int argc, char *argv[])
{
    const DarkApplication application(argc, argv);
    const std::unique_ptr<QMainWindow> window = workspace();
    window->show();
    QCoreApplication::processEvents();

    std::printf("%-36s", "");
    for (const char *cache : {"drawings", "texts", "pictures"})
        std::printf(" %9s %9s", cache, "found");
    std::printf("\n");
    const auto repaint = [](QMainWindow *repainted, int) { repainted->repaint(); };
    use("a repaint, all kept", window.get(), stepsPerSecond, repaint);
    use("20 seconds of resizing", window.get(), 20 * stepsPerSecond, resizeStep);
    window->resize(firstSize);
    use("a repaint after that", window.get(), 1, repaint);
    use("20 seconds of the pointer's sweeps", window.get(), 20 * stepsPerSecond, hoverStep);
    use("20 seconds of changing values", window.get(), 20 * stepsPerSecond, valueStep);
    use("a repaint after that", window.get(), 1, repaint);
    return 0;
}

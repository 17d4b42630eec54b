// Scrolls a tree of 100,000 rows, ours against the toolkit's, under the theme's style: each call
// moves the scroll bar and lets the tree repaint what that exposes.

#include "darkapplication.h"

#include <nocturne/TreeWidget>

#include <QtWidgets/QScrollBar>

namespace {

constexpr int rowCount = 100000;

/// Each tree has texts of its own, so that none finds what the other has had shaped.
void fill(QTreeWidget &tree, const QString &text)
{
    tree.setColumnCount(3);
    QList<QTreeWidgetItem *> items;
    items.reserve(rowCount);
    for (int i = 0; i < rowCount; ++i) {
        items << new QTreeWidgetItem(
            {text.arg(i), QStringLiteral("00:00:10:00"), QStringLiteral("1920 x 1080")});
    }
    tree.addTopLevelItems(items);
    tree.resize(700, 800);
    tree.show();
    QCoreApplication::processEvents();
}

/// Moves the bar through its range by \a step, back and forth, and repaints after each move.
class Scroller
{
public:
    Scroller(QTreeWidget &tree, int from, int step)
        : m_bar(tree.verticalScrollBar())
        , m_step(step)
    {
        m_bar->setValue(from);
        QCoreApplication::processEvents();
    }

    void operator()()
    {
        const int next = m_bar->value() + m_step;
        if (next < 0 || next > m_bar->maximum())
            m_step = -m_step;
        m_bar->setValue(m_bar->value() + m_step);
        QCoreApplication::processEvents();
    }

private:
    QScrollBar *m_bar;
    int m_step;
};

} // namespace

int main(int argc, char *argv[])
{
    const DarkApplication application(argc, argv);

    TreeWidget ours;
    QTreeWidget peer;
    fill(ours, QStringLiteral("Clip %1"));
    fill(peer, QStringLiteral("Clap %1"));

    Benchmark benchmark;
    const auto compare = [&](const char *name, int from, int step) {
        benchmark.compare(QLatin1String(name), Scroller(ours, from, step),
                          Scroller(peer, from, step));
    };
    compare("one row, near the top", 100, 1);
    compare("three rows (a wheel step), in the middle", rowCount / 2, 3);
    compare("a page, in the middle", rowCount / 2, 40);
    compare("1000 rows (dragging the bar)", 0, 1000);

    for (QTreeWidget *tree : {static_cast<QTreeWidget *>(&ours), &peer}) {
        tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        tree->setUniformRowHeights(true);
        tree->doItemsLayout(); // the one height is taken when the rows are laid out
    }
    compare("10 pixels, in the middle", 1000000, 10);

    benchmark.print("TreeWidget", "QTreeWidget");
    return 0;
}

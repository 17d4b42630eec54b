#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>

namespace {

QStringList columnNames()
{
    return {Gallery::tr("Clip"), Gallery::tr("Length"), Gallery::tr("Channel")};
}

QTreeWidget *tree(Qt::SortOrder order)
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels(columnNames());
    for (int show = 1; show <= 3; ++show) {
        auto *item = new QTreeWidgetItem(tree, {Gallery::tr("Show %1").arg(show)});
        item->setIcon(0, sampleIcon());
        for (int clip = 1; clip <= 3; ++clip) {
            auto *child = new QTreeWidgetItem(item, {Gallery::tr("Clip %1").arg(clip),
                                                     QStringLiteral("00:1%1").arg(clip),
                                                     QString::number(clip)});
            child->setCheckState(0, static_cast<Qt::CheckState>(clip - 1));
            child->setDisabled(clip == 3);
        }
        item->setExpanded(show != 2);
    }
    tree->resizeColumnToContents(0);
    tree->setSortingEnabled(true);
    tree->sortByColumn(0, order);
    tree->setAlternatingRowColors(order == Qt::AscendingOrder);
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    return tree;
}

QTableWidget *table()
{
    auto *table = new QTableWidget(5, 3);
    table->setHorizontalHeaderLabels(columnNames());
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(Gallery::tr("Clip %1").arg(row + 1)));
        table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("00:1%1").arg(row)));
        table->setItem(row, 2, new QTableWidgetItem(QString::number(row + 1)));
    }
    table->selectRow(1);
    return table;
}

QListWidget *list(QListView::ViewMode mode)
{
    auto *list = new QListWidget;
    list->setViewMode(mode);
    for (int i = 1; i <= 6; ++i)
        list->addItem(new QListWidgetItem(sampleIcon(), Gallery::tr("Camera %1").arg(i)));
    list->setCurrentRow(2);
    list->item(4)->setFlags(Qt::NoItemFlags);
    return list;
}

QWidget *createViewsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(tree(Qt::AscendingOrder), 0, 0);
    grid->addWidget(tree(Qt::DescendingOrder), 0, 1);
    grid->addWidget(table(), 1, 0);
    auto *lists = new QHBoxLayout;
    lists->addWidget(list(QListView::ListMode));
    lists->addWidget(list(QListView::IconMode));
    grid->addLayout(lists, 1, 1);
    page->setMinimumSize(860, 560);
    return page;
}

} // namespace

GALLERY_PAGE(170, "std_views", QT_TRANSLATE_NOOP("Gallery", "Lists, tables and trees"),
             createViewsPage)

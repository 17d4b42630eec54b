#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace {

struct Shape
{
    const char *name;
    QTabBar::Shape shape;
};

constexpr Shape roundedShapes[] = {
    {QT_TRANSLATE_NOOP("Gallery", "Above"), QTabBar::RoundedNorth},
    {QT_TRANSLATE_NOOP("Gallery", "Below"), QTabBar::RoundedSouth},
    {QT_TRANSLATE_NOOP("Gallery", "Left"), QTabBar::RoundedWest},
    {QT_TRANSLATE_NOOP("Gallery", "Right"), QTabBar::RoundedEast},
};

constexpr Shape triangularShapes[] = {
    {QT_TRANSLATE_NOOP("Gallery", "Triangular, above"), QTabBar::TriangularNorth},
    {QT_TRANSLATE_NOOP("Gallery", "Triangular, below"), QTabBar::TriangularSouth},
    {QT_TRANSLATE_NOOP("Gallery", "Triangular, left"), QTabBar::TriangularWest},
    {QT_TRANSLATE_NOOP("Gallery", "Triangular, right"), QTabBar::TriangularEast},
};

QTabWidget *tabs(const QString &title)
{
    auto *tabs = new QTabWidget;
    for (const QString &text : {Gallery::tr("Program"), Gallery::tr("Preview"), Gallery::tr("Key")})
    {
        auto *label = new QLabel(title);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        tabs->addTab(label, text);
    }
    tabs->setCurrentIndex(1);
    tabs->setFixedSize(260, 280);
    return tabs;
}

QTabWidget *tabsOfShape(const Shape &shape)
{
    QTabWidget *widget = tabs(Gallery::tr(shape.name));
    switch (shape.shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::TriangularNorth:
        widget->setTabPosition(QTabWidget::North);
        break;
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        widget->setTabPosition(QTabWidget::South);
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        widget->setTabPosition(QTabWidget::West);
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        widget->setTabPosition(QTabWidget::East);
        break;
    }
    const bool triangular = shape.shape >= QTabBar::TriangularNorth;
    widget->setTabShape(triangular ? QTabWidget::Triangular : QTabWidget::Rounded);
    return widget;
}

QWidget *createTabsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    for (int column = 0; column < 4; ++column) {
        grid->addWidget(tabsOfShape(roundedShapes[column]), 0, column);
        grid->addWidget(tabsOfShape(triangularShapes[column]), 1, column);
    }

    QTabWidget *closable = tabs(Gallery::tr("Closable, movable, with icons"));
    closable->setTabsClosable(true);
    closable->setMovable(true);
    for (int i = 0; i < closable->count(); ++i)
        closable->setTabIcon(i, sampleIcon());
    closable->setFixedSize(420, 120);
    grid->addWidget(closable, 2, 0, 1, 2);

    QTabWidget *document = tabs(Gallery::tr("Document mode, one tab disabled"));
    document->setDocumentMode(true);
    document->setFixedSize(260, 120);
    document->setTabEnabled(2, false);
    grid->addWidget(document, 2, 2);

    QTabWidget *crowded = tabs(Gallery::tr("More tabs than there is room"));
    crowded->setFixedSize(260, 120);
    for (int i = 1; i <= 8; ++i)
        crowded->addTab(new QLabel, Gallery::tr("Source %1").arg(i));
    grid->addWidget(crowded, 2, 3);

    grid->setColumnStretch(4, 1);
    grid->setRowStretch(3, 1);
    return page;
}

} // namespace

GALLERY_PAGE(160, "std_tabs", QT_TRANSLATE_NOOP("Gallery", "Tabs"), createTabsPage)

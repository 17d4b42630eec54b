#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

namespace {

QToolBar *toolBar(const QString &title)
{
    auto *bar = new QToolBar(title);
    bar->addAction(sampleIcon(), Gallery::tr("Cut"));
    bar->addAction(sampleIcon(QColor(237, 110, 0)), Gallery::tr("Mix"));
    bar->addSeparator();
    QAction *held = bar->addAction(sampleIcon(Qt::gray), Gallery::tr("Hold"));
    held->setCheckable(true);
    held->setChecked(true);
    return bar;
}

QDockWidget *dock(const QString &title, QDockWidget::DockWidgetFeatures features)
{
    auto *dock = new QDockWidget(title);
    dock->setFeatures(features);
    dock->setWidget(new QPlainTextEdit(title));
    return dock;
}

void addToolBars(QMainWindow *window)
{
    window->addToolBar(Qt::TopToolBarArea, toolBar(Gallery::tr("Above")));
    window->addToolBar(Qt::TopToolBarArea, toolBar(Gallery::tr("Above, second")));
    window->addToolBarBreak(Qt::TopToolBarArea);
    window->addToolBar(Qt::TopToolBarArea, toolBar(Gallery::tr("Above, second line")));
    window->addToolBar(Qt::LeftToolBarArea, toolBar(Gallery::tr("Left")));
    window->addToolBar(Qt::RightToolBarArea, toolBar(Gallery::tr("Right")));
    QToolBar *below = toolBar(Gallery::tr("Below"));
    below->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    window->addToolBar(Qt::BottomToolBarArea, below);
}

void addDocks(QMainWindow *window)
{
    const auto all = QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable
                     | QDockWidget::DockWidgetFloatable;
    window->addDockWidget(Qt::LeftDockWidgetArea, dock(Gallery::tr("Sources"), all));
    window->addDockWidget(Qt::LeftDockWidgetArea,
                          dock(Gallery::tr("A title too long for it"), all));
    window->addDockWidget(
        Qt::RightDockWidgetArea,
        dock(Gallery::tr("Vertical title"), all | QDockWidget::DockWidgetVerticalTitleBar));
    QDockWidget *first = dock(Gallery::tr("Mixer"), all);
    QDockWidget *second = dock(Gallery::tr("Log"), all);
    window->addDockWidget(Qt::BottomDockWidgetArea, first);
    window->tabifyDockWidget(first, second);
}

QWidget *centre()
{
    auto *splitter = new QSplitter(Qt::Horizontal);
    auto *stack = new QSplitter(Qt::Vertical);
    for (const QString &text : {Gallery::tr("Program"), Gallery::tr("Preview")}) {
        auto *label = new QLabel(text);
        label->setAlignment(Qt::AlignCenter);
        stack->addWidget(label);
    }
    splitter->addWidget(stack);
    auto *keys = new QLabel(Gallery::tr("Keys"));
    keys->setAlignment(Qt::AlignCenter);
    splitter->addWidget(keys);
    return splitter;
}

void addBars(QMainWindow *window)
{
    window->menuBar()->setNativeMenuBar(false);
    for (const QString &title : {Gallery::tr("&Show"), Gallery::tr("&Edit")})
        window->menuBar()->addMenu(title)->addAction(Gallery::tr("Close"));

    auto *progress = new QProgressBar;
    progress->setValue(60);
    progress->setFixedSize(120, 16);
    window->statusBar()->addPermanentWidget(progress);
    window->statusBar()->addPermanentWidget(new QLabel(Gallery::tr("On air")));
    window->statusBar()->addWidget(new QLabel(Gallery::tr("Ready")));
    window->statusBar()->setSizeGripEnabled(true);
}

QWidget *createMainWindowPage(QWidget *parent)
{
    // A main window inside another one: only its decoration is missing.
    auto *window = new QMainWindow(parent);
    window->setWindowFlags(Qt::Widget);
    addBars(window);
    addToolBars(window);
    addDocks(window);
    window->setCentralWidget(centre());
    window->setMinimumSize(960, 640);
    return window;
}

} // namespace

GALLERY_PAGE(180, "std_mainwindow", QT_TRANSLATE_NOOP("Gallery", "Main window"),
             createMainWindowPage)

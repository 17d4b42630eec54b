#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeWidget>

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

QDockWidget *dock(const QString &title, QDockWidget::DockWidgetFeatures features, QWidget *content)
{
    auto *dock = new QDockWidget(title);
    dock->setFeatures(features);
    dock->setWidget(content);
    return dock;
}

QWidget *sources()
{
    auto *list = new QListWidget;
    for (int i = 1; i <= 6; ++i)
        list->addItem(new QListWidgetItem(sampleIcon(), Gallery::tr("Camera %1").arg(i)));
    list->setCurrentRow(1);
    return list;
}

QWidget *clips()
{
    auto *tree = new QTreeWidget;
    tree->setColumnCount(2);
    tree->setHeaderLabels({Gallery::tr("Clip"), Gallery::tr("Length")});
    for (int i = 1; i <= 6; ++i)
        new QTreeWidgetItem(
            tree, {Gallery::tr("Clip %1").arg(i), QStringLiteral("00:0%1:1%2").arg(i % 4).arg(i)});
    return tree;
}

QWidget *faders()
{
    auto *mixer = new QWidget;
    auto *grid = new QGridLayout(mixer);
    const int levels[] = {70, 55, 80, 30, 62, 45};
    int column = 0;
    for (int level : levels) {
        auto *fader = new QSlider(Qt::Vertical);
        fader->setTickPosition(QSlider::TicksRight);
        fader->setTickInterval(10);
        fader->setValue(level);
        grid->addWidget(fader, 0, column, Qt::AlignHCenter);
        grid->addWidget(new QLabel(QString::number(column + 1)), 1, column, Qt::AlignHCenter);
        ++column;
    }
    return mixer;
}

QWidget *log()
{
    auto *text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setFocusPolicy(Qt::ClickFocus); // one of them is behind another dock
    for (int i = 0; i < 12; ++i) {
        const QString camera = Gallery::tr("Camera %1").arg(1 + i * 5 % 6);
        text->appendPlainText(
            QStringLiteral("20:1%1:%2  %3: %4")
                .arg(i / 6)
                .arg(10 + i * 17 % 50)
                .arg(i % 3 == 2 ? Gallery::tr("Mix") : Gallery::tr("Cut"), camera));
    }
    return text;
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
    window->addDockWidget(Qt::LeftDockWidgetArea, dock(Gallery::tr("Sources"), all, sources()));
    window->addDockWidget(Qt::LeftDockWidgetArea,
                          dock(Gallery::tr("A title too long for it"), all, clips()));
    window->addDockWidget(
        Qt::RightDockWidgetArea,
        dock(Gallery::tr("Vertical title"), all | QDockWidget::DockWidgetVerticalTitleBar, log()));
    QDockWidget *first = dock(Gallery::tr("Mixer"), all, faders());
    QDockWidget *second = dock(Gallery::tr("Log"), all, log());
    window->addDockWidget(Qt::BottomDockWidgetArea, first);
    window->tabifyDockWidget(first, second);
    first->raise();
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

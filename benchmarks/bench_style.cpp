// Repaints every standard control, and views and windows full of them, under DarkFusionStyle and
// under the toolkit's built-in Fusion style, both with the theme's palette: as it stands, and with
// a change before each paint. Then measures the columns of large tables under both.
//
// With arguments, only the rows whose names contain one of them are measured. NOCTURNE_PEER names
// another style to compare with, by its key: "Nothing" paints nothing, which is what the toolkit
// itself takes. NOCTURNE_PEER_SHEET names the file of a style sheet that the peer wears,
// NOCTURNE_PEER_RESOURCES the file of resources that the sheet asks for. NOCTURNE_FACE=readable
// measures DarkReadableStyle, both sides with its palette.

#include "darkapplication.h"
#include "panel.h"

#include <nocturne/DarkReadableStyle>

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QDial>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSizeGrip>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <memory>
#include <vector>

namespace {

constexpr int calls = 200; // a batch

/// A control as one style shows it.
struct Specimen
{
    std::unique_ptr<QWidget> window; ///< owns the control, or is it
    QWidget *control = nullptr;
    /// Brings the control into another of a handful of states; counts the calls.
    std::function<void(int step)> change;
};

struct Control
{
    const char *name;
    std::function<Specimen()> create;
};

/// A control that is its own window.
template <typename Widget>
Specimen alone(std::unique_ptr<Widget> widget, std::function<void(Widget *, int)> change)
{
    Widget *control = widget.get();
    return {std::move(widget), control, [control, change](int step) { change(control, step); }};
}

/// What the pointer does to a control that knows no more than that.
void hover(QWidget *widget, int step)
{
    widget->setAttribute(Qt::WA_UnderMouse, step % 2 == 0);
}

template <typename Button>
void press(Button *button, int step)
{
    hover(button, step);
    button->setDown(step % 4 == 1);
}

template <typename Slider>
void slide(Slider *slider, int step)
{
    hover(slider, step);
    slider->setValue(10 * (step % 8));
}

QIcon icon()
{
    return QApplication::style()->standardIcon(QStyle::SP_FileIcon);
}

template <typename Setup>
std::function<Specimen()> pushButton(Setup setup)
{
    return [setup] {
        auto button = std::make_unique<QPushButton>(QStringLiteral("Button"));
        setup(button.get());
        return alone<QPushButton>(std::move(button), press<QPushButton>);
    };
}

template <typename Setup>
std::function<Specimen()> toolButton(Setup setup)
{
    return [setup] {
        auto button = std::make_unique<QToolButton>();
        button->setText(QStringLiteral("Tool"));
        button->setIcon(icon());
        setup(button.get());
        return alone<QToolButton>(std::move(button), press<QToolButton>);
    };
}

template <typename Button>
std::function<Specimen()> checkable()
{
    return [] {
        auto button = std::make_unique<Button>(QStringLiteral("Option"));
        button->setAutoExclusive(false);
        button->setChecked(true);
        return alone<Button>(std::move(button), [](Button *changed, int step) {
            press(changed, step);
            changed->setChecked(step % 3 != 0);
        });
    };
}

std::function<Specimen()> spinBox(QAbstractSpinBox::ButtonSymbols symbols)
{
    return [symbols] {
        auto box = std::make_unique<QSpinBox>();
        box->setButtonSymbols(symbols);
        return alone<QSpinBox>(std::move(box), slide<QSpinBox>);
    };
}

std::function<Specimen()> comboBox(bool editable)
{
    return [editable] {
        auto box = std::make_unique<QComboBox>();
        box->addItems({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
        box->setEditable(editable);
        return alone<QComboBox>(std::move(box), [](QComboBox *changed, int step) {
            hover(changed, step);
            changed->setCurrentIndex(step % 3);
        });
    };
}

std::function<Specimen()> slider(Qt::Orientation orientation, QSlider::TickPosition ticks)
{
    return [orientation, ticks] {
        auto result = std::make_unique<QSlider>(orientation);
        result->setTickPosition(ticks);
        result->setTickInterval(10);
        result->setValue(40);
        result->resize(orientation == Qt::Horizontal ? QSize(200, 24) : QSize(24, 200));
        return alone<QSlider>(std::move(result), slide<QSlider>);
    };
}

std::function<Specimen()> scrollBar(Qt::Orientation orientation)
{
    return [orientation] {
        auto bar = std::make_unique<QScrollBar>(orientation);
        bar->setRange(0, 100);
        bar->setPageStep(40);
        bar->resize(orientation == Qt::Horizontal ? QSize(300, 16) : QSize(16, 300));
        return alone<QScrollBar>(std::move(bar), slide<QScrollBar>);
    };
}

Specimen dial()
{
    auto result = std::make_unique<QDial>();
    result->setNotchesVisible(true);
    return alone<QDial>(std::move(result), slide<QDial>);
}

std::function<Specimen()> progressBar(Qt::Orientation orientation, bool busy)
{
    return [orientation, busy] {
        auto bar = std::make_unique<QProgressBar>();
        bar->setOrientation(orientation);
        bar->setRange(0, busy ? 0 : 100);
        bar->setValue(40);
        bar->resize(orientation == Qt::Horizontal ? QSize(200, 24) : QSize(24, 200));
        return alone<QProgressBar>(std::move(bar), slide<QProgressBar>);
    };
}

Specimen lineEdit()
{
    return alone<QLineEdit>(
        std::make_unique<QLineEdit>(QStringLiteral("Line edit")), [](QLineEdit *edit, int step) {
            hover(edit, step);
            edit->setText(step % 3 ? QStringLiteral("One text") : QStringLiteral("Another text"));
        });
}

Specimen textEdit()
{
    auto edit = std::make_unique<QTextEdit>(QStringLiteral("A frame around a little text"));
    edit->resize(240, 120);
    return alone<QTextEdit>(
        std::move(edit), [](QTextEdit *changed, int step) { changed->setReadOnly(step % 2 == 0); });
}

std::function<Specimen()> tabBar(QTabBar::Shape shape)
{
    return [shape] {
        auto bar = std::make_unique<QTabBar>();
        bar->setShape(shape);
        for (const char *text : {"First", "Second", "Third", "Fourth"})
            bar->addTab(QLatin1String(text));
        return alone<QTabBar>(
            std::move(bar), [](QTabBar *changed, int step) { changed->setCurrentIndex(step % 4); });
    };
}

Specimen tabWidget()
{
    auto tabs = std::make_unique<QTabWidget>();
    for (const char *text : {"First", "Second", "Third"})
        tabs->addTab(new QWidget, QLatin1String(text));
    tabs->resize(300, 200);
    return alone<QTabWidget>(
        std::move(tabs), [](QTabWidget *changed, int step) { changed->setCurrentIndex(step % 3); });
}

Specimen groupBox()
{
    auto box = std::make_unique<QGroupBox>(QStringLiteral("Group"));
    box->setCheckable(true);
    box->resize(200, 120);
    return alone<QGroupBox>(std::move(box), [](QGroupBox *changed, int step) {
        hover(changed, step);
        changed->setChecked(step % 3 != 0);
    });
}

Specimen frame()
{
    auto result = std::make_unique<QFrame>();
    result->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    result->resize(200, 120);
    return alone<QFrame>(std::move(result), [](QFrame *changed, int step) {
        changed->setFrameShadow(step % 2 ? QFrame::Raised : QFrame::Sunken);
    });
}

/// Three columns of a few rows; the first row has children.
QStandardItemModel *model(QObject *parent)
{
    auto *result = new QStandardItemModel(12, 3, parent);
    for (int row = 0; row < result->rowCount(); ++row) {
        for (int column = 0; column < result->columnCount(); ++column)
            result->setItem(row, column, new QStandardItem(QStringLiteral("Item %1").arg(row)));
        result->item(row)->setCheckable(row % 2 == 1);
        for (int child = 0; child < 2; ++child)
            result->item(row)->appendRow(new QStandardItem(QStringLiteral("Child")));
    }
    return result;
}

template <typename View>
Specimen itemView()
{
    auto view = std::make_unique<View>();
    view->setModel(model(view.get()));
    view->resize(360, 300);
    if (auto *tree = qobject_cast<QTreeView *>(view.get()))
        tree->expandToDepth(0);
    return alone<View>(std::move(view), [](View *changed, int step) {
        changed->setCurrentIndex(changed->model()->index(step % 8, 0));
    });
}

std::function<Specimen()> header(Qt::Orientation orientation)
{
    return [orientation] {
        auto result = std::make_unique<QHeaderView>(orientation);
        result->setModel(model(result.get()));
        result->setSortIndicatorShown(true);
        result->resize(orientation == Qt::Horizontal ? QSize(300, 26) : QSize(40, 300));
        return alone<QHeaderView>(std::move(result), [](QHeaderView *changed, int step) {
            changed->setSortIndicator(step % 3,
                                      step % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
        });
    };
}

Specimen menu()
{
    auto result = std::make_unique<QMenu>();
    result->addAction(
        icon(), QStringLiteral("Open"), [] {}, QKeySequence::Open);
    result->addAction(QStringLiteral("Save"))->setEnabled(false);
    result->addSeparator();
    for (const char *text : {"Grid", "Rulers", "Guides"}) {
        QAction *action = result->addAction(QLatin1String(text));
        action->setCheckable(true);
        action->setChecked(true);
    }
    result->addSection(QStringLiteral("More"));
    result->addMenu(QStringLiteral("Recent"));
    return alone<QMenu>(std::move(result), [](QMenu *changed, int step) {
        changed->setActiveAction(changed->actions().at(step % 2 ? 0 : 3 + step % 3));
    });
}

/// A main window with one of everything around its edges.
std::unique_ptr<QMainWindow> mainWindow()
{
    auto window = std::make_unique<QMainWindow>();
    for (const char *text : {"File", "Edit", "View", "Help"})
        window->menuBar()->addMenu(QLatin1String(text))->addAction(QStringLiteral("Action"));
    QToolBar *bar = window->addToolBar(QStringLiteral("Tools"));
    for (int i = 0; i < 6; ++i) {
        bar->addAction(icon(), QStringLiteral("Tool"))->setCheckable(true);
        if (i == 2)
            bar->addSeparator();
    }
    auto *dock = new QDockWidget(QStringLiteral("Dock"));
    dock->setWidget(new QWidget);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->statusBar()->showMessage(QStringLiteral("Ready"));
    window->setCentralWidget(new QWidget);
    window->resize(640, 400);
    return window;
}

template <typename Widget>
std::function<Specimen()> partOfMainWindow(std::function<void(Widget *, int)> change)
{
    return [change] {
        auto window = mainWindow();
        auto *part = window->findChild<Widget *>();
        return Specimen{std::move(window), part, [part, change](int step) { change(part, step); }};
    };
}

Specimen splitterHandle()
{
    auto splitter = std::make_unique<QSplitter>();
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    splitter->resize(200, 200);
    QWidget *handle = splitter->handle(1);
    return {std::move(splitter), handle, [handle](int step) { hover(handle, step); }};
}

Specimen sizeGrip()
{
    auto window = std::make_unique<QWidget>();
    auto *grip = new QSizeGrip(window.get());
    return {std::move(window), grip, [grip](int step) { hover(grip, step); }};
}

/// The title bar and the frame of a sub-window.
Specimen mdiSubWindow()
{
    auto area = std::make_unique<QMdiArea>();
    area->resize(400, 300);
    QMdiSubWindow *window = area->addSubWindow(new QWidget);
    window->resize(300, 200);
    return {std::move(area), window, [window](int step) {
                window->setWindowTitle(step % 2 ? QStringLiteral("One clip")
                                                : QStringLiteral("Another clip"));
            }};
}

/// A label that paints itself as the toolkit's tool tips do.
class ToolTip : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QStyleOptionFrame option;
        option.initFrom(this);
        QStylePainter(this).drawPrimitive(QStyle::PE_PanelTipLabel, option);
        QLabel::paintEvent(event);
    }
};

Specimen toolTip()
{
    return alone<ToolTip>(std::make_unique<ToolTip>(QStringLiteral("What this does")),
                          [](ToolTip *tip, int step) {
                              tip->setText(step % 2 ? QStringLiteral("What this does")
                                                    : QStringLiteral("What that does"));
                          });
}

Specimen rubberBand()
{
    auto band = std::make_unique<QRubberBand>(QRubberBand::Rectangle);
    band->resize(120, 80);
    return alone<QRubberBand>(std::move(band), hover);
}

std::vector<Control> controls()
{
    const auto changeBar = [](QToolBar *bar, int step) {
        bar->actions().constFirst()->setChecked(step % 2);
    };
    const auto changeMenuBar = [](QMenuBar *bar, int step) {
        bar->actions().constFirst()->setText(step % 2 ? QStringLiteral("File")
                                                      : QStringLiteral("Tape"));
    };
    const auto changeDock = [](QDockWidget *dock, int step) {
        dock->setWindowTitle(step % 2 ? QStringLiteral("Dock") : QStringLiteral("Bay"));
    };
    const auto changeStatus = [](QStatusBar *bar, int step) {
        bar->showMessage(step % 2 ? QStringLiteral("Ready") : QStringLiteral("Busy"));
    };
    return {
        {"push button", pushButton([](QPushButton *) {})},
        {"push button, default", pushButton([](QPushButton *b) { b->setDefault(true); })},
        {"push button, flat", pushButton([](QPushButton *b) { b->setFlat(true); })},
        {"push button, checked", pushButton([](QPushButton *b) {
             b->setCheckable(true);
             b->setChecked(true);
         })},
        {"push button, icon", pushButton([](QPushButton *b) { b->setIcon(icon()); })},
        {"push button, menu", pushButton([](QPushButton *b) { b->setMenu(new QMenu(b)); })},
        {"push button, disabled", pushButton([](QPushButton *b) { b->setEnabled(false); })},
        {"tool button", toolButton([](QToolButton *) {})},
        {"tool button, text below icon",
         toolButton([](QToolButton *b) { b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon); })},
        {"tool button, arrow", toolButton([](QToolButton *b) { b->setArrowType(Qt::DownArrow); })},
        {"tool button, menu",
         toolButton([](QToolButton *b) { b->setPopupMode(QToolButton::MenuButtonPopup); })},
        {"check box", checkable<QCheckBox>()},
        {"radio button", checkable<QRadioButton>()},
        {"spin box, arrows", spinBox(QAbstractSpinBox::UpDownArrows)},
        {"spin box, plus and minus", spinBox(QAbstractSpinBox::PlusMinus)},
        {"spin box, no buttons", spinBox(QAbstractSpinBox::NoButtons)},
        {"combo box", comboBox(false)},
        {"combo box, editable", comboBox(true)},
        {"line edit", lineEdit},
        {"text edit", textEdit},
        {"slider", slider(Qt::Horizontal, QSlider::NoTicks)},
        {"slider, ticks", slider(Qt::Horizontal, QSlider::TicksBothSides)},
        {"slider, vertical, ticks", slider(Qt::Vertical, QSlider::TicksBothSides)},
        {"dial", dial},
        {"progress bar", progressBar(Qt::Horizontal, false)},
        {"progress bar, vertical", progressBar(Qt::Vertical, false)},
        {"progress bar, busy", progressBar(Qt::Horizontal, true)},
        {"scroll bar", scrollBar(Qt::Horizontal)},
        {"scroll bar, vertical", scrollBar(Qt::Vertical)},
        {"tab bar, above", tabBar(QTabBar::RoundedNorth)},
        {"tab bar, below", tabBar(QTabBar::RoundedSouth)},
        {"tab bar, left", tabBar(QTabBar::RoundedWest)},
        {"tab bar, right", tabBar(QTabBar::RoundedEast)},
        {"tab widget", tabWidget},
        {"group box, checkable", groupBox},
        {"frame", frame},
        {"header", header(Qt::Horizontal)},
        {"header, vertical", header(Qt::Vertical)},
        {"table view", itemView<QTableView>},
        {"tree view", itemView<QTreeView>},
        {"list view", itemView<QListView>},
        {"menu", menu},
        {"menu bar", partOfMainWindow<QMenuBar>(changeMenuBar)},
        {"tool bar", partOfMainWindow<QToolBar>(changeBar)},
        {"dock widget", partOfMainWindow<QDockWidget>(changeDock)},
        {"status bar, size grip", partOfMainWindow<QStatusBar>(changeStatus)},
        {"size grip", sizeGrip},
        {"splitter", splitterHandle},
        {"MDI sub-window", mdiSubWindow},
        {"tool tip", toolTip},
        {"rubber band", rubberBand},
    };
}

/// A session's clips: what a live tool fills its views with.
QStandardItemModel *clips(int rows, int columns, QObject *parent)
{
    auto *result = new QStandardItemModel(rows, columns, parent);
    const QIcon picture = icon();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            auto *item = new QStandardItem(QStringLiteral("Clip %1.%2").arg(row).arg(column));
            if (column == 0)
                item->setIcon(picture);
            item->setCheckable(column == 1);
            result->setItem(row, column, item);
        }
    }
    return result;
}

template <typename View>
Specimen largeView(const QSize &size, int rows, int columns)
{
    auto view = std::make_unique<View>();
    view->setModel(clips(rows, columns, view.get()));
    view->resize(size);
    return alone<View>(std::move(view), [](View *changed, int step) {
        changed->setCurrentIndex(changed->model()->index(step % 12, 0));
    });
}

Specimen largeTable()
{
    Specimen result = largeView<QTableView>(QSize(700, 500), 200, 6);
    static_cast<QTableView *>(result.control)->setAlternatingRowColors(true);
    return result;
}

Specimen largeTree()
{
    auto tree = std::make_unique<QTreeView>();
    QStandardItemModel *model = clips(20, 2, tree.get());
    for (int row = 0; row < 20; ++row) {
        for (int child = 0; child < 4; ++child)
            model->item(row)->appendRow(new QStandardItem(QStringLiteral("Take %1").arg(child)));
    }
    tree->setModel(model);
    tree->expandAll();
    tree->resize(400, 500);
    return alone<QTreeView>(std::move(tree), [](QTreeView *changed, int step) {
        changed->setCurrentIndex(changed->model()->index(step % 4, 0));
    });
}

Specimen iconList()
{
    Specimen result = largeView<QListView>(QSize(500, 400), 60, 1);
    static_cast<QListView *>(result.control)->setViewMode(QListView::IconMode);
    return result;
}

Specimen longMenu()
{
    auto result = std::make_unique<QMenu>();
    for (int i = 0; i < 16; ++i) {
        QAction *action = result->addAction(QStringLiteral("Command %1").arg(i));
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_A + i)));
        action->setCheckable(i % 3 == 0);
        if (i % 4 == 0)
            action->setIcon(icon());
    }
    return alone<QMenu>(std::move(result), [](QMenu *changed, int step) {
        changed->setActiveAction(changed->actions().at(step % 16));
    });
}

std::function<Specimen()> panel(int controls, int columns, const QSize &size)
{
    return [controls, columns, size] {
        std::unique_ptr<QMainWindow> window = panelWindow(controls, columns);
        window->resize(size);
        auto *bar = window->findChild<QProgressBar *>();
        return alone<QMainWindow>(std::move(window), [bar](QMainWindow *, int step) {
            if (bar)
                bar->setValue(step % 100);
        });
    };
}

std::vector<Control> scenes()
{
    return {
        {"table, 700 x 500, 6 columns", largeTable},
        {"tree, 400 x 500", largeTree},
        {"icon list, 500 x 400", iconList},
        {"menu of 16 items", longMenu},
        {"panel of 48 controls", panel(48, 8, QSize(1280, 420))},
        {"window of 1000 controls", panel(1000, 40, QSize(4000, 900))},
    };
}

/// The floor: what a repaint takes before anything is painted.
class NothingStyle : public QCommonStyle
{
public:
    void drawPrimitive(PrimitiveElement, const QStyleOption *, QPainter *,
                       const QWidget *) const override
    {}
    void drawControl(ControlElement, const QStyleOption *, QPainter *,
                     const QWidget *) const override
    {}
    void drawComplexControl(ComplexControl, const QStyleOptionComplex *, QPainter *,
                            const QWidget *) const override
    {}
    void drawItemText(QPainter *, const QRect &, int, const QPalette &, bool, const QString &,
                      QPalette::ColorRole) const override
    {}
    void drawItemPixmap(QPainter *, const QRect &, int, const QPixmap &) const override {}
};

/// One side of the comparison.
struct Side
{
    QByteArray name;
    QStyle *style = nullptr;
    QString sheet;
};

/// A new specimen as \a side shows it.
Specimen specimen(const Control &control, const Side &side)
{
    Specimen result = control.create();
    result.window->setStyle(side.style);
    for (QWidget *child : result.window->findChildren<QWidget *>())
        child->setStyle(side.style);
    if (!side.sheet.isEmpty())
        result.window->setStyleSheet(side.sheet);
    result.window->setAttribute(Qt::WA_DontShowOnScreen);
    return result;
}

void show(Specimen &specimen, const QSize &size)
{
    specimen.window->resize(size);
    specimen.window->show();
}

QSize naturalSize(const Specimen &specimen)
{
    return specimen.window->testAttribute(Qt::WA_Resized) ? specimen.window->size()
                                                          : specimen.window->sizeHint();
}

/// Repaints one specimen, changed before or not.
class Painter
{
public:
    Painter(Specimen &specimen, bool changes)
        : m_specimen(specimen)
        , m_canvas(specimen.control->size(), QImage::Format_ARGB32_Premultiplied)
        , m_changes(changes)
    {
        m_canvas.fill(Qt::black);
    }

    void operator()()
    {
        if (m_changes)
            m_specimen.change(m_step++);
        // On the ground of its window, as on a screen: not over what was painted the last time.
        m_specimen.control->render(&m_canvas, QPoint(), QRegion(),
                                   QWidget::DrawWindowBackground | QWidget::DrawChildren);
    }

private:
    Specimen &m_specimen;
    QImage m_canvas;
    bool m_changes;
    int m_step = 0;
};

bool isWanted(const QString &name)
{
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    return wanted.isEmpty()
           || std::any_of(wanted.cbegin(), wanted.cend(),
                          [&name](const QString &part) { return name.contains(part); });
}

/// Repaints each control on both sides.
void compareRepaints(const std::vector<Control> &controls, const Side &ours, const Side &peers,
                     int calls)
{
    Benchmark still;
    Benchmark changing;
    for (const Control &control : controls) {
        const QString name = QLatin1String(control.name);
        if (!isWanted(name))
            continue;
        Specimen our = specimen(control, ours);
        Specimen peer = specimen(control, peers);
        const QSize size = naturalSize(our).expandedTo(naturalSize(peer));
        show(our, size);
        show(peer, size);
        QCoreApplication::processEvents();
        still.compare(name, Painter(our, false), Painter(peer, false), calls);
        changing.compare(name, Painter(our, true), Painter(peer, true), calls);
    }
    if (still.results().isEmpty())
        return;
    std::printf("Still\n");
    still.print(ours.name.constData(), peers.name.constData());
    std::printf("\nChanging\n");
    changing.print(ours.name.constData(), peers.name.constData());
    std::printf("\n");
}

/// What a view does before it shows a table of 10,000 rows that is to fit its contents.
void compareMeasures(const Side &ours, const Side &peers)
{
    const Control control = {"10,000 rows, columns to contents",
                             [] { return largeView<QTableView>(QSize(700, 500), 10000, 6); }};
    const QString name = QLatin1String(control.name);
    if (!isWanted(name))
        return;
    const Specimen specimens[] = {specimen(control, ours), specimen(control, peers)};
    const auto measure = [&](int side) {
        auto *table = static_cast<QTableView *>(specimens[side].control);
        table->horizontalHeader()->setResizeContentsPrecision(-1);
        return [table] { table->resizeColumnsToContents(); };
    };
    Benchmark benchmark;
    benchmark.compare(name, measure(0), measure(1), 1, 3);
    benchmark.print(ours.name.constData(), peers.name.constData());
}

/// The face of our style that was asked for, in its palette.
Side ourSide()
{
    if (qEnvironmentVariable("NOCTURNE_FACE") != QLatin1String("readable"))
        return {"DarkFusion", QApplication::style(), QString()};
    const QPalette theme = QApplication::palette();
    QApplication::setStyle(new DarkReadableStyle);
    QApplication::setPalette(DarkReadableStyle::palette(theme));
    return {"DarkFusionReadable", QApplication::style(), QString()};
}

QString contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStyle *createStyle(const QString &key)
{
    if (key == QLatin1String("Nothing"))
        return new NothingStyle;
    return QStyleFactory::create(key);
}

} // namespace

int main(int argc, char *argv[])
{
    const DarkApplication application(argc, argv);
    const Side ours = ourSide();

    const QString peerName = qEnvironmentVariable("NOCTURNE_PEER", QStringLiteral("Fusion"));
    const std::unique_ptr<QStyle> peer(createStyle(peerName));
    if (!peer) {
        std::fprintf(stderr, "bench_style: no style has the key %s\n", qPrintable(peerName));
        return 1;
    }
    Side peers{peerName.toLocal8Bit(), peer.get(), QString()};
    const QString sheetName = qEnvironmentVariable("NOCTURNE_PEER_SHEET");
    if (!sheetName.isEmpty()) {
        peers.name = "style sheet";
        peers.sheet = contents(sheetName);
        const QString resources = qEnvironmentVariable("NOCTURNE_PEER_RESOURCES");
        if (peers.sheet.isEmpty()
            || (!resources.isEmpty() && !QResource::registerResource(resources))) {
            std::fprintf(stderr, "bench_style: cannot read %s or its resources\n",
                         qPrintable(sheetName));
            return 1;
        }
    }

    compareRepaints(controls(), ours, peers, calls);
    compareRepaints(scenes(), ours, peers, calls / 20);
    compareMeasures(ours, peers);
    return 0;
}

#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace {

/// A title bar with every button, in one state.
class TitleBar : public QWidget
{
public:
    TitleBar(const QString &text, int titleBarState, QStyle::State state = QStyle::State_None)
        : m_text(text)
        , m_titleBarState(titleBarState)
        , m_state(state)
    {
        setFixedHeight(24);
        setMinimumWidth(400);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionTitleBar option;
        option.initFrom(this);
        option.state |= m_state;
        option.text = m_text;
        option.icon = sampleIcon(QColor(237, 110, 0));
        option.titleBarState = m_titleBarState;
        option.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                               | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
                               | Qt::WindowShadeButtonHint | Qt::WindowContextHelpButtonHint;
        option.subControls = QStyle::SC_All;
        if (m_state)
            option.activeSubControls = QStyle::SC_TitleBarMaxButton;
        // A window's corners are cut by its mask.
        QStylePainter painter(this);
        QStyleHintReturnMask mask;
        if (style()->styleHint(QStyle::SH_WindowFrame_Mask, &option, this, &mask))
            painter.setClipRegion(mask.region);
        painter.drawComplexControl(QStyle::CC_TitleBar, option);
    }

private:
    const QString m_text;
    const int m_titleBarState;
    const QStyle::State m_state;
};

void addTitleBars(QBoxLayout *column)
{
    const int active = int(QStyle::State_Active);
    column->addWidget(new TitleBar(Gallery::tr("Active"), active));
    column->addWidget(new TitleBar(Gallery::tr("Inactive"), 0));
    column->addWidget(new TitleBar(Gallery::tr("Minimized"), active | int(Qt::WindowMinimized)));
    column->addWidget(new TitleBar(Gallery::tr("Maximized"), active | int(Qt::WindowMaximized)));
    column->addWidget(
        new TitleBar(Gallery::tr("Maximize hovered"), active, QStyle::State_MouseOver));
    column->addWidget(new TitleBar(Gallery::tr("Maximize pressed"), active, QStyle::State_Sunken));
}

QMdiSubWindow *addWindow(QMdiArea *area, const QString &title, const QRect &geometry)
{
    auto *label = new QLabel(title);
    label->setAlignment(Qt::AlignCenter);
    QMdiSubWindow *window = area->addSubWindow(label);
    window->setWindowTitle(title);
    window->setGeometry(geometry);
    return window;
}

QMdiArea *mdiArea()
{
    auto *area = new QMdiArea;
    addWindow(area, Gallery::tr("Inactive window"), QRect(10, 10, 300, 160));
    QMdiSubWindow *shaded = addWindow(area, Gallery::tr("Shaded window"), QRect(330, 10, 300, 160));
    shaded->setWindowFlags(shaded->windowFlags() | Qt::WindowShadeButtonHint);
    shaded->showShaded();
    QMdiSubWindow *small =
        addWindow(area, Gallery::tr("Minimized window"), QRect(10, 200, 240, 100));
    small->showMinimized();
    QMdiSubWindow *help =
        addWindow(area, Gallery::tr("Window with help"), QRect(150, 90, 340, 160));
    help->setWindowFlags(help->windowFlags() | Qt::WindowContextHelpButtonHint);
    area->setActiveSubWindow(help);
    return area;
}

QMdiArea *tabbedArea()
{
    auto *area = new QMdiArea;
    area->setViewMode(QMdiArea::TabbedView);
    area->setTabsClosable(true);
    addWindow(area, Gallery::tr("First"), QRect(0, 0, 100, 100));
    addWindow(area, Gallery::tr("Second"), QRect(0, 0, 100, 100));
    return area;
}

QWidget *createMdiPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *column = new QVBoxLayout(page);
    addTitleBars(column);
    auto *areas = new QHBoxLayout;
    areas->addWidget(mdiArea(), 3);
    areas->addWidget(tabbedArea(), 1);
    column->addLayout(areas, 1);
    page->setMinimumSize(900, 600);
    return page;
}

} // namespace

GALLERY_PAGE(185, "std_mdi", QT_TRANSLATE_NOOP("Gallery", "Windows in a window"), createMdiPage)

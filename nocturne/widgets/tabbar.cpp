#include "tabbar.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionTab>

namespace {

constexpr int tabHeight = 30;
constexpr int barMargin = 8;
constexpr qreal tabRadius = 3.0;

void paintBar(QPainter *painter, const QRect &bar)
{
    painter->setPen(QColor(0, 0, 0, 128));
    painter->setBrush(Nocturne::ThemePaint::verticalGradient(
        bar.top() + 1, bar.height() - 2,
        {{0.0, Nocturne::ThemePaint::window(-8)}, {1.0, Nocturne::ThemePaint::window(-16)}}));
    painter->drawRect(bar.adjusted(-1, 0, 2, -2));
}

void paintSelectedTab(QPainter *painter, const QStyleOptionTab &tab)
{
    if (tab.text.isEmpty())
        return;
    const QRect shape =
        QRect(tab.rect.left(), 0, tab.rect.width(), tab.rect.height()).translated(4, 4);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Nocturne::ThemePaint::verticalGradient(
        shape.top(), shape.height(),
        {{0.0, Nocturne::ThemePaint::window(10)}, {1.0, Nocturne::ThemePaint::window()}}));
    painter->drawRoundedRect(shape, tabRadius, tabRadius);
}

} // namespace

TabBar::TabBar(QWidget *parent)
    : QTabBar(parent)
{
    setExpanding(true);
    setDocumentMode(true);
    setElideMode(Qt::ElideNone);
    // Not every style asks for it, and a tab under the mouse looks different under each.
    setAttribute(Qt::WA_Hover);
}

void TabBar::setWidth(int width)
{
    m_tabWidth = width;
    // The bar keeps the sizes of its tabs until something makes it lay them out; setting the elide
    // mode, even to what it is, does.
    setElideMode(elideMode());
    adjustSize();
}

QSize TabBar::tabSizeHint(int index) const
{
    if (tabText(index).isEmpty())
        return QSize(qMax(0, width() - barMargin - m_tabWidth * (count() - 1)), tabHeight);
    return QSize(m_tabWidth, tabHeight);
}

void TabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBar(&painter, rect());

    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab tab;
        initStyleOption(&tab, i);
        const bool selected = tab.state & QStyle::State_Selected;
        if (selected)
            paintSelectedTab(&painter, tab);
        const bool highlighted = selected || tab.state & QStyle::State_MouseOver;
        painter.setPen(Nocturne::ThemePaint::color(highlighted ? QPalette::HighlightedText
                                                               : QPalette::ButtonText));
        Nocturne::KeptText::draw(&painter, tab.rect.translated(4, 0), Qt::AlignCenter, tab.text);
    }
}

#include "tabwidget.h"

#include "tabbar.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionTabWidgetFrame>

TabWidget::TabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new TabBar(this));
}

void TabWidget::setTabBarWidth(int width)
{
    if (auto *bar = qobject_cast<TabBar *>(tabBar()))
        bar->setWidth(width);
}

void TabWidget::paintEvent(QPaintEvent *)
{
    QStyleOptionTabWidgetFrame option;
    initStyleOption(&option);
    const QRect r = option.rect.adjusted(1, option.tabBarSize.height(), -1, -2);
    const QColor edge = Nocturne::ThemePaint::window(20, 128);

    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Nocturne::ThemePaint::window());
    painter.drawRect(r);
    painter.setPen(edge);
    painter.drawLine(r.x() - 1, r.y() - 1, r.right() + 1, r.y() - 1);

    if (count() == 1 && tabText(0).isEmpty()) {
        painter.setPen(Qt::black);
        painter.drawLine(r.x() - 1, r.bottom() + 2, r.x() - 1, r.y() - 1);
        painter.drawLine(r.x(), r.bottom() + 2, r.x(), r.y() - 1);
        painter.setPen(edge);
        painter.drawLine(r.x() + 1, r.bottom() + 2, r.x() + 1, r.y() - 1);
    }
}

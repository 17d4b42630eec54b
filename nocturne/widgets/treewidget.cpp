#include "treewidget.h"

#include "droppeditems_p.h"

#include <nocturne/painting/edgeshadow_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QDropEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

namespace {

/// The topmost row of \a view, or none.
QModelIndex firstRow(const QTreeView &view)
{
    const QAbstractItemModel *model = view.model();
    const int rows = model ? model->rowCount(view.rootIndex()) : 0;
    for (int row = 0; row < rows; ++row) {
        if (!view.isRowHidden(row, view.rootIndex()))
            return model->index(row, 0, view.rootIndex());
    }
    return QModelIndex();
}

} // namespace

TreeWidget::TreeWidget(QWidget *parent)
    : QTreeWidget(parent)
{
    // paintEvent() fills all of it; filling it twice shows in the time that scrolling takes.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void TreeWidget::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QVector<int> &roles)
{
    m_measuredFor = -1;
    QTreeWidget::dataChanged(topLeft, bottomRight, roles);
}

void TreeWidget::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(viewport());
        painter.fillRect(rect(), Nocturne::ThemePaint::window(-6));
    }
    QTreeWidget::paintEvent(event);

    m_painted = shadows();
    QPainter painter(viewport());
    Nocturne::paintEdgeShadows(&painter, size(), m_painted.top, m_painted.bottom);
}

void TreeWidget::scrollContentsBy(int dx, int dy)
{
    QTreeWidget::scrollContentsBy(dx, dy);

    // Scrolling moves what is on the screen, shadows included. They stand still, so the places
    // where they were moved to and those where they belong are painted anew.
    const Shadows now = shadows();
    const int pixels = scrolledPixels(dy);
    QRegion stale;
    if (m_painted.top || now.top)
        stale += QRect(0, 0, width(), Nocturne::edgeShadowHeight + qMax(0, pixels));
    if (m_painted.bottom || now.bottom) {
        const int edge = Nocturne::edgeShadowHeight + qMax(0, -pixels);
        stale += QRect(0, height() - edge, width(), edge);
    }
    viewport()->update(stale - underBars());
}

/// What the scroll bars cover of the viewport under a style that lets them float above it.
/// Scrolling paints it anew anyway, together with the bars; asked for here as well, it would be
/// painted in one go with the edges, and then every row in its whole width.
QRegion TreeWidget::underBars() const
{
    QRegion covered;
    for (const QScrollBar *bar : {verticalScrollBar(), horizontalScrollBar()}) {
        if (bar->isVisible())
            covered += QRect(bar->mapTo(this, QPoint()) - viewport()->pos(), bar->size());
    }
    return covered;
}

void TreeWidget::updateGeometries()
{
    m_measuredFor = -1;
    QTreeWidget::updateGeometries();
}

TreeWidget::Shadows TreeWidget::shadows()
{
    const QScrollBar *bar = verticalScrollBar();
    return {bar->value() > bar->minimum(), offsetIsBelowMaximum()};
}

/// Whether verticalOffset() is less than the scroll bar's maximum.
///
/// When the bar counts rows of different heights, verticalOffset() measures all rows up to the
/// top one, each time. Here they are measured once, and no further than the maximum.
bool TreeWidget::offsetIsBelowMaximum()
{
    const int value = verticalScrollBar()->value();
    const int maximum = verticalScrollBar()->maximum();
    if (value >= maximum)
        return false;
    if (uniformRowHeights() || verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
        return verticalOffset() < maximum;

    if (m_measuredFor != maximum || !m_nextRow.isValid()) {
        m_measuredFor = maximum;
        m_nextRow = firstRow(*this);
        m_measuredRows = 0;
        m_measuredHeight = 0;
    }
    if (m_measuredRows < value && m_measuredHeight < maximum) {
        QModelIndex row = m_nextRow;
        for (; m_measuredRows < value && m_measuredHeight < maximum && row.isValid();
             ++m_measuredRows) {
            m_measuredHeight += rowHeight(row);
            row = indexBelow(row);
        }
        m_nextRow = row;
    }
    return value < m_measuredRows || m_measuredHeight < maximum;
}

/// How far scrolling by \a dy moved the rows down, in pixels; negative for up. Where that is more
/// than the height of the tree, at least the height.
int TreeWidget::scrolledPixels(int dy) const
{
    if (verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
        return dy;

    // The rows that appeared at the top, or those that went there.
    int pixels = 0;
    const int firstColumn = isRightToLeft() ? viewport()->width() - 1 : 0;
    QModelIndex row = indexAt(QPoint(firstColumn, 0));
    for (int i = 0; i < qAbs(dy) && pixels < height(); ++i) {
        if (dy < 0)
            row = indexAbove(row);
        if (!row.isValid())
            return dy < 0 ? -height() : height();
        pixels += rowHeight(row);
        if (dy > 0)
            row = indexBelow(row);
    }
    return dy < 0 ? -pixels : pixels;
}

void TreeWidget::dropEvent(QDropEvent *event)
{
    if (Nocturne::hasSoundItems(event))
        QTreeWidget::dropEvent(event);
    else
        event->ignore();
}

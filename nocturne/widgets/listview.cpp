#include "listview.h"

#include <QtGui/QPainter>

namespace {

constexpr qreal cornerRadius = 6.0;

} // namespace

ListView::ListView(QWidget *parent)
    : QListView(parent)
{
    setViewport(nullptr);
    setFrameShape(QFrame::NoFrame);
}

void ListView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::darkGray);
    painter.drawRoundedRect(viewport()->rect(), cornerRadius, cornerRadius);
}

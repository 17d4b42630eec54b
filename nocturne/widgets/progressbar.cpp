#include "progressbar.h"

#include <nocturne/painting/glowbar_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr QRgb grooveColor = qRgba(11, 11, 11, 128);
constexpr QRgb grooveEdgeColor = qRgba(76, 76, 76, 128);
constexpr qreal grooveRadius = 4.0;
constexpr qreal barRadius = 3.0;
constexpr qreal fullBarRadius = 2.0;

} // namespace

ProgressBar::ProgressBar(QWidget *parent)
    : QProgressBar(parent)
{
    connect(this, &QProgressBar::valueChanged, this, QOverload<>::of(&ProgressBar::update));
}

ProgressBar::~ProgressBar() = default;

void ProgressBar::setFullSize(bool fullSize)
{
    m_fullSize = fullSize;
}

void ProgressBar::paintEvent(QPaintEvent *)
{
    if (m_fullSize)
        renderFull();
    else
        render();
}

void ProgressBar::render()
{
    QStyleOptionProgressBar option;
    initStyleOption(&option);
    const QRectF groove = option.rect.adjusted(0, 8, 0, -9);

    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | Nocturne::QtVersion::offsetLines);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(grooveColor));
    painter.drawRoundedRect(groove, grooveRadius, grooveRadius);

    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor::fromRgba(grooveEdgeColor));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(int(groove.x() + 3), int(groove.bottom()), int(groove.right() - 3),
                     int(groove.bottom()));

    // The bar ends one pixel short of the groove's ends and starts one below its top.
    const QRectF fill = filledPart(groove);
    if (!fill.isEmpty())
        Nocturne::drawGlowBar(&painter, QPoint(int(fill.x()), int(fill.y())),
                              {fill.size(), QMarginsF(1, 1, 1, 0), barRadius});
}

void ProgressBar::renderFull()
{
    QStyleOptionProgressBar option;
    initStyleOption(&option);
    const QRectF fill = filledPart(option.rect);

    QPainter painter(this);
    if (!fill.isEmpty())
        Nocturne::drawGlowBar(&painter, QPoint(int(fill.x()), int(fill.y())),
                              {fill.size(), QMarginsF(), fullBarRadius});
}

QRectF ProgressBar::filledPart(const QRectF &whole) const
{
    if (maximum() <= 0)
        return QRectF();
    QRectF fill = whole;
    fill.setWidth(qMin(value() * whole.width() / maximum(), whole.width()));
    return fill;
}

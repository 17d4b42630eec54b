#include "darkreadablestyle_p.h"

#include <QtGui/QIconEngine>
#include <QtWidgets/QApplication>

namespace Nocturne::Readable {

namespace {

constexpr qreal strokeWidth = 2.0;

using Strokes = QVector<QPolygonF>;

QPolygonF box(qreal left, qreal top, qreal right, qreal bottom)
{
    return QPolygonF({QPointF(left, top), QPointF(right, top), QPointF(right, bottom),
                      QPointF(left, bottom), QPointF(left, top)});
}

QPolygonF line(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points));
}

/// The lines of a symbol in a square of sixteen units; none where there is no such symbol.
Strokes strokesOf(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_DockWidgetCloseButton:
    case QStyle::SP_DialogCloseButton:
    case QStyle::SP_LineEditClearButton:
        return {line({{4, 4}, {12, 12}}), line({{12, 4}, {4, 12}})};
    case QStyle::SP_TitleBarMinButton:
        return {line({{4, 12}, {12, 12}})};
    case QStyle::SP_TitleBarMaxButton:
        return {box(4, 4, 12, 12)};
    case QStyle::SP_TitleBarNormalButton:
        return {box(3, 7, 9, 13), line({{7, 4}, {13, 4}, {13, 10}})};
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        return {line({{3, 4}, {7, 8}, {3, 12}}), line({{8, 4}, {12, 8}, {8, 12}})};
    case QStyle::SP_ToolBarVerticalExtensionButton:
        return {line({{4, 3}, {8, 7}, {12, 3}}), line({{4, 8}, {8, 12}, {12, 8}})};
    default:
        return {};
    }
}

/// Draws a symbol in the application's present colours, at any size.
class GlyphEngine : public QIconEngine
{
public:
    explicit GlyphEngine(const Strokes &strokes)
        : m_strokes(strokes)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette::ColorGroup group =
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const int extent = qMin(rect.width(), rect.height());
        const PainterSaver saver(painter);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - extent) / 2.0,
                           rect.y() + (rect.height() - extent) / 2.0);
        painter->scale(extent / 16.0, extent / 16.0);
        painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText),
                             strokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        for (const QPolygonF &stroke : m_strokes)
            painter->drawPolyline(stroke);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    QIconEngine *clone() const override { return new GlyphEngine(*this); }

private:
    const Strokes m_strokes;
};

} // namespace

QIcon glyph(QStyle::StandardPixmap pixmap)
{
    const Strokes strokes = strokesOf(pixmap);
    return strokes.isEmpty() ? QIcon() : QIcon(new GlyphEngine(strokes));
}

} // namespace Nocturne::Readable

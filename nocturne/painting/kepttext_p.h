#ifndef NOCTURNE_KEPTTEXT_P_H
#define NOCTURNE_KEPTTEXT_P_H

#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtCore/QString>

class QFont;
class QFontMetrics;
class QPainter;
class QTextOption;

/// Text that is shaped once and drawn from its glyphs afterwards, for styles and widgets alike.
///
/// Shaping costs far more than painting, and a control shows the same text at most repaints. Each
/// function gives the very pixels and numbers of the toolkit's function that it stands for: what
/// can't be kept (several lines, control characters, a turned painter, a recording device) goes
/// to that function. What is kept is bounded, and forgotten when the font database changes.
namespace Nocturne::KeptText {

/// QPainter::drawText(rect, flags, text).
void draw(QPainter *painter, const QRectF &rect, int flags, const QString &text);

/// QPainter::drawText(rect, text, option), where only alignment and direction of \a option differ
/// from the toolkit's own.
void draw(QPainter *painter, const QRectF &rect, const QString &text, const QTextOption &option);

/// Whether \a flags place a single line, with one alignment along each axis at most.
bool areKept(int flags);

/// Whether \a painter shows kept glyphs as it shows text that it shapes itself.
bool takesKept(const QPainter &painter);

/// Whether \a text was shaped already, so that its lineSize() costs nothing.
bool hasLine(const QFont &font, const QString &text);

/// The size of \a text in one line, in whole units; invalid when the text can't be kept.
QSize lineSize(const QFont &font, const QString &text);

/// Draws a text that has a lineSize() as the items of views show it, on a painter that takesKept()
/// and in its pen: shortened to the width of \a rect, whose height it may exceed.
void drawElidedLine(QPainter *painter, const QRect &rect, Qt::Alignment alignment,
                    const QFont &font, const QString &text, Qt::LayoutDirection direction,
                    Qt::TextElideMode mode);

/// QFontMetrics::boundingRect(text).
QRect boundingRect(const QFontMetrics &metrics, const QString &text);

/// QFontMetrics::horizontalAdvance(text).
int horizontalAdvance(const QFontMetrics &metrics, const QString &text);

/// QFontMetrics(font).elidedText(text, mode, width).
QString elided(const QFont &font, const QString &text, Qt::TextElideMode mode, int width);

} // namespace Nocturne::KeptText

#endif

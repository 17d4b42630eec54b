#ifndef NOCTURNE_TEXTPICTURE_P_H
#define NOCTURNE_TEXTPICTURE_P_H

#include <QtCore/QRect>
#include <QtCore/QtGlobal>
#include <QtGui/QPainter>

#include <array>

class QTextLayout;

namespace Nocturne {

/// Draws a shaped line, and where it can as a picture of the line on its ground.
///
/// Blending the glyphs is the dearest part of a label. Most labels stand on a ground whose rows are
/// each of one colour: a plain field, or a gradient from top to bottom. What such a ground shows
/// once a line was drawn on it depends on nothing else that surrounds it, so it is kept, and copied
/// wherever the same line meets the same ground again. The ground is read from the image that is
/// painted on; any other ground, and any unusual painter, gets its glyphs blended.
class TextPicture
{
public:
    TextPicture();

    /// QTextLayout::draw(painter, position), for the same \a layout at each call.
    void draw(QPainter *painter, const QTextLayout &layout, const QPointF &position);

    /// Forgets the pictures of all lines.
    static void forget();

private:
    bool drawPicture(QPainter *painter, const QTextLayout &layout, const QPointF &position);
    void measure(const QTextLayout &layout, int ratio, QPainter::RenderHints hints);
    bool wasSeen(quint64 hash);

    quint64 m_line; ///< no other line of this process has it
    int m_draws = 0;
    int m_ratio = 0; ///< that the ink was measured for
    QPainter::RenderHints m_hints;
    QRect m_ink; ///< what glyphs may touch, in device pixels from the line's; empty for no picture
    std::array<quint64, 4> m_seen{}; ///< drawn lately, by their hashes
    size_t m_next = 0;
};

} // namespace Nocturne

#endif

#include "stylecolors_p.h"
#include "styleelements_p.h"

#include <nocturne/painting/kepttext_p.h>

namespace Nocturne::StylePaint {
namespace {

/// A title bar about to be painted: what its paint functions share.
struct TitleBar
{
    const PaintCall &call;
    const QStyleOptionTitleBar &option;

    bool isActive() const { return option.titleBarState & QStyle::State_Active; }
    bool isMinimized() const { return option.titleBarState & Qt::WindowMinimized; }
    bool isMaximized() const { return option.titleBarState & Qt::WindowMaximized; }
    bool has(Qt::WindowType hint) const { return option.titleBarFlags & hint; }
    QRect part(QStyle::SubControl subControl) const
    {
        return call.subControlRect(QStyle::CC_TitleBar, option, subControl);
    }
    QColor color(QPalette::ColorRole role) const { return option.palette.color(role); }
    /// Of the symbols on the buttons.
    QColor glyphColor() const { return isActive() ? Qt::white : Qt::black; }
};

void paintTitleBarBackground(const TitleBar &bar, QPainter *painter)
{
    const QRect &rect = bar.option.rect;
    const QColor base = bar.color(bar.isActive() ? QPalette::Highlight : QPalette::Window);
    QLinearGradient gradient(rect.center().x(), rect.top(), rect.center().x(), rect.bottom());
    gradient.setColorAt(0.0, base.lighter(114));
    gradient.setColorAt(0.5, base.lighter(102));
    gradient.setColorAt(0.51, base.darker(104));
    gradient.setColorAt(1.0, base);
    painter->fillRect(rect.adjusted(1, 1, -1, 0), gradient);
}

void paintTitleBarFrame(const TitleBar &bar, QPainter *painter)
{
    const QRect &rect = bar.option.rect;
    const int left = rect.left();
    const int top = rect.top();
    const int right = rect.right();
    const int bottom = rect.bottom();
    const QColor highlight = bar.color(QPalette::Highlight);

    painter->setPen(bar.isActive() ? highlight.darker(180)
                                   : StyleColors::outlineColor(bar.option.palette).darker(110));
    const QLine edges[] = {{left + 5, top, right - 5, top},
                           {left, top + 4, left, bottom},
                           {right, top + 4, right, bottom},
                           {right, bottom, left, bottom}};
    painter->drawLines(edges, 4);
    const QPoint corners[] = {{left + 4, top + 1},  {left + 3, top + 1},  {left + 2, top + 2},
                              {left + 1, top + 3},  {left + 1, top + 4},  {right - 3, top + 1},
                              {right - 4, top + 1}, {right - 2, top + 2}, {right - 1, top + 3},
                              {right - 1, top + 4}};
    painter->drawPoints(corners, 10);

    painter->setPen(bar.isActive() ? highlight.lighter(120)
                                   : bar.color(QPalette::Window).lighter(120));
    painter->drawLine(left + 6, top + 1, right - 6, top + 1);
}

void paintTitleBarText(const TitleBar &bar, QPainter *painter)
{
    const QRect rect = bar.part(QStyle::SC_TitleBarLabel);
    if (bar.option.text.isEmpty() || rect.isEmpty())
        return;
    const QString text =
        KeptText::elided(painter->font(), bar.option.text, Qt::ElideRight, rect.width() - 14);
    const QColor color = bar.color(QPalette::Text);
    painter->setPen(bar.isActive() ? color.lighter(120) : color);
    KeptText::draw(painter, rect.adjusted(1, 1, 1, 1), Qt::AlignHCenter | Qt::AlignVCenter, text);
    if (bar.isActive()) {
        painter->setPen(Qt::white);
        KeptText::draw(painter, rect, Qt::AlignHCenter | Qt::AlignVCenter, text);
    }
}

using PaintGlyph = void (*)(const TitleBar &bar, QPainter *painter, const QRect &button);

/// The square that most symbols keep to.
QRect glyphRect(const QRect &button)
{
    return button.adjusted(5, 5, -5, -5);
}

void paintMinimizeGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    const QPoint centre = glyphRect(button).center();
    painter->setPen(bar.glyphColor());
    for (int y : {centre.y() + 3, centre.y() + 4})
        painter->drawLine(centre.x() - 2, y, centre.x() + 3, y);
    for (int x : {centre.x() - 3, centre.x() + 4})
        painter->drawLine(x, centre.y() + 3, x, centre.y() + 4);
}

void paintCorners(QPainter *painter, const QRect &rect)
{
    const QPoint corners[] = {rect.topLeft(), rect.topRight(), rect.bottomLeft(),
                              rect.bottomRight()};
    painter->drawPoints(corners, 4);
}

/// The outline of a window with a thick upper edge.
void paintWindowGlyph(const TitleBar &bar, QPainter *painter, const QRect &rect)
{
    painter->setPen(bar.glyphColor());
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
    painter->drawLine(rect.left() + 1, rect.top() + 1, rect.right() - 1, rect.top() + 1);
    paintCorners(painter, rect);
}

void paintMaximizeGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    paintWindowGlyph(bar, painter, glyphRect(button));
}

void paintCloseGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    const QRect rect = glyphRect(button);
    const int left = rect.left();
    const int top = rect.top();
    const int right = rect.right();
    const int bottom = rect.bottom();
    painter->setPen(bar.glyphColor());
    const QLine strokes[] = {
        {left + 1, top, right, bottom - 1},         {left, top + 1, right - 1, bottom},
        {right - 1, top, left, bottom - 1},         {right, top + 1, left + 1, bottom},
        {left + 1, top + 1, right - 1, bottom - 1}, {left + 1, bottom - 1, right - 1, top + 1}};
    painter->drawLines(strokes, 6);
    paintCorners(painter, rect);
}

void paintNormalGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    const QRect front = glyphRect(button).adjusted(0, 3, -3, 0);
    const QRect back = glyphRect(button).adjusted(3, 0, 0, -3);
    paintWindowGlyph(bar, painter, front);

    const PainterSaver saver(painter);
    painter->setClipRegion(QRegion(back).subtracted(front), Qt::IntersectClip);
    paintWindowGlyph(bar, painter, back);
}

const char *const contextHelpXpm[] = {"10 10 3 1",  "  c None",   "# c #000000", "+ c #444444",
                                      "  +####+  ", " ###  ### ", " ##    ## ",  "     +##+ ",
                                      "    +##   ", "    ##    ", "    ##    ",  "          ",
                                      "    ##    ", "    ##    "};

void paintContextHelpGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    const QColor color = bar.glyphColor();
    QImage image(contextHelpXpm);
    image.setColor(1, color.rgba());
    image.setColor(2, StyleColors::withAlpha(color, 128).rgba());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(button.adjusted(4, 4, -4, -4), image);
}

void paintShadeGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    painter->drawPixmap(button.adjusted(5, 7, -5, -7), arrowPixmap(bar.glyphColor(), 0));
}

void paintUnshadeGlyph(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    painter->drawPixmap(button.adjusted(5, 7, -5, -7), arrowPixmap(bar.glyphColor(), 180));
}

void paintSystemMenuIcon(const TitleBar &bar, QPainter *painter, const QRect &button)
{
    if (!bar.option.icon.isNull()) {
        bar.option.icon.paint(painter, button, Qt::AlignCenter);
        return;
    }
    const QStyle *proxy = bar.call.proxy();
    const QIcon icon =
        proxy->standardIcon(QStyle::SP_TitleBarMenuButton, &bar.option, bar.call.widget);
    proxy->drawItemPixmap(painter, button, Qt::AlignCenter, icon.pixmap(16, 16));
}

QString titleBarButtonKey(const TitleBar &bar, QStyle::SubControl button, const QSize &size)
{
    const QString prefix =
        bar.isActive() ? QStringLiteral("titlebarbutton-active") : QStringLiteral("titlebarbutton");
    return StyleHelpers::styleCacheKey(prefix, &bar.option, size) + QChar(uint(button));
}

/// Bars come in any width, their buttons in one size: those are worth keeping. \a paintGlyph may
/// be null for a button whose symbol is not the same on every bar.
void paintTitleBarButton(const TitleBar &bar, QPainter *painter, QStyle::SubControl button,
                         bool shown, PaintGlyph paintGlyph)
{
    if (!shown || !(bar.option.subControls & button))
        return;
    const QRect rect = bar.part(button);
    if (!rect.isValid())
        return;
    // On a dense screen lines start half a unit outside, and light falls on what is right and
    // below.
    const QRect kept = rect.adjusted(-1, -1, 1, 1);
    const QString key = titleBarButtonKey(bar, button, kept.size());
    StyleHelpers::drawCached(painter, kept.topLeft(), key, kept.size(), [&](QPainter *cached) {
        const QRect local(rect.topLeft() - kept.topLeft(), rect.size());
        const bool active = bar.option.activeSubControls & button;
        const bool hover = active && bar.option.state & QStyle::State_MouseOver;
        const bool sunken = active && bar.option.state & QStyle::State_Sunken;
        StyleHelpers::drawTitleBarButton(cached, &bar.option, local, hover, sunken);
        if (paintGlyph)
            paintGlyph(bar, cached, local);
    });
    if (button == QStyle::SC_TitleBarSysMenu)
        paintSystemMenuIcon(bar, painter, rect);
}

void paintTitleBarButtons(const TitleBar &bar, QPainter *painter)
{
    const bool minimized = bar.isMinimized();
    const bool maximized = bar.isMaximized();
    const bool canMinimize = bar.has(Qt::WindowMinimizeButtonHint);
    const bool canMaximize = bar.has(Qt::WindowMaximizeButtonHint);
    const bool canShade = bar.has(Qt::WindowShadeButtonHint);
    const bool hasMenu = bar.has(Qt::WindowSystemMenuHint);
    const bool canRestore = (canMinimize && minimized) || (canMaximize && maximized);

    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarMinButton, canMinimize && !minimized,
                        paintMinimizeGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarMaxButton, canMaximize && !maximized,
                        paintMaximizeGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarCloseButton, hasMenu, paintCloseGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarNormalButton, canRestore,
                        paintNormalGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarContextHelpButton,
                        bar.has(Qt::WindowContextHelpButtonHint), paintContextHelpGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarShadeButton, canShade, paintShadeGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarUnshadeButton, canShade,
                        paintUnshadeGlyph);
    paintTitleBarButton(bar, painter, QStyle::SC_TitleBarSysMenu, hasMenu, nullptr);
}

} // namespace

void paintTitleBar(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionTitleBar>();
    if (!option)
        return;
    const TitleBar bar{call, *option};
    const PainterSaver saver(call.painter);
    paintTitleBarBackground(bar, call.painter);
    paintTitleBarFrame(bar, call.painter);
    paintTitleBarText(bar, call.painter);
    paintTitleBarButtons(bar, call.painter);
}

} // namespace Nocturne::StylePaint

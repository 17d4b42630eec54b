#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/themepaint_p.h>

namespace Nocturne::StylePaint {
namespace {

// Window shifted, for a panel that stands out of its window.
constexpr int raisedTopShift = 24;
constexpr int raisedBottomShift = 1;
constexpr int raisedBorderShift = -18;
constexpr int raisedHighlightShift = 33;
constexpr int lowerEdgeShift = 29;
constexpr int lowerEdgeAlpha = 128;

constexpr QRgb sunkenTop = 0xff181818;
constexpr QRgb sunkenBottom = 0xff101010;
constexpr QRgb sunkenBorder = 0xff141414;

constexpr int closeIconExtent = 16;

void paintRaisedPanel(QPainter *painter, const QPalette &palette, const QRect &r)
{
    const auto window = [&palette](int shift) { return StyleColors::window(palette, shift); };
    painter->setPen(window(raisedBorderShift));
    painter->setBrush(ThemePaint::verticalGradient(
        r.top(), r.height(), {{0.0, window(raisedTopShift)}, {1.0, window(raisedBottomShift)}}));
    painter->drawRect(r);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(window(raisedHighlightShift));
    painter->drawLine(r.left() + 2, r.top() + 1, r.right() - 1, r.top() + 1);
}

void paintSunkenPanel(QPainter *painter, const QRect &r)
{
    painter->setPen(QColor(sunkenBorder));
    painter->setBrush(ThemePaint::verticalGradient(
        r.top(), r.height(), {{0.0, QColor(sunkenTop)}, {1.0, QColor(sunkenBottom)}}));
    painter->drawRect(r);
}

void paintButtonPanel(QPainter *painter, const QPalette &palette, const QRect &rect, bool isDown)
{
    painter->setRenderHint(QPainter::Antialiasing);
    // Half a unit up: border and highlight cover whole rows, one above the rectangle's own.
    painter->translate(0.5, -0.5);
    const QRect r = rect.adjusted(2, 2, -2, -2);
    if (isDown)
        paintSunkenPanel(painter, r);
    else
        paintRaisedPanel(painter, palette, r);
    painter->setPen(StyleColors::window(palette, lowerEdgeShift, lowerEdgeAlpha));
    painter->drawLine(r.left() + 2, r.bottom() + 2, r.right() - 1, r.bottom() + 2);
}

/// All that shows of a flat button at rest: black lines with rounded corners.
void paintFlatDefaultFrame(QPainter *painter, const QRect &rect)
{
    const PainterSaver saver(painter);
    const QRect r = rect.adjusted(0, 1, 0, -1);
    painter->setPen(Qt::black);
    const QLine sides[] = {{r.left() + 2, r.top(), r.right() - 2, r.top()},
                           {r.left(), r.top() + 2, r.left(), r.bottom() - 2},
                           {r.right(), r.top() + 2, r.right(), r.bottom() - 2},
                           {r.left() + 2, r.bottom(), r.right() - 2, r.bottom()}};
    painter->drawLines(sides, 4);
    const QPoint corners[] = {{r.right() - 1, r.bottom() - 1},
                              {r.right() - 1, r.top() + 1},
                              {r.left() + 1, r.bottom() - 1},
                              {r.left() + 1, r.top() + 1}};
    painter->drawPoints(corners, 4);
}

} // namespace

void paintPanelButtonCommand(const PaintCall &call)
{
    const bool isDown = call.option->state & (QStyle::State_Sunken | QStyle::State_On);
    bool isDefault = false;
    if (const auto *button = call.as<QStyleOptionButton>()) {
        isDefault = call.isEnabled() && (button->features & QStyleOptionButton::DefaultButton);
        if ((button->features & QStyleOptionButton::Flat) && !isDown) {
            if (isDefault)
                paintFlatDefaultFrame(call.painter, call.rect());
            return;
        }
    }

    const QSize size = call.rect().size();
    const QString prefix =
        isDefault ? QStringLiteral("pushbutton-1") : QStringLiteral("pushbutton-0");
    StyleHelpers::drawCachedUnlessTransformed(
        call.painter, call.rect().topLeft(), StyleHelpers::styleCacheKey(prefix, call.option, size),
        size, [&](QPainter *panel) {
            paintButtonPanel(panel, call.palette(), QRect(QPoint(), size), isDown);
        });
}

void paintPanelButtonTool(const PaintCall &call)
{
    const bool hasPanel =
        call.isEnabled() || call.has(QStyle::State_On) || !call.has(QStyle::State_AutoRaise);
    const bool isTitleButton = call.widget && call.widget->inherits("QDockWidgetTitleButton");
    if (hasPanel && (!isTitleButton || call.has(QStyle::State_MouseOver)))
        call.drawPrimitive(QStyle::PE_PanelButtonCommand, *call.option);
}

void paintIndicatorButtonDropDown(const PaintCall &call)
{
    call.drawPrimitive(QStyle::PE_PanelButtonCommand, *call.option);
}

void paintIndicatorTabClose(const PaintCall &call)
{
    QIcon &icon = tabCloseIcon(call.style);
    if (icon.isNull())
        icon = call.proxy()->standardIcon(QStyle::SP_DialogCloseButton, call.option, call.widget);
    if (call.has(QStyle::State_Enabled | QStyle::State_MouseOver))
        call.drawPrimitive(QStyle::PE_PanelButtonCommand, *call.option);
    const QPixmap cross =
        icon.pixmap(QSize(closeIconExtent, closeIconExtent), QIcon::Normal, QIcon::On);
    call.proxy()->drawItemPixmap(call.painter, call.rect(), Qt::AlignCenter, cross);
}

} // namespace Nocturne::StylePaint

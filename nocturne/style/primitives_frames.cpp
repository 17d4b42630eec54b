#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/devicepixels_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtCore/QMargins>
#include <QtWidgets/QTabBar>
#include <qdrawutil.h>

#include <array>

namespace Nocturne::StylePaint {
namespace {

constexpr QRgb tabPageShadow = 0x0f000000; // black, alpha 15
constexpr int scrollAreaCornerAlpha = 180;
constexpr int focusOutlineAlpha = 80;
constexpr int focusFillAlpha = 30;

constexpr int lineEditShift = -6;
constexpr int searchFieldShift = -15;
constexpr qreal lineEditFrameRadius = 2.0;
constexpr qreal lineEditRadius = 3.0;
constexpr qreal searchFieldRadius = 9.0;

constexpr int groupBoxTitleMargin = 3;
constexpr int groupBoxImageMargin = 6;

/// A frame of one unit lit from the left, inside an outline of \a outline.
void paintDockFrame(const PaintCall &call, const QColor &outline)
{
    const QRect &r = call.rect();
    const QColor shadow = call.color(QPalette::Window).darker(120);
    fillOutline(call.painter, r, outline);
    fillColumn(call.painter, r.left() + 1, r.top() + 1, r.bottom() - 1, call.palette().light());
    fillRow(call.painter, r.left() + 1, r.right() - 2, r.bottom() - 1, shadow);
    fillColumn(call.painter, r.right() - 1, r.top() + 1, r.bottom() - 1, shadow);
}

/// \a fill inside an outline of \a outline.
void paintPanel(const PaintCall &call, const QColor &outline, const QColor &fill)
{
    const QRect inner = call.rect().adjusted(1, 1, -1, -1);
    fillOutline(call.painter, call.rect(), outline);
    if (!inner.isEmpty())
        call.painter->fillRect(inner, fill);
}

QPixmap groupBoxImage()
{
    const QString fileName = StyleHelpers::groupBoxImageFileName();
    QPixmap pixmap;
    if (!QPixmapCache::find(fileName, &pixmap) && pixmap.load(fileName))
        QPixmapCache::insert(fileName, pixmap);
    return pixmap;
}

/// The one colour of \a pixmap within its margins; invalid when there are several.
QColor evenColor(const QPixmap &pixmap, int margin)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QColor color = image.pixelColor(margin, margin);
    for (int y = margin; y < image.height() - margin; ++y) {
        for (int x = margin; x < image.width() - margin; ++x) {
            if (image.pixelColor(x, y) != color)
                return QColor();
        }
    }
    return color;
}

/// Draws the image's border around \a inside as qDrawBorderPixmap() does; fills \a inside, which
/// is most of it, instead of stretching a picture of one colour.
void drawGroupBoxFrame(QPainter *painter, const QRect &inside, const QPixmap &image,
                       const QColor &fill)
{
    constexpr int margin = groupBoxImageMargin;
    const QRect source = image.rect().adjusted(margin, margin, -margin, -margin);
    const auto parts = [](const QRect &middle) {
        const int left = middle.left() - margin;
        const int right = middle.right() + 1;
        const int top = middle.top() - margin;
        const int bottom = middle.bottom() + 1;
        return std::array<QRect, 8>{
            QRect(left, top, margin, margin),
            QRect(middle.left(), top, middle.width(), margin),
            QRect(right, top, margin, margin),
            QRect(left, middle.top(), margin, middle.height()),
            QRect(right, middle.top(), margin, middle.height()),
            QRect(left, bottom, margin, margin),
            QRect(middle.left(), bottom, middle.width(), margin),
            QRect(right, bottom, margin, margin),
        };
    };
    const auto targets = parts(inside);
    const auto sources = parts(source);
    for (std::size_t i = 0; i < targets.size(); ++i)
        painter->drawPixmap(targets[i], image, sources[i]);
    painter->fillRect(inside, fill);
}

void paintField(const PaintCall &call, const QRectF &field, int shift, qreal radius)
{
    call.painter->setRenderHint(QPainter::Antialiasing);
    call.painter->setPen(Qt::NoPen);
    call.painter->setBrush(StyleColors::window(call.palette(), shift));
    call.painter->drawRoundedRect(field, radius, radius);
}

/// The upper edge of the page below a tab bar, open where the selected tab joins it.
void paintNorthTabBase(const PaintCall &call, const QColor &outline, const QRect &selectedTab)
{
    const QRect &r = call.rect();
    fillRow(call.painter, r.left(), r.right(), r.top(), outline);
    const QRect secondRow = QRect(r.left(), r.top() + 1, r.width(), 1) & r;
    const QColor light = call.color(QPalette::Light);
    for (const QRect &part : QRegion(secondRow) - selectedTab)
        call.painter->fillRect(part, light);
}

} // namespace

void paintFrame(const PaintCall &call)
{
    if (call.widget && call.widget->inherits("QComboBoxPrivateContainer")) {
        QStyleOption menu(*call.option);
        menu.state |= QStyle::State_Raised;
        call.drawPrimitive(QStyle::PE_PanelMenu, menu);
        return;
    }
    fillOutline(call.painter, call.rect(), StyleColors::outlineColor(call.palette()).lighter(108));
}

void paintFrameMenu(const PaintCall &call)
{
    const QColor light = call.color(QPalette::Window).lighter(160);
    const QColor dark = call.color(QPalette::Window).darker(110);
    const QRect inner = call.rect().adjusted(1, 1, -1, -1);
    fillOutline(call.painter, call.rect(), StyleColors::outlineColor(call.palette()));
    fillColumn(call.painter, inner.left(), inner.top(), inner.bottom(), light);
    fillRow(call.painter, inner.left(), inner.right(), inner.top(), light);
    fillColumn(call.painter, inner.right(), inner.top(), inner.bottom(), dark);
    fillRow(call.painter, inner.left(), inner.right(), inner.bottom(), dark);
}

void paintFrameDockWidget(const PaintCall &call)
{
    paintDockFrame(call, call.color(QPalette::Window).darker(120));
}

void paintFrameWindow(const PaintCall &call)
{
    paintDockFrame(call, StyleColors::outlineColor(call.palette()).darker(150));
}

void paintFrameFocusRect(const PaintCall &call)
{
    if (!call.as<QStyleOptionFocusRect>() || !call.has(QStyle::State_KeyboardFocusChange))
        return;
    const QColor color = StyleColors::highlightedOutlineColor(call.palette());
    const QColor fill = StyleColors::withAlpha(color, focusFillAlpha);
    const QLinearGradient gradient = ThemePaint::verticalGradient(
        call.rect().top(), call.rect().bottom(), {{0.0, fill.lighter(160)}, {1.0, fill}});

    const PainterSaver saver(call.painter);
    beginSharpAntialiasing(call.painter);
    call.painter->setPen(StyleColors::withAlpha(color, focusOutlineAlpha).darker(120));
    call.painter->setBrush(gradient);
    call.painter->drawRoundedRect(call.rect().adjusted(0, 0, -1, -1), 1.0, 1.0);
}

void paintFrameGroupBox(const PaintCall &call)
{
    const QPixmap image = groupBoxImage();
    if (image.isNull())
        return;
    const int indicator =
        call.style->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, call.option, call.widget);
    const int title = qMax(indicator, call.option->fontMetrics.height());
    const QRect frame = call.rect().adjusted(0, title + groupBoxTitleMargin, 0, 0);
    const int margin = groupBoxImageMargin;
    const QRect inside = frame.adjusted(margin, margin, -margin, -margin);
    static const QColor fill = evenColor(image, margin);
    if (fill.isValid() && !inside.isEmpty() && wholeRatio(*call.painter) == 1)
        drawGroupBoxFrame(call.painter, inside, image, fill);
    else
        qDrawBorderPixmap(call.painter, frame, QMargins(margin, margin, margin, margin), image);
}

void paintFrameLineEdit(const PaintCall &call)
{
    const PainterSaver saver(call.painter);
    call.painter->translate(0.5, 0.5);
    paintField(call, call.rect().adjusted(0, 1, -1, -2), lineEditShift, lineEditFrameRadius);
}

void paintPanelLineEdit(const PaintCall &call)
{
    const auto *frame = call.as<QStyleOptionFrame>();
    if (!frame || frame->lineWidth == 0)
        return;
    const bool isSearchField = call.widget && call.widget->inherits("SearchLineEdit");
    const PainterSaver saver(call.painter);
    paintField(call, call.rect().adjusted(0, 1, 0, -1),
               isSearchField ? searchFieldShift : lineEditShift,
               isSearchField ? searchFieldRadius : lineEditRadius);
}

void paintFrameTabWidget(const PaintCall &call)
{
    const QRect &r = call.rect();
    call.painter->fillRect(r.adjusted(0, 0, -1, -1), call.color(QPalette::Window));
    const auto *frame = call.as<QStyleOptionTabWidgetFrame>();
    if (frame && frame->shape != QTabBar::RoundedSouth)
        fillRow(call.painter, r.left(), r.right(), r.bottom(), QColor::fromRgba(tabPageShadow));
}

void paintFrameTabBarBase(const PaintCall &call)
{
    const auto *base = call.as<QStyleOptionTabBarBase>();
    if (!base)
        return;
    const QRect &r = call.rect();
    const QColor outline = StyleColors::outlineColor(call.palette()).lighter(110);
    switch (base->shape) {
    case QTabBar::RoundedNorth:
        paintNorthTabBase(call, outline, base->selectedTabRect);
        break;
    case QTabBar::RoundedSouth:
        fillRow(call.painter, r.left(), r.right(), r.bottom(), outline);
        break;
    case QTabBar::RoundedWest:
        fillColumn(call.painter, r.left(), r.top(), r.bottom(), outline);
        break;
    case QTabBar::RoundedEast:
        fillColumn(call.painter, r.right(), r.top(), r.bottom(), outline);
        break;
    default:
        call.style->QCommonStyle::drawPrimitive(QStyle::PE_FrameTabBarBase, base, call.painter,
                                                call.widget);
    }
}

void paintPanelMenu(const PaintCall &call)
{
    paintPanel(call, call.color(QPalette::Window).darker(160),
               call.color(QPalette::Base).lighter(108));
}

void paintPanelScrollAreaCorner(const PaintCall &call)
{
    const PainterSaver saver(call.painter);
    const QColor outline = StyleColors::outlineColor(call.palette());
    call.painter->setPen(StyleColors::withAlpha(outline, scrollAreaCornerAlpha));
    call.painter->setBrush(call.palette().window());
    call.painter->drawRect(call.rect());
}

void paintPanelTipLabel(const PaintCall &call)
{
    paintPanel(call, Qt::black, Qt::gray);
}

} // namespace Nocturne::StylePaint

#include "itemview_p.h"

#include "styleelements_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/theme/qtversion_p.h>

namespace Nocturne {
namespace ItemView {
namespace {

using Item = QStyleOptionViewItem;

constexpr int decorationSpacing = 2; // above and below it, together

bool has(const Item &item, Item::ViewItemFeature feature)
{
    return item.features & feature;
}

/// Free at either side of each part of an item.
int partMargin(const QStyle *style, const QStyleOption *option, const QWidget *widget)
{
    return style->proxy()->pixelMetric(QStyle::PM_FocusFrameHMargin, option, widget) + 1;
}

/// How large the parts of an item are, without the room around them but for the text.
struct Parts
{
    Parts(const QStyle *style, const Item &item, const QWidget *widget);

    int checkWidth() const { return check.isNull() ? 0 : check.width() + 2 * margin; }
    int decorationWidth() const { return hasDecoration ? decoration.width() + 2 * margin : 0; }

    int margin;
    bool hasDecoration;
    QSize check{0, 0};
    QSize decoration{0, 0};
};

Parts::Parts(const QStyle *style, const Item &item, const QWidget *widget)
    : margin(partMargin(style, &item, widget))
    , hasDecoration(has(item, Item::HasDecoration))
{
    const QStyle *proxy = style->proxy();
    if (has(item, Item::HasCheckIndicator)) {
        check = QSize(proxy->pixelMetric(QStyle::PM_IndicatorWidth, &item, widget),
                      proxy->pixelMetric(QStyle::PM_IndicatorHeight, &item, widget));
    }
    if (hasDecoration)
        decoration = item.decorationSize;
}

QSize textSize(const Item &item, int margin)
{
    QSize size(0, item.fontMetrics.height());
    if (has(item, Item::HasDisplay)) {
        if (!item.text.isEmpty())
            size = KeptText::lineSize(item.font, item.text);
        size.rwidth() += 2 * margin;
    }
    return size;
}

/// What the check indicator leaves to decoration and text.
QRect besideCheck(const Item &item, const Parts &parts)
{
    const int width = parts.checkWidth();
    return item.direction == Qt::RightToLeft ? item.rect.adjusted(0, 0, -width, 0)
                                             : item.rect.adjusted(width, 0, 0, 0);
}

QRect checkRect(const Item &item, const Parts &parts)
{
    if (!has(item, Item::HasCheckIndicator))
        return QRect();
    QRect column(item.rect);
    column.setWidth(parts.checkWidth());
    if (item.direction == Qt::RightToLeft)
        column.moveRight(item.rect.right());
    return QStyle::alignedRect(item.direction, Qt::AlignCenter, parts.check, column);
}

bool isAside(const Item &item)
{
    return item.decorationPosition == Item::Left || item.decorationPosition == Item::Right;
}

/// What keeps a decoration above the text away from it.
int belowDecoration(const Item &item, const Parts &parts)
{
    return parts.hasDecoration && item.decorationPosition == Item::Top ? parts.margin : 0;
}

/// What keeps the text away from a decoration below it.
int belowText(const Item &item, const Parts &parts)
{
    const bool isAbove = item.decorationPosition == Item::Bottom;
    return isAbove && has(item, Item::HasDisplay) ? parts.margin : 0;
}

/// The room of the decoration, and what it leaves to the text.
struct Rooms
{
    QRect decoration;
    QRect text;
};

Rooms sideBySide(const Item &item, const Parts &parts)
{
    const QRect whole = besideCheck(item, parts);
    const int width = parts.decorationWidth();
    const bool isLeft =
        (item.decorationPosition == Item::Left) != (item.direction == Qt::RightToLeft);
    if (isLeft) {
        return {QRect(whole.left(), whole.top(), width, whole.height()),
                whole.adjusted(width, 0, 0, 0)};
    }
    const QRect text = whole.adjusted(0, 0, -width, 0);
    return {QRect(text.right() + 1, whole.top(), width, whole.height()), text};
}

Rooms oneBelowTheOther(const Item &item, const Parts &parts)
{
    const QRect whole = besideCheck(item, parts);
    const bool isTop = item.decorationPosition == Item::Top;
    const int height = // of the upper one
        isTop ? parts.decoration.height() + belowDecoration(item, parts)
              : textSize(item, parts.margin).height() + belowText(item, parts);
    const QRect upper(whole.left(), whole.top(), whole.width(), height);
    const QRect lower = whole.adjusted(0, height, 0, 0);
    return isTop ? Rooms{upper, lower} : Rooms{lower, upper};
}

Rooms rooms(const Item &item, const Parts &parts)
{
    return isAside(item) ? sideBySide(item, parts) : oneBelowTheOther(item, parts);
}

/// Whether a line of \a width is not broken even in an item that breaks its text.
bool isUnbroken(const Item &item, const Parts &parts, int width)
{
    const int room = item.rect.width() - parts.checkWidth() - parts.decorationWidth();
    return isAside(item) && width <= room - 2 * parts.margin;
}

QRect textRect(const Item &item, const Parts &parts)
{
    const QRect room = rooms(item, parts).text;
    if (item.showDecorationSelected)
        return room;
    QSize size = textSize(item, parts.margin);
    size.rheight() += belowText(item, parts);
    return QStyle::alignedRect(item.direction, item.displayAlignment, size.boundedTo(room.size()),
                               room);
}

} // namespace

const QStyleOptionViewItem *plainItem(const QStyle *style, const QStyleOption *option,
                                      const QWidget *widget)
{
    const auto *item = qstyleoption_cast<const Item *>(option);
    if (!QtVersion::keepsText || !item || item->state & QStyle::State_Editing
        || (has(*item, Item::HasDecoration) && item->decorationSize.isEmpty())
        || !KeptText::areKept(int(item->displayAlignment))
        || item->displayAlignment & Qt::AlignAbsolute)
        return nullptr;
    if (item->text.isEmpty())
        return item;
    const QSize line = KeptText::lineSize(item->font, item->text);
    const bool isKept = line.isValid()
                        && (!has(*item, Item::WrapText)
                            || isUnbroken(*item, Parts(style, *item, widget), line.width()));
    return isKept ? item : nullptr;
}

bool isShaped(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const Item *>(option);
    return QtVersion::keepsText && item
           && (item->text.isEmpty() || KeptText::hasLine(item->font, item->text));
}

QRect elementRect(const QStyle *style, QStyle::SubElement element, const QStyleOptionViewItem &item,
                  const QWidget *widget)
{
    const Parts parts(style, item, widget);
    switch (element) {
    case QStyle::SE_ItemViewItemCheckIndicator:
        return checkRect(item, parts);
    case QStyle::SE_ItemViewItemDecoration:
        return QStyle::alignedRect(item.direction, item.decorationAlignment, parts.decoration,
                                   rooms(item, parts).decoration);
    default:
        return textRect(item, parts);
    }
}

QSize size(const QStyle *style, const QStyleOptionViewItem &item, const QWidget *widget)
{
    const Parts parts(style, item, widget);
    const QSize text = textSize(item, parts.margin);
    const bool isBare =
        parts.hasDecoration && !has(item, Item::HasDisplay); // no text, no room for it
    QSize size;
    if (isAside(item)) {
        const int height = qMax(parts.check.height(), isBare ? 0 : text.height());
        size = QSize(parts.decorationWidth() + text.width(), height);
        if (parts.hasDecoration)
            size.setHeight(qMax(height, parts.decoration.height()) + decorationSpacing);
    } else {
        int height = parts.decoration.height() + belowDecoration(item, parts);
        if (!isBare)
            height += text.height() + belowText(item, parts);
        else if (height >= parts.check.height())
            height += decorationSpacing;
        size =
            QSize(qMax(parts.decorationWidth(), text.width()), qMax(height, parts.check.height()));
    }
    return size + QSize(parts.checkWidth(), 0);
}

} // namespace ItemView

namespace StylePaint {
namespace {

using Item = QStyleOptionViewItem;

QPalette::ColorGroup colorGroup(const PaintCall &call)
{
    if (!call.isEnabled())
        return QPalette::Disabled;
    return call.has(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

void paintItemCheck(const PaintCall &call, const Item &item, const QRect &rect)
{
    Item check(item);
    check.rect = rect;
    check.state &= ~QStyle::State_HasFocus;
    switch (item.checkState) {
    case Qt::Unchecked:
        check.state |= QStyle::State_Off;
        break;
    case Qt::PartiallyChecked:
        check.state |= QStyle::State_NoChange;
        break;
    case Qt::Checked:
        check.state |= QStyle::State_On;
        break;
    }
    call.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, check);
}

void paintItemIcon(const PaintCall &call, const Item &item, const QRect &rect)
{
    QIcon::Mode mode = QIcon::Normal;
    if (!call.isEnabled())
        mode = QIcon::Disabled;
    else if (call.has(QStyle::State_Selected))
        mode = QIcon::Selected;
    item.icon.paint(call.painter, rect, item.decorationAlignment, mode,
                    call.has(QStyle::State_Open) ? QIcon::On : QIcon::Off);
}

/// Where the line of text stands. Null when it does not fit, which the common style handles.
QRect textLineRect(const PaintCall &call, const Item &item)
{
    const QRect rect =
        call.proxy()->subElementRect(QStyle::SE_ItemViewItemText, &item, call.widget);
    const int margin =
        call.proxy()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, call.widget) + 1;
    const QRect inner = rect.adjusted(margin, 0, -margin, 0);
    const QSize line = KeptText::lineSize(item.font, item.text);
    const bool overflows = item.textElideMode == Qt::ElideNone && line.width() > inner.width();
    const bool fits = inner.width() > 0 && inner.height() >= line.height() && !overflows;
    return fits ? inner : QRect();
}

void paintItemText(const PaintCall &call, const Item &item, const QRect &rect)
{
    const bool selected = call.has(QStyle::State_Selected);
    call.painter->setPen(item.palette.color(colorGroup(call),
                                            selected ? QPalette::HighlightedText : QPalette::Text));
    KeptText::drawElidedLine(call.painter, rect, item.displayAlignment, item.font, item.text,
                             item.direction, item.textElideMode);
}

void paintItemFocus(const PaintCall &call, const Item &item)
{
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(item);
    focus.rect = call.proxy()->subElementRect(QStyle::SE_ItemViewItemFocusRect, &item, call.widget);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    const bool selected = call.has(QStyle::State_Selected);
    focus.backgroundColor =
        item.palette.color(call.isEnabled() ? QPalette::Normal : QPalette::Disabled,
                           selected ? QPalette::Highlight : QPalette::Window);
    call.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace

bool paintItemViewItem(const PaintCall &call)
{
    const Item *item = ItemView::plainItem(call.style, call.option, call.widget);
    if (!item || item->rect.isEmpty() || !KeptText::takesKept(*call.painter))
        return false;
    const QRect textRect = item->text.isEmpty() ? QRect() : textLineRect(call, *item);
    if (textRect.isNull() != item->text.isEmpty())
        return false;
    const PainterSaver saver(call.painter);
    call.painter->setClipRect(item->rect);
    const auto rect = [&](QStyle::SubElement element) {
        return call.proxy()->subElementRect(element, item, call.widget);
    };
    call.drawPrimitive(QStyle::PE_PanelItemViewItem, *item);
    if (item->features & Item::HasCheckIndicator)
        paintItemCheck(call, *item, rect(QStyle::SE_ItemViewItemCheckIndicator));
    if (!item->icon.isNull())
        paintItemIcon(call, *item, rect(QStyle::SE_ItemViewItemDecoration));
    if (!item->text.isEmpty())
        paintItemText(call, *item, textRect);
    if (call.has(QStyle::State_HasFocus))
        paintItemFocus(call, *item);
    return true;
}

} // namespace StylePaint
} // namespace Nocturne

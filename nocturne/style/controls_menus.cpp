#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtGui/QFontInfo>
#include <QtWidgets/QComboBox>

namespace Nocturne::StylePaint {
namespace {

constexpr int separatorMargin = 5;
constexpr int checkColumnWidth = 20;
constexpr int checkColumnMargin = 4;
constexpr int checkMargin = 7;
constexpr int checkExtent = 14;
constexpr int checkDotMargin = 4;
constexpr int textMarginBefore = 7;
constexpr int textMarginAfter = 14;
constexpr int textMarginAbove = 8;

/// A menu item being painted, with what its parts have in common.
struct MenuItem
{
    const PaintCall &call;
    const QStyleOptionMenuItem &option;

    /// Highlighted in the menu, and can be chosen.
    bool isSelected() const { return call.has(QStyle::State_Selected | QStyle::State_Enabled); }
    bool isCheckable() const { return option.checkType != QStyleOptionMenuItem::NotCheckable; }
    const QComboBox *comboBox() const { return qobject_cast<const QComboBox *>(call.widget); }
    QRect mirrored(const QRect &rect) const
    {
        return QStyle::visualRect(option.direction, option.rect, rect);
    }
    int checkColumn() const;
};

int MenuItem::checkColumn() const
{
    const QObject *object = option.styleObject;
    const bool isPopupItem = object && object->property("_q_isComboBoxPopupItem").toBool();
    return comboBox() || isPopupItem
               ? checkColumnWidth
               : qBound(checkColumnWidth, option.maxIconWidth, QWIDGETSIZE_MAX);
}

/// ShowMnemonic, with HideMnemonic where this style hides the underlines.
int mnemonicFlags(const PaintCall &call)
{
    if (call.style->styleHint(QStyle::SH_UnderlineShortcut, call.option, call.widget))
        return Qt::TextShowMnemonic;
    return Qt::TextShowMnemonic | Qt::TextHideMnemonic;
}

void paintSeparator(const MenuItem &item)
{
    const PaintCall &call = item.call;
    const QRect &r = item.option.rect;
    int textWidth = 0;
    if (!item.option.text.isEmpty()) {
        call.painter->setFont(item.option.font);
        call.drawText(r.adjusted(separatorMargin, 0, -separatorMargin, 0),
                      Qt::AlignLeft | Qt::AlignVCenter, item.option.text, QPalette::Text);
        textWidth = KeptText::horizontalAdvance(item.option.fontMetrics, item.option.text)
                    + separatorMargin;
    }
    const int left = r.left() + separatorMargin + (call.isRightToLeft() ? 0 : textWidth);
    const int right = r.right() - separatorMargin - (call.isRightToLeft() ? textWidth : 0);
    fillRow(call.painter, left, right, r.center().y(),
            QColor::fromRgba(StyleColors::darkShade).lighter(106));
}

void paintRadioDot(const MenuItem &item, const QRect &rect)
{
    QPalette::ColorRole role = QPalette::ButtonText;
    if (!item.call.isEnabled())
        role = QPalette::Text;
    else if (item.isSelected())
        role = QPalette::HighlightedText;
    const PainterSaver saver(item.call.painter);
    item.call.painter->setRenderHint(QPainter::Antialiasing);
    item.call.painter->setPen(Qt::NoPen);
    item.call.painter->setBrush(item.call.palette().brush(role));
    item.call.painter->drawEllipse(
        rect.adjusted(checkDotMargin, checkDotMargin, -checkDotMargin, -checkDotMargin));
}

void paintCheckBoxMark(const MenuItem &item, const QRect &rect)
{
    QStyleOptionButton box;
    box.state = item.option.state;
    if (item.option.checked)
        box.state |= QStyle::State_On;
    box.direction = item.option.direction;
    box.rect = rect;
    box.fontMetrics = item.option.fontMetrics;
    box.palette = item.option.palette;
    box.styleObject = item.option.styleObject;
    item.call.drawPrimitive(QStyle::PE_IndicatorCheckBox, box);
}

void paintCheck(const MenuItem &item)
{
    const QRect &r = item.option.rect;
    const QRect rect = item.mirrored(QRect(
        r.left() + checkMargin, r.center().y() - (checkExtent / 2 - 1), checkExtent, checkExtent));
    if (item.option.checkType & QStyleOptionMenuItem::Exclusive) {
        if (item.option.checked || item.call.has(QStyle::State_Sunken))
            paintRadioDot(item, rect);
    } else if (item.option.icon.isNull()) {
        paintCheckBoxMark(item, rect);
    }
}

QPixmap itemPixmap(const MenuItem &item)
{
    const PaintCall &call = item.call;
    QIcon::Mode mode = QIcon::Normal;
    if (!call.isEnabled())
        mode = QIcon::Disabled;
    else if (item.isSelected())
        mode = QIcon::Active;
    const int extent =
        call.proxy()->pixelMetric(QStyle::PM_SmallIconSize, call.option, call.widget);
    const QSize size = item.comboBox() ? item.comboBox()->iconSize() : QSize(extent, extent);
    return item.option.icon.pixmap(size, mode, item.option.checked ? QIcon::On : QIcon::Off);
}

/// The sunken button that a checked item with an icon shows instead of a check mark.
void paintCheckedIconPanel(const MenuItem &item, const QRect &rect)
{
    QStyleOptionMenuItem panel(item.option);
    panel.state |= QStyle::State_Sunken;
    panel.rect = rect;
    if (item.call.has(QStyle::State_Selected)) {
        panel.palette.setBrush(QPalette::Button,
                               StyleColors::mergedColors(item.call.color(QPalette::Window),
                                                         item.call.color(QPalette::Highlight)));
    }
    item.call.drawPrimitive(QStyle::PE_PanelButtonCommand, panel);
}

void paintIcon(const MenuItem &item)
{
    const QRect &r = item.option.rect;
    const QRect column =
        item.mirrored(QRect(r.x() + checkColumnMargin, r.y(), item.checkColumn(), r.height()));
    const QPixmap pixmap = itemPixmap(item);
    const qreal ratio = pixmap.devicePixelRatio();
    QRect rect(0, 0, int(pixmap.width() / ratio), int(pixmap.height() / ratio));
    rect.moveCenter(column.center());
    if (item.isCheckable() && item.option.checked)
        paintCheckedIconPanel(item, column);
    item.call.painter->drawPixmap(rect.topLeft(), pixmap);
}

/// What follows the tab in an item's text, at the far end of the item.
void paintShortcut(const MenuItem &item, const QRect &textRect, int flags, const QString &shortcut)
{
    const PaintCall &call = item.call;
    const QRect rect = item.mirrored(
        QRect(textRect.topRight(), QPoint(item.option.rect.right(), textRect.bottom())));
    if (!call.isEnabled() && !call.has(QStyle::State_Selected)
        && call.proxy()->styleHint(QStyle::SH_EtchDisabledText, call.option, call.widget))
    {
        const QPen pen = call.painter->pen();
        call.painter->setPen(call.color(QPalette::Light));
        KeptText::draw(call.painter, rect.translated(1, 1), flags, shortcut);
        call.painter->setPen(pen);
    }
    KeptText::draw(call.painter, rect, flags, shortcut);
}

QFont itemFont(const QStyleOptionMenuItem &option)
{
    QFont font = option.font;
    font.setPointSizeF(QFontInfo(option.font).pointSizeF());
    if (option.menuItemType == QStyleOptionMenuItem::DefaultItem)
        font.setWeight(QFont::Bold);
    return font;
}

void paintText(const MenuItem &item)
{
    const PaintCall &call = item.call;
    const QRect &r = item.option.rect;
    const int offset = item.checkColumn() + textMarginBefore;
    constexpr qint64 widest = QWIDGETSIZE_MAX; // A host may reserve any width.
    const qint64 width =
        qint64(r.width()) - offset - QtVersion::shortcutWidth(item.option) - textMarginAfter;
    const QRect rect(r.x() + offset, r.y() + textMarginAbove, int(qBound(-widest, width, widest)),
                     r.height() - 2 * textMarginAbove);
    const int flags = Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine | Qt::AlignLeft
                      | mnemonicFlags(call);

    call.painter->setPen(
        call.color(item.isSelected() ? QPalette::HighlightedText : QPalette::Text));
    QString text = item.option.text;
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        paintShortcut(item, rect, flags, text.mid(tab + 1));
        text.truncate(tab);
    }
    call.painter->setFont(itemFont(item.option));
    KeptText::draw(call.painter, item.mirrored(rect), flags, text);
}

void paintSubMenuArrow(const MenuItem &item)
{
    const QRect &r = item.option.rect;
    const int extent = (r.height() - 4) / 2;
    QStyleOptionMenuItem arrow(item.option);
    arrow.rect = item.mirrored(QRect(r.left() + r.width() - 3 - extent,
                                     r.top() + r.height() / 2 - extent / 2, extent, extent));
    arrow.state = item.call.isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
    if (item.isSelected())
        arrow.palette.setBrush(QPalette::WindowText, item.call.color(QPalette::HighlightedText));
    item.call.drawPrimitive(item.call.isRightToLeft() ? QStyle::PE_IndicatorArrowLeft
                                                      : QStyle::PE_IndicatorArrowRight,
                            arrow);
}

/// The line below a menu bar.
void paintMenuBarLine(const PaintCall &call)
{
    const QColor window = call.color(QPalette::Window).darker(120);
    const QColor outline = StyleColors::outlineColor(call.palette()).lighter(140);
    fillRow(call.painter, call.rect().left(), call.rect().right(), call.rect().bottom(),
            StyleColors::mergedColors(window, outline, 60));
}

} // namespace

void paintMenuItem(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionMenuItem>();
    if (!option)
        return;
    const MenuItem item{call, *option};
    const PainterSaver saver(call.painter);
    if (option->menuItemType == QStyleOptionMenuItem::Separator) {
        paintSeparator(item);
        return;
    }
    if (item.isCheckable())
        paintCheck(item);
    if (!option->icon.isNull())
        paintIcon(item);
    if (!option->text.isEmpty())
        paintText(item);
    if (option->menuItemType == QStyleOptionMenuItem::SubMenu)
        paintSubMenuArrow(item);
}

void paintMenuBarItem(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionMenuItem>();
    if (!option)
        return;
    QStyleOptionMenuItem text(*option);
    text.rect = option->rect.adjusted(0, 1, 0, -3);
    const PainterSaver saver(call.painter);
    call.painter->fillRect(option->rect, call.palette().window());
    call.style->QCommonStyle::drawControl(QStyle::CE_MenuBarItem, &text, call.painter, call.widget);
    if (call.has(QStyle::State_Selected | QStyle::State_Sunken)) {
        const int flags =
            Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine | mnemonicFlags(call);
        call.drawText(text.rect, flags, option->text,
                      call.isEnabled() ? QPalette::HighlightedText : QPalette::Text);
    } else {
        paintMenuBarLine(call);
    }
}

void paintMenuBarEmptyArea(const PaintCall &call)
{
    call.painter->fillRect(call.rect(), call.palette().window());
    paintMenuBarLine(call);
}

} // namespace Nocturne::StylePaint

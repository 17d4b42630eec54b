#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/theme/qtversion_p.h>

#include <QtGui/QWindow>
#include <QtWidgets/QPushButton>

namespace Nocturne::StylePaint {
namespace {

constexpr int iconTextGap = 2;
constexpr int labelBottomMargin = 2;
constexpr int toolIconMarginBelow = 6;
constexpr int toolIconMarginBeside = 8;
constexpr int comboIconMargin = 4;
constexpr int comboTextMargin = 6;

QIcon::State iconState(const PaintCall &call)
{
    return call.has(QStyle::State_On) ? QIcon::On : QIcon::Off;
}

QPixmap buttonPixmap(const PaintCall &call, const QStyleOptionButton &button)
{
    QIcon::Mode mode = QIcon::Normal;
    if (!call.isEnabled())
        mode = QIcon::Disabled;
    else if (call.has(QStyle::State_HasFocus))
        mode = QIcon::Active;
    return button.icon.pixmap(button.iconSize, mode, iconState(call));
}

/// Draws the icon so that icon and text stand in the middle together. Returns how far the text
/// moves aside.
int paintButtonIcon(const PaintCall &call, const QStyleOptionButton &button, int textFlags)
{
    const QPixmap pixmap = buttonPixmap(call, button);
    const int width = int(pixmap.width() / pixmap.devicePixelRatio());
    const int height = int(pixmap.height() / pixmap.devicePixelRatio());
    const QRect &r = button.rect;

    int labelWidth = width;
    if (!button.text.isEmpty()) {
        const QRect text = button.fontMetrics.boundingRect(r, textFlags, button.text);
        labelWidth += text.width() + iconTextGap;
    }
    QPoint point(r.x() + r.width() / 2 - labelWidth / 2, r.y() + r.height() / 2 - height / 2);
    if (call.isRightToLeft())
        point.rx() += width;
    call.painter->drawPixmap(QStyle::visualPos(button.direction, r, point), pixmap);
    return call.isRightToLeft() ? -point.x() - iconTextGap : point.x() + width;
}

/// A pressed or checked push button shows it in the colour of its text.
QPalette::ColorRole buttonTextRole(const PaintCall &call)
{
    const auto *button = qobject_cast<const QPushButton *>(call.widget);
    const bool isDown = button && (call.has(QStyle::State_Sunken) || button->isChecked());
    return isDown ? QPalette::HighlightedText : QPalette::ButtonText;
}

int toolButtonMnemonicFlags(const PaintCall &call)
{
    if (call.proxy()->styleHint(QStyle::SH_UnderlineShortcut, call.option, call.widget))
        return Qt::TextShowMnemonic;
    return Qt::TextShowMnemonic | Qt::TextHideMnemonic;
}

/// How far the label of a tool button moves when the button is down.
QPoint toolButtonShift(const PaintCall &call)
{
    if (!(call.option->state & (QStyle::State_Sunken | QStyle::State_On)))
        return QPoint();
    const QStyle *proxy = call.proxy();
    return QPoint(proxy->pixelMetric(QStyle::PM_ButtonShiftHorizontal, call.option, call.widget),
                  proxy->pixelMetric(QStyle::PM_ButtonShiftVertical, call.option, call.widget));
}

QPixmap toolButtonPixmap(const PaintCall &call, const QStyleOptionToolButton &button)
{
    QIcon::Mode mode = QIcon::Normal;
    if (!call.isEnabled())
        mode = QIcon::Disabled;
    else if (call.has(QStyle::State_MouseOver | QStyle::State_AutoRaise))
        mode = QIcon::Active;
    QWindow *window = call.widget ? call.widget->window()->windowHandle() : nullptr;
    return QtVersion::iconPixmap(button.icon, window, button.rect.size().boundedTo(button.iconSize),
                                 mode, iconState(call));
}

void paintToolButtonText(const PaintCall &call, const QStyleOptionToolButton &button,
                         const QRect &rect, int flags)
{
    const QFont font = call.painter->font();
    call.painter->setFont(button.font);
    call.drawText(rect, flags, button.text, QPalette::ButtonText);
    call.painter->setFont(font);
}

/// The icon or, when the button has one, the arrow in the middle of \a iconRect.
void paintToolButtonSymbol(const PaintCall &call, const QStyleOptionToolButton &button,
                           const QRect &arrowRect, const QRect &iconRect, const QPixmap &pixmap)
{
    if (button.features & QStyleOptionToolButton::Arrow) {
        StyleHelpers::drawToolButtonArrow(call.proxy(), &button, arrowRect, call.painter,
                                          call.widget);
    } else {
        call.proxy()->drawItemPixmap(call.painter, iconRect, Qt::AlignCenter, pixmap);
    }
}

void paintToolButtonSymbolAndText(const PaintCall &call, const QStyleOptionToolButton &button,
                                  const QPixmap &pixmap, const QSize &symbolSize,
                                  const QPoint &shift)
{
    const QRect &r = button.rect;
    QRect symbolRect = r;
    QRect textRect = r;
    int flags = toolButtonMnemonicFlags(call);
    if (button.toolButtonStyle == Qt::ToolButtonTextUnderIcon) {
        symbolRect.setHeight(symbolSize.height() + toolIconMarginBelow);
        textRect.adjust(0, symbolRect.height() - 1, 0, -1);
        symbolRect.translate(shift);
        paintToolButtonSymbol(call, button, symbolRect, symbolRect, pixmap);
        flags |= Qt::AlignCenter;
    } else {
        symbolRect.setWidth(symbolSize.width() + toolIconMarginBeside);
        textRect.adjust(symbolRect.width(), 0, 0, 0);
        symbolRect.translate(shift);
        paintToolButtonSymbol(call, button, symbolRect,
                              QStyle::visualRect(button.direction, r, symbolRect), pixmap);
        flags |= Qt::AlignLeft | Qt::AlignVCenter;
    }
    textRect.translate(shift);
    paintToolButtonText(
        call, button,
        QStyle::visualRect(button.direction, r, textRect).adjusted(0, 0, 0, -labelBottomMargin),
        flags);
}

/// Draws the icon of the current item. Returns how far the text moves aside.
int paintComboBoxIcon(const PaintCall &call, const QStyleOptionComboBox &comboBox,
                      const QRect &editRect)
{
    const QPixmap pixmap = comboBox.currentIcon.pixmap(
        comboBox.iconSize, call.isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const int width = comboBox.iconSize.width() + comboIconMargin;
    const QRect iconRect = QStyle::alignedRect(comboBox.direction, Qt::AlignLeft | Qt::AlignVCenter,
                                               QSize(width, editRect.height()), editRect);
    if (comboBox.editable)
        call.painter->fillRect(iconRect, comboBox.palette.base());
    call.proxy()->drawItemPixmap(call.painter, iconRect, Qt::AlignCenter, pixmap);
    return call.isRightToLeft() ? -width : width;
}

} // namespace

void paintPushButton(const PaintCall &call)
{
    const auto *button = call.as<QStyleOptionButton>();
    if (!button)
        return;
    call.drawControl(QStyle::CE_PushButtonBevel, *button);
    QStyleOptionButton label(*button);
    label.rect = call.style->subElementRect(QStyle::SE_PushButtonContents, button, call.widget);
    call.drawControl(QStyle::CE_PushButtonLabel, label);
}

void paintPushButtonLabel(const PaintCall &call)
{
    const auto *button = call.as<QStyleOptionButton>();
    if (!button)
        return;
    const bool underlines =
        call.style->styleHint(QStyle::SH_UnderlineShortcut, button, call.widget);
    int flags = Qt::AlignVCenter | (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    QRect textRect = button->rect;
    if (button->icon.isNull()) {
        flags |= Qt::AlignHCenter;
    } else {
        textRect.translate(paintButtonIcon(call, *button, flags), 0);
        if (!button->text.isEmpty())
            flags |= Qt::AlignLeft;
    }
    if (button->features & QStyleOptionButton::HasMenu) {
        textRect.adjust(
            0, 0, -call.proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, button, call.widget),
            0);
    }
    call.drawText(textRect.adjusted(0, 0, 0, -labelBottomMargin), flags, button->text,
                  buttonTextRole(call));
}

void paintToolButtonLabel(const PaintCall &call)
{
    const auto *button = call.as<QStyleOptionToolButton>();
    if (!button)
        return;
    const QPoint shift = toolButtonShift(call);
    const bool hasArrow = button->features & QStyleOptionToolButton::Arrow;
    const bool hasOnlyText = !hasArrow && button->icon.isNull() && !button->text.isEmpty();
    if (hasOnlyText || button->toolButtonStyle == Qt::ToolButtonTextOnly) {
        paintToolButtonText(call, *button, button->rect.translated(shift),
                            Qt::AlignCenter | toolButtonMnemonicFlags(call));
        return;
    }

    QPixmap pixmap;
    QSize symbolSize = button->iconSize;
    if (!button->icon.isNull()) {
        pixmap = toolButtonPixmap(call, *button);
        symbolSize = pixmap.size() / pixmap.devicePixelRatio();
    }
    if (button->toolButtonStyle == Qt::ToolButtonIconOnly) {
        const QRect symbolRect = button->rect.translated(shift);
        paintToolButtonSymbol(call, *button, symbolRect, symbolRect, pixmap);
    } else {
        paintToolButtonSymbolAndText(call, *button, pixmap, symbolSize, shift);
    }
}

void paintComboBoxLabel(const PaintCall &call)
{
    const auto *comboBox = call.as<QStyleOptionComboBox>();
    if (!comboBox)
        return;
    QRect editRect = call.proxy()->subControlRect(QStyle::CC_ComboBox, comboBox,
                                                  QStyle::SC_ComboBoxEditField, call.widget);
    const PainterSaver saver(call.painter);
    call.painter->setClipRect(editRect, Qt::IntersectClip);
    if (!comboBox->currentIcon.isNull())
        editRect.translate(paintComboBoxIcon(call, *comboBox, editRect), 0);
    if (!comboBox->currentText.isEmpty() && !comboBox->editable) {
        call.drawText(
            editRect.adjusted(comboTextMargin, 0, -1, 0),
            QStyle::visualAlignment(comboBox->direction, Qt::AlignLeft | Qt::AlignVCenter),
            comboBox->currentText, QPalette::ButtonText);
    }
}

} // namespace Nocturne::StylePaint

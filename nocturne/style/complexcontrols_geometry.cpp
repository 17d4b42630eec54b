#include "complexcontrols_p.h"

#include "stylehelpers_p.h"

#include <nocturne/painting/kepttext_p.h>

#include <QtWidgets/QStyleOption>

namespace Nocturne::ComplexControls {

using StyleHelpers::dpiScaled;

QRect spinBoxRect(const QStyle *, const QStyleOptionSpinBox *option, QStyle::SubControl part,
                  const QRect &base, const QWidget *)
{
    const QRect &bounds = option->rect;
    const bool hasButtons = option->buttonSymbols != QAbstractSpinBox::NoButtons;
    const int frameWidth = option->frame ? 3 : 0;
    const int middle = bounds.height() / 2;
    const int buttonWidth = int(dpiScaled(14.0));
    const int buttonX = bounds.width() - buttonWidth - frameWidth + 2;

    QRect rect;
    switch (part) {
    case QStyle::SC_SpinBoxUp:
        if (!hasButtons)
            return QRect();
        rect.setRect(buttonX, frameWidth, buttonWidth, middle - frameWidth);
        break;
    case QStyle::SC_SpinBoxDown:
        if (!hasButtons)
            return QRect();
        rect.setRect(buttonX, middle, buttonWidth, bounds.bottom() - middle - frameWidth + 1);
        break;
    case QStyle::SC_SpinBoxEditField: {
        const int fieldWidth = hasButtons ? buttonX - frameWidth - qMax(frameWidth - 1, 0)
                                          : bounds.width() - 2 * frameWidth;
        rect.setRect(frameWidth, frameWidth, fieldWidth, bounds.height() - 2 * frameWidth);
        break;
    }
    case QStyle::SC_SpinBoxFrame:
        rect = bounds;
        break;
    default:
        return base;
    }
    return QStyle::visualRect(option->direction, bounds, rect);
}

QRect comboBoxRect(const QStyle *, const QStyleOptionComboBox *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *)
{
    const QRect &bounds = option->rect;
    QRect rect;
    switch (part) {
    case QStyle::SC_ComboBoxArrow: {
        const QRect logical = QStyle::visualRect(option->direction, bounds, base);
        rect.setRect(logical.right() - 18, logical.top() - 2, 19, logical.height() + 4);
        break;
    }
    case QStyle::SC_ComboBoxEditField:
        rect.setRect(bounds.left() + 2, bounds.top() + 2, bounds.width() - 23, bounds.height() - 4);
        if (!option->editable) {
            rect.adjust(2, 0, 0, 0);
            if (option->state & (QStyle::State_Sunken | QStyle::State_On))
                rect.translate(1, 1);
        }
        break;
    default:
        return base;
    }
    return QStyle::visualRect(option->direction, bounds, rect);
}

QRect sliderRect(const QStyle *style, const QStyleOptionSlider *option, QStyle::SubControl part,
                 const QRect &base, const QWidget *widget)
{
    if (part != QStyle::SC_SliderGroove && part != QStyle::SC_SliderHandle)
        return base;

    const QStyle *proxy = style->proxy();
    const bool horizontal = option->orientation == Qt::Horizontal;
    const int tickSize = proxy->pixelMetric(QStyle::PM_SliderTickmarkOffset, option, widget);
    int awayFromTicks = 0;
    if (option->tickPosition & QSlider::TicksAbove)
        awayFromTicks += tickSize;
    if (option->tickPosition & QSlider::TicksBelow)
        awayFromTicks -= tickSize;

    QRect rect = base;
    if (part == QStyle::SC_SliderGroove) {
        const int thickness = int(dpiScaled(7.0));
        if (horizontal)
            rect.setHeight(thickness);
        else
            rect.setWidth(thickness);
        rect.moveCenter(option->rect.center()
                        + (horizontal ? QPoint(0, awayFromTicks) : QPoint(awayFromTicks, 0)));
        return rect;
    }

    const int thickness = proxy->pixelMetric(QStyle::PM_SliderThickness);
    const int length = proxy->pixelMetric(QStyle::PM_SliderLength);
    if (horizontal) {
        rect.setSize(QSize(length, thickness));
        rect.moveTop(option->rect.center().y() - thickness / 2 + awayFromTicks);
    } else {
        rect.setSize(QSize(thickness, length));
        rect.moveLeft(option->rect.center().x() - thickness / 2 + awayFromTicks);
    }
    return rect;
}

namespace {

QRect groupBoxContents(const QStyle *style, const QStyleOptionGroupBox *option)
{
    const int titleHeight =
        qMax(style->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight), option->fontMetrics.height());
    return option->rect.adjusted(3, titleHeight + 6, -3, -3);
}

} // namespace

QRect groupBoxRect(const QStyle *style, const QStyleOptionGroupBox *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *widget)
{
    if (part == QStyle::SC_GroupBoxFrame)
        return option->rect;
    if (part == QStyle::SC_GroupBoxContents)
        return groupBoxContents(style, option);
    if (part != QStyle::SC_GroupBoxLabel && part != QStyle::SC_GroupBoxCheckBox)
        return base;

    const QSize textSize =
        KeptText::boundingRect(option->fontMetrics, option->text).size() + QSize(2, 2);
    const int indicatorWidth =
        style->proxy()->pixelMetric(QStyle::PM_IndicatorWidth, option, widget);
    QRect rect;
    if (part == QStyle::SC_GroupBoxCheckBox) {
        const int indicatorHeight =
            style->proxy()->pixelMetric(QStyle::PM_IndicatorHeight, option, widget);
        const int top = qMax(0, textSize.height() - indicatorHeight) / 2;
        rect.setRect(1, top, indicatorWidth, indicatorHeight);
    } else {
        rect = QRect(QPoint(0, 1), textSize);
        if (option->subControls & QStyle::SC_GroupBoxCheckBox)
            rect.translate(indicatorWidth + 5, 0);
    }
    return QStyle::visualRect(option->direction, option->rect, rect);
}

namespace {

/// The buttons of a title bar that show in its state, from left to right.
QVector<QStyle::SubControl> titleBarButtons(const QStyleOptionTitleBar *option)
{
    const Qt::WindowFlags flags = option->titleBarFlags;
    const bool minimized = option->titleBarState & Qt::WindowMinimized;
    const bool maximized = option->titleBarState & Qt::WindowMaximized;
    const bool canMinimize = flags & Qt::WindowMinimizeButtonHint;
    const bool canMaximize = flags & Qt::WindowMaximizeButtonHint;
    const bool canShade = flags & Qt::WindowShadeButtonHint;

    QVector<QStyle::SubControl> buttons;
    const auto addIf = [&buttons](bool present, QStyle::SubControl button) {
        if (present)
            buttons << button;
    };
    addIf(flags & Qt::WindowContextHelpButtonHint, QStyle::SC_TitleBarContextHelpButton);
    addIf(canMinimize && !minimized, QStyle::SC_TitleBarMinButton);
    addIf((canMinimize && minimized) || (canMaximize && maximized),
          QStyle::SC_TitleBarNormalButton);
    addIf(canMaximize && !maximized, QStyle::SC_TitleBarMaxButton);
    addIf(canShade && !minimized, QStyle::SC_TitleBarShadeButton);
    addIf(canShade && minimized, QStyle::SC_TitleBarUnshadeButton);
    addIf(flags & Qt::WindowSystemMenuHint, QStyle::SC_TitleBarCloseButton);
    return buttons;
}

QRect titleBarLabel(const QStyleOptionTitleBar *option, int delta)
{
    QRect rect = option->rect;
    if (option->titleBarFlags & Qt::WindowSystemMenuHint)
        rect.adjust(delta, 0, -delta, 0);
    for (Qt::WindowType hint : {Qt::WindowMinimizeButtonHint, Qt::WindowMaximizeButtonHint,
                                Qt::WindowShadeButtonHint, Qt::WindowContextHelpButtonHint})
    {
        if (option->titleBarFlags & hint)
            rect.adjust(0, 0, -delta, 0);
    }
    return rect;
}

} // namespace

QRect titleBarRect(const QStyle *, const QStyleOptionTitleBar *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *)
{
    const QRect &bounds = option->rect;
    const QSize buttonSize(bounds.height() - 6, bounds.height() - 6);
    const int delta = bounds.height() - 4;

    QRect rect;
    if (part == QStyle::SC_TitleBarLabel) {
        if (!(option->titleBarFlags & (Qt::WindowTitleHint | Qt::WindowSystemMenuHint)))
            return base;
        rect = titleBarLabel(option, delta);
    } else if (part == QStyle::SC_TitleBarSysMenu) {
        if (!(option->titleBarFlags & Qt::WindowSystemMenuHint))
            return base;
        rect = QRect(QPoint(bounds.left() + 5, bounds.top() + 3), buttonSize);
    } else {
        const QVector<QStyle::SubControl> buttons = titleBarButtons(option);
        const int index = buttons.indexOf(part);
        if (index < 0)
            return base;
        const int offset = delta * (buttons.size() - index);
        rect = QRect(QPoint(bounds.right() - 3 - offset, bounds.top() + 3), buttonSize);
    }
    return QStyle::visualRect(option->direction, bounds, rect);
}

} // namespace Nocturne::ComplexControls

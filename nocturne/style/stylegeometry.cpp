#include "darkfusionstyle.h"
#include "itemview_p.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyleOption>

// Where the parts of simple controls lie, and how large a control is around its contents.

namespace {

QSize pushButtonSize(const QStyleOptionButton *button, QSize size)
{
    if (!button->text.isEmpty())
        size.setWidth(qMax(size.width(), 60));
    if (!button->icon.isNull() && button->iconSize.height() > 16)
        size.rheight() -= 2;
    size.rheight() += 3;
    return size;
}

/// Room beyond the label for the shortcut, the sub-menu arrow or the bold face of a default item.
int menuItemExtraWidth(const QStyleOptionMenuItem *item)
{
    if (item->text.contains(QLatin1Char('\t')))
        return 20;
    if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
        return 12;
    if (item->menuItemType == QStyleOptionMenuItem::DefaultItem) {
        QFont bold = item->font;
        bold.setWeight(QFont::Bold);
        return QFontMetrics(bold).horizontalAdvance(item->text)
               - QFontMetrics(item->font).horizontalAdvance(item->text);
    }
    return 0;
}

QSize menuItemSize(const QStyleOptionMenuItem *item, const QWidget *widget, QSize size)
{
    size.rwidth() +=
        menuItemExtraWidth(item) + qBound(12, item->maxIconWidth, QWIDGETSIZE_MAX) + 25;

    if (item->menuItemType == QStyleOptionMenuItem::Separator && !item->text.isEmpty()) {
        size.setHeight(item->fontMetrics.height());
    } else if (!item->icon.isNull()) {
        if (const auto *comboBox = qobject_cast<const QComboBox *>(widget))
            size.setHeight(qMax(comboBox->iconSize().height() + 2, size.height()));
    }
    size.setWidth(qMax(size.width() + 12, 120));
    return size;
}

/// The close, restore and minimise buttons beside the menu bar of a maximised window.
QSize mdiControlsSize(const QStyleOptionComplex *controls)
{
    constexpr int buttonWidth = 20;
    constexpr int height = 19;
    if (!controls)
        return QSize(3 * buttonWidth, height);
    int buttons = 0;
    for (QStyle::SubControl button :
         {QStyle::SC_MdiMinButton, QStyle::SC_MdiNormalButton, QStyle::SC_MdiCloseButton})
        buttons += controls->subControls.testFlag(button) ? 1 : 0;
    return QSize(buttons * buttonWidth, height);
}

QRect dockTitleTextRect(const QStyleOption *option, const QRect &rect)
{
    const auto *dock = qstyleoption_cast<const QStyleOptionDockWidget *>(option);
    if (!dock)
        return rect;
    if (dock->verticalTitleBar)
        return rect.adjusted(0, 0, 0, -4);
    return dock->direction == Qt::LeftToRight ? rect.adjusted(4, 0, 0, 0)
                                              : rect.adjusted(0, 0, -4, 0);
}

/// Whether QCommonStyle reads the widget of \a element without asking whether there is one.
bool needsWidget(QStyle::SubElement element)
{
    return element == QStyle::SE_TabBarScrollLeftButton
           || element == QStyle::SE_TabBarScrollRightButton;
}

bool isItemElement(QStyle::SubElement element)
{
    return element == QStyle::SE_ItemViewItemCheckIndicator
           || element == QStyle::SE_ItemViewItemDecoration || element == QStyle::SE_ItemViewItemText
           || element == QStyle::SE_ItemViewItemFocusRect;
}

bool isProgressElement(QStyle::SubElement element)
{
    return element == QStyle::SE_ProgressBarGroove || element == QStyle::SE_ProgressBarContents
           || element == QStyle::SE_ProgressBarLabel;
}

} // namespace

QSize DarkFusionStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                        const QSize &contents, const QWidget *widget) const
{
    if (type == CT_ItemViewItem && Nocturne::ItemView::isShaped(option)) {
        if (const auto *item = Nocturne::ItemView::plainItem(this, option, widget))
            return Nocturne::ItemView::size(this, *item, widget);
    }
    const QSize size = QCommonStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
            return pushButtonSize(button, size);
        return size;
    case CT_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option))
            return menuItemSize(item, widget, size);
        return size;
    case CT_CheckBox:
    case CT_RadioButton:
        return size + QSize(0, 1);
    case CT_ToolButton:
        return size + QSize(2, 2);
    case CT_ComboBox:
        return size + QSize(28, 8);
    case CT_MenuBarItem:
        return size + QSize(8, 5);
    case CT_LineEdit:
        return size + QSize(0, 4);
    case CT_SpinBox:
        return size - QSize(0, 3);
    case CT_SizeGrip:
        return size + QSize(4, 4);
    case CT_GroupBox: {
        const int font = option ? option->fontMetrics.height() : 0;
        return size + QSize(10, qMax(pixelMetric(PM_ExclusiveIndicatorHeight), font) + 3);
    }
    case CT_MdiControls:
        return mdiControlsSize(qstyleoption_cast<const QStyleOptionComplex *>(option));
    default:
        return size;
    }
}

QRect DarkFusionStyle::subElementRect(SubElement element, const QStyleOption *option,
                                      const QWidget *widget) const
{
    if (!option || (!widget && needsWidget(element)))
        return QRect();
    if (isItemElement(element)) {
        if (const auto *item = Nocturne::ItemView::plainItem(this, option, widget))
            return Nocturne::ItemView::elementRect(this, element, *item, widget);
    }
    if (isProgressElement(element))
        return option->rect; // whatever the text needs, which the common style would measure
    const QRect rect = QCommonStyle::subElementRect(element, option, widget);
    switch (element) {
    case SE_PushButtonFocusRect:
        return rect.adjusted(0, 1, 0, -1);
    case SE_DockWidgetTitleBarText:
        return dockTitleTextRect(option, rect);
    default:
        return rect;
    }
}

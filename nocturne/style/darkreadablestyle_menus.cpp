#include "darkreadablestyle_p.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

namespace Nocturne::Readable {

namespace {

constexpr int columnWidth = 20; // the least that the base style keeps free for checks and icons
constexpr int columnMargin = 4; // before it

const QComboBox *comboBoxOf(const Call &call)
{
    return qobject_cast<const QComboBox *>(call.widget);
}

/// In the list of a combo box every item claims to be checkable. Those are that have a check state
/// in the model.
bool isCheckableInModel(const QComboBox *comboBox, const QRect &item)
{
    const QModelIndex index = comboBox->view()->indexAt(item.center());
    return index.data(Qt::CheckStateRole).isValid();
}

/// Where the base style would have no more room for a box of the size that others have.
int columnOf(const QStyleOptionMenuItem &option, int indicator)
{
    return option.menuHasCheckableItems ? qMax(option.maxIconWidth, indicator + columnMargin)
                                        : option.maxIconWidth;
}

int indicatorSize(const QProxyStyle *style, const QStyleOption *option, const QWidget *widget)
{
    return style->proxy()->pixelMetric(QStyle::PM_IndicatorWidth, option, widget);
}

/// A check that stands around the item's icon.
void paintIconCheck(const Call &call, const QRect &column, bool isChecked)
{
    const Shades &shades = call.shades();
    const QRect box = column.adjusted(0, 1, 0, -1);
    call.painter->fillRect(box, call.isEnabled() && isChecked ? shades.accent : shades.outline);
    const int width = isChecked ? 2 : 1;
    call.painter->fillRect(box.adjusted(width, width, -width, -width), call.color(QPalette::Base));
}

void paintCheck(const Call &call, const QStyleOptionMenuItem &item, int column, bool hasBox)
{
    const int extent =
        qMin(indicatorSize(call.style, &item, call.widget), qMax(column, columnWidth) - 2);
    QStyleOptionButton box;
    box.QStyleOption::operator=(item);
    box.rect = QRect(item.rect.left() + columnMargin, item.rect.top(), qMax(column, columnWidth),
                     item.rect.height());
    if (!item.icon.isNull()) {
        paintIconCheck(call, QStyle::visualRect(item.direction, item.rect, box.rect), item.checked);
        return;
    }
    const QPoint centre = box.rect.center();
    box.rect.setSize(QSize(extent, extent));
    box.rect.moveCenter(centre);
    box.rect = QStyle::visualRect(item.direction, item.rect, box.rect);
    box.state &= ~(QStyle::State_On | QStyle::State_Sunken | QStyle::State_NoChange);
    if (item.checked)
        box.state |= QStyle::State_On;
    if (!hasBox) {
        if (item.checked)
            paintCheckMark(call.painter, box.rect, call.color(QPalette::Text));
        return;
    }
    const bool isRadio = item.checkType & QStyleOptionMenuItem::Exclusive;
    call.style->proxy()->drawPrimitive(isRadio ? QStyle::PE_IndicatorRadioButton
                                               : QStyle::PE_IndicatorCheckBox,
                                       &box, call.painter, call.widget);
}

} // namespace

QSize menuItemSize(const QProxyStyle *style, const QStyleOptionMenuItem *option, const QSize &size,
                   const QWidget *widget)
{
    QStyleOptionMenuItem item(*option);
    item.maxIconWidth = columnOf(item, indicatorSize(style, option, widget));
    return style->QProxyStyle::sizeFromContents(QStyle::CT_MenuItem, &item, size, widget);
}

void paintMenuItem(const Call &call)
{
    const auto *option = call.as<QStyleOptionMenuItem>();
    if (!option)
        return;
    QStyleOptionMenuItem item(*option);
    const bool isSeparator = item.menuItemType == QStyleOptionMenuItem::Separator;
    if (!isSeparator && call.has(QStyle::State_Selected | QStyle::State_Enabled))
        call.painter->fillRect(item.rect, item.palette.highlight());

    const QComboBox *comboBox = comboBoxOf(call);
    item.maxIconWidth = columnOf(item, indicatorSize(call.style, option, call.widget));
    if (!isSeparator && item.checkType != QStyleOptionMenuItem::NotCheckable) {
        const bool hasBox = !comboBox || isCheckableInModel(comboBox, item.rect);
        if (hasBox || item.icon.isNull())
            paintCheck(call, item, comboBox ? columnWidth : item.maxIconWidth, hasBox);
        item.checkType = QStyleOptionMenuItem::NotCheckable;
        item.checked = item.checked && !item.icon.isNull(); // keeps the icon's state
    }
    call.baseControl(QStyle::CE_MenuItem, item);
}

void paintMenuBarItem(const Call &call)
{
    const auto *option = call.as<QStyleOptionMenuItem>();
    if (!option)
        return;
    QStyleOptionMenuItem item(*option);
    if (call.has(QStyle::State_Selected | QStyle::State_Enabled)) {
        // The base style fills the ground with Window and shows a selection only once it is open.
        item.palette.setBrush(QPalette::Window, item.palette.highlight());
        item.state |= QStyle::State_Sunken;
    }
    call.baseControl(QStyle::CE_MenuBarItem, item);
}

} // namespace Nocturne::Readable

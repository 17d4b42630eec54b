#include "stylecolors_p.h"
#include "styleelements_p.h"

namespace Nocturne::StylePaint {
namespace {

QString comboBoxKey(const QStyleOptionComboBox *option)
{
    QString key =
        StyleHelpers::styleCacheKey(QStringLiteral("combobox"), option, option->rect.size());
    if (option->state & QStyle::State_On)
        key += QLatin1String("-sunken");
    if (option->editable)
        key += QLatin1String("-editable");
    if (option->state & QStyle::State_Enabled)
        key += QLatin1String("-enabled");
    if (!option->frame) // it moves the arrow
        key += QLatin1String("-frameless");
    if (!(option->subControls & QStyle::SC_ComboBoxArrow))
        key += QLatin1String("-noarrow");
    return key;
}

/// The states that show on the frame of a combo box; an open one looks pressed.
QStyle::State frameState(const QStyleOptionComboBox &option, QStyle::State shown)
{
    QStyle::State state = option.state & shown;
    if (option.state & QStyle::State_On) {
        state &= ~QStyle::State_MouseOver;
        state |= QStyle::State_Sunken;
    }
    return state;
}

void paintComboBoxButton(const PaintCall &call, const QStyleOptionComboBox &option,
                         QPainter *painter)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(option);
    button.state =
        frameState(option, QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_MouseOver
                               | QStyle::State_KeyboardFocusChange);
    call.proxy()->drawPrimitive(QStyle::PE_PanelButtonCommand, &button, painter, call.widget);
}

void paintComboBoxSeparator(const QStyleOptionComboBox &option, QPainter *painter,
                            const QRect &arrow)
{
    const bool sunken = option.state & QStyle::State_On;
    const bool hasFocus =
        option.state & QStyle::State_HasFocus && option.state & QStyle::State_KeyboardFocusChange;
    const bool rightToLeft = option.direction == Qt::RightToLeft;
    int x = arrow.left();
    if (rightToLeft)
        x = sunken ? arrow.right() : arrow.right() - 1;
    const int inset = sunken ? 2 : 1;

    painter->setPen(hasFocus ? QPen(option.palette.highlight(), 1)
                             : QPen(StyleColors::outlineColor(option.palette).lighter(110), 1));
    painter->drawLine(x, arrow.top() + inset, x, arrow.bottom() - inset);
}

void paintComboBoxField(const PaintCall &call, const QStyleOptionComboBox &option,
                        QPainter *painter, const QRect &arrow)
{
    QStyleOptionFrame field;
    field.QStyleOption::operator=(option);
    field.state =
        frameState(option, QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_MouseOver)
        | QStyle::State_KeyboardFocusChange;
    call.proxy()->drawPrimitive(QStyle::PE_FrameLineEdit, &field, painter, call.widget);
    {
        const PainterSaver saver(painter);
        painter->setClipRect(arrow.adjusted(0, 0, 1, 0), Qt::IntersectClip);
        // Right to left this starts beyond the clip: the arrow then stands on the bare field.
        field.rect.setLeft(option.direction == Qt::LeftToRight ? arrow.left() - 6
                                                               : arrow.right() + 6);
        call.proxy()->drawPrimitive(QStyle::PE_PanelButtonCommand, &field, painter, call.widget);
    }
    paintComboBoxSeparator(option, painter, arrow);
}

void paintComboBoxArrow(const QStyleOptionComboBox &option, QPainter *painter, const QRect &arrow)
{
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(StyleColors::withAlpha(option.palette.color(QPalette::ButtonText), 255));
    const int top = arrow.height() / 2 - 2;
    const QRectF box(arrow.right() - 12, top, 8, 8);
    const QPointF triangle[] = {box.topLeft(), box.topRight(),
                                QPointF(box.left() + 4, box.bottom() - 2)};
    painter->drawPolygon(triangle, 3);
}

} // namespace

void paintComboBox(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionComboBox>();
    if (!option)
        return;
    const QSize size = option->rect.size();
    const QString key = comboBoxKey(option);
    const auto paint = [&](QPainter *cached) {
        QStyleOptionComboBox local(*option);
        local.rect = QRect(QPoint(), size);
        const QRect arrow =
            call.subControlRect(QStyle::CC_ComboBox, local, QStyle::SC_ComboBoxArrow);
        if (local.editable)
            paintComboBoxField(call, local, cached, arrow);
        else
            paintComboBoxButton(call, local, cached);
        if (local.subControls & QStyle::SC_ComboBoxArrow)
            paintComboBoxArrow(local, cached, arrow);
    };
    StyleHelpers::drawCached(call.painter, option->rect.topLeft(), key, size, paint);
}

} // namespace Nocturne::StylePaint

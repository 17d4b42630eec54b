#include "complexcontrols_p.h"

#include "stylehelpers_p.h"

#include <QtWidgets/QStyleOption>

namespace Nocturne::ComplexControls {
namespace {

void paintGroupBoxFrame(const QStyle *style, const QStyleOptionGroupBox *option, QPainter *painter,
                        const QWidget *widget)
{
    QStyleOptionFrame frame;
    frame.QStyleOption::operator=(*option);
    frame.features = option->features;
    frame.lineWidth = option->lineWidth;
    frame.midLineWidth = option->midLineWidth;
    frame.rect = style->proxy()->subControlRect(QStyle::CC_GroupBox, option,
                                                QStyle::SC_GroupBoxFrame, widget);
    style->proxy()->drawPrimitive(QStyle::PE_FrameGroupBox, &frame, painter, widget);
}

void paintGroupBoxLabel(const QStyle *style, const QStyleOptionGroupBox *option, QPainter *painter,
                        const QWidget *widget)
{
    const QStyle *proxy = style->proxy();
    const QRect rect =
        proxy->subControlRect(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxLabel, widget);
    int flags = int(option->textAlignment) | Qt::TextShowMnemonic | Qt::AlignLeft;
    if (!proxy->styleHint(QStyle::SH_UnderlineShortcut, option, widget))
        flags |= Qt::TextHideMnemonic;
    painter->setPen(QPen(option->palette.windowText(), 1));
    proxy->drawItemText(painter, rect, flags, option->palette,
                        option->state & QStyle::State_Enabled, option->text, QPalette::NoRole);

    if (option->state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(*option);
        focus.rect = rect.adjusted(-2, -1, 2, 1);
        proxy->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
}

void paintGroupBoxCheckBox(const QStyle *style, const QStyleOptionGroupBox *option,
                           QPainter *painter, const QWidget *widget)
{
    QStyleOptionButton box;
    box.QStyleOption::operator=(*option);
    box.rect = style->proxy()->subControlRect(QStyle::CC_GroupBox, option,
                                              QStyle::SC_GroupBoxCheckBox, widget);
    style->proxy()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, widget);
}

} // namespace

void paintGroupBox(const QStyle *style, const QStyleOptionGroupBox *option, QPainter *painter,
                   const QWidget *widget)
{
    const PainterSaver saver(painter);
    if (option->subControls & QStyle::SC_GroupBoxFrame)
        paintGroupBoxFrame(style, option, painter, widget);
    if (option->subControls & QStyle::SC_GroupBoxLabel && !option->text.isEmpty())
        paintGroupBoxLabel(style, option, painter, widget);
    if (option->subControls & QStyle::SC_GroupBoxCheckBox)
        paintGroupBoxCheckBox(style, option, painter, widget);
}

} // namespace Nocturne::ComplexControls

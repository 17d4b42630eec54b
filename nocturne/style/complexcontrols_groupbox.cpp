#include "styleelements_p.h"

namespace Nocturne::StylePaint {
namespace {

QRect groupBoxPart(const PaintCall &call, const QStyleOptionGroupBox &option,
                   QStyle::SubControl part)
{
    return call.subControlRect(QStyle::CC_GroupBox, option, part);
}

void paintGroupBoxFrame(const PaintCall &call, const QStyleOptionGroupBox &option)
{
    QStyleOptionFrame frame;
    frame.QStyleOption::operator=(option);
    frame.features = option.features;
    frame.lineWidth = option.lineWidth;
    frame.midLineWidth = option.midLineWidth;
    frame.rect = groupBoxPart(call, option, QStyle::SC_GroupBoxFrame);
    call.drawPrimitive(QStyle::PE_FrameGroupBox, frame);
}

void paintGroupBoxLabel(const PaintCall &call, const QStyleOptionGroupBox &option)
{
    const QRect rect = groupBoxPart(call, option, QStyle::SC_GroupBoxLabel);
    int flags = int(option.textAlignment) | Qt::TextShowMnemonic | Qt::AlignLeft;
    if (!call.proxy()->styleHint(QStyle::SH_UnderlineShortcut, &option, call.widget))
        flags |= Qt::TextHideMnemonic;
    call.painter->setPen(QPen(option.palette.windowText(), 1));
    call.drawText(rect, flags, option.text, QPalette::NoRole);

    if (call.has(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = rect.adjusted(-2, -1, 2, 1);
        call.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void paintGroupBoxCheckBox(const PaintCall &call, const QStyleOptionGroupBox &option)
{
    QStyleOptionButton box;
    box.QStyleOption::operator=(option);
    box.rect = groupBoxPart(call, option, QStyle::SC_GroupBoxCheckBox);
    call.drawPrimitive(QStyle::PE_IndicatorCheckBox, box);
}

} // namespace

void paintGroupBox(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionGroupBox>();
    if (!option)
        return;
    const PainterSaver saver(call.painter);
    if (option->subControls & QStyle::SC_GroupBoxFrame)
        paintGroupBoxFrame(call, *option);
    if (option->subControls & QStyle::SC_GroupBoxLabel && !option->text.isEmpty())
        paintGroupBoxLabel(call, *option);
    if (option->subControls & QStyle::SC_GroupBoxCheckBox)
        paintGroupBoxCheckBox(call, *option);
}

} // namespace Nocturne::StylePaint

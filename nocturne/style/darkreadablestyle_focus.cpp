#include "darkreadablestyle_p.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTabBar>

namespace Nocturne::Readable {

namespace {

/// The indicator and the label: the box itself may be as wide as the window.
template <typename Button>
QRect indicatorAndLabel(const Button *button, QStyle::SubElement indicator,
                        QStyle::SubElement label)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    const QStyle *style = button->style();
    return style->subElementRect(indicator, &option, button)
           | style->subElementRect(label, &option, button);
}

/// The part of \a widget that has the focus, in its own units.
QRect focusedPart(const QWidget *widget)
{
    if (const auto *bar = qobject_cast<const QTabBar *>(widget))
        return bar->tabRect(bar->currentIndex());
    const bool isPlain = widget->metaObject() == &QCheckBox::staticMetaObject
                         || widget->metaObject() == &QRadioButton::staticMetaObject;
    if (isPlain) {
        if (const auto *box = qobject_cast<const QCheckBox *>(widget))
            return indicatorAndLabel(box, QStyle::SE_CheckBoxIndicator,
                                     QStyle::SE_CheckBoxFocusRect);
        if (const auto *button = qobject_cast<const QRadioButton *>(widget))
            return indicatorAndLabel(button, QStyle::SE_RadioButtonIndicator,
                                     QStyle::SE_RadioButtonFocusRect);
    }
    return widget->rect();
}

void removeFrame(Face &face)
{
    delete face.frame;
}

void addFrame(Face &face, QWidget *widget)
{
    // A splitter would take the frame for one of its panes.
    if (widget->isWindow() || qobject_cast<QSplitter *>(widget->window()))
        return;
    auto *frame = new QFocusFrame(widget->parentWidget());
    frame->setWidget(widget);
    QObject::connect(widget, &QObject::destroyed, frame, [frame] { delete frame; });
    if (auto *bar = qobject_cast<QTabBar *>(widget))
        QObject::connect(bar, &QTabBar::currentChanged, frame, [frame] { frame->update(); });
    face.frame = frame;
}

bool hasComeByKeyboard(const Face &face, Qt::FocusReason reason)
{
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::MouseFocusReason:
        return false;
    case Qt::OtherFocusReason:
        return face.lastInputWasKey;
    default: // back from another window, from a menu, from a list
        return face.byKeyboard;
    }
}

bool hasFocusByKeyboard(const QStyleOption *option)
{
    const QStyle::State both = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option->state & both) == both;
}

bool isFramed(const Call &call)
{
    return call.face.frame && call.face.frame->widget() == call.widget;
}

} // namespace

void paintFocusFrame(QPainter *painter, const QRect &rect, const Shades &shades, bool hasContour)
{
    const QRect inside =
        rect.adjusted(focusFrameWidth, focusFrameWidth, -focusFrameWidth, -focusFrameWidth);
    for (const QRect &side : QRegion(rect) - inside)
        painter->fillRect(side, shades.accent);
    if (!hasContour)
        return;
    for (const QRect &side : QRegion(inside) - inside.adjusted(1, 1, -1, -1))
        painter->fillRect(side, shades.contour);
}

void paintFocusRect(const Call &call)
{
    const bool isItem = qobject_cast<const QAbstractItemView *>(call.widget);
    if (call.has(QStyle::State_KeyboardFocusChange) && (isItem || !isFramed(call)))
        paintFocusFrame(call.painter, call.option->rect, call.shades());
}

void paintFocusWithoutFrame(const Call &call)
{
    if (hasFocusByKeyboard(call.option) && !isFramed(call))
        paintFocusFrame(call.painter, call.option->rect, call.shades());
}

void paintWidgetFrame(const Call &call)
{
    const auto *frame = qobject_cast<const QFocusFrame *>(call.widget);
    const QWidget *widget = frame ? frame->widget() : nullptr;
    if (!widget)
        return;
    // Where the frame would leave the window, it lies on the widget instead.
    const QRect around =
        focusedPart(widget)
            .translated(frame->mapFromGlobal(widget->mapToGlobal(QPoint())))
            .adjusted(-focusFrameWidth, -focusFrameWidth, focusFrameWidth, focusFrameWidth);
    const QWidget *ground = frame->parentWidget();
    const QRect visible = ground->rect().translated(-frame->pos()) & frame->rect();
    paintFocusFrame(call.painter, around & visible, call.face.shades(widget->palette()),
                    !visible.contains(around));
}

bool isPaintedBy(const QStyle *style, const QWidget *widget)
{
    const QStyle *top = widget->style();
    if (top->inherits("QStyleSheetStyle"))
        top = QApplication::style();
    while (top != style) {
        const auto *proxy = qobject_cast<const QProxyStyle *>(top);
        if (!proxy)
            return false;
        top = proxy->baseStyle();
    }
    return true;
}

void followFocus(QStyle *style, Face &face, QWidget *widget, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        if (face.frame && face.frame->widget() == widget)
            removeFrame(face);
        return;
    }
    removeFrame(face);
    face.byKeyboard = hasComeByKeyboard(face, static_cast<QFocusEvent *>(event)->reason());
    if (!isPaintedBy(style, widget))
        return;
    // What controls are told in their options.
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange, face.byKeyboard);
    if (face.byKeyboard)
        addFrame(face, widget);
}

} // namespace Nocturne::Readable

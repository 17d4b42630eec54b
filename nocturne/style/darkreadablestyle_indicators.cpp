#include "darkreadablestyle_p.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyleOptionComplex>
#include <QtWidgets/QTabBar>

namespace Nocturne::Readable {

namespace {

enum Drawing { CheckBoxDrawing, RadioDrawing, ComboBoxDrawing };

constexpr int hoverAlpha = 26;   // of white over what is under the pointer
constexpr qreal ringWidth = 1.4; // of straight lines: smoothing takes some away
constexpr int chosenLine = 2;    // along the edge of chosen tabs and checked buttons

/// The bits that an indicator depends on.
int indicatorState(const Call &call)
{
    return int(call.option->state
               & (QStyle::State_Enabled | QStyle::State_On | QStyle::State_NoChange
                  | QStyle::State_Sunken));
}

/// A disabled box is hollow, so that it is told from an enabled one without comparing greys.
QBrush boxBrush(const Call &call)
{
    if (!call.isEnabled())
        return call.color(QPalette::Window);
    if (call.has(QStyle::State_Sunken))
        return mixed(call.color(QPalette::Base), call.color(QPalette::WindowText), 85);
    return call.color(QPalette::Base);
}

/// Lines grow with the indicator, which grows with the font.
qreal lineWidth(const QSizeF &box)
{
    return qMax(1.0, qMin(box.width(), box.height()) / 14.0);
}

QRectF insideLine(const QRectF &rect, qreal width)
{
    return rect.adjusted(width / 2, width / 2, -width / 2, -width / 2);
}

QRect edgeOf(const QRect &rect, QTabBar::Shape shape)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        return QRect(rect.left(), rect.bottom() - chosenLine + 1, rect.width(), chosenLine);
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        return QRect(rect.left(), rect.top(), chosenLine, rect.height());
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        return QRect(rect.right() - chosenLine + 1, rect.top(), chosenLine, rect.height());
    default:
        return QRect(rect.left(), rect.top(), rect.width(), chosenLine);
    }
}

void paintHover(QPainter *painter, const QRect &rect)
{
    painter->fillRect(rect, QColor(255, 255, 255, hoverAlpha));
}

/// Right to left the base style leaves the button of an editable combo box away. So it paints
/// left to right here, and the picture is turned.
void paintComboBoxPicture(const Call &call, const QStyleOptionComboBox &option, QPainter *painter)
{
    QStyleOptionComboBox local(option);
    local.rect = QRect(QPoint(), option.rect.size());
    local.palette = call.shades().ownKept;
    local.state &= ~QStyle::State_HasFocus;
    if (call.isRightToLeft()) {
        painter->translate(local.rect.width(), 0);
        painter->scale(-1, 1);
        local.direction = Qt::LeftToRight;
    }
    call.style->QProxyStyle::drawComplexControl(QStyle::CC_ComboBox, &local, painter, call.widget);
}

} // namespace

void paintCheckMark(QPainter *painter, const QRectF &box, const QColor &color)
{
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, box.width() * 0.14, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    const QPointF points[] = {at(0.20, 0.50), at(0.42, 0.72), at(0.82, 0.24)};
    painter->drawPolyline(points, 3);
}

void paintCheckBox(const Call &call)
{
    const QSize size = call.option->rect.size();
    const auto paint = [&call, size](QPainter *painter) {
        const Shades &shades = call.shades();
        const QRectF box(QPointF(), size);
        const qreal width = lineWidth(size);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(shades.outline, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->setBrush(boxBrush(call));
        painter->drawRect(insideLine(box, width));
        if (call.has(QStyle::State_NoChange)) {
            const qreal margin = box.width() * 0.27;
            painter->fillRect(box.adjusted(margin, margin, -margin, -margin), shades.mark);
        } else if (call.has(QStyle::State_On)) {
            paintCheckMark(painter, box, shades.mark);
        }
    };
    call.face.kept.draw(call.painter, call.option->rect.topLeft(),
                        call.key(CheckBoxDrawing, size, indicatorState(call)), paint);
}

void paintRadioButton(const Call &call)
{
    const QSize size = call.option->rect.size();
    const auto paint = [&call, size](QPainter *painter) {
        const Shades &shades = call.shades();
        const qreal extent = qMin(size.width(), size.height());
        QRectF ring(0, 0, extent, extent);
        ring.moveCenter(QRectF(QPointF(), size).center());
        const qreal width = lineWidth(size) * ringWidth;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(shades.outline, width));
        painter->setBrush(boxBrush(call));
        painter->drawEllipse(insideLine(ring, width));
        if (call.has(QStyle::State_On)) {
            const qreal margin = extent * 0.29;
            painter->setPen(Qt::NoPen);
            painter->setBrush(shades.mark);
            painter->drawEllipse(ring.adjusted(margin, margin, -margin, -margin));
        }
    };
    call.face.kept.draw(call.painter, call.option->rect.topLeft(),
                        call.key(RadioDrawing, size, indicatorState(call)), paint);
}

void paintButtonPanel(const Call &call)
{
    call.style->QProxyStyle::drawPrimitive(QStyle::PE_PanelButtonCommand, call.option, call.painter,
                                           call.widget);
    const QRect panel = call.option->rect.adjusted(2, 2, -2, -2);
    const bool isDown = call.has(QStyle::State_Sunken) || call.has(QStyle::State_On);
    if (call.has(QStyle::State_MouseOver | QStyle::State_Enabled) && !isDown)
        paintHover(call.painter, panel);
    if (call.has(QStyle::State_On)) {
        const Shades &shades = call.shades();
        call.painter->fillRect(edgeOf(panel, QTabBar::RoundedSouth),
                               call.isEnabled() ? shades.accent : shades.outline);
    }
}

void paintPushButtonLabel(const Call &call)
{
    const auto *option = call.as<QStyleOptionButton>();
    if (!option)
        return;
    QStyleOptionButton label(*option);
    label.palette = call.shades().pressedLabel;
    // The base style keeps the right end free for the arrow, which is at the left end here.
    if (call.isRightToLeft() && option->features & QStyleOptionButton::HasMenu) {
        label.rect.translate(
            call.style->proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, option, call.widget),
            0);
    }
    call.baseControl(QStyle::CE_PushButtonLabel, label);
}

void paintTabShape(const Call &call)
{
    const auto *tab = call.as<QStyleOptionTab>();
    if (!tab)
        return;
    call.baseControl(QStyle::CE_TabBarTabShape, *tab);
    const QRect inside = tab->rect.adjusted(1, 1, -1, -1);
    if (call.has(QStyle::State_Selected))
        call.painter->fillRect(edgeOf(inside, tab->shape),
                               call.isEnabled() ? call.shades().accent : call.shades().outline);
    else if (call.has(QStyle::State_MouseOver | QStyle::State_Enabled))
        paintHover(call.painter, inside);
}

void paintComboBox(const Call &call)
{
    const auto *option = call.as<QStyleOptionComboBox>();
    if (!option)
        return;
    const int state =
        int(option->state & (QStyle::State_Enabled | QStyle::State_On | QStyle::State_MouseOver))
        | (option->editable ? 1 << 28 : 0)
        | (option->subControls & QStyle::SC_ComboBoxArrow ? 1 << 29 : 0)
        | (call.isRightToLeft() ? 1 << 30 : 0);
    call.face.kept.draw(call.painter, option->rect.topLeft(),
                        call.key(ComboBoxDrawing, option->rect.size(), state),
                        [&](QPainter *painter) { paintComboBoxPicture(call, *option, painter); });
    paintFocusWithoutFrame(call);
}

void paintSpinBox(const Call &call)
{
    const auto *option = call.as<QStyleOptionSpinBox>();
    if (!option)
        return;
    QStyleOptionSpinBox box(*option);
    box.palette = call.shades().arrows;
    call.baseComplex(QStyle::CC_SpinBox, box);
    paintFocusWithoutFrame(call);
}

void paintTitleBar(const Call &call)
{
    const auto *option = call.as<QStyleOptionTitleBar>();
    if (!option)
        return;
    QStyleOptionTitleBar bar(*option);
    const bool isActive = option->titleBarState & QStyle::State_Active;
    bar.palette = isActive ? call.shades().titleBar : call.shades().inactiveTitleBar;
    bar.titleBarState |= QStyle::State_Active;
    call.baseComplex(QStyle::CC_TitleBar, bar);
}

} // namespace Nocturne::Readable

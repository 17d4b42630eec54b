#include "colorbutton.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QStyleOptionButton>

namespace {

constexpr QRgb downTop = 0xff181818;
constexpr QRgb downBottom = 0xff101010;
constexpr QRgb downBorder = 0xff141414;

void acceptColor(QDropEvent *event)
{
    if (event->mimeData()->hasColor())
        event->accept();
    else
        event->ignore();
}

} // namespace

ColorButton::ColorButton(const QColor &color, QWidget *parent)
    : QAbstractButton(parent)
    , m_color(color)
{
    setAcceptDrops(true);
    connect(this, &ColorButton::clicked, this, &ColorButton::changeColor);
}

ColorButton::ColorButton(QWidget *parent)
    : ColorButton(Qt::black, parent)
{}

ColorButton::~ColorButton() = default;

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void ColorButton::setRealtimeChange(bool realtime)
{
    m_realtimeChange = realtime;
}

QSize ColorButton::sizeHint() const
{
    return QSize(40, 26);
}

QSize ColorButton::minimumSizeHint() const
{
    return sizeHint();
}

void ColorButton::changeColor()
{
    const QColor before = m_color;
    // Not on the stack: a button that is deleted while its dialog is open takes the dialog along.
    const QPointer<QColorDialog> dialog(new QColorDialog(this));
    if (m_realtimeChange)
        connect(dialog, &QColorDialog::currentColorChanged, this, &ColorButton::colorChange);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QColor chosen = dialog->selectedColor();
    delete dialog;
    if (accepted && !chosen.isValid())
        return;

    const QPointer<ColorButton> self(this);
    setColor(before);
    Q_EMIT colorChanged(0.0, false);
    if (!accepted || !self)
        return;
    setColor(chosen);
    Q_EMIT colorChanged(0.0, true);
}

void ColorButton::colorChange(QColor c)
{
    setColor(c);
    Q_EMIT colorChanged(0.0, false);
}

void ColorButton::mousePressEvent(QMouseEvent *event)
{
    m_pressPoint = event->pos();
    m_dragPending = true;
    QAbstractButton::mousePressEvent(event);
}

void ColorButton::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragPending
        || (m_pressPoint - event->pos()).manhattanLength() <= QApplication::startDragDistance())
        return;
    m_dragPending = false;
    setDown(false);
    auto *mimeData = new QMimeData;
    mimeData->setColorData(m_color);
    auto *drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->exec(Qt::CopyAction);
}

void ColorButton::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragPending = false;
    QAbstractButton::mouseReleaseEvent(event);
}

void ColorButton::dragEnterEvent(QDragEnterEvent *event)
{
    acceptColor(event);
}

void ColorButton::dragMoveEvent(QDragMoveEvent *event)
{
    acceptColor(event);
}

void ColorButton::dropEvent(QDropEvent *event)
{
    acceptColor(event);
    // A colour that comes back to where it was dragged from has changed nothing.
    if (!event->isAccepted() || event->source() == this)
        return;
    setColor(event->mimeData()->colorData().value<QColor>());
    Q_EMIT colorChanged(0.0, true);
}

void ColorButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawButton(&painter);
}

void ColorButton::drawButton(QPainter *painter)
{
    QStyleOptionButton option;
    option.initFrom(this);
    const QRect r = option.rect.adjusted(2, 2, -2, -2);
    painter->setRenderHint(QPainter::Antialiasing, false);

    if (isDown() || isChecked()) {
        painter->setBrush(Nocturne::ThemePaint::verticalGradient(
            r.top(), r.height(), {{0, QColor(downTop)}, {1, QColor(downBottom)}}));
        painter->setPen(QColor(downBorder));
        painter->drawRect(r);
    } else {
        painter->setBrush(Nocturne::ThemePaint::verticalGradient(
            r.top(), r.height(),
            {{0, Nocturne::ThemePaint::window(24)}, {1, Nocturne::ThemePaint::window(1)}}));
        painter->setPen(Nocturne::ThemePaint::window(-18));
        painter->drawRect(r);
        painter->setPen(Nocturne::ThemePaint::window(33));
        painter->setBrush(Qt::NoBrush);
        painter->drawLine(r.x() + 2, r.y() + 1, r.right() - 1, r.y() + 1);
    }
    painter->setPen(Nocturne::ThemePaint::window(29, 128));
    painter->drawLine(r.x() + 2, r.bottom() + 2, r.right() - 1, r.bottom() + 2);

    painter->save();
    drawButtonLabel(painter);
    painter->restore();
}

void ColorButton::drawButtonLabel(QPainter *painter)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (hasFocus())
        group = QPalette::Active;
    else if (isEnabled())
        group = QPalette::Inactive;
    painter->setPen(palette().color(group, QPalette::ButtonText));
    painter->setBrush(m_color);
    painter->drawRect(width() / 4, height() / 4, width() / 2, height() / 2);
}

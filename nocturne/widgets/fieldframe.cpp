#include "fieldframe_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace Nocturne::FieldFrame {

namespace {

constexpr int labelIndent = 6;
constexpr qreal cornerRadius = 4.0;

QString labelName()
{
    return QStringLiteral("edit");
}

} // namespace

void setUp(QWidget *field)
{
    field->setFocusPolicy(Qt::ClickFocus);
    field->setAttribute(Qt::WA_MacShowFocusRect, true);
    field->setAttribute(Qt::WA_InputMethodEnabled, false);

    auto *label = new QLabel(field);
    label->setObjectName(labelName());
    label->setIndent(labelIndent);
    label->setFocusProxy(field);

    auto *layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
}

void setText(const QWidget *field, const QString &text)
{
    if (auto *label = field->findChild<QLabel *>(labelName()))
        label->setText(text);
}

void paint(QWidget *field)
{
    const QRect frame = field->rect().adjusted(1, 1, -2, -2);
    QPainter painter(field);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ThemePaint::window(-11));
    painter.drawRoundedRect(frame, cornerRadius, cornerRadius);

    if (field->hasFocus()) {
        painter.setPen(QColor(ThemePaint::accentBlue));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, cornerRadius, cornerRadius);
    }
}

} // namespace Nocturne::FieldFrame

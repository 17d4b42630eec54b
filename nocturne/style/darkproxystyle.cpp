#include "darkproxystyle.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/painterguards_p.h>

#include <QtCore/QRegularExpression>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

constexpr int badgeSpace = 18;
constexpr qreal badgeRadius = 3.0;

/// The digit of a badge; empty when \a text carries none or more than one.
QString badgeLabel(const QString &text)
{
    static const QRegularExpression badge(QStringLiteral("^&(\\d);"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return badge.match(text).captured(1);
}

/// \a text without its number, however long, and without its shortcut.
QString menuLabel(QString text)
{
    static const QRegularExpression number(QStringLiteral("^&\\d+;"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    text.remove(number);
    const int tab = text.indexOf(QLatin1Char('\t'));
    return tab < 0 ? text : text.left(tab);
}

} // namespace

DarkProxyStyle::DarkProxyStyle(const QString &key)
    : QProxyStyle(key)
{
    // The base style is created when it is first asked for something.
    QPalette palette;
    QProxyStyle::polish(palette);
}

DarkProxyStyle::~DarkProxyStyle() = default;

void DarkProxyStyle::drawControl(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case CE_MenuEmptyArea:
        if (widget)
            painter->fillRect(widget->rect(), Qt::yellow);
        break;
    case CE_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            drawMenuBadge(item, badgeLabel(item->text), painter, widget);
            QStyleOptionMenuItem shifted(*item);
            shifted.rect.setLeft(item->rect.left() + badgeSpace);
            shifted.text = menuLabel(item->text);
            QProxyStyle::drawControl(CE_MenuItem, &shifted, painter, widget);
        }
        break;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
        break;
    }
}

void DarkProxyStyle::drawMenuBadge(const QStyleOption *option, const QString &label,
                                   QPainter *painter, const QWidget *widget) const
{
    const Nocturne::PainterSaver saver(painter);
    painter->setBackgroundMode(Qt::OpaqueMode);
    painter->setBackground(Qt::red);
    painter->setBrush(Qt::blue);
    painter->setPen(Qt::NoPen);
    const int size = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
    const QPoint corner = option->rect.topLeft();
    painter->drawRoundedRect(QRect(corner + QPoint(1, 3), QSize(size, size)), badgeRadius,
                             badgeRadius);
    painter->setPen(Qt::white);
    Nocturne::KeptText::draw(painter, QRect(corner + QPoint(1, 2), QSize(size, size)),
                             Qt::AlignCenter, label);
}

void DarkProxyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int DarkProxyStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returnData) const
{
    if (hint == SH_ScrollBar_Transient)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

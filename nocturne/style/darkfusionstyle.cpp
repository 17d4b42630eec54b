#include "darkfusionstyle.h"

#include "darkfusionstyle_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/toolkitexports_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSplitterHandle>

namespace {

constexpr int framesPerSecond = 60;

/// The controls that look different under the pointer. Dock separators are known by name only.
bool showsHover(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
           || qobject_cast<const QProgressBar *>(widget)
           || qobject_cast<const QAbstractSlider *>(widget) // scroll bars among them
           || qobject_cast<const QSplitterHandle *>(widget)
           || qobject_cast<const QAbstractSpinBox *>(widget) || widget->inherits("QDockSeparator")
           || widget->inherits("QDockWidgetSeparator");
}

} // namespace

DarkFusionStylePrivate::DarkFusionStylePrivate()
{
    animationFps = framesPerSecond;
}

DarkFusionStyle::DarkFusionStyle()
    : DarkFusionStyle(*new DarkFusionStylePrivate)
{}

DarkFusionStyle::DarkFusionStyle(DarkFusionStylePrivate &dd)
    : QCommonStyle(dd)
{
    setObjectName(QStringLiteral("DarkFusion"));
}

DarkFusionStyle::~DarkFusionStyle() = default;

void DarkFusionStyle::polish(QPalette &palette)
{
    QCommonStyle::polish(palette);
}

void DarkFusionStyle::polish(QApplication *application)
{
    QCommonStyle::polish(application);
}

void DarkFusionStyle::polish(QWidget *widget)
{
    if (!widget)
        return;
    QCommonStyle::polish(widget);
    if (showsHover(widget)) {
        widget->setAttribute(Qt::WA_Hover, true);
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
}

void DarkFusionStyle::unpolish(QApplication *application)
{
    QCommonStyle::unpolish(application);
}

void DarkFusionStyle::unpolish(QWidget *widget)
{
    if (!widget)
        return;
    QCommonStyle::unpolish(widget);
    if (showsHover(widget))
        widget->setAttribute(Qt::WA_Hover, false);
}

QRect DarkFusionStyle::itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const
{
    return QCommonStyle::itemPixmapRect(rect, flags, pixmap);
}

void DarkFusionStyle::drawItemText(QPainter *painter, const QRect &rect, int alignment,
                                   const QPalette &palette, bool enabled, const QString &text,
                                   QPalette::ColorRole textRole) const
{
    Q_UNUSED(enabled)
    if (text.isEmpty())
        return;
    const QPen savedPen = painter->pen();
    if (textRole != QPalette::NoRole)
        painter->setPen(QPen(palette.brush(textRole), savedPen.widthF()));
    Nocturne::KeptText::draw(painter, rect, alignment, text);
    painter->setPen(savedPen);
}

void DarkFusionStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                     const QPixmap &pixmap) const
{
    QCommonStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}

QPalette DarkFusionStyle::standardPalette() const
{
    return qt_fusionPalette();
}

#include "darkreadablestyle.h"

#include "darkreadablestyle_p.h"

#include <nocturne/style/darkfusionstyle.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QTabBar>

using Nocturne::Readable::Call;

namespace {

QStyle *orDarkFusion(QStyle *base)
{
    return base ? base : new DarkFusionStyle;
}

/// Symbols of title bars come at the size of the pictures they replace.
constexpr int titleBarGlyphExtent = 12;

} // namespace

DarkReadableStyle::DarkReadableStyle(QStyle *base)
    : QProxyStyle(orDarkFusion(base))
    , m_face(std::make_unique<Nocturne::Readable::Face>())
{
    setObjectName(QStringLiteral("DarkFusionReadable"));
}

DarkReadableStyle::~DarkReadableStyle()
{
    delete m_face->frame;
}

void DarkReadableStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (!m_face->filtersEvents && qApp) {
        m_face->filtersEvents = true;
        qApp->installEventFilter(this);
    }
    if (qobject_cast<QTabBar *>(widget))
        widget->setAttribute(Qt::WA_Hover, true);
}

void DarkReadableStyle::unpolish(QWidget *widget)
{
    if (m_face->frame && m_face->frame->widget() == widget)
        delete m_face->frame;
    if (qobject_cast<QTabBar *>(widget))
        widget->setAttribute(Qt::WA_Hover, false);
    QProxyStyle::unpolish(widget);
}

void DarkReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                      QPainter *painter, const QWidget *widget) const
{
    const Call call{this, *m_face, option, painter, widget};
    switch (element) {
    case PE_FrameFocusRect:
        paintFocusRect(call);
        break;
    case PE_IndicatorCheckBox:
        paintCheckBox(call);
        break;
    case PE_IndicatorRadioButton:
        paintRadioButton(call);
        break;
    case PE_PanelButtonCommand:
        paintButtonPanel(call);
        break;
    case PE_IndicatorTabClose:
        if (call.has(State_Enabled | State_MouseOver))
            proxy()->drawPrimitive(PE_PanelButtonCommand, option, painter, widget);
        proxy()
            ->standardIcon(SP_DialogCloseButton, option, widget)
            .paint(painter, option->rect, Qt::AlignCenter,
                   call.isEnabled() ? QIcon::Normal : QIcon::Disabled);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void DarkReadableStyle::drawControl(ControlElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    const Call call{this, *m_face, option, painter, widget};
    switch (element) {
    case CE_PushButton:
        QProxyStyle::drawControl(element, option, painter, widget);
        paintFocusWithoutFrame(call);
        break;
    case CE_PushButtonLabel:
        paintPushButtonLabel(call);
        break;
    case CE_TabBarTabShape:
        paintTabShape(call);
        break;
    case CE_ProgressBarContents:
        paintProgressContents(call);
        break;
    case CE_ProgressBarLabel:
        paintProgressLabel(call);
        break;
    case CE_MenuItem:
        paintMenuItem(call);
        break;
    case CE_MenuBarItem:
        paintMenuBarItem(call);
        break;
    case CE_FocusFrame:
        paintWidgetFrame(call);
        break;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void DarkReadableStyle::drawComplexControl(ComplexControl control,
                                           const QStyleOptionComplex *option, QPainter *painter,
                                           const QWidget *widget) const
{
    const Call call{this, *m_face, option, painter, widget};
    switch (control) {
    case CC_ComboBox:
        paintComboBox(call);
        break;
    case CC_ScrollBar:
        paintScrollBar(call);
        break;
    case CC_Slider:
        paintSlider(call);
        break;
    case CC_Dial:
        paintDial(call);
        break;
    case CC_TitleBar:
        paintTitleBar(call);
        break;
    case CC_SpinBox:
        paintSpinBox(call);
        break;
    default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QSize DarkReadableStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                          const QSize &size, const QWidget *widget) const
{
    if (type == CT_MenuItem) {
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option))
            return Nocturne::Readable::menuItemSize(this, item, size, widget);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int DarkReadableStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ScrollBar_Transient:
    case SH_EtchDisabledText:
    case SH_FocusFrame_Mask:
        return 0;
    case SH_FocusFrame_AboveWidget:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon DarkReadableStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                      const QWidget *widget) const
{
    const QIcon glyph = Nocturne::Readable::glyph(icon);
    return glyph.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : glyph;
}

QPixmap DarkReadableStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                          const QWidget *widget) const
{
    const QIcon glyph = Nocturne::Readable::glyph(pixmap);
    return glyph.isNull() ? QProxyStyle::standardPixmap(pixmap, option, widget)
                          : glyph.pixmap(titleBarGlyphExtent);
}

bool DarkReadableStyle::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        m_face->lastInputWasKey = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        m_face->lastInputWasKey = false;
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (watched->isWidgetType())
            followFocus(this, *m_face, static_cast<QWidget *>(watched), event);
        break;
    default:
        break;
    }
    return QProxyStyle::eventFilter(watched, event);
}

#include "moc_darkreadablestyle.cpp"

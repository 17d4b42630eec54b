#include "gradienttoolaccessible_p.h"

#include "accessiblefactory_p.h"
#include "gradienttool.h"
#include "gradienttoolslider_p.h"

#include <QtWidgets/QAccessibleWidget>

namespace Nocturne {

/// The editor. Its children are its markers, by number.
class StopGroupInterface : public QAccessibleWidget
{
public:
    explicit StopGroupInterface(GradientTool *editor)
        : QAccessibleWidget(editor, QAccessible::Grouping)
        , m_editor(editor)
    {}

    QAccessibleInterface *focusChild() const override
    {
        GradientToolSlider *marker = m_editor->hasFocus() ? m_editor->activeMarker() : nullptr;
        return marker ? QAccessible::queryAccessibleInterface(marker)
                      : QAccessibleWidget::focusChild();
    }

private:
    GradientTool *m_editor;
};

/// A marker as a slider with the position of its stop.
class StopInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    StopInterface(GradientToolSlider *marker, GradientTool *editor)
        : QAccessibleWidget(marker, QAccessible::Slider)
        , m_marker(marker)
        , m_editor(editor)
    {}

    QString text(QAccessible::Text text) const override
    {
        switch (text) {
        case QAccessible::Name:
            return GradientTool::tr("Color stop %1").arg(number() + 1);
        case QAccessible::Description:
            return m_marker->color().name();
        case QAccessible::Value:
            return QStringLiteral("%1 %").arg(qRound(position() * 100.0));
        default:
            return QAccessibleWidget::text(text);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const bool isActive = m_editor->activeMarker() == m_marker;
        state.selectable = true;
        state.selected = isActive;
        state.focusable = true;
        state.focused = isActive && m_editor->hasFocus();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return position(); }
    void setCurrentValue(const QVariant &value) override
    {
        if (!state().disabled)
            m_editor->moveStop(number(), value.toDouble(), true);
    }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumStepSize() const override { return stopKeyStep; }

private:
    /// -1 while a removed marker waits for its deletion.
    int number() const { return m_editor->numberOf(m_marker); }
    double position() const
    {
        const int stop = number();
        return stop < 0 ? 0.0 : m_editor->m_stops.at(stop).first;
    }

    GradientToolSlider *m_marker;
    GradientTool *m_editor;
};

namespace {

QAccessibleInterface *createStopOrGroup(const QString &className, QObject *object)
{
    if (className == QLatin1String("GradientTool")) {
        if (auto *editor = qobject_cast<GradientTool *>(object))
            return new StopGroupInterface(editor);
    }
    if (className == QLatin1String("GradientToolSlider")) {
        auto *marker = qobject_cast<GradientToolSlider *>(object);
        auto *editor = marker ? qobject_cast<GradientTool *>(marker->parentWidget()) : nullptr;
        if (editor)
            return new StopInterface(marker, editor);
    }
    return nullptr;
}

} // namespace

void StopAccessibility::install()
{
    installAccessibleFactory<createStopOrGroup>();
}

void StopAccessibility::focused(GradientToolSlider *marker)
{
    QAccessibleEvent event(marker, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void StopAccessibility::moved(GradientToolSlider *marker, double position)
{
    QAccessibleValueChangeEvent event(marker, position);
    QAccessible::updateAccessibility(&event);
}

} // namespace Nocturne

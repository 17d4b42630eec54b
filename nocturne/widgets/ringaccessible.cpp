#include "ringaccessible_p.h"

#include "accessiblefactory_p.h"
#include "roundprogressbar.h"

#include <QtWidgets/QAccessibleWidget>

namespace Nocturne {

/// A ring as a progress bar: named by its title, with its value in numbers and in the words shown.
class RingInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit RingInterface(RoundProgressBar *ring)
        : QAccessibleWidget(ring, QAccessible::ProgressBar)
        , m_ring(ring)
    {}

    QString text(QAccessible::Text text) const override
    {
        if (text == QAccessible::Value)
            return m_ring->accessibleValue();
        const QString own = QAccessibleWidget::text(text);
        return text == QAccessible::Name && own.isEmpty() ? m_ring->m_title : own;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_ring->value(); }
    void setCurrentValue(const QVariant &) override {} // a display: nobody but the host sets it
    QVariant minimumValue() const override { return m_ring->minimum(); }
    QVariant maximumValue() const override { return m_ring->maximum(); }
    QVariant minimumStepSize() const override { return 0.0; }

private:
    RoundProgressBar *m_ring;
};

} // namespace Nocturne

namespace {

QAccessibleInterface *createRing(const QString &className, QObject *object)
{
    if (className != QLatin1String("RoundProgressBar"))
        return nullptr;
    auto *ring = qobject_cast<RoundProgressBar *>(object);
    return ring ? new Nocturne::RingInterface(ring) : nullptr;
}

} // namespace

void Nocturne::RingAccessibility::install()
{
    installAccessibleFactory<createRing>();
}

void Nocturne::RingAccessibility::valueChanged(RoundProgressBar *ring)
{
    QAccessibleValueChangeEvent event(ring, ring->value());
    QAccessible::updateAccessibility(&event);
}

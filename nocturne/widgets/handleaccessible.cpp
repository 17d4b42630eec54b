#include "handleaccessible_p.h"

#include "accessiblefactory_p.h"
#include "rangeslider_p.h"
#include "spanslider.h"

#include <QtCore/QVector>
#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyleOptionSlider>

#include <utility>

namespace {

/// A slider as a group of handles. Subclasses say what the handles are; they are counted from 0.
class HandleGroup : public QAccessibleWidget
{
public:
    explicit HandleGroup(QSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Grouping)
        , m_slider(slider)
    {}

    QSlider *slider() const { return m_slider; }

    virtual QString handleName(int handle) const = 0;
    virtual int handleValue(int handle) const = 0;
    virtual void setHandleValue(int handle, int value) = 0;
    virtual int handleMinimum(int) const { return m_slider->minimum(); }
    virtual int handleMaximum(int) const { return m_slider->maximum(); }
    virtual bool isHandleShown(int) const { return true; }
    virtual QRect handleRect(int handle) const = 0; ///< in widget coordinates

    int childCount() const override { return m_handles.size(); }
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    ~HandleGroup() override;

    void addHandles(int count) { m_handles.fill(0, count); }

private:
    QSlider *m_slider;
    mutable QVector<QAccessible::Id> m_handles; ///< made when first asked for
};

/// One handle. Lives and ends with its group.
class HandleInterface : public QAccessibleInterface, public QAccessibleValueInterface
{
public:
    HandleInterface(HandleGroup *group, int handle)
        : m_group(group)
        , m_handle(handle)
    {}

    bool isValid() const override { return m_group->isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_group->window(); }
    QAccessibleInterface *parent() const override { return m_group; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override { return m_group->handleValue(m_handle); }
    void setCurrentValue(const QVariant &value) override;
    QVariant minimumValue() const override { return m_group->handleMinimum(m_handle); }
    QVariant maximumValue() const override { return m_group->handleMaximum(m_handle); }
    QVariant minimumStepSize() const override { return m_group->slider()->singleStep(); }

private:
    HandleGroup *m_group;
    int m_handle;
};

HandleGroup::~HandleGroup()
{
    for (QAccessible::Id id : std::as_const(m_handles)) {
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface *HandleGroup::child(int index) const
{
    if (index < 0 || index >= m_handles.size())
        return nullptr;
    if (m_handles.at(index))
        return QAccessible::accessibleInterface(m_handles.at(index));
    auto *handle = new HandleInterface(const_cast<HandleGroup *>(this), index);
    m_handles[index] = QAccessible::registerAccessibleInterface(handle);
    return handle;
}

QAccessibleInterface *HandleGroup::childAt(int x, int y) const
{
    const QPoint point = m_slider->mapFromGlobal(QPoint(x, y));
    // The last one is drawn on top.
    for (int handle = childCount() - 1; handle >= 0; --handle) {
        if (isHandleShown(handle) && handleRect(handle).contains(point))
            return child(handle);
    }
    return nullptr;
}

int HandleGroup::indexOfChild(const QAccessibleInterface *child) const
{
    return child
               ? m_handles.indexOf(QAccessible::uniqueId(const_cast<QAccessibleInterface *>(child)))
               : -1;
}

QAccessible::State HandleInterface::state() const
{
    QAccessible::State state = m_group->state();
    state.focused = false;
    if (!m_group->isHandleShown(m_handle)) {
        state.invisible = true;
        state.disabled = true;
    }
    return state;
}

QString HandleInterface::text(QAccessible::Text text) const
{
    switch (text) {
    case QAccessible::Name:
        return m_group->handleName(m_handle);
    case QAccessible::Value:
        return QString::number(m_group->handleValue(m_handle));
    default:
        return QString();
    }
}

QRect HandleInterface::rect() const
{
    const QRect rect = m_group->handleRect(m_handle);
    return QRect(m_group->slider()->mapToGlobal(rect.topLeft()), rect.size());
}

void *HandleInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return nullptr;
}

void HandleInterface::setCurrentValue(const QVariant &value)
{
    if (state().disabled)
        return;
    m_group->setHandleValue(m_handle, qBound(m_group->handleMinimum(m_handle), value.toInt(),
                                             m_group->handleMaximum(m_handle)));
}

} // namespace

class Nocturne::RangeHandles : public HandleGroup
{
public:
    explicit RangeHandles(RangeSlider *slider)
        : HandleGroup(slider)
        , m_range(slider)
    {
        addHandles(3);
    }

    QString handleName(int handle) const override
    {
        switch (handle) {
        case RangeSliderPrivate::MinimumHandle:
            return RangeSlider::tr("Minimum");
        case RangeSliderPrivate::MaximumHandle:
            return RangeSlider::tr("Maximum");
        default:
            return RangeSlider::tr("Position");
        }
    }

    int handleValue(int handle) const override { return data()->values[handle]; }

    void setHandleValue(int handle, int value) override
    {
        switch (handle) {
        case RangeSliderPrivate::MinimumHandle:
            m_range->setMinimumValue(value);
            break;
        case RangeSliderPrivate::MaximumHandle:
            m_range->setMaximumValue(value);
            break;
        default:
            m_range->setMainValue(value);
            break;
        }
    }

    bool isHandleShown(int handle) const override { return data()->isHandleEnabled(which(handle)); }

    QRect handleRect(int handle) const override
    {
        QStyleOptionSlider option;
        m_range->initStyleOption(&option);
        return data()->handleRect(which(handle), &option);
    }

private:
    static RangeSliderPrivate::Handle which(int handle)
    {
        return static_cast<RangeSliderPrivate::Handle>(handle);
    }
    const RangeSliderPrivate *data() const { return m_range->d_func(); }

    RangeSlider *m_range;
};

namespace {

class SpanHandles : public HandleGroup
{
public:
    explicit SpanHandles(SpanSlider *slider)
        : HandleGroup(slider)
        , m_span(slider)
    {
        addHandles(2);
    }

    QString handleName(int handle) const override
    {
        return handle == lower ? SpanSlider::tr("Lower") : SpanSlider::tr("Upper");
    }

    int handleValue(int handle) const override
    {
        return handle == lower ? m_span->lowerValue() : m_span->upperValue();
    }

    void setHandleValue(int handle, int value) override
    {
        if (handle == lower)
            m_span->setSpan(value, m_span->upperValue());
        else
            m_span->setSpan(m_span->lowerValue(), value);
    }

    /// A handle with a name cannot pass the other one, or the names would change sides.
    int handleMinimum(int handle) const override
    {
        return handle == lower ? m_span->minimum()
                               : qMin(m_span->lowerValue() + gap(), m_span->maximum());
    }

    int handleMaximum(int handle) const override
    {
        return handle == lower ? qMax(m_span->upperValue() - gap(), m_span->minimum())
                               : m_span->maximum();
    }

    QRect handleRect(int handle) const override
    {
        QStyleOptionSlider option;
        m_span->initStyleOption(&option, handle == lower ? SpanSlider::LowerHandle
                                                         : SpanSlider::UpperHandle);
        return m_span->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                               m_span);
    }

private:
    static constexpr int lower = 0;

    int gap() const { return m_span->handleMovementMode() == SpanSlider::NoOverlapping ? 1 : 0; }

    SpanSlider *m_span;
};

/// Called with the name of the object's class and then of each of its base classes.
QAccessibleInterface *createHandleGroup(const QString &className, QObject *object)
{
    if (className == QLatin1String("RangeSlider")) {
        if (auto *slider = qobject_cast<RangeSlider *>(object))
            return new Nocturne::RangeHandles(slider);
    }
    if (className == QLatin1String("SpanSlider")) {
        if (auto *slider = qobject_cast<SpanSlider *>(object))
            return new SpanHandles(slider);
    }
    return nullptr;
}

} // namespace

void Nocturne::HandleAccessibility::install()
{
    installAccessibleFactory<createHandleGroup>();
}

void Nocturne::HandleAccessibility::valueChanged(QSlider *slider, int handle, int value)
{
    QAccessibleValueChangeEvent event(slider, value);
    event.setChild(handle);
    QAccessible::updateAccessibility(&event);
}

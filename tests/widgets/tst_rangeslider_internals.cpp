#include "testsupport.h"

#include <nocturne/widgets/rangeslider_p.h>
#include <nocturne/widgets/spanslider.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QStyleOptionSlider>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <memory>

namespace {

QStringList changes;

void recordChange(QAccessibleEvent *event)
{
    if (event->type() != QAccessible::ValueChanged)
        return;
    changes << QStringLiteral("%1 %2").arg(
        event->accessibleInterface()->text(QAccessible::Name),
        static_cast<QAccessibleValueChangeEvent *>(event)->value().toString());
}

/// What was told since the last call.
QString takeChanges()
{
    return std::exchange(changes, {}).join(QStringLiteral(", "));
}

/// What a subclass keeps besides.
class MarkerPrivate : public RangeSliderPrivate
{
public:
    using RangeSliderPrivate::RangeSliderPrivate;
    ~MarkerPrivate() override { ++deleted; }

    static inline int deleted = 0;
};

class MarkerSlider : public RangeSlider
{
public:
    MarkerSlider()
        : RangeSlider(new MarkerPrivate(this), Qt::Vertical, nullptr)
    {}

    mutable int optionsAsked = 0;

protected:
    void initMainSliderStyleOption(QStyleOptionSlider *option) const override
    {
        ++optionsAsked;
        RangeSlider::initMainSliderStyleOption(option);
    }
};

} // namespace

class TestRangeSliderInternals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QVERIFY(QAccessible::isActive());
        QAccessible::installUpdateHandler(recordChange);
    }

    void cleanupTestCase()
    {
        QAccessible::installUpdateHandler(nullptr);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    }

    /// Each handle has a name, a value, a place and the room it can move in, and tells of changes.
    void handlesAreAccessible()
    {
        RangeSlider range(Qt::Horizontal);
        range.setEnableRange(true);
        range.setValues(20, 80, 50);
        SpanSlider span(Qt::Horizontal);
        span.setHandleMovementMode(SpanSlider::NoOverlapping);
        span.setSpan(20, 60);
        compareHandles(&range, {{"Minimum", "20 of 0 to 99"},
                                {"Maximum", "80 of 0 to 99"},
                                {"Position", "50 of 0 to 99"}});
        compareHandles(&span, {{"Lower", "20 of 0 to 59"}, {"Upper", "60 of 21 to 99"}});
        takeChanges();

        const auto set = [](QSlider *slider, int handle, int value) {
            QAccessible::queryAccessibleInterface(slider)
                ->child(handle)
                ->valueInterface()
                ->setCurrentValue(value);
            return takeChanges();
        };
        QCOMPARE(set(&range, 0, 25), QString("Minimum 25"));
        QCOMPARE(set(&range, 2, 1000), QString("Position 99"));
        QCOMPARE(set(&span, 0, 90), QString("Lower 59"));
        QCOMPARE(set(&span, 1, 70), QString("Upper 70"));
        range.setValues(25, 81, 51);
        span.setSpan(10, 60);
        QCOMPARE(takeChanges(), QString("Maximum 81, Position 51, Lower 10, Upper 60"));

        // What cannot be dragged cannot be set.
        range.setEnableRange(false);
        span.setEnabled(false);
        QVERIFY(QAccessible::queryAccessibleInterface(&range)->child(1)->state().invisible);
        QCOMPARE(set(&range, 1, 90) + set(&span, 1, 80), QString());
    }

    void handlesEndWithTheirSlider()
    {
        auto slider = std::make_unique<RangeSlider>();
        const QAccessible::Id handle =
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(slider.get())->child(1));
        QVERIFY(QAccessible::accessibleInterface(handle));
        slider.reset();
        QVERIFY(!QAccessible::accessibleInterface(handle));
    }

    void subclassWithItsOwnPrivate()
    {
        {
            MarkerSlider slider;
            QCOMPARE(slider.maximumValue(), 99);
            QCOMPARE(slider.orientation(), Qt::Vertical);
            slider.resize(30, 200);
            TestSupport::render(slider);
            QVERIFY(slider.optionsAsked > 0);
        }
        QCOMPARE(MarkerPrivate::deleted, 1);
    }

private:
    static void compareHandles(QSlider *slider, const QVector<QPair<QString, QString>> &handles)
    {
        slider->resize(320, 30);
        slider->show();
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(slider);
        QVERIFY(group);
        QCOMPARE(group->childCount(), handles.size());
        for (int i = 0; i < handles.size(); ++i) {
            QAccessibleInterface *handle = group->child(i);
            const QAccessibleValueInterface *values = handle->valueInterface();
            QCOMPARE(handle, group->child(i));
            QCOMPARE(group->indexOfChild(handle), i);
            QCOMPARE(handle->parent(), group);
            QCOMPARE(handle->role(), QAccessible::Slider);
            QCOMPARE(handle->text(QAccessible::Name), handles[i].first);
            QCOMPARE(QString("%1 of %2 to %3")
                         .arg(handle->text(QAccessible::Value), values->minimumValue().toString(),
                              values->maximumValue().toString()),
                     handles[i].second);
            QVERIFY(!handle->state().invisible);

            QStyleOptionSlider option;
            option.initFrom(slider);
            option.maximum = slider->maximum();
            option.sliderPosition = values->currentValue().toInt();
            const QRect place = slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                                QStyle::SC_SliderHandle, slider);
            QCOMPARE(handle->rect(), place.translated(slider->mapToGlobal(QPoint())));
            QCOMPARE(group->childAt(handle->rect().center().x(), handle->rect().center().y()),
                     handle);
        }
    }
};

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    {
        // The end of an application object makes the toolkit forget who knows the handles; sliders
        // of the next one have to be known all the same.
        QApplication earlier(argc, argv);
        const RangeSlider slider(nullptr);
    }
    QApplication app(argc, argv);
    TestRangeSliderInternals test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_rangeslider_internals.moc"

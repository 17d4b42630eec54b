#include "testsupport.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/darkux.h>
#include <nocturne/widgets/gradienttool.h>
#include <nocturne/widgets/rangeslider_p.h>
#include <nocturne/widgets/roundprogressbar.h>
#include <nocturne/widgets/spanslider.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

// What widgets tell a screen reader.

namespace {

QStringList told;

void record(QAccessibleEvent *event)
{
    const QString name = event->accessibleInterface()->text(QAccessible::Name);
    if (event->type() == QAccessible::ValueChanged)
        told << name + ' ' + static_cast<QAccessibleValueChangeEvent *>(event)->value().toString();
    else if (event->type() == QAccessible::Focus && event->object()->inherits("GradientToolSlider"))
        told << name;
}

void setAccessibilityActive(bool active)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    QAccessible::installUpdateHandler(active ? record : nullptr);
}

/// What was told since the last call.
QString takeTold()
{
    QCoreApplication::processEvents();
    return std::exchange(told, {}).join(", ");
}

QString rangeOf(QAccessibleValueInterface *value)
{
    return QString("%1 of %2 to %3")
        .arg(value->currentValue().toString(), value->minimumValue().toString(),
             value->maximumValue().toString());
}

/// What a subclass keeps besides.
struct MarkerPrivate : RangeSliderPrivate
{
    using RangeSliderPrivate::RangeSliderPrivate;
    ~MarkerPrivate() override { ++deleted; }
    static inline int deleted = 0;
};

struct MarkerSlider : RangeSlider
{
    MarkerSlider()
        : RangeSlider(new MarkerPrivate(this), Qt::Vertical, nullptr)
    {}
};

} // namespace

class TestWidgetsInternals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setAccessibilityActive(true);
        QVERIFY(QAccessible::isActive());
    }

    void cleanupTestCase()
    {
        setAccessibilityActive(false);
        delete m_theme.style();
    }

    void ringShowsItsValue()
    {
        RoundProgressBar ring;
        ring.setRange(0, 4096);
        ring.setFormat("%byte");
        ring.setTitle("Stream", QFont(), QFont(), 1.0, true);
        ring.show();
        ring.setValue(2048);
        ring.setValue(2048);
        QCOMPARE(takeTold(), QString("Stream 2048"));

        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&ring);
        QCOMPARE(interface->role(), QAccessible::ProgressBar);
        QCOMPARE(interface->text(QAccessible::Value), "2.0 KB/s");
        QAccessibleValueInterface *value = interface->valueInterface();
        QCOMPARE(rangeOf(value), QString("2048 of 0 to 4096"));
        value->setCurrentValue(1);
        QCOMPARE(ring.value(), 2048.0);

        ring.setAccessibleName("Upload");
        QCOMPARE(interface->text(QAccessible::Name), "Upload");
        ring.setFormat(QString());
        QCOMPARE(interface->text(QAccessible::Value), QString());
    }

    void stopsAreSliders()
    {
        QWidget window;
        QLineEdit before(&window);
        GradientTool editor(&window);
        editor.setGeometry(0, 30, 210, 60);
        editor.setRamp({{1.0, Qt::red}, {0.25, Qt::green}, {0.5, Qt::blue}});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        told.clear();

        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&editor);
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->childCount(), 3);
        QAccessibleInterface *stop = group->child(1);
        QCOMPARE(stop->role(), QAccessible::Slider);
        QCOMPARE(stop->text(QAccessible::Name), QString("Color stop 2"));
        QCOMPARE(stop->text(QAccessible::Description), QColor(Qt::green).name());
        QCOMPARE(stop->text(QAccessible::Value), QString("25 %"));
        QCOMPARE(stop->rect().topLeft(), editor.mapToGlobal(QPoint(51, 40)));
        QVERIFY(!stop->state().selected);

        // From left to right, whatever the numbers.
        before.setFocus();
        QTest::keyClick(&before, Qt::Key_Tab);
        QCOMPARE(takeTold(), QString("Color stop 2"));
        QCOMPARE(group->focusChild(), stop);
        QVERIFY(stop->state().selected && stop->state().focused);
        QTest::keyClick(&editor, Qt::Key_Tab);
        QTest::keyClick(&editor, Qt::Key_Right);
        QCOMPARE(takeTold(), QString("Color stop 3, Color stop 3 0.51"));

        QSignalSpy changed(&editor, &GradientTool::rampChanged);
        QAccessibleValueInterface *value = stop->valueInterface();
        QCOMPARE(rangeOf(value), QString("0.25 of 0 to 1"));
        QCOMPARE(value->minimumStepSize().toDouble(), 0.01);
        value->setCurrentValue(7.0);
        QCOMPARE(value->currentValue().toDouble(), 1.0);
        QCOMPARE(changed, QList<QVariantList>({{0.0, true}}));
        editor.setEnabled(false);
        value->setCurrentValue(0.5);
        QCOMPARE(changed.count(), 1);
    }

    /// Each handle has a name, a value, a place and the room it can move in, and tells of changes.
    void handlesAreAccessible()
    {
        auto owned = std::make_unique<RangeSlider>(Qt::Horizontal);
        RangeSlider &range = *owned;
        range.setEnableRange(true);
        range.setValues(20, 80, 50);
        SpanSlider span(Qt::Horizontal);
        span.setHandleMovementMode(SpanSlider::NoOverlapping);
        span.setSpan(20, 60);
        compareHandles(&range, {{"Minimum", "20 of 0 to 99"},
                                {"Maximum", "80 of 0 to 99"},
                                {"Position", "50 of 0 to 99"}});
        compareHandles(&span, {{"Lower", "20 of 0 to 59"}, {"Upper", "60 of 21 to 99"}});
        takeTold();

        const auto handleOf = [](QSlider &slider, int number) {
            return QAccessible::queryAccessibleInterface(&slider)->child(number);
        };
        const auto set = [&](QSlider &slider, int handle, int value) {
            handleOf(slider, handle)->valueInterface()->setCurrentValue(value);
            return takeTold();
        };
        QCOMPARE(set(range, 0, 25), QString("Minimum 25"));
        QCOMPARE(set(range, 2, 1000), QString("Position 99"));
        QCOMPARE(set(span, 0, 90), QString("Lower 59"));
        QCOMPARE(set(span, 1, 70), QString("Upper 70"));
        range.setValues(25, 81, 51);
        span.setSpan(10, 60);
        QCOMPARE(takeTold(), QString("Maximum 81, Position 51, Lower 10, Upper 60"));

        // What cannot be dragged cannot be set.
        range.setEnableRange(false);
        span.setEnabled(false);
        QVERIFY(handleOf(range, 1)->state().invisible);
        QCOMPARE(set(range, 1, 90) + set(span, 1, 80), QString());

        // Handles end with their slider.
        const QAccessible::Id handle = QAccessible::uniqueId(handleOf(range, 1));
        QVERIFY(QAccessible::accessibleInterface(handle));
        owned.reset();
        QVERIFY(!QAccessible::accessibleInterface(handle));
    }

    void subclassWithItsOwnPrivate()
    {
        QCOMPARE(MarkerSlider().maximumValue(), 99);
        QCOMPARE(MarkerPrivate::deleted, 1);
    }

private:
    static void compareHandles(QSlider *slider, const QVector<QPair<QString, QString>> &handles)
    {
        slider->resize(320, 30);
        slider->show();
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(slider);
        QCOMPARE(group->childCount(), handles.size());
        for (int i = 0; i < handles.size(); ++i) {
            QAccessibleInterface *handle = group->child(i);
            const QAccessibleValueInterface *values = handle->valueInterface();
            QCOMPARE(group->indexOfChild(handle), i);
            QCOMPARE(handle->role(), QAccessible::Slider);
            QCOMPARE(handle->text(QAccessible::Name), handles[i].first);
            QCOMPARE(rangeOf(handle->valueInterface()), handles[i].second);
            QCOMPARE(handle->text(QAccessible::Value), values->currentValue().toString());

            QStyleOptionSlider option;
            option.initFrom(slider);
            option.maximum = slider->maximum();
            option.sliderPosition = values->currentValue().toInt();
            const QRect place = slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                                QStyle::SC_SliderHandle, slider);
            QCOMPARE(handle->rect(), place.translated(slider->mapToGlobal(QPoint())));
            const QPoint center = handle->rect().center();
            QCOMPARE(group->childAt(center.x(), center.y()), handle);
        }
    }

    DarkUX m_theme;
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
    TestWidgetsInternals test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_widgets_internals.moc"

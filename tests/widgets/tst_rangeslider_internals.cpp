#include "testsupport.h"

#include <nocturne/widgets/rangeslider_p.h>
#include <nocturne/widgets/spanslider.h>

#include <QtGui/QAccessible>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

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

    void rangeHandlesTellTheirValues()
    {
        QAccessible::Id handle = 0;
        {
            RangeSlider slider(nullptr);
            slider.setValues(20, 80, 50);
            changes.clear();
            slider.setValues(20, 81, 51);
            QCOMPARE(changes, QStringList({"Maximum 81", "Position 51"}));
            QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&slider);
            handle = QAccessible::uniqueId(group->child(1));
            QVERIFY(QAccessible::accessibleInterface(handle));
        }
        QVERIFY(!QAccessible::accessibleInterface(handle));
    }

    void spanHandlesTellTheirValues()
    {
        SpanSlider slider(nullptr);
        changes.clear();
        slider.setSpan(20, 60);
        slider.setSpan(20, 70);
        QCOMPARE(changes, QStringList({"Lower 20", "Upper 60", "Upper 70"}));
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

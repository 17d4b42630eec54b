#include "testsupport.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/darkux.h>
#include <nocturne/widgets/gradienttool.h>
#include <nocturne/widgets/roundprogressbar.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QLineEdit>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

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
}

QStringList takeTold()
{
    QCoreApplication::processEvents();
    return std::exchange(told, {});
}

} // namespace

class TestAccessibleInternals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setAccessibilityActive(true);
        QVERIFY(QAccessible::isActive());
        QAccessible::installUpdateHandler(record);
    }

    void cleanupTestCase()
    {
        QAccessible::installUpdateHandler(nullptr);
        setAccessibilityActive(false);
        delete m_theme.style();
    }

    void ringShowsItsValue()
    {
        RoundProgressBar ring;
        ring.setRange(0, 4096);
        ring.setFormat(QStringLiteral("%byte"));
        ring.setTitle(QStringLiteral("Stream"), QFont(), QFont(), 1.0, true);
        ring.show();
        ring.setValue(2048);
        ring.setValue(2048);
        QCOMPARE(takeTold(), QStringList{"Stream 2048"});

        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&ring);
        QVERIFY(interface);
        QCOMPARE(interface->role(), QAccessible::ProgressBar);
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("2.0 KB/s"));
        QAccessibleValueInterface *value = interface->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->currentValue().toDouble(), 2048.0);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 4096.0);
        value->setCurrentValue(1);
        QCOMPARE(ring.value(), 2048.0);

        ring.setAccessibleName(QStringLiteral("Upload"));
        QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Upload"));
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
        QCOMPARE(takeTold(), QStringList({"Color stop 2"}));
        QCOMPARE(group->focusChild(), stop);
        QVERIFY(stop->state().selected && stop->state().focused);
        QTest::keyClick(&editor, Qt::Key_Tab);
        QTest::keyClick(&editor, Qt::Key_Right);
        QCOMPARE(takeTold(), QStringList({"Color stop 3", "Color stop 3 0.51"}));

        QSignalSpy changed(&editor, &GradientTool::rampChanged);
        QAccessibleValueInterface *value = stop->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 1.0);
        QCOMPARE(value->minimumStepSize().toDouble(), 0.01);
        value->setCurrentValue(7.0);
        QCOMPARE(value->currentValue().toDouble(), 1.0);
        QCOMPARE(changed, QList<QVariantList>({{0.0, true}}));
        editor.setEnabled(false);
        value->setCurrentValue(0.5);
        QCOMPARE(changed.count(), 1);
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestAccessibleInternals)

#include "tst_accessible_internals.moc"

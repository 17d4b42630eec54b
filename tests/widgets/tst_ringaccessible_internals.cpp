#include "testsupport.h"

#include <nocturne/widgets/roundprogressbar.h>

#include <QtGui/QAccessible>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

QVector<double> told;

void recordValue(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ValueChanged)
        told << static_cast<QAccessibleValueChangeEvent *>(event)->value().toDouble();
}

void setAccessibilityActive(bool active)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

} // namespace

class TestRingAccessibleInternals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setAccessibilityActive(true);
        QVERIFY(QAccessible::isActive());
        QAccessible::installUpdateHandler(recordValue);
    }

    void cleanupTestCase()
    {
        QAccessible::installUpdateHandler(nullptr);
        setAccessibilityActive(false);
    }

    void ringShowsItsValue()
    {
        RoundProgressBar ring;
        ring.setAttribute(Qt::WA_DontShowOnScreen); // No theme to paint with.
        ring.setRange(0, 4096);
        ring.setFormat(QStringLiteral("%byte"));
        ring.setTitle(QStringLiteral("Stream"), QFont(), QFont(), 1.0, true);
        ring.show();
        ring.setValue(2048);
        ring.setValue(2048);
        QCOMPARE(told, QVector<double>{2048.0});

        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&ring);
        QVERIFY(interface);
        QCOMPARE(interface->role(), QAccessible::ProgressBar);
        QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Stream"));
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
};

NOCTURNE_TEST_MAIN(TestRingAccessibleInternals)

#include "tst_ringaccessible_internals.moc"

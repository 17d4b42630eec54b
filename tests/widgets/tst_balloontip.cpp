#include "testsupport.h"

#include <nocturne/QBalloonTip>

#include <QtGui/QBitmap>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

QBalloonTip *currentBalloon()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *balloon = qobject_cast<QBalloonTip *>(window);
        if (balloon && balloon->isVisible())
            return balloon;
    }
    return nullptr;
}

int balloonsAlive()
{
    int count = 0;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        count += qobject_cast<QBalloonTip *>(window) != nullptr;
    return count;
}

void show(const QPoint &position, int timeout = 0, bool arrow = true,
          QSystemTrayIcon *trayIcon = nullptr)
{
    QBalloonTip::showBalloon(QSystemTrayIcon::Warning, QStringLiteral("Title"),
                             QStringLiteral("A message"), trayIcon, position, timeout, arrow);
}

bool isCut(const QWidget &balloon, const QPoint &point)
{
    return !balloon.mask().contains(point);
}

} // namespace

class TestBalloonTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QBalloonTip::hideBalloon();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(balloonsAlive(), 0);
    }

    void placement_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<bool>("top");
        QTest::addColumn<bool>("left");
        QTest::addColumn<bool>("arrow");

        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QPoint inset(60, 60);
        const QPoint corners[] = {screen.topLeft() + inset, screen.topRight() + QPoint(-60, 60),
                                  screen.bottomLeft() + QPoint(60, -60),
                                  screen.bottomRight() - inset};
        for (int i = 0; i < 4; ++i) {
            for (bool arrow : {true, false})
                QTest::addRow("corner %d, %s", i, arrow ? "arrow" : "plain")
                    << corners[i] << (i < 2) << (i % 2 == 0) << arrow;
        }
    }

    void placement()
    {
        QFETCH(QPoint, position);
        QFETCH(bool, top);
        QFETCH(bool, left);
        QFETCH(bool, arrow);
        show(position, 0, arrow);
        QBalloonTip *balloon = currentBalloon();
        QVERIFY(balloon);
        const QSize size = balloon->sizeHint();
        QCOMPARE(balloon->size(), size);
        QCOMPARE(balloon->contentsMargins(), top ? QMargins(4, 21, 4, 3) : QMargins(4, 3, 4, 21));

        const int x = left ? position.x() - 18 : position.x() - size.width() + 18;
        const int y = top ? position.y() : position.y() - size.height();
        QCOMPARE(balloon->pos(), QPoint(x, y));

        const int bodyTop = top ? 18 : 0;
        const int bodyBottom = top ? size.height() - 1 : size.height() - 19;
        const int right = size.width() - 1;
        QVERIFY(isCut(*balloon, {0, bodyTop}));
        QVERIFY(isCut(*balloon, {right, bodyBottom}));
        QVERIFY(!isCut(*balloon, {right / 2, bodyTop}));
        QVERIFY(!isCut(*balloon, {right / 2, bodyBottom}));
        QVERIFY(!isCut(*balloon, {0, (bodyTop + bodyBottom) / 2}));
        const QPoint inArrow(left ? 20 : right - 20, top ? 10 : size.height() - 10);
        QCOMPARE(isCut(*balloon, inArrow), !arrow);
        QVERIFY(isCut(*balloon, {right / 2, top ? 10 : size.height() - 10}));

        // What is painted is what the mask keeps: paper inside, a darker line around it.
        const QColor paper(255, 255, 225);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        balloon->render(&image, balloon->mask().boundingRect().topLeft(), QRegion(),
                        QWidget::DrawChildren);
        COMPARE_PIXEL(image, right / 2, bodyTop, paper.darker(160));
        COMPARE_PIXEL(image, 0, (bodyTop + bodyBottom) / 2, paper.darker(160));
        COMPARE_PIXEL(image, 2, (bodyTop + bodyBottom) / 2, paper);
        for (int py = 0; py < size.height(); ++py) {
            for (int px = 0; px < size.width(); ++px) {
                if (balloon->mask().contains(QPoint(px, py)))
                    QVERIFY(image.pixelColor(px, py).alpha() == 255);
                else
                    QCOMPARE(image.pixelColor(px, py).alpha(), 0);
            }
        }
    }

    void staysOnTheScreenAtItsEdges()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        show(QPoint(screen.left() + 1, 100));
        QCOMPARE(currentBalloon()->x(), screen.left() + 2);
        show(QPoint(screen.right() - 1, 100));
        QCOMPARE(currentBalloon()->x(), screen.right() - currentBalloon()->width() - 2);
    }

    void contents()
    {
        QBalloonTip::showBalloon(QSystemTrayIcon::NoIcon, QStringLiteral("<b>t</b>"),
                                 QString(400, QLatin1Char('m')).replace(100, 1, QLatin1Char(' ')),
                                 nullptr, QPoint(100, 100), 0, true);
        QBalloonTip *balloon = currentBalloon();
        QVERIFY(balloon);
        const auto labels = balloon->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 2);
        QVERIFY(labels.at(0)->font().bold());
        QCOMPARE(labels.at(0)->textFormat(), Qt::PlainText);
        QCOMPARE(labels.at(1)->width(),
                 QGuiApplication::primaryScreen()->availableGeometry().width() / 3);
        QVERIFY(labels.at(1)->wordWrap());

        show(QPoint(100, 100));
        QCOMPARE(currentBalloon()->findChildren<QLabel *>().size(), 3);
        QVERIFY(!currentBalloon()->findChildren<QLabel *>().last()->wordWrap());
        QCOMPARE(balloonsAlive(), 1);
    }

    void nothingToSayOnlyRemoves()
    {
        show(QPoint(100, 100));
        QVERIFY(QBalloonTip::isBalloonVisible());
        QBalloonTip::showBalloon(QSystemTrayIcon::Critical, QString(), QString(), nullptr, QPoint(),
                                 0);
        QVERIFY(!QBalloonTip::isBalloonVisible());
    }

    void clicks()
    {
        QSystemTrayIcon trayIcon;
        QSignalSpy clicked(&trayIcon, &QSystemTrayIcon::messageClicked);
        show(QPoint(200, 200), 0, true, &trayIcon);
        QTest::mouseClick(currentBalloon(), Qt::RightButton);
        QVERIFY(!QBalloonTip::isBalloonVisible());
        QCOMPARE(clicked.count(), 0);

        show(QPoint(200, 200), 0, true, &trayIcon);
        QTest::mouseClick(currentBalloon(), Qt::LeftButton);
        QVERIFY(!QBalloonTip::isBalloonVisible());
        QCOMPARE(clicked.count(), 1);

        show(QPoint(200, 200));
        QTest::mouseClick(currentBalloon(), Qt::LeftButton);
        QVERIFY(!QBalloonTip::isBalloonVisible());

        show(QPoint(200, 200), 0, true, &trayIcon);
        QTest::mouseClick(currentBalloon()->findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY(!QBalloonTip::isBalloonVisible());
        QCOMPARE(clicked.count(), 1);
    }

    void whoeverHearsTheClickMayShowTheNext()
    {
        QSystemTrayIcon trayIcon;
        connect(&trayIcon, &QSystemTrayIcon::messageClicked, this, [] { show(QPoint(300, 300)); });
        show(QPoint(200, 200), 0, true, &trayIcon);
        QTest::mouseClick(currentBalloon(), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QBalloonTip::isBalloonVisible());
        QCOMPARE(balloonsAlive(), 1);
    }

    void closesWithItsTrayIcon()
    {
        auto *trayIcon = new QSystemTrayIcon;
        show(QPoint(200, 200), 0, true, trayIcon);
        delete trayIcon;
        QVERIFY(!QBalloonTip::isBalloonVisible());
    }

    void timeouts()
    {
        QCursor::setPos(0, 0);
        show(QPoint(200, 200), 30);
        QBalloonTip::updateBalloonPosition(QPoint(300, 300));
        QCOMPARE(currentBalloon()->pos(), QPoint(282, 300));
        QTRY_VERIFY(!QBalloonTip::isBalloonVisible());

        show(QPoint(200, 200), 30);
        currentBalloon()->setAttribute(Qt::WA_UnderMouse);
        QTest::qWait(150);
        QVERIFY(QBalloonTip::isBalloonVisible());

        show(QPoint(200, 200), 0);
        QTest::qWait(50);
        QVERIFY(QBalloonTip::isBalloonVisible());
    }
};

NOCTURNE_TEST_MAIN(TestBalloonTip)

#include "tst_balloontip.moc"

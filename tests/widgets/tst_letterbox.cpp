#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/LetterBoxWidget>

#include <limits>
#include <memory>

namespace {

class Child : public QWidget
{
public:
    explicit Child(const QSize &ratio) { setSizeIncrement(ratio); }
    QSize sizeHint() const override { return QSize(123, 45); }
    int layouts = 0;

protected:
    void resizeEvent(QResizeEvent *) override { ++layouts; }
};

} // namespace

class TestLetterBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_theme = std::make_unique<DarkUX>(); }
    void cleanupTestCase() { delete m_theme->style(); }

    void geometry_data()
    {
        QTest::addColumn<QSize>("container");
        QTest::addColumn<QSize>("ratio");
        QTest::addColumn<int>("margin");
        QTest::addColumn<QRect>("expected");

        QTest::newRow("wide") << QSize(1000, 500) << QSize(16, 9) << 1 << QRect(57, 1, 886, 498);
        QTest::newRow("tall") << QSize(160, 500) << QSize(16, 9) << 0 << QRect(0, 205, 160, 90);
        QTest::newRow("no ratio") << QSize(300, 200) << QSize() << 10 << QRect(10, 10, 280, 180);
        QTest::newRow("half a ratio")
            << QSize(300, 200) << QSize(16, 0) << 10 << QRect(10, 10, 280, 180);
        QTest::newRow("empty") << QSize(0, 0) << QSize(16, 9) << 1 << QRect(0, 0, 0, 0);
        QTest::newRow("sliver") << QSize(10000, 10) << QSize(4, 3) << 0 << QRect(4994, 0, 13, 10);
    }

    void geometry()
    {
        QFETCH(QSize, container);
        QFETCH(QSize, ratio);
        QFETCH(int, margin);
        QFETCH(QRect, expected);
        LetterBoxWidget box;
        auto *child = new Child(ratio);
        box.setWidget(child);
        box.setMargin(margin);
        box.resize(container);
        box.resizeWidget();
        if (container.isEmpty())
            QCOMPARE(child->size(), expected.size());
        else
            QCOMPARE(child->geometry(), expected);
        QCOMPARE(box.sizeHint(), child->sizeHint());
    }

    void limitsOfTheChildAreRespected()
    {
        LetterBoxWidget box;
        auto *child = new Child(QSize(16, 9));
        child->setMaximumSize(320, 180);
        box.setWidget(child);
        box.resize(1000, 500);
        box.resizeWidget();
        QCOMPARE(child->geometry(), QRect(340, 160, 320, 180));
    }

    void delayMakesOneLayoutOfManyResizes()
    {
        LetterBoxWidget box;
        box.resize(400, 300);
        auto *child = new Child(QSize(16, 9));
        box.setWidget(child);
        box.show();
        QCoreApplication::processEvents();

        child->layouts = 0;
        for (int i = 0; i < 1000; ++i)
            box.resize(500 + i, 600 + i);
        QCOMPARE(child->layouts, 1000);

        box.setResizeDelay(50);
        QCOMPARE(box.resizeDelay(), 50);
        child->layouts = 0;
        for (int i = 0; i < 1000; ++i)
            box.resize(1600 + i, 1700 + i);
        QCOMPARE(child->layouts, 0);
        QTRY_COMPARE(child->layouts, 1);
        QTest::qWait(120);
        QCOMPARE(child->layouts, 1);
        QCOMPARE(child->width(), 2599 - 2);

        box.setResizeDelay(0xffffffffu);
        QCOMPARE(box.resizeDelay(), std::numeric_limits<int>::max());
    }

    void holdsForgetsAndDeletes()
    {
        LetterBoxWidget box;
        const QPointer<QWidget> first(new Child(QSize(1, 1)));
        box.setWidget(first);
        box.setWidget(first);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first);
        QCOMPARE(first->parentWidget(), &box);

        const QPointer<QWidget> second(new Child(QSize(1, 1)));
        box.setWidget(second);
        QCOMPARE(box.widget(), second.data());
        QVERIFY(first);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!first);

        delete second;
        QVERIFY(!box.widget());
        box.resizeWidget();

        Child taken(QSize(1, 1));
        box.setWidget(&taken);
        taken.setParent(nullptr);
        QVERIFY(!box.widget());
        box.setWidget(nullptr);
        box.setMargin(20);
        QCOMPARE(box.margin(), 20);
        QCOMPARE(box.sizeHint(), QFrame().sizeHint());
    }

    void backgrounds()
    {
        LetterBoxWidget box;
        QCOMPARE(box.backgroundColor(), QColor(0x15, 0x17, 0x1c));
        box.resize(60, 40);
        COMPARE_PIXEL(box.grab().toImage(), 30, 20, QColor(0x15, 0x17, 0x1c));
        box.setBackgroundColor(Qt::darkRed);
        QCOMPARE(box.backgroundColor(), QColor(Qt::darkRed));
        COMPARE_PIXEL(box.grab().toImage(), 30, 20, QColor(Qt::darkRed));
        box.clearBackgroundColor();
        QVERIFY(!box.autoFillBackground());
        COMPARE_PIXEL(TestSupport::render(box), 30, 20, QColor(Qt::transparent));
        box.enableBackground();
        QVERIFY(box.autoFillBackground());
    }

private:
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestLetterBox)

#include "tst_letterbox.moc"

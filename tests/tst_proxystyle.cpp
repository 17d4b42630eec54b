#include "testsupport.h"

#include <nocturne/DarkProxyStyle>

#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

namespace {

/// A base style that notes what menu items it is asked to draw, and draws none.
class RecordingStyle : public QProxyStyle
{
public:
    struct Item
    {
        QString text;
        QRect rect;
    };

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (element == CE_MenuItem && item)
            items.append({item->text, item->rect});
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QVector<Item> items;
};

constexpr int badgeSize = 16;

} // namespace

class tst_ProxyStyle : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void baseStyle();
    void transientScrollBars();
    void menuItemTexts_data();
    void menuItemTexts();
    void badge();
    void emptyArea();
    void otherElementsAreTheBaseStyles();
    void menu();

private:
    QImage drawItem(const QString &text, const QRect &rect) const;

    QScopedPointer<DarkProxyStyle> m_style;
    RecordingStyle *m_base = nullptr;
};

void tst_ProxyStyle::init()
{
    m_style.reset(new DarkProxyStyle(QStringLiteral("Fusion")));
    m_base = new RecordingStyle;
    m_style->setBaseStyle(m_base);
}

QImage tst_ProxyStyle::drawItem(const QString &text, const QRect &rect) const
{
    QStyleOptionMenuItem option;
    option.rect = rect;
    option.text = text;
    return TestSupport::paintOn(QSize(100, 30), Qt::black, [&](QPainter &painter) {
        painter.setPen(Qt::green);
        m_style->drawControl(QStyle::CE_MenuItem, &option, &painter);
        QCOMPARE(painter.pen().color(), QColor(Qt::green));
        QCOMPARE(painter.backgroundMode(), Qt::TransparentMode);
    });
}

void tst_ProxyStyle::baseStyle()
{
    const DarkProxyStyle fusion(QStringLiteral("Fusion"));
    QVERIFY(fusion.baseStyle()->inherits("QFusionStyle"));
    const DarkProxyStyle windows(QStringLiteral("windows"));
    QVERIFY(windows.baseStyle()->inherits("QWindowsStyle"));
    const DarkProxyStyle unknown(QStringLiteral("no such style"));
    QVERIFY(unknown.baseStyle());
}

void tst_ProxyStyle::transientScrollBars()
{
    const QScopedPointer<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(fusion->styleHint(QStyle::SH_ScrollBar_Transient), 0);
    QCOMPARE(m_style->styleHint(QStyle::SH_ScrollBar_Transient), 1);
    QCOMPARE(m_style->styleHint(QStyle::SH_Menu_SubMenuPopupDelay),
             m_base->styleHint(QStyle::SH_Menu_SubMenuPopupDelay));
}

void tst_ProxyStyle::menuItemTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("drawn");
    QTest::newRow("badge and shortcut") << "&3;Open\tCtrl+O"
                                        << "Open";
    QTest::newRow("two digits") << "&12;Open"
                                << "Open";
    QTest::newRow("no prefix") << "&Open"
                               << "&Open";
    QTest::newRow("prefix later") << "Open &3;"
                                  << "Open &3;";
    QTest::newRow("one prefix only") << "&1;&2;Open"
                                     << "&2;Open";
    QTest::newRow("all after the first tab") << "Open\tCtrl+O\nand\tmore"
                                             << "Open";
    QTest::newRow("number alone") << "&7;"
                                  << "";
    QTest::newRow("no number") << "&;Open"
                               << "&;Open";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_ProxyStyle::menuItemTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, drawn);
    drawItem(text, QRect(5, 4, 90, 22));
    QCOMPARE(m_base->items.size(), 1);
    QCOMPARE(m_base->items.first().text, drawn);
    QCOMPARE(m_base->items.first().rect, QRect(23, 4, 72, 22));
}

void tst_ProxyStyle::badge()
{
    const QRect rect(5, 4, 90, 22);
    const QImage plain = drawItem(QStringLiteral("Open"), rect);
    // 1 right and 3 down of the item, and rounded off.
    COMPARE_PIXEL(plain, 14, 8, Qt::blue);
    COMPARE_PIXEL(plain, 14, 7 + badgeSize - 1, Qt::blue);
    COMPARE_PIXEL(plain, 6 + badgeSize - 1, 15, Qt::blue);
    COMPARE_PIXEL(plain, 6, 7, Qt::black);
    COMPARE_PIXEL(plain, 14, 6, Qt::black);
    COMPARE_PIXEL(plain, 6 + badgeSize, 15, Qt::black);

    QCOMPARE(drawItem(QStringLiteral("&12;Open"), rect), plain);
    const QImage three = drawItem(QStringLiteral("&3;Open"), rect);
    QVERIFY(three != plain);
    QVERIFY(three != drawItem(QStringLiteral("&4;Open"), rect));
    // The digit stands on red, in the middle.
    int red = 0;
    for (int y = 0; y < three.height(); ++y) {
        for (int x = 0; x < three.width(); ++x)
            red += three.pixelColor(x, y) == Qt::red ? 1 : 0;
    }
    QVERIFY(red > 10);
}

void tst_ProxyStyle::emptyArea()
{
    QWidget widget;
    widget.resize(20, 10);
    QStyleOptionMenuItem option;
    option.rect = QRect(0, 0, 5, 5);
    const QImage image = TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_MenuEmptyArea, &option, &painter, &widget);
        painter.translate(0, 15);
        m_style->drawControl(QStyle::CE_MenuEmptyArea, &option, &painter);
    });
    COMPARE_PIXEL(image, 19, 9, Qt::yellow);
    COMPARE_PIXEL(image, 20, 9, Qt::black);
    COMPARE_PIXEL(image, 0, 15, Qt::black);
}

void tst_ProxyStyle::otherElementsAreTheBaseStyles()
{
    QStyleOptionButton option;
    option.rect = QRect(0, 0, 30, 30);
    option.text = QStringLiteral("&3;Open");
    const auto draw = [&](const QStyle *style, QStyle::ControlElement element) {
        return TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
            style->drawControl(element, &option, &painter);
        });
    };
    QCOMPARE(draw(m_style.data(), QStyle::CE_PushButton), draw(m_base, QStyle::CE_PushButton));

    // A menu item in name only.
    QImage black(30, 30, QImage::Format_ARGB32_Premultiplied);
    black.fill(Qt::black);
    QCOMPARE(draw(m_style.data(), QStyle::CE_MenuItem), black);
    TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_MenuItem, nullptr, &painter);
    });
    QVERIFY(m_base->items.isEmpty());
}

void tst_ProxyStyle::menu()
{
    DarkProxyStyle style(QStringLiteral("Fusion"));
    QMenu menu;
    menu.setStyle(&style);
    menu.addAction(QStringLiteral("&3;Open"))->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
    menu.addAction(QStringLiteral("Close"));
    menu.resize(menu.sizeHint());
    const QImage image = TestSupport::render(menu);
    const QRect open = menu.actionGeometry(menu.actions().first());
    COMPARE_PIXEL(image, open.x() + 2, open.y() + 10, Qt::blue);
}

NOCTURNE_TEST_MAIN(tst_ProxyStyle)

#include "tst_proxystyle.moc"

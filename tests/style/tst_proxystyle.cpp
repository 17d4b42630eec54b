#include "testsupport.h"

#include <nocturne/DarkProxyStyle>

#include <QtWidgets/QProxyStyle>
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

private Q_SLOTS:
    void init();

    void baseStyle();
    void transientScrollBars();
    void menuItemTexts_data();
    void menuItemTexts();
    void badge();
    void emptyArea();
    void menuItemInNameOnly();

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
    const DarkProxyStyle windows(QStringLiteral("windows"));
    QVERIFY(windows.baseStyle()->inherits("QWindowsStyle"));
    const DarkProxyStyle unknown(QStringLiteral("no such style"));
    QVERIFY(unknown.baseStyle());
}

void tst_ProxyStyle::transientScrollBars()
{
    QCOMPARE(m_base->styleHint(QStyle::SH_ScrollBar_Transient), 0);
    QCOMPARE(m_style->styleHint(QStyle::SH_ScrollBar_Transient), 1);
}

void tst_ProxyStyle::menuItemTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("drawn");
    const auto row = [](const char *text, const char *drawn) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(drawn);
    };
    row("&3;Open\tCtrl+O", "Open");
    row("&12;Open", "Open");
    row("&Open", "&Open");
    row("Open &3;", "Open &3;");
    row("&1;&2;Open", "&2;Open");
    row("Open\tCtrl+O\nand\tmore", "Open");
    row("&7;", "");
    row("&;Open", "&;Open");
    row("", "");
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
    const QRect middle(10, 10, 8, 10);
    bool hasRed = false;
    for (int x = middle.left(); x <= middle.right(); ++x)
        hasRed |= three.pixelColor(x, middle.center().y()) == Qt::red;
    QVERIFY(hasRed);
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

void tst_ProxyStyle::menuItemInNameOnly()
{
    QStyleOptionButton option;
    option.rect = QRect(0, 0, 30, 30);
    const QImage image = TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_MenuItem, &option, &painter);
        m_style->drawControl(QStyle::CE_MenuItem, nullptr, &painter);
    });
    COMPARE_PIXEL(image, 5, 8, Qt::black);
    QVERIFY(m_base->items.isEmpty());
}

NOCTURNE_TEST_MAIN(tst_ProxyStyle)

#include "tst_proxystyle.moc"

#include "qtversion.h"
#include "stylepainting.h"

#include <nocturne/DarkProxyStyle>
#include <nocturne/DarkUX>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>

#include <memory>

// The theme, what the style does to more than one element, and the proxy for styles of the toolkit.

using namespace StylePainting;

namespace {

/// A theme whose style is deleted with it, since nobody installs it.
struct Theme : DarkUX
{
    ~Theme() { delete style(); }
};

/// What this program prints when it is run with \a argument.
QByteArray outputOf(const char *argument, QProcess::ProcessChannel channel)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_FONT_DPI", "120");
    environment.remove("QT_SCALE_FACTOR");
    QProcess process;
    process.setReadChannel(channel);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {argument});
    process.waitForFinished();
    return process.readAll().trimmed();
}

} // namespace

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void themes();
    void palettes();
    void temperature();

    void scaledMetrics();
    void windowFrameMask();
    void contentSizes();
    void standardIcons();
    void polishing();

    void baseOfProxy();
    void menuItemTexts();
    void badge();
    void emptyAreaOfMenu();

private:
    DarkFusionStyle m_style;
};

/// Copies are not registered.
void TestStyle::themes()
{
    QVERIFY(!DarkUX::getInstancePtr());
    {
        const Theme theme;
        {
            DarkUX copy(theme);
            QCOMPARE(copy.style(), theme.style());
            copy.setPalette(QPalette(Qt::red), true);
            QVERIFY(copy.palette() != theme.palette());
            copy = theme;
            QCOMPARE(copy.palette(), theme.palette());
        }
        QCOMPARE(DarkUX::getInstancePtr(), static_cast<const DarkUX *>(&theme));
    }
    QVERIFY(!DarkUX::getInstancePtr());
    const QByteArray message = outputOf("--no-theme", QProcess::StandardError);
    QVERIFY2(message.contains("no DarkUX exists"), message.constData());
    QCOMPARE(message.count('\n'), 0);
}

/// Window and Base alone are tinted.
void TestStyle::palettes()
{
    Theme theme;
    const QPalette themed = theme.palette();
    const QPalette plain = theme.defaultPalette();
    using P = QPalette;
    const std::tuple<P::ColorGroup, P::ColorRole, QRgb> tinted[] = {
        {P::Active, P::Window, 0xff1f2126},   {P::Active, P::Base, 0xff191a1e},
        {P::Disabled, P::Window, 0xff1c1e22}, {P::Disabled, P::Base, 0xff15161a},
        {P::Inactive, P::Window, 0xff1f2126}, {P::Inactive, P::Base, 0xff191a1e}};
    QPalette expected = plain;
    for (const auto &[group, role, color] : tinted)
        expected.setColor(group, role, QColor(color));
    QCOMPARE(themed, expected);
    QColor halfText = themed.color(QPalette::Active, QPalette::Text);
    halfText.setAlpha(128);
    QCOMPARE(themed.color(QPalette::Disabled, QPalette::PlaceholderText), halfText);

    QPalette other = themed;
    other.setColor(QPalette::Link, Qt::green);
    theme.setPalette(other, false);
    QCOMPARE(theme.palette(), other);
    QCOMPARE(theme.defaultPalette(), plain);
    theme.initialize();
    QCOMPARE(theme.palette(), themed);
}

void TestStyle::temperature()
{
    const QPair<unsigned int, QRgb> whites[] = {{8500, 0xffd6e1ff},
                                                {6699, 0xffffffff},
                                                {1999, 0xffff8300},
                                                {~0u, 0xff97b9ff},
                                                {0, 0xffff0000}};
    int red = -1;
    int green = -1;
    int blue = -1;
    for (const auto &white : whites) {
        QCOMPARE(DarkUX::colorCalc(Qt::white, static_cast<int>(white.first)).rgb(), white.second);
        DarkUX::getRGBfromTemperature(red, green, blue, white.first);
        QCOMPARE(qRgb(red, qMax(0, green), blue), white.second);
    }
    QCOMPARE(DarkUX::colorCalc(QColor(10, 20, 30, 40), 6600), QColor(10, 20, 30, 255));
}

/// 14, -1 and 9 times 1.25, towards zero.
void TestStyle::scaledMetrics()
{
    QCOMPARE(outputOf("--metrics", QProcess::StandardOutput),
             QByteArray(QtVersion::isQt6 ? "14 -1 9" : "17 -1 11"));
}

/// The corners above are rounded off in steps.
void TestStyle::windowFrameMask()
{
    QStyleOption option;
    option.rect = QRect(10, 20, 40, 30);
    QStyleHintReturnMask mask;
    QCOMPARE(m_style.styleHint(QStyle::SH_WindowFrame_Mask, &option, nullptr, &mask), 1);
    QRegion expected(option.rect);
    const int steps[] = {5, 3, 2, 1, 1};
    for (int y = 0; y < 5; ++y)
        expected -= QRegion(10, 20 + y, steps[y], 1) + QRect(50 - steps[y], 20 + y, steps[y], 1);
    QCOMPARE(mask.region, expected);
}

/// What depends on fonts.
void TestStyle::contentSizes()
{
    QStyleOptionGroupBox groupBox;
    QFont large(qApp->font());
    large.setPixelSize(40);
    groupBox.fontMetrics = QFontMetrics(large);
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_GroupBox, &groupBox, QSize(100, 50)),
             QSize(126, 50 + groupBox.fontMetrics.height() + 3));

    QStyleOptionMenuItem item;
    item.text = QStringLiteral("A rather long text for a menu item");
    item.font = qApp->font();
    QFont bold(item.font);
    bold.setBold(true);
    const auto size = [&](QStyleOptionMenuItem::MenuItemType type) {
        item.menuItemType = type;
        return m_style.sizeFromContents(QStyle::CT_MenuItem, &item, QSize(300, 20));
    };
    QCOMPARE(size(QStyleOptionMenuItem::DefaultItem) - size(QStyleOptionMenuItem::Normal),
             QSize(QFontMetrics(bold).horizontalAdvance(item.text)
                       - QFontMetrics(item.font).horizontalAdvance(item.text),
                   0));
    QCOMPARE(size(QStyleOptionMenuItem::Separator).height(), item.fontMetrics.height());
}

/// The icons of the window buttons are their pixmaps, each pixel a square of device pixels.
void TestStyle::standardIcons()
{
    for (QStyle::StandardPixmap button :
         {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton,
          QStyle::SP_TitleBarCloseButton, QStyle::SP_DockWidgetCloseButton})
    {
        const QIcon icon = m_style.standardIcon(button);
        const QRect rect(2, 2, 16, 16);
        const QImage expected = picture([&](QPainter &painter) {
            m_style.drawItemPixmap(&painter, rect, Qt::AlignCenter, m_style.standardPixmap(button));
        });
        QCOMPARE(picture([&](QPainter &painter) { icon.paint(&painter, rect); }), expected);
        QVERIFY(picture([&](QPainter &painter) {
                    icon.paint(&painter, rect, Qt::AlignCenter, QIcon::Disabled);
                })
                != expected);
        QCOMPARE(icon.actualSize(QSize(16, 16)), QSize(11, 13));
        QVERIFY(icon.pixmap(8, 8).width() <= 8 * qApp->devicePixelRatio());
    }
}

void TestStyle::polishing()
{
    QSplitter splitter;
    for (int i = 0; i < 2; ++i)
        splitter.addWidget(new QWidget);
    auto *label = new QLabel(&splitter);
    const std::initializer_list<QWidget *> widgets = {label,
                                                      new QPushButton(&splitter),
                                                      new QComboBox(&splitter),
                                                      new QProgressBar(&splitter),
                                                      new QScrollBar(&splitter),
                                                      new QSlider(&splitter),
                                                      new QSpinBox(&splitter),
                                                      splitter.handle(1)};
    for (QWidget *widget : widgets) {
        widget->setAttribute(Qt::WA_Hover, false);
        widget->setAttribute(Qt::WA_OpaquePaintEvent, true);
        m_style.polish(widget);
        QVERIFY2(widget->testAttribute(Qt::WA_Hover) == (widget != label),
                 widget->metaObject()->className());
        QCOMPARE(widget->testAttribute(Qt::WA_OpaquePaintEvent), widget == label);
        m_style.unpolish(widget);
        QVERIFY(!widget->testAttribute(Qt::WA_Hover));
    }
    // The style alone leaves the light palette; the dark one is the theme's.
    QVERIFY(m_style.standardPalette().color(QPalette::Window).lightness() > 200);
}

namespace {

/// What \a style draws of a menu item.
QImage menuItem(const QStyle &style, const QString &text, const QRect &rect = QRect(5, 4, 90, 22))
{
    QStyleOptionMenuItem option;
    option.rect = rect;
    option.text = text;
    return TestSupport::paintOn(QSize(100, 30), Qt::black, [&](QPainter &painter) {
        painter.setPen(Qt::green);
        style.drawControl(QStyle::CE_MenuItem, &option, &painter);
        QCOMPARE(painter.pen().color(), QColor(Qt::green));
        QCOMPARE(painter.backgroundMode(), Qt::TransparentMode);
    });
}

} // namespace

void TestStyle::baseOfProxy()
{
    DarkProxyStyle style(QStringLiteral("windows"));
    QVERIFY(style.baseStyle()->inherits("QWindowsStyle"));
    QVERIFY(DarkProxyStyle(QStringLiteral("no such style")).baseStyle());
    QCOMPARE(style.baseStyle()->styleHint(QStyle::SH_ScrollBar_Transient), 0);
    QCOMPARE(style.styleHint(QStyle::SH_ScrollBar_Transient), 1);
}

/// The number goes into the badge, the shortcut is left out.
void TestStyle::menuItemTexts()
{
    const DarkProxyStyle style(QStringLiteral("Fusion"));
    const QPair<const char *, const char *> rows[] = {{"&3;Open\tCtrl+O", "Open"},
                                                      {"&12;Open", "Open"},
                                                      {"&Open", "&Open"},
                                                      {"Open &3;", "Open &3;"},
                                                      {"&1;&2;Open", "&2;Open"},
                                                      {"Open\tCtrl+O\nand\tmore", "Open"},
                                                      {"&7;", ""},
                                                      {"&;Open", "&;Open"}};
    const QRect beside(23, 0, 77, 30);
    for (const auto &[text, shown] : rows) {
        const QImage expected = menuItem(*style.baseStyle(), shown, QRect(23, 4, 72, 22));
        QVERIFY2(menuItem(style, text).copy(beside) == expected.copy(beside), text);
    }
}

/// 1 right and 3 down of the item, 16 wide and high, and rounded off.
void TestStyle::badge()
{
    const DarkProxyStyle style(QStringLiteral("Fusion"));
    const QImage plain = menuItem(style, "Open");
    TestSupport::comparePixels(plain, Qt::blue, {{14, 8}, {14, 22}, {21, 15}});
    TestSupport::comparePixels(plain, Qt::black, {{6, 7}, {14, 6}, {22, 15}});
    QCOMPARE(menuItem(style, "&12;Open"), plain);
    const QImage three = menuItem(style, "&3;Open");
    QVERIFY(three != plain);
    QVERIFY(three != menuItem(style, "&4;Open"));
    QVERIFY(TestSupport::count(three, QRect(10, 10, 8, 10), Qt::red) > 0); // behind the digit
}

/// Yellow in all of the widget, whatever the size of the item.
void TestStyle::emptyAreaOfMenu()
{
    const DarkProxyStyle style(QStringLiteral("Fusion"));
    QWidget widget;
    widget.resize(20, 10);
    QStyleOptionMenuItem area;
    area.rect = QRect(0, 0, 30, 30);
    const QImage image = TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
        style.drawControl(QStyle::CE_MenuEmptyArea, &area, &painter, &widget);
    });
    QVERIFY(TestSupport::isFilled(image, widget.rect(), Qt::yellow));
    QCOMPARE(TestSupport::count(image, image.rect(), Qt::black), 30 * 30 - 20 * 10);
}

int main(int argc, char *argv[])
{
    const QByteArray argument(argc > 1 ? argv[1] : "");
    if (argument == "--no-theme") {
        DarkUX::getInstance();
        fputs("\ngoes on without a theme", stderr);
        return 0;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argument != "--metrics")
        qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (argument == "--metrics") {
        const DarkFusionStyle style;
        for (QStyle::PixelMetric metric : {QStyle::PM_ScrollBarExtent, QStyle::PM_SubMenuOverlap,
                                           QStyle::PM_ToolBarHandleExtent})
            printf("%d ", style.pixelMetric(metric));
        return 0;
    }
    TestStyle test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_style.moc"

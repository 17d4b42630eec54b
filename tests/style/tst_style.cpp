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

// The theme, the answers that its style gives to questions about numbers, sizes, rectangles and
// pixmaps, and the proxy for styles of the toolkit.

using namespace StylePainting;

namespace {

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Disabled,
                                           QPalette::Inactive};

/// A theme whose style is deleted with it, since nobody installs it.
class Theme
{
public:
    ~Theme() { delete m_theme->style(); }
    DarkUX *get() const { return m_theme.get(); }
    DarkUX *operator->() const { return m_theme.get(); }

private:
    std::unique_ptr<DarkUX> m_theme = std::make_unique<DarkUX>();
};

/// What this program prints when it is run with \a argument.
QByteArray outputOf(const QString &argument, const QString &dpi,
                    QProcess::ProcessChannel channel = QProcess::StandardOutput)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_FONT_DPI", dpi);
    environment.remove("QT_SCALE_FACTOR");
    QProcess process;
    process.setReadChannel(channel);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {argument});
    process.waitForFinished();
    return process.readAll().trimmed();
}

void printMetrics()
{
    for (QStyle::PixelMetric metric :
         {QStyle::PM_ScrollBarExtent, QStyle::PM_DefaultFrameWidth, QStyle::PM_MaximumDragDistance,
          QStyle::PM_MenuBarItemSpacing, QStyle::PM_SubMenuOverlap, QStyle::PM_ToolBarHandleExtent})
        printf("%d ", DarkFusionStyle().pixelMetric(metric));
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instances();
    void palettes();
    void fixedFacts();
    void temperature();
};

/// Copies are not registered.
void TestTheme::instances()
{
    QVERIFY(!DarkUX::getInstancePtr());
    {
        const Theme theme;
        QCOMPARE(&DarkUX::getInstance(), theme.get());
        {
            DarkUX copy(*theme.get());
            QCOMPARE(DarkUX::getInstancePtr(), theme.get());
            QCOMPARE(copy.style(), theme->style());
            QCOMPARE(copy.backgroundColor(), theme->backgroundColor());
            copy.setPalette(QPalette(Qt::red), true);
            QVERIFY(copy.palette() != theme->palette());
            copy = *theme.get();
            QCOMPARE(copy.palette(), theme->palette());
        }
        QCOMPARE(DarkUX::getInstancePtr(), theme.get());
    }
    QVERIFY(!DarkUX::getInstancePtr());
    const QByteArray message = outputOf("--no-theme", "96", QProcess::StandardError);
    QVERIFY2(message.contains("no DarkUX exists"), message.constData());
    QCOMPARE(message.count('\n'), 0);
}

/// Window and Base alone are tinted.
void TestTheme::palettes()
{
    const Theme theme;
    const QPalette themed = theme->palette();
    const QPalette plain = theme->defaultPalette();
    QHash<QPalette::ColorRole, QVector<QRgb>> tinted = {
        {QPalette::Window,
         {0xff1f2126, 0xff1c1e22, 0xff1f2126, 0xff262626, 0xff222222, 0xff262626}},
        {QPalette::Base, {0xff191a1e, 0xff15161a, 0xff191a1e, 0xff1e1e1e, 0xff1a1a1a, 0xff1e1e1e}}};
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = static_cast<QPalette::ColorRole>(i);
        for (int group = 0; group < 3; ++group) {
            const QRgb untinted = plain.color(groups[group], role).rgba();
            QCOMPARE(themed.color(groups[group], role).rgba(), tinted[role].value(group, untinted));
            QCOMPARE(untinted, tinted[role].value(3 + group, untinted));
        }
    }
    for (QPalette::ColorGroup group : groups) {
        QColor halfText = themed.color(QPalette::Active, QPalette::Text);
        halfText.setAlpha(128);
        QCOMPARE(themed.color(group, QPalette::PlaceholderText), halfText);
    }
    QPalette other = themed; // what the theme has no colour for stays as it is set
    for (auto role : {QPalette::Window, QPalette::Text, QPalette::Link})
        other.setColor(role, Qt::green);
    for (bool flag : {true, false}) {
        theme->setPalette(other, flag);
        QCOMPARE(theme->palette(), other);
        QCOMPARE(theme->defaultPalette(), plain);
        theme->initialize();
        QCOMPARE(theme->palette(), themed);
    }
}

void TestTheme::fixedFacts()
{
    const Theme theme;
    const QMap<int, QColor> backgrounds = {{0, 0x202228}, {1, 0x131418}};
    QCOMPARE(theme->backgroundColor(), backgrounds);
    QCOMPARE(theme->moduleVersion(), QStringLiteral("libnocturne 4.0.0.12026 b03a92d4"));
    QCOMPARE(theme->style()->objectName(), QStringLiteral("DarkFusion"));
}

void TestTheme::temperature()
{
    const QPair<unsigned int, QRgb> whites[] = {
        {9500, 0xffcddcff},  {8500, 0xffd6e1ff},  {6600, 0xffffffff}, {6699, 0xffffffff},
        {40000, 0xff97b9ff}, {50000, 0xff97b9ff}, {~0u, 0xff97b9ff},  {0, 0xffff0000}};
    int red = -1;
    int green = -1;
    int blue = -1;
    for (const auto &white : whites) {
        QCOMPARE(DarkUX::colorCalc(Qt::white, static_cast<int>(white.first)).rgb(), white.second);
        DarkUX::getRGBfromTemperature(red, green, blue, white.first);
        QCOMPARE(qRgb(red, qMax(0, green), blue), white.second);
    }
    for (unsigned int kelvin : {0u, 99u, 100u, 599u, 1999u}) {
        DarkUX::getRGBfromTemperature(red, green, blue = -1, kelvin);
        QCOMPARE(blue, 0);
    }
    QCOMPARE(DarkUX::colorCalc(QColor(10, 20, 30, 40), 6600), QColor(10, 20, 30, 255));
}

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers();
    void numbersElsewhere();
    void windowFrameMask();
    void contentSizes();
    void standardIcons();
    void polishing();
    void itemText();

private:
    DarkFusionStyle m_style;
    QCommonStyle m_common;
};

void TestStyle::numbers()
{
    QFile file(QStringLiteral(NOCTURNE_SOURCE_DIR "/tests/style/data/numbers.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList words = line.split(' ', Qt::SkipEmptyParts);
        for (const QString &name : line.startsWith('#') ? QStringList() : words.mid(1)) {
            const bool isHint = name.startsWith("SH_");
            const int value = QStyle::staticMetaObject
                                  .enumerator(QStyle::staticMetaObject.indexOfEnumerator(
                                      isHint ? "StyleHint" : "PixelMetric"))
                                  .keyToValue(name.toLatin1());
            const auto answerOf = [&](const QStyle &style) {
                return isHint ? style.styleHint(QStyle::StyleHint(value))
                              : style.pixelMetric(QStyle::PixelMetric(value));
            };
            const int expected = words[0] == "common" ? answerOf(m_common) : words[0].toInt();
            QCOMPARE(name + " " + QString::number(answerOf(m_style)),
                     name + " " + QString::number(expected));
        }
    }
    const auto custom = QStyle::PixelMetric(QStyle::PM_CustomBase + 3);
    QCOMPARE(m_style.pixelMetric(custom), m_common.pixelMetric(custom));
}

/// On dense screens, below a proxy, and with an option.
void TestStyle::numbersElsewhere()
{
    const QByteArray unscaled("14 1 -1 6 -1 9");
    QCOMPARE(outputOf("--print-metrics", "192"),
             QtVersion::scalesWithFontDpi ? unscaled : QByteArray("28 1 -1 12 -2 18"));
    // Towards zero: 14, 6, -1 and 9 times 1.25.
    QCOMPARE(outputOf("--print-metrics", "120"),
             QtVersion::scalesWithFontDpi ? unscaled : QByteArray("17 1 -1 7 -1 11"));

    Recorder proxy;
    proxy.scrollBarExtent = 99;
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 99);
    proxy.isTransient = false;
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 0);

    QStyleOptionComboBox comboBox;
    QCOMPARE(m_style.styleHint(QStyle::SH_ComboBox_Popup, &comboBox), 1);
    comboBox.editable = true;
    QCOMPARE(m_style.styleHint(QStyle::SH_ComboBox_Popup, &comboBox), 0);
    QStyleOption option;
    option.palette.setColor(QPalette::Window, QColor(120, 60, 240));
    QCOMPARE(QRgb(m_style.styleHint(QStyle::SH_Table_GridLineColor, &option)),
             QColor(120, 60, 240).darker(120).rgb());
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

    // Nothing to fill in, nothing to fill it from.
    m_style.styleHint(QStyle::SH_WindowFrame_Mask, &option);
    m_style.styleHint(QStyle::SH_WindowFrame_Mask, nullptr, nullptr, &mask);
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
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_MdiControls, nullptr, QSize(1, 1)), QSize(60, 19));

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
    QtVersion::setHighDpiPixmaps(true);
    for (QStyle::StandardPixmap button :
         {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton,
          QStyle::SP_TitleBarCloseButton, QStyle::SP_DockWidgetCloseButton})
    {
        const QIcon icon = m_style.standardIcon(button);
        const QPixmap expected = m_style.standardPixmap(button);
        const auto draw = [&](const QPixmap &pixmap) {
            return picture([&](QPainter &painter) {
                m_style.drawItemPixmap(&painter, QRect(2, 2, 16, 16), Qt::AlignCenter, pixmap);
            });
        };
        QCOMPARE(draw(icon.pixmap(16, 16)), draw(expected));
        QCOMPARE(picture([&](QPainter &painter) { icon.paint(&painter, QRect(2, 2, 16, 16)); }),
                 draw(expected));
        QCOMPARE(icon.actualSize(QSize(16, 16)), QSize(11, 13));
        QVERIFY(icon.pixmap(8, 8).width() <= 8 * qApp->devicePixelRatio());
        QVERIFY(draw(icon.pixmap(16, 16, QIcon::Disabled)) != draw(expected));
    }
    QtVersion::setHighDpiPixmaps(false);
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
    m_style.polish(static_cast<QWidget *>(nullptr));
    m_style.unpolish(static_cast<QWidget *>(nullptr));
    // The style alone leaves the light palette; the dark one is the theme's.
    QVERIFY(m_style.standardPalette().color(QPalette::Window).lightness() > 200);
    QPalette palette(Qt::red);
    m_style.polish(palette);
    QCOMPARE(palette, QPalette(Qt::red));
}

void TestStyle::itemText()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::red);
    const QPen pen(Qt::green, 2);
    const auto draw = [&](QPalette::ColorRole role, bool isEnabled) {
        return picture([&](QPainter &painter) {
            painter.setPen(pen);
            m_style.drawItemText(&painter, everything, Qt::AlignCenter, palette, isEnabled,
                                 QStringLiteral("MMM"), role);
            QCOMPARE(painter.pen(), pen);
        });
    };
    const auto drawn = [](const QColor &color) {
        return picture([&](QPainter &painter) {
            painter.setPen(color);
            painter.drawText(everything, Qt::AlignCenter, QStringLiteral("MMM"));
        });
    };
    QCOMPARE(draw(QPalette::ButtonText, true), drawn(Qt::red));
    QCOMPARE(draw(QPalette::ButtonText, false), drawn(Qt::red));
    QCOMPARE(draw(QPalette::NoRole, true), drawn(Qt::green));
}

namespace {

/// A base style that notes what menu items it is asked to draw, and draws none.
class RecordingStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (element == CE_MenuItem && item)
            items << item->text + " at " + nameOf(item->rect);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QStringList items;
};

} // namespace

class TestProxyStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_style = std::make_unique<DarkProxyStyle>(QStringLiteral("Fusion"));
        m_base = new RecordingStyle;
        m_style->setBaseStyle(m_base);
    }
    void baseStyle();
    void menuItemTexts();
    void badge();
    void whatIsNoMenuItem();

private:
    QImage drawItem(const QString &text) const;

    std::unique_ptr<DarkProxyStyle> m_style;
    RecordingStyle *m_base = nullptr;
};

QImage TestProxyStyle::drawItem(const QString &text) const
{
    QStyleOptionMenuItem option;
    option.rect = QRect(5, 4, 90, 22);
    option.text = text;
    return TestSupport::paintOn(QSize(100, 30), Qt::black, [&](QPainter &painter) {
        painter.setPen(Qt::green);
        m_style->drawControl(QStyle::CE_MenuItem, &option, &painter);
        QCOMPARE(painter.pen().color(), QColor(Qt::green));
        QCOMPARE(painter.backgroundMode(), Qt::TransparentMode);
    });
}

void TestProxyStyle::baseStyle()
{
    QVERIFY(DarkProxyStyle(QStringLiteral("windows")).baseStyle()->inherits("QWindowsStyle"));
    QVERIFY(DarkProxyStyle(QStringLiteral("no such style")).baseStyle());
    QCOMPARE(m_base->styleHint(QStyle::SH_ScrollBar_Transient), 0);
    QCOMPARE(m_style->styleHint(QStyle::SH_ScrollBar_Transient), 1);
}

void TestProxyStyle::menuItemTexts()
{
    const QPair<const char *, QString> rows[] = {{"&3;Open\tCtrl+O", "Open"},
                                                 {"&12;Open", "Open"},
                                                 {"&Open", "&Open"},
                                                 {"Open &3;", "Open &3;"},
                                                 {"&1;&2;Open", "&2;Open"},
                                                 {"Open\tCtrl+O\nand\tmore", "Open"},
                                                 {"&7;", ""},
                                                 {"&;Open", "&;Open"},
                                                 {"", ""}};
    for (const auto &row : rows) {
        m_base->items.clear();
        drawItem(row.first);
        QCOMPARE(m_base->items, QStringList(row.second + " at 23,4,72,22"));
    }
}

/// 1 right and 3 down of the item, 16 wide and high, and rounded off.
void TestProxyStyle::badge()
{
    const QImage plain = drawItem(QStringLiteral("Open"));
    TestSupport::comparePixels(plain, Qt::blue, {{14, 8}, {14, 22}, {21, 15}});
    TestSupport::comparePixels(plain, Qt::black, {{6, 7}, {14, 6}, {22, 15}});
    QCOMPARE(drawItem(QStringLiteral("&12;Open")), plain);
    const QImage three = drawItem(QStringLiteral("&3;Open"));
    QVERIFY(three != plain);
    QVERIFY(three != drawItem(QStringLiteral("&4;Open")));
    QVERIFY(TestSupport::count(three, QRect(10, 10, 8, 10), Qt::red) > 0); // behind the digit
}

void TestProxyStyle::whatIsNoMenuItem()
{
    QWidget widget;
    widget.resize(20, 10);
    QStyleOptionMenuItem area;
    QStyleOptionButton button;
    area.rect = button.rect = QRect(0, 0, 30, 30);
    const QImage image = TestSupport::paintOn(QSize(30, 30), Qt::black, [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_MenuEmptyArea, &area, &painter, &widget);
        painter.translate(0, 15);
        m_style->drawControl(QStyle::CE_MenuEmptyArea, &area, &painter);
        m_style->drawControl(QStyle::CE_MenuItem, &button, &painter);
        m_style->drawControl(QStyle::CE_MenuItem, nullptr, &painter);
    });
    TestSupport::comparePixels(image, Qt::yellow, {{0, 0}, {19, 9}});
    TestSupport::comparePixels(image, Qt::black, {{20, 9}, {0, 15}, {5, 23}});
    QVERIFY(m_base->items.isEmpty());
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
    if (argument != "--print-metrics")
        qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (argument == "--print-metrics") {
        printMetrics();
        return 0;
    }
    TestTheme theme;
    TestStyle style;
    TestProxyStyle proxyStyle;
    int failures = 0;
    for (QObject *test : std::initializer_list<QObject *>{&theme, &style, &proxyStyle})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}

#include "tst_style.moc"

#include "testsupport.h"

#include <nocturne/DarkFusionStyle>

#include <QtCore/QProcess>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWizard>

// The answers that the style gives to questions about numbers, sizes, rectangles and pixmaps.

namespace {

const char metricsArgument[] = "--print-metrics";

const QStyle::PixelMetric printedMetrics[] = {
    QStyle::PM_ScrollBarExtent,    QStyle::PM_DefaultFrameWidth, QStyle::PM_MaximumDragDistance,
    QStyle::PM_MenuBarItemSpacing, QStyle::PM_SubMenuOverlap,    QStyle::PM_ToolBarHandleExtent};

/// The metrics of this process, for a parent that runs it at another DPI.
int printMetrics()
{
    const DarkFusionStyle style;
    for (QStyle::PixelMetric metric : printedMetrics)
        printf("%d ", style.pixelMetric(metric));
    return 0;
}

QStringList metricsAtDpi(const QString &dpi)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_FONT_DPI"), dpi);
    environment.remove(QStringLiteral("QT_SCALE_FACTOR"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(metricsArgument)});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput())
        .simplified()
        .split(QLatin1Char(' '));
}

/// The sizes that QCommonStyle computes from the metrics of our style.
class UnadjustedStyle : public DarkFusionStyle
{
public:
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override
    {
        return QCommonStyle::sizeFromContents(type, option, contents, widget);
    }
};

/// One option of each kind that a style may be handed by mistake, and none at all.
template <typename Check>
void forOddOptions(const QRect &rect, Check check)
{
    QStyleOption plain;
    QStyleOptionButton button;
    QStyleOptionMenuItem menuItem;
    QStyleOptionSpinBox spinBox;
    QStyleOptionTitleBar titleBar;
    QStyleOptionDockWidget dockWidget;
    QStyleOption *const options[] = {&plain, &button, &menuItem, &spinBox, &titleBar, &dockWidget};
    for (QStyleOption *option : options) {
        option->rect = rect;
        check(option);
    }
    check(static_cast<QStyleOption *>(nullptr));
}

} // namespace

class tst_StyleFrame : public QObject
{
    Q_OBJECT

private slots:
    void identity();

    void metrics_data();
    void metrics();
    void metricsGrowWithDpi();
    void scrollBarOverlapAsksTheProxy();
    void hints_data();
    void hints();
    void hintsFromOptions();
    void windowFrameMask();

    void contentSizes_data();
    void contentSizes();
    void pushButtonSizes();
    void menuItemSizes();
    void menuItemHeights();
    void groupBoxSize();
    void mdiControlsSizes();

    void subElementRects();
    void standardPixmaps();

    void polishing();
    void palettes();
    void itemText();

    void oddQuestions();

private:
    /// What the style adds to the size that QCommonStyle finds.
    QSize addedSize(QStyle::ContentsType type, const QStyleOption &option, const QSize &contents,
                    const QWidget *widget = nullptr) const
    {
        return m_style.sizeFromContents(type, &option, contents, widget)
               - m_unadjusted.sizeFromContents(type, &option, contents, widget);
    }

    DarkFusionStyle m_style;
    UnadjustedStyle m_unadjusted;
    QCommonStyle m_common;
};

void tst_StyleFrame::identity()
{
    QCOMPARE(m_style.objectName(), QStringLiteral("DarkFusion"));
    QVERIFY(m_style.inherits("QCommonStyle"));
}

void tst_StyleFrame::metrics_data()
{
    QTest::addColumn<QStyle::PixelMetric>("metric");
    QTest::addColumn<int>("expected");
    QTest::newRow("first") << QStyle::PM_ButtonDefaultIndicator << 0;
    QTest::newRow("frame") << QStyle::PM_DefaultFrameWidth << 1;
    QTest::newRow("spin box frame") << QStyle::PM_SpinBoxFrameWidth << 3;
    QTest::newRow("no limit to a drag") << QStyle::PM_MaximumDragDistance << -1;
    QTest::newRow("scroll bar") << QStyle::PM_ScrollBarExtent << 14;
    QTest::newRow("scroll bar overlap") << QStyle::PM_ScrollView_ScrollBarOverlap << 14;
    QTest::newRow("slider") << QStyle::PM_SliderLength << 15;
    QTest::newRow("tab") << QStyle::PM_TabBarTabVSpace << 12;
    QTest::newRow("sub-menu") << QStyle::PM_SubMenuOverlap << -1;
    QTest::newRow("menu bar") << QStyle::PM_MenuBarItemSpacing << 6;
    QTest::newRow("message box") << QStyle::PM_MessageBoxIconSize << 48;
    QTest::newRow("last") << QStyle::PM_SubMenuOverlap << -1;
    QTest::newRow("not ours") << QStyle::PM_TextCursorWidth
                              << m_common.pixelMetric(QStyle::PM_TextCursorWidth);
    QTest::newRow("nor this") << QStyle::PM_TitleBarButtonSize
                              << m_common.pixelMetric(QStyle::PM_TitleBarButtonSize);
    QTest::newRow("unknown") << QStyle::PixelMetric(QStyle::PM_CustomBase + 3)
                             << m_common.pixelMetric(
                                    QStyle::PixelMetric(QStyle::PM_CustomBase + 3));
}

void tst_StyleFrame::metrics()
{
    QFETCH(QStyle::PixelMetric, metric);
    QTEST(m_style.pixelMetric(metric), "expected");
}

void tst_StyleFrame::metricsGrowWithDpi()
{
    const QString at192 = metricsAtDpi(QStringLiteral("192")).join(QLatin1Char(' '));
    QCOMPARE(at192, QStringLiteral("28 1 -1 12 -2 18"));
    // Towards zero: 14, 6, -1 and 9 times 1.25.
    const QString at120 = metricsAtDpi(QStringLiteral("120")).join(QLatin1Char(' '));
    QCOMPARE(at120, QStringLiteral("17 1 -1 7 -1 11"));
}

void tst_StyleFrame::scrollBarOverlapAsksTheProxy()
{
    struct Proxy : QProxyStyle
    {
        using QProxyStyle::QProxyStyle;
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                      QStyleHintReturn *data) const override
        {
            return hint == SH_ScrollBar_Transient
                       ? transient
                       : QProxyStyle::styleHint(hint, option, widget, data);
        }
        int pixelMetric(PixelMetric metric, const QStyleOption *option,
                        const QWidget *widget) const override
        {
            return metric == PM_ScrollBarExtent ? 99
                                                : QProxyStyle::pixelMetric(metric, option, widget);
        }
        int transient = 1;
    } proxy(new DarkFusionStyle);
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 99);
    proxy.transient = 0;
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 0);
}

void tst_StyleFrame::hints_data()
{
    QTest::addColumn<QStyle::StyleHint>("hint");
    QTest::addColumn<int>("expected");
    for (const QStyle::StyleHint hint :
         {QStyle::SH_EtchDisabledText, QStyle::SH_ScrollBar_MiddleClickAbsolutePosition,
          QStyle::SH_Slider_SnapToValue, QStyle::SH_PrintDialog_RightAlignButtons,
          QStyle::SH_FontDialog_SelectAssociatedText, QStyle::SH_MenuBar_AltKeyNavigation,
          QStyle::SH_ComboBox_ListMouseTracking, QStyle::SH_Menu_MouseTracking,
          QStyle::SH_MenuBar_MouseTracking, QStyle::SH_ItemView_ChangeHighlightOnFocus,
          QStyle::SH_TitleBar_NoBorder, QStyle::SH_Slider_StopMouseOverSlider,
          QStyle::SH_TitleBar_AutoRaise, QStyle::SH_ItemView_ShowDecorationSelected,
          QStyle::SH_ItemView_ArrowKeysNavigateIntoChildren, QStyle::SH_ScrollBar_Transient,
          QStyle::SH_Menu_SupportsSections})
        QTest::addRow("on: %d", hint) << hint << 1;
    for (const QStyle::StyleHint hint :
         {QStyle::SH_MainWindow_SpaceBelowMenuBar, QStyle::SH_Menu_AllowActiveAndDisabled,
          QStyle::SH_ScrollView_FrameOnlyAroundContents, QStyle::SH_ToolBox_SelectedPageTitleBold,
          QStyle::SH_RubberBand_Mask, QStyle::SH_DialogButtonBox_ButtonsHaveIcons,
          QStyle::SH_MessageBox_CenterButtons})
        QTest::addRow("off: %d", hint) << hint << 0;
    QTest::newRow("menu delay") << QStyle::SH_Menu_SubMenuPopupDelay << 225;
    QTest::newRow("wizard") << QStyle::SH_WizardStyle << int(QWizard::ClassicStyle);
    QTest::newRow("message text") << QStyle::SH_MessageBox_TextInteractionFlags << 5;
    QTest::newRow("popup without option") << QStyle::SH_ComboBox_Popup << 0;
    QTest::newRow("grid without option") << QStyle::SH_Table_GridLineColor << 0;
    QTest::newRow("not ours") << QStyle::SH_ToolTip_WakeUpDelay
                              << m_common.styleHint(QStyle::SH_ToolTip_WakeUpDelay);
    QTest::newRow("nor this") << QStyle::SH_SpinBox_StepModifier
                              << m_common.styleHint(QStyle::SH_SpinBox_StepModifier);
    QTest::newRow("unknown") << QStyle::StyleHint(QStyle::SH_CustomBase + 1) << 0;
}

void tst_StyleFrame::hints()
{
    QFETCH(QStyle::StyleHint, hint);
    QTEST(m_style.styleHint(hint), "expected");
}

void tst_StyleFrame::hintsFromOptions()
{
    QStyleOptionComboBox comboBox;
    comboBox.editable = false;
    QCOMPARE(m_style.styleHint(QStyle::SH_ComboBox_Popup, &comboBox), 1);
    comboBox.editable = true;
    QCOMPARE(m_style.styleHint(QStyle::SH_ComboBox_Popup, &comboBox), 0);

    QStyleOption option;
    option.palette.setColor(QPalette::Window, QColor(120, 60, 240));
    QCOMPARE(QRgb(m_style.styleHint(QStyle::SH_Table_GridLineColor, &option)),
             QColor(120, 60, 240).darker(120).rgb());
}

void tst_StyleFrame::windowFrameMask()
{
    QStyleOption option;
    option.rect = QRect(10, 20, 40, 30);
    QStyleHintReturnMask mask;
    QCOMPARE(m_style.styleHint(QStyle::SH_WindowFrame_Mask, &option, nullptr, &mask), 1);

    const QStringList corner = {QStringLiteral(".....#"), QStringLiteral("...###"),
                                QStringLiteral("..####"), QStringLiteral(".#####"),
                                QStringLiteral(".#####"), QStringLiteral("######")};
    for (int y = 0; y < corner.size(); ++y) {
        for (int x = 0; x < corner.at(y).size(); ++x) {
            const bool inside = corner.at(y).at(x) == QLatin1Char('#');
            QCOMPARE(mask.region.contains(QPoint(10 + x, 20 + y)), inside);
            QCOMPARE(mask.region.contains(QPoint(49 - x, 20 + y)), inside);
        }
    }
    QVERIFY(mask.region.contains(QPoint(10, 49)));
    QCOMPARE(mask.region.boundingRect(), option.rect);

    // Nothing to fill in, nothing to fill it from.
    m_style.styleHint(QStyle::SH_WindowFrame_Mask, &option);
    m_style.styleHint(QStyle::SH_WindowFrame_Mask, nullptr, nullptr, &mask);
}

void tst_StyleFrame::contentSizes_data()
{
    QTest::addColumn<QStyle::ContentsType>("type");
    QTest::addColumn<QSize>("added");
    QTest::newRow("check box") << QStyle::CT_CheckBox << QSize(0, 1);
    QTest::newRow("radio button") << QStyle::CT_RadioButton << QSize(0, 1);
    QTest::newRow("tool button") << QStyle::CT_ToolButton << QSize(2, 2);
    QTest::newRow("combo box") << QStyle::CT_ComboBox << QSize(28, 8);
    QTest::newRow("menu bar item") << QStyle::CT_MenuBarItem << QSize(8, 5);
    QTest::newRow("line edit") << QStyle::CT_LineEdit << QSize(0, 4);
    QTest::newRow("spin box") << QStyle::CT_SpinBox << QSize(0, -3);
    QTest::newRow("size grip") << QStyle::CT_SizeGrip << QSize(4, 4);
    QTest::newRow("progress bar") << QStyle::CT_ProgressBar << QSize(0, 0);
    QTest::newRow("slider") << QStyle::CT_Slider << QSize(0, 0);
}

void tst_StyleFrame::contentSizes()
{
    QFETCH(QStyle::ContentsType, type);
    QFETCH(QSize, added);
    const QSize contents(50, 20);
    QStyleOption option;
    QCOMPARE(addedSize(type, option, contents), added);
}

void tst_StyleFrame::pushButtonSizes()
{
    const QSize narrow(10, 20);
    const QSize wide(100, 20);
    QStyleOptionButton option;
    QCOMPARE(addedSize(QStyle::CT_PushButton, option, narrow), QSize(0, 3));
    option.text = QStringLiteral("OK");
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_PushButton, &option, narrow).width(), 60);
    QCOMPARE(addedSize(QStyle::CT_PushButton, option, wide), QSize(0, 3));

    option.iconSize = QSize(16, 17);
    QCOMPARE(addedSize(QStyle::CT_PushButton, option, wide), QSize(0, 3)); // no icon of that size
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    option.icon = pixmap;
    QCOMPARE(addedSize(QStyle::CT_PushButton, option, wide), QSize(0, 1));
    option.iconSize = QSize(40, 16);
    QCOMPARE(addedSize(QStyle::CT_PushButton, option, wide), QSize(0, 3));
}

void tst_StyleFrame::menuItemSizes()
{
    QStyleOptionMenuItem option;
    option.text = QStringLiteral("A rather long text for a menu item");
    option.font = qApp->font();
    const auto added = [&](const QWidget *widget = nullptr) {
        return addedSize(QStyle::CT_MenuItem, option, QSize(300, 20), widget);
    };
    constexpr int plain = 12 + 25 + 12;
    QCOMPARE(added(), QSize(plain, 0));
    option.maxIconWidth = 30;
    QCOMPARE(added(), QSize(plain + 18, 0));
    option.maxIconWidth = 5;
    QCOMPARE(added(), QSize(plain, 0));

    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    QCOMPARE(added(), QSize(plain + 12, 0));
    option.menuItemType = QStyleOptionMenuItem::DefaultItem;
    QFont bold(option.font);
    bold.setBold(true);
    const int bolder = QFontMetrics(bold).horizontalAdvance(option.text)
                       - QFontMetrics(option.font).horizontalAdvance(option.text);
    QVERIFY(bolder > 0);
    QCOMPARE(added(), QSize(plain + bolder, 0));
    // Room for a shortcut is room for all else.
    option.text += QStringLiteral("\tCtrl+O");
    QCOMPARE(added(), QSize(plain + 20, 0));

    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.text = QStringLiteral("x");
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_MenuItem, &option, QSize(5, 20)).width(), 120);
}

void tst_StyleFrame::menuItemHeights()
{
    QStyleOptionMenuItem option;
    option.text = QStringLiteral("x");
    const auto height = [&](const QWidget *widget = nullptr) {
        return m_style.sizeFromContents(QStyle::CT_MenuItem, &option, QSize(300, 20), widget)
            .height();
    };
    QComboBox comboBox;
    comboBox.setIconSize(QSize(40, 40));
    QVERIFY(height(&comboBox) < 42);
    option.icon = QPixmap(4, 4);
    QVERIFY(height() < 42);
    QCOMPARE(height(&comboBox), 42);

    option.menuItemType = QStyleOptionMenuItem::Separator;
    QCOMPARE(height(&comboBox), option.fontMetrics.height());
}

void tst_StyleFrame::groupBoxSize()
{
    QStyleOptionGroupBox option;
    QFont large(qApp->font());
    large.setPixelSize(40);
    option.fontMetrics = QFontMetrics(large);
    QCOMPARE(addedSize(QStyle::CT_GroupBox, option, QSize(100, 50)),
             QSize(10, option.fontMetrics.height() + 3));
}

void tst_StyleFrame::mdiControlsSizes()
{
    QStyleOptionComplex option;
    option.subControls = QStyle::SC_MdiCloseButton | QStyle::SC_MdiMinButton;
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_MdiControls, &option, QSize(1, 1)), QSize(40, 19));
    option.subControls = QStyle::SC_None;
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_MdiControls, &option, QSize(1, 1)), QSize(0, 19));
    QCOMPARE(m_style.sizeFromContents(QStyle::CT_MdiControls, nullptr, QSize(1, 1)), QSize(60, 19));
}

void tst_StyleFrame::subElementRects()
{
    const QRect rect(7, 9, 120, 30);
    QStyleOptionProgressBar bar;
    bar.rect = rect;
    bar.textVisible = true;
    for (QStyle::SubElement element : {QStyle::SE_ProgressBarGroove, QStyle::SE_ProgressBarContents,
                                       QStyle::SE_ProgressBarLabel})
        QCOMPARE(m_style.subElementRect(element, &bar), rect);

    QStyleOptionDockWidget dock;
    dock.rect = rect;
    const auto text = [&] {
        return m_style.subElementRect(QStyle::SE_DockWidgetTitleBarText, &dock);
    };
    const QRect leftToRight = text();
    dock.direction = Qt::RightToLeft;
    const QRect rightToLeft = text();
    QCOMPARE(rightToLeft, QStyle::visualRect(Qt::RightToLeft, rect, leftToRight));
    QVERIFY(leftToRight.left() >= rect.left() + 4);

    // In a vertical bar the text reads upwards from four units above the bottom.
    dock.direction = Qt::LeftToRight;
    dock.verticalTitleBar = true;
    QVERIFY(text().bottom() <= rect.bottom() - 4);
    QVERIFY(text().left() < leftToRight.left());
}

void tst_StyleFrame::standardPixmaps()
{
    const QImage close = m_style.standardPixmap(QStyle::SP_TitleBarCloseButton).toImage();
    const QImage restore = m_style.standardPixmap(QStyle::SP_TitleBarNormalButton).toImage();
    const QImage minimize = m_style.standardPixmap(QStyle::SP_TitleBarMinButton).toImage();
    QCOMPARE(m_style.standardPixmap(QStyle::SP_DockWidgetCloseButton).toImage(), close);
    for (const QImage &image : {close, restore, minimize}) {
        QCOMPARE(image.size(), QSize(11, 13));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        COMPARE_PIXEL(image, 1, 1, QColor(0x8f, 0x8b, 0x88));
        COMPARE_PIXEL(image, 5, 1, QColor(0x6c, 0x6a, 0x67));
        COMPARE_PIXEL(image, 1, 2, QColor(0xab, 0xa6, 0xa3));
        COMPARE_PIXEL(image, 1, 10, QColor(0xa4, 0xa0, 0x9d));
    }
    COMPARE_PIXEL(close, 2, 3, QColor(0xb5, 0xb0, 0xac));
    COMPARE_PIXEL(close, 5, 6, QColor(0x6c, 0x6a, 0x67));
    QCOMPARE(restore.pixelColor(5, 7).alpha(), 0);
    COMPARE_PIXEL(restore, 4, 3, QColor(0xab, 0xa6, 0xa3));
    COMPARE_PIXEL(minimize, 5, 7, QColor(0x6c, 0x6a, 0x67));

    QVERIFY(!m_style.standardPixmap(QStyle::SP_DirIcon).isNull());
    QVERIFY(!m_style.standardIcon(QStyle::SP_DialogCloseButton).isNull());
}

void tst_StyleFrame::polishing()
{
    QPushButton button;
    QComboBox comboBox;
    QProgressBar progressBar;
    QScrollBar scrollBar;
    QSplitter splitter;
    splitter.addWidget(new QWidget);
    splitter.addWidget(new QWidget);
    QSlider slider;
    QSpinBox spinBox;
    for (QWidget *widget : std::initializer_list<QWidget *>{
             &button, &comboBox, &progressBar, &scrollBar, splitter.handle(1), &slider, &spinBox})
    {
        widget->setAttribute(Qt::WA_Hover, false);
        widget->setAttribute(Qt::WA_OpaquePaintEvent, true);
        m_style.polish(widget);
        QVERIFY2(widget->testAttribute(Qt::WA_Hover), widget->metaObject()->className());
        QVERIFY(!widget->testAttribute(Qt::WA_OpaquePaintEvent));
        m_style.unpolish(widget);
        QVERIFY(!widget->testAttribute(Qt::WA_Hover));
    }
    QLabel label;
    label.setAttribute(Qt::WA_OpaquePaintEvent);
    m_style.polish(&label);
    QVERIFY(!label.testAttribute(Qt::WA_Hover));
    QVERIFY(label.testAttribute(Qt::WA_OpaquePaintEvent));

    m_style.polish(static_cast<QWidget *>(nullptr));
    m_style.unpolish(static_cast<QWidget *>(nullptr));
}

void tst_StyleFrame::palettes()
{
    // The style alone leaves the light palette; the dark one is the theme's.
    QVERIFY(m_style.standardPalette().color(QPalette::Window).lightness() > 200);
    QPalette palette(Qt::red);
    const QPalette before = palette;
    m_style.polish(palette);
    QCOMPARE(palette, before);
}

void tst_StyleFrame::itemText()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::red);
    const QPen pen(Qt::green, 2);
    const auto draw = [&](const QString &text, QPalette::ColorRole role, bool enabled = true) {
        return TestSupport::paintOn(QSize(60, 30), Qt::black, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::TextAntialiasing, false);
            painter.setPen(pen);
            m_style.drawItemText(&painter, QRect(0, 0, 60, 30), Qt::AlignCenter, palette, enabled,
                                 text, role);
            QCOMPARE(painter.pen(), pen);
        });
    };
    const auto colorOf = [](const QImage &image) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != Qt::black)
                    return image.pixelColor(x, y);
            }
        }
        return QColor(Qt::black);
    };
    const QString text = QStringLiteral("MMM");
    QCOMPARE(colorOf(draw(QString(), QPalette::ButtonText)), QColor(Qt::black));
    const QColor byRole = colorOf(draw(text, QPalette::ButtonText));
    QVERIFY(byRole.red() > 0 && byRole.green() == 0);
    const QColor byPen = colorOf(draw(text, QPalette::NoRole));
    QVERIFY(byPen.green() > 0 && byPen.red() == 0);
    QCOMPARE(draw(text, QPalette::ButtonText, false), draw(text, QPalette::ButtonText));
}

void tst_StyleFrame::oddQuestions()
{
    constexpr int beyondTheLast = 140;
    for (const QRect &rect : {QRect(), QRect(3, 3, 1, 1), QRect(0, 0, 1 << 24, 1 << 24)}) {
        forOddOptions(rect, [this](const QStyleOption *option) {
            for (int i = -1; i < beyondTheLast; ++i) {
                m_style.pixelMetric(QStyle::PixelMetric(i), option);
                m_style.styleHint(QStyle::StyleHint(i), option);
                m_style.subElementRect(QStyle::SubElement(i), option);
                m_style.standardPixmap(QStyle::StandardPixmap(i), option);
                m_style.standardIcon(QStyle::StandardPixmap(i), option);
                m_style.sizeFromContents(QStyle::ContentsType(i), option, QSize(30, 20));
                m_style.sizeFromContents(QStyle::ContentsType(i), option, QSize());
            }
        });
    }
}

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool printsMetrics = argc > 1 && qstrcmp(argv[1], metricsArgument) == 0;
    if (!printsMetrics)
        qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (printsMetrics)
        return printMetrics();
    tst_StyleFrame test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_style_frame.moc"

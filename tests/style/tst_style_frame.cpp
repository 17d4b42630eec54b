#include "qtversion.h"
#include "stylepainting.h"

#include <QtCore/QProcess>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QWizard>

// The answers that the style gives to questions about numbers, sizes, rectangles and pixmaps.

using StylePainting::Recorder;

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
        return QCommonStyle::sizeFromContents(type, option, contents, // NOLINT: passes ours over
                                              widget);
    }
};

/// The numbers of the style, each with the questions that it answers.
struct Answers : QStyle
{
    static QVector<QPair<int, QVector<PixelMetric>>> metrics()
    {
        return {{-1, {PM_MaximumDragDistance, PM_SubMenuOverlap}},
                {0,
                 {PM_ButtonDefaultIndicator, PM_ButtonShiftHorizontal, PM_ButtonShiftVertical,
                  PM_ScrollView_ScrollBarSpacing, PM_MenuHMargin, PM_MenuVMargin, PM_MenuPanelWidth,
                  PM_MenuBarPanelWidth, PM_MenuBarVMargin, PM_MenuBarHMargin}},
                {1,
                 {PM_DefaultFrameWidth, PM_TabBarTabOverlap, PM_ToolBarItemSpacing,
                  PM_DockWidgetTitleMargin}},
                {2,
                 {PM_ToolTipLabelFrameWidth, PM_TabBarBaseOverlap, PM_HeaderMargin,
                  PM_ToolBarFrameWidth, PM_ToolBarItemMargin, PM_DockWidgetTitleBarButtonMargin}},
                {3, {PM_SpinBoxFrameWidth}},
                {4, {PM_SliderTickmarkOffset, PM_SplitterWidth, PM_DockWidgetHandleExtent}},
                {6, {PM_MenuBarItemSpacing}},
                {9, {PM_ToolBarHandleExtent}},
                {12, {PM_TabBarTabVSpace}},
                {14,
                 {PM_IndicatorWidth, PM_IndicatorHeight, PM_ExclusiveIndicatorWidth,
                  PM_ExclusiveIndicatorHeight, PM_ScrollBarExtent, PM_ScrollView_ScrollBarOverlap}},
                {15, {PM_SliderThickness, PM_SliderLength}},
                {16, {PM_ButtonIconSize, PM_SmallIconSize}},
                {20, {PM_TabCloseIndicatorWidth, PM_TabCloseIndicatorHeight}},
                {24, {PM_ListViewIconSize, PM_TitleBarHeight}},
                {26, {PM_DialogButtonsSeparator, PM_ScrollBarSliderMin}},
                {48, {PM_MessageBoxIconSize}}};
    }
    static QVector<QPair<int, QVector<StyleHint>>> hints()
    {
        return {{0,
                 {SH_ScrollView_FrameOnlyAroundContents, SH_MainWindow_SpaceBelowMenuBar,
                  SH_Menu_AllowActiveAndDisabled, SH_ToolBox_SelectedPageTitleBold,
                  SH_RubberBand_Mask, SH_DialogButtonBox_ButtonsHaveIcons,
                  SH_MessageBox_CenterButtons, SH_ComboBox_Popup, SH_Table_GridLineColor}},
                {1,
                 {SH_EtchDisabledText, SH_FontDialog_SelectAssociatedText,
                  SH_PrintDialog_RightAlignButtons, SH_ScrollBar_MiddleClickAbsolutePosition,
                  SH_ScrollBar_Transient, SH_Slider_SnapToValue, SH_Slider_StopMouseOverSlider,
                  SH_MenuBar_AltKeyNavigation, SH_MenuBar_MouseTracking, SH_Menu_MouseTracking,
                  SH_Menu_SupportsSections, SH_ComboBox_ListMouseTracking,
                  SH_ItemView_ArrowKeysNavigateIntoChildren, SH_ItemView_ChangeHighlightOnFocus,
                  SH_ItemView_ShowDecorationSelected, SH_TitleBar_AutoRaise, SH_TitleBar_NoBorder}},
                {5, {SH_MessageBox_TextInteractionFlags}},
                {225, {SH_Menu_SubMenuPopupDelay}},
                {QWizard::ClassicStyle, {SH_WizardStyle}}};
    }
    static constexpr PixelMetric othersMetrics[] = {PM_TextCursorWidth, PM_TitleBarButtonSize,
                                                    PixelMetric(PM_CustomBase + 3)};
    static constexpr StyleHint othersHints[] = {SH_ToolTip_WakeUpDelay, SH_SpinBox_StepModifier,
                                                StyleHint(SH_CustomBase + 1)};
};

} // namespace

class tst_StyleFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metrics();
    void metricsGrowWithDpi();
    void scrollBarOverlapAsksTheProxy();
    void hints();
    void hintsFromOptions();
    void windowFrameMask();

    void contentSizes();
    void pushButtonSizes();
    void menuItemSizes();
    void menuItemHeights();
    void groupBoxSize();
    void mdiControlsSizes();

    void subElementRects();
    void standardPixmaps();
    void standardIcons();

    void polishing();
    void palettes();
    void itemText();

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

void tst_StyleFrame::metrics()
{
    for (const auto &answer : Answers::metrics()) {
        for (const QStyle::PixelMetric metric : answer.second)
            QCOMPARE(qMakePair(metric, m_style.pixelMetric(metric)),
                     qMakePair(metric, answer.first));
    }
    for (const QStyle::PixelMetric metric : Answers::othersMetrics)
        QCOMPARE(m_style.pixelMetric(metric), m_common.pixelMetric(metric));
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
    Recorder proxy;
    proxy.scrollBarExtent = 99;
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 99);
    proxy.isTransient = false;
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr, nullptr), 0);
}

void tst_StyleFrame::hints()
{
    for (const auto &answer : Answers::hints()) {
        for (const QStyle::StyleHint hint : answer.second)
            QCOMPARE(qMakePair(hint, m_style.styleHint(hint)), qMakePair(hint, answer.first));
    }
    for (const QStyle::StyleHint hint : Answers::othersHints)
        QCOMPARE(m_style.styleHint(hint), m_common.styleHint(hint));
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

    const QStringList corner = {".....#", "...###", "..####", ".#####", ".#####", "######"};
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

void tst_StyleFrame::contentSizes()
{
    const QVector<QPair<QStyle::ContentsType, QSize>> added = {
        {QStyle::CT_CheckBox, QSize(0, 1)},    {QStyle::CT_RadioButton, QSize(0, 1)},
        {QStyle::CT_ToolButton, QSize(2, 2)},  {QStyle::CT_ComboBox, QSize(28, 8)},
        {QStyle::CT_MenuBarItem, QSize(8, 5)}, {QStyle::CT_LineEdit, QSize(0, 4)},
        {QStyle::CT_SpinBox, QSize(0, -3)},    {QStyle::CT_SizeGrip, QSize(4, 4)},
        {QStyle::CT_ProgressBar, QSize(0, 0)}, {QStyle::CT_Slider, QSize(0, 0)}};
    for (const auto &size : added)
        QCOMPARE(qMakePair(size.first, addedSize(size.first, QStyleOption(), QSize(50, 20))), size);
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

/// The icons of the window buttons are their pixmaps, each pixel a square of device pixels.
void tst_StyleFrame::standardIcons()
{
    QtVersion::setHighDpiPixmaps(true);
    for (QStyle::StandardPixmap button :
         {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton,
          QStyle::SP_TitleBarCloseButton, QStyle::SP_DockWidgetCloseButton})
    {
        const QIcon icon = m_style.standardIcon(button);
        const QPixmap expected = m_style.standardPixmap(button);
        const auto draw = [&](const QPixmap &pixmap) {
            return StylePainting::picture([&](QPainter &painter) {
                m_style.drawItemPixmap(&painter, QRect(2, 2, 16, 16), Qt::AlignCenter, pixmap);
            });
        };
        QCOMPARE(draw(icon.pixmap(16, 16)), draw(expected));
        QCOMPARE(StylePainting::picture(
                     [&](QPainter &painter) { icon.paint(&painter, QRect(2, 2, 16, 16)); }),
                 draw(expected));
        QCOMPARE(icon.actualSize(QSize(16, 16)), QSize(11, 13));
        QVERIFY(icon.pixmap(8, 8).width() <= 8 * qApp->devicePixelRatio());
        QVERIFY(draw(icon.pixmap(16, 16, QIcon::Disabled)) != draw(expected));
    }
    QtVersion::setHighDpiPixmaps(false);
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
    const auto draw = [&](QPalette::ColorRole role, bool isEnabled) {
        return StylePainting::picture([&](QPainter &painter) {
            painter.setPen(pen);
            m_style.drawItemText(&painter, StylePainting::everything, Qt::AlignCenter, palette,
                                 isEnabled, QStringLiteral("MMM"), role);
            QCOMPARE(painter.pen(), pen);
        });
    };
    const auto drawn = [](const QColor &color) {
        return StylePainting::picture([&](QPainter &painter) {
            painter.setPen(color);
            painter.drawText(StylePainting::everything, Qt::AlignCenter, QStringLiteral("MMM"));
        });
    };
    QCOMPARE(draw(QPalette::ButtonText, true), drawn(Qt::red));
    QCOMPARE(draw(QPalette::ButtonText, false), drawn(Qt::red));
    QCOMPARE(draw(QPalette::NoRole, true), drawn(Qt::green));
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

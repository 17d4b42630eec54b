#include "stylepainting.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>

#include <limits>
#include <memory>

// Options that no widget makes: every type in the place of every other, with anything in its
// fields. The style must come back, in time, with the painter as it was.

using namespace StylePainting;

namespace {

constexpr quint32 seed = 20260;
constexpr int rounds = 30000;
constexpr qint64 slowestCall = 2000; // milliseconds; most take microseconds

// The elements that the style paints itself; the common style does not stand everything. The
// separator of tool bars is not here: it leaves its pen.
constexpr QStyle::PrimitiveElement ownPrimitives[] = {QStyle::PE_FrameDefaultButton,
                                                      QStyle::PE_FrameStatusBarItem,
                                                      QStyle::PE_Frame,
                                                      QStyle::PE_FrameMenu,
                                                      QStyle::PE_FrameDockWidget,
                                                      QStyle::PE_FrameWindow,
                                                      QStyle::PE_FrameFocusRect,
                                                      QStyle::PE_FrameGroupBox,
                                                      QStyle::PE_FrameLineEdit,
                                                      QStyle::PE_FrameTabWidget,
                                                      QStyle::PE_FrameTabBarBase,
                                                      QStyle::PE_PanelLineEdit,
                                                      QStyle::PE_PanelMenu,
                                                      QStyle::PE_PanelScrollAreaCorner,
                                                      QStyle::PE_PanelTipLabel,
                                                      QStyle::PE_PanelButtonCommand,
                                                      QStyle::PE_PanelButtonTool,
                                                      QStyle::PE_IndicatorButtonDropDown,
                                                      QStyle::PE_IndicatorTabClose,
                                                      QStyle::PE_IndicatorArrowDown,
                                                      QStyle::PE_IndicatorArrowLeft,
                                                      QStyle::PE_IndicatorArrowRight,
                                                      QStyle::PE_IndicatorArrowUp,
                                                      QStyle::PE_IndicatorBranch,
                                                      QStyle::PE_IndicatorCheckBox,
                                                      QStyle::PE_IndicatorDockWidgetResizeHandle,
                                                      QStyle::PE_IndicatorHeaderArrow,
                                                      QStyle::PE_IndicatorItemViewItemCheck,
                                                      QStyle::PE_IndicatorRadioButton,
                                                      QStyle::PE_IndicatorToolBarHandle};

constexpr QStyle::ControlElement ownControls[] = {
    QStyle::CE_PushButton,        QStyle::CE_PushButtonLabel,
    QStyle::CE_ToolButtonLabel,   QStyle::CE_ComboBoxLabel,
    QStyle::CE_TabBarTabShape,    QStyle::CE_HeaderSection,
    QStyle::CE_ProgressBarGroove, QStyle::CE_ProgressBarContents,
    QStyle::CE_ProgressBarLabel,  QStyle::CE_MenuItem,
    QStyle::CE_MenuVMargin,       QStyle::CE_MenuHMargin,
    QStyle::CE_MenuEmptyArea,     QStyle::CE_MenuBarItem,
    QStyle::CE_MenuBarEmptyArea,  QStyle::CE_DockWidgetTitle,
    QStyle::CE_RubberBand,        QStyle::CE_SizeGrip,
    QStyle::CE_Splitter,          QStyle::CE_ToolBar};

constexpr QStyle::ComplexControl ownComplexControls[] = {
    QStyle::CC_SpinBox,  QStyle::CC_ComboBox, QStyle::CC_ScrollBar, QStyle::CC_Slider,
    QStyle::CC_GroupBox, QStyle::CC_TitleBar, QStyle::CC_Dial};

// A dial has no parts to ask for.
constexpr int dialIndex = int(std::size(ownComplexControls)) - 1;
static_assert(ownComplexControls[dialIndex] == QStyle::CC_Dial);

/// The same values in the same order in every run.
class Chance
{
public:
    Chance()
        : m_generator(seed)
        , m_palettes(extremePalettes())
        , m_rects(extremeRects())
    {
        QPixmap pixmap(20, 12);
        pixmap.fill(Qt::red);
        m_icon = QIcon(pixmap);
    }

    int below(int limit) { return m_generator.bounded(limit); }
    bool coin() { return below(2) == 0; }

    /// Mostly small, sometimes at an end of the range.
    int number()
    {
        switch (below(8)) {
        case 0:
            return std::numeric_limits<int>::max();
        case 1:
            return std::numeric_limits<int>::min();
        case 2:
            return static_cast<int>(m_generator.generate());
        default:
            return below(120) - 20;
        }
    }

    QString text()
    {
        static const QString texts[] = {QString(),
                                        QStringLiteral("Text"),
                                        QStringLiteral("&Item\tCtrl+I"),
                                        QStringLiteral("\t"),
                                        QStringLiteral("two\nlines"),
                                        QString(400, QLatin1Char('w'))};
        return texts[below(6)];
    }

    QIcon icon() { return coin() ? QIcon() : m_icon; }
    QSize size() { return QSize(below(60) - 10, below(60) - 10); }

    QRect rect()
    {
        if (below(3) == 0)
            return m_rects.at(below(m_rects.size()));
        return QRect(below(30) - 10, below(30) - 10, below(120), below(60));
    }

    QPalette palette()
    {
        QPalette palette = m_palettes.at(below(m_palettes.size()));
        palette.setCurrentColorGroup(static_cast<QPalette::ColorGroup>(below(3)));
        return palette;
    }

    /// One of the first \a count values of an enumeration, or the one after them.
    template <typename Enum>
    Enum value(int count)
    {
        return static_cast<Enum>(below(count + 1));
    }

    template <typename Flags>
    Flags flags()
    {
        return Flags(static_cast<int>(m_generator.generate() & 0x7fffffff));
    }

    void fillCommon(QStyleOption &option)
    {
        option.state = flags<QStyle::State>();
        option.direction = coin() ? Qt::LeftToRight : Qt::RightToLeft;
        option.rect = rect();
        option.palette = palette();
        option.fontMetrics = QFontMetrics(QApplication::font());
    }

    void fillComplex(QStyleOptionComplex &option)
    {
        option.subControls = flags<QStyle::SubControls>();
        option.activeSubControls =
            coin() ? QStyle::SubControls(QStyle::SC_None) : QStyle::SubControls(1 << below(10));
    }

private:
    QRandomGenerator m_generator;
    QVector<QPalette> m_palettes;
    QVector<QRect> m_rects;
    QIcon m_icon;
};

/// Options of every type with random fields. The last one made stays until the next.
class OptionMaker
{
public:
    explicit OptionMaker(Chance &chance)
        : m_chance(chance)
    {}

    const QStyleOption *simple()
    {
        if (m_chance.below(20) == 0)
            return nullptr;
        static constexpr void (OptionMaker::*makers[])() = {
            &OptionMaker::makePlain,       &OptionMaker::makeButton,   &OptionMaker::makeFrame,
            &OptionMaker::makeTab,         &OptionMaker::makeTabFrame, &OptionMaker::makeTabBase,
            &OptionMaker::makeProgressBar, &OptionMaker::makeMenuItem, &OptionMaker::makeHeader,
            &OptionMaker::makeDockWidget,  &OptionMaker::makeToolBar,  &OptionMaker::makeFocusRect,
            &OptionMaker::makeRubberBand,  &OptionMaker::makeComplex};
        (this->*makers[m_chance.below(14)])();
        return m_option.get();
    }

    const QStyleOptionComplex *complex()
    {
        if (m_chance.below(20) == 0)
            return nullptr;
        makeComplex();
        return static_cast<const QStyleOptionComplex *>(m_option.get());
    }

private:
    template <typename Option>
    Option &make()
    {
        auto option = std::make_shared<Option>();
        m_chance.fillCommon(*option);
        m_option = option;
        return *option;
    }

    void makePlain() { make<QStyleOption>(); }
    void makeFocusRect() { make<QStyleOptionFocusRect>(); }

    void makeButton()
    {
        auto &option = make<QStyleOptionButton>();
        option.features = m_chance.flags<QStyleOptionButton::ButtonFeatures>();
        option.text = m_chance.text();
        option.icon = m_chance.icon();
        option.iconSize = m_chance.size();
    }

    void makeFrame()
    {
        auto &option = make<QStyleOptionFrame>();
        option.lineWidth = m_chance.number();
        option.midLineWidth = m_chance.number();
    }

    void makeTab()
    {
        auto &option = make<QStyleOptionTab>();
        option.shape = m_chance.value<QTabBar::Shape>(8);
        option.position = m_chance.value<QStyleOptionTab::TabPosition>(4);
        option.selectedPosition = m_chance.value<QStyleOptionTab::SelectedPosition>(3);
        option.features = m_chance.flags<QStyleOptionTab::TabFeatures>();
        option.text = m_chance.text();
    }

    void makeTabFrame()
    {
        auto &option = make<QStyleOptionTabWidgetFrame>();
        option.shape = m_chance.value<QTabBar::Shape>(8);
        option.selectedTabRect = m_chance.rect();
    }

    void makeTabBase()
    {
        auto &option = make<QStyleOptionTabBarBase>();
        option.shape = m_chance.value<QTabBar::Shape>(8);
        option.selectedTabRect = m_chance.rect();
        option.tabBarRect = m_chance.rect();
    }

    void makeProgressBar()
    {
        auto &option = make<QStyleOptionProgressBar>();
        option.minimum = m_chance.coin() ? 0 : m_chance.number();
        option.maximum = m_chance.coin() ? 0 : m_chance.number();
        option.progress = m_chance.number();
        option.text = m_chance.text();
        option.orientation = m_chance.coin() ? Qt::Horizontal : Qt::Vertical;
        option.invertedAppearance = m_chance.coin();
        option.textVisible = m_chance.coin();
    }

    void makeMenuItem()
    {
        auto &option = make<QStyleOptionMenuItem>();
        option.menuItemType = m_chance.value<QStyleOptionMenuItem::MenuItemType>(8);
        option.checkType = m_chance.value<QStyleOptionMenuItem::CheckType>(3);
        option.checked = m_chance.coin();
        option.text = m_chance.text();
        option.icon = m_chance.icon();
        option.maxIconWidth = m_chance.below(60);
        option.tabWidth = m_chance.below(200) - 50;
        option.font = QApplication::font();
    }

    void makeHeader()
    {
        auto &option = make<QStyleOptionHeader>();
        option.section = m_chance.number();
        option.text = m_chance.text();
        option.icon = m_chance.icon();
        option.position = m_chance.value<QStyleOptionHeader::SectionPosition>(4);
        option.sortIndicator = m_chance.value<QStyleOptionHeader::SortIndicator>(3);
        option.orientation = m_chance.coin() ? Qt::Horizontal : Qt::Vertical;
    }

    void makeDockWidget()
    {
        auto &option = make<QStyleOptionDockWidget>();
        option.title = m_chance.text();
        option.closable = m_chance.coin();
        option.floatable = m_chance.coin();
        option.verticalTitleBar = m_chance.coin();
    }

    void makeToolBar()
    {
        auto &option = make<QStyleOptionToolBar>();
        option.positionOfLine = m_chance.value<QStyleOptionToolBar::ToolBarPosition>(4);
        option.toolBarArea = static_cast<Qt::ToolBarArea>(1 << m_chance.below(5));
    }

    void makeRubberBand() { make<QStyleOptionRubberBand>().opaque = m_chance.coin(); }

    void makeComplex()
    {
        static constexpr void (OptionMaker::*makers[])() = {
            &OptionMaker::makePlainComplex, &OptionMaker::makeSlider,   &OptionMaker::makeSpinBox,
            &OptionMaker::makeToolButton,   &OptionMaker::makeComboBox, &OptionMaker::makeTitleBar,
            &OptionMaker::makeGroupBox};
        (this->*makers[m_chance.below(7)])();
    }

    template <typename Option>
    Option &makeTypedComplex()
    {
        auto &option = make<Option>();
        m_chance.fillComplex(option);
        return option;
    }

    void makePlainComplex() { makeTypedComplex<QStyleOptionComplex>(); }

    void makeSlider()
    {
        auto &option = makeTypedComplex<QStyleOptionSlider>();
        option.orientation = m_chance.coin() ? Qt::Horizontal : Qt::Vertical;
        option.minimum = m_chance.number();
        option.maximum = m_chance.number();
        option.sliderPosition = m_chance.number();
        option.sliderValue = m_chance.number();
        option.singleStep = m_chance.number();
        option.pageStep = m_chance.number();
        option.tickInterval = m_chance.number();
        option.tickPosition = m_chance.value<QSlider::TickPosition>(4);
        option.upsideDown = m_chance.coin();
        option.dialWrapping = m_chance.coin();
    }

    void makeSpinBox()
    {
        auto &option = makeTypedComplex<QStyleOptionSpinBox>();
        option.buttonSymbols = m_chance.value<QAbstractSpinBox::ButtonSymbols>(3);
        option.stepEnabled = m_chance.flags<QAbstractSpinBox::StepEnabled>();
        option.frame = m_chance.coin();
    }

    void makeToolButton()
    {
        auto &option = makeTypedComplex<QStyleOptionToolButton>();
        option.features = m_chance.flags<QStyleOptionToolButton::ToolButtonFeatures>();
        option.arrowType = m_chance.value<Qt::ArrowType>(5);
        option.toolButtonStyle = m_chance.value<Qt::ToolButtonStyle>(5);
        option.text = m_chance.text();
        option.icon = m_chance.icon();
        option.iconSize = m_chance.size();
    }

    void makeComboBox()
    {
        auto &option = makeTypedComplex<QStyleOptionComboBox>();
        option.editable = m_chance.coin();
        option.frame = m_chance.coin();
        option.currentText = m_chance.text();
        option.currentIcon = m_chance.icon();
        option.iconSize = m_chance.size();
    }

    void makeTitleBar()
    {
        auto &option = makeTypedComplex<QStyleOptionTitleBar>();
        option.text = m_chance.text();
        option.icon = m_chance.icon();
        option.titleBarState = m_chance.number();
        option.titleBarFlags = m_chance.flags<Qt::WindowFlags>();
    }

    void makeGroupBox()
    {
        auto &option = makeTypedComplex<QStyleOptionGroupBox>();
        option.text = m_chance.text();
        option.textAlignment = m_chance.flags<Qt::Alignment>();
        option.lineWidth = m_chance.number();
        option.features = m_chance.flags<QStyleOptionFrame::FrameFeatures>();
    }

    Chance &m_chance;
    std::shared_ptr<QStyleOption> m_option;
};

} // namespace

class TestStyleFuzz : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void primitives();
    void controls();
    void complexControls();
    void geometry();
    void hugeRange();

private:
    using Call = std::function<void(QPainter *painter)>;

    QString fault(const Call &call);
    const QWidget *anyWidget(Chance &chance) const;

    DarkUX m_theme;
    std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
    QMainWindow m_window;
    QVector<const QWidget *> m_widgets;
    QImage m_image;
};

void TestStyleFuzz::initTestCase()
{
    m_image = picture(QSize(64, 48), Qt::darkCyan, [](QPainter &) {});
    auto *text = new QTextEdit;
    m_window.setCentralWidget(text);
    m_widgets = {nullptr,
                 &m_window,
                 m_window.addToolBar(QString()),
                 text,
                 text->verticalScrollBar(),
                 new QComboBox(&m_window),
                 new QPushButton(&m_window),
                 new QTabBar(&m_window)};
}

const QWidget *TestStyleFuzz::anyWidget(Chance &chance) const
{
    return m_widgets.at(chance.below(m_widgets.size()));
}

/// What is wrong after \a call, or nothing.
QString TestStyleFuzz::fault(const Call &call)
{
    QPainter painter(&m_image);
    painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
    painter.setBrush(Qt::Dense4Pattern);
    painter.setClipRect(0, 0, 55, 40);
    painter.translate(2, 1);
    const PainterState before(painter);
    QElapsedTimer timer;
    timer.start();
    call(&painter);
    if (timer.elapsed() > slowestCall)
        return QStringLiteral("takes %1 ms").arg(timer.elapsed());
    if (!(PainterState(painter) == before))
        return QStringLiteral("leaves the painter changed");
    return QString();
}

void TestStyleFuzz::primitives()
{
    Chance chance;
    OptionMaker maker(chance);
    for (int round = 0; round < rounds; ++round) {
        const auto element = ownPrimitives[chance.below(int(std::size(ownPrimitives)))];
        const QStyleOption *option = maker.simple();
        const QWidget *widget = anyWidget(chance);
        const QString message = fault(
            [&](QPainter *painter) { m_style->drawPrimitive(element, option, painter, widget); });
        QVERIFY2(
            message.isEmpty(),
            qPrintable(
                QStringLiteral("round %1, element %2: %3").arg(round).arg(element).arg(message)));
    }
}

void TestStyleFuzz::controls()
{
    Chance chance;
    OptionMaker maker(chance);
    for (int round = 0; round < rounds; ++round) {
        const auto element = ownControls[chance.below(int(std::size(ownControls)))];
        const QStyleOption *option = maker.simple();
        const QWidget *widget = anyWidget(chance);
        const QString message = fault(
            [&](QPainter *painter) { m_style->drawControl(element, option, painter, widget); });
        QVERIFY2(
            message.isEmpty(),
            qPrintable(
                QStringLiteral("round %1, element %2: %3").arg(round).arg(element).arg(message)));
    }
}

void TestStyleFuzz::complexControls()
{
    Chance chance;
    OptionMaker maker(chance);
    for (int round = 0; round < rounds; ++round) {
        const auto control = ownComplexControls[chance.below(int(std::size(ownComplexControls)))];
        const QStyleOptionComplex *option = maker.complex();
        const QWidget *widget = anyWidget(chance);
        const QString message = fault([&](QPainter *painter) {
            m_style->drawComplexControl(control, option, painter, widget);
        });
        QVERIFY2(
            message.isEmpty(),
            qPrintable(
                QStringLiteral("round %1, control %2: %3").arg(round).arg(control).arg(message)));
    }
}

/// The questions that layouts and mouse events ask.
void TestStyleFuzz::geometry()
{
    Chance chance;
    OptionMaker maker(chance);
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        const QWidget *widget = anyWidget(chance);
        const auto control = ownComplexControls[chance.below(dialIndex)];
        const QStyleOptionComplex *complex = maker.complex();
        m_style->subControlRect(control, complex, QStyle::SubControl(1 << chance.below(14)),
                                widget);
        m_style->hitTestComplexControl(control, complex, chance.rect().topLeft(), widget);

        const QStyleOption *option = maker.simple();
        m_style->subElementRect(chance.value<QStyle::SubElement>(QStyle::SE_TabBarScrollLeftButton),
                                option, widget);
        m_style->sizeFromContents(chance.value<QStyle::ContentsType>(QStyle::CT_MdiControls),
                                  option, chance.size(), widget);
        m_style->pixelMetric(
            chance.value<QStyle::PixelMetric>(QStyle::PM_HeaderDefaultSectionSizeVertical), option,
            widget);
        m_style->styleHint(chance.value<QStyle::StyleHint>(QStyle::SH_SpinBox_ButtonsInsideFrame),
                           option, widget);
    }
    QVERIFY(timer.elapsed() < rounds);
}

/// A range that a slider can really have, but that the toolkit's arithmetic does not stand.
void TestStyleFuzz::hugeRange()
{
    auto huge = makeOption<QStyleOptionSlider>(QRect(0, 0, 120, 20));
    huge.orientation = Qt::Horizontal;
    huge.minimum = -1;
    huge.maximum = std::numeric_limits<int>::max();
    huge.tickPosition = QSlider::TicksBelow;
    huge.subControls = QStyle::SC_All;
    auto plain = huge;
    plain.minimum = 0;
    plain.maximum = 100;
    const std::pair<int, int> positions[] = {{huge.minimum, 0}, {huge.maximum, 100}};
    for (const auto control : {QStyle::CC_Slider, QStyle::CC_ScrollBar}) {
        const auto handle =
            control == QStyle::CC_Slider ? QStyle::SC_SliderHandle : QStyle::SC_ScrollBarSlider;
        for (const auto &position : positions) {
            huge.sliderPosition = position.first;
            plain.sliderPosition = position.second;
            QCOMPARE(m_style->subControlRect(control, &huge, handle).center().x() > 60,
                     position.second == 100);
            QCOMPARE(m_style->subControlRect(control, &huge, handle),
                     m_style->subControlRect(control, &plain, handle));
            m_style->drawComplexControl(control, &huge, std::make_unique<QPainter>(&m_image).get());
        }
    }
}

NOCTURNE_TEST_MAIN(TestStyleFuzz)
#include "tst_style_fuzz.moc"

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
// fields. The style must come back, in time, with the painter as it was, having painted nothing
// where there is no option or no room.

using namespace StylePainting;

namespace {

constexpr quint32 seed = 20260;
constexpr int rounds = 30000;
constexpr qint64 slowestCall = 2000; // milliseconds; most take microseconds

/// The elements that the style paints itself; the common style does not stand everything. The
/// separator of tool bars is not here: it leaves its pen.
struct Own : QStyle
{
    static constexpr PrimitiveElement frames[] = {
        PE_FrameDefaultButton, PE_FrameStatusBarItem,    PE_Frame,           PE_FrameMenu,
        PE_FrameDockWidget,    PE_FrameWindow,           PE_FrameFocusRect,  PE_FrameGroupBox,
        PE_FrameLineEdit,      PE_FrameTabWidget,        PE_FrameTabBarBase, PE_PanelLineEdit,
        PE_PanelMenu,          PE_PanelScrollAreaCorner, PE_PanelTipLabel,   PE_PanelButtonCommand,
        PE_PanelButtonTool};
    static constexpr PrimitiveElement indicators[] = {PE_IndicatorButtonDropDown,
                                                      PE_IndicatorTabClose,
                                                      PE_IndicatorArrowDown,
                                                      PE_IndicatorArrowLeft,
                                                      PE_IndicatorArrowRight,
                                                      PE_IndicatorArrowUp,
                                                      PE_IndicatorBranch,
                                                      PE_IndicatorCheckBox,
                                                      PE_IndicatorDockWidgetResizeHandle,
                                                      PE_IndicatorHeaderArrow,
                                                      PE_IndicatorItemViewItemCheck,
                                                      PE_IndicatorRadioButton,
                                                      PE_IndicatorToolBarHandle};
    static constexpr ControlElement controls[] = {
        CE_PushButton,       CE_PushButtonLabel, CE_ToolButtonLabel,   CE_ComboBoxLabel,
        CE_TabBarTabShape,   CE_HeaderSection,   CE_ProgressBarGroove, CE_ProgressBarContents,
        CE_ProgressBarLabel, CE_MenuItem,        CE_MenuVMargin,       CE_MenuHMargin,
        CE_MenuEmptyArea,    CE_MenuBarItem,     CE_MenuBarEmptyArea,  CE_DockWidgetTitle,
        CE_RubberBand,       CE_SizeGrip,        CE_Splitter,          CE_ToolBar};
    // A dial has no parts to ask for, and stands last.
    static constexpr ComplexControl complexControls[] = {
        CC_SpinBox, CC_ComboBox, CC_ScrollBar, CC_Slider, CC_GroupBox, CC_TitleBar, CC_Dial};
};

/// Palettes from which sums and factors leave the range of a colour, or that hold no colours.
QVector<QPalette> extremePalettes()
{
    QPalette gradient = themePalette();
    gradient.setBrush(QPalette::Window, QLinearGradient(0, 0, 0, 10));
    QPalette texture = themePalette();
    texture.setBrush(QPalette::Window, QBrush(QPixmap(4, 4)));
    return {themePalette(),
            QPalette(Qt::black),
            QPalette(Qt::white),
            QPalette(QColor()),
            QPalette(QColor(1, 2, 3, 0)),
            gradient,
            texture};
}

/// Rectangles that have no inside, hardly any, or more than any device.
QVector<QRect> extremeRects()
{
    return {{},           {5, 5, 0, 20}, {5, 5, 20, 0},      {5, 5, -7, -9},
            {5, 5, 1, 1}, {5, 5, 2, 3},  {-50, -50, 30, 20}, {-100000, -100000, 200000, 200000}};
}

/// Everything of a painter that an element could leave changed.
struct PainterState
{
    explicit PainterState(const QPainter &painter)
        : values{painter.pen(),        painter.brush(),
                 painter.font(),       int(painter.renderHints()),
                 painter.transform(),  painter.hasClipping(),
                 painter.clipRegion(), painter.opacity()}
    {}

    QVariantList values;
};

/// The same values in the same order in every run.
class Chance
{
public:
    Chance()
        : m_generator(seed)
        , m_palettes(extremePalettes())
        , m_rects(extremeRects())
        , m_icon(redIcon())
    {}

    int below(int limit) { return m_generator.bounded(limit); }
    bool coin() { return below(2) == 0; }

    /// Mostly small, sometimes at an end of the range.
    int number()
    {
        const int numbers[] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                               static_cast<int>(m_generator.generate())};
        const int which = below(8);
        return which < 3 ? numbers[which] : below(120) - 20;
    }
    void fillNumbers(std::initializer_list<int *> numbers)
    {
        for (int *value : numbers)
            *value = number();
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
    Qt::Orientation orientation() { return coin() ? Qt::Horizontal : Qt::Vertical; }

    /// One of the first \a count values of an enumeration.
    template <typename Enum>
    void pick(Enum *value, int count)
    {
        *value = static_cast<Enum>(below(count));
    }
    template <typename Flags>
    void pickFlags(Flags *flags)
    {
        *flags = Flags(static_cast<int>(m_generator.generate() & 0x7fffffff));
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
        if (m_chance.below(3) == 0)
            return complex();
        return anyOf<QStyleOption, QStyleOptionButton, QStyleOptionFrame, QStyleOptionTab,
                     QStyleOptionTabWidgetFrame, QStyleOptionTabBarBase, QStyleOptionProgressBar,
                     QStyleOptionMenuItem, QStyleOptionHeader, QStyleOptionDockWidget,
                     QStyleOptionToolBar, QStyleOptionFocusRect, QStyleOptionRubberBand>();
    }
    const QStyleOptionComplex *complex()
    {
        return static_cast<const QStyleOptionComplex *>(
            anyOf<QStyleOptionComplex, QStyleOptionSlider, QStyleOptionSpinBox,
                  QStyleOptionToolButton, QStyleOptionComboBox, QStyleOptionTitleBar,
                  QStyleOptionGroupBox>());
    }

private:
    /// One of these types, or none at all.
    template <typename... Options>
    const QStyleOption *anyOf()
    {
        static constexpr void (OptionMaker::*makers[])() = {&OptionMaker::make<Options>...};
        if (m_chance.below(20) == 0)
            return nullptr;
        (this->*makers[m_chance.below(int(sizeof...(Options)))])();
        return m_option.get();
    }
    template <typename Option>
    void make()
    {
        auto option = std::make_shared<Option>();
        m_chance.pickFlags(&option->state);
        option->direction = m_chance.coin() ? Qt::LeftToRight : Qt::RightToLeft;
        option->rect = m_chance.rect();
        option->palette = m_chance.palette();
        fill(*option);
        m_option = option;
    }

    void fill(QStyleOption &) {}
    void fill(QStyleOptionButton &option)
    {
        m_chance.pickFlags(&option.features);
        fillLabel(option);
        option.iconSize = m_chance.size();
    }
    void fill(QStyleOptionFrame &option)
    {
        m_chance.fillNumbers({&option.lineWidth, &option.midLineWidth});
    }
    void fill(QStyleOptionTab &option)
    {
        m_chance.pick(&option.shape, 8);
        m_chance.pick(&option.position, 4);
        m_chance.pick(&option.selectedPosition, 3);
        m_chance.pickFlags(&option.features);
    }
    void fill(QStyleOptionTabWidgetFrame &option)
    {
        m_chance.pick(&option.shape, 8);
        option.selectedTabRect = m_chance.rect();
    }
    void fill(QStyleOptionTabBarBase &option)
    {
        m_chance.pick(&option.shape, 8);
        option.selectedTabRect = m_chance.rect();
        option.tabBarRect = m_chance.rect();
    }
    void fill(QStyleOptionProgressBar &option)
    {
        m_chance.fillNumbers({&option.minimum, &option.maximum, &option.progress});
        if (m_chance.coin())
            option.minimum = option.maximum = 0;
        option.text = m_chance.text();
        option.orientation = m_chance.orientation();
        option.invertedAppearance = m_chance.coin();
    }
    void fill(QStyleOptionMenuItem &option)
    {
        m_chance.pick(&option.menuItemType, 8);
        m_chance.pick(&option.checkType, 3);
        option.checked = m_chance.coin();
        fillLabel(option);
        option.maxIconWidth = m_chance.below(60);
        option.tabWidth = m_chance.below(200) - 50;
    }
    void fill(QStyleOptionHeader &option)
    {
        fillLabel(option);
        m_chance.pick(&option.position, 4);
        m_chance.pick(&option.sortIndicator, 3);
        option.orientation = m_chance.orientation();
    }
    void fill(QStyleOptionDockWidget &option)
    {
        option.title = m_chance.text();
        option.verticalTitleBar = m_chance.coin();
    }
    void fill(QStyleOptionToolBar &option)
    {
        m_chance.pick(&option.positionOfLine, 4);
        option.toolBarArea = static_cast<Qt::ToolBarArea>(1 << m_chance.below(4));
    }

    void fill(QStyleOptionComplex &option)
    {
        m_chance.pickFlags(&option.subControls);
        option.activeSubControls =
            QStyle::SubControls(m_chance.coin() ? 0 : 1 << m_chance.below(10));
    }
    void fill(QStyleOptionSlider &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        m_chance.fillNumbers({&option.minimum, &option.maximum, &option.sliderPosition,
                              &option.sliderValue, &option.singleStep, &option.pageStep,
                              &option.tickInterval});
        option.orientation = m_chance.orientation();
        m_chance.pick(&option.tickPosition, 4);
        option.upsideDown = m_chance.coin();
        option.dialWrapping = m_chance.coin();
    }
    void fill(QStyleOptionSpinBox &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        m_chance.pick(&option.buttonSymbols, 3);
        m_chance.pickFlags(&option.stepEnabled);
        option.frame = m_chance.coin();
    }
    void fill(QStyleOptionToolButton &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        m_chance.pickFlags(&option.features);
        m_chance.pick(&option.arrowType, 5);
        m_chance.pick(&option.toolButtonStyle, 5);
        fillLabel(option);
        option.iconSize = m_chance.size();
    }
    void fill(QStyleOptionComboBox &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        option.editable = m_chance.coin();
        option.currentText = m_chance.text();
        option.currentIcon = m_chance.icon();
        option.iconSize = m_chance.size();
    }
    void fill(QStyleOptionTitleBar &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        fillLabel(option);
        option.titleBarState = m_chance.number();
        m_chance.pickFlags(&option.titleBarFlags);
    }
    void fill(QStyleOptionGroupBox &option)
    {
        fill(static_cast<QStyleOptionComplex &>(option));
        option.text = m_chance.text();
        m_chance.pickFlags(&option.textAlignment);
        option.lineWidth = m_chance.number();
    }
    template <typename Option>
    void fillLabel(Option &option)
    {
        option.text = m_chance.text();
        option.icon = m_chance.icon();
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
    template <typename Element, std::size_t Count, typename Make, typename Paint>
    QString firstFault(const Element (&elements)[Count], Make make, Paint paint);
    QString fault(const QStyleOption *option, const Drawing &paint);

    DarkUX m_theme;
    std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
    QMainWindow m_window;
    QVector<const QWidget *> m_widgets;
    QImage m_image;
};

void TestStyleFuzz::initTestCase()
{
    m_image = picture(QSize(64, 48), [](QPainter &) {});
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

/// What is wrong after \a paint with \a option, or nothing.
QString TestStyleFuzz::fault(const QStyleOption *option, const Drawing &paint)
{
    const bool paintsNothing = !option || option->rect.isEmpty();
    const QImage before = paintsNothing ? m_image.copy() : QImage();
    QPainter painter(&m_image);
    painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
    painter.setBrush(Qt::Dense4Pattern);
    painter.setClipRect(0, 0, 55, 40);
    painter.translate(2, 1);
    const PainterState state(painter);
    QElapsedTimer timer;
    timer.start();
    paint(painter);
    if (timer.elapsed() > slowestCall)
        return QStringLiteral("takes %1 ms").arg(timer.elapsed());
    if (PainterState(painter).values != state.values)
        return QStringLiteral("leaves the painter changed");
    if (paintsNothing && m_image != before)
        return QStringLiteral("paints something nowhere");
    return QString();
}

template <typename Element, std::size_t Count, typename Make, typename Paint>
QString TestStyleFuzz::firstFault(const Element (&elements)[Count], Make make, Paint paint)
{
    Chance chance;
    OptionMaker maker(chance);
    for (int round = 0; round < rounds; ++round) {
        const Element element = elements[chance.below(int(Count))];
        const auto *option = (maker.*make)();
        const QWidget *widget = m_widgets.at(chance.below(m_widgets.size()));
        const QString message = fault(option, [&](QPainter &painter) {
            (m_style.get()->*paint)(element, option, &painter, widget);
        });
        if (!message.isEmpty())
            return QStringLiteral("round %1, element %2: %3").arg(round).arg(element).arg(message);
    }
    return QString();
}

void TestStyleFuzz::primitives()
{
    QCOMPARE(firstFault(Own::frames, &OptionMaker::simple, &QStyle::drawPrimitive), QString());
    QCOMPARE(firstFault(Own::indicators, &OptionMaker::simple, &QStyle::drawPrimitive), QString());
}

void TestStyleFuzz::controls()
{
    QCOMPARE(firstFault(Own::controls, &OptionMaker::simple, &QStyle::drawControl), QString());
}

void TestStyleFuzz::complexControls()
{
    QCOMPARE(firstFault(Own::complexControls, &OptionMaker::complex, &QStyle::drawComplexControl),
             QString());
}

/// The questions that layouts and mouse events ask.
void TestStyleFuzz::geometry()
{
    Chance chance;
    OptionMaker maker(chance);
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        const QWidget *widget = m_widgets.at(chance.below(m_widgets.size()));
        const auto control =
            Own::complexControls[chance.below(int(std::size(Own::complexControls)) - 1)];
        const QStyleOptionComplex *complex = maker.complex();
        m_style->subControlRect(control, complex, QStyle::SubControl(1 << chance.below(14)),
                                widget);
        m_style->hitTestComplexControl(control, complex, chance.rect().topLeft(), widget);

        // Beyond the last of each kind, too.
        const QStyleOption *option = maker.simple();
        const int question = chance.below(140) - 1;
        m_style->subElementRect(QStyle::SubElement(question), option, widget);
        m_style->sizeFromContents(QStyle::ContentsType(question), option, chance.size(), widget);
        m_style->pixelMetric(QStyle::PixelMetric(question), option, widget);
        m_style->styleHint(QStyle::StyleHint(question), option, widget);
        if (round % 50 == 0) {
            m_style->standardPixmap(QStyle::StandardPixmap(question), option, widget);
            m_style->standardIcon(QStyle::StandardPixmap(question), option, widget);
        }
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

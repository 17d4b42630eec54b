#include "styleoptions.h"
#include "stylepainting.h"

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
#include <type_traits>

// Options that no widget makes: every type in the place of every other, with anything in its
// fields. The style must come back, in time, with the painter as it was, having painted nothing
// where there is no option or no room.

using namespace StylePainting;

namespace {

constexpr quint32 seed = 20260;
constexpr int rounds = 40000;

/// The elements that the style paints itself, as its table lists them; the common style does not
/// stand everything. Without the separator of tool bars, which leaves its pen.
template <typename Element>
QVector<Element> ownElements()
{
    QFile file(QStringLiteral(NOCTURNE_SOURCE_DIR "/tests/style/data/elements.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing", qPrintable(file.fileName()));
    QVector<Element> elements;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QByteArray name = line.split(' ').first();
        bool isKnown = false;
        const int element = QMetaEnum::fromType<Element>().keyToValue(name, &isKnown);
        if (isKnown && name != "PE_IndicatorToolBarSeparator"
            && !elements.contains(Element(element)))
            elements << Element(element);
    }
    return elements;
}

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
QVariantList stateOf(const QPainter &painter)
{
    return {painter.pen(),        painter.brush(),
            painter.font(),       int(painter.renderHints()),
            painter.transform(),  painter.hasClipping(),
            painter.clipRegion(), painter.opacity()};
}

// The others have at most four, or room for so many.
template <typename Enum>
constexpr bool hasEightValues =
    std::is_same_v<
        Enum,
        QTabBar::
            Shape> || std::is_same_v<Enum, Qt::ArrowType> || std::is_same_v<Enum, Qt::ToolButtonStyle> || std::is_same_v<Enum, QStyleOptionMenuItem::MenuItemType>;

/// Options of every type with random fields, the same in the same order in every run. The last one
/// made stays until the next.
class OptionMaker
{
public:
    int below(int limit) { return m_generator.bounded(limit); }
    QSize size() { return QSize(below(60) - 10, below(60) - 10); }
    QRect rect()
    {
        if (below(3) == 0)
            return m_rects.at(below(m_rects.size()));
        return QRect(below(30) - 10, below(30) - 10, below(120), below(60));
    }

    const QStyleOption *simple()
    {
        if (below(3) == 0)
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
        if (below(20) == 0)
            return nullptr;
        (this->*makers[below(int(sizeof...(Options)))])();
        return m_option.get();
    }
    template <typename Option>
    void make()
    {
        auto option = std::make_shared<Option>();
        pickOne(option->state);
        pickOne(option->rect);
        option->direction = below(2) ? Qt::LeftToRight : Qt::RightToLeft;
        option->palette = m_palettes.at(below(m_palettes.size()));
        option->palette.setCurrentColorGroup(static_cast<QPalette::ColorGroup>(below(3)));
        fill(*option);
        m_option = option;
    }

    /// Mostly small, sometimes at an end of the range.
    void pickOne(int &value)
    {
        const int numbers[] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                               static_cast<int>(m_generator.generate())};
        const int which = below(8);
        value = which < 3 ? numbers[which] : below(120) - 20;
    }
    void pickOne(bool &value) { value = below(2) == 0; }
    void pickOne(QIcon &value) { value = below(2) ? QIcon() : m_icon; }
    void pickOne(QSize &value) { value = size(); }
    void pickOne(QRect &value) { value = rect(); }
    void pickOne(QString &value)
    {
        static const char *const texts[] = {"", "Text", "&Item\tCtrl+I", "\t", "two\nlines"};
        const int which = below(6);
        value = which < 5 ? QString::fromLatin1(texts[which]) : QString(400, QLatin1Char('w'));
    }
    template <typename Enum, typename = std::enable_if_t<std::is_enum_v<Enum>>>
    void pickOne(Enum &value)
    {
        value = static_cast<Enum>(below(hasEightValues<Enum> ? 8 : 4));
    }
    template <typename Enum>
    void pickOne(QFlags<Enum> &value)
    {
        value = QFlags<Enum>(static_cast<int>(m_generator.generate() & 0x7fffffff));
    }

    template <typename Option>
    void fill(Option &option)
    {
        StyleOptions::visitFields(option, [this](const char *, auto &field) { pickOne(field); });
        if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>)
            option.activeSubControls = QStyle::SubControls(below(2) ? 0 : 1 << below(10));
    }
    void fill(QStyleOptionProgressBar &option)
    {
        fill<QStyleOptionProgressBar>(option);
        if (below(2))
            option.minimum = option.maximum = 0;
    }
    void fill(QStyleOptionToolBar &option)
    {
        fill<QStyleOptionToolBar>(option);
        option.toolBarArea = static_cast<Qt::ToolBarArea>(1 << below(4));
    }

    QRandomGenerator m_generator{seed};
    const QVector<QPalette> m_palettes = extremePalettes();
    const QVector<QRect> m_rects = extremeRects();
    const QIcon m_icon = redIcon();
    std::shared_ptr<QStyleOption> m_option;
};

} // namespace

class TestStyleFuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void painting();
    void geometry();
    void hugeRange();

private:
    template <typename Element, typename Make, typename Paint>
    QString firstFault(Make make, Paint paint);
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
    const QVariantList state = stateOf(painter);
    paint(painter);
    if (stateOf(painter) != state)
        return QStringLiteral("leaves the painter changed");
    if (paintsNothing && m_image != before)
        return QStringLiteral("paints something nowhere");
    return QString();
}

template <typename Element, typename Make, typename Paint>
QString TestStyleFuzz::firstFault(Make make, Paint paint)
{
    const QVector<Element> elements = ownElements<Element>();
    OptionMaker maker;
    for (int round = 0; round < rounds; ++round) {
        const Element element = elements.at(maker.below(elements.size()));
        const auto *option = (maker.*make)();
        const QWidget *widget = m_widgets.at(maker.below(m_widgets.size()));
        const QString message = fault(option, [&](QPainter &painter) {
            (m_style.get()->*paint)(element, option, &painter, widget);
        });
        if (!message.isEmpty())
            return QStringLiteral("round %1, element %2: %3").arg(round).arg(element).arg(message);
    }
    return QString();
}

void TestStyleFuzz::painting()
{
    QCOMPARE(firstFault<QStyle::PrimitiveElement>(&OptionMaker::simple, &QStyle::drawPrimitive),
             QString());
    QCOMPARE(firstFault<QStyle::ControlElement>(&OptionMaker::simple, &QStyle::drawControl),
             QString());
    QCOMPARE(firstFault<QStyle::ComplexControl>(&OptionMaker::complex, &QStyle::drawComplexControl),
             QString());
}

/// The questions that layouts and mouse events ask.
void TestStyleFuzz::geometry()
{
    OptionMaker maker;
    QVector<QStyle::ComplexControl> controls = ownElements<QStyle::ComplexControl>();
    controls.removeOne(QStyle::CC_Dial); // has no parts to ask for
    for (int round = 0; round < rounds; ++round) {
        const QWidget *widget = m_widgets.at(maker.below(m_widgets.size()));
        const auto control = controls.at(maker.below(controls.size()));
        const QStyleOptionComplex *complex = maker.complex();
        m_style->subControlRect(control, complex, QStyle::SubControl(1 << maker.below(14)), widget);
        m_style->hitTestComplexControl(control, complex, maker.rect().topLeft(), widget);

        // Beyond the last of each kind, too.
        const QStyleOption *option = maker.simple();
        const int question = maker.below(140) - 1;
        m_style->subElementRect(QStyle::SubElement(question), option, widget);
        m_style->sizeFromContents(QStyle::ContentsType(question), option, maker.size(), widget);
        m_style->pixelMetric(QStyle::PixelMetric(question), option, widget);
        m_style->styleHint(QStyle::StyleHint(question), option, widget);
        if (round % 50 == 0) {
            m_style->standardPixmap(QStyle::StandardPixmap(question), option, widget);
            m_style->standardIcon(QStyle::StandardPixmap(question), option, widget);
        }
    }
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

#include "styleoptions.h"
#include "stylepainting.h"

#include <nocturne/painting/cacheuse_p.h>
#include <nocturne/painting/kepttext_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QRandomGenerator>
#include <QtGui/QTextOption>
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
// where there is no option or no room. And text that was shaped earlier must look as if it was
// shaped on the spot: random labels and items are drawn both ways, and every pixel is compared.

using namespace StylePainting;
namespace KeptText = Nocturne::KeptText;

namespace {

/// More are tried by hand: NOCTURNE_SEEDS=100 tst_style_fuzz_internals
const int textRounds = 2000 * qMax(1, qEnvironmentVariableIntValue("NOCTURNE_SEEDS"));
constexpr int styleRounds = 40000;

/// The elements that the style paints itself, as its table lists them; the common style does not
/// stand everything. Without the separator of tool bars, which leaves its pen.
template <typename Element>
QVector<Element> ownElements()
{
    QVector<Element> elements;
    for (const QByteArray &line : dataOf("elements.txt").split('\n')) {
        const QByteArray name = line.split(' ').first();
        bool isKnown = false;
        const int element = QMetaEnum::fromType<Element>().keyToValue(name, &isKnown);
        if (isKnown && name != "PE_IndicatorToolBarSeparator")
            elements.append(Element(element));
    }
    return elements;
}

/// Palettes from which sums and factors leave the range of a colour, or that hold no colours.
QVector<QPalette> extremePalettes()
{
    QVector<QPalette> palettes = {themePalette(), QPalette(Qt::black), QPalette(Qt::white),
                                  QPalette(QColor()), QPalette(QColor(1, 2, 3, 0))};
    for (const QBrush &brush : {QBrush(QLinearGradient(0, 0, 0, 10)), QBrush(QPixmap(4, 4))}) {
        palettes << themePalette();
        palettes.last().setBrush(QPalette::Window, brush);
    }
    return palettes;
}

/// Everything of a painter that an element could leave changed.
QVariantList stateOf(const QPainter &painter)
{
    return {painter.pen(),        painter.brush(),
            painter.font(),       int(painter.renderHints()),
            painter.transform(),  painter.hasClipping(),
            painter.clipRegion(), painter.opacity()};
}

template <typename Enum, typename... Enums>
constexpr bool isOneOf = (std::is_same_v<Enum, Enums> || ...);

/// Values of all kinds, the same in the same order for a seed, and options that are filled with
/// them. The last option made stays until the next.
class Random
{
public:
    explicit Random(int seed)
        : m_generator(quint32(seed))
    {}

    int below(int limit) { return m_generator.bounded(limit); }
    bool oneIn(int count) { return below(count) == 0; }
    template <typename Value>
    Value oneOf(const QVector<Value> &values)
    {
        return values.at(below(values.size()));
    }
    /// Each of them with a chance of one in \a count.
    int someOf(std::initializer_list<int> flags, int count = 5)
    {
        int result = 0;
        for (int flag : flags)
            result |= oneIn(count) ? flag : 0;
        return result;
    }

    QString text()
    {
        static const QVariantList texts =
            QJsonDocument::fromJson(dataOf("texts.json")).array().toVariantList();
        return oneIn(3) ? QStringLiteral("Item 12") : texts.at(below(texts.size())).toString();
    }
    QFont font()
    {
        QFont font(oneOf<QString>(
            {"DejaVu Sans", "DejaVu Serif", "Liberation Sans", "Noto Sans Mono", "Nimbus Sans"}));
        if (oneIn(2))
            font.setPixelSize(8 + below(20));
        else
            font.setPointSizeF(6 + below(40) / 4.0);
        font.setBold(oneIn(3));
        font.setItalic(oneIn(3));
        font.setUnderline(oneIn(6));
        font.setStrikeOut(oneIn(9));
        font.setOverline(oneIn(9));
        font.setKerning(!oneIn(9));
        font.setLetterSpacing(QFont::AbsoluteSpacing, oneIn(5) ? 1.3 : 0.0);
        font.setWordSpacing(oneIn(7) ? 2.5 : 0.0);
        font.setStretch(oneIn(6) ? 80 + below(50) : 100);
        font.setCapitalization(oneIn(6) ? QFont::AllUppercase : QFont::MixedCase);
        font.setHintingPreference(QFont::HintingPreference(below(4)));
        font.setStyleStrategy(oneIn(9) ? QFont::NoAntialias : QFont::PreferDefault);
        return font;
    }
    /// Of a text: mostly one line in one place.
    int flags()
    {
        return oneOf<int>({0, Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify,
                           Qt::AlignLeft | Qt::AlignRight})
               | oneOf<int>({0, Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter,
                             Qt::AlignVCenter | Qt::AlignBottom})
               | someOf({Qt::TextShowMnemonic, Qt::TextSingleLine}, 2)
               | someOf({Qt::AlignAbsolute, Qt::TextHideMnemonic, Qt::TextDontClip})
               | (oneIn(4) ? someOf({Qt::TextWordWrap, Qt::TextExpandTabs, Qt::TextForceRightToLeft,
                                     Qt::TextForceLeftToRight, Qt::TextIncludeTrailingSpaces})
                           : 0);
    }
    QSize size() { return QSize(below(60) - 10, below(60) - 10); }
    /// One in three has no inside, hardly any, or more than any device.
    QRect rect()
    {
        static const QVector<QRect> extremes = {
            {},           {5, 5, 0, 20}, {5, 5, 20, 0},      {5, 5, -7, -9},
            {5, 5, 1, 1}, {5, 5, 2, 3},  {-50, -50, 30, 20}, {-100000, -100000, 200000, 200000}};
        return oneIn(3) ? oneOf(extremes)
                        : QRect(below(30) - 10, below(30) - 10, below(180), below(60));
    }

    template <typename Option>
    std::shared_ptr<Option> option()
    {
        auto option = std::make_shared<Option>();
        pick(option->state);
        option->rect = rect();
        option->direction = Qt::LayoutDirection(below(2));
        option->palette = oneOf(m_palettes);
        option->palette.setCurrentColorGroup(QPalette::ColorGroup(below(3)));
        StyleOptions::visitFields(*option, [this](const char *, auto &field) { pick(field); });
        if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>)
            option->activeSubControls = QStyle::SubControls(below(2) ? 0 : 1 << below(10));
        if constexpr (std::is_same_v<QStyleOptionToolBar, Option>)
            option->toolBarArea = Qt::ToolBarArea(1 << below(4));
        if constexpr (std::is_same_v<QStyleOptionProgressBar, Option>)
            option->maximum = oneIn(2) ? option->minimum : option->maximum; // busy
        return option;
    }
    const QStyleOption *simple()
    {
        if (oneIn(3))
            return complex();
        return anyOf<QStyleOption, QStyleOptionButton, QStyleOptionFrame, QStyleOptionTab,
                     QStyleOptionTabWidgetFrame, QStyleOptionTabBarBase, QStyleOptionProgressBar,
                     QStyleOptionMenuItem, QStyleOptionHeader, QStyleOptionDockWidget,
                     QStyleOptionToolBar, QStyleOptionFocusRect, QStyleOptionRubberBand,
                     QStyleOptionViewItem>();
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
        static constexpr void (Random::*makers[])() = {&Random::make<Options>...};
        if (oneIn(20))
            return nullptr;
        (this->*makers[below(int(sizeof...(Options)))])();
        return m_option.get();
    }
    template <typename Option>
    void make()
    {
        m_option = option<Option>();
    }

    /// Mostly small, sometimes at an end of the range.
    void pick(int &value)
    {
        const int numbers[] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                               static_cast<int>(m_generator.generate())};
        const int which = below(8);
        value = which < 3 ? numbers[which] : below(120) - 20;
    }
    void pick(bool &value) { value = oneIn(2); }
    void pick(QIcon &value) { value = oneIn(2) ? QIcon() : m_icon; }
    void pick(QSize &value) { value = size(); }
    void pick(QRect &value) { value = rect(); }
    void pick(QFont &value) { value = font(); }
    void pick(QBrush &value) { value = oneIn(5) ? QBrush(Qt::darkGreen) : QBrush(); }
    void pick(QString &value) { value = oneIn(9) ? QString(400, QLatin1Char('w')) : text(); }
    void pick(Qt::Alignment &value) { value = Qt::Alignment(flags() & 0xff); }
    template <typename Enum, typename = std::enable_if_t<std::is_enum_v<Enum>>>
    void pick(Enum &value)
    {
        // The others have at most four values, or room for so many.
        constexpr bool hasEight =
            isOneOf<Enum, QTabBar::Shape, Qt::ArrowType, Qt::ToolButtonStyle,
                    QStyleOptionMenuItem::MenuItemType, QStyleOptionViewItem::ViewItemPosition>;
        value = static_cast<Enum>(below(hasEight ? 8 : 4));
    }
    template <typename Enum>
    void pick(QFlags<Enum> &value)
    {
        value = QFlags<Enum>(static_cast<int>(m_generator.generate() & 0x7fffffff));
    }

    QRandomGenerator m_generator;
    const QVector<QPalette> m_palettes = extremePalettes();
    const QIcon m_icon = redIcon();
    std::shared_ptr<QStyleOption> m_option;
};

/// A surface, and a painter as any widget could leave it.
struct Setting
{
    Setting(Random &random, const QFont &font)
        : ratio(random.oneOf<double>({1.0, 1.5, 2.0}))
    {
        const QBrush brush = random.oneIn(5) ? QBrush(Qt::Dense4Pattern)
                                             : QColor(200, 100, 50, random.oneIn(4) ? 128 : 255);
        const auto direction = Qt::LayoutDirection(random.below(3));
        const auto mode = random.oneIn(9) ? Qt::OpaqueMode : Qt::TransparentMode;
        const bool isClipped = random.oneIn(5);
        QLinearGradient gradient(0, 0, 0, 70);
        gradient.setStops({{0, QColor(40, 60, 80)}, {1, QColor(90, 70, 30)}});
        if (random.oneIn(2))
            ground = gradient;
        QTransform transform;
        if (random.oneIn(6))
            transform.translate(random.below(100) / 50.0, random.below(100) / 50.0);
        if (random.oneIn(9))
            transform.rotate(random.below(90));
        if (random.oneIn(9))
            transform.scale(1.3, 1.1);
        apply = [=](QPainter &painter) {
            painter.setFont(font);
            painter.setPen(QPen(brush, 1.0));
            painter.setLayoutDirection(direction);
            painter.setBackgroundMode(mode);
            painter.setTransform(transform, true);
            if (isClipped)
                painter.setClipRect(30, 0, 60, 40);
        };
    }

    /// What \a draw paints each time that it is called, the last time over itself; empty when it
    /// leaves the painter changed.
    QVector<QImage> pictures(const Drawing &draw) const
    {
        QVector<QImage> images;
        bool isKept = true;
        for (int time = 0; time < 4 && isKept; ++time) {
            const auto paint = [&](QPainter &painter) {
                painter.fillRect(0, 0, 220, 70, ground);
                apply(painter);
                const QVariantList state = stateOf(painter);
                draw(painter);
                if (time == 3)
                    draw(painter);
                isKept = stateOf(painter) == state;
            };
            images << TestSupport::paintOn(QSize(220, 70), background, paint, ratio);
        }
        return isKept ? images : QVector<QImage>();
    }

    qreal ratio;
    QBrush ground;
    Drawing apply;
};

} // namespace

class TestStyleFuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void painting();
    void geometry();
    void keptTexts();
    void keptItems();

private:
    template <typename Element, typename Make, typename Paint>
    QString firstFault(Make make, Paint paint);

    DarkUX m_theme;
    std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
    QMainWindow m_window;
    QVector<const QWidget *> m_widgets;
    QImage m_image;
};

void TestStyleFuzz::initTestCase()
{
    m_image = picture([](QPainter &) {}, QSize(64, 48));
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

/// What is wrong after the first element that is not painted well, or nothing.
template <typename Element, typename Make, typename Paint>
QString TestStyleFuzz::firstFault(Make make, Paint paint)
{
    const QVector<Element> elements = ownElements<Element>();
    Random random(0);
    for (int round = 0; round < styleRounds; ++round) {
        const Element element = random.oneOf(elements);
        const auto *option = (random.*make)();
        const QWidget *widget = random.oneOf(m_widgets);
        const bool paintsNothing = !option || option->rect.isEmpty();
        const QImage before = paintsNothing ? m_image.copy() : QImage();
        QPainter painter(&m_image);
        painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
        painter.setBrush(Qt::Dense4Pattern);
        painter.setClipRect(0, 0, 55, 40);
        painter.translate(2, 1);
        const QVariantList state = stateOf(painter);
        (m_style.get()->*paint)(element, option, &painter, widget);
        const QString place = QStringLiteral("round %1, element %2: ").arg(round).arg(element);
        if (stateOf(painter) != state)
            return place + "leaves the painter changed";
        if (paintsNothing && m_image != before)
            return place + "paints something nowhere";
    }
    return QString();
}

void TestStyleFuzz::painting()
{
    QCOMPARE(firstFault<QStyle::PrimitiveElement>(&Random::simple, &QStyle::drawPrimitive),
             QString());
    QCOMPARE(firstFault<QStyle::ControlElement>(&Random::simple, &QStyle::drawControl), QString());
    QCOMPARE(firstFault<QStyle::ComplexControl>(&Random::complex, &QStyle::drawComplexControl),
             QString());
}

/// The questions that layouts and mouse events ask.
void TestStyleFuzz::geometry()
{
    Random random(0);
    QVector<QStyle::ComplexControl> controls = ownElements<QStyle::ComplexControl>();
    controls.removeAll(QStyle::CC_Dial); // has no parts to ask for
    for (int round = 0; round < styleRounds; ++round) {
        const QWidget *widget = random.oneOf(m_widgets);
        const auto control = random.oneOf(controls);
        const QStyleOptionComplex *complex = random.complex();
        m_style->subControlRect(control, complex, QStyle::SubControl(1 << random.below(14)),
                                widget);
        m_style->hitTestComplexControl(control, complex, random.rect().topLeft(), widget);

        // Beyond the last of each kind, too.
        const QStyleOption *option = random.simple();
        const int question = random.below(140) - 1;
        m_style->subElementRect(QStyle::SubElement(question), option, widget);
        m_style->sizeFromContents(QStyle::ContentsType(question), option, random.size(), widget);
        m_style->pixelMetric(QStyle::PixelMetric(question), option, widget);
        m_style->styleHint(QStyle::StyleHint(question), option, widget);
        if (round % 50 == 0) {
            m_style->standardPixmap(QStyle::StandardPixmap(question), option, widget);
            m_style->standardIcon(QStyle::StandardPixmap(question), option, widget);
        }
    }
}

void TestStyleFuzz::keptTexts()
{
    Random random(0);
    const quint64 pictures = Nocturne::textPictureUse.hits;
    for (int round = 0; round < textRounds; ++round) {
        const QString text = random.text();
        const QFont font = random.font();
        const Setting setting(random, font);
        const int flags = random.flags();
        QTextOption option(
            Qt::Alignment(flags & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)));
        option.setTextDirection(Qt::LayoutDirection(random.below(3)));
        const QRectF rect(random.below(160) / 4.0, random.below(120) / 4.0, random.below(800) / 4.0,
                          random.below(200) / 4.0);
        const bool byFlags = random.oneIn(2);
        const QVector<QImage> kept = setting.pictures([&](QPainter &painter) {
            if (byFlags)
                KeptText::draw(&painter, rect, flags, text);
            else
                KeptText::draw(&painter, rect, text, option);
        });
        const QVector<QImage> shaped = setting.pictures([&](QPainter &painter) {
            if (byFlags)
                painter.drawText(rect, flags, text);
            else
                painter.drawText(rect, text, option);
        });
        QVERIFY2(!kept.isEmpty() && kept == shaped, qPrintable(QString::number(round) + text));

        const QFontMetrics metrics(font);
        const auto mode = Qt::TextElideMode(random.below(4));
        const int width = random.below(220);
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(KeptText::boundingRect(metrics, text), metrics.boundingRect(text));
            QCOMPARE(KeptText::horizontalAdvance(metrics, text), metrics.horizontalAdvance(text));
            QCOMPARE(KeptText::elided(font, text, mode, width),
                     metrics.elidedText(text, mode, width));
        }
    }
    if (Nocturne::QtVersion::keepsText) // and the pictures of texts were among what was compared
        QVERIFY(Nocturne::textPictureUse.hits > pictures + quint64(textRounds) / 100);
}

/// In places and pixels as the common style shows them.
void TestStyleFuzz::keptItems()
{
    auto *common = static_cast<QCommonStyle *>(m_style.get());
    Random random(0);
    for (int round = 0; round < textRounds; ++round) {
        const auto item = random.option<QStyleOptionViewItem>();
        item->fontMetrics = QFontMetrics(item->font);
        item->features.setFlag(QStyleOptionViewItem::HasDisplay, !random.oneIn(4));
        item->state.setFlag(QStyle::State_Editing, random.oneIn(20));
        if (item->features & QStyleOptionViewItem::WrapText && random.oneIn(2))
            item->rect.setWidth(item->fontMetrics.horizontalAdvance(item->text)
                                + random.below(12)); // about as wide as the line
        const Setting setting(random, random.font());
        const auto facesOf = [&](auto *style) {
            using Style = std::remove_pointer_t<decltype(style)>;
            QVariantList faces = {
                style->Style::sizeFromContents(QStyle::CT_ItemViewItem, item.get(), QSize())};
            for (auto element :
                 {QStyle::SE_ItemViewItemCheckIndicator, QStyle::SE_ItemViewItemDecoration,
                  QStyle::SE_ItemViewItemText, QStyle::SE_ItemViewItemFocusRect})
                faces << style->Style::subElementRect(element, item.get());
            const QVector<QImage> images = setting.pictures([&](QPainter &painter) {
                style->Style::drawControl(QStyle::CE_ItemViewItem, item.get(), &painter);
            });
            for (const QImage &image : images)
                faces << image;
            return faces;
        };
        const QVariantList faces = facesOf(m_style.get());
        QVERIFY2(faces.size() > 5 && faces == facesOf(common),
                 qPrintable(QString::number(round) + item->text));
    }
}

NOCTURNE_TEST_MAIN(TestStyleFuzz)
#include "tst_style_fuzz_internals.moc"

#include "probes.h"
#include "styleoptions.h"
#include "stylepainting.h"

#include <nocturne/style/darkreadablestyle.h>
#include <nocturne/style/stylehelpers_p.h>

#include <QtCore/QCryptographicHash>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <private/qguiapplication_p.h>
#include <private/qhighdpiscaling_p.h>

#include <memory>

// What each element of the style paints and answers in the states of data/elements.txt, which
// explains itself; what cannot be said there; and how pictures of elements are kept.

using namespace StylePainting;
namespace StyleHelpers = Nocturne::StyleHelpers;
using TestSupport::probeColor;

namespace {

// Widgets that the style knows by name.
class SearchLineEdit : public QWidget
{
    Q_OBJECT
};

class QComboBoxPrivateContainer : public QWidget
{
    Q_OBJECT
};

class QDockWidgetTitleButton : public QWidget
{
    Q_OBJECT
};

/// A colour, a texture of two by two transparent pixels, or a gradient from green to red.
QBrush brush(const QString &text)
{
    if (text == "texture")
        return QPixmap(2, 2);
    if (text != "gradient")
        return probeColor(text);
    QLinearGradient gradient;
    gradient.setStops({{0.0, Qt::green}, {1.0, Qt::red}});
    return gradient;
}

int distance(const QColor &a, const QColor &b)
{
    return std::max(
        {qAbs(a.red() - b.red()), qAbs(a.green() - b.green()), qAbs(a.blue() - b.blue())});
}

QRect rect(const QString &text)
{
    const QStringList n = text.split(',');
    return QRect(n[0].toInt(), n[1].toInt(), n.value(2, "1").toInt(), n.value(3, "1").toInt());
}

/// A number, or the sum of numbers and of names of the toolkit: "SC_SliderGroove+SC_SliderHandle".
int number(const QString &text, const QString &prefix = QString())
{
    int sum = 0;
    for (const QString &part : text.split('+', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        int value = part.toInt(&isNumber, 0);
        for (const QMetaObject *names :
             {&QStyle::staticMetaObject, &QPalette::staticMetaObject,
              QMetaEnum::fromType<Qt::WindowType>().enclosingMetaObject()})
        {
            for (int i = 0; !isNumber && i < names->enumeratorCount(); ++i)
                value = names->enumerator(i).keyToValue((prefix + part).toLatin1(), &isNumber);
        }
        if (!isNumber)
            qFatal("no such value: %s", qPrintable(part));
        sum |= value;
    }
    return sum;
}

using Settings = QMap<QString, QString>;

/// Sets the fields of an option that have a setting, and takes that off.
struct Setter
{
    template <typename Field>
    void operator()(const char *field, Field &value)
    {
        if (!settings.contains(field))
            return;
        const QString text = settings.take(field);
        if constexpr (std::is_same_v<Field, QString>)
            value = QString(text).replace("\\t", "\t");
        else if constexpr (std::is_same_v<Field, QIcon>)
            value = redIcon();
        else if constexpr (std::is_same_v<Field, QSize>)
            value = rect("0,0," + text).size();
        else if constexpr (std::is_same_v<Field, QRect>)
            value = rect(text);
        else
            value = Field(number(text));
    }
    Settings settings;
};

/// The option of a row, with the settings that are its own.
template <typename Option>
std::shared_ptr<QStyleOption> build(const QRect &rect, QStyle::State state,
                                    const Settings &settings)
{
    auto option = std::make_shared<Option>(makeOption<Option>(rect, state));
    if constexpr (std::is_same_v<Option, QStyleOptionSlider>)
        option->maximum = 100;
    Setter setter{settings};
    StyleOptions::visitFields(*option, setter);
    if (!setter.settings.isEmpty())
        qFatal("no such field: %s", qPrintable(setter.settings.firstKey()));
    if constexpr (std::is_same_v<Option, QStyleOptionSlider>)
        option->state.setFlag(QStyle::State_Horizontal, option->orientation == Qt::Horizontal);
    return option;
}

const QHash<QString, decltype(&build<QStyleOption>)> builders = {
    {"Option", build<QStyleOption>},
    {"Button", build<QStyleOptionButton>},
    {"ComboBox", build<QStyleOptionComboBox>},
    {"Complex", build<QStyleOptionComplex>},
    {"DockWidget", build<QStyleOptionDockWidget>},
    {"FocusRect", build<QStyleOptionFocusRect>},
    {"Frame", build<QStyleOptionFrame>},
    {"GroupBox", build<QStyleOptionGroupBox>},
    {"Header", build<QStyleOptionHeader>},
    {"MenuItem", build<QStyleOptionMenuItem>},
    {"ProgressBar", build<QStyleOptionProgressBar>},
    {"RubberBand", build<QStyleOptionRubberBand>},
    {"Slider", build<QStyleOptionSlider>},
    {"SpinBox", build<QStyleOptionSpinBox>},
    {"Tab", build<QStyleOptionTab>},
    {"TabBarBase", build<QStyleOptionTabBarBase>},
    {"TabWidgetFrame", build<QStyleOptionTabWidgetFrame>},
    {"TitleBar", build<QStyleOptionTitleBar>},
    {"ToolBar", build<QStyleOptionToolBar>},
    {"ToolButton", build<QStyleOptionToolButton>}};

/// Has the application on a screen with so many device pixels per unit.
void setScreenScale(qreal scale)
{
    QHighDpiScaling::setGlobalFactor(scale);
    QGuiApplicationPrivate::resetCachedDevicePixelRatio();
}

/// What is drawn, and by which style.
struct Row
{
    void drawBy(const QStyle &style, QPainter &painter) const
    {
        painter.setLayoutDirection(option->direction);
        if (!clip.isNull())
            painter.setClipRect(clip);
        const int value = number(element);
        if (element.startsWith("SP_"))
            painter.drawPixmap(option->rect.topLeft(),
                               style.standardPixmap(QStyle::StandardPixmap(value), option.get()));
        else if (element.startsWith("PE_"))
            style.drawPrimitive(QStyle::PrimitiveElement(value), option.get(), &painter, widget);
        else if (element.startsWith("CE_"))
            style.drawControl(QStyle::ControlElement(value), option.get(), &painter, widget);
        else if (element.startsWith("CC_"))
            style.drawComplexControl(QStyle::ComplexControl(value),
                                     static_cast<QStyleOptionComplex *>(option.get()), &painter,
                                     widget);
    }
    QImage picture() const
    {
        return StylePainting::picture([this](QPainter &painter) { drawBy(*style, painter); },
                                      canvas.expandedTo(option->rect.size()));
    }

    QString element;
    std::shared_ptr<QStyleOption> option;
    const QStyle *style = nullptr;
    const QWidget *widget = nullptr;
    QRect clip;
};

} // namespace

class TestStyleElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void elements_data();
    void elements();
    void keptBesideOthers();

    void groupBox();
    void rememberedScrollBar();

    void paintedOnceOrInPlace();
    void colorizedImages();

private:
    QString answer(const QString &question, const QImage &image) const;
    QString fault(const QString &expectation, const QImage &image) const;

    DarkUX m_theme;
    const std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
    const DarkReadableStyle m_readable;
    Recorder m_recorder;
    QHash<QString, QWidget *> m_widgets;
    QMainWindow m_mainWindow;
    QObject m_popupItem;

    Row m_row;
    QVector<QPair<Row, QImage>> m_pictures;
};

void TestStyleElements::initTestCase()
{
    auto *checked = new QPushButton(&m_mainWindow);
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *comboBox = new QComboBox(&m_mainWindow);
    comboBox->setIconSize(QSize(40, 40));
    auto *child = new QWidget(new QWidget(&m_mainWindow));
    m_widgets = {{"search", new SearchLineEdit},
                 {"popup", new QComboBoxPrivateContainer},
                 {"titlebutton", new QDockWidgetTitleButton},
                 {"toolbutton", new QToolButton(&m_mainWindow)},
                 {"pushbutton", new QPushButton(&m_mainWindow)},
                 {"checked", checked},
                 {"combobox", comboBox},
                 {"docked", new QWidget(&m_mainWindow)},
                 {"child", child},
                 {"top", &m_mainWindow}};
    for (const char *name : {"search", "popup", "titlebutton"})
        m_widgets[name]->setParent(child);
    m_popupItem.setProperty("_q_isComboBoxPopupItem", true);
}

void TestStyleElements::elements_data()
{
    QTest::addColumn<QStringList>("columns");
    int line = 0;
    for (const QString &text : QString::fromUtf8(dataOf("elements.txt")).split('\n')) {
        const QString row = text.simplified();
        ++line;
        if (row.isEmpty() || row.startsWith('#'))
            continue;
        const QStringList columns = row.split(" |");
        QTest::addRow("%d %s %s", line, qPrintable(columns[0]), qPrintable(columns[1])) << columns;
    }
}

/// What the style says to \a question, in the form of the table; nothing where that is a place of
/// \a image.
QString TestStyleElements::answer(const QString &question, const QImage &image) const
{
    const int element = number(m_row.element);
    if (question == "within")
        return nameOf(painted(image).boundingRect());
    if (question == "at")
        return nameOf(m_style->subElementRect(QStyle::SubElement(element), m_row.option.get()));
    if (question.startsWith("SC_"))
        return nameOf(m_style->subControlRect(
            QStyle::ComplexControl(element), static_cast<QStyleOptionComplex *>(m_row.option.get()),
            QStyle::SubControl(number(question))));
    if (question == "hint")
        return QString::number(
            m_row.style->styleHint(QStyle::StyleHint(element), m_row.option.get()));
    if (question == "metric")
        return QString::number(
            m_style->pixelMetric(QStyle::PixelMetric(element), m_row.option.get()));
    if (question != "size" && question != "adds")
        return QString();
    const auto type = QStyle::ContentsType(element);
    const QSize contents = m_row.option->rect.size();
    QSize size = m_style->sizeFromContents(type, m_row.option.get(), contents, m_row.widget);
    if (question == "adds")
        size -= m_style->QCommonStyle::sizeFromContents(type, m_row.option.get(), contents,
                                                        m_row.widget);
    return QStringLiteral("%1,%2").arg(size.width()).arg(size.height());
}

/// What is wrong with \a image, or nothing.
QString TestStyleElements::fault(const QString &expectation, const QImage &image) const
{
    const QString place = expectation.section(' ', 0, 0);
    QString wanted = expectation.section(' ', 1);
    if (const QString found = answer(place, image); !found.isEmpty())
        return found == wanted ? QString() : "is " + found;

    const QChar kind = wanted[0];
    if (QStringLiteral("~!+").contains(kind))
        wanted.remove(0, 1);
    const QColor color = TestSupport::blended(probeColor(wanted), background);
    const int limit = kind == '~' ? 4 : kind == '!' || kind == '+' ? 39 : 0;
    const QRect units = rect(place);
    const auto matches = [&](int i) {
        const QPoint unit = units.topLeft() + QPoint(i % units.width(), i / units.width());
        return distance(unitColor(image, unit.x(), unit.y()), color) <= limit;
    };
    const int total = units.width() * units.height();
    int count = 0;
    for (int i = 0; i < total; ++i)
        count += matches(i);
    const bool isRight = kind == '!' ? count == 0 : kind == '+' ? count > 0 : count == total;
    const QString first = unitColor(image, units.x(), units.y()).name();
    return isRight
               ? QString()
               : QStringLiteral("%1 of %2 units; the first is %3").arg(count).arg(total).arg(first);
}

void TestStyleElements::elements()
{
    QFETCH(QStringList, columns);
    const QStringList words = columns[0].split(' ');
    Settings settings;
    for (const QString &setting : columns[1].split(' ', Qt::SkipEmptyParts))
        settings[setting.section('=', 0, 0)] = setting.section('=', 1);
    Settings roles;
    for (const QString &name : settings.keys().filter(QRegularExpression("^[A-Z]")))
        roles[name] = settings.take(name);
    QStyle::State state = enabled | QStyle::State(number(settings.take("with"), "State_"));
    if (settings.contains("state"))
        state = QStyle::State(number(settings.take("state"), "State_"));
    m_row = Row();
    m_row.element = words[0];
    m_row.widget = m_widgets.value(settings.take("widget"));
    if (settings.contains("clip"))
        m_row.clip = rect(settings.take("clip"));
    const bool isMirrored = settings.remove("mirrored");
    const bool isReadable = settings.remove("readable");
    const bool isPopupItem = settings.remove("popupitem");
    m_recorder.isTransient = !settings.remove("solid");
    m_row.style = m_style.get();
    if (!m_recorder.isTransient)
        m_row.style = &m_recorder;
    if (isReadable)
        m_row.style = &m_readable;
    m_row.option = builders[words[1]](rect(words[2]), state, settings);
    m_row.option->direction = isMirrored ? Qt::RightToLeft : Qt::LeftToRight;
    m_row.option->styleObject = isPopupItem ? &m_popupItem : nullptr;
    if (isReadable)
        m_row.option->palette = DarkReadableStyle::palette(m_row.option->palette);
    for (auto role = roles.cbegin(); role != roles.cend(); ++role)
        m_row.option->palette.setBrush(QPalette::ColorRole(number(role.key())),
                                       brush(role.value()));

    QPixmapCache::clear();
    const QImage image = m_row.picture();
    QCOMPARE(m_row.picture(), image); // from the cache
    const int ratio = qRound(qApp->devicePixelRatio());
    const auto paintFiner = [&] {
        const auto paint = [&](QPainter &painter) { m_row.drawBy(*m_row.style, painter); };
        return TestSupport::paintOn(canvas, background, paint, 1.5 * ratio);
    };
    const QImage finer = paintFiner();
    setScreenScale(ratio + 1);
    const QImage dense = m_row.picture();
    QPixmapCache::clear();
    const QImage fresh = m_row.picture();
    setScreenScale(ratio);
    QCOMPARE(dense, fresh);

    const auto limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0); // nothing is taken from there
    const QImage inPlace = paintFiner();
    m_recorder.log.clear();
    StylePainting::picture([&](QPainter &painter) {
        m_row.drawBy(words[0].startsWith("PE_") ? *m_recorder.baseStyle() : m_recorder, painter);
    });
    QPixmapCache::setCacheLimit(limit);
    static const QRegularExpression neverBlurred("PE_Indicator(Check|Radio|Arrow)|CE_ProgressBar");
    if (words[0].contains(neverBlurred))
        QCOMPARE(finer, inPlace);
    m_pictures.append({m_row, image});

    const QStringList expectations = columns[2].trimmed().split("; ", Qt::SkipEmptyParts);
    const QStringList log = expectations.filter(QRegularExpression("^> "));
    for (const QString &expectation : expectations) {
        if (!expectation.startsWith("> ")) {
            const QString message = fault(expectation, image);
            QVERIFY2(message.isEmpty(), qPrintable(expectation + ": " + message));
        }
    }
    if (!log.isEmpty())
        QCOMPARE("> " + m_recorder.log.join("; > "), log.join("; "));
    const bool isRecorded =
        !QtVersion::isQt6 && QSysInfo::buildCpuArchitecture() == "x86_64"; // by that raster engine
    if (columns.size() > 3 && isRecorded) {
        const QByteArray bytes(reinterpret_cast<const char *>(image.constBits()),
                               int(image.sizeInBytes()));
        const QByteArray sum =
            QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex().left(8);
        QCOMPARE(QString::fromLatin1(sum), columns[3].simplified().split(' ').value(ratio - 1));
    }
}

/// No picture is taken for that of another row, for which the key has to hold all that it shows.
void TestStyleElements::keptBesideOthers()
{
    QPixmapCache::clear();
    for (const auto &[row, image] : std::as_const(m_pictures)) {
        m_recorder.isTransient = row.style != &m_recorder;
        QVERIFY2(row.picture() == image, qPrintable(row.element));
    }
}

/// Its places go by the font.
void TestStyleElements::groupBox()
{
    auto option = makeOption<QStyleOptionGroupBox>(QRect(0, 0, 200, 100));
    option.text = QStringLiteral("Key");
    const int above = qMax(14, option.fontMetrics.height());
    const QSize text = option.fontMetrics.boundingRect(option.text).size() + QSize(2, 2);
    const QRect label(QPoint(19, 1), text);
    const QRect box(1, qMax(0, (text.height() - 14) / 2), 14, 14);
    const auto place = [&](QStyle::SubControl part) {
        return m_style->subControlRect(QStyle::CC_GroupBox, &option, part);
    };
    QCOMPARE(place(QStyle::SC_GroupBoxContents), QRect(QPoint(3, above + 6), QPoint(196, 96)));
    QCOMPARE(place(QStyle::SC_GroupBoxLabel), label);
    QCOMPARE(place(QStyle::SC_GroupBoxCheckBox), box);
    option.direction = Qt::RightToLeft;
    QCOMPARE(place(QStyle::SC_GroupBoxLabel), label.translated(162 - text.width(), 0));
    QCOMPARE(place(QStyle::SC_GroupBoxCheckBox), box.translated(184, 0));
}

/// A transient bar notes what it showed, whatever changes alone; a solid one notes nothing.
void TestStyleElements::rememberedScrollBar()
{
    QObject object;
    auto option = makeOption<QStyleOptionSlider>(QRect(0, 0, 200, 14));
    option.styleObject = &object;
    const auto paint = [&](const QStyle &style) {
        picture([&](QPainter &painter) {
            style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
        });
    };
    m_recorder.isTransient = false;
    paint(m_recorder);
    QVERIFY(object.dynamicPropertyNames().isEmpty());
    const std::function<void()> changes[] = {
        [&] { option.activeSubControls = QStyle::SC_ScrollBarSlider; },
        [&] { option.activeSubControls = QStyle::SC_None; },
        [&] { option.maximum = 100; },
        [&] { option.minimum = -1; },
        [&] { option.sliderPosition = 5; },
        [&] { option.rect.setWidth(180); },
        [&] { option.state |= QStyle::State_MouseOver; }};
    for (const auto &change : changes) {
        change();
        paint(*m_style);
        QVariantList kept;
        for (const char *name : {"pos", "min", "max", "rect", "state", "controls"})
            kept << object.property(QByteArray("_q_style") + name);
        QCOMPARE(kept,
                 (QVariantList{option.sliderPosition, option.minimum, option.maximum, option.rect,
                               int(option.state), uint(option.activeSubControls)}));
    }
}

/// Three units to the right are three units down for a painter turned by 90 degrees.
void TestStyleElements::paintedOnceOrInPlace()
{
    int calls = 0;
    const auto paint = [&](QPainter *painter) {
        ++calls;
        painter->fillRect(0, 0, 3, 1, Qt::red);
    };
    const QImage image = picture([&](QPainter &painter) {
        for (const QPoint &place : {QPoint(1, 1), QPoint(6, 8)})
            StyleHelpers::drawCached(&painter, place, "once", QSize(3, 1), paint);
        StyleHelpers::drawCached(&painter, QPoint(), "none", QSize(0, 5), paint);
        QCOMPARE(calls, 1);
        StyleHelpers::drawCached(&painter, QPoint(0, 6), "huge", QSize(1000000, 1000000), paint);
        painter.rotate(90);
        StyleHelpers::drawCachedUnlessTransformed(&painter, QPoint(2, -6), "turned", QSize(3, 1),
                                                  paint);
    });
    QCOMPARE(painted(image),
             QRegion(1, 1, 3, 1) + QRect(6, 8, 3, 1) + QRect(0, 6, 3, 1) + QRect(5, 2, 1, 3));
}

void TestStyleElements::colorizedImages()
{
    QTemporaryDir directory;
    const QString fileName = directory.filePath(QStringLiteral("channels.png"));
    QImage source(2, 1, QImage::Format_ARGB32);
    source.setPixelColor(0, 0, QColor(0, 40, 255)); // all of the colour, on grey
    source.setPixelColor(1, 0, QColor(30, 60, 30)); // grey alone
    QVERIFY(source.save(fileName));
    const QImage image = StyleHelpers::colorizedImage(fileName, QColor(100, 50, 250)).toImage();
    COMPARE_PIXEL(image, 0, 0, QColor(140, 90, (40 + 250) % 256));
    COMPARE_PIXEL(image, 1, 0, QColor(60, 60, 60));
    // No channel exceeds the alpha of a translucent colour.
    const QImage faint = StyleHelpers::colorizedImage(fileName, QColor(100, 50, 200, 80)).toImage();
    QCOMPARE(faint.convertToFormat(QImage::Format_ARGB32_Premultiplied).pixelColor(0, 0).alpha(),
             80);
    QVERIFY(StyleHelpers::colorizedImage(QStringLiteral(":/no/such.png"), Qt::red).isNull());
}

NOCTURNE_TEST_MAIN(TestStyleElements)
#include "tst_style_elements_internals.moc"

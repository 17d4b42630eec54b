#include "styleoptions.h"
#include "stylepainting.h"

#include <QtCore/QCryptographicHash>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <memory>

// What each element of the style paints in the states of data/elements.txt, which explains itself,
// and what cannot be said there.

using namespace StylePainting;

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

/// The colour that \a text stands for, over the ground of the pictures.
QColor color(const QString &text)
{
    // That of what has the focus is the highlight, but not too bright.
    static const QColor dark = QColor(0x679dcd).darker(125);
    static const QColor focus = QColor::fromHsl(dark.hue(), dark.saturation(), 160);
    static const QHash<QString, QColor> names = {
        {"window", window},   {"base", 0x191a1e},
        {"light", 0x5a5959},  {"highlight", 0x679dcd},
        {"lit", 0xed6e00},    {"text", 0xbbbbbb},
        {"button", 0x484848}, {"outline", window.darker(140)},
        {"focus", focus}};
    if (text.contains('|')) {
        return TestSupport::blended(color(text.section('|', 0, 0)), color(text.section('|', 1)));
    }
    static const QRegularExpression operation("[*/+@-]\\d+");
    const QString name = text.left(text.indexOf(operation));
    QColor result = names.value(name, QColor(name));
    for (auto i = operation.globalMatch(text); i.hasNext();) {
        const QString step = i.next().captured();
        const int n = step.mid(1).toInt();
        const int shift = step[0] == '-' ? -n : n;
        if (step[0] == '*')
            result = result.lighter(n);
        else if (step[0] == '/')
            result = result.darker(n);
        else if (step[0] == '@')
            result.setAlpha(n);
        else
            result.setRgb(result.red() + shift, result.green() + shift, result.blue() + shift);
    }
    return result;
}

/// A colour, a texture of two by two transparent pixels, or a gradient from green to red.
QBrush brush(const QString &text)
{
    if (text == "texture")
        return QPixmap(2, 2);
    if (text != "gradient")
        return color(text);
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

/// Sets the fields of an option that have a setting, "name=value", and takes that off the list.
struct Setter
{
    template <typename Field>
    void operator()(const char *field, Field &value)
    {
        const QStringList found = settings.filter(QRegularExpression(QString("^%1=").arg(field)));
        if (found.isEmpty())
            return;
        settings.removeOne(found.first());
        const QString text = found.first().section('=', 1);
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
    QStringList settings;
};

/// The option of a row, with the settings that are its own.
template <typename Option>
std::shared_ptr<QStyleOption> build(const QRect &rect, QStyle::State state,
                                    const QStringList &settings)
{
    auto option = std::make_shared<Option>(makeOption<Option>(rect, state));
    if constexpr (std::is_same_v<Option, QStyleOptionSlider>)
        option->maximum = 100;
    Setter setter{settings};
    StyleOptions::visitFields(*option, setter);
    if (!setter.settings.isEmpty())
        qFatal("no such field: %s", qPrintable(setter.settings.first()));
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

} // namespace

class TestStyleElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void elements_data();
    void elements();

    void groupBox();
    void labelWithIcon();
    void menuSeparatorWithText();
    void menuItemText();
    void rememberedScrollBar();
    void sliderInAClip();

private:
    void draw(const QStyle &style, QPainter &painter) const;
    QString contentSize() const;
    QString fault(const QImage &image, const QString &expectation) const;
    QImage paint(QStyle::PrimitiveElement element, const QStyleOption &option) const
    {
        return picture(
            [&](QPainter &painter) { m_style->drawPrimitive(element, &option, &painter); });
    }
    QImage paint(QStyle::ComplexControl control, const QStyleOptionComplex &option) const
    {
        return picture(option.rect.size(), [&](QPainter &painter) {
            m_style->drawComplexControl(control, &option, &painter);
        });
    }
    QStringList logOf(QStyle::ControlElement element, const QStyleOption &option)
    {
        m_recorder.log.clear();
        picture([&](QPainter &painter) { m_recorder.drawControl(element, &option, &painter); });
        return m_recorder.log;
    }

    DarkUX m_theme;
    const std::unique_ptr<DarkFusionStyle> m_style{m_theme.style()};
    Recorder m_recorder;
    QHash<QString, QWidget *> m_widgets;
    QMainWindow m_mainWindow;

    // of the row
    QString m_element;
    std::shared_ptr<QStyleOption> m_option;
    const QWidget *m_widget = nullptr;
};

void TestStyleElements::initTestCase()
{
    auto *checked = new QPushButton(&m_mainWindow);
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *child = new QWidget(new QWidget(&m_mainWindow));
    auto *comboBox = new QComboBox(&m_mainWindow);
    comboBox->setIconSize(QSize(40, 40));
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
}

void TestStyleElements::elements_data()
{
    QTest::addColumn<QStringList>("columns");
    QFile file(QStringLiteral(NOCTURNE_SOURCE_DIR "/tests/style/data/elements.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    for (int line = 1; !file.atEnd(); ++line) {
        const QString row = QString::fromUtf8(file.readLine()).simplified();
        if (row.isEmpty() || row.startsWith('#'))
            continue;
        const QStringList columns = row.split(" |");
        QTest::addRow("%d %s %s", line, qPrintable(columns[0]), qPrintable(columns[1])) << columns;
    }
}

void TestStyleElements::draw(const QStyle &style, QPainter &painter) const
{
    painter.setLayoutDirection(m_option->direction);
    const int element = number(m_element);
    if (m_element.startsWith("SP_"))
        painter.drawPixmap(m_option->rect.topLeft(),
                           style.standardPixmap(QStyle::StandardPixmap(element), m_option.get()));
    else if (m_element.startsWith("PE_"))
        style.drawPrimitive(QStyle::PrimitiveElement(element), m_option.get(), &painter, m_widget);
    else if (m_element.startsWith("CE_"))
        style.drawControl(QStyle::ControlElement(element), m_option.get(), &painter, m_widget);
    else if (m_element.startsWith("CC_"))
        style.drawComplexControl(QStyle::ComplexControl(element),
                                 static_cast<QStyleOptionComplex *>(m_option.get()), &painter,
                                 m_widget);
}

/// The size for contents as large as the option, and what the common style lacks of it.
QString TestStyleElements::contentSize() const
{
    const auto type = QStyle::ContentsType(number(m_element));
    const QSize contents = m_option->rect.size();
    const QSize size = m_style->sizeFromContents(type, m_option.get(), contents, m_widget);
    const QSize added =
        size - m_style->QCommonStyle::sizeFromContents(type, m_option.get(), contents, m_widget);
    return QStringLiteral(" width %1 height %2 adds %3,%4 ")
        .arg(size.width())
        .arg(size.height())
        .arg(added.width())
        .arg(added.height());
}

/// What is wrong with \a image, or nothing.
QString TestStyleElements::fault(const QImage &image, const QString &expectation) const
{
    const QString place = expectation.section(' ', 0, 0);
    QString wanted = expectation.section(' ', 1);
    const QRegion region = painted(image);
    QString answer;
    if (wanted.isEmpty()) {
        wanted = place;
        answer = region.isEmpty() ? "nothing" : "something";
    } else if (place == "within") {
        answer = nameOf(region.boundingRect());
    } else if (place == "count") {
        answer = QString::number(unitCount(region & rect(wanted.section(' ', 1))))
                 + wanted.mid(wanted.indexOf(' '));
    } else if (place == "at") {
        answer =
            nameOf(m_style->subElementRect(QStyle::SubElement(number(m_element)), m_option.get()));
    } else if (place.startsWith("SC_")) {
        answer = nameOf(m_style->subControlRect(QStyle::ComplexControl(number(m_element)),
                                                static_cast<QStyleOptionComplex *>(m_option.get()),
                                                QStyle::SubControl(number(place))));
    }
    if (!answer.isEmpty())
        return answer == wanted ? QString() : "is " + answer;

    const QChar kind = wanted[0];
    if (QStringLiteral("~!+").contains(kind))
        wanted.remove(0, 1);
    const QColor expected = TestSupport::blended(color(wanted), background);
    const QRect units = rect(place);
    bool isFound = false;
    for (int y = units.top(); y <= units.bottom(); ++y) {
        for (int x = units.left(); x <= units.right(); ++x) {
            const QColor found = unitColor(image, x, y);
            const int difference = distance(found, expected);
            isFound |= difference < 40;
            if (kind == '~' ? difference > 4 : kind != '!' && kind != '+' && difference > 0)
                return QStringLiteral("%1,%2 is %3").arg(x).arg(y).arg(found.name());
        }
    }
    return kind == (isFound ? '!' : '+') ? QStringLiteral("found %1").arg(isFound) : QString();
}

void TestStyleElements::elements()
{
    QFETCH(QStringList, columns);
    const QStringList words = columns[0].split(' ');
    QStringList settings = columns[1].split(' ', Qt::SkipEmptyParts);
    const auto take = [&settings](const QString &name) {
        const QStringList found = settings.filter(QRegularExpression("^" + name + "(=|$)"));
        settings.removeOne(found.value(0));
        return found.isEmpty() ? QString() : found[0].section('=', 1) + ' ';
    };
    m_element = words[0];
    QStyle::State state = enabled | QStyle::State(number(take("with").trimmed(), "State_"));
    if (const QString only = take("state"); !only.isEmpty())
        state = QStyle::State(number(only.trimmed(), "State_"));
    m_widget = m_widgets.value(take("widget").trimmed());
    const bool isMirrored = !take("mirrored").isEmpty();
    m_recorder.isTransient = take("solid").isEmpty();
    const QStringList roles = settings.filter(QRegularExpression("^[A-Z]"));
    for (const QString &role : roles)
        settings.removeOne(role);
    m_option = builders[words[1]](rect(words[2]), state, settings);
    for (const QString &role : roles)
        m_option->palette.setBrush(QPalette::ColorRole(number(role.section('=', 0, 0))),
                                   brush(role.section('=', 1)));
    m_option->direction = isMirrored ? Qt::RightToLeft : Qt::LeftToRight;

    if (m_element.startsWith("CT_")) {
        QVERIFY2(contentSize().contains(columns[2] + " "), qPrintable(contentSize()));
        return;
    }
    const QSize size = canvas.expandedTo(m_option->rect.size());
    const auto paintBy = [&](const QStyle &style) {
        return picture(size, [&](QPainter &painter) { draw(style, painter); });
    };
    const QStyle &style = m_recorder.isTransient ? static_cast<QStyle &>(*m_style) : m_recorder;
    const QImage image = paintBy(style); // with what the rows before have left in the cache
    QPixmapCache::clear();
    QCOMPARE(paintBy(style), image);
    QCOMPARE(paintBy(style), image); // from the cache
    const QStringList expectations = columns[2].trimmed().split("; ", Qt::SkipEmptyParts);
    const QStringList log = expectations.filter(QRegularExpression("^> "));
    for (const QString &expectation : expectations) {
        if (!expectation.startsWith("> ")) {
            const QString message = fault(image, expectation);
            QVERIFY2(message.isEmpty(), qPrintable(expectation + ": " + message));
        }
    }
    if (!log.isEmpty()) {
        m_recorder.log.clear();
        const auto kept = QPixmapCache::cacheLimit();
        QPixmapCache::setCacheLimit(0); // nothing is taken from there
        picture(size, [&](QPainter &painter) {
            draw(m_element.startsWith("PE_") ? *m_recorder.baseStyle() : m_recorder, painter);
        });
        QPixmapCache::setCacheLimit(kept);
        QCOMPARE("> " + m_recorder.log.join("; > "), log.join("; "));
    }
    const int ratio = qRound(qApp->devicePixelRatio());
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

/// Its places go by the font.
void TestStyleElements::groupBox()
{
    auto option = makeOption<QStyleOptionGroupBox>(
        QRect(0, 0, 200, 100), enabled | QStyle::State_On | QStyle::State_HasFocus);
    option.text = QStringLiteral("Key");
    const int height = option.fontMetrics.height();
    const QSize text = option.fontMetrics.boundingRect(option.text).size() + QSize(2, 2);
    const QRect label(QPoint(19, 1), text);
    const QRect box(1, qMax(0, (text.height() - 14) / 2), 14, 14);
    const auto places = [&] {
        QVector<QRect> rects;
        for (auto part : {QStyle::SC_GroupBoxFrame, QStyle::SC_GroupBoxContents,
                          QStyle::SC_GroupBoxLabel, QStyle::SC_GroupBoxCheckBox})
            rects << m_style->subControlRect(QStyle::CC_GroupBox, &option, part);
        return rects;
    };
    const QRect contents(QPoint(3, qMax(14, height) + 6), QPoint(196, 96));
    QCOMPARE(places(), (QVector<QRect>{option.rect, contents, label, box}));
    m_recorder.log.clear();
    picture([&](QPainter &painter) {
        m_recorder.drawComplexControl(QStyle::CC_GroupBox, &option, &painter);
    });
    const QString state = " Enabled+On+HasFocus+Active";
    QCOMPARE(
        m_recorder.log,
        QStringList({"PE_FrameGroupBox 0,0,200,100" + state, "text " + nameOf(label) + " 1 NoRole",
                     "PE_FrameFocusRect " + nameOf(label.adjusted(-2, -1, 2, 1)) + state,
                     "PE_IndicatorCheckBox " + nameOf(box) + state}));
    option.direction = Qt::RightToLeft;
    QCOMPARE(places().mid(2),
             (QVector<QRect>{label.translated(162 - text.width(), 0), box.translated(184, 0)}));
    option.subControls = QStyle::SC_GroupBoxLabel;
    QCOMPARE(places().at(2), QRect(QPoint(200 - text.width(), 1), text));

    const auto frame = makeOption<QStyleOption>(QRect(0, 0, 60, 50));
    QCOMPARE(painted(paint(QStyle::PE_FrameGroupBox, frame)).boundingRect(),
             QRect(QPoint(1, qMax(14, height) + 4), QPoint(59, 49)));
}

/// Icon and text stand in the middle together.
void TestStyleElements::labelWithIcon()
{
    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 100, 30));
    option.text = QStringLiteral("Label");
    option.icon = redIcon();
    option.iconSize = QSize(16, 16);
    const int flags = Qt::AlignVCenter | Qt::TextShowMnemonic;
    const int width = option.fontMetrics.boundingRect(option.rect, flags, option.text).width();
    const int left = 50 - (16 + width + 2) / 2;
    QCOMPARE(logOf(QStyle::CE_PushButtonLabel, option).last(),
             QStringLiteral("text %1,0,100,28 81 ButtonText").arg(left + 16));
    option.direction = Qt::RightToLeft;
    QCOMPARE(logOf(QStyle::CE_PushButtonLabel, option).last(),
             QStringLiteral("text %1,0,100,28 81 ButtonText").arg(-left - 16 - 2));
}

void TestStyleElements::menuSeparatorWithText()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 21));
    option.menuItemType = QStyleOptionMenuItem::Separator;
    option.text = QStringLiteral("View");
    const int width = option.fontMetrics.horizontalAdvance(option.text) + 5;
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        option.direction = direction;
        QCOMPARE(logOf(QStyle::CE_MenuItem, option).last(), "text 5,0,90,21 81 Text");
        const QImage image = picture([&](QPainter &painter) {
            m_recorder.drawControl(QStyle::CE_MenuItem, &option, &painter);
        });
        const int left = direction == Qt::LeftToRight ? 5 + width : 5;
        QCOMPARE(painted(image), QRegion(left, 10, 90 - width, 1));
    }
}

/// As the toolkit would draw it, text and shortcut each in a place of its own.
void TestStyleElements::menuItemText()
{
    QObject popupItem;
    popupItem.setProperty("_q_isComboBoxPopupItem", true);
    for (const QString look : {"", "mirrored", "selected", "disabled", "disabled mirrored",
                               "disabled selected", "combobox", "popup", "default"})
    {
        const bool isSelected = look.contains("selected");
        const bool isEnabled = !look.contains("disabled");
        const bool isMirrored = look.contains("mirrored");
        auto option = makeOption<QStyleOptionMenuItem>(QRect(3, 2, 115, 28),
                                                       isEnabled ? enabled : QStyle::State());
        option.state.setFlag(QStyle::State_Selected, isSelected);
        if (look == "default")
            option.menuItemType = QStyleOptionMenuItem::DefaultItem;
        option.direction = isMirrored ? Qt::RightToLeft : Qt::LeftToRight;
        option.styleObject = look == "popup" ? &popupItem : nullptr;
        option.maxIconWidth = 22;
        QtVersion::setShortcutWidth(option, 24);
        option.font.setPixelSize(11);
        option.text = QStringLiteral("&Open\tF1\tF2");

        const int column = look == "combobox" || look == "popup" ? 20 : 22;
        const QRect text(3 + column + 7, 2 + 8, 115 - (column + 7) - 24 - 14, 28 - 16);
        const QRect right(text.topRight(), QPoint(option.rect.right(), text.bottom()));
        const QRect shortcut = QStyle::visualRect(option.direction, option.rect, right);
        const int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextDontClip
                          | Qt::TextSingleLine;
        const QImage expected = picture([&](QPainter &painter) {
            painter.setLayoutDirection(option.direction);
            if (!isEnabled && !isSelected) {
                painter.setPen(option.palette.color(QPalette::Light));
                painter.drawText(shortcut.translated(1, 1), flags, QStringLiteral("F1\tF2"));
            }
            painter.setPen(option.palette.color(isSelected && isEnabled ? QPalette::HighlightedText
                                                                        : QPalette::Text));
            painter.drawText(shortcut, flags, QStringLiteral("F1\tF2"));
            QFont font = option.font;
            font.setPointSizeF(QFontInfo(font).pointSizeF());
            font.setBold(look == "default");
            painter.setFont(font);
            painter.drawText(QStyle::visualRect(option.direction, option.rect, text), flags,
                             QStringLiteral("&Open"));
        });
        const QImage image = picture([&](QPainter &painter) {
            painter.setLayoutDirection(option.direction);
            m_style->drawControl(QStyle::CE_MenuItem, &option, &painter, m_widgets.value(look));
        });
        QVERIFY2(image == expected, qPrintable(look));
    }
}

/// A transient bar notes what it showed, whatever changes alone; a solid one notes nothing.
void TestStyleElements::rememberedScrollBar()
{
    QObject object;
    auto option = makeOption<QStyleOptionSlider>(QRect(0, 0, 200, 14));
    option.styleObject = &object;
    m_recorder.isTransient = false;
    picture([&](QPainter &painter) {
        m_recorder.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
    });
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
        paint(QStyle::CC_ScrollBar, option);
        QVariantList kept;
        for (const char *name : {"pos", "min", "max", "rect", "state", "controls"})
            kept << object.property(QByteArray("_q_style") + name);
        QCOMPARE(kept,
                 (QVariantList{option.sliderPosition, option.minimum, option.maximum, option.rect,
                               int(option.state), uint(option.activeSubControls)}));
    }
}

void TestStyleElements::sliderInAClip()
{
    auto option = makeOption<QStyleOptionSlider>(QRect(0, 0, 200, 40));
    option.maximum = 100;
    option.sliderPosition = 100;
    const QRegion shown = painted(picture(option.rect.size(), [&](QPainter &painter) {
        painter.setClipRect(0, 0, 60, 40);
        m_style->drawComplexControl(QStyle::CC_Slider, &option, &painter);
    }));
    QCOMPARE(shown.boundingRect().right(), 59);
}

NOCTURNE_TEST_MAIN(TestStyleElements)
#include "tst_style_elements.moc"

#include "testsupport.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/style/darkfusionstyle.h>

#include <QtCore/QRandomGenerator>
#include <QtGui/QPainter>
#include <QtGui/QTextOption>
#include <QtTest/QTest>
#include <QtWidgets/QStyleOption>

// Text that was shaped earlier must look as if it was shaped on the spot: random labels are drawn
// both ways, twice each, and every pixel is compared.

using namespace Nocturne;

namespace {

constexpr int rounds = 1000;

class Random
{
public:
    explicit Random(quint32 seed)
        : m_generator(seed)
    {}

    int below(int limit) { return m_generator.bounded(limit); }
    bool oneIn(int count) { return below(count) == 0; }
    template <typename Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[below(int(values.size()))];
    }
    int anyOf(std::initializer_list<int> flags)
    {
        int result = 0;
        for (int flag : flags)
            result |= oneIn(5) ? flag : 0;
        return result;
    }

private:
    QRandomGenerator m_generator;
};

QString randomText(Random &random)
{
    static const QStringList texts =
        QString::fromUtf8("Button|Quick fox|&Open file|Save && close|a &b &c|end&|&|A\tB|"
                          "two\nlines|مرحبا بالعالم|&مرحبا|שלום עולם|abc שלום 123|شكرا (thanks)|"
                          "\u200fabc|हिन्दी पाठ|ไทย|日本語テキスト|😀 emoji "
                          "👍🏽|"
                          "  lead, trail  |fi ffl AVAToWa|a\u0301e\u0308|a\u00adb\u200bc\u00a0d|"
                          "x||one\u2028two|this is a rather long text that goes on and on and on")
            .split('|');
    return texts.at(random.below(texts.size()));
}

QFont randomFont(Random &random)
{
    QFont font(QLatin1String(random.oneOf<const char *>(
        {"DejaVu Sans", "DejaVu Serif", "Liberation Sans", "Noto Sans Mono", "Nimbus Sans"})));
    if (random.oneIn(2))
        font.setPixelSize(8 + random.below(20));
    else
        font.setPointSizeF(6 + random.below(40) / 4.0);
    font.setBold(random.oneIn(3));
    font.setItalic(random.oneIn(3));
    font.setUnderline(random.oneIn(6));
    font.setStrikeOut(random.oneIn(9));
    font.setOverline(random.oneIn(9));
    font.setKerning(!random.oneIn(9));
    font.setLetterSpacing(QFont::AbsoluteSpacing, random.oneIn(5) ? 1.3 : 0.0);
    font.setWordSpacing(random.oneIn(7) ? 2.5 : 0.0);
    font.setStretch(random.oneIn(6) ? 80 + random.below(50) : 100);
    font.setCapitalization(random.oneIn(6) ? QFont::AllUppercase : QFont::MixedCase);
    font.setHintingPreference(QFont::HintingPreference(random.below(4)));
    font.setStyleStrategy(random.oneIn(9) ? QFont::NoAntialias : QFont::PreferDefault);
    return font;
}

int randomFlags(Random &random)
{
    return random.oneOf<int>({0, Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify,
                              Qt::AlignLeft | Qt::AlignRight})
           | random.oneOf<int>({0, Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter,
                                Qt::AlignVCenter | Qt::AlignBottom})
           | (random.oneIn(2) ? Qt::TextShowMnemonic : 0)
           | (random.oneIn(2) ? Qt::TextSingleLine : 0)
           | random.anyOf({Qt::AlignAbsolute, Qt::TextHideMnemonic, Qt::TextDontClip})
           | (random.oneIn(4)
                  ? random.anyOf({Qt::TextWordWrap, Qt::TextExpandTabs, Qt::TextForceRightToLeft,
                                  Qt::TextForceLeftToRight, Qt::TextIncludeTrailingSpaces})
                  : 0);
}

/// A painter as any widget could leave it.
struct Setting
{
    explicit Setting(Random &random)
        : font(randomFont(random))
        , pen(random.oneIn(5) ? QBrush(Qt::Dense4Pattern)
                              : QBrush(QColor(200, 100, 50, random.oneOf({255, 128}))),
              1.0)
        , direction(Qt::LayoutDirection(random.below(3)))
        , mode(random.oneIn(9) ? Qt::OpaqueMode : Qt::TransparentMode)
        , ratio(random.oneOf({1.0, 1.5, 2.0}))
    {
        if (random.oneIn(6))
            transform.translate(random.below(100) / 50.0, random.below(100) / 50.0);
        if (random.oneIn(9))
            transform.rotate(random.below(90));
        if (random.oneIn(9))
            transform.scale(1.3, 1.1);
    }

    template <typename Draw>
    QImage picture(Draw draw) const
    {
        QImage image(QSizeF(220 * ratio, 70 * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(QColor(30, 40, 50));
        QPainter painter(&image);
        painter.setFont(font);
        painter.setPen(pen);
        painter.setLayoutDirection(direction);
        painter.setBackgroundMode(mode);
        painter.setTransform(transform, true);
        const QFont asSet = painter.font();
        draw(&painter);
        draw(&painter);
        const bool unchanged = painter.font() == asSet && painter.pen() == pen
                               && !painter.hasClipping() && painter.brush() == QBrush();
        painter.end();
        return unchanged ? image : QImage();
    }

    QFont font;
    QPen pen;
    Qt::LayoutDirection direction;
    Qt::BGMode mode;
    qreal ratio;
    QTransform transform;
};

/// The style with the common style's items.
class CommonItems : public DarkFusionStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        QCommonStyle::drawControl(element, option, painter, widget);
    }
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override
    {
        return QCommonStyle::subElementRect(element, option, widget);
    }
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        return QCommonStyle::sizeFromContents(type, option, size, widget);
    }
};

QStyleOptionViewItem randomItem(Random &random)
{
    using Item = QStyleOptionViewItem;
    static const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    Item item;
    item.rect.setRect(random.below(20), random.below(20), random.below(180), random.below(50));
    item.direction = Qt::LayoutDirection(random.below(2));
    item.text = random.oneIn(3) ? QStringLiteral("Item 12") : randomText(random);
    item.font = randomFont(random);
    item.fontMetrics = QFontMetrics(item.font);
    item.features = Item::ViewItemFeatures(
        random.anyOf({Item::WrapText, Item::Alternate})
        | random.oneOf<int>({0, Item::HasCheckIndicator}) | random.oneOf<int>({0, Item::HasDisplay})
        | random.oneOf<int>({0, Item::HasDisplay, Item::HasDecoration}));
    if (item.features & Item::WrapText && random.oneIn(2)) // about as wide as the line
        item.rect.setWidth(QFontMetrics(item.font).horizontalAdvance(item.text) + random.below(12));
    item.checkState = Qt::CheckState(random.below(3));
    if (item.features & Item::HasDecoration)
        item.icon = icon;
    item.decorationSize =
        random.oneIn(3) ? QSize(random.below(30), random.below(30)) : QSize(16, 16);
    item.decorationPosition = Item::Position(random.below(4));
    item.decorationAlignment = Qt::Alignment(randomFlags(random) & 0xff);
    item.displayAlignment = Qt::Alignment(randomFlags(random) & 0xff);
    item.showDecorationSelected = random.oneIn(2);
    item.textElideMode = Qt::TextElideMode(random.below(4));
    item.viewItemPosition = Item::ViewItemPosition(random.below(5));
    item.backgroundBrush = random.oneIn(5) ? QBrush(Qt::darkGreen) : QBrush();
    for (QStyle::State flag : {QStyle::State_Enabled, QStyle::State_Active, QStyle::State_Selected,
                               QStyle::State_HasFocus, QStyle::State_Open, QStyle::State_MouseOver,
                               QStyle::State_KeyboardFocusChange})
        item.state.setFlag(QStyle::StateFlag(int(flag)), random.oneIn(2));
    item.state.setFlag(QStyle::State_Editing, random.oneIn(20));
    item.palette.setCurrentColorGroup(QPalette::ColorGroup(random.below(3)));
    return item;
}

/// More of them are tried by hand: NOCTURNE_SEEDS=100 tst_kepttext_internals
quint32 seeds()
{
    return qMax(1U, uint(qEnvironmentVariableIntValue("NOCTURNE_SEEDS")));
}

} // namespace

class KeptTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsWhatTheToolkitDraws();
    void measuresWhatTheToolkitMeasures();
    void showsItemsAsTheCommonStyleDoes();
};

void KeptTextTest::drawsWhatTheToolkitDraws()
{
    for (quint32 seed = 0; seed < seeds(); ++seed) {
        Random random(seed);
        for (int round = 0; round < rounds; ++round) {
            const QString text = randomText(random);
            const Setting setting(random);
            const int flags = randomFlags(random);
            QTextOption option(
                Qt::Alignment(flags & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)));
            option.setTextDirection(Qt::LayoutDirection(random.below(3)));
            const QRectF rect(random.below(160) / 4.0, random.below(120) / 4.0,
                              random.below(800) / 4.0, random.below(200) / 4.0);
            const bool byFlags = random.oneIn(2);
            const QImage kept = setting.picture([&](QPainter *painter) {
                if (byFlags)
                    KeptText::draw(painter, rect, flags, text);
                else
                    KeptText::draw(painter, rect, text, option);
            });
            const QImage shaped = setting.picture([&](QPainter *painter) {
                if (byFlags)
                    painter->drawText(rect, flags, text);
                else
                    painter->drawText(rect, text, option);
            });
            QVERIFY(!kept.isNull());
            QVERIFY2(kept == shaped, qPrintable(QStringLiteral("seed %1, round %2: %3 in %4")
                                                    .arg(seed)
                                                    .arg(round)
                                                    .arg(text, setting.font.toString())));
        }
    }
}

void KeptTextTest::measuresWhatTheToolkitMeasures()
{
    Random random(7);
    for (int round = 0; round < rounds; ++round) {
        const QString text = randomText(random);
        const QFont font = randomFont(random);
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
}

void KeptTextTest::showsItemsAsTheCommonStyleDoes()
{
    const DarkFusionStyle keptStyle;
    const CommonItems commonStyle;
    const QStyle &kept = keptStyle;
    const QStyle &common = commonStyle;
    for (quint32 seed = 0; seed < seeds(); ++seed) {
        Random random(seed);
        for (int round = 0; round < rounds; ++round) {
            const QStyleOptionViewItem item = randomItem(random);
            const Setting setting(random);
            const bool clipped = random.oneIn(5);
            const auto picture = [&](const QStyle &style) {
                return setting.picture([&](QPainter *painter) {
                    painter->save();
                    if (clipped)
                        painter->setClipRect(30, 0, 60, 40);
                    style.drawControl(QStyle::CE_ItemViewItem, &item, painter);
                    painter->restore();
                });
            };
            const QString what = QStringLiteral("seed %1, round %2: %3 in %4, features %5")
                                     .arg(seed)
                                     .arg(round)
                                     .arg(item.text, item.font.toString())
                                     .arg(int(item.features));
            bool same = kept.sizeFromContents(QStyle::CT_ItemViewItem, &item, QSize())
                        == common.sizeFromContents(QStyle::CT_ItemViewItem, &item, QSize());
            for (QStyle::SubElement element :
                 {QStyle::SE_ItemViewItemCheckIndicator, QStyle::SE_ItemViewItemDecoration,
                  QStyle::SE_ItemViewItemText, QStyle::SE_ItemViewItemFocusRect})
                same =
                    same
                    && kept.subElementRect(element, &item) == common.subElementRect(element, &item);
            const QImage image = picture(kept);
            QVERIFY(!image.isNull());
            same = same && image == picture(common);
            QVERIFY2(same, qPrintable(what));
        }
    }
}

NOCTURNE_TEST_MAIN(KeptTextTest)

#include "tst_kepttext_internals.moc"

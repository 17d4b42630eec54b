#include "kepttext_p.h"

#include "cacheuse_p.h"
#include "textpicture_p.h"

#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QCache>
#include <QtCore/QThread>
#include <QtCore/QtMath>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <private/qtextengine_p.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace Nocturne::KeptText {

namespace {

constexpr int longestKept = 512;            // code units; what is longer is seldom a label
constexpr int lineBudget = 4 * 1024 * 1024; // bytes
constexpr int lineBytes = 1024;             // a layout with its line and its font
constexpr int unitBytes = 64;               // glyph, advance, attributes and offset of a code unit
constexpr int keptMeasures = 2048;
constexpr qreal unbrokenWidth = 0x00800000; // wider than any text that is kept

/// What becomes of the ampersand before a letter.
enum class Mnemonic : quint8 { Literal, Underlined, Hidden };

/// Everything that decides how a line is shaped.
struct LineKey
{
    QString text;
    QFont font;
    int dpi; ///< that the size of the font is resolved for
    Qt::LayoutDirection direction;
    Mnemonic mnemonic;
};

bool operator==(const LineKey &a, const LineKey &b)
{
    return a.dpi == b.dpi && a.direction == b.direction && a.mnemonic == b.mnemonic
           && a.text == b.text && a.font == b.font;
}

uint qHash(const LineKey &key, uint seed = 0)
{
    return uint(::qHash(key.text, seed)) ^ uint(::qHash(key.font, seed)) ^ uint(key.dpi) << 8
           ^ uint(key.direction) << 4 ^ uint(key.mnemonic);
}

/// A shaped line, or the knowledge that its text is none.
struct Line
{
    std::unique_ptr<QTextLayout> layout;
    mutable TextPicture picture;
    qreal advance = 0.0; ///< what alignment goes by
    qreal width = 0.0;   ///< up to the end of the last glyph, should it hang over
    qreal height = 0.0;
};

struct ElidedKey
{
    LineKey line;
    Qt::TextElideMode mode;
    int width;
};

bool operator==(const ElidedKey &a, const ElidedKey &b)
{
    return a.width == b.width && a.mode == b.mode && a.line == b.line;
}

uint qHash(const ElidedKey &key, uint seed = 0)
{
    return qHash(key.line, seed) ^ uint(key.width) << 12 ^ uint(key.mode) << 28;
}

enum class Measure : quint8 { BoundingRect, Advance };

struct MeasureKey
{
    QString text;
    QFontMetrics metrics;
    Measure measure;
};

bool operator==(const MeasureKey &a, const MeasureKey &b)
{
    return a.measure == b.measure && a.text == b.text && a.metrics == b.metrics;
}

uint qHash(const MeasureKey &key, uint seed = 0)
{
    return uint(::qHash(key.text, seed)) ^ uint(key.measure) << 24;
}

struct Measured
{
    QRect rect;
    int advance = 0;
};

QCache<LineKey, Line> &lines()
{
    static QCache<LineKey, Line> cache(lineBudget);
    return cache;
}

/// The line that was asked for last. A view asks for the same several times for each item, with
/// copies of one text and one font, which are told at a glance.
struct LastLine
{
    QString text;
    QFont font;
    Qt::LayoutDirection direction;
    Mnemonic mnemonic;
    const Line *line;

    bool is(const QFont &askedFont, const QString &askedText, Qt::LayoutDirection askedDirection,
            Mnemonic askedMnemonic) const
    {
        return text.constData() == askedText.constData() && text.size() == askedText.size()
               && direction == askedDirection && mnemonic == askedMnemonic
               && font.isCopyOf(askedFont);
    }
};

std::optional<LastLine> &lastLine()
{
    static std::optional<LastLine> line;
    return line;
}

QCache<ElidedKey, QString> &elidedTexts()
{
    static QCache<ElidedKey, QString> cache(keptMeasures);
    return cache;
}

QCache<MeasureKey, Measured> &measures()
{
    static QCache<MeasureKey, Measured> cache(keptMeasures);
    return cache;
}

void forget()
{
    lastLine().reset();
    lines().clear();
    elidedTexts().clear();
    measures().clear();
    TextPicture::forget();
}

/// Forgets what is kept as soon as the fonts that it is made of may be gone: with each change of
/// the font database, and with the application. Asks for neither any more once the library itself
/// is gone.
class FontWatch
{
public:
    ~FontWatch()
    {
        QObject::disconnect(m_connection);
        qRemovePostRoutine(endOfApplication);
    }

    void start()
    {
        if (m_connection)
            return;
        m_connection = QObject::connect(qApp, &QGuiApplication::fontDatabaseChanged, qApp, forget);
        qAddPostRoutine(endOfApplication);
    }

private:
    static void endOfApplication();

    QMetaObject::Connection m_connection;
};

FontWatch &fontWatch()
{
    static FontWatch watch;
    return watch;
}

void FontWatch::endOfApplication()
{
    fontWatch().m_connection = {};
    forget();
}

bool isGuiThread()
{
    return qApp && QThread::currentThread() == qApp->thread();
}

/// Neither broken nor indented: no control characters, separators or objects.
bool isPlainLine(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar(QChar::LineSeparator)
               || c == QChar(QChar::ParagraphSeparator)
               || c == QChar(QChar::ObjectReplacementCharacter);
    });
}

/// Takes the ampersand before the mnemonic out of \a text and tells where the mnemonic stands then,
/// -1 for none. False when there are several ampersands, or one at the end.
bool takeMnemonic(QString *text, int *position)
{
    *position = int(text->indexOf(QLatin1Char('&')));
    if (*position < 0)
        return true;
    if (*position + 1 == text->size() || text->count(QLatin1Char('&')) > 1)
        return false;
    text->remove(*position, 1);
    return true;
}

std::unique_ptr<QTextLayout> shapedLayout(const LineKey &key)
{
    QString text = key.text;
    int mnemonic = -1;
    if (!isPlainLine(text)
        || (key.mnemonic != Mnemonic::Literal && !takeMnemonic(&text, &mnemonic)))
        return nullptr;

    auto layout = std::make_unique<QTextLayout>(text, key.font);
    QTextOption option;
    option.setTextDirection(key.direction);
    option.setWrapMode(QTextOption::ManualWrap);
    layout->setTextOption(option);
    if (mnemonic >= 0 && key.mnemonic == Mnemonic::Underlined) {
        QTextLayout::FormatRange underlined;
        underlined.start = mnemonic;
        underlined.length = 1;
        underlined.format.setFontUnderline(true);
        layout->setFormats({underlined});
    }
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine().setLineWidth(unbrokenWidth);
    layout->endLayout();
    return layout;
}

std::unique_ptr<Line> shapedLine(const LineKey &key)
{
    auto line = std::make_unique<Line>();
    line->layout = shapedLayout(key);
    if (!line->layout)
        return line;
    const QTextLine only = line->layout->lineAt(0);
    line->advance = only.horizontalAdvance();
    line->width = only.naturalTextWidth();
    line->height = only.height();
    return line;
}

int fontDpi(const QFont &font)
{
    return qRound(QFontMetricsF(font).fontDpi());
}

Qt::LayoutDirection ownDirection(const QString &text)
{
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

/// Null for a text that can't be kept. Whoever wants the line must be done with it before asking
/// for the next.
const Line *keptLine(const QFont &font, const QString &text, Qt::LayoutDirection direction,
                     Mnemonic mnemonic)
{
    if (!QtVersion::keepsText || text.isEmpty() || text.size() > longestKept || !isGuiThread())
        return nullptr;
    std::optional<LastLine> &last = lastLine();
    if (!last || !last->is(font, text, direction, mnemonic)) {
        const LineKey key{text, font, fontDpi(font), direction, mnemonic};
        const Line *line = lines().object(key);
        keptTextUse.count(line);
        if (!line) {
            fontWatch().start();
            auto *shaped = shapedLine(key).release();
            lines().insert(key, shaped, lineBytes + unitBytes * int(text.size()));
            line = shaped;
        }
        last = LastLine{text, font, direction, mnemonic, line};
    }
    return last->line->layout ? last->line : nullptr;
}

/// The same, and null for a painter that had better shape the text itself.
const Line *keptLine(const QPainter &painter, const QString &text, Qt::LayoutDirection direction,
                     Mnemonic mnemonic)
{
    return takesKept(painter) ? keptLine(painter.font(), text, direction, mnemonic) : nullptr;
}

constexpr int keptFlags = Qt::AlignLeft | Qt::AlignRight | Qt::AlignHCenter | Qt::AlignTop
                          | Qt::AlignBottom | Qt::AlignVCenter | Qt::AlignAbsolute
                          | Qt::TextSingleLine | Qt::TextDontClip | Qt::TextShowMnemonic
                          | Qt::TextHideMnemonic;

Mnemonic mnemonic(int flags)
{
    if (flags & Qt::TextHideMnemonic)
        return Mnemonic::Hidden;
    return flags & Qt::TextShowMnemonic ? Mnemonic::Underlined : Mnemonic::Literal;
}

/// How much of the room to the left of a text is left free: nothing, half or all.
qreal horizontalShare(int flags, bool mirrored)
{
    if (flags & Qt::AlignHCenter)
        return 0.5;
    const bool right = flags & Qt::AlignRight;
    return (mirrored && !(flags & Qt::AlignAbsolute)) != right ? 1.0 : 0.0;
}

qreal verticalShare(int flags)
{
    if (flags & Qt::AlignVCenter)
        return 0.5;
    return flags & Qt::AlignBottom ? 1.0 : 0.0;
}

/// Where a height of whole units begins in \a rect.
int wholeTop(const QRect &rect, int height, int flags)
{
    if (flags & Qt::AlignVCenter)
        return rect.top() + rect.height() / 2 - height / 2;
    return flags & Qt::AlignBottom ? rect.bottom() + 1 - height : rect.top();
}

void drawInside(QPainter *painter, const QRectF &rect, const Line &line, int flags, bool mirrored)
{
    const QPointF room(rect.width() - line.advance, rect.height() - line.height);
    const QPointF offset(room.x() * horizontalShare(flags, mirrored),
                         room.y() * verticalShare(flags));
    line.picture.draw(painter, *line.layout, rect.topLeft() + offset);
}

bool fits(const Line &line, const QRectF &rect)
{
    return qMax(line.width, line.advance) <= rect.width() && line.height <= rect.height();
}

template <typename Shorten>
QString elidedText(const ElidedKey &key, Shorten shorten)
{
    const QString *known = elidedTexts().object(key);
    keptTextUse.count(known);
    if (known)
        return *known;
    fontWatch().start();
    QString text = shorten();
    elidedTexts().insert(key, new QString(text));
    return text;
}

template <typename Take>
Measured measured(MeasureKey key, Take take)
{
    Measured result;
    if (key.text.size() > longestKept || !isGuiThread()) {
        take(result);
        return result;
    }
    const Measured *known = measures().object(key);
    keptTextUse.count(known);
    if (known)
        return *known;
    fontWatch().start();
    take(result);
    measures().insert(key, new Measured(result));
    return result;
}

} // namespace

bool areKept(int flags)
{
    const auto atMostOne = [flags](int mask) { return !(flags & mask & ((flags & mask) - 1)); };
    return !(flags & ~keptFlags) && atMostOne(Qt::AlignHorizontal_Mask & ~Qt::AlignAbsolute)
           && atMostOne(Qt::AlignTop | Qt::AlignBottom | Qt::AlignVCenter);
}

bool takesKept(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    return QtVersion::keepsText && engine && engine->type() == QPaintEngine::Raster
           && painter.deviceTransform().type() <= QTransform::TxScale
           && painter.backgroundMode() == Qt::TransparentMode;
}

void draw(QPainter *painter, const QRectF &rect, int flags, const QString &text)
{
    const Qt::LayoutDirection direction = painter->layoutDirection();
    const Line *line =
        areKept(flags) ? keptLine(*painter, text, direction, mnemonic(flags)) : nullptr;
    if (line && (flags & Qt::TextDontClip || fits(*line, rect)))
        drawInside(painter, rect, *line, flags, direction == Qt::RightToLeft);
    else
        painter->drawText(rect, flags, text);
}

void draw(QPainter *painter, const QRectF &rect, const QString &text, const QTextOption &option)
{
    const int flags = int(option.alignment());
    // A direction that the text itself decides has no say in where the text stands.
    const Qt::LayoutDirection direction = option.textDirection();
    const Line *line = nullptr;
    if (areKept(flags)) {
        line = keptLine(*painter, text,
                        direction == Qt::LayoutDirectionAuto ? ownDirection(text) : direction,
                        Mnemonic::Literal);
    }
    if (line && fits(*line, rect))
        drawInside(painter, rect, *line, flags, direction == Qt::RightToLeft);
    else
        painter->drawText(rect, text, option);
}

bool hasLine(const QFont &font, const QString &text)
{
    return isGuiThread()
           && lines().contains({text, font, fontDpi(font), ownDirection(text), Mnemonic::Literal});
}

QSize lineSize(const QFont &font, const QString &text)
{
    // Spaces at the ends count or not, depending on how the text is placed.
    if (text.isEmpty() || text.front().isSpace() || text.back().isSpace())
        return QSize();
    const Line *line = keptLine(font, text, ownDirection(text), Mnemonic::Literal);
    return line ? QSize(qCeil(line->width), qCeil(line->height)) : QSize();
}

void drawElidedLine(QPainter *painter, const QRect &rect, Qt::Alignment alignment,
                    const QFont &font, const QString &text, Qt::LayoutDirection direction,
                    Qt::TextElideMode mode)
{
    const Line *line = keptLine(font, text, direction, Mnemonic::Literal);
    if (!line)
        return;
    const int height = qCeil(line->height);
    if (qCeil(line->width) > rect.width()) {
        const LineKey key{text, font, fontDpi(font), direction, Mnemonic::Literal};
        const QString elided = elidedText({key, mode, rect.width()}, [&] {
            return line->layout->engine()->elidedText(mode, rect.width());
        });
        line = keptLine(font, elided, direction, Mnemonic::Literal);
    }
    if (!line)
        return;
    const qreal x = (rect.width() - line->advance)
                    * horizontalShare(int(alignment), direction == Qt::RightToLeft);
    line->picture.draw(painter, *line->layout,
                       QPointF(rect.x() + x, wholeTop(rect, height, int(alignment))));
}

QRect boundingRect(const QFontMetrics &metrics, const QString &text)
{
    return measured({text, metrics, Measure::BoundingRect},
                    [&](Measured &result) { result.rect = metrics.boundingRect(text); })
        .rect;
}

int horizontalAdvance(const QFontMetrics &metrics, const QString &text)
{
    return measured({text, metrics, Measure::Advance},
                    [&](Measured &result) { result.advance = metrics.horizontalAdvance(text); })
        .advance;
}

QString elided(const QFont &font, const QString &text, Qt::TextElideMode mode, int width)
{
    const auto shorten = [&] { return QFontMetrics(font).elidedText(text, mode, width); };
    if (text.size() > longestKept || !isGuiThread())
        return shorten();
    const LineKey key{text, font, fontDpi(font), Qt::LayoutDirectionAuto, Mnemonic::Literal};
    return elidedText({key, mode, width}, shorten);
}

} // namespace Nocturne::KeptText

#include "stylehelpers_p.h"

#include "stylecolors_p.h"

#include <nocturne/painting/devicepixels_p.h>
#include <nocturne/painting/toolkitexports_p.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace Nocturne::StyleHelpers {

namespace {

/// Appends numbers to a key as raw code units: a key is read by nobody, but it is built and hashed
/// each time a control paints.
class KeyWriter
{
public:
    explicit KeyWriter(QChar *position)
        : m_position(position)
    {}

    void put16(uint value) { *m_position++ = QChar(ushort(value)); }
    void put32(uint value)
    {
        put16(value);
        put16(value >> 16);
    }
    void put64(quint64 value)
    {
        put32(uint(value));
        put32(uint(value >> 32));
    }

private:
    QChar *m_position;
};

constexpr int sizeUnits = 4;
constexpr int ratioUnits = 2;
constexpr int optionUnits = 9;
constexpr int spinBoxUnits = 3;

void writeOption(KeyWriter &writer, const QStyleOption *option)
{
    const auto *complex = qstyleoption_cast<const QStyleOptionComplex *>(option);
    writer.put32(uint(option->state));
    // The palette's key does not tell its current group.
    writer.put16(uint(option->direction) | uint(option->palette.currentColorGroup()) << 8);
    writer.put32(complex ? uint(complex->activeSubControls) : 0);
    writer.put64(quint64(option->palette.cacheKey()));
}

void writeSpinBox(KeyWriter &writer, const QStyleOptionSpinBox *spinBox)
{
    writer.put16(uint(spinBox->buttonSymbols));
    writer.put16(uint(spinBox->stepEnabled));
    writer.put16(spinBox->frame ? 1 : 0);
}

// An arrow is drawn at half its pixel size, so that it is sharp on a screen of twice the density:
// these pixels show as 8 x 4 units.
constexpr int arrowWidth = 16;
constexpr int arrowHeight = 8;

/// An upward arrow whose whole surface takes the colour that colorizedImage() is given.
QImage ownArrowImage()
{
    QImage image(arrowWidth, arrowHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::blue);
    const QPointF corners[] = {
        {0.0, arrowHeight}, {arrowWidth / 2.0, 0.0}, {arrowWidth, arrowHeight}};
    painter.drawConvexPolygon(corners, 3);
    painter.end();
    return image;
}

QImage sourceImage(const QString &fileName)
{
    QImage image(fileName);
    if (image.isNull() && fileName == arrowImageFileName())
        image = ownArrowImage();
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

uint div255(uint value)
{
    return (value + (value >> 8) + 128) >> 8;
}

/// A source pixel in the colour given, neither of them undone from its alpha.
QRgb colorizedPixel(QRgb pixel, QRgb color)
{
    const uint share = uint(qBlue(pixel) - qRed(pixel));
    const uint gray = uint(qGreen(pixel));
    const uint alpha = div255(uint(qAlpha(pixel)) * uint(qAlpha(color)));
    const auto channel = [&](int value) {
        const uint sum = (gray + div255(uint(value) * share)) & 0xff;
        return int(qMin(alpha, sum));
    };
    return qRgba(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)), int(alpha));
}

void colorize(QImage *image, QRgb color)
{
    for (int y = 0; y < image->height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image->scanLine(y));
        std::transform(line, line + image->width(), line,
                       [color](QRgb pixel) { return colorizedPixel(pixel, color); });
    }
}

QImage turned(const QImage &image, int rotation)
{
    if (rotation == 0)
        return image;
    QTransform transform;
    transform.translate(-image.width() / 2, -image.height() / 2);
    transform.rotate(rotation);
    transform.translate(image.width() / 2, image.height() / 2);
    return image.transformed(transform);
}

/// "$qt_ia-", the name, the colour as eight digits, low digit of each byte first, the rotation.
QString colorizedImageKey(const QString &fileName, QRgb color, int rotation)
{
    static constexpr char digits[] = "0123456789abcdef";
    const QString prefix = QStringLiteral("$qt_ia-");
    QString key;
    key.reserve(prefix.size() + fileName.size() + 12);
    key += prefix;
    key += fileName;
    for (int nibble = 0; nibble < 8; ++nibble)
        key += QLatin1Char(digits[(color >> (4 * nibble)) & 0xf]);
    key += QString::number(rotation);
    return key;
}

/// Degrees that turn an upward arrow to where \a element points.
int arrowRotation(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorArrowDown:
        return 180;
    case QStyle::PE_IndicatorArrowLeft:
        return -90;
    case QStyle::PE_IndicatorArrowRight:
        return 90;
    default:
        return 0;
    }
}

/// The size that colorizedImage() gives the arrow of \a element.
QSize arrowImageSize(QStyle::PrimitiveElement element)
{
    static const QSize upward = sourceImage(arrowImageFileName()).size();
    return arrowRotation(element) % 180 == 0 ? upward : upward.transposed();
}

QString scaledArrowPrefix(QStyle::PrimitiveElement element, const QColor &color)
{
    const QString name = QStringLiteral("arrow");
    QString prefix(name.size() + 3, Qt::Uninitialized);
    KeyWriter writer(std::copy(name.cbegin(), name.cend(), prefix.data()));
    writer.put16(uint(element));
    writer.put32(color.rgba());
    return prefix;
}

/// The largest rectangle in the proportions of \a pixmap inside the square of the shortest side
/// of both, centred in \a rect.
QRect arrowRect(const QRect &rect, const QSize &pixmap)
{
    const int side = qMin(qMin(pixmap.width(), pixmap.height()), qMin(rect.width(), rect.height()));
    QRect arrow(0, 0, side, side);
    if (pixmap.width() > pixmap.height())
        arrow.setHeight(pixmap.height() * side / pixmap.width());
    else
        arrow.setWidth(pixmap.width() * side / pixmap.height());
    arrow.moveCenter(rect.center());
    return arrow;
}

// The sunken look inside a title-bar button, and the light it catches from outside.
constexpr QRgb titleButtonHover = 0x14ffffff;
constexpr QRgb titleButtonHighlight = 0x3cffffff;
constexpr QRgb titleButtonEdgeTop = 0x28000000;
constexpr QRgb titleButtonEdgeBottom = 0x3cffffff;

QColor titleButtonBorder(const QStyleOptionTitleBar *option, const QColor &highlight)
{
    if (option->titleBarState & QStyle::State_Active)
        return highlight.darker(180);
    const QColor button = option->palette.color(QPalette::Button);
    QColor dark;
    dark.setHsv(button.hue(), button.saturation(), int(button.value() * 0.7));
    return dark.darker(110);
}

void drawTitleButtonBorder(QPainter *painter, const QRect &r, const QColor &color)
{
    painter->setPen(color);
    const QLine lines[] = {{r.left() + 2, r.top(), r.right() - 2, r.top()},
                           {r.left() + 2, r.bottom(), r.right() - 2, r.bottom()},
                           {r.left(), r.top() + 2, r.left(), r.bottom() - 2},
                           {r.right(), r.top() + 2, r.right(), r.bottom() - 2}};
    painter->drawLines(lines, 4);
    const QPoint corners[] = {{r.left() + 1, r.top() + 1},
                              {r.right() - 1, r.top() + 1},
                              {r.left() + 1, r.bottom() - 1},
                              {r.right() - 1, r.bottom() - 1}};
    painter->drawPoints(corners, 4);
}

void drawTitleButtonHighlight(QPainter *painter, const QRect &r, const QColor &color)
{
    painter->setPen(color);
    painter->drawLine(r.left() + 2, r.top() + 1, r.right() - 2, r.top() + 1);
    painter->drawLine(r.left() + 1, r.top() + 2, r.left() + 1, r.bottom() - 2);
}

/// The light on the right and the lower edge, one unit outside the border.
void drawTitleButtonEdge(QPainter *painter, const QRect &r)
{
    QLinearGradient gradient(r.center().x(), r.top(), r.center().x(), r.bottom());
    gradient.setColorAt(0.0, QColor::fromRgba(titleButtonEdgeTop));
    gradient.setColorAt(1.0, QColor::fromRgba(titleButtonEdgeBottom));
    painter->setPen(QPen(gradient, 1));
    painter->drawLine(r.right() + 1, r.top() + 2, r.right() + 1, r.bottom() - 2);
    painter->drawPoint(r.right(), r.top() + 1);
    painter->drawLine(r.left() + 2, r.bottom() + 1, r.right() - 2, r.bottom() + 1);
    const QPoint corners[] = {
        {r.left() + 1, r.bottom()}, {r.right() - 1, r.bottom()}, {r.right(), r.bottom() - 1}};
    painter->drawPoints(corners, 3);
}

} // namespace

qreal dpiScaled(qreal value)
{
    static const qreal factor = qt_defaultDpiX() / 96.0;
    return value * factor;
}

QString styleCacheKey(const QString &prefix, const QStyleOption *option, const QSize &size)
{
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const int units =
        sizeUnits + ratioUnits + (option ? optionUnits : 0) + (spinBox ? spinBoxUnits : 0);

    QString key(prefix.size() + units, Qt::Uninitialized);
    KeyWriter writer(std::copy(prefix.cbegin(), prefix.cend(), key.data()));
    writer.put32(uint(size.width()));
    writer.put32(uint(size.height()));
    writer.put32(uint(qRound(qApp->devicePixelRatio() * 0x10000)));
    if (option)
        writeOption(writer, option);
    if (spinBox)
        writeSpinBox(writer, spinBox);
    return key;
}

QPixmap styleCachePixmap(const QSize &size)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap pixmap(qRound(size.width() * ratio), qRound(size.height() * ratio));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

bool fitsCache(const QSize &size)
{
    const qreal ratio = qApp->devicePixelRatio();
    const qreal bytes = 4.0 * size.width() * ratio * size.height() * ratio;
    return bytes <= 1024.0 * QPixmapCache::cacheLimit();
}

bool showsPixmapsUnchanged(const QPainter *painter)
{
    const int ratio = wholeRatio(*painter);
    return ratio > 0 && ratio == qApp->devicePixelRatio();
}

QString arrowImageFileName()
{
    return QStringLiteral(":/qt-project.org/styles/commonstyle/images/fusion_arrow.png");
}

QString groupBoxImageFileName()
{
    return QStringLiteral(":/qt-project.org/styles/commonstyle/images/fusion_groupbox.png");
}

QPixmap colorizedImage(const QString &fileName, const QColor &color, int rotation)
{
    const QString key = colorizedImageKey(fileName, color.rgba(), rotation);
    QPixmap pixmap;
    const bool isKept = QPixmapCache::find(key, &pixmap);
    keptPixmapUse.count(isKept);
    if (isKept)
        return pixmap;

    QImage image = sourceImage(fileName);
    if (image.isNull())
        return QPixmap();
    colorize(&image, color.rgba());
    pixmap = QPixmap::fromImage(turned(image, rotation));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

void drawArrowImage(QStyle::PrimitiveElement element, QPainter *painter, const QStyleOption *option)
{
    if (!option || option->rect.width() <= 1 || option->rect.height() <= 1)
        return;
    const QSize imageSize = arrowImageSize(element);
    if (imageSize.isEmpty())
        return;
    const QRect rect = arrowRect(option->rect, imageSize);
    const QColor color = option->palette.color(QPalette::WindowText);
    const auto paintScaled = [&](QPainter *scaled) {
        scaled->setRenderHint(QPainter::SmoothPixmapTransform);
        scaled->drawPixmap(QRect(QPoint(), rect.size()),
                           colorizedImage(arrowImageFileName(), color, arrowRotation(element)));
    };
    // The colour alone, not the option: those who paint arrows change their palettes at each paint.
    drawKept(painter, rect.topLeft(), scaledArrowPrefix(element, color), nullptr, rect.size(),
             paintScaled);
}

void drawToolButtonArrow(const QStyle *style, const QStyleOptionToolButton *option,
                         const QRect &rect, QPainter *painter, const QWidget *widget)
{
    QStyle::PrimitiveElement element;
    switch (option->arrowType) {
    case Qt::UpArrow:
        element = QStyle::PE_IndicatorArrowUp;
        break;
    case Qt::DownArrow:
        element = QStyle::PE_IndicatorArrowDown;
        break;
    case Qt::LeftArrow:
        element = QStyle::PE_IndicatorArrowLeft;
        break;
    case Qt::RightArrow:
        element = QStyle::PE_IndicatorArrowRight;
        break;
    default:
        return;
    }
    QStyleOption arrow;
    arrow.state = option->state;
    arrow.palette = option->palette;
    arrow.rect = rect;
    style->drawPrimitive(element, &arrow, painter, widget);
}

void drawTitleBarButton(QPainter *painter, const QStyleOptionTitleBar *option, const QRect &rect,
                        bool hover, bool sunken)
{
    const PainterSaver saver(painter);
    const QColor highlight = option->palette.color(QPalette::Highlight);
    const QRect inner = rect.adjusted(1, 1, -1, -1);
    if (sunken)
        painter->fillRect(inner, highlight.darker(120));
    else if (hover)
        painter->fillRect(inner, QColor::fromRgba(titleButtonHover));

    drawTitleButtonBorder(painter, rect, titleButtonBorder(option, highlight));
    drawTitleButtonHighlight(
        painter, rect, sunken ? highlight.darker(130) : QColor::fromRgba(titleButtonHighlight));
    drawTitleButtonEdge(painter, rect);
}

} // namespace Nocturne::StyleHelpers

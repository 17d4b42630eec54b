#include "roundprogressbar.h"

#include "ringaccessible_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QAccessible>
#include <QtGui/QConicalGradient>
#include <QtGui/QFontInfo>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>
#include <utility>

int const RoundProgressBar::PositionLeft = 180;
int const RoundProgressBar::PositionTop = 90;
int const RoundProgressBar::PositionRight = 0;
int const RoundProgressBar::PositionBottom = -90;

int const RoundProgressBar::UF_VALUE = 1;
int const RoundProgressBar::UF_PERCENT = 2;
int const RoundProgressBar::UF_BYTE_PER_SEC = 4;
int const RoundProgressBar::UF_CONNECT = 8;

namespace {

constexpr int baseShade = -4;
constexpr int faintestAlpha = 80;
constexpr int alphaRange = 100;
constexpr int ringMargin = 3;

// A font that is given in points has no pixel size of its own.
int pixelSize(const QFont &font)
{
    const int size = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
    return qMax(1, size);
}

/// \a font with nothing left open that a painter would take from the font of its widget instead.
QFont settled(const QFont &font)
{
    QFont result(font);
    result.setFamily(font.family());
    result.setFamilies(font.families());
    result.setStyleName(font.styleName());
    if (font.pixelSize() > 0)
        result.setPixelSize(font.pixelSize());
    else
        result.setPointSizeF(font.pointSizeF());
    result.setWeight(font.weight());
    result.setStyle(font.style());
    result.setStretch(font.stretch());
    result.setUnderline(font.underline());
    result.setOverline(font.overline());
    result.setStrikeOut(font.strikeOut());
    result.setFixedPitch(font.fixedPitch());
    result.setKerning(font.kerning());
    result.setCapitalization(font.capitalization());
    result.setLetterSpacing(font.letterSpacingType(), font.letterSpacing());
    result.setWordSpacing(font.wordSpacing());
    result.setStyleHint(font.styleHint(), font.styleStrategy());
    result.setHintingPreference(font.hintingPreference());
    return result;
}

QRectF shrunk(const QRectF &rect, double margin)
{
    return rect.adjusted(margin, margin, -margin, -margin);
}

} // namespace

RoundProgressBar::RoundProgressBar(QWidget *parent)
    : QWidget(parent)
    , m_updateFlags(UF_PERCENT)
{
    Nocturne::RingAccessibility::install();
}

RoundProgressBar::~RoundProgressBar() = default;

void RoundProgressBar::setRange(double min, double max)
{
    applyRange(min, max);
}

void RoundProgressBar::setMinimum(double min)
{
    applyRange(min, m_maximum);
}

void RoundProgressBar::setMaximum(double max)
{
    applyRange(m_minimum, max);
}

void RoundProgressBar::applyRange(double min, double max)
{
    if (!qIsFinite(min) || !qIsFinite(max))
        return;
    m_minimum = qMin(min, max);
    m_maximum = qMax(min, max);
    m_value = qBound(m_minimum, m_value, m_maximum);
    invalidateDataBrush();
    update();
}

void RoundProgressBar::setValue(double val)
{
    if (!isVisible() || !qIsFinite(val) || val == m_value)
        return;
    m_value = qBound(m_minimum, val, m_maximum);
    update();
    if (QAccessible::isActive())
        Nocturne::RingAccessibility::valueChanged(this);
}

void RoundProgressBar::setValue(int val)
{
    setValue(double(val));
}

void RoundProgressBar::setNullPosition(double position)
{
    if (!qIsFinite(position) || position == m_nullPosition)
        return;
    m_nullPosition = position;
    invalidateDataBrush();
    update();
}

void RoundProgressBar::setBarStyle(BarStyle style)
{
    if (style == m_barStyle)
        return;
    m_barStyle = style;
    update();
}

void RoundProgressBar::setOutlinePenWidth(double width)
{
    if (!qIsFinite(width) || width < 0.0 || width == m_outlinePenWidth)
        return;
    m_outlinePenWidth = width;
    update();
}

void RoundProgressBar::setDataPenWidth(double width)
{
    if (!qIsFinite(width) || width < 0.0 || width == m_dataPenWidth)
        return;
    m_dataPenWidth = width;
    update();
}

void RoundProgressBar::setDataColors(const QVector<QPair<double, QColor>> &stops)
{
    if (stops == m_dataColors)
        return;
    m_dataColors = stops;
    m_rebuildDataBrush = true;
    update();
}

void RoundProgressBar::setFormat(const QString &format)
{
    if (format == m_format)
        return;
    m_format = format;
    valueFormatChanged();
}

void RoundProgressBar::resetFormat()
{
    m_format = QString();
    valueFormatChanged();
}

void RoundProgressBar::setDecimals(int count)
{
    if (count < 0 || count == m_decimals)
        return;
    m_decimals = count;
    valueFormatChanged();
}

void RoundProgressBar::setTitle(const QString &title, const QFont &titleFont,
                                const QFont &valueFont, double titleFactor, bool unitMode)
{
    m_title = title;
    m_titleFont = titleFont;
    m_valueFont = valueFont;
    m_titleFactor = titleFactor;
    m_unitMode = unitMode;
}

void RoundProgressBar::valueFormatChanged()
{
    m_updateFlags = 0;
    if (m_format.contains(QLatin1String("%v")))
        m_updateFlags |= UF_VALUE;
    if (m_format.contains(QLatin1String("%connect")))
        m_updateFlags |= UF_CONNECT;
    if (m_format.contains(QLatin1String("%p")))
        m_updateFlags |= UF_PERCENT;
    if (m_format.contains(QLatin1String("%byte")))
        m_updateFlags |= UF_BYTE_PER_SEC;
    update();
}

QString RoundProgressBar::valueToText(double value)
{
    const int decimals = qMin(m_decimals, 1074); // no number has more
    QString text = m_format;
    if (m_updateFlags & UF_VALUE)
        text.replace(QLatin1String("%v"), QString::number(value, 'f', decimals));
    if (m_updateFlags & UF_CONNECT) {
        text.replace(QLatin1String("%connect"), QString::number(value, 'f', decimals));
        m_unitText = QStringLiteral("connect");
    }
    if (m_updateFlags & UF_PERCENT) {
        const QString percent = QString::number(share(value) * 100.0, 'f', decimals);
        if (m_unitMode) {
            text.replace(QLatin1String("%p%"), percent);
            m_unitText = QStringLiteral("%");
        } else {
            text.replace(QLatin1String("%p"), percent);
        }
    }
    if (m_updateFlags & UF_BYTE_PER_SEC)
        text = humanReadableSize(qint64(value));
    return text;
}

QString RoundProgressBar::humanReadableSize(qint64 bytes)
{
    // The first division leads to KB/s, so the smallest unit holds below 1024 KB.
    const char *const units[] = {"KB/s", "MB/s", "GB/s"};
    QString unit = QLatin1String(units[0]);
    double size = bytes;
    for (const char *next : units) {
        if (size < 1024.0)
            break;
        unit = QLatin1String(next);
        size /= 1024.0;
    }
    if (bytes < 1024)
        size /= 1024.0;

    QString number = QStringLiteral("%1").arg(size, 0, 'f', 1, QLatin1Char(' '));
    if (!m_unitMode)
        return QStringLiteral("%1 %2").arg(number, unit);
    m_unitText = unit;
    return number;
}

QSize RoundProgressBar::minimumSizeHint() const
{
    return QSize(160, 160);
}

bool RoundProgressBar::hasHeightForWidth() const
{
    return true;
}

int RoundProgressBar::heightForWidth(int width) const
{
    return width;
}

void RoundProgressBar::paintEvent(QPaintEvent *)
{
    rebuildDataBrushIfNeeded();

    const double outer = qMin(width(), height());
    const QRectF wholeRect(0, 0, outer, outer);
    const QRectF baseRect(1, 1, outer - 2, outer - 2);

    // Every layer goes straight to the widget: the background below covers the square, so a picture
    // composed elsewhere first would look the same and cost one more copy.
    QPainter painter(this);
    painter.setClipRect(wholeRect);
    painter.fillRect(baseRect, palette().window());
    painter.setRenderHint(QPainter::Antialiasing);

    drawBackground(painter, wholeRect);
    drawBase(painter, baseRect);
    drawValue(painter, baseRect, m_value, 360.0 * share(m_value));

    QRectF innerRect;
    double innerRadius = 0.0;
    calculateInnerRect(baseRect, outer, innerRect, innerRadius);
    drawInnerBackground(painter, innerRect);
    drawText(painter, innerRect, innerRadius, m_value);
}

void RoundProgressBar::drawBackground(QPainter &painter, const QRectF &rect)
{
    painter.fillRect(rect, Nocturne::ThemePaint::window());
}

void RoundProgressBar::drawBase(QPainter &painter, const QRectF &baseRect)
{
    switch (m_barStyle) {
    case DonutStyle:
        painter.setPen(Qt::NoPen);
        painter.setBrush(Nocturne::ThemePaint::window(baseShade));
        painter.drawEllipse(baseRect);
        break;
    case PieStyle:
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().base());
        painter.drawEllipse(baseRect);
        break;
    case LineStyle:
        painter.setPen(QPen(Nocturne::ThemePaint::color(QPalette::Mid), m_outlinePenWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(shrunk(baseRect, m_outlinePenWidth / 2));
        break;
    }
}

void RoundProgressBar::drawValue(QPainter &painter, const QRectF &baseRect, double value,
                                 double arcLength)
{
    if (value == m_minimum)
        return;
    if (m_barStyle == LineStyle) {
        painter.setPen(QPen(QColor(Nocturne::ThemePaint::accentBlue), m_dataPenWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawArc(shrunk(baseRect, m_outlinePenWidth / 2), int(startAngle() * 16),
                        int(-arcLength * 16));
        return;
    }

    QPainterPath sector(baseRect.center());
    sector.setFillRule(Qt::WindingFill);
    sector.arcTo(baseRect, startAngle(), -arcLength);
    sector.lineTo(baseRect.center());

    QColor fill(Nocturne::ThemePaint::accentBlue);
    fill.setAlpha(int(share(value) * alphaRange + faintestAlpha));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPath(sector);
}

void RoundProgressBar::calculateInnerRect(const QRectF &, double outerRadius, QRectF &innerRect,
                                          double &innerRadius)
{
    const double thickness =
        m_barStyle == LineStyle ? m_outlinePenWidth : pixelSize(m_titleFont) + ringMargin;
    innerRadius = outerRadius - thickness;
    const double margin = thickness / 2;
    innerRect = QRectF(margin, margin, innerRadius, innerRadius);
}

void RoundProgressBar::drawInnerBackground(QPainter &painter, const QRectF &innerRect)
{
    if (m_barStyle != DonutStyle)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Nocturne::ThemePaint::window());
    painter.drawEllipse(innerRect);
}

void RoundProgressBar::drawText(QPainter &painter, const QRectF &innerRect, double, double value)
{
    if (m_format.isEmpty())
        return;
    const auto draw = [&](const QFont &font, const QColor &color, double shift,
                          const QString &text) {
        painter.setFont(settled(font));
        painter.setPen(color);
        Nocturne::KeptText::draw(&painter, innerRect.translated(0, shift), Qt::AlignCenter, text);
    };

    const QString text = valueToText(value);
    if (m_unitMode) {
        const double shift = pixelSize(m_valueFont) * m_titleFactor;
        draw(m_valueFont, Qt::gray, 0, text);
        draw(m_titleFont, Qt::darkGray, -shift, m_title);
        draw(m_titleFont, Qt::darkGray, shift, m_unitText);
    } else {
        const double shift = innerRect.height() / pixelSize(m_titleFont);
        draw(m_valueFont, Qt::gray, shift, text);
        draw(m_titleFont, Qt::darkGray, -shift, m_title);
    }
}

/// The value in the words that the ring shows, its unit included.
QString RoundProgressBar::accessibleValue()
{
    const QString text = valueToText(m_value);
    const bool hasUnitLine = m_unitMode && !text.isEmpty() && !m_unitText.isEmpty();
    return hasUnitLine ? text + QLatin1Char(' ') + m_unitText : text;
}

void RoundProgressBar::invalidateDataBrush()
{
    if (!m_dataColors.isEmpty())
        m_rebuildDataBrush = true;
}

void RoundProgressBar::rebuildDataBrushIfNeeded()
{
    if (!m_rebuildDataBrush)
        return;
    m_rebuildDataBrush = false;

    QConicalGradient gradient(QPointF(0.5, 0.5), startAngle());
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    for (const auto &stop : std::as_const(m_dataColors))
        gradient.setColorAt(1.0 - stop.first, stop.second);

    QPalette changed = palette();
    changed.setBrush(QPalette::Highlight, gradient);
    setPalette(changed);
}

double RoundProgressBar::startAngle() const
{
    return std::fmod(m_nullPosition, 360.0);
}

double RoundProgressBar::share(double value) const
{
    // Halves, since the length of a range may be more than a double holds.
    const double halfLength = m_maximum / 2 - m_minimum / 2;
    return halfLength > 0.0 ? (value / 2 - m_minimum / 2) / halfLength : 0.0;
}

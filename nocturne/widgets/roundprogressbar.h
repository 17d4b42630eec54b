#ifndef NOCTURNE_ROUNDPROGRESSBAR_H
#define NOCTURNE_ROUNDPROGRESSBAR_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPair>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

namespace Nocturne {
class RingInterface;
}

/// A value as a filled ring, pie or line around a text.
///
/// The text is built from a format: "%v" stands for the value, "%p" for the percentage, "%connect"
/// for a value whose unit is "connect", and "%byte" turns the whole text into a transfer rate in
/// KB/s, MB/s or GB/s. In unit mode (setTitle()) the unit has a line of its own under the value.
///
/// The picture is the largest square that fits the top left corner of the widget. A subclass may
/// replace each of its layers. Assistive technology finds a progress bar that is named by the
/// title, unless it has an accessible name, and whose value reads as the ring shows it.
///
/// \code
/// auto *rate = new RoundProgressBar(panel);
/// rate->setRange(0, 10 * 1024 * 1024);
/// rate->setFormat("%byte");
/// rate->setTitle(tr("Stream"), smallFont, largeFont, 0.8, true);
/// \endcode
class NOCTURNE_EXPORT RoundProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double value READ value WRITE setValue DESIGNABLE false) // needs a visible widget
    Q_PROPERTY(double nullPosition READ nullPosition WRITE setNullPosition)
    Q_PROPERTY(BarStyle barStyle READ barStyle WRITE setBarStyle)
    Q_PROPERTY(double outlinePenWidth READ outlinePenWidth WRITE setOutlinePenWidth)
    Q_PROPERTY(double dataPenWidth READ dataPenWidth WRITE setDataPenWidth)
    Q_PROPERTY(QString format READ format WRITE setFormat)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)

public:
    enum BarStyle {
        DonutStyle, ///< a ring
        PieStyle,   ///< a full sector
        LineStyle   ///< a thin circle with an arc
    };
    Q_ENUM(BarStyle)

    /// Angles for setNullPosition(), in degrees.
    static int const PositionLeft;
    static int const PositionTop;
    static int const PositionRight;
    static int const PositionBottom;

    /// What a format contains.
    static int const UF_VALUE;
    static int const UF_PERCENT;
    static int const UF_BYTE_PER_SEC;
    static int const UF_CONNECT;

    explicit RoundProgressBar(QWidget *parent = nullptr);
    ~RoundProgressBar() override;

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double value() const { return m_value; }

    /// The angle at which the sector starts: 0 is at 3 o'clock, more goes counter-clockwise. 90 at
    /// first. The sector grows clockwise.
    double nullPosition() const { return m_nullPosition; }
    void setNullPosition(double position);

    BarStyle barStyle() const { return m_barStyle; }
    void setBarStyle(BarStyle style);

    /// The width of the line style's circle, in units. 1 at first. Negative widths are
    /// ignored.
    double outlinePenWidth() const { return m_outlinePenWidth; }
    void setOutlinePenWidth(double width);

    /// The width of the line style's arc, in units. 1 at first. Negative widths are
    /// ignored.
    double dataPenWidth() const { return m_dataPenWidth; }
    void setDataPenWidth(double width);

    /// Colours by position 0 to 1 along the sector. They become the Highlight brush of the
    /// widget's palette, for subclasses that paint with it.
    void setDataColors(const QVector<QPair<double, QColor>> &stops);

    /// The format of the text; "%p%" at first. An empty format shows no text and no title.
    QString format() const { return m_format; }
    void setFormat(const QString &format);
    /// Makes the format empty.
    void resetFormat();

    /// Digits after the decimal point of values and percentages; 1 at first. Negative numbers are
    /// ignored.
    int decimals() const { return m_decimals; }
    void setDecimals(int count);

    /// Sets the title and the fonts of title and value, for the next repaint; the font of the
    /// widget has no part in it. The title font's height in pixels is also the thickness of the
    /// ring. \a titleFactor places title and unit,
    /// in multiples of the value font's height, above and below the value. \a unitMode gives the
    /// unit a line of its own.
    void setTitle(const QString &title, const QFont &titleFont, const QFont &valueFont,
                  double titleFactor, bool unitMode);

    /// \a bytes a second in words, such as "1.5 KB/s". In unit mode the number only; the unit goes
    /// to the unit line.
    QString humanReadableSize(qint64 bytes);

    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Sets the range, exchanged when \a min is the larger, and moves the value into it. A range
    /// of no length shows 0 %. Numbers that are not finite are ignored.
    void setRange(double min, double max);
    void setMinimum(double min);
    void setMaximum(double max);

    /// Sets the value, clamped to the range. Has no effect while the widget is not visible.
    void setValue(double val);
    void setValue(int val);

protected:
    void paintEvent(QPaintEvent *event) override;

    /// The layers of the picture, from the bottom up.
    virtual void drawBackground(QPainter &painter, const QRectF &rect);
    virtual void drawBase(QPainter &painter, const QRectF &baseRect);
    /// \a arcLength is the share of \a value in degrees, 0 to 360.
    virtual void drawValue(QPainter &painter, const QRectF &baseRect, double value,
                           double arcLength);
    virtual void calculateInnerRect(const QRectF &baseRect, double outerRadius, QRectF &innerRect,
                                    double &innerRadius);
    virtual void drawInnerBackground(QPainter &painter, const QRectF &innerRect);
    virtual void drawText(QPainter &painter, const QRectF &innerRect, double innerRadius,
                          double value);
    virtual QString valueToText(double value);
    /// Called when the format or the number of decimals has changed.
    virtual void valueFormatChanged();

    /// Puts the data colours into the palette when they have changed since the last call.
    void rebuildDataBrushIfNeeded();

private:
    friend class Nocturne::RingInterface;

    QString accessibleValue();
    void applyRange(double min, double max);
    void invalidateDataBrush();
    double startAngle() const;
    double share(double value) const;

    double m_minimum = 0.0;
    double m_maximum = 100.0;
    double m_value = 0.0;
    double m_nullPosition = 90.0;
    BarStyle m_barStyle = DonutStyle;
    double m_outlinePenWidth = 1.0;
    double m_dataPenWidth = 1.0;
    QVector<QPair<double, QColor>> m_dataColors;
    bool m_rebuildDataBrush = false;
    QString m_format = QStringLiteral("%p%");
    int m_decimals = 1;
    int m_updateFlags;
    QString m_title;
    QString m_unitText;
    QFont m_titleFont;
    QFont m_valueFont;
    bool m_unitMode = false;
    double m_titleFactor = 0.0;
};

#endif

#ifndef NOCTURNE_GROOVEMAPPING_P_H
#define NOCTURNE_GROOVEMAPPING_P_H

#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

namespace Nocturne {

/// Which value a place along a slider's groove stands for.
///
/// A handle travels between the two ends of the groove and stays inside it, so the values are
/// spread over the groove's length less the handle's.
class GrooveMapping
{
public:
    /// Asks \a style for groove and handle of \a option and measures them along \a axis.
    GrooveMapping(const QStyle *style, const QStyleOptionSlider &option, Qt::Orientation axis,
                  const QWidget *widget)
        : m_minimum(option.minimum)
        , m_maximum(option.maximum)
        , m_upsideDown(option.upsideDown)
    {
        const QRect groove =
            style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, widget);
        const QRect handle =
            style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget);
        const bool horizontal = axis == Qt::Horizontal;
        m_start = horizontal ? groove.x() : groove.y();
        m_handleLength = horizontal ? handle.width() : handle.height();
        m_travel = (horizontal ? groove.width() : groove.height()) - m_handleLength;
    }

    /// The value when the leading edge (left or top) of the handle is at \a pixel.
    int valueAtLeadingEdge(int pixel) const
    {
        return QStyle::sliderValueFromPosition(m_minimum, m_maximum, pixel - m_start, m_travel,
                                               m_upsideDown);
    }

    /// The value when the middle of the handle is at \a pixel.
    int valueAtMiddle(int pixel) const { return valueAtLeadingEdge(pixel - m_handleLength / 2); }

private:
    int m_minimum;
    int m_maximum;
    bool m_upsideDown;
    int m_start;
    int m_handleLength;
    int m_travel;
};

} // namespace Nocturne

#endif

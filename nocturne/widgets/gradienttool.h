#ifndef NOCTURNE_GRADIENTTOOL_H
#define NOCTURNE_GRADIENTTOOL_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QPointer>
#include <QtCore/QScopedPointer>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class QColorDialog;
class GradientToolSlider;

namespace Nocturne {
class Gesture;
class StopGroupInterface;
class StopInterface;
} // namespace Nocturne

/// Edits a colour ramp: a bar that shows the gradient, and a marker below it for each colour stop.
///
/// A press in the bar adds a stop, which follows the pointer until the release. Dragging a marker
/// moves its stop; dragging it well below the widget removes it, as long as two stops remain. A
/// double-click on a marker opens a colour dialog. One stop is always the active one.
///
/// With the focus, Tab and Shift+Tab make one stop after the other the active one, from left to
/// right and back, and then leave the editor. Left and Right move the active stop by a hundredth of
/// the bar, and Delete removes it, as long as two stops remain. To assistive technology each stop
/// is a slider with a name and with its position as the value.
///
/// Stops are numbered in the order in which they were added, from 0. A position is 0.0 at the left
/// end of the bar and 1.0 at the right one.
///
/// \code
/// auto *ramp = new GradientTool(panel);
/// ramp->setRamp({ { 0.0, Qt::black }, { 0.6, Qt::red }, { 1.0, Qt::white } });
/// connect(ramp, &GradientTool::rampChanged, look, [=](double, bool isNewEdit) {
///     look->setLookupTable(ramp->getColorTable(), isNewEdit);
/// });
/// \endcode
class NOCTURNE_EXPORT GradientTool : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int activeSlider READ getActiveSlider WRITE setActiveSlider)
    Q_PROPERTY(QColor initColor MEMBER m_initColor WRITE setInitColor)
    Q_PROPERTY(bool slideUpdate MEMBER m_slideUpdate WRITE setSlideUpdate)

public:
    /// Starts out with white at 0.0, which is active, and black at 1.0.
    explicit GradientTool(QWidget *parent = nullptr);
    /// Deletes the colour dialog along with the markers.
    ~GradientTool() override;

    /// Position and colour of every stop, by number.
    QVector<QPair<double, QColor>> getRamp() const;

    /// Replaces all stops. Positions are clamped to 0.0 to 1.0. Fewer than two stops are ignored.
    /// Emits nothing, and marks no stop as active; the active number stays. A drag goes on with the
    /// stop of the same number, if there still is one.
    void setRamp(const QVector<QPair<double, QColor>> &ramp);

    /// The ramp as 256 opaque colours 0xffRRGGBB, evenly spaced from position 0.0 to 1.0. Beyond
    /// the outermost stops their colours continue.
    QVector<unsigned int> getColorTable() const;

    /// The number of stops; at least 2.
    int getSliderNum() const { return static_cast<int>(m_stops.size()); }

    /// The number of the active stop.
    int getActiveSlider() const { return m_activeIndex; }

    /// Makes a stop the active one and emits opacityValueChange(). Numbers beyond the stops are
    /// clamped.
    void setActiveSlider(int index);

    /// The alpha, 0 to 255, of a stop. Numbers beyond the stops are clamped.
    int getSliderAlpha(int index) const;

    /// The colour of the active stop; invalid when the active number is beyond the stops.
    QColor getCurrentColor() const;
    /// Changes the colour of the active stop, alpha included. Emits nothing.
    void setCurrentColor(const QColor &color);

    /// The dialog that a double-click opens from now on; with null a double-click opens none. The
    /// editor shows the dialog's colours as they change, and deletes it in its destructor, or right
    /// after it while the dialog is open, unless it was replaced before. A dialog that the editor
    /// had made itself is deleted now.
    void setColorChoose(QColorDialog *dialog);

    /// Kept for the host.
    void setInitColor(const QColor &color);

    /// Whether every step of a drag counts as a change of its own (true in rampChanged()). Off at
    /// first.
    void setSlideUpdate(bool update);

    /// Whether the left button went down on the editor and its gesture has not ended since: by the
    /// release, or by whatever takes the pointer away.
    bool isMousePressed() const;

public Q_SLOTS:
    /// Changes the colour of a stop and emits rampChanged(0.0, true). Numbers beyond the stops are
    /// ignored.
    void setSliderColor(int index, QColor col);

    /// Sets the alpha of the active stop, 0 to 255; fractions are cut off. Emits nothing.
    void setAlphaValue(double value);

    /// Sets the opacity of the active stop in percent, 0 to 100. Emits nothing.
    void setOpacity(double value);

    /// Changes the colour of the active stop as a preview, keeps its alpha and emits
    /// rampChanged(0.0, false).
    void colorChange(QColor c);

Q_SIGNALS:
    /// The ramp has changed; the number is always 0.0. The bool is true for a complete step: a
    /// stop was added, a colour assigned or accepted, the first step of a drag, or any step of a
    /// drag while setSlideUpdate() is on. It is false for previews, for what they are undone with,
    /// and for the further steps of a drag. With setSlideUpdate() on, a step of a drag is reported
    /// both ways.
    ///
    /// A press of a key that moves or removes the active stop is a complete step, and so is a
    /// position set by assistive technology. What a held key repeats belongs to its press: false,
    /// unless setSlideUpdate() is on.
    void rampChanged(double value, bool complete);

    /// The left button went down, before the editor reacts to it. A press in the bar adds a stop
    /// and the drag that follows moves it, both of which rampChanged() reports as complete steps; a
    /// host that wants one undo step for the gesture begins it with the first change after this.
    void mousePressed();

    /// A marker was double-clicked; no dialog is open yet.
    void updateSliderColorRequest(int index);

    /// A stop has become the active one; its opacity in percent.
    void opacityValueChange(double value);

    /// A press has grabbed a marker. Always (0.0, false).
    void sliderChanged(double value, bool complete);

protected:
    /// Whether \a a is left of \a b.
    static bool colorRampSort(const QPair<double, GradientToolSlider *> &a,
                              const QPair<double, GradientToolSlider *> &b);

    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

protected Q_SLOTS:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    friend class Nocturne::StopGroupInterface;
    friend class Nocturne::StopInterface;

    using Stop = QPair<double, GradientToolSlider *>;

    void drawBackground();
    QRect bar() const;
    double positionAt(int x) const;
    QRect markerGeometry(double position) const;
    QColor colorAt(double position) const;
    GradientToolSlider *activeMarker() const;
    void addStop(double position, const QColor &color);
    void addStop(double position, const QColor &color, GradientToolSlider *marker);
    static void discard(GradientToolSlider *marker);
    bool isDragging() const;
    bool beginGesture();
    void pressMarker(const QPoint &point);
    void pressBar(const QPoint &point);
    void notifyDragStep();
    void removeActiveStop(bool complete);
    void abandonDrag();
    void activate(int index);
    void takeFocus(Qt::FocusReason reason);
    int numberOf(const GradientToolSlider *marker) const;
    int stopBeside(int index, bool next) const;
    void placeStop(int index, double position);
    void moveStop(int index, double position, bool complete);
    void moveByKey(double step, bool repeated);
    void announceFocus();
    void chooseColor(GradientToolSlider *marker);
    void updateBar();

    QList<Stop> m_stops;
    int m_activeIndex = 0;
    QPointer<QColorDialog> m_colorDialog;
    QScopedPointer<Nocturne::Gesture> m_gesture;
    bool m_ownDialog = true;
    QColor m_initColor = Qt::white;
    bool m_slideUpdate = false;
    QPixmap m_checkerboard;
    bool m_firstChange = true;
    bool m_movedByKey = false; ///< since the focus came or a button was pressed
    double m_verticalFraction = 0.0;
    int m_dragIndex = -1;
};

#endif

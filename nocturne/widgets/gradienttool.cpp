#include "gradienttool.h"

#include "gestureend_p.h"
#include "gradienttoolaccessible_p.h"
#include "gradienttoolslider_p.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QLinearGradient>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QColorDialog>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

constexpr int contentsMargin = 5;
constexpr int markerHeight = 16;
constexpr int markerWidth = 9;
constexpr int markerTip = 4;
constexpr int markerGap = 2;
constexpr int grabMargin = 2;
constexpr int fewestStops = 2;
constexpr double removalFraction = 1.5;
constexpr double alphaPerPercent = 2.55;
constexpr double opaque = 255.0;
constexpr int tableSize = 256;

constexpr int checkSize = 10;
constexpr QRgb checkColor = 0xffd2d2d2;

double boundedPosition(double position)
{
    return qIsNaN(position) ? 0.0 : qBound(0.0, position, 1.0);
}

/// \a from and \a to mixed, \a offset of the \a length between them. Single precision where
/// marked, so that a table is the same on every machine.
double mixed(double from, double to, float offset, double length)
{
    const float difference = static_cast<float>(to - from);
    const float sum = static_cast<float>(from + double(difference * offset) / length);
    return qBound(0.0, double(sum), 1.0);
}

} // namespace

GradientTool::GradientTool(QWidget *parent)
    : QWidget(parent)
    , m_colorDialog(new QColorDialog)
    , m_gesture(new Nocturne::Gesture(this, [this] { abandonDrag(); }))
{
    Nocturne::StopAccessibility::install();
    setMinimumSize(30, 44);
    setFocusPolicy(Qt::StrongFocus);
    addStop(0.0, Qt::white);
    addStop(1.0, Qt::black);
    setActiveSlider(0);
    setContentsMargins(contentsMargin, contentsMargin, contentsMargin, contentsMargin);
    m_colorDialog->setWindowTitle(tr("Select color"));
    connect(m_colorDialog, &QColorDialog::currentColorChanged, this, &GradientTool::colorChange);
    drawBackground();
}

GradientTool::~GradientTool()
{
    if (m_colorDialog && m_colorDialog->isVisible()) {
        // An open dialog may be in the middle of a signal that led here.
        m_colorDialog->hide();
        m_colorDialog->deleteLater();
    } else {
        delete m_colorDialog;
    }
}

QVector<QPair<double, QColor>> GradientTool::getRamp() const
{
    QVector<QPair<double, QColor>> ramp;
    ramp.reserve(m_stops.size());
    for (const Stop &stop : m_stops)
        ramp.append({stop.first, stop.second->color()});
    return ramp;
}

void GradientTool::setRamp(const QVector<QPair<double, QColor>> &ramp)
{
    if (ramp.size() < fewestStops)
        return;
    // A host may write the ramp back at every step of a drag. The marker under the pointer stays
    // then, since it is what gets the rest of the drag.
    GradientToolSlider *dragged =
        isDragging() && m_activeIndex < ramp.size() ? activeMarker() : nullptr;
    const QList<Stop> before = m_stops;
    m_stops.clear();
    for (const auto &entry : ramp) {
        const double position = boundedPosition(entry.first);
        if (dragged && m_stops.size() == m_activeIndex)
            addStop(position, entry.second, dragged);
        else
            addStop(position, entry.second);
    }
    if (!dragged) {
        m_dragIndex = -1;
        m_verticalFraction = 0.0;
    }
    // The new ramp is whole by now: a marker that goes passes the focus on, which is told, and a
    // receiver may set the ramp anew or delete the editor.
    const QPointer<GradientTool> self(this);
    for (const Stop &stop : before) {
        if (self && stop.second != dragged)
            discard(stop.second);
    }
    if (self)
        update();
}

QVector<unsigned int> GradientTool::getColorTable() const
{
    QList<Stop> stops = m_stops;
    std::stable_sort(stops.begin(), stops.end(), colorRampSort);

    QVector<unsigned int> table(tableSize);
    int left = 0;
    for (int i = 0; i < tableSize; ++i) {
        const double t = double(i / 255.0f);
        while (left + 2 < stops.size() && t > stops.at(left + 1).first)
            ++left;
        const Stop &from = stops.at(left);
        const Stop &to = stops.at(left + 1);
        const QColor &fromColor = from.second->color();
        const QColor &toColor = to.second->color();
        if (t <= from.first || t >= to.first) {
            table[i] = (t <= from.first ? fromColor : toColor).rgb();
            continue;
        }
        const float offset = static_cast<float>(t - from.first);
        const double length = to.first - from.first;
        QColor color;
        color.setRedF(mixed(fromColor.redF(), toColor.redF(), offset, length));
        color.setGreenF(mixed(fromColor.greenF(), toColor.greenF(), offset, length));
        color.setBlueF(mixed(fromColor.blueF(), toColor.blueF(), offset, length));
        table[i] = color.rgb();
    }
    return table;
}

void GradientTool::setActiveSlider(int index)
{
    const QPointer<GradientTool> self(this);
    activate(index);
    if (self)
        announceFocus();
}

void GradientTool::activate(int index)
{
    const int active = qBound(0, index, m_stops.size() - 1);
    for (int i = 0; i < m_stops.size(); ++i)
        m_stops.at(i).second->setActive(i == active);
    m_activeIndex = active;
    Q_EMIT opacityValueChange(m_stops.at(active).second->color().alpha() / alphaPerPercent);
}

int GradientTool::getSliderAlpha(int index) const
{
    return m_stops.at(qBound(0, index, m_stops.size() - 1)).second->color().alpha();
}

QColor GradientTool::getCurrentColor() const
{
    const GradientToolSlider *marker = activeMarker();
    return marker ? marker->color() : QColor();
}

void GradientTool::setCurrentColor(const QColor &color)
{
    if (GradientToolSlider *marker = activeMarker()) {
        marker->setColor(color);
        updateBar();
    }
}

void GradientTool::setColorChoose(QColorDialog *dialog)
{
    if (dialog == m_colorDialog)
        return;
    if (m_colorDialog) {
        disconnect(m_colorDialog, &QColorDialog::currentColorChanged, this,
                   &GradientTool::colorChange);
        if (m_ownDialog)
            m_colorDialog->deleteLater();
    }
    m_colorDialog = dialog;
    m_ownDialog = false;
    if (m_colorDialog)
        connect(m_colorDialog, &QColorDialog::currentColorChanged, this,
                &GradientTool::colorChange);
}

void GradientTool::setInitColor(const QColor &color)
{
    m_initColor = color;
}

void GradientTool::setSlideUpdate(bool update)
{
    m_slideUpdate = update;
}

bool GradientTool::isMousePressed() const
{
    return m_gesture->isRunning();
}

void GradientTool::setSliderColor(int index, QColor col)
{
    if (index < 0 || index >= m_stops.size())
        return;
    m_stops.at(index).second->setColor(col);
    updateBar();
    Q_EMIT rampChanged(0.0, true);
}

void GradientTool::setAlphaValue(double value)
{
    GradientToolSlider *marker = activeMarker();
    if (!marker || !qIsFinite(value))
        return;
    QColor color = marker->color();
    color.setAlpha(int(qBound(0.0, value, opaque)));
    setCurrentColor(color);
}

void GradientTool::setOpacity(double value)
{
    if (qIsFinite(value))
        setAlphaValue(qRound(qBound(0.0, value, 100.0) * opaque / 100.0));
}

void GradientTool::colorChange(QColor c)
{
    GradientToolSlider *marker = activeMarker();
    if (!marker)
        return;
    c.setAlpha(marker->color().alpha());
    marker->setColor(c);
    updateBar();
    Q_EMIT rampChanged(0.0, false);
}

bool GradientTool::colorRampSort(const QPair<double, GradientToolSlider *> &a,
                                 const QPair<double, GradientToolSlider *> &b)
{
    return a.first < b.first;
}

void GradientTool::drawBackground()
{
    QPixmap tile(2 * checkSize, 2 * checkSize);
    tile.fill(Qt::white);
    QPainter tilePainter(&tile);
    tilePainter.fillRect(0, 0, checkSize, checkSize, QColor(checkColor));
    tilePainter.fillRect(checkSize, checkSize, checkSize, checkSize, QColor(checkColor));
    tilePainter.end();

    m_checkerboard = QPixmap(4 * checkSize, 4 * checkSize);
    QPainter painter(&m_checkerboard);
    painter.fillRect(m_checkerboard.rect(), QBrush(tile));
}

QRect GradientTool::bar() const
{
    return contentsRect().adjusted(0, 0, 0, -markerHeight);
}

double GradientTool::positionAt(int x) const
{
    const QRect area = bar();
    return double(x - area.left()) / area.width();
}

QRect GradientTool::markerGeometry(double position) const
{
    const QRect area = bar();
    return QRect(int((area.left() - markerTip) + area.width() * position),
                 area.bottom() + markerGap, markerWidth, markerHeight);
}

/// The colour between the nearest stops on either side of \a position; a stop that lies exactly
/// there takes no part.
QColor GradientTool::colorAt(double position) const
{
    if (m_stops.isEmpty())
        return QColor();
    if (m_stops.size() == 1)
        return m_stops.first().second->color();

    double lower = -1.0;
    double upper = 2.0;
    QColor lowerColor;
    QColor upperColor;
    for (const Stop &stop : m_stops) {
        if (stop.first > lower && position > stop.first) {
            lower = stop.first;
            lowerColor = stop.second->color();
        }
        if (upper > stop.first && stop.first > position) {
            upper = stop.first;
            upperColor = stop.second->color();
        }
    }
    if (lower < 0.0)
        return upperColor;
    if (upper > 1.0)
        return lowerColor;

    const double share = (position - lower) / (upper - lower);
    const auto mix = [share](double from, double to) { return from + (to - from) * share; };
    return QColor::fromRgbF(
        mix(lowerColor.redF(), upperColor.redF()), mix(lowerColor.greenF(), upperColor.greenF()),
        mix(lowerColor.blueF(), upperColor.blueF()), mix(lowerColor.alphaF(), upperColor.alphaF()));
}

GradientToolSlider *GradientTool::activeMarker() const
{
    if (m_activeIndex < 0 || m_activeIndex >= m_stops.size())
        return nullptr;
    return m_stops.at(m_activeIndex).second;
}

void GradientTool::addStop(double position, const QColor &color)
{
    addStop(position, color, new GradientToolSlider(this, color));
}

void GradientTool::addStop(double position, const QColor &color, GradientToolSlider *marker)
{
    m_stops.append({position, marker});
    marker->setColor(color);
    marker->setActive(false);
    marker->setGeometry(markerGeometry(position));
    marker->raise();
    marker->show();
}

/// Later, since a marker's own event may be on its way.
void GradientTool::discard(GradientToolSlider *marker)
{
    marker->hide();
    marker->deleteLater();
}

bool GradientTool::isDragging() const
{
    return isMousePressed() && m_dragIndex != -1;
}

/// Repaints the bar, but none of the markers below it.
void GradientTool::updateBar()
{
    update(bar().adjusted(0, 0, 1, 1));
}

void GradientTool::paintEvent(QPaintEvent *event)
{
    const QRect area = bar();
    QPainter painter(this);
    painter.drawTiledPixmap(contentsMargin, contentsMargin, area.width(), area.height(),
                            m_checkerboard);
    painter.setPen(Qt::black);

    QLinearGradient gradient(area.left(), 0.0, area.left() + area.width() - 1, 0.0);
    for (const Stop &stop : std::as_const(m_stops))
        gradient.setColorAt(stop.first, stop.second->color());
    painter.fillRect(area, gradient);
    painter.drawRect(area);
    painter.end();

    QWidget::paintEvent(event);
}

void GradientTool::resizeEvent(QResizeEvent *)
{
    for (const Stop &stop : std::as_const(m_stops))
        stop.second->setGeometry(markerGeometry(stop.first));
}

void GradientTool::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (!beginGesture())
        return;
    if (bar().contains(event->pos(), true))
        pressBar(event->pos());
    else
        pressMarker(event->pos());
}

/// Returns whether the gesture has survived the receivers of mousePressed().
bool GradientTool::beginGesture()
{
    abandonDrag(); // The last release may have gone elsewhere.
    m_movedByKey = false;
    m_firstChange = true;
    m_gesture->press(Qt::LeftButton);
    const QPointer<GradientTool> self(this);
    Q_EMIT mousePressed();
    return self && isMousePressed();
}

void GradientTool::pressMarker(const QPoint &point)
{
    m_dragIndex = -1;
    for (int i = 0; i < m_stops.size(); ++i) {
        const QRect grabArea = m_stops.at(i).second->geometry().adjusted(-grabMargin, -grabMargin,
                                                                         grabMargin, grabMargin);
        if (!grabArea.contains(point))
            continue;
        m_dragIndex = i;
        const QPointer<GradientTool> self(this);
        setActiveSlider(i);
        if (self)
            Q_EMIT sliderChanged(0.0, false);
        return;
    }
}

void GradientTool::pressBar(const QPoint &point)
{
    const double position = positionAt(point.x());
    addStop(position, colorAt(position));
    m_dragIndex = m_stops.size() - 1;
    updateBar();
    const QPointer<GradientTool> self(this);
    setActiveSlider(m_dragIndex);
    if (self)
        Q_EMIT rampChanged(0.0, true);
}

void GradientTool::mouseMoveEvent(QMouseEvent *event)
{
    if (!isDragging() || !(event->buttons() & Qt::LeftButton))
        return;
    GradientToolSlider *marker = activeMarker();
    const QRect area = contentsRect();
    if (!marker || bar().width() <= 0 || area.height() <= 0)
        return;

    m_verticalFraction = double(event->pos().y() - area.top()) / area.height();
    if (m_stops.size() > fewestStops)
        marker->setPainted(m_verticalFraction <= removalFraction);

    const QPointer<GradientTool> self(this);
    const double position = positionAt(event->pos().x());
    if (position >= 0.0 && position <= 1.0) {
        placeStop(m_activeIndex, position);
        if (m_slideUpdate)
            Q_EMIT rampChanged(0.0, true);
    }
    if (self)
        notifyDragStep();
    if (self)
        updateBar();
}

void GradientTool::notifyDragStep()
{
    if (!isMousePressed())
        return; // A receiver has ended the drag.
    const bool first = m_firstChange;
    m_firstChange = false;
    Q_EMIT rampChanged(0.0, first);
}

void GradientTool::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<GradientTool> self(this);
    if (m_stops.size() > fewestStops && m_verticalFraction > removalFraction)
        removeActiveStop(m_firstChange);
    if (!self)
        return;
    m_verticalFraction = 0.0;
    m_firstChange = false;
    m_gesture->end();
    update();
}

void GradientTool::removeActiveStop(bool complete)
{
    if (!activeMarker())
        return;
    discard(m_stops.takeAt(m_activeIndex).second);
    m_dragIndex = -1;

    const QPointer<GradientTool> self(this);
    setActiveSlider(0);
    if (self)
        Q_EMIT rampChanged(0.0, complete);
}

int GradientTool::numberOf(const GradientToolSlider *marker) const
{
    const auto stop = std::find_if(m_stops.begin(), m_stops.end(),
                                   [marker](const Stop &s) { return s.second == marker; });
    return stop == m_stops.end() ? -1 : int(stop - m_stops.begin());
}

/// The stop to the right of \a index, or to its left; -1 beyond the last one. From no stop, -1, it
/// goes to the one at the end.
int GradientTool::stopBeside(int index, bool next) const
{
    QVector<int> order(m_stops.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [this](int a, int b) { return colorRampSort(m_stops.at(a), m_stops.at(b)); });
    if (!next)
        std::reverse(order.begin(), order.end());
    return order.value(order.indexOf(index) + 1, -1);
}

void GradientTool::placeStop(int index, double position)
{
    Stop &stop = m_stops[index];
    stop.first = position;
    stop.second->setGeometry(markerGeometry(position));
    if (QAccessible::isActive())
        Nocturne::StopAccessibility::moved(stop.second, position);
}

/// Moves a stop other than by a drag.
void GradientTool::moveStop(int index, double position, bool complete)
{
    const double bounded = boundedPosition(position);
    if (index < 0 || bounded == m_stops.at(index).first)
        return;
    placeStop(index, bounded);
    updateBar();
    Q_EMIT rampChanged(0.0, complete);
}

void GradientTool::moveByKey(double step, bool repeated)
{
    const bool continued = repeated && m_movedByKey && !m_slideUpdate;
    m_movedByKey = true;
    // Rounded, so that a hundred steps lead from one end exactly to the other.
    const double position = m_stops.at(m_activeIndex).first + step;
    moveStop(m_activeIndex, std::round(position * 10000.0) / 10000.0, !continued);
}

void GradientTool::keyPressEvent(QKeyEvent *event)
{
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!plain || isMousePressed() || !activeMarker()) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        moveByKey(-Nocturne::stopKeyStep, event->isAutoRepeat());
        break;
    case Qt::Key_Right:
        moveByKey(Nocturne::stopKeyStep, event->isAutoRepeat());
        break;
    case Qt::Key_Delete:
        if (m_stops.size() > fewestStops && !event->isAutoRepeat())
            removeActiveStop(true);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

/// Tab and Shift+Tab go from stop to stop. Only as keys: the toolkit also looks for the next focus
/// when the editor is hidden or disabled, and that is elsewhere.
bool GradientTool::event(QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        // The toolkit is done with the event before anybody hears of another stop.
        const bool result = QWidget::event(event);
        takeFocus(static_cast<const QFocusEvent *>(event)->reason());
        return result;
    }
    if (event->type() == QEvent::KeyPress && !isDragging()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool shift = key->modifiers() & Qt::ShiftModifier;
        const bool back = key->key() == Qt::Key_Backtab || (key->key() == Qt::Key_Tab && shift);
        const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        if (plain && (back || key->key() == Qt::Key_Tab)) {
            const int stop = stopBeside(m_activeIndex, !back);
            if (stop >= 0) {
                event->accept();
                setActiveSlider(stop);
                return true;
            }
        }
    }
    return QWidget::event(event);
}

void GradientTool::takeFocus(Qt::FocusReason reason)
{
    const QPointer<GradientTool> self(this);
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        activate(stopBeside(-1, reason == Qt::TabFocusReason));
    // Later, since the toolkit itself names the editor as the focus after this event.
    if (self && QAccessible::isActive())
        QMetaObject::invokeMethod(this, &GradientTool::announceFocus, Qt::QueuedConnection);
}

void GradientTool::focusOutEvent(QFocusEvent *event)
{
    m_movedByKey = false;
    QWidget::focusOutEvent(event);
}

void GradientTool::announceFocus()
{
    if (QAccessible::isActive() && hasFocus() && activeMarker())
        Nocturne::StopAccessibility::focused(activeMarker());
}

void GradientTool::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Without a dialog, the second press of a double-click may go over into a drag of what the
    // first one has grabbed.
    const int grabbed = m_dragIndex;
    if (!beginGesture())
        return;
    m_dragIndex = grabbed;
    for (int i = 0; i < m_stops.size(); ++i) {
        const QPointer<GradientToolSlider> marker(m_stops.at(i).second);
        if (!marker->geometry().contains(event->pos(), true))
            continue;
        m_dragIndex = i;
        const QPointer<GradientTool> self(this);
        Q_EMIT updateSliderColorRequest(i);
        if (self)
            setActiveSlider(i);
        if (self && marker && m_colorDialog)
            chooseColor(marker);
        return;
    }
}

/// The dialog may stay open for long: the editor, the stop or the dialog may be gone afterwards.
void GradientTool::chooseColor(GradientToolSlider *target)
{
    const QPointer<GradientTool> self(this);
    const QPointer<GradientToolSlider> marker(target);
    const QPointer<QColorDialog> dialog(m_colorDialog);
    const QColor before = marker->color();
    abandonDrag(); // The dialog gets the release.
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!self || !marker)
        return;

    marker->setColor(before);
    updateBar();
    Q_EMIT rampChanged(0.0, false);
    if (!accepted || !self || !marker || !dialog)
        return;

    QColor chosen = dialog->selectedColor();
    chosen.setAlpha(before.alpha());
    marker->setColor(chosen);
    updateBar();
    Q_EMIT rampChanged(0.0, true);
}

/// A drag that no release will end keeps its stop.
void GradientTool::abandonDrag()
{
    m_gesture->end();
    m_firstChange = false;
    m_dragIndex = -1;
    m_verticalFraction = 0.0;
    if (GradientToolSlider *marker = activeMarker())
        marker->setPainted(true);
}

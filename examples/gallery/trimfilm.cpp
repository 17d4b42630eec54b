#include "trimfilm.h"

#include "gallerypage.h"

#include <nocturne/RangeSlider>

#include <QtCore/QDir>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

constexpr int filmedWidth = 640;
constexpr int framesOfAMove = 16;
constexpr int framesOfARest = 6;

/// The rectangle in which two pictures of one size differ.
QRect difference(const QImage &before, const QImage &now)
{
    QRect changed;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            if (before.pixel(x, y) != now.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

class Film
{
public:
    Film(QWidget *scene, RangeSlider *slider, const QDir &directory)
        : m_scene(scene)
        , m_slider(slider)
        , m_directory(directory)
        , m_pointer(scene->width() / 2.0, scene->height() - 4.0)
    {}

    /// Goes to the handle at \a from, and drags it to \a to.
    void drag(int from, int to)
    {
        travel(pointOf(from), Qt::NoButton);
        send(QEvent::MouseButtonPress, Qt::LeftButton);
        travel(pointOf(to), Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::NoButton);
        rest();
    }

    void rest()
    {
        for (int i = 0; i < framesOfARest; ++i)
            shoot();
    }

    bool isWritten() const { return m_isWritten; }

private:
    /// Where the handle of a value is, in the scene.
    QPointF pointOf(int value) const
    {
        const int handle =
            m_slider->style()->pixelMetric(QStyle::PM_SliderLength, nullptr, m_slider);
        const int x = QStyle::sliderPositionFromValue(m_slider->minimum(), m_slider->maximum(),
                                                      value, m_slider->width() - handle);
        return m_slider->mapTo(m_scene, QPoint(x + handle / 2, m_slider->height() / 2));
    }

    /// Slow at both ends, like a hand.
    void travel(const QPointF &target, Qt::MouseButtons buttons)
    {
        const QPointF start = m_pointer;
        for (int i = 1; i <= framesOfAMove; ++i) {
            const double share = (1.0 - std::cos(i * M_PI / framesOfAMove)) / 2.0;
            m_pointer = start + share * (target - start);
            send(QEvent::MouseMove, buttons);
            shoot();
        }
    }

    void send(QEvent::Type type, Qt::MouseButtons buttons)
    {
        const QPoint point = m_slider->mapFrom(m_scene, m_pointer.toPoint());
        QMouseEvent event(type, point, m_slider->mapToGlobal(point),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_slider, &event);
    }

    void shoot()
    {
        QCoreApplication::processEvents();
        QImage frame = m_scene->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QPainter painter(&frame);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(m_pointer);
        QPainterPath arrow;
        arrow.addPolygon(
            QPolygonF({{0, 0}, {0, 15}, {4, 11}, {7, 17}, {9, 16}, {6, 10}, {11, 10}}));
        arrow.closeSubpath();
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(Qt::white);
        painter.drawPath(arrow);
        painter.end();

        QRect changed = m_before.isNull() ? frame.rect() : difference(m_before, frame);
        if (changed.isEmpty())
            changed = QRect(0, 0, 1, 1); // it lasts longer
        const QString name = QStringLiteral("frame-%1+%2+%3.png")
                                 .arg(m_count++, 3, 10, QLatin1Char('0'))
                                 .arg(changed.x())
                                 .arg(changed.y());
        m_isWritten = m_isWritten && frame.copy(changed).save(m_directory.filePath(name));
        m_before = frame;
    }

    QWidget *m_scene;
    RangeSlider *m_slider;
    QDir m_directory;
    QPointF m_pointer;
    QImage m_before;
    int m_count = 0;
    bool m_isWritten = true;
};

} // namespace

bool filmTrim(const QString &directory)
{
    std::unique_ptr<QWidget> page;
    for (const GalleryPage &known : galleryPages()) {
        if (qstrcmp(known.name, "ranges") == 0)
            page.reset(known.create(nullptr));
    }
    auto *slider = page ? page->findChild<RangeSlider *>() : nullptr;
    auto *scene = slider ? qobject_cast<QGroupBox *>(slider->parentWidget()) : nullptr;
    if (!scene || !QDir().mkpath(directory)) {
        std::fprintf(stderr, "cannot film into %s\n", qPrintable(directory));
        return false;
    }
    scene->findChild<QPushButton *>()->setChecked(false); // the pointer moves the play-head here
    scene->setParent(nullptr);
    const std::unique_ptr<QWidget> owner(scene);
    scene->resize(filmedWidth, scene->sizeHint().height());
    scene->show();

    Film film(scene, slider, QDir(directory));
    film.rest();
    film.drag(slider->minimumValue(), 430);
    film.drag(slider->maximumValue(), 1020);
    film.drag(slider->mainValue(), 900);
    film.rest();
    film.rest();
    return film.isWritten();
}

#include "keyboardwalk.h"

#include "galleryface.h"
#include "gallerypage.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

#include <cstdio>

namespace {

constexpr QSize smallestPage(900, 600);
constexpr QSize frameSize(240, 110); ///< of one picture of the strip
constexpr int columns = 5;
constexpr int framesFromPage = 2; ///< first and middle step of a page
constexpr int mostSteps = 300;    ///< on one page

void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *target = QApplication::focusWidget();
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers,
                        key == Qt::Key_Tab ? QStringLiteral("\t") : QString());
        QCoreApplication::sendEvent(target, &event);
    }
    QCoreApplication::processEvents();
}

/// Whether hiding the focus frame changes the picture.
bool isMarked(QWidget *page, const QWidget *focus)
{
    auto *frame = page->findChild<QFocusFrame *>();
    if (!frame || !frame->isVisible() || !frame->widget())
        return false;
    if (frame->widget() != focus && !frame->widget()->isAncestorOf(focus))
        return false;
    const QImage with = page->grab().toImage();
    frame->hide();
    const QImage without = page->grab().toImage();
    frame->show();
    return with != without;
}

QImage closeUp(QWidget *page, const QWidget *focus)
{
    const QRect place(focus->mapTo(page, QPoint()), focus->size());
    QRect view(QPoint(), frameSize);
    view.moveCenter(place.center());
    view.moveLeft(qBound(0, qMin(view.left(), place.left() - 10), page->width() - view.width()));
    view.moveTop(qBound(0, qMin(view.top(), place.top() - 10), page->height() - view.height()));
    return page->grab(view).toImage();
}

/// Appends the steps of one page; returns how many of them don't show.
int walk(const GalleryPage &page, QVector<QImage> *frames)
{
    QWidget window;
    QVBoxLayout layout(&window);
    layout.setContentsMargins(4, 4, 4, 4);
    layout.addWidget(page.create(&window));
    window.resize(window.sizeHint().expandedTo(smallestPage));
    window.show();
    QApplication::setActiveWindow(&window);
    window.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();

    int unmarked = 0;
    QVector<QImage> steps;
    QVector<QWidget *> visited;
    for (int i = 0; i < mostSteps && QApplication::focusWidget(); ++i) {
        QWidget *before = QApplication::focusWidget();
        press(Qt::Key_Tab);
        if (QApplication::focusWidget() == before)
            press(Qt::Key_Tab, Qt::ControlModifier); // out of a text that takes tabs
        QWidget *focus = QApplication::focusWidget();
        if (!focus || focus->isWindow() || visited.contains(focus))
            break;
        visited << focus;
        if (focus->style() != QApplication::style())
            continue; // shows a look of its own
        if (!isMarked(&window, focus)) {
            std::fprintf(stderr, "%s: the focus does not show on a %s\n", page.name,
                         focus->metaObject()->className());
            ++unmarked;
        }
        steps << closeUp(&window, focus);
    }
    std::printf("%s: %d steps\n", page.name, int(steps.size()));
    for (int i = 0; i < qMin(framesFromPage, int(steps.size())); ++i)
        *frames << steps.at(i * int(steps.size()) / framesFromPage);
    return unmarked;
}

} // namespace

bool filmKeyboardWalk(const QString &file)
{
    showGalleryFace(GalleryFace::Readable);
    int unmarked = 0;
    QVector<QImage> frames;
    for (const GalleryPage &page : galleryPages())
        unmarked += walk(page, &frames);

    frames.resize(frames.size() / columns * columns);
    const int rows = int(frames.size()) / columns;
    const QSize cell = frameSize + QSize(4, 4);
    QImage strip(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
    strip.fill(Qt::black);
    QPainter painter(&strip);
    for (int i = 0; i < frames.size(); ++i) {
        painter.drawImage(i % columns * cell.width() + 2, i / columns * cell.height() + 2,
                          frames.at(i));
    }
    painter.end();
    if (!strip.save(file)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        return false;
    }
    return unmarked == 0;
}

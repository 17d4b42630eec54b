#ifndef NOCTURNE_SPLITTERHANDLE_H
#define NOCTURNE_SPLITTERHANDLE_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QSplitterHandle>

/// The plain handle of a Splitter, which says when it is pressed and released.
///
/// Created and owned by its splitter; reach it through QSplitter::handle(). A handle that carries
/// widgets of its own, such as a button, shows the arrow as long as the pointer is over it. See
/// Splitter for an example.
///
/// \code
/// auto *handle = qobject_cast<SplitterHandle *>(splitter->handle(1));
/// connect(handle, &SplitterHandle::handlePressed, preview, &Preview::freeze);
/// \endcode
class NOCTURNE_EXPORT SplitterHandle : public QSplitterHandle
{
    Q_OBJECT

public:
    /// A handle of \a parent, which must not be null.
    SplitterHandle(Qt::Orientation orientation, QSplitter *parent);

Q_SIGNALS:
    /// A mouse button went down on the handle; emitted before the drag starts.
    void handlePressed();
    /// A mouse button was released; emitted before the splitter ends the drag.
    void handleReleased();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_pressed = false;
};

#endif

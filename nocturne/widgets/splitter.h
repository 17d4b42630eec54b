#ifndef NOCTURNE_SPLITTER_H
#define NOCTURNE_SPLITTER_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QSplitter>

/// A splitter whose handles are SplitterHandle objects, which say when they are taken and let go.
///
/// The splitter owns its handles and the widgets added to it.
///
/// \code
/// auto *splitter = new Splitter(parent);
/// splitter->addWidget(browser);
/// splitter->addWidget(timeline);
/// auto *handle = qobject_cast<SplitterHandle *>(splitter->handle(1));
/// connect(handle, &SplitterHandle::handleReleased, this, &Window::saveLayout);
/// \endcode
class NOCTURNE_EXPORT Splitter : public QSplitter
{
    Q_OBJECT

public:
    /// A horizontal splitter; turn it with setOrientation().
    explicit Splitter(QWidget *parent = nullptr);

protected:
    QSplitterHandle *createHandle() override;
    /// Paints nothing; the handles paint themselves.
    void paintEvent(QPaintEvent *event) override;
};

#endif

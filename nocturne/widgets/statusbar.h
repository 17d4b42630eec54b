#ifndef NOCTURNE_STATUSBAR_H
#define NOCTURNE_STATUSBAR_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QStatusBar>

/// A status bar on a soft vertical gradient of the theme's window colour.
///
/// Only the background is painted: the text of showMessage() is reported by messageChanged() but
/// not drawn. Add a label to show texts.
///
/// \code
/// auto *bar = new StatusBar;
/// bar->addWidget(new QLabel(tr("On air")));
/// window->setStatusBar(bar); // owned by the window from here on
/// \endcode
class NOCTURNE_EXPORT StatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

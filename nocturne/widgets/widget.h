#ifndef NOCTURNE_WIDGET_H
#define NOCTURNE_WIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QWidget>

/// A plain surface in the theme's window colour, whatever its own palette says.
///
/// \code
/// auto *page = new Widget(parent);
/// auto *layout = new QVBoxLayout(page);
/// \endcode
class NOCTURNE_EXPORT Widget : public QWidget
{
    Q_OBJECT

public:
    explicit Widget(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

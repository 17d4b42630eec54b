#ifndef NOCTURNE_CLICKABLELABEL_H
#define NOCTURNE_CLICKABLELABEL_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QLabel>

/// A label that says when it is pressed.
///
/// \code
/// auto *name = new ClickableLabel(parent);
/// name->setText(tr("Camera 1"));
/// connect(name, &ClickableLabel::clicked, this, &Panel::rename);
/// \endcode
class NOCTURNE_EXPORT ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    /// The label always has the default window flags; \a f has no effect.
    explicit ClickableLabel(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());

Q_SIGNALS:
    /// A mouse button, whichever, went down on the label. Releasing it emits nothing.
    void clicked();

protected:
    /// Emits clicked(); links and selectable text in the label do not get the press.
    void mousePressEvent(QMouseEvent *event) override;
};

#endif

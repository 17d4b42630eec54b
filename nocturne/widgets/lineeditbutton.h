#ifndef NOCTURNE_LINEEDITBUTTON_H
#define NOCTURNE_LINEEDITBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QLabel>

/// A picture to press inside a text field, with the tool tip "Clear".
///
/// The picture is read from ":/resources/icons/deleffect.png", which the host puts among its
/// resources; the library has none there. The button has the picture's size, 0 by 0 without it.
///
/// \code
/// auto *button = new LineEditButton;
/// button->setParent(field);
/// connect(button, &LineEditButton::clicked, field, &QLineEdit::clear);
/// \endcode
class NOCTURNE_EXPORT LineEditButton : public QLabel
{
    Q_OBJECT

public:
    LineEditButton();
    ~LineEditButton() override;

Q_SIGNALS:
    /// The button was pressed with the left mouse button.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
};

#endif

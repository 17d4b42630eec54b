#ifndef NOCTURNE_RADIOBUTTON_H
#define NOCTURNE_RADIOBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QRadioButton>

/// A radio button drawn flat: a dark square, a blue dot while it is on, and the caption.
///
/// It looks like a CheckBox and behaves like a radio button. The
/// caption is drawn as it stands, ampersands included; an icon is not drawn.
///
/// \code
/// auto *cut = new RadioButton(parent);
/// cut->setText(tr("Cut"));
/// \endcode
class NOCTURNE_EXPORT RadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit RadioButton(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

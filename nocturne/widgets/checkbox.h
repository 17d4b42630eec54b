#ifndef NOCTURNE_CHECKBOX_H
#define NOCTURNE_CHECKBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QCheckBox>

/// A check box drawn flat: a dark square, a blue dot while it is on, and the caption.
///
/// It looks like a RadioButton. A partially checked box shows an empty square. The
/// caption is drawn as it stands, ampersands included; an icon is not drawn.
///
/// \code
/// auto *loop = new CheckBox(parent);
/// loop->setText(tr("Loop"));
/// \endcode
class NOCTURNE_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

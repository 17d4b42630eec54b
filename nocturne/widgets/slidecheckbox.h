#ifndef NOCTURNE_SLIDECHECKBOX_H
#define NOCTURNE_SLIDECHECKBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QCheckBox>

/// An on/off switch: a white knob at the right end of a blue track, or at the left end of a grey
/// one, with the state beside it.
///
/// The switch fills the widget, on black, and has no caption; its text is 28 pixels high. Give it
/// a fixed size of about 120 by 34.
///
/// \code
/// auto *power = new SlideCheckBox(parent);
/// power->setFixedSize(120, 34);
/// \endcode
class NOCTURNE_EXPORT SlideCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit SlideCheckBox(QWidget *parent = nullptr);

protected:
    /// The switch can be clicked all over.
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
};

#endif

#ifndef NOCTURNE_GROUPBOX_H
#define NOCTURNE_GROUPBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QGroupBox>

/// A group box without a frame: a title line, with a flat check square before it when checkable.
///
/// The title stands 25 pixels from the left (from the right in a right-to-left layout) in a field
/// 100 pixels wide and 25 high, whether the box is checkable or not; what does not fit is cut off.
/// It is drawn as it stands, ampersands included. Leave about 31 pixels at the top of the layout.
///
/// \code
/// auto *group = new GroupBox(parent);
/// group->setTitle(tr("Key"));
/// group->setCheckable(true);
/// \endcode
class NOCTURNE_EXPORT GroupBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit GroupBox(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool mouseEvent(QMouseEvent *event);
};

#endif

#ifndef NOCTURNE_LINEEDIT_H
#define NOCTURNE_LINEEDIT_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QLineEdit>

/// A line edit on a dark rounded field with a light lower edge and no frame.
///
/// Text, cursor and selection are those of the toolkit. The field shows under a style that paints
/// nothing behind a line edit without a frame, as the theme's style does.
///
/// \code
/// auto *name = new LineEdit(parent);
/// name->setPlaceholderText(tr("Clip name"));
/// \endcode
class NOCTURNE_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

#ifndef NOCTURNE_COLORTOOLBUTTON_H
#define NOCTURNE_COLORTOOLBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QToolButton>

/// A tool button for colours: a class of its own for style sheets and searches, and otherwise a
/// plain tool button.
///
/// \code
/// auto *fill = new ColorToolButton(toolBar);
/// fill->setDefaultAction(fillAction);
/// \endcode
class NOCTURNE_EXPORT ColorToolButton : public QToolButton
{
    Q_OBJECT

public:
    explicit ColorToolButton(QWidget *parent = nullptr);
    ~ColorToolButton() override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

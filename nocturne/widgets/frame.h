#ifndef NOCTURNE_FRAME_H
#define NOCTURNE_FRAME_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QFrame>

/// A panel or a rule in the theme's colours, chosen by frame shape and shadow.
///
/// - Box: a black outline without a background.
/// - HLine: a soft black line along the top.
/// - any other shape, Plain (the default): a darker field with a black outline and a light lower
///   edge.
/// - any other shape, Raised: a bar that shades off downwards under a light upper edge.
/// - any other shape, Sunken: a gentle gradient without an outline.
///
/// \code
/// auto *toolStrip = new Frame(parent);
/// toolStrip->setFrameShadow(QFrame::Raised);
/// \endcode
class NOCTURNE_EXPORT Frame : public QFrame
{
    Q_OBJECT

public:
    /// Without a frame shape and with a plain shadow.
    explicit Frame(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif

#ifndef NOCTURNE_PROGRESSBAR_H
#define NOCTURNE_PROGRESSBAR_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QProgressBar>

/// A progress bar drawn as a dark rounded groove with a soft, glowing blue bar and no text.
///
/// The bar's length is value / maximum of the width, whatever the minimum; with a maximum of 0 or
/// less there is no bar. The orientation, the text and the inverted appearance of the base class
/// have no effect on the picture.
///
/// \code
/// auto *upload = new ProgressBar(panel);
/// upload->setRange(0, 100);
/// upload->setValue(40);
/// \endcode
class NOCTURNE_EXPORT ProgressBar : public QProgressBar
{
    Q_OBJECT
    Q_PROPERTY(bool fullSize MEMBER m_fullSize WRITE setFullSize)

public:
    explicit ProgressBar(QWidget *parent = nullptr);
    ~ProgressBar() override;

    /// Fills the whole widget with the bar, without the groove. Off at first; shown by the next
    /// repaint.
    void setFullSize(bool fullSize);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void render();
    void renderFull();
    QRectF filledPart(const QRectF &whole) const;

    bool m_fullSize = false;
};

#endif

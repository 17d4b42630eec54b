#ifndef MONITOR_H
#define MONITOR_H

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

/// Shows a picture as large as the widget. Made to be held by a LetterBoxWidget.
class Monitor : public QWidget
{
    Q_OBJECT

public:
    explicit Monitor(QWidget *parent = nullptr);

    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
};

#endif

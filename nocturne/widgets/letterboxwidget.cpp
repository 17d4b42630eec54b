#include "letterboxwidget.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtCore/QChildEvent>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>

#include <limits>

namespace {

constexpr int backgroundShade = -10;

}

LetterBoxWidget::LetterBoxWidget(QWidget *parent)
    : QFrame(parent)
{
    setFrameStyle(QFrame::StyledPanel);
    enableBackground();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LetterBoxWidget::resizeWidget);
}

LetterBoxWidget::~LetterBoxWidget() = default;

void LetterBoxWidget::setWidget(QWidget *w)
{
    if (m_widget && m_widget != w)
        m_widget->deleteLater();
    m_widget = w;
    if (m_widget) {
        m_widget->setParent(this);
        resizeWidget();
    }
}

void LetterBoxWidget::setMargin(int margin)
{
    if (margin == m_margin)
        return;
    m_margin = margin;
    resizeWidget();
}

void LetterBoxWidget::setResizeDelay(unsigned int ms)
{
    constexpr unsigned int longest = std::numeric_limits<int>::max();
    m_timer.setInterval(int(qMin(ms, longest)));
}

void LetterBoxWidget::resizeWidget()
{
    if (!m_widget)
        return;
    const QSize ratio = m_widget->sizeIncrement();
    QSize fitting = ratio.isEmpty() ? size() : ratio.scaled(size(), Qt::KeepAspectRatio);
    const int margin = qBound(-QWIDGETSIZE_MAX, m_margin, QWIDGETSIZE_MAX);
    fitting -= QSize(2 * margin, 2 * margin);
    fitting = QLayout::closestAcceptableSize(m_widget, fitting).expandedTo(QSize(0, 0));
    m_widget->setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, fitting, rect()));
}

void LetterBoxWidget::enableBackground()
{
    setBackgroundColor(Nocturne::ThemePaint::window(backgroundShade));
}

void LetterBoxWidget::setBackgroundColor(const QColor &color)
{
    QPalette changed = palette();
    changed.setBrush(QPalette::Window, color);
    setPalette(changed);
    setAutoFillBackground(true);
}

QColor LetterBoxWidget::backgroundColor() const
{
    return palette().color(QPalette::Window);
}

void LetterBoxWidget::clearBackgroundColor()
{
    setBackgroundColor(QColor());
    setAutoFillBackground(false);
}

QSize LetterBoxWidget::sizeHint() const
{
    return m_widget ? m_widget->sizeHint() : QFrame::sizeHint();
}

void LetterBoxWidget::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (m_timer.interval() > 0)
        m_timer.start();
    else
        resizeWidget();
}

void LetterBoxWidget::childEvent(QChildEvent *event)
{
    QFrame::childEvent(event);
    if (event->removed() && event->child() == m_widget)
        m_widget = nullptr;
}

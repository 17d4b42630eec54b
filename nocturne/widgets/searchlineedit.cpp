#include "searchlineedit.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QResizeEvent>

namespace {

// In widths of the button.
constexpr double smallestWidth = 2.5;
constexpr double roomForButton = 1.5;
constexpr int leftTextMargin = 4;

} // namespace

SearchLineEdit::SearchLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setMinimumWidth(int(m_clearButton.width() * smallestWidth));
    setTextMargins(leftTextMargin, 0, int(m_clearButton.width() * roomForButton), 0);

    m_clearButton.setParent(this);
    m_clearButton.hide();
    connect(this, &QLineEdit::textChanged, this, &SearchLineEdit::textChanged);
    connect(&m_clearButton, &LineEditButton::clicked, this, &SearchLineEdit::clearText);
}

SearchLineEdit::~SearchLineEdit() = default;

void SearchLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (!m_clearButton.underMouse())
        QLineEdit::mousePressEvent(event);
}

void SearchLineEdit::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_clearButton.underMouse())
        QLineEdit::mouseMoveEvent(event);
}

void SearchLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    m_clearButton.move(int(event->size().width() - m_clearButton.width() * roomForButton),
                       event->size().height() / 2 - m_clearButton.height() / 2);
}

void SearchLineEdit::textChanged(const QString &text)
{
    m_clearButton.setVisible(!text.isEmpty());
}

void SearchLineEdit::clearText()
{
    clear();
    Q_EMIT clearButtonClicked();
}

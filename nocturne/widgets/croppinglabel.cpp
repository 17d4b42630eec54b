#include "croppinglabel.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

constexpr int editorMaximumHeight = 24;

/// The editor inside the label, which Escape leaves as it was.
class CroppingLineEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Escape) {
            while (isUndoAvailable())
                undo();
            clearFocus();
        }
        QLineEdit::keyPressEvent(event);
    }
};

/// The text without spaces at its ends and without the characters that have no place in a line.
QString cleanedText(const QString &text)
{
    const auto isUnwanted = [](QChar c) {
        return c == QLatin1Char('\0') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
    };
    const QString trimmed = text.trimmed();
    QString cleaned;
    std::remove_copy_if(trimmed.begin(), trimmed.end(), std::back_inserter(cleaned), isUnwanted);
    return cleaned;
}

} // namespace

CroppingLabel::CroppingLabel(QWidget *parent)
    : QLabel(parent)
    , m_lineEdit(new CroppingLineEdit(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setTextFormat(Qt::PlainText);

    m_lineEdit->setMaximumHeight(editorMaximumHeight);
    m_lineEdit->hide();
    m_lineEdit->setInputMethodHints(Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText
                                    | Qt::ImhPreferLatin);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &CroppingLabel::editingFinished);
}

CroppingLabel::~CroppingLabel()
{
    // An open editor loses the focus when the base class goes, too late to report it.
    m_lineEdit->disconnect(this);
}

void CroppingLabel::setText(const QString &text)
{
    const bool typed = m_editing && m_lineEdit->text() != m_openedText;
    m_fullText = text.trimmed();
    setElidedText();
    if (m_editing && !typed)
        fillEditor();
}

/// A text that is set from now on is the host's, one that differs from this is the user's.
void CroppingLabel::fillEditor()
{
    const bool wasSelected = m_lineEdit->selectedText() == m_lineEdit->text();
    m_openedText = m_fullText;
    m_lineEdit->setText(m_fullText);
    if (wasSelected)
        m_lineEdit->selectAll();
}

void CroppingLabel::setEditable(bool editable)
{
    m_editable = editable;
    if (editable)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void CroppingLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    setElidedText();
}

void CroppingLabel::editBegin()
{
    showTextEdit();
    m_lineEdit->selectAll();
}

QSize CroppingLabel::sizeHint() const
{
    return QSize(0, QLabel::sizeHint().height());
}

QSize CroppingLabel::minimumSizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance(QStringLiteral("...")),
                 QLabel::minimumSizeHint().height());
}

void CroppingLabel::minimizeMaximumWidth()
{
    setMaximumWidth(fontMetrics().horizontalAdvance(m_fullText)
                    + fontMetrics().horizontalAdvance(QStringLiteral("...")));
}

void CroppingLabel::showTextEdit()
{
    const bool wasOpen = m_editing;
    m_editing = true;
    m_lineEdit->show();
    m_lineEdit->setFocus(Qt::OtherFocusReason);
    if (!wasOpen)
        fillEditor();
    m_lineEdit->setFocusPolicy(Qt::ClickFocus);
    update();
}

void CroppingLabel::hideTextEdit()
{
    m_lineEdit->hide();
    m_editing = false;
    update();
}

void CroppingLabel::setElidedText()
{
    const QString elided = fontMetrics().elidedText(m_fullText, m_elideMode, width());
    setToolTip(elided == m_fullText ? QString()
                                    : Qt::convertFromPlainText(m_fullText, Qt::WhiteSpaceNormal));
    QLabel::setText(elided);
}

void CroppingLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setElidedText();
}

void CroppingLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_editable)
        showTextEdit();
    Q_EMIT clicked();
    QLabel::mouseReleaseEvent(event);
}

void CroppingLabel::paintEvent(QPaintEvent *event)
{
    if (m_editing)
        event->ignore();
    else
        QLabel::paintEvent(event);
}

void CroppingLabel::resizeEvent(QResizeEvent *event)
{
    setElidedText();
    m_lineEdit->resize(event->size());
    QLabel::resizeEvent(event);
}

void CroppingLabel::editingFinished()
{
    // Hiding the editor takes its focus away, and it reports the end a second time.
    if (!m_editing)
        return;
    m_editing = false;
    m_lineEdit->hide();
    update();

    // With nothing typed, a text that was set meanwhile stays.
    const bool untouched = m_lineEdit->text() == m_openedText;
    const QString typed = untouched ? m_fullText : m_lineEdit->text();
    const QString cleaned = cleanedText(typed);
    if (cleaned != m_fullText)
        Q_EMIT editFinished(typed);
    setText(cleaned);
    Q_EMIT editRemoved();
}

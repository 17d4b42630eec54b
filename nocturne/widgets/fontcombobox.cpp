#include "fontcombobox.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractItemView>

namespace {

constexpr QSize fixedHint(79, 26);

} // namespace

FontComboBox::FontComboBox(QWidget *parent)
    : QFontComboBox(parent)
{
    view()->installEventFilter(this);
    connect(this, &QComboBox::textHighlighted, this, &FontComboBox::highlighted);
    connect(this, &QFontComboBox::currentFontChanged, this, &FontComboBox::previewChoice);
}

FontComboBox::~FontComboBox() = default;

QSize FontComboBox::sizeHint() const
{
    return fixedHint;
}

bool FontComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view() && event->type() == QEvent::Hide)
        endPreview();
    return QFontComboBox::eventFilter(watched, event);
}

void FontComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void FontComboBox::highlighted(const QString &value)
{
    Q_EMIT highlightFontChanged(QFont(value));
}

void FontComboBox::endPreview()
{
    // The base class first hides the popup and then, in the same event, takes the choice over.
    m_takingChoice = true;
    QMetaObject::invokeMethod(
        this, [this] { m_takingChoice = false; }, Qt::QueuedConnection);
    Q_EMIT highlightFontChanged(currentFont());
}

void FontComboBox::previewChoice(const QFont &font)
{
    if (m_takingChoice)
        Q_EMIT highlightFontChanged(font);
}

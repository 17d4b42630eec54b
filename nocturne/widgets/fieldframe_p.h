#ifndef NOCTURNE_FIELDFRAME_P_H
#define NOCTURNE_FIELDFRAME_P_H

class QString;
class QWidget;

/// The look that the two recording fields share: a dark rounded frame, a label with the text and a
/// blue ring while the field has the focus.
namespace Nocturne::FieldFrame {

/// Makes \a field focusable by a click only and gives it the label, an object named "edit".
void setUp(QWidget *field);

/// Sets the text of the label.
void setText(const QWidget *field, const QString &text);

/// Paints frame and ring; the label paints itself.
void paint(QWidget *field);

} // namespace Nocturne::FieldFrame

#endif

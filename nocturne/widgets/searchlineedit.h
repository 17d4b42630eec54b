#ifndef NOCTURNE_SEARCHLINEEDIT_H
#define NOCTURNE_SEARCHLINEEDIT_H

#include <nocturne/nocturneglobal.h>
#include <nocturne/widgets/lineeditbutton.h>

#include <QtWidgets/QLineEdit>

/// A line edit with a button at its right end that clears it, shown while there is text.
///
/// The picture of the button is a resource of the host, see LineEditButton; without it the field
/// works but has no button.
///
/// \code
/// auto *search = new SearchLineEdit(toolBar);
/// connect(search, &QLineEdit::textChanged, filter, &Filter::setText);
/// connect(search, &SearchLineEdit::clearButtonClicked, filter, &Filter::showAll);
/// \endcode
class NOCTURNE_EXPORT SearchLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchLineEdit(QWidget *parent = nullptr);
    ~SearchLineEdit() override;

Q_SIGNALS:
    /// The clear button was pressed; the text is empty by now.
    void clearButtonClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void textChanged(const QString &text);
    void clearText();

private:
    LineEditButton m_clearButton;
};

#endif

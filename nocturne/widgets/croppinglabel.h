#ifndef NOCTURNE_CROPPINGLABEL_H
#define NOCTURNE_CROPPINGLABEL_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QLabel>

class QLineEdit;

/// A label that elides its text to its width and that is edited in place by a click.
///
/// While the text doesn't fit, the whole of it is the tool tip. Texts are plain; markup shows as
/// it is. An edit ends with Return or the loss of focus; Escape ends it with the text as it was. A
/// slot that wants to delete the label uses deleteLater().
///
/// \code
/// auto *name = new CroppingLabel(strip);
/// name->setText(track->name());
/// connect(name, &CroppingLabel::editFinished, track, &Track::setName);
/// \endcode
class NOCTURNE_EXPORT CroppingLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString text READ fullText WRITE setText)
    Q_PROPERTY(bool editable MEMBER m_editable WRITE setEditable)
    Q_PROPERTY(Qt::TextElideMode elideMode MEMBER m_elideMode WRITE setElideMode)

public:
    explicit CroppingLabel(QWidget *parent = nullptr);
    ~CroppingLabel() override;

    /// Sets the text, without spaces at its ends. QLabel::text() is what is shown of it. An open
    /// editor takes it as well, unless something has been typed; Escape then ends it with the new
    /// text, and Return with what was typed.
    void setText(const QString &text);

    /// The whole text.
    QString fullText() const { return m_fullText; }

    /// Whether a click opens the editor. It does at first; the pointing hand is shown from the
    /// first call with true.
    void setEditable(bool editable);

    /// Where the dots go that stand for what doesn't fit. At the right at first.
    void setElideMode(Qt::TextElideMode mode);

    /// Opens the editor with its text selected, editable or not.
    void editBegin();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Keeps the label from growing beyond its present text.
    void minimizeMaximumWidth();

Q_SIGNALS:
    /// An edit has ended with another text. \a newText is what was typed; fullText() will be that
    /// without spaces at its ends and without tabs, line breaks and the like.
    void editFinished(const QString &newText);

    /// An edit has ended, changed or not. Comes after editFinished(), when the text is stored.
    void editRemoved();

    /// A mouse button was released on the label, editable or not.
    void clicked();

protected:
    /// Opens the editor, as a click does. What has been typed into an open one stays.
    void showTextEdit();
    /// Closes the editor.
    void hideTextEdit();
    /// Fits the shown text and the tool tip to the width.
    void setElidedText();

    void changeEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void editingFinished();

private:
    void fillEditor();

    QString m_fullText;
    QLineEdit *m_lineEdit;
    QString m_openedText; ///< what the editor held before the user typed
    bool m_editing = false;
    bool m_editable = true;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};

#endif

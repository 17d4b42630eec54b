#ifndef NOCTURNE_QMESSAGEBOXEX_H
#define NOCTURNE_QMESSAGEBOXEX_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QMap>
#include <QtWidgets/QMessageBox>

/// A message box whose standard buttons carry the host's own texts.
///
/// A text is recorded once per standard button and holds for every box that one of the four
/// functions opens afterwards, anywhere in the process. Boxes made with the constructor keep the
/// toolkit's texts. GUI thread only.
///
/// \code
/// QMessageBoxEx::setCustomTextForButton(QMessageBox::Yes, tr("Take it live"));
/// if (QMessageBoxEx::question(this, tr("Cue"), tr("Run the cue?")) == QMessageBox::Yes)
///     run();
/// \endcode
class NOCTURNE_EXPORT QMessageBoxEx : public QMessageBox
{
public:
    explicit QMessageBoxEx(QWidget *parent = nullptr);
    ~QMessageBoxEx() override;

    /// Records \a text for \a button, in place of an earlier one. An empty text is a text too; no
    /// entry is ever removed.
    static void setCustomTextForButton(QMessageBox::StandardButton button, const QString &text);

    /// Each opens a box with the icon of its name and returns the standard button that closed it:
    /// the escape button when it was closed otherwise, NoButton when \a parent was deleted
    /// meanwhile.
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::StandardButtons(QMessageBox::Yes
                                                                                 | QMessageBox::No),
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

protected:
    /// Gives the buttons of \a box the recorded texts, as far as there are any.
    static void setCustomTextForButtons(QMessageBoxEx &box);

private:
    static QMessageBox::StandardButton run(QMessageBox::Icon icon, QWidget *parent,
                                           const QString &title, const QString &text,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton defaultButton);

    static QMap<QMessageBox::StandardButton, QString> m_customButtonNames;
};

#endif

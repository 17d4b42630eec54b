#ifndef NOCTURNE_FILECHOOSER_H
#define NOCTURNE_FILECHOOSER_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QWidget>

class QLineEdit;

/// A path in a line edit, with a button that picks a media file or a folder. A slot that wants to
/// delete it uses deleteLater().
///
/// \code
/// auto *clip = new FileChooser(panel);
/// connect(clip, &FileChooser::fileNameChanged, player, &Player::load);
/// \endcode
class NOCTURNE_EXPORT FileChooser : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName NOTIFY fileNameChanged)
    Q_PROPERTY(Mode mode READ mode WRITE setMode)

public:
    enum Mode {
        OpenFile = 0,     ///< an existing media file
        OpenDirectory = 1 ///< a folder
    };
    Q_ENUM(Mode)

    explicit FileChooser(QWidget *parent = nullptr);
    ~FileChooser() override;

    /// The path as it stands in the line edit, whether or not such a file exists.
    QString fileName() const;

    /// What the button picks; OpenFile at first.
    Mode mode() const { return m_mode; }

public Q_SLOTS:
    /// Puts \a fn into the line edit.
    void setFileName(QString fn);
    void setMode(FileChooser::Mode m);

Q_SIGNALS:
    /// The text has changed, by typing or by setFileName(); and once more after each choice, so
    /// that choosing the same file again is heard as well.
    void fileNameChanged(QString fileName);

private Q_SLOTS:
    void chooseFile();

private:
    QString askForPath();

    QLineEdit *m_lineEdit;
    Mode m_mode = OpenFile;
};

#endif

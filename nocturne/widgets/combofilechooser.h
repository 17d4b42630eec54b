#ifndef NOCTURNE_COMBOFILECHOOSER_H
#define NOCTURNE_COMBOFILECHOOSER_H

#include <nocturne/nocturneglobal.h>
#include <nocturne/widgets/openfiletype.h>

#include <QtWidgets/QWidget>

class ComboBox;

/// Paths in a combo box, with a button that picks a media file or a folder in
/// place of them. A slot that wants to delete it uses deleteLater().
///
/// \code
/// auto *source = new ComboFileChooser(panel);
/// source->setOpenFileType(OpenVideoFile);
/// source->setLastSelectedDir(settings.clipFolder());
/// source->addItems(settings.recentClips());
/// connect(source, &ComboFileChooser::fileNameChanged, player, &Player::load);
/// \endcode
class NOCTURNE_EXPORT ComboFileChooser : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        QString fileName READ fileName WRITE setFileName NOTIFY fileNameChanged DESIGNABLE false)
    Q_PROPERTY(Mode mode READ mode WRITE setMode)
    Q_PROPERTY(QString lastSelectedDir MEMBER m_lastSelectedDir WRITE setLastSelectedDir)

public:
    enum Mode {
        OpenFile = 0,     ///< an existing media file
        OpenDirectory = 1 ///< a folder
    };
    Q_ENUM(Mode)

    explicit ComboFileChooser(QWidget *parent = nullptr);
    ~ComboFileChooser() override;

    void addItem(const QString &text);
    void addItems(const QStringList &texts);
    void clear();

    /// The current text of the combo box.
    QString fileName() const;

    /// What the button picks; OpenFile at first.
    Mode mode() const { return m_mode; }

    /// The kinds of files that the dialog offers; all three at first.
    void setOpenFileType(QFlags<OpenFileType> types);

    /// The folder in which the dialog for files starts. A choice does not change
    /// it.
    void setLastSelectedDir(const QString &directory);

public Q_SLOTS:
    /// Makes the item with that text the current one.
    void setFileName(QString fn);
    void setMode(ComboFileChooser::Mode m);

Q_SIGNALS:
    /// Another item has become current, once for each choice of a file or folder.
    /// Clearing the items reports an empty text.
    void fileNameChanged(QString fileName);

    /// The button was clicked; no dialog is open yet.
    void beforFileOpen();

private Q_SLOTS:
    void chooseFile();

private:
    QString askForPath();

    ComboBox *m_comboBox;
    Mode m_mode = OpenFile;
    QFlags<OpenFileType> m_types = OpenImageFile | OpenVideoFile | OpenAudioFile;
    QString m_lastSelectedDir;
};

#endif

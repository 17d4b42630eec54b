#include "filepicking_p.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

namespace Nocturne {

namespace {

const char videoExtensions[] =
    "avi wmv wmp wm asf mpg mpeg mpe m1v m2v mpv2 mp2v dat ts tp tpr trp vob ifo ogm ogv mp4 m4v "
    "m4p m4b 3gp 3gpp 3g2 3gp2 mkv rm ram rmvb rpm flv f4v swf mov qt amr nsv dpg m2ts m2t mts "
    "dvr-ms k3g skm evo nsr divx webm amv";
const char audioExtensions[] =
    "wav wma mpa mp2 m1a m2a mp3 ogg m4a aac mka ra flac ape mpc mod ac3 dts tak";
const char imageExtensions[] = "bmp jpg png tga svg tiff";

/// Runs \a dialog and deletes it. It must not be on the stack: a parent that is deleted while it is
/// open takes it along.
QString pickedPath(QFileDialog *fileDialog)
{
    const QPointer<QFileDialog> dialog(fileDialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return QString();
    QString path = accepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

} // namespace

QString mediaFilter(const QString &format, QFlags<OpenFileType> types)
{
    QStringList extensions;
    const auto append = [&](OpenFileType type, const char *list) {
        if (types.testFlag(type))
            extensions += QString::fromLatin1(list).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    append(OpenVideoFile, videoExtensions);
    append(OpenAudioFile, audioExtensions);
    append(OpenImageFile, imageExtensions);
    return format.arg(extensions.join(QStringLiteral(" *.")));
}

QString pickFile(QWidget *parent, const QString &caption, const QString &directory,
                 const QString &filter)
{
    auto *dialog = new QFileDialog(parent, caption, directory, filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return pickedPath(dialog);
}

QString pickDirectory(QWidget *parent, const QString &caption)
{
    auto *dialog = new QFileDialog(parent, caption);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return pickedPath(dialog);
}

} // namespace Nocturne

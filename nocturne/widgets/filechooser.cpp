#include "filechooser.h"

#include "filepicking_p.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace {

constexpr int smallestButtonWidth = 10;

}

FileChooser::FileChooser(QWidget *parent)
    : QWidget(parent)
    , m_lineEdit(new QLineEdit)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    layout->addWidget(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &FileChooser::fileNameChanged);

    auto *button = new QPushButton(tr("load"));
    button->setMinimumWidth(smallestButtonWidth);
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this, &FileChooser::chooseFile);

    setFocusProxy(m_lineEdit);
}

FileChooser::~FileChooser() = default;

QString FileChooser::fileName() const
{
    return m_lineEdit->text();
}

void FileChooser::setFileName(QString fn)
{
    m_lineEdit->setText(fn);
}

void FileChooser::setMode(Mode m)
{
    m_mode = m;
}

void FileChooser::chooseFile()
{
    const QPointer<FileChooser> self(this);
    const QString path = askForPath();
    if (!self || path.isEmpty())
        return;
    m_lineEdit->setText(path);
    if (self)
        Q_EMIT fileNameChanged(path);
}

QString FileChooser::askForPath()
{
    const QString current = m_lineEdit->text();
    if (m_mode != OpenFile)
        return Nocturne::pickDirectory(this, current);
    return Nocturne::pickFile(
        this, current, QFileInfo(QString(current).remove(QChar(0))).absolutePath(),
        Nocturne::mediaFilter(tr("Media (*.%1)"), OpenImageFile | OpenVideoFile | OpenAudioFile));
}

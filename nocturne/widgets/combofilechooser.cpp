#include "combofilechooser.h"

#include "combobox.h"
#include "filepicking_p.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

ComboFileChooser::ComboFileChooser(QWidget *parent)
    : QWidget(parent)
    , m_comboBox(new ComboBox)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    layout->addWidget(m_comboBox);
    connect(m_comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { Q_EMIT fileNameChanged(m_comboBox->itemText(index)); });

    auto *button = new QToolButton;
    button->setIcon(QIcon(QStringLiteral(":/resources/appicons/fileopen.png")));
    layout->addWidget(button);
    connect(button, &QToolButton::clicked, this, &ComboFileChooser::chooseFile);

    setFocusProxy(m_comboBox);
}

ComboFileChooser::~ComboFileChooser() = default;

void ComboFileChooser::addItem(const QString &text)
{
    m_comboBox->addItem(text);
}

void ComboFileChooser::addItems(const QStringList &texts)
{
    m_comboBox->addItems(texts);
}

void ComboFileChooser::clear()
{
    m_comboBox->clear();
}

QString ComboFileChooser::fileName() const
{
    return m_comboBox->currentText();
}

void ComboFileChooser::setFileName(QString fn)
{
    m_comboBox->setCurrentText(fn);
}

void ComboFileChooser::setMode(Mode m)
{
    m_mode = m;
}

void ComboFileChooser::setOpenFileType(QFlags<OpenFileType> types)
{
    m_types = types;
}

void ComboFileChooser::setLastSelectedDir(const QString &directory)
{
    m_lastSelectedDir = directory;
}

void ComboFileChooser::chooseFile()
{
    const QPointer<ComboFileChooser> self(this);
    Q_EMIT beforFileOpen();
    if (!self)
        return;
    const QString path = askForPath();
    if (!self || path.isEmpty())
        return;
    {
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->clear();
    }
    m_comboBox->addItem(path);
}

QString ComboFileChooser::askForPath()
{
    if (m_mode != OpenFile)
        return Nocturne::pickDirectory(this, QString());
    return Nocturne::pickFile(this, QString(), QString(m_lastSelectedDir).remove(QChar(0)),
                              Nocturne::mediaFilter(tr("Media (*.%1)"), m_types));
}

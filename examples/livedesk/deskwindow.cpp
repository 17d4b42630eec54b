#include "deskwindow.h"

#include "panels.h"
#include "player.h"

#include <nocturne/ComboBox>
#include <nocturne/ProgressBar>
#include <nocturne/StatusBar>

#include <QtWidgets/QtWidgets>

constexpr char catalogueFolder[] = ":/resources/locales/";

DeskWindow::DeskWindow(const QString &settingsFile)
    : m_settingsFile(settingsFile)
    , m_player(new Player(&m_desk))
    , m_controls(new ControlPanel(&m_desk))
    , m_renderButton(new QPushButton)
    , m_renderProgress(new ProgressBar)
{
    setCentralWidget(m_player);
    buildToolBar();
    buildDocks();

    auto *status = new StatusBar;
    m_renderButton->setObjectName("render");
    m_renderButton->setCheckable(true);
    m_renderProgress->setFixedSize(200, 10);
    status->addPermanentWidget(m_renderProgress);
    status->addPermanentWidget(m_renderButton);
    setStatusBar(status);

    connect(m_renderButton, &QPushButton::toggled, this, &DeskWindow::render);
    connect(&m_renderTimer, &QTimer::timeout, this, &DeskWindow::renderFrame);
    m_desk.follow(this, [this] { m_renderButton->setEnabled(m_desk.state().currentClip()); });
    m_desk.speak(this, [this] {
        setWindowTitle(tr("Live desk"));
        m_renderButton->setText(tr("Render"));
    });
    resize(1280, 760);
    load();
}

void DeskWindow::setLanguage(const QString &name)
{
    QCoreApplication::removeTranslator(&m_translator);
    const bool found = !name.isEmpty() && m_translator.load(catalogueFolder + name);
    m_language = found ? name : QString();
    if (found)
        QCoreApplication::installTranslator(&m_translator);
}

void DeskWindow::closeEvent(QCloseEvent *event)
{
    const QMidiMessage &control = m_controls->binding();
    QJsonObject settings = m_desk.state().toJson();
    settings["language"] = m_language;
    settings["binding"] = QJsonObject{
        {"type", control.type()}, {"channel", control.channel()}, {"key", control.key()}};
    settings["window"] = QString::fromLatin1(saveState().toBase64());
    QSaveFile file(m_settingsFile);
    file.open(QIODevice::WriteOnly);
    file.write(QJsonDocument(settings).toJson());
    if (!file.commit())
        qWarning("cannot write %s: %s", qPrintable(m_settingsFile), qPrintable(file.errorString()));
    QMainWindow::closeEvent(event);
}

void DeskWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Q_EMIT m_desk.languageChanged();
}

void DeskWindow::buildToolBar()
{
    auto *toolBar = addToolBar(QString());
    toolBar->setObjectName("tools");
    QAction *undo = m_desk.history()->createUndoAction(this);
    QAction *redo = m_desk.history()->createRedoAction(this);
    undo->setShortcut(QKeySequence::Undo);
    redo->setShortcut(QKeySequence::Redo);
    toolBar->addActions({undo, redo});
    QAction *play = toolBar->addAction(QString(), m_player, &Player::togglePlay);
    QAction *cut = toolBar->addAction(QString(), m_player, &Player::cut);
    m_desk.follow(this, [=] {
        play->setShortcut(QKeySequence(m_desk.state().playShortcut));
        cut->setShortcut(QKeySequence(m_desk.state().takeShortcut));
    });
    m_desk.speak(this, [=] {
        toolBar->setWindowTitle(tr("Tools"));
        undo->setText(tr("Undo"));
        redo->setText(tr("Redo"));
        play->setText(tr("Play"));
        cut->setText(tr("Cut"));
    });

    auto *languages = new ComboBox;
    languages->setObjectName("language");
    languages->addItem("English");
    for (const QString &name : QDir(catalogueFolder).entryList({"??_??.qm"})) {
        const QString locale = name.left(5);
        languages->addItem(QLocale(locale).nativeLanguageName(), locale);
    }
    toolBar->addWidget(languages);
    connect(languages, QOverload<int>::of(&QComboBox::activated), this,
            [=](int index) { setLanguage(languages->itemData(index).toString()); });
}

void DeskWindow::buildDocks()
{
    const auto add = [this](const char *title, QWidget *content, Qt::DockWidgetArea area) {
        auto *dock = new QDockWidget;
        dock->setObjectName(title);
        dock->setFeatures(QDockWidget::DockWidgetMovable);
        dock->setWidget(content);
        addDockWidget(area, dock);
        m_desk.speak(dock, [=] { dock->setWindowTitle(tr(title)); });
    };
    add(QT_TR_NOOP("Clips"), binPanel(&m_desk), Qt::LeftDockWidgetArea);
    add(QT_TR_NOOP("Look"), lookPanel(&m_desk), Qt::RightDockWidgetArea);
    add(QT_TR_NOOP("Controls"), m_controls, Qt::RightDockWidgetArea);
    add(QT_TR_NOOP("History"), new QUndoView(m_desk.history()), Qt::RightDockWidgetArea);
}

void DeskWindow::load()
{
    QFile file(m_settingsFile);
    if (!file.exists())
        return;
    QJsonParseError error{};
    QJsonDocument document;
    if (file.open(QIODevice::ReadOnly))
        document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        // What can't be read is put aside, or closing the desk would write over it.
        const QString aside = m_settingsFile + ".unreadable";
        QFile::remove(aside);
        file.rename(aside);
        qWarning("cannot read the settings, kept as %s: %s", qPrintable(aside),
                 qPrintable(error.errorString()));
        return;
    }
    const QJsonObject settings = document.object();
    m_desk.load(DeskState::fromJson(settings));
    const QJsonValue binding = settings["binding"];
    QMidiMessage control;
    control.setType(binding["type"].toInt());
    control.setChannel(binding["channel"].toInt(1));
    control.setKey(binding["key"].toInt());
    m_controls->setBinding(control);
    setLanguage(settings["language"].toString());
    restoreState(QByteArray::fromBase64(settings["window"].toString().toLatin1()));
}

void DeskWindow::render(bool start)
{
    const Clip *clip = m_desk.state().currentClip();
    if (start && clip) {
        m_renderProgress->setRange(0, clip->out - clip->in + 1);
        m_renderProgress->setValue(0);
        statusBar()->showMessage(tr("Rendering %1").arg(clip->name));
        m_renderTimer.start(0);
    } else {
        const bool done = m_renderProgress->value() == m_renderProgress->maximum();
        statusBar()->showMessage(done ? tr("Done") : tr("Stopped"));
        m_renderTimer.stop();
    }
}

void DeskWindow::renderFrame()
{
    const Clip *clip = m_desk.state().currentClip();
    const int done = m_renderProgress->value();
    if (clip && done < m_renderProgress->maximum()) {
        m_player->picture(*clip, clip->in + done);
        m_renderProgress->setValue(done + 1);
    } else {
        m_renderButton->setChecked(false);
    }
}

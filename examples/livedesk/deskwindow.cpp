#include "deskwindow.h"

#include "binpanel.h"
#include "controlpanel.h"
#include "lookpanel.h"
#include "player.h"

#include <nocturne/ComboBox>
#include <nocturne/ProgressBar>
#include <nocturne/StatusBar>

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>
#include <QtCore/QTranslator>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

#include <QAction>
#include <QUndoView>

#include <algorithm>
#include <utility>

namespace {

const QString catalogueFolder = QStringLiteral(":/resources/locales/");
constexpr int framesPerRenderStep = 2;

QMidiMessage bindingFromJson(const QJsonObject &object)
{
    QMidiMessage message;
    message.setType(std::clamp(object.value(QStringLiteral("type")).toInt(), 0, 255));
    message.setChannel(std::clamp(object.value(QStringLiteral("channel")).toInt(1), 0, 16));
    message.setKey(std::clamp(object.value(QStringLiteral("key")).toInt(), 0, 127));
    return message;
}

QJsonObject bindingToJson(const QMidiMessage &message)
{
    return {{QStringLiteral("type"), message.type()},
            {QStringLiteral("channel"), message.channel()},
            {QStringLiteral("key"), message.key()}};
}

} // namespace

DeskWindow::DeskWindow(const QString &settingsFile, QWidget *parent)
    : QMainWindow(parent)
    , m_settingsFile(settingsFile)
    , m_player(new Player(&m_desk))
    , m_look(new LookPanel(&m_desk))
    , m_controls(new ControlPanel(&m_desk))
    , m_renderButton(new QPushButton)
    , m_renderProgress(new ProgressBar)
    , m_message(new QLabel)
{
    setCentralWidget(m_player);
    buildToolBar();
    buildDocks();

    auto *status = new StatusBar;
    m_renderButton->setObjectName(QStringLiteral("render"));
    m_renderProgress->setFixedSize(200, 10);
    status->addWidget(m_message, 1);
    status->addPermanentWidget(m_renderProgress);
    status->addPermanentWidget(m_renderButton);
    setStatusBar(status);

    connect(m_renderButton, &QPushButton::clicked, this, &DeskWindow::startRender);
    connect(&m_renderTimer, &QTimer::timeout, this, &DeskWindow::renderSome);
    connect(m_controls, &ControlPanel::amountChanged, m_look, &LookPanel::setAmount);
    connect(&m_desk, &Desk::changed, this, &DeskWindow::refresh);
    resize(1280, 760);
    load();
    retranslate();
    refresh();
}

bool DeskWindow::save()
{
    if (m_settingsFile.isEmpty())
        return true;
    QJsonObject settings = m_desk.state().toJson();
    settings.insert(QStringLiteral("language"), m_language);
    settings.insert(QStringLiteral("binding"), bindingToJson(m_controls->binding()));
    settings.insert(QStringLiteral("window"), QString::fromLatin1(saveState().toBase64()));
    QSaveFile file(m_settingsFile);
    const QByteArray text = QJsonDocument(settings).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    qWarning("cannot write %s: %s", qPrintable(m_settingsFile), qPrintable(file.errorString()));
    return false;
}

void DeskWindow::setLanguage(const QString &name)
{
    delete findChild<QTranslator *>();
    m_language.clear();
    if (name.isEmpty())
        return;
    auto *translator = new QTranslator(this);
    if (translator->load(catalogueFolder + name)) {
        m_language = name;
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
        qWarning("there is no catalogue named %s", qPrintable(name));
    }
}

void DeskWindow::closeEvent(QCloseEvent *event)
{
    save();
    QMainWindow::closeEvent(event);
}

void DeskWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DeskWindow::buildToolBar()
{
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("tools"));
    m_undo = m_desk.history()->createUndoAction(this);
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = m_desk.history()->createRedoAction(this);
    m_redo->setShortcut(QKeySequence::Redo);
    m_play = new QAction(this);
    m_cut = new QAction(this);
    connect(m_play, &QAction::triggered, m_player, &Player::togglePlay);
    connect(m_cut, &QAction::triggered, m_player, &Player::cut);
    m_toolBar->addActions({m_undo, m_redo, m_play, m_cut});

    auto *languages = new ComboBox;
    languages->setObjectName(QStringLiteral("language"));
    languages->addItem(QStringLiteral("English"));
    const QStringList names = QDir(catalogueFolder).entryList({QStringLiteral("??_??.qm")});
    for (const QString &name : names) {
        const QString locale = name.section(QLatin1Char('.'), 0, 0);
        languages->addItem(QLocale(locale).nativeLanguageName(), locale);
    }
    m_toolBar->addWidget(languages);
    connect(languages, QOverload<int>::of(&QComboBox::activated), this,
            [=](int index) { setLanguage(languages->itemData(index).toString()); });
}

void DeskWindow::buildDocks()
{
    auto *history = new QUndoView(m_desk.history());
    history->setObjectName(QStringLiteral("history"));
    addDock(QT_TR_NOOP("Clips"), new BinPanel(&m_desk), Qt::LeftDockWidgetArea);
    addDock(QT_TR_NOOP("Look"), m_look, Qt::RightDockWidgetArea);
    addDock(QT_TR_NOOP("Controls"), m_controls, Qt::RightDockWidgetArea);
    addDock(QT_TR_NOOP("History"), history, Qt::RightDockWidgetArea);
}

void DeskWindow::addDock(const char *title, QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget;
    dock->setObjectName(QLatin1String(title));
    dock->setFeatures(QDockWidget::DockWidgetMovable);
    dock->setWidget(content);
    addDockWidget(area, dock);
    m_docks.append({dock, title});
}

void DeskWindow::refresh()
{
    const DeskState &state = m_desk.state();
    m_cut->setShortcut(QKeySequence(state.takeShortcut));
    m_play->setShortcut(QKeySequence(state.playShortcut));
    m_renderButton->setEnabled(state.currentClip());
}

void DeskWindow::retranslate()
{
    setWindowTitle(tr("Live desk"));
    m_undo->setText(tr("Undo"));
    m_redo->setText(tr("Redo"));
    m_play->setText(tr("Play"));
    m_cut->setText(tr("Cut"));
    m_toolBar->setWindowTitle(tr("Tools"));
    m_renderButton->setText(m_renderTimer.isActive() ? tr("Stop") : tr("Render"));
    for (const auto &dock : std::as_const(m_docks))
        dock.first->setWindowTitle(tr(dock.second));
}

void DeskWindow::load()
{
    QFile file(m_settingsFile);
    if (m_settingsFile.isEmpty() || !file.exists())
        return;
    QJsonParseError error{};
    QJsonDocument document;
    if (file.open(QIODevice::ReadOnly))
        document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        // What can't be read is put aside, or closing the desk would write over it.
        file.close();
        const QString aside = m_settingsFile + QStringLiteral(".unreadable");
        QFile::remove(aside);
        file.rename(aside);
        qWarning("cannot read the settings, kept as %s: %s", qPrintable(aside),
                 qPrintable(error.errorString()));
        return;
    }
    const QJsonObject settings = document.object();
    m_desk.load(DeskState::fromJson(settings));
    m_controls->setBinding(bindingFromJson(settings.value(QStringLiteral("binding")).toObject()));
    setLanguage(settings.value(QStringLiteral("language")).toString());
    restoreState(
        QByteArray::fromBase64(settings.value(QStringLiteral("window")).toString().toLatin1()));
}

void DeskWindow::startRender()
{
    const Clip *clip = m_desk.state().currentClip();
    if (m_renderTimer.isActive() || !clip) {
        m_renderTimer.stop();
        m_message->setText(tr("Stopped"));
    } else {
        m_renderProgress->setRange(0, clip->out - clip->in + 1);
        m_renderProgress->setValue(0);
        m_message->setText(tr("Rendering %1").arg(clip->name));
        m_renderTimer.start(0);
    }
    retranslate();
}

void DeskWindow::renderSome()
{
    const Clip *clip = m_desk.state().currentClip();
    const int end = m_renderProgress->maximum();
    int done = m_renderProgress->value();
    for (int i = 0; clip && i < framesPerRenderStep && done < end; ++i)
        m_player->pictureAt(clip->in + done++);
    m_renderProgress->setValue(done);
    if (!clip || done >= end) {
        m_renderTimer.stop();
        m_message->setText(tr("Done"));
        retranslate();
    }
}

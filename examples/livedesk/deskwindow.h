#ifndef DESKWINDOW_H
#define DESKWINDOW_H

#include "desk.h"

#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtWidgets/QMainWindow>

class ControlPanel;
class Player;
class ProgressBar;
class QPushButton;

/// The desk: bin, monitors, look, controls and history in one window.
class DeskWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Reads its settings from \a settingsFile and writes them back when it is closed.
    explicit DeskWindow(const QString &settingsFile);

    Desk *desk() { return &m_desk; }
    Player *player() { return m_player; }
    ControlPanel *controls() { return m_controls; }

public Q_SLOTS:
    /// Runs in a catalogue that the library brings along, such as "de_DE"; in English otherwise.
    void setLanguage(const QString &name);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildToolBar();
    void buildDocks();
    void load();
    void render(bool start);
    void renderFrame();

    Desk m_desk;
    QString m_settingsFile;
    QString m_language;
    QTranslator m_translator;
    Player *m_player;
    ControlPanel *m_controls;
    QPushButton *m_renderButton;
    ProgressBar *m_renderProgress;
    QTimer m_renderTimer;
};

#endif

#ifndef DESKWINDOW_H
#define DESKWINDOW_H

#include "desk.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

class ControlPanel;
class LookPanel;
class Player;
class ProgressBar;
class QAction;
class QDockWidget;
class QLabel;
class QPushButton;
class QToolBar;

/// The desk: bin, monitors, look, controls and history in one window.
class DeskWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Reads its settings from \a settingsFile and writes them back when it is closed. Without a
    /// path nothing is kept.
    explicit DeskWindow(const QString &settingsFile = QString(), QWidget *parent = nullptr);

    Desk *desk() { return &m_desk; }
    Player *player() { return m_player; }
    ControlPanel *controls() { return m_controls; }

    bool save();

public Q_SLOTS:
    /// Runs in a catalogue that the library brings along, such as "de_DE"; in English otherwise.
    void setLanguage(const QString &name);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildToolBar();
    void buildDocks();
    /// \a title is translated whenever the language changes.
    void addDock(const char *title, QWidget *content, Qt::DockWidgetArea area);
    void refresh();
    void retranslate();
    void load();
    void startRender();
    void renderSome();

    Desk m_desk;
    QString m_settingsFile;
    QString m_language;
    Player *m_player;
    LookPanel *m_look;
    ControlPanel *m_controls;
    QToolBar *m_toolBar = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_cut = nullptr;
    QAction *m_play = nullptr;
    QPushButton *m_renderButton;
    ProgressBar *m_renderProgress;
    QLabel *m_message;
    QVector<QPair<QDockWidget *, const char *>> m_docks;
    QTimer m_renderTimer;
};

#endif

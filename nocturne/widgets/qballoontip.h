#ifndef NOCTURNE_QBALLOONTIP_H
#define NOCTURNE_QBALLOONTIP_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPointer>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>
#include <QtWidgets/QSystemTrayIcon>
#include <QtWidgets/QWidget>

/// A small speech balloon that points at a place on the screen, typically a system tray icon, and
/// shows an icon, a bold title, a message and a close button.
///
/// There is at most one balloon in the process. It closes when its time is up (unless the pointer
/// rests on it), when it is clicked, with its button, or when its tray icon is deleted. The
/// library owns it. GUI thread only.
///
/// \code
/// QBalloonTip::showBalloon(QSystemTrayIcon::Warning, tr("Disk"), tr("Recording stops in 5 min"),
///                          trayIcon, trayIcon->geometry().center(), 8000, true);
/// \endcode
class NOCTURNE_EXPORT QBalloonTip : public QWidget
{
    Q_OBJECT

public:
    /// Replaces any balloon by one that points at \a pos, in global coordinates, for \a timeout
    /// milliseconds: 10 seconds when negative, until it is closed when 0. With neither title nor
    /// message it only removes the balloon. A left click emits messageClicked() of \a trayIcon;
    /// without a tray icon (null) it only closes the balloon.
    static void showBalloon(QSystemTrayIcon::MessageIcon icon, const QString &title,
                            const QString &message, QSystemTrayIcon *trayIcon, const QPoint &pos,
                            int timeout, bool showArrow = true);

    /// Removes the balloon, if there is one.
    static void hideBalloon();

    /// Whether there is a balloon.
    static bool isBalloonVisible();

    /// Points the balloon, if there is one, at another place. Its time goes on.
    static void updateBalloonPosition(const QPoint &pos);

    ~QBalloonTip() override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    struct Placement;

    QBalloonTip(QSystemTrayIcon::MessageIcon icon, const QString &title, const QString &message,
                QSystemTrayIcon *trayIcon);

    void setUpContents(QSystemTrayIcon::MessageIcon icon, const QString &title,
                       const QString &message);
    void balloon(const QPoint &pos, int msecs, bool showArrow);
    Placement place(const QPoint &pos);
    QPainterPath outline(const Placement &placement) const;
    void cutOut(const QPainterPath &path);

    QPointer<QSystemTrayIcon> m_trayIcon;
    QPixmap m_pixmap;
    int m_timerId = -1;
    bool m_showArrow = true;

    static QBalloonTip *m_current;
};

#endif

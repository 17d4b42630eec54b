#include "qballoontip.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QBitmap>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

QBalloonTip *QBalloonTip::m_current = nullptr;

namespace {

constexpr int arrowHeight = 18;
constexpr int arrowWidth = 18;
constexpr int arrowOffset = 18;
constexpr int cornerRadius = 7;
constexpr int borderWidth = 1;
constexpr int screenMargin = 2;
constexpr int sideMargin = borderWidth + 3;
constexpr int plainMargin = borderWidth + 2;
constexpr int defaultTimeout = 10000;
constexpr int noTimer = -1;
constexpr QSize closeButtonSize(15, 15);
constexpr int iconExtent = 18;
constexpr QRgb paper = 0xffffffe1;

QScreen *screenNearest(const QPoint &position)
{
    if (QScreen *screen = QGuiApplication::screenAt(position))
        return screen;
    return QGuiApplication::primaryScreen();
}

QStyle::StandardPixmap standardIconOf(QSystemTrayIcon::MessageIcon icon)
{
    switch (icon) {
    case QSystemTrayIcon::Warning:
        return QStyle::SP_MessageBoxWarning;
    case QSystemTrayIcon::Critical:
        return QStyle::SP_MessageBoxCritical;
    case QSystemTrayIcon::Information:
    case QSystemTrayIcon::NoIcon:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

} // namespace

/// Which corner the arrow is at, and the edges of the body in widget coordinates.
struct QBalloonTip::Placement
{
    bool atTop;
    bool atLeft;
    int top;
    int bottom;
    int right;
};

void QBalloonTip::showBalloon(QSystemTrayIcon::MessageIcon icon, const QString &title,
                              const QString &message, QSystemTrayIcon *trayIcon, const QPoint &pos,
                              int timeout, bool showArrow)
{
    hideBalloon();
    if (title.isEmpty() && message.isEmpty())
        return;
    m_current = new QBalloonTip(icon, title, message, trayIcon);
    m_current->balloon(pos, timeout < 0 ? defaultTimeout : timeout, showArrow);
}

void QBalloonTip::hideBalloon()
{
    if (!m_current)
        return;
    m_current->hide();
    delete m_current;
}

bool QBalloonTip::isBalloonVisible()
{
    return m_current;
}

void QBalloonTip::updateBalloonPosition(const QPoint &pos)
{
    if (!m_current)
        return;
    m_current->hide();
    m_current->balloon(pos, 0, m_current->m_showArrow);
}

QBalloonTip::QBalloonTip(QSystemTrayIcon::MessageIcon icon, const QString &title,
                         const QString &message, QSystemTrayIcon *trayIcon)
    : QWidget(nullptr, Qt::ToolTip)
    , m_trayIcon(trayIcon)
{
    setAttribute(Qt::WA_DeleteOnClose);
    if (trayIcon)
        connect(trayIcon, &QObject::destroyed, this, &QBalloonTip::close);
    setUpContents(icon, title, message);

    QPalette colors = palette();
    colors.setColor(QPalette::Window, QColor(paper));
    colors.setColor(QPalette::WindowText, Qt::black);
    setPalette(colors);
}

QBalloonTip::~QBalloonTip()
{
    if (m_current == this)
        m_current = nullptr;
}

void QBalloonTip::setUpContents(QSystemTrayIcon::MessageIcon icon, const QString &title,
                                const QString &message)
{
    auto *titleLabel = new QLabel(title);
    QFont titleFont = titleLabel->font();
    titleFont.setBold(true);
    titleLabel->setFont(titleFont);
    titleLabel->setTextFormat(Qt::PlainText);

    auto *closeButton = new QPushButton;
    closeButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    closeButton->setIconSize(closeButtonSize);
    closeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    closeButton->setFixedSize(closeButtonSize);
    connect(closeButton, &QPushButton::clicked, this, &QBalloonTip::close);

    auto *messageLabel = new QLabel(message);
    messageLabel->setTextFormat(Qt::PlainText);
    messageLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    const int limit = messageLabel->screen()->availableGeometry().width() / 3;
    if (messageLabel->sizeHint().width() > limit) {
        messageLabel->setWordWrap(true);
        messageLabel->setFixedSize(limit, messageLabel->heightForWidth(limit));
    }

    auto *layout = new QGridLayout(this);
    if (icon == QSystemTrayIcon::NoIcon) {
        layout->addWidget(titleLabel, 0, 0, 1, 2);
    } else {
        auto *iconLabel = new QLabel;
        iconLabel->setPixmap(
            style()->standardIcon(standardIconOf(icon)).pixmap(iconExtent, iconExtent));
        iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        iconLabel->setMargin(2);
        layout->addWidget(iconLabel, 0, 0);
        layout->addWidget(titleLabel, 0, 1);
    }
    layout->addWidget(closeButton, 0, 2);
    layout->addWidget(messageLabel, 1, 0, 1, 3);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(3, 3, 3, 3);
}

void QBalloonTip::balloon(const QPoint &pos, int msecs, bool showArrow)
{
    m_showArrow = showArrow;
    cutOut(outline(place(pos)));
    if (msecs > 0)
        m_timerId = startTimer(msecs, Qt::CoarseTimer);
    show();
}

/// Chooses the corner of the arrow, makes room for it and moves the balloon so that its tip is at
/// \a pos, though never off the sides of the screen.
QBalloonTip::Placement QBalloonTip::place(const QPoint &pos)
{
    const QRect screen = screenNearest(pos)->geometry();
    const QPoint onScreen = pos - screen.topLeft();
    QSize size = sizeHint();
    Placement placement;
    placement.atTop = onScreen.y() + arrowHeight + size.height() < screen.height();
    placement.atLeft = onScreen.x() - arrowOffset + size.width() < screen.width();

    const int roomyMargin = plainMargin + arrowHeight;
    setContentsMargins(sideMargin, placement.atTop ? roomyMargin : plainMargin, sideMargin,
                       placement.atTop ? plainMargin : roomyMargin);
    updateGeometry();
    size = sizeHint();

    placement.right = size.width() - 1;
    placement.top = placement.atTop ? arrowHeight : 0;
    placement.bottom = placement.atTop ? size.height() - 1 : size.height() - arrowHeight - 1;

    const int x = placement.atLeft ? qMax(pos.x() - arrowOffset, screen.left() + screenMargin)
                                   : qMin(pos.x() - size.width() + arrowOffset,
                                          screen.right() - size.width() - screenMargin);
    move(x, placement.atTop ? pos.y() : pos.y() - size.height());
    return placement;
}

QPainterPath QBalloonTip::outline(const Placement &placement) const
{
    const int top = placement.top;
    const int bottom = placement.bottom;
    const int right = placement.right;
    const int diameter = 2 * cornerRadius;
    const int arrowEnd = arrowOffset + arrowWidth;

    QPainterPath path;
    path.moveTo(cornerRadius, top);
    if (m_showArrow && placement.atTop && placement.atLeft) {
        path.lineTo(arrowOffset, top);
        path.lineTo(arrowOffset, top - arrowHeight);
        path.lineTo(arrowEnd, top);
    } else if (m_showArrow && placement.atTop) {
        path.lineTo(right - arrowEnd, top);
        path.lineTo(right - arrowOffset, top - arrowHeight);
        path.lineTo(right - arrowOffset, top);
    }
    path.lineTo(right - cornerRadius, top);
    path.arcTo(right - diameter, top, diameter, diameter, 90, -90);
    path.lineTo(right, bottom - cornerRadius);
    path.arcTo(right - diameter, bottom - diameter, diameter, diameter, 0, -90);
    if (m_showArrow && !placement.atTop && !placement.atLeft) {
        path.lineTo(right - arrowOffset, bottom);
        path.lineTo(right - arrowOffset, bottom + arrowHeight);
        path.lineTo(right - arrowEnd, bottom);
    } else if (m_showArrow && !placement.atTop) {
        path.lineTo(arrowEnd, bottom);
        path.lineTo(arrowOffset, bottom + arrowHeight);
        path.lineTo(arrowOffset, bottom);
    }
    path.lineTo(cornerRadius, bottom);
    path.arcTo(0, bottom - diameter, diameter, diameter, -90, -90);
    path.lineTo(0, top + cornerRadius);
    path.arcTo(0, top, diameter, diameter, 180, -90);
    return path;
}

void QBalloonTip::cutOut(const QPainterPath &path)
{
    const QSize size = sizeHint();
    QBitmap mask(size);
    mask.fill(Qt::color0);
    QPainter maskPainter(&mask);
    maskPainter.setPen(QPen(Qt::color1, borderWidth));
    maskPainter.setBrush(QBrush(Qt::color1));
    maskPainter.drawPath(path);
    maskPainter.end();
    setMask(mask);

    m_pixmap = QPixmap(size * devicePixelRatioF());
    m_pixmap.setDevicePixelRatio(devicePixelRatioF());
    m_pixmap.fill(Qt::transparent);
    const QColor color = palette().color(QPalette::Window);
    QPainter painter(&m_pixmap);
    painter.setPen(QPen(color.darker(160), borderWidth));
    painter.setBrush(color);
    painter.drawPath(path);
}

void QBalloonTip::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        QWidget::timerEvent(event);
        return;
    }
    killTimer(m_timerId);
    m_timerId = noTimer;
    if (!underMouse())
        close();
}

void QBalloonTip::mousePressEvent(QMouseEvent *event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    const QPointer<QSystemTrayIcon> trayIcon = m_trayIcon;
    close();
    if (isLeft && trayIcon)
        Q_EMIT trayIcon->messageClicked();
}

void QBalloonTip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), m_pixmap);
}

void QBalloonTip::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
}

// A closed balloon lives on until control returns to the event loop. From here on it is not the
// current one any more, so that whoever hears of the click may show the next.
void QBalloonTip::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (m_timerId != noTimer)
        killTimer(m_timerId);
    m_timerId = noTimer;
    if (m_current == this)
        m_current = nullptr;
}

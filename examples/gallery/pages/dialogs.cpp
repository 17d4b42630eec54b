#include "gallerypage.h"
#include "samplesheet.h"

#include <nocturne/ComboFileChooser>
#include <nocturne/FileChooser>
#include <nocturne/LetterBoxWidget>
#include <nocturne/QBalloonTip>
#include <nocturne/QMessageBoxEx>

#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int frameMilliseconds = 40;
constexpr int balloonMilliseconds = 8000;
constexpr int cornerInset = 80;

/// Stands in for a video preview: bars, and a ball that crosses them.
class MovingPicture : public QWidget
{
public:
    MovingPicture()
    {
        setSizeIncrement(16, 9);
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this] {
            m_position = (m_position + 1) % 200;
            update();
        });
        timer->start(frameMilliseconds);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QColor bars[] = {Qt::lightGray, Qt::yellow, Qt::cyan, Qt::green,
                               Qt::magenta,   Qt::red,    Qt::blue};
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal barWidth = width() / 7.0;
        for (int i = 0; i < 7; ++i)
            painter.fillRect(QRectF(i * barWidth, 0, barWidth + 1, height()), bars[i].darker(160));
        const qreal radius = height() / 8.0;
        const qreal share = qAbs(m_position - 100) / 100.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(radius + share * (width() - 2 * radius), height() / 2.0),
                            radius, radius);
    }

private:
    int m_position = 60;
};

QWidget *createMessageBoxes()
{
    using Open =
        QMessageBox::StandardButton (*)(QWidget *, const QString &, const QString &,
                                        QMessageBox::StandardButtons, QMessageBox::StandardButton);
    struct Sample
    {
        const char *name;
        Open open;
    };
    const Sample samples[] = {
        {QT_TRANSLATE_NOOP("Gallery", "Information"), &QMessageBoxEx::information},
        {QT_TRANSLATE_NOOP("Gallery", "Question"), &QMessageBoxEx::question},
        {QT_TRANSLATE_NOOP("Gallery", "Warning"), &QMessageBoxEx::warning},
        {QT_TRANSLATE_NOOP("Gallery", "Critical"), &QMessageBoxEx::critical},
    };
    auto *box = new QGroupBox(Gallery::tr("Message boxes"));
    auto *row = new QHBoxLayout(box);
    for (const Sample &sample : samples) {
        auto *button = new QPushButton(Gallery::tr(sample.name));
        QObject::connect(button, &QPushButton::clicked, box, [box, sample] {
            sample.open(box->window(), Gallery::tr(sample.name),
                        Gallery::tr("Take the next cue live?"), QMessageBox::Yes | QMessageBox::No,
                        QMessageBox::Yes);
        });
        row->addWidget(button);
    }
    auto *custom = new QPushButton(Gallery::tr("Use own button texts from now on"));
    QObject::connect(custom, &QPushButton::clicked, box, [] {
        QMessageBoxEx::setCustomTextForButton(QMessageBox::Yes, Gallery::tr("Take it live"));
        QMessageBoxEx::setCustomTextForButton(QMessageBox::No, Gallery::tr("Hold"));
    });
    row->addWidget(custom);
    row->addStretch();
    return box;
}

QWidget *createBalloons()
{
    auto *box = new QGroupBox(Gallery::tr("Balloons"));
    auto *row = new QHBoxLayout(box);
    auto *arrow = new QCheckBox(Gallery::tr("Arrow"));
    arrow->setChecked(true);
    row->addWidget(arrow);
    const char *const names[] = {
        QT_TRANSLATE_NOOP("Gallery", "Top left"),
        QT_TRANSLATE_NOOP("Gallery", "Top right"),
        QT_TRANSLATE_NOOP("Gallery", "Bottom left"),
        QT_TRANSLATE_NOOP("Gallery", "Bottom right"),
    };
    for (int corner = 0; corner < 4; ++corner) {
        auto *button = new QPushButton(Gallery::tr(names[corner]));
        QObject::connect(button, &QPushButton::clicked, box, [arrow, corner, names] {
            const QRect screen = QGuiApplication::primaryScreen()->geometry().adjusted(
                cornerInset, cornerInset, -cornerInset, -cornerInset);
            const QPoint positions[] = {screen.topLeft(), screen.topRight(), screen.bottomLeft(),
                                        screen.bottomRight()};
            QBalloonTip::showBalloon(
                QSystemTrayIcon::Warning, Gallery::tr(names[corner]),
                Gallery::tr("The recording disk has room for five more minutes."), nullptr,
                positions[corner], balloonMilliseconds, arrow->isChecked());
        });
        row->addWidget(button);
    }
    row->addStretch();
    return box;
}

QWidget *createChoosers()
{
    auto *box = new QGroupBox(Gallery::tr("File choosers"));
    auto *form = new QFormLayout(box);
    auto *file = new FileChooser;
    form->addRow(Gallery::tr("Media file"), file);
    auto *folder = new FileChooser;
    folder->setMode(FileChooser::OpenDirectory);
    form->addRow(Gallery::tr("Folder"), folder);
    auto *combo = new ComboFileChooser;
    combo->addItems({QStringLiteral("opener.mov"), QStringLiteral("loop.mp4")});
    combo->setOpenFileType(OpenVideoFile);
    form->addRow(Gallery::tr("Recent videos"), combo);
    auto *heard = new QLabel(QStringLiteral("-"));
    QObject::connect(file, &FileChooser::fileNameChanged, heard, &QLabel::setText);
    QObject::connect(folder, &FileChooser::fileNameChanged, heard, &QLabel::setText);
    QObject::connect(combo, &ComboFileChooser::fileNameChanged, heard, &QLabel::setText);
    form->addRow(Gallery::tr("Reported"), heard);
    return box;
}

QWidget *createLetterBox()
{
    auto *box = new QGroupBox(Gallery::tr("Letter box"));
    auto *column = new QVBoxLayout(box);
    auto *letterBox = new LetterBoxWidget;
    letterBox->setWidget(new MovingPicture);
    letterBox->setMinimumHeight(260);
    column->addWidget(letterBox, 1);

    auto *row = new QHBoxLayout;
    auto *delay = new QSpinBox;
    delay->setRange(0, 1000);
    delay->setSuffix(QStringLiteral(" ms"));
    QObject::connect(delay, QOverload<int>::of(&QSpinBox::valueChanged), letterBox,
                     [letterBox](int ms) { letterBox->setResizeDelay(unsigned(ms)); });
    auto *margin = new QSpinBox;
    margin->setRange(0, 60);
    margin->setValue(letterBox->margin());
    QObject::connect(margin, QOverload<int>::of(&QSpinBox::valueChanged), letterBox,
                     &LetterBoxWidget::setMargin);
    row->addWidget(new QLabel(Gallery::tr("Resize delay")));
    row->addWidget(delay);
    row->addWidget(new QLabel(Gallery::tr("Margin")));
    row->addWidget(margin);
    row->addStretch();
    column->addLayout(row);
    return box;
}

/// A message box as it opens.
QWidget *createOpenMessageBox(QMessageBox::Icon icon, const char *title)
{
    auto *box = new QMessageBoxEx;
    box->setIcon(icon);
    box->setWindowTitle(Gallery::tr(title));
    box->setText(Gallery::tr("Take the next cue live?"));
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->ensurePolished();
    box->adjustSize();
    return new Picture(box);
}

/// A balloon as it opens. It cannot be had but on the screen, where it would surprise a user.
QWidget *createOpenBalloon()
{
    auto *label = new QLabel;
    if (!Gallery::isPhotographed())
        return label;
    QBalloonTip::showBalloon(QSystemTrayIcon::Warning, Gallery::tr("Warning"),
                             Gallery::tr("The recording disk has room for five more minutes."),
                             nullptr, QPoint(cornerInset, cornerInset), balloonMilliseconds);
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QBalloonTip *>(window) && window->isVisible())
            label->setPixmap(window->grab());
    }
    QBalloonTip::hideBalloon();
    return label;
}

QWidget *createDialogsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(createMessageBoxes(), 0, 0);
    grid->addWidget(createBalloons(), 1, 0);
    grid->addWidget(createChoosers(), 2, 0);
    grid->addWidget(createLetterBox(), 3, 0);
    auto *open = new QVBoxLayout;
    open->addWidget(
        createOpenMessageBox(QMessageBox::Question, QT_TRANSLATE_NOOP("Gallery", "Question")));
    open->addWidget(
        createOpenMessageBox(QMessageBox::Warning, QT_TRANSLATE_NOOP("Gallery", "Warning")));
    open->addWidget(createOpenBalloon());
    open->addStretch(1);
    grid->addLayout(open, 0, 1, 4, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    return page;
}

} // namespace

GALLERY_PAGE(600, "dialogs", QT_TRANSLATE_NOOP("Gallery", "Dialogs and pickers"), createDialogsPage)

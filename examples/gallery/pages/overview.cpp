#include "gallerypage.h"
#include "gallerypreview.h"

#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int columns = 4;
constexpr int cardMargin = 6;

/// The picture of a page and its title; a click shows the page.
class Card : public QAbstractButton
{
public:
    explicit Card(const GalleryPage &page)
        : m_page(page)
    {
        setText(page.translatedTitle());
        setAccessibleName(text());
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        connect(this, &QAbstractButton::clicked, this, [this] {
            QMetaObject::invokeMethod(window(), "showPage", Qt::QueuedConnection,
                                      Q_ARG(QString, QLatin1String(m_page.name)));
        });
    }

    QSize sizeHint() const override
    {
        return galleryPreviewSize + QSize(2 * cardMargin, 3 * cardMargin + fontMetrics().height());
    }

    void makePicture()
    {
        m_picture = galleryPreview(m_page).picture;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const bool active = isEnabled() && (underMouse() || hasFocus());
        const QRect picture(QPoint((width() - galleryPreviewSize.width()) / 2, cardMargin),
                            galleryPreviewSize);
        painter.fillRect(picture, palette().color(QPalette::Base));
        painter.setOpacity(isEnabled() ? 1.0 : 0.5);
        painter.drawPixmap(picture.topLeft(), m_picture);
        painter.setOpacity(1.0);
        painter.setPen(palette().color(active ? QPalette::Highlight : QPalette::Mid));
        painter.drawRect(picture.adjusted(-1, -1, 0, 0));
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.state |= QStyle::State_KeyboardFocusChange;
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
        painter.setPen(palette().color(QPalette::WindowText));
        const QRect title(picture.left(), picture.bottom() + cardMargin, picture.width(),
                          fontMetrics().height());
        painter.drawText(title, Qt::AlignCenter,
                         fontMetrics().elidedText(text(), Qt::ElideRight, title.width()));
    }

private:
    GalleryPage m_page;
    QPixmap m_picture;
};

/// All pages at a glance, in the groups of the list.
class Overview : public QWidget
{
public:
    explicit Overview(QWidget *parent)
        : QWidget(parent)
    {
        auto *column = new QVBoxLayout(this);
        for (bool standard : {false, true})
            addGroup(column, standard);
        column->addStretch(1);
        if (Gallery::isPhotographed()) {
            for (Card *card : qAsConst(m_cards))
                card->makePicture();
        } else {
            startPictures();
        }
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange)
            startPictures();
    }

private:
    void addGroup(QVBoxLayout *column, bool standard)
    {
        auto *heading = new QLabel(galleryHeading(standard));
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        column->addWidget(heading);
        auto *grid = new QGridLayout;
        grid->setSpacing(2 * cardMargin);
        int place = 0;
        for (const GalleryPage &page : galleryPages()) {
            if (page.isStandard() != standard || page.create == &Overview::create)
                continue;
            auto *card = new Card(page);
            m_cards << card;
            grid->addWidget(card, place / columns, place % columns);
            ++place;
        }
        column->addLayout(grid);
    }

    /// One picture each time the user lets the program breathe.
    void startPictures()
    {
        m_next = 0;
        m_timer.start(0, this);
    }

    void timerEvent(QTimerEvent *event) override
    {
        if (event->timerId() != m_timer.timerId())
            return;
        if (m_next < m_cards.size())
            m_cards.at(m_next++)->makePicture();
        else
            m_timer.stop();
    }

public:
    static QWidget *create(QWidget *parent) { return new Overview(parent); }

private:
    QVector<Card *> m_cards;
    QBasicTimer m_timer;
    int m_next = 0;
};

} // namespace

GALLERY_PAGE(0, "overview", QT_TRANSLATE_NOOP("Gallery", "Overview"), Overview::create)

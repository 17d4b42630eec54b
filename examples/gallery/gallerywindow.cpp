#include "gallerywindow.h"

#include "galleryface.h"
#include "gallerylanguage.h"
#include "gallerypreview.h"

#include <nocturne/SearchLineEdit>

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

#include <QAction>
#include <QActionGroup>

namespace {

constexpr int pageRole = Qt::UserRole; // index of the page, or a heading's -1 and -2

}

GalleryWindow::GalleryWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_pages(galleryPages())
    , m_search(new SearchLineEdit)
    , m_list(new QListWidget)
    , m_area(new QScrollArea)
    , m_language(createGalleryLanguageBox())
{
    auto *side = new QWidget;
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_search);
    column->addWidget(m_list);
    auto *splitter = new QSplitter;
    splitter->addWidget(side);
    splitter->addWidget(m_area);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 1000});
    setCentralWidget(splitter);
    m_area->setWidgetResizable(true);

    auto *bar = addToolBar(QString());
    bar->setMovable(false);
    bar->addWidget(m_language);
    bar->addSeparator();
    m_rightToLeft = bar->addAction(QString());
    m_rightToLeft->setCheckable(true);
    connect(m_rightToLeft, &QAction::toggled, this, [splitter](bool on) {
        QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
        splitter->refresh(); // it does not turn by itself before it is resized
    });
    m_enabled = bar->addAction(QString());
    m_enabled->setCheckable(true);
    m_enabled->setChecked(true);
    connect(m_enabled, &QAction::toggled, this, [this](bool on) {
        if (m_area->widget())
            m_area->widget()->setEnabled(on);
    });

    addFaces(bar);

    fillList();
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::showRow);
    connect(m_search, &QLineEdit::textChanged, this, &GalleryWindow::search);

    retranslate();
    resize(1240, 820);
    showPage(QLatin1String(m_pages.first().name));
}

bool GalleryWindow::showPage(const QString &name)
{
    for (int row = 0; row < m_list->count(); ++row) {
        const GalleryPage *page = pageOf(m_list->item(row));
        if (page && name == QLatin1String(page->name)) {
            m_list->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

const GalleryPage *GalleryWindow::pageOf(const QListWidgetItem *item) const
{
    const int index = item->data(pageRole).toInt();
    return index < 0 ? nullptr : &m_pages.at(index);
}

void GalleryWindow::fillList()
{
    const auto addHeading = [this](bool standard) {
        auto *item = new QListWidgetItem(m_list);
        item->setFlags(Qt::NoItemFlags);
        QFont bold = m_list->font();
        bold.setBold(true);
        item->setFont(bold);
        item->setData(pageRole, standard ? -2 : -1);
    };
    for (int i = 0; i < m_pages.size(); ++i) {
        // The overview stands above both groups.
        if (i == 1 || (i > 1 && m_pages.at(i).isStandard() && !m_pages.at(i - 1).isStandard()))
            addHeading(m_pages.at(i).isStandard());
        (new QListWidgetItem(m_list))->setData(pageRole, i);
    }
}

/// Leaves in the list what has \a text in its title or as a class.
void GalleryWindow::search(const QString &text)
{
    QListWidgetItem *heading = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        const GalleryPage *page = pageOf(item);
        if (!page) {
            heading = item;
            heading->setHidden(!text.isEmpty());
            continue;
        }
        const bool found =
            text.isEmpty() || item->text().contains(text, Qt::CaseInsensitive)
            || (row > 0
                && !galleryPreview(*page).classes.filter(text, Qt::CaseInsensitive).isEmpty());
        item->setHidden(!found);
        if (found && heading)
            heading->setHidden(false);
    }
}

void GalleryWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        retranslate();
    if (event->type() == QEvent::LanguageChange) {
        QTimer::singleShot(0, this, [this] {
            retranslate();
            showRow(m_list->currentRow());
        });
    }
}

void GalleryWindow::addFaces(QToolBar *bar)
{
    bar->addSeparator();
    m_faces = new QActionGroup(this);
    for (GalleryFace face : {GalleryFace::Exact, GalleryFace::Readable, GalleryFace::Dimmed}) {
        QAction *action = m_faces->addAction(bar->addAction(QString()));
        action->setCheckable(true);
        action->setChecked(face == GalleryFace::Exact);
        // The button that was pressed is still at work in the style that goes.
        connect(
            action, &QAction::triggered, this, [face] { showGalleryFace(face); },
            Qt::QueuedConnection);
    }
}

void GalleryWindow::showRow(int row)
{
    const GalleryPage *page = row < 0 ? nullptr : pageOf(m_list->item(row));
    if (!page)
        return;
    QWidget *widget = page->create(nullptr);
    widget->setEnabled(m_enabled->isChecked());
    m_area->setWidget(widget);
}

void GalleryWindow::retranslate()
{
    setWindowTitle(Gallery::tr("libnocturne gallery"));
    m_rightToLeft->setText(Gallery::tr("Right to left"));
    m_enabled->setText(Gallery::tr("Enabled"));
    const QList<QAction *> faces = m_faces->actions();
    faces.at(0)->setText(Gallery::tr("Exact"));
    faces.at(1)->setText(Gallery::tr("Readable"));
    faces.at(2)->setText(Gallery::tr("Dimmed"));
    m_search->setPlaceholderText(Gallery::tr("Search"));
    m_language->setToolTip(Gallery::tr("Language"));
    m_language->setCurrentIndex(qMax(0, m_language->findData(galleryCatalogue())));
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        const GalleryPage *page = pageOf(item);
        item->setText(page ? page->translatedTitle()
                           : galleryHeading(item->data(pageRole).toInt() == -2));
        if (!page) // cannot be chosen, but is read like the others
            item->setForeground(palette().color(QPalette::Active, QPalette::Text));
    }
}

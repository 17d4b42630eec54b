#include "gallerywindow.h"

#include "galleryface.h"

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>

#include <QAction>
#include <QActionGroup>

GalleryWindow::GalleryWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_pages(galleryPages())
    , m_list(new QListWidget)
    , m_area(new QScrollArea)
{
    auto *splitter = new QSplitter;
    splitter->addWidget(m_list);
    splitter->addWidget(m_area);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 1000});
    setCentralWidget(splitter);
    m_area->setWidgetResizable(true);

    auto *bar = addToolBar(QString());
    bar->setMovable(false);
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

    for (int i = 0; i < m_pages.size(); ++i)
        m_list->addItem(QString());
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::showRow);

    retranslate();
    resize(1240, 820);
    m_list->setCurrentRow(0);
}

bool GalleryWindow::showPage(const QString &name)
{
    for (int row = 0; row < m_pages.size(); ++row) {
        if (name == QLatin1String(m_pages.at(row).name)) {
            m_list->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

void GalleryWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
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
    if (row < 0)
        return;
    QWidget *page = m_pages.at(row).create(nullptr);
    page->setEnabled(m_enabled->isChecked());
    m_area->setWidget(page);
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
    for (int row = 0; row < m_pages.size(); ++row)
        m_list->item(row)->setText(m_pages.at(row).translatedTitle());
}

#include "binpanel.h"

#include "desk.h"
#include "testpictures.h"

#include <nocturne/CroppingLabel>
#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr QSize thumbnailSize(112, 63);

QIcon thumbnail(const Clip &clip)
{
    const QImage picture = testPicture(clip.pattern, clip.in);
    return QPixmap::fromImage(
        picture.scaled(thumbnailSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

} // namespace

BinPanel::BinPanel(Desk *desk, QWidget *parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_list(new ListWidget)
    , m_name(new CroppingLabel)
    , m_remove(new QPushButton)
{
    m_list->setObjectName(QStringLiteral("bin"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setIconSize(thumbnailSize);
    m_list->setDragDropMode(QAbstractItemView::DragDrop);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setItemDelegate(new ItemDelegate(m_list));
    m_name->setObjectName(QStringLiteral("clipName"));
    m_name->setEditable(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_name);
    layout->addWidget(m_remove);

    connect(m_list, &ListWidget::dragDropFiles, desk, &Desk::addFiles);
    connect(m_list, &ListWidget::itemMoved, this, &BinPanel::move);
    connect(m_list, &QListWidget::currentRowChanged, desk, &Desk::select);
    connect(m_name, &CroppingLabel::editFinished, this, &BinPanel::rename);
    connect(m_remove, &QPushButton::clicked, desk,
            [this] { m_desk->removeClip(m_list->currentRow()); });
    connect(desk, &Desk::changed, this, &BinPanel::refresh);
    retranslate();
    refresh();
}

void BinPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void BinPanel::refresh()
{
    const QSignalBlocker blocker(m_list);
    const DeskState &state = m_desk->state();
    while (m_list->count() > state.clips.size())
        delete m_list->takeItem(m_list->count() - 1);
    for (int row = 0; row < state.clips.size(); ++row) {
        const Clip &clip = state.clips.at(row);
        if (row == m_list->count())
            m_list->addItem(new QListWidgetItem);
        QListWidgetItem *item = m_list->item(row);
        const QVariant shown = QVariantList{clip.pattern, clip.in};
        if (item->data(Qt::UserRole) != shown) {
            item->setData(Qt::UserRole, shown);
            item->setIcon(thumbnail(clip));
        }
        item->setText(clip.name);
    }
    m_list->setCurrentRow(state.current);

    const Clip *clip = state.currentClip();
    m_name->setText(clip ? clip->name : QString());
    m_name->setEnabled(clip);
    m_remove->setEnabled(clip);
}

void BinPanel::retranslate()
{
    m_remove->setText(tr("Remove clip"));
    m_list->setToolTip(tr("Drop files here"));
}

void BinPanel::move(QListWidgetItem *item, QListWidgetItem *target)
{
    const int to = target ? m_list->row(target) : m_list->count() - 1;
    m_desk->moveClip(m_list->row(item), to);
}

void BinPanel::rename(const QString &name)
{
    m_desk->edit(Desk::Clips, Desk::NewStep, tr("Rename clip"), [&](DeskState &state) {
        if (state.currentClip())
            state.clips[state.current].name = name.trimmed();
    });
}

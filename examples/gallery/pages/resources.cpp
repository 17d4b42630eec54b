#include "gallerylanguage.h"
#include "gallerypage.h"

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr QSize previewSize(320, 200);

// -- Catalogues -------------------------------------------------------------------------------

/// The library's own texts in the language that is installed.
QLabel *createLibraryTexts()
{
    const QStringList texts = {
        QCoreApplication::translate("FileChooser", "load"),
        QCoreApplication::translate("LineEditButton", "Clear"),
        QCoreApplication::translate("ComboFileChooser", "Media (*.%1)")
            .arg(QStringLiteral("mov *.wav")),
    };
    auto *label = new QLabel(texts.join(QStringLiteral(" · ")));
    label->setWordWrap(true);
    return label;
}

// -- Icons ------------------------------------------------------------------------------------

/// The picture at its real size if that fits, beside the sizes of buttons and menus.
QPixmap preview(const QString &path, qreal ratio)
{
    QPixmap pixmap(previewSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QIcon icon(path);
    int x = 0;
    for (int size : {16, 24, 32}) {
        icon.paint(&painter, x, 0, size, size);
        x += size + 12;
    }
    const QSize available(previewSize.width(), previewSize.height() - 44);
    const QPixmap picture(path);
    const QSize size =
        picture.size().boundedTo(picture.size().scaled(available, Qt::KeepAspectRatio));
    painter.drawPixmap(QRect(QPoint(0, 44), size), picture);
    return pixmap;
}

QListWidget *createIconList()
{
    auto *list = new QListWidget;
    list->setViewMode(QListView::IconMode);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize(QSize(32, 32));
    list->setWordWrap(false);
    list->setMinimumSize(420, 520);
    QFont small = list->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    list->setFont(small);
    const QFontMetrics metrics(small);
    int widest = 0;
    const QDir icons(QStringLiteral(":/resources/appicons"));
    for (const QFileInfo &file : icons.entryInfoList(QDir::Files, QDir::Name)) {
        auto *item = new QListWidgetItem(QIcon(file.filePath()), file.fileName(), list);
        item->setData(pathRole, file.filePath());
        item->setToolTip(file.filePath());
        widest = qMax(widest, metrics.horizontalAdvance(file.fileName()));
    }
    list->setGridSize(QSize(widest + 16, 62));
    return list;
}

void showMatches(QListWidget *list, const QString &filter, QLabel *count)
{
    int shown = 0;
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem *item = list->item(row);
        const bool matches = item->text().contains(filter, Qt::CaseInsensitive);
        item->setHidden(!matches);
        shown += matches;
    }
    count->setText(Gallery::tr("%1 of %2 images").arg(shown).arg(list->count()));
}

void showDetails(const QListWidgetItem *item, QLabel *picture, QLabel *details)
{
    if (!item)
        return;
    const QString path = item->data(pathRole).toString();
    const QSize size = QPixmap(path).size();
    picture->setPixmap(preview(path, picture->devicePixelRatioF()));
    details->setText(QStringLiteral("%1\n%2 × %3").arg(path).arg(size.width()).arg(size.height()));
}

QWidget *createResourcesPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *filter = new QLineEdit;
    filter->setPlaceholderText(Gallery::tr("Filter by name"));
    filter->setClearButtonEnabled(true);
    auto *count = new QLabel;
    auto *list = createIconList();
    auto *picture = new QLabel;
    picture->setFixedSize(previewSize);
    auto *details = new QLabel;
    details->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *form = new QFormLayout;
    form->addRow(Gallery::tr("Language"), createGalleryLanguageBox());
    form->addRow(Gallery::tr("Texts of the library"), createLibraryTexts());

    auto *side = new QVBoxLayout;
    side->addLayout(form);
    side->addSpacing(16);
    side->addWidget(picture);
    side->addWidget(details);
    side->addStretch();

    auto *left = new QVBoxLayout;
    auto *filterRow = new QHBoxLayout;
    filterRow->addWidget(filter, 1);
    filterRow->addWidget(count);
    left->addLayout(filterRow);
    left->addWidget(list, 1);

    auto *layout = new QHBoxLayout(page);
    layout->setSpacing(16);
    layout->addLayout(left, 1);
    layout->addLayout(side);

    QObject::connect(filter, &QLineEdit::textChanged, list,
                     [list, count](const QString &name) { showMatches(list, name, count); });
    QObject::connect(
        list, &QListWidget::currentItemChanged, picture,
        [picture, details](QListWidgetItem *current) { showDetails(current, picture, details); });
    showMatches(list, QString(), count);
    list->setCurrentRow(0);
    return page;
}

} // namespace

GALLERY_PAGE(880, "resources", QT_TRANSLATE_NOOP("Gallery", "Resources"), createResourcesPage)

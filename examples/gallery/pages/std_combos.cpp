#include "gallerypage.h"
#include "posed.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QFontComboBox>

namespace {

void addSources(QComboBox *combo, bool icons)
{
    const QStringList names = {Gallery::tr("Camera 1"), Gallery::tr("Camera 2"),
                               Gallery::tr("Clip player"), Gallery::tr("Titles")};
    for (const QString &name : names)
        combo->addItem(icons ? sampleIcon() : QIcon(), name);
}

/// The list of \a combo as it looks when open, with the second entry under the pointer.
QWidget *openList(QComboBox *combo)
{
    addSources(combo, combo->isEditable());
    combo->insertSeparator(3);
    QAbstractItemView *view = combo->view();
    QWidget *container = view->parentWidget();
    view->setCurrentIndex(combo->model()->index(1, 0));
    const int rows = combo->count();
    int height = container->height() - container->contentsRect().height();
    for (int row = 0; row < rows; ++row)
        height += view->sizeHintForRow(row);
    container->resize(qMax(combo->sizeHint().width(), view->sizeHintForColumn(0)) + 24, height + 4);
    return Picture::of(container, combo);
}

QWidget *createCombosPage(QWidget *parent)
{
    auto *sheet = new SampleSheet(parent);
    sheet->addHeading(Gallery::tr("Combo boxes"),
                      {Gallery::tr("Normal"), Gallery::tr("Hovered"), Gallery::tr("Open"),
                       Gallery::tr("Focused"), Gallery::tr("Disabled")});
    const Pose open{QStyle::State_On};
    const QVector<Pose> poses = {Poses::normal, Poses::hovered, open, Poses::focused,
                                 Poses::disabled};
    for (bool editable : {false, true}) {
        for (bool icons : {false, true}) {
            QString label = editable ? Gallery::tr("Editable") : Gallery::tr("Not editable");
            if (icons)
                label =
                    editable ? Gallery::tr("Editable, icons") : Gallery::tr("Not editable, icons");
            addPoses<QComboBox>(sheet, label, poses, [editable, icons](QComboBox *combo) {
                combo->setEditable(editable);
                addSources(combo, icons);
            });
        }
    }
    addPoses<QComboBox>(sheet, Gallery::tr("Without frame"), poses, [](QComboBox *combo) {
        combo->setFrame(false);
        addSources(combo, false);
    });
    auto *fonts = new QFontComboBox;
    fonts->setMaximumWidth(160);
    sheet->addRow(Gallery::tr("Fonts"), {fonts});

    sheet->addHeading(Gallery::tr("Open lists"));
    auto *editable = new QComboBox;
    editable->setEditable(true);
    sheet->addRow(Gallery::tr("Not editable, editable"),
                  {openList(new QComboBox), openList(editable)});
    return sheet;
}

} // namespace

GALLERY_PAGE(120, "std_combos", QT_TRANSLATE_NOOP("Gallery", "Combo boxes"), createCombosPage)

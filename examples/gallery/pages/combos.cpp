#include "gallerypage.h"

#include <nocturne/CheckComboBox>
#include <nocturne/ComboBox>
#include <nocturne/ComboBoxDelegate>
#include <nocturne/ComboBoxListView>
#include <nocturne/FontComboBox>

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace {

void addSources(ComboBox *combo)
{
    combo->addParentItem(Gallery::tr("Cameras"));
    combo->addChildItem(Gallery::tr("Stage left"), 1);
    combo->addChildItem(Gallery::tr("Stage right"), 2);
    combo->insertSeparator(combo->count());
    combo->addParentItem(Gallery::tr("Clips"));
    combo->addChildItem(Gallery::tr("Intro"), 3);
    combo->addChildItem(Gallery::tr("Interview"), 4);
    combo->setCurrentIndex(combo->findData(2));
}

ComboBox *createGroupedCombo()
{
    auto *combo = new ComboBox;
    combo->setView(new ComboBoxListView(combo));
    addSources(combo);
    return combo;
}

CheckComboBox *createCheckCombo(const QVector<Qt::CheckState> &states)
{
    const char *const outputs[] = {
        QT_TRANSLATE_NOOP("Gallery", "Program"),
        QT_TRANSLATE_NOOP("Gallery", "Preview"),
        QT_TRANSLATE_NOOP("Gallery", "Recorder"),
    };
    auto *combo = new CheckComboBox;
    combo->setNoneCheckedText(Gallery::tr("No output"));
    combo->setAllCheckedText(Gallery::tr("All outputs"));
    combo->setUndeterminedText(Gallery::tr("Undetermined"));
    int output = 0;
    for (const char *name : outputs) {
        if (output < states.size())
            combo->addCheckItem(Gallery::tr(name), output, states.at(output));
        ++output;
    }
    return combo;
}

/// The list of \a combo, which is else seen only while its popup is open.
template <typename Delegate>
QWidget *createOpenList(QComboBox *combo)
{
    auto *list = new QListView;
    combo->setParent(list);
    combo->hide();
    list->setModel(combo->model());
    list->setItemDelegate(new Delegate(list));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setCurrentIndex(combo->model()->index(combo->currentIndex(), 0));
    list->setMinimumHeight(170);
    return list;
}

QWidget *createFontPreview()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *fonts = new FontComboBox;
    auto *sample = new QLabel(Gallery::tr("Tonight live from the studio"));
    const auto show = [sample](QFont font) {
        font.setPointSize(16);
        sample->setFont(font);
    };
    show(fonts->currentFont());
    QObject::connect(fonts, &FontComboBox::highlightFontChanged, sample, show);
    QObject::connect(fonts, &QFontComboBox::currentFontChanged, sample, show);
    fonts->setMinimumWidth(200);
    layout->addWidget(fonts);
    layout->addWidget(sample, 1);
    return row;
}

QWidget *createCombosPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *form = new QFormLayout(page);
    const auto add = [form](const char *caption, QWidget *field) {
        form->addRow(Gallery::tr(caption), field);
    };

    add(QT_TRANSLATE_NOOP("Gallery", "Grouped"), createGroupedCombo());
    add(QT_TRANSLATE_NOOP("Gallery", "Its list"),
        createOpenList<ComboBoxDelegate>(createGroupedCombo()));

    const auto checked = Qt::Checked;
    const auto unchecked = Qt::Unchecked;
    add(QT_TRANSLATE_NOOP("Gallery", "None checked"),
        createCheckCombo({unchecked, unchecked, unchecked}));
    add(QT_TRANSLATE_NOOP("Gallery", "Some checked"),
        createCheckCombo({checked, unchecked, checked}));
    add(QT_TRANSLATE_NOOP("Gallery", "All checked"), createCheckCombo({checked, checked, checked}));
    add(QT_TRANSLATE_NOOP("Gallery", "Partially checked"),
        createCheckCombo({checked, Qt::PartiallyChecked, unchecked}));
    add(QT_TRANSLATE_NOOP("Gallery", "Without items"), createCheckCombo({}));
    add(QT_TRANSLATE_NOOP("Gallery", "Their list"),
        createOpenList<CheckComboBox::QCheckListStyledItemDelegate>(
            createCheckCombo({checked, Qt::PartiallyChecked, unchecked})));

    add(QT_TRANSLATE_NOOP("Gallery", "Font with preview"), createFontPreview());
    return page;
}

} // namespace

GALLERY_PAGE(410, "combos", QT_TRANSLATE_NOOP("Gallery", "Grouped and check combo boxes"),
             createCombosPage)

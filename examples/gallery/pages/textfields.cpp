#include "gallerypage.h"

#include <nocturne/CroppingLabel>
#include <nocturne/SearchLineEdit>

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace {

CroppingLabel *createLabel(const QString &name, int width, Qt::TextElideMode mode)
{
    auto *label = new CroppingLabel;
    label->setElideMode(mode);
    label->setFixedWidth(width);
    label->setMinimumHeight(24);
    label->setEditable(true);
    label->setText(name);
    return label;
}

QWidget *createTextFieldsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *form = new QFormLayout(page);
    const auto add = [form](const char *caption, QWidget *field) {
        form->addRow(Gallery::tr(caption), field);
    };

    auto *empty = new SearchLineEdit;
    empty->setPlaceholderText(Gallery::tr("Search"));
    add(QT_TRANSLATE_NOOP("Gallery", "Search field, empty"), empty);
    auto *filled = new SearchLineEdit;
    filled->setText(Gallery::tr("interview"));
    add(QT_TRANSLATE_NOOP("Gallery", "Search field, with text"), filled);

    const QString name = Gallery::tr("Opening titles, second version");
    add(QT_TRANSLATE_NOOP("Gallery", "Label that fits"), createLabel(name, 300, Qt::ElideRight));
    add(QT_TRANSLATE_NOOP("Gallery", "Cropped at the right"),
        createLabel(name, 110, Qt::ElideRight));
    add(QT_TRANSLATE_NOOP("Gallery", "Cropped in the middle"),
        createLabel(name, 110, Qt::ElideMiddle));
    add(QT_TRANSLATE_NOOP("Gallery", "Cropped at the left"), createLabel(name, 110, Qt::ElideLeft));

    CroppingLabel *fixed = createLabel(name, 110, Qt::ElideRight);
    fixed->setEditable(false);
    add(QT_TRANSLATE_NOOP("Gallery", "Not editable"), fixed);

    CroppingLabel *edited = createLabel(name, 300, Qt::ElideRight);
    add(QT_TRANSLATE_NOOP("Gallery", "Being edited"), edited);
    auto *log = new QLabel(Gallery::tr("Click a name to edit it."));
    for (CroppingLabel *label : page->findChildren<CroppingLabel *>()) {
        QObject::connect(label, &CroppingLabel::editFinished, log, [log](const QString &typed) {
            log->setText(Gallery::tr("Renamed to \"%1\"").arg(typed));
        });
    }
    form->addRow(QString(), log);
    QMetaObject::invokeMethod(
        edited, [edited] { edited->editBegin(); }, Qt::QueuedConnection);
    return page;
}

} // namespace

GALLERY_PAGE(420, "textfields", QT_TRANSLATE_NOOP("Gallery", "Text fields"), createTextFieldsPage)

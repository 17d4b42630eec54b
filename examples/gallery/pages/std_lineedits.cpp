#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

namespace {

QLineEdit *lineEdit(const QString &text = QString())
{
    auto *edit = new QLineEdit(text);
    edit->setMinimumWidth(240);
    return edit;
}

QWidget *createLineEditsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *form = new QFormLayout(page);
    form->addRow(Gallery::tr("Text"), lineEdit(Gallery::tr("Evening show")));

    auto *selected = lineEdit(Gallery::tr("Evening show"));
    selected->setSelection(0, 7);
    form->addRow(Gallery::tr("With a selection"), selected);

    auto *hint = lineEdit();
    hint->setPlaceholderText(Gallery::tr("Name of the show"));
    form->addRow(Gallery::tr("With a hint"), hint);

    auto *clearable = lineEdit(Gallery::tr("Evening show"));
    clearable->setClearButtonEnabled(true);
    form->addRow(Gallery::tr("With a clear button"), clearable);

    auto *password = lineEdit(QStringLiteral("secret"));
    password->setEchoMode(QLineEdit::Password);
    form->addRow(Gallery::tr("Password"), password);

    auto *frameless = lineEdit(Gallery::tr("Evening show"));
    frameless->setFrame(false);
    form->addRow(Gallery::tr("Without frame"), frameless);

    auto *readOnly = lineEdit(Gallery::tr("Evening show"));
    readOnly->setReadOnly(true);
    form->addRow(Gallery::tr("Read only"), readOnly);

    auto *disabled = lineEdit(Gallery::tr("Evening show"));
    disabled->setEnabled(false);
    form->addRow(Gallery::tr("Disabled"), disabled);

    form->addRow(Gallery::tr("Several lines"),
                 new QPlainTextEdit(Gallery::tr("Roll the titles.\nFade to black.")));
    return page;
}

} // namespace

GALLERY_PAGE(105, "std_lineedits", QT_TRANSLATE_NOOP("Gallery", "Line edits"), createLineEditsPage)

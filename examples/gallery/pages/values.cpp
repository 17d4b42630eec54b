#include "gallerypage.h"

#include <nocturne/SpinBox>

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

namespace {

constexpr int longestLog = 500;

SpinBox *addSpinBox(QFormLayout *form, const char *name, int minimum, int maximum, int value,
                    QPlainTextEdit *log)
{
    auto *spinBox = new SpinBox;
    spinBox->setRange(minimum, maximum);
    spinBox->setValue(value);
    const QString label = Gallery::tr(name);
    QObject::connect(spinBox, QOverload<double, bool>::of(&SpinBox::valueChanged), log,
                     [log, label](double changed, bool first) {
                         log->appendPlainText(
                             QStringLiteral("%1: %2 %3")
                                 .arg(label)
                                 .arg(changed)
                                 .arg(first ? Gallery::tr("(new edit)") : QString()));
                     });
    form->addRow(label, spinBox);
    return spinBox;
}

QWidget *createValuesPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *columns = new QHBoxLayout(page);
    auto *log = new QPlainTextEdit;
    log->setReadOnly(true);
    log->setMaximumBlockCount(longestLog);

    auto *box = new QGroupBox(Gallery::tr("Drag across a number; click it to type"));
    auto *form = new QFormLayout(box);
    SpinBox *x = addSpinBox(form, QT_TRANSLATE_NOOP("Gallery", "Position X"), -1920, 1920, 0, log);
    SpinBox *y =
        addSpinBox(form, QT_TRANSLATE_NOOP("Gallery", "Position Y"), -1080, 1080, 120, log);
    SpinBox *opacity = addSpinBox(form, QT_TRANSLATE_NOOP("Gallery", "Opacity"), 0, 100, 80, log);
    for (SpinBox *box : {x, y, opacity}) { // somebody has stepped through them before
        for (int step = 0; step < 4; ++step)
            box->stepUp();
    }
    SpinBox *mixed =
        addSpinBox(form, QT_TRANSLATE_NOOP("Gallery", "Mixed selection"), 0, 255, 30, log);
    mixed->setValue(30, true);
    SpinBox *disabled = addSpinBox(form, QT_TRANSLATE_NOOP("Gallery", "Disabled"), 0, 255, 42, log);
    disabled->setEnabled(false);
    form->addRow(new QLabel(Gallery::tr("Ctrl doubles the speed of a drag, Shift halves it.")));

    auto *relative = new QPushButton(Gallery::tr("Show the mixed selection as --"));
    QObject::connect(relative, &QPushButton::clicked, mixed,
                     [mixed] { mixed->setValue(mixed->value(), true); });
    form->addRow(relative);

    columns->addWidget(box);
    columns->addWidget(log, 1);
    return page;
}

} // namespace

GALLERY_PAGE(300, "values", QT_TRANSLATE_NOOP("Gallery", "Values"), createValuesPage)

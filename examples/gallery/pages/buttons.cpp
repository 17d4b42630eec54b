#include "gallerypage.h"

#include <nocturne/ButtonGroup>
#include <nocturne/CheckBox>
#include <nocturne/ClickableLabel>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/RadioButton>
#include <nocturne/SlideCheckBox>

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>

namespace {

/// A row of widgets in a cell of the page.
QWidget *rowOf(const QVector<QWidget *> &widgets)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 6, 0, 6);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch(1);
    return row;
}

CheckBox *checkBox(const char *caption, Qt::CheckState state)
{
    auto *box = new CheckBox;
    box->setText(Gallery::tr(caption));
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

QWidget *createCheckBoxes()
{
    CheckBox *disabled = checkBox(QT_TRANSLATE_NOOP("Gallery", "Disabled"), Qt::Checked);
    disabled->setEnabled(false);
    return rowOf({checkBox(QT_TRANSLATE_NOOP("Gallery", "Unchecked"), Qt::Unchecked),
                  checkBox(QT_TRANSLATE_NOOP("Gallery", "Checked"), Qt::Checked),
                  checkBox(QT_TRANSLATE_NOOP("Gallery", "Partially checked"), Qt::PartiallyChecked),
                  disabled});
}

/// Three buses in a group that a slider checks by id; the slider also reaches an id without a
/// button, which changes nothing.
QWidget *createRadioButtons()
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 3);
    slider->setFixedWidth(120);

    auto *group = new ButtonGroup(slider);
    QVector<QWidget *> widgets;
    for (int id = 0; id < 3; ++id) {
        auto *button = new RadioButton;
        button->setText(Gallery::tr("Bus %1").arg(QChar::fromLatin1(char('A' + id))));
        group->addButton(button, id);
        widgets << button;
    }
    group->setValue(0);
    QObject::connect(slider, &QSlider::valueChanged, group, &ButtonGroup::setValue);

    auto *disabled = new RadioButton;
    disabled->setText(Gallery::tr("Disabled"));
    disabled->setEnabled(false);
    widgets << disabled << slider;
    return rowOf(widgets);
}

QWidget *createSwitches()
{
    QVector<QWidget *> switches;
    for (bool on : {true, false}) {
        auto *slide = new SlideCheckBox;
        slide->setFixedSize(120, 34);
        slide->setChecked(on);
        switches << slide;
    }
    return rowOf(switches);
}

QWidget *createDelayButtons()
{
    auto *button = new DelayButton;
    button->setText(Gallery::tr("Half a second"));
    button->setCheckable(true);

    auto *slow = new DelayButton;
    slow->setText(Gallery::tr("Two seconds"));
    slow->setCheckable(true);
    slow->setDelay(2000);

    auto *tool = new DelayToolButton;
    tool->setText(Gallery::tr("Tool button"));
    tool->setCheckable(true);

    auto *plain = new DelayButton;
    plain->setText(Gallery::tr("Not checkable: no delay"));
    return rowOf({button, slow, tool, plain});
}

QWidget *createLabels()
{
    auto *label = new ClickableLabel;
    label->setText(Gallery::tr("Click this label"));
    auto *counter = new QLabel(QStringLiteral("0"));
    QObject::connect(label, &ClickableLabel::clicked, counter,
                     [counter] { counter->setNum(counter->text().toInt() + 1); });
    return rowOf({label, counter});
}

QWidget *createButtonsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    int line = 0;
    const auto add = [grid, &line](const char *caption, QWidget *row) {
        grid->addWidget(new QLabel(Gallery::tr(caption)), line, 0);
        grid->addWidget(row, line++, 1);
    };
    add(QT_TRANSLATE_NOOP("Gallery", "Check boxes"), createCheckBoxes());
    add(QT_TRANSLATE_NOOP("Gallery", "Radio buttons, set by id"), createRadioButtons());
    add(QT_TRANSLATE_NOOP("Gallery", "Switches"), createSwitches());
    add(QT_TRANSLATE_NOOP("Gallery", "Delay buttons"), createDelayButtons());
    add(QT_TRANSLATE_NOOP("Gallery", "Clickable label"), createLabels());
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(line, 1);
    return page;
}

} // namespace

GALLERY_PAGE(210, "buttons", QT_TRANSLATE_NOOP("Gallery", "Buttons and labels"), createButtonsPage)

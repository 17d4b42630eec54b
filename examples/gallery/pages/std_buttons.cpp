#include "gallerypage.h"
#include "posed.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QMenu>

#include <QAction>

namespace {

QStringList poseNames()
{
    return {Gallery::tr("Normal"), Gallery::tr("Hovered"), Gallery::tr("Pressed"),
            Gallery::tr("Focused"), Gallery::tr("Disabled")};
}

QVector<Pose> allPoses()
{
    return {Poses::normal, Poses::hovered, Poses::pressed, Poses::focused, Poses::disabled};
}

QMenu *sampleMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->addAction(Gallery::tr("Mix"));
    menu->addAction(Gallery::tr("Wipe"));
    return menu;
}

void addPushButtons(SampleSheet *sheet)
{
    sheet->addHeading(Gallery::tr("Push buttons"), poseNames());
    const auto add = [sheet](const QString &label, auto setUp) {
        addPoses<QPushButton>(sheet, label, allPoses(), [setUp](QPushButton *button) {
            button->setText(Gallery::tr("Take"));
            button->setAutoDefault(false);
            setUp(button);
        });
    };
    add(Gallery::tr("Plain"), [](QPushButton *) {});
    add(Gallery::tr("Default"), [](QPushButton *button) { button->setDefault(true); });
    add(Gallery::tr("Flat"), [](QPushButton *button) { button->setFlat(true); });
    add(Gallery::tr("Checked"), [](QPushButton *button) {
        button->setCheckable(true);
        button->setChecked(true);
    });
    add(Gallery::tr("With icon"), [](QPushButton *button) { button->setIcon(sampleIcon()); });
    add(Gallery::tr("Icon only"), [](QPushButton *button) {
        button->setText(QString());
        button->setIcon(sampleIcon());
    });
    add(Gallery::tr("With menu"), [](QPushButton *button) { button->setMenu(sampleMenu(button)); });
}

void addToolButtons(SampleSheet *sheet)
{
    sheet->addHeading(Gallery::tr("Tool buttons"), poseNames());
    const auto add = [sheet](const QString &label, auto setUp) {
        addPoses<QToolButton>(sheet, label, allPoses(), [setUp](QToolButton *button) {
            button->setText(Gallery::tr("Record"));
            button->setIcon(sampleIcon());
            setUp(button);
        });
    };
    add(Gallery::tr("Icon"), [](QToolButton *) {});
    add(Gallery::tr("Auto raise"), [](QToolButton *button) { button->setAutoRaise(true); });
    add(Gallery::tr("Checked"), [](QToolButton *button) {
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setChecked(true);
    });
    add(Gallery::tr("Text"),
        [](QToolButton *button) { button->setToolButtonStyle(Qt::ToolButtonTextOnly); });
    add(Gallery::tr("Text beside icon"),
        [](QToolButton *button) { button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon); });
    add(Gallery::tr("Text under icon"),
        [](QToolButton *button) { button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon); });
    add(Gallery::tr("Menu on arrow"), [](QToolButton *button) {
        button->setMenu(sampleMenu(button));
        button->setPopupMode(QToolButton::MenuButtonPopup);
    });
    add(Gallery::tr("Menu at once"), [](QToolButton *button) {
        button->setMenu(sampleMenu(button));
        button->setPopupMode(QToolButton::InstantPopup);
    });
    QVector<QWidget *> arrows;
    for (Qt::ArrowType type : {Qt::UpArrow, Qt::DownArrow, Qt::LeftArrow, Qt::RightArrow}) {
        auto *button = new QToolButton;
        button->setArrowType(type);
        arrows << button;
    }
    sheet->addRow(Gallery::tr("Arrows"), arrows);
}

void addCheckBoxes(SampleSheet *sheet)
{
    sheet->addHeading(Gallery::tr("Check boxes and radio buttons"), poseNames());
    const auto addCheck = [sheet](const QString &label, Qt::CheckState state) {
        addPoses<QCheckBox>(sheet, label, allPoses(), [state](QCheckBox *box) {
            box->setText(Gallery::tr("Loop"));
            box->setTristate(state == Qt::PartiallyChecked);
            box->setCheckState(state);
        });
    };
    addCheck(Gallery::tr("Unchecked"), Qt::Unchecked);
    addCheck(Gallery::tr("Partially checked"), Qt::PartiallyChecked);
    addCheck(Gallery::tr("Checked"), Qt::Checked);
    for (bool on : {false, true}) {
        addPoses<QRadioButton>(sheet, on ? Gallery::tr("Chosen") : Gallery::tr("Not chosen"),
                               allPoses(), [on](QRadioButton *button) {
                                   button->setText(Gallery::tr("Bus A"));
                                   button->setAutoExclusive(false);
                                   button->setChecked(on);
                               });
    }
}

QWidget *createButtonsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *row = new QHBoxLayout(page);
    auto *left = new SampleSheet;
    addPushButtons(left);
    addCheckBoxes(left);
    left->addHeading(Gallery::tr("Command link"));
    left->addWide(new QCommandLinkButton(Gallery::tr("Open the last show"),
                                         Gallery::tr("All sources are connected again.")));
    auto *right = new SampleSheet;
    addToolButtons(right);
    row->addWidget(left);
    row->addWidget(right, 1);
    return page;
}

} // namespace

GALLERY_PAGE(100, "std_buttons", QT_TRANSLATE_NOOP("Gallery", "Buttons"), createButtonsPage)

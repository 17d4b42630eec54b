#include "gallerypage.h"
#include "posed.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolBox>

namespace {

QGroupBox *groupBox(const QString &title, const Pose &pose = Poses::normal)
{
    auto *box = new Posed<QGroupBox>(pose);
    box->setTitle(title);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(new QCheckBox(Gallery::tr("Loop")));
    layout->addWidget(new QRadioButton(Gallery::tr("Bus A")));
    return box;
}

QGroupBox *checkableBox(const QString &title, bool on, const Pose &pose = Poses::normal)
{
    QGroupBox *box = groupBox(title, pose);
    box->setCheckable(true);
    box->setChecked(on);
    return box;
}

void addGroupBoxes(QGridLayout *grid)
{
    grid->addWidget(groupBox(Gallery::tr("Plain")), 0, 0);
    grid->addWidget(groupBox(Gallery::tr("Disabled"), Poses::disabled), 0, 1);
    QGroupBox *flat = groupBox(Gallery::tr("Flat"));
    flat->setFlat(true);
    grid->addWidget(flat, 0, 2);
    QGroupBox *right = groupBox(Gallery::tr("Title aligned right"));
    right->setAlignment(Qt::AlignRight);
    grid->addWidget(right, 0, 3);
    grid->addWidget(checkableBox(Gallery::tr("Checked"), true), 1, 0);
    grid->addWidget(checkableBox(Gallery::tr("Unchecked"), false), 1, 1);
    grid->addWidget(checkableBox(Gallery::tr("Focused"), true, Poses::focused), 1, 2);
    grid->addWidget(
        checkableBox(Gallery::tr("Pressed"), true, Poses::pressedOn(QStyle::SC_GroupBoxCheckBox)),
        1, 3);
}

struct FrameSample
{
    const char *name;
    QFrame::Shape shape;
};

constexpr FrameSample frames[] = {
    {QT_TRANSLATE_NOOP("Gallery", "Box"), QFrame::Box},
    {QT_TRANSLATE_NOOP("Gallery", "Panel"), QFrame::Panel},
    {QT_TRANSLATE_NOOP("Gallery", "Styled panel"), QFrame::StyledPanel},
    {nullptr, QFrame::HLine},
};

void addFrames(QGridLayout *grid, QFrame::Shadow shadow, int row)
{
    int column = 0;
    for (const FrameSample &sample : frames) {
        auto *frame = new QLabel(sample.name ? Gallery::tr(sample.name) : QString());
        frame->setFrameStyle(int(sample.shape) | int(shadow));
        frame->setMinimumHeight(40);
        frame->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        grid->addWidget(frame, row, column++);
    }
}

QToolBox *toolBox()
{
    auto *box = new QToolBox;
    box->addItem(new QLabel(Gallery::tr("Cameras, players and titles")), sampleIcon(),
                 Gallery::tr("Sources"));
    box->addItem(new QLabel, Gallery::tr("Effects"));
    box->addItem(new QLabel, Gallery::tr("Outputs"));
    box->setItemEnabled(2, false);
    return box;
}

QWidget *createGroupsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    addGroupBoxes(grid);
    addFrames(grid, QFrame::Raised, 2);
    addFrames(grid, QFrame::Sunken, 3);
    addFrames(grid, QFrame::Plain, 4);
    grid->addWidget(toolBox(), 5, 0, 1, 2);
    grid->setRowStretch(5, 1);
    return page;
}

} // namespace

GALLERY_PAGE(165, "std_groups", QT_TRANSLATE_NOOP("Gallery", "Group boxes and frames"),
             createGroupsPage)

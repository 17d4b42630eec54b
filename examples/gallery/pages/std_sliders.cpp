#include "gallerypage.h"
#include "posed.h"

#include <QtWidgets/QBoxLayout>

namespace {

QVector<Pose> allPoses()
{
    return {Poses::normal, Poses::hovered, Poses::focused, Poses::disabled};
}

QStringList poseNames()
{
    return {Gallery::tr("Normal"), Gallery::tr("Hovered"), Gallery::tr("Focused"),
            Gallery::tr("Disabled")};
}

struct Ticks
{
    const char *name;
    QSlider::TickPosition position;
};

constexpr Ticks horizontalTicks[] = {
    {QT_TRANSLATE_NOOP("Gallery", "No ticks"), QSlider::NoTicks},
    {QT_TRANSLATE_NOOP("Gallery", "Ticks above"), QSlider::TicksAbove},
    {QT_TRANSLATE_NOOP("Gallery", "Ticks below"), QSlider::TicksBelow},
    {QT_TRANSLATE_NOOP("Gallery", "Ticks on both sides"), QSlider::TicksBothSides},
};

constexpr Ticks verticalTicks[] = {
    {QT_TRANSLATE_NOOP("Gallery", "Vertical, no ticks"), QSlider::NoTicks},
    {QT_TRANSLATE_NOOP("Gallery", "Vertical, ticks left"), QSlider::TicksLeft},
    {QT_TRANSLATE_NOOP("Gallery", "Vertical, ticks right"), QSlider::TicksRight},
    {QT_TRANSLATE_NOOP("Gallery", "Vertical, both sides"), QSlider::TicksBothSides},
};

void setUpSlider(QSlider *slider, Qt::Orientation orientation, QSlider::TickPosition ticks)
{
    slider->setOrientation(orientation);
    slider->setRange(0, 100);
    slider->setValue(40);
    slider->setTickPosition(ticks);
    slider->setTickInterval(10);
    if (orientation == Qt::Horizontal)
        slider->setMinimumWidth(110);
    else
        slider->setMinimumHeight(100);
}

void addSliders(SampleSheet *sheet, Qt::Orientation orientation)
{
    const auto &ticks = orientation == Qt::Horizontal ? horizontalTicks : verticalTicks;
    for (const Ticks &tick : ticks) {
        addPoses<QSlider>(sheet, Gallery::tr(tick.name), allPoses(), [&](QSlider *slider) {
            setUpSlider(slider, orientation, tick.position);
        });
    }
    const QString inverted =
        orientation == Qt::Horizontal ? Gallery::tr("Inverted") : Gallery::tr("Vertical, inverted");
    addPoses<QSlider>(sheet, inverted, allPoses(), [&](QSlider *slider) {
        setUpSlider(slider, orientation, QSlider::NoTicks);
        slider->setInvertedAppearance(true);
    });
}

void addEnds(SampleSheet *sheet)
{
    QVector<QWidget *> sliders;
    for (int value : {0, 1, 50, 100}) {
        auto *slider = new QSlider;
        setUpSlider(slider, Qt::Horizontal, QSlider::NoTicks);
        slider->setValue(value);
        sliders << slider;
    }
    sheet->addRow(Gallery::tr("0, 1, 50 and 100 of 100"), sliders);
}

void addDials(SampleSheet *sheet)
{
    sheet->addHeading(Gallery::tr("Dials"), poseNames());
    const auto add = [sheet](const QString &label, auto setUp) {
        addPoses<QDial>(sheet, label, allPoses(), [setUp](QDial *dial) {
            dial->setValue(30);
            dial->setFixedSize(70, 70);
            setUp(dial);
        });
    };
    add(Gallery::tr("Plain"), [](QDial *) {});
    add(Gallery::tr("With notches"), [](QDial *dial) { dial->setNotchesVisible(true); });
    add(Gallery::tr("Wrapping"), [](QDial *dial) {
        dial->setNotchesVisible(true);
        dial->setWrapping(true);
    });
}

QWidget *createSlidersPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *row = new QHBoxLayout(page);
    auto *left = new SampleSheet;
    left->addHeading(Gallery::tr("Horizontal sliders"), poseNames());
    addSliders(left, Qt::Horizontal);
    addEnds(left);
    addDials(left);
    auto *right = new SampleSheet;
    right->addHeading(Gallery::tr("Vertical sliders"), poseNames());
    addSliders(right, Qt::Vertical);
    row->addWidget(left);
    row->addWidget(right, 1);
    return page;
}

} // namespace

GALLERY_PAGE(130, "std_sliders", QT_TRANSLATE_NOOP("Gallery", "Sliders and dials"),
             createSlidersPage)

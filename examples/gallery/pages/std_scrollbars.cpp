#include "gallerypage.h"
#include "posed.h"

#include <nocturne/DarkFusionStyle>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QScrollArea>

namespace {

/// What a proxy on top of the style can ask for: bars that stay beside the contents.
class SolidBarsStyle : public QProxyStyle
{
public:
    SolidBarsStyle()
        : QProxyStyle(new DarkFusionStyle)
    {}
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_ScrollBar_Transient)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

void addScrollBars(SampleSheet *sheet, const QString &label, Qt::Orientation orientation,
                   QStyle *style, const QVector<Pose> &poses)
{
    addPoses<QScrollBar>(sheet, label, poses, [=](QScrollBar *bar) {
        bar->setOrientation(orientation);
        if (style)
            bar->setStyle(style);
        bar->setRange(0, 100);
        bar->setPageStep(40);
        bar->setValue(50);
        if (orientation == Qt::Horizontal)
            bar->setFixedWidth(120);
        else
            bar->setFixedHeight(120);
    });
}

QScrollArea *scrolledPicture(QStyle *style)
{
    auto *area = new QScrollArea;
    if (style) {
        area->setStyle(style);
        area->horizontalScrollBar()->setStyle(style);
        area->verticalScrollBar()->setStyle(style);
    }
    auto *label = new QLabel(Gallery::tr("A picture that is larger than its window"));
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    label->setFixedSize(500, 400);
    area->setWidget(label);
    area->setFixedSize(260, 150);
    return area;
}

QWidget *createScrollBarsPage(QWidget *parent)
{
    auto *sheet = new SampleSheet(parent);
    sheet->addHeading(Gallery::tr("Over the contents"),
                      {Gallery::tr("Normal"), Gallery::tr("Hovered"), Gallery::tr("Disabled")});
    const QVector<Pose> few = {Poses::normal, Poses::hoveredOn(QStyle::SC_ScrollBarSlider),
                               Poses::disabled};
    addScrollBars(sheet, Gallery::tr("Horizontal"), Qt::Horizontal, nullptr, few);
    addScrollBars(sheet, Gallery::tr("Vertical"), Qt::Vertical, nullptr, few);

    auto *solid = new SolidBarsStyle;
    solid->setParent(sheet);
    sheet->addHeading(Gallery::tr("Beside the contents"),
                      {Gallery::tr("Normal"), Gallery::tr("Handle hovered"),
                       Gallery::tr("Handle pressed"), Gallery::tr("Back hovered"),
                       Gallery::tr("Back pressed"), Gallery::tr("On hovered"),
                       Gallery::tr("On pressed"), Gallery::tr("Disabled")});
    const QVector<Pose> all = {Poses::normal,
                               Poses::hoveredOn(QStyle::SC_ScrollBarSlider),
                               Poses::pressedOn(QStyle::SC_ScrollBarSlider),
                               Poses::hoveredOn(QStyle::SC_ScrollBarSubLine),
                               Poses::pressedOn(QStyle::SC_ScrollBarSubLine),
                               Poses::hoveredOn(QStyle::SC_ScrollBarAddLine),
                               Poses::pressedOn(QStyle::SC_ScrollBarAddLine),
                               Poses::disabled};
    addScrollBars(sheet, Gallery::tr("Horizontal"), Qt::Horizontal, solid, all);
    addScrollBars(sheet, Gallery::tr("Vertical"), Qt::Vertical, solid, all);

    sheet->addHeading(Gallery::tr("In use"));
    auto *areas = new QWidget;
    auto *row = new QHBoxLayout(areas);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(scrolledPicture(nullptr));
    row->addWidget(scrolledPicture(solid));
    row->addStretch(1);
    sheet->addWide(areas);
    return sheet;
}

} // namespace

GALLERY_PAGE(150, "std_scrollbars", QT_TRANSLATE_NOOP("Gallery", "Scroll bars"),
             createScrollBarsPage)

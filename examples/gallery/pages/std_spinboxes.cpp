#include "gallerypage.h"
#include "posed.h"

#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>

namespace {

QWidget *createSpinBoxesPage(QWidget *parent)
{
    auto *sheet = new SampleSheet(parent);
    sheet->addHeading(Gallery::tr("Spin boxes"),
                      {Gallery::tr("Normal"), Gallery::tr("Up hovered"), Gallery::tr("Up pressed"),
                       Gallery::tr("Down pressed"), Gallery::tr("Focused"),
                       Gallery::tr("Disabled")});
    const QVector<Pose> poses = {Poses::normal,
                                 Poses::hoveredOn(QStyle::SC_SpinBoxUp),
                                 Poses::pressedOn(QStyle::SC_SpinBoxUp),
                                 Poses::pressedOn(QStyle::SC_SpinBoxDown),
                                 Poses::focused,
                                 Poses::disabled};
    const auto add = [&](const QString &label, auto setUp) {
        addPoses<QSpinBox>(sheet, label, poses, [setUp](QSpinBox *box) {
            box->setValue(25);
            setUp(box);
        });
    };
    add(Gallery::tr("Arrows"), [](QSpinBox *) {});
    add(Gallery::tr("Plus and minus"),
        [](QSpinBox *box) { box->setButtonSymbols(QAbstractSpinBox::PlusMinus); });
    add(Gallery::tr("No buttons"),
        [](QSpinBox *box) { box->setButtonSymbols(QAbstractSpinBox::NoButtons); });
    add(Gallery::tr("Without frame"), [](QSpinBox *box) { box->setFrame(false); });
    add(Gallery::tr("At the maximum"), [](QSpinBox *box) { box->setValue(99); });
    add(Gallery::tr("At the minimum, plus and minus"), [](QSpinBox *box) {
        box->setValue(0);
        box->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    });
    add(Gallery::tr("Read only"), [](QSpinBox *box) { box->setReadOnly(true); });
    add(Gallery::tr("Tall"), [](QSpinBox *box) { box->setMinimumHeight(40); });

    sheet->addHeading(Gallery::tr("Others with the same frame"));
    auto *level = new QDoubleSpinBox;
    level->setSuffix(QStringLiteral(" dB"));
    level->setValue(6.5);
    auto *calendar = new QDateEdit(QDate(2026, 3, 21));
    calendar->setCalendarPopup(true);
    sheet->addRow(Gallery::tr("Level, time, date"),
                  {level, new QTimeEdit(QTime(20, 15)), calendar});
    return sheet;
}

} // namespace

GALLERY_PAGE(110, "std_spinboxes", QT_TRANSLATE_NOOP("Gallery", "Spin boxes"), createSpinBoxesPage)

#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QProgressBar>

namespace {

enum class Kind { Normal, Inverted, NoText };

QProgressBar *bar(Qt::Orientation orientation, int value, Kind kind)
{
    auto *bar = new QProgressBar;
    bar->setOrientation(orientation);
    if (value < 0)
        bar->setRange(0, 0);
    else
        bar->setValue(value);
    bar->setInvertedAppearance(kind == Kind::Inverted);
    bar->setTextVisible(kind != Kind::NoText);
    if (orientation == Qt::Horizontal)
        bar->setFixedWidth(130);
    else
        bar->setFixedSize(26, 130);
    return bar;
}

void addBars(SampleSheet *sheet, const QString &label, Qt::Orientation orientation, Kind kind)
{
    QVector<QWidget *> bars;
    for (int value : {0, 1, 40, 75, 100, -1})
        bars << bar(orientation, value, kind);
    sheet->addRow(label, bars);
}

QWidget *createProgressPage(QWidget *parent)
{
    auto *sheet = new SampleSheet(parent);
    const QStringList columns = {QStringLiteral("0 %"),   QStringLiteral("1 %"),
                                 QStringLiteral("40 %"),  QStringLiteral("75 %"),
                                 QStringLiteral("100 %"), Gallery::tr("Busy")};
    sheet->addHeading(Gallery::tr("Horizontal progress bars"), columns);
    addBars(sheet, Gallery::tr("Normal"), Qt::Horizontal, Kind::Normal);
    addBars(sheet, Gallery::tr("Inverted"), Qt::Horizontal, Kind::Inverted);
    addBars(sheet, Gallery::tr("Without text"), Qt::Horizontal, Kind::NoText);
    sheet->addHeading(Gallery::tr("Vertical progress bars"), columns);
    addBars(sheet, Gallery::tr("Normal"), Qt::Vertical, Kind::Normal);
    addBars(sheet, Gallery::tr("Inverted"), Qt::Vertical, Kind::Inverted);
    addBars(sheet, Gallery::tr("Without text"), Qt::Vertical, Kind::NoText);
    return sheet;
}

} // namespace

GALLERY_PAGE(140, "std_progress", QT_TRANSLATE_NOOP("Gallery", "Progress bars"), createProgressPage)

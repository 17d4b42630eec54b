#include "gallerypage.h"

#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/ColorToolButton>
#include <nocturne/GradientTool>

#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace {

/// A landscape in shades of grey, tinted by a table of 256 colours.
class TintedPicture : public QWidget
{
public:
    TintedPicture()
    {
        setMinimumSize(320, 180);
        m_grey.setColorCount(256);
        for (int y = 0; y < m_grey.height(); ++y) {
            for (int x = 0; x < m_grey.width(); ++x)
                m_grey.setPixel(x, y, uint(shade(x / 320.0, y / 180.0)));
        }
    }

    void setTable(const QVector<unsigned int> &table)
    {
        m_grey.setColorTable(QVector<QRgb>(table.begin(), table.end()));
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), m_grey);
    }

private:
    static int shade(double x, double y)
    {
        const double sun = std::hypot((x - 0.7) * 1.8, y - 0.3);
        const double ridge = 0.62 + 0.10 * std::sin(x * 9) + 0.04 * std::sin(x * 31);
        const double light = y > ridge ? 0.45 - 0.4 * (y - ridge) / (1 - ridge)
                                       : qMax(0.25 + 0.5 * y, 1.15 - 2.2 * sun);
        return qBound(0, int(light * 255), 255);
    }

    QImage m_grey{320, 180, QImage::Format_Indexed8};
};

QWidget *createRamp()
{
    auto *box = new QGroupBox(Gallery::tr("Ramp: press to add, drag to move, drag away to remove, "
                                          "double-click for a colour"));
    auto *column = new QVBoxLayout(box);
    auto *ramp = new GradientTool;
    ramp->setRamp({{0.0, QColor(12, 16, 48)},
                   {0.35, QColor(130, 40, 90)},
                   {0.7, QColor(240, 130, 40)},
                   {1.0, QColor(255, 240, 190)}});
    ramp->setActiveSlider(2);
    auto *picture = new TintedPicture;
    picture->setTable(ramp->getColorTable());
    QObject::connect(ramp, &GradientTool::rampChanged, picture,
                     [ramp, picture] { picture->setTable(ramp->getColorTable()); });

    auto *row = new QHBoxLayout;
    auto *opacity = new QSpinBox;
    opacity->setRange(0, 100);
    opacity->setValue(100);
    opacity->setSuffix(QStringLiteral(" %"));
    QObject::connect(opacity, QOverload<int>::of(&QSpinBox::valueChanged), ramp,
                     [ramp](int percent) { ramp->setOpacity(percent); });
    QObject::connect(ramp, &GradientTool::opacityValueChange, opacity,
                     [opacity](double percent) { opacity->setValue(qRound(percent)); });
    row->addWidget(new QLabel(Gallery::tr("Opacity of the chosen colour")));
    row->addWidget(opacity);
    row->addStretch();

    column->addWidget(ramp);
    column->addLayout(row);
    column->addWidget(picture, 1);
    return box;
}

QWidget *createButtons()
{
    auto *box =
        new QGroupBox(Gallery::tr("Buttons: click for a dialog, drag a colour onto another"));
    auto *row = new QHBoxLayout(box);
    auto *heard = new QLabel(QStringLiteral("-"));
    const QColor colors[] = {QColor(230, 60, 50), QColor(60, 190, 90), QColor(65, 155, 249),
                             QColor(240, 200, 60)};
    for (const QColor &color : colors) {
        auto *button = new ColorButton(color);
        QObject::connect(button, &ColorButton::colorChanged, heard,
                         [heard, button](double, bool complete) {
                             heard->setText(QStringLiteral("%1 %2").arg(
                                 button->color().name(),
                                 complete ? Gallery::tr("(accepted)") : Gallery::tr("(preview)")));
                         });
        row->addWidget(button);
    }
    auto *checked = new ColorButton(QColor(190, 90, 220));
    checked->setCheckable(true);
    checked->setChecked(true);
    row->addWidget(checked);
    auto *tool = new ColorToolButton;
    tool->setText(Gallery::tr("Tool button"));
    row->addWidget(tool);
    row->addWidget(heard);
    row->addStretch();
    return box;
}

QWidget *createBars()
{
    auto *box = new QGroupBox(Gallery::tr("Bars and dots"));
    auto *row = new QHBoxLayout(box);
    const QColor colors[] = {QColor(230, 60, 50), QColor(60, 190, 90)};
    for (const QColor &color : colors) {
        auto *bar = new ColorBar;
        bar->setFixedSize(80, 10);
        bar->setColor(color);
        row->addWidget(bar);
    }
    auto *blink = new QCheckBox(Gallery::tr("Blink"));
    for (const QColor &color : colors) {
        auto *dot = new ColorBar;
        dot->setFixedSize(24, 24);
        dot->setElipse(true);
        dot->setColor(color);
        QObject::connect(blink, &QCheckBox::toggled, dot, [dot](bool on) {
            if (on)
                dot->startFlicker();
            else
                dot->stopFlicker();
        });
        row->addWidget(dot);
    }
    row->addWidget(blink);
    row->addStretch();
    return box;
}

QWidget *createColorsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *column = new QVBoxLayout(page);
    column->addWidget(createRamp(), 1);
    column->addWidget(createButtons());
    column->addWidget(createBars());
    return page;
}

} // namespace

GALLERY_PAGE(430, "colors", QT_TRANSLATE_NOOP("Gallery", "Colours"), createColorsPage)

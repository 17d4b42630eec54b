#include "samplesheet.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace {

constexpr int sampleSpacing = 10;

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

SampleSheet::SampleSheet(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout)
{
    m_grid->setHorizontalSpacing(sampleSpacing);
    m_grid->setVerticalSpacing(sampleSpacing);
    auto *row = new QHBoxLayout;
    row->addLayout(m_grid);
    row->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addStretch(1);
}

void SampleSheet::addHeading(const QString &text, const QStringList &columns)
{
    if (m_row > 0)
        m_grid->setRowMinimumHeight(m_row++, sampleSpacing);
    m_grid->addWidget(heading(text), m_row, 0);
    for (int i = 0; i < columns.size(); ++i)
        m_grid->addWidget(new QLabel(columns.at(i)), m_row, i + 1);
    ++m_row;
}

void SampleSheet::addRow(const QString &label, const QVector<QWidget *> &samples)
{
    m_grid->addWidget(new QLabel(label), m_row, 0);
    for (int i = 0; i < samples.size(); ++i)
        m_grid->addWidget(samples.at(i), m_row, i + 1);
    ++m_row;
}

void SampleSheet::addWide(QWidget *sample)
{
    m_grid->addWidget(sample, m_row++, 0, 1, -1);
}

Picture::Picture(QWidget *original, QWidget *parent)
    : QWidget(parent)
    , m_original(original)
    , m_owner(original)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

Picture::~Picture()
{
    delete m_owner;
}

Picture *Picture::of(QWidget *original, QWidget *owner)
{
    auto *picture = new Picture(original);
    picture->m_owner = owner;
    return picture;
}

void Picture::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        m_owner->setEnabled(isEnabled());
}

void Picture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_original->grab());
}

QIcon sampleIcon(const QColor &color)
{
    QIcon icon;
    for (int ratio : {1, 2}) {
        QPixmap pixmap(16 * ratio, 16 * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(2, 2, 12, 12);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

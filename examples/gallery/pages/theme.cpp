#include "gallerypage.h"

#include <nocturne/DarkUX>

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <functional>

namespace {

/// A patch of one colour, which can change, with its name on it.
class Swatch : public QWidget
{
public:
    Swatch(const std::function<QColor()> &color, QWidget *parent)
        : QWidget(parent)
        , m_color(color)
    {
        setMinimumSize(110, 22);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QColor color = m_color();
        QPainter painter(this);
        painter.setLayoutDirection(Qt::LeftToRight); // of the name
        painter.fillRect(rect(), color);
        painter.setPen(color.lightness() > 128 ? Qt::black : Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, color.name());
    }

private:
    std::function<QColor()> m_color;
};

QWidget *createThemePage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    const DarkUX &theme = DarkUX::getInstance();

    const char *const headings[] = {
        QT_TRANSLATE_NOOP("Gallery", "Role"),
        QT_TRANSLATE_NOOP("Gallery", "Active"),
        QT_TRANSLATE_NOOP("Gallery", "Disabled"),
        QT_TRANSLATE_NOOP("Gallery", "Inactive"),
    };
    int column = 0;
    for (const char *heading : headings)
        grid->addWidget(new QLabel(Gallery::tr(heading)), 0, column++);

    int row = 1;
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = static_cast<QPalette::ColorRole>(i);
        if (role == QPalette::NoRole || role == QPalette::BrightText)
            continue;
        grid->addWidget(new QLabel(QLatin1String(roles.valueToKey(i))), row, 0);
        column = 1;
        for (QPalette::ColorGroup group :
             {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
            const auto color = [&theme, group, role] { return theme.palette().color(group, role); };
            grid->addWidget(new Swatch(color, page), row, column++);
        }
        ++row;
    }
    for (auto it = theme.backgroundColor().cbegin(); it != theme.backgroundColor().cend(); ++it) {
        grid->addWidget(new QLabel(Gallery::tr("Background %1").arg(it.key())), row, 0);
        grid->addWidget(new Swatch([color = it.value()] { return color; }, page), row++, 1);
    }
    grid->setRowStretch(row, 1);
    return page;
}

} // namespace

GALLERY_PAGE(890, "theme", QT_TRANSLATE_NOOP("Gallery", "Theme"), createThemePage)

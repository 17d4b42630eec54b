#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cstdio>

namespace {

constexpr QRgb window = 0xff1f2126;
constexpr QRgb text = 0xffa9b0bc;
constexpr int iconSizes[] = {32, 24, 16};

constexpr int iconColumns = 12;
constexpr QSize iconCell(112, 80);
constexpr int editionColumns = 7;
constexpr QSize editionCell(192, 250);
constexpr QSize editionIcon(96, 96);
constexpr QSize splash(176, 110);

QImage shrunk(const QString &path, const QSize &size)
{
    return QImage(path).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QPoint cellOf(int index, int columns, const QSize &cell)
{
    return {index % columns * cell.width(), index / columns * cell.height()};
}

int rowsOf(int count, int columns)
{
    return (count + columns - 1) / columns;
}

void paintIcon(QPainter *painter, const QPoint &cell, const QFileInfo &file)
{
    int x = cell.x() + 14;
    for (int size : iconSizes) {
        painter->drawImage(x, cell.y() + 10 + (iconSizes[0] - size) / 2,
                           shrunk(file.filePath(), QSize(size, size)));
        x += size + 6;
    }
    painter->drawText(QRect(cell + QPoint(0, 48), QSize(iconCell.width(), 14)), Qt::AlignCenter,
                      file.completeBaseName());
}

void paintEdition(QPainter *painter, const QPoint &cell, const QFileInfo &icon)
{
    const QString splashName =
        QString(icon.completeBaseName()).replace(QLatin1String("appicon"), QLatin1String("splash"));
    painter->drawImage(cell + QPoint((editionCell.width() - editionIcon.width()) / 2, 8),
                       shrunk(icon.filePath(), editionIcon));
    painter->drawImage(cell + QPoint((editionCell.width() - splash.width()) / 2, 112),
                       shrunk(icon.dir().filePath(splashName + QStringLiteral(".png")), splash));
    painter->drawText(QRect(cell + QPoint(0, 228), QSize(editionCell.width(), 14)), Qt::AlignCenter,
                      icon.completeBaseName() + QStringLiteral(", ") + splashName);
}

} // namespace

/// Puts every baked image with its name on one picture, at the sizes it is used at and on the
/// colour it is used on: nocturne-contactsheet <folder of images> <picture>
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    if (app.arguments().size() != 3) {
        std::fprintf(stderr, "usage: nocturne-contactsheet images-folder picture.png\n");
        return 2;
    }

    QFileInfoList icons;
    QFileInfoList editions;
    const QDir images(app.arguments().at(1));
    for (const QFileInfo &file : images.entryInfoList(QDir::Files, QDir::Name)) {
        if (file.fileName().startsWith(QLatin1String("appicon")))
            editions << file;
        else if (!file.fileName().startsWith(QLatin1String("splash")))
            icons << file;
    }

    const int iconsHeight = rowsOf(icons.size(), iconColumns) * iconCell.height();
    QImage sheet(iconColumns * iconCell.width(),
                 iconsHeight + rowsOf(editions.size(), editionColumns) * editionCell.height(),
                 QImage::Format_RGB32);
    sheet.fill(window);
    QPainter painter(&sheet);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(QColor(text));
    for (int i = 0; i < icons.size(); ++i)
        paintIcon(&painter, cellOf(i, iconColumns, iconCell), icons.at(i));
    for (int i = 0; i < editions.size(); ++i) {
        paintEdition(&painter, cellOf(i, editionColumns, editionCell) + QPoint(0, iconsHeight),
                     editions.at(i));
    }
    painter.end();

    if (!sheet.save(app.arguments().at(2), "PNG", 0)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(app.arguments().at(2)));
        return 1;
    }
    return 0;
}

#include "darkfusionstyle.h"

#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QHash>
#include <QtGui/QIcon>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

#include <array>

// The symbols on the buttons of title bars and dock widgets.

namespace {

constexpr int symbolRows = 7;

/// A whole XPM image: header, seven colours, thirteen rows.
using Xpm = std::array<const char *, 1 + 7 + 13>;

/// Puts the middle rows of a symbol into the window that all of them share.
constexpr Xpm windowSymbol(const char *const (&middle)[symbolRows])
{
    return {
        "11 13 7 1",   "  c None",    ". c #D5CFCB", "+ c #8F8B88", "@ c #6C6A67", "# c #ABA6A3",
        "$ c #B5B0AC", "% c #A4A09D", "           ", " +@@@@@@@+ ", "+#       #+", middle[0],
        middle[1],     middle[2],     middle[3],     middle[4],     middle[5],     middle[6],
        "+%       #+", " +@@@@@@@+ ", "           ",
    };
}

constexpr Xpm minimizeSymbol = windowSymbol({
    "@         @",
    "@         @",
    "@         @",
    "@ @@@@@@@ @",
    "@ @@@@@@@ @",
    "@         @",
    "@         @",
});

constexpr Xpm restoreSymbol = windowSymbol({
    "@   #@@@# @",
    "@   @   @ @",
    "@ #@@@# @ @",
    "@ @   @ @ @",
    "@ @   @@@ @",
    "@ @   @   @",
    "@ #@@@#   @",
});

constexpr Xpm closeSymbol = windowSymbol({
    "@ $@   @$ @",
    "@ @@@ @@@ @",
    "@  @@@@@  @",
    "@   @@@   @",
    "@  @@@@@  @",
    "@ @@@ @@@ @",
    "@ $@   @$ @",
});

/// A symbol as an icon. On a dense screen it is enlarged by whole numbers, so that its pixels stay
/// squares: the toolkit's own icons would smear them, or let the symbol grow.
class SymbolIconEngine : public QIconEngine
{
public:
    explicit SymbolIconEngine(const QImage &symbol)
        : m_symbol(symbol)
    {}

    QIconEngine *clone() const override { return new SymbolIconEngine(m_symbol); }
    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        return m_symbol.size().boundedTo(size);
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) NOCTURNE_QT5_CONST override
    {
        return {m_symbol.size()};
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QSize size = m_symbol.size().boundedTo(rect.size());
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect),
                            enlarged(qMax(1, int(ratio)), mode));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QPixmap whole = enlarged(1, mode);
        const bool fits = whole.size().boundedTo(size) == whole.size();
        return fits ? whole : whole.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    void virtual_hook(int id, void *data) override
    {
        if (id != ScaledPixmapHook) {
            QIconEngine::virtual_hook(id, data);
            return;
        }
        auto *wanted = static_cast<ScaledPixmapArgument *>(data);
        const int factor =
            qMin(int(wanted->scale), qMin(wanted->size.width() / m_symbol.width(),
                                          wanted->size.height() / m_symbol.height()));
        wanted->pixmap = factor > 1 ? centred(enlarged(factor, wanted->mode), factor, wanted->size)
                                    : pixmap(wanted->size, wanted->mode, wanted->state);
    }

private:
    QPixmap enlarged(int factor, QIcon::Mode mode) const
    {
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        const QPixmap pixmap = QPixmap::fromImage(m_symbol.scaled(m_symbol.size() * factor));
        return mode == QIcon::Normal
                   ? pixmap
                   : QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }

    /// In the middle of \a size pixels, or the toolkit would take it for one of low density; at the
    /// unit where it stands on other screens.
    static QPixmap centred(const QPixmap &symbol, int factor, const QSize &size)
    {
        QPixmap canvas(size);
        canvas.fill(Qt::transparent);
        const QRect units(QPoint(), size / factor);
        const QRect place =
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, symbol.size() / factor, units);
        QPainter(&canvas).drawPixmap(place.topLeft() * factor, symbol);
        return canvas;
    }

    QImage m_symbol;
};

const Xpm *symbolOf(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_TitleBarMinButton:
        return &minimizeSymbol;
    case QStyle::SP_TitleBarNormalButton:
        return &restoreSymbol;
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_DockWidgetCloseButton:
        return &closeSymbol;
    default:
        return nullptr;
    }
}

/// A dock widget's title asks for the icons of its buttons at each paint: they are made once.
QIcon symbolIcon(const Xpm *symbol)
{
    static QHash<const Xpm *, QIcon> icons;
    QIcon &icon = icons[symbol];
    if (icon.isNull())
        icon = QIcon(new SymbolIconEngine(QImage(symbol->data())));
    return icon;
}

} // namespace

QPixmap DarkFusionStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                        const QWidget *widget) const
{
    if (const Xpm *symbol = symbolOf(pixmap))
        return QPixmap(symbol->data());
    return QCommonStyle::standardPixmap(pixmap, option, widget);
}

QIcon DarkFusionStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                    const QWidget *widget) const
{
    if (const Xpm *symbol = symbolOf(icon))
        return symbolIcon(symbol);
    return QCommonStyle::standardIcon(icon, option, widget);
}

QPixmap DarkFusionStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                             const QStyleOption *option) const
{
    return QCommonStyle::generatedIconPixmap(mode, pixmap, option);
}

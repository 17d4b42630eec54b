#ifndef NOCTURNE_PROBES_H
#define NOCTURNE_PROBES_H

#include "testsupport.h"

#include <functional>

using MakeWidget = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWidget)

namespace TestSupport {

/// The colour that \a name stands for: "w-7" for the theme's window colour minus 7, "none", or one
/// that QColor knows; with "/128" for its alpha. "a|b" is a over b.
inline QColor probeColor(const QString &name)
{
    if (name.contains('|'))
        return blended(probeColor(name.section('|', 0, 0)), probeColor(name.section('|', 1)));
    const QString base = name.section('/', 0, 0);
    const int n = base.mid(1).toInt();
    QColor color(base == "none" ? "transparent" : base);
    if (base.startsWith("w+") || base.startsWith("w-"))
        color.setRgb(0x1f + n, 0x21 + n, 0x26 + n);
    if (!color.isValid())
        qFatal("no color: %s", qPrintable(name));
    if (name.contains('/'))
        color.setAlpha(name.section('/', 1).toInt());
    return blended(color, Qt::transparent);
}

/// Compares device pixels with colours: "black 0,0 39,19; w-7 20,17".
inline void compareProbes(const QImage &image, const QString &probes)
{
    for (const QString &group : probes.split("; ", Qt::SkipEmptyParts)) {
        const QStringList words = group.split(' ');
        for (const QString &point : words.mid(1)) {
            COMPARE_PIXEL(image, point.section(',', 0, 0).toInt(), point.section(',', 1).toInt(),
                          probeColor(words.first()));
        }
    }
}

/// Makes a widget of that class with these properties, and has \a finish done to it.
template <typename Class>
MakeWidget made(const QSize &size, const QVector<QPair<const char *, QVariant>> &properties = {},
                const std::function<void(Class *)> &finish = {})
{
    return [=] {
        auto *widget = new Class;
        widget->resize(size);
        for (const auto &property : properties)
            widget->setProperty(property.first, property.second);
        if (finish)
            finish(widget);
        return widget;
    };
}

/// What \a make has to paint, without its children, at one and two device pixels per unit.
inline void addPainting(const QString &name, const MakeWidget &make, const QString &at1,
                        const QString &at2 = {})
{
    QTest::newRow(qPrintable(name)) << make << at1 << at2;
}

inline void addPaintingColumns()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::addColumn<QString>("at1");
    QTest::addColumn<QString>("at2");
}

/// Compares such a row. Enabled and disabled look the same.
inline void comparePainting()
{
    QFETCH(MakeWidget, make);
    QFETCH(QString, at1);
    QFETCH(QString, at2);
    const std::unique_ptr<QWidget> widget(make());
    for (bool enabled : {true, false}) {
        widget->setEnabled(enabled);
        for (int ratio : {1, 2}) {
            const QImage image = paintOn(
                widget->size(), Qt::transparent,
                [&](QPainter &painter) {
                    widget->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
                },
                ratio);
            compareProbes(image, ratio == 1 ? at1 : at2);
        }
    }
}

} // namespace TestSupport

#endif

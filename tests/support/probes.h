#ifndef NOCTURNE_PROBES_H
#define NOCTURNE_PROBES_H

#include "testsupport.h"

#include <functional>

using MakeWidget = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWidget)

namespace TestSupport {

/// The colour that \a text stands for: one of the theme's or one of the toolkit's, changed from
/// left to right by *n (lighter), %n (darker), +n and -n (each channel), /n (alpha); "a|b" is a
/// over b.
inline QColor probeColor(const QString &text)
{
    static const QColor window = 0x1f2126;
    // That of what has the focus is the highlight, but not too bright.
    static const QColor dark = QColor(0x679dcd).darker(125);
    static const QHash<QString, QColor> names = {
        {"none", Qt::transparent},
        {"w", window},
        {"window", window},
        {"outline", window.darker(140)},
        {"base", 0x191a1e},
        {"light", 0x5a5959},
        {"text", 0xbbbbbb},
        {"button", 0x484848},
        {"highlight", 0x679dcd},
        {"lit", 0xed6e00},
        {"focus", QColor::fromHsl(dark.hue(), dark.saturation(), 160)}};
    if (text.contains('|'))
        return blended(probeColor(text.section('|', 0, 0)), probeColor(text.section('|', 1)));
    static const QRegularExpression operation("[*%/+-]\\d+");
    const QString name = text.left(text.indexOf(operation));
    QColor color = names.value(name, QColor(name));
    if (!color.isValid())
        qFatal("no color: %s", qPrintable(text));
    for (auto i = operation.globalMatch(text); i.hasNext();) {
        const QString step = i.next().captured();
        const int n = step.mid(1).toInt();
        const int shift = step[0] == '-' ? -n : n;
        if (step[0] == '*')
            color = color.lighter(n);
        else if (step[0] == '%')
            color = color.darker(n);
        else if (step[0] == '/')
            color.setAlpha(n);
        else
            color.setRgb(color.red() + shift, color.green() + shift, color.blue() + shift);
    }
    return color;
}

/// Compares device pixels with colours: "black 0,0 39,19; w-7 20,17".
inline void compareProbes(const QImage &image, const QString &probes)
{
    for (const QString &group : probes.split("; ", Qt::SkipEmptyParts)) {
        const QStringList words = group.split(' ');
        for (const QString &point : words.mid(1)) {
            COMPARE_PIXEL(image, point.section(',', 0, 0).toInt(), point.section(',', 1).toInt(),
                          blended(probeColor(words.first()), Qt::transparent));
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

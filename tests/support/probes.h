#ifndef NOCTURNE_PROBES_H
#define NOCTURNE_PROBES_H

#include "testsupport.h"

namespace TestSupport {

/// The colour that \a text stands for: one of the theme's or one of the toolkit's, changed from
/// left to right by *n (lighter), %n (darker), +n and -n (each channel), /n (alpha); "a|b" is a
/// over b.
inline QColor probeColor(const QString &text)
{
    static const QHash<QString, QColor> names = {
        {"none", Qt::transparent}, {"w", 0x1f2126},
        {"window", 0x1f2126},      {"outline", QColor(0x1f2126).darker(140)},
        {"base", 0x191a1e},        {"light", 0x5a5959},
        {"text", 0xbbbbbb},        {"button", 0x484848},
        {"highlight", 0x679dcd},   {"lit", 0xed6e00},
        {"focus", 0x71a3cf}};
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
        const QColor color = blended(probeColor(words.first()), Qt::transparent);
        for (const QString &point : words.mid(1)) {
            const QStringList place = point.split(',');
            comparePixels(image, color, {{place[0].toInt(), place[1].toInt()}});
        }
    }
}

} // namespace TestSupport

#endif

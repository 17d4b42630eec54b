#ifndef NOCTURNE_PROBES_H
#define NOCTURNE_PROBES_H

#include "testsupport.h"

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

} // namespace TestSupport

#endif

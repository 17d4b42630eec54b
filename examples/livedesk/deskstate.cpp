#include "deskstate.h"

#include "testpictures.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestClip = 25 * 3600; // an hour
constexpr int mostClips = 1000;
constexpr int mostStops = 64;

/// The number called \a key from \a low to \a high; \a fallback when there is none.
int number(const QJsonObject &object, const char *key, int low, int high, int fallback)
{
    const QJsonValue value = object[QLatin1String(key)];
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return fallback;
    return int(std::clamp(value.toDouble(), double(low), double(high)));
}

Clip clipFromJson(const QJsonObject &object)
{
    Clip clip;
    clip.name = object["name"].toString();
    clip.path = object["path"].toString();
    clip.pattern = number(object, "pattern", 0, testPatternCount - 1, 0);
    clip.length = number(object, "length", 2, longestClip, 250);
    clip.in = number(object, "in", 0, clip.length - 1, 0);
    clip.out = number(object, "out", clip.in, clip.length - 1, clip.length - 1);
    return clip;
}

Ramp rampFromJson(const QJsonArray &stops)
{
    Ramp ramp;
    for (const QJsonValue &value : stops) {
        const QJsonArray stop = value.toArray();
        const QColor color(stop.at(1).toString());
        if (stop.at(0).isDouble() && color.isValid() && ramp.size() < mostStops)
            ramp << qMakePair(qBound(0.0, stop.at(0).toDouble(), 1.0), color);
    }
    return ramp.size() >= 2 ? ramp : Look().ramp;
}

Look lookFromJson(const QJsonObject &object)
{
    Look look;
    look.black = number(object, "black", 0, 254, look.black);
    look.white = number(object, "white", look.black + 1, 255, look.white);
    look.amount = number(object, "amount", 0, 100, look.amount);
    look.ramp = rampFromJson(object["ramp"].toArray());
    look.x = number(object, "x", -pictureSize.width(), pictureSize.width(), 0);
    look.y = number(object, "y", -pictureSize.height(), pictureSize.height(), 0);
    look.transition = number(object, "transition", 1, 250, 25);
    return look;
}

} // namespace

bool isSameRamp(const Ramp &a, const Ramp &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &x, const auto &y) {
        return x.first == y.first && x.second.rgba() == y.second.rgba();
    });
}

QJsonObject DeskState::toJson() const
{
    QJsonArray clipArray;
    for (const Clip &clip : clips)
        clipArray << QJsonObject{{"name", clip.name},       {"path", clip.path},
                                 {"pattern", clip.pattern}, {"length", clip.length},
                                 {"in", clip.in},           {"out", clip.out}};
    QJsonArray rampArray;
    for (const auto &stop : look.ramp)
        rampArray << QJsonArray{stop.first, stop.second.name(QColor::HexArgb)};
    const QJsonObject lookObject{{"black", look.black},
                                 {"white", look.white},
                                 {"amount", look.amount},
                                 {"ramp", rampArray},
                                 {"x", look.x},
                                 {"y", look.y},
                                 {"transition", look.transition}};
    return {{"clips", clipArray},
            {"current", current},
            {"look", lookObject},
            {"takeShortcut", takeShortcut},
            {"playShortcut", playShortcut}};
}

DeskState DeskState::fromJson(const QJsonObject &object)
{
    DeskState state;
    for (const auto &value : object["clips"].toArray()) {
        if (state.clips.size() < mostClips)
            state.clips << clipFromJson(value.toObject());
    }
    state.current = number(object, "current", -1, state.clips.size() - 1, -1);
    state.look = lookFromJson(object["look"].toObject());
    state.takeShortcut = object["takeShortcut"].toString(state.takeShortcut);
    state.playShortcut = object["playShortcut"].toString(state.playShortcut);
    return state;
}

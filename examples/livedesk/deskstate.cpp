#include "deskstate.h"

#include "testpictures.h"

#include <QtCore/QJsonArray>
#include <QtGui/QKeySequence>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestClip = 25 * 3600; // an hour
constexpr int mostClips = 1000;
constexpr int mostStops = 64;

int boundedInt(const QJsonValue &value, int low, int high, int fallback)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return fallback;
    return int(qBound(double(low), value.toDouble(), double(high)));
}

QJsonObject clipToJson(const Clip &clip)
{
    return {{QStringLiteral("name"), clip.name},       {QStringLiteral("path"), clip.path},
            {QStringLiteral("pattern"), clip.pattern}, {QStringLiteral("length"), clip.length},
            {QStringLiteral("in"), clip.in},           {QStringLiteral("out"), clip.out}};
}

Clip clipFromJson(const QJsonObject &object)
{
    Clip clip;
    clip.name = object.value(QStringLiteral("name")).toString();
    clip.path = object.value(QStringLiteral("path")).toString();
    clip.pattern = boundedInt(object.value(QStringLiteral("pattern")), 0, testPatternCount - 1, 0);
    clip.length = boundedInt(object.value(QStringLiteral("length")), 2, longestClip, 250);
    clip.in = boundedInt(object.value(QStringLiteral("in")), 0, clip.length - 1, 0);
    clip.out =
        boundedInt(object.value(QStringLiteral("out")), clip.in, clip.length - 1, clip.length - 1);
    return clip;
}

QJsonArray rampToJson(const Ramp &ramp)
{
    QJsonArray stops;
    for (const QPair<double, QColor> &stop : ramp)
        stops << QJsonArray{stop.first, stop.second.name(QColor::HexArgb)};
    return stops;
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
    look.black = boundedInt(object.value(QStringLiteral("black")), 0, 254, look.black);
    look.white = boundedInt(object.value(QStringLiteral("white")), look.black + 1, 255, look.white);
    look.amount = boundedInt(object.value(QStringLiteral("amount")), 0, 100, look.amount);
    look.ramp = rampFromJson(object.value(QStringLiteral("ramp")).toArray());
    look.position.setX(boundedInt(object.value(QStringLiteral("x")), -pictureSize.width(),
                                  pictureSize.width(), 0));
    look.position.setY(boundedInt(object.value(QStringLiteral("y")), -pictureSize.height(),
                                  pictureSize.height(), 0));
    return look;
}

QString shortcutFromJson(const QJsonValue &value, const QString &fallback)
{
    return value.isString() ? QKeySequence(value.toString()).toString() : fallback;
}

} // namespace

bool isSameRamp(const Ramp &a, const Ramp &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &x, const auto &y) {
        return x.first == y.first && x.second.rgba() == y.second.rgba();
    });
}

bool Clip::operator==(const Clip &other) const
{
    return name == other.name && path == other.path && pattern == other.pattern
           && length == other.length && in == other.in && out == other.out;
}

bool Look::operator==(const Look &other) const
{
    return black == other.black && white == other.white && amount == other.amount
           && isSameRamp(ramp, other.ramp) && position == other.position;
}

bool DeskState::operator==(const DeskState &other) const
{
    return clips == other.clips && current == other.current && look == other.look
           && transition == other.transition && takeShortcut == other.takeShortcut
           && playShortcut == other.playShortcut;
}

const Clip *DeskState::currentClip() const
{
    return current >= 0 && current < clips.size() ? &clips.at(current) : nullptr;
}

QJsonObject DeskState::toJson() const
{
    QJsonArray list;
    for (const Clip &clip : clips)
        list << clipToJson(clip);
    const QJsonObject lookObject{
        {QStringLiteral("black"), look.black},    {QStringLiteral("white"), look.white},
        {QStringLiteral("amount"), look.amount},  {QStringLiteral("ramp"), rampToJson(look.ramp)},
        {QStringLiteral("x"), look.position.x()}, {QStringLiteral("y"), look.position.y()},
    };
    return {{QStringLiteral("clips"), list},
            {QStringLiteral("current"), current},
            {QStringLiteral("look"), lookObject},
            {QStringLiteral("transition"), transition},
            {QStringLiteral("takeShortcut"), takeShortcut},
            {QStringLiteral("playShortcut"), playShortcut}};
}

DeskState DeskState::fromJson(const QJsonObject &object)
{
    DeskState state;
    for (const QJsonValue &value : object.value(QStringLiteral("clips")).toArray()) {
        if (state.clips.size() < mostClips)
            state.clips << clipFromJson(value.toObject());
    }
    state.current =
        boundedInt(object.value(QStringLiteral("current")), -1, state.clips.size() - 1, -1);
    state.look = lookFromJson(object.value(QStringLiteral("look")).toObject());
    state.transition = boundedInt(object.value(QStringLiteral("transition")), 1, 250, 25);
    state.takeShortcut =
        shortcutFromJson(object.value(QStringLiteral("takeShortcut")), state.takeShortcut);
    state.playShortcut =
        shortcutFromJson(object.value(QStringLiteral("playShortcut")), state.playShortcut);
    return state;
}

#ifndef DESKSTATE_H
#define DESKSTATE_H

#include <QtCore/QJsonObject>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QColor>

#include <tuple>

using Ramp = QVector<QPair<double, QColor>>;

/// Whether two ramps look the same: positions and colours of eight bits a channel.
bool isSameRamp(const Ramp &a, const Ramp &b);

/// A clip of the bin. Its pictures are generated from its pattern.
struct Clip
{
    QString name;
    QString path; ///< of the file that was dropped
    int pattern = 0;
    int length = 250; ///< in frames, at least 2
    int in = 0;       ///< first frame shown
    int out = 249;    ///< last frame shown, at least in

    auto fields() const { return std::tie(name, path, pattern, length, in, out); }
    bool operator==(const Clip &other) const { return fields() == other.fields(); }
};

/// What is done to every picture, and how one follows another.
struct Look
{
    int black = 0;   ///< brightness that becomes black, 0 to 255
    int white = 255; ///< brightness that becomes white, above black
    int amount = 0;  ///< how much of the ramp is mixed in, in percent
    Ramp ramp = {{0.0, Qt::black}, {1.0, Qt::white}};
    int x = 0; ///< of the picture in the frame, in pixels of 640 x 360
    int y = 0;
    int transition = 25; ///< length of a mix in frames, 1 to 250

    auto numbers() const { return std::tie(black, white, amount, x, y, transition); }
    bool operator==(const Look &other) const
    {
        return numbers() == other.numbers() && isSameRamp(ramp, other.ramp);
    }
};

/// Everything that can be undone, and that is kept from one start to the next.
struct DeskState
{
    QVector<Clip> clips;
    int current = -1; ///< row in clips of the one in the preview, -1 for none
    Look look;
    QString takeShortcut = "Return";
    QString playShortcut = "Space";

    auto fields() const { return std::tie(clips, current, look, takeShortcut, playShortcut); }
    bool operator==(const DeskState &other) const { return fields() == other.fields(); }

    /// Null for none.
    const Clip *currentClip() const { return current < 0 ? nullptr : &clips.at(current); }
    Clip *currentClip() { return current < 0 ? nullptr : &clips[current]; }

    QJsonObject toJson() const;

    /// Reads what toJson() wrote. What is missing or out of range takes its default or nearest
    /// value, so that a damaged file costs as little as possible.
    static DeskState fromJson(const QJsonObject &object);
};

#endif

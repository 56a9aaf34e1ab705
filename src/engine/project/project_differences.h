// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace nubivane {

class cFrames;

/// How many sprites of a kind stand in one of two projects alone. One that was moved or changed
/// counts in both.
struct SpriteDifference {
    int onlyEarlier = 0;
    int onlyNow = 0;

    bool any() const { return onlyEarlier + onlyNow > 0; }
};

/// How a Frame differs between two states of a project. Frames are compared place by place.
struct FrameDifference {
    qint32 number = 0;
    QString labelEarlier;
    QString labelNow;
    SpriteDifference symbols;
    SpriteDifference labels;
    bool title = false;  ///< title or subtitle
    bool text = false;   ///< the box with its elements
};

/// What differs between two states of a project: Frames, sprites, texts. Drawings are no part.
struct ProjectDifferences {
    qint32 framesEarlier = 0;
    qint32 framesNow = 0;
    std::vector<FrameDifference> frames;  ///< those that both have and that differ

    bool any() const { return framesEarlier != framesNow || !frames.empty(); }
};
ProjectDifferences differencesOf(const cFrames& earlier, const cFrames& now);

}  // namespace nubivane

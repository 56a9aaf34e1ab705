// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "engine/model/sprites.h"

#include <memory>
#include <vector>

namespace nubivane {

/// The texts of a Frame: its caption and its forecast.
class cTexts {
  public:
    QString Label;  ///< caption, shown on the Frame's tab

    cForecast& Forecast() { return forecast_; }
    const cForecast& Forecast() const { return forecast_; }

  private:
    cForecast forecast_;
};

/// One forecast period. Its number is its position in `cFrames`.
class cFrame {
  public:
    cTexts& Texts() { return texts_; }
    const cTexts& Texts() const { return texts_; }
    cSprites& Sprites() { return sprites_; }
    const cSprites& Sprites() const { return sprites_; }

  private:
    cTexts texts_;
    cSprites sprites_;
};

/// The Frames in order. A position outside the list raises `Error` (OutOfRange).
class cFrames {
  public:
    const cFrame& Item(qint32 index) const { return *frames_[at(index)]; }
    cFrame& Item(qint32 index) { return *frames_[at(index)]; }
    cFrame& Add();
    /// Puts a Frame at a position; those from there on move up.
    void Insert(qint32 index, std::unique_ptr<cFrame> frame);
    /// Takes a Frame out; the later ones close up.
    std::unique_ptr<cFrame> Take(qint32 index);
    void Remove(qint32 index) { Take(index); }
    qint32 Count() const { return static_cast<qint32>(frames_.size()); }
    /// Number of sprites on all Frames.
    qint16 NumSprite() const;

  private:
    std::size_t at(qint32 index) const;

    std::vector<std::unique_ptr<cFrame>> frames_;
};

/// The root of a project in memory.
class cWrapper {
  public:
    cFrames& Frames() { return frames_; }
    const cFrames& Frames() const { return frames_; }

  private:
    cFrames frames_;
};

}  // namespace nubivane

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/status.h"
#include "engine/weather/weather_figure.h"

#include <QObject>

#include <array>

namespace nubivane {

/// How a figure looks, but for the width, which is the pen's.
struct FigureLook {
    weather::FigureStyle style{};
    bool penColor = false;  ///< the pen's colour in place of the kind's own

    bool operator==(const FigureLook&) const = default;
};

/// What the next figure will be: the kind that each weather tool draws, and how. Shared by the
/// tools, the strip and the row of options; whoever changes it is followed by the others.
class FigureChoice : public QObject {
    Q_OBJECT

  public:
    FigureChoice();

    /// `tool` is a weather tool.
    weather::FigureKind kind(Tool tool) const { return of(tool).kind; }
    const FigureLook& look(Tool tool) const { return of(tool).look; }

    /// Has the kind's tool draw it from now on.
    void setKind(weather::FigureKind kind);
    void setLook(Tool tool, const FigureLook& look);

  Q_SIGNALS:
    void changed(Tool tool);

  private:
    struct Choice {
        weather::FigureKind kind;
        FigureLook look;
    };

    static std::size_t rowOf(Tool tool) {
        return static_cast<std::size_t>(tool) - static_cast<std::size_t>(Tool::front);
    }
    const Choice& of(Tool tool) const { return choices_.at(rowOf(tool)); }

    std::array<Choice, 5> choices_;
};

}  // namespace nubivane

// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_choice.h"

#include "windows/drawing/figure_table.h"

namespace nubivane {

FigureChoice::FigureChoice()
    : choices_{{{weather::FigureKind::ColdFront, {}},
                {weather::FigureKind::Isoline, {}},
                {weather::FigureKind::RainArea, {}},
                {weather::FigureKind::CurvedArrow, {.style = {.knots = weather::UsualKnots}}},
                {weather::FigureKind::CurvedText, {.style = {.text = tr("Text")}}}}} {}

void FigureChoice::setKind(weather::FigureKind kind) {
    const Tool tool = toolOf(kind);
    Choice& choice = choices_.at(rowOf(tool));
    if (choice.kind != kind) {
        choice.kind = kind;
        Q_EMIT changed(tool);
    }
}

void FigureChoice::setLook(Tool tool, const FigureLook& look) {
    Choice& choice = choices_.at(rowOf(tool));
    if (choice.look != look) {
        choice.look = look;
        Q_EMIT changed(tool);
    }
}

}  // namespace nubivane

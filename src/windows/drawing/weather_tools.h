// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/weather_tool.h"

#include <QCoreApplication>

namespace nubivane {

/// Cold, warm, occluded and stationary fronts, squall lines and troughs.
class FrontTool : public WeatherTool {
    Q_DECLARE_TR_FUNCTIONS(nubivane::FrontTool)

  public:
    explicit FrontTool(MapDrawing& drawing) : WeatherTool(drawing, Tool::front) {}

  protected:
    QString firstStep() const override;
    QString laterStep() const override;
};

/// Isobars and whatever else joins places of one value.
class IsolineTool : public WeatherTool {
    Q_DECLARE_TR_FUNCTIONS(nubivane::IsolineTool)

  public:
    explicit IsolineTool(MapDrawing& drawing) : WeatherTool(drawing, Tool::isoline) {}

  protected:
    QString firstStep() const override;
    QString laterStep() const override;
};

/// Where it rains, where a warning holds, where clouds end.
class AreaTool : public WeatherTool {
    Q_DECLARE_TR_FUNCTIONS(nubivane::AreaTool)

  public:
    explicit AreaTool(MapDrawing& drawing) : WeatherTool(drawing, Tool::area) {}

  protected:
    QString firstStep() const override;
    QString laterStep() const override;
};

/// Arrows, jet streams and wind barbs. Those of two points have the second one follow each further
/// click; a wind barb is there with its first click and blows from the north.
class ArrowTool : public WeatherTool {
    Q_DECLARE_TR_FUNCTIONS(nubivane::ArrowTool)

  public:
    explicit ArrowTool(MapDrawing& drawing) : WeatherTool(drawing, Tool::arrow) {}

  protected:
    void place(QPoint position) override;
    QString firstStep() const override;
    QString laterStep() const override;
};

/// Letters that stand on a curve.
class TextTool : public WeatherTool {
    Q_DECLARE_TR_FUNCTIONS(nubivane::TextTool)

  public:
    explicit TextTool(MapDrawing& drawing) : WeatherTool(drawing, Tool::text) {}

  protected:
    QString firstStep() const override;
    QString laterStep() const override;
    QString missing() const override;
};

}  // namespace nubivane

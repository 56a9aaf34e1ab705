// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/project_edits.h"
#include "windows/drawing/drawing_fixture.h"
#include "windows/drawing/figure_options.h"
#include "windows/drawing/figure_table.h"

#include <QKeyEvent>

namespace nubivane::testing {

/// The editor with a weather tool in hand, and what its figures have to look like: the engine's,
/// through the middles of the pixels that were clicked.
class WeatherFixture : public DrawingFixture {
  protected:
    using Kind = weather::FigureKind;

    void SetUp() override {
        startDrawing();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        bare = committed();
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    /// A key as it comes to the map.
    void mapKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        canvas().setFocus();
        QTest::keyClick(&canvas(), key, modifiers);
    }
    /// The kind by its two keys: that of its tool and its number.
    void chooseByKeys(Kind kind) {
        const std::vector<Kind> kinds = kindsOf(toolOf(kind));
        const auto number = std::find(kinds.begin(), kinds.end(), kind) - kinds.begin();
        mapKey(rowOf(toolOf(kind)).key);
        mapKey(static_cast<Qt::Key>(Qt::Key_1 + number));
        ASSERT_EQ(drawing().choice().kind(workspace.Status.CurrentTool), kind);
    }
    void clickAll(const std::vector<QPoint>& points) {
        for (const QPoint& point : points) {
            click(point);
        }
    }
    /// Clicks the points of a kind and has Enter draw them.
    void draw(Kind kind, const std::vector<QPoint>& points) {
        chooseByKeys(kind);
        clickAll(points);
        mapKey(Qt::Key_Return);
    }
    template <class Field>
    Field& field(const char* name) {
        auto* found = window().figureOptions().findChild<Field*>(name);
        EXPECT_TRUE(found) << name;
        return *found;
    }

    /// Points that suit a kind, within the map of 500 x 400.
    static std::vector<QPoint> pointsFor(Kind kind) {
        const weather::KindRow& row = weather::rowOf(kind);
        if (row.mostPoints == 2) {
            return {{150, 200}, {300, 120}};
        }
        if (row.closed) {
            return {{120, 120}, {260, 100}, {330, 200}, {240, 290}, {130, 240}};
        }
        return {{80, 250}, {160, 160}, {270, 150}, {350, 220}, {420, 300}};
    }

    /// The figure that those clicks make, with the tool's look as it stands.
    weather::WeatherFigure figureOf(Kind kind, const std::vector<QPoint>& clicked) {
        const FigureLook& look = drawing().choice().look(toolOf(kind));
        weather::WeatherFigure figure{kind, {}, look.style};
        figure.style.width = drawing().pen().DrawWidth();
        if (look.penColor) {
            figure.style.color = drawing().pen().color();
        }
        for (const QPoint& point : clicked) {
            figure.points.push_back(QPointF(point) + QPointF(0.5, 0.5));
        }
        return figure;
    }
    /// A picture with a figure laid over it.
    static QImage withFigure(const QImage& ground, const weather::WeatherFigure& figure) {
        QImage layer(ground.size(), QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        {
            QPainter painter(&layer);
            figure.paint(painter);
        }
        QImage picture = ground.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter(&picture).drawImage(0, 0, layer);
        return picture.convertToFormat(QImage::Format_RGB32);
    }
    QImage withFigure(Kind kind, const std::vector<QPoint>& clicked) {
        return withFigure(bare, figureOf(kind, clicked));
    }

    ProjectEdits& edits() { return workspace.edits(); }

    QImage bare;
};

}  // namespace nubivane::testing

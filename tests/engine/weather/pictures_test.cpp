// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/compared_pictures.h"
#include "engine/weather/figure_fixture.h"
#include "support/fixtures.h"

#include <QDir>
#include <QImage>
#include <QPainter>

namespace nubivane::weather::testing {

namespace {

using nubivane::testing::testFile;

/// One look of a kind on its sheet.
struct Look {
    FigureStyle style;
    bool ofFronts = false;  ///< means something for fronts with pips alone
};

std::vector<Look> looks() {
    return {
        {{.text = "1015", .repeats = 1, .knots = 65}},
        {{.width = 2,
          .flipped = true,
          .fill = AreaFill::Shading,
          .text = "Foehn",
          .repeats = 2,
          .knots = 15}},
        {{.width = 4, .upper = true, .opacity = 0.8, .text = "7", .repeats = 4, .knots = 120}},
        {{.stage = FrontStage::Forming}, true},
        {{.stage = FrontStage::Dissipating}, true},
        {{.upper = true, .stage = FrontStage::Forming}, true},
    };
}

bool hasPips(FigureKind kind) {
    return kind <= FigureKind::StationaryFront;
}

std::vector<QPointF> pointsOf(const KindRow& row) {
    if (row.closed) {
        return {{30, 70},  {60, 25},   {120, 30}, {165, 20},
                {185, 70}, {130, 115}, {110, 85}, {55, 110}};
    }
    if (row.family == FigureFamily::WindBarb) {
        return {{70, 100}, {160, 30}};
    }
    if (row.kind == FigureKind::Arrow) {
        return {{20, 110}, {180, 30}};
    }
    return {{15, 100}, {60, 45}, {110, 50}, {150, 95}, {190, 60}};
}

/// All looks of a kind side by side, the figure's points marked in the first one by nothing: what
/// is kept is what a map shows.
QImage sheetOf(const KindRow& row) {
    constexpr QSize cell(205, 135);
    std::vector<FigureStyle> shown;
    for (const Look& look : looks()) {
        if (!look.ofFronts || hasPips(row.kind)) {
            shown.push_back(look.style);
        }
    }
    QImage sheet(3 * cell.width(), static_cast<int>((shown.size() + 2) / 3) * cell.height(),
                 QImage::Format_RGB32);
    sheet.fill(QColor(228, 236, 226));
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        painter.save();
        painter.translate(static_cast<int>(i % 3) * cell.width(),
                          static_cast<int>(i / 3) * cell.height());
        WeatherFigure{row.kind, pointsOf(row), shown[i]}.paint(painter);
        painter.restore();
    }
    return sheet;
}

/// Another version of the rasterizer makes no pixel differ by more.
constexpr int Rounding = 24;  // of 255

}  // namespace

/// Each sheet was looked at before it was kept. A change that is meant is kept anew by running this
/// test with NUBIVANE_KEEP_PICTURES set to the folder of the pictures, and looking again.
TEST(WeatherPictures, LookAsTheyWereKept) {
    const QString keepIn = qEnvironmentVariable("NUBIVANE_KEEP_PICTURES");
    for (const KindRow& row : kindTable) {
        const QString name = QString(row.name) + ".png";
        const QImage sheet = sheetOf(row);
        if (!keepIn.isEmpty()) {
            ASSERT_TRUE(sheet.save(QDir(keepIn).filePath(name)));
            continue;
        }
        const QImage kept(testFile("engine/weather/pictures/" + name));
        ASSERT_EQ(kept.size(), sheet.size()) << name.toStdString();
        EXPECT_LE(differentPixels(sheet, kept, Rounding), sheet.width() * sheet.height() / 2000)
            << name.toStdString();
    }
}

}  // namespace nubivane::weather::testing

// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/compared_pictures.h"
#include "engine/weather/figure_fixture.h"
#include "support/fixtures.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace nubivane::weather::testing {

namespace {

/// A Frame of a shipped example and the chart that was drawn on it.
struct Charted {
    const char* example;
    int frame;  ///< from 1
    const char* chart;
};

QByteArray sourceFile(const QString& path) {
    return nubivane::testing::readFile(QStringLiteral(NUBIVANE_SOURCES "/") + path);
}

/// The pictures of an example: the map, then one a Frame.
std::vector<QImage> picturesOf(const QString& example) {
    const QString document = QString::fromUtf8(sourceFile("examples/" + example + ".nvpf"));
    const QByteArray data = sourceFile("examples/" + example + ".nvpx");
    static const QRegularExpression size("<(?:FILE|Frame) [^>]*?Size=\"(\\d+)\"");
    std::vector<QImage> pictures;
    qsizetype at = 0;
    for (auto found = size.globalMatch(document); found.hasNext();) {
        const int bytes = found.next().captured(1).toInt();
        pictures.push_back(QImage::fromData(data.mid(at, bytes)));
        at += bytes;
    }
    return pictures;
}

FigureKind kindNamed(const QString& name) {
    const auto row = std::find_if(kindTable.begin(), kindTable.end(),
                                  [&](const KindRow& each) { return name == each.name; });
    EXPECT_NE(row, kindTable.end()) << name.toStdString();
    return row == kindTable.end() ? FigureKind::Arrow : row->kind;
}

void drawChart(QImage& picture, const QString& chart) {
    QPainter painter(&picture);
    const QJsonArray figures =
        QJsonDocument::fromJson(sourceFile("tools/charts/" + chart + ".json")).array();
    EXPECT_FALSE(figures.isEmpty());
    for (const QJsonValue& each : figures) {
        WeatherFigure figure{kindNamed(each["kind"].toString()), {}, {}};
        figure.style.width = each["width"].toDouble();
        figure.style.text = each["text"].toString();
        for (const QJsonValue& point : each["points"].toArray()) {
            figure.points.emplace_back(point[0].toInt() + 0.5, point[1].toInt() + 0.5);
        }
        figure.paint(painter);
    }
}

/// A JPEG makes no pixel differ by more.
constexpr int OfJpeg = 90;  // of 255

}  // namespace

/// The fronts and isobars of the shipped examples are those of the tools, point by point.
TEST(WeatherExamples, AreWhatTheFiguresOfTheirChartsDraw) {
    for (const auto& [example, frame, chart] :
         {Charted{"europe", 1, "europe-saturday"}, Charted{"europe", 4, "europe-tuesday"},
          Charted{"mediterranean", 1, "mediterranean-today"},
          Charted{"mediterranean", 3, "mediterranean-tomorrow"}}) {
        const std::vector<QImage> pictures = picturesOf(example);
        ASSERT_GT(pictures.size(), static_cast<std::size_t>(frame)) << example;
        QImage drawn = pictures.front().convertToFormat(QImage::Format_RGB32);
        const QImage& shipped = pictures[static_cast<std::size_t>(frame)];
        ASSERT_EQ(drawn.size(), shipped.size()) << chart;
        EXPECT_GT(differentPixels(drawn, shipped, OfJpeg), 1000) << chart << ": the bare map";
        drawChart(drawn, chart);
        EXPECT_LE(differentPixels(drawn, shipped, OfJpeg), 60) << chart;
    }
}

}  // namespace nubivane::weather::testing

// SPDX-License-Identifier: GPL-3.0-or-later
/// Draws weather figures on a picture, as the editor's tools do: the engine's figures through the
/// middles of the pixels that are given. For the generators of the examples.
///
///     draw_figures GROUND CHART.json OUTPUT.png
///
/// CHART is a list of figures: {"kind": "cold-front", "width": 3, "points": [[x, y], ...]}, and,
/// where they are wanted, "text", "repeats", "knots", "opacity", "flipped", "upper" and "color"
/// ("#rrggbb").
#include "engine/weather/figure_kinds.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>

using namespace nubivane::weather;

namespace {

FigureKind kindOf(const QString& name) {
    for (const KindRow& row : kindTable) {
        if (QLatin1String(row.name) == name) {
            return row.kind;
        }
    }
    throw std::runtime_error("there is no figure \"" + name.toStdString() + "\"");
}

WeatherFigure figureOf(const QJsonObject& object) {
    WeatherFigure figure{kindOf(object["kind"].toString()), {}, {}};
    FigureStyle& style = figure.style;
    style.width = object["width"].toDouble(style.width);
    style.text = object["text"].toString();
    style.repeats = object["repeats"].toInt(style.repeats);
    style.knots = object["knots"].toInt(style.knots);
    style.opacity = object["opacity"].toDouble(style.opacity);
    style.flipped = object["flipped"].toBool();
    style.upper = object["upper"].toBool();
    style.color = QColor(object["color"].toString());
    for (const QJsonValue& point : object["points"].toArray()) {
        figure.points.emplace_back(point[0].toInt() + 0.5, point[1].toInt() + 0.5);
    }
    return figure;
}

QJsonArray chartOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(path.toStdString() + " cannot be read");
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isArray()) {
        throw std::runtime_error(path.toStdString() + ": " + error.errorString().toStdString());
    }
    return document.array();
}

/// Each figure lies on a layer of its own before it joins the picture, as it does in the editor.
void draw(QImage& picture, const WeatherFigure& figure) {
    QImage layer(picture.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    figure.paint(painter);
    painter.end();
    QPainter(&picture).drawImage(0, 0, layer);
}

void run(const QStringList& arguments) {
    if (arguments.size() != 4) {
        throw std::runtime_error("usage: draw_figures GROUND CHART.json OUTPUT.png");
    }
    QImage picture = QImage(arguments[1]).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) {
        throw std::runtime_error(arguments[1].toStdString() + " is no picture");
    }
    for (const QJsonValue& each : chartOf(arguments[2])) {
        draw(picture, figureOf(each.toObject()));
    }
    if (!picture.convertToFormat(QImage::Format_RGB32).save(arguments[3])) {
        throw std::runtime_error(arguments[3].toStdString() + " cannot be written");
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    try {
        run(QGuiApplication::arguments());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "draw_figures: %s\n", error.what());
        return 1;
    }
    return 0;
}

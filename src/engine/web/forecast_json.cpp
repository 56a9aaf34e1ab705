// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/forecast_json.h"

#include "engine/core/json_writer.h"
#include "engine/core/version.h"
#include "engine/web/plain_text.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 FormatVersion = 1;

void writePlace(JsonWriter& json, const QRect& box) {
    json.member("x", box.x());
    json.member("y", box.y());
    json.member("width", box.width());
    json.member("height", box.height());
}

void memberIfAny(JsonWriter& json, const char* name, const QString& text) {
    if (!text.isEmpty()) {
        json.member(name, text);
    }
}

void addressIfAny(JsonWriter& json, const char* name, const QString& file) {
    memberIfAny(json, name, urlPath(file));
}

void writeTexts(JsonWriter& json, const PeriodContent& period) {
    json.name("texts");
    json.startArray();
    for (const TextPair& pair : period.texts) {
        json.startObject();
        json.member("header", pair.header.text);
        json.member("body", pair.body.text);
        json.endObject();
    }
    json.endArray();
}

void writeSymbols(JsonWriter& json, const PeriodContent& period) {
    json.name("symbols");
    json.startArray();
    for (const SymbolContent& symbol : period.symbols) {
        json.startObject();
        json.member("name", symbol.name);
        memberIfAny(json, "tooltip", symbol.tooltip);
        memberIfAny(json, "link", symbol.link);
        addressIfAny(json, "picture", symbol.picture.file);
        addressIfAny(json, "still", symbol.picture.still);
        writePlace(json, symbol.box);
        json.endObject();
    }
    json.endArray();
}

void writeLabels(JsonWriter& json, const PeriodContent& period) {
    json.name("labels");
    json.startArray();
    for (const LabelContent& label : period.labels) {
        json.startObject();
        json.member("text", label.text.text);
        writePlace(json, label.box);
        json.endObject();
    }
    json.endArray();
}

void writePeriod(JsonWriter& json, const PeriodContent& period) {
    json.startObject();
    json.member("id", period.id);
    json.member("name", period.caption);
    json.member("title", period.title.text);
    json.member("subtitle", period.subtitle.text);
    writeTexts(json, period);
    json.name("picture");
    json.startObject();
    addressIfAny(json, "jpeg", period.map.jpeg);
    addressIfAny(json, "webp", period.map.webp);
    json.endObject();
    writeSymbols(json, period);
    writeLabels(json, period);
    json.endObject();
}

}  // namespace

QByteArray forecastJson(const PageContent& content) {
    JsonWriter json;
    json.startObject();
    json.member("format", u"nubivane-forecast"_s);
    json.member("version", FormatVersion);
    json.member("generator", u"Nubivane "_s + QLatin1String(Version));
    json.member("language", content.settings.language);
    json.member("title", content.title);
    json.member("page", urlSegment(content.settings.filename) + u".htm"_s);
    json.name("map");
    json.startObject();
    json.member("width", content.map.width());
    json.member("height", content.map.height());
    json.endObject();
    json.name("periods");
    json.startArray();
    for (const PeriodContent& period : content.periods) {
        writePeriod(json, period);
    }
    json.endArray();
    json.endObject();
    return json.text().replace('<', "\\u003c") + '\n';
}

}  // namespace nubivane

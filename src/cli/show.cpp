// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/json_writer.h"
#include "engine/core/path_text.h"

namespace nubivane {

namespace {

template <class List>
void writeRecords(JsonWriter& json, const char* name, const List& list) {
    json.name(name);
    json.startArray();
    for (const auto& item : list) {
        json.record(item);
    }
    json.endArray();
}

void writeTexts(JsonWriter& json, const char* name, const QStringList& texts) {
    json.name(name);
    json.startArray();
    for (const QString& text : texts) {
        json.value(text);
    }
    json.endArray();
}

void writeForecast(JsonWriter& json, const cForecast& forecast) {
    json.startObject();
    json.name("Div");
    json.record(forecast.Div());
    json.name("Title");
    json.record(forecast.Title());
    json.name("Subtitle");
    json.record(forecast.Subtitle());
    writeRecords(json, "Header", forecast.Header());
    writeRecords(json, "Body", forecast.Body());
    json.endObject();
}

void writeFrame(JsonWriter& json, const cFrame& frame) {
    json.startObject();
    json.member("Label", frame.Texts().Label);
    json.name("Forecast");
    writeForecast(json, frame.Texts().Forecast());
    writeRecords(json, "Symbols", frame.Sprites().Symbols());
    writeRecords(json, "Labels", frame.Sprites().Labels());
    json.endObject();
}

QStringList checkedNames(const cSymbolsCollections& collections) {
    QStringList names;
    for (const cSymbolsCollection& collection : collections) {
        if (collection.Checked) {
            names += collection.Name;
        }
    }
    return names;
}

}  // namespace

int runShow(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const Workspace& workspace = context.workspace;
    JsonWriter json;
    json.startObject();
    json.member("Map", getFileName(workspace.Status.CurrentMap));
    json.member("CurrentMap", workspace.Status.CurrentMap);
    writeTexts(json, "Collections", checkedNames(workspace.Status.SymbolsCollection()));
    json.name("Frames");
    json.startArray();
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        writeFrame(json, workspace.Frames().Item(i));
    }
    json.endArray();
    writeTexts(json, "Warnings", context.shell.warnings());
    json.endObject();
    return streams::writeResult(json.text() + '\n') ? exit_code::Done : exit_code::Failed;
}

}  // namespace nubivane

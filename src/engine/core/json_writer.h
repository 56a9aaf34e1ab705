// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace nubivane {

/// Writes JSON (RFC 8259) in UTF-8, members in the order in which they come.
class JsonWriter {
  public:
    void startObject() { writer_.StartObject(); }
    void endObject() { writer_.EndObject(); }
    void startArray() { writer_.StartArray(); }
    void endArray() { writer_.EndArray(); }
    void name(const char* text) { writer_.Key(text); }

    void value(const QString& text) {
        const QByteArray utf8 = text.toUtf8();
        writer_.String(utf8.constData(), static_cast<rapidjson::SizeType>(utf8.size()));
    }
    void value(qint32 number) { writer_.Int(number); }
    void value(bool flag) { writer_.Bool(flag); }

    template <class Value>
    void member(const char* text, const Value& content) {
        name(text);
        value(content);
    }

    /// An object with all its slots.
    template <class Record>
    void record(const Record& object) {
        startObject();
        Record::forEachSlot(
            object, [this](const auto& slot, const auto& content) { member(slot.name, content); });
        endObject();
    }

    QByteArray text() const {
        return QByteArray(buffer_.GetString(), static_cast<qsizetype>(buffer_.GetSize()));
    }

  private:
    rapidjson::StringBuffer buffer_;
    rapidjson::Writer<rapidjson::StringBuffer> writer_{buffer_};
};

}  // namespace nubivane

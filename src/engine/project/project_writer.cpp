// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_writer.h"

#include "engine/core/path_text.h"
#include "engine/core/xml_text.h"
#include "engine/model/workspace.h"
#include "engine/project/value_text.h"

#include <QXmlStreamWriter>

#include <type_traits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A record with the values that its file holds.
template <class Record>
const Record& asInFile(const Record& record) {
    return record;
}
cSymbol asInFile(cSymbol symbol) {
    const QString path = symbol.PathFileGif;
    symbol.PathFileGif = getLastFolder(path) + u'\\' + getFileName(path);
    return symbol;
}

}  // namespace

/// The XML writer with this format's value forms.
class DocumentText {
  public:
    DocumentText() : xml_(&bytes_) {}

    void start(const char* name) { xml_.writeStartElement(QLatin1String(name)); }
    void end() { xml_.writeEndElement(); }
    QByteArray finish() {
        xml_.writeEndDocument();
        // The writer's own end-of-document line end is not part of the format.
        return bytes_.trimmed();
    }

    void attribute(const char* name, const QString& value) {
        xml_.writeAttribute(QLatin1String(name), allowedInXml(value));
    }
    void attribute(const char* name, qint64 value) { attribute(name, QString::number(value)); }

    /// A child element with a text. A carriage return stands as a reference, else parsers would
    /// read it as a line feed.
    void child(const char* name, const QString& value) {
        start(name);
        const QStringList parts = allowedInXml(value).split(u'\r');
        for (qsizetype i = 0; i < parts.size(); ++i) {
            if (i > 0) {
                xml_.writeEntityReference(u"#13"_s);
            }
            xml_.writeCharacters(parts[i]);
        }
        end();
    }

  private:
    QByteArray bytes_;
    QXmlStreamWriter xml_;
};

namespace {

/// A record whose values are child elements.
template <class Record>
void writeChildren(DocumentText& xml, const char* name, const Record& record) {
    xml.start(name);
    forEachValueInFile<Record>(record, &Slot::place, [&xml](const Slot& slot, const auto& value) {
        xml.child(slot.fileName, valueText(value));
    });
    xml.end();
}

/// A record whose values are attributes.
template <class Record>
void writeAttributes(DocumentText& xml, const char* name, const Record& record) {
    xml.start(name);
    forEachValueInFile<Record>(record, &Slot::place, [&xml](const Slot& slot, const auto& value) {
        xml.attribute(slot.fileName, valueText(value));
    });
    xml.end();
}

template <class List>
void writeList(DocumentText& xml, const char* listName, const char* itemName, const List& list) {
    if (!(list.begin() != list.end())) {
        return;
    }
    xml.start(listName);
    for (const auto& record : list) {
        writeAttributes(xml, itemName, asInFile(record));
    }
    xml.end();
}

void writeHead(DocumentText& xml, const DocumentHead& head, qint32 frames, qint64 mapSize) {
    xml.start("FILE");
    xml.attribute("Frames", frames);
    xml.attribute("Map", head.map);
    xml.attribute("Size", mapSize);
    xml.attribute("Version", u"2.0"_s);
    xml.start("Collection");
    for (const QString& collection : head.collections) {
        xml.start("Item");
        xml.attribute("Name", collection);
        xml.attribute("Path", collection);
        xml.end();
    }
    xml.end();
    xml.start("Frames");
}

void startFrame(DocumentText& xml, qint32 number, qint64 size) {
    xml.start("Frame");
    xml.attribute("Number", number);
    xml.attribute("Size", size);
}

/// What stands in a Frame's element behind its number and size.
template <class Header, class Body, class Symbols, class Labels>
struct FrameParts {
    const QString& label;
    const cDiv& div;
    const cTitle& title;
    const cSubtitle& subtitle;
    const Header& header;
    const Body& body;
    const Symbols& symbols;
    const Labels& labels;

    void write(DocumentText& xml) const {
        xml.attribute("Label", label);
        writeChildren(xml, "Div", div);
        writeChildren(xml, "Title", title);
        writeChildren(xml, "Subtitle", subtitle);
        writeList(xml, "Header", "Item", header);
        writeList(xml, "Body", "Detail", body);
        writeList(xml, "Symbol", "Item", symbols);
        writeList(xml, "Label", "Item", labels);
    }
};

FrameParts<cHeader, cBody, cSymbols, cLabels> partsOf(const cFrame& frame) {
    const cForecast& forecast = frame.Texts().Forecast();
    return {frame.Texts().Label,       forecast.Div(),          forecast.Title(),
            forecast.Subtitle(),       forecast.Header(),       forecast.Body(),
            frame.Sprites().Symbols(), frame.Sprites().Labels()};
}

template <class List>
auto recordsIn(const List& list) {
    std::vector<std::decay_t<decltype(*list.begin())>> records;
    records.reserve(static_cast<std::size_t>(list.Count()));
    for (const auto& record : list) {
        records.push_back(record);
    }
    return records;
}

}  // namespace

DocumentHead headOf(const Workspace& workspace) {
    DocumentHead head{getFileName(workspace.Status.CurrentMap), {}};
    for (const cSymbolsCollection& collection : workspace.Status.SymbolsCollection()) {
        if (collection.Checked) {
            head.collections += collection.Name;
        }
    }
    return head;
}

FrameRecords recordsOf(const cFrame& frame) {
    const auto parts = partsOf(frame);
    return {parts.label,
            parts.div,
            parts.title,
            parts.subtitle,
            recordsIn(parts.header),
            recordsIn(parts.body),
            recordsIn(parts.symbols),
            recordsIn(parts.labels)};
}

ProjectWriter::ProjectWriter(const Workspace& workspace, const std::vector<qint64>& sizes)
    : workspace_(workspace), sizes_(sizes), xml_(std::make_unique<DocumentText>()) {
    writeHead(*xml_, headOf(workspace), workspace.Frames().Count(), sizes_.at(0));
}

ProjectWriter::~ProjectWriter() = default;

void ProjectWriter::writeFrame(qint32 number) {
    startFrame(*xml_, number, sizes_.at(static_cast<std::size_t>(number)));
    partsOf(workspace_.Frames().Item(number)).write(*xml_);
    xml_->end();
}

QByteArray ProjectWriter::finish() {
    xml_->end();
    xml_->end();
    return xml_->finish();
}

QByteArray frameText(const FrameRecords& frame) {
    DocumentText xml;
    xml.start("Frame");
    const FrameParts<std::vector<cHeaderAttribute>, std::vector<cBodyAttribute>,
                     std::vector<cSymbol>, std::vector<cLabel>>
        parts{frame.label,  frame.div,  frame.title,   frame.subtitle,
              frame.header, frame.body, frame.symbols, frame.labels};
    parts.write(xml);
    xml.end();
    return xml.finish().mid(qstrlen("<Frame"));
}

QByteArray joinDocument(const DocumentHead& head, const std::vector<qint64>& sizes,
                        const std::vector<QByteArray>& frameTexts) {
    DocumentText xml;
    writeHead(xml, head, static_cast<qint32>(frameTexts.size()), sizes.at(0));
    xml.end();
    xml.end();
    QByteArray document = xml.finish();
    if (frameTexts.empty()) {
        return document;
    }
    document.chop(static_cast<qsizetype>(qstrlen("/></FILE>")));  // of the empty "<Frames/>"
    document += '>';
    for (std::size_t i = 0; i < frameTexts.size(); ++i) {
        document += "<Frame Number=\"" + QByteArray::number(static_cast<qulonglong>(i) + 1) +
                    "\" Size=\"" + QByteArray::number(sizes.at(i + 1)) + '"' + frameTexts[i];
    }
    return document + "</Frames></FILE>";
}

}  // namespace nubivane

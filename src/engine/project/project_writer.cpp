// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_writer.h"

#include "engine/core/path_text.h"
#include "engine/core/xml_text.h"
#include "engine/model/workspace.h"

#include <QXmlStreamWriter>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString valueText(const QString& text) {
    return text;
}
QString valueText(bool flag) {
    return flag ? QStringLiteral("True") : QStringLiteral("False");
}
QString valueText(qint32 number) {
    return QString::number(number);
}

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
class ProjectWriter::Document {
  public:
    Document() : xml_(&bytes_) {}

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
template <class Document, class Record>
void writeChildren(Document& xml, const char* name, const Record& record) {
    xml.start(name);
    forEachValueInFile<Record>(record, &Slot::place, [&xml](const Slot& slot, const auto& value) {
        xml.child(slot.fileName, valueText(value));
    });
    xml.end();
}

/// A record whose values are attributes.
template <class Document, class Record>
void writeAttributes(Document& xml, const char* name, const Record& record) {
    xml.start(name);
    forEachValueInFile<Record>(record, &Slot::place, [&xml](const Slot& slot, const auto& value) {
        xml.attribute(slot.fileName, valueText(value));
    });
    xml.end();
}

template <class Document, class List>
void writeList(Document& xml, const char* listName, const char* itemName, const List& list) {
    if (list.Count() == 0) {
        return;
    }
    xml.start(listName);
    for (const auto& record : list) {
        writeAttributes(xml, itemName, asInFile(record));
    }
    xml.end();
}

}  // namespace

ProjectWriter::ProjectWriter(const Workspace& workspace, const std::vector<qint64>& sizes)
    : workspace_(workspace), sizes_(sizes), xml_(std::make_unique<Document>()) {
    xml_->start("FILE");
    xml_->attribute("Frames", workspace.Frames().Count());
    xml_->attribute("Map", getFileName(workspace.Status.CurrentMap));
    xml_->attribute("Size", sizes_.at(0));
    xml_->attribute("Version", u"2.0"_s);
    xml_->start("Collection");
    for (const cSymbolsCollection& collection : workspace.Status.SymbolsCollection()) {
        if (collection.Checked) {
            xml_->start("Item");
            xml_->attribute("Name", collection.Name);
            xml_->attribute("Path", collection.Name);
            xml_->end();
        }
    }
    xml_->end();
    xml_->start("Frames");
}

ProjectWriter::~ProjectWriter() = default;

void ProjectWriter::writeFrame(qint32 number) {
    const cFrame& frame = workspace_.Frames().Item(number);
    const cForecast& forecast = frame.Texts().Forecast();
    xml_->start("Frame");
    xml_->attribute("Number", number);
    xml_->attribute("Size", sizes_.at(static_cast<std::size_t>(number)));
    xml_->attribute("Label", frame.Texts().Label);
    writeChildren(*xml_, "Div", forecast.Div());
    writeChildren(*xml_, "Title", forecast.Title());
    writeChildren(*xml_, "Subtitle", forecast.Subtitle());
    writeList(*xml_, "Header", "Item", forecast.Header());
    writeList(*xml_, "Body", "Detail", forecast.Body());
    writeList(*xml_, "Symbol", "Item", frame.Sprites().Symbols());
    writeList(*xml_, "Label", "Item", frame.Sprites().Labels());
    xml_->end();
}

QByteArray ProjectWriter::finish() {
    xml_->end();
    xml_->end();
    return xml_->finish();
}

}  // namespace nubivane

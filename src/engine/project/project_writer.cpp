// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_writer.h"

#include "engine/core/path_text.h"
#include "engine/core/xml_text.h"
#include "engine/model/workspace.h"

#include <QXmlStreamWriter>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString flagText(bool flag) {
    return flag ? QStringLiteral("True") : QStringLiteral("False");
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
    void flag(const char* name, bool value) { attribute(name, flagText(value)); }

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
    void child(const char* name, qint32 value) { child(name, QString::number(value)); }
    void childFlag(const char* name, bool value) { child(name, flagText(value)); }

  private:
    QByteArray bytes_;
    QXmlStreamWriter xml_;
};

namespace {

template <class Document>
void writeTextLine(Document& xml, const char* name, const TextLine& line) {
    xml.start(name);
    xml.child("Backcolor", line.BackColor);
    xml.child("Forecolor", line.Forecolor);
    xml.child("Border", line.Border);
    xml.child("BorderColor", line.BorderColor);
    xml.child("FontName", line.FontName);
    xml.child("FontSize", line.FontSize);
    xml.childFlag("FontBold", line.FontBold);
    xml.childFlag("FontItalic", line.FontItalic);
    xml.childFlag("FontUnderline", line.FontUnderline);
    xml.childFlag("FontOverline", line.FontOverline);
    xml.childFlag("FontStrikethourht", line.FontStrikethourht);
    xml.child("Align", line.Align);
    xml.child("Text", line.Text);
    xml.end();
}

template <class Document, class Items>
void writeTextItems(Document& xml, const char* listName, const char* itemName, const Items& items) {
    if (items.Count() == 0) {
        return;
    }
    xml.start(listName);
    for (const TextItem& item : items) {
        xml.start(itemName);
        xml.attribute("Backcolor", item.BackColor);
        xml.attribute("Forecolor", item.Forecolor);
        xml.attribute("Fontname", item.FontName);
        xml.attribute("Fontsize", item.FontSize);
        xml.flag("Fontbold", item.FontBold);
        xml.flag("Fontitalic", item.FontItalic);
        xml.flag("Fontunderline", item.FontUnderline);
        xml.flag("Fontoverline", item.FontOverline);
        xml.flag("Fontstrikethourht", item.FontStrikethourht);
        xml.attribute("Text", item.Text);
        xml.end();
    }
    xml.end();
}

template <class Document>
void writeSymbols(Document& xml, const cSymbols& symbols) {
    if (symbols.Count() == 0) {
        return;
    }
    xml.start("Symbol");
    for (const cSymbol& symbol : symbols) {
        xml.start("Item");
        xml.attribute("Filename",
                      getLastFolder(symbol.PathFileGif) + u'\\' + getFileName(symbol.PathFileGif));
        xml.attribute("Height", symbol.Height);
        xml.attribute("Width", symbol.Width);
        xml.attribute("Left", symbol.PosX);
        xml.attribute("Top", symbol.PosY);
        xml.attribute("Link", symbol.Link);
        xml.attribute("Tooltip", symbol.Tooltip);
        xml.attribute("Note", symbol.Note);
        xml.end();
    }
    xml.end();
}

template <class Document>
void writeLabels(Document& xml, const cLabels& labels) {
    if (labels.Count() == 0) {
        return;
    }
    xml.start("Label");
    for (const cLabel& label : labels) {
        xml.start("Item");
        xml.attribute("Backcolor", label.BackColor);
        xml.attribute("Forecolor", label.Forecolor);
        xml.attribute("Border", label.Border);
        xml.attribute("Bordercolor", label.BorderColor);
        xml.attribute("Fontname", label.FontName);
        xml.attribute("Fontsize", label.FontSize);
        xml.flag("Fontbold", label.FontBold);
        xml.flag("Fontitalic", label.FontItalic);
        // In another order than the reader takes them: see FrameReader::readLabels.
        xml.flag("Fontoverline", label.FontOverline);
        xml.flag("Fontstrikethourht", label.FontStrikethourht);
        xml.flag("Fontunderline", label.FontUnderline);
        xml.attribute("Height", label.Height);
        xml.attribute("Width", label.Width);
        xml.attribute("Left", label.PosX);
        xml.attribute("Top", label.PosY);
        xml.attribute("Text", label.Text);
        xml.attribute("Note", label.Note);
        xml.end();
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
    xml_->start("Div");
    xml_->child("Backcolor", forecast.Div().BackColor);
    xml_->child("Border", forecast.Div().Border);
    xml_->child("BorderColor", forecast.Div().BorderColor);
    xml_->end();
    writeTextLine(*xml_, "Title", forecast.Title());
    writeTextLine(*xml_, "Subtitle", forecast.Subtitle());
    writeTextItems(*xml_, "Header", "Item", forecast.Header());
    writeTextItems(*xml_, "Body", "Detail", forecast.Body());
    writeSymbols(*xml_, frame.Sprites().Symbols());
    writeLabels(*xml_, frame.Sprites().Labels());
    xml_->end();
}

QByteArray ProjectWriter::finish() {
    xml_->end();
    xml_->end();
    return xml_->finish();
}

}  // namespace nubivane

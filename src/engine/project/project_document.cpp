// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_document.h"

#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/core/program_folder.h"
#include "engine/core/xml_guard.h"
#include "engine/project/frame_reader.h"
#include "engine/project/project_error.h"

#include <QIODevice>
#include <QXmlStreamReader>

#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A Frame's number has 16 bits throughout the program.
constexpr qint32 MaxFrames = std::numeric_limits<qint16>::max();

class DocumentReader {
  public:
    DocumentReader(QIODevice& device, const ProgramFolder& folder,
                   const std::function<void(double)>& progress)
        : xml_(&device), folder_(folder), progress_(progress) {
        xml_.setNamespaceProcessing(false);
        document_.model = std::make_unique<cWrapper>();
    }

    ProjectDocument read() {
        bool found = false;
        while (!xml_.atEnd()) {
            const auto token = xml_.readNext();
            if (token == QXmlStreamReader::DTD) {
                refuseEntities();
            } else if (token == QXmlStreamReader::StartElement && xml_.qualifiedName() == u"FILE" &&
                       !found) {
                found = true;
                readFile();
            }
        }
        if (xml_.hasError()) {
            throw damagedProject(QStringLiteral("line %1 of the XML document: %2")
                                     .arg(xml_.lineNumber())
                                     .arg(xml_.errorString()));
        }
        if (!found) {
            throw damagedProject(u"the XML document has no FILE element"_s);
        }
        if (rootFailure_) {
            throw *rootFailure_;
        }
        if (document_.model->Frames().Count() == 0) {
            throw damagedProject(u"the project has no Frame"_s);
        }
        return std::move(document_);
    }

  private:
    void refuseEntities() {
        if (xml_.text().contains(u"<!ENTITY")) {
            throw damagedProject(u"the XML document declares entities"_s);
        }
    }

    /// Whatever is wrong with the project, the document is read to its end: one that is not even
    /// XML fails as such, whatever its version says.
    void readFile() {
        try {
            readRoot(xml_.attributes());
        } catch (const Error& error) {
            rootFailure_ = error;
            return;
        }
        while (xml_.readNextStartElement()) {
            if (xml_.qualifiedName() == u"Collection") {
                readCollections();
            } else if (xml_.qualifiedName() == u"Frames") {
                readFrames();
                if (document_.damage) {
                    return;
                }
            } else {
                xml_.skipCurrentElement();
            }
        }
    }

    void readRoot(const QXmlStreamAttributes& attributes) {
        if (attributes.size() < 4 || attributes[3].value() != u"2.0") {
            throw unsupportedVersion(u"the project is of no version that can be read"_s);
        }
        const auto frames = integerPart(attributes[0].value());
        const auto mapSize = toInt32(attributes[2].value());
        if (!frames || *frames < 0 || !mapSize || *mapSize < 0) {
            throw damagedProject(
                u"the number of Frames or the size of the map is no such number"_s);
        }
        document_.frames = *frames;
        document_.sizes.insert(0, *mapSize);
        document_.map = attributes[1].value().toString();
        if (!host_files::isPlainName(document_.map)) {
            throw damagedProject(u"the map \""_s + document_.map + u"\" is no plain file name"_s);
        }
    }

    void readCollections() {
        while (xml_.readNextStartElement()) {
            const QXmlStreamAttributes attributes = xml_.attributes();
            if (!attributes.isEmpty()) {
                document_.collections += attributes[0].value().toString();
            }
            xml_.skipCurrentElement();
        }
    }

    void readFrames() {
        FrameReader frame(xml_, folder_, document_);
        try {
            while (xml_.readNextStartElement()) {
                if (document_.model->Frames().Count() == MaxFrames) {
                    throw damagedProject(u"the project has too many Frames"_s);
                }
                const qint32 number = frame.read();
                if (progress_ && document_.frames > 0) {
                    progress_(static_cast<double>(number) / document_.frames);
                }
            }
        } catch (const Error& error) {
            document_.damage = damagedProject(error.cause());
            while (!xml_.atEnd()) {
                xml_.readNext();
            }
        }
    }

    QXmlStreamReader xml_;
    const ProgramFolder& folder_;
    const std::function<void(double)>& progress_;
    ProjectDocument document_;
    std::optional<Error> rootFailure_;
};

}  // namespace

ProjectDocument readProjectDocument(QIODevice& xml, const ProgramFolder& folder,
                                    const std::function<void(double part)>& progress) {
    if (xml.size() > MaxDocumentBytes) {
        throw damagedProject(
            QStringLiteral("the XML document has %1 bytes where at most %2 are read")
                .arg(xml.size())
                .arg(MaxDocumentBytes));
    }
    if (const std::optional<QString> fault = xmlFault(xml)) {
        throw damagedProject(*fault);
    }
    return DocumentReader(xml, folder, progress).read();
}

}  // namespace nubivane

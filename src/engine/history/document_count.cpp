// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/file_state.h"
#include "engine/core/xml_guard.h"
#include "engine/history/version_store.h"

#include <QFile>
#include <QXmlStreamReader>

namespace nubivane {

using namespace Qt::StringLiterals;

DocumentCount countDocument(const QString& hostFile) {
    DocumentCount count;
    QFile file;
    QString reason;
    if (!openOrdinary(file, hostFile, reason) || xmlFault(file)) {
        return count;
    }
    QXmlStreamReader xml(&file);
    xml.setNamespaceProcessing(false);
    bool amongSprites = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const QStringView name = xml.qualifiedName();
        const bool isList = name == "Symbol"_L1 || name == "Label"_L1;
        if (isList && (xml.isStartElement() || xml.isEndElement())) {
            amongSprites = xml.isStartElement();
        } else if (xml.isStartElement()) {
            count.frames += name == "Frame"_L1 ? 1 : 0;
            count.sprites += amongSprites && name == "Item"_L1 ? 1 : 0;
        }
    }
    return count;
}

}  // namespace nubivane

// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/xml_guard.h"
#include "fuzz_support.h"

#include <QBuffer>
#include <QXmlStreamReader>

using namespace nubivane;

/// The input is an XML document. Whatever the guard lets pass, a parser must find harmless: guard
/// and parser read one document differently when the guard can be led past a tag.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int Hundreds = 300;  // above the guard's own limits
    QBuffer buffer;
    buffer.setData(fuzz::inputBytes(data, size));
    buffer.open(QIODevice::ReadOnly);
    if (xmlFault(buffer)) {
        return 0;
    }
    fuzz::require(buffer.pos() == 0, "the guard leaves the document at its start");
    QXmlStreamReader xml(&buffer);
    xml.setNamespaceProcessing(false);
    int depth = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            fuzz::require(++depth <= Hundreds, "no elements nested hundreds deep");
            fuzz::require(xml.attributes().size() <= Hundreds, "no tag of hundreds of attributes");
        } else if (xml.isEndElement()) {
            --depth;
        }
    }
    return 0;
}

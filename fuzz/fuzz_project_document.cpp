// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/project_document.h"
#include "fuzz_support.h"

#include <QBuffer>

using namespace nubivane;

/// The input is a ".nvpf" document.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryProgram program;
    QBuffer buffer;
    buffer.setData(fuzz::inputBytes(data, size));
    buffer.open(QIODevice::ReadOnly);
    try {
        const ProjectDocument document = readProjectDocument(buffer, program.folder());
        fuzz::require(document.model->Frames().Count() >= 1, "a project read has a Frame");
        fuzz::require(host_files::isPlainName(document.map), "the map is a plain name");
        fuzz::require(document.frames >= 0, "the number of blocks is not negative");
        for (const qint32 bytes : document.sizes) {
            fuzz::require(bytes >= 0, "a size is not negative");
        }
        fuzz::require(!document.damage || document.damage->number() == error_number::DamagedProject,
                      "damage has its number");
    } catch (const Error& error) {
        fuzz::require(error.number() == error_number::DamagedProject ||
                          error.number() == error_number::UnsupportedVersion,
                      "a document fails with one of two numbers");
    }
    return 0;
}

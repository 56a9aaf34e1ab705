// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/chm_archive.h"

#include "engine/help/help_error.h"

#include <mspack.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace nubivane {

namespace {

/// What the library's functions for files work on: the archive, or the buffer that takes what is
/// unpacked.
struct File : mspack_file {
    const QByteArray* archive = nullptr;
    QByteArray* unpacked = nullptr;
    qint64 room = 0;  ///< bytes that may still be unpacked
    qint64 at = 0;
};

struct System : mspack_system {
    QByteArray archive;
    QByteArray unpacked;
    qint64 wanted = 0;  ///< bytes to unpack
    qint64 memory = 0;  ///< bytes that the directory may still take
};

mspack_file* openFile(mspack_system* system, const char*, int mode) {
    auto* all = static_cast<System*>(system);
    auto file = std::make_unique<File>();
    if (mode == MSPACK_SYS_OPEN_READ) {
        file->archive = &all->archive;
    } else {
        all->unpacked.clear();
        file->unpacked = &all->unpacked;
        file->room = all->wanted;
    }
    return file.release();
}

void closeFile(mspack_file* file) {
    const std::unique_ptr<File> closed(static_cast<File*>(file));
}

int readFile(mspack_file* file, void* buffer, int bytes) {
    auto* from = static_cast<File*>(file);
    if (!from->archive || bytes < 0) {
        return -1;
    }
    const qint64 count = std::min<qint64>(bytes, from->archive->size() - from->at);
    std::memcpy(buffer, from->archive->constData() + from->at, static_cast<std::size_t>(count));
    from->at += count;
    return static_cast<int>(count);
}

int writeFile(mspack_file* file, void* buffer, int bytes) {
    auto* to = static_cast<File*>(file);
    if (!to->unpacked || bytes < 0 || bytes > to->room) {
        return -1;
    }
    to->unpacked->append(static_cast<const char*>(buffer), bytes);
    to->room -= bytes;
    return bytes;
}

int seekFile(mspack_file* file, off_t offset, int mode) {
    auto* in = static_cast<File*>(file);
    if (!in->archive) {
        return -1;
    }
    const qint64 size = in->archive->size();
    const qint64 start = mode == MSPACK_SYS_SEEK_START ? 0
                         : mode == MSPACK_SYS_SEEK_CUR ? in->at
                                                       : size;
    // Neither sum nor difference can overflow: both lie inside the archive.
    if (offset < -start || offset > size - start) {
        return -1;
    }
    in->at = start + offset;
    return 0;
}

off_t tellFile(mspack_file* file) {
    return static_cast<off_t>(static_cast<File*>(file)->at);
}

void passOverMessage(mspack_file*, const char*, ...) {}

/// Puts the two identifiers of such files where the library insists on them. They tell nothing, and
/// the compiler that makes the help writes the first one twice.
void writeIdentifiers(QByteArray& archive) {
    constexpr qsizetype Second = 0x28;
    constexpr char firstByte = 0x11;
    if (archive.size() > Second) {
        archive[Second] = firstByte;
    }
}

/// Memory for the directory, whose files may be as many as fit into the archive.
void* takeMemory(mspack_system* system, std::size_t bytes) {
    auto* all = static_cast<System*>(system);
    if (bytes > static_cast<std::size_t>(all->memory)) {
        return nullptr;
    }
    all->memory -= static_cast<qint64>(bytes);
    return std::malloc(bytes);
}

/// Memory for unpacking: few parts, of sizes that the archive tells. The library passes a copy of
/// the system here.
void* takeMemoryForUnpacking(mspack_system*, std::size_t bytes) {
    return bytes > static_cast<std::size_t>(ChmArchive::MaxMemory) ? nullptr : std::malloc(bytes);
}

void freeMemory(void* memory) {
    std::free(memory);
}

void copyMemory(void* from, void* to, std::size_t bytes) {
    std::memcpy(to, from, bytes);
}

}  // namespace

struct ChmArchive::Library {
    explicit Library(QByteArray bytes) {
        system.open = openFile;
        system.close = closeFile;
        system.read = readFile;
        system.write = writeFile;
        system.seek = seekFile;
        system.tell = tellFile;
        system.message = passOverMessage;
        system.alloc = takeMemory;
        system.free = freeMemory;
        system.copy = copyMemory;
        system.null_ptr = nullptr;
        system.archive = std::move(bytes);
        writeIdentifiers(system.archive);
        system.memory = MaxMemory;
        decompressor = mspack_create_chm_decompressor(&system);
        header = decompressor ? decompressor->open(decompressor, "") : nullptr;
        system.alloc = takeMemoryForUnpacking;
    }
    ~Library() {
        if (header) {
            decompressor->close(decompressor, header);
        }
        if (decompressor) {
            mspack_destroy_chm_decompressor(decompressor);
        }
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    System system{};
    mschm_decompressor* decompressor = nullptr;
    mschmd_header* header = nullptr;
};

ChmArchive::ChmArchive(QByteArray bytes, const Visitor& visit)
    : library_(std::make_unique<Library>(std::move(bytes))) {
    if (!library_->header) {
        throw damagedHelp("its directory cannot be read");
    }
    for (const mschmd_file* list : {library_->header->sysfiles, library_->header->files}) {
        for (const mschmd_file* file = list; file; file = file->next) {
            visit(
                QString::fromUtf8(file->filename),
                {.packed = file->section->id == 1, .offset = file->offset, .length = file->length});
        }
    }
}

ChmArchive::~ChmArchive() = default;

QByteArray ChmArchive::extract(const Entry& entry) {
    Library& library = *library_;
    if (entry.offset < 0 || entry.length < 0) {
        throw damagedHelp("a file outside the content");
    }
    mschmd_file file{};
    file.section = entry.packed ? &library.header->sec1.base : &library.header->sec0.base;
    file.offset = static_cast<off_t>(entry.offset);
    file.length = static_cast<off_t>(entry.length);
    library.system.wanted = entry.length;
    const int result = library.decompressor->extract(library.decompressor, &file, "");
    if (result != MSPACK_ERR_OK || library.system.unpacked.size() != entry.length) {
        throw damagedHelp("a file cannot be unpacked");
    }
    return std::exchange(library.system.unpacked, {});
}

}  // namespace nubivane

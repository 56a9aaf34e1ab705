// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/interrupted_save.h"

#include "engine/core/durable_file.h"
#include "engine/core/file_state.h"
#include "engine/core/folder_lock.h"
#include "engine/core/replaced_file.h"
#include "engine/core/temporary_name.h"
#include "engine/project/project_document.h"

#include <QFileInfo>

#include <sys/stat.h>

#include <cstdio>
#include <ctime>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype ChecksumBytes = 16;
constexpr qsizetype OldChecksumBytes = 8;
constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
constexpr long MarkStep = 100;  // nanoseconds; some file systems count in tenths of microseconds

/// A checksum over both files.
QByteArray seal(const Fingerprint& document, const Fingerprint& data) {
    return QCryptographicHash::hash(document.checksum + data.checksum,
                                    QCryptographicHash::Blake2b_256)
        .left(ChecksumBytes)
        .toHex();
}

QByteArray oldPart(const std::optional<Fingerprint>& old) {
    return old ? old->checksum.left(OldChecksumBytes).toHex() : QByteArray("none");
}

/// A waiting document's name taken apart.
struct Note {
    qint64 documentSize;
    qint64 dataSize;
    QByteArray seal;
    QByteArray old;
};

/// The note of a name that begins with `prefix`; nothing for another temporary file's.
std::optional<Note> noteOf(const QString& name, const QString& prefix) {
    const QStringList parts = name.mid(prefix.size()).split(u'-');
    constexpr qsizetype Parts = 5;  // chance comes first
    if (parts.size() != Parts) {
        return std::nullopt;
    }
    return Note{parts[1].toLongLong(nullptr, 16), parts[2].toLongLong(nullptr, 16),
                parts[3].toLatin1(), parts[4].toLatin1()};
}

std::optional<Fingerprint> fingerprintOfOpen(QFile& file, qint64 maxBytes) {
    constexpr qint64 Piece = 1 << 20;
    if (file.size() > maxBytes || !file.seek(0)) {
        return std::nullopt;
    }
    Fingerprinter all;
    for (QByteArray bytes = file.read(Piece); !bytes.isEmpty(); bytes = file.read(Piece)) {
        all.add(bytes);
    }
    if (file.error() != QFileDevice::NoError || !file.seek(0)) {
        return std::nullopt;
    }
    return all.result();
}

/// Looks at the waiting documents of one project, reading the pair that lies there at most once.
class Candidates {
  public:
    Candidates(const QString& projectFile, const QString& dataFile)
        : dataFile_(dataFile),
          dataSize_(fileStateOf(dataFile).size),
          old_(fingerprintOf(projectFile, MaxDocumentBytes)),
          oldIsThere_(QFileInfo::exists(projectFile)) {}

    /// The document, when it is whole and belongs to the data file that lies there.
    std::unique_ptr<QFile> proven(const QString& path, const Note& note) {
        if (note.dataSize != dataSize_ || note.documentSize > MaxDocumentBytes ||
            (oldIsThere_ && note.old != oldPart(old_))) {
            return nullptr;
        }
        auto file = std::make_unique<QFile>();
        QString reason;
        if (!openOrdinary(*file, path, reason, LinkUse::Itself) ||
            file->size() != note.documentSize) {
            return nullptr;
        }
        const auto document = fingerprintOfOpen(*file, MaxDocumentBytes);
        if (!document || !data() || seal(*document, *data()) != note.seal) {
            return nullptr;
        }
        return file;
    }

  private:
    const std::optional<Fingerprint>& data() {
        if (!dataRead_) {
            data_ = fingerprintOf(dataFile_, MaxDataBytes);
            dataRead_ = true;
        }
        return data_;
    }

    QString dataFile_;
    qint64 dataSize_;
    std::optional<Fingerprint> old_;
    bool oldIsThere_;
    std::optional<Fingerprint> data_;
    bool dataRead_ = false;
};

/// The fraction of a second by which a data file names the document that it makes obsolete.
long markOf(const Fingerprint& document) {
    constexpr quint32 Steps = 9'999'999;
    quint32 number = 0;
    for (const char c : document.checksum.left(4)) {
        number = number << 8 | static_cast<uchar>(c);
    }
    return static_cast<long>(number % Steps + 1) * MarkStep;
}

}  // namespace

void Fingerprinter::add(const QByteArray& bytes) {
    hash_.addData(bytes);
    size_ += bytes.size();
}

Fingerprint Fingerprinter::result() const {
    return {size_, hash_.result()};
}

Fingerprint fingerprintOf(const QByteArray& bytes) {
    Fingerprinter all;
    all.add(bytes);
    return all.result();
}

std::optional<Fingerprint> fingerprintOf(const QString& hostPath, qint64 maxBytes) {
    QFile file;
    QString reason;
    return openOrdinary(file, hostPath, reason) ? fingerprintOfOpen(file, maxBytes) : std::nullopt;
}

QByteArray waitingNote(const Fingerprint& document, const Fingerprint& data,
                       const std::optional<Fingerprint>& old) {
    return QByteArray::number(document.size, 16) + '-' + QByteArray::number(data.size, 16) + '-' +
           seal(document, data) + '-' + oldPart(old);
}

std::optional<WaitingDocument> findWaitingDocument(const QString& projectFile,
                                                   const QString& dataFile) {
    const QFileInfo info(projectFile);
    const QString prefix = temporary_name::prefixFor(info.fileName());
    const QStringList names = temporary_name::withPrefix(info.path(), prefix);
    std::optional<Candidates> candidates;
    for (const QString& name : names) {
        const auto note = noteOf(name, prefix);
        if (!note) {
            continue;
        }
        if (!candidates) {
            candidates.emplace(projectFile, dataFile);
        }
        const QString path = info.path() + u'/' + name;
        if (auto file = candidates->proven(path, *note)) {
            return WaitingDocument{path, std::move(file)};
        }
    }
    return std::nullopt;
}

QString completeInterruptedSave(const QString& projectFile, const QString& dataFile) {
    const auto seen = findWaitingDocument(projectFile, dataFile);
    if (!seen) {
        return projectFile;
    }
    // A living program between its renames holds the lock, and does the second one itself.
    const QString folder = QFileInfo(projectFile).path();
    const FolderLock lock(folder, std::chrono::milliseconds(0));
    if (lock.state() == FolderLock::State::Busy) {
        return seen->path;
    }
    const auto waiting = findWaitingDocument(projectFile, dataFile);
    if (!waiting) {
        return projectFile;
    }
    if (std::rename(QFile::encodeName(waiting->path).constData(),
                    QFile::encodeName(projectFile).constData()) != 0) {
        return waiting->path;
    }
    durable_file::flushFolder(folder);
    return projectFile;
}

bool projectFileStands(const QString& projectFile, const QString& dataFile) {
    return QFileInfo(projectFile).isFile() ||
           findWaitingDocument(behindLinks(projectFile), behindLinks(dataFile)).has_value();
}

void markObsolete(QFileDevice& newData, const Fingerprint& oldDocument) {
    const std::time_t now = std::time(nullptr);
    const timespec times[] = {{now, 0}, {now, markOf(oldDocument)}};
    // Without it only a person who removes a waiting document by hand is not warned.
    ::futimens(newData.handle(), times);
}

bool isObsolete(const Fingerprint& document, const FileState& data) {
    return data.exists() && data.modified % NanosecondsPerSecond == markOf(document);
}

bool isObsolete(QFile& document, const FileState& data) {
    const qint64 fraction = data.modified % NanosecondsPerSecond;
    if (fraction == 0 || fraction % MarkStep != 0) {
        return false;  // no mark, so that there is no need to read the document
    }
    const auto known = fingerprintOfOpen(document, MaxDocumentBytes);
    return known && isObsolete(*known, data);
}

}  // namespace nubivane

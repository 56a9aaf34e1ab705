// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/site_manifest.h"

#include "engine/core/host_files.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QStringDecoder>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr char ManifestHead[] = "nubivane-manifest 1\n";
constexpr char Mark[] = "mark ";
constexpr char End[] = "end ";
constexpr qsizetype HashDigits = 64;
constexpr int LongestMark = 2000;

QByteArray hashOf(QByteArrayView bytes) {
    return QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha256).toHex();
}

bool isHash(QByteArrayView text) {
    return text.size() == HashDigits && std::all_of(text.begin(), text.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
           });
}

}  // namespace

bool SiteManifest::isName(const QString& name) {
    const QStringList parts = name.split(u'/');
    return std::all_of(parts.begin(), parts.end(), &host_files::isPlainName);
}

QByteArray SiteManifest::toBytes() const {
    QByteArray bytes = ManifestHead;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        bytes +=
            file->hash + ' ' + QByteArray::number(file->size) + ' ' + file.key().toUtf8() + '\n';
    }
    bytes += Mark + QByteArray(QRandomGenerator::global()->bounded(LongestMark), '.') + '\n';
    return bytes + End + hashOf(bytes) + '\n';
}

std::optional<SiteManifest> SiteManifest::fromBytes(const QByteArray& bytes) {
    const qsizetype tail = qsizetype{sizeof End} - 1 + HashDigits + 1;
    if (bytes.size() > MaxBytes || bytes.size() < tail || !bytes.startsWith(ManifestHead)) {
        return std::nullopt;
    }
    const QByteArrayView body = QByteArrayView(bytes).chopped(tail);
    if (bytes.sliced(body.size()) != End + hashOf(body) + '\n') {
        return std::nullopt;
    }
    SiteManifest manifest;
    const QList<QByteArray> lines = body.toByteArray().split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QByteArray& line = lines.at(i);
        const qsizetype blank = line.indexOf(' ', HashDigits + 1);
        if (line.startsWith(Mark) || line.isEmpty()) {
            continue;
        }
        bool valid = false;
        const qint64 size = line.mid(HashDigits + 1, blank - HashDigits - 1).toLongLong(&valid);
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString name = decoder.decode(line.mid(blank + 1));
        if (blank < 0 || !valid || size < 0 || decoder.hasError() || !isName(name) ||
            !isHash(QByteArrayView(line).first(HashDigits)) || line.at(HashDigits) != ' ') {
            return std::nullopt;
        }
        manifest.files.insert(name, {size, line.first(HashDigits)});
    }
    return manifest;
}

}  // namespace nubivane

// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/site_contents.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"

#include <QFile>

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <memory>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isUp(const QString& name) {
    return name == u"..\\" || name == u"../" || name == u"..";
}

/// SHA-256 of a file, by the library that has the processor do it; empty when it cannot be read.
QByteArray hashOf(QFile& file) {
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free);
    EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr);
    std::array<char, 65536> block{};
    qint64 size = 0;
    while ((size = file.read(block.data(), block.size())) > 0) {
        EVP_DigestUpdate(context.get(), block.data(), static_cast<std::size_t>(size));
    }
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned length = 0;
    EVP_DigestFinal_ex(context.get(), digest.data(), &length);
    return size < 0 ? QByteArray()
                    : QByteArray(reinterpret_cast<const char*>(digest.data()),
                                 static_cast<qsizetype>(length))
                          .toHex();
}

}  // namespace

QString folderOf(const QString& name) {
    const qsizetype slash = name.lastIndexOf(u'/');
    return slash < 0 ? QString() : name.first(slash);
}

QString failureText(const cUpload& step) {
    switch (step.Command) {
        case UploadCommand::MakeFolder:
            return u"Cannot create "_s + step.Param1 + u" folder"_s;
        case UploadCommand::ChangeFolder:
            return u"Cannot find "_s + step.Param1 + u" folder"_s;
        case UploadCommand::Upload:
            break;
    }
    return u"Cannot upload "_s + host_files::toHost(step.Param1) + u" file"_s;
}

SiteContents SiteContents::of(const UploadPlan& plan) {
    SiteContents site;
    QStringList stand;    // below the Nubivane folder
    bool inside = false;  // of it
    for (const cUpload& step : plan) {
        switch (step.Command) {
            case UploadCommand::MakeFolder:
                if (!inside) {
                    site.nubivaneFolder = step.Param1;
                } else {
                    site.folders += (stand + QStringList(step.Param1)).join(u'/');
                }
                break;
            case UploadCommand::ChangeFolder:
                if (!inside && site.nubivaneFolder.isEmpty()) {
                    site.remoteFolder = step.Param1;
                } else if (!inside) {
                    inside = true;
                } else if (isUp(step.Param1)) {
                    stand.removeLast();
                } else {
                    stand += step.Param1;
                }
                break;
            case UploadCommand::Upload: {
                const QString name = QString(step.Param2).replace(u'\\', u'/');
                const QString place = (stand + QStringList(name)).join(u'/');
                site.files.push_back({&step,
                                      host_files::toHost(step.Param1),
                                      place,
                                      {},
                                      std::ssize(site.files),
                                      !place.contains(u'/')});
                break;
            }
        }
    }
    return site;
}

void SiteContents::readFiles(const std::function<bool()>& stopped) {
    for (PlannedFile& planned : files) {
        if (stopped()) {
            return;
        }
        QFile file(planned.hostFile);
        QByteArray hash;
        if (file.open(QIODevice::ReadOnly)) {
            hash = hashOf(file);
        }
        if (hash.isEmpty()) {
            if (planned.step->ErrorCauseStop) {
                throw Error(error_number::UploadStopped, u"runUpload"_s, failureText(*planned.step),
                            file.errorString());
            }
            planned.content = {};
            continue;
        }
        planned.content = {file.size(), hash};
    }
}

QStringList SiteContents::foldersOfFiles() const {
    QSet<QString> names;
    for (const PlannedFile& file : files) {
        names.insert(folderOf(file.name));
    }
    QStringList list(names.cbegin(), names.cend());
    list.sort();
    return list;
}

}  // namespace nubivane

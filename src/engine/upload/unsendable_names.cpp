// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/unsendable_names.h"

#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/model/workspace.h"

#include <QStringDecoder>

#include <algorithm>
#include <filesystem>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isControl(char c) {
    return (c >= 0 && c < 0x20) || c == 0x7F;
}

/// What is wrong with a name as it stands on the disk; empty when nothing is.
QString faultOf(const QByteArray& name) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(name);
    if (decoder.hasError()) {
        return u"its name is no UTF-8"_s;
    }
    if (host_files::isPlainName(text)) {
        return {};
    }
    if (name.contains('\n') || name.contains('\r')) {
        return u"its name holds a line end"_s;
    }
    if (std::any_of(name.begin(), name.end(), &isControl)) {
        return u"its name holds a control character"_s;
    }
    return name.contains('\\') ? u"its name holds a backslash"_s : u"its name holds a colon"_s;
}

QString shown(const QByteArray& name) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(name);
    QString visible;
    for (const char c : name) {
        if (isControl(c) || (decoder.hasError() && c < 0)) {
            visible += u"\\x"_s + QString::fromLatin1(QByteArray(1, c).toHex().toUpper());
        } else {
            visible += QLatin1Char(c);
        }
    }
    // Where all of it is text only what cannot be seen is replaced.
    return decoder.hasError() || visible.contains("\\x"_L1) ? visible : text;
}

class Search {
  public:
    enum class Wanted { Files, Folders };

    /// Looks through one folder (with backslashes). What cannot be read is told when it is sent.
    void in(const QString& folder, Wanted wanted, const QString& beginning = {}) {
        const QString host = host_files::toHost(folder);
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(host.toStdString(), error)) {
            const QByteArray name = QByteArray::fromStdString(entry.path().filename().string());
            std::error_code unknown;
            const bool fits = wanted == Wanted::Folders ? entry.is_directory(unknown)
                                                        : entry.is_regular_file(unknown);
            if (const QString fault = faultOf(name);
                fits && !fault.isEmpty() && name.startsWith(beginning.toUtf8())) {
                found_ += host + u'/' + shown(name) + u": "_s + fault;
            }
        }
    }

    QStringList found() && {
        found_.sort();
        return std::move(found_);
    }

  private:
    QStringList found_;
};

}  // namespace

QStringList unsendableNames(const Workspace& workspace, const UploadGroups& groups) {
    Search search;
    if (groups.symbols) {
        const QString symbols = workspace.folder.symbols();
        search.in(symbols, Search::Wanted::Folders);
        for (const QString& folder : host_files::folderNames(symbols)) {
            search.in(symbols + u'\\' + folder, Search::Wanted::Files);
        }
    }
    if (groups.maps) {
        search.in(workspace.folder.maps(), Search::Wanted::Files);
    }
    if (groups.htmlPage) {
        const QString page = workspace.settings.text(Setting::PreviewFilename);
        search.in(workspace.folder.web(), Search::Wanted::Files, page);
    }
    return std::move(search).found();
}

}  // namespace nubivane

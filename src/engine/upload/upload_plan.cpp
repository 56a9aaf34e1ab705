// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_plan.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/model/workspace.h"

#include <QFile>
#include <QSet>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String Up("..\\");
constexpr int ResponsiveType = 5;              ///< of the setting
constexpr char Doctype[] = "<!DOCTYPE html>";  ///< the other types' pages have none

class PlanBuilder {
  public:
    explicit PlanBuilder(const Workspace& workspace) : workspace_(workspace) {}

    UploadPlan build(bool symbols, bool maps, bool htmlPage) {
        const SettingsStore& settings = workspace_.settings;
        const QString remote = settings.text(Setting::FtpRemoteFolder);
        if (!trimBlanks(remote).isEmpty()) {
            enter(remote);
        }
        makeAndEnter(settings.text(Setting::FtpNubivaneFolderInPlan));
        makeAndEnter(u"Web"_s);
        enter(Up);
        symbolFolders(symbols);
        makeAndEnter(u"Maps"_s);
        enter(Up);
        if (maps) {
            const QString folder = workspace_.folder.maps();
            for (const QString& file : plain(host_files::fileNames(folder))) {
                send(folder + u'\\' + file, u"Maps\\"_s + file, true);
            }
        }
        if (htmlPage) {
            page(settings.text(Setting::PreviewFilename));
        }
        return std::move(plan_);
    }

  private:
    static QStringList plain(QStringList names) {
        names.removeIf([](const QString& name) { return !host_files::isPlainName(name); });
        return names;
    }

    void enter(const QString& folder) {
        plan_.push_back(newUploadStep(UploadCommand::ChangeFolder, folder, {}, true));
    }

    /// Making a folder that is there fails on every server; entering it tells.
    void makeAndEnter(const QString& folder) {
        plan_.push_back(newUploadStep(UploadCommand::MakeFolder, folder, {}, false));
        enter(folder);
    }

    void send(const QString& file, const QString& name, bool stop) {
        plan_.push_back(newUploadStep(UploadCommand::Upload, file, name, stop));
    }

    void symbolFolders(bool withFiles) {
        makeAndEnter(u"Symbols"_s);
        const QString symbols = workspace_.folder.symbols();
        const QStringList folders = plain(host_files::folderNames(symbols));
        for (const QString& folder : folders) {
            makeAndEnter(folder);
            enter(Up);
        }
        if (withFiles) {
            for (const QString& folder : folders) {
                const QString path = symbols + u'\\' + folder;
                for (const QString& file : plain(host_files::fileNames(path))) {
                    send(path + u'\\' + file, folder + u'\\' + file, true);
                }
            }
        }
        enter(Up);
    }

    void page(const QString& name) {
        if (!host_files::isPlainName(name)) {
            return;
        }
        for (const QString& file : {name + u".htm"_s, name + u".js"_s}) {
            sendIfThere(workspace_.folder.entry(file), file, true);
        }
        for (qint32 i = 1; i <= workspace_.Frames().Count(); ++i) {
            const QString file = name + QString::number(i) + u".jpg"_s;
            sendIfThere(workspace_.folder.web() + u'\\' + file, u"Web/"_s + file, false);
        }
        if (isResponsive(name)) {
            responsivePage(name);
        }
    }

    /// The page may have been made of this type without the settings knowing.
    bool isResponsive(const QString& name) const {
        if (workspace_.settings.number(Setting::PageType) == ResponsiveType) {
            return true;
        }
        QFile page(host_files::toHost(workspace_.folder.entry(name + u".htm"_s)));
        return page.open(QIODevice::ReadOnly) && page.read(qstrlen(Doctype)) == Doctype;
    }

    /// Its further files, and the pictures of "Web" that are not yet in the plan. Without its style
    /// the page would not be what was made.
    void responsivePage(const QString& name) {
        sendIfThere(workspace_.folder.entry(name + u".css"_s), name + u".css"_s, true);
        for (const QString& file : {name + u"-custom.css"_s, name + u".json"_s}) {
            sendIfThere(workspace_.folder.entry(file), file, false);
        }
        QSet<QString> sent;
        for (const cUpload& step : plan_) {
            sent += step.Param2;
        }
        const QString web = workspace_.folder.web();
        for (const QString& file : plain(host_files::fileNames(web))) {
            if (file.startsWith(name) && !sent.contains(u"Web/"_s + file)) {
                send(web + u'\\' + file, u"Web/"_s + file, false);
            }
        }
    }

    void sendIfThere(const QString& path, const QString& name, bool stop) {
        if (host_files::fileExists(path)) {
            send(path, name, stop);
        }
    }

    const Workspace& workspace_;
    UploadPlan plan_;
};

}  // namespace

QString nameOf(UploadCommand command) {
    switch (command) {
        case UploadCommand::ChangeFolder:
            return QStringLiteral("CHDIR");
        case UploadCommand::MakeFolder:
            return QStringLiteral("MKDIR");
        case UploadCommand::Upload:
            break;
    }
    return QStringLiteral("UPLOAD");
}

UploadPlan buildUploadPlan(const Workspace& workspace, bool symbols, bool maps, bool htmlPage) {
    if (!symbols && !maps && !htmlPage) {
        return {};
    }
    return PlanBuilder(workspace).build(symbols, maps, htmlPage);
}

}  // namespace nubivane

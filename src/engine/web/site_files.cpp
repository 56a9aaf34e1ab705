// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_files.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/core/replaced_file.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/core/windows1252.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/web/map_pictures.h"
#include "engine/web/responsive_site.h"
#include "engine/web/site_copies.h"
#include "engine/web/site_folder.h"

#include <QFile>
#include <QSet>

#include <functional>
#include <future>
#include <optional>
#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The pictures of a page: "Web\<Filename><i>.jpg" for each Frame.
class MapImages {
  public:
    explicit MapImages(const Workspace& workspace)
        : folder_(workspace.folder.web()),
          filename_(readPageFilename(workspace.settings)),
          groups_(groupByPicture(workspace.pctPanel)),
          count_(workspace.pctPanel.Count()),
          written_(static_cast<std::size_t>(count_) + 1) {}

    QStringList names() const {
        QStringList all;
        for (qint32 i = 1; i <= count_; ++i) {
            all += name(i);
        }
        return all;
    }
    QString hostPath(const QString& name) const {
        return host_files::toHost(folder_) + u'/' + name;
    }

    /// Raises `Error` when something stands in the place of one that must not be replaced.
    void requireReplaceable() const {
        for (const QString& file : names()) {
            nubivane::requireReplaceable(hostPath(file));
        }
    }

    /// Writes them while `waiting` runs on the calling thread now and then. Raises `Error`.
    void write(const std::function<void()>& waiting) {
        const QStringList all = names();
        // An older page's picture of the same name is not removed first but replaced by its
        // successor, on a thread that would else wait for the disk.
        host_files::removeFiles(folder_, QSet<QString>(all.cbegin(), all.cend()));
        host_files::makeFolder(folder_);
        try {
            parallelFor(
                groups_.size(), [this](std::size_t i) { write(groups_[i]); },
                [&waiting](std::size_t) { waiting(); });
        } catch (const Error&) {
            removeUnwritten();
            throw;
        }
    }

  private:
    QString name(qint32 frame) const { return filename_ + QString::number(frame) + u".jpg"_s; }

    void write(const SharedPicture& group) {
        const QByteArray jpeg = pageJpeg(group.picture);
        for (const qint32 frame : group.frames) {
            host_files::writeHostFile(hostPath(name(frame)), jpeg);
            written_[static_cast<std::size_t>(frame)] = 1;
        }
    }

    /// After a failure only what this page has written may be there.
    void removeUnwritten() const {
        for (qint32 i = 1; i <= count_; ++i) {
            if (!written_[static_cast<std::size_t>(i)]) {
                QFile::remove(hostPath(name(i)));
            }
        }
    }

    QString folder_;
    QString filename_;
    std::vector<SharedPicture> groups_;
    qint32 count_;
    std::vector<char> written_;  ///< by Frame; a byte each, since threads set them side by side
};

/// What a page consists of beside its pictures, ready to be written.
struct PageTexts {
    QString start;  ///< path without extension
    QByteArray page;
    QByteArray script;
};

PageType typeOfSetting(const SettingsStore& settings) {
    switch (settings.number(Setting::PageType).value_or(1)) {
        case 2:
            return PageType::ExtendedView;
        case 3:
            return PageType::TimeInterval;
        case 5:
            return PageType::Responsive;
        default:
            return PageType::NavigationButtons;
    }
}

/// Raises `Error`.
PageTexts makePage(const Workspace& workspace, PageType type) {
    const PageInput input{
        .frames = workspace.Frames(),
        .colors = workspace.colorTable,
        .map = {workspace.pctMap.ScaleWidth(), workspace.pctMap.ScaleHeight()},
        .mapOuter = {workspace.pctMap.Width(), workspace.pctMap.Height()},
        .settings = PageSettings::read(workspace.settings),
    };
    const auto writer = PageWriter::ofType(type, input);
    return {workspace.folder.entry(input.settings.filename), toWindows1252Html(writer->page()),
            toWindows1252Script(writer->script())};
}

/// Writes the map with what is drawn on it for each Frame. Raises `Error`.
QStringList writeMapImages(Editor editor, const std::function<void()>& meanwhile) {
    Workspace& workspace = editor.workspace;
    std::optional<MapImages> images;
    try {
        workspace.fillPanels();
        workspace.storeCurrentFrame();
        images.emplace(workspace);
    } catch (const Error&) {
        host_files::removeFiles(workspace.folder.web());  // no page's pictures are left
        throw;
    }
    images->requireReplaceable();
    const InputGuard noInput(editor.view);  // a second page would take away this one's files
    images->write([&] {
        meanwhile();
        editor.shell.processEvents();
    });
    QStringList files;
    for (const QString& name : images->names()) {
        files += images->hostPath(name);
    }
    return files;
}

QStringList writePage(const PageTexts& texts) {
    const QString start = host_files::toHost(texts.start);
    host_files::writeHostFile(start + u".htm"_s, texts.page);
    host_files::writeHostFile(start + u".js"_s, texts.script);
    return {start + u".htm"_s, start + u".js"_s};
}

/// The page of a type of the skeleton, in the program folder.
std::optional<QStringList> writeSkeletonPage(Editor editor, PageType type) {
    // Made on this thread while others encode the pictures, or afterwards when there was no time.
    // What goes wrong in it is raised where it is written.
    std::future<PageTexts> texts =
        std::async(std::launch::deferred, [&] { return makePage(editor.workspace, type); });
    QStringList files;
    try {
        files = writeMapImages(editor, [&texts] { texts.wait(); });
    } catch (const Error& error) {
        editor.shell.messageBox({u"An error occurred while creating the page."_s, Icon::Critical,
                                 Buttons::Ok, QString::fromUtf8(error.what())});
        return std::nullopt;
    }
    editor.shell.processEvents();
    return files + writePage(texts.get());
}

/// The responsive page, in the program folder: as always, "Web" then holds its pictures alone.
QStringList writeResponsivePage(Editor editor) {
    Workspace& workspace = editor.workspace;
    SiteFolder site(host_files::toHost(workspace.folder.path()), SiteFolder::Links::Followed);
    workspace.fillPanels();
    workspace.storeCurrentFrame();
    {
        const InputGuard noInput(editor.view);
        writeResponsiveSite(workspace, site, [&editor] { editor.shell.processEvents(); });
    }
    QSet<QString> pictures;
    for (const QString& name : site.names()) {
        pictures += name.mid(name.lastIndexOf(u'/') + 1);
    }
    host_files::removeFiles(workspace.folder.web(), pictures);
    return site.written();
}

/// A page of the skeleton with copies of all that it refers to.
void writeSkeletonSite(Editor editor, PageType type, SiteFolder& site) {
    const Workspace& workspace = editor.workspace;
    const PageTexts texts = makePage(workspace, type);
    const QString name = readPageFilename(workspace.settings);
    const std::vector<SharedPicture> groups = groupByPicture(workspace.pctPanel);
    parallelFor(
        groups.size(),
        [&](std::size_t i) {
            const QByteArray jpeg = pageJpeg(groups[i].picture);
            for (const qint32 frame : groups[i].frames) {
                site.write(u"Web/"_s + name + QString::number(frame) + u".jpg"_s, jpeg);
            }
        },
        [&editor](std::size_t) { editor.shell.processEvents(); });
    copyPictures(workspace, site);
    site.write(name + u".js"_s, texts.script);
    site.write(name + u".htm"_s, texts.page);
}

void tellFailure(Editor editor, const Error& error) {
    editor.shell.messageBox({u"An error occurred while creating the page: "_s + error.description(),
                             Icon::Critical, Buttons::Ok, error.cause()});
}

}  // namespace

std::optional<QStringList> createPage(Editor editor, std::optional<PageType> type) {
    const HourglassGuard hourglass(editor.shell);
    const PageType made = type.value_or(typeOfSetting(editor.workspace.settings));
    try {
        const std::optional<QStringList> files = made == PageType::Responsive
                                                     ? writeResponsivePage(editor)
                                                     : writeSkeletonPage(editor, made);
        if (!files) {
            return std::nullopt;
        }
        editor.shell.processEvents();
        editor.view.selectFirstFrame();
        editor.shell.processEvents();
        editor.shell.openInBrowser(pageAmong(*files));
        editor.shell.processEvents();
        return files;
    } catch (const Error& error) {
        tellFailure(editor, error);
        return std::nullopt;
    }
}

std::optional<QStringList> createSite(Editor editor, const QString& hostFolder,
                                      std::optional<PageType> type) {
    const HourglassGuard hourglass(editor.shell);
    const PageType made = type.value_or(typeOfSetting(editor.workspace.settings));
    try {
        Workspace& workspace = editor.workspace;
        SiteFolder site(hostFolder, SiteFolder::Links::Refused);
        workspace.fillPanels();
        workspace.storeCurrentFrame();
        const InputGuard noInput(editor.view);
        if (made == PageType::Responsive) {
            writeResponsiveSite(workspace, site, [&editor] { editor.shell.processEvents(); });
        } else {
            writeSkeletonSite(editor, made, site);
        }
        return site.written();
    } catch (const Error& error) {
        tellFailure(editor, error);
        return std::nullopt;
    }
}

QString pageAmong(const QStringList& files) {
    for (const QString& file : files) {
        if (file.endsWith(QLatin1String(".htm"))) {
            return file;
        }
    }
    return {};
}

void mnuPreview(Editor editor) {
    const QString name = editor.workspace.settings.text(Setting::PreviewFilename);
    const QString page = editor.workspace.folder.entry(name + u".htm"_s);
    if (host_files::isPlainName(name) && host_files::fileExists(page)) {
        editor.shell.openInBrowser(host_files::toHost(page));
    }
}

}  // namespace nubivane

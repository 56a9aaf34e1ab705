#include "web/site_files.h"

#include "core/error.h"
#include "core/host_files.h"
#include "core/parallel.h"
#include "core/settings_store.h"
#include "core/shell.h"
#include "core/windows1252.h"
#include "model/editor_view.h"
#include "model/workspace.h"
#include "picture/jpeg_tables.h"

#include <QHash>

#include <vector>

namespace nubivane {

namespace {

/// A page's picture as JPEG of our quality, passed on as it is where it already is one.
QByteArray pageJpeg(const Picture& picture) {
    if (picture.wasReadAs(PictureFormat::Jpeg) && hasOurJpegQuality(picture.originalBytes())) {
        return picture.originalBytes();
    }
    return encodePicture(picture.image(), PictureFormat::Jpeg);
}

/// Frames that show one picture.
struct SharedPicture {
    Picture picture;
    std::vector<qint32> frames;
};

std::vector<SharedPicture> groupByPicture(const FramePanels& panels) {
    std::vector<SharedPicture> groups;
    QHash<const void*, std::size_t> known;
    for (qint32 i = 1; i <= panels.Count(); ++i) {
        const Picture picture = panels.picture(i);
        const auto found = known.constFind(picture.identity());
        if (found == known.cend()) {
            known.insert(picture.identity(), groups.size());
            groups.push_back({picture, {i}});
        } else {
            groups[*found].frames.push_back(i);
        }
    }
    return groups;
}

/// Writes "Web\<Filename><i>.jpg" for each Frame: the map with what is drawn on it. Raises `Error`.
QStringList writeMapImages(Editor editor) {
    Workspace& workspace = editor.workspace;
    host_files::removeFiles(workspace.folder.web());
    const QString filename = readPageFilename(workspace.settings);
    workspace.fillPanels();
    workspace.storeCurrentFrame();

    host_files::makeFolder(workspace.folder.web());
    const QString start = host_files::toHost(workspace.folder.web()) + u'/' + filename;
    const auto target = [&start](qint32 frame) { return start + QString::number(frame) + ".jpg"; };
    const std::vector<SharedPicture> groups = groupByPicture(workspace.pctPanel);
    parallelFor(
        groups.size(),
        [&](std::size_t i) {
            const QByteArray jpeg = pageJpeg(groups[i].picture);
            for (const qint32 frame : groups[i].frames) {
                host_files::writeHostFile(target(frame), jpeg);
            }
        },
        [&](std::size_t) { editor.shell.processEvents(); });

    QStringList files;
    for (qint32 i = 1; i <= workspace.pctPanel.Count(); ++i) {
        files += target(i);
    }
    return files;
}

PageType typeOfSetting(const SettingsStore& settings) {
    switch (settings.number(Setting::PageType).value_or(1)) {
        case 2:
            return PageType::ExtendedView;
        case 3:
            return PageType::TimeInterval;
        default:
            return PageType::NavigationButtons;
    }
}

/// Writes page and script. Raises `Error`.
QStringList writePage(const Workspace& workspace, PageType type) {
    const PageInput input{
        .frames = workspace.Frames(),
        .colors = workspace.colorTable,
        .map = {workspace.pctMap.ScaleWidth(), workspace.pctMap.ScaleHeight()},
        .mapOuter = {workspace.pctMap.Width(), workspace.pctMap.Height()},
        .settings = PageSettings::read(workspace.settings),
    };
    const auto writer = PageWriter::ofType(type, input);
    const QByteArray page = toWindows1252Html(writer->page());
    const QByteArray script = toWindows1252Script(writer->script());
    const QString start = workspace.folder.entry(input.settings.filename);
    host_files::write(start + ".htm", page);
    host_files::write(start + ".js", script);
    return {host_files::toHost(start + ".htm"), host_files::toHost(start + ".js")};
}

}  // namespace

std::optional<QStringList> createPage(Editor editor, std::optional<PageType> type) {
    const HourglassGuard hourglass(editor.shell);
    QStringList files;
    try {
        files = writeMapImages(editor);
    } catch (const Error& error) {
        editor.shell.messageBox({"An error occurred while creating the page.", Icon::Critical,
                                 Buttons::Ok, QString::fromUtf8(error.what())});
        return std::nullopt;
    }
    try {
        editor.shell.processEvents();
        const QStringList pageFiles =
            writePage(editor.workspace, type.value_or(typeOfSetting(editor.workspace.settings)));
        files += pageFiles;
        editor.shell.processEvents();
        editor.view.selectFirstFrame();
        editor.shell.processEvents();
        editor.shell.openInBrowser(pageFiles.first());
        editor.shell.processEvents();
    } catch (const Error& error) {
        editor.shell.messageBox(
            {"An error occurred while creating the page: " + error.description(), Icon::Critical,
             Buttons::Ok, error.cause()});
        return std::nullopt;
    }
    return files;
}

void mnuPreview(Editor editor) {
    const QString name = editor.workspace.settings.text(Setting::PreviewFilename);
    const QString page = editor.workspace.folder.entry(name + ".htm");
    if (host_files::isPlainName(name) && host_files::fileExists(page)) {
        editor.shell.openInBrowser(host_files::toHost(page));
    }
}

}  // namespace nubivane

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fixtures.h"

#include "engine/core/host_files.h"
#include "engine/picture/image_codec.h"
#include "engine/project/open_project.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <ostream>

void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toStdString() << '"';
}

namespace nubivane::testing {

QString testFile(const QString& relative) {
    return QStringLiteral(NUBIVANE_TESTS "/") + relative;
}

QByteArray readFile(const QString& hostPath) {
    QFile file(hostPath);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << hostPath.toStdString();
    return file.readAll();
}

void writeFile(const QString& hostPath, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(hostPath).path());
    QFile file(hostPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << hostPath.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void copyFolder(const QString& from, const QString& to) {
    QDir().mkpath(to);
    QDirIterator entries(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString source = entries.next();
        const QString target = to + u'/' + QDir(from).relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).path());
        ASSERT_TRUE(QFile::copy(source, target)) << target.toStdString();
    }
}

QStringList folderNames(const QString& hostFolder) {
    return QDir(hostFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QImage plainImage(QSize size, Qt::GlobalColor color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

WorkspaceFixture::WorkspaceFixture()
    : settings(temporary.file("settings.ini")),
      workspace(ProgramFolder(host_files::toModel(temporary.file("program"))), settings) {
    copyFolder(testFile("fixtures/program"), temporary.file("program"));
    // What a run remembers of its servers is of no use to the next test.
    qputenv("XDG_STATE_HOME", temporary.file("state").toLocal8Bit());
}

QString WorkspaceFixture::host(const QString& relative) const {
    return temporary.file("program/" + relative);
}

QString WorkspaceFixture::model(const QString& relative) const {
    return host_files::toModel(host(relative));
}

void WorkspaceFixture::useMap(const QString& name, QSize size, Qt::GlobalColor color) {
    const QString extension = name.section(u'.', -1);
    writeFile(host("Maps/" + name),
              encodePicture(plainImage(size, color), formatOfExtension(extension)));
    workspace.Status.CurrentMap = workspace.folder.maps() + u'\\' + name;
    workspace.pctMap.setPicture(workspace.loadCurrentMap());
}

void WorkspaceFixture::open(const QString& hostFile) {
    OpenProject(editor(), host_files::toModel(hostFile));
}

}  // namespace nubivane::testing

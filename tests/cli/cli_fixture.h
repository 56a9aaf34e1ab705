// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"
#include "support/processes.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <functional>

namespace nubivane::testing {

/// How a run of nubivane-cli differs from a plain one.
struct RunOptions {
    QString folder{};                 ///< working folder; empty is the test's own
    QString standardOutput{};         ///< a file in place of the pipe
    std::function<void()> inChild{};  ///< runs in the new process before the program does
    QStringList environment{};        ///< "NAME=value", over a bare one
};

/// A program folder, a settings file and projects of a test's own, and nubivane-cli run on them.
class CliTest : public ::testing::Test {
  protected:
    CliTest() { copyFolder(testFile("fixtures/program"), programFolder()); }

    QString programFolder() const { return temporary.file("program"); }
    /// Host path of something in the program folder, or beside it.
    QString host(const QString& relative) const { return temporary.file("program/" + relative); }
    QString beside(const QString& relative) const { return temporary.file(relative); }
    QString settingsFile() const { return beside("settings.ini"); }

    /// Copies a project out of the tests' files; returns the copy's path.
    QString useProject(const QString& relative, const QString& name = "project.nvpf") const {
        const auto sibling = [](QString path) { return path.replace(path.size() - 1, 1, u'x'); };
        const QString copy = beside(name);
        QDir().mkpath(QFileInfo(copy).path());
        EXPECT_TRUE(QFile::copy(testFile(relative), copy)) << relative.toStdString();
        QFile::copy(testFile(sibling(relative)), sibling(copy));
        return copy;
    }

    /// A sound project of two Frames without anything missing.
    QString useSoundProject(const QString& name = "project.nvpf") const {
        return useProject("engine/web/golden/buttons-two-frames-width-500/project.nvpf", name);
    }

    /// Runs the program with the test's own program folder and settings.
    ProcessResult run(const QStringList& words, const RunOptions& options = {}) const {
        return runPlain(
            QStringList{"--program-folder", programFolder(), "--settings", settingsFile()} + words,
            options);
    }

    /// Runs the program with these words alone.
    ProcessResult runPlain(const QStringList& words, const RunOptions& options = {}) const {
        QProcess process;
        process.setWorkingDirectory(options.folder.isEmpty() ? temporary.path() : options.folder);
        process.setProcessEnvironment(environment(options.environment));
        if (!options.standardOutput.isEmpty()) {
            process.setStandardOutputFile(options.standardOutput);
        }
        if (options.inChild) {
            process.setChildProcessModifier(options.inChild);
        }
        process.start(cliProgram(), words, QIODevice::ReadOnly);
        if (!process.waitForFinished(60000)) {
            ADD_FAILURE() << process.errorString().toStdString();
            process.kill();
            process.waitForFinished();
        }
        ProcessResult result;
        result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        result.out = process.readAllStandardOutput();
        result.err = process.readAllStandardError();
        return result;
    }

    /// The object that "show" prints.
    QJsonObject show(const QString& project) const {
        const ProcessResult result = run({"show", project});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(result.out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
        return document.object();
    }

    /// Every file of the test's own folder, its path relative to it.
    QStringList files() const {
        QStringList all;
        QDirIterator entries(temporary.path(), QDir::Files | QDir::Hidden,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            all += QDir(temporary.path()).relativeFilePath(entries.next());
        }
        all.sort();
        return all;
    }

    TemporaryFolder temporary;
    TemporaryFolder state;  ///< where earlier versions and recovery copies are kept

  private:
    /// Nothing of the tests' own environment but what a person's session has: a home and a locale.
    QProcessEnvironment environment(const QStringList& settings) const {
        QProcessEnvironment variables;
        variables.insert("HOME", temporary.path());
        variables.insert("XDG_STATE_HOME", state.path());
        variables.insert("LANG", "C.UTF-8");
        for (const QString& setting : settings) {
            variables.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
        }
        for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
            if (qEnvironmentVariableIsSet(name)) {
                variables.insert(name, qEnvironmentVariable(name));
            }
        }
        return variables;
    }
};

// The fixed texts of opening, making a page and saving.
inline constexpr char DamagedText[] =
    "Cannot open the specified file. It could be damaged or not valid.\n";
inline constexpr char VersionText[] = "Version format not currently supported.\n";
inline constexpr char MissingSymbolsText[] =
    "Cannot load some symbols: they refer to a location on a hard drive that is unavailable.\n";

}  // namespace nubivane::testing

// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_files.h"
#include "support/fixtures.h"

#include <QDir>

namespace nubivane::testing {

namespace {

std::vector<std::string> goldenCases() {
    std::vector<std::string> names;
    for (const QString& name : folderNames(testFile("engine/web/golden"))) {
        names.push_back(name.toStdString());
    }
    return names;
}

class GoldenPages : public WorkspaceFixture, public ::testing::WithParamInterface<std::string> {
  protected:
    QString caseFile(const QString& name) const {
        return testFile("engine/web/golden/" + QString::fromStdString(GetParam()) + u'/' + name);
    }

    void storeSettings() {
        const QString lines = QString::fromUtf8(readFile(caseFile("settings.txt")));
        for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
            ASSERT_EQ(line.count(u'\t'), 3) << line.toStdString();
            settings.SaveSetting(line.section(u'\t', 0, 0), line.section(u'\t', 1, 1),
                                 line.section(u'\t', 2, 2), line.section(u'\t', 3));
        }
    }

    PageType type() const {
        return static_cast<PageType>(readFile(caseFile("type.txt")).trimmed().toInt());
    }
};

/// Compares line by line first, so that a failure shows where; then every byte.
void expectSameBytes(const QByteArray& written, const QByteArray& expected) {
    const QList<QByteArray> writtenLines = written.split('\n');
    const QList<QByteArray> expectedLines = expected.split('\n');
    for (qsizetype i = 0; i < qMin(writtenLines.size(), expectedLines.size()); ++i) {
        ASSERT_EQ(writtenLines[i], expectedLines[i]) << "line " << i + 1;
    }
    ASSERT_EQ(written, expected);
}

}  // namespace

TEST_P(GoldenPages, PageAndScriptAreExactlyAsExpected) {
    storeSettings();
    open(caseFile("project.nvpf"));

    ASSERT_TRUE(createPage(editor(), type()));

    const QString name = settings.text(Setting::PageFilename);
    expectSameBytes(readFile(host(name + ".htm")), readFile(caseFile("expected.htm")));
    expectSameBytes(readFile(host(name + ".js")), readFile(caseFile("expected.js")));
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenPages, ::testing::ValuesIn(goldenCases()),
                         [](const auto& test) {
                             QString name = QString::fromStdString(test.param);
                             return name.replace(u'-', u'_').toStdString();
                         });

}  // namespace nubivane::testing

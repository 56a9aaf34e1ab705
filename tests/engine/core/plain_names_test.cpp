// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "support/fixtures.h"

namespace nubivane {

TEST(PlainNames, OrdinaryNamesArePlain) {
    for (const char* name : {"sun.gif", "set 1", "...", "a..b", "..a", "a..", ".hidden", "-x", "~",
                             "sun?.gif", "\xC3\xA8.gif"}) {
        EXPECT_TRUE(host_files::isPlainName(QString::fromUtf8(name))) << name;
    }
}

TEST(PlainNames, NamesThatLeaveTheirFolderAreNot) {
    for (const char* name :
         {"", ".", "..", "a\\b", "\\a", "a/b", "/a", "C:", "C:a", "a:stream", "../a", "..\\a"}) {
        EXPECT_FALSE(host_files::isPlainName(name)) << name;
    }
}

TEST(PlainNames, ControlCharactersAreInNoPlainName) {
    for (char16_t c = 0; c < u' '; ++c) {
        EXPECT_FALSE(host_files::isPlainName("a" + QString(QChar(c)) + "b")) << int(c);
    }
    EXPECT_FALSE(host_files::isPlainName(QString(QChar(0x7F))));
    EXPECT_TRUE(host_files::isPlainName(QString(QChar(u' ')) + "b"));
}

TEST(PathInside, ARelativePathOfPlainNamesIsPutBehindTheFolder) {
    EXPECT_EQ(host_files::pathInside("C:\\Symbols", "set-1\\sun.gif"),
              std::optional<QString>("C:\\Symbols\\set-1\\sun.gif"));
    EXPECT_EQ(host_files::pathInside("C:\\Symbols", "sun.gif"),
              std::optional<QString>("C:\\Symbols\\sun.gif"));
}

TEST(PathInside, APathThatWouldLeaveTheFolderIsRefused) {
    for (const char* relative : {"..\\secret", "set-1\\..\\..\\secret", "set-1\\..",
                                 "\\etc\\passwd", "C:\\x", "set-1/../x", "set-1\\\\sun.gif",
                                 "set-1\\", "", ".", "set-1\\.\\sun.gif", "\\\\server\\share"}) {
        EXPECT_EQ(host_files::pathInside("C:\\Symbols", relative), std::nullopt) << relative;
    }
}

}  // namespace nubivane

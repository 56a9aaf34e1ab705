// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/ftp_settings.h"

#include "engine/net/reachable.h"
#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

class FtpSettingsTest : public WorkspaceFixture {
  protected:
    FtpSettings read() const { return FtpSettings::read(settings); }

    FtpSettings complete() const {
        FtpSettings all;
        all.url = "host";
        all.userName = "user";
        all.nubivaneFolder = "nVane";
        return all;
    }
};

}  // namespace

TEST_F(FtpSettingsTest, AnEmptyStoreGivesTheDefaults) {
    const FtpSettings empty = read();
    EXPECT_EQ(empty.url, "");
    EXPECT_EQ(empty.port, "21");
    EXPECT_EQ(empty.userName, "");
    EXPECT_EQ(empty.password, "");
    EXPECT_EQ(empty.remoteFolder, "");
    EXPECT_EQ(empty.nubivaneFolder, "");
    EXPECT_EQ(empty.login, FtpLogin::Normal);
    EXPECT_FALSE(empty.groups.any());
}

TEST_F(FtpSettingsTest, WhatIsSavedIsReadAgain) {
    FtpSettings saved;
    saved.url = "ftp.example.org";
    saved.port = "2121";
    saved.userName = "me";
    saved.password = "pass word";
    saved.remoteFolder = "a/b";
    saved.nubivaneFolder = "weather";
    saved.login = FtpLogin::Anonymous;
    saved.groups = {true, false, true};
    ASSERT_TRUE(saved.save(settings));
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings", "Ftp", "password"), "pass word");
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings", "Ftp", "login type"), "1");
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "symbols"), "1");
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "maps"), "0");
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings\\Ftp", "Upload", "html page"), "1");
    const FtpSettings again = read();
    EXPECT_EQ(again.url, "ftp.example.org");
    EXPECT_EQ(again.port, "2121");
    EXPECT_EQ(again.userName, "me");
    EXPECT_EQ(again.password, "pass word");
    EXPECT_EQ(again.remoteFolder, "a/b");
    EXPECT_EQ(again.nubivaneFolder, "weather");
    EXPECT_EQ(again.login, FtpLogin::Anonymous);
    EXPECT_TRUE(again.groups.symbols);
    EXPECT_FALSE(again.groups.maps);
    EXPECT_TRUE(again.groups.htmlPage);
}

TEST_F(FtpSettingsTest, AStoredPortThatIsNoNumberLoadsAsZero) {
    settings.set(Setting::FtpPort, "21a");
    EXPECT_EQ(read().port, "0");
    settings.set(Setting::FtpPort, "99999999999");
    EXPECT_EQ(read().port, "99999999999");
}

TEST_F(FtpSettingsTest, ALoginTypeBeyondItsValuesIsNormal) {
    for (const char* value : {"0", "2", "-1", "x", ""}) {
        settings.set(Setting::FtpLoginType, value);
        EXPECT_EQ(read().login, FtpLogin::Normal) << value;
    }
    settings.set(Setting::FtpLoginType, "1");
    EXPECT_EQ(read().login, FtpLogin::Anonymous);
}

TEST_F(FtpSettingsTest, AFlagIsTrueOnlyWhenItIsANumberEqualToOne) {
    const QList<QPair<QString, bool>> values{{"1", true},  {" 1 ", true}, {"0", false},
                                             {"2", false}, {"-1", false}, {"1.5", false},
                                             {"x", false}, {"", false},   {"True", false}};
    for (const auto& [value, expected] : values) {
        settings.set(Setting::UploadSymbols, value);
        settings.set(Setting::UploadMaps, value);
        settings.set(Setting::UploadHtmlPage, value);
        EXPECT_EQ(read().groups.symbols, expected) << value.toStdString();
        EXPECT_EQ(read().groups.maps, expected) << value.toStdString();
        EXPECT_EQ(read().groups.htmlPage, expected) << value.toStdString();
    }
}

TEST_F(FtpSettingsTest, APortMustBeANumber) {
    for (const char* port : {"21a", "", "  ", "a21", "2 1"}) {
        FtpSettings typed = complete();
        typed.port = port;
        const auto complaint = validateFtpSettings(typed);
        ASSERT_TRUE(complaint) << port;
        EXPECT_EQ(complaint->field, FtpField::Port);
        EXPECT_EQ(complaint->text, "Type a valid ftp port");
    }
    for (const char* port : {"0", "21", "99999", " 21 "}) {
        FtpSettings typed = complete();
        typed.port = port;
        EXPECT_FALSE(validateFtpSettings(typed)) << port;
    }
}

TEST_F(FtpSettingsTest, FoldersHaveNoSeparatorsBesideAFolderOfTheProgramsOwn) {
    for (const char* folder : {"a/b", "a\\b", "/", "\\"}) {
        FtpSettings typed = complete();
        typed.remoteFolder = folder;
        auto complaint = validateFtpSettings(typed);
        ASSERT_TRUE(complaint) << folder;
        EXPECT_EQ(complaint->field, FtpField::RemoteFolder);
        EXPECT_EQ(complaint->text, "Insert the folder name without separators");

        typed = complete();
        typed.nubivaneFolder = folder;
        complaint = validateFtpSettings(typed);
        ASSERT_TRUE(complaint) << folder;
        EXPECT_EQ(complaint->field, FtpField::NubivaneFolder);
        EXPECT_EQ(complaint->text, "Insert the folder name without separators");
    }
}

TEST_F(FtpSettingsTest, TheFirstComplaintIsTheOneOfThePortThenOfTheRemoteFolder) {
    FtpSettings typed = complete();
    typed.remoteFolder = "a/b";
    typed.nubivaneFolder = "c/d";
    EXPECT_EQ(validateFtpSettings(typed)->field, FtpField::RemoteFolder);
    typed.port = "x";
    EXPECT_EQ(validateFtpSettings(typed)->field, FtpField::Port);
}

TEST_F(FtpSettingsTest, BesideABlankFolderTheRemoteFolderIsFree) {
    for (const char* blank : {"", "  "}) {
        FtpSettings typed = complete();
        typed.nubivaneFolder = blank;
        typed.remoteFolder = "a/b";
        EXPECT_FALSE(validateFtpSettings(typed));
    }
}

TEST_F(FtpSettingsTest, TheCheckNamesTheFirstValueThatIsMissing) {
    EXPECT_EQ(checkFtpSettings(complete()), FtpCheck::Complete);
    EXPECT_EQ(static_cast<int>(checkFtpSettings(FtpSettings())), 1);

    FtpSettings incomplete = complete();
    incomplete.url = "  ";
    EXPECT_EQ(static_cast<int>(checkFtpSettings(incomplete)), 1);

    incomplete = complete();
    incomplete.userName = "";
    EXPECT_EQ(static_cast<int>(checkFtpSettings(incomplete)), 2);
    incomplete.userName = " ";
    EXPECT_EQ(static_cast<int>(checkFtpSettings(incomplete)), 0);

    incomplete = complete();
    incomplete.nubivaneFolder = "";
    EXPECT_EQ(static_cast<int>(checkFtpSettings(incomplete)), 3);
    incomplete.userName = "";
    EXPECT_EQ(static_cast<int>(checkFtpSettings(incomplete)), 2);
}

TEST_F(FtpSettingsTest, AnAnonymousLoginNeedsNoName) {
    FtpSettings anonymous = complete();
    anonymous.userName = "";
    anonymous.login = FtpLogin::Anonymous;
    EXPECT_EQ(checkFtpSettings(anonymous), FtpCheck::Complete);
}

TEST_F(FtpSettingsTest, TheServerTakesNeitherPortNorLoginTypeFromTheSettings) {
    settings.set(Setting::FtpUrl, "host");
    settings.set(Setting::FtpPort, "2121");
    settings.set(Setting::FtpUserName, "me");
    settings.set(Setting::FtpPassword, "pass");
    settings.set(Setting::FtpLoginType, "1");
    const FtpServer server = uploadServer(settings);
    EXPECT_EQ(server.host, "host");
    EXPECT_EQ(server.port, 21);
    EXPECT_EQ(server.user, "me");
    EXPECT_EQ(server.password, "pass");
}

TEST_F(FtpSettingsTest, TheNewerProtocolsHeedAPortThatIsNotThatOfFtp) {
    for (const char* url : {"sftp://host", "ftps://host"}) {
        settings.set(Setting::FtpUrl, url);
        settings.set(Setting::FtpPort, "2222");
        EXPECT_EQ(uploadServer(settings).port, 2222) << url;
        for (const char* port : {"21", "0", "65536", "x"}) {
            settings.set(Setting::FtpPort, port);
            EXPECT_EQ(uploadServer(settings).port, 21) << url << port;
        }
    }
}

TEST_F(FtpSettingsTest, AFolderAndRcloneNeedNoLogin) {
    for (const char* url : {"file:/srv/www", "rclone:cloud:www"}) {
        FtpSettings typed = complete();
        typed.userName.clear();
        typed.url = url;
        EXPECT_EQ(checkFtpSettings(typed), FtpCheck::Complete) << url;
        EXPECT_FALSE(validateFtpSettings(typed)) << url;
    }
    for (const char* url : {"file:www", "rclone:www", "rclone::www", "sftp://host/folder"}) {
        FtpSettings typed = complete();
        typed.url = url;
        EXPECT_TRUE(validateFtpSettings(typed)) << url;
    }
}

TEST_F(FtpSettingsTest, ThisMachineIsReachableWithoutANetwork) {
    shell.network = false;
    for (const char* host :
         {"localhost", "LOCALHOST", "127.0.0.1", "127.1.2.3", "::1", " 127.0.0.1 ",
          "files.localhost", "sftp://127.0.0.1", "file:/srv/www", "rclone:cloud:www"}) {
        EXPECT_TRUE(isReachable(shell, host)) << host;
    }
    for (const char* host : {"", "example.org", "128.0.0.1", "localhost.example.org",
                             "127.0.0.1.example.org", "notlocalhost"}) {
        EXPECT_FALSE(isReachable(shell, host)) << host;
    }
    shell.network = true;
    EXPECT_TRUE(isReachable(shell, "example.org"));
}

}  // namespace nubivane::testing

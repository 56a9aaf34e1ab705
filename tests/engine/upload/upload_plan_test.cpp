// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_plan.h"

#include "support/fixtures.h"

#include <QDir>

namespace nubivane::testing {

namespace {

/// The plan as lines "COMMAND Param1 -> Param2 !", the mark only where a failure stops the run.
/// Local paths begin with "<program folder>".
class Plan : public WorkspaceFixture {
  protected:
    QStringList plan(bool symbols, bool maps, bool htmlPage) const {
        QStringList lines;
        for (const cUpload& step : buildUploadPlan(workspace, symbols, maps, htmlPage)) {
            QString line = nameOf(step.Command) + u' ' + step.Param1;
            line.replace(workspace.folder.path(), "<program folder>");
            if (!step.Param2.isEmpty()) {
                line += " -> " + step.Param2;
            }
            lines << (step.ErrorCauseStop ? line + " !" : line);
        }
        return lines;
    }

    void useFrames(int count) {
        while (workspace.Frames().Count() < count) {
            workspace.Frames().Add();
        }
    }

    void add(const QStringList& files) const {
        for (const QString& file : files) {
            writeFile(host(file), "x");
        }
    }

    const QStringList folders{"MKDIR nVane",  "CHDIR nVane !", "MKDIR Web",       "CHDIR Web !",
                              "CHDIR ..\\ !", "MKDIR Symbols", "CHDIR Symbols !", "MKDIR sea",
                              "CHDIR sea !",  "CHDIR ..\\ !",  "MKDIR set-1",     "CHDIR set-1 !",
                              "CHDIR ..\\ !"};
    const QStringList symbolFiles{
        "UPLOAD <program folder>\\Symbols\\sea\\wave.png -> sea\\wave.png !",
        "UPLOAD <program folder>\\Symbols\\set-1\\rain.gif -> set-1\\rain.gif !",
        "UPLOAD <program folder>\\Symbols\\set-1\\snow.gif -> set-1\\snow.gif !",
        "UPLOAD <program folder>\\Symbols\\set-1\\sun.gif -> set-1\\sun.gif !"};
    const QStringList mapsFolder{"CHDIR ..\\ !", "MKDIR Maps", "CHDIR Maps !", "CHDIR ..\\ !"};
};

}  // namespace

TEST_F(Plan, WithoutAnyGroupItIsEmpty) {
    settings.set(Setting::FtpRemoteFolder, "htdocs");
    EXPECT_EQ(plan(false, false, false), QStringList());
}

TEST_F(Plan, TheFoldersStandInItWhateverIsChosen) {
    EXPECT_EQ(plan(false, true, false), folders + mapsFolder);
    EXPECT_EQ(plan(false, false, true), folders + mapsFolder);
}

TEST_F(Plan, SymbolsAreSentFromInsideTheirFolder) {
    EXPECT_EQ(plan(true, false, false), folders + symbolFiles + mapsFolder);
}

TEST_F(Plan, AllGroupsTogetherInTheirOrder) {
    useFrames(2);
    add({"Maps/europe.jpg", "Maps/italy.gif", "Forecast.htm", "Forecast.js", "Web/Forecast1.jpg",
         "Web/Forecast2.jpg"});
    settings.set(Setting::FtpRemoteFolder, "htdocs");
    settings.set(Setting::FtpNubivaneFolder, "weather");
    QStringList expected{"CHDIR htdocs !", "MKDIR weather", "CHDIR weather !"};
    expected += folders.mid(2) + symbolFiles + mapsFolder;
    expected += {"UPLOAD <program folder>\\Maps\\europe.jpg -> Maps\\europe.jpg !",
                 "UPLOAD <program folder>\\Maps\\italy.gif -> Maps\\italy.gif !",
                 "UPLOAD <program folder>\\Forecast.htm -> Forecast.htm !",
                 "UPLOAD <program folder>\\Forecast.js -> Forecast.js !",
                 "UPLOAD <program folder>\\Web\\Forecast1.jpg -> Web/Forecast1.jpg",
                 "UPLOAD <program folder>\\Web\\Forecast2.jpg -> Web/Forecast2.jpg"};
    EXPECT_EQ(plan(true, true, true), expected);
}

TEST_F(Plan, ABlankRemoteFolderIsNotEntered) {
    settings.set(Setting::FtpRemoteFolder, "   ");
    EXPECT_EQ(plan(false, true, false).first(), "MKDIR nVane");
}

TEST_F(Plan, ARemoteFolderIsEnteredAsItStands) {
    settings.set(Setting::FtpRemoteFolder, " a/b\\c ");
    EXPECT_EQ(plan(false, true, false).first(), "CHDIR  a/b\\c  !");
}

TEST_F(Plan, WithoutSubfoldersOfSymbolsOnlyTheirOwnFolderRemains) {
    QDir(host("Symbols")).removeRecursively();
    EXPECT_EQ(plan(true, false, false),
              QStringList({"MKDIR nVane", "CHDIR nVane !", "MKDIR Web", "CHDIR Web !",
                           "CHDIR ..\\ !", "MKDIR Symbols", "CHDIR Symbols !"}) +
                  mapsFolder);
}

TEST_F(Plan, FilesBesideTheSymbolFoldersAndFoldersInsideThemAreLeftOut) {
    add({"Symbols/readme.txt", "Symbols/set-1/inner/deep.gif", "Maps/inner/deep.jpg"});
    EXPECT_EQ(plan(true, true, false), folders + symbolFiles + mapsFolder);
}

TEST_F(Plan, EveryKindOfFileIsSent) {
    add({"Symbols/sea/notes.txt", "Maps/.hidden"});
    const QStringList lines = plan(true, true, false);
    EXPECT_TRUE(
        lines.contains("UPLOAD <program folder>\\Symbols\\sea\\notes.txt -> sea\\notes.txt !"));
    EXPECT_TRUE(lines.contains("UPLOAD <program folder>\\Maps\\.hidden -> Maps\\.hidden !"));
}

TEST_F(Plan, ImagesThatAreMissingAreLeftOut) {
    useFrames(3);
    add({"Forecast.htm", "Forecast.js"});
    EXPECT_EQ(plan(false, false, true).mid(folders.size() + mapsFolder.size()),
              QStringList({"UPLOAD <program folder>\\Forecast.htm -> Forecast.htm !",
                           "UPLOAD <program folder>\\Forecast.js -> Forecast.js !"}));
    add({"Web/Forecast2.jpg"});
    EXPECT_EQ(plan(false, false, true).last(),
              "UPLOAD <program folder>\\Web\\Forecast2.jpg -> Web/Forecast2.jpg");
}

TEST_F(Plan, ImagesBeyondTheLastFrameAreLeftOut) {
    useFrames(1);
    add({"Web/Forecast1.jpg", "Web/Forecast2.jpg", "Web/Forecast0.jpg"});
    EXPECT_EQ(plan(false, false, true).mid(folders.size() + mapsFolder.size()),
              QStringList({"UPLOAD <program folder>\\Web\\Forecast1.jpg -> Web/Forecast1.jpg"}));
}

TEST_F(Plan, APageOfAnotherNameIsNotFound) {
    settings.set(Setting::PageFilename, "Meteo");
    add({"Meteo.htm", "Meteo.js", "Web/Meteo1.jpg"});
    EXPECT_EQ(plan(false, false, true), folders + mapsFolder);
}

TEST_F(Plan, TheNameIsThatOfThePreview) {
    settings.set(Setting::PreviewFilename, "Meteo");
    add({"Meteo.htm", "Forecast.htm"});
    EXPECT_EQ(plan(false, false, true).last(), "UPLOAD <program folder>\\Meteo.htm -> Meteo.htm !");
}

TEST_F(Plan, APageNameThatLeavesTheProgramFolderSendsNothing) {
    writeFile(temporary.file("secret.htm"), "x");
    for (const char* name : {"..\\secret", "../secret", "Web\\..\\..\\secret"}) {
        settings.set(Setting::PreviewFilename, name);
        EXPECT_EQ(plan(false, false, true), folders + mapsFolder) << name;
    }
}

TEST_F(Plan, NamesThatCannotBeToldFromAPathAreLeftOut) {
    add({"Symbols/set-1/a\\b.gif", "Symbols/set-1/c\nd.gif", "Symbols/x\\y/z.gif",
         "Maps/e\\f.jpg"});
    EXPECT_EQ(plan(true, true, false), folders + symbolFiles + mapsFolder);
}

TEST_F(Plan, AResponsivePageHasFurtherFiles) {
    useFrames(2);
    add({"Forecast.js", "Forecast.css", "Forecast.json", "Forecast-custom.css", "Web/Forecast1.jpg",
         "Web/Forecast1.webp", "Web/Forecast-card.jpg", "Web/Other.jpg"});
    writeFile(host("Forecast.htm"), "<!DOCTYPE html>\r\n<html lang=\"en\">");
    const QStringList further{
        "UPLOAD <program folder>\\Forecast.css -> Forecast.css !",
        "UPLOAD <program folder>\\Forecast-custom.css -> Forecast-custom.css",
        "UPLOAD <program folder>\\Forecast.json -> Forecast.json",
        "UPLOAD <program folder>\\Web\\Forecast-card.jpg -> Web/Forecast-card.jpg",
        "UPLOAD <program folder>\\Web\\Forecast1.webp -> Web/Forecast1.webp"};
    const QStringList always{"UPLOAD <program folder>\\Forecast.htm -> Forecast.htm !",
                             "UPLOAD <program folder>\\Forecast.js -> Forecast.js !",
                             "UPLOAD <program folder>\\Web\\Forecast1.jpg -> Web/Forecast1.jpg"};
    EXPECT_EQ(plan(false, false, true), folders + mapsFolder + always + further);

    writeFile(host("Forecast.htm"), "<HTML>");
    EXPECT_EQ(plan(false, false, true), folders + mapsFolder + always) << "a page of another type";

    settings.set(Setting::PageType, "5");
    EXPECT_EQ(plan(false, false, true), folders + mapsFolder + always + further);
    EXPECT_EQ(plan(true, false, false), folders + symbolFiles + mapsFolder);
}

TEST_F(Plan, AStepHoldsWhatItWasMadeOf) {
    const cUpload step = newUploadStep(UploadCommand::Upload, "C:\\a", "b", true);
    EXPECT_EQ(nameOf(step.Command), "UPLOAD");
    EXPECT_EQ(step.Param1, "C:\\a");
    EXPECT_EQ(step.Param2, "b");
    EXPECT_TRUE(step.ErrorCauseStop);
}

}  // namespace nubivane::testing

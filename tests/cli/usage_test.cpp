// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

namespace nubivane::testing {

namespace {

struct WrongUse {
    const char* name;
    QStringList words;
    const char* complaint;
};

void PrintTo(const WrongUse& use, std::ostream* out) {
    *out << use.words.join(u' ').toStdString();
}

class WrongUsage : public CliTest, public ::testing::WithParamInterface<WrongUse> {};

}  // namespace

TEST_P(WrongUsage, EndsWithTwoAndOneComplaint) {
    const QStringList before = files();
    const ProcessResult result = runPlain(GetParam().words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, QByteArray("nubivane-cli: ") + GetParam().complaint +
                              "\n  see nubivane-cli --help\n");
    EXPECT_EQ(files(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, WrongUsage,
    ::testing::Values(
        WrongUse{"NoWords", {}, "a command is needed"},
        WrongUse{"OnlyGlobalOptions", {"--settings", "s.ini"}, "a command is needed"},
        WrongUse{"UnknownCommand", {"frob"}, "unknown command \"frob\""},
        WrongUse{"EmptyCommand", {""}, "unknown command \"\""},
        WrongUse{"HalfACommand", {"settings"}, "unknown command \"settings\""},
        WrongUse{
            "UnknownHalfOfACommand", {"settings", "frob"}, "unknown command \"settings frob\""},
        WrongUse{"CommandInAnotherCase", {"Show", "a.nvpf"}, "unknown command \"Show a.nvpf\""},
        WrongUse{"UnknownGlobalOption", {"--frob", "show", "a.nvpf"}, "unknown option --frob"},
        WrongUse{"UnknownShortOption", {"-x"}, "unknown option -x"},
        WrongUse{
            "TypeTwice", {"page", "a.nvpf", "--type", "1", "--type=2"}, "--type is given twice"},
        WrongUse{"FlagTwice", {"plan", "--maps", "a.nvpf", "--maps"}, "--maps is given twice"},
        WrongUse{"SettingsTwice",
                 {"--settings", "a.ini", "--settings=b.ini", "show", "a.nvpf"},
                 "--settings is given twice"},
        WrongUse{"TypeSixBehindAnEqualsSign",
                 {"page", "a.nvpf", "--type=6"},
                 "--type takes 1|2|3|4|5, not \"6\""},
        WrongUse{"EmptyTypeBehindAnEqualsSign",
                 {"page", "a.nvpf", "--type="},
                 "--type takes 1|2|3|4|5, not \"\""},
        WrongUse{"AFlagWithAValueBehindAnEqualsSign",
                 {"plan", "--maps=1", "a.nvpf"},
                 "--maps takes no value"},
        WrongUse{"UnknownOptionWithAValue",
                 {"page", "a.nvpf", "--frob=1"},
                 "\"page\" has no option --frob"},
        WrongUse{
            "ProgramFolderWithoutValue", {"--program-folder"}, "--program-folder needs a value"},
        WrongUse{"SettingsWithoutValue", {"--settings"}, "--settings needs a value"},
        WrongUse{"GlobalOptionBehindTheCommand",
                 {"show", "a.nvpf", "--settings", "s.ini"},
                 "\"show\" has no option --settings"},
        WrongUse{
            "UnknownOption", {"page", "a.nvpf", "--frob", "1"}, "\"page\" has no option --frob"},
        WrongUse{"OptionOfAnotherCommand",
                 {"save", "a.nvpf", "--type", "1"},
                 "\"save\" has no option --type"},
        WrongUse{"TypeWithoutValue", {"page", "a.nvpf", "--type"}, "--type needs a value"},
        WrongUse{"TypeSix", {"page", "a.nvpf", "--type", "6"}, "--type takes 1|2|3|4|5, not \"6\""},
        WrongUse{
            "TypeZero", {"page", "--type", "0", "a.nvpf"}, "--type takes 1|2|3|4|5, not \"0\""},
        WrongUse{"TypeOfLetters",
                 {"page", "a.nvpf", "--type", "buttons"},
                 "--type takes 1|2|3|4|5, not \"buttons\""},
        WrongUse{"EmptyType", {"page", "a.nvpf", "--type", ""}, "--type takes 1|2|3|4|5, not \"\""},
        WrongUse{"ShowWithoutProject", {"show"}, "\"show\" takes PROJECT"},
        WrongUse{"ShowWithTwoProjects", {"show", "a.nvpf", "b.nvpf"}, "\"show\" takes PROJECT"},
        WrongUse{"SaveWithoutProject", {"save"}, "\"save\" takes PROJECT [TARGET.nvpf]"},
        WrongUse{"SaveWithThreeNames",
                 {"save", "a.nvpf", "b.nvpf", "c.nvpf"},
                 "\"save\" takes PROJECT [TARGET.nvpf]"},
        WrongUse{"PageWithoutProject", {"page", "--type", "1"}, "\"page\" takes PROJECT"},
        WrongUse{"PageWithTwoProjects", {"page", "a.nvpf", "b.nvpf"}, "\"page\" takes PROJECT"},
        WrongUse{"PlanWithoutProject", {"plan", "--symbols"}, "\"plan\" takes PROJECT"},
        WrongUse{
            "AFlagTakesNoValue", {"plan", "a.nvpf", "--symbols", "1"}, "\"plan\" takes PROJECT"},
        WrongUse{"HostWithoutValue", {"upload", "a.nvpf", "--host"}, "--host needs a value"},
        WrongUse{"UploadWithoutProject", {"upload"}, "\"upload\" takes PROJECT"},
        WrongUse{"GetWithoutKey",
                 {"settings", "get", "S", "G"},
                 "\"settings get\" takes SECTION GROUP KEY [DEFAULT]"},
        WrongUse{"GetWithFiveWords",
                 {"settings", "get", "S", "G", "K", "D", "E"},
                 "\"settings get\" takes SECTION GROUP KEY [DEFAULT]"},
        WrongUse{"SetWithoutValue",
                 {"settings", "set", "S", "G", "K"},
                 "\"settings set\" takes SECTION GROUP KEY VALUE"},
        WrongUse{"SetWithTwoValues",
                 {"settings", "set", "S", "G", "K", "V", "W"},
                 "\"settings set\" takes SECTION GROUP KEY VALUE"},
        WrongUse{"DeleteWithoutKey",
                 {"settings", "delete", "S", "G"},
                 "\"settings delete\" takes SECTION GROUP KEY"},
        WrongUse{"DeleteWithValue",
                 {"settings", "delete", "S", "G", "K", "V"},
                 "\"settings delete\" takes SECTION GROUP KEY"}),
    [](const auto& test) { return std::string(test.param.name); });

namespace {

class Usage : public CliTest {};

}  // namespace

TEST_F(Usage, TwoHyphensMakeANameOfWhatLooksLikeAnOption) {
    useSoundProject("--odd.nvpf");
    EXPECT_EQ(run({"show", "--odd.nvpf"}).exitCode, 2);
    EXPECT_EQ(run({"show", "--", "--odd.nvpf"}).exitCode, 0);
}

TEST_F(Usage, ANameMayBeginWithOneHyphen) {
    useSoundProject("-odd.nvpf");
    EXPECT_EQ(run({"show", "-odd.nvpf"}).exitCode, 0);
}

TEST_F(Usage, AnOptionMayStandBeforeOrBehindTheProject) {
    const QString project = useSoundProject();
    EXPECT_EQ(run({"page", "--type", "2", project}).exitCode, 0);
    EXPECT_EQ(run({"page", project, "--type", "2"}).exitCode, 0);
}

TEST_F(Usage, AValueMayStandBehindAnEqualsSign) {
    const QString project = useSoundProject();
    EXPECT_EQ(run({"page", "--type=2", project}).exitCode, 0);
    EXPECT_EQ(run({"settings", "set", "S", "G", "K", "a=b"}).exitCode, 0);
    EXPECT_EQ(run({"settings", "get", "S", "G", "K"}).out, "a=b\n");
}

TEST_F(Usage, AValueMayBeginWithOneHyphen) {
    EXPECT_EQ(run({"settings", "set", "S", "G", "K", "-5"}).exitCode, 0);
    EXPECT_EQ(run({"settings", "get", "S", "G", "K"}).out, "-5\n");
    EXPECT_EQ(run({"settings", "set", "S", "G", "K", "-V"}).exitCode, 0);
    EXPECT_EQ(run({"settings", "get", "S", "G", "K"}).out, "-V\n");
}

TEST_F(Usage, AnOptionsOwnValueIsNoRepetition) {
    EXPECT_EQ(run({"upload", "a.nvpf", "--user", "--host", "--host", "h"}).exitCode, 1);
}

TEST_F(Usage, AValueMayLookLikeAnOptionBehindTwoHyphens) {
    EXPECT_EQ(run({"settings", "set", "S", "G", "K", "--", "--value"}).exitCode, 0);
    EXPECT_EQ(run({"settings", "get", "S", "G", "K"}).out, "--value\n");
}

}  // namespace nubivane::testing

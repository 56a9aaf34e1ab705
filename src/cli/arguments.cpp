// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/arguments.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Wrong usage, told in one line.
struct UsageError {
    QString text;
};

/// An option that stands before the command. It has a short form too, or a value.
struct GlobalOption {
    const char* name;
    const char* shortName;
    const char* value;
    const char* summary;
};

constexpr std::array globalOptions = {
    GlobalOption{"program-folder", "", "DIR", "work in DIR instead of the folder of this program"},
    GlobalOption{"settings", "", "FILE", "use the settings in FILE instead of the user's"},
    GlobalOption{"help", "h", "", "print this text"},
    GlobalOption{"version", "V", "", "print the version"},
};

constexpr auto Help = "help"_L1;

/// The words of a command line that are looked at for options.
QStringList beforeEnd(const QStringList& words) {
    return words.mid(0, words.indexOf(u"--"_s));
}

/// The parser says which option is unknown without its hyphens and its value.
QString spelled(const QStringList& words, const QString& name) {
    for (const QString& word : words) {
        if (word == "--"_L1 + name || word.startsWith("--"_L1 + name + u'=')) {
            return "--"_L1 + name;
        }
    }
    return u'-' + name;
}

bool takesValue(const QList<QCommandLineOption>& options, const QString& name) {
    return std::any_of(options.begin(), options.end(), [&name](const QCommandLineOption& option) {
        return option.names().contains(name) && !option.valueName().isEmpty();
    });
}

/// Parses words, asks for help before anything else, and raises `UsageError` for an option without
/// its value, with a value that it does not take, or given twice. `unknown` tells of an option that
/// is none of these.
template <class Unknown>
void parseOptions(QCommandLineParser& parser, const QList<QCommandLineOption>& options,
                  const QStringList& words, Unknown unknown) {
    parser.addOptions(options);
    const bool sound = parser.parse(QStringList{u"nubivane-cli"_s} + words);
    if (parser.isSet(Help)) {
        return;
    }
    const QStringList looked = beforeEnd(words);
    if (const QStringList names = parser.unknownOptionNames(); !names.isEmpty()) {
        throw UsageError{unknown(spelled(looked, names.first()))};
    }
    if (!sound) {
        for (const QString& word : looked) {
            const QString name = word.section(u'=', 0, 0).mid(2);
            if (word.startsWith("--"_L1) && word.contains(u'=') && !takesValue(options, name)) {
                throw UsageError{"--"_L1 + name + " takes no value"_L1};
            }
        }
        throw UsageError{words.last() + " needs a value"_L1};
    }
    const QStringList given = parser.optionNames();
    for (const QString& name : given) {
        if (given.count(name) > 1) {
            throw UsageError{"--"_L1 + name + " is given twice"_L1};
        }
    }
}

/// A name may begin with one hyphen: such words are no options for the parser when they begin with
/// a character that no word of a command line can hold.
QStringList withNamesMarked(QStringList words) {
    for (QString& word : words) {
        if (word == u"--") {
            break;
        }
        if (word.startsWith(u'-') && !word.startsWith("--"_L1) && word != u"-h") {
            word.prepend(QChar::Null);
        }
    }
    return words;
}

QString withoutMark(const QString& word) {
    return word.startsWith(QChar::Null) ? word.mid(1) : word;
}

/// Takes the command's name, of one word or two, off the words.
const Command& takeCommand(QStringList& words) {
    const QString first = words.takeFirst();
    const QString both = words.isEmpty() ? first : first + u' ' + words.first();
    for (const Command& command : commands()) {
        if (first == QLatin1String(command.name)) {
            return command;
        }
        if (both == QLatin1String(command.name)) {
            words.removeFirst();
            return command;
        }
    }
    throw UsageError{"unknown command \""_L1 + both + u'"'};
}

/// "settings --help": the first half of a command and the wish for help.
bool asksForHelpOnGroup(const QStringList& words) {
    return words.size() >= 2 && (words[1] == u"--help" || words[1] == u"-h") &&
           std::any_of(commands().begin(), commands().end(), [&words](const Command& command) {
               return QLatin1String(command.name).startsWith(words[0] + u' ');
           });
}

QString nameOf(const CommandOption& option) {
    return QString(QLatin1String(option.name)).mid(2);
}

void checkValue(const CommandOption& option, const QString& value) {
    const QString allowed = QLatin1String(option.value);
    if (allowed.contains(u'|') && !allowed.split(u'|').contains(value)) {
        throw UsageError{QLatin1String(option.name) + " takes "_L1 + allowed + ", not \""_L1 +
                         value + u'"'};
    }
}

/// Options may stand anywhere behind the command; after "--" everything is an argument.
void parseCommand(QStringList words, Arguments& result) {
    const Command& command = takeCommand(words);
    result.command = &command;
    QList<QCommandLineOption> options{QCommandLineOption(QStringList{Help, u"h"_s})};
    for (const CommandOption& option : command.options) {
        options << QCommandLineOption(nameOf(option), {}, QLatin1String(option.value));
    }
    QCommandLineParser parser;
    parseOptions(parser, options, withNamesMarked(words), [&command](const QString& option) {
        return u'"' + QLatin1String(command.name) + "\" has no option "_L1 + option;
    });
    if (parser.isSet(Help)) {
        result.request = Arguments::Request::Help;
        return;
    }
    for (const CommandOption& option : command.options) {
        if (parser.isSet(nameOf(option))) {
            const QString value = withoutMark(parser.value(nameOf(option)));
            checkValue(option, value);
            result.options.insert(QLatin1String(option.name), value);
        }
    }
    for (const QString& word : parser.positionalArguments()) {
        result.arguments += withoutMark(word);
    }
    const qsizetype count = result.arguments.size();
    if (count < command.minArguments || count > command.maxArguments) {
        throw UsageError{u'"' + QLatin1String(command.name) + "\" takes "_L1 +
                         QLatin1String(command.arguments)};
    }
}

Arguments parse(const QStringList& words) {
    QList<QCommandLineOption> options;
    for (const GlobalOption& option : globalOptions) {
        QStringList names{QLatin1String(option.name)};
        if (*option.shortName != '\0') {
            names << QLatin1String(option.shortName);
        }
        options << QCommandLineOption(names, {}, QLatin1String(option.value));
    }
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parseOptions(parser, options, words,
                 [](const QString& option) { return "unknown option "_L1 + option; });
    Arguments result;
    if (parser.isSet(Help)) {
        result.request = Arguments::Request::Help;
        return result;
    }
    if (parser.isSet(u"version"_s)) {
        result.request = Arguments::Request::Version;
        return result;
    }
    if (parser.isSet(u"program-folder"_s)) {
        result.programFolder = parser.value(u"program-folder"_s);
    }
    if (parser.isSet(u"settings"_s)) {
        result.settingsFile = parser.value(u"settings"_s);
    }
    const QStringList command = parser.positionalArguments();
    if (command.isEmpty()) {
        throw UsageError{u"a command is needed"_s};
    }
    if (asksForHelpOnGroup(command)) {
        result.request = Arguments::Request::Help;
        return result;
    }
    parseCommand(command, result);
    return result;
}

/// A command with its arguments and options, in lines that fit a terminal.
QString usageOf(const Command& command) {
    constexpr qsizetype widest = 80;
    QString text;
    QString line = "  "_L1 + QLatin1String(command.name);
    if (*command.arguments != '\0') {
        line += u' ' + QLatin1String(command.arguments);
    }
    for (const CommandOption& option : command.options) {
        QString words = QLatin1String(option.name);
        if (*option.value != '\0') {
            words += u' ' + QLatin1String(option.value);
        }
        if (line.size() + words.size() + 3 > widest) {
            text += line + u'\n';
            line = u"     "_s;
        }
        line += " ["_L1 + words + u']';
    }
    return text + line;
}

QString usageOf(const GlobalOption& option) {
    constexpr qsizetype column = 24;
    QString line = u"  "_s;
    if (*option.shortName != '\0') {
        line += u'-' + QLatin1String(option.shortName) + ", "_L1;
    }
    line += "--"_L1 + QLatin1String(option.name);
    if (*option.value != '\0') {
        line += u' ' + QLatin1String(option.value);
    }
    return line.leftJustified(column) + QLatin1String(option.summary);
}

}  // namespace

std::optional<Arguments> parseArguments(const QStringList& words, QString& error) {
    try {
        return parse(words);
    } catch (const UsageError& wrong) {
        error = wrong.text;
        return std::nullopt;
    }
}

QString helpText() {
    QString text =
        u"Usage: nubivane-cli [--program-folder DIR] [--settings FILE] COMMAND ...\n\n"_s;
    for (const GlobalOption& option : globalOptions) {
        text += usageOf(option) + u'\n';
    }
    text += "\nCommands:\n"_L1;
    for (const Command& command : commands()) {
        text += usageOf(command) + "\n      "_L1 + QLatin1String(command.summary) + u'\n';
    }
    text +=
        "\nOptions of a command may stand anywhere behind it, each once, as --type 3 or\n"
        "--type=3; after -- everything is an argument.\n"
        "\nExit code: 0 done, 1 failed, 2 wrong usage. Messages go to stderr.\n"_L1;
    return text;
}

}  // namespace nubivane

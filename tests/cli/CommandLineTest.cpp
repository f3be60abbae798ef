#include "CliRunner.h"
#include "core/profiles/Settings.h"

#include <QJsonArray>
#include <QStandardPaths>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;
using test::args;
using test::CliRun;
using test::parseJson;

namespace {

class CommandLineTest : public test::CliTest {
protected:
    CommandLineTest()
    {
        for (const char* name : {"d/IMG_0042.jpg", "d/IMG_7.png", "d/notes 2.txt"})
            tree.file(QString::fromUtf8(name));
    }

    CliRun preview(const QStringList& options) const
    {
        return run(args("preview --recursive") + options + QStringList{tree.path(u"d"_s)});
    }
};

// Each shortcut is the --tab and --set form it stands for: the same previews, line for line.
TEST_F(CommandLineTest, ShortcutsPreviewExactlyAsTheSettingsTheyStandFor)
{
    const struct {
        QStringList shortcut;
        const char* settings;
    } rows[] = {
        {args("--upper"), "--tab general --set generalOptionIndex=0 --set generalFileNameCase=1"},
        {args("--lower"), "--tab general --set generalOptionIndex=0 --set generalFileNameCase=2"},
        {args("--title"), "--tab general --set generalOptionIndex=0 --set generalFileNameCase=3"},
        {args("--ext md"), "--tab general --set generalOptionIndex=3 --set generalChangeExtension=md"},
        {args("--replace G x"),
         "--tab replaceremove --set removeReplaceIndex=0 --set isReplaceRemoveAllOccurrence=1 "
         "--set replaceRemoveThis=G --set replaceRemoveWith=x"},
        {QStringList{u"--regex"_s, u"--replace"_s, u"IMG_(\\d+)"_s, u"Holiday_$1"_s},
         "--tab replaceremove --set isReplaceRemoveRegularExpression=1 --set removeReplaceIndex=0 "
         "--set isReplaceRemoveAllOccurrence=1 --set replaceRemoveThis=IMG_(\\d+) --set replaceRemoveWith=Holiday_$1"},
        {args("--remove _"), "--tab replaceremove --set removeReplaceIndex=1 --set isReplaceRemoveAllOccurrence=1 "
                             "--set replaceRemoveThis=_"},
        {args("--insert X --at 2"), "--tab insertdelete --set insertDeleteIndex=0 --set insertDeleteInsert=X "
                                    "--set insertDeleteInsertOptionIndex=2 --set insertDeleteAtCharacterPositions=2"},
        {args("--at end --insert X"), "--tab insertdelete --set insertDeleteInsertOptionIndex=1 "
                                      "--set insertDeleteIndex=0 --set insertDeleteInsert=X"},
        {args("--number 7 --pad 000 --step 2"),
         "--tab alphanumeric --set alphaNumericNumericAlphabeticIndex=0 --set alphaNumericIncrementDecrementIndex=0 "
         "--set alphaNumericNumericStartWith=7 --set alphaNumericPaddingMask=000 --set alphaNumericIncrementBy=2"},
        {args("--prefix new_"), "--tab prefixsuffix --set prefixSuffixIndex=0 --set prefixSuffixPrefix=new_"},
    };
    for (const auto& row : rows) {
        const CliRun shortcut = preview(row.shortcut);
        const CliRun settings = preview(args(row.settings));
        EXPECT_EQ(shortcut.exitCode, 0) << row.settings << shortcut.err.toStdString();
        EXPECT_EQ(shortcut.out, settings.out) << row.settings;
        EXPECT_TRUE(shortcut.out.contains(u"New names: "_s)) << shortcut.out.toStdString();
    }
    EXPECT_TRUE(preview(QStringList{u"--regex"_s, u"--replace"_s, u"IMG_(\\d+)"_s, u"Holiday_$1"_s})
                    .out.contains(u"IMG_0042.jpg\tHoliday_0042.jpg\n"_s));
}

TEST_F(CommandLineTest, DryRunAppliesNothingAndShowsThePreview)
{
    const CliRun dryRun = run(args("apply -r -n --upper") << tree.path(u"d"_s));
    EXPECT_EQ(dryRun.exitCode, 0) << dryRun.err.toStdString();
    EXPECT_EQ(dryRun.out, preview(args("--upper")).out);
    EXPECT_TRUE(tree.exists(u"d/notes 2.txt"_s));
    EXPECT_TRUE(logs().isEmpty());
}

// A mistake is named, with what was most likely meant.
TEST_F(CommandLineTest, MistakesAreNamedWithWhatWasMeant)
{
    const struct {
        QStringList arguments;
        const char* message;
    } rows[] = {
        {args("preview -r --uper"), "unknown option '--uper'; did you mean '--upper'?"},
        {args("preview -r --set generalCase=1"), "unknown option key 'generalCase'; did you mean 'generalFileNameCase'?"},
        {args("previw -r"), "unknown command 'previw'; did you mean 'preview'?"},
        {args("preview -r --tab genral"), "did you mean 'general'?"},
        {args("preview -r --upper --remove x"), "'--upper' and '--remove' rename in different ways"},
        {args("preview -r --insert x --at middle"), "'--at' needs start, end or a position"},
        {args("preview -r --replace"), "option '--replace' needs a value"},
        {QStringList{u"preview"_s, u"-r"_s, u"--regex"_s, u"--replace"_s, u"a(b"_s, u"x"_s},
         "Invalid Pattern: The pattern cannot be used: missing closing parenthesis"},
    };
    for (const auto& row : rows) {
        const CliRun refused = run(row.arguments + QStringList{tree.path(u"d"_s)});
        EXPECT_EQ(refused.exitCode, 2) << row.message;
        EXPECT_TRUE(refused.err.contains(QString::fromUtf8(row.message))) << refused.err.toStdString();
    }
    const CliRun version = run(args("--version"));
    EXPECT_EQ(version.out, u"tavrin-cli " TAVRIN_VERSION "\n"_s);
}

TEST_F(CommandLineTest, OptionsNameEveryKeyWithWhatItDoesInTheUsersLanguage)
{
    const QJsonArray all = QJsonDocument::fromJson(run(args("options --json")).out.toUtf8()).array();
    QStringList keys;
    for (const QJsonValue& value : all) {
        const QJsonObject option = value.toObject();
        keys.append(option.value("key"_L1).toString());
        EXPECT_FALSE(option.value("description"_L1).toString().isEmpty()) << keys.last().toStdString();
    }
    EXPECT_EQ(keys, Settings::optionKeys());

    const QJsonArray replace = QJsonDocument::fromJson(run(args("options --json --tab replaceremove")).out.toUtf8()).array();
    ASSERT_FALSE(replace.isEmpty());
    for (const QJsonValue& value : replace)
        EXPECT_EQ(value.toObject().value("tab"_L1).toString(), u"replaceremove"_s);
    const auto find = [](const QJsonArray& options, const QString& key) {
        for (const QJsonValue& value : options)
            if (value.toObject().value("key"_L1).toString() == key)
                return value.toObject();
        return QJsonObject();
    };
    const QJsonObject modes = find(replace, u"removeReplaceIndex"_s);
    EXPECT_EQ(modes.value("allowed"_L1).toArray(), (QJsonArray{u"0"_s, u"1"_s, u"2"_s}));
    EXPECT_EQ(modes.value("type"_L1).toString(), u"integer"_s);

    environment.insert(u"LANGUAGE"_s, u"fr"_s);
    const QJsonArray french = QJsonDocument::fromJson(run(args("options --json --tab replaceremove")).out.toUtf8()).array();
    EXPECT_NE(find(french, u"replaceRemoveThis"_s).value("description"_L1),
              find(replace, u"replaceRemoveThis"_s).value("description"_L1));
}

TEST(Manuals, BothManualPagesRender)
{
    ASSERT_FALSE(QStandardPaths::findExecutable(u"man"_s).isEmpty())
        << "man is not installed (scripts/install-deps.sh installs it)";
    for (const char* program : {"tavrin-cli", "tavrin"}) {
        QProcess man;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"MANWIDTH"_s, u"80"_s);
        man.setProcessEnvironment(environment);
        man.start(u"man"_s, {u"-l"_s, QStringLiteral(TAVRIN_MAN_DIR "/%1.1").arg(QString::fromLatin1(program))});
        ASSERT_TRUE(man.waitForFinished(30000));
        const QString page = QString::fromUtf8(man.readAllStandardOutput());
        EXPECT_EQ(man.exitCode(), 0) << man.readAllStandardError().toStdString();
        EXPECT_TRUE(page.contains(u"NAME"_s) && page.contains(QString::fromLatin1(program))) << program;
    }
}

// Each shell finds the words it completes by asking tavrin-cli.
TEST(Completion, EveryShellCompletesCommandsOptionsAndKeys)
{
    const QString cliFolder = QFileInfo(QStringLiteral(TAVRIN_CLI_PATH)).absolutePath();
    const QString folder = QStringLiteral(TAVRIN_COMPLETION_DIR);
    const struct {
        const char* shell;
        QStringList arguments;
        std::vector<const char*> expected;
    } rows[] = {
        {"bash",
         {u"-c"_s, u"source \"$0\"; complete -p tavrin-cli; COMP_WORDS=(tavrin-cli preview --se); COMP_CWORD=2; "
                   "_tavrin_cli; printf '%s\\n' \"${COMPREPLY[@]}\"; COMP_WORDS=(tavrin-cli preview --set gen); "
                   "COMP_CWORD=3; _tavrin_cli; printf '%s\\n' \"${COMPREPLY[@]}\""_s,
          folder + u"/tavrin-cli.bash"_s},
         {"complete -o filenames -F _tavrin_cli tavrin-cli", "--set\n", "generalFileNameCase=\n"}},
        {"zsh", {u"-c"_s, u"fpath=(\"$0\" $fpath); autoload -U _tavrin-cli && whence -w _tavrin-cli"_s, folder},
         {"_tavrin-cli: function"}},
        {"fish",
         {u"-c"_s, u"source $argv[1]; complete -C 'tavrin-cli prev'; complete -C 'tavrin-cli preview --tab '"_s,
          folder + u"/tavrin-cli.fish"_s},
         {"preview\n", "replaceremove\n"}},
    };
    for (const auto& row : rows) {
        const QString shell = QStandardPaths::findExecutable(QString::fromLatin1(row.shell));
        if (shell.isEmpty()) {
            ADD_FAILURE() << row.shell << " is not installed (scripts/install-deps.sh installs it)";
            continue;
        }
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, cliFolder + u':' + environment.value(u"PATH"_s));
        process.setProcessEnvironment(environment);
        process.start(shell, row.arguments);
        ASSERT_TRUE(process.waitForFinished(30000)) << row.shell;
        const QString output = QString::fromUtf8(process.readAllStandardOutput());
        EXPECT_EQ(process.exitCode(), 0) << row.shell << process.readAllStandardError().toStdString();
        for (const char* expected : row.expected)
            EXPECT_TRUE(output.contains(QString::fromUtf8(expected))) << row.shell << ": " << output.toStdString();
    }
}

}  // namespace

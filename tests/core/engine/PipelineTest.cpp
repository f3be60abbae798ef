#include "core/engine/Pipeline.h"
#include "core/engine/Validation.h"
#include "core/list/FileList.h"
#include "core/list/StatusTexts.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogReader.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

// A list, the settings and a log folder over a temporary tree.
class PipelineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.setProperty("selectedTab", tabs::General);
        settings.setProperty("isIncludeSubFolders", false);
        logFolder = tree.folder(QStringLiteral("logs"));
    }

    void list(const QStringList& relativePaths, bool folders = false, bool subFolders = false)
    {
        settings.setProperty("isFiles", !folders);
        settings.setProperty("isFolders", folders);
        settings.setProperty("isIncludeSubFolders", subFolders);
        QStringList paths;
        for (const QString& relative : relativePaths)
            paths << tree.path(relative);
        files.addFiles(paths, ScanOptions{folders, subFolders, false}, noCancel);
    }

    void useGeneral(int option, int nameCase = 1)
    {
        settings.setProperty("selectedTab", tabs::General);
        settings.setProperty("generalOptionIndex", option);
        settings.setProperty("generalFileNameCase", nameCase);
    }

    PreviewOutcome preview()
    {
        const PropertyOptionValues values(settings);
        Pipeline pipeline(files, values);
        return pipeline.preview(noCancel, nullptr);
    }

    ApplyOutcome apply(const ContinueWithoutLog& goOn = nullptr)
    {
        const PropertyOptionValues values(settings);
        Pipeline pipeline(files, values);
        return pipeline.applyRenames(logFolder, goOn, noCancel, nullptr);
    }

    QString newNameOf(const QString& name) const
    {
        for (const FileSystemItem& item : files.items()) {
            if (item.filenameWithExtension() == name || item.fullPath().endsWith(QLatin1Char('/') + name))
                return item.newFilename();
        }
        return QStringLiteral("<not listed>");
    }

    QStringList logFiles() const { return QDir(logFolder).entryList(QDir::Files); }

    test::TempTree tree;
    Settings settings;
    FileList files;
    std::atomic_bool noCancel{false};
    QString logFolder;
};

TEST_F(PipelineTest, PreviewSetsTheStatusTexts)
{
    tree.file(QStringLiteral("d/ALREADY.txt"));
    tree.file(QStringLiteral("d/already.txt"));
    tree.file(QStringLiteral("d/gone.txt"));
    tree.file(QStringLiteral("d/mixed.txt"));
    list({QStringLiteral("d")}, false, true);
    QFile::remove(tree.path(QStringLiteral("d/gone.txt")));
    useGeneral(0, 1);

    const PreviewOutcome outcome = preview();

    EXPECT_TRUE(outcome.actionSucceeded);
    EXPECT_TRUE(outcome.hasFilesForRenaming);
    EXPECT_EQ(newNameOf(QStringLiteral("ALREADY.txt")), QLatin1String(status::NoChanges));
    // A change of letter case only is never tested for existence at preview.
    EXPECT_EQ(newNameOf(QStringLiteral("already.txt")), QStringLiteral("ALREADY.txt"));
    EXPECT_EQ(newNameOf(QStringLiteral("gone.txt")), QLatin1String(status::FileNotFound));
    EXPECT_EQ(newNameOf(QStringLiteral("mixed.txt")), QStringLiteral("MIXED.txt"));
}

TEST_F(PipelineTest, ACaseOnlyChangeIsPreviewedAndAppliedAsAChange)
{
    tree.file(QStringLiteral("photo.jpg"), "x");
    list({QStringLiteral("photo.jpg")});
    useGeneral(0, 1);

    ASSERT_TRUE(preview().hasFilesForRenaming);
    EXPECT_EQ(files.at(0).newFilename(), QStringLiteral("PHOTO.jpg"));
    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 1);
    EXPECT_EQ(files.at(0).newFilename(), QLatin1String(status::RenamingOk));
    EXPECT_TRUE(tree.exists(QStringLiteral("PHOTO.jpg")));
    EXPECT_FALSE(tree.exists(QStringLiteral("photo.jpg")));
    EXPECT_EQ(files.at(0).fullPath(), tree.path(QStringLiteral("PHOTO.jpg")));
}

TEST_F(PipelineTest, ACaseOnlyChangeOntoAnotherFileIsRefusedAtApply)
{
    tree.file(QStringLiteral("ALREADY.txt"), "upper");
    tree.file(QStringLiteral("already.txt"), "lower");
    list({QStringLiteral("already.txt")});
    useGeneral(0, 1);
    preview();
    ASSERT_EQ(files.at(0).newFilename(), QStringLiteral("ALREADY.txt"));

    const ApplyOutcome outcome = apply();

    // On a case-sensitive disk the other name is another file: it must stay as it was.
    EXPECT_EQ(outcome.renamed, 0);
    EXPECT_EQ(files.at(0).newFilename(), QLatin1String(status::FileAlreadyExists));
    EXPECT_EQ(tree.read(QStringLiteral("ALREADY.txt")), QByteArray("upper"));
    EXPECT_EQ(tree.read(QStringLiteral("already.txt")), QByteArray("lower"));
    EXPECT_EQ(readLogEntries(outcome.logPath)->entries.size(), 0);
}

TEST_F(PipelineTest, SwappedNamesAreBothRefused)
{
    tree.file(QStringLiteral("a.txt"), "A");
    tree.file(QStringLiteral("b.txt"), "B");
    settings.setProperty("selectedTab", tabs::FromFile);
    list({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
    files.at(0).setObject(QStringLiteral("b.txt"), QStringLiteral("newFilename"));
    files.at(1).setObject(QStringLiteral("a.txt"), QStringLiteral("newFilename"));

    EXPECT_FALSE(preview().hasFilesForRenaming);
    EXPECT_EQ(files.at(0).newFilename(), QLatin1String(status::FileAlreadyExists));
    EXPECT_EQ(files.at(1).newFilename(), QLatin1String(status::FileAlreadyExists));
    EXPECT_EQ(apply().renamed, 0);
    EXPECT_EQ(tree.read(QStringLiteral("a.txt")), QByteArray("A"));
    EXPECT_EQ(tree.read(QStringLiteral("b.txt")), QByteArray("B"));
}

TEST_F(PipelineTest, ATargetCreatedAfterThePreviewIsNeverOverwritten)
{
    tree.file(QStringLiteral("a.txt"), "mine");
    list({QStringLiteral("a.txt")});
    useGeneral(3);
    settings.setProperty("generalChangeExtension", QStringLiteral("md"));
    ASSERT_EQ((preview(), files.at(0).newFilename()), QStringLiteral("a.md"));
    tree.file(QStringLiteral("a.md"), "someone else's");

    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 0);
    EXPECT_EQ(outcome.failed, 1);
    EXPECT_EQ(files.at(0).newFilename(), QLatin1String(status::FileAlreadyExists));
    EXPECT_EQ(tree.read(QStringLiteral("a.md")), QByteArray("someone else's"));
    EXPECT_EQ(tree.read(QStringLiteral("a.txt")), QByteArray("mine"));
}

TEST_F(PipelineTest, NestedFoldersAreRenamedInOneBatch)
{
    tree.folder(QStringLiteral("top/a/b/c"));
    tree.file(QStringLiteral("top/a/b/c/keep.txt"), "k");
    list({QStringLiteral("top")}, true, true);
    ASSERT_EQ(files.size(), 3);
    useGeneral(0, 1);
    settings.setProperty("isFolders", true);
    settings.setProperty("isIncludeSubFolders", true);

    preview();
    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 3);
    EXPECT_EQ(outcome.failed, 0);
    EXPECT_EQ(tree.read(QStringLiteral("top/A/B/C/keep.txt")), QByteArray("k"));
    QStringList paths;
    for (const FileSystemItem& item : files.items())
        paths << item.fullPath();
    EXPECT_TRUE(paths.contains(tree.path(QStringLiteral("top/A/B/C"))));
    EXPECT_TRUE(paths.contains(tree.path(QStringLiteral("top/A/B"))));
}

TEST_F(PipelineTest, TheLogNamesEveryRenameUnderItsCount)
{
    tree.file(QStringLiteral("one.txt"));
    tree.file(QStringLiteral("two.txt"));
    list({QStringLiteral("one.txt"), QStringLiteral("two.txt")});
    useGeneral(0, 1);
    preview();

    const ApplyOutcome outcome = apply();

    ASSERT_EQ(logFiles().size(), 1);
    const QString name = logFiles().first();
    EXPECT_TRUE(name.startsWith(QStringLiteral("Log "))) << name.toStdString();
    EXPECT_TRUE(name.endsWith(QStringLiteral("-2.xml"))) << name.toStdString();
    EXPECT_EQ(QDir(logFolder).filePath(name), outcome.logPath);
    const auto contents = readLogEntries(outcome.logPath);
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 2);
    EXPECT_EQ(contents->type, QStringLiteral("FILES"));
    EXPECT_EQ(contents->entries[0].sourceName, QStringLiteral("one.txt"));
    EXPECT_EQ(contents->entries[0].targetName, QStringLiteral("ONE.txt"));
    EXPECT_EQ(contents->entries[1].targetLocation, tree.root());
}

TEST_F(PipelineTest, CancelKeepsWhatWasRenamedAndLogged)
{
    for (int i = 0; i < 5; ++i)
        tree.file(QStringLiteral("f%1.txt").arg(i));
    list({QStringLiteral("f0.txt"), QStringLiteral("f1.txt"), QStringLiteral("f2.txt"), QStringLiteral("f3.txt"),
          QStringLiteral("f4.txt")});
    useGeneral(0, 1);
    preview();

    // The first progress report arrives while the first record is being renamed.
    struct CancelOnFirstReport : ProgressObserver {
        std::atomic_bool* cancel;
        void progress(const Progress&) override { cancel->store(true); }
    };
    std::atomic_bool cancel{false};
    CancelOnFirstReport observer;
    observer.cancel = &cancel;
    const PropertyOptionValues values(settings);
    Pipeline pipeline(files, values);
    const ApplyOutcome outcome = pipeline.applyRenames(logFolder, nullptr, cancel, &observer);

    EXPECT_TRUE(outcome.cancelled);
    EXPECT_EQ(outcome.renamed, 1);
    EXPECT_TRUE(tree.exists(QStringLiteral("F0.txt")));
    EXPECT_TRUE(tree.exists(QStringLiteral("f1.txt")));
    EXPECT_EQ(readLogEntries(outcome.logPath)->entries.size(), 1);
    EXPECT_TRUE(outcome.logPath.endsWith(QStringLiteral("-1.xml")));
}

TEST_F(PipelineTest, ALogFolderThatCannotBeWrittenAsksWhetherToGoOn)
{
    tree.file(QStringLiteral("a.txt"));
    list({QStringLiteral("a.txt")});
    useGeneral(0, 1);
    preview();
    // A regular file where the log folder should be: no log can be made there, even as root.
    logFolder = tree.file(QStringLiteral("not-a-folder")) + QStringLiteral("/Logs");

    int asked = 0;
    const ApplyOutcome aborted = apply([&] {
        ++asked;
        return false;
    });
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(aborted.aborted);
    EXPECT_EQ(aborted.renamed, 0);
    EXPECT_TRUE(tree.exists(QStringLiteral("a.txt")));

    const ApplyOutcome continued = apply([] { return true; });
    EXPECT_FALSE(continued.aborted);
    EXPECT_EQ(continued.renamed, 1);
    EXPECT_TRUE(tree.exists(QStringLiteral("A.txt")));
}

TEST_F(PipelineTest, AnEmptyProposalLeavesNoChanges)
{
    tree.file(QStringLiteral("abc"));
    list({QStringLiteral("abc")});
    // A mask longer than needed keeps the name; an empty name proposal counts as the old name.
    useGeneral(10);
    settings.setProperty("generalFilenameMask", QStringLiteral("abc"));
    preview();
    EXPECT_EQ(files.at(0).newFilename(), QLatin1String(status::NoChanges));
}

TEST_F(PipelineTest, ALimitedPreviewLeavesTheRestEmpty)
{
    tree.file(QStringLiteral("a.txt"));
    tree.file(QStringLiteral("b.txt"));
    tree.file(QStringLiteral("c.txt"));
    list({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
    useGeneral(0, 1);
    const PropertyOptionValues values(settings);
    Pipeline pipeline(files, values);
    pipeline.preview(noCancel, nullptr, 2);
    EXPECT_EQ(files.at(1).newFilename(), QStringLiteral("B.txt"));
    EXPECT_EQ(files.at(2).newFilename(), QString());
}

struct SequenceRunRow {
    bool numeric;
    bool restartInEachFolder;
    // The proposals for f2/x, f1/x, f2/y and f1/y, listed in that order.
    const char* expected[4];
};

TEST_F(PipelineTest, SequencesCountAcrossTheListOrRestartInEachFolder)
{
    const QStringList paths = {QStringLiteral("f2/x.txt"), QStringLiteral("f1/x.txt"), QStringLiteral("f2/y.txt"),
                               QStringLiteral("f1/y.txt")};
    for (const QString& path : paths)
        tree.file(path);
    const SequenceRunRow rows[] = {
        // The list order is kept: one sequence over all four.
        {true, false, {"1_x.txt", "2_x.txt", "3_y.txt", "4_y.txt"}},
        // Grouped by folder, then by name, and counting from the start value in each folder.
        {true, true, {"1_x.txt", "1_x.txt", "2_y.txt", "2_y.txt"}},
        {false, false, {"b_x.txt", "c_x.txt", "d_y.txt", "e_y.txt"}},
        {false, true, {"b_x.txt", "b_x.txt", "c_y.txt", "c_y.txt"}},
    };
    for (const SequenceRunRow& row : rows) {
        files.clear();
        list(paths);
        settings.setProperty("selectedTab", tabs::AlphaNumeric);
        settings.chooseNumericOrAlphabetic(row.numeric ? 0 : 1);
        settings.setProperty("isAlphaNumericPrefix", true);
        settings.setProperty("isAlphaNumericSeperator", true);
        settings.setProperty("alphaNumericSeperator", QStringLiteral("_"));
        settings.setProperty("alphaNumericNumericStartWith", QStringLiteral("1"));
        settings.setProperty("alphaNumericAlphabeticStartWith", QStringLiteral("b"));
        settings.setProperty("isAlphaNumericResetSequenceOnEachFolder", row.restartInEachFolder);
        // A second preview starts the counters over: it proposes the same names.
        for (int run = 0; run < 2; ++run) {
            EXPECT_TRUE(preview().hasFilesForRenaming);
            for (int i = 0; i < paths.size(); ++i) {
                EXPECT_EQ(newNameOf(paths[i]), QString::fromUtf8(row.expected[i]))
                    << qPrintable(paths[i]) << (row.numeric ? " numeric" : " alphabetic")
                    << (row.restartInEachFolder ? " restarting" : "") << " run " << run;
            }
        }
    }
}

TEST_F(PipelineTest, AMissingItemDoesNotUseUpASequenceValue)
{
    tree.file(QStringLiteral("a.txt"));
    tree.file(QStringLiteral("b.txt"));
    tree.file(QStringLiteral("c.txt"));
    list({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
    QFile::remove(tree.path(QStringLiteral("b.txt")));
    settings.setProperty("selectedTab", tabs::AlphaNumeric);
    settings.setProperty("isAlphaNumericSufix", true);
    settings.setProperty("alphaNumericPaddingMask", QStringLiteral("00"));

    preview();

    EXPECT_EQ(newNameOf(QStringLiteral("a.txt")), QStringLiteral("a00.txt"));
    EXPECT_EQ(newNameOf(QStringLiteral("b.txt")), QLatin1String(status::FileNotFound));
    EXPECT_EQ(newNameOf(QStringLiteral("c.txt")), QStringLiteral("c01.txt"));
}

struct ReplaceRemoveModeRow {
    int mode;  // 0 replace, 1 remove, 2 remove characters, -1 none
    bool allOccurrences;
    const char* find;
    const char* occurrence;
    const char* count;
    const char* expected;
};

TEST_F(PipelineTest, TheReplaceRemoveModesPassTheirOwnArguments)
{
    tree.file(QStringLiteral("a-b-c.txt"));
    const ReplaceRemoveModeRow rows[] = {
        {0, true, "-", "2", "0", "a+b+c.txt"},
        {0, false, "-", "2", "1", "a-b+c.txt"},
        // Rule steps store "-1" for every occurrence.
        {0, false, "-", "1", "-1", "a+b+c.txt"},
        // Removing ignores the replacement text.
        {1, true, "-", "2", "0", "abc.txt"},
        {1, false, "-", "1", "1", "ab-c.txt"},
        {2, false, "a-", "2", "0", "bc.txt"},
        {-1, false, "-", "1", "1", status::NoChanges},
    };
    for (const ReplaceRemoveModeRow& row : rows) {
        files.clear();
        list({QStringLiteral("a-b-c.txt")});
        settings.setProperty("selectedTab", tabs::ReplaceRemove);
        if (row.mode >= 0) {
            settings.chooseReplaceRemoveMode(row.mode);
        } else {
            settings.setProperty("isReplaceRemoveReplace", false);
            settings.setProperty("isReplaceRemoveRemove", false);
            settings.setProperty("isReplaceRemoveRemoveCharacters", false);
        }
        settings.setProperty("isReplaceRemoveAllOccurrence", row.allOccurrences);
        settings.setProperty("replaceRemoveThis", QString::fromUtf8(row.find));
        settings.setProperty("replaceRemoveWith", QStringLiteral("+"));
        settings.setProperty("replaceRemoveStartOnOccurrence", QString::fromUtf8(row.occurrence));
        settings.setProperty("replaceRemoveOccuranceCount", QString::fromUtf8(row.count));
        preview();
        EXPECT_EQ(files.at(0).newFilename(), QString::fromUtf8(row.expected))
            << "mode " << row.mode << " occurrence " << row.occurrence << " count " << row.count;
    }
}

TEST_F(PipelineTest, TheInsertDeleteSwitchPicksTheAction)
{
    tree.file(QStringLiteral("a-b-c.txt"));
    list({QStringLiteral("a-b-c.txt")});
    settings.setProperty("selectedTab", tabs::InsertDelete);
    settings.setProperty("insertDeleteInsert", QStringLiteral("X"));
    settings.chooseInsertPosition(2);
    settings.setProperty("insertDeleteAtCharacterPositions", QStringLiteral("2nd"));
    settings.setProperty("insertDeleteInsertAtPostionDirection", 1);
    settings.setProperty("insertDeleteFromCharacterPosition", QStringLiteral("1"));
    settings.setProperty("insertDeleteNumberOfCharacters", QStringLiteral("2"));
    settings.setProperty("isInsertDeleteDeleteFromBackWard", true);

    preview();
    EXPECT_EQ(files.at(0).newFilename(), QStringLiteral("a-b-Xc.txt"));
    settings.chooseInsertOrDelete(1);
    preview();
    EXPECT_EQ(files.at(0).newFilename(), QStringLiteral("a-b.txt"));
}

struct ValidationRow {
    int tab;
    const char* optionKey;
    int optionValue;
    const char* titleKey;
    const char* focus;
};

TEST(Validation, MissingInputsNameTheirAlertAndField)
{
    const ValidationRow rows[] = {
        {tabs::General, "generalOptionIndex", 8, "GENERALINVALIDINPUT", "generalRemoveAfterString"},
        {tabs::General, "generalOptionIndex", 9, "GENERALINVALIDINPUT", "generalRemoveFromString"},
        {tabs::General, "generalOptionIndex", 10, "GENERALINVALIDINPUT", "generalFilenameMask"},
        {tabs::ReplaceRemove, "generalOptionIndex", 0, "REPLACEREMOVEINVALIDINPUT", "replaceRemoveThis"},
        {tabs::InsertDelete, "insertDeleteInsertOptionIndex", 0, "INSERTINVALIDINPUT", "insertDeleteInsert"},
        {tabs::Photo, "generalOptionIndex", 0, "PHOTOINVALIDINPUT", "photoRenamingMask"},
    };
    for (const ValidationRow& row : rows) {
        Settings settings;
        settings.setProperty(row.optionKey, row.optionValue);
        const auto failure = validateAndNormalise(settings, row.tab);
        ASSERT_TRUE(failure.has_value()) << row.titleKey;
        EXPECT_EQ(failure->titleKey, QLatin1String(row.titleKey));
        EXPECT_EQ(failure->focusOption, QLatin1String(row.focus));
    }
}

TEST(Validation, GeneralOptionsWithoutInputsPassAndSwapPositionDefaultsToOne)
{
    Settings settings;
    settings.setProperty("generalOptionIndex", 7);
    settings.setProperty("generalSwapPosition", QString());
    EXPECT_FALSE(validateAndNormalise(settings, tabs::General).has_value());
    EXPECT_EQ(settings.property("generalSwapPosition").toString(), QStringLiteral("1"));
}

TEST(Validation, SequenceStepsAreClamped)
{
    Settings settings;
    settings.setProperty("isAlphaNumericNumeric", true);
    settings.setProperty("alphaNumericIncrementBy", QStringLiteral("0"));
    settings.setProperty("alphaNumericDecrementBy", QStringLiteral("-4"));
    validateAndNormalise(settings, tabs::AlphaNumeric);
    EXPECT_EQ(settings.property("alphaNumericIncrementBy").toString(), QStringLiteral("1"));
    EXPECT_EQ(settings.property("alphaNumericDecrementBy").toString(), QStringLiteral("1"));

    settings.setProperty("isAlphaNumericNumeric", false);
    settings.setProperty("alphaNumericIncrementBy", QStringLiteral("40"));
    settings.setProperty("alphaNumericAlphabeticStartWith", QString());
    validateAndNormalise(settings, tabs::AlphaNumeric);
    EXPECT_EQ(settings.property("alphaNumericIncrementBy").toString(), QStringLiteral("26"));
    EXPECT_EQ(settings.property("alphaNumericAlphabeticStartWith").toString(), QStringLiteral("a"));
}


struct InsertValidationRow {
    int insertOrDelete;  // 0 insert, 1 delete
    int position;        // 0 beginning ... 4 after text
    const char* text;
    const char* before;
    const char* after;
    const char* titleKey;  // null: the options run
    const char* focus;
};

TEST(Validation, InsertTextsAreRequiredOnlyWhereTheyAreUsed)
{
    const InsertValidationRow rows[] = {
        {0, 0, "", "_", "_", "INSERTINVALIDINPUT", "insertDeleteInsert"},
        {0, 3, "x", "", "_", "INSERTTEXTATBEFORETEXT", "insertDeleteInsertAtBeforeText"},
        {0, 4, "x", "_", "", "INSERTTEXTATAFTERTEXT", "insertDeleteInsertAtAfterText"},
        {0, 3, "x", "_", "", nullptr, nullptr},
        {0, 2, "x", "", "", nullptr, nullptr},
        {1, 3, "", "", "", nullptr, nullptr},
    };
    for (const InsertValidationRow& row : rows) {
        Settings settings;
        settings.chooseInsertOrDelete(row.insertOrDelete);
        settings.chooseInsertPosition(row.position);
        settings.setProperty("insertDeleteInsert", QString::fromUtf8(row.text));
        settings.setProperty("insertDeleteInsertAtBeforeText", QString::fromUtf8(row.before));
        settings.setProperty("insertDeleteInsertAtAfterText", QString::fromUtf8(row.after));
        const auto failure = validateAndNormalise(settings, tabs::InsertDelete);
        ASSERT_EQ(failure.has_value(), row.titleKey != nullptr) << row.position;
        if (!failure)
            continue;
        EXPECT_EQ(failure->titleKey, QLatin1String(row.titleKey));
        EXPECT_EQ(failure->messageKey, QLatin1String(row.position == 0 ? "ENTERVALIDVALUE" : "ENTERSOMETEXT"));
        EXPECT_EQ(failure->focusOption, QLatin1String(row.focus));
    }
}

TEST(Validation, EveryReplaceRemoveModeNeedsTheFindText)
{
    for (int mode = 0; mode < 3; ++mode) {
        Settings settings;
        settings.chooseReplaceRemoveMode(mode);
        const auto failure = validateAndNormalise(settings, tabs::ReplaceRemove);
        ASSERT_TRUE(failure.has_value()) << mode;
        EXPECT_EQ(failure->messageKey, QStringLiteral("ENTERVALIDVALUE"));
        settings.setProperty("replaceRemoveThis", QStringLiteral("-"));
        EXPECT_FALSE(validateAndNormalise(settings, tabs::ReplaceRemove).has_value()) << mode;
    }
}

TEST(Validation, OnlyLetterStepsHaveAnUpperBound)
{
    Settings settings;
    settings.chooseNumericOrAlphabetic(0);
    settings.setProperty("alphaNumericIncrementBy", QStringLiteral("500"));
    settings.setProperty("alphaNumericAlphabeticStartWith", QString());
    validateAndNormalise(settings, tabs::AlphaNumeric);
    EXPECT_EQ(settings.property("alphaNumericIncrementBy").toString(), QStringLiteral("500"));
    EXPECT_EQ(settings.property("alphaNumericAlphabeticStartWith").toString(), QString());

    settings.chooseNumericOrAlphabetic(1);
    settings.setProperty("alphaNumericDecrementBy", QStringLiteral("0"));
    validateAndNormalise(settings, tabs::AlphaNumeric);
    EXPECT_EQ(settings.property("alphaNumericIncrementBy").toString(), QStringLiteral("26"));
    EXPECT_EQ(settings.property("alphaNumericDecrementBy").toString(), QStringLiteral("1"));
}

}  // namespace

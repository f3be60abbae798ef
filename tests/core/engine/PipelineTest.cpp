#include "core/engine/Pipeline.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/list/FileList.h"
#include "core/list/StatusTexts.h"
#include "core/log/RenameLogReader.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "support/TempTree.h"

#include <QDir>
#include <QLocale>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

QString statusText(const char* status)
{
    return QString::fromLatin1(status);
}

// A list, the settings and a log folder over a temporary tree. The general tab's upper
// case conversion is the action unless a test picks another.
class PipelineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        useGeneral(generaloption::ConvertFilenameCase);
        settings.setGeneralFileNameCase(lettercase::Upper);
        settings.setIsIncludeSubFolders(false);
        logFolder = tree.folder(u"logs"_s);
    }

    // Creates the files that do not exist yet and lists them (or the folders) as given.
    void list(const QStringList& relativePaths, bool folders = false, bool subFolders = false)
    {
        settings.chooseFilesOrFolders(folders ? 1 : 0);
        settings.setIsIncludeSubFolders(subFolders);
        QStringList paths;
        for (const QString& relative : relativePaths)
            paths << (folders || tree.exists(relative) ? tree.path(relative) : tree.file(relative));
        files.addFiles(paths, ScanOptions{folders, subFolders, false}, noCancel);
    }

    void useGeneral(generaloption::GeneralOption option)
    {
        settings.setSelectedTab(tabs::General);
        settings.chooseGeneralOption(option);
    }

    PreviewOutcome preview(int limit = -1)
    {
        const PropertyOptionValues values(settings);
        return Pipeline(files, values).preview(noCancel, nullptr, limit);
    }

    ApplyOutcome apply(const ContinueWithoutLog& goOn = nullptr, ProgressObserver* observer = nullptr)
    {
        const PropertyOptionValues values(settings);
        return Pipeline(files, values).applyRenames(logFolder, goOn, cancel, observer);
    }

    QString newNameOf(const QString& name) const
    {
        for (const FileSystemItem& item : files.items()) {
            if (item.filenameWithExtension() == name || item.fullPath().endsWith(u'/' + name))
                return item.newFilename();
        }
        return u"<not listed>"_s;
    }

    qsizetype loggedEntries(const QString& logPath) const { return readLogEntries(logPath)->entries.size(); }

    test::TempTree tree;
    Settings settings;
    FileList files;
    std::atomic_bool noCancel{false};
    std::atomic_bool cancel{false};
    QString logFolder;
};

TEST_F(PipelineTest, PreviewSetsTheStatusTexts)
{
    list({u"d/ALREADY.txt"_s, u"d/already.txt"_s, u"d/gone.txt"_s, u"d/mixed.txt"_s});
    QFile::remove(tree.path(u"d/gone.txt"_s));

    const PreviewOutcome outcome = preview();

    EXPECT_TRUE(outcome.actionSucceeded);
    EXPECT_TRUE(outcome.hasFilesForRenaming);
    EXPECT_EQ(newNameOf(u"ALREADY.txt"_s), statusText(status::NoChanges));
    // A change of letter case only is never tested for existence at preview.
    EXPECT_EQ(newNameOf(u"already.txt"_s), u"ALREADY.txt"_s);
    EXPECT_EQ(newNameOf(u"gone.txt"_s), statusText(status::FileNotFound));
    EXPECT_EQ(newNameOf(u"mixed.txt"_s), u"MIXED.txt"_s);
}

// Regression: the rows a limited or cancelled preview did not reach kept the proposals of the
// preview before it, and apply renamed them by options the user had since changed.
TEST_F(PipelineTest, ALimitedPreviewLeavesTheRestEmpty)
{
    list({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s});
    preview();
    ASSERT_EQ(files.at(2).newFilename(), u"C.txt"_s);
    preview(2);
    EXPECT_EQ(files.at(1).newFilename(), u"B.txt"_s);
    EXPECT_EQ(files.at(2).newFilename(), QString());
}

// Regression: a real new name equal to a status text was taken for that status and skipped.
TEST_F(PipelineTest, ANewNameThatReadsLikeAStatusIsRenamed)
{
    settings.setGeneralFileNameCase(lettercase::Proper);
    list({u"file not found"_s, u"no changes"_s});
    ASSERT_TRUE(preview().hasFilesForRenaming);
    EXPECT_EQ(apply().renamed, 2);
    EXPECT_TRUE(tree.exists(u"File Not Found"_s));
    EXPECT_EQ(QDir(tree.path(QString())).entryList(QDir::Files), (QStringList{u"File Not Found"_s, u"No Changes"_s}));
}

TEST_F(PipelineTest, ACaseOnlyChangeIsAppliedButNeverOntoAnotherFile)
{
    list({u"photo.jpg"_s, u"already.txt"_s});
    tree.file(u"ALREADY.txt"_s, "upper");
    ASSERT_TRUE(preview().hasFilesForRenaming);
    ASSERT_EQ(files.at(1).newFilename(), u"ALREADY.txt"_s);

    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 1);
    EXPECT_EQ(files.at(0).newFilename(), statusText(status::RenamingOk));
    EXPECT_EQ(files.at(0).fullPath(), tree.path(u"PHOTO.jpg"_s));
    EXPECT_FALSE(tree.exists(u"photo.jpg"_s));
    // On a case-sensitive disk the other name is another file: it must stay as it was.
    EXPECT_EQ(files.at(1).newFilename(), statusText(status::FileAlreadyExists));
    EXPECT_EQ(tree.read(u"ALREADY.txt"_s), QByteArray("upper"));
    EXPECT_TRUE(tree.exists(u"already.txt"_s));
    EXPECT_EQ(loggedEntries(outcome.logPath), 1);
}

TEST_F(PipelineTest, SwappedNamesAreBothRefused)
{
    tree.file(u"a.txt"_s, "A");
    tree.file(u"b.txt"_s, "B");
    settings.setSelectedTab(tabs::FromFile);
    list({u"a.txt"_s, u"b.txt"_s});
    files.at(0).setObject(u"b.txt"_s, u"newFilename"_s);
    files.at(1).setObject(u"a.txt"_s, u"newFilename"_s);

    EXPECT_FALSE(preview().hasFilesForRenaming);
    EXPECT_EQ(files.at(0).newFilename(), statusText(status::FileAlreadyExists));
    EXPECT_EQ(files.at(1).newFilename(), statusText(status::FileAlreadyExists));
    EXPECT_EQ(apply().renamed, 0);
    EXPECT_EQ(tree.read(u"a.txt"_s), QByteArray("A"));
    EXPECT_EQ(tree.read(u"b.txt"_s), QByteArray("B"));
}

TEST_F(PipelineTest, ATargetCreatedAfterThePreviewIsNeverOverwritten)
{
    tree.file(u"a.txt"_s, "mine");
    list({u"a.txt"_s});
    useGeneral(generaloption::ChangeExtension);
    settings.setGeneralChangeExtension(u"md"_s);
    ASSERT_EQ((preview(), files.at(0).newFilename()), u"a.md"_s);
    tree.file(u"a.md"_s, "someone else's");

    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 0);
    EXPECT_EQ(outcome.failed, 1);
    EXPECT_EQ(files.at(0).newFilename(), statusText(status::FileAlreadyExists));
    EXPECT_EQ(tree.read(u"a.md"_s), QByteArray("someone else's"));
    EXPECT_EQ(tree.read(u"a.txt"_s), QByteArray("mine"));
}

TEST_F(PipelineTest, NestedFoldersAreRenamedInOneBatch)
{
    tree.file(u"top/a/b/c/keep.txt"_s, "k");
    list({u"top"_s}, true, true);
    ASSERT_EQ(files.size(), 3);

    preview();
    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 3);
    EXPECT_EQ(outcome.failed, 0);
    EXPECT_EQ(tree.read(u"top/A/B/C/keep.txt"_s), QByteArray("k"));
    QStringList paths;
    for (const FileSystemItem& item : files.items())
        paths << item.fullPath();
    EXPECT_TRUE(paths.contains(tree.path(u"top/A/B/C"_s)));
    EXPECT_TRUE(paths.contains(tree.path(u"top/A/B"_s)));
}

TEST_F(PipelineTest, TheLogNamesEveryRenameUnderItsCount)
{
    list({u"one.txt"_s, u"two.txt"_s});
    preview();

    const ApplyOutcome outcome = apply();

    const QStringList logs = QDir(logFolder).entryList(QDir::Files);
    ASSERT_EQ(logs.size(), 1);
    EXPECT_TRUE(logs.first().startsWith(u"Log "_s)) << logs.first().toStdString();
    EXPECT_TRUE(logs.first().endsWith(u"-2.xml"_s)) << logs.first().toStdString();
    EXPECT_EQ(QDir(logFolder).filePath(logs.first()), outcome.logPath);
    const auto contents = readLogEntries(outcome.logPath);
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 2);
    EXPECT_EQ(contents->type, u"FILES"_s);
    EXPECT_EQ(contents->entries[0].sourceName, u"one.txt"_s);
    EXPECT_EQ(contents->entries[0].targetName, u"ONE.txt"_s);
    EXPECT_EQ(contents->entries[1].targetLocation, tree.root());
}

TEST_F(PipelineTest, CancelKeepsWhatWasRenamedAndLogged)
{
    list({u"f0.txt"_s, u"f1.txt"_s, u"f2.txt"_s, u"f3.txt"_s, u"f4.txt"_s});
    preview();

    // The first progress report arrives while the first record is being renamed.
    struct CancelOnFirstReport : ProgressObserver {
        std::atomic_bool* cancel = nullptr;
        void progress(const Progress&) override { cancel->store(true); }
    } observer;
    observer.cancel = &cancel;
    const ApplyOutcome outcome = apply(nullptr, &observer);

    EXPECT_TRUE(outcome.cancelled);
    EXPECT_EQ(outcome.renamed, 1);
    EXPECT_EQ(outcome.untouched, 4) << "the window reports what the cancel left";
    EXPECT_TRUE(tree.exists(u"F0.txt"_s));
    EXPECT_TRUE(tree.exists(u"f1.txt"_s));
    EXPECT_EQ(loggedEntries(outcome.logPath), 1);
    EXPECT_TRUE(outcome.logPath.endsWith(u"-1.xml"_s));
}

TEST_F(PipelineTest, ALogFolderThatCannotBeWrittenAsksWhetherToGoOn)
{
    list({u"a.txt"_s});
    preview();
    // A regular file where the log folder should be: no log can be made there, even as root.
    logFolder = tree.file(u"not-a-folder"_s) + u"/Logs"_s;

    int asked = 0;
    const ApplyOutcome aborted = apply([&] {
        ++asked;
        return false;
    });
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(aborted.aborted);
    EXPECT_EQ(aborted.renamed, 0);
    EXPECT_TRUE(tree.exists(u"a.txt"_s));

    const ApplyOutcome continued = apply([] { return true; });
    EXPECT_FALSE(continued.aborted);
    EXPECT_EQ(continued.renamed, 1);
    EXPECT_TRUE(tree.exists(u"A.txt"_s));
}

TEST_F(PipelineTest, ACancelledPreviewStopsBeforeTheNextRecord)
{
    list({u"a.txt"_s, u"b.txt"_s});
    preview();
    cancel.store(true);
    const PropertyOptionValues values(settings);
    EXPECT_TRUE(Pipeline(files, values).preview(cancel, nullptr).cancelled);
    EXPECT_EQ(files.at(0).newFilename(), QString());
    EXPECT_EQ(files.at(1).newFilename(), QString()) << "no proposal of the earlier preview survives";
}

TEST_F(PipelineTest, ANameTooLongForTheFileSystemIsNoChange)
{
    list({u"a.txt"_s});
    settings.setSelectedTab(tabs::InsertDelete);
    settings.setInsertDeleteInsert(QString(255, u'x'));
    EXPECT_FALSE(preview().hasFilesForRenaming);
    EXPECT_EQ(files.at(0).newFilename(), statusText(status::NoChanges));
}

TEST_F(PipelineTest, ApplyChecksEachProposalAgain)
{
    list({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s});
    settings.setSelectedTab(tabs::InsertDelete);
    settings.chooseGeneralOption(generaloption::ReverseFilename);
    files.at(0).setObject(u"a.txt"_s, u"newFilename"_s);
    files.at(1).setObject(u"taken.txt"_s, u"newFilename"_s);
    files.at(2).setObject(u"free.txt"_s, u"newFilename"_s);
    tree.file(u"taken.txt"_s, "other");

    const ApplyOutcome outcome = apply();

    EXPECT_EQ(outcome.renamed, 1);
    EXPECT_EQ(outcome.failed, 2);
    EXPECT_EQ(files.at(0).newFilename(), statusText(status::NoChanges));
    EXPECT_EQ(files.at(1).newFilename(), statusText(status::FileAlreadyExists));
    EXPECT_EQ(tree.read(u"taken.txt"_s), QByteArray("other"));
    EXPECT_TRUE(tree.exists(u"free.txt"_s));
}

struct SequenceRunRow {
    const char* name;
    bool numeric;
    bool restartInEachFolder;
    // The proposals for f2/x, f1/x, f2/y and f1/y, listed in that order.
    const char* expected[4];
};

// Regression: a padding mask shorter than the numbers cut 10, 11 and 12 to "1" and the rows
// looked like ordinary proposals; all but one then failed at apply.
TEST_F(PipelineTest, ProposalsThatCollideInAFolderAreMarked)
{
    list({u"f1/a.jpg"_s, u"f1/b.jpg"_s, u"f1/c.jpg"_s, u"f1/d.txt"_s, u"f2/e.jpg"_s});
    settings.setSelectedTab(tabs::AlphaNumeric);
    settings.chooseNumericOrAlphabetic(0);
    settings.setAlphaNumericNumericStartWith(u"10"_s);
    settings.setAlphaNumericPaddingMask(u"0"_s);
    EXPECT_EQ(preview().conflicts, 3);
    std::vector<bool> marked;
    for (const FileSystemItem& item : files.items())
        marked.push_back(item.isConflict());
    // f1's three JPEGs all become "1.jpg"; "1.txt" differs by its extension, and f2's "1.jpg"
    // is in another folder.
    EXPECT_EQ(marked, (std::vector<bool>{true, true, true, false, false}));

    useGeneral(generaloption::ConvertFilenameCase);
    EXPECT_EQ(preview().conflicts, 0) << "the marks of the last preview only";
}

TEST_F(PipelineTest, SequencesCountAcrossTheListOrRestartInEachFolder)
{
    const QStringList paths = {u"f2/x.txt"_s, u"f1/x.txt"_s, u"f2/y.txt"_s, u"f1/y.txt"_s};
    const SequenceRunRow rows[] = {
        // The list order is kept: one sequence over all four.
        {"numbers across the list", true, false, {"1_x.txt", "2_x.txt", "3_y.txt", "4_y.txt"}},
        // Grouped by folder, then by name, and counting from the start value in each folder.
        {"numbers in each folder", true, true, {"1_x.txt", "1_x.txt", "2_y.txt", "2_y.txt"}},
        {"letters across the list", false, false, {"b_x.txt", "c_x.txt", "d_y.txt", "e_y.txt"}},
        {"letters in each folder", false, true, {"b_x.txt", "b_x.txt", "c_y.txt", "c_y.txt"}},
    };
    for (const SequenceRunRow& row : rows) {
        SCOPED_TRACE(row.name);
        files.clear();
        list(paths);
        settings.setSelectedTab(tabs::AlphaNumeric);
        settings.chooseNumericOrAlphabetic(row.numeric ? 0 : 1);
        settings.setIsAlphaNumericPrefix(true);
        settings.setIsAlphaNumericSeperator(true);
        settings.setAlphaNumericSeperator(u"_"_s);
        settings.setAlphaNumericNumericStartWith(u"1"_s);
        settings.setAlphaNumericAlphabeticStartWith(u"b"_s);
        settings.setIsAlphaNumericResetSequenceOnEachFolder(row.restartInEachFolder);
        // A second preview starts the counters over: it proposes the same names.
        for (int run = 0; run < 2; ++run) {
            EXPECT_TRUE(preview().hasFilesForRenaming);
            for (int i = 0; i < paths.size(); ++i)
                EXPECT_EQ(newNameOf(paths[i]), QString::fromUtf8(row.expected[i])) << i << " run " << run;
        }
    }
}

TEST_F(PipelineTest, AMissingItemDoesNotUseUpASequenceValue)
{
    list({u"a.txt"_s, u"b.txt"_s, u"c.txt"_s});
    QFile::remove(tree.path(u"b.txt"_s));
    settings.setSelectedTab(tabs::AlphaNumeric);
    settings.setIsAlphaNumericSufix(true);
    settings.setAlphaNumericPaddingMask(u"00"_s);

    preview();

    EXPECT_EQ(newNameOf(u"a.txt"_s), u"a01.txt"_s);
    EXPECT_EQ(newNameOf(u"b.txt"_s), statusText(status::FileNotFound));
    EXPECT_EQ(newNameOf(u"c.txt"_s), u"c02.txt"_s);
}

TEST_F(PipelineTest, EachTabRunsItsOwnAction)
{
    list({u"a-b-c.txt"_s});
    settings.setSelectedTab(tabs::InsertDelete);
    settings.setInsertDeleteInsert(u"X"_s);
    settings.chooseInsertPosition(insertoption::AtPosition);
    settings.setInsertDeleteAtCharacterPositions(u"2nd"_s);
    settings.setInsertDeleteInsertAtPostionDirection(insertdirection::FromEnd);
    settings.setInsertDeleteFromCharacterPosition(u"1"_s);
    settings.setInsertDeleteNumberOfCharacters(u"2"_s);
    settings.setIsInsertDeleteDeleteFromBackWard(true);
    settings.setReplaceRemoveThis(u"-"_s);
    settings.setReplaceRemoveWith(u"+"_s);
    settings.setIsReplaceRemoveAllOccurrence(true);

    const struct {
        const char* name;
        std::function<void()> choose;
        QString expected;
    } rows[] = {
        {"insert", [] {}, u"a-b-Xc.txt"_s},
        {"delete", [&] { settings.chooseInsertOrDelete(1); }, u"a-b.txt"_s},
        {"replace", [&] { settings.setSelectedTab(tabs::ReplaceRemove); }, u"a+b+c.txt"_s},
        // An empty proposal counts as the old name.
        {"no replace/remove mode", [&] { settings.setIsReplaceRemoveReplace(false); }, statusText(status::NoChanges)},
        {"a tab without an action", [&] { settings.setSelectedTab(tabs::Photo); }, statusText(status::NoChanges)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        row.choose();
        preview();
        EXPECT_EQ(files.at(0).newFilename(), row.expected);
    }
}

TEST(TimeTakenText, NamesTheOperationAndTheSeconds)
{
    const QString text = timeTakenText(1.5, "PREVIEWTIME");
    EXPECT_TRUE(text.contains(QLocale().toString(1.5, 'f', 2))) << qPrintable(text);
    EXPECT_FALSE(text.contains(u"PREVIEWTIME"_s)) << qPrintable(text);
}

TEST(ActionRegistry, RulesNameTheActionsOfTheirTabs)
{
    EXPECT_EQ(actionForRule(u"General"_s), actionForTab(tabs::General));
    EXPECT_EQ(actionForRule(u"AlphaNumeric"_s)->resetPerFolderKey,
              Settings::isAlphaNumericResetSequenceOnEachFolderKey);
    EXPECT_EQ(actionForRule(u"InsertDelete"_s)->tab, tabs::InsertDelete);
    EXPECT_EQ(actionForRule(u"ReplaceRemove"_s)->tab, tabs::ReplaceRemove);
    EXPECT_EQ(actionForRule(u"ID3"_s)->tab, tabs::Audio);
    // The rename-from-file tab runs no action, so no rule names it.
    EXPECT_EQ(actionForRule(QString()), nullptr);
    EXPECT_EQ(actionForTab(tabs::FromFile)->bind, nullptr);
    EXPECT_EQ(actionForRule(u"Photo"_s)->resetPerFolderKey, Settings::isPhotoResetSequenceOnEachFolderKey);
}

}  // namespace

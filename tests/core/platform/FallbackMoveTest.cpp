#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"
#include "core/platform/FaultInjection.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <cerrno>
#include <gtest/gtest.h>

using namespace tavrin;

// The fallbacks serve file systems without RENAME_NOREPLACE. The local disk has the flag, so
// the system-call table is made to answer as such a file system does.
namespace {

TEST(NoReplaceFallback, OnlyAMissingFlagOrCallLeadsToAFallback)
{
    struct Row {
        int error;
        bool directory;
        NoReplaceFallback expected;
    };
    const Row rows[] = {
        {EINVAL, false, NoReplaceFallback::LinkAndUnlink},
        {EINVAL, true, NoReplaceFallback::Refuse},
        {ENOSYS, false, NoReplaceFallback::LinkAndUnlink},
        {ENOSYS, true, NoReplaceFallback::Refuse},
        {EEXIST, false, NoReplaceFallback::None},
        {ENOENT, false, NoReplaceFallback::None},
        {EACCES, false, NoReplaceFallback::None},
        {EXDEV, false, NoReplaceFallback::None},
        {EROFS, true, NoReplaceFallback::None},
        {0, false, NoReplaceFallback::None},
    };
    for (const Row& row : rows)
        EXPECT_EQ(chooseNoReplaceFallback(row.error, row.directory), row.expected)
            << "errno " << row.error << (row.directory ? " (folder)" : " (file)");
}

// Regression: a folder fell back to lstat() and rename(), which replaced an empty folder that
// another process made in between; a file whose hard link was refused did the same to a file.
TEST(FallbackMove, NeverReplacesAndRefusesWhereNoSafeMoveIsLeft)
{
    struct Row {
        const char* name;
        const char* source; // in the tree below
        const char* target;
        int renameError; // what renameat2(RENAME_NOREPLACE) answers
        std::vector<test::Fault> more;
        FileOutcome expected;
        bool unsupportedMessage;
    };
    const auto racer = [](const char* path) { ::mkdir(path, 0755); };
    const Row rows[] = {
        {"file to a free name", "a.txt", "new.txt", EINVAL, {}, FileOutcome::Ok, false},
        {"file without the call", "a.txt", "new.txt", ENOSYS, {}, FileOutcome::Ok, false},
        {"dangling link moved as a link", "dangling", "moved", EINVAL, {}, FileOutcome::Ok, false},
        {"file onto a file", "a.txt", "b.txt", EINVAL, {}, FileOutcome::TargetExists, false},
        {"file onto a dangling link", "a.txt", "dangling", EINVAL, {}, FileOutcome::TargetExists, false},
        {"missing source", "ghost", "new.txt", EINVAL, {}, FileOutcome::SourceMissing, false},
        {"file racing a creator", "a.txt", "new.txt", EINVAL,
            {{test::Call::Link, 1, 0, false, racer}}, FileOutcome::TargetExists, false},
        {"file without hard links", "a.txt", "new.txt", EINVAL,
            {{test::Call::Link, 1, EPERM}}, FileOutcome::Failed, true},
        {"source that cannot be unlinked", "a.txt", "new.txt", EINVAL,
            {{test::Call::Unlink, 1, EIO}}, FileOutcome::Failed, false},
        {"folder to a free name", "folder", "renamed", EINVAL, {}, FileOutcome::Failed, true},
        {"folder racing an empty folder", "folder", "renamed", EINVAL,
            {{test::Call::RenameNoReplace, 1, EINVAL, false, racer}}, FileOutcome::Failed, true},
    };
    for (const Row& row : rows) {
        test::TempTree tree;
        tree.file(QStringLiteral("a.txt"), "alpha");
        tree.file(QStringLiteral("b.txt"), "beta");
        tree.file(QStringLiteral("folder/inner"), "inner");
        tree.symlink(tree.path(QStringLiteral("nowhere")), QStringLiteral("dangling"));
        const QString source = tree.path(QString::fromUtf8(row.source));
        const QString target = tree.path(QString::fromUtf8(row.target));
        const ItemIdentity before = itemIdentity(source);
        const ItemIdentity targetBefore = itemIdentity(target);
        std::vector<test::Fault> faults = row.more;
        faults.push_back({test::Call::RenameNoReplace, 0, row.renameError});
        FileResult result;
        {
            test::InjectedFaults injected(faults);
            result = moveItemNoReplace(source, target);
        }
        EXPECT_EQ(result.outcome, row.expected) << row.name;
        EXPECT_EQ(result.message == localized("FILEOPNOREPLACEUNSUPPORTED"), row.unsupportedMessage) << row.name;
        if (row.expected == FileOutcome::Ok) {
            EXPECT_TRUE(isSameItem(itemIdentity(target), before)) << row.name;
            EXPECT_FALSE(pathExists(source)) << row.name;
            continue;
        }
        // Nothing moved, nothing replaced, no second name left behind.
        EXPECT_EQ(isSameItem(itemIdentity(source), before), before.exists) << row.name;
        EXPECT_EQ(isSameItem(itemIdentity(target), targetBefore), targetBefore.exists) << row.name;
        EXPECT_FALSE(before.exists && isSameItem(itemIdentity(target), before)) << row.name;
    }
}

}  // namespace

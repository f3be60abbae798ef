#pragma once

#include "core/list/FileSystemItem.h"
#include "support/TempTree.h"

#include <QString>
#include <gtest/gtest.h>
#include <optional>

namespace tavrin::test {

inline QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// Records of real files, each in a folder of its own so that rows may reuse names, with
// the proposal an earlier rule step left in newFilename.
class ActionTest : public ::testing::Test {
protected:
    FileSystemItem item(const char* onDisk, const char* earlierProposal = "")
    {
        const QString relative = QStringLiteral("row%1/").arg(++m_rows) + q(onDisk);
        std::optional<FileSystemItem> made = FileSystemItem::initWithPath(tree.file(relative));
        EXPECT_TRUE(made.has_value()) << onDisk;
        FileSystemItem record = made.value_or(FileSystemItem());
        record.setObject(q(earlierProposal), QStringLiteral("newFilename"));
        return record;
    }

    TempTree tree;

private:
    int m_rows = 0;
};

}  // namespace tavrin::test
